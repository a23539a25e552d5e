#include "results/auswertung.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

// A lane that was not in the race stays behind all others, whatever the key.
constexpr int runden_inaktiv = -2;
constexpr double meter_inaktiv = -100.0;
constexpr zeit_ms gesamtzeit_inaktiv = 999999999;
constexpr zeit_ms beste_inaktiv = 999999;

constexpr int zielsignal_ms = 3000;

/// km/h; 0 for no time.
double tempo(double meter, zeit_ms zeit) {
    return zeit <= 0 ? 0 : (meter / 1000) / (static_cast<double>(zeit) / 3600000);
}

/// With two decimals.
std::string dezimal(double zahl) {
    const long long hundertstel = std::llround(zahl * 100);
    return std::to_string(hundertstel / 100) + "," + ziffern(hundertstel % 100, 2);
}

}  // namespace

auswertung::auswertung(const renn_umgebung& um, plattform::zeitgeber_dienst& zeitgeber)
    : um_(um), zieltimer_(zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, zielsignal_ms)) {
    zieltimer_->bei_tick = [this] { zielsignal_beenden(); };
    Command5.bei_klick = [this] { cmd5_fortsetzung(); };
}

void auswertung::laden() {
    um_.zustand.rennen_beendet = true;
    um_.zustand.chaos_aktiv = false;
    if (!um_.einst.zielmodus_erster) {
        um_.zeitgeber.rennen_aus();
    }
    um_.ausgaben.rennende_signal(true);
    zieltimer_->an();
    sprache_a().anwenden(um_.ablage);
    ansagen_setzen();
    meter_fortsetzung_.fuellen({});
    for (bezeichnung& meter : ges_meter) {
        meter.text("");
    }
    kopf_schreiben();
    auswertung_anzeigen();
    if (sortier_modus_von(um_.param.auswertung_nach_rennen) == sortier_modus::meter) {
        auswertung_anzeigen();  // the standing goes by the metres that are shown, so they must be there first
    }
    Command5.fokus_setzen();
}

void auswertung::entladen() {
    if (zieltimer_->laeuft()) {
        zielsignal_beenden();
    }
}

void auswertung::zielsignal_beenden() {
    zieltimer_->aus();
    um_.ausgaben.rennende_signal(false);
}

sprachliste auswertung::sprache_a() {
    sprachliste texte("language\\language_a.txt");
    texte.ueberschrift("Auswertung").text("Auswertung des Rennens", titel).text("Hauptmenü", Command5);
    texte.text("Zeitrennen", wort_.zeitrennen).text("Rundenrennen", wort_.rundenrennen);
    texte.text("vorzeitig beendet", wort_.vorzeitig).text("Strafzeit", wort_.strafzeit);
    texte.text("Spur", wort_.spur).fuer_alle("Runden", Label_runden).fuer_alle("Gesamtzeit", Label_zeit);
    texte.fuer_alle("beste Runde", Label_beste);
    texte.text("Geschwindigkeit beste Runde / Durchschnittsgeschwindigkeit", wort_.tempo);
    return texte.text("Rundenliste", wort_.rundenliste);
}

void auswertung::ansagen_setzen() {
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        Label_spur[i].text(wort_.spur + " " + std::to_string(spur));
        const auto ansagen = [&](steuerelement& element, const std::string& was) {
            element.ansage(Label_spur[i].text() + ": " + was);
        };
        ansagen(runden_aus[i], Label_runden[i].text());
        ansagen(zeit_aus[i], Label_zeit[i].text());
        ansagen(beste_aus[i], Label_beste[i].text());
        ansagen(liste[i], wort_.rundenliste);
        beste_aus[i].tipp(wort_.tempo);
        kmh_label[i].tipp(wort_.tempo);
    }
}

void auswertung::kopf_schreiben() {
    std::string kopf = um_.param.renn_art_text == um_.txt.text_zeit ? wort_.zeitrennen : wort_.rundenrennen;
    kopf += "  ·  " + um_.bahn.ziel_label.text();
    if (um_.zustand.rennabbruch) {
        kopf += "  ·  " + wort_.vorzeitig;
    }
    std::string ende = um_.zustand.rennen_ende_uhrzeit;
    std::replace(ende.begin(), ende.end(), '-', ' ');
    kopf_label.text(kopf + "  ·  " + ende);
}

