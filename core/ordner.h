#pragma once

#include "core/dateien.h"

/// The folders of results, and what the program start tidies up in them. Failures are ignored: the usual one is that
/// there is nothing to do.
namespace tarvel {

/// Moves `*.bst` of the program folder to the best-times folder, from the last name to the first; an error ends the
/// walk.
void bestzeiten_umziehen(const dateien& ablage);

void ergebnis_ordner_anlegen(const dateien& ablage);

/// Deletes the results that were saved without the operator's command.
void auto_dateien_loeschen(const dateien& ablage);

}  // namespace tarvel
