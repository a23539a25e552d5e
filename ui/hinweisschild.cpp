#include "ui/hinweisschild.h"

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
    if (was_ != was) {
        was_ = was;
        update();
    }
}

void Hinweisschild::resizeEvent(QResizeEvent* /*ereignis*/) {
    text_->setGeometry(rect().adjusted(height() * 9 / 10, 0, -std::max(height() / 5, 4), 0));
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
