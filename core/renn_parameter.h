#pragma once

#include <string>

#include "core/spuren.h"
#include "platform/uhr.h"

namespace tarvel {

/// What the set-up hands over to a race.
struct renn_parameter {
    std::string renn_art_text;  ///< `texte::text_zeit` or `texte::text_runden`
    zeit_ms renn_ziel = 0;      ///< laps to drive; in a time race the duration in ms
    zeit_ms renndauer_ms = 0;   ///< hours, minutes and seconds of the set-up
    zeit_ms renndauer_rest_ms = 0;
    zeit_ms min_rundenzeit_ms = 0;  ///< shortest lap to count
    int spuren_anzahl = 0;          ///< lanes used
    spuren<bool> spur_aktiv;        ///< lane used
    spuren<std::string> fahrer_name;
    spuren<double> spurlaenge;  ///< metres
    bool tank_aktiv = false;
    int auswertung_nach_rennen = 2;  ///< `einstellungen::auswertung_nach` of this race
    bool training_laeuft = false;
    bool training_autostart = false;  ///< the small start light begins by itself
    bool wettkampf_kein = true;       ///< a single race, no competition
};

}  // namespace tarvel
