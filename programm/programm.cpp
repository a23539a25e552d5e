#include "programm/programm.h"

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/nebendateien.h"
#include "core/ordner.h"
#include "core/ordnerblick.h"
#include "programm/fluegel.h"
#include "programm/messgeraete.h"
#include "programm/rennprotokoll.h"
#include "programm/tx_verdrahtung.h"
#include "programm/wiederaufnahme.h"
#include "programm/wiedergabe.h"

namespace tarvel {
namespace {

constexpr std::string_view fahrer_bildordner = "pictures";
constexpr std::string_view fahrzeug_bildordner = "slotcars";

}  // namespace

programm::programm(const plattform::dienste& d)
    : dienste(d),
      ablage(d.programmordner, d.dateisystem),
      ausgaben(einst),
      fahrerliste({"Fahrerliste:", std::string(fahrer_bildordner), "nopic.jpg"}),
      fahrzeugliste({"Fahrzeugliste:", std::string(fahrzeug_bildordner), "nocar.gif"}),
      form1({einst, einrichtung, txt, param, ablage, fahrerliste, fahrzeugliste, zuletzt_gefahren, bestzeiten, fenster,
             d.meldungen, d.bildschirm, d.zeitgeber}),
      datei({ablage, {einst, einrichtung, txt}, form1, d.meldungen}),
      einstellungsruecklage({datei, einst, einrichtung, belegung, form1, fenster, *this, d.zeitgeber}),
      start_(std::make_unique<startfluegel>(*this)),
      rennen_(std::make_unique<rennfluegel>(*this)),
      ergebnisse_(std::make_unique<ergebnisfluegel>(*this, rennen_->rennen, static_cast<bestzeitfolgen&>(*this))),
      optionen_(std::make_unique<optionsfluegel>(*this, static_cast<optionsfolgen&>(*this),
                                                 static_cast<bestzeitfolgen&>(*this))),
      wettkampf_(std::make_unique<wettkampffluegel>(
          *this, *rennen_, *ergebnisse_, *optionen_, static_cast<einstellungsfolgen&>(*this),
          static_cast<wettkampfumfeld&>(*this), static_cast<tagesrennen_folgen&>(*this))),
      pflege_({datei,
               {einst, einrichtung, txt},
               form1,
               belegung,
               ablage,
               fenster,
               d.meldungen,
               optionen_->speichernfenster,
               einstellungsruecklage,
               *this},
              pfad_als_utf8(d.programmordner)),
      geraete_(std::make_unique<messgeraete>(geraete_umgebung{d, einst, txt, ablage, ereignisse, quellen, ausgaben,
                                                              fenster, form1, optionen_->einstellungsfenster,
                                                              rennen_->rennen, pflege_})),
      protokoll_(std::make_unique<tarvel::rennprotokoll>(
          tarvel::rennprotokoll::umgebung{rennen_->rennen, param, belegung, ereignisse, datei, ablage, txt, d})),
      wiederaufnahme_(std::make_unique<tarvel::wiederaufnahme>(tarvel::wiederaufnahme::umgebung{
          datei, einst, belegung, einstellungsruecklage, *this, form1, fenster, ausgaben, quellen, ablage, txt,
          rennen_->rennen, *ergebnisse_, *wettkampf_, *protokoll_, geraete_->rennverbindung(), *geraete_, d})),
      wiedergabe_(std::make_unique<tarvel::wiedergabe>(
          tarvel::wiedergabe::umfeld{{ablage, txt, fenster, d.meldungen}, d.uhr, d.zeitgeber, d.programmordner})),
      form3(start_->form3),
      update_form(start_->update_form),
      rennen(rennen_->rennen),
      startampel(rennen_->startampel),
      k_ampel(rennen_->k_ampel),
      wertung(ergebnisse_->wertung),
      rundenspeichern(ergebnisse_->rundenspeichern),
      beste_zeiten_fenster(ergebnisse_->beste_zeiten_fenster),
      auswertung(ergebnisse_->auswertung),
      einzelrennen(ergebnisse_->einzelrennen),
      tagesrennen(ergebnisse_->tagesrennen),
      training(ergebnisse_->training),
      intervalltraining(ergebnisse_->intervalltraining),
      tastaturbelegung(optionen_->tastaturbelegung),
      speichernfenster(optionen_->speichernfenster),
      fahrerspeichernfenster(optionen_->fahrerspeichernfenster),
      fahrerbild_laden(optionen_->fahrerbild_laden),
      beste_zeiten_verwaltung(optionen_->beste_zeiten_verwaltung),
      einstellungsfenster(optionen_->einstellungsfenster),
      einfahren(wettkampf_->einfahren),
      wettkampfabend(wettkampf_->wettkampfabend),
      wettkampf1(wettkampf_->wettkampf1),
      wettkampf2(wettkampf_->wettkampf2),
      rangliste(wettkampf_->rangliste),
      w_auswertung(wettkampf_->w_auswertung),
      tagesrennen_fenster(wettkampf_->tagesrennen_fenster),
      w_auswertung2(ergebnisse_->w_auswertung2),
      protokollfenster(ergebnisse_->protokollfenster),
      geraete(*geraete_),
      rennprotokoll(*protokoll_),
      wiedergabe(*wiedergabe_) {
    rennen.fenster.fuehrung = protokoll_.get();
    hauptfenster_verbinden();
    bilder_verbinden();
    zuletzt_verbinden();
    wiedergabe_verbinden();
    protokoll_verbinden();
    einstellungsfenster.aktion_verbinden("bestzeiten_verwalten", [this] {
        beste_zeiten_fenster.nachsichern();
        beste_zeiten_verwaltung.oeffnen();
    });
}

programm::~programm() {
    rennen.fenster.fuehrung = nullptr;
}

void programm::hauptfenster_verbinden() {
    form1.einstellungen_speichern = [this] { pflege_.speichern_oeffnen(); };
    form1.einstellungen_laden = [this] { pflege_.laden_oeffnen(); };
    form1.beenden = [this] {
        if (wettkampf2.darf_enden()) {
            wettkampf2.fertigen_beenden();
            programm_beenden();
        }
    };
    form1.messgeraet_oeffnen = [this] { geraete.nachholen(); };
    form1.einzelrennen_beginnen = [this] { rennen_beginnen(einzelrennen); };
    form1.wettkampf_beginnen = [this] { wettkampf1.oeffnen(); };
    form1.rennen_fortsetzen = [this] { wiederaufnahme_->anbieten(); };
    wettkampfabend.abgebrochenes_anbieten = [this] { return wiederaufnahme_->abgebrochenes_anbieten(); };
    wettkampfabend.wiederholen_fragen = [this] { return wettkampf2.wiederholen_fragen(); };
    form1.training_beginnen = [this] { training_beginnen(); };
    form1.bahnstrom_ein = [this] { bahnstrom_von_hand(true); };
    form1.bahnstrom_aus = [this] { bahnstrom_von_hand(false); };
    using f = tarvel::einstellungsfenster;
    form1.einstellungen_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_start_ziel); };
    form1.fahrer_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_fahrer); };
    form1.fahrzeuge_oeffnen = [this] { einstellungsfenster.oeffnen(f::seite_fahrzeuge); };
    wettkampf1.einstellungen_oeffnen = [this] {
        form1.vor_dem_speichern_pruefen();  // its fields are saved with the options
        einstellungsfenster.oeffnen(f::seite_wettkampf);
    };
}

