#pragma once

#include <QFont>

#include "competition/rangliste.h"
#include "ui/fenster.h"

namespace tarvel::ui {

/// The ranking of the evening, in letters as large as its lines leave room for.
class RanglisteFenster : public Fenster {
public:
    RanglisteFenster(rangliste& logik, Fensterverwaltung& verwaltung, QWidget* eltern);

protected:
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void skalieren();
    void zeilen_einteilen();

    rangliste& logik_;
    QFont schrift_;  ///< of the lines, each character as wide as the next
    TextAnzeige* stand_ = nullptr;
    QLabel* kopf_ = nullptr;
    QListView* zeilen_ = nullptr;
};

}  // namespace tarvel::ui
