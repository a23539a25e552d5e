#include "programm/race_control_verdrahtung.h"

#include <array>
#include <string_view>

#include "core/form1.h"
#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"

namespace tarvel {

race_control_verdrahtung::race_control_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      verbindung(um.dienste.serienports, um.dienste.zeitgeber, um.dienste.bibliotheken),
      box({um.einst, um.txt, um.ereignisse, um.rennen.zeit, alle.rennverbindung(), alle, um.dienste.uhr,
           um.dienste.zeitgeber, um.dienste.meldungen},
          verbindung),
      rc_einstellungen({um.einst, um.txt, um.ablage, um.fenster, um.dienste.uhr, um.dienste.zeitgeber,
                        um.dienste.serienports, um.dienste.meldungen},
                       verbindung),
      form1_(um.form1) {
    rc_einstellungen.zugang = this;
    optionen_.aktion_verbinden("rc_einrichten", [this] {
        rc_einstellungen.oeffnen(std::get<auswahl>(optionen_.zeile("selComPort").element).text());
    });
}

void race_control_verdrahtung::geraet_verbinden() {
    if (!einst_.hardware.hw_race_control) {
        verbindung.schliessen();
    }
    geraet_mit_fenster::geraet_verbinden();
}

bool race_control_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    form1_.leihspuren_sperren();
    optionen_.zeilen_zeigen(std::to_array<std::string_view>(
        {"selComPort", "selSpur_1", "selSpur_2", "selSpur_3", "selSpur_4", "check_rctank", "check_rcziel"}));
    return gut;
}

}  // namespace tarvel
