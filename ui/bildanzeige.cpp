#include "ui/bildanzeige.h"

#include <QPainter>

namespace tarvel::ui {

void Bildanzeige::setBild(const QImage& bild) {
    constexpr int kante_max = 1600;  // a photograph is kept no larger than any screen shows it here
    const bool gross = bild.width() > kante_max || bild.height() > kante_max;
    bild_ = gross ? bild.scaled(kante_max, kante_max, Qt::KeepAspectRatio, Qt::SmoothTransformation) : bild;
    passend_ = {};
    update();
}

void Bildanzeige::paintEvent(QPaintEvent* /*ereignis*/) {
    if (bild_.isNull() || width() < 1 || height() < 1) {
        return;
    }
    const double dichte = devicePixelRatioF();
    const QSize soll = bild_.size().scaled(size() * dichte, Qt::KeepAspectRatio);
    if (passend_.size() != soll) {
        passend_ = QPixmap::fromImage(bild_.scaled(soll, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        passend_.setDevicePixelRatio(dichte);
    }
    QRectF ort(QPointF(), QSizeF(soll) / dichte);
    ort.moveCenter(QRectF(rect()).center());
    QPainter(this).drawPixmap(ort.topLeft(), passend_);
}

}  // namespace tarvel::ui
