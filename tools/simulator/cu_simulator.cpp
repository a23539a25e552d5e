// A Control Unit with cars on the track, on a pseudo-terminal or a serial port.

#include "tools/simulator/control_unit.h"
#include "tools/simulator/kommandozeile.h"
#include "tools/simulator/lauf.h"

namespace {

using namespace tarvel::simulator;

void eigene_optionen(kommandozeile& zeile, flotte& wagen, control_unit_einstellung& cu, bool& ohne_tank,
                     bool& ohne_sensor) {
    zeile.zahl("--verbrauch", "STUFEN", 0, 15, "Kraftstoff einer Runde (1)",
               [&](std::int64_t n) { wagen.je_wagen.verbrauch = static_cast<int>(n); });
    zeile.zahl("--tankvoll", "STUFEN", 1, 15, "Kraftstoff eines vollen Tanks (14)",
               [&](std::int64_t n) { cu.tank_voll = static_cast<int>(n); });
    zeile.haken("--ohne-tank", "kein Kraftstoff wird verbraucht", ohne_tank);
    zeile.liste("--taste", "SEKUNDE[,SEKUNDE...]", 0, 86400, "dann wird die Starttaste am Gerät gedrückt",
                [&](const auto& n) {
                    for (const std::int64_t sekunde : n) {
                        cu.tastendruecke.push_back(sekunde * 1000);
                    }
                });
    zeile.zahl("--lampentakt", "MS", 1, 60000, "von Lampe zu Lampe der Startampel (1000)",
               [&](std::int64_t n) { cu.lampentakt = n; });
    zeile.haken("--ohne-sensor", "Überfahrten ohne Sensornummer, 12 Zeichen", ohne_sensor);
    zeile.haken("--status17", "Status mit 17 Zeichen", cu.status_kurz);
    zeile.haken("--zaehlerbox", "mit Rundenzählerbox", cu.zaehlerbox);
    zeile.zahl("--vorspann", "PROMILLE", 0, 1000, "so viele von tausend Antworten beginnen mit # oder ?# (0)",
               [&](std::int64_t n) { cu.vorspann_promille = static_cast<int>(n); });
    zeile.zahl("--stoerung", "PROMILLE", 0, 1000, "so viele von tausend Zeichen verfälscht die Leitung (0)",
               [&](std::int64_t n) { cu.stoerung_promille = static_cast<int>(n); });
}

}  // namespace

int main(int argc, char** argv) {
    kommandozeile zeile(
        "cu_simulator spielt eine Carrera Control Unit mit fahrenden Wagen.\n"
        "Zum Rennen startet das Programm oder die Starttaste (--taste), zweimal gedrückt.");
    flotte wagen;
    wagen.spuren = 6;
    control_unit_einstellung cu;
    lauf_einstellung lauf;
    bool ohne_tank = false;
    bool ohne_sensor = false;
    gemeinsame_optionen(zeile, 8, wagen, cu.rennen, lauf);
    eigene_optionen(zeile, wagen, cu, ohne_tank, ohne_sensor);
    if (!zeile.lesen(argc, argv)) {
        return 2;
    }
    if (zeile.hilfe_gewuenscht()) {
        zeile.hilfe_zeigen();
        return 0;
    }
    cu.rennen.wagen = wagen.wagen();
    cu.tanken = !ohne_tank;
    cu.mit_sensor = !ohne_sensor;
    control_unit geraet(cu);
    return laufen(geraet, lauf);
}
