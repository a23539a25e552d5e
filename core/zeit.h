#pragma once

#include <array>
#include <string>

#include "platform/kalender.h"
#include "platform/uhr.h"

namespace tarvel {

struct zeit_teile {
    zeit_ms stunden = 0;
    zeit_ms minuten = 0;  ///< 0 to 59
    zeit_ms sekunden = 0;
    zeit_ms millisekunden = 0;
};

/// Splits a duration. All parts of a negative one are 0 or negative.
zeit_teile zeit_zerlegen(zeit_ms zeit);

/// 0: between hours, minutes and seconds; 1: between seconds and thousandths; 2: between the columns of result files.
using trennzeichen_tabelle = std::array<std::string, 3>;
inline const trennzeichen_tabelle trennzeichen_standard{":", ",", ";"};

/// Long: minutes, seconds, thousandths ("01:23,456"), hours dropped. Short: seconds and thousandths only ("23,456"), so
/// a lap of 65 s shows as "05,000". Negative durations count as 0.
std::string zeit_formatieren(zeit_ms zeit, bool lang, const trennzeichen_tabelle& trennzeichen);
/// What the short form leaves out: "1:", or nothing below a minute.
std::string minuten_davor(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen);

/// "21.11.2026".
std::string datum_text(const plattform::datum_uhrzeit& moment);

/// Date + "-" + time, as the result files hold it: "21.11.2026-14:03:22".
std::string uhrzeit_text(const plattform::datum_uhrzeit& moment);

}  // namespace tarvel
