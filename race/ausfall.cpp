#include "race/ausfall.h"

namespace tarvel {

ausfall::ausfall(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    ausfall_ = um_.protokoll.eingang("ausfall", 1, [this](const mitschrift::werte& w) {
        eintreten(w[0]);
        um_.quellen.kann();  // told here, and not where only a window asks that stays shut while the log is read
    });
}

void ausfall::eintreten(zeit_ms stempel) {
    if (um_.zustand.rennen_beendet || um_.ampel_laeuft()) {
        return;
    }
    if (um_.zustand.fortsetzung_wartet) {
        um_.fenster.entladen(fenstername::k_ampel);  // its light had perhaps begun
        um_.fenster.zeigen(fenstername::k_ampel);
        return;
    }
    if (!um_.zustand.chaos_aktiv) {
        um_.ereignisse.messzeit = stempel;
        t_.pause.chaos_nachholen();
        t_.zaehlung.runden_auswerten();  // what had come in counts
        for (const int spur : alle_spuren) {
            um_.zustand.konto.ausgefallen(spur, stempel);
        }
    }
    t_.pause.nach_ausfall(stempel);
}

}  // namespace tarvel
