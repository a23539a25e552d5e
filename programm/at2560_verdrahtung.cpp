#include "programm/at2560_verdrahtung.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "optionen/einstellungsfenster.h"
#include "programm/einstellungspflege.h"
#include "programm/messgeraete.h"

namespace tarvel {

at2560_verdrahtung::at2560_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : geraet_mit_fenster(um, alle),
      at({um.einst, um.txt, um.ablage, um.ereignisse, um.rennen.zeit, um.dienste.uhr, um.dienste.zeitgeber,
          um.dienste.serienports, um.dienste.meldungen, alle.rennverbindung(), alle}),
      uart_einstellungen({um.einst, um.txt, um.ablage, um.fenster, um.dienste.meldungen, um.dienste.zeitgeber,
                          um.dienste.serienports}),
      uart_profildatei({um.ablage, um.txt, um.fenster, um.dienste.meldungen}),
      uart_probe({um.txt, um.ablage, um.fenster}, um.dienste) {
    fenster_verbinden(um);
    uart_einstellungen.zugang = uart_probe.zugang = this;
    uart_profildatei.gewaehlt = [this](const std::string& name) {
        einst_.uart.uart_datei = name;
        at.profil_wechseln();
        einstellungen_speichern();
    };
}

void at2560_verdrahtung::fenster_verbinden(const geraete_umgebung& um) {
    const auto datei_waehlen = [this, &einst = um.einst] { uart_profildatei.oeffnen(einst.uart.uart_datei); };
    um.form1.befehlsdatei_waehlen = datei_waehlen;
    um.einstellungsfenster.aktion_verbinden("uart_datei_waehlen", datei_waehlen);
    um.einstellungsfenster.aktion_verbinden("uart_einrichten",
                                            [&optionen = um.einstellungsfenster, &fenster = um.fenster] {
                                                optionen.uart_portwerte_uebernehmen();
                                                fenster.zeigen(fenstername::UART_einstellungen, anzeige_art::modal);
                                            });
    um.einstellungsfenster.aktion_verbinden("uart_pruefen", [this, &optionen = um.einstellungsfenster,
                                                             &fenster = um.fenster] {
        optionen.uart_portwerte_uebernehmen();
        uart_probe.anschluss = einst_.uart;
        uart_probe.anschluss.uart_port = std::max(std::get<auswahl>(optionen.zeile("uart_port").element).platz(), 0);
        uart_probe.anschluss.uart_datei = std::get<feld>(optionen.zeile("uart_datei").element).text();
        fenster.zeigen(fenstername::UART_probe, anzeige_art::modal);
    });
}

bool at2560_verdrahtung::einstellungen_speichern() {
    const bool gut = pflege_.speichern_mit_feldern();
    if (gut) {
        optionen_.uart_gesichert();
    }
    optionen_.zeilen_zeigen(std::to_array<std::string_view>({"uart_port", "uart_datei"}));
    return gut;
}

}  // namespace tarvel
