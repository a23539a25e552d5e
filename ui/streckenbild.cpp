#include "ui/streckenbild.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <array>

#include "ui/blattausgabe.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

/// The centre line of a lane on a canvas of 100 by 100; lanes lie side by side.
QPainterPath spurlinie(double versatz) {
    QPainterPath pfad;
    pfad.moveTo(50, 112 + versatz * 0.2);
    pfad.cubicTo(63, 96 + versatz, 64, 58 + versatz * 1.6, 76, 46 + versatz * 1.2);
    pfad.cubicTo(85, 37 + versatz, 90, 34 + versatz, 108, 20 + versatz);
    return pfad;
}

void auto_zeichnen(QPainter& maler, const QPainterPath& linie, double stelle, double groesse, const QColor& farbe) {
    const QPointF ort = linie.pointAtPercent(stelle);
    maler.save();
    maler.translate(ort);
    maler.rotate(-linie.angleAtPercent(stelle));
    maler.scale(groesse, groesse);
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0, 0, 0, 110));
    maler.drawRoundedRect(QRectF(-1.15, -0.42, 2.4, 1.0), 0.3, 0.3);
    maler.setBrush(farbe);
    maler.drawRoundedRect(QRectF(-1.1, -0.45, 2.2, 0.9), 0.35, 0.35);
    maler.setBrush(QColor(20, 24, 30));
    maler.drawRoundedRect(QRectF(-0.45, -0.34, 0.8, 0.68), 0.2, 0.2);
    maler.setBrush(QColor(255, 250, 220));
    maler.drawRect(QRectF(0.95, -0.36, 0.14, 0.2));
    maler.drawRect(QRectF(0.95, 0.16, 0.14, 0.2));
    maler.restore();
}

}  // namespace

Streckenbild::Streckenbild(QWidget* eltern) : QWidget(eltern) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Streckenbild::setTitel(const QString& titel, const QString& unterzeile) {
    titel_ = titel;
    unterzeile_ = unterzeile;
    update();
}

void Streckenbild::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    QLinearGradient boden(0, 0, width(), height());
    boden.setColorAt(0, QColor(17, 20, 26));
    boden.setColorAt(1, QColor(44, 50, 61));
    maler.fillRect(rect(), boden);

    QTransform auf_flaeche;
    auf_flaeche.scale(width() / 100.0, height() / 100.0);
    const auto linie = [&auf_flaeche](double versatz) { return auf_flaeche.map(spurlinie(versatz)); };
    const double abstand = 9;
    QPainterPath fahrbahn = linie(-3 * abstand);
    fahrbahn.connectPath(linie(3 * abstand).toReversed());
    maler.fillPath(fahrbahn, QColor(58, 63, 73));
    maler.setPen(QPen(QColor(235, 235, 235, 130), std::max(2.0, height() * 0.012)));
    maler.drawPath(linie(-3 * abstand));
    maler.drawPath(linie(3 * abstand));

    const std::array<QColor, 6> farben{QColor(255, 60, 60),  QColor(60, 220, 90),   QColor(110, 150, 255),
                                       QColor(255, 225, 60), QColor(205, 205, 205), QColor(245, 80, 235)};
    const std::array<double, 6> stellen{0.66, 0.52, 0.72, 0.44, 0.6, 0.36};
    for (std::size_t i = 0; i < farben.size(); ++i) {
        const QPainterPath spur = linie((static_cast<double>(i) - 2.5) * abstand);
        maler.setPen(QPen(QColor(16, 18, 22), std::max(1.5, height() * 0.012)));
        maler.drawPath(spur);
        QColor schweif = farben[i];
        schweif.setAlpha(150);
        maler.setPen(QPen(schweif, std::max(1.0, height() * 0.006)));
        maler.drawPath(spur);
    }
    for (std::size_t i = 0; i < farben.size(); ++i) {
        auto_zeichnen(maler, linie((static_cast<double>(i) - 2.5) * abstand), stellen[i], height() * 0.042, farben[i]);
    }

    if (titel_.isEmpty()) {
        return;
    }
    QFont schrift = font();
    schrift.setPixelSize(static_cast<int>(height() * 0.4));
    schrift.setBold(true);
    schrift.setItalic(true);
    maler.setFont(schrift);
    maler.setPen(Qt::white);
    const QRect links(static_cast<int>(height() * 0.25), 0, width(), static_cast<int>(height() * 0.68));
    maler.drawText(links, Qt::AlignLeft | Qt::AlignBottom, titel_);
    schrift.setPixelSize(std::max(11, static_cast<int>(height() * 0.115)));
    schrift.setBold(false);
    schrift.setItalic(false);
    const QRect darunter(links.left() + 2, links.bottom() + 2, width(), static_cast<int>(height() * 0.25));
    constexpr double fahrbahn_ab = 0.55;  // of the width, where this line runs
    maler.setFont(eingepasst(schrift, unterzeile_, width() * fahrbahn_ab - darunter.left()));
    maler.setPen(QColor(205, 210, 220));
    maler.drawText(darunter, Qt::AlignLeft | Qt::AlignTop, unterzeile_);
}

}  // namespace tarvel::ui
