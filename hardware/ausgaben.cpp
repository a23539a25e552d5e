#include "hardware/ausgaben.h"

namespace tarvel {

void ausgaben::ruhezustand() {
    relais_off(0);
    ampelnRoff(0);
    ampelnGRon();
}

void ausgaben::schalten(const schaltung& befehl) {
    for (ausgabe_geraet* geraet : geraete_) {
        geraet->schalten(befehl);
    }
}

}  // namespace tarvel
