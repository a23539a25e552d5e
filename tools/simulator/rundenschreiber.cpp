#include "tools/simulator/rundenschreiber.h"

#include <cstdio>

namespace tarvel::simulator {

void zeile_schreiben(const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

void rundenschreiber::schreiben() {
    if (g_.aufstellungen() != aufstellung_) {
        aufstellung_ = g_.aufstellungen();
        stand_.clear();
    }
    for (; gelesen_ < g_.fahrten().size(); ++gelesen_) {
        schreiben(g_.fahrten()[gelesen_]);
    }
}

void rundenschreiber::schreiben(const ueberfahrt& u) {
    constexpr zeit_ms sekunde = 1000;
    stand& s = stand_[u.wagen];
    const std::string wagen = "Wagen " + std::to_string(u.wagen) + "  ";
    if (u.sensor > 1) {
        zeile_schreiben(wagen + "Sektor " + std::to_string(u.sensor - 1));
        return;
    }
    ++s.runde;
    const zeit_ms dauer = u.stempel - s.stempel;
    s.stempel = u.stempel;
    if (s.runde == 0) {
        zeile_schreiben(wagen + "erste Überfahrt");
        return;
    }
    std::string tausendstel = std::to_string(dauer % sekunde);
    tausendstel.insert(0, 3 - tausendstel.size(), '0');
    zeile_schreiben(wagen + "Runde " + std::to_string(s.runde) + "   " + std::to_string(dauer / sekunde) + "," +
                    tausendstel + " s");
}

}  // namespace tarvel::simulator
