#include "ui/lampenknopf.h"

#include <QPainter>

#include "ui/lampe.h"
#include "ui/stil.h"

namespace tarvel::ui {

Lampenknopf::Lampenknopf(const QColor& farbe, bool schaltet, QWidget* eltern) : QAbstractButton(eltern), farbe_(farbe) {
    setFixedSize(kante, kante);
    setFocusPolicy(schaltet ? Qt::StrongFocus : Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents, !schaltet);
    if (schaltet) {
        setCursor(Qt::PointingHandCursor);
    }
}

void Lampenknopf::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    lampe_malen(maler, QRectF(rect()).adjusted(2, 2, -2, -2), farbe_, isChecked());
    if (hasFocus()) {
        maler.setPen(stil::akzent);
        maler.setBrush(Qt::NoBrush);
        maler.drawRoundedRect(rect().adjusted(0, 0, -1, -1), 4, 4);
    }
}

Lampenknopf* lampe(Binder& binder, haken& element, const QString& name, bool schaltet) {
    auto* knopf = new Lampenknopf(schaltet ? QColor(255, 190, 40) : QColor(60, 220, 90), schaltet, nullptr);
    knopf->setCheckable(true);
    if (schaltet) {
        QObject::connect(knopf, &QAbstractButton::clicked, knopf, [&element, knopf] {
            element.umschalten();
            knopf->setChecked(element.gesetzt());
        });
    }
    binder.verbinden(element, knopf, name, [&element, knopf] { knopf->setChecked(element.gesetzt()); });
    return knopf;
}

}  // namespace tarvel::ui
