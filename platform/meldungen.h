#pragma once

#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// Message boxes. They return when the operator has closed the box; timers go on ticking meanwhile.
class meldungen : public schnittstelle {
public:
    virtual void zeigen(std::string_view text, std::string_view titel) = 0;
    /// A question with yes and no; closing the box means no.
    virtual bool fragen(std::string_view text, std::string_view titel) = 0;
};

}  // namespace tarvel::plattform
