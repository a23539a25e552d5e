#pragma once

#include "core/dateien.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"
#include "core/texte.h"
#include "platform/meldungen.h"

namespace tarvel {

/// What a window needs that works on files alone.
struct fenster_umgebung {
    const dateien& ablage;
    const texte& txt;
    fensterregister& fenster;
    plattform::meldungen& meldungen;
};

}  // namespace tarvel
