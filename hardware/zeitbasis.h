#pragma once

#include "platform/uhr.h"

namespace tarvel {

/// Where the stamps of a race come from: the machine's millisecond counter.
class zeitbasis {
public:
    explicit zeitbasis(const plattform::uhr& uhr) : uhr_(uhr) {}

    /// The stamp used everywhere in a race.
    zeit_ms messzeit_lesen() const { return uhr_.jetzt(); }

    /// A stamp that differs from the one read just before, even within the same millisecond: adds 1, 2 ... 9, 0 in
    /// turn.
    zeit_ms ereignis_zeit_lesen();

private:
    const plattform::uhr& uhr_;
    int zeit_zaehler_ = 0;
};

}  // namespace tarvel
