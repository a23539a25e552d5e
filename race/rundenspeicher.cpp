#include "race/rundenspeicher.h"

namespace tarvel {

void rundenspeicher::setzen(int spur, int zeile, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause,
                            bool nachgetragen) {
    if (gibt_es(zeile)) {
        eintrag& ziel = zeilen_[static_cast<std::size_t>(zeile)];
        ziel.rundenzeit[spur] = rundenzeit;
        ziel.stempel[spur] = stempel;
        ziel.pause[spur] = pause;
        ziel.nachgetragen[spur] = nachgetragen;
    }
}

void rundenspeicher::zeile_kopieren(int spur, int von, int nach) {
    setzen(spur, nach, rundenzeit(spur, von), stempel(spur, von), pause(spur, von), nachgetragen(spur, von));
}

void rundenspeicher::spur_uebernehmen(int spur, const rundenspeicher& quelle, int quellspur, int letzte) {
    for (int zeile = 0; zeile <= letzte; ++zeile) {
        setzen(spur, zeile, quelle.rundenzeit(quellspur, zeile), quelle.stempel(quellspur, zeile),
               quelle.pause(quellspur, zeile), quelle.nachgetragen(quellspur, zeile));
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
