#pragma once

#include <string_view>

/// What a race notes in its log of its own decisions. Behind the word stand the lane, unless it says otherwise, and
/// then, in ms, what it lists.
namespace tarvel::vermerk {

inline constexpr std::string_view gruen = "Gruen";            ///< no lane; stamp of the start
inline constexpr std::string_view fruehstart = "Fruehstart";  ///< stamp
inline constexpr std::string_view runde = "Runde";            ///< number of the lap, its time, stamp of the crossing
inline constexpr std::string_view abgelehnt = "Abgelehnt";  ///< number of the `ablehnung`, stamp, and what it is about
inline constexpr std::string_view abzug = "Abzug";          ///< laps that are left
inline constexpr std::string_view sektor = "Sektor";        ///< its number, its time
inline constexpr std::string_view platz = "Platz";          ///< the place
inline constexpr std::string_view pause = "Pause";          ///< no lane; stamp of the beginning
inline constexpr std::string_view weiter = "Weiter";        ///< no lane; stamp, length of the pause
inline constexpr std::string_view durchfahrt = "Durchfahrt";  ///< stamp; rolled over the line as the pause began
inline constexpr std::string_view schalter = "Schalter";      ///< no lane; the switch that began the pause is off
inline constexpr std::string_view strafe = "Strafe";          ///< seconds, 1 if they are without power
inline constexpr std::string_view strom_aus = "StromAus";
inline constexpr std::string_view strom_an = "StromAn";
inline constexpr std::string_view leer = "Leer";  ///< number of the `leer_aktion`
inline constexpr std::string_view voll = "Voll";
inline constexpr std::string_view tankt = "Tankt";         ///< hundredths of a litre at the beginning
inline constexpr std::string_view tank_ende = "TankEnde";  ///< hundredths of a litre
inline constexpr std::string_view ziel = "Ziel";
inline constexpr std::string_view letzte = "Letzte";    ///< no lane; stamp from which the race is run to its end
inline constexpr std::string_view ende = "Ende";        ///< no lane; stamp of the end, 1 if it was ended by hand
inline constexpr std::string_view abbruch = "Abbruch";  ///< no lane; broken off without a result

}  // namespace tarvel::vermerk

namespace tarvel {

/// Line behind the doings: the race window was closed.
inline constexpr std::string_view protokoll_geschlossen = "Geschlossen";

/// Why a crossing was not counted. The numbers stand in logs.
enum class ablehnung {
    nicht_dabei = 1,
    disqualifiziert = 2,
    sperre = 3,      ///< serves a penalty; until this stamp, 0 if it has no time
    volltanken = 4,  ///< held for a moment behind a full tank; until this stamp
    zu_schnell = 5,  ///< the time, the shortest that counts
    tankstrafe = 6,  ///< until this stamp
    im_ziel = 7,
    prellen = 8,  ///< the last crossing once more; until this stamp
    pause = 9,    ///< the race stood still
    vor_dem_start = 10,
};

}  // namespace tarvel
