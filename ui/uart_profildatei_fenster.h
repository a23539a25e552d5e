#pragma once

#include "ui/fenster.h"

namespace tarvel {
class uart_profildatei;
}

namespace tarvel::ui {

/// The window in which the command file of the AT-2560 is chosen.
class UartProfildateiFenster : public Fenster {
public:
    UartProfildateiFenster(uart_profildatei& logik, Fensterverwaltung& verwaltung, QWidget* eltern);
};

}  // namespace tarvel::ui
