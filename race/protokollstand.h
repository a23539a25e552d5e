#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/spuren.h"
#include "race/protokollkopf.h"

namespace tarvel {

/// How far a race has come, from its log, and whether it has come to its end.
struct protokollstand {
    protokollkopf kopf;
    bool gestartet = false;    ///< it has seen its green light
    bool beendet = false;      ///< it has its result
    bool abgebrochen = false;  ///< broken off by hand
    bool geschlossen = false;  ///< the race window was closed, or nobody wants it back for now
    bool verlassen = false;    ///< the race window was closed: a result that there was is where it belongs
    zeit_ms dauer = 0;         ///< since the window opened, up to the last line
    spuren<std::string> fahrer;
    spuren<int> runden{};

    /// It can go on from the last of these lines; what is behind them took it to its end. None are of the head.
    std::vector<std::string_view> zeilen;
    std::size_t bytes = 0;    ///< of the log up to there
    std::uint16_t kette = 0;  ///< sum of that line
    int erste_zeile = 1;      ///< number of the first one in the log

    bool fortsetzbar() const { return gestartet && !(beendet && verlassen); }
    /// Most laps that a lane has.
    int fuehrungsrunden() const;
};

/// None for a log that this version cannot do again. `inhalt` must outlive the lines.
std::optional<protokollstand> protokollstand_lesen(std::string_view inhalt);

}  // namespace tarvel
