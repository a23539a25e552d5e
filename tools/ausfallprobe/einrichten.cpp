// Lays the settings of a race out in a program folder, as if they had been saved there:
//   ausfall_einrichten ORDNER cu|at2560|iow|lpt|4x4|rc|tk RUNDEN

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "core/nebendateien.h"
#include "platform/stille_maschine.h"
#include "programm/programm.h"
#include "programm/rennprotokoll.h"

namespace tarvel {
namespace {

constexpr int com = 7;

struct wahl {
    void (*waehlen)(einstellungen&);
    int spuren;
};

const std::map<std::string, wahl>& geraete() {
    static const std::map<std::string, wahl> alle{
        {"cu",
         {[](einstellungen& e) {
              e.hardware.hw_cu = true;
              e.cu.anschluss.cu_modus = com;
              e.cu.cu_sondermodus = true;
          },
          6}},
        {"at2560",
         {[](einstellungen& e) {
              e.hardware.hw_uart = true;
              e.uart.uart_port = com;
          },
          6}},
        {"iow", {[](einstellungen& e) { e.hardware.hw_iow = true; }, 4}},
        {"lpt", {[](einstellungen& e) { e.hardware.hw_lpt = true; }, 4}},
        {"4x4", {[](einstellungen& e) { e.hardware.hw_4x4_modus = modul_4x4::modus_1; }, 6}},
        {"rc",
         {[](einstellungen& e) {
              e.hardware.hw_race_control = true;
              e.rc.anschluss.rc_com_port = "COM7";
          },
          4}},
        {"tk", {[](einstellungen& e) { e.hardware.hw_timekeeper = true; }, 4}}};
    return alle;
}

bool einrichten(const std::string& ordner, const wahl& geraet, const char* runden) {
    stille_maschine maschine(ordner);
    programm p(maschine.dienste());
    p.rennprotokoll.fuehren = false;
    p.starten();
    p.einst.hardware = {};
    geraet.waehlen(p.einst);
    p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    p.einst.fruehstart_option = fruehstart_aktion::ohne;
    p.einst.beste_modus = bestzeit_speicherung::aus;
    p.einst.sound_an = false;
    p.form1.rennart.eingeben(p.txt.text_runden);
    p.form1.renndauer.eingeben(runden);
    p.form1.wertmin.eingeben("0,1");
    for (const int spur : alle_spuren) {
        haken& fahrt_mit = p.form1.spur.at(feld_index(spur));
        if (fahrt_mit.gesetzt() != (spur <= geraet.spuren)) {
            fahrt_mit.umschalten();
        }
    }
    return p.ablage.zeilen_schreiben(standard_einstellungen, p.datei.schreiben());
}

}  // namespace
}  // namespace tarvel

int main(int argc, char** argv) {
    const auto geraet = argc == 4 ? tarvel::geraete().find(argv[2]) : tarvel::geraete().end();
    if (geraet == tarvel::geraete().end()) {
        std::fprintf(stderr, "ausfall_einrichten ORDNER cu|at2560|iow|lpt|4x4|rc|tk RUNDEN\n");
        return 2;
    }
    return tarvel::einrichten(argv[1], geraet->second, argv[3]) ? 0 : 1;
}
