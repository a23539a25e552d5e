#pragma once

#include <string>
#include <vector>

#include "results/wertung.h"

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

/// What the lines of a single race come from.
struct ergebnis_quelle {
    const renn_umgebung& um;
    const sektoren& sektor;
    const wertung& stand;
    const ergebnis_worte& wort;
};

/// The file of a single race, line by line. It holds no standing: that is computed from it.
std::vector<std::string> einzelrennen_zeilen(const ergebnis_quelle& quelle);

/// What the race adds to the file of a day race: a line per lane. A driver may carry his class in front of his name, a
/// single character and the separator; without one he is in class "0".
std::vector<std::string> tages_zeilen(const ergebnis_quelle& quelle);

}  // namespace tarvel