void programm::wiedergabe_verbinden() {
    rennprotokoll.bei_beginn = [this] {
        fenster.entladen(fenstername::wiedergabe);
        if (rennprotokoll.fuehren) {  // what is driven again was driven before
            fahrer_merken();
            hauptfenster_merken();  // an outage in the race does not cost them
        }
    };
    const std::initializer_list<tarvel::einzelrennen*> eigene{&einzelrennen, &tagesrennen, &training,
                                                              &intervalltraining};
    for (tarvel::einzelrennen* eines : eigene) {
        eines->bei_start = [this] {  // who has only looked at the race window may want them still
            if (rennprotokoll.fuehren && form1.letztes_mal_offen()) {
                form1.letztes_mal_vergessen();
                hauptfenster_merken();
            }
        };
    }
    wiedergabe.darf = [this] { return ruhe_fuer_wiedergabe(); };
    wiedergabe.ausstatten = [this](programm& spiel) {  // whose pictures are whose
        spiel.fahrerliste = fahrerliste;
        spiel.fahrzeugliste = fahrzeugliste;
    };
    auswertung.wiedergabe_zeigen = [this] {
        rennprotokoll.sichern();
        wiedergabe.zeigen(rennprotokoll.dateiname());
    };
}

bool programm::ruhe_fuer_wiedergabe() const {
    return !fenster.ist_offen(fenstername::bahn1) ||
           (fenster.ist_offen(fenstername::auswertung) && !auswertung.zaehlt_nach());
}

