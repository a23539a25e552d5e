#include "race/chaos.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tarvel {
namespace {

constexpr dauer_ms sammeltakt{10};  // of `ch_durch0`

void ausgaben_wecken(const renn_umgebung& um) {
    if (!um.protokoll.liest()) {  // else that was an earlier outage: they sleep until this one is over
        um.ausgaben.aufleben();
    }
}

}  // namespace

chaos::chaos(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    const rennzeitgeber& zeitgeber = um_.zeitgeber;
    zeitgeber.ch_durch0->bei_tick = [this] { ch_durch0_tick(); };
    zeitgeber.chaostimer2->bei_tick = [this] { chaostimer2_tick(); };
    zeitgeber.chaos_runden->bei_tick = [this] { chaos_nachholen(); };
    zeitgeber.tm_chausloeser_falsch_setzen->bei_tick = [this] {
        um_.zeitgeber.tm_chausloeser_falsch_setzen->aus();
        um_.ereignisse.chaos_fahrer.fuellen(false);
    };
    zeitgeber.chaos_schalter_at2560->bei_tick = [this] { chaos_schalter_at2560_tick(); };
    for (const int spur : alle_spuren) {
        zeitgeber.straftimer_ch[spur]->bei_tick = [this, spur] { straftimer_ch_tick(spur); };
    }
    um_.bahn.Command3.bei_klick = um_.protokoll.befehl("pause", [this] { befehl_klick(); });
    geraet_verloren_ = um_.protokoll.befehl("verloren", [this] { geraeteschalter_vergessen(); });
}

void chaos::zuruecksetzen() {
    um_.zeitgeber.pause_aus();
    um_.zustand.pause = {};
    um_.zustand.chaos_aktiv = false;
    um_.ereignisse.chaos_fahrer.fuellen(false);
    um_.bahn.Command3.text(um_.bahn.wort.pause);
    um_.bahn.Command_protokoll.sichtbar(false);
    strafformular_schliessen();
    gelb_zeigen(false);
    um_.bahn.cu_startframe.sichtbar(false);
}

void chaos::befehl_klick() {
    if (!um_.zustand.rennen_beendet && !um_.zeitgeber.chaostimer->laeuft() &&
        !um_.zeitgeber.chaosende_timer->laeuft()) {
        geraeteschalter_vergessen();
        if (!um_.zustand.chaos_aktiv) {
            um_.ereignisse.chaos_fahrer.fuellen(false);  // the race director himself
        }
        chaos_umschalten();
    } else if (!um_.zustand.rennen_beendet && !um_.zustand.chaos_aktiv) {
        um_.zustand.pause.zu_frueh_verlangt = um_.ereignisse.messzeit;
    }
}

void chaos::taste() {
    if (um_.ereignisse.chaos_taster_gedrueckt) {
        return;
    }
    const bool schalter_loesen = um_.einst.chaos_schalter && um_.zustand.chaos_aktiv && !um_.zustand.rennen_beendet;
    if (schalter_loesen && um_.zeitgeber.chaostimer->laeuft()) {
        return;
    }
    geraeteschalter_vergessen();
    um_.ereignisse.ereignis_melden(art::chaostaster);
    if (schalter_loesen) {
        chaos_umschalten();
    }
}

void chaos::pruefen() {
    if (um_.zustand.rennen_beendet) {
        return;
    }
    bool& schalter_stand = um_.zustand.pause.schalter_stand;
    ereignis_zeile& taster = um_.ereignisse[art::chaostaster];
    const bool frei = !um_.zeitgeber.chaostimer->laeuft();
    if (um_.einst.chaos_schalter) {
        schalter_verfolgen();
        if (frei && taster.aktiv && !schalter_stand && !um_.zustand.chaos_aktiv) {  // it ends no pause
            schalter_stand = true;
            chaos_umschalten();
        }
        loslassen_pruefen();
    } else if (frei && taster.aktiv && !um_.zeitgeber.chaosende_timer->laeuft()) {
        chaos_umschalten();
    } else if (std::exchange(taster.aktiv, false) && !um_.zustand.chaos_aktiv) {
        um_.ereignisse.chaos_fahrer.fuellen(false);  // dropped: the next pause may be another's
        um_.zustand.pause.zu_frueh_verlangt = um_.ereignisse.messzeit;
    }
}

