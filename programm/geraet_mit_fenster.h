#pragma once

#include "hardware/geraetezugang.h"
#include "programm/geraeteverdrahtung.h"

namespace tarvel {

/// A device whose window takes it for itself while it is open.
class geraet_mit_fenster : public geraeteverdrahtung, protected geraetezugang {
protected:
    geraet_mit_fenster(const geraete_umgebung& um, messgeraete& alle)
        : einst_(um.einst), optionen_(um.einstellungsfenster), pflege_(um.pflege), alle_(alle) {}

    void geraet_trennen() override { geraet().schliessen(); }
    /// Opens it again if it is still the one in force.
    void geraet_verbinden() override;

    einstellungen& einst_;
    tarvel::einstellungsfenster& optionen_;
    einstellungspflege& pflege_;
    messgeraete& alle_;
};

}  // namespace tarvel
