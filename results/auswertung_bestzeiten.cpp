#include <algorithm>

#include "results/auswertung.h"

namespace tarvel {

zeit_ms auswertung::beste_auf_der_spur(int spur) const {
    const rundenkonto& konto = um_.zustand.konto;
    if (konto.vor_fortsetzung(spur) == 0) {
        return konto.beste(spur);
    }
    zeit_ms beste = 0;  // of a continued race only the laps that were driven on this lane from line to line
    for (int runde = konto.vor_fortsetzung(spur) + 1; runde <= konto.runden(spur); ++runde) {
        const zeit_ms zeit = konto.rundenzeit(spur, runde);
        if (zeit > 0 && (beste == 0 || zeit < beste)) {
            beste = zeit;
        }
    }
    return beste;
}

void auswertung::bestzeiten_pruefen() {
    neue_bestzeit_ = false;
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const zeit_ms beste = beste_auf_der_spur(spur);
        const bool neu = um_.einst.beste_modus != bestzeit_speicherung::aus && um_.param.spur_aktiv[spur] &&
                         beste > 0 && beste < um_.bestzeiten.beste(spur);
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
    spuren<spur_angebot> angebote;
    for (const int spur : alle_spuren) {
        const rundenkonto& konto = um_.zustand.konto;
        spur_angebot& angebot = angebote[spur];
        angebot.aktiv = um_.param.spur_aktiv[spur];
        angebot.fahrer = um_.param.fahrer_name[spur];
        angebot.fahrzeug = um_.param.fahrzeug_name[spur];
        angebot.beste = angebot.aktiv ? beste_auf_der_spur(spur) : 0;
        for (int runde = konto.vor_fortsetzung(spur) + 1; runde <= konto.runden(spur); ++runde) {
            angebot.runden.push_back(konto.rundenzeit(spur, runde));
        }
    }
    aktion_nach_bestzeiten_ = danach;
    u_.bestzeiten.oeffnen(angebote, [this, danach] {
        bestzeiten_pruefen();
        ausfuehren(danach);
    });
}

}  // namespace tarvel