void chaos::schalter_verfolgen() {
    constexpr zeit_ms losgelassen_nach_ms = 100;  // a device repeats a switch that is on with every poll
    pausen_zustand& pause = um_.zustand.pause;
    ereignis_zeile& taster = um_.ereignisse[art::chaostaster];
    if (!pause.schalter_stand || um_.zustand.chaos_aktiv) {
        return;  // no pause has been left with the switch on
    }
    if (taster.aktiv) {
        taster.aktiv = false;
        pause.schalter_zuletzt = um_.ereignisse.messzeit;
    } else if (um_.ereignisse.messzeit - pause.schalter_zuletzt > losgelassen_nach_ms) {
        pause.schalter_stand = false;
        um_.protokoll.vermerken(vermerk::schalter);
    }
}

void chaos::loslassen_pruefen() {
    if (um_.einst.chaos_schalter && um_.zustand.pause.schalter_stand && um_.zustand.chaos_aktiv &&
        !um_.ereignisse[art::chaostaster].aktiv && !um_.zeitgeber.chaostimer->laeuft() &&
        !um_.zeitgeber.chaosende_timer->laeuft()) {
        chaos_umschalten();
    }
}

void chaos::chaos_umschalten() {
    if (!um_.zustand.chaos_aktiv) {
        pause_beginnen();
    } else if (mit_ampel() && neustart_ampel != nullptr) {
        um_.ereignisse[art::chaostaster].aktiv = um_.einst.chaos_schalter && um_.ereignisse[art::chaostaster].aktiv;
        neustart_ampel->pause_beenden();
    } else if (!am_geraet_fortsetzen()) {
        chaosende_routine();
    }
}

void chaos::nach_ausfall(zeit_ms seit) {
    if (!um_.zustand.chaos_aktiv) {
        pause_beginnen(seit);
    }
    sammeln_beenden();  // whoever rolled over the line meanwhile was seen by nobody
    um_.zustand.pause.ausfall = true;
    um_.zustand.pause.schalter_stand = false;  // nobody knows how the switch stands now
    um_.zustand.pause.geraet_rot = false;      // nor whether the device's cars have been let go meanwhile
    um_.zustand.pause.neustart_verlangt = 0;
    um_.ereignisse[art::chaostaster].aktiv = false;
    um_.zeitgeber.chaos_schalter_at2560->aus();
    gelb_zeigen(false);
    um_.fenster.entladen(fenstername::k_ampel);  // its light had perhaps begun
    um_.fenster.zeigen(fenstername::k_ampel);
}

void chaos::pause_beginnen(std::optional<zeit_ms> seit) {
    renn_zustand& zustand = um_.zustand;
    zustand.nachlauf_minuten = 0;
    zustand.pause.ch_zaehler = 0;
    zustand.pause.geraet_rot = false;
    zustand.pause.neustart_verlangt = 0;
    if (!um_.einst.chaos_schalter) {
        um_.ereignisse[art::chaostaster].aktiv = false;
    }
    if (um_.einst.sensor_timeout == 0ms) {
        sammeln_beenden();
    } else {
        um_.zeitgeber.ch_durch0->an();
    }
    um_.zeitgeber.chaostimer->an();
    um_.zeitgeber.chaostimer2->an();
    zustand.pause.start = seit ? *seit : um_.moment_lesen();
    um_.protokoll.vermerken(vermerk::pause, {zustand.pause.start});
    um_.ereignisse.anhalten(zustand.pause.start);
    um_.ereignisse[art::chaostaster].ereignis_zeit = zustand.pause.start;
    um_.sounds.spielen(sound::pause_beginnt);
    um_.bahn.Command3.text(um_.bahn.wort.weiter);
    um_.bahn.Command_protokoll.sichtbar(true);
    um_.bahn.Command3.aktiviert(true);
    zeitgeber_anhalten();
    um_.ausgaben.chaos_an();
    zustand.chaos_aktiv = true;
    kleine_ampeln(kleines_licht::gelb);
    strafformular_zeigen();
    hinweis_zeigen();
    if (um_.einst.chaos_schalter && um_.ereignisse.chaos_at_zaehler > 0) {
        um_.zeitgeber.chaos_schalter_at2560->an();  // hands are at the switch: nobody needs to be shown
    } else if (um_.einst.chaosampel_an) {
        um_.fenster.zeigen(fenstername::k_ampel);
    } else {
        gelb_zeigen(true);
    }
}

