#include "ui/protokollstreifen.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "ui/blattausgabe.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// width of the names
constexpr double namen_em_min = 10;
constexpr double namen_em_max = 16;

/// Where everything is.
class feldmass {
public:
    feldmass(const QRectF& flaeche, const streifeninhalt& inhalt, double schrift_px)
        : inhalt_(inhalt),
          feld_(flaeche.adjusted(inhalt.namen_em * schrift_px, 1.7 * schrift_px, -0.6 * schrift_px,
                                 -0.3 * schrift_px - inhalt.legende.hoehe(schrift_px))),
          zeile_(feld_.height() / static_cast<double>(std::max<std::size_t>(inhalt.zeilen.size(), 1))) {}

    const QRectF& feld() const { return feld_; }
    double x(zeit_ms zeit) const { return feld_.left() + static_cast<double>(zeit - inhalt_.zeitraum.von) * je_ms(); }
    double je_ms() const { return feld_.width() / static_cast<double>(std::max<zeit_ms>(inhalt_.zeitraum.dauer(), 1)); }
    zeit_ms zeit(double x) const { return inhalt_.zeitraum.von + std::llround((x - feld_.left()) / je_ms()); }
    QRectF zeile(std::size_t nummer) const {
        return {feld_.left(), feld_.top() + zeile_ * static_cast<double>(nummer), feld_.width(), zeile_};
    }
    /// The row of the lane; the whole field for all lanes, nothing for one that does not drive.
    QRectF zeile_von(int spur) const {
        if (spur == 0) {
            return feld_;
        }
        for (std::size_t i = 0; i < inhalt_.zeilen.size(); ++i) {
            if (inhalt_.zeilen[i].spur == spur) {
                return zeile(i);
            }
        }
        return {};
    }
    int spur_bei(double y) const {
        for (std::size_t i = 0; i < inhalt_.zeilen.size(); ++i) {
            if (y >= zeile(i).top() && y < zeile(i).bottom()) {
                return inhalt_.zeilen[i].spur;
            }
        }
        return 0;
    }

private:
    const streifeninhalt& inhalt_;
    QRectF feld_;
    double zeile_;
};

/// Paints one strip. Marks that would cover each other are painted once.
class streifenmaler {
public:
    streifenmaler(QPainter& maler, const QRectF& flaeche, const streifeninhalt& inhalt, double schrift_px,
                  const stil::farbsatz& farben)
        : maler_(maler),
          flaeche_(flaeche),
          inhalt_(inhalt),
          px_(schrift_px),
          farben_(farben),
          mass_(flaeche, inhalt, schrift_px) {}

    void malen() {
        grund();
        maler_.save();
        maler_.setClipRect(mass_.feld().adjusted(-1, -1, 1, 1));
        balken(streifenzeichen::pause);
        linien();
        balken(streifenzeichen::stromlos);
        balken(streifenzeichen::tankt);
        marken();
        wahl();
        maler_.restore();
        inhalt_.legende.malen(
            maler_,
            {mass_.feld().left(), mass_.feld().bottom() + 0.2 * px_, mass_.feld().width(), inhalt_.legende.hoehe(px_)},
            px_, farben_);
    }

private:
    bool sichtbar(const geschehen& g) const {
        const zeit_ms bis =
            g.bis == geschehen::keine || g.ist_abgelehnt() ? g.seit_gruen : std::max(g.bis, g.seit_gruen);
        return bis >= inhalt_.zeitraum.von && g.seit_gruen <= inhalt_.zeitraum.bis;
    }

