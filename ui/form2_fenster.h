#pragma once

#include <vector>

#include "start/startampel.h"
#include "ui/ampel_fenster.h"
#include "ui/textanzeige.h"

namespace tarvel::ui {

/// The light that begins a race.
class Form2Fenster : public AmpelFenster {
public:
    Form2Fenster(startampel& logik, const dateien& ablage, Fensterverwaltung& verwaltung, Bahn1Fenster* bahn);

    void aufschlagen() override;

protected:
    void skalieren(int kante) override;

private:
    QWidget* dragbaum();
    QWidget* hinweise();
    QWidget* licht(form& element, const QString& name, QWidget* eltern);

    startampel& logik_;
    std::vector<QWidget*> lichter_;
    TextAnzeige* zu_frueh_ = nullptr;
};

}  // namespace tarvel::ui
