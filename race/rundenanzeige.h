#pragma once

#include "core/steuerelemente.h"
#include "core/zeit.h"
#include "race/umgebung.h"

namespace tarvel {

/// "23,456", and from a minute on with the minutes drawn in front of that.
void kurz_zeigen(steuerelement& label, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);
/// The lane's last or best lap in its display, which says so: a sector may have stood there.
void letzte_runde_zeigen(bahn1& bahn, int spur, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);
void beste_runde_zeigen(bahn1& bahn, int spur, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);
/// The same as a row of a lane's laps.
void kurz_auflisten(liste& zeilen, int runde, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);

/// What the race window and the loudspeaker tell of a lap that is complete.
class rundenanzeige {
public:
    explicit rundenanzeige(const renn_umgebung& um) : um_(um) {}

    /// The lane's last lap took `zeit` ms: its sounds, last and best lap, the lap list. Lap 0 only starts the list.
    /// `zeit` may be longer than the lap that was counted: the best lap goes by that one.
    void runde_melden(int spur, zeit_ms zeit);
    /// The best lap again, after a lap was taken off.
    void beste_zeigen(int spur);

private:
    renn_umgebung um_;
};

}  // namespace tarvel
