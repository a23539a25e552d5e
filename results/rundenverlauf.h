#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "race/rennergebnis.h"

namespace tarvel {

/// A lap as the chart shows it.
struct verlaufsrunde {
    int runde = 0;              ///< from 1
    zeit_ms zeit = 0;           ///< always above 0
    zeit_ms pause = 0;          ///< has come off `zeit` already; 0 for a lap without a pause
    bool nachgetragen = false;  ///< added by the race director, or what is left of the lap that it was cut from

    bool operator==(const verlaufsrunde&) const = default;
};

/// The laps of one lane in their order.
struct spur_verlauf {
    int spur = 0;
    std::string fahrer;
    bool disqualifiziert = false;       ///< out: then there are no laps to show
    std::vector<verlaufsrunde> runden;  ///< empty for a lane without a lap
    int beste = 0;                      ///< lap number of the best lap; 0 if it is not among `runden`
};

/// The laps of a race: one entry per lane that was in it, in the order of the lanes.
using rundenverlauf = std::vector<spur_verlauf>;

rundenverlauf rundenverlauf_bilden(const rennergebnis& ergebnis);

/// Number of the last lap that any lane has driven; 0 if there is nothing to show.
int letzte_runde(const rundenverlauf& verlauf);

/// Lap times between which a chart shows the laps well.
struct zeitspanne {
    zeit_ms von = 0;
    zeit_ms bis = 0;
};

/// From the fastest lap to the slowest that is one of the usual laps of a lane: a car that lay beside the track for a
/// minute does not flatten all other laps, nor does one that was added, of which two make a lap. What is outside is to
/// be shown at the edge. Both ends are 0 without a lap.
zeitspanne uebliche_zeiten(const rundenverlauf& verlauf);

/// No more laps than a chart can tell apart: of each group of neighbours the fastest and the slowest, so that the line
/// keeps its outline, and no more than `hoechstens` (at least 2) of them.
std::vector<verlaufsrunde> ausgeduennt(const std::vector<verlaufsrunde>& runden, std::size_t hoechstens);

}  // namespace tarvel