void programm::protokoll_verbinden() {
    const auto dieses = [this] {
        rennprotokoll.sichern();
        protokollfenster.zeigen(rennprotokoll.dateiname());
    };
    protokollfenster.wiedergeben = [this](const std::string& protokoll, std::optional<zeit_ms> ab) {
        wiedergabe.zeigen(protokoll, ab);
    };
    auswertung.hergang_in_worten = [this] { return protokollfenster.in_worten(); };
    rennen.bahn1.Command_protokoll.bei_klick = dieses;
    auswertung.protokoll_zeigen = dieses;
    w_auswertung2.Command_protokoll.bei_klick = [this] { protokoll_zum_ergebnis_zeigen(); };
}

/// The one whose result is shown, if there is one; a table of many races has none of its own.
void programm::protokoll_zum_ergebnis_zeigen() {
    const auto protokoll = w_auswertung2.gezeigtes_protokoll();
    if (w_auswertung2.gezeigtes_rennen() && !protokoll) {
        dienste.meldungen.zeigen(protokollfenster.ohne_protokoll(), txt.titel[0]);
    }
    protokollfenster.auswahl_zeigen(protokoll.value_or(""));
}

bool programm::messgeraet_da() const {
    return !geraete.getrennt();
}

void programm::fahrerverwaltung_oeffnen() {
    form1.vor_dem_speichern_pruefen();  // its fields are saved with the options
    einstellungsfenster.oeffnen(einstellungsfenster::seite_fahrer);
}

void programm::bahnstrom_von_hand(bool an) {
    strom_von_hand_aus_ = !an;
    if (an) {
        ausgaben.ampelnRoff(0);
        ausgaben.ampelnGRon();
        ausgaben.relais_off(0);
    } else {
        ausgaben.relais_on(0);
        ausgaben.ampelnGRoff();
    }
}

void programm::rennen_beginnen(veranstaltung& teil_von) {
    rennen.teil_von.wechseln(teil_von);
    fenster.zeigen(fenstername::bahn1, anzeige_art::modal);
}

void programm::tagesrennen_beginnen(const tagesauftrag& auftrag) {
    form1.felder_nach_spuren();  // other drivers than before may stand there
    form1.bilder_anzeigen();
    if (form1.einzelrennen_einrichten()) {
        param.klasse = auftrag.klassen;
        tagesrennen.datei = auftrag.datei;
        rennen_beginnen(tagesrennen);
    }
}

void programm::tagesergebnisse_zeigen(const std::string& pfad) {
    w_auswertung2.datei_zeigen(pfad);
}

void programm::training_beginnen() {
    if (einst.training_art == trainingsart::intervall) {
        rennen_beginnen(intervalltraining);
    } else {
        rennen_beginnen(training);
    }
}

bool programm::einstellungen_speichern() {
    return pflege_.speichern();
}

void programm::einstellungen_uebernommen(const einstellungen& vorher) {
    if (einst.bahnstrom_invers != vorher.bahnstrom_invers || einst.ampel_invers != vorher.ampel_invers) {
        ausgaben.ruhezustand();  // in the new wiring
        if (strom_von_hand_aus_) {
            bahnstrom_von_hand(false);
        }
    }
    if (einst.anzeige.sprachordner != vorher.anzeige.sprachordner) {
        gemeinsame_texte_laden();
        fenster.sprache_gewechselt();
    }
    if (einst.anzeige != vorher.anzeige) {
        form1.erscheinung_zeigen();
        fenster.erscheinen(einst.anzeige);
    }
    form1.listen_zeigen();
    form1.farben_einstellen();
    form1.bilder_anzeigen();
    form1.modus_anzeigen();
    form1.tankoptionen_zeigen();
    form1.leihspuren_sperren();
    rennen.sounds.bereitstellen();
    if (einst.beste_datei != bestzeiten_datei_) {
        bestzeiten_laden();
    }
    form1.beste_zeiten_anzeigen();
}

void programm::optionen_geschlossen() {
    form1.bilder_anzeigen();
    if (fenster.ist_offen(fenstername::wettkampf1)) {
        wettkampf1.optionen_geschlossen();
    }
    if (wettkampfabend.wettkampf_aktiv()) {
        wettkampfabend.einstellungen_geaendert();
    }
}

void programm::hardware_starten() {
    strom_von_hand_aus_ = false;  // devices start with the power on
    geraete.hardware_starten(false);
}

