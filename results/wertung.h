#pragma once

#include <numeric>
#include <vector>

#include "race/rennen.h"
#include "race/rennergebnis.h"
#include "results/korrekturliste.h"

namespace tarvel {

/// Makes the result from what the race left behind, and from that the one with the race director's corrections.
class wertung {
public:
    explicit wertung(rennen& r) : r_(r), um_(r.umgebung) {}

    /// Nothing of the race before counts.
    void zuruecksetzen();
    /// The metres go with their drivers: lane i takes those of lane `herkunft[i]`, 0 leaves them.
    void fahrer_umsetzen(const spuren<int>& herkunft);
    /// Corrects the result; what does not fit is left out. False if nothing is left.
    bool korrigieren(const korrekturschritt& schritt);
    /// The correction belongs to the last step.
    void ergaenzen(const korrektur& k);
    /// The last correction counts no more, or again. False if there is none.
    bool zuruecknehmen();
    bool wiederherstellen();
    const korrekturliste& korrekturen() const { return korrekturen_; }
    /// The race has the corrections from here on, and none can be taken back.
    void festschreiben();
    /// The same while its log is done again, in which the race gets them. What counted.
    std::vector<korrekturschritt> abschliessen();

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

    void protokollieren(korrekturvermerk::weise wie, const korrekturschritt& schritt) const;
    void disqualifizierte_streichen();
    void meter_auswerten();
    rennergebnis kopf_bilden() const;
    rennergebnis::spur spur_bilden(int spur) const;
    rennergebnis::runde runde_bilden(int spur, int runde) const;

    rennen& r_;
    const renn_umgebung& um_;
    spuren<meter_fortsetzung> stand_;
    korrekturliste korrekturen_;
    zeit_ms start_ = 0;  ///< of the race, by the clock of the corrections' stamps
    rennergebnis ergebnis_;
};

}  // namespace tarvel
