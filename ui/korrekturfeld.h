#pragma once

#include "results/korrekturrahmen.h"
#include "ui/binder.h"

namespace tarvel::ui {

/// The frame in which a line of the results is corrected.
QWidget* korrekturfeld(korrekturrahmen& k, Binder& binder, QWidget* eltern);

}  // namespace tarvel::ui
