#include <algorithm>
#include <array>
#include <optional>

#include "core/text.h"
#include "core/zahleneingabe.h"
#include "race/hergangsworte.h"
#include "results/auswertung.h"

namespace tarvel {
namespace {

/// The others were no lap, whoever decides about it.
bool kann_runde_sein(ablehnung grund) {
    constexpr std::array gruende{ablehnung::sperre,     ablehnung::volltanken, ablehnung::zu_schnell,
                                 ablehnung::tankstrafe, ablehnung::im_ziel,    ablehnung::pause};
    return std::find(gruende.begin(), gruende.end(), grund) != gruende.end();
}

}  // namespace

void auswertung::Command6_klick() {
    if (meter_eingabe_an_) {
        if (meter_pruefen()) {
            meter_eingabe_uebernehmen();
        }
    } else {
        zeigen(ansicht::stand);
        meter_eingabe(true);
    }
}

void auswertung::meter_eingabe(bool an) {
    meter_eingabe_an_ = an;
    Command6.text(an ? wort_.fertig : wort_.meter_eingeben);
    for (befehl* knopf : {&Command1, &Command2, &Command3, &Command4, &Command5, &Command7, &Command8, &Command10,
                          &Command_verlauf, &Command_protokoll, &Command_drucken, &Command_pdf, &Command_urkunden,
                          &Command_nachtragen, &Command_wiedergabe}) {
        knopf->aktiviert(!an);
    }
    Command9.aktiviert(!an && um_.einst.beste_modus != bestzeit_speicherung::aus);
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        for (befehl* knopf : {&cmd_anzeige[i], &cmd_rd_add[i], &cmd_rd_inc[i]}) {
            knopf->aktiviert(!an);
        }
        meter[i].sichtbar(an && um_.param.spur_aktiv[spur]);
        const rennergebnis::spur* s = ergebnis().auf(spur);
        const double bisher = s == nullptr ? 0 : s->restmeter;  // what is typed now comes on top
        meter_label[i].text(wort_.restmeter + (bisher == 0 ? "" : " " + zahl_text(bisher, ',') + " +"));
        meter_label[i].sichtbar(meter[i].sichtbar());
        ges_meter[i].sichtbar(!an);
    }
    korrekturen_anbieten();
    if (const rennergebnis::spur* erster = ergebnis().fuehrende(); an && erster != nullptr) {
        meter.at(feld_index(erster->nummer)).fokus_setzen();
    }
}

bool auswertung::meter_pruefen() {
    const auto stand = ergebnis().spuren;  // a late crossing makes the result anew behind a message
    for (const rennergebnis::spur& s : stand) {
        feld& eingabe = meter.at(feld_index(s.nummer));
        std::string text = eingabe.text();
        werte_pruefen2(text);
        const double gesamt = s.restmeter + zahl_lesen(text);
        const double laenge_m = um_.param.spurlaenge[s.nummer];
        const auto nennen = [&](const std::string& was) { return eingabe.ansage() + ": " + was; };
        bool gut = true;
        if (!ist_zahl(text)) {
            um_.meldungen.zeigen(nennen(wort_.keine_zahl), um_.txt.titel[1]);
            gut = false;
        } else if (zahl_lesen(text) > 0 && gesamt > laenge_m && !s.disqualifiziert) {
            gut = um_.meldungen.fragen(nennen(zahl_text(gesamt, ',') + " m. " + wort_.zu_viele_meter + " " +
                                              zahl_text(laenge_m, ',') + " m. " + wort_.trotzdem),
                                       um_.txt.titel[0]);
        }
        if (!gut) {
            eingabe.fokus_setzen();
            return false;
        }
    }
    return true;
}

void auswertung::meter_eingabe_uebernehmen() {
    if (!meter_eingabe_an_) {
        return;
    }
    korrekturschritt eingegeben;
    for (const int spur : alle_spuren) {
        feld& eingabe = meter.at(feld_index(spur));
        if (um_.param.spur_aktiv[spur]) {
            std::string text = eingabe.text();
            werte_pruefen2(text);
            if (const double zahl = zahl_lesen(text); zahl != 0) {
                eingegeben.push_back({.was = korrektur::art::restmeter, .spur = spur, .meter = zahl});
            }
        }
        eingabe.text("0");
    }
    u_.stand.korrigieren(eingegeben);
    auswertung_anzeigen();
    meter_eingabe(false);
}

void auswertung::runde_loeschen_auf(std::size_t i) {
    gewaehlte_spur_ = static_cast<int>(i) + 1;
    runde_loeschen();
}

void auswertung::korrektur_beginnen() {
    for (const auto& blinken : beste_blink_timer_) {
        blinken->aus();
    }
    selbstlauf_unterbrechen();
    zeigen(ansicht::stand);  // the laps are in the lists
}

