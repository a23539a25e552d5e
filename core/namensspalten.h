#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// Where the rows of a list in letters of one width hold names, in characters from 0. There the names are whole; a
/// drawing that has less room makes these columns narrower, all by the same.
struct namensspalten {
    std::vector<std::size_t> ab;  ///< first character of each, from left to right
    std::size_t breite = 0;       ///< of each
    std::size_t mindestens = 0;   ///< no drawing makes them narrower
    /// Rows from this one on have none.
    std::size_t zeilen = std::numeric_limits<std::size_t>::max();

    bool operator==(const namensspalten&) const = default;
};

/// Wide enough for the longest of the names and for so many characters at least; for no more than can be typed.
std::size_t namensbreite(const std::vector<std::string>& namen, std::size_t mindestens);
/// With blanks behind it to exactly so many characters; what is longer ends in "…".
std::string eingepasst(std::string_view text, std::size_t breite);

/// Width of the columns at which a row of `zeichen` needs no more than `platz`.
std::size_t passende_breite(const namensspalten& namen, std::size_t zeichen, std::size_t platz);
/// The row with columns of that width.
std::string mit_schmalen_namen(std::string_view zeile, const namensspalten& namen, std::size_t breite);
/// Those of its names that are not whole there, with ", " between them.
std::string gekuerzte_namen(std::string_view zeile, const namensspalten& namen, std::size_t breite);

}  // namespace tarvel
