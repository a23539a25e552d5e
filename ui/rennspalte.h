#pragma once

#include <QWidget>

#include "race/bahn1.h"
#include "ui/binder.h"
#include "ui/tankbalken.h"

namespace tarvel::ui {

/// One lane of the race window as a column: name, place, laps, last and best lap, the list of laps.
class Rennspalte : public QWidget {
public:
    Rennspalte(bahn1& bahn, int spur, Binder& binder, QWidget* eltern);

    /// Brings the list's font and the spacing to the scale of the window.
    void skalieren(double skala);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QWidget* namenszeile(bahn1& bahn, int spur, Binder& binder);
    QWidget* tankzeile(bahn1& bahn, int spur, Binder& binder);
    QWidget* kopfzeile(bahn1& bahn, int spur, Binder& binder);

    Tankbalken* balken_ = nullptr;
    QListView* liste_ = nullptr;
    QCheckBox* schuld_ = nullptr;    ///< puts the blame for a pause on the lane
    QWidget* gelb_ = nullptr;        ///< bar in a pause
    TextAnzeige* nummer_ = nullptr;  ///< number of the lane, which is its key
    std::vector<Lampe*> lampen_;
    QColor spurfarbe_;
    QColor randfarbe_;
    QColor grundfarbe_;
};

}  // namespace tarvel::ui
