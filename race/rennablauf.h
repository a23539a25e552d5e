#pragma once

#include <functional>

#include "platform/schnittstelle.h"
#include "race/blinken.h"
#include "race/fruehstartstrafe.h"
#include "race/positionen.h"
#include "race/rennansicht.h"
#include "race/rennende.h"
#include "race/rennuhr.h"
#include "race/rundenzaehlung.h"
#include "race/sektoren.h"
#include "race/soundsensoren.h"
#include "race/umgebung.h"

namespace tarvel {

/// What the pauses do in the race's life; they need the race themselves.
class pausenteil : public schnittstelle {
public:
    virtual void zuruecksetzen() = 0;
    virtual void pruefen() = 0;
};

/// The life of one race: window, reset, start, and the order of work in its ticks.
class rennablauf {
public:
    struct teile {
        positionen& plaetze;
        rennuhr& uhr;
        rennende& ende;
        rundenzaehlung& zaehlung;
        rennansicht& ansicht;
        tarvel::blinken& blinken;
        fruehstartstrafe& fruehstart;
        tanken& tank;
        sektoren& sektor;
        soundsensoren& sensoren;
    };

    rennablauf(const renn_umgebung& um, const teile& t);

    pausenteil* pause = nullptr;  ///< set before the first race

    /// Load handler of the race window.
    void laden();
    /// Unload handler: nothing of the race goes on behind a closed window.
    void entladen();

    void rennen_zuruecksetzen();
    /// All that comes before the start light, and hands over to it.
    void rennstart_vorbereiten();
    /// Hands the track over to the warm-up that comes before the race.
    void einfahrzeit_starten();
    /// The track is at rest and the race can start. Nothing of the warm-up waits for it.
    void einfahrzeit_beendet() { einfahrzeit_beendet_(); }
    /// Without a start light: the clock and the race timers start, and the commands are free at once.
    void rennen_starten();
    /// The work of every start, timed from `stempel`. Lanes that have been stamped by a false start keep their stamp if
    /// each lane is timed from its own first crossing.
    void rennen_starten(zeit_ms stempel);
    /// The commands of the running race.
    void befehle_freigeben();
    /// The start light has been stopped before green: ready for another start.
    void start_abgebrochen();
    /// Polls all devices, and gives the operator the commands of one that has gone.
    void quellen_abfragen();

private:
    /// The commands before a start.
    void vor_dem_start();
    void freigeben_nach_einfahrzeit();
    void ampel_takt_bestimmen();
    bool mit_einfahrzeit() const { return um_.teil_von.wer_startet() == starter::einfahrzeit; }
    void renntimer_tick();
    void renntimer2_tick();
    void renntimer3_tick();

    renn_umgebung um_;
    teile t_;
    std::function<void()> einfahrzeit_beendet_;
    bool am_geraet_ = false;  ///< at the last poll a device ran the start light
};

}  // namespace tarvel
