#pragma once

#include <vector>

#include "start/startampel.h"
#include "ui/ampelfeld.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The start light in front of the race window, or alone on a black screen at night.
class Form2Fenster : public Fenster {
public:
    Form2Fenster(startampel& logik, const einstellungen& einst, const dateien& ablage, Bildtakt& takt, QWidget* bahn);

    void aufschlagen() override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QWidget* lampenkasten(const dateien& ablage);
    QWidget* dragbaum();
    QWidget* licht(form& element, const QString& name, QWidget* eltern);
    void anordnen();
    void lampen_skalieren(int kante);

    startampel& logik_;
    const einstellungen& einst_;
    std::vector<Ampelfeld*> lampen_;
    std::vector<QWidget*> lichter_;
    std::vector<QWidget*> texte_;
};

}  // namespace tarvel::ui
