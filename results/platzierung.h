#pragma once

#include <vector>

#include "core/spuren.h"
#include "race/rennergebnis.h"

namespace tarvel {

/// What a lane brings to the standing.
struct platz_werte {
    bool aktiv = false;
    int runden = 0;
    double meter = 0;
    zeit_ms gesamtzeit = 0;   ///< laps plus penalties
    zeit_ms beste_runde = 0;  ///< 0 for none
};

/// Any number outside 1 to 3 means laps.
sortier_modus gueltiger_modus(sortier_modus modus);

/// Lanes in the order of the standing, index 1 the winner. Inactive lanes come last.
///
/// The order of ties is fixed by the exchange sort itself: after the keys of a pair it looks whether the lane whose
/// number is the place just sorted is inactive, and then exchanges the pair once more.
spuren<int> rang_folge_bilden(const spuren<platz_werte>& werte, sortier_modus modus);

/// Gives each lane of the result its place, by what the result goes by; without that by laps.
void platzieren(rennergebnis& ergebnis);

/// A lane that would have another place if its way to its first crossing counted as well: the order that the line has
/// seen.
struct platz_ab_gruen {
    int platz = 0;
    int spur = 0;

    bool operator==(const platz_ab_gruen&) const = default;
};

/// By place. Empty as long as both orders are the same.
std::vector<platz_ab_gruen> anders_ab_gruen(const rennergebnis& ergebnis);

/// Lanes whose first crossing was a false start that counted: their first lap, and with it their total time, runs from
/// the green light. Empty where it does so for nobody or for all.
std::vector<int> gezaehlt_ab_gruen(const rennergebnis& ergebnis);

}  // namespace tarvel
