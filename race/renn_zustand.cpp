#include "race/renn_zustand.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace tarvel {

namespace {

void verschieben(std::initializer_list<zeit_ms*> alle, zeit_ms um) {
    for (zeit_ms* stempel : alle) {
        if (*stempel != 0) {  // 0 is none
            *stempel += um;
        }
    }
}

/// What no crossing has stamped.
void eigene_verschieben(renn_zustand& z, zeit_ms um) {
    for (spur_zustand& s : z.spur) {
        verschieben({&s.tankt_seit, &s.sperre.von, &s.sperre.bis, &s.tank_sperre.von, &s.tank_sperre.bis,
                     &s.tank_halt.von, &s.tank_halt.bis},
                    um);
    }
    verschieben({&z.start_zeit, &z.renn_ende_zeit, &z.renn_ende_stempel, &z.pause.start, &z.pause.schalter_zuletzt,
                 &z.pause.neustart_verlangt},
                um);
    for (rennpause& p : z.unterbrechungen) {
        verschieben({&p.von, &p.bis}, um);
    }
}

}  // namespace

zeit_ms renn_zustand::rundenbeginn(int nummer) const {
    for (int zeile = konto.runden(nummer); zeile >= 0; --zeile) {
        if (const zeit_ms stempel = konto.stempel(nummer, zeile); stempel != 0) {
            return stempel;
        }
    }
    return spur[nummer].start_zeit;
}

void renn_zustand::stempel_verschieben(zeit_ms um) {
    konto.stempel_verschieben(um);
    for (spur_zustand& s : spur) {
        verschieben({&s.start_zeit, &s.gezaehlt_bei, &s.ch_durchfahrt_zeit, &s.prellen_bis, &s.verworfen_bei}, um);
    }
    eigene_verschieben(*this, um);
}

void renn_zustand::uhr_nachruecken(zeit_ms um) {
    for (const int nummer : alle_spuren) {
        spur_zustand& s = spur[nummer];
        s.start_zeit += s.start_zeit == start_zeit ? um : 0;  // else a crossing has begun the first lap
        const zeit_ms erste_ab = konto.stempel(nummer, 0);
        const bool von_der_ampel = konto.runden(nummer) < 0 || erste_ab == start_zeit;  // a false start counts from 0
        if (erste_ab != 0 && von_der_ampel) {
            konto.start_stempeln(nummer, erste_ab + um);
        }
    }
    konto.ausfaelle_verschieben(um);
    eigene_verschieben(*this, um);
}

void renn_zustand::pausen_nachmessen(double faktor) {
    constexpr zeit_ms alles = std::numeric_limits<zeit_ms>::max() / 2;  // more, and a pause below 0 would overflow
    const zeit_ms messbar = std::max<zeit_ms>(pausen_messbar.value_or(alles), 0);
    const zeit_ms fest = std::max<zeit_ms>(pause_abzug - messbar, 0);
    const auto ab_messen = [faktor](zeit_ms& gemessen, zeit_ms ab) {
        gemessen = ab + std::llround(static_cast<double>(gemessen - ab) * faktor);
    };
    const auto messen = [&](zeit_ms& gemessen) { ab_messen(gemessen, std::max<zeit_ms>(gemessen - messbar, 0)); };
    ab_messen(pause_abzug, fest);
    if (pausen_bis_ende) {
        ab_messen(*pausen_bis_ende, std::min(fest, *pausen_bis_ende));
    }
    if (pausen_messbar && *pausen_messbar > 0) {
        ab_messen(*pausen_messbar, 0);
    }
    messen(pause.dauer);
    for (const int nummer : alle_spuren) {
        spur_zustand& s = spur[nummer];
        messen(s.pause_abzug);
        const zeit_ms vorher = s.pause_im_stempel;
        messen(s.pause_im_stempel);
        s.gezaehlt_bei += s.pause_im_stempel - vorher;
        konto.letzten_stempel_verschieben(nummer, s.pause_im_stempel - vorher);
    }
}

void renn_zustand::pausen_festhalten(zeit_ms stempel) {
    const zeit_ms dahinter = pause.start + (chaos_aktiv ? 0 : pause.dauer) - stempel;
    pausen_messbar = chaos_aktiv ? std::min<zeit_ms>(dahinter, 0)
                                 : std::clamp<zeit_ms>(dahinter, 0, std::max<zeit_ms>(pause_abzug, 0));
}

}  // namespace tarvel
