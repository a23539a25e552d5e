#pragma once

#include "race/chaos.h"
#include "race/umgebung.h"

namespace tarvel {

/// A race that goes on from its result, perhaps with its drivers on other lanes.
class fortsetzung {
public:
    struct teile {
        positionen& plaetze;
        rennuhr& uhr;
        rennende& ende;
        rennansicht& ansicht;
        rennablauf& ablauf;
        tarvel::strafen& strafe;
        tanken& tank;
        sektoren& sektor;
    };

    fortsetzung(const renn_umgebung& um, const teile& t);

    /// Lane i takes the driver of lane `herkunft[i]` with all he has, and his vehicle if vehicles change lanes; 0
    /// leaves the lane as it is.
    void fahrer_umsetzen(const spuren<int>& herkunft);
    /// Time driven up to the end, without pauses and without the run-on.
    zeit_ms gefahren() const;
    /// All that comes before the light, which opens. `neues_ziel` counts from the first start.
    void vorbereiten(rennziel neues_ziel) { um_.protokoll.geschieht(vorbereiten_, {neues_ziel.zahl()}); }
    /// The race ends before it has gone on: its result is the earlier one.
    void zuruecknehmen();
    /// Green: the break comes off the race and off the lap that each lane is in.
    void weiterfahren();

private:
    void umsetzen(const spuren<int>& herkunft);
    void einrichten(rennziel neues_ziel);
    void spur_freigeben(int spur);
    void standzeit_abziehen(int spur);

    renn_umgebung um_;
    teile t_;
    int umsetzen_;  ///< numbers of the doings
    int vorbereiten_;
    rennziel ziel_vorher_;
    spuren<bool> daheim_;  ///< lanes that were home
    bool abbruch_vorher_ = false;
    bool dunkel_ = false;  ///< the dark cover lay over the race
};

}  // namespace tarvel
