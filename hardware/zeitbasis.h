#pragma once

#include <array>
#include <cstddef>
#include <limits>

#include "core/mitschrift.h"
#include "platform/uhr.h"

namespace tarvel {

/// Where the stamps of a race come from: the machine's millisecond counter, or the clock of a device that stamps its
/// events itself and that the counter is kept in step with.
class zeitbasis {
public:
    explicit zeitbasis(const plattform::uhr& uhr) : uhr_(uhr) {}

    /// What devices do to the clock goes through this from now on.
    void mitschreiben(mitschrift& protokoll);

    /// The stamp used everywhere in a race.
    zeit_ms messzeit_lesen() const;

    /// A stamp that differs from the one read just before, even within the same millisecond: adds 1, 2 ... 9, 0 in
    /// turn; not for a clock that stands for itself.
    zeit_ms ereignis_zeit_lesen();

    /// A device's clock stands at `geraetezeit` now.
    void stellen(zeit_ms geraetezeit) { stellen(geraetezeit, gang_); }
    void stellen(zeit_ms geraetezeit, double gang) { tun(eingang::stellen, geraetezeit, gang); }
    /// That clock turns out to stand at `geraetezeit` now, and to run `gang` ms in each of the machine's. The reading
    /// does not go back for it: it waits.
    void nachstellen(zeit_ms geraetezeit, double gang) { tun(eingang::nachstellen, geraetezeit, gang); }
    /// Its milliseconds in one of the machine's.
    double gang() const { return gang_; }
    /// A device has told its time: stamps that differ begin anew.
    void zaehler_zuruecksetzen() { tun(eingang::zaehler, 0, 0); }
    /// The device's clock stands for itself, until it is released: nothing is added to its stamps.
    void nicht_zaehlen() { tun(eingang::nicht_zaehlen, 0, 0); }
    /// No device any more: the machine's counter itself.
    void freigeben() { tun(eingang::freigeben, 0, 0); }
    /// How the clock stands, as numbers.
    mitschrift::werte stand() const;
    /// It stands like that, which the log of a race is told.
    void stand_setzen(const mitschrift::werte& stand);

private:
    enum class eingang { stellen, nachstellen, zaehler, nicht_zaehlen, freigeben, stand };
    static constexpr std::size_t eingaenge = 6;
    static constexpr zeit_ms nie = std::numeric_limits<zeit_ms>::min();

    void tun(eingang was, zeit_ms geraetezeit, double gang);
    void ausfuehren(eingang was, const mitschrift::werte& w);
    void setzen(zeit_ms geraetezeit, double gang);

    const plattform::uhr& uhr_;
    zeit_ms bezug_ = 0;  ///< reading of the machine's counter at which the clock stood at `stand_`
    zeit_ms stand_ = 0;
    double gang_ = 1;
    zeit_ms mindestens_ = nie;
    int zeit_zaehler_ = 0;
    bool zaehlt_ = true;
    mitschrift* protokoll_ = nullptr;
    std::array<int, eingaenge> eingang_{};  ///< numbers of the doings
};

}  // namespace tarvel
