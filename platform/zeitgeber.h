#pragma once

#include <functional>
#include <memory>

#include "platform/dauer.h"
#include "platform/schnittstelle.h"

namespace tarvel::plattform {

enum class zeitgeber_art {
    abfragend,  ///< fires as often as it can, at most once per turn of the event loop; missed ticks are dropped
    zaehlend    ///< its ticks stand for time: ticks that were missed are made up for
};

/// A periodic timer. A sequence of steps is a chain of timers: a tick first switches its own timer off and last the
/// next one on.
class zeitgeber : public schnittstelle {
public:
    /// A timer with an interval below 1 ms never fires. Changing it starts the running interval anew.
    virtual void intervall(dauer_ms dauer) = 0;
    /// Switching on a running timer changes nothing.
    virtual void an() = 0;
    virtual void aus() = 0;
    virtual bool laeuft() const = 0;

    std::function<void()> bei_tick;
};

class zeitgeber_dienst : public schnittstelle {
public:
    virtual std::unique_ptr<zeitgeber> erzeugen(zeitgeber_art art, dauer_ms intervall) = 0;
};

}  // namespace tarvel::plattform
