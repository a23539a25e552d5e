#include "ui/lampe.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>

namespace tarvel::ui {

Lampe::Lampe(const QColor& farbe, QWidget* eltern) : QWidget(eltern), farbe_(farbe) {}

void Lampe::setLeuchtet(bool leuchtet) {
    if (leuchtet_ != leuchtet) {
        leuchtet_ = leuchtet;
        update();
    }
}

void Lampe::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const double radius = std::min(width(), height()) / 2.0 - 1;
    const QPointF mitte(width() / 2.0, height() / 2.0);
    const QColor kern = leuchtet_ ? farbe_ : farbe_.darker(600);
    QRadialGradient verlauf(mitte - QPointF(radius * 0.3, radius * 0.35), radius * 1.3);
    verlauf.setColorAt(0, leuchtet_ ? kern.lighter(160) : kern.lighter(140));
    verlauf.setColorAt(0.6, kern);
    verlauf.setColorAt(1, kern.darker(leuchtet_ ? 130 : 160));
    maler.setPen(QPen(QColor(70, 70, 70), std::max(1.0, radius * 0.12)));
    maler.setBrush(verlauf);
    maler.drawEllipse(mitte, radius, radius);
}

}  // namespace tarvel::ui
