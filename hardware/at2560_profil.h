#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/dateien.h"
#include "hardware/ereignisse.h"

namespace tarvel {

inline constexpr int at_ereignisse_max = 45;
/// Name of an event that is not assigned.
inline constexpr std::string_view at_nicht_belegt = "Snv";
inline constexpr std::string_view at_standarddatei = "tvk_at2560.uart";

/// The words that the AT-2560 and the program speak to each other, as its firmware has them.
struct at_profil {
    at_profil();

    // the frame of a sequence in both directions, one character each
    std::string at_startzeichen = ":";
    std::string at_trennzeichen_wert = ".";  ///< between event and value
    std::string at_trennzeichen_zeit = ",";  ///< between event and time code
    std::string at_endzeichen = ";";

    std::string at_hardwarereset = "R";
    std::string at_seriennummer = "V";
    std::string at_rennstart = "S";
    std::string at_zeit_anfordern = "T";        ///< also the name of the answer
    std::string at_is_befehl = "IS,13.11.9.7";  ///< tells the unit which pins are sensors
    std::array<std::string, 15> at_ampel;       ///< 1 to 5 red, 6 green on; 7 to 12 off; 13 all red on, 14 off
    std::array<std::string, 3> at_rennende;     ///< signal at the end of a race: 1 on, 2 off
    std::array<std::string, 3> at_chaos;        ///< lamp of the pause: 1 on, 2 off
    std::array<std::string, 15> at_bahnstrom;   ///< lanes 1 to 6 on; 7 to 12 off; 13 all on, 14 off
    std::array<std::string, 46> at_ereignis;    ///< names of the unit's events, index is the row from 1

    bool operator==(const at_profil&) const = default;
};

/// What the event of row 1 to 45 means.
ereignis_art at_art(int zeile);

/// Rows of the events. Those of the pairs count from sensor 1 of lane 1.
namespace at_zeile {
constexpr int rundenzaehlung(int spur) {
    return spur;
}
constexpr int tanken_ein(int spur) {
    return 5 + 2 * spur;
}
constexpr int tanken_aus(int spur) {
    return 6 + 2 * spur;
}
/// `sensor` 1 or 2.
constexpr int zwischenzeit(int spur, int sensor) {
    return 16 + 2 * spur + sensor;
}
inline constexpr int chaos_allgemein = 31;
constexpr int chaos(int spur) {
    return 31 + spur;
}
/// `sensor` 1 to 8.
constexpr int soundsensor(int sensor) {
    return 37 + sensor;
}
}  // namespace at_zeile

/// The `.uart` file. What it does not name is as the factory has it; false leaves `ziel` as it was.
bool at_profil_laden(const dateien& ablage, std::string_view datei, at_profil& ziel);
bool at_profil_speichern(const dateien& ablage, std::string_view datei, const at_profil& profil);

}  // namespace tarvel
