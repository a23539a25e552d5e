#pragma once

#include "results/ergebnistabelle.h"

namespace tarvel {

/// Makes one line of all lines of a driver: laps, metres and total times are added up, of best laps the fastest stays.
/// `mit_klasse` keeps a driver of a day race apart by his classes. Lines with different columns stay apart. Of single
/// races the laps follow each other too, without the way to the first crossing in between.
void gleiche_fahrer_addieren(ergebnistabelle& tabelle, bool mit_klasse);

}  // namespace tarvel
