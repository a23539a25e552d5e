#include "ui/streifenzeichen.h"

#include <QFontMetricsF>
#include <algorithm>
#include <set>
#include <string>

#include "ui/blattausgabe.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

/// On paper and in a light window, and in a dark one.
struct zeichenfarbe {
    QColor hell;
    QColor dunkel;
};
const zeichenfarbe startfarbe{{20, 140, 60}, {70, 200, 110}};
const zeichenfarbe pausenfarbe{{255, 236, 150}, {104, 88, 26}};
const zeichenfarbe tankfarbe{{70, 130, 200}, {100, 160, 230}};
const zeichenfarbe strafenfarbe{{150, 80, 170}, {200, 140, 222}};

std::string zeichenwort(const protokollfenster& logik, streifenzeichen z) {
    const auto gruppe = [&logik](protokollfenster::gruppe g) { return logik.Check_gruppe.at(g).text(); };
    const auto vorgangswort = [&logik](vorgang was) {
        geschehen g;
        g.was = was;
        return logik.worte_von(g);
    };
    switch (z) {
        case streifenzeichen::gruen:
            return vorgangswort(vorgang::gruen);
        case streifenzeichen::runde:
            return gruppe(protokollfenster::runden);
        case streifenzeichen::abgelehnt:
            return gruppe(protokollfenster::abgelehnt);
        case streifenzeichen::ziel:
            return vorgangswort(vorgang::ziel);
        case streifenzeichen::strafe:
            return gruppe(protokollfenster::strafen);
        case streifenzeichen::stromlos:
            return vorgangswort(vorgang::strom_aus);
        case streifenzeichen::tankt:
            return gruppe(protokollfenster::tanken);
        case streifenzeichen::pause:
            return gruppe(protokollfenster::pausen);
        case streifenzeichen::ende:
            return vorgangswort(vorgang::ende);
    }
    return {};
}

}  // namespace

std::optional<streifenzeichen> zeichen_von(const geschehen& g) {
    switch (g.was) {
        case vorgang::gruen:
            return streifenzeichen::gruen;
        case vorgang::runde:
            return streifenzeichen::runde;
        case vorgang::abgelehnt:
            return streifenzeichen::abgelehnt;
        case vorgang::ziel:
            return streifenzeichen::ziel;
        case vorgang::fruehstart:
        case vorgang::strafe:
            return streifenzeichen::strafe;
        case vorgang::strom_aus:
            return streifenzeichen::stromlos;
        case vorgang::tankt:
            return streifenzeichen::tankt;
        case vorgang::pause:
            return streifenzeichen::pause;
        case vorgang::ende:
            return streifenzeichen::ende;
        default:
            return std::nullopt;
    }
}

bool ist_balken(streifenzeichen z) {
    return z == streifenzeichen::pause || z == streifenzeichen::stromlos || z == streifenzeichen::tankt;
}

QRectF balkenfeld(streifenzeichen z, const QRectF& zeile) {
    constexpr double oben = 0.72;
    constexpr double hoehe = 0.16;
    return z == streifenzeichen::pause
               ? zeile
               : QRectF(zeile.left(), zeile.top() + oben * zeile.height(), zeile.width(), hoehe * zeile.height());
}

QColor farbe_von(streifenzeichen z, const stil::farbsatz& farben) {
    const bool hell = &farben == &stil::auf_papier();
    const auto eine = [hell](const zeichenfarbe& f) { return hell ? f.hell : f.dunkel; };
    switch (z) {
        case streifenzeichen::gruen:
            return eine(startfarbe);
        case streifenzeichen::abgelehnt:
            return farben.akzent;
        case streifenzeichen::strafe:
        case streifenzeichen::stromlos:
            return eine(strafenfarbe);
        case streifenzeichen::tankt:
            return eine(tankfarbe);
        case streifenzeichen::pause:
            return eine(pausenfarbe);
        default:
            return farben.schrift;
    }
}

