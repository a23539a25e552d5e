#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvel {

/// The address of a printer port as its hexadecimal digits, and back; none for anything else, for addresses where no
/// such port is, and where its registers would lie beyond the last one: these do not hold.
bool portadresse_gilt(int adresse);
std::string portadresse_text(int adresse);
std::optional<int> portadresse_lesen(std::string_view text);

}  // namespace tarvel
