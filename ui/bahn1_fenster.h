#pragma once

#include <vector>

#include "race/rennen.h"
#include "ui/fenster.h"
#include "ui/rennspalte.h"
#include "ui/uhranzeige.h"

namespace tarvel::ui {

/// The race window, to be read from a distance. All characters typed while it is in front go to the race.
class Bahn1Fenster : public Fenster {
public:
    Bahn1Fenster(rennen& logik, Bildtakt& takt, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* uhrenzeile();
    QWidget* befehlszeile();
    QWidget* strafformular();
    void nachtabschaltung();
    void skalieren();

    rennen& logik_;
    std::vector<Rennspalte*> spalten_;
    std::vector<QPushButton*> knoepfe_;  ///< start, pause, end, abort
    std::vector<QWidget*> formular_;     ///< parts of the penalty form
    QWidget* nacht_ = nullptr;
    QWidget* formular_platz_ = nullptr;
};

}  // namespace tarvel::ui
