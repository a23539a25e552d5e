#pragma once

#include "results/beste_zeiten_fenster.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window that saves new best times.
class BestzeitenFenster : public Fenster {
public:
    BestzeitenFenster(beste_zeiten_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    bool kommt_ungerufen() const override { return true; }

private:
    QWidget* kopfzeile();
    QWidget* spurblock(int spur);
    QWidget* zeichen(int spur);

    beste_zeiten_fenster& logik_;
};

}  // namespace tarvel::ui
