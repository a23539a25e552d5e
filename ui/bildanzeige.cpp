#include "ui/bildanzeige.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace tarvel::ui {

void Bildanzeige::setQuelle(Bildleser::Dateien dateien) {
    quelle_ = std::move(dateien);
    kante_ = 0;
    ++anfrage_;
    bild_ = {};
    passend_ = {};
    update();
}

void Bildanzeige::anfordern(int kante) {
    kante_ = kante;
    leser_.lesen(quelle_, kante, this, [this, nummer = ++anfrage_](const QImage& bild) {
        if (nummer == anfrage_) {
            bild_ = bild;
            passend_ = {};
            update();
        }
    });
}

void Bildanzeige::paintEvent(QPaintEvent* /*ereignis*/) {
    if (quelle_.empty() || width() < 1 || height() < 1) {
        return;
    }
    const double dichte = devicePixelRatioF();
    if (const int kante = Bildleser::stufe(std::max(width(), height()) * dichte); kante > kante_) {
        anfordern(kante);
    }
    if (bild_.isNull()) {
        return;
    }
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
