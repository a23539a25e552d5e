#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

/// The address of a port of the machine as its hexadecimal digits, and back; none for anything else, or where the
/// registers of a printer port would lie beyond the last one.
std::string portadresse_text(int adresse);
std::optional<int> portadresse_lesen(std::string_view text);

}  // namespace tarvel
