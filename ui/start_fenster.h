#pragma once

#include "programm/startfenster.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The picture shown for two seconds after program start.
class Form3Fenster : public Fenster {
public:
    Form3Fenster(form3& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);
};

/// Shown while best-time files move at program start.
class UpdateFenster : public Fenster {
public:
    UpdateFenster(update_form& logik, Fensterverwaltung& verwaltung);
};

}  // namespace tarvel::ui
