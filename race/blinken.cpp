#include "race/blinken.h"

namespace tarvel {

blinken::blinken(const renn_umgebung& um) : um_(um) {
    um_.zeitgeber.blinktimer->bei_tick = [this] { blinktimer_tick(); };
}

void blinken::beginnen() {
    blink_stand_ = false;
    if (um_.einst.blinken_an) {
        um_.zeitgeber.blinktimer->an();
    }
}

void blinken::beenden() {
    const bool rot = um_.zeitgeber.blinktimer->laeuft() && blink_stand_;
    um_.zeitgeber.blinktimer->aus();
    if (rot) {  // a race without a light must not be driven on red
        blinktimer_tick();
    }
}

void blinken::blinktimer_tick() {
    blink_stand_ = !blink_stand_;
    if (blink_stand_) {
        um_.ausgaben.ampelnRon(0);
        um_.ausgaben.ampelnGRoff();
    } else {
        um_.ausgaben.ampelnRoff(0);
        um_.ausgaben.ampelnGRon();
    }
}

}  // namespace tarvel
