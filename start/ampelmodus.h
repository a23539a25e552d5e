#pragma once

#include "core/einstellungswerte.h"

namespace tarvel {

/// One of the start lights that can be chosen.
struct ampelmodus {
    enum class zweite_reihe {
        keine,
        gruen,  ///< dark until green
        rot     ///< in step with the first row
    };

    int rote_schritte;  ///< 3 to 5
    zweite_reihe reihe2;
    bool lampenbild;  ///< row of lamps; else the drag tree, or nothing on the screen
    bool verborgen;   ///< only the real lamps light
};

/// A choice beyond the list, or none, stands for the first one: a start needs a light.
const ampelmodus& ampelmodus_von(ampelwahl wahl);

}  // namespace tarvel
