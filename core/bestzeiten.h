#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/spuren.h"
#include "platform/schnittstelle.h"
#include "platform/uhr.h"

namespace tarvel {

/// What has to follow in the program when the best times are others.
class bestzeitfolgen : public schnittstelle {
public:
    /// The settings name the file: reads it; a missing one shows its message.
    virtual void bestzeiten_laden() = 0;
    /// The table has changed, and its file with it.
    virtual void bestzeiten_geaendert() = 0;
};

/// What stands where no best time is. Longer laps are no best times.
inline constexpr zeit_ms keine_bestzeit = 99999;

struct bestzeit {
    zeit_ms ms = keine_bestzeit;  ///< 1 to 99998, or `keine_bestzeit`; then the texts are empty
    std::string name;
    std::string fahrzeug;
    std::string datum;  ///< "21.11.2026"

    bool leer() const { return ms == keine_bestzeit; }
    bool operator==(const bestzeit&) const = default;
};

/// The best laps of a track: ten of each lane, and the record of all lanes. Entries are kept as the file gives them
/// back: with characters that it holds, and empty where the time is none.
class bestzeiten {
public:
    static constexpr int zeilen_anzahl = 10;
    static constexpr int text_laenge_max = 200;  ///< characters; what is longer is cut

    bestzeiten();  // not in place: clang-tidy 14 breaks down over building the table at compile time

    /// Row 1 to 10 of a lane.
    const bestzeit& eintrag(int zeile, int spur) const { return spuren_[spur].at(platz(zeile)); }
    /// Row 1 of a lane; `keine_bestzeit` for none.
    zeit_ms beste(int spur) const { return eintrag(1, spur).ms; }
    /// The best of all first rows; the lowest lane has it where two are equal.
    const bestzeit& gesamt() const { return gesamt_; }

    /// The file of this name in the folder of the best times. What cannot be read there is an empty entry; a missing
    /// file leaves the table empty, and gives false.
    bool laden(const dateien& ablage, std::string_view stamm);
    /// False after a failure, which leaves the old file.
    bool speichern(const dateien& ablage, std::string_view stamm) const;

    /// The new time goes on top of the lane, the tenth drops out. A time that is none changes nothing.
    void einfuegen(int spur, bestzeit neu);
    void setzen(int zeile, int spur, const bestzeit& neu);
    /// Takes it out; those behind it move up.
    void streichen(int zeile, int spur);
    /// The fastest first, the empty ones last.
    void sortieren();
    void leeren() { *this = {}; }

    bool operator==(const bestzeiten& andere) const { return spuren_.werte_ == andere.spuren_.werte_; }

private:
    using rangliste = std::array<bestzeit, zeilen_anzahl>;

    static std::size_t platz(int zeile) { return static_cast<std::size_t>(zeile - 1); }
    void gesamt_bilden();

    spuren<rangliste> spuren_;
    bestzeit gesamt_;
};

/// Path of the file of this name below the program folder.
std::string bestzeit_pfad(std::string_view stamm);
/// Names of the best-time files that are there, without their extension.
std::vector<std::string> bestzeit_dateien(const dateien& ablage);
/// The same, and the one that is to be chosen among them, whether it is there or not.
std::vector<std::string> bestzeit_auswahl(const dateien& ablage, const std::string& gewaehlt);

}  // namespace tarvel
