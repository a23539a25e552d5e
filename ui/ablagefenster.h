#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/fenster.h"

namespace tarvel::ui {

/// A window in which something is chosen in a column at the left and shown at the right, under its heading. It opens
/// nearly as large as the screen.
class Ablagefenster : public Fenster {
public:
    using Fenster::Fenster;

    void aufschlagen() override;

protected:
    struct teile {
        QWidget* spalte = nullptr;
        QVBoxLayout* links = nullptr;      ///< in it
        QHBoxLayout* kopfzeile = nullptr;  ///< the heading, and room for commands behind it
        QVBoxLayout* rechts = nullptr;     ///< below the heading
    };
    teile aufteilen(int spaltenbreite, bezeichnung& kopf, const char* kopfname, int kopf_px);
};

}  // namespace tarvel::ui
