#include "tools/simulator/lauf.h"

#include <chrono>
#include <cstdio>
#include <map>
#include <string>

namespace tarvel::simulator {
namespace {

constexpr zeit_ms sekunde = 1000;

zeit_ms maschinenzeit() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void zeile(const std::string& text) {
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

/// Writes each passage as a line, with the lap it ends.
class rundenschreiber {
public:
    explicit rundenschreiber(const geraet& g) : g_(g) {}

    void schreiben() {
        if (g_.aufstellungen() != aufstellung_) {
            aufstellung_ = g_.aufstellungen();
            stand_.clear();
        }
        for (; gelesen_ < g_.fahrten().size(); ++gelesen_) {
            schreiben(g_.fahrten()[gelesen_]);
        }
    }

private:
    struct stand {
        int runde = -1;
        zeit_ms stempel = 0;
    };

    void schreiben(const ueberfahrt& u) {
        stand& s = stand_[u.wagen];
        const std::string wagen = "Wagen " + std::to_string(u.wagen) + "  ";
        if (u.sensor > 1) {
            zeile(wagen + "Sektor " + std::to_string(u.sensor - 1));
            return;
        }
        ++s.runde;
        const zeit_ms dauer = u.stempel - s.stempel;
        s.stempel = u.stempel;
        if (s.runde == 0) {
            zeile(wagen + "erste Überfahrt");
            return;
        }
        std::string tausendstel = std::to_string(dauer % sekunde);
        tausendstel.insert(0, 3 - tausendstel.size(), '0');
        zeile(wagen + "Runde " + std::to_string(s.runde) + "   " + std::to_string(dauer / sekunde) + "," + tausendstel +
              " s");
    }

    const geraet& g_;
    std::map<int, stand> stand_;
    std::size_t gelesen_ = 0;
    int aufstellung_ = 0;
};

/// Pulls the plug and puts it back in when it is time; false if that failed.
bool stecker(anschluss& a, const lauf_einstellung& einst, zeit_ms vergangen, bool& steckt) {
    const bool gezogen = einst.abziehen_s >= 0 && vergangen >= einst.abziehen_s * sekunde;
    const bool wieder = einst.einstecken_s > einst.abziehen_s && vergangen >= einst.einstecken_s * sekunde;
    const bool soll = !gezogen || wieder;
    if (soll == steckt) {
        return true;
    }
    steckt = soll;
    zeile(soll ? "Eingesteckt" : "Abgezogen");
    if (!soll) {
        a.abziehen();
        return true;
    }
    const std::string fehler = a.oeffnen();
    if (!fehler.empty()) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
    }
    return fehler.empty();
}

}  // namespace

int laufen(geraet& g, const lauf_einstellung& einst) {
    ende_gewuenscht();  // from here on the link is removed in every case
    anschluss a(einst.ort);
    const std::string fehler = a.oeffnen();
    if (!fehler.empty()) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
        return 1;
    }
    zeile("Bereit an " + a.name());
    g.senden = [&a](std::string_view bytes) { a.schreiben(bytes); };
    g.melden = [](std::string_view text) { zeile("  " + std::string(text)); };

    const zeit_ms beginn = maschinenzeit();
    rundenschreiber runden(g);
    bool steckt = true;
    bool verbunden = false;
    while (!ende_gewuenscht()) {
        const zeit_ms vergangen = maschinenzeit() - beginn;
        if ((einst.dauer_s >= 0 && vergangen >= einst.dauer_s * sekunde)) {
            break;
        }
        if (!stecker(a, einst, vergangen, steckt)) {
            return 1;
        }
        if (verbunden != a.verbunden()) {
            verbunden = !verbunden;
            zeile(verbunden ? "  Verbunden" : "  Getrennt");
            if (verbunden) {
                g.verbunden();
            }
        }
        const std::string bytes = a.lesen(1);
        g.weiter(maschinenzeit());
        runden.schreiben();
        g.empfangen(bytes);
    }
    return 0;
}

}  // namespace tarvel::simulator