void chaos::hinweis_zeigen() {
    std::string text;
    for (const int spur : alle_spuren) {
        if (um_.ereignisse.chaos_fahrer[spur]) {
            const std::string& name = um_.param.fahrer_name[spur];
            const bool dabei = um_.param.spur_aktiv[spur] && !name.empty();
            text += text.empty() ? um_.bahn.wort.pause + ": " : ", ";
            text += dabei ? name : um_.bahn.wort.spur + " " + std::to_string(spur);
        }
    }
    if (um_.quellen.ampel() != nullptr) {
        text += (text.empty() ? "" : " – ") + um_.bahn.wort.cu_pause;
    }
    um_.bahn.cu_startlabel.text(text);
    um_.bahn.cu_startframe.sichtbar(!text.empty());
}

void chaos::zeitgeber_anhalten() {
    t_.fruehstart.anhalten();
    for (const int spur : alle_spuren) {
        um_.zeitgeber.t_straftimer[spur]->aus();
        um_.zeitgeber.tanktimer[spur]->aus();
    }
}

void chaos::zeitgeber_fortsetzen() {
    t_.fruehstart.fortsetzen();
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        if (zustand.tank_strafe_aktiv) {
            zustand.tank_sperre.bis += zustand.tank_sperre.bis == 0 ? 0 : um_.zustand.pause.dauer;
            um_.zeitgeber.t_straftimer[spur]->an();
        }
        if (zustand.tank_wartezaehler > 0s) {
            um_.zeitgeber.tanktimer[spur]->an();
        }
    }
}

void chaos::gelb_zeigen(bool an) {
    for (const int spur : alle_spuren) {
        um_.bahn.yellowframe[spur].sichtbar(an && um_.param.spur_aktiv[spur]);
    }
}

void chaos::kleine_ampeln(kleines_licht licht) {
    for (const int spur : alle_spuren) {
        if (!um_.zustand.spur[spur].strom_aus) {
            t_.ansicht.kleine_ampel(spur, licht);
        }
    }
}

void chaos::durchfahrten_merken() {
    const zeit_ms jetzt = um_.zeit.messzeit_lesen();
    um_.zielsensoren_falten();
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        ereignis_zeile& ereignis = um_.ereignisse[art::rundenzaehlung[spur]];
        if (ereignis.aktiv && !zustand.ch_durchfahrt) {
            zustand.ch_durchfahrt = true;
            const bool selbst_gestempelt =  // else as the race stood
                ereignis.spaet_moeglich || ereignis.ereignis_zeit != um_.ereignisse.messzeit;
            zustand.ch_durchfahrt_zeit = selbst_gestempelt ? std::min(ereignis.ereignis_zeit, jetzt) : jetzt;
            zustand.verworfen_bei = ereignis.ereignis_zeit;  // what bounces behind it is not another one
            ereignis.vorgemerkt = true;
            um_.protokoll.vermerken(vermerk::durchfahrt, {spur, zustand.ch_durchfahrt_zeit});
        }
    }
}

void chaos::sammeln_beenden() {
    um_.zeitgeber.ch_durch0->aus();
    um_.zeitgeber.renntimer->aus();
    um_.zeitgeber.renntimer2->aus();
    if (um_.zeitgeber.nachlauftimer1->laeuft()) {
        um_.zeitgeber.nachlauftimer1->aus();
        um_.zustand.pause.nachlauf_nach_pause = true;
    }
}

void chaos::ch_durch0_tick() {
    durchfahrten_merken();
    if (++um_.zustand.pause.ch_zaehler >= um_.einst.sensor_timeout / sammeltakt) {
        sammeln_beenden();
    }
}

void chaos::chaostimer2_tick() {
    if (um_.zeitgeber.ch_durch0->laeuft()) {  // each poll, so that a noted crossing is right to the millisecond
        durchfahrten_merken();
    }
    if (gruen_am_geraet()) {  // its cars drive
        um_.fenster.entladen(fenstername::k_ampel);
        chaosende_routine();
        return;
    }
    if (um_.zeitgeber.chaostimer->laeuft()) {
        if (!um_.einst.chaos_schalter) {  // dropped, also where the race tick no longer does it
            um_.ereignisse[art::chaostaster].aktiv = false;
        }
        return;
    }
    t_.ablauf.quellen_abfragen();
    if (um_.zustand.rennen_beendet) {
        return;
    }
    if (um_.ereignisse[art::chaostaster].aktiv && !um_.einst.chaos_schalter) {
        chaos_umschalten();
    } else {
        loslassen_pruefen();
    }
}

