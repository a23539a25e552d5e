#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "results/ergebnisspalten.h"
#include "results/rennblock.h"

namespace tarvel {

struct ergebniszeile {
    std::string text;
    bool ergebnis = false;   ///< a driver's; others are shown and kept as they are
    int platz = 0;           ///< after sorting a file whose lines have no field for it; 0 for none
    rennblock block;         ///< of a single race only
    std::size_t rennen = 0;  ///< likewise: index in `rennen`
};

/// The lines of one or more result files of one kind, as the operator looks at them, changes them and saves them.
struct ergebnistabelle {
    /// What the program holds of a file.
    static constexpr std::size_t zeilen_max = 10000;

    struct lauf {
        std::string datum;
        std::string uhrzeit;
        bool operator==(const lauf&) const = default;
    };

    ergebnis_typ typ = ergebnis_typ::unbekannt;
    trennzeichen_tabelle trennzeichen = trennzeichen_standard;
    std::vector<std::string> kopf;      ///< in front of the results
    std::vector<ergebniszeile> zeilen;  ///< up to the foot
    std::vector<lauf> rennen;           ///< single races: when each was driven, the first one's as in its head
    bool gekuerzt = false;              ///< lines of a file, or laps of a sum, had no room
    bool addiert = false;               ///< lines of several races have become one

    /// The lines of the file that it is saved as.
    std::vector<std::string> alle_zeilen() const;
    /// Lines that this takes.
    std::size_t umfang() const;
};

/// None if the lines are no result file, or none that fits together.
std::optional<ergebnistabelle> ergebnistabelle_lesen(std::vector<std::string> zeilen,
                                                     const trennzeichen_tabelle& trennzeichen);

enum class hinzufuegen_ergebnis { hinzugefuegt, anderer_typ, zu_viele_zeilen };
/// Puts the results of `neue` behind those of the table; races stand side by side. Otherwise nothing changes.
hinzufuegen_ergebnis hinzufuegen(ergebnistabelle& tabelle, const ergebnistabelle& neue);

/// The fields of a driver's line; none for any other line.
struct fahrerzeile {
    ergebnisfelder felder;
    ergebnisspalten spalten;
};
std::optional<fahrerzeile> fahrerzeile_von(const ergebnistabelle& tabelle, const ergebniszeile& zeile);

/// The lane that a driver of a single race had; 0 if his block does not say.
std::int64_t spurnummer(const ergebniszeile& zeile, const std::string& trenner);

/// The lines of one of the single races as its own file.
std::vector<std::string> rennen_zeilen(const ergebnistabelle& tabelle, std::size_t rennen);

/// Classes of a day race in alphabetical order.
std::vector<std::string> klassen_von(const ergebnistabelle& tabelle);

}  // namespace tarvel
