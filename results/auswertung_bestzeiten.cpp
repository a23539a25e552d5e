#include <algorithm>

#include "results/auswertung.h"

namespace tarvel {

void auswertung::bestzeiten_pruefen() {
    neue_bestzeit_ = false;
    const spuren<spur_angebot> angebote = bestzeit_angebote(ergebnis());
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const zeit_ms beste = angebote[spur].beste;
        const bool neu = um_.einst.beste_modus != bestzeit_speicherung::aus && angebote[spur].aktiv && beste > 0 &&
                         beste < um_.bestzeiten.beste(spur);
        neue_bestzeit_ = neue_bestzeit_ || neu;
        beste_blink_timer_[i]->aus();
        beste_aus[i].schriftfarbe(std::nullopt);
        if (neu) {
            beste_blink_timer_[i]->an();
        }
    }
}

void auswertung::bestzeiten_vor(aktion danach) {
    nachzaehlen_beenden();  // what is offered and saved from here on stands
    if (neue_bestzeit_) {
        bestzeiten_oeffnen(danach);
    } else {
        ausfuehren(danach);
    }
}

void auswertung::bestzeiten_oeffnen(aktion danach) {
    aktion_nach_bestzeiten_ = danach;
    u_.bestzeiten.oeffnen(bestzeit_angebote(ergebnis()), [this, danach] {
        bestzeiten_pruefen();
        ausfuehren(danach);
    });
}

}  // namespace tarvel
