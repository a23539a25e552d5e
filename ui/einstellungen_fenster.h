#pragma once

#include "optionen/einstellungsfenster.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The options window.
class EinstellungenFenster : public Fenster {
public:
    EinstellungenFenster(einstellungsfenster& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                         QWidget* eltern);

private:
    QWidget* seite(int nummer);
    QWidget* listenseite_bauen(listenseite& logik, const QString& vorspann);
    QWidget* hardwarewahl();

    einstellungsfenster& logik_;
    const dateien& ablage_;
    QPushButton* uebernehmen_ = nullptr;
};

}  // namespace tarvel::ui
