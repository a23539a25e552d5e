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
        beste_aus[i].tipp(neu ? wort_.neue_bestzeit + "\n" + wort_.tempo : wort_.tempo);
        if (neu) {
            beste_blink_timer_[i]->an();
        }
    }
}

void auswertung::bestzeiten_vor(aktion danach, bool von_selbst) {
    nachzaehlen_beenden();  // what is offered and saved from here on stands
    if (neue_bestzeit_) {
        bestzeiten_oeffnen(danach, von_selbst);
    } else {
        ausfuehren(danach);
    }
}

void auswertung::bestzeiten_oeffnen(aktion danach, bool von_selbst) {
    aktion_nach_bestzeiten_ = danach;
    const auto fortfahren = [this, danach] {
        bestzeiten_pruefen();
        ausfuehren(danach);
    };
    u_.bestzeiten.oeffnen(bestzeit_angebote(ergebnis()), fortfahren, von_selbst);
}

}  // namespace tarvel