void marke_malen(QPainter& maler, streifenzeichen z, const QColor& farbe, const QRectF& zeile, double x, double px) {
    const double r = std::min(0.3 * px, 0.3 * zeile.height());
    const double y = zeile.center().y();
    switch (z) {
        case streifenzeichen::gruen:
        case streifenzeichen::ende:
            maler.setPen(QPen(farbe, px / 6));
            maler.drawLine(QPointF(x, zeile.top()), QPointF(x, zeile.bottom()));
            break;
        case streifenzeichen::abgelehnt:
            maler.setPen(QPen(farbe, px / 6));
            maler.drawLine(QPointF(x - r, y - r), QPointF(x + r, y + r));
            maler.drawLine(QPointF(x - r, y + r), QPointF(x + r, y - r));
            break;
        case streifenzeichen::runde:
            maler.setPen(QPen(farbe, px / 10));
            maler.drawLine(QPointF(x, zeile.top() + 0.2 * zeile.height()),
                           QPointF(x, zeile.top() + 0.66 * zeile.height()));
            break;
        default:
            maler.setPen(Qt::NoPen);
            maler.setBrush(farbe);
            maler.drawEllipse(QPointF(x, zeile.top() + 0.8 * zeile.height()), r, r);
    }
}

streifenlegende legende_bilden(const protokollfenster& logik) {
    std::set<streifenzeichen> da;
    for (std::size_t i = 0; i < logik.zeilen().size(); ++i) {
        if (const auto z = zeichen_von(logik.zeile(i))) {
            da.insert(*z);
        }
    }
    streifenlegende legende;
    for (const streifenzeichen z : alle_streifenzeichen) {
        if (da.contains(z)) {
            legende.eintraege.push_back({z, QString::fromStdString(zeichenwort(logik, z))});
        }
    }
    return legende;
}

void streifenlegende::malen(QPainter& maler, const QRectF& feld, double px, const stil::farbsatz& farben) const {
    constexpr double zeichen_em = 1.2;
    constexpr double luecke_em = 0.4;
    constexpr double abstand_em = 1.3;
    const auto breite = [this](double schrift_px) {
        const QFontMetricsF masse(schrift_mit(schrift_px, false));
        double summe = 0;
        for (const eintrag& e : eintraege) {
            summe += (zeichen_em + luecke_em + abstand_em) * schrift_px + masse.horizontalAdvance(e.wort);
        }
        return summe;
    };
    constexpr double leiser = 0.9;
    const double schrift_px = leiser * px * std::min(1.0, feld.width() / std::max(breite(leiser * px), 1.0));
    const QFontMetricsF masse(schrift_mit(schrift_px, false));
    double x = feld.left();
    for (const eintrag& e : eintraege) {
        const QColor farbe = farbe_von(e.zeichen, farben);
        const QRectF zeichenfeld(x, feld.center().y() - 0.6 * schrift_px, zeichen_em * schrift_px, 1.2 * schrift_px);
        if (e.zeichen == streifenzeichen::pause) {
            maler.fillRect(zeichenfeld, farbe);
        } else if (ist_balken(e.zeichen)) {
            const double dick = 0.35 * schrift_px;
            maler.fillRect(QRectF(x, feld.center().y() - dick / 2, zeichenfeld.width(), dick), farbe);
        } else {
            const bool punkt = e.zeichen == streifenzeichen::ziel || e.zeichen == streifenzeichen::strafe;
            marke_malen(maler, e.zeichen, farbe, zeichenfeld.translated(0, punkt ? -0.3 * zeichenfeld.height() : 0),
                        zeichenfeld.center().x(), schrift_px);
        }
        const double wortbreite = masse.horizontalAdvance(e.wort);
        x = zeichenfeld.right() + luecke_em * schrift_px;
        blatttext(maler, {x, feld.top(), wortbreite + 1, feld.height()}, Qt::AlignLeft, e.wort,
                  {schrift_px, false, farben.schrift_leise});
        x += wortbreite + abstand_em * schrift_px;
    }
}

}  // namespace tarvel::ui
