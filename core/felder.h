#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"

namespace tarvel {

/// The fields of a file: separated by commas or line ends, with or without double quotes; a blank line is one empty
/// field. At most `anzahl` fields; none if the file cannot be read.
std::optional<std::vector<std::string>> felder_lesen(const dateien& ablage, std::string_view datei, std::size_t anzahl);

/// The text as a field of a file. Double quotes in it, which no reader could tell from the field's own, become single
/// ones.
std::string als_feld(std::string_view text);

}  // namespace tarvel
