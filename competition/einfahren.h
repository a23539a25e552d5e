#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "core/fensterlogik.h"
#include "core/spuren.h"
#include "core/steuerelemente.h"
#include "hardware/tastatur.h"
#include "platform/zeitgeber.h"
#include "race/rennen.h"

namespace tarvel {

/// The warm-up before a race: each lane drives some laps, or all of them drive for a while, and then they have no power
/// until the race gives it back. What crosses the line here counts in no race. Its control arrays count the lanes
/// from 0.
class einfahren final : public fensterlogik, private tasten_rennen {
public:
    einfahren(rennen& r, const tastenbelegung& belegung, plattform::zeitgeber_dienst& zeitgeber);

    template <class Element>
    using je_spur = std::array<Element, spuren_max>;

    bezeichnung Label12;          ///< what the window is about
    bezeichnung Label_einheit;    ///< what the numbers count
    je_spur<rahmen> Frame;        ///< all of a lane; hidden where nobody warms up
    je_spur<bezeichnung> spur;    ///< its number
    je_spur<bezeichnung> fahrer;  ///< its driver
    je_spur<bezeichnung> runden;  ///< laps left, in the colour of the lane; hidden by time
    bezeichnung zeitanzeige;      ///< seconds left
    form zeitbalken;              ///< the same as the part of the whole, up to 1
    bezeichnung labelende;
    bezeichnung weiterlabel;   ///< when the race follows by itself
    bezeichnung geraetealarm;  ///< the timing device is gone
    befehl Command5;           ///< ends the warm-up

    void laden() override;
    void entladen() override;
    /// There is one way out, whoever takes it.
    void schliessen() override { Command5.klicken(); }
    std::vector<sprachliste> sprachdateien() override { return {sprache_re()}; }
    /// A key; see `rennbefehle::taste`.
    void taste(int code, std::optional<zeit_ms> alter = {});

private:
    bool beendet() const override { return true; }
    void bildschirm_dunkel() override {}
    void chaos_taste() override {}
    bool runde_abziehen(int /*spur*/) override { return false; }

    sprachliste sprache_re();
    void anzeigen_aufstellen();
    void alarm_zeigen();
    void Timer1_tick();
    void einfahruhr_tick();
    void w_auto4_tick();
    void ueberfahrt(int nummer, zeit_ms stempel);
    bool alle_fertig() const;
    void rest_zeigen();
    void wartezeit_zeigen();
    void anhalten();
    void einfahren_ende();
    void Command5_klick();

    rennen& r_;
    const renn_umgebung& um_;
    tastatur tastatur_;
    std::unique_ptr<plattform::zeitgeber> Timer1_;      ///< reads the devices
    std::unique_ptr<plattform::zeitgeber> einfahruhr_;  ///< counts hundredths of a second
    std::unique_ptr<plattform::zeitgeber> w_auto4_;     ///< the wait after the end
    bool nach_runden_ = true;
    bool zu_ende_ = true;
    spuren<int> einfahr_rest_;                 ///< laps left
    spuren<std::optional<zeit_ms>> gezaehlt_;  ///< stamp of the crossing that was counted last
    dauer_hs einfahr_zeit_{};                  ///< time left
    dauer_hs einfahr_dauer_{};                 ///< of the whole
    dauer_s wartezeit_{};                      ///< left of the wait after the end
    std::string wort_runden_;
    std::string wort_sekunden_;
    std::string wort_weiter_in_;
};

}  // namespace tarvel
