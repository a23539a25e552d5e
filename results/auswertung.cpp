#include "results/auswertung.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text.h"
#include "core/zeit.h"
#include "results/ergebnisdatei.h"

namespace tarvel {
namespace {

constexpr dauer_ms zielsignal_dauer{3000};
constexpr dauer_ms nachzaehltakt{10};
constexpr dauer_ms blinktakt{500};
constexpr int runden_ohne_bild = 1000;  // a number of four digits needs the room

using plattform::zeitgeber_art;

}  // namespace

auswertung::auswertung(const umfeld& um) : r_(um.r), um_(um.r.umgebung), u_(um) {
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
    ch_durch3_ = dienst.erzeugen(zeitgeber_art::abfragend, nachzaehltakt);
    ch_durch3_->bei_tick = [this] { nachzaehlen(); };
    ch_durch4_ = dienst.erzeugen(zeitgeber_art::zaehlend, nachzaehltakt);
    ch_durch4_->bei_tick = [this] { nachzaehlen_beenden(); };
    w_auto5_ = dienst.erzeugen(zeitgeber_art::zaehlend, 1s);
    w_auto5_->bei_tick = [this] {
        w_auto5_->aus();
        if (aktion_nach_bestzeiten_ != aktion::hauptmenue) {
            Command5.klicken();
        }
    };
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
    renn_zustand& zustand = um_.zustand;
    zustand.rennen_beendet = true;
    zustand.chaos_aktiv = false;
    if (!um_.einst.zielmodus_erster) {
        um_.zeitgeber.rennen_aus();
    } else if (um_.einst.sensor_timeout > 0ms && um_.zeitgeber.renntimer->laeuft()) {
        ch_durch4_->intervall(um_.einst.sensor_timeout + nachzaehltakt);
        ch_durch4_->an();
        ch_durch3_->an();
    }
    um_.ausgaben.rennende_signal(true);
    zieltimer_->an();
    sprache_a().anwenden(um_.ablage);
    ansagen_setzen();
    if (!zustand.fortgesetzt) {
        u_.stand.zuruecksetzen();
        anzeige_modus_.fill(anzeige::zeit);
    }
    aktion_nach_bestzeiten_ = aktion::keine;
    kopf_schreiben();
    bedienung_einrichten();
    auswertung_anzeigen();
    bestzeiten_pruefen();
    Command5.fokus_setzen();
}

void auswertung::entladen() {
    zeitgeber_aus();
    if (zieltimer_->laeuft()) {
        zielsignal_beenden();
    }
    um_.fenster.entladen("rundenspeichern");
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

bool auswertung::ist_intervalltraining() const {
    return um_.param.training_laeuft && um_.einst.training_art == trainingsart::intervall;
}

void auswertung::kopf_schreiben() {
    std::string kopf = um_.ist_zeitrennen() ? wort_.zeitrennen : wort_.rundenrennen;
    kopf += "  ·  " + um_.bahn.ziel_label.text();
    const auto modus = static_cast<std::size_t>(gueltiger_modus(um_.param.auswertung_nach_rennen));
    kopf += "  ·  " + wort_.wertung.at(modus - 1);
    if (um_.zustand.rennabbruch) {
        kopf += "  ·  " + wort_.vorzeitig;
    }
    std::string ende = um_.zustand.rennen_ende_uhrzeit;
    std::replace(ende.begin(), ende.end(), '-', ' ');
    kopf_label.text(kopf + "  ·  " + ende);
}

void auswertung::bedienung_einrichten() {
    const bool wettkampf = ist_wettkampf();
    const bool intervall = ist_intervalltraining();
    const bool ohne_spurwechsel = um_.quellen.kann().feste_wagen || um_.param.training_laeuft;
    Command5.text(wettkampf ? wort_.weiter : wort_.hauptmenue);
    Command7.sichtbar(wettkampf && um_.einst.w_autom);
    Command4.sichtbar(!wettkampf);
    Command1.sichtbar(!intervall);
    Frame1.text(ohne_spurwechsel ? wort_.rennen : wort_.spur_wechseln);
    Frame1.sichtbar(!wettkampf && !intervall);
    tauschfahrzeug.gesetzt(um_.einst.fahrzeug_wechseln);
    trainingslabel.sichtbar(intervall);
    verlauf_zeigen(false);
    for (feld& eingabe : meter) {
        eingabe.text("0");
    }
    meter_eingabe(false);
    Command6.sichtbar(um_.ist_zeitrennen() || um_.einst.zielmodus_erster);
    ziel_vorschlagen();
    if (wettkampf && um_.einst.w_autom) {
        w_auto5_->intervall(std::max(um_.einst.w_zeit1, dauer_ms(1s)));
        w_auto5_->an();
    }
    if (intervall) {
        training_zeit_ = -1s;
        training_tick();
        tmr_dauertraining_->an();
    }
}

void auswertung::auswertung_anzeigen() {
    for (tarvel::liste& runden : liste) {
        runden.leeren();
    }
    gewaehlte_spur_ = 0;
    u_.stand.disqualifizierte_streichen();
    u_.stand.meter_auswerten();  // the standing may go by the metres
    u_.stand.platzierung_berechnen();
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        Frame[i].reihe(u_.stand.platzierung(spur) - 1);
        Frame[i].sichtbar(um_.param.spur_aktiv[spur]);
        if (um_.param.spur_aktiv[spur]) {
            spur_anzeigen(spur);
        }
    }
    um_.quellen.melden<int, int>(&messquelle::platz, u_.stand.fuehrende_spur(), 1);
    verlauf_nachfuehren();
}

void auswertung::spur_anzeigen(int spur) {
    const std::size_t i = feld_index(spur);
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const wertung& stand = u_.stand;
    const auto zeit_text = [this](zeit_ms zeit, bool lang) {
        return zeit_formatieren(zeit, lang, um_.einst.trennzeichen);
    };
    const auto tempo = [&](int runden, zeit_ms zeit) {
        return zahl_fest(sektor_tempo(um_.param.spurlaenge[spur] * runden, zeit), ',');
    };
    platz[i].text(std::to_string(stand.platzierung(spur)) + ".");
    fahrer[i].text(um_.param.fahrer_name[spur]);
    fahrzeug[i].text(um_.param.fahrzeug_name[spur]);
    bilder_anzeigen(spur);
    Frame[i].schriftfarbe(um_.einst.farben_spur[spur]);
    runden_aus[i].text(zustand.disqualifiziert ? std::string(disqualifiziert_text)
                                               : std::to_string(stand.runden(spur)));
    beste_aus[i].text(zeit_text(stand.beste_runde(spur), false));
    zeit_aus[i].text(zeit_text(stand.gesamtzeit(spur), true));
    abstandlabel[i].sichtbar(spur != stand.fuehrende_spur());
    const zeit_ms abstand = stand.abstand(spur);  // a car that is laps behind may have the lower time
    abstandlabel[i].text((abstand < 0 ? "- " : "+ ") + zeit_text(std::abs(abstand), true));
    ges_meter[i].text(stand.meter_text(spur, ',') + " m");
    kmh_label[i].text(tempo(1, stand.beste_runde(spur)) + " / " + tempo(stand.runden(spur), stand.gesamtzeit(spur)) +
                      " km/h");
    aus_straflabel[i].sichtbar(zustand.strafzeit > 0s);
    aus_straflabel[i].text(wort_.strafzeit + ": " + std::to_string(zustand.strafzeit.count()) + " sec");
    tankinhalt[i].sichtbar(um_.param.tank_aktiv);
    tankinhalt[i].text(wort_.tankinhalt + ": " + um_.bahn.t_bahn[spur].text() + " l");
    rundenliste_schreiben(spur);
}

void auswertung::bilder_anzeigen(int spur) {
    const std::size_t i = feld_index(spur);
    const bool besetzt = !um_.txt.ist_freier_platz(um_.param.fahrer_name[spur]);
    um_.fahrerliste.bild_zeigen(um_.ablage, um_.param.fahrer_name[spur], Image1[i]);
    um_.fahrzeugliste.bild_zeigen(um_.ablage, um_.param.fahrzeug_name[spur], Image2[i]);
    Image1[i].sichtbar(besetzt && u_.stand.runden(spur) < runden_ohne_bild);
    Image2[i].sichtbar(besetzt && um_.einst.fahrzeugbild_an);
}

void auswertung::rundenliste_schreiben(int spur) {
    for (int runde = 1; runde <= um_.zustand.spur[spur].runden; ++runde) {
        liste.at(feld_index(spur)).hinzufuegen(rundenzeile(spur, runde));
    }
}

std::string auswertung::rundenzeile(int spur, int runde) const {
    const anzeige modus = anzeige_modus_.at(feld_index(spur));
    const bool mit_zeiten = modus == anzeige::mit_sektorzeit || modus == anzeige::mit_beidem;
    const bool mit_tempo = modus == anzeige::mit_tempo || modus == anzeige::mit_beidem;
    const auto zeit_text = [this](zeit_ms zeit, bool lang) {
        return zeit_formatieren(zeit, lang, um_.einst.trennzeichen);
    };
    std::string zeile =
        std::to_string(runde) + ".  " + zeit_text(um_.zustand.rundenzeiten.rundenzeit(spur, runde), true);
    for (int sektor = 1; sektor <= sektoren_max; ++sektor) {
        if (!um_.einst.sektor_an.at(static_cast<std::size_t>(sektor))) {
            continue;
        }
        const zeit_ms zeit = r_.sektoren.sektorzeit(spur, sektor, runde);
        if (mit_zeiten) {
            zeile += "    T" + std::to_string(sektor) + ": " + zeit_text(zeit, false);
        }
        if (mit_tempo) {
            zeile += "    S" + std::to_string(sektor) + ": " + r_.sektoren.tempo_text(spur, sektor, zeit) + " km/h";
        }
    }
    return zeile;
}

void auswertung::nachzaehlen() {
    spuren<int> vorher;
    for (const int spur : alle_spuren) {
        vorher[spur] = um_.zustand.spur[spur].runden;
    }
    um_.ereignisse.messzeit = um_.zeit.messzeit_lesen();
    r_.zaehlung.runden_auswerten();
    bool gezaehlt = false;
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        if (zustand.runden > vorher[spur]) {
            zustand.ziel_erreicht = true;  // the lap that the end has cut short, and no further one
            gezaehlt = true;
        }
    }
    if (gezaehlt) {
        auswertung_anzeigen();
        bestzeiten_pruefen();
    }
}

