#pragma once

#include "ui/fenster.h"

namespace tarvel {
class rc_einstellungen;
}

namespace tarvel::ui {

/// The window of the Race Control box.
class RcFenster final : public Fenster {
public:
    RcFenster(rc_einstellungen& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* boxgruppe();
    QWidget* sensorgruppe();
    QWidget* statusgruppe();

    rc_einstellungen& logik_;
};

}  // namespace tarvel::ui
