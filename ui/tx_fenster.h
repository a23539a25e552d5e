#pragma once

#include "ui/fenster.h"

namespace tarvel {
class form5;
class s6_fragefenster;
}  // namespace tarvel

namespace tarvel::ui {

/// The wait for the 4x4 USB module.
class Form5Fenster : public Fenster {
public:
    Form5Fenster(form5& logik, Fensterverwaltung& verwaltung, QWidget* eltern);
};

/// The questions about its mode.
class S6FrageFenster : public Fenster {
public:
    S6FrageFenster(s6_fragefenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* modusgruppe();
    QWidget* neustartgruppe();

    s6_fragefenster& logik_;
};

}  // namespace tarvel::ui