void chaos::chaosende_routine() {
    renn_zustand& zustand = um_.zustand;
    um_.zeitgeber.tm_chausloeser_falsch_setzen->an();
    const zeit_ms ende = um_.moment_lesen();
    const bool nach_ausfall = std::exchange(zustand.pause.ausfall, false);
    if (nach_ausfall) {
        um_.quellen.melden(&messquelle::rennen_fortgesetzt);
    }
    um_.ereignisse[art::chaostaster].ereignis_zeit = ende;
    um_.ereignisse.messzeit = ende;  // events are stamped with it, and no tick has read the clock in the pause
    um_.zeitgeber.ch_durch0->aus();
    zustand.pause.dauer = ende - zustand.pause.start;
    um_.protokoll.vermerken(vermerk::weiter, {ende, zustand.pause.dauer});
    zustand.unterbrechung_abziehen(zustand.pause.dauer);
    um_.sounds.spielen(sound::pause_endet);
    um_.ausgaben.chaos_aus();
    if (nach_ausfall) {
        ausgaben_wecken(um_);  // only now: a sign of the pause would stop cars that have just been let go
    }
    unverbuesste_abschalten();
    t_.strafe.strom_wiederherstellen();
    strafen_verteilen();
    zustand.strafreste_ab(ende);
    um_.ereignisse.strecke_leeren();
    um_.ereignisse.gelten_lassen(ende, zustand.pause.start);
    um_.ereignisse[art::chaostaster].aktiv = false;
    um_.zeitgeber.chaostimer2->aus();
    geraeteschalter_vergessen();
    zustand.chaos_aktiv = false;
    zustand.pause.schalter_zuletzt = ende;
    um_.zeitgeber.rennen_an();
    if (std::exchange(zustand.pause.nachlauf_nach_pause, false) || um_.zeitgeber.nachlauftimer1->laeuft()) {
        zustand.nachlauf_minuten = 0;
        um_.zeitgeber.nachlauftimer1->aus();
        um_.zeitgeber.nachlauftimer1->an();
    }
    um_.bahn.Command3.text(um_.bahn.wort.pause_wieder);
    um_.bahn.Command_protokoll.sichtbar(false);
    t_.ablauf.befehle_freigeben();
    kleine_ampeln(kleines_licht::gruen);
    zeitgeber_fortsetzen();
    um_.zeitgeber.chaos_runden->an();
    um_.zeitgeber.chaosende_timer->an();
    um_.zeitgeber.chaostimer->an();
    strafformular_schliessen();
    gelb_zeigen(false);
    um_.bahn.cu_startframe.sichtbar(false);
}

void chaos::chaos_nachholen() {
    um_.zeitgeber.chaos_runden->aus();
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        if (std::exchange(zustand.ch_durchfahrt, false)) {
            ereignis_zeile& ereignis = um_.ereignisse[art::rundenzaehlung[spur]];
            ereignis.aktiv = true;
            ereignis.verschoben = um_.zustand.pause.dauer;
            ereignis.ereignis_zeit = zustand.ch_durchfahrt_zeit + ereignis.verschoben;
        }
    }
}

void chaos::aufheben() {
    ausgaben_wecken(um_);
    if (um_.zustand.chaos_aktiv) {
        um_.ausgaben.chaos_aus();
        const zeit_ms jetzt = um_.zeit.messzeit_lesen();
        const zeit_ms ende = um_.zustand.renn_ende_stempel;  // what goes on from it counts the rest as its own break
        um_.zustand.pause.dauer = (ende >= um_.zustand.pause.start ? ende : jetzt) - um_.zustand.pause.start;
        um_.zustand.unterbrechung_abziehen(um_.zustand.pause.dauer);
        um_.ereignisse.strecke_leeren();
        um_.ereignisse.gelten_lassen(um_.zustand.pause.start + um_.zustand.pause.dauer, um_.zustand.pause.start);
        kleine_ampeln(kleines_licht::gruen);
    }
    chaos_nachholen();
    um_.fenster.entladen(fenstername::k_ampel);
    zuruecksetzen();
}

}  // namespace tarvel
