#pragma once

#include <array>

#include "core/steuerelemente.h"

namespace tarvel {

/// The controls of the start light's window.
struct form2 {
    std::array<bild, 10> ampelbild;  ///< lamps 1 to 5 are row 1, 6 to 10 row 2; index is the number - 1
    rahmen dragbaum;                 ///< around the tree of the drag race
    std::array<form, 4> Shape11;     ///< its two "Prestage" and two "Stage" lights
    std::array<form, 8> Shape12;     ///< below them in pairs: three yellow, one green
    bezeichnung Label_prestage;
    bezeichnung Label_stage;
    rahmen Nachtabschaltung;       ///< black ground over the whole screen; the lamps stay in sight
    bezeichnung Label1;            ///< the start is stopped by a false start
    bezeichnung Label_fruehstart;  ///< who moved too early, and what it costs
    befehl abbrampel;              ///< stops the start, or closes the light of a stopped one
};

}  // namespace tarvel
