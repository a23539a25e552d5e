#include "race/fruehstartstrafe.h"

#include "core/zeit.h"
#include "race/rundenanzeige.h"

namespace tarvel {

dauer_hs fruehstart_sperrdauer(const einstellungen& einst) {
    using aktion = fruehstart_aktion;
    const aktion wahl = einst.fruehstart_option;
    const bool ohne_stromausfall = wahl == aktion::ohne || wahl == aktion::runde_abzug || wahl == aktion::zeitstrafe;
    return ohne_stromausfall ? dauer_hs(10) : einst.fruehstart_strafzeit;
}

fruehstartstrafe::fruehstartstrafe(const renn_umgebung& um, strafen& s) : um_(um), strafen_(s) {
    um_.zeitgeber.f_straftimer->bei_tick = [this] { zeit_tick(); };
    um_.zeitgeber.f_straftimer2->bei_tick = [this] { nachsperre_tick(); };
}

void fruehstartstrafe::zuruecksetzen() {
    verbuesst_ = {};
    angehalten_ = false;
    um_.zeitgeber.f_straftimer->aus();
    um_.zeitgeber.f_straftimer2->aus();
}

void fruehstartstrafe::beginnen() {
    const zeit_ms strom_ab = um_.zeit.messzeit_lesen() + dauer_ms(fruehstart_sperrdauer(um_.einst)).count();
    for (const int spur : alle_spuren) {
        if (gesperrt(spur) && um_.param.min_rundenzeit_ms > 0) {
            um_.zustand.spur[spur].sperre = {zeitsperre::seit_immer, strom_ab + um_.param.min_rundenzeit_ms};
        }
    }
    um_.zeitgeber.f_straftimer->an();
}

void fruehstartstrafe::anhalten() {
    angehalten_ = um_.zeitgeber.f_straftimer->laeuft();
    um_.zeitgeber.f_straftimer->aus();
}

void fruehstartstrafe::fortsetzen() {
    if (angehalten_) {
        for (const int spur : alle_spuren) {
            zeit_ms& bis = um_.zustand.spur[spur].sperre.bis;
            bis += gesperrt(spur) && bis != 0 ? um_.zustand.pause.dauer : 0;
        }
        um_.zeitgeber.f_straftimer->an();
    }
}

void fruehstartstrafe::beenden() {
    for (const int spur : alle_spuren) {
        if (gesperrt(spur) && !um_.zeitgeber.f_straftimer2->laeuft()) {
            um_.zustand.spur[spur].sperre = {};  // nobody ends it any more
        }
    }
    um_.zeitgeber.f_straftimer->aus();
}

bool fruehstartstrafe::gesperrt(int spur) const {
    return um_.zustand.spur[spur].fruehstart_sperre && !um_.zeitgeber.straftimer_ch[spur]->laeuft();
}

void fruehstartstrafe::nullzeile_eintragen(int spur) {
    liste& runden = um_.bahn.t_liste.at(feld_index(spur));
    if (runden.sichtbar()) {
        kurz_auflisten(runden, 0, 0, um_.einst.trennzeichen);
        runden.markieren(0);
    }
}

void fruehstartstrafe::zeit_tick() {
    um_.zeitgeber.f_straftimer2->intervall(dauer_ms(um_.param.min_rundenzeit_ms));
    if (++verbuesst_ < fruehstart_sperrdauer(um_.einst)) {
        return;
    }
    for (const int spur : alle_spuren) {
        if (gesperrt(spur)) {
            strafen_.spur_strom_an(spur);
            nullzeile_eintragen(spur);
            um_.zeitgeber.f_straftimer2->an();
        }
    }
    verbuesst_ = {};
    um_.zeitgeber.f_straftimer->aus();
}

void fruehstartstrafe::nachsperre_tick() {
    um_.zeitgeber.f_straftimer2->aus();
    for (const int spur : alle_spuren) {
        if (gesperrt(spur)) {
            um_.zustand.spur[spur].fruehstart_sperre = false;
        }
    }
}

}  // namespace tarvel
