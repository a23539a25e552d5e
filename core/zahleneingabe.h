#pragma once

#include <string_view>

namespace tarvel {

/// The operator has typed a number, with comma or point, whatever follows it. A text that is none reads as 0
/// everywhere, and should not do so unsaid.
bool ist_zahl(std::string_view text);

}  // namespace tarvel
