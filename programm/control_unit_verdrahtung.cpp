#include "programm/control_unit_verdrahtung.h"

#include "programm/messgeraete.h"
#include "race/rennen.h"

namespace tarvel {

control_unit_verdrahtung::control_unit_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      cu({um.einst, um.rennen.umgebung.param, um.txt, um.ereignisse, um.rennen.zeit, alle.rennverbindung(), alle},
         um.dienste),
      cu_eigenschaften({um.einst, um.txt, um.ablage, um.fenster}, um.dienste) {
    um.form1.cu_oeffnen = [&fenster = um.fenster] {
        fenster.zeigen(fenstername::cu_eigenschaften, anzeige_art::modal);
    };
    cu_eigenschaften.zugang = this;
}

void control_unit_verdrahtung::geraet_verbinden() {
    if (einst_.hardware.hw_cu) {
        cu.oeffnen();
    }
}

}  // namespace tarvel
