#pragma once

#include <limits>

#include "platform/uhr.h"

namespace tarvel {

/// Where the stamps of a race come from: the machine's millisecond counter, or the clock of a device that stamps its
/// events itself and that the counter is kept in step with.
class zeitbasis {
public:
    explicit zeitbasis(const plattform::uhr& uhr) : uhr_(uhr) {}

    /// The stamp used everywhere in a race.
    zeit_ms messzeit_lesen() const;

    /// A stamp that differs from the one read just before, even within the same millisecond: adds 1, 2 ... 9, 0 in
    /// turn; not for a clock that stands for itself.
    zeit_ms ereignis_zeit_lesen();

    /// A device's clock stands at `geraetezeit` now.
    void stellen(zeit_ms geraetezeit) { stellen(geraetezeit, gang_); }
    void stellen(zeit_ms geraetezeit, double gang);
    /// That clock turns out to stand at `geraetezeit` now, and to run `gang` ms in each of the machine's. The reading
    /// does not go back for it: it waits.
    void nachstellen(zeit_ms geraetezeit, double gang);
    /// A device has told its time: stamps that differ begin anew.
    void zaehler_zuruecksetzen() { zeit_zaehler_ = 0; }
    /// The device's clock stands for itself, until it is released: nothing is added to its stamps.
    void nicht_zaehlen() { zaehlt_ = false; }
    /// No device any more: the machine's counter itself.
    void freigeben();

private:
    static constexpr zeit_ms nie = std::numeric_limits<zeit_ms>::min();

    const plattform::uhr& uhr_;
    zeit_ms bezug_ = 0;  ///< reading of the machine's counter at which the clock stood at `stand_`
    zeit_ms stand_ = 0;
    double gang_ = 1;
    zeit_ms mindestens_ = nie;
    int zeit_zaehler_ = 0;
    bool zaehlt_ = true;
};

}  // namespace tarvel
