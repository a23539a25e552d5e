#include "ui/oberflaeche.h"

#include <QCoreApplication>

namespace tarvel::ui {

Oberflaeche::Oberflaeche(programm& p) : p_(p) {
    p.fenster.anzeigen_auf(&fenster);
    fenster.gehoert_dem_rennen = [this](const QKeyEvent& taste) { return tasten.gehoert_dem_rennen(taste); };
    QCoreApplication::instance()->installEventFilter(&fenster);
    bahn1.bei_escape = [&p] {  // for a light that is not on the screen
        if (p.startampel.laeuft()) {
            p.startampel.schliessen();
        }
    };
    bahn1.bei_aktivierung = [this, &p] {
        if (p.fenster.ist_offen(fenstername::leitstand)) {  // who clicks on the other screen goes on typing here
            leitstand->activateWindow();
        }
        // a light belongs in front, however its race window was reached
        for (Fenster* ampel : {static_cast<Fenster*>(&form2), static_cast<Fenster*>(&k_ampel)}) {
            if (ampel->isVisible()) {
                ampel->raise();
            }
        }
    };
    bahn1.bei_umzug = [this] {
        for (AmpelFenster* ampel : {static_cast<AmpelFenster*>(&form2), static_cast<AmpelFenster*>(&k_ampel)}) {
            if (ampel->isVisible()) {
                ampel->nachruecken();
            }
        }
    };
}

Oberflaeche::~Oberflaeche() {
    p_.fenster.anzeigen_auf(nullptr);
}

}  // namespace tarvel::ui
