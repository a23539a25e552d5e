#pragma once

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "core/spuren.h"
#include "hardware/ereignisse.h"
#include "platform/dauer.h"
#include "platform/uhr.h"
#include "race/protokollworte.h"
#include "race/rundenkonto.h"

namespace tarvel {

/// Debounce of a lane's lap sensor.
enum class sensorsperre { unbestimmt, bereit, eben_gezaehlt };

/// A penalty in which nothing counts, by the stamps: what was told or found late is judged as of its moment.
struct zeitsperre {
    static constexpr zeit_ms seit_immer = std::numeric_limits<zeit_ms>::min() / 2;

    zeit_ms von = 0;
    zeit_ms bis = 0;  ///< 0: it has no time, `laeuft` tells

    /// A crossing from the beginning of a pause is `verschoben` behind it, by all of it, where a penalty meets it that
    /// still has to be served.
    bool gilt(zeit_ms stempel, bool verschoben, bool laeuft) const {
        return bis == 0 ? laeuft : stempel >= von && (verschoben ? laeuft : stempel < bis);
    }
};

/// A crossing that was not counted.
struct letzte_ablehnung {
    zeit_ms stempel = zeitsperre::seit_immer;
    ablehnung grund{};
    zeit_ms zeit = 0;  ///< of the lap that was too short
};

struct spur_zustand {
    zeit_ms start_zeit = 0;      ///< stamp from which the first lap is timed
    zeit_ms gezaehlt_bei = 0;    ///< stamp of the crossing that was counted last
    zeit_ms pause_abzug = 0;     ///< pause to take off the next lap
    dauer_s strafzeit{};         ///< time penalty
    bool ziel_erreicht = false;  ///< home; true from the start for lanes that are not in the race
    bool disqualifiziert = false;
    bool fruehstart_sperre = false;  ///< serves a penalty, of a false start or a pause, and counts nothing
    zeitsperre sperre;               ///< of that
    double tank_inhalt = 0;          ///< litres
    bool tank_kontakt = false;       ///< stands on the tank contact
    zeit_ms tankt_seit = 0;          ///< stamp up to which refuelling has come, 0 while the lane does not refuel
    dauer_hs tank_wartezaehler{};    ///< of the wait before refuelling
    dauer_hs tank_strafzaehler{};    ///< of the penalty of an empty tank
    bool tank_strafe_aktiv = false;  ///< serves the penalty of an empty tank
    zeitsperre tank_sperre;          ///< of that
    zeitsperre tank_halt;            ///< held for a moment after a full tank
    zeit_ms prellen_bis = 0;         ///< stamp up to which a crossing is the last one once more
    bool strom_aus = false;          ///< home, out or in a penalty: the track power is cut
    zeit_ms verworfen_bei = zeitsperre::seit_immer;  ///< stamp of the crossing that was forgotten last
    zeit_ms pause_im_stempel = 0;                    ///< `gezaehlt_bei` has been moved behind a pause that was so long
    bool ch_durchfahrt = false;                      ///< crossed the sensor while the pause was starting
    zeit_ms ch_durchfahrt_zeit = 0;                  ///< stamp of that
    zeit_ms ch_strafe_rest = 0;                      ///< power penalty of a pause still to serve
    sensorsperre sensor_sperre = sensorsperre::unbestimmt;
    letzte_ablehnung abgelehnt;  ///< the last one, but for a contact that bounces; only to be shown

    /// The crossing falls in a penalty of a false start or a pause.
    bool gesperrt(const ereignis_zeile& ueberfahrt) const {
        return sperre.gilt(ueberfahrt.ereignis_zeit, ueberfahrt.verschoben != 0, fruehstart_sperre);
    }
    /// In that of an empty tank.
    bool tank_gesperrt(const ereignis_zeile& ueberfahrt) const {
        return tank_sperre.gilt(ueberfahrt.ereignis_zeit, ueberfahrt.verschoben != 0, tank_strafe_aktiv);
    }
    /// In the moment after a full tank.
    bool tank_haelt(const ereignis_zeile& ueberfahrt) const {
        return tank_halt.gilt(ueberfahrt.ereignis_zeit, ueberfahrt.verschoben != 0, false);
    }

