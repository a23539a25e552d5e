#pragma once

#include "tools/simulator/anschluss.h"
#include "tools/simulator/geraet.h"

namespace tarvel::simulator {

struct lauf_einstellung {
    anschluss_ort ort;
    int dauer_s = -1;  ///< seconds; below 0 until the operator ends it, as for the next two
    int abziehen_s = -1;
    int einstecken_s = -1;
};

/// Plugs the device in and lets it run in real time, telling the console what happens. Returns the exit code.
int laufen(geraet& g, const lauf_einstellung& einst);

}  // namespace tarvel::simulator
