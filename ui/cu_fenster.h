#pragma once

#include "ui/fenster.h"

namespace tarvel {
class cu_eigenschaften;
}

namespace tarvel::ui {

/// The window of the Control Unit.
class CuFenster final : public Fenster {
public:
    CuFenster(cu_eigenschaften& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* portgruppe();
    QWidget* optionengruppe();
    QWidget* wagengruppe();
    QWidget* statusgruppe();
    QWidget* befehlsgruppe();
    QWidget* codiergruppe();

    cu_eigenschaften& logik_;
};

}  // namespace tarvel::ui
