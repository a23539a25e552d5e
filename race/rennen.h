#pragma once

#include "platform/dienste.h"
#include "race/blinken.h"
#include "race/chaos.h"
#include "race/fortsetzung.h"
#include "race/fruehstartstrafe.h"
#include "race/rennbefehle.h"
#include "race/strafen.h"

namespace tarvel {

/// The race with all its parts. What it works on beside them is owned by the program.
struct rennen {
    struct umfeld {
        renn_parameter& param;
        const einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        form1& haupt;
        ereignis_tabelle& ereignisse;
        const messquellen& quellen;
        const tastenbelegung& belegung;
        tarvel::ausgaben& ausgaben;
        fensterregister& fenster;
        const tarvel::bestzeiten& bestzeiten;
        const namensliste& fahrerliste;
        const namensliste& fahrzeugliste;
    };

    rennen(const plattform::dienste& dienste, const umfeld& um);
    rennen(const rennen&) = delete;
    rennen& operator=(const rennen&) = delete;

    renn_zustand zustand;
    tarvel::bahn1 bahn1;
    zeitbasis zeit;
    rennzeitgeber zeitgeber;
    rennsounds sounds;
    renn_umgebung umgebung;
    positionen plaetze;
    rennuhr uhr;
    rennende ende;
    rennansicht ansicht;
    tarvel::blinken blinken;
    tarvel::strafen strafen;
    tarvel::fruehstartstrafe fruehstartstrafe;
    tarvel::rundenanzeige rundenanzeige;
    tarvel::tanken tanken;
    tarvel::sektoren sektoren;
    rundenzaehlung zaehlung;
    soundsensoren sensoren;
    rennablauf ablauf;
    tarvel::chaos chaos;
    tarvel::fortsetzung fortsetzung;
    rennbefehle befehle;
};

}  // namespace tarvel
