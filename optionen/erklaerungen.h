#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvel {

/// What an option does, for all who ask: the pointer that rests on it, and the handbook's list of all options.
struct erklaerung {
    std::string_view seite;  ///< of the options window
    std::string_view titel;  ///< in the handbook
    std::string_view namen;  ///< of the rows that it explains
    std::string_view deutsch;
};

/// In the order of the pages.
const std::vector<erklaerung>& erklaerungen();
/// The one for the row of this name, by its place among them.
std::optional<std::size_t> erklaerung_fuer(std::string_view name);

}  // namespace tarvel
