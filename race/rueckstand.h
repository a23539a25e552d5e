#pragma once

#include <string>

#include "core/sprache.h"
#include "core/zeit.h"

namespace tarvel {

/// How people say by how much somebody is behind.
struct rueckstand_worte {
    std::string runde;   ///< behind the number one
    std::string runden;  ///< and any other
    std::string zurueck;
    std::string gleichauf;

    sprachliste& eintragen(sprachliste& texte);
};

/// "3,214 s", with the minutes in front from one on.
std::string dauer_gesagt(zeit_ms dauer, const trennzeichen_tabelle& trennzeichen);
/// "1 Runde".
std::string runden_gesagt(int runden, const rueckstand_worte& wort);

}  // namespace tarvel
