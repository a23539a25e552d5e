#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string>
#include <vector>

#include "core/einstellungswerte.h"
#include "core/renn_parameter.h"
#include "core/spuren.h"
#include "platform/dauer.h"
#include "platform/uhr.h"

namespace tarvel {

/// The result of a race as a value: made once from the race, or read from its file. What the file of a race does not
/// hold is absent in a result that was read.
struct rennergebnis {
    struct runde {
        zeit_ms zeit = 0;
        std::array<zeit_ms, sektoren_max> sektoren{};  ///< of sectors 1 to 3, 0 for none
        std::optional<zeit_ms> pause = {};             ///< has come off `zeit` already
        zeit_ms stempel = 0;                           ///< of the crossing that closes it; 0 in a result that was read
        double meter = 0;                              ///< length of its lane; likewise
        bool nachgetragen = false;                     ///< that crossing was added by the race director
        bool angefangen = false;                       ///< a part of it was driven before the race went on
        int teil = 0;                                  ///< how often the race had gone on when it was closed
        bool ausfall = false;  ///< the program was away in it, and the car perhaps drove on: `zeit` says little
        zeit_ms zuschlag = 0;  ///< of the penalty of an empty tank; is in `zeit`. 0 in a result that was read

        bool operator==(const runde&) const = default;
    };

    struct spur {
        int nummer = 0;  ///< of the lane
        std::string fahrer;
        std::string klasse;  ///< of the driver, one character; empty without classes
        std::string fahrzeug;
        std::string laenge;                                  ///< metres, as typed
        std::array<std::string, sektoren_max> sektorlaenge;  ///< metres, as typed; empty for sectors not measured
        bool disqualifiziert = false;
        /// Row 0 is the way to the first crossing, lap n row n. Empty for a car that never crossed the line.
        std::vector<runde> runden;
        zeit_ms beste = 0;       ///< 0 for none
        zeit_ms gesamtzeit = 0;  ///< laps and penalties
        double meter = 0;        ///< with `restmeter`
        double restmeter = 0;    ///< beyond the last lap
        std::optional<dauer_s> strafzeit = {};
        std::optional<int> platz = {};            ///< from 1
        std::optional<double> tankinhalt = {};    ///< litres at the end
        std::optional<int> vor_fortsetzung = {};  ///< laps up to this one were driven before the race went on

        bool operator==(const spur&) const = default;
        /// One crossing of lap 1 to the last was added: it is a part of what was measured.
        bool geteilt(std::size_t runde) const { return runden[runde].nachgetragen || runden[runde - 1].nachgetragen; }
        /// All of it was measured.
        bool gemessen(std::size_t runde) const { return !geteilt(runde) && !runden[runde].ausfall; }
        int nachgetragene() const {
            return static_cast<int>(
                std::count_if(runden.begin(), runden.end(), [](const auto& r) { return r.nachgetragen; }));
        }
        /// What an empty tank has added to the laps.
        zeit_ms zuschlag() const {
            return std::accumulate(runden.begin(), runden.end(), zeit_ms{0},
                                   [](zeit_ms summe, const runde& r) { return summe + r.zuschlag; });
        }
        int rundenzahl() const { return runden.empty() ? 0 : static_cast<int>(runden.size()) - 1; }
    };

    std::optional<rennziel> ziel = {};
    std::optional<sortier_modus> wertung = {};  ///< by what the places go
    std::optional<bool> vorzeitig = {};         ///< ended by hand
    std::optional<zeit_ms> zeit_um = {};        ///< stamp of the end of the time
    std::optional<double> massstab = {};        ///< speeds are those of the original, so many times as large
    std::string datum;                          ///< of the end
    std::string uhrzeit;
    bool tanken = false;
    std::array<bool, sektoren_max> gemessen{};  ///< sectors 1 to 3
    int teil = 0;                               ///< how often the race has gone on
    int rundenzeilen = 0;      ///< rows of the table of laps; a lane that has left the race may have had the most
    std::vector<spur> spuren;  ///< that were in the race, in the order of their numbers

    bool operator==(const rennergebnis&) const = default;
    /// The lane's part, null for a lane that was not in the race.
    const spur* auf(int nummer) const {
        for (const spur& eine : spuren) {
            if (eine.nummer == nummer) {
                return &eine;
            }
        }
        return nullptr;
    }
    /// The lane in place 1, null before there is one.
    const spur* fuehrende() const {
        for (const spur& eine : spuren) {
            if (eine.platz == 1) {
                return &eine;
            }
        }
        return nullptr;
    }
};

}  // namespace tarvel
