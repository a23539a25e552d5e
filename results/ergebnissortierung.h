#pragma once

#include "results/ergebnistabelle.h"

namespace tarvel {

/// Brings the drivers' lines into the order of the standing and gives them their places; other lines stay where they
/// are. A day race is ranked by its classes, each from place 1; where each meets each only laps and times count.
void sortieren(ergebnistabelle& tabelle, sortier_modus nach);

}  // namespace tarvel
