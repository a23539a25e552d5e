#include "ui/hinweisschild.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "ui/lagezeichen.h"

namespace tarvel::ui {
namespace {

const QColor schildgrund(255, 214, 10);
const QColor schildschrift(Qt::black);

}  // namespace

Hinweisschild::Hinweisschild(QWidget* eltern) : QWidget(eltern), text_(new TextAnzeige(this)) {
    text_->setFett(true);
    text_->setFarbe(schildschrift);
}

void Hinweisschild::zeigen(const QString& text, spurhinweis was) {
    text_->setText(text);
    einpassen();
    if (was_ != was) {
        was_ = was;
        update();
    }
}

void Hinweisschild::setSchriftPx(int px, int mindest_px) {
    mindest_px_ = std::min(mindest_px, px);
    text_->setSchriftPx(px);
    einpassen();
}

/// Where even the narrow ones are too many they all become smaller: a hint is read to its end.
void Hinweisschild::einpassen() {
    constexpr int schmal_prozent = 75;
    QFont schrift = font();
    schrift.setBold(true);
    schrift.setStretch(schmal_prozent);
    int px = std::max(mindest_px_, 1);
    do {
        schrift.setPixelSize(px);
    } while (QFontMetricsF(schrift).horizontalAdvance(text_->text()) > text_->width() && --px > 1);
    text_->setMindestPx(px);
}

void Hinweisschild::resizeEvent(QResizeEvent* /*ereignis*/) {
    text_->setGeometry(rect().adjusted(height() * 9 / 10, 0, -std::max(height() / 5, 4), 0));
    einpassen();
}

void Hinweisschild::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(schildgrund);
    maler.drawRoundedRect(rect(), 4, 4);
    const double rand = 0.1 * height();
    lagezeichen_malen(maler, QRectF(0, 0, height(), height()).adjusted(rand, rand, -rand, -rand), zeichen_von(was_),
                      schildschrift, schildgrund);
}

}  // namespace tarvel::ui
