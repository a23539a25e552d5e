#pragma once

#include <string_view>

/// The words of a log that its writer and its reader share.
namespace tarvel::mitschriftwort {

inline constexpr std::string_view uhrsprung = "u";
inline constexpr std::string_view gezaehlt = "gezaehlt";  ///< behind the time: what has counted on, and how often
inline constexpr int laeufe_max = 1000;                   ///< in a line
inline constexpr std::string_view kopf = "#";
inline constexpr std::string_view andere_uhr = "Uhr";  ///< behind that: the times count from there

}  // namespace tarvel::mitschriftwort
