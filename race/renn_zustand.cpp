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
        for (zeit_ms* stempel : {&s.start_zeit, &s.gezaehlt_bei, &s.tankt_seit, &s.ch_durchfahrt_zeit}) {
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
    for (spur_zustand& s : spur) {
        messen(s.pause_abzug);
    }
}

}  // namespace tarvel
