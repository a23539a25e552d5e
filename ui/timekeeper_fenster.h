#pragma once

#include "ui/fenster.h"

namespace tarvel {
class tk_einstellungen;
}

namespace tarvel::ui {

/// The window of the Timekeeper.
class TimekeeperFenster final : public Fenster {
public:
    TimekeeperFenster(tk_einstellungen& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* modusgruppe();
    QWidget* sensorgruppe();
    QWidget* ampelgruppe();
    QWidget* relaisgruppe();
    QWidget* firmwaregruppe();
    QWidget* protokollgruppe();
    QLayout* fuss();

    tk_einstellungen& logik_;
};

}  // namespace tarvel::ui