void auswertung::nachzaehlen_beenden() {
    ch_durch3_->aus();
    ch_durch4_->aus();
}

void auswertung::training_tick() {
    if (meter_eingabe_an_ || um_.fenster.ist_offen("rundenspeichern") ||
        um_.fenster.ist_offen("beste_zeiten_fenster")) {
        return;  // nobody is thrown out of an entry
    }
    ++training_zeit_;
    const dauer_s rest = std::max(um_.einst.training_wechseldauer - training_zeit_, 0s);
    trainingslabel.text(wort_.training + "  " + std::to_string(rest.count()) + "   ");
    if (training_zeit_ > 0s && rest == 0s) {
        tmr_dauertraining_->aus();
        training_automatik_ = true;
        bestzeiten_vor(um_.einst.training_weiter != training_weitergang::neu_starten ? aktion::fortsetzen
                                                                                     : aktion::neu_starten);
    }
}

void auswertung::verlauf_zeigen(bool zeigen) {
    Frame_stand.sichtbar(!zeigen);
    Frame_verlauf.sichtbar(zeigen);
    Command_verlauf.text(zeigen ? wort_.stand : wort_.verlauf);
    verlauf_nachfuehren();
}

void auswertung::verlauf_nachfuehren() {
    if (Frame_verlauf.sichtbar() && verlauf_zeichnen) {
        verlauf_zeichnen();
    }
}

std::string auswertung::blatt_datei() const {
    return std::string(ergebnis_ordner::einzelrennen) + "\\" + ergebnis_stempel(um_.kalender.jetzt());
}

}  // namespace tarvel
