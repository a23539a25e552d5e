#pragma once

#include "core/steuerelemente.h"
#include "platform/serienport.h"

namespace tarvel {

/// Says behind the entries of a choice of ports, "COM1" and so on, what is plugged in there now.
void portzusaetze_zeigen(auswahl& ports, const plattform::serienport_dienst& anschluesse);

}  // namespace tarvel
