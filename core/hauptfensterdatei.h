#pragma once

#include "core/dateien.h"
#include "core/renneinrichtung.h"
#include "core/texte.h"

/// `tvk_hauptfenster.ini`: the fields of the main window as the program left them. The settings file stays what the
/// user has saved.
namespace tarvel {

/// A value that is missing, or that the field would not take, leaves the one in `ziel`.
void hauptfenster_laden(const dateien& ablage, const texte& txt, renneinrichtung& ziel);
bool hauptfenster_speichern(const dateien& ablage, const texte& txt, const renneinrichtung& stand);

}  // namespace tarvel
