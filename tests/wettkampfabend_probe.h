#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/programm_probe.h"
#include "tests/wettkampf_probe.h"

namespace tarvel::test {

/// A club evening of lap races, driven on the race window.
class Abendprobe : public ProgrammProbe {
protected:
    Abendprobe() {
        t.einrichten("Runden", "3", {1, 2, 3, 4});
        t.p.fenster.entladen(fenstername::bahn1);
        t.p.einst.aut_speichern = false;
        t.p.einst.w_einfahren_an = false;
        nur_eingaben = true;
    }

    void beginnen(wettkampf_modus modus, int fahrer, const std::vector<int>& spuren, bool centermode = false) {
        wettkampf neu = wettkampf_mit(modus, fahrer, spuren, centermode);
        neu.wettkampf_name = "Vereinsabend";
        neu.rennlaenge = t.p.param.renn_laenge.zahl();
        abend.beginnen(std::move(neu));
    }
    /// Each lane that is in the race drives its laps.
    void runden_fahren(int runden) {
        for (int runde = 0; runde <= runden; ++runde) {
            t.maschine.laufen(5500);
            for (const int spur : alle_spuren) {
                if (t.p.param.spur_aktiv[spur]) {
                    t.maschine.laufen(150);
                    t.taste(std::string(1, static_cast<char>('0' + spur)));
                }
            }
        }
        t.maschine.laufen(3000);
    }
    void gruen() {
        ASSERT_TRUE(offen(fenstername::k_ampel));
        t.p.k_ampel.Command1.klicken();
        t.maschine.laufen(1500 * 3 + 2500);
    }
    void rennen_fahren() {
        ASSERT_TRUE(abend.rennen_starten());
        t.bahn().Command1.klicken();
        runden_fahren(3);
        ASSERT_TRUE(offen(fenstername::auswertung));
        t.p.auswertung.Command5.klicken();
    }

    wettkampfabend& abend = t.p.wettkampfabend;
};

}  // namespace tarvel::test
