#include "programm/at2560_verdrahtung.h"

#include "optionen/einstellungsfenster.h"
#include "programm/messgeraete.h"

namespace tarvel {

at2560_verdrahtung::at2560_verdrahtung(const geraete_umgebung& um, messgeraete& alle)
    : at({um.einst, um.txt, um.ablage, um.ereignisse, um.dienste.uhr, um.dienste.zeitgeber, um.dienste.serienports,
          um.dienste.meldungen, alle.rennverbindung(), alle}),
      uart_einstellungen({um.einst, um.txt, um.ablage, um.fenster, um.dienste.meldungen, um.dienste.zeitgeber,
                          um.dienste.serienports}),
      uart_profildatei({um.ablage, um.txt, um.fenster, um.dienste.meldungen}) {
    fenster_verbinden(um);
    assistent_verbinden(um, alle);
}

void at2560_verdrahtung::fenster_verbinden(const geraete_umgebung& um) {
    const auto datei_waehlen = [this, &einst = um.einst] { uart_profildatei.oeffnen(einst.uart.uart_datei); };
    um.form1.befehlsdatei_waehlen = datei_waehlen;
    um.einstellungsfenster.uart_datei_waehlen = datei_waehlen;
    um.einstellungsfenster.uart_einrichten = [&optionen = um.einstellungsfenster, &fenster = um.fenster] {
        optionen.uart_portwerte_uebernehmen();
        fenster.zeigen(fenstername::UART_einstellungen, anzeige_art::modal);
    };
}

void at2560_verdrahtung::assistent_verbinden(const geraete_umgebung& um, messgeraete& alle) {
    const auto merken = [&optionen = um.einstellungsfenster, speichern = um.einstellungen_speichern] {
        speichern();
        optionen.uart_zeigen();
    };
    uart_einstellungen.geraet_trennen = [this] { at.schliessen(); };
    uart_einstellungen.geraet_verbinden = [&einst = um.einst, &alle] {
        if (einst.hardware.hw_uart) {
            alle.hardware_starten(false);
        }
    };
    uart_einstellungen.einstellungen_speichern = merken;
    uart_profildatei.gewaehlt = [this, &einst = um.einst, merken](const std::string& name) {
        einst.uart.uart_datei = name;
        at.profil_wechseln();
        merken();
    };
}

}  // namespace tarvel
