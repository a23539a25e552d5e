#pragma once

#include "race/strafen.h"
#include "race/umgebung.h"

namespace tarvel {

/// How long a false start locks its lane from green on: the actions that cut no power need no more than a tenth.
dauer_hs fruehstart_sperrdauer(const einstellungen& einst);

/// The time for which lanes that moved before green are locked. When it is served they get their power back and stay
/// locked for one more minimum lap, so that rolling on over the sensor is no lap.
class fruehstartstrafe {
public:
    fruehstartstrafe(const renn_umgebung& um, strafen& s);

    /// Nothing is served yet, for a new race.
    void zuruecksetzen();
    /// Green.
    void beginnen();
    /// The race pauses, and goes on.
    void anhalten();
    void fortsetzen();
    /// Without power from now on, or from green on.
    dauer_hs rest() const { return fruehstart_sperrdauer(um_.einst) - verbuesst_; }
    /// The race is over.
    void beenden();

private:
    void zeit_tick();
    void nachsperre_tick();
    /// Locked for a false start, not for a pause.
    bool gesperrt(int spur) const;
    void nullzeile_eintragen(int spur);

    renn_umgebung um_;
    strafen& strafen_;
    dauer_hs verbuesst_{};
    bool angehalten_ = false;  ///< by the pause that is, or the last one
};

}  // namespace tarvel
