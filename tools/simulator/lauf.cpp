#include "tools/simulator/lauf.h"

#include <chrono>
#include <cstdio>
#include <string>

#include "tools/simulator/rundenschreiber.h"

namespace tarvel::simulator {
namespace {

constexpr zeit_ms sekunde = 1000;

zeit_ms maschinenzeit() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Pulls the plug and puts it back in when it is time; false if that failed.
bool stecker(anschluss& a, const lauf_einstellung& einst, zeit_ms vergangen, bool& steckt) {
    const bool gezogen = einst.abziehen_s >= 0 && vergangen >= einst.abziehen_s * sekunde;
    const bool wieder = einst.einstecken_s > einst.abziehen_s && vergangen >= einst.einstecken_s * sekunde;
    const bool soll = !gezogen || wieder;
    if (soll == steckt) {
        return true;
    }
    steckt = soll;
    zeile_schreiben(soll ? "Eingesteckt" : "Abgezogen");
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
    zeile_schreiben("Bereit an " + a.name());
    g.senden = [&a](std::string_view bytes) { a.schreiben(bytes); };
    g.melden = [](std::string_view text) { zeile_schreiben("  " + std::string(text)); };

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
            zeile_schreiben(verbunden ? "  Verbunden" : "  Getrennt");
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
