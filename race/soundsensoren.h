#pragma once

#include "race/umgebung.h"

namespace tarvel {

/// The sound sensors: eight inputs that play a sound each and are then held off for a while.
class soundsensoren {
public:
    explicit soundsensoren(const renn_umgebung& um) : um_(um) {}

    /// Once per race tick. With sounds off the events stay as they are. A hit during the hold-off plays at its end.
    void soundsensoren_pruefen();

private:
    renn_umgebung um_;
};

}  // namespace tarvel
