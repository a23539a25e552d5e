#include "ui/lampe.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>

namespace tarvel::ui {

void lampe_malen(QPainter& maler, const QRectF& platz, const QColor& farbe, bool leuchtet) {
    maler.setRenderHint(QPainter::Antialiasing);
    const double radius = std::min(platz.width(), platz.height()) / 2.0 - 1;
    const QPointF mitte = platz.center();
    const QColor kern = leuchtet ? farbe : farbe.darker(600);
    QRadialGradient verlauf(mitte - QPointF(radius * 0.3, radius * 0.35), radius * 1.3);
    verlauf.setColorAt(0, leuchtet ? kern.lighter(160) : kern.lighter(140));
    verlauf.setColorAt(0.6, kern);
    verlauf.setColorAt(1, kern.darker(leuchtet ? 130 : 160));
    maler.setPen(QPen(QColor(70, 70, 70), std::max(1.0, radius * 0.12)));
    maler.setBrush(verlauf);
    maler.drawEllipse(mitte, radius, radius);
}

}  // namespace tarvel::ui
