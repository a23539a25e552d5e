#pragma once

#include <string>

#include "core/einstellungswerte.h"
#include "core/rennziel.h"
#include "core/spuren.h"
#include "platform/uhr.h"

namespace tarvel {

/// Target of a race without an end: more than anybody can drive, and than a race may go on to.
inline constexpr rennziel ziel_ohne_ende = rennziel::runden(10000);

/// What the set-up hands over to a race.
struct renn_parameter {
    rennziel renn_ziel;
    rennziel renn_laenge;      ///< what the set-up asked for; `renn_ziel` grows beyond it when the race is continued
    zeit_ms renndauer_ms = 0;  ///< of the race, or of the part of it that a continuation adds
    zeit_ms renndauer_rest_ms = 0;
    zeit_ms min_rundenzeit_ms = 0;  ///< shortest lap to count
    int spuren_anzahl = 0;          ///< lanes used
    spuren<bool> spur_aktiv;        ///< lane used
    int spuren_anzahl_gemerkt = 0;  ///< both as the set-up had them: a continued race may leave lanes out
    spuren<bool> spur_aktiv_gemerkt;
    spuren<std::string> fahrer_name;
    spuren<std::string> klasse;  ///< of the driver, one character; empty without classes
    spuren<std::string> fahrzeug_name;
    spuren<double> spurlaenge;            ///< metres
    spuren<std::string> spurlaenge_text;  ///< the same as typed
    double massstab = 1;                  ///< the original is this many times as large as the model
    bool tank_aktiv = false;
    sortier_modus auswertung_nach_rennen = sortier_modus::runden;  ///< `einstellungen::auswertung_nach` of this race

    bool ist_zeitrennen() const { return renn_ziel.ist_zeit(); }

    void spuren_wiederherstellen() {
        spur_aktiv = spur_aktiv_gemerkt;
        spuren_anzahl = spuren_anzahl_gemerkt;
    }
    /// Undoes what a continuation has changed.
    void einrichtung_wiederherstellen() {
        spuren_wiederherstellen();
        renn_ziel = renn_laenge;
        if (ist_zeitrennen()) {
            renndauer_ms = renn_laenge.ms();
            renndauer_rest_ms = renn_laenge.ms();
        }
    }
};

}  // namespace tarvel
