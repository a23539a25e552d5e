#pragma once

#include <set>

#include "core/namensspalten.h"
#include "results/ergebnistabelle.h"

namespace tarvel {

/// Words over the columns of the readable table.
struct ansicht_worte {
    std::string platz, klasse, name, rennen, spur, runden, meter, beste, gesamtzeit, strafzeit;
    std::string heat, laenge, restmeter;
    std::string nummer;        ///< over numbers that are no places
    std::string runde, start;  ///< of the table of laps; `start` is the way to the first crossing
};

/// What of the table is shown.
struct detailwahl {
    bool runden = false;  ///< of lanes and heats, or the laps of a race
    bool meter = false;   ///< of lanes
    bool beste = false;   ///< of lanes and heats
    std::set<std::string> ohne_klassen;
};

/// Rows of one width for letters of one width.
struct ergebnisansicht {
    struct zeile {
        std::string text;
        bool kopf = false;
        std::optional<std::size_t> ergebnis = {};  ///< index in the table of a driver's line
    };

    zeile kopf;  ///< of the columns
    std::vector<zeile> zeilen;
    namensspalten namen;  ///< of the drivers' lines and the heads
};

ergebnisansicht ergebnisansicht_bilden(const ergebnistabelle& tabelle, const ansicht_worte& wort,
                                       const detailwahl& wahl);

/// The file has such details.
detailwahl moegliche_details(const ergebnistabelle& tabelle);

}  // namespace tarvel