    void grund() {
        maler_.fillRect(mass_.feld(), farben_.karte);
        for (std::size_t i = 0; i < inhalt_.zeilen.size(); ++i) {
            const streifeninhalt::zeile& z = inhalt_.zeilen[i];
            const QRectF zeile = mass_.zeile(i);
            const double fleck = 0.7 * px_;
            maler_.fillRect(QRectF(flaeche_.left() + 2, zeile.center().y() - fleck / 2, fleck, fleck), z.farbe);
            const double breite = (inhalt_.namen_em - 1) * px_ - 8;
            const QFont schrift = schrift_mit(px_, false);
            maler_.setFont(schrift);
            maler_.setPen(farben_.schrift);
            maler_.drawText(QRectF(flaeche_.left() + px_ + 4, zeile.top(), breite, zeile.height()),
                            static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine),
                            QFontMetricsF(schrift).elidedText(z.name, Qt::ElideRight, breite));
        }
        zeitachse();
    }

    void zeitachse() {
        constexpr std::array<zeit_ms, 16> schritte{100,   200,    500,    1000,   2000,    5000,    10000,   30000,
                                                   60000, 120000, 300000, 600000, 1800000, 3600000, 7200000, 36000000};
        const double mindestens = 6 * px_;
        zeit_ms schritt = schritte.back();
        for (const zeit_ms s : schritte) {
            if (static_cast<double>(s) * mass_.je_ms() >= mindestens) {
                schritt = s;
                break;
            }
        }
        const zeit_ms von = inhalt_.zeitraum.von;
        maler_.setPen(QPen(farben_.linie, px_ / 14));
        for (zeit_ms t = von / schritt * schritt; t <= inhalt_.zeitraum.bis; t += schritt) {
            if (t < von) {
                continue;
            }
            const double x = mass_.x(t);
            maler_.setPen(QPen(farben_.linie, px_ / 14));
            maler_.drawLine(QPointF(x, mass_.feld().top()), QPointF(x, mass_.feld().bottom()));
            QRectF platz(x - 3 * px_, flaeche_.top(), 6 * px_, 1.5 * px_);
            platz.moveRight(std::min(platz.right(), flaeche_.right() + 1.6 * px_));  // the letters stay on the sheet
            blatttext(maler_, platz, Qt::AlignHCenter,
                      QString::fromStdString(hergang_zeit(t, schritt < 1000 ? 1 : 0, ',')),
                      {0.85 * px_, false, farben_.schrift_leise});
        }
    }

    void linien() {
        maler_.setPen(QPen(farben_.linie, px_ / 10));
        for (std::size_t i = 0; i <= inhalt_.zeilen.size(); ++i) {
            const double y = mass_.zeile(i).top();
            maler_.drawLine(QPointF(mass_.feld().left(), y), QPointF(mass_.feld().right(), y));
        }
    }

    void balken(streifenzeichen z) {
        for (const geschehen& g : inhalt_.geschehnisse) {
            if (zeichen_von(g) == z && g.bis != geschehen::keine && sichtbar(g)) {
                QRectF feld = balkenfeld(z, mass_.zeile_von(g.spur));
                const double x = std::max(mass_.x(g.seit_gruen), mass_.feld().left());
                feld.setLeft(x);
                feld.setRight(std::max(std::min(mass_.x(g.bis), mass_.feld().right()), x + px_ / 8));
                maler_.fillRect(feld, farbe_von(z, farben_));
            }
        }
    }

    void marken() {
        std::map<std::pair<int, bool>, double> zuletzt;  // by lane, and refused or not
        for (const geschehen& g : inhalt_.geschehnisse) {
            const auto z = zeichen_von(g);
            if (!z || ist_balken(*z) || !sichtbar(g) || mass_.zeile_von(g.spur).isEmpty()) {
                continue;
            }
            const double x = mass_.x(g.seit_gruen);
            const auto vorher = zuletzt.find({g.spur, g.ist_abgelehnt()});
            if (vorher == zuletzt.end() || x - vorher->second >= px_ / 12) {
                zuletzt[{g.spur, g.ist_abgelehnt()}] = x;
                marke_malen(maler_, *z, farbe_von(*z, farben_), mass_.zeile_von(g.spur), x, px_);
            }
        }
    }

    void wahl() {
        if (inhalt_.gewaehlt < 0 || static_cast<std::size_t>(inhalt_.gewaehlt) >= inhalt_.geschehnisse.size()) {
            return;
        }
        const geschehen& g = inhalt_.geschehnisse[static_cast<std::size_t>(inhalt_.gewaehlt)];
        const QRectF zeile = mass_.zeile_von(g.spur);
        const double x = mass_.x(g.seit_gruen);
        QColor hell = farben_.akzent;
        hell.setAlpha(60);
        maler_.fillRect(QRectF(x - 0.4 * px_, zeile.top(), 0.8 * px_, zeile.height()), hell);
        maler_.setPen(QPen(farben_.akzent, px_ / 10));
        maler_.setBrush(Qt::NoBrush);
        maler_.drawRect(QRectF(x - 0.4 * px_, zeile.top(), 0.8 * px_, zeile.height()));
    }

    QPainter& maler_;
    QRectF flaeche_;
    const streifeninhalt& inhalt_;
    double px_;
    const stil::farbsatz& farben_;
    feldmass mass_;
};

}  // namespace

streifeninhalt streifeninhalt_bilden(const protokollfenster& logik) {
    constexpr double probe_px = 100;
    constexpr double fleck_em = 2;
    const QFontMetricsF masse(schrift_mit(probe_px, false));
    streifeninhalt inhalt;
    inhalt.namen_em = namen_em_min;
    for (const int spur : alle_spuren) {
        if (logik.faehrt(spur)) {
            inhalt.zeilen.push_back({spur, QString::number(spur) + "  " + QString::fromStdString(logik.fahrer(spur)),
                                     stil::farbe_von(logik.einst().farben_spur[spur])});
            const double breite = masse.horizontalAdvance(inhalt.zeilen.back().name) / probe_px + fleck_em;
            inhalt.namen_em = std::clamp(breite, inhalt.namen_em, namen_em_max);
        }
    }
    inhalt.geschehnisse.reserve(logik.zeilen().size());
    for (std::size_t i = 0; i < logik.zeilen().size(); ++i) {
        inhalt.geschehnisse.push_back(logik.zeile(i));
    }
    inhalt.legende = legende_bilden(logik);
    inhalt.zeitraum = logik.ausschnitt();
    inhalt.gewaehlt = logik.gewaehlt();
    return inhalt;
}

void streifen_malen(QPainter& maler, const QRectF& flaeche, const streifeninhalt& inhalt, double schrift_px,
                    const stil::farbsatz& farben) {
    streifenmaler(maler, flaeche, inhalt, schrift_px, farben).malen();
}

