#include "programm/iow_verdrahtung.h"

#include <array>
#include <string_view>

#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"

namespace tarvel {

iow_verdrahtung::iow_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      iow({um.einst, um.txt, um.ablage, um.ereignisse, um.ausgaben, um.dienste.zeitgeber, um.dienste.abtaster,
           um.dienste.bibliotheken, um.dienste.meldungen, alle.rennverbindung(), alle}),
      usbtest({um.einst, um.txt, um.ablage, um.fenster, um.dienste.meldungen, um.dienste.zeitgeber, um.dienste.abtaster,
               iow.bibliothek()}) {
    usbtest.zugang = this;
    um.einstellungsfenster.aktion_verbinden(
        "iow_einrichten", [&fenster = um.fenster] { fenster.zeigen(fenstername::usbtest, anzeige_art::modal); });
}

void iow_verdrahtung::geraet_verbinden() {
    geraet_mit_fenster::geraet_verbinden();
    if (!einst_.hardware.hw_iow) {
        iow.nebenher_oeffnen();
    }
}

bool iow_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    optionen_.zeilen_zeigen(std::to_array<std::string_view>({"iow_datei"}));
    return gut;
}

}  // namespace tarvel
