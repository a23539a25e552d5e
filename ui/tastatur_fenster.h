#pragma once

#include "hardware/tastaturbelegung.h"
#include "ui/fenster.h"

class QGroupBox;

namespace tarvel::ui {

/// The window in which the keys are assigned.
class TastaturFenster : public Fenster {
public:
    TastaturFenster(tastaturbelegung& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QGroupBox* gruppe(int spur);
    QWidget* befehlszeile();

    tastaturbelegung& logik_;
};

}  // namespace tarvel::ui
