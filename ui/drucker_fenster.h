#pragma once

#include "ui/fenster.h"

class QGridLayout;

namespace tarvel {
class drucker_fenster;
}

namespace tarvel::ui {

/// The pins of the printer port: outputs at the left, inputs at the right.
class DruckerFenster : public Fenster {
public:
    DruckerFenster(drucker_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    /// A column of pins: number, meaning, lamp.
    QGridLayout* spalte(QGroupBox* kasten, bezeichnung& funktion, bezeichnung& test, const QString& name);
};

}  // namespace tarvel::ui
