#include "race/rundenspeicher.h"

namespace tarvel {

void rundenspeicher::setzen(int spur, int zeile, const runde& neu) {
    if (gibt_es(zeile)) {
        zeilen_[static_cast<std::size_t>(zeile)][spur] = neu;
    }
}

void rundenspeicher::spur_uebernehmen(int spur, const rundenspeicher& quelle, int quellspur, int letzte) {
    for (int zeile = 0; zeile <= letzte; ++zeile) {
        setzen(spur, zeile, quelle.auf(quellspur, zeile));
    }
    leeren(spur, letzte + 1);
}

void rundenspeicher::stempel_verschieben(zeit_ms um) {
    for (eintrag& zeile : zeilen_) {
        for (runde& eine : zeile) {
            if (eine.stempel != 0) {  // 0 is no crossing
                eine.stempel += um;
            }
        }
    }
}

}  // namespace tarvel
