#pragma once

#include <numeric>
#include <vector>

#include "race/rennen.h"
#include "race/rennergebnis.h"

namespace tarvel {

/// Makes the result from what the race left behind, with the race director's corrections.
class wertung {
public:
    explicit wertung(rennen& r) : um_(r.umgebung), sektoren_(r.sektoren) {}

    /// Nothing of the race before counts.
    void zuruecksetzen() { stand_.fuellen({}); }
    /// The metres go with their drivers: lane i takes those of lane `herkunft[i]`, 0 leaves them.
    void fahrer_umsetzen(const spuren<int>& herkunft);
    /// Metres that a car has come beyond its last lap.
    void restmeter_zuschlagen(int spur, double meter);
    /// Takes lap `runde` off as a false crossing: its time is part of the lap before it. False if there is no such lap.
    bool runde_loeschen(int spur, int runde);

    /// Makes the result anew.
    void auswerten();
    const rennergebnis& ergebnis() const { return ergebnis_; }

private:
    /// What a lane had at the last evaluation, so that a continued race adds to it.
    struct meter_fortsetzung {
        std::vector<double> runden = {};  ///< metres of each lap: a driver may come from a lane of another length
        double restmeter = 0;

        double meter() const { return std::accumulate(runden.begin(), runden.end(), restmeter); }
    };

    void disqualifizierte_streichen();
    void meter_auswerten();
    rennergebnis kopf_bilden() const;
    rennergebnis::spur spur_bilden(int spur) const;
    rennergebnis::runde runde_bilden(int spur, int runde) const;

    const renn_umgebung& um_;
    sektoren& sektoren_;
    spuren<meter_fortsetzung> stand_;
    rennergebnis ergebnis_;
};

}  // namespace tarvel
