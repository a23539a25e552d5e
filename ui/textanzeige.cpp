#include "ui/textanzeige.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double kleinste_verkleinerung = 0.4;
constexpr double zeilengewinn = 1.2;  // a little larger is not worth another line

}  // namespace

QString umbrochen(const QString& text, const QFontMetricsF& masse, int zeilen) {
    QString bester = text;
    for (qsizetype luecke = text.indexOf(' '); zeilen > 1 && luecke > 0; luecke = text.indexOf(' ', luecke + 1)) {
        const QString neu = text.left(luecke) + '\n' + umbrochen(text.mid(luecke + 1), masse, zeilen - 1);
        if (masse.size(0, neu).width() < masse.size(0, bester).width()) {
            bester = neu;
        }
    }
    return bester;
}

TextAnzeige::TextAnzeige(QWidget* eltern) : QWidget(eltern), schrift_(font()) {}

void TextAnzeige::setText(const QString& text) {
    if (text_ == text) {
        return;
    }
    text_ = text;
    setAccessibleDescription(text);
    if (sizePolicy().hasHeightForWidth()) {
        updateGeometry();
    }
    update();
}

void TextAnzeige::setSchriftPx(int px) {
    if (schrift_.pixelSize() == px) {
        return;
    }
    schrift_.setPixelSize(std::max(px, 6));
    updateGeometry();
    update();
}

void TextAnzeige::setMindestPx(int px) {
    if (mindest_px_ != px) {
        mindest_px_ = px;
        update();
    }
}

void TextAnzeige::setHoechstPx(int px) {
    if (hoechst_px_ != px) {
        hoechst_px_ = px;
        update();
    }
}

void TextAnzeige::setFett(bool fett) {
    schrift_.setBold(fett);
    updateGeometry();
    update();
}

void TextAnzeige::setLeise() {
    deckkraft_ = 0.75;
    update();
}

void TextAnzeige::setBlass(bool blass) {
    if (blass_ != blass) {
        blass_ = blass;
        update();
    }
}

void TextAnzeige::setMehrzeilig(int hoechstens) {
    zeilen_ = hoechstens;
    update();
}

void TextAnzeige::setHoeheNachText() {
    QSizePolicy wie = sizePolicy();
    wie.setHeightForWidth(true);
    wie.setVerticalPolicy(QSizePolicy::Minimum);
    setSizePolicy(wie);
}

void TextAnzeige::setFarbe(const QColor& farbe) {
    if (farbe_ != farbe) {
        farbe_ = farbe;
        update();
    }
}

void TextAnzeige::setPlakette(bool plakette) {
    if (plakette_ != plakette) {
        plakette_ = plakette;
        update();
    }
}

void TextAnzeige::setFarbrolle(QPalette::ColorRole rolle) {
    rolle_ = rolle;
    update();
}

void TextAnzeige::setRahmen(const QColor& farbe) {
    if (rahmen_ != farbe) {
        rahmen_ = farbe;
        update();
    }
}

void TextAnzeige::setGrund(const QColor& grund) {
    if (grund_ != grund) {
        grund_ = grund;
        update();
    }
}

void TextAnzeige::setAusrichtung(Qt::Alignment ausrichtung) {
    ausrichtung_ = ausrichtung;
    update();
}

void TextAnzeige::setMusterText(const QString& muster) {
    muster_ = muster;
    updateGeometry();
}

QSize TextAnzeige::sizeHint() const {
    const QFontMetrics masse(schrift_);
    return {masse.horizontalAdvance(muster_.isEmpty() ? text_ : muster_) + 2, masse.height()};
}

QSize TextAnzeige::minimumSizeHint() const {
    return {1, 1};
}

int TextAnzeige::heightForWidth(int breite) const {
    const QFontMetricsF masse(schrift_);
    QSizeF platz = masse.size(0, text_);
    for (int anzahl = 2; platz.width() > zeilengewinn * breite && anzahl <= zeilen_; ++anzahl) {
        platz = masse.size(0, umbrochen(text_, masse, anzahl));
    }
    return static_cast<int>(std::ceil(platz.height()));
}

