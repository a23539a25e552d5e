#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/zeit.h"
#include "race/rennergebnis.h"

namespace tarvel {

/// The words of a result file.
struct ergebnis_worte {
    std::string rennergebnis;
    std::string tanken_aktiv;
    std::string direktvergleich;
    std::string spur;
    std::string rundenzahl;
    std::string disqualifiziert;
    std::string spurlaenge;
    std::string sektorlaenge;
    std::string restmeter;
    std::string gesamtmeter;
    std::string gesamtzeit;
};

/// The file of a single race, line by line. It holds no standing: that is computed from it.
std::vector<std::string> einzelrennen_zeilen(const rennergebnis& ergebnis, const ergebnis_worte& wort,
                                             const trennzeichen_tabelle& trennzeichen);

/// A result with the words and separators that its file was written in, so that it can be written the same again. Words
/// that the file has no place for are empty.
struct gelesenes_rennen {
    tarvel::rennergebnis ergebnis;
    ergebnis_worte wort;
    trennzeichen_tabelle trennzeichen;
};

/// Reads such a file; nothing if the lines are none.
std::optional<gelesenes_rennen> einzelrennen_lesen(const std::vector<std::string>& zeilen);

/// What the race adds to the file of a day race: a line per lane. A driver may carry his class in front of his name, a
/// single character and the separator; without one he is in class "0".
std::vector<std::string> tages_zeilen(const rennergebnis& ergebnis, const trennzeichen_tabelle& trennzeichen);

}  // namespace tarvel
