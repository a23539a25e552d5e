#pragma once

#include <array>

#include "optionen/beste_zeiten_verwaltung.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window in which best times and their files are managed.
class BestzeitverwaltungFenster : public Fenster {
public:
    BestzeitverwaltungFenster(beste_zeiten_verwaltung& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

    void aufschlagen() override;
    bool eventFilter(QObject* wer, QEvent* ereignis) override;

private:
    QWidget* dateizeile();
    QWidget* moduszeile();
    QWidget* spurliste(int spur);
    QWidget* korrektur();
    void einpassen();

    beste_zeiten_verwaltung& logik_;
    std::array<QListView*, spuren_max> listen_{};
};

}  // namespace tarvel::ui
