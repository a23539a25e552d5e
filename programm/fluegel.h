#pragma once

#include "competition/einfahren.h"
#include "competition/intervalltraining.h"
#include "competition/rangliste.h"
#include "competition/tagesrennen.h"
#include "competition/tagesrennen_fenster.h"
#include "competition/training.h"
#include "competition/w_auswertung.h"
#include "competition/wettkampf1.h"
#include "competition/wettkampf2.h"
#include "core/bildwahl.h"
#include "core/speichernfenster.h"
#include "hardware/tastaturbelegung.h"
#include "optionen/beste_zeiten_verwaltung.h"
#include "optionen/einstellungsfenster.h"
#include "platform/dienste.h"
#include "programm/startfenster.h"
#include "programm/wettkampfablauf.h"
#include "race/rennen.h"
#include "results/auswertung.h"
#include "results/beste_zeiten_fenster.h"
#include "results/leitstand.h"
#include "results/protokollfenster.h"
#include "results/urkundenfenster.h"
#include "results/w_auswertung2.h"
#include "start/k_ampel.h"
#include "start/startampel.h"

/// The wings of the program: parts that belong together and are made together.
namespace tarvel {

class programm;

struct startfluegel {
    explicit startfluegel(programm& p);

    tarvel::form3 form3;
    tarvel::update_form update_form;
};

struct rennfluegel {
    explicit rennfluegel(programm& p);

    tarvel::rennen rennen;
    tarvel::startampel startampel;
    tarvel::k_ampel k_ampel;
};

struct ergebnisfluegel {
    ergebnisfluegel(programm& p, rennen& r, bestzeitfolgen& folgen);

    tarvel::wertung wertung;
    tarvel::rundenspeichern rundenspeichern;
    tarvel::beste_zeiten_fenster beste_zeiten_fenster;
    tarvel::urkundenfenster urkunden;
    tarvel::auswertung auswertung;
    tarvel::einzelrennen einzelrennen;
    tarvel::tagesrennen tagesrennen;
    tarvel::training training;
    tarvel::intervalltraining intervalltraining;
    tarvel::w_auswertung2 w_auswertung2;
    tarvel::protokollfenster protokollfenster;
    tarvel::leitstand leitstand;
};

struct optionsfluegel {
    optionsfluegel(programm& p, optionsfolgen& folgen, bestzeitfolgen& bestzeiten);

    tarvel::tastaturbelegung tastaturbelegung;
    tarvel::speichernfenster speichernfenster;
    tarvel::speichernfenster fahrerspeichernfenster;
    tarvel::bildwahl fahrerbild_laden;
    tarvel::beste_zeiten_verwaltung beste_zeiten_verwaltung;
    tarvel::einstellungsfenster einstellungsfenster;
};

struct wettkampffluegel {
    wettkampffluegel(programm& p, rennfluegel& r, ergebnisfluegel& e, optionsfluegel& o, einstellungsfolgen& folgen,
                     wettkampfumfeld& umfeld, tagesrennen_folgen& tagesfolgen);

    tarvel::einfahren einfahren;
    tarvel::wettkampfspeicher wettkampfspeicher;
    tarvel::wettkampfabend wettkampfabend;
    tarvel::wettkampfablauf wettkampfablauf;
    tarvel::wettkampf1 wettkampf1;
    tarvel::wettkampf2 wettkampf2;
    tarvel::rangliste rangliste;
    tarvel::w_auswertung w_auswertung;
    tarvel::tagesrennen_fenster tagesrennen_fenster;
};

}  // namespace tarvel
