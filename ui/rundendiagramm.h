#pragma once

#include <QtCharts/QChartView>

#include "ui/rundenbild.h"

namespace tarvel::ui {

/// The chart of the lap times in a window. The lap under the pointer is told in a tip.
class Rundendiagramm final : public QChartView {
public:
    explicit Rundendiagramm(QWidget* eltern = nullptr);

    void setInhalt(rundenbild_inhalt inhalt);
    const rundenbild_inhalt& inhalt() const { return bild_->inhalt(); }

    QSize sizeHint() const override { return {900, 360}; }
    QSize minimumSizeHint() const override { return {240, 140}; }

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    bool viewportEvent(QEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;

private:
    Rundendiagramm(Rundenbild* bild, QWidget* eltern);

    Rundenbild* bild_ = nullptr;  ///< belongs to the view
};

}  // namespace tarvel::ui
