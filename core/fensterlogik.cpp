#include "core/fensterlogik.h"

#include "core/fensterregister.h"

namespace tarvel {

fensterlogik::fensterlogik(fensterregister& fenster, const dateien& ablage, fenstername kennung)
    : fenster_(fenster), ablage_(ablage), kennung_(kennung) {
    fenster_.anmelden(*this);
}

fensterlogik::~fensterlogik() {
    fenster_.abmelden(*this);
}

void fensterlogik::laden() {
    texte_lesen();
}

void fensterlogik::schliessen() {
    fenster_.entladen(kennung_);
}

void fensterlogik::texte_lesen() {
    for (const sprachliste& texte : sprachdateien()) {
        texte.anwenden(ablage_);
    }
}

}  // namespace tarvel
