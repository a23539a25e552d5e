#pragma once

#include <memory>
#include <string>

#include "core/dateien.h"
#include "core/einstellungen.h"
#include "core/fensterregister.h"
#include "core/form1.h"
#include "core/renn_parameter.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/ereignisse.h"
#include "hardware/tastaturbelegung.h"
#include "hardware/tastenbelegung.h"
#include "platform/dienste.h"
#include "programm/startfenster.h"
#include "race/rennen.h"
#include "results/auswertung.h"

namespace tarvel {

/// The whole program: owns every record and every part, and wires them together. Two of them can live in one process.
class programm {
public:
    explicit programm(const plattform::dienste& dienste);
    programm(const programm&) = delete;
    programm& operator=(const programm&) = delete;

    /// Everything between process start and the moment the main window waits for the operator. False if the program
    /// already runs elsewhere and this one has ended itself.
    bool starten();
    /// The only way out. Runs once.
    void programm_beenden();

    plattform::dienste dienste;
    dateien ablage;
    fensterregister fenster;
    einstellungen einst;
    texte txt;
    renn_parameter param;
    ereignis_tabelle ereignisse;
    tastenbelegung belegung;
    tarvel::ausgaben ausgaben;

    tarvel::form1 form1;
    tarvel::form3 form3;
    tarvel::update_form update_form;
    tarvel::rennen rennen;
    tarvel::auswertung auswertung;
    tarvel::tastaturbelegung tastaturbelegung;

private:
    void fenster_anmelden();
    void texte_standard_setzen();
    void hardware_standard_setzen();
    void einstellungen_standard_setzen();
    void einstellungen_laden();
    void hardware_starten();

    bool programm_beendet_ = false;
};

}  // namespace tarvel