void auswertung::platzierung_berechnen() {
    rundenspeicher& speicher = um_.zustand.rundenzeiten;
    for (const int spur : alle_spuren) {
        platz_werte& werte = werte_[spur];
        werte.aktiv = um_.param.spur_aktiv[spur];
        werte.runden = std::max(um_.zustand.spur[spur].runden, -1);
        std::string meter = ges_meter.at(feld_index(spur)).text();
        werte_pruefen2(meter);
        werte.meter = std::max(zahl_lesen(meter), 0.0);
        werte.gesamtzeit = 0;
        if (!werte.aktiv) {
            speicher.beste(spur, beste_inaktiv);
            werte = {false, runden_inaktiv, meter_inaktiv, gesamtzeit_inaktiv, beste_inaktiv};
            continue;
        }
        for (int runde = 1; runde <= werte.runden; ++runde) {
            werte.gesamtzeit += speicher.rundenzeit(spur, runde);
        }
        werte.gesamtzeit += zeit_ms{1000} * um_.zustand.spur[spur].strafzeit;
        werte.beste_runde = speicher.beste(spur);
    }

    const spuren<int> rang_folge = rang_folge_bilden(werte_, sortier_modus_von(um_.param.auswertung_nach_rennen));
    for (int rang = 1; rang <= spuren_max; ++rang) {
        const int spur = rang_folge[rang];
        platzierung_[spur] = rang;
        Frame.at(feld_index(spur)).reihe(rang - 1);
        platz.at(feld_index(spur)).text(std::to_string(rang) + ".");
    }
    fuehrende_spur_ = rang_folge[1];
    for (const int spur : alle_spuren) {
        const zeit_ms abstand = werte_[spur].gesamtzeit - werte_[fuehrende_spur_].gesamtzeit;
        bezeichnung& label = abstandlabel.at(feld_index(spur));
        label.sichtbar(werte_[spur].aktiv && spur != fuehrende_spur_);
        // a car that is laps behind may have the lower time
        label.text((abstand < 0 ? "- " : "+ ") + zeit_formatieren(std::abs(abstand), true, um_.einst.trennzeichen));
    }
}

void auswertung::meter_auswerten() {
    for (const int spur : alle_spuren) {
        if (!um_.param.spur_aktiv[spur]) {
            continue;
        }
        meter_stand& stand = meter_fortsetzung_[spur];
        const int runden = std::max(um_.zustand.spur[spur].runden, 0);
        stand.meter += um_.param.spurlaenge[spur] * (runden - stand.runden);
        stand.runden = runden;
        ges_meter.at(feld_index(spur)).text(dezimal(stand.meter) + " m");
    }
}

void auswertung::auswertung_anzeigen() {
    for (tarvel::liste& runden : liste) {
        runden.leeren();
    }
    for (spur_zustand& spur : um_.zustand.spur) {
        if (spur.disqualifiziert) {
            spur.runden = 0;
        }
    }
    platzierung_berechnen();
    meter_auswerten();
    for (const int spur : alle_spuren) {
        Frame.at(feld_index(spur)).sichtbar(um_.param.spur_aktiv[spur]);
        if (um_.param.spur_aktiv[spur]) {
            spur_anzeigen(spur);
        }
    }
}

void auswertung::spur_anzeigen(int spur) {
    const std::size_t i = feld_index(spur);
    spur_zustand& zustand = um_.zustand.spur[spur];
    zustand.runden = zustand.runden_zeile - 1;
    if (zustand.disqualifiziert) {
        zustand.runden = 0;
    }
    const platz_werte& werte = werte_[spur];
    const trennzeichen_tabelle& trennzeichen = um_.einst.trennzeichen;
    fahrer[i].text(um_.param.fahrer_name[spur]);
    Frame[i].schriftfarbe(um_.einst.farben_spur[spur]);
    runden_aus[i].text(zustand.disqualifiziert ? std::string(disqualifiziert_text)
                                               : std::to_string(std::max(zustand.runden, 0)));
    beste_aus[i].text(zeit_formatieren(werte.beste_runde, false, trennzeichen));
    zeit_aus[i].text(zeit_formatieren(werte.gesamtzeit, true, trennzeichen));
    kmh_label[i].text(dezimal(tempo(um_.param.spurlaenge[spur], werte.beste_runde)) + " / " +
                      dezimal(tempo(um_.param.spurlaenge[spur] * std::max(zustand.runden, 0), werte.gesamtzeit)) +
                      " km/h");
    aus_straflabel[i].sichtbar(zustand.strafzeit > 0);
    aus_straflabel[i].text(wort_.strafzeit + ": " + std::to_string(zustand.strafzeit) + " sec");
    rundenliste_schreiben(spur);
}

void auswertung::rundenliste_schreiben(int spur) {
    for (int runde = 1; runde <= um_.zustand.spur[spur].runden; ++runde) {
        liste.at(feld_index(spur))
            .hinzufuegen(
                std::to_string(runde) + ".  " +
                zeit_formatieren(um_.zustand.rundenzeiten.rundenzeit(spur, runde), true, um_.einst.trennzeichen));
    }
}

void auswertung::cmd5_fortsetzung() {
    um_.param.training_laeuft = false;
    um_.ausgaben.ruhezustand();
    um_.fenster.entladen("auswertung");
    um_.fenster.entladen("bahn1");
    um_.fenster.zeigen("Form1");
}

}  // namespace tarvel
