#pragma once

#include <functional>

#include "core/fensterregister.h"
#include "core/form1.h"
#include "hardware/control_unit.h"
#include "race/rennen.h"

namespace tarvel {

/// The timing devices, and how they meet the race. One of them at a time is in force.
class messgeraete {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        ereignis_tabelle& ereignisse;
        messquellen& quellen;
        tarvel::ausgaben& ausgaben;
        fensterregister& fenster;
        tarvel::form1& form1;
        tarvel::rennen& rennen;
    };

    messgeraete(const umgebung& um, const plattform::dienste& dienste);

    control_unit cu;

    /// Closes whatever was open, opens the device of the settings and puts the outputs to rest. A device that cannot be
    /// reached leaves the race to the keyboard.
    void hardware_starten();
    void schliessen();

private:
    void cu_verbinden();
    void cu_anzeigen();
    /// The race window waits for a start, and nothing of a race runs behind it.
    bool rennen_ruht() const;

    umgebung um_;
    plattform::meldungen& meldungen_;
    std::unique_ptr<plattform::zeitgeber> anzeigetakt_;  ///< keeps the state of the device on the main window
};

}  // namespace tarvel
