#include "race/rennende.h"

#include <algorithm>
#include <string>

#include "core/zeit.h"

namespace tarvel {
namespace {

constexpr int nachlauf_minuten_max = 2;

template <class Praedikat>
bool eine_spur(Praedikat praedikat) {
    return std::any_of(alle_spuren.begin(), alle_spuren.end(), praedikat);
}

}  // namespace

void rennende::zuruecksetzen() {
    um_.zustand.ende_eingeleitet = false;
    um_.zustand.endesound_gespielt = false;
    um_.zustand.rennabbruch = false;
    um_.zustand.nachlauf_minuten = 0;
    um_.zeitgeber.nachlauftimer1->aus();
    um_.bahn.nachlauflabel.sichtbar(false);
    um_.bahn.uhr1.uhrframe.sichtbar(true);
}

bool rennende::hat_das_ziel(int spur) const {
    return um_.ist_rundenrennen() && um_.zustand.konto.runden(spur) == um_.param.renn_ziel.runden();
}

bool rennende::am_ziel(int spur) const {
    return um_.zustand.konto.runden(spur) == um_.param.renn_ziel.runden() && um_.param.spur_aktiv_gemerkt[spur];
}

void rennende::pruefen() {
    renn_zustand& zustand = um_.zustand;
    if (um_.ist_rundenrennen()) {
        for (const int spur : alle_spuren) {
            if (am_ziel(spur) && !zustand.spur[spur].ziel_erreicht) {
                spur_ziel_setzen(spur);
            }
        }
    }
    zustand.ziele_anzahl = static_cast<int>(
        std::count_if(zustand.spur.begin(), zustand.spur.end(), [](const spur_zustand& s) { return s.ziel_erreicht; }));
    const int unbenutzt = spuren_max - um_.param.spuren_anzahl;
    if (!zustand.endesound_gespielt && zustand.ziele_anzahl == unbenutzt + 1) {
        um_.sounds.spielen(sound::erster_im_ziel);
        zustand.endesound_gespielt = true;
    }
    if (um_.zeitgeber.nachlauftimer1->laeuft()) {
        if (alle_fertig()) {
            um_.zeitgeber.rennen_aus();
            ende_stempeln();
            rennende_ablauf();
        }
    } else if (ist_zu_ende()) {
        rennende_einleiten();
    }
}

bool rennende::alle_fertig() const {
    const auto& spuren = um_.zustand.spur;
    return std::all_of(spuren.begin(), spuren.end(),  // nobody waits for a lane that is out
                       [](const spur_zustand& s) { return s.ziel_erreicht || s.disqualifiziert; });
}

bool rennende::ist_zu_ende() const {
    const renn_zustand& zustand = um_.zustand;
    if (alle_fertig() || eine_spur([&](int spur) { return zustand.konto.runden(spur) == runden_max; })) {
        return true;
    }
    if (um_.ist_zeitrennen()) {
        return um_.ereignisse.messzeit >= zustand.renn_ende_zeit + zustand.pause_abzug;
    }
    return um_.einst.zielmodus_erster &&
           eine_spur([&](int spur) { return am_ziel(spur) && !zustand.spur[spur].disqualifiziert; });
}

void rennende::rennende_einleiten() {
    renn_zustand& zustand = um_.zustand;
    if (zustand.ende_eingeleitet) {
        return;
    }
    zustand.ende_eingeleitet = true;
    zustand.pausen_bis_ende = zustand.pause_abzug;
    ende_stempeln();
    if (um_.ist_zeitrennen()) {
        zeit_ist_um();
    } else if (um_.einst.runde_beenden && um_.einst.zielmodus_erster) {
        sieg_stempeln();
    }
    um_.protokoll.vermerken(vermerk::letzte, {zustand.renn_ende_stempel});
    if (um_.ist_rundenrennen() && um_.einst.runde_beenden) {
        nachlauf_runden_starten();
        return;
    }
    uhr_.auf_null_stellen();
    if (um_.ist_zeitrennen() && !um_.einst.zielmodus_erster) {
        nachlauf_zeit_starten();
    } else {
        rennende_ablauf();
    }
}

void rennende::zeit_ist_um() {
    renn_zustand& zustand = um_.zustand;
    const zeit_ms ende = zustand.renn_ende_zeit + zustand.pause_abzug;
    zustand.renn_ende_stempel = std::min(zustand.renn_ende_stempel, ende);
    for (const int spur : alle_spuren) {  // a machine that stood still finds it late: who has come since is home
        const spur_zustand& eine = zustand.spur[spur];
        const bool danach = eine.gezaehlt_bei >= ende && eine.pause_im_stempel == 0;  // else it came before a pause
        if (danach && !eine.ziel_erreicht && um_.einst.zielmodus_erster) {
            um_.zustand.spur[spur].ziel_erreicht = true;  // the lap that the end has cut short, and no further one
        } else if (danach && !eine.ziel_erreicht) {
            spur_ziel_setzen(spur);
        }
    }
}

void rennende::nachlauf_zeit_starten() {
    um_.bahn.nachlauflabel.sichtbar(true);
    um_.bahn.uhr1.uhrframe.sichtbar(false);
    um_.zeitgeber.nachlauftimer1->an();
}

void rennende::sieg_stempeln() {
    renn_zustand& zustand = um_.zustand;
    for (const int spur : alle_spuren) {
        if (am_ziel(spur) && !zustand.spur[spur].disqualifiziert && zustand.spur[spur].pause_im_stempel == 0) {
            zustand.renn_ende_stempel = std::min(zustand.renn_ende_stempel, zustand.spur[spur].gezaehlt_bei);
        }
    }
}

void rennende::nachlauf_runden_starten() {
    for (const int spur : alle_spuren) {
        const spur_zustand& eine = um_.zustand.spur[spur];  // told in one look, some have come behind the winner
        const bool danach = eine.gezaehlt_bei > um_.zustand.renn_ende_stempel && eine.pause_im_stempel == 0;
        if ((danach || um_.zustand.konto.runden(spur) == um_.param.renn_ziel.runden()) && !eine.ziel_erreicht) {
            spur_ziel_setzen(spur);
        }
    }
    um_.zeitgeber.nachlauftimer1->an();
}

void rennende::nachlauf_tick() {
    if (++um_.zustand.nachlauf_minuten >= nachlauf_minuten_max) {
        um_.bahn.nachlauflabel.sichtbar(false);
        um_.bahn.uhr1.uhrframe.sichtbar(true);
        ende_stempeln();
        rennende_ablauf();
    }
}

void rennende::spur_ziel_setzen(int spur) {
    um_.zustand.spur[spur].ziel_erreicht = true;
    um_.zustand.spur[spur].strom_aus = true;
    um_.protokoll.vermerken(vermerk::ziel, {spur});
    um_.ausgaben.relais_on(spur);
    um_.bahn.bahnshape[spur].randfarbe(farben::rot);
    um_.bahn.ampel_gr.at(feld_index(spur)).sichtbar(false);
    um_.bahn.ampel_ge.at(feld_index(spur)).sichtbar(false);
    if (!um_.bahn.zeilenansicht()) {
        um_.bahn.ampel_rt.at(feld_index(spur)).sichtbar(true);
    }
    um_.ausgaben.zieleinfahrt_melden();
}

void rennende::ausgaben_endzustand() {
    um_.ausgaben.ampelnRoff(0);
    um_.ausgaben.ampelnGRoff();
    um_.ausgaben.relais_off(0);
    um_.quellen.melden(&messquelle::rennende);
}

void rennende::ende_stempeln() {
    if (!um_.zustand.fortsetzung_wartet) {
        um_.zustand.renn_ende_stempel = um_.zeit.messzeit_lesen();
    }
}

void rennende::rennende_ablauf() {
    renn_zustand& zustand = um_.zustand;
    if (zustand.rennen_beendet) {
        return;
    }
    um_.protokoll.vermerken(vermerk::ende, {zustand.renn_ende_stempel, zustand.rennabbruch ? 1 : 0});
    um_.zeitgeber.nachlauftimer1->aus();
    if (um_.ist_zeitrennen()) {
        uhr_.tausendstel_auf_null();
    }
    um_.sounds.spielen(sound::rennen_beendet);
    const bool wieder_zurueck = zustand.fortsetzung_wartet;
    abschluss->laufendes_beenden();
    if (const std::string jetzt = uhrzeit_text(um_.kalender.jetzt()); !wieder_zurueck) {
        zustand.rennen_ende_uhrzeit = jetzt;
    }
    ausgaben_endzustand();
    um_.fenster.entladen(fenstername::Form2);  // a very short race ends before its start light goes
    zustand.rennen_beendet = true;
    zustand.chaos_aktiv = false;
    um_.bahn.Command_protokoll.sichtbar(false);
    um_.fenster.zeigen(fenstername::auswertung, anzeige_art::modal);
}

}  // namespace tarvel
