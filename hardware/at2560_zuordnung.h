#pragma once

#include <string>
#include <vector>

#include "hardware/at2560_profil.h"

namespace tarvel {

enum class at_funktion { keine, rundenzaehlung, zwischenzeit_1, zwischenzeit_2 };

/// What a sensor of the unit is to do. One sensor can count laps and be a tank sensor.
struct at_sensor {
    std::string ereignis;  ///< its name; empty while it has not been heard of
    int spur = 1;
    at_funktion funktion = at_funktion::keine;
    int tanksensor = 0;  ///< 0 none, 1 or 2

    bool zugewiesen() const { return !ereignis.empty() && (funktion != at_funktion::keine || tanksensor != 0); }
};

/// A chaos button of the unit.
struct at_chaostaster {
    static constexpr int alle = 0;
    static constexpr int keiner = -1;

    std::string ereignis;
    int fahrer = keiner;  ///< lane 1 to 6, or `alle` for the button of the whole track
};

/// What a unit was found to have.
struct at_zuordnung {
    std::vector<at_sensor> sensoren;
    std::vector<at_chaostaster> taster;

    /// Two of them would have the same row of the command file.
    bool doppelt() const;
    /// The words of `bisher` with these events, and the sensor command of all pins that are in use. The rows that only
    /// a hand can fill stay: chaos buttons 5 and 6, sounds.
    at_profil eintragen(const at_profil& bisher) const;
};

/// Number of the pin that an event is named after ("S13" is 13); empty for other names.
std::string at_pin(const std::string& ereignis);

}  // namespace tarvel
