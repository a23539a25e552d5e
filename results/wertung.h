#pragma once

#include <numeric>
#include <string>
#include <vector>

#include "race/rennen.h"
#include "results/platzierung.h"

namespace tarvel {

/// The standing of a race, computed from what the race left behind.
class wertung {
public:
    explicit wertung(rennen& r) : um_(r.umgebung), sektoren_(r.sektoren) {}

    /// Nothing of the race before counts.
    void zuruecksetzen() { stand_.fuellen({}); }
    /// The metres go with their drivers: lane i takes those of lane `herkunft[i]`, 0 leaves them.
    void fahrer_umsetzen(const spuren<int>& herkunft);

    /// Disqualified lanes have no laps.
    void disqualifizierte_streichen();
    /// Metres of the laps since the last evaluation.
    void meter_auswerten();
    /// Metres that a car has come beyond its last lap.
    void restmeter_zuschlagen(int spur, double meter);
    /// Places, total times and gaps.
    void platzierung_berechnen();
    /// Takes lap `runde` off as a false crossing: its time is part of the lap before it. False if there is no such lap.
    bool runde_loeschen(int spur, int runde);

    bool aktiv(int spur) const { return werte_[spur].aktiv; }
    /// Laps, never below 0.
    int runden(int spur) const;
    /// Place 1 to 6.
    int platzierung(int spur) const { return platzierung_[spur]; }
    int fuehrende_spur() const { return fuehrende_spur_; }
    /// Laps and penalties in ms.
    zeit_ms gesamtzeit(int spur) const { return werte_[spur].gesamtzeit; }
    /// Total time behind the leader's; below 0 for a lane that has the lower time in fewer laps.
    zeit_ms abstand(int spur) const { return gesamtzeit(spur) - gesamtzeit(fuehrende_spur_); }
    zeit_ms beste_runde(int spur) const { return um_.zustand.konto.beste(spur); }
    double meter(int spur) const { return stand_[spur].meter(); }
    double restmeter(int spur) const { return stand_[spur].restmeter; }
    /// Two decimals behind `komma`: "23,40" in windows, "23.40" in files.
    std::string meter_text(int spur, char komma) const;

private:
    /// What a lane had at the last evaluation, so that a continued race adds to it.
    struct meter_fortsetzung {
        std::vector<double> runden = {};  ///< metres of each lap: a driver may come from a lane of another length
        double restmeter = 0;

        double meter() const { return std::accumulate(runden.begin(), runden.end(), restmeter); }
    };

    const renn_umgebung& um_;
    sektoren& sektoren_;
    spuren<platz_werte> werte_;
    spuren<int> platzierung_;
    spuren<meter_fortsetzung> stand_;
    int fuehrende_spur_ = 1;
};

}  // namespace tarvel