Protokollstreifen::Protokollstreifen(protokollfenster& logik, QWidget* eltern) : QWidget(eltern), logik_(logik) {
    setObjectName("protokoll.streifen");
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Protokollstreifen::neuerInhalt() {
    inhalt_ = streifeninhalt_bilden(logik_);
    updateGeometry();
    update();
}

void Protokollstreifen::neuerBlick() {
    inhalt_.zeitraum = logik_.ausschnitt();
    inhalt_.gewaehlt = logik_.gewaehlt();
    update();
}

double Protokollstreifen::schriftPx() const {
    return fontMetrics().height() * 0.78;
}

QSize Protokollstreifen::sizeHint() const {
    const int zeilen = static_cast<int>(std::max<std::size_t>(inhalt_.zeilen.size(), 2));
    return {600, static_cast<int>(schriftPx() * (2 + 2.1 * zeilen) + inhalt_.legende.hoehe(schriftPx()))};
}

QSize Protokollstreifen::minimumSizeHint() const {
    return {240, sizeHint().height()};
}

void Protokollstreifen::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const stil::farbsatz& farben = stil::auf_dem_schirm();
    maler.fillRect(rect(), farben.karte);
    streifen_malen(maler, rect(), inhalt_, schriftPx(), farben);
    if (hasFocus()) {
        maler.setPen(QPen(farben.akzent, 1));
        maler.setBrush(Qt::NoBrush);
        maler.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

QPointF Protokollstreifen::ortVon(int spur, zeit_ms zeit) const {
    const feldmass mass(rect(), inhalt_, schriftPx());
    return {mass.x(zeit), mass.zeile_von(spur).center().y()};
}

zeit_ms Protokollstreifen::zeitBei(double x) const {
    return feldmass(rect(), inhalt_, schriftPx()).zeit(x);
}

zeit_ms Protokollstreifen::zeitVon(double pixel) const {
    return std::llround(pixel / feldmass(rect(), inhalt_, schriftPx()).je_ms());
}

int Protokollstreifen::zeileBei(const QPointF& ort) const {
    constexpr double nah_px = 8;
    const feldmass mass(rect(), inhalt_, schriftPx());
    if (!mass.feld().contains(ort)) {
        return -1;
    }
    return logik_.naechste_zeile(mass.spur_bei(ort.y()), zeitBei(ort.x()), zeitVon(nah_px));
}

void Protokollstreifen::wheelEvent(QWheelEvent* ereignis) {
    constexpr double raste = 120;
    constexpr double faktor = 1.25;
    const QPoint drehung = ereignis->angleDelta();
    if (drehung.x() != 0 || (ereignis->modifiers() & Qt::ShiftModifier) != 0) {
        logik_.schieben(zeitVon(-(drehung.x() != 0 ? drehung.x() : drehung.y()) / 2.0));
    } else if (drehung.y() != 0) {
        logik_.zoomen(std::pow(faktor, -drehung.y() / raste), zeitBei(ereignis->position().x()));
    }
    ereignis->accept();
}

void Protokollstreifen::mousePressEvent(QMouseEvent* ereignis) {
    druck_ = ereignis->position();
    gezogen_bis_ = druck_.x();
    gezogen_ = false;
}

void Protokollstreifen::mouseMoveEvent(QMouseEvent* ereignis) {
    constexpr double ab_px = 5;
    if ((ereignis->buttons() & Qt::LeftButton) == 0) {
        return;
    }
    const double x = ereignis->position().x();
    gezogen_ = gezogen_ || std::abs(x - druck_.x()) > ab_px;
    if (gezogen_) {
        logik_.schieben(zeitVon(gezogen_bis_ - x));
        gezogen_bis_ = x;
    }
}

void Protokollstreifen::mouseReleaseEvent(QMouseEvent* ereignis) {
    if (!gezogen_ && ereignis->button() == Qt::LeftButton) {
        logik_.waehlen(zeileBei(ereignis->position()));
    }
}

void Protokollstreifen::keyPressEvent(QKeyEvent* ereignis) {
    const int letzte = static_cast<int>(logik_.zeilen().size()) - 1;
    switch (ereignis->key()) {
        case Qt::Key_Left:
            logik_.waehlen(std::max(logik_.gewaehlt() - 1, std::min(letzte, 0)));
            break;
        case Qt::Key_Right:
            logik_.waehlen(std::min(logik_.gewaehlt() + 1, letzte));
            break;
        default:
            QWidget::keyPressEvent(ereignis);
    }
}

bool Protokollstreifen::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ToolTip) {
        const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
        const int zeile = zeileBei(hilfe->pos());
        if (zeile < 0) {
            QToolTip::hideText();
        } else {
            const geschehen& g = logik_.zeile(static_cast<std::size_t>(zeile));
            QToolTip::showText(hilfe->globalPos(),
                               QString::fromStdString(logik_.zeit_von(g) + "  " + logik_.worte_von(g)), this);
        }
        return true;
    }
    return QWidget::event(ereignis);
}

}  // namespace tarvel::ui
