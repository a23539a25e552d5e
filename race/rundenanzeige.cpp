#include "race/rundenanzeige.h"

#include <string>

#include "core/zeit.h"

namespace tarvel {

void rundenanzeige::runde_melden(int spur, zeit_ms zeit) {
    rundenkonto& konto = um_.zustand.konto;
    const int runde = konto.runden(spur);
    const std::string zeit_text = zeit_formatieren(zeit, false, um_.einst.trennzeichen);
    if (runde > 0) {
        um_.sounds.spielen(sound::runde);
        if (konto.beste_werten(spur, konto.rundenzeit(spur, runde)) && runde > um_.einst.snd_beste_runde) {
            um_.sounds.spielen(sound::beste_runde + spur);
        }
        um_.bahn.lrunde[spur].text(zeit_text);
        beste_zeigen(spur);
    }
    liste& runden = um_.bahn.t_liste.at(feld_index(spur));
    if (runden.sichtbar()) {
        runden.hinzufuegen(" " + std::to_string(runde) + ". " + zeit_text);
        runden.markieren(static_cast<int>(runden.zeilen().size()) - 1);
    }
}

void rundenanzeige::beste_zeigen(int spur) {
    um_.bahn.brunde[spur].text(zeit_formatieren(um_.zustand.konto.beste(spur), false, um_.einst.trennzeichen));
}

}  // namespace tarvel