void auswertung::runde_loeschen() {
    korrektur_beginnen();
    const int runde = gewaehlte_spur_ == 0 ? 0 : liste.at(feld_index(gewaehlte_spur_)).markiert() + 1;
    if (runde < 1 ||
        !u_.stand.korrigieren({{.was = korrektur::art::geloescht, .spur = gewaehlte_spur_, .runde = runde}})) {
        um_.meldungen.zeigen(wort_.runde_waehlen, um_.txt.titel[0]);
        return;
    }
    auswertung_anzeigen();
    bestzeiten_pruefen();
}

std::string auswertung::korrektur_text(const korrekturschritt& korrigiert) const {
    const korrektur& k = korrigiert.front();
    if (k.was == korrektur::art::restmeter) {
        return wort_.meter_eingeben;
    }
    return wort_.spur + " " + std::to_string(k.spur) + ", " + nachtrag.wort_runde() + " " + std::to_string(k.runde) +
           ": " + (k.traegt_nach() ? Command_nachtragen : Command8).text();
}

void auswertung::korrekturen_anbieten() {
    const auto anbieten = [this](befehl& knopf, const std::string& was, const korrekturschritt* korrigiert) {
        knopf.aktiviert(korrigiert != nullptr && !meter_eingabe_an_);
        knopf.tipp(korrigiert == nullptr ? was : was + ": " + korrektur_text(*korrigiert));
    };
    const korrekturliste& korrekturen = u_.stand.korrekturen();
    anbieten(Command_zurueck, wort_.zurueck, korrekturen.letzter());
    anbieten(Command_wieder, wort_.wieder, korrekturen.naechster());
}

void auswertung::korrektur_zuruecknehmen() {
    korrektur_beginnen();
    u_.stand.zuruecknehmen();
    auswertung_anzeigen();
    bestzeiten_pruefen();
}

void auswertung::korrektur_wiederherstellen() {
    korrektur_beginnen();
    const korrekturschritt* naechster = u_.stand.korrekturen().naechster();
    const korrekturschritt wieder = naechster == nullptr ? korrekturschritt() : *naechster;
    u_.stand.wiederherstellen();
    auswertung_anzeigen();
    bestzeiten_pruefen();
    nachgetragene_waehlen(wieder);
}

void auswertung::nachtrag_oeffnen() {
    const int runde = gewaehlte_spur_ == 0 ? 0 : liste.at(feld_index(gewaehlte_spur_)).markiert() + 1;
    korrektur_beginnen();
    nachtrag_fuellen(gewaehlte_spur_, runde);
    zeigen(ansicht::nachtrag);
    nachtrag.angebote.fokus_setzen();
}

void auswertung::nachtrag_fuellen(int spur, int runde) {
    nachtrag.fuellen(ergebnis(), offene_runden_lesen(), um_.param.spurlaenge, um_.einst.trennzeichen, spur, runde);
}

offene_runden auswertung::offene_runden_lesen() const {
    const rennhergang hergang =
        hergang_lesen(r_.fenster.fuehrung == nullptr ? std::string() : r_.fenster.fuehrung->bisher());
    const hergangsworte in_worten = hergang_in_worten ? hergang_in_worten() : hergangsworte();
    offene_runden offen;
    offen.pausen = um_.zustand.unterbrechungen;
    std::optional<zeit_ms> pause_seit;
    for (const geschehen& g : hergang.alle) {
        if (g.ist_befehl("umsetzen")) {
            offen.ueberfahrten.clear();  // were of other drivers
        } else if (g.was == vorgang::pause) {
            pause_seit = g.stempel;
        } else if (g.was == vorgang::weiter) {
            offen.pausen.push_back({g.stempel - g.wert, g.stempel});
            pause_seit.reset();
        } else if (g.was == vorgang::ende && pause_seit) {
            offen.pausen.push_back({*pause_seit, g.stempel});
            pause_seit.reset();
        } else if (g.ist_abgelehnt() && kann_runde_sein(g.grund())) {
            offen.ueberfahrten.push_back({g.spur, g.stempel, g.seit_gruen, in_worten.von(g)});
        }
    }
    return offen;
}

void auswertung::runde_nachtragen(const korrektur& k) {
    if (!u_.stand.korrigieren({k})) {
        um_.meldungen.zeigen(wort_.hinter_dem_ziel, um_.txt.titel[1]);
        return;
    }
    zeigen(ansicht::stand);
    auswertung_anzeigen();
    bestzeiten_pruefen();
    nachgetragene_waehlen({k});
    Command_zurueck.fokus_setzen();  // what took the lap is gone from the screen
}

void auswertung::nachgetragene_waehlen(const korrekturschritt& neue) {
    if (!neue.empty() && neue.front().traegt_nach()) {
        liste.at(feld_index(neue.front().spur)).auswaehlen(neue.front().runde - 1);
    }
}

}  // namespace tarvel
