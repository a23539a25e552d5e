#pragma once

#include "platform/uhr.h"

namespace tarvel {

/// Where the stamps of a race come from: the machine's millisecond counter, or the clock of a device that stamps its
/// events itself and that the counter is kept in step with.
class zeitbasis {
public:
    explicit zeitbasis(const plattform::uhr& uhr) : uhr_(uhr) {}

    /// The stamp used everywhere in a race.
    zeit_ms messzeit_lesen() const { return uhr_.jetzt() - versatz_; }

    /// A stamp that differs from the one read just before, even within the same millisecond: adds 1, 2 ... 9, 0 in
    /// turn.
    zeit_ms ereignis_zeit_lesen();

    /// A device's clock stands at `geraetezeit` now.
    void stellen(zeit_ms geraetezeit) { versatz_ = uhr_.jetzt() - geraetezeit; }
    /// What the machine's counter is ahead of the device's clock, in ms; 0 without such a device.
    void versatz(zeit_ms neu) { versatz_ = neu; }
    zeit_ms versatz() const { return versatz_; }

private:
    const plattform::uhr& uhr_;
    zeit_ms versatz_ = 0;
    int zeit_zaehler_ = 0;
};

}  // namespace tarvel
