#include "ui/lagezeichen.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace tarvel::ui {
namespace {

/// Draws in a square from -50 to 50.
struct Stift {
    QPainter& maler;
    QColor farbe;
    QColor grund;

    void linien(double breite) const {
        maler.setBrush(Qt::NoBrush);
        maler.setPen(QPen(farbe, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    void flaechen(const QColor& womit) const {
        maler.setPen(Qt::NoPen);
        maler.setBrush(womit);
    }
};

void boxbalken_malen(const Stift& s) {
    s.flaechen(s.farbe);
    s.maler.drawRect(QRectF(-34, -42, 24, 84));
    s.maler.drawRect(QRectF(10, -42, 24, 84));
}

void dreieck_malen(const Stift& s) {
    s.linien(8);
    s.maler.setBrush(s.farbe);
    s.maler.drawPolygon(QPolygonF{QPointF(0, -42), QPointF(46, 38), QPointF(-46, 38)});
    s.flaechen(s.grund);
    s.maler.drawRoundedRect(QRectF(-6, -18, 12, 34), 4, 4);
    s.maler.drawEllipse(QPointF(0, 27), 7, 7);
}

void uhr_malen(const Stift& s) {
    s.linien(11);
    s.maler.drawEllipse(QPointF(0, 4), 38, 38);
    s.maler.drawLine(QPointF(0, 4), QPointF(0, -20));
    s.maler.drawLine(QPointF(0, 4), QPointF(17, 14));
    s.maler.drawLine(QPointF(-12, -46), QPointF(12, -46));
}

void zapfsaeule_malen(const Stift& s) {
    s.flaechen(s.farbe);
    s.maler.drawRoundedRect(QRectF(-38, -44, 46, 80), 6, 6);
    s.maler.drawRect(QRectF(-46, 36, 62, 9));
    s.flaechen(s.grund);
    s.maler.drawRect(QRectF(-29, -34, 28, 22));
    s.linien(8);
    QPainterPath schlauch(QPointF(8, -6));
    schlauch.lineTo(20, -6);
    schlauch.lineTo(20, 26);
    schlauch.cubicTo(20, 42, 40, 42, 40, 26);
    schlauch.lineTo(40, -16);
    schlauch.lineTo(26, -34);
    s.maler.drawPath(schlauch);
}

void leerer_tank_malen(const Stift& s) {
    s.linien(9);
    s.maler.drawPolygon(
        QPolygonF{QPointF(-36, 44), QPointF(-36, -20), QPointF(-16, -38), QPointF(36, -38), QPointF(36, 44)});
    s.maler.drawLine(QPointF(-42, -46), QPointF(-26, -46));
    s.maler.drawLine(QPointF(-20, -12), QPointF(20, 30));
    s.maler.drawLine(QPointF(20, -12), QPointF(-20, 30));
}

void zielflagge_malen(const Stift& s) {
    s.linien(8);
    s.maler.drawLine(QPointF(-40, -44), QPointF(-40, 48));
    const QRectF tuch(-36, -42, 84, 56);
    karo_malen(s.maler, tuch, s.grund, s.farbe);
    s.linien(4);
    s.maler.drawRect(tuch);
}

void kreuz_malen(const Stift& s) {
    s.linien(11);
    s.maler.drawEllipse(QPointF(0, 0), 42, 42);
    s.maler.drawLine(QPointF(-18, -18), QPointF(18, 18));
    s.maler.drawLine(QPointF(18, -18), QPointF(-18, 18));
}

void durchgestrichen_malen(const Stift& s) {
    s.linien(13);
    s.maler.drawEllipse(QPointF(0, 0), 38, 38);
    s.maler.drawLine(QPointF(-27, 27), QPointF(27, -27));
}

}  // namespace

void lagezeichen_malen(QPainter& maler, const QRectF& platz, lagezeichen zeichen, const QColor& farbe,
                       const QColor& grund) {
    using malen = void (*)(const Stift&);
    static constexpr std::array<malen, 9> alle{nullptr,          boxbalken_malen,  dreieck_malen,
                                               uhr_malen,        zapfsaeule_malen, leerer_tank_malen,
                                               zielflagge_malen, kreuz_malen,      durchgestrichen_malen};
    const malen eines = alle.at(static_cast<std::size_t>(zeichen));
    if (eines == nullptr) {
        return;
    }
    maler.save();
    maler.translate(platz.center());
    const double faktor = std::min(platz.width(), platz.height()) / 100;
    maler.scale(faktor, faktor);
    eines({maler, farbe, grund});
    maler.restore();
}

void schraffieren(QPainter& maler, const QRectF& flaeche, double breite, const QColor& hell, const QColor& dunkel) {
    maler.save();
    maler.setClipRect(flaeche, Qt::IntersectClip);
    maler.fillRect(flaeche, dunkel);
    maler.setPen(Qt::NoPen);
    maler.setBrush(hell);
    const double h = flaeche.height();
    const int streifen = static_cast<int>(std::ceil((flaeche.width() + h + breite) / (2 * breite)));
    for (int i = 0; i < streifen; ++i) {
        const double x = flaeche.left() - h - breite + 2 * breite * i;
        maler.drawPolygon(QPolygonF{QPointF(x, flaeche.bottom()), QPointF(x + h, flaeche.top()),
                                    QPointF(x + h + breite, flaeche.top()), QPointF(x + breite, flaeche.bottom())});
    }
    maler.restore();
}

void karo_malen(QPainter& maler, const QRectF& flaeche, const QColor& hell, const QColor& dunkel) {
    const double soll = flaeche.height() / 2;
    const int spalten = std::max(static_cast<int>(std::lround(flaeche.width() / soll)), 1);
    const double breite = flaeche.width() / spalten;
    maler.fillRect(flaeche, hell);
    for (int zeile = 0; zeile < 2; ++zeile) {
        for (int spalte = 0; spalte < spalten; ++spalte) {
            if ((zeile + spalte) % 2 == 0) {
                maler.fillRect(QRectF(flaeche.left() + spalte * breite, flaeche.top() + zeile * soll, breite, soll),
                               dunkel);
            }
        }
    }
}

}  // namespace tarvel::ui
