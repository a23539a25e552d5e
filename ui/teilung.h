#pragma once

#include <cmath>

namespace tarvel::ui {

/// The smallest step of an even scale that is not below `mindestens`.
inline double teilung(double mindestens) {
    const double dekade = std::pow(10, std::floor(std::log10(mindestens)));
    for (const double faktor : {1.0, 2.0, 5.0}) {
        if (faktor * dekade >= mindestens * 0.999) {
            return faktor * dekade;
        }
    }
    return 10 * dekade;
}

}  // namespace tarvel::ui
