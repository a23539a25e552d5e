#pragma once

#include <cstdint>

#include "platform/schnittstelle.h"

namespace tarvel {

/// Time stamps and durations: whole milliseconds of the active time source, never a time of day.
using zeit_ms = std::int64_t;

namespace plattform {

/// The machine's monotonic millisecond counter (GetTickCount). It starts at an arbitrary value.
class uhr : public schnittstelle {
public:
    virtual zeit_ms jetzt() const = 0;
};

}  // namespace plattform
}  // namespace tarvel
