#pragma once

#include <string_view>

namespace tarvel::plattform {

/// Message boxes. `zeigen` returns when the operator has closed the box; timers go on ticking meanwhile.
class meldungen {
public:
    virtual ~meldungen() = default;
    virtual void zeigen(std::string_view text, std::string_view titel) = 0;
};

}  // namespace tarvel::plattform
