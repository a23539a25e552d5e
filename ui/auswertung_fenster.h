#pragma once

#include <QVBoxLayout>
#include <vector>

#include "ui/ergebniszeile.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The result window: one row per lane in the order of the standing.
class AuswertungFenster : public Fenster {
public:
    AuswertungFenster(auswertung& logik, Bildtakt& takt, QWidget* eltern);

    void aufschlagen() override;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void ordnen();
    void skalieren();

    QVBoxLayout* reihen_ = nullptr;
    std::vector<Ergebniszeile*> zeilen_;
};

}  // namespace tarvel::ui
