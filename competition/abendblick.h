#pragma once

#include <optional>
#include <string>
#include <vector>

#include "competition/wettkampf.h"

namespace tarvel {

/// The evening at a glance. At its end there is no race and nobody drives.
struct abendblick {
    int rennen = 0;  ///< the current one
    int rennen_gesamt = 0;
    int noch = 0;  ///< races not driven, with the current one
    spuren<std::string> faehrt;
    int naechstes_rennen = 0;  ///< 0 for none
    spuren<std::string> als_naechste;
    std::vector<std::string> einsetzer;  ///< drivers who do not drive now, first those who need not be ready soon
    std::optional<zeit_ms> dauert_noch;  ///< none before a race has been driven
};

abendblick abend_blicken(const wettkampf& w);

}  // namespace tarvel
