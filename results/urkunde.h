#pragma once

#include <string>
#include <vector>

#include "core/zeit.h"
#include "race/rennergebnis.h"
#include "results/papierkopf.h"
#include "results/urkundenvorlage.h"

namespace tarvel {

/// What the certificate of one driver says.
struct urkunde {
    urkundenworte worte;
    int spur = 0;
    int platz = 0;           ///< 0 for who has none: a disqualified driver, and one without a lap
    std::string fahrerbild;  ///< files below the program folder; empty for a driver or vehicle without one of his own
    std::string fahrzeugbild;

    const std::string& wort(urkundenwort w) const { return worte.at(static_cast<std::size_t>(w)); }
};

/// What the result itself does not know.
struct urkundenangaben {
    papierkopf kopf;
    std::string rennen;      ///< what was driven
    std::string platz;       ///< behind the number of the place
    std::string ohne_platz;  ///< in place of both
    trennzeichen_tabelle trennzeichen;
};

/// Length of the track as people say it, "24,5 m"; lanes of different lengths from the shortest to the longest. Empty
/// if it is not known.
std::string streckenlaenge(const rennergebnis& ergebnis);

/// A certificate for each driver, in the order of the places.
std::vector<urkunde> urkunden_bilden(const rennergebnis& ergebnis, const urkundenangaben& angaben);

}  // namespace tarvel
