#include "race/zeitfuehrung.h"

#include <algorithm>

#include "race/rueckstand.h"
#include "race/rundenkonto.h"

namespace tarvel {
namespace {

zeit_ms zeit_bis(const rundenkonto& konto, int spur, int runden) {
    zeit_ms zeit = 0;
    for (int runde = 1; runde <= runden; ++runde) {
        zeit += konto.rundenzeit(spur, runde);
    }
    return zeit;
}

}  // namespace

int vorn_nach_zeit(const rundenkonto& konto, int fuehrende, const spuren<bool>& dabei, const spuren<zeit_ms>& strafe) {
    int vorn = 0;
    zeit_ms vorsprung = 0;
    for (const int spur : alle_spuren) {
        if (fuehrende == 0 || !dabei[spur] || spur == fuehrende) {
            continue;
        }
        const int gemeinsam = std::min(konto.runden(spur), konto.runden(fuehrende));
        const rueckstand an_der_linie = rueckstand_an_der_linie(konto, spur, fuehrende, false);
        if (gemeinsam <= 0 || !an_der_linie.bekannt || an_der_linie.runden > 0) {
            continue;
        }
        const zeit_ms seiner =
            zeit_bis(konto, fuehrende, gemeinsam) + strafe[fuehrende] - zeit_bis(konto, spur, gemeinsam) - strafe[spur];
        if (seiner > vorsprung) {
            vorsprung = seiner;
            vorn = spur;
        }
    }
    return vorn;
}

}  // namespace tarvel
