#include "results/auswertung.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text.h"
#include "core/zeit.h"
#include "race/rundenanzeige.h"
#include "results/ergebnisdatei.h"
#include "results/ergebnistexte.h"
#include "results/papiername.h"
#include "results/platzierung.h"

namespace tarvel {
namespace {

constexpr dauer_ms zielsignal_dauer{3000};
constexpr dauer_ms nachzaehltakt{10};
constexpr dauer_ms blinktakt{500};
constexpr int runden_ohne_bild = 1000;  // a number of four digits needs the room

using plattform::zeitgeber_art;

}  // namespace

auswertung::auswertung(const umfeld& um)
    : fensterlogik(um.r.umgebung.fenster, um.r.umgebung.ablage, fenstername::auswertung),
      r_(um.r),
      um_(um.r.umgebung),
      u_(um) {
    spurwechsel.gesetzt(true);
    zeitgeber_verbinden(um.zeitgeber);
    befehle_verbinden();
    for (std::size_t i = 0; i < spuren_max; ++i) {
        spurbefehle_verbinden(i);
    }
}

void auswertung::zeitgeber_verbinden(plattform::zeitgeber_dienst& dienst) {
    zieltimer_ = dienst.erzeugen(zeitgeber_art::zaehlend, zielsignal_dauer);
    zieltimer_->bei_tick = [this] { zielsignal_beenden(); };
    ch_durch3_ = dienst.erzeugen(zeitgeber_art::abfragend, 1ms);  // as often as a device tells
    ch_durch3_->bei_tick = [this] { nachzaehlen(); };
    ch_durch4_ = dienst.erzeugen(zeitgeber_art::zaehlend, nachzaehltakt);
    ch_durch4_->bei_tick = [this] { nachzaehlen_beenden(); };
    w_auto5_ = dienst.erzeugen(zeitgeber_art::zaehlend, 1s);
    w_auto5_->bei_tick = [this] { w_auto5_tick(); };
    tmr_dauertraining_ = dienst.erzeugen(zeitgeber_art::zaehlend, 1s);
    tmr_dauertraining_->bei_tick = [this] { training_tick(); };
    for (std::size_t i = 0; i < spuren_max; ++i) {
        beste_blink_timer_.at(i) = dienst.erzeugen(zeitgeber_art::zaehlend, blinktakt);
        beste_blink_timer_.at(i)->bei_tick = [this, i] {
            const bool war_rot = beste_aus.at(i).schriftfarbe().has_value();
            beste_aus.at(i).schriftfarbe(war_rot ? std::nullopt : std::optional(farben::rot));
        };
    }
}

void auswertung::laden() {
    if (!um_.einst.zielmodus_erster) {
        um_.zeitgeber.rennen_aus();
    } else if (um_.einst.sensor_timeout > 0ms && um_.zeitgeber.renntimer->laeuft()) {
        ch_durch4_->intervall(um_.einst.sensor_timeout + nachzaehltakt);
        ch_durch4_->an();
        ch_durch3_->an();
    }
    um_.ausgaben.rennende_signal(true);
    zieltimer_->an();
    texte_lesen();
    ansagen_setzen();
    if (!um_.zustand.fortgesetzt) {
        if (!wieder_) {
            u_.stand.zuruecksetzen();
        }
        anzeige_modus_.fill(anzeige::zeit);
    }
    aktion_nach_bestzeiten_ = aktion::keine;
    auswertung_anzeigen();
    bedienung_einrichten();
    Label_vorlaeufig.sichtbar(ch_durch3_->laeuft());
    bestzeiten_pruefen();
    Command5.fokus_setzen();
}

void auswertung::wieder_oeffnen() {
    wieder_ = true;
    um_.fenster.zeigen(fenstername::auswertung, anzeige_art::modal);
    wieder_ = false;
}

void auswertung::entladen() {
    zeitgeber_aus();
    r_.ansicht.in_der_rekordzeile("");
    if (zieltimer_->laeuft()) {
        zielsignal_beenden();
    }
    um_.fenster.entladen(fenstername::rundenspeichern);
    um_.fenster.entladen(fenstername::urkunden);
}

void auswertung::zeitgeber_aus() {
    for (const auto* zeitgeber : {&ch_durch3_, &ch_durch4_, &w_auto5_, &tmr_dauertraining_}) {
        (*zeitgeber)->aus();
    }
    for (std::size_t i = 0; i < spuren_max; ++i) {
        beste_blink_timer_.at(i)->aus();
        beste_aus.at(i).schriftfarbe(std::nullopt);
    }
}

void auswertung::zielsignal_beenden() {
    zieltimer_->aus();
    um_.ausgaben.rennende_signal(false);
}

std::string auswertung::art_und_ziel() const {
    const rennziel ziel = ergebnis().ziel.value_or(rennziel::runden(0));
    return (ziel.ist_zeit() ? wort_.zeitrennen : wort_.rundenrennen) + "  ·  " + r_.ansicht.ziel_text(ziel);
}

std::string auswertung::kopf() const {
    const rennergebnis& e = ergebnis();
    const std::string anlass = um_.teil_von->anlass(anlass_);
    std::string kopf = anlass.empty() ? art_und_ziel() : anlass + "  ·  " + art_und_ziel();
    const auto modus = static_cast<std::size_t>(gueltiger_modus(e.wertung.value_or(sortier_modus::runden)));
    kopf += "  ·  " + wort_.wertung.at(modus - 1);
    if (e.vorzeitig.value_or(false)) {
        kopf += "  ·  " + wort_.vorzeitig;
    }
    return kopf + "  ·  " + e.datum + ", " + wort_.ende + " " + e.uhrzeit;
}

void auswertung::bedienung_einrichten() {
    const laufende_veranstaltung& v = um_.teil_von;
    selbst_ = v->danach();
    const bool ohne_spurwechsel = um_.quellen.kann().feste_wagen || !v->mit_spurwechsel();
    const bool allein = v->weg_hinaus() == ausweg::hauptmenue;
    Command5.text(allein ? wort_.hauptmenue : wort_.weiter);
    Command5.tipp(allein && v->zurueck() != fenstername::Form1 ? wort_.zum_tagesrennen : "");
    Command7.sichtbar(selbst_.was == schritt::ausweg);
    Command4.sichtbar(v->mit_eigener_datei());
    Command1.sichtbar(!geht_von_selbst_weiter());
    Frame1.text(ohne_spurwechsel ? wort_.rennen : wort_.spur_wechseln);
    Frame1.sichtbar(allein && v->fortsetzbar_bis() && !geht_von_selbst_weiter());
    tauschfahrzeug.gesetzt(um_.einst.fahrzeug_wechseln);
    trainingslabel.sichtbar(selbst_.was != schritt::keiner);
    zeigen(ansicht::stand);
    for (feld& eingabe : meter) {
        eingabe.text("0");
    }
    meter_eingabe(false);
    Command6.sichtbar(um_.ist_zeitrennen() || um_.einst.zielmodus_erster);
    ziel_vorschlagen();
    selbstlauf_beginnen();
}

void auswertung::selbstlauf_beginnen() {
    gewartet_ = -1s;
    if (selbst_.was == schritt::ausweg) {
        w_auto5_tick();
        w_auto5_->an();
    }
    if (geht_von_selbst_weiter()) {
        training_tick();
        tmr_dauertraining_->an();
    }
}

void auswertung::auswertung_anzeigen() {
    for (tarvel::liste& runden : liste) {
        runden.leeren();
    }
    gewaehlte_spur_ = 0;
    u_.stand.auswerten();
    kopf_label.text(kopf());
    Label_ab_gruen.text(ergebnistext::ab_gruen(ergebnis(), blatt));
    Label_ab_gruen.sichtbar(!Label_ab_gruen.text().empty());
    folge_auf_der_bahn_nennen();
    for (const int spur : alle_spuren) {
        const rennergebnis::spur* s = ergebnis().auf(spur);
        Frame[feld_index(spur)].sichtbar(s != nullptr);
        if (s != nullptr) {
            spur_anzeigen(*s);
        }
    }
    if (const rennergebnis::spur* erster = ergebnis().fuehrende(); erster != nullptr) {
        um_.quellen.melden<int, int>(&messquelle::platz, erster->nummer, 1);
    }
    korrekturen_anbieten();
    if (nachtrag.Frame_nachtrag.sichtbar()) {
        nachtrag_fuellen(nachtrag.spur(), nachtrag.runde());
    }
    verlauf_nachfuehren();
}

void auswertung::folge_auf_der_bahn_nennen() {
    spuren<int> auf_der_bahn;
    for (const int spur : alle_spuren) {
        auf_der_bahn[spur] = r_.plaetze.position(feld_index(spur));
    }
    const bool ab_erster = !anders_ab_gruen(ergebnis()).empty();
    const std::string& wort = ab_erster ? wort_.folge_ab_erster : wort_.folge;
    r_.ansicht.in_der_rekordzeile(ergebnistext::anders_auf_der_bahn(ergebnis(), auf_der_bahn, wort));
}

void auswertung::spur_anzeigen(const rennergebnis::spur& s) {
    namespace text = ergebnistext;
    const std::size_t i = feld_index(s.nummer);
    const trennzeichen_tabelle& trennzeichen = um_.einst.trennzeichen;
    Frame[i].reihe(*s.platz - 1);
    Frame[i].schriftfarbe(um_.einst.farben_spur[s.nummer]);
    platz[i].text(std::to_string(*s.platz) + ".");
    fahrer[i].text(s.fahrer);
    fahrzeug[i].text(s.fahrzeug);
    bilder_anzeigen(s);
    runden_aus[i].text(text::runden(s));
    kurz_zeigen(beste_aus[i], s.beste, trennzeichen);
    zeit_aus[i].text(text::zeit(s, trennzeichen));
    abstandlabel[i].text(text::abstand(ergebnis(), s, trennzeichen));
    abstandlabel[i].sichtbar(!abstandlabel[i].text().empty());
    rueckstandlabel[i].text(text::rueckstand(ergebnis(), s, blatt.rueckstand, trennzeichen));
    rueckstandlabel[i].sichtbar(!rueckstandlabel[i].text().empty());
    ges_meter[i].text(text::meter(s));
    kmh_label[i].text(text::tempo(s));
    aus_straflabel[i].text(text::strafe(s, wort_.strafzeit, blatt.tank_leer, trennzeichen));
    aus_straflabel[i].sichtbar(!aus_straflabel[i].text().empty());
    Frame_tank[i].sichtbar(ergebnis().tanken);
    tankinhalt[i].text(tank_text(s.tankinhalt.value_or(0)) + " l");
    rundenliste_schreiben(s);
}

void auswertung::bilder_anzeigen(const rennergebnis::spur& s) {
    const std::size_t i = feld_index(s.nummer);
    const bool besetzt = !um_.teil_von->ist_fueller(s.nummer);
    um_.fahrerliste.bild_zeigen(um_.ablage, s.fahrer, Image1[i]);
    um_.fahrzeugliste.bild_zeigen(um_.ablage, s.fahrzeug, Image2[i]);
    Image1[i].sichtbar(besetzt && s.rundenzahl() < runden_ohne_bild);
    Image2[i].sichtbar(besetzt && um_.einst.fahrzeugbild_an);
}

void auswertung::rundenliste_schreiben(const rennergebnis::spur& s) {
    for (std::size_t runde = 1; runde < s.runden.size(); ++runde) {
        liste.at(feld_index(s.nummer)).hinzufuegen(rundenzeile(s, runde));
    }
    liste.at(feld_index(s.nummer)).tipp(s.nachgetragene() > 0 ? "+ = " + wort_.nachgetragen : std::string());
}

std::string auswertung::rundenzeile(const rennergebnis::spur& s, std::size_t runde) const {
    const anzeige modus = anzeige_modus_.at(feld_index(s.nummer));
    const bool mit_zeiten = modus == anzeige::mit_sektorzeit || modus == anzeige::mit_beidem;
    const bool mit_tempo = modus == anzeige::mit_tempo || modus == anzeige::mit_beidem;
    const auto zeit_text = [this](zeit_ms zeit, bool lang) {
        return zeit_formatieren(zeit, lang, um_.einst.trennzeichen);
    };
    std::string zeile = std::to_string(runde) + ".  " + zeit_text(s.runden[runde].zeit, true);
    for (std::size_t i = 0; i < sektoren_max; ++i) {
        if (!ergebnis().gemessen.at(i)) {
            continue;
        }
        const zeit_ms zeit = s.runden[runde].sektoren.at(i);
        const std::string sektor = std::to_string(i + 1) + ": ";
        if (mit_zeiten) {
            zeile += "    T" + sektor + zeit_text(zeit, false);
        }
        if (mit_tempo) {
            zeile += "    S" + sektor + sektor_tempo_text(s.sektorlaenge.at(i), zeit, ergebnis().massstab) + " km/h";
        }
    }
    if (s.runden[runde].nachgetragen) {
        zeile += " +";
    } else if (s.geteilt(runde)) {
        zeile += " (" + wort_.geteilt + ")";
    } else if (s.runden[runde].ausfall) {
        zeile += " (" + wort_.ausfall + ")";
    }
    return zeile;
}

void auswertung::nachzaehlen() {
    spuren<int> vorher;
    for (const int spur : alle_spuren) {
        vorher[spur] = um_.zustand.konto.runden(spur);
    }
    r_.zaehlung.nachzaehlen();
    bool gezaehlt = false;
    for (const int spur : alle_spuren) {
        if (um_.zustand.konto.runden(spur) > vorher[spur]) {
            gezaehlt = true;
        }
    }
    if (gezaehlt) {
        auswertung_anzeigen();
        bestzeiten_pruefen();
    }
}

void auswertung::nachzaehlen_beenden() {
    Label_vorlaeufig.text(wort_.endgueltig);  // whoever rolls home now sees why his lap is missing
    ch_durch3_->aus();
    ch_durch4_->aus();
}

bool auswertung::eingabe_offen() const {
    return meter_eingabe_an_ || nachtrag.Frame_nachtrag.sichtbar() ||
           um_.fenster.beschaeftigt({fenstername::bahn1, fenstername::auswertung, fenstername::Form5});
}

void auswertung::urkunden_zeigen() {
    auswertung_anzeigen();
    u_.urkunden.oeffnen(ergebnis(), art_und_ziel());
}

bool auswertung::wartezeit_vorbei(const std::string& wort) {
    if (eingabe_offen()) {
        return false;
    }
    ++gewartet_;
    const auto rest = std::chrono::ceil<dauer_s>(std::max<dauer_ms>(selbst_.nach - gewartet_, 0ms));
    trainingslabel.text(wort + "  " + std::to_string(rest.count()) + "   ");
    return gewartet_ > 0s && rest == 0s;
}

void auswertung::training_tick() {
    if (wartezeit_vorbei(wort_.training)) {
        tmr_dauertraining_->aus();
        automatik_ = true;
        bestzeiten_vor(selbst_.was == schritt::fortsetzen ? aktion::fortsetzen : aktion::neu_starten, true);
    }
}

void auswertung::w_auto5_tick() {
    if (wartezeit_vorbei(wort_.weiter_in)) {
        w_auto5_->aus();
        automatik_ = weg_hinaus() == aktion::fortsetzen;
        bestzeiten_vor(weg_hinaus(), true);
    }
}

void auswertung::selbstlauf_unterbrechen() {
    if (w_auto5_->laeuft()) {
        w_auto5_->aus();
        trainingslabel.sichtbar(false);
    }
}

void auswertung::zeigen(ansicht was) {
    Frame_stand.sichtbar(was == ansicht::stand);
    Frame_verlauf.sichtbar(was == ansicht::verlauf);
    nachtrag.Frame_nachtrag.sichtbar(was == ansicht::nachtrag);
    Command_verlauf.text(was == ansicht::verlauf ? wort_.stand : wort_.verlauf);
    verlauf_nachfuehren();
}

void auswertung::verlauf_nachfuehren() {
    if (Frame_verlauf.sichtbar() && verlauf_zeichnen) {
        verlauf_zeichnen();
    }
}

std::string auswertung::blatt_datei() const {
    const std::string anlass = um_.teil_von->anlass(anlass_);
    return papiername(ergebnis_ordner::einzelrennen, {ergebnis().datum, ergebnis().uhrzeit},
                      anlass.empty() ? wort_.ergebnis : wort_.ergebnis + " " + anlass);
}

}  // namespace tarvel
