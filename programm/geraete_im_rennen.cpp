#include "programm/geraete_im_rennen.h"

namespace tarvel {

bool geraete_im_rennen::rennen_ruht() const {
    return fenster_.ist_offen(fenstername::bahn1) && !fenster_.ist_offen(fenstername::auswertung) &&
           r_.zustand.rennen_beendet && r_.bahn1.Command1.bedienbar();
}

void geraete_im_rennen::stempel_verschieben(zeit_ms um) {
    r_.zustand.stempel_verschieben(um);
    r_.umgebung.ereignisse.stempel_verschieben(um);
}

void geraete_im_rennen::tankflanken_auswerten() {
    r_.tanken.sensoren_nachhalten();
    if (!r_.umgebung.ampel_laeuft()) {  // else a tank sensor may be what sees a false start
        r_.tanken.tank_kontakte_auswerten();
    }
}

void geraete_im_rennen::tankfunktion(bool an) {
    if (!fenster_.ist_offen(fenstername::bahn1)) {
        form1_.t_aktiv.gesetzt(an);
        form1_.tankoptionen_zeigen();
    }
}

}  // namespace tarvel
