#include "race/renn_zustand.h"

#include <cmath>

namespace tarvel {

void renn_zustand::stempel_verschieben(zeit_ms um) {
    const auto verschieben = [um](zeit_ms& stempel) {
        if (stempel != 0) {  // 0 is none
            stempel += um;
        }
    };
    konto.stempel_verschieben(um);
    for (spur_zustand& s : spur) {
        for (zeit_ms* stempel : {&s.start_zeit, &s.gezaehlt_bei, &s.tankt_seit, &s.ch_durchfahrt_zeit, &s.sperre.von,
                                 &s.sperre.bis, &s.tank_sperre.von, &s.tank_sperre.bis, &s.tank_halt.von,
                                 &s.tank_halt.bis, &s.prellen_bis, &s.verworfen_bei}) {
            verschieben(*stempel);
        }
    }
    for (zeit_ms* stempel : {&start_zeit, &renn_ende_zeit, &renn_ende_stempel, &pause.start, &pause.schalter_zuletzt,
                             &pause.neustart_verlangt}) {
        verschieben(*stempel);
    }
}

void renn_zustand::pausen_nachmessen(double faktor) {
    const auto messen = [faktor](zeit_ms& gemessen) {
        gemessen = std::llround(static_cast<double>(gemessen) * faktor);
    };
    messen(pause_abzug);
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

}  // namespace tarvel
