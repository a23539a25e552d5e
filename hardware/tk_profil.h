#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "core/einstellungswerte.h"
#include "hardware/ereignisse.h"
#include "hardware/tk_protokoll.h"

namespace tarvel {

/// How a Timekeeper is used.
struct tk_profil {
    tk_profil();

    spurmodus modus = spurmodus::analog;
    std::array<ereignis_art, tk::sensoren_max> tk_sensor_art{};  ///< event per sensor, index 0 to 23; 0 none

    /// What a sensor means; on a digital track it tells the kind of event and the car its lane. 0 nothing.
    ereignis_art art_von(const tk::sensor& s) const;
    bool digital() const { return modus == spurmodus::digital_124_132 || modus == spurmodus::digital_143; }

    bool operator==(const tk_profil&) const = default;
};

/// The events that a sensor can be given, none first.
const std::vector<ereignis_art>& tk_eingaenge();

/// Name of the file with this stem.
std::string tk_dateiname(std::string_view stamm);

/// The `.tk` file. What is missing at its end is as the factory has it; false leaves `ziel` as it was.
bool tk_profil_laden(const dateien& ablage, std::string_view stamm, tk_profil& ziel);
bool tk_profil_speichern(const dateien& ablage, std::string_view stamm, const tk_profil& profil);

/// The commands that put the box into this mode.
std::vector<std::string_view> tk_modusbefehle(spurmodus modus);

}  // namespace tarvel
