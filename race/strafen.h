#pragma once

#include "race/rennansicht.h"
#include "race/umgebung.h"

namespace tarvel {

/// Punishment of single lanes: time added to the result, track power cut for a while.
class strafen {
public:
    strafen(const renn_umgebung& um, rennansicht& ansicht) : um_(um), ansicht_(ansicht) {}

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

private:
    renn_umgebung um_;
    rennansicht& ansicht_;
};

}  // namespace tarvel
