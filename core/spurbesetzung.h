#pragma once

#include <string>

#include "core/renneinrichtung.h"

/// Who drives on which lane, as it is changed at one stroke. Lanes count from 1.
namespace tarvel {

/// The drivers change places with their vehicles, and with whether they take part: who drives goes on driving. Lanes
/// keep their lengths.
void spuren_tauschen(renneinrichtung& einrichtung, int eine, int andere);

/// He drives there. Who was there goes where he comes from, so that nobody stands on two lanes and nobody is lost.
void fahrer_setzen(renneinrichtung& einrichtung, int spur, const std::string& name);

}  // namespace tarvel
