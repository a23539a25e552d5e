#include "ui/frageknopf.h"

#include <QComboBox>
#include <QEvent>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace tarvel::ui {
namespace {

constexpr double hoeher = 1.9;  // than its button
constexpr double breiter = 1.6;
constexpr double rand_px = 4;

const QColor warngelb{255, 214, 0};

QFont passend(QFont schrift, const QString& text, const QRectF& platz) {
    constexpr int probe_px = 100;
    schrift.setPixelSize(probe_px);
    const QFontMetricsF masse(schrift);
    const double anteil =
        std::min(platz.width() / std::max(masse.horizontalAdvance(text), 1.0), platz.height() / masse.height());
    schrift.setPixelSize(std::max(static_cast<int>(probe_px * anteil), 1));
    return schrift;
}

}  // namespace

Frageknopf::Frageknopf(befehl& element, QPushButton& knopf) : QPushButton(knopf.window()), knopf_(knopf) {
    setObjectName(knopf.objectName() + "_frage");
    setFocusPolicy(Qt::NoFocus);  // the keys are those of its button
    connect(this, &QPushButton::clicked, this, [&element] { element.klicken(); });
    knopf.installEventFilter(this);
    hide();
}

void Frageknopf::fragen(const QString& frage) {
    setText(frage);
    setToolTip(knopf_.toolTip());
    if (!frage.isEmpty() && knopf_.isVisible()) {
        anordnen();
        show();
        raise();
        update();
    } else {
        hide();
    }
}

bool Frageknopf::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ziel == &knopf_ && ereignis->type() == QEvent::Hide) {
        hide();
    } else if (ziel == &knopf_ && isVisible() &&
               (ereignis->type() == QEvent::Move || ereignis->type() == QEvent::Resize)) {
        anordnen();
    }
    return QPushButton::eventFilter(ziel, ereignis);
}

void Frageknopf::anordnen() {
    const QRect fuss(knopf_.mapTo(knopf_.window(), QPoint()), knopf_.size());
    const int hinauf = static_cast<int>(fuss.height() * (hoeher - 1));
    const int weiter = static_cast<int>(fuss.width() * (breiter - 1));
    const std::array<QRect, 6> orte{fuss.adjusted(0, -hinauf, weiter, 0), fuss.adjusted(-weiter, -hinauf, 0, 0),
                                    fuss.adjusted(0, 0, weiter, 0),       fuss.adjusted(-weiter, 0, 0, 0),
                                    fuss.adjusted(0, -hinauf, 0, 0),      fuss};
    const QRect innen = knopf_.window()->rect();
    const auto* frei = std::find_if(orte.begin(), orte.end() - 1,
                                    [&](const QRect& ort) { return innen.contains(ort) && !trifft_anderes(ort); });
    setGeometry(*frei);
}

bool Frageknopf::trifft_anderes(const QRect& ort) const {
    const QWidget* fenster = knopf_.window();
    for (const QWidget* anderes : fenster->findChildren<QWidget*>()) {
        const bool bedienbar = anderes->inherits("QAbstractButton") || qobject_cast<const QLineEdit*>(anderes) ||
                               qobject_cast<const QComboBox*>(anderes);
        const bool eigenes = anderes == this || anderes == &knopf_;
        if (bedienbar && !eigenes && anderes->isVisible() && anderes->window() == fenster &&
            ort.intersects({anderes->mapTo(fenster, QPoint()), anderes->size()})) {
            return true;
        }
    }
    return false;
}

void Frageknopf::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF schild = QRectF(rect()).adjusted(rand_px / 2, rand_px / 2, -rand_px / 2, -rand_px / 2);
    maler.setPen(QPen(isDown() ? Qt::white : Qt::black, rand_px));
    maler.setBrush(isDown() ? warngelb.darker(120) : warngelb);
    maler.drawRoundedRect(schild, 8, 8);
    maler.setPen(Qt::black);
    const qsizetype frage = text().indexOf("? ") + 1;  // 0 without one
    const QRectF innen = schild.adjusted(2 * rand_px, rand_px / 2, -2 * rand_px, -rand_px / 2);
    QFont fett = knopf_.font();
    fett.setBold(true);
    const double oben = frage > 0 ? innen.height() * 0.5 : 0;
    const auto zeile = [&](const QString& inhalt, const QRectF& ort) {
        maler.setFont(passend(fett, inhalt, ort));
        maler.drawText(ort, Qt::AlignCenter | Qt::TextSingleLine, inhalt);
    };
    if (frage > 0) {
        zeile(text().left(frage), {innen.topLeft(), QSizeF(innen.width(), oben)});
    }
    zeile(text().mid(frage).trimmed(), innen.adjusted(0, oben, 0, 0));
}

}  // namespace tarvel::ui
