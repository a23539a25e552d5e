#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "platform/kalender.h"

namespace tarvel {

/// A result file is known by one of these lines, not by its name.
inline constexpr std::string_view magie_einzelrennen = "TV-ERD";
inline constexpr std::string_view magie_wettkampf = "TV-WKD";
inline constexpr std::string_view magie_jeder_gegen_jeden = "TV-JJ2-WKD";
inline constexpr std::string_view magie_tagesrennen = "Tarvel Tagesrennen";
inline constexpr std::string_view web_adresse = "https://tarvel.invalid";

namespace ergebnis_ordner {
inline constexpr std::string_view einzelrennen = "Ergebnisse\\Einzelrennen";
inline constexpr std::string_view auto_einzelrennen = "Ergebnisse\\auto-Einzelrennen";
inline constexpr std::string_view tagesrennen = "Ergebnisse\\Tagesrennen";
inline constexpr std::string_view wettkampf = "Ergebnisse\\Wettkampf";
inline constexpr std::string_view wettkampf_zwischenstand = "Ergebnisse\\Wettkampf-Zwischenstand";
}  // namespace ergebnis_ordner

enum class ergebnis_typ { unbekannt, einzelrennen, wettkampf, jeder_gegen_jeden, tagesrennen };

/// At most 10100 lines; none if the file cannot be read.
std::vector<std::string> ergebnis_zeilen_lesen(const dateien& ablage, std::string_view name);
ergebnis_typ datei_typ_erkennen(const std::vector<std::string>& zeilen);

/// Name of a result file: date and time without their separators and without the last digit of the seconds.
std::string ergebnis_stempel(const plattform::datum_uhrzeit& moment);

/// The time in the name of such a file, wherever it lies: "21.11.2026 14:03"; empty without one.
std::string zeitpunkt_im_namen(std::string_view pfad);
/// Its date alone.
std::string datum_im_namen(std::string_view pfad);

/// A separator within a name would move the columns.
std::string ohne_trenner(std::string text, const std::string& trenner);

}  // namespace tarvel
