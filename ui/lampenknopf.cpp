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
    const QRectF rund = QRectF(rect()).adjusted(2, 2, -2, -2);
    lampe_malen(maler, rund, farbe_, isChecked());
    maler.setPen(stil::auf_dem_schirm().schrift_leise);  // one that is out is seen in a dark window too
    maler.setBrush(Qt::NoBrush);
    maler.drawEllipse(rund.adjusted(0.5, 0.5, -0.5, -0.5));
    if (hasFocus()) {
        maler.setPen(stil::akzent);
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

QLabel* lampe(Binder& binder, form& element, const QString& name, int kante) {
    auto* fleck = new QLabel;
    fleck->setProperty("rolle", "lampe");
    fleck->setFixedSize(kante, kante);
    binder.verbinden(element, fleck, name, [&element, fleck] {
        if (const auto farbe = element.hintergrund()) {
            stil::fleck_faerben(fleck, *farbe);
        } else {
            fleck->setStyleSheet({});  // as the window is, light or dark
        }
    });
    return fleck;
}

}  // namespace tarvel::ui
