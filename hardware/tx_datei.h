#pragma once

#include <string>

#include "core/dateien.h"

namespace tarvel {

/// What the program keeps of the 4x4 USB module in `tvk_4x4.ini`, one value a line.
struct tx_datei {
    std::string firmware;   ///< of the last module, as it tells it
    bool spuren_6 = false;  ///< outputs 5 and 6 switch the power of lanes 5 and 6, not the red lamps 5 and 4
    int port = 0;           ///< COM number at which it was found, 0 none

    bool operator==(const tx_datei&) const = default;
};

/// A missing file or value leaves the default.
tx_datei tx_datei_laden(const dateien& ablage);
bool tx_datei_speichern(const dateien& ablage, const tx_datei& werte);

}  // namespace tarvel
