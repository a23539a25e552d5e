#include "programm/programm.h"

namespace tarvel {

void programm::uart_verbinden() {
    const auto merken = [this] {
        form1.vor_dem_speichern_pruefen();  // a field out of its limits would make the file invalid
        einstellungsfenster.einstellungen_speichern();
        einstellungsfenster.uart_zeigen();
    };
    const auto datei_waehlen = [this] { uart_profildatei.oeffnen(einst.uart.uart_datei); };
    form1.befehlsdatei_waehlen = datei_waehlen;
    einstellungsfenster.uart_datei_waehlen = datei_waehlen;
    einstellungsfenster.uart_einrichten = [this] {
        einstellungsfenster.uart_portwerte_uebernehmen();
        fenster.zeigen("UART_einstellungen", anzeige_art::modal);
    };
    uart_einstellungen.geraet_trennen = [this] { geraete.at.schliessen(); };
    uart_einstellungen.geraet_verbinden = [this] {
        if (einst.hardware.hw_uart) {
            geraete.hardware_starten(false);
        }
    };
    uart_einstellungen.einstellungen_speichern = merken;
    uart_profildatei.gewaehlt = [this, merken](const std::string& name) {
        einst.uart.uart_datei = name;
        geraete.at.profil_wechseln();
        merken();
    };
}

}  // namespace tarvel
