#pragma once

#include <span>

#include "ui/fenster.h"

class QHBoxLayout;

namespace tarvel {
class drucker_fenster;
}

namespace tarvel::ui {

/// The pins of the printer port: outputs at the left, inputs at the right.
class DruckerFenster : public Fenster {
public:
    DruckerFenster(drucker_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

private:
    /// A frame with a row for each pin: number, meaning, lamp.
    struct pins {
        rahmen& kasten;
        QString kastenname;
        bezeichnung& funktion;
        bezeichnung& test;
        std::span<bezeichnung> pin;
        std::span<auswahl> wahl;
        std::span<haken> lampe;
        QString name;  ///< in front of the names of its widgets
        QString lampenname;
        bool schaltbar;
    };

    QHBoxLayout* kopf(drucker_fenster& logik);
    QGroupBox* pinkasten(const pins& p);
};

}  // namespace tarvel::ui
