#pragma once

#include <array>

#include "competition/einfahren.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The warm-up over the whole race window, to be read from the other end of the track.
class EinfahrenFenster : public Fenster {
public:
    EinfahrenFenster(einfahren& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;

private:
    struct Spurfeld {
        TextAnzeige* nummer;
        TextAnzeige* fahrer;
        TextAnzeige* runden;
    };

    QWidget* spuren();
    QWidget* spur_anlegen(std::size_t i);
    QWidget* zeit();
    void alarm_anlegen();

    einfahren& logik_;
    TextAnzeige* titel_;
    TextAnzeige* einheit_;
    TextAnzeige* zeit_ = nullptr;
    QWidget* zeitbalken_ = nullptr;
    QWidget* spuren_ = nullptr;
    TextAnzeige* ende_;
    TextAnzeige* weiter_;
    TextAnzeige* alarm_ = nullptr;
    QPushButton* knopf_;
    std::array<Spurfeld, spuren_max> spurfelder_{};
};

}  // namespace tarvel::ui
