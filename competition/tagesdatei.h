#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/zeit.h"

/// The files of the day race: the running list of its results, and what its window keeps from one day to the next.
namespace tarvel {

inline constexpr std::size_t klassenzeilen = 5;

/// `Tagesrennen.ini`.
struct tagesparameter {
    std::string name;  ///< of the day's file, without folder and ending
    bool klassen = false;
    std::array<std::string, klassenzeilen> klassen_text;  ///< free text on what the classes stand for

    bool operator==(const tagesparameter&) const = default;
};

/// None without a file of that kind.
std::optional<tagesparameter> tagesparameter_laden(const dateien& ablage);
bool tagesparameter_speichern(const dateien& ablage, const tagesparameter& werte);

/// The day's file of this name, given with or without its ending.
std::string tagesdatei_pfad(std::string_view name);

enum class tagesdatei_zustand {
    neu,         ///< there is none yet
    bereit,      ///< its first line says that it is one
    unbrauchbar  ///< another file, or a name that no file can have
};
tagesdatei_zustand tagesdatei_pruefen(const dateien& ablage, std::string_view name);
/// With its first line alone.
bool tagesdatei_anlegen(const dateien& ablage, std::string_view name);

/// One driver's part of a race of the day, as the file holds it.
struct tageszeile {
    std::string klasse;
    std::string name;
    std::string runden;
    std::string meter;
    std::string beste;
    std::string gesamtzeit;
};
/// In the order in which they were driven; what is no such line is passed over.
std::vector<tageszeile> tageszeilen_lesen(const dateien& ablage, std::string_view name,
                                          const trennzeichen_tabelle& trennzeichen);

}  // namespace tarvel
