#pragma once

#include <string>

#include "core/sprache.h"
#include "race/rueckstand.h"

namespace tarvel {

/// Words of the lap-time chart.
struct diagramm_worte {
    std::string achse_runde;
    std::string achse_zeit;  ///< with its unit
    std::string beste;
    std::string pause;         ///< a lap with a pause
    std::string nachgetragen;  ///< a lap that was added, in a result that can have one
    std::string lang;          ///< a lap that is longer than the chart is high
    std::string ohne_runden;
    std::string leer;  ///< stands in place of the chart

    sprachliste& eintragen(sprachliste& texte);
};

/// Words of the printed result.
struct blatt_worte {
    std::string platz;
    std::string spur;
    std::string fahrer;
    std::string fahrzeug;
    std::string runden;
    std::string meter;
    std::string gesamtzeit;
    std::string abstand;
    std::string beste;
    std::string nachgetragen;  ///< stands before the number of laps that were added
    std::string tempo;         ///< of the best lap and on average
    std::string strecke;
    std::string rundenzeiten;
    std::string ab_gruen;         ///< in front of the order from the green light
    std::string nach_fruehstart;  ///< in front of those whose time runs from there
    std::string tank_leer;        ///< in front of what it has added to the last lap
    rueckstand_worte rueckstand;

    /// But for the captions that the result window has too: these it sets itself.
    sprachliste& eintragen(sprachliste& texte);
    /// Those that came later, for the end of the list.
    sprachliste& nachtragen(sprachliste& texte);
    sprachliste& ab_gruen_nennen(sprachliste& texte);
    sprachliste& fruehstart_nennen(sprachliste& texte);
};

}  // namespace tarvel