void programm::bestzeiten_laden() {
    beste_zeiten_fenster.nachsichern();
    bestzeiten_datei_ = einst.beste_datei;
    const bool geladen = bestzeiten.laden(ablage, bestzeiten_datei_);
    if (pflege_.erststart() && !ablage.gibt_es(bestzeit_pfad(bestzeiten_datei_))) {
        bestzeiten.speichern(ablage, bestzeiten_datei_);  // a first start has none yet, and the next one finds them
    } else if (!geladen) {
        dienste.meldungen.zeigen(txt.meldung[20], txt.titel[1]);
    }
    form1.beste_zeiten_anzeigen();
}

void programm::bestzeiten_geaendert() {
    bestzeiten_datei_ = einst.beste_datei;
    form1.beste_zeiten_anzeigen();
    if (fenster.ist_offen(fenstername::einstellungen)) {
        einstellungsfenster.bestzeiten_zeigen();
    }
}

bool programm::starten() {
    ablage.umbenennen("tvk_UART.ini", "tvk_at2560.uart");
    ablage.ordner_anlegen("Ergebnisse\\Bestzeiten");
    erscheinung anzeige;
    erscheinung_laden(ablage, anzeige);
    ablage.sprache_aus(anzeige.sprachordner);
    fenster.erscheinen(anzeige);
    fenster.zeigen(fenstername::Update_form);
    txt = {};
    einst.anzeige = anzeige;
    gemeinsame_texte_laden();
    pflege_.standard_setzen();
    trennzeichen_laden(ablage, einst.trennzeichen);
    gruppenwahl_laden(ablage, einst.gruppen);
    rennbildwahl_laden(ablage, einst.rennbild);
    if (!dienste.prozess.ist_einzige_instanz()) {
        dienste.meldungen.zeigen(txt.meldung[10], programm_name);
        programm_beenden();
        return false;
    }
    schreibreste_loeschen(ablage);
    papierkorb_leeren(ablage);
    rennprotokoll.aufraeumen();
    tvk_ini_laden(ablage, txt.werbetext);
    fahrzeugliste_laden();
    fahrerliste_laden();
    zuletzt_gefahren.laden(ablage);
    zuletzt_geschrieben.laden(ablage);
    form1.listen_zeigen();
    datei.bestzeiten = this;  // not for the defaults before the settings are read
    pflege_.nach_dem_start = [this] {
        if (rennprotokoll.fuehren) {  // else this program drives what is written already
            wiederaufnahme_->nach_dem_start_anbieten();
        }
    };
    pflege_.start_datei_bestimmen();
    if (pflege_.start_fragt() && fenster.gibt_es(fenstername::s6_fragefenster)) {
        geraete.von<tx_verdrahtung>().startmodus_fragen();  // its answer goes on
    } else {
        pflege_.start_fortsetzen({});
    }
    return true;
}

void programm::einstellungen_geladen(bool im_betrieb) {
    form1.farben_einstellen();
    form1.bilder_anzeigen();
    rennen.sounds.bereitstellen();
    if (einst.aut_loeschen && !im_betrieb) {
        auto_dateien_wegraeumen(ablage);
    }
    ergebnis_ordner_anlegen(ablage);
    strom_von_hand_aus_ = false;
    geraete.hardware_starten(!im_betrieb);
    if (!im_betrieb) {
        hauptfenster_wie_zuletzt();
        fenster.zeigen(fenstername::Form1);
        hauptfenster_gilt_ = true;
        fenster.zeigen(fenstername::Form3);
    }
}

void programm::einstellungen_gewechselt(const einstellungen& vorher) {
    einstellungen_uebernommen(vorher);
    if (einst.hardware_anders_als(vorher)) {
        hardware_starten();
    }
    if (fenster.ist_offen(fenstername::Tagesrennen)) {  // it has opened on the set-up of the race that is over
        tagesrennen_fenster.spuren_zeigen();
        tagesrennen_fenster.datei_pruefen();  // and on its drivers, whose classes it proposes
    }
}

void programm::programm_beenden() {
    if (programm_beendet_) {
        return;
    }
    programm_beendet_ = true;
    hauptfenster_merken();
    beste_zeiten_fenster.nachsichern();
    ausgaben.bericht.ruhe();
    ausgaben.ruhezustand();
    geraete.beenden();
    fenster.alle_entladen();
    dienste.prozess.beenden();
}

}  // namespace tarvel
