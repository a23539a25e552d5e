#pragma once

#include <string>

#include "core/sprache.h"
#include "core/zeit.h"

namespace tarvel {

class rundenkonto;

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

/// How far a lane is behind another: laps, and within the same lap a time.
struct rueckstand {
    int runden = 0;
    zeit_ms dauer = 0;
    bool bekannt = false;  ///< else there is nothing to go by

    bool operator==(const rueckstand&) const = default;
};

/// As the line has seen it, pauses taken off: a lane is a lap behind once it has been lapped, not as soon as the one
/// ahead begins the next lap. `gewertet`: nobody drives on, and what counts is the laps that each has.
rueckstand rueckstand_an_der_linie(const rundenkonto& konto, int spur, int fuehrende, bool gewertet);

/// "1 Runde zurück", "+2,314 s"; empty for one that is not known.
std::string rueckstand_gesagt(const rueckstand& r, const rueckstand_worte& wort,
                              const trennzeichen_tabelle& trennzeichen);

}  // namespace tarvel
