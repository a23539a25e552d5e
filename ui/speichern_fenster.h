#pragma once

#include "core/speichernfenster.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window in which a file is chosen.
class SpeichernFenster : public Fenster {
public:
    SpeichernFenster(speichernfenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);
};

}  // namespace tarvel::ui
