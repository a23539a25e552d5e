#pragma once

#include <optional>

#include "race/rennergebnis.h"
#include "race/rennhergang.h"

namespace tarvel {

/// The laps of a race as its log tells of them, corrected as the race director has done; places and totals mean
/// nothing. None if drivers have changed lanes, or without a head.
std::optional<rennergebnis> protokollrunden(const rennhergang& hergang);

/// What a result that was read from its file does not hold: the pauses in its laps, and which were added. A lap that
/// is another one in the log has none of it.
void marken_eintragen(rennergebnis& gelesen, const rennergebnis& protokolliert);

}  // namespace tarvel
