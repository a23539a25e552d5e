// A Race Control box with cars on the track, on a pseudo-terminal or a serial port. The substitute of the vendor's
// library understands it, the vendor's own does not.

#include <atomic>
#include <iostream>
#include <string>
#include <thread>

#include "tools/ersatz/race_control/box.h"
#include "tools/simulator/kommandozeile.h"
#include "tools/simulator/lauf.h"

namespace {

using namespace tarvel::simulator;

/// What the operator types, line by line: the box sees no start light, so he is its eyes.
enum class zuruf { keiner, rot, los, aufstellen, neustart };

std::atomic<zuruf> gerufen{zuruf::keiner};

void zuhoeren() {
    for (std::string zeile; std::getline(std::cin, zeile);) {
        gerufen = zeile == "rot"          ? zuruf::rot
                  : zeile == "aufstellen" ? zuruf::aufstellen
                  : zeile == "neustart"   ? zuruf::neustart
                                          : zuruf::los;
    }
}

void folgen(rc_box& box) {
    switch (gerufen.exchange(zuruf::keiner)) {
        case zuruf::keiner:
            return;
        case zuruf::rot:
            box.rot();
            return;
        case zuruf::los:
            box.los();
            return;
        case zuruf::aufstellen:
            box.aufstellen();
            return;
        case zuruf::neustart:
            box.neustart();
            return;
    }
}

}  // namespace

int main(int argc, char** argv) {
    kommandozeile zeile(
        "rc_simulator spielt eine Race-Control-Box mit fahrenden Wagen. Sie sieht keine Startampel: die Eingabetaste\n"
        "lässt die Wagen fahren; getippt werden können auch rot, aufstellen und neustart (die Box geht aus und an).");
    flotte wagen;
    rc_box_einstellung einst;
    lauf_einstellung lauf;
    lauf.ort.baud = 4800;
    gemeinsame_optionen(zeile, rc_box::spuren, wagen, einst.rennen, lauf);
    zeile.zahl("--ziel34", "MS", 0, 60000,
               "so lange nach den Sensoren 1 und 2 kommen die Wagen an die Sensoren 3 und 4 (0, nie)",
               [&](std::int64_t n) { einst.ziel34 = n; });
    if (!zeile.lesen(argc, argv)) {
        return 2;
    }
    if (zeile.hilfe_gewuenscht()) {
        zeile.hilfe_zeigen();
        return 0;
    }
    einst.rennen.wagen = wagen.wagen();
    rc_box box(einst);
    box.bei_schritt = [&box] { folgen(box); };
    std::thread(zuhoeren).detach();  // waits for a line until the program is gone
    return laufen(box, lauf);
}
