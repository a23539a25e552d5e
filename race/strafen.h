#pragma once

#include "race/rennansicht.h"
#include "race/umgebung.h"

namespace tarvel {

/// Punishment of single lanes: time added to the result, track power cut for a while.
class strafen {
public:
    strafen(const renn_umgebung& um, rennansicht& ansicht);

    /// Adds to the lane's penalty and shows the sum.
    void zeitstrafe(int spur, dauer_s mehr);
    void straflabel_zeigen(int spur);

    /// Cuts the lane's power; its small light goes to red.
    void spur_strom_aus(int spur);
    /// A penalty is served: the lane gets its power back, unless it is out or home meanwhile.
    void spur_strom_an(int spur);
    /// Power for every lane, whatever held it off.
    void alle_strom_an();
    /// Power for all lanes but those that are home, out or in a penalty.
    void strom_wiederherstellen();

    /// A hundredth of a second of the false-start penalty. At its end all locked lanes get their power back and stay
    /// locked for one more minimum lap, so that rolling on over the sensor is no lap.
    void f_straftimer_tick();
    void f_straftimer2_tick();

private:
    /// Locked for a false start, not for a pause.
    bool verbuesst_fruehstart(int spur) const;
    void nullzeile_eintragen(int spur);

    renn_umgebung um_;
    rennansicht& ansicht_;
};

}  // namespace tarvel
