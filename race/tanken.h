#pragma once

#include "race/rundenanzeige.h"
#include "race/strafen.h"
#include "race/umgebung.h"

namespace tarvel {

/// The fuel simulation: laps burn, standing on a tank contact refuels, an empty tank is punished.
class tanken {
public:
    tanken(const renn_umgebung& um, strafen& s, rundenanzeige& anzeige);

    /// Full tanks and their displays, for a new race.
    void zuruecksetzen();
    /// Tells the log of a race the levels that it begins with.
    void stand_mitschreiben();
    /// The race is over: a lap that a penalty holds back counts, and nothing changes behind the result.
    void beenden();
    /// First call of the race tick, and after each key: turns contact edges into lane states.
    void tank_kontakte_auswerten();
    /// The same where nobody refuels: they count only where they stand in for the lap sensor.
    void kontakte_nur_als_runden();
    /// The car has left its tank contact: where one contact is all there is, it refuels no longer.
    void kontakt_verlassen(int spur);
    /// Second call of the race tick: refuels whoever stands on a contact, a step each nominal hundredth of a second.
    void tank_alle_spuren();
    /// Stamp up to which the last such call has refuelled, 0 if nobody refuels.
    zeit_ms getankt_bis() const;
    /// Levels and their displays, without any change.
    void fuellstaende_zeigen();
    /// A device that has the tanks itself tells a level: `stufe` of `stufen`, 0 is empty.
    void fuellstand_melden(int spur, int stufe, int stufen, bool neu);
    /// A car that stands on the one contact of its lane must not count laps there: each event that a device repeats
    /// draws out the lock after the crossing.
    void sensoren_nachhalten();
    /// A penalty that was served at `stempel` is over, however late its timer comes.
    void strafe_abgelaufen(int spur, zeit_ms stempel);
    /// Burns the fuel of a counted crossing that took `zeit` ms.
    void tank_verbrauch_rechnen(zeit_ms zeit, int spur);

private:
    void kontakt_auswerten(int spur);
    void tanken_spur(int spur, bool kontakte_wiederholt);
    void voll(int spur);
    void warnen(int spur, double stand);
    void leer(int spur);
    /// A lap of the lane is gone; `pause` of it comes off the lap that takes it in.
    void runde_genommen(int spur, zeit_ms pause);
    /// A lap that is held back counts again.
    void runde_zurueckgeben(int spur, zeit_ms gewartet);
    void fuellstand_zeigen(int spur);
    void tankfarbe(int spur, farbe neu);

    void tanktimer_tick(int spur);
    /// The lap that is held back would be the last, with nothing left to drive: the penalty comes on top of it. For any
    /// other lap it has cost its time on the track.
    bool letzte_runde(int spur) const;
    void t_straftimer_tick(int spur);
    void strafe_beenden(int spur);

    renn_umgebung um_;
    strafen& strafen_;
    rundenanzeige& anzeige_;
    int stand_;  ///< number of the doing
    zeit_ms getankt_bis_ = 0;
};

/// Litres as they are shown: two decimals below 100.
std::string tank_text(double liter);

/// Litres that a lap of `zeit` ms burns; `rundenzeit` is the nominal lap. The thousandths of the lap add up to one
/// litre of scatter.
double verbrauch(zeit_ms zeit, int liter_je_runde, dauer_s rundenzeit);

}  // namespace tarvel
