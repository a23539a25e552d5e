#pragma once

#include "race/positionen.h"
#include "race/rennende.h"
#include "race/sektoren.h"
#include "race/tanken.h"
#include "race/umgebung.h"

namespace tarvel {

/// The lap engine: turns waiting lap-sensor events into counted laps, lap times, best laps and the lap lists. A
/// crossing that breaks a rule vanishes silently.
class rundenzaehlung {
public:
    rundenzaehlung(const renn_umgebung& um, positionen& plaetze, rennende& ende, tanken& t, sektoren& s)
        : um_(um), plaetze_(plaetze), ende_(ende), tanken_(t), sektoren_(s) {}

    /// One lap step over all lanes, once per race tick.
    void runden_auswerten();
    /// Best lap, displays and lap list of a lane after a counted crossing; `zeile` is one row ahead of the lap just
    /// stored.
    void rundenzeiten_pruefen(zeit_ms zeit, int zeile, int spur);
    /// Takes one lap off by hand, with its row of the lap store. False for a disqualified lane. A lane with 0 laps
    /// stays at 0, while one before its first crossing goes further below.
    bool runde_abziehen(int spur);
    /// Holds the counters at their upper limit and shows them, after a key.
    void zaehler_nachfuehren();

private:
    bool entprellen(int spur, ereignis_zeile& ereignis);
    zeit_ms rundenzeit_messen(int spur, zeit_ms stempel);
    bool zaehlt(int spur, zeit_ms zeit) const;
    void zaehlen(int spur, zeit_ms zeit, zeit_ms stempel);
    void zaehler_zeigen(int spur);

    renn_umgebung um_;
    positionen& plaetze_;
    rennende& ende_;
    tanken& tanken_;
    sektoren& sektoren_;
};

}  // namespace tarvel
