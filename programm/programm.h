#pragma once

#include <memory>
#include <string>
#include <vector>

#include "competition/tagesrennen_folgen.h"
#include "core/bestzeiten.h"
#include "core/dateien.h"
#include "core/einstellungen.h"
#include "core/einstellungsdatei.h"
#include "core/fensterregister.h"
#include "core/form1.h"
#include "core/letzte_ergebnisse.h"
#include "core/letzte_fahrer.h"
#include "core/namensliste.h"
#include "core/renn_parameter.h"
#include "core/renneinrichtung.h"
#include "core/texte.h"
#include "hardware/ausgaben.h"
#include "hardware/ereignisse.h"
#include "hardware/messquelle.h"
#include "hardware/tastenbelegung.h"
#include "optionen/optionsfolgen.h"
#include "platform/dienste.h"
#include "programm/einstellungspflege.h"
#include "programm/einstellungsruecklage.h"
#include "programm/wettkampfumfeld.h"

namespace tarvel {

class auswertung;
class beste_zeiten_fenster;
class beste_zeiten_verwaltung;
class bildwahl;
class einfahren;
class einstellungsfenster;
class einzelrennen;
class form3;
class intervalltraining;
class k_ampel;
class messgeraete;
class protokollfenster;
class rangliste;
class rennprotokoll;
class rundenspeichern;
class speichernfenster;
class startampel;
class tagesrennen;
class tagesrennen_fenster;
class tastaturbelegung;
class training;
class update_form;
class w_auswertung;
class w_auswertung2;
class wiederaufnahme;
class veranstaltung;
class wertung;
class wettkampf1;
class wettkampf2;
class wettkampfabend;
class wiedergabe;
struct ergebnisfluegel;
struct optionsfluegel;
struct rennen;
struct rennfluegel;
struct startfluegel;
struct wettkampffluegel;

/// The whole program: owns every record and every wing, and puts them together. Two of them can live in one process.
class programm final : private einstellungsfolgen,
                       private optionsfolgen,
                       private bestzeitfolgen,
                       private wettkampfumfeld,
                       private tagesrennen_folgen {
public:
    explicit programm(const plattform::dienste& dienste);
    ~programm() override;

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
    renneinrichtung einrichtung;
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
    letzte_fahrer zuletzt_gefahren;
    letzte_ergebnisse zuletzt_geschrieben;

    tarvel::form1 form1;
    einstellungsdatei datei;

    tarvel::einstellungsruecklage einstellungsruecklage;

private:
    std::unique_ptr<startfluegel> start_;
    std::unique_ptr<rennfluegel> rennen_;
    std::unique_ptr<ergebnisfluegel> ergebnisse_;
    std::unique_ptr<optionsfluegel> optionen_;
    std::unique_ptr<wettkampffluegel> wettkampf_;
    einstellungspflege pflege_;
    std::unique_ptr<messgeraete> geraete_;
    std::unique_ptr<tarvel::rennprotokoll> protokoll_;
    std::unique_ptr<tarvel::wiederaufnahme> wiederaufnahme_;
    std::unique_ptr<tarvel::wiedergabe> wiedergabe_;

public:
    /// The wings, for what has no name of its own here: a window that only its drawing asks for needs none.
    startfluegel& start_fluegel() { return *start_; }
    ergebnisfluegel& ergebnis_fluegel() { return *ergebnisse_; }
    optionsfluegel& options_fluegel() { return *optionen_; }
    wettkampffluegel& wettkampf_fluegel() { return *wettkampf_; }

    // What the wings hold and many ask for. Who uses one includes its header.
    tarvel::form3& form3;
    tarvel::update_form& update_form;
    tarvel::rennen& rennen;
    tarvel::startampel& startampel;
    tarvel::k_ampel& k_ampel;
    tarvel::wertung& wertung;
    tarvel::rundenspeichern& rundenspeichern;
    tarvel::beste_zeiten_fenster& beste_zeiten_fenster;
    tarvel::auswertung& auswertung;
    tarvel::einzelrennen& einzelrennen;
    tarvel::tagesrennen& tagesrennen;
    tarvel::training& training;
    tarvel::intervalltraining& intervalltraining;
    tarvel::tastaturbelegung& tastaturbelegung;
    tarvel::speichernfenster& speichernfenster;
    tarvel::speichernfenster& fahrerspeichernfenster;
    tarvel::bildwahl& fahrerbild_laden;
    tarvel::beste_zeiten_verwaltung& beste_zeiten_verwaltung;
    tarvel::einstellungsfenster& einstellungsfenster;
    tarvel::einfahren& einfahren;
    tarvel::wettkampfabend& wettkampfabend;
    tarvel::wettkampf1& wettkampf1;
    tarvel::wettkampf2& wettkampf2;
    tarvel::rangliste& rangliste;
    tarvel::w_auswertung& w_auswertung;
    tarvel::tagesrennen_fenster& tagesrennen_fenster;
    tarvel::w_auswertung2& w_auswertung2;
    tarvel::protokollfenster& protokollfenster;
    messgeraete& geraete;
    tarvel::rennprotokoll& rennprotokoll;
    tarvel::wiedergabe& wiedergabe;

private:
    void einstellungen_geladen(bool im_betrieb) override;
    void einstellungen_gewechselt(const einstellungen& vorher) override;
    bool einstellungen_speichern() override;
    void einstellungen_uebernommen(const einstellungen& vorher) override;
    void optionen_geschlossen() override;
    void hardware_starten() override;
    void bestzeiten_laden() override;
    void bestzeiten_geaendert() override;
    void hauptfenster_verbinden();
    void bilder_verbinden();
    void zuletzt_verbinden();
    void zuletzt_oeffnen(std::size_t welches);
    /// The fields as the next start may want them.
    void hauptfenster_merken();
    /// The fields as the last end left them, or the offer to have them so.
    void hauptfenster_wie_zuletzt();
    void erscheinung_waehlen(const erscheinung& neu);
    /// Who is about to drive is offered first the next time.
    void fahrer_merken();
    void training_beginnen();
    void wiedergabe_verbinden();
    /// No race runs, and none is being prepared.
    bool ruhe_fuer_wiedergabe() const;
    void protokoll_verbinden();
    void protokoll_zum_ergebnis_zeigen();
    void bahnstrom_von_hand(bool an) override;
    bool messgeraet_da() const override;
    void fahrerverwaltung_oeffnen() override;
    void tagesrennen_beginnen(const tagesauftrag& auftrag) override;
    void tagesergebnisse_zeigen(const std::string& pfad) override;
    void eingebaute_namen_setzen();
    /// The texts that no window owns, in the language in force.
    void gemeinsame_texte_laden();
    /// An unusable list is made anew from the built-in names.
    void fahrzeugliste_laden();
    void fahrerliste_laden();
    /// A failure shows its message.
    bool fahrzeugliste_speichern();
    bool fahrerliste_speichern();
    /// Tells how many pictures were taken over, once they are kept.
    void bilder_melden(int anzahl, bool gespeichert);

    std::string bestzeiten_datei_;  ///< last one that was asked for
    bool strom_von_hand_aus_ = false;
    bool hauptfenster_gilt_ = false;  ///< shows what was set up, not what it is made with
    bool programm_beendet_ = false;
};

}  // namespace tarvel
