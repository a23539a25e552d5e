#pragma once

#include "core/spuren.h"
#include "core/zeit.h"

namespace tarvel {

class rundenkonto;

/// The lane that is ahead by the time that counts, which runs from each lane's own first crossing, while `fuehrende`
/// leads over the line; of several the one that is ahead most. Compared where both had the same laps last and the
/// leader was over the line first: who was just overtaken is not ahead, nor is who has been lapped. `strafe` is added,
/// in ms. 0 if there is none.
int vorn_nach_zeit(const rundenkonto& konto, int fuehrende, const spuren<bool>& dabei, const spuren<zeit_ms>& strafe);

}  // namespace tarvel
