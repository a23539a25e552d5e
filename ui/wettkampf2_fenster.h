#pragma once

#include "competition/wettkampf2.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window of the evening: who drives now and next, large, above the list of the races and the commands.
class Wettkampf2Fenster : public Fenster {
public:
    Wettkampf2Fenster(wettkampf2& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* blickfeld();
    QWidget* rennkopf();
    QWidget* spurzeile(int spur);
    QWidget* nebenfeld();
    QWidget* rundenfeld();
    QWidget* namenfeld();
    QWidget* listenfeld();
    QLayout* rennbefehle();
    QLayout* fuss();

    wettkampf2& logik_;
    const dateien& ablage_;
};

}  // namespace tarvel::ui
