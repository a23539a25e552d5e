#pragma once

#include <string>

#include "core/spuren.h"
#include "race/umgebung.h"

namespace tarvel {

/// Who moved too early, and what it costs as the settings are: "Frühstart: Spur 2 · Anna — 5 s ohne Strom". A line of
/// it breaks between two drivers or in front of the cost.
std::string fruehstart_gesagt(const renn_umgebung& um, const spuren<bool>& zu_frueh);

}  // namespace tarvel
