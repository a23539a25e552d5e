// An AT-2560 with cars on the track, on a pseudo-terminal or a serial port.

#include <cstdio>
#include <fstream>
#include <string>

#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/kommandozeile.h"
#include "tools/simulator/lauf.h"

namespace {

using namespace tarvel::simulator;

void eigene_optionen(kommandozeile& zeile, at2560_einstellung& at, std::string& profil) {
    zeile.text("--profil", "DATEI", "schreibt die Befehlsdatei mit allen Sensoren und endet", profil);
    zeile.haken("--chaos-gemeinsam", "Fahrer drücken den gemeinsamen Chaostaster", at.chaos_gemeinsam);
    zeile.haken("--strom-invers", "die Spur hat Strom, solange ihr Ausgang aus ist", at.strom_invers);
    zeile.zahl("--bootzeit", "MS", 0, 60000, "so lange hört das Gerät nach dem Öffnen nichts (1500)",
               [&](std::int64_t n) { at.bootzeit = n; });
    zeile.zahl("--antippen", "MS", 0, 60000,
               "vor dem Start löst jemand die Sensoren des IS-Befehls nacheinander aus (0, nie)",
               [&](std::int64_t n) { at.antippen = n; });
    zeile.haken("--zeilenende", "hinter jeder Meldung des Geräts CR und LF", at.zeilenende);
    zeile.text("--seriennummer", "TEXT", "Antwort auf die Frage danach", at.seriennummer);
}

int profil_schreiben(const std::string& name) {
    std::ofstream datei(name, std::ios::binary);
    datei << at2560_profil();
    datei.close();
    if (!datei) {
        std::fprintf(stderr, "%s kann nicht geschrieben werden.\n", name.c_str());
        return 1;
    }
    std::printf("%s geschrieben. Im Programmordner heißt sie tvk_at2560.uart.\n", name.c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    kommandozeile zeile(
        "at2560_simulator spielt ein Zeitmessgerät AT-2560 USB mit fahrenden Wagen.\n"
        "Ohne die Befehlsdatei von --profil kennt das Programm nur die Ziellinien der Spuren 1 bis 4.");
    flotte wagen;
    at2560_einstellung at;
    at.bootzeit = 1500;
    lauf_einstellung lauf;
    lauf.ort.baud = 57600;
    std::string profil;
    gemeinsame_optionen(zeile, at2560::spuren, wagen, at.rennen, lauf);
    eigene_optionen(zeile, at, profil);
    if (!zeile.lesen(argc, argv)) {
        return 2;
    }
    if (zeile.hilfe_gewuenscht()) {
        zeile.hilfe_zeigen();
        return 0;
    }
    if (!profil.empty()) {
        return profil_schreiben(profil);
    }
    at.rennen.wagen = wagen.wagen();
    at2560 geraet(at);
    return laufen(geraet, lauf);
}
