#pragma once

#include "platform/schnittstelle.h"
#include "race/rennuhr.h"
#include "race/umgebung.h"

namespace tarvel {

/// What the race ends in the middle of: a pause, a penalty.
class rennabschluss : public schnittstelle {
public:
    virtual void laufendes_beenden() = 0;
};

/// Decides when a race is over and hands it to the result window.
class rennende {
public:
    rennende(const renn_umgebung& um, rennuhr& uhr) : um_(um), uhr_(uhr) {}

    rennabschluss* abschluss = nullptr;  ///< set before the first race

    /// Fresh flags for a new race.
    void zuruecksetzen();
    /// The end tests of one race tick.
    void pruefen();
    /// Ends the race proper, perhaps with a run-on first. Safe to call many times in one tick.
    void rennende_einleiten();
    /// Stops the race and opens the result, for the end that has been stamped. Does nothing if the race is over.
    void rennende_ablauf();
    /// One lane is home.
    void spur_ziel_setzen(int spur);
    /// Lamps off and power on, as after every race.
    void ausgaben_endzustand();
    /// Takes the moment at which the race ended. One that is ended before it has gone on keeps its earlier end.
    void ende_stempeln();
    /// A lap race, and the lane has all its laps.
    bool hat_das_ziel(int spur) const;
    /// One minute of the run-on is over.
    void nachlauf_tick();

private:
    bool am_ziel(int spur) const;
    bool ist_zu_ende() const;
    bool alle_fertig() const;
    /// The end of a time race has been found.
    void zeit_ist_um();
    void nachlauf_zeit_starten();
    /// A lap race was over with the crossing that won it, whenever that was told.
    void sieg_stempeln();
    void nachlauf_runden_starten();

    renn_umgebung um_;
    rennuhr& uhr_;
};

}  // namespace tarvel
