// Penalties of a pause: whose fault it was, and what he serves.
#include "race/chaos.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr zeit_ms straftakt_ms = 12;
constexpr zeit_ms strafe_zugabe_ms = 100;
constexpr double strafe_max_s = 9999;

}  // namespace

void chaos::strafformular_zeigen() {
    if (um_.einst.chaos_strafzeit < 0s) {
        return;
    }
    for (const int spur : alle_spuren) {
        um_.bahn.ch_strafzeit_hacken[spur].sichtbar(um_.param.spur_aktiv[spur]);
        um_.bahn.Label_schuld[spur].sichtbar(um_.param.spur_aktiv[spur]);
    }
    um_.bahn.ch_Text1.laenge_max(4);
    um_.bahn.ch_Text1.text(std::to_string(um_.einst.chaos_strafzeit.count()));
    um_.bahn.ch_strafframe.sichtbar(true);
}

void chaos::strafformular_schliessen() {
    for (haken& kasten : um_.bahn.ch_strafzeit_hacken) {
        kasten.gesetzt(false);
        kasten.sichtbar(false);
    }
    for (bezeichnung& titel : um_.bahn.Label_schuld) {
        titel.sichtbar(false);
    }
    um_.bahn.ch_strafframe.sichtbar(false);
}

void chaos::unverbuesste_abschalten() {
    for (const int spur : alle_spuren) {
        const spur_zustand& zustand = um_.zustand.spur[spur];
        if (zustand.tank_strafe_aktiv || zustand.ch_strafe_rest > 0) {
            t_.strafe.spur_strom_aus(spur);
        }
    }
}

void chaos::strafen_verteilen() {
    const std::int64_t gefragt = um_.protokoll.antwort("strafzeit", [this] {
        return std::bit_cast<std::int64_t>(std::clamp(zahl_lesen(um_.bahn.ch_Text1.text()), 0.0, strafe_max_s));
    });
    const double sekunden = std::clamp(protokoll_bruch(gefragt, 0), 0.0, strafe_max_s);
    const std::int64_t schuldige = um_.protokoll.antwort("schuldige", [this] {
        std::int64_t spuren = 0;
        for (const int spur : alle_spuren) {
            spuren |= um_.bahn.ch_strafzeit_hacken[spur].gesetzt() ? std::int64_t{1} << spur : 0;
        }
        return spuren;
    });
    for (const int spur : alle_spuren) {
        if ((schuldige >> spur & 1) == 0) {
            continue;
        }
        spur_zustand& zustand = um_.zustand.spur[spur];
        if (um_.einst.chaos_strafe_strom) {
            t_.strafe.zeitstrafe(spur, dauer_s(std::lround(sekunden)));
        } else {
            if (!std::exchange(zustand.fruehstart_sperre, true)) {
                zustand.sperre.von = um_.zustand.pause.start + um_.zustand.pause.dauer;
            }
            um_.protokoll.vermerken(vermerk::strafe, {spur, std::llround(sekunden), 1});
            zustand.ch_strafe_rest += std::llround(sekunden * 1000) + strafe_zugabe_ms;
            um_.zeitgeber.straftimer_ch[spur]->an();
            t_.strafe.spur_strom_aus(spur);
        }
    }
}

void chaos::straftimer_ch_tick(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (!um_.zustand.chaos_aktiv) {
        zustand.ch_strafe_rest -= straftakt_ms;
    }
    if (zustand.ch_strafe_rest <= 0) {
        zustand.ch_strafe_rest = 0;
        um_.zeitgeber.straftimer_ch[spur]->aus();
        zustand.fruehstart_sperre = false;
        t_.strafe.spur_strom_an(spur);
    }
}

}  // namespace tarvel
