#pragma once

#include <QWidget>

#include "race/bahn1.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// One clock of the race window, with its title above.
class Uhranzeige : public QWidget {
public:
    /// `nummer` is the clock's number in the control names, `entwurf` its font size in design units.
    Uhranzeige(rennuhr_felder& uhr, int nummer, double entwurf, Binder& binder, QWidget* eltern);
};

}  // namespace tarvel::ui
