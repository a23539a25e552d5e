#pragma once

#include <array>

#include "race/umgebung.h"

namespace tarvel {

/// The two clocks of the race window and the countdown sounds of a time race.
class rennuhr {
public:
    explicit rennuhr(const renn_umgebung& um) : um_(um) {}

    /// The clocks before the start: the duration of a time race, else zero.
    void zuruecksetzen();
    /// Twice per race tick. Stands still in a pause and when the race tick is off.
    void rennuhr_anzeigen();
    /// The same as it would be at this stamp, and nothing else.
    void zeigen_bei(zeit_ms messzeit);
    /// Sets the clocks again for a race that is continued from its result.
    void fortsetzen_uhreinstellen();
    /// The race is over at time zero.
    void auf_null_stellen();
    void tausendstel_auf_null();
    /// Arms the countdown sounds that `dauer` ms of race are long enough for.
    void restzeit_vorbereiten(zeit_ms dauer);

private:
    static constexpr int restzeit_anzahl = 16;

    bool laeuft() const {
        return um_.zeitgeber.renntimer->laeuft() && !um_.zustand.chaos_aktiv && !um_.zustand.rennen_beendet;
    }
    void schreiben(zeit_ms gefahren, zeit_ms rest);
    void restzeit_sounds();
    zeit_ms ende() const { return um_.zustand.renn_ende_zeit + um_.zustand.pause_abzug; }
    zeit_ms gefahren_bei(zeit_ms messzeit) const { return messzeit - um_.zustand.start_zeit - um_.zustand.pause_abzug; }
    zeit_ms gefahren() const { return gefahren_bei(um_.ereignisse.messzeit); }

    renn_umgebung um_;
    std::array<bool, restzeit_anzahl + 1> zeit_sound_offen_{};  ///< index 1 to 16: still to be played
};

}  // namespace tarvel
