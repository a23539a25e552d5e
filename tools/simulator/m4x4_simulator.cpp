// A 4x4 USB module with cars on the track, on a pseudo-terminal or a serial port.

#include "tools/simulator/kommandozeile.h"
#include "tools/simulator/lauf.h"
#include "tools/simulator/m4x4.h"

int main(int argc, char** argv) {
    using namespace tarvel::simulator;
    kommandozeile zeile(
        "m4x4_simulator spielt ein Modul 4x4 USB mit fahrenden Wagen. Den Modus gibt das Programm vor: im Kontakt\n"
        "Modus fahren die Wagen auf eigenen Spuren, sonst alle auf einer digitalen Bahn.");
    flotte wagen;
    m4x4_einstellung modul;
    lauf_einstellung lauf;
    lauf.ort.baud = 9600;
    gemeinsame_optionen(zeile, m4x4::autos, wagen, modul.rennen, lauf);
    zeile.haken("--spuren6", "Ausgänge 5 und 6 schalten den Strom der Spuren 5 und 6", modul.spuren_6);
    bool zwei_spuren = false;
    zeile.haken("--zweispurig",
                "Kontakte 1, 2 Ziel, 3, 4 Box ein, 5, 6 Box aus, 7 Zwischenzeit Spur 1, 8 Chaostaster Fahrer 2",
                zwei_spuren);
    zeile.haken("--strom-invers", "die Spur hat Strom, solange ihr Ausgang aus ist", modul.strom_invers);
    zeile.haken("--stumm", "das Modul meldet sich nicht von selbst", modul.stumm);
    zeile.zahl("--bootzeit", "MS", 0, 60000, "so lange hört das Modul nach dem Einstecken nichts (0)",
               [&](std::int64_t n) { modul.bootzeit = n; });
    zeile.zahl("--antippen", "MS", 0, 60000, "vor dem Start löst jemand die Sensoren nacheinander aus (0, nie)",
               [&](std::int64_t n) { modul.antippen = n; });
    zeile.text("--version", "TEXT", "Antwort auf die Frage nach der Firmware", modul.version);
    if (!zeile.lesen(argc, argv)) {
        return 2;
    }
    if (zeile.hilfe_gewuenscht()) {
        zeile.hilfe_zeigen();
        return 0;
    }
    modul.rennen.wagen = wagen.wagen();
    modul.kontakte = zwei_spuren ? m4x4_zwei_spuren : m4x4_vier_spuren;
    m4x4 geraet(modul);
    return laufen(geraet, lauf);
}
