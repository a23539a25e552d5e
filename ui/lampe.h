#pragma once

#include <QColor>
#include <QWidget>

class QPainter;

namespace tarvel::ui {

/// Draws a round lamp that fills the rectangle.
void lampe_malen(QPainter& maler, const QRectF& platz, const QColor& farbe, bool leuchtet);

/// A round lamp of a start light, lit or dark.
class Lampe : public QWidget {
public:
    explicit Lampe(const QColor& farbe, QWidget* eltern = nullptr);
    void setLeuchtet(bool leuchtet);
    QSize sizeHint() const override { return {24, 24}; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    QColor farbe_;
    bool leuchtet_ = false;
};

}  // namespace tarvel::ui
