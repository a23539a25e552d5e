#pragma once

#include "race/umgebung.h"

namespace tarvel {

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
