#pragma once

#include <array>
#include <string>

#include "core/sprache.h"
#include "race/hergangsworte.h"

namespace tarvel {

/// What the race director corrected, in the words of the language.
struct korrekturworte {
    sprachliste& eintragen(sprachliste& texte);
    /// The rest of them, which stand at another place of the language file.
    sprachliste& nachtragen(sprachliste& texte);

    /// "Korrektur: Spur 2, Runde 5 geteilt (3,000 s)" for a line of the log; the line itself if it is none of these.
    std::string von(const std::string& zeile, const hergangsworte& worte) const;

private:
    std::string neu_, zurueck_, wieder_;  ///< with "%1" for the correction
    std::string erste_;                   ///< the first lap was deleted
    std::array<std::string, 4> arten_;    ///< in the order of `korrektur::art`; with "%1" for the lane
};

}  // namespace tarvel