    /// What the time penalty adds to a lap: as many thousandths as it has seconds. Its seconds are added to the result.
    zeit_ms strafzuschlag() const { return strafzeit.count(); }
};

/// The pause that is, or the last one.
struct pausen_zustand {
    zeit_ms start = 0;             ///< stamp
    zeit_ms dauer = 0;             ///< of the last pause that has ended
    int ch_zaehler = 0;            ///< ticks of the window in which crossings are still collected
    bool schalter_stand = false;   ///< the chaos switch was seen on
    zeit_ms schalter_zuletzt = 0;  ///< stamp at which it was last seen on after a pause
    bool nachlauf_nach_pause = false;
    bool ausfall = false;           ///< the program was away: it ends by the small light, whatever the settings say
    bool geraet_rot = false;        ///< the light of the device has been red in this pause
    zeit_ms neustart_verlangt = 0;  ///< stamp at which that light was asked for, 0 not yet
    /// Stamp at which another one was asked for too soon behind it; only to be shown.
    zeit_ms zu_frueh_verlangt = zeitsperre::seit_immer;
};

/// A pause of the race, or the break between its end and the light with which it went on, by its stamps.
struct rennpause {
    zeit_ms von = 0;
    zeit_ms bis = 0;
    // of a break
    spuren<bool> daheim = {};               ///< for these lanes it began with their last crossing
    std::optional<zeit_ms> uhr_stand = {};  ///< on the race's clock, as it went on
};

/// The record of the running race. Reset at each race.
struct renn_zustand {
    spuren<spur_zustand> spur;
    rundenkonto konto;  ///< the laps

    zeit_ms start_zeit = 0;   ///< stamp of the race start
    zeit_ms pause_abzug = 0;  ///< sum of the pauses; moves the end of the race, not its start
    /// That sum as the race was over, for a run-on or for good.
    std::optional<zeit_ms> pausen_bis_ende = {};
    /// Of that sum, what a better knowledge of the clock still changes: the last so many ms; none is all of it. Below 0
    /// in a pause whose first so many ms it leaves alone.
    std::optional<zeit_ms> pausen_messbar = {};
    zeit_ms renn_ende_zeit = 0;                   ///< `start_zeit` + duration
    zeit_ms renn_ende_stempel = 0;                ///< stamp at the moment the race was ended
    std::vector<rennpause> unterbrechungen = {};  ///< the breaks
    int fuehrungsrunden = 0;                      ///< most laps that any lane has reached
    int nachlauf_minuten = 0;                     ///< minutes of the run-on so far
    dauer_ms ampel_takt{1500};                    ///< last step of the start light, for this start
    int ziele_anzahl = 0;                         ///< lanes that are home, unused ones included
    bool rennen_beendet = true;
    bool fortgesetzt = false;         ///< the race goes on from an earlier result
    bool fortsetzung_wartet = false;  ///< and its light has not gone green yet
    bool umgesetzt = false;           ///< drivers stand on their next lanes and have not driven there yet
    bool chaos_aktiv = false;         ///< the race is paused
    pausen_zustand pause;
    bool ende_eingeleitet = false;  ///< guards against a second reason to end
    bool endesound_gespielt = false;
    bool rennabbruch = false;          ///< stopped by hand: the result is not a normal finish
    std::string rennen_start_uhrzeit;  ///< date and time of day
    std::string rennen_ende_uhrzeit;

    /// The clock that stamps have been taken from turns out to be `um` ms behind.
    void stempel_verschieben(zeit_ms um);
    /// The same, but the crossings are right: they were stamped by the clock itself.
    void uhr_nachruecken(zeit_ms um);

    /// Pauses were measured on a clock that runs `faktor` times as fast as was thought.
    void pausen_nachmessen(double faktor);
    /// But not what lies before this stamp, at which that clock was found anew.
    void pausen_festhalten(zeit_ms stempel);

    /// What is left of the penalties of pauses is served from this stamp on.
    void strafreste_ab(zeit_ms stempel) {
        for (spur_zustand& s : spur) {
            s.sperre.bis = s.ch_strafe_rest > 0 ? stempel + s.ch_strafe_rest : s.sperre.bis;
        }
    }

    /// What has been paused since the race was over.
    zeit_ms pausen_im_nachlauf() const { return pause_abzug - pausen_bis_ende.value_or(pause_abzug); }

    /// Stamp from which the lap is timed that the lane is in.
    zeit_ms rundenbeginn(int nummer) const;

    /// Time in which the race stood still: moves its end, and comes off the lap that each lane is in.
    void unterbrechung_abziehen(zeit_ms dauer) {
        pause_abzug += dauer;
        if (pausen_messbar) {
            *pausen_messbar += dauer;
        }
        for (spur_zustand& s : spur) {
            s.pause_abzug += dauer;
            s.tankt_seit = 0;  // nobody refuels meanwhile
        }
    }
};

}  // namespace tarvel
