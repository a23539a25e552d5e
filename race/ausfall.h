#pragma once

#include "race/chaos.h"
#include "race/rundenzaehlung.h"
#include "race/umgebung.h"

namespace tarvel {

/// A race whose program was away: as it stood then, it stands in a pause.
class ausfall {
public:
    struct teile {
        rundenzaehlung& zaehlung;
        chaos& pause;
    };

    ausfall(const renn_umgebung& um, const teile& t);

    /// The race has shown its last sign of life at this stamp.
    void ueberstehen(zeit_ms stempel) { um_.protokoll.geschieht(ausfall_, {stempel}); }

private:
    void eintreten(zeit_ms stempel);

    renn_umgebung um_;
    teile t_;
    int ausfall_;  ///< number of the doing
};

}  // namespace tarvel
