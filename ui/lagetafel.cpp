#include "ui/lagetafel.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <algorithm>

#include "ui/lagezeichen.h"

namespace tarvel::ui {
namespace {

struct Aussehen {
    QColor grund;
    QColor schrift;
};

const Aussehen& aussehen_von(lagefarbe farbe) {
    static const std::array<Aussehen, 7> alle{{
        {Qt::transparent, Qt::white},
        {QColor(255, 214, 10), Qt::black},
        {Qt::white, Qt::black},
        {QColor(14, 26, 48), Qt::white},
        {Qt::black, QColor(255, 214, 10)},
        {Qt::white, Qt::black},
        {QColor(70, 74, 82), Qt::white},
    }};
    return alle.at(static_cast<std::size_t>(farbe));
}

const QColor sprit(0, 96, 210);

/// Letters may stand this much higher than they are wide by themselves: on a narrow board they are read from further
/// away.
constexpr double streckung_max = 1.7;

QPainterPath umriss(const QString& text) {
    QFont schrift;
    schrift.setBold(true);
    schrift.setPixelSize(100);
    QPainterPath pfad;
    pfad.addText(0, 0, schrift, text);
    return pfad;
}

struct Mass {
    double x = 0;
    double y = 0;
};

Mass streckung(const QRectF& text, const QSizeF& platz) {
    const double hoch = platz.height() / std::max(text.height(), 1.0);
    const double x = std::min(platz.width() / std::max(text.width(), 1.0), hoch);
    return {x, std::min(hoch, streckung_max * x)};
}

/// As large as fits, in one or more lines of the same letters, in the middle of the place.
void schreiben(QPainter& maler, const QRectF& platz, const QStringList& zeilen) {
    if (platz.isEmpty()) {
        return;
    }
    const double hoehe = platz.height() / (static_cast<double>(zeilen.size()) * 1.15 - 0.15);
    Mass mass{1000, 1000};
    for (const QString& zeile : zeilen) {
        const Mass m = streckung(umriss(zeile).boundingRect(), {platz.width(), hoehe});
        mass = {std::min(mass.x, m.x), std::min(mass.y, m.y)};
    }
    double hoechste = 0;
    for (const QString& zeile : zeilen) {
        hoechste = std::max(hoechste, umriss(zeile).boundingRect().height() * mass.y);
    }
    const double ganze = hoechste * (static_cast<double>(zeilen.size()) * 1.15 - 0.15);
    double y = platz.top() + (platz.height() - ganze) / 2;
    for (const QString& zeile : zeilen) {
        const QPainterPath pfad = umriss(zeile);
        const QRectF rand = pfad.boundingRect();
        maler.save();
        maler.translate(platz.center().x() - rand.center().x() * mass.x, y + hoechste - rand.bottom() * mass.y);
        maler.scale(mass.x, mass.y);
        maler.drawPath(pfad);
        maler.restore();
        y += 1.15 * hoechste;
    }
}

double buchstabenhoehe(const QRectF& platz, const QStringList& zeilen) {
    double kleinste = 1000;
    for (const QString& zeile : zeilen) {
        const double hoehe = platz.height() / static_cast<double>(zeilen.size());
        kleinste = std::min(kleinste, streckung(umriss(zeile).boundingRect(), {platz.width(), hoehe}).y);
    }
    return kleinste;
}

/// In one line or broken, whichever is larger.
void wort_schreiben(QPainter& maler, const QRectF& platz, const Lagetafel::Inhalt& inhalt) {
    const QStringList eine{inhalt.wort};
    const QStringList mehrere = inhalt.zeilen.split('\n');
    constexpr double gewinn = 1.15;  // a little more is not worth a broken word
    schreiben(maler, platz, buchstabenhoehe(platz, mehrere) > gewinn * buchstabenhoehe(platz, eine) ? mehrere : eine);
}

void grund_malen(QPainter& maler, const QRectF& flaeche, const Lagetafel::Inhalt& inhalt, lagefarbe farbe) {
    const Aussehen& a = aussehen_von(farbe);
    maler.fillRect(flaeche, a.grund);
    if (farbe == lagefarbe::box) {
        QRectF voll = flaeche;
        voll.setTop(flaeche.bottom() - flaeche.height() * std::clamp(inhalt.stand, 0.0, 1.0));
        maler.fillRect(voll, sprit);
        maler.setPen(QPen(Qt::white, 2));
        maler.drawLine(voll.topLeft(), voll.topRight());
    }
}

/// What runs round the board or along its edges; returns what is left inside.
QRectF rand_malen(QPainter& maler, const QRectF& flaeche, lagefarbe farbe) {
    const Aussehen& a = aussehen_von(farbe);
    const double dick = std::clamp(0.09 * flaeche.height(), 4.0, 22.0);
    const QRectF oben(flaeche.left(), flaeche.top(), flaeche.width(), dick);
    const QRectF unten = oben.translated(0, flaeche.height() - dick);
    if (farbe == lagefarbe::strafe || farbe == lagefarbe::achtung) {
        schraffieren(maler, oben, 1.6 * dick, a.grund, Qt::black);
        schraffieren(maler, unten, 1.6 * dick, a.grund, Qt::black);
    } else if (farbe == lagefarbe::ziel) {
        karo_malen(maler, oben, a.grund, a.schrift);
        karo_malen(maler, unten, a.grund, a.schrift);
    } else {
        maler.setBrush(Qt::NoBrush);
        maler.setPen(QPen(a.schrift, std::max(dick / 2, 2.0), farbe == lagefarbe::leer ? Qt::DashLine : Qt::SolidLine));
        maler.drawRect(flaeche.adjusted(dick / 4, dick / 4, -dick / 4, -dick / 4));
    }
    const double luft = 0.6 * dick;
    return flaeche.adjusted(1.5 * luft, dick + luft, -1.5 * luft, -dick - luft);
}

}  // namespace

void Lagetafel::zeigen(const Inhalt& neu) {
    if (inhalt_ != neu) {
        inhalt_ = neu;
        update();
    }
}

void Lagetafel::paintEvent(QPaintEvent* /*ereignis*/) {
    const lagebild& bild = bild_von(inhalt_.was);
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche(rect());
    grund_malen(maler, flaeche, inhalt_, bild.farbe);
    QRectF innen = rand_malen(maler, flaeche, bild.farbe);
    const Aussehen& a = aussehen_von(bild.farbe);
    const auto zeichen = [&](const QRectF& platz) {
        lagezeichen_malen(maler, platz, bild.zeichen, a.schrift, a.grund);
        maler.setPen(Qt::NoPen);
        maler.setBrush(a.schrift);
    };
    constexpr double breit_ab = 2.9;
    const double luecke = 0.08 * innen.height();
    if (flaeche.width() > breit_ab * flaeche.height()) {
        const double kante = innen.height();
        zeichen({innen.left(), innen.top(), kante, kante});
        innen.setLeft(innen.left() + kante + luecke);
        const double zahl = inhalt_.zahl.isEmpty() ? 0 : std::min(0.38 * innen.width(), 1.9 * kante);
        schreiben(maler, {innen.right() - zahl, innen.top(), zahl - luecke, innen.height()}, {inhalt_.zahl});
        innen.setRight(innen.right() - (zahl > 0 ? zahl + 4 * luecke : 0));
        wort_schreiben(maler, innen, inhalt_);
        return;
    }
    const double unten = (inhalt_.zahl.isEmpty() ? 0.34 : 0.46) * innen.height();
    const QRectF fuss(innen.left(), innen.bottom() - unten, innen.width(), unten);
    const double kante = std::min(unten, 0.4 * innen.width());
    if (inhalt_.zahl.isEmpty()) {
        zeichen(fuss);
    } else {
        zeichen({fuss.left() + 0.06 * fuss.width(), fuss.top(), kante, unten});
        schreiben(maler, fuss.adjusted(kante + 0.12 * fuss.width(), 0, -0.04 * fuss.width(), 0), {inhalt_.zahl});
    }
    wort_schreiben(maler, innen.adjusted(0, 0, 0, -unten - luecke), inhalt_);
}

}  // namespace tarvel::ui
