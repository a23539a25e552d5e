#pragma once

#include "race/umgebung.h"

namespace tarvel {

/// Before the race the start light flashes red and green in turn, to show that the window stands ready.
class blinken {
public:
    explicit blinken(const renn_umgebung& um);

    /// Unless the settings are without it.
    void beginnen();
    /// Green stays, as between races.
    void beenden();

private:
    void blinktimer_tick();

    renn_umgebung um_;
    bool blink_stand_ = false;  ///< red is lit
};

}  // namespace tarvel
