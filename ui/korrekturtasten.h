#pragma once

#include <QWidget>

#include "core/steuerelemente.h"

namespace tarvel::ui {

/// The keys with which every program takes the last step back, and does it again, press these buttons.
void korrekturtasten(QWidget* fenster, befehl& zurueck, befehl& wieder);

}  // namespace tarvel::ui
