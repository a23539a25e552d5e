#pragma once

#include <vector>

#include "race/positionen.h"
#include "race/rennansicht.h"
#include "race/rennende.h"
#include "race/rennuhr.h"
#include "race/rundenzaehlung.h"
#include "race/umgebung.h"

namespace tarvel {

/// The life of one race: window, reset, start, and the order of work in its ticks.
class rennablauf {
public:
    struct teile {
        positionen& plaetze;
        rennuhr& uhr;
        rennende& ende;
        rundenzaehlung& zaehlung;
        rennansicht& ansicht;
    };

    rennablauf(const renn_umgebung& um, const teile& t);

    /// Load handler of the race window.
    void laden();
    /// Unload handler: nothing of the race goes on behind a closed window.
    void entladen();

    void rennen_zuruecksetzen();
    /// All that comes before the start light, and hands over to it.
    void rennstart_vorbereiten();
    /// The clock and the race timers start.
    void rennen_starten();

    /// `quelle` is polled in the race's ticks; it must outlive the race.
    void anschliessen(messquelle& quelle) { quellen_.push_back(&quelle); }

private:
    void renntimer_tick();
    void renntimer2_tick();
    void renntimer3_tick();

    renn_umgebung um_;
    teile t_;
    std::vector<messquelle*> quellen_;
};

}  // namespace tarvel
