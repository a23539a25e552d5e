#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "competition/wettkampf.h"

namespace tarvel::test {

/// A club that drives a whole competition without a track.
struct vereinswettkampf {
    static wettkampf neu(wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes) {
        static constexpr std::array<const char*, 8> namen{"Anna",         "Ben Olsen",    "Carl-Friedrich von Gauß",
                                                          "Dora Schmidt", "Emil Lindner", "Frieda",
                                                          "Gustav",       "Hilde"};
        planvorgabe vorgabe;
        vorgabe.modus = modus;
        for (const int spur : lanes) {
            vorgabe.aktiv[spur] = true;
        }
        std::vector<std::string> alle;
        for (std::size_t n = 0; n < static_cast<std::size_t>(fahrer); ++n) {
            alle.push_back(n < namen.size() ? namen.at(n) : "Fahrer " + std::to_string(n + 1));
        }
        wettkampf w = wettkampf_beginnen(vorgabe, alle, "Vereinspokal", texte()).value();
        w.beginn = "21.11.2026";
        return w;
    }
    /// The same laps each time, and hardly ever the same twice.
    static void fahren(wettkampf& w, int rennen) {
        for (int n = 0; n < rennen && w.naechstes_offenes_rennen(); ++n) {
            spuren<fahrt> fahrten;
            for (const int spur : alle_spuren) {
                const int platz = w.plan.feld(w.aktuelles_rennen)[spur];
                const int runden = 14 + (platz * 37 + spur * 11) % 9 - platz % 5;
                const zeit_ms beste = 6800 + (platz * 7919 + spur * 1047) % 900;
                fahrten[spur] = {runden, runden * (beste + 240), runden * zentimeter{1050} + zentimeter{37} * platz,
                                 beste};
            }
            w.ergebnis_eintragen(fahrten);
        }
    }
};

}  // namespace tarvel::test
