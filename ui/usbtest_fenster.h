#pragma once

#include "ui/fenster.h"

namespace tarvel {
class usbtest;
}

namespace tarvel::ui {

/// The pins of the IO board, port beside port.
class UsbtestFenster : public Fenster {
public:
    UsbtestFenster(usbtest& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    QWidget* port(std::size_t nummer);
    QWidget* meldungen();
    QWidget* vorlagen();
    QWidget* dateiwahl();

    usbtest& logik_;
};

}  // namespace tarvel::ui
