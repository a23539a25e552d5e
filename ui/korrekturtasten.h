#pragma once

#include <QWidget>

#include "core/steuerelemente.h"

namespace tarvel::ui {

/// The keys with which every program takes the last step back, and does it again, press these buttons of the window,
/// "Command_zurueck" and "Command_wieder". The keyboard stays with them as long as one has something to do.
void korrekturtasten(QWidget* fenster, befehl& zurueck, befehl& wieder);

}  // namespace tarvel::ui
