#pragma once

#include <string_view>

#include "core/dateien.h"

/// The folders of results, and what the program start tidies up in them. Failures are ignored: the usual one is that
/// there is nothing to do.
namespace tarvel {

/// Moves `*.bst` of the program folder to the best-times folder, from the last name to the first; an error ends the
/// walk.
void bestzeiten_umziehen(const dateien& ablage);

void ergebnis_ordner_anlegen(const dateien& ablage);

/// Deletes what a program that was killed while it wrote has left behind.
void schreibreste_loeschen(const dateien& ablage);

/// For 30 days here lies what the program start tidies away.
inline constexpr std::string_view papierkorb = "Ergebnisse\\Papierkorb";

/// Moves the results that were saved without the operator's command to `papierkorb`. Linked folders are left alone.
void auto_dateien_wegraeumen(const dateien& ablage);

/// Deletes what has lain in that folder for 30 days.
void papierkorb_leeren(const dateien& ablage);

}  // namespace tarvel
