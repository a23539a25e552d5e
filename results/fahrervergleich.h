#pragma once

#include "race/rennergebnis.h"
#include "results/ergebnistabelle.h"

namespace tarvel {

/// How evenly a driver drives, from all his lap times in memory. A file that holds no single laps gives his best laps
/// of lanes, heats or races instead.
struct fahrerstreuung {
    std::string name;
    std::size_t anzahl = 0;  ///< of times
    zeit_ms beste = 0;
    zeit_ms viertel = 0;  ///< a quarter of the times is not above it
    zeit_ms median = 0;
    zeit_ms dreiviertel = 0;
    /// The slowest time that is one of his usual ones: a car that lay beside the track is no sign of how he drives.
    zeit_ms laengste_uebliche = 0;

    zeit_ms streuung() const { return dreiviertel - viertel; }
    bool operator==(const fahrerstreuung&) const = default;
};

/// Each driver with at least one time, the lowest median first.
std::vector<fahrerstreuung> fahrervergleich(const ergebnistabelle& tabelle);
/// The times are laps, not the best of something.
bool vergleicht_runden(const ergebnistabelle& tabelle);

/// One of the single races as a result with its places; none if it cannot be told from the lines.
std::optional<rennergebnis> rennen_von(const ergebnistabelle& tabelle, std::size_t rennen, sortier_modus nach);

}  // namespace tarvel
