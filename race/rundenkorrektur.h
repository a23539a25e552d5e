#pragma once

#include <optional>

#include "race/rennergebnis.h"
#include "race/sektoren.h"
#include "race/umgebung.h"

namespace tarvel {

/// A change that the race director makes to the result of a race. The numbers of the kinds stand in logs.
struct korrektur {
    enum class art {
        geloescht = 1,   ///< lap `runde` was none: its time is part of the one before it
        ueberfahrt = 2,  ///< a crossing in lap `runde` counts after all; that lap may be the one behind the last
        geteilt = 3,     ///< the sensor has missed a crossing in lap `runde`
        restmeter = 4    ///< metres beyond the last lap
    };
    art was = art::geloescht;
    int spur = 0;
    int runde = 0;
    // of the lap that is added
    zeit_ms zeit = 0;
    zeit_ms stempel = 0;  ///< of the crossing that closes it
    zeit_ms pause = 0;    ///< has come off `zeit`
    double meter = 0;     ///< length of the lane for a lap that is added at the end, or what is added

    bool traegt_nach() const { return was == art::ueberfahrt || was == art::geteilt; }
    bool operator==(const korrektur&) const = default;
};

/// Makes the correction. False, and all is as it was, if it does not fit: there is no such lap, the lane is out, or it
/// would have come further than the target. Who reaches the target by a lap that is added has driven what follows
/// beyond it. Places are not given anew.
bool korrigieren(rennergebnis& ergebnis, const korrektur& k);

/// What the result window has corrected goes into the laps of the race, which may go on.
class rundenkorrektur {
public:
    rundenkorrektur(const renn_umgebung& um, sektoren& sektor);

    void uebernehmen(const korrektur& k);

private:
    void eintragen(const korrektur& k);

    renn_umgebung um_;
    sektoren& sektor_;
    int korrektur_;  ///< number of the doing
};

/// The stamp at which the time of a race was up; none in a race for laps.
std::optional<zeit_ms> zeit_um(const renn_umgebung& um);

}  // namespace tarvel
