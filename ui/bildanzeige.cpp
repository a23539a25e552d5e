#include "ui/bildanzeige.h"

#include <QPainter>

namespace tarvel::ui {

void Bildanzeige::setBild(const QImage& bild) {
    bild_ = bild;
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
