#pragma once

#include <string>
#include <string_view>

#include "platform/uhr.h"

namespace tarvel {

/// Minutes and seconds as they are typed: "5,30" is five and a half minutes, and so is "5,3".
struct renndauer_angabe {
    zeit_ms minuten = 0;
    zeit_ms sekunden = 0;  ///< 0 to 59

    zeit_ms in_ms() const { return minuten * 60000 + sekunden * 1000; }
    /// In its tidy form: seconds only where there are some.
    std::string text() const;
};

renndauer_angabe renndauer_lesen(std::string_view text);
/// Milliseconds beyond whole seconds are dropped.
renndauer_angabe renndauer_aus_ms(zeit_ms dauer);

}  // namespace tarvel
