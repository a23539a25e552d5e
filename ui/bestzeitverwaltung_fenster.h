#pragma once

#include "optionen/beste_zeiten_verwaltung.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window in which best times and their files are managed.
class BestzeitverwaltungFenster : public Fenster {
public:
    BestzeitverwaltungFenster(beste_zeiten_verwaltung& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* dateizeile();
    QWidget* moduszeile();
    QWidget* spurliste(int spur);
    QWidget* korrektur();

    beste_zeiten_verwaltung& logik_;
};

}  // namespace tarvel::ui
