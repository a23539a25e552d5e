#include "race/rundenspeicher.h"

namespace tarvel {

void rundenspeicher::setzen(int spur, int zeile, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause) {
    if (gibt_es(zeile)) {
        eintrag& ziel = zeilen_[static_cast<std::size_t>(zeile)];
        ziel.rundenzeit[spur] = rundenzeit;
        ziel.stempel[spur] = stempel;
        ziel.pause[spur] = pause;
    }
}

void rundenspeicher::zeile_kopieren(int spur, int von, int nach) {
    setzen(spur, nach, rundenzeit(spur, von), stempel(spur, von), pause(spur, von));
}

void rundenspeicher::zeile_verschmelzen(int spur, int zeile, int letzte) {
    setzen(spur, zeile - 1, rundenzeit(spur, zeile - 1) + rundenzeit(spur, zeile), stempel(spur, zeile),
           pause(spur, zeile - 1) + pause(spur, zeile));
    for (int ziel = zeile; ziel < letzte; ++ziel) {
        zeile_kopieren(spur, ziel + 1, ziel);
    }
    leeren(spur, letzte);
}

void rundenspeicher::spur_uebernehmen(int spur, const rundenspeicher& quelle, int quellspur, int letzte) {
    for (int zeile = 0; zeile <= letzte; ++zeile) {
        setzen(spur, zeile, quelle.rundenzeit(quellspur, zeile), quelle.stempel(quellspur, zeile),
               quelle.pause(quellspur, zeile));
    }
    leeren(spur, letzte + 1);
}

void rundenspeicher::stempel_verschieben(zeit_ms um) {
    for (eintrag& zeile : zeilen_) {
        for (zeit_ms& stempel : zeile.stempel) {
            if (stempel != 0) {  // 0 is no crossing
                stempel += um;
            }
        }
    }
}

}  // namespace tarvel
