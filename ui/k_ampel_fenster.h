#pragma once

#include "start/k_ampel.h"
#include "ui/ampel_fenster.h"
#include "ui/bahn1_fenster.h"

namespace tarvel::ui {

/// The light behind which a race goes on. In a pause it stands in the clock's place, where it hides neither the
/// standing nor the boxes of the penalties, and leaves the keyboard to the race window.
class KAmpelFenster : public AmpelFenster {
public:
    KAmpelFenster(k_ampel& logik, const dateien& ablage, Fensterverwaltung& verwaltung, Bahn1Fenster* bahn);

    void aufschlagen() override;

protected:
    QRect eigener_platz() const override;
    void hideEvent(QHideEvent* ereignis) override;

private:
    k_ampel& logik_;
    Bahn1Fenster* bahn_;
    QPushButton* knopf_;
};

}  // namespace tarvel::ui
