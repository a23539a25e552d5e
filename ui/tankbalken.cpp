#include "ui/tankbalken.h"

#include <QPainter>
#include <algorithm>

namespace tarvel::ui {

void Tankbalken::setStand(double anteil, const QColor& farbe) {
    if (anteil_ != anteil || farbe_ != farbe) {
        anteil_ = std::clamp(anteil, 0.0, 1.0);
        farbe_ = farbe;
        update();
    }
}

void Tankbalken::setGrund(const QColor& grund) {
    grund_ = grund;
    update();
}

void Tankbalken::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF rand = QRectF(rect()).adjusted(1, 1, -1, -1);
    const bool leer = anteil_ <= 0;
    maler.setPen(leer ? QPen(warnung, 4) : QPen(QColor(120, 126, 136), 1.5));
    maler.setBrush(grund_);
    maler.drawRoundedRect(leer ? rand.adjusted(1, 1, -1, -1) : rand, 4, 4);
    if (leer) {
        QFont schrift = font();
        schrift.setBold(true);
        schrift.setPixelSize(std::max(static_cast<int>(0.7 * std::min(width(), height())), 1));
        maler.setFont(schrift);
        maler.setPen(farbe_);
        maler.drawText(rect(), Qt::AlignCenter, "0");
        return;
    }
    constexpr double strich_px = 3;  // the last drop is still to be seen
    QRectF voll = rand.adjusted(3, 3, -3, -3);
    if (voll.height() > voll.width()) {
        voll.setTop(voll.bottom() - std::max(voll.height() * anteil_, strich_px));
    } else {
        voll.setWidth(std::max(voll.width() * anteil_, strich_px));
    }
    maler.setPen(Qt::NoPen);
    maler.setBrush(farbe_);
    maler.drawRoundedRect(voll, 2, 2);
}

}  // namespace tarvel::ui
