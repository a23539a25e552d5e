#pragma once

#include <QGridLayout>

#include "competition/tagesrennen_fenster.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The window of the day race: on the left who drives next, on the right what has been driven.
class TagesrennenFenster : public Fenster {
public:
    TagesrennenFenster(tagesrennen_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

protected:
    /// The lines are as large as their room lets them be.
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    QWidget* dateigruppe();
    QWidget* fahrergruppe();
    void spurzeile(QGridLayout* raster, std::size_t i);
    QWidget* klassengruppe();
    QWidget* listengruppe();
    QLayout* fusszeile();
    void skalieren();

    tagesrennen_fenster& logik_;
    QLabel* kopf_ = nullptr;
    QListView* zeilen_ = nullptr;
};

}  // namespace tarvel::ui
