#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// The registers of the parallel port. A machine without one, or that lets nobody at it, has none of them.
class druckerport : public schnittstelle {
public:
    /// The byte at this address, 0 to 0xFFFF; none if it cannot be read.
    virtual std::optional<std::uint8_t> lesen(int adresse) = 0;
    /// False if it cannot be written.
    virtual bool schreiben(int adresse, std::uint8_t wert) = 0;
    /// Through what it would be reached, and what of that is missing; for the operator who looks for the reason.
    virtual std::string weg() const { return {}; }
};

}  // namespace tarvel::plattform
