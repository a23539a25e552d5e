#pragma once

#include <functional>

#include "core/fensterregister.h"
#include "core/form1.h"
#include "hardware/at2560.h"
#include "hardware/control_unit.h"
#include "hardware/cu_eigenschaften.h"
#include "race/rennen.h"

namespace tarvel {

/// The timing devices, and how they meet the race. One of them at a time is in force.
class messgeraete {
public:
    struct umgebung {
        einstellungen& einst;
        const texte& txt;
        const dateien& ablage;
        ereignis_tabelle& ereignisse;
        messquellen& quellen;
        tarvel::ausgaben& ausgaben;
        fensterregister& fenster;
        tarvel::form1& form1;
        tarvel::rennen& rennen;
    };

    messgeraete(const umgebung& um, const plattform::dienste& dienste);

    control_unit cu;
    tarvel::cu_eigenschaften cu_eigenschaften;
    at2560 at;

    /// Closes whatever was open, opens the device of the settings and puts the outputs to rest. A device that cannot be
    /// reached leaves the race to the keyboard. The AT-2560 stops the operator while it boots: as the program starts it
    /// waits (`spaeter`) for `nachholen`.
    void hardware_starten(bool spaeter);
    /// The main window is on the screen: opens what has waited for it.
    void nachholen();
    void schliessen();

private:
    void cu_verbinden();
    void at_verbinden();
    /// The AT-2560 boots (true), or is ready: meanwhile no race starts.
    void at_wartet_anzeigen(bool an);
    void verbindung_anzeigen();
    /// The race window waits for a start, and nothing of a race runs behind it.
    bool rennen_ruht() const;

    umgebung um_;
    plattform::meldungen& meldungen_;
    bool at_wartet_ = false;                             ///< to be opened
    std::unique_ptr<plattform::zeitgeber> anzeigetakt_;  ///< keeps the state of the device on the main window
};

}  // namespace tarvel