void TextAnzeige::plakette_malen(QPainter& maler, const QFontMetricsF& masse) const {
    const double breite = std::clamp(masse.horizontalAdvance(text_) + height() * 0.6, 0.0, width() * 1.0);
    const double rund = std::min<double>(breite, height()) / 6;
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(farbe_);
    maler.drawRoundedRect(QRectF((width() - breite) / 2, 0, breite, height()), rund, rund);
}

TextAnzeige::Satz TextAnzeige::gesetzt(int hoechst_px) const {
    QFont grund = schrift_;
    if (hoechst_px > 0) {
        grund.setPixelSize(std::min(hoechst_px, grund.pixelSize()));
    }
    const QFontMetricsF masse(grund);
    const auto breite_in = [this](const QFont& schrift) { return QFontMetricsF(schrift).horizontalAdvance(text_); };
    const int breite = contentsRect().width();
    const int hoehe = contentsRect().height();
    Satz satz{text_, grund, Qt::TextSingleLine, false};
    double faktor = std::min(breite / std::max(masse.horizontalAdvance(text_), 1.0), hoehe / masse.capHeight());
    const double kleinster = std::max(kleinste_verkleinerung, std::min(1.0, 1.0 * mindest_px_ / grund.pixelSize()));
    for (int anzahl = 2; faktor < 1 && anzahl <= zeilen_; ++anzahl) {
        const QString zeilen = umbrochen(text_, masse, anzahl);
        const QSizeF platz = masse.size(0, zeilen);
        const double gebrochen = std::min({1.0, breite / platz.width(), hoehe / platz.height()});
        if (gebrochen >= kleinster && gebrochen > (faktor < kleinster ? 0 : zeilengewinn * faktor)) {
            satz.text = zeilen;
            faktor = gebrochen;
            satz.art = 0;
        }
    }
    if (faktor < 1) {
        const auto px = static_cast<int>(grund.pixelSize() * std::max(faktor, kleinster));
        satz.schrift.setPixelSize(std::max({px, std::min(mindest_px_, grund.pixelSize()), 6}));
        if (const double noetig = breite_in(satz.schrift); mindest_px_ > 0 && satz.art != 0 && noetig > breite) {
            constexpr int engste_prozent = 75;
            int prozent = std::clamp(static_cast<int>(100 * breite / noetig), engste_prozent, 100);
            satz.schrift.setStretch(prozent);
            while (prozent > engste_prozent && breite_in(satz.schrift) > breite) {  // they get narrower in steps
                satz.schrift.setStretch(--prozent);
            }
        }
    }
    if (faktor < 1 && satz.art != 0) {
        satz.text = QFontMetrics(satz.schrift).elidedText(text_, Qt::ElideRight, breite);
        satz.gekuerzt = satz.text != text_ || QFontMetricsF(satz.schrift).capHeight() > hoehe + 1;
    }
    return satz;
}

bool TextAnzeige::event(QEvent* ereignis) {
    if (ereignis->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(ereignis)->globalPos(), gekuerzt() ? text_ : QString(), this);
        return true;
    }
    return QWidget::event(ereignis);
}

void TextAnzeige::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::TextAntialiasing);
    constexpr double blass = 0.5;
    maler.setOpacity(blass_ ? blass : deckkraft_);
    if (plakette_) {
        plakette_malen(maler, QFontMetricsF(schrift_));
    }
    if (rahmen_.isValid()) {
        constexpr int breite = 3;
        maler.setPen(QPen(rahmen_, breite));
        maler.drawRect(rect().adjusted(1, 1, -2, -2));
    }
    const bool rot = rotrolle_ != QPalette::NoRole && farbe_ == stil::farbe_von(farben::rot);
    const QColor farbe = rot ? palette().color(rotrolle_) : farbe_.isValid() ? farbe_ : palette().color(rolle_);
    maler.setPen(plakette_ ? stil::schrift_auf(farbe_) : stil::auf_hellem_grund(farbe, grund_));
    const Satz satz = gesetzt(hoechst_px_);
    maler.setFont(satz.schrift);
    maler.drawText(contentsRect(), static_cast<int>(ausrichtung_) | satz.art, satz.text);
}

}  // namespace tarvel::ui
