#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "competition/intervalltraining.h"
#include "competition/tagesrennen.h"
#include "core/bestzeiten.h"
#include "core/dateien.h"
#include "core/einstellungen.h"
#include "core/einstellungsdatei.h"
#include "core/fensterregister.h"
#include "core/form1.h"
#include "core/renn_parameter.h"
#include "core/speichernfenster.h"
#include "core/sprache.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/ereignisse.h"
#include "hardware/messquelle.h"
#include "hardware/tastaturbelegung.h"
#include "hardware/tastenbelegung.h"
#include "optionen/beste_zeiten_verwaltung.h"
#include "optionen/bildwahl.h"
#include "optionen/einstellungsfenster.h"
#include "platform/dienste.h"
#include "programm/messgeraete.h"
#include "programm/startfenster.h"
#include "race/rennen.h"
#include "results/auswertung.h"
#include "results/beste_zeiten_fenster.h"
#include "start/k_ampel.h"
#include "start/startampel.h"

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
    /// Opens the race window on the race that has been set up.
    void rennen_beginnen(veranstaltung& teil_von);
    /// The only way out. Runs once.
    void programm_beenden();

    /// The language files of all windows.
    std::vector<sprachliste> sprachdateien();

    plattform::dienste dienste;
    dateien ablage;
    fensterregister fenster;
    einstellungen einst;
    texte txt;
    renn_parameter param;
    ereignis_tabelle ereignisse;
    messquellen quellen;
    tastenbelegung belegung;
    tarvel::ausgaben ausgaben;

    namensliste fahrerliste;
    namensliste fahrzeugliste;
    std::string fahrer_datei = "fahrer.lst";  ///< below the folder of the lists
    std::string fahrzeug_datei = "fahrzeuge.kfz";
    tarvel::bestzeiten bestzeiten;

    tarvel::form1 form1;
    einstellungsdatei datei;
    std::string einstell_datei;          ///< current settings file, without its folder once it is loaded
    std::string einstell_standarddatei;  ///< the one the program starts with
    tarvel::form3 form3;
    tarvel::update_form update_form;
    tarvel::rennen rennen;
    tarvel::startampel startampel;
    tarvel::k_ampel k_ampel;
    tarvel::wertung wertung;
    tarvel::rundenspeichern rundenspeichern;
    tarvel::einzelrennen einzelrennen;
    tarvel::tagesrennen tagesrennen;
    tarvel::intervalltraining intervalltraining;
    tarvel::beste_zeiten_fenster beste_zeiten_fenster;
    tarvel::auswertung auswertung;
    tarvel::tastaturbelegung tastaturbelegung;
    tarvel::speichernfenster speichernfenster;
    tarvel::speichernfenster fahrerspeichernfenster;
    tarvel::bildwahl fahrerbild_laden;
    tarvel::beste_zeiten_verwaltung beste_zeiten_verwaltung;
    tarvel::einstellungsfenster einstellungsfenster;
    messgeraete geraete;

private:
    void hauptfenster_verbinden();
    void texte_standard_setzen();
    void eingebaute_namen_setzen();
    void hardware_standard_setzen();
    void einstellungen_standard_setzen();
    /// An unusable list is made anew from the built-in names.
    void fahrzeugliste_laden();
    void fahrerliste_laden();
    /// A failure shows its message.
    bool fahrzeugliste_speichern();
    bool fahrerliste_speichern();
    /// The file's name below the settings folder.
    std::string einstellungsname(std::string_view pfad) const;
    void start_datei_bestimmen();
    void einstellungen_laden();
    void einstellungen_speichern(std::string_view name);
    /// Tells how many pictures were taken over, once they are kept.
    void bilder_melden(int anzahl, bool gespeichert);
    void speichern_oeffnen();
    void laden_oeffnen();
    bool einstellungen_aus_menue_laden(const std::string& name);
    void optionen_verbinden();
    void bestzeiten_verbinden();
    void hardware_starten();
    /// The best times of the settings in force; a missing file shows its message.
    void bestzeiten_laden();

    std::string bestzeiten_datei_;  ///< last one that was asked for

    std::optional<modul_4x4> hw_4x4_modus_start_;  ///< mode of the 4x4 module that a restart asked for

    bool laden_aus_menue_ = false;  ///< a load on the operator's command, not at start
    bool programm_beendet_ = false;
};

}  // namespace tarvel
