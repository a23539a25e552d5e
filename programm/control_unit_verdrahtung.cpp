#include "programm/control_unit_verdrahtung.h"

#include <array>
#include <string_view>

#include "optionen/einstellungsfenster.h"
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
    optionen_.aktion_verbinden("cu_einrichten", [this, &fenster = um.fenster] {
        cu_eigenschaften.port_vorgewaehlt = std::get<auswahl>(optionen_.zeile("cu_comport").element).platz();
        fenster.zeigen(fenstername::cu_eigenschaften, anzeige_art::modal);
    });
    cu_eigenschaften.zugang = this;
}

bool control_unit_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    optionen_.zeilen_zeigen(std::to_array<std::string_view>(
        {"cu_comport", "opt_cu_tankautomatik", "opt_cu_prgstart", "opt_cu_alterRZ", "cu_spur_wert_1", "cu_spur_wert_2",
         "cu_spur_wert_3", "cu_spur_wert_4", "cu_spur_wert_5", "cu_spur_wert_6"}));
    return gut;
}

void control_unit_verdrahtung::geraet_verbinden() {
    if (einst_.hardware.hw_cu) {
        cu.oeffnen();
    }
}

}  // namespace tarvel
