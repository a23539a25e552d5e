#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "core/protokollzeile.h"
#include "programm/rennprotokoll.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// The log of the last race.
inline std::string protokoll_von(const testprogramm& t) {
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    return t.maschine.datei_lesen(name);
}

/// The log, whole, but its first lap has another time: a race that drives it again comes to another one.
inline std::string mit_anderer_runde(std::string_view protokoll) {
    constexpr std::string_view runde = "> Runde ";
    protokollleser leser(protokoll);
    protokollschreiber schreiber;
    std::string neu;
    bool gefunden = false;
    while (const auto zeile = leser.zeile()) {
        std::string text(*zeile);
        if (text.find(runde) != std::string::npos && !std::exchange(gefunden, true)) {
            text += '1';
        }
        neu += schreiber.beginnen(0).wort(text).fertig();
    }
    return gefunden ? neu : std::string();
}

/// The next start of the program, on a machine whose clock has begun anew. It finds this log.
struct neustart {
    neustart(const testprogramm& vorher, std::string_view protokoll, zeit_ms uhr = 5000) {
        std::string name = vorher.p.rennprotokoll.dateiname();
        std::replace(name.begin(), name.end(), '\\', '/');
        maschine.uhr_stellen(uhr - maschine.jetzt());
        maschine.datei_schreiben(name, std::string(protokoll));
        maschine.antwort = true;
    }

    rennen& lauf() { return p.rennen; }
    spur_zustand& spur(int nummer) { return p.rennen.zustand.spur[nummer]; }
    void weiter() {
        p.k_ampel.Command1.klicken();
        maschine.laufen(3 * 1500 + 2500);
    }

    test_plattform maschine;
    programm p{maschine.dienste()};
};

}  // namespace tarvel::test
