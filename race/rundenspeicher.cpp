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

}  // namespace tarvel
