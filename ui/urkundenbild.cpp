#include "ui/urkundenbild.h"

#include <QImageReader>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "ui/bildleser.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

using element = vorlagenelement;

constexpr double je_mm = 10;     // all sheets are drawn in tenths of a millimetre
constexpr int bildkante = 1600;  // pixels, enough for a picture as wide as the page
constexpr double flaggenreihen = 2;

QRectF feld_von(const element& e) {
    return {e.x * je_mm, e.y * je_mm, e.breite * je_mm, e.hoehe * je_mm};
}

QString qtext(const std::string& text) {
    return QString::fromStdString(text);
}

class Urkundenmaler {
public:
    Urkundenmaler(QPainter& maler, const urkundenbogen& bogen) : m_(maler), b_(bogen) {}

    void malen() {
        for (std::size_t i = 0; i < b_.vorlage.size(); ++i) {
            m_.save();
            element_malen(b_.vorlage[i], b_.bilder[i]);
            m_.restore();
        }
    }

private:
    void element_malen(const element& e, const QImage& bild) {
        const QColor farbe = stil::farbe_von(e.farbton);
        switch (e.was) {
            case element::art::flaeche:
                m_.fillRect(feld_von(e), farbe);
                break;
            case element::art::rahmen:
                m_.setPen(QPen(farbe, e.mass * je_mm, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
                m_.drawRect(feld_von(e));
                break;
            case element::art::linie:
                m_.setPen(QPen(farbe, e.mass * je_mm));
                m_.drawLine(feld_von(e).topLeft(), feld_von(e).bottomRight());
                break;
            case element::art::text:
                text(e, farbe);
                break;
            case element::art::bild:
                bild_malen(e, bild, farbe);
                break;
            case element::art::plakette:
                plakette(feld_von(e));
                break;
            case element::art::zielflagge:
                zielflagge(feld_von(e), farbe);
                break;
        }
    }

    void text(const element& e, const QColor& farbe) {
        QFont schrift;
        if (e.serifen) {
            schrift.setFamilies({"Georgia", "DejaVu Serif", "Times New Roman"});
            schrift.setStyleHint(QFont::Serif);
        }
        schrift.setPixelSize(static_cast<int>(std::lround(e.mass * je_mm)));
        schrift.setBold(e.fett);
        schrift.setItalic(e.kursiv);
        constexpr std::array<Qt::AlignmentFlag, 3> seiten{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
        blatttext(m_, feld_von(e), seiten.at(static_cast<std::size_t>(e.an)),
                  qtext(eingesetzt(e.inhalt, b_.inhalt.worte)), schrift, farbe);
    }

    void bild_malen(const element& e, const QImage& bild, const QColor& rand) {
        const bool fahrer = e.zeigt == element::motiv::fahrer;
        if (bild.isNull() && !fahrer) {
            return;
        }
        const QRectF feld = feld_von(e);
        QPainterPath form;
        if (e.rund) {
            form.addEllipse(feld);
        } else {
            form.addRoundedRect(feld, 30, 30);
        }
        m_.setClipPath(form);
        if (bild.isNull()) {
            anfangsbuchstaben(feld);
        } else {  // fills its place, and loses what stands over at two sides
            const QSizeF gross = QSizeF(bild.size()).scaled(feld.size(), Qt::KeepAspectRatioByExpanding);
            QRectF ziel(QPointF(), gross);
            ziel.moveCenter(feld.center());
            m_.setRenderHint(QPainter::SmoothPixmapTransform);
            m_.fillRect(feld, stil::karte);
            m_.drawImage(ziel, bild);
        }
        m_.setClipping(false);
        if (e.mass > 0) {
            m_.setPen(QPen(rand, e.mass * je_mm));
            m_.setBrush(Qt::NoBrush);
            m_.drawPath(form);
        }
    }

    /// In place of a picture, on the colour of the lane.
    void anfangsbuchstaben(const QRectF& feld) {
        QString buchstaben;
        for (const QString& name : qtext(b_.inhalt.wort(urkundenwort::fahrer)).split(' ', Qt::SkipEmptyParts)) {
            if (buchstaben.size() < 2) {
                buchstaben += name.front().toUpper();
            }
        }
        QLinearGradient verlauf(feld.topLeft(), feld.bottomRight());
        verlauf.setColorAt(0, b_.spurfarbe.lighter(125));
        verlauf.setColorAt(1, b_.spurfarbe.darker(130));
        m_.fillRect(feld, verlauf);
        const double rand = feld.width() / 4.5;  // wide ones do not go under the rosette
        blatttext(m_, feld.adjusted(rand, 0, -rand, 0), Qt::AlignHCenter, buchstaben,
                  {feld.height() * 0.45, true, stil::schrift_auf(b_.spurfarbe)});
    }

    /// A rosette in the metal of the place; nobody goes home without one.
    void plakette(const QRectF& feld) {
        constexpr std::array<std::pair<int, int>, 4> metalle{
            {{0xE8BE3C, 0xA67C12}, {0xC9CED6, 0x838B97}, {0xD39154, 0x8F5622}, {0x3C78C8, 0x1F4A86}}};
        const int platz = b_.inhalt.platz;
        const auto& [hell, dunkel] = metalle.at(static_cast<std::size_t>(platz >= 1 && platz <= 3 ? platz - 1 : 3));
        const QColor licht = QColor::fromRgb(static_cast<QRgb>(hell));
        const QColor schatten = QColor::fromRgb(static_cast<QRgb>(dunkel));
        const double r = std::min(feld.width(), feld.height()) / 2;
        m_.translate(feld.center());
        m_.setPen(Qt::NoPen);
        for (const double winkel : {18.0, -18.0}) {
            m_.save();
            m_.rotate(winkel);
            m_.setBrush(winkel > 0 ? stil::akzent : stil::akzent.darker(125));
            m_.drawPolygon(QPolygonF(
                {{-r * 0.3, r * 0.5}, {r * 0.3, r * 0.5}, {r * 0.3, r * 1.6}, {0, r * 1.35}, {-r * 0.3, r * 1.6}}));
            m_.restore();
        }
        constexpr int zacken = 24;
        QPolygonF stern;
        for (int i = 0; i < 2 * zacken; ++i) {
            const double winkel = i * std::numbers::pi / zacken;
            const double weit = i % 2 == 0 ? r : r * 0.9;
            stern << QPointF(weit * std::sin(winkel), weit * std::cos(winkel));
        }
        m_.setBrush(schatten);
        m_.drawPolygon(stern);
        QRadialGradient glanz(QPointF(-r * 0.3, -r * 0.35), r * 1.3);
        glanz.setColorAt(0, licht.lighter(125));
        glanz.setColorAt(1, licht);
        m_.setBrush(glanz);
        m_.setPen(QPen(licht.lighter(135), r * 0.05));
        m_.drawEllipse(QPointF(), r * 0.78, r * 0.78);
        const QRectF mitte(-r * 0.7, -r * 0.6, r * 1.4, r * 1.2);
        QFont schrift = schrift_mit(r * (platz > 0 ? 0.95 : 1.1), true);
        blatttext(m_, mitte, Qt::AlignHCenter, platz > 0 ? QString::number(platz) : QString("★"), schrift,
                  platz >= 1 && platz <= 3 ? schatten.darker(150) : QColor(Qt::white));
    }

    void zielflagge(const QRectF& feld, const QColor& farbe) {
        const double kante = feld.height() / flaggenreihen;
        const int spalten = std::max(static_cast<int>(std::lround(feld.width() / std::max(kante, 1.0))), 1);
        const double breit = feld.width() / spalten;
        m_.setRenderHint(QPainter::Antialiasing, false);
        for (int i = 0; i < spalten; ++i) {
            m_.fillRect(QRectF(feld.left() + i * breit, feld.top() + (i % 2) * kante, breit, kante), farbe);
        }
    }

    QPainter& m_;
    const urkundenbogen& b_;
};

QImage bild_lesen_fuer(const dateien& ablage, const std::string& datei) {
    return datei.empty() ? QImage() : Bildleser::gleich_lesen(ablage.pfad(datei), bildkante);
}

}  // namespace

urkundenbogen bogen_bilden(const dateien& ablage, const urkundenvorlage& vorlage, const urkunde& u,
                           const QColor& spurfarbe) {
    urkundenbogen bogen{vorlage, u, spurfarbe, {}};
    for (const element& e : vorlage) {
        const std::string datei = e.was != element::art::bild           ? std::string()
                                  : e.zeigt == element::motiv::fahrer   ? u.fahrerbild
                                  : e.zeigt == element::motiv::fahrzeug ? u.fahrzeugbild
                                                                        : e.inhalt;
        bogen.bilder.push_back(bild_lesen_fuer(ablage, datei));
    }
    return bogen;
}

blattseiten urkundenseiten(const QString& titel, std::vector<urkundenbogen> boegen) {
    const auto anzahl = static_cast<int>(boegen.size());
    return {titel, [anzahl](const QSizeF& /*groesse*/) { return anzahl; },
            [alle = std::move(boegen)](QPainter& maler, const QSizeF& /*groesse*/, int nummer) {
                Urkundenmaler(maler, alle.at(static_cast<std::size_t>(nummer))).malen();
            },
            true};
}

void Urkundenbild::setBogen(std::optional<urkundenbogen> bogen) {
    seite_.reset();
    if (bogen) {
        setAccessibleName(
            qtext(bogen->inhalt.wort(urkundenwort::fahrer) + ", " + bogen->inhalt.wort(urkundenwort::platzwort)));
        seite_ = urkundenseiten({}, {std::move(*bogen)});
    }
    update();
}

void Urkundenbild::paintEvent(QPaintEvent* /*ereignis*/) {
    if (!seite_) {
        return;
    }
    QPainter maler(this);
    const QSizeF blatt =
        QSizeF(blattmass::urkunde_breite, blattmass::urkunde_hoehe).scaled(size() - QSize(12, 12), Qt::KeepAspectRatio);
    QRectF feld(QPointF(), blatt);
    feld.moveCenter(QRectF(rect()).center());
    maler.fillRect(feld.translated(3, 3), QColor(0, 0, 0, 40));
    maler.fillRect(feld, stil::karte);
    maler.setClipRect(feld);
    seite_malen(maler, feld, *seite_);
}

}  // namespace tarvel::ui
