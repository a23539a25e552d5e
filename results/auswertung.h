#pragma once

#include <array>
#include <memory>
#include <string>

#include "core/steuerelemente.h"
#include "race/umgebung.h"
#include "results/platzierung.h"

namespace tarvel {

/// The result window: computes the standing of the race from what the race left behind, and shows it. Its control
/// arrays count the lanes from 0.
class auswertung {
public:
    auswertung(const renn_umgebung& um, plattform::zeitgeber_dienst& zeitgeber);

    std::array<rahmen, spuren_max> Frame;  ///< all of a lane; its row is the place
    std::array<bezeichnung, spuren_max> platz;
    std::array<bezeichnung, spuren_max> fahrer;
    std::array<bezeichnung, spuren_max> Label_spur;  ///< captions of the cells
    std::array<bezeichnung, spuren_max> Label_runden;
    std::array<bezeichnung, spuren_max> Label_zeit;
    std::array<bezeichnung, spuren_max> Label_beste;
    std::array<bezeichnung, spuren_max> runden_aus;
    std::array<bezeichnung, spuren_max> beste_aus;
    std::array<bezeichnung, spuren_max> zeit_aus;
    std::array<bezeichnung, spuren_max> abstandlabel;
    std::array<bezeichnung, spuren_max> kmh_label;
    std::array<bezeichnung, spuren_max> ges_meter;
    std::array<bezeichnung, spuren_max> aus_straflabel;
    std::array<tarvel::liste, spuren_max> liste;
    bezeichnung kopf_label;  ///< what was driven, and when
    rahmen titel;            ///< carries the window's title
    befehl Command5;         ///< back to the main window

    /// Load handler: ends the race for the lap engine and shows the standing.
    void laden();
    /// Unload handler: the signal at the race end does not outlast the window.
    void entladen();
    /// Everything anew from the race record.
    void auswertung_anzeigen();
    /// Computes `platzierung`, `gesamtzeit` and the gaps.
    void platzierung_berechnen();
    /// Leaves to the main window.
    void cmd5_fortsetzung();
    /// The texts of the window.
    sprachliste sprache_a();

    /// Place 1 to 6 of a lane.
    int platzierung(int spur) const { return platzierung_[spur]; }
    int fuehrende_spur() const { return fuehrende_spur_; }
    /// Laps and penalties in ms.
    zeit_ms gesamtzeit(int spur) const { return werte_[spur].gesamtzeit; }

private:
    /// What a lane had at the last evaluation.
    struct meter_stand {
        int runden = 0;
        double meter = 0;
    };

    struct worte {
        std::string zeitrennen;
        std::string rundenrennen;
        std::string vorzeitig;
        std::string spur;
        std::string rundenliste;
        std::string strafzeit;
        std::string tempo;  ///< names the two speeds
    };

    void kopf_schreiben();
    void zielsignal_beenden();
    void ansagen_setzen();
    void meter_auswerten();
    void spur_anzeigen(int spur);
    void rundenliste_schreiben(int spur);

    renn_umgebung um_;
    std::unique_ptr<plattform::zeitgeber> zieltimer_;  ///< ends the signal at the race end
    worte wort_;
    spuren<platz_werte> werte_;
    spuren<int> platzierung_;
    spuren<meter_stand> meter_fortsetzung_;
    int fuehrende_spur_ = 1;
};

}  // namespace tarvel
