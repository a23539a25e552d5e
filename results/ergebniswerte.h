#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/zeit.h"

/// The figures in the lines of result files. A figure that cannot be read is 0.
namespace tarvel {

/// The fields of a line; an empty separator separates nothing.
std::vector<std::string> felder_teilen(std::string_view zeile, std::string_view trenner);
std::string felder_verbinden(const std::vector<std::string>& felder, std::string_view trenner);

/// Of the digits alone, from the right: three of thousandths, two of seconds, two of minutes, the others are hours.
zeit_ms ergebniszeit_lesen(std::string_view text);
/// As the files hold a time, with its hours from the first one on: "01:23,456", "1:01:23,456".
std::string ergebniszeit(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);

/// Metres with any decimal mark of the program's.
double ergebnismeter_lesen(std::string_view text, const trennzeichen_tabelle& trennzeichen);
std::int64_t ergebnisrunden_lesen(std::string_view text);

}  // namespace tarvel
