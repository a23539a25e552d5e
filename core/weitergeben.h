#pragma once

#include <functional>

#include "core/steuerelemente.h"

namespace tarvel {

/// The button does what `wohin` is filled with by then, if it is; `wohin` must outlive it.
inline void weitergeben(befehl& knopf, const std::function<void()>& wohin) {
    knopf.bei_klick = [&wohin] {
        if (wohin) {
            wohin();
        }
    };
}

}  // namespace tarvel
