#pragma once

#include <QColor>
#include <QWidget>

namespace tarvel::ui {

/// A fuel gauge: a bar that is as long as the tank is full, from the left or, in an upright place, from below. An empty
/// one calls for help.
class Tankbalken final : public QWidget {
public:
    inline static const QColor warnung{255, 40, 30};

    explicit Tankbalken(QWidget* eltern) : QWidget(eltern) {}

    /// `anteil` from 0 to 1.
    void setStand(double anteil, const QColor& farbe);
    /// What it stands on.
    void setGrund(const QColor& grund);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    double anteil_ = 0;
    QColor farbe_;
    QColor grund_ = Qt::black;
};

}  // namespace tarvel::ui
