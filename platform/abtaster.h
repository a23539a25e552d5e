#pragma once

#include <functional>
#include <memory>

#include "platform/dauer.h"
#include "platform/schnittstelle.h"
#include "platform/uhr.h"

namespace tarvel::plattform {

/// Looks at devices that tell nothing by themselves, each on a thread of its own: what holds the program up, a drawing
/// or a dialog, costs neither an edge nor its time.
class abtaster_dienst : public schnittstelle {
public:
    /// Calls `blick` about every `abstand` with the reading of the clock, until what it returns is gone; that waits for
    /// a call under way. `blick` runs beside the program: it touches only what two threads may share. One that a device
    /// keeps waiting holds up only itself; at the end it is waited for a moment, and then left behind. So `blick` owns
    /// what it touches, and lets go of it beside the program, with its last call.
    [[nodiscard]] virtual std::unique_ptr<schnittstelle> starten(dauer_ms abstand,
                                                                 std::function<void(zeit_ms)> blick) = 0;
};

}  // namespace tarvel::plattform
