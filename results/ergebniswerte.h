#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/zeit.h"
#include "platform/dauer.h"

/// The figures in the lines of result files. A figure that cannot be read is 0.
namespace tarvel {

/// The fields of a line; an empty separator separates nothing.
std::vector<std::string> felder_teilen(std::string_view zeile, std::string_view trenner);
std::string felder_verbinden(const std::vector<std::string>& felder, std::string_view trenner);

/// Of the digits alone, from the right: three of thousandths, two of seconds, two of minutes, the others are hours.
zeit_ms ergebniszeit_lesen(std::string_view text);
/// Such a text has digits for its hours. What the program writes of a race has none.
bool nennt_stunden(std::string_view text);
/// A total that was written without its hours, with those that the sum of its laps calls for.
zeit_ms mit_stunden(zeit_ms gesamtzeit, zeit_ms rundensumme);
/// What a total holds beside the sum of its laps, if that is a penalty: those are whole seconds. 0 for none.
dauer_s strafzeit_von(zeit_ms gesamtzeit, zeit_ms rundensumme);
/// As the files hold a time, with its hours from the first one on: "01:23,456", "1:01:23,456".
std::string ergebniszeit(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);

/// Metres with any decimal mark of the program's.
double ergebnismeter_lesen(std::string_view text, const trennzeichen_tabelle& trennzeichen);
std::int64_t ergebnisrunden_lesen(std::string_view text);

}  // namespace tarvel
