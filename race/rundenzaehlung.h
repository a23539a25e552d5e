#pragma once

#include <optional>

#include "race/positionen.h"
#include "race/protokollworte.h"
#include "race/rennende.h"
#include "race/rundenanzeige.h"
#include "race/sektoren.h"
#include "race/tanken.h"
#include "race/umgebung.h"

namespace tarvel {

/// The lap engine: turns waiting lap-sensor events into counted laps, lap times, best laps and the lap lists. A
/// crossing that breaks a rule vanishes silently.
class rundenzaehlung {
public:
    struct teile {
        positionen& plaetze;
        rennende& ende;
        rundenanzeige& anzeige;
        tanken& tank;
        sektoren& sektor;
    };

    rundenzaehlung(const renn_umgebung& um, const teile& t);

    /// One lap step over all lanes, once per race tick.
    void runden_auswerten();
    /// The race is over, and a device may still tell crossings from before its end.
    void nachzaehlen() { um_.protokoll.geschieht(nachzaehlen_); }
    /// Takes one lap off by hand. False for a disqualified lane.
    bool runde_abziehen(int spur);
    /// Shows the counters, after a key.
    void zaehler_nachfuehren();

private:
    bool entprellen(int spur, ereignis_zeile& ereignis);
    zeit_ms rundenzeit_messen(int spur, const ereignis_zeile& ereignis);
    /// Right behind the crossing that was counted last.
    bool zu_nah(int spur, zeit_ms stempel) const;
    /// Why the crossing does not count, if it does not, and the two numbers to it.
    struct hindernis {
        ablehnung grund;
        zeit_ms wert = 0;
        zeit_ms grenze = 0;
    };
    std::optional<hindernis> hindernis_von(int spur, zeit_ms zeit, const ereignis_zeile& ereignis) const;
    void ablehnen(int spur, zeit_ms stempel, const hindernis& h) const;
    /// The event table has forgotten a crossing. A contact that bounces is told once.
    void verworfen(int spur, zeit_ms stempel, verwurf wie);
    void zaehlen(int spur, zeit_ms zeit, const ereignis_zeile& ereignis);
    void ueberfahrt_auswerten(int spur);
    void zaehler_zeigen(int spur);

    renn_umgebung um_;
    teile t_;
    int nachzaehlen_;  ///< number of the doing
};

}  // namespace tarvel
