#pragma once

#include "hardware/uart_probe.h"
#include "ui/fenster.h"

class QHBoxLayout;

namespace tarvel::ui {

/// The window in which an AT-2560 is tried.
class UartProbeFenster : public Fenster {
public:
    UartProbeFenster(uart_probe& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* eingangsgruppe();
    /// A lamp with the unit's word behind it, for this row of the command file.
    QHBoxLayout* kanal(int zeile);
    QWidget* ampelgruppe();
    QWidget* stromgruppe();
    QWidget* meldungsgruppe();

    uart_probe& logik_;
};

}  // namespace tarvel::ui
