#pragma once

#include <functional>
#include <optional>

#include "platform/schnittstelle.h"
#include "race/fruehstartstrafe.h"
#include "race/rennablauf.h"
#include "race/strafen.h"
#include "race/umgebung.h"

namespace tarvel {

/// The light that ends a pause.
class pausenampel : public schnittstelle {
public:
    virtual void pause_beenden() = 0;
    /// It has begun, and nobody can call it back.
    virtual bool laeuft() const = 0;
};

/// The pause: a driver or the race director halts the race, the power goes off and the clock stands still. The paused
/// time comes off the clock and off each lane's lap, and a car that was still rolling over the sensor when the pause
/// began gets its lap all the same.
class chaos final : public pausenteil {
public:
    struct teile {
        rennablauf& ablauf;
        rennansicht& ansicht;
        strafen& strafe;
        fruehstartstrafe& fruehstart;
    };

    chaos(const renn_umgebung& um, const teile& t);

    pausenampel* neustart_ampel = nullptr;  ///< null without one

    /// For a new race.
    void zuruecksetzen() override;
    /// The trigger tests of the race tick.
    void pruefen() override;
    /// The chaos key: like the button, and in place of a switch it turns the switch over.
    void taste();
    /// The light that ends the pause is under way.
    bool geht_gleich_weiter() const {
        return um_.zustand.chaos_aktiv && neustart_ampel != nullptr && neustart_ampel->laeuft();
    }
    /// Begins a pause, or ends the one that is.
    void chaos_umschalten();
    void chaosende_routine();
    /// The crossings of the pause's beginning count now, if they have not yet.
    void chaos_nachholen();
    /// The program was away from this stamp on: the race stands still since then, and goes on by the small light.
    void nach_ausfall(zeit_ms seit);
    /// The race ends in its pause: nothing of the pause stays.
    void aufheben();
    /// A device is gone whose switch may have begun the pause: it ends by command.
    void geraet_verloren() { geraet_verloren_(); }

private:
    void befehl_klick();
    void geraeteschalter_vergessen();
    /// The device runs the light that ends the pause.
    bool am_geraet_fortsetzen();
    bool gruen_am_geraet();
    /// From now on, or from an earlier stamp.
    void pause_beginnen(std::optional<zeit_ms> seit = {});
    /// A light ends the pause that is.
    bool mit_ampel() const { return um_.einst.chaosampel_an || um_.zustand.pause.ausfall; }
    /// Whose button it was, and what is to do at a device.
    void hinweis_zeigen();
    void zeitgeber_anhalten();
    void zeitgeber_fortsetzen();
    void strafformular_zeigen();
    void strafformular_schliessen();
    void strafen_verteilen();
    /// The shorter of two penalties has given the lane its power back: the pause behind it cuts it again.
    void unverbuesste_abschalten();
    void gelb_zeigen(bool an);
    /// Small lights of the lanes that are not held off by anything else.
    void kleine_ampeln(kleines_licht licht);

    /// Waits for a switch to be let go that has outlasted its pause.
    void schalter_verfolgen();
    void loslassen_pruefen();
    void durchfahrten_merken();
    void sammeln_beenden();
    void ch_durch0_tick();
    void chaostimer2_tick();
    void straftimer_ch_tick(int spur);
    void chaos_schalter_at2560_tick();

    renn_umgebung um_;
    teile t_;
    std::function<void()> geraet_verloren_;
};

}  // namespace tarvel
