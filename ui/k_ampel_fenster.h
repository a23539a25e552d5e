#pragma once

#include "race/rennbefehle.h"
#include "start/k_ampel.h"
#include "ui/ampel_fenster.h"

namespace tarvel::ui {

/// The light behind which a race goes on. Keys go to the race meanwhile.
class KAmpelFenster : public AmpelFenster {
public:
    KAmpelFenster(k_ampel& logik, rennbefehle& befehle, const einstellungen& einst, const dateien& ablage,
                  Bildtakt& takt, QWidget* bahn);
};

}  // namespace tarvel::ui
