#include "ui/einfahren_fenster.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

const QColor grund(13, 15, 18);
const QColor feldgrund(30, 34, 40);
const QColor hell(230, 233, 238);
const QColor gruen(0, 190, 70);

/// A bar that is as long as the time that is left.
class Zeitbalken final : public QWidget {
public:
    Zeitbalken(const form& element, QWidget* eltern) : QWidget(eltern), element_(element) {}

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        maler.fillRect(rect(), feldgrund);
        maler.fillRect(QRectF(0, 0, width() * element_.hoehe(), height()), gruen);
    }

private:
    const form& element_;
};

void faerben(QWidget* widget, const QColor& farbe) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, farbe);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

TextAnzeige* hell_schreiben(TextAnzeige* anzeige) {
    anzeige->setFett(true);
    anzeige->setFarbe(hell);
    anzeige->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return anzeige;
}

}  // namespace

EinfahrenFenster::EinfahrenFenster(einfahren& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern),
      logik_(logik),
      titel_(hell_schreiben(binder().anzeige(logik.Label12, "Label12"))),
      einheit_(hell_schreiben(binder().anzeige(logik.Label_einheit, "Label_einheit"))),
      ende_(hell_schreiben(binder().anzeige(logik.labelende, "labelende"))),
      weiter_(hell_schreiben(binder().anzeige(logik.weiterlabel, "weiterlabel"))),
      knopf_(binder().knopf(logik.Command5, "Command5")) {
    setStyleSheet(stil::dunkle_regeln("padding: 10px 36px;"));
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(10);
    aufbau->addWidget(titel_, 10);
    spuren_ = spuren();
    aufbau->addWidget(spuren_, 64);
    aufbau->addWidget(zeit(), 48);
    einheit_->setFett(false);
    aufbau->addWidget(einheit_, 14);  // one of these two is to be seen
    faerben(ende_, QColor(200, 0, 0));
    aufbau->addWidget(ende_, 14);
    auto* fuss = new QHBoxLayout;
    weiter_->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    fuss->addWidget(weiter_, 1);
    fuss->addStretch();
    fuss->addWidget(knopf_);
    aufbau->addLayout(fuss, 9);
    alarm_anlegen();
    setMinimumSize(640, 420);
}

QWidget* EinfahrenFenster::spuren() {
    auto* reihe = new QWidget(this);
    auto* aufbau = new QHBoxLayout(reihe);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(10);
    for (std::size_t i = 0; i < spuren_max; ++i) {
        aufbau->addWidget(spur_anlegen(i), 1);
    }
    return reihe;
}

QWidget* EinfahrenFenster::spur_anlegen(std::size_t i) {
    const QString nummer = "_" + QString::number(i);
    auto* kasten = new QWidget(this);
    faerben(kasten, feldgrund);
    kasten->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    binder().verbinden(logik_.Frame.at(i), kasten, "Frame" + nummer, {});
    Spurfeld& felder = spurfelder_.at(i);
    felder.nummer = hell_schreiben(binder().anzeige(logik_.spur.at(i), "spur" + nummer));
    felder.fahrer = hell_schreiben(binder().anzeige(logik_.fahrer.at(i), "fahrer" + nummer));
    felder.fahrer->setZweizeilig();
    felder.runden = new TextAnzeige(this);
    hell_schreiben(felder.runden);
    const bezeichnung& runden = logik_.runden.at(i);
    binder().verbinden(logik_.runden.at(i), felder.runden, "runden" + nummer, [&runden, &felder] {
        const QColor spurfarbe = stil::farbe_von(runden.schriftfarbe().value_or(0));
        felder.runden->setText(QString::fromStdString(runden.text()));
        felder.runden->setFarbe(spurfarbe);
        faerben(felder.nummer, spurfarbe);
        felder.nummer->setFarbe(stil::schrift_auf(spurfarbe));
    });
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setContentsMargins(0, 0, 0, 8);
    aufbau->setSpacing(4);
    aufbau->addWidget(felder.nummer, 12);
    aufbau->addWidget(felder.fahrer, 18);
    aufbau->addWidget(felder.runden, 70);
    return kasten;
}

QWidget* EinfahrenFenster::zeit() {
    auto* kasten = new QWidget(this);
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setContentsMargins(0, 0, 0, 0);
    zeit_ = hell_schreiben(binder().anzeige(logik_.zeitanzeige, "zeitanzeige"));
    aufbau->addWidget(zeit_, 85);
    zeitbalken_ = new Zeitbalken(logik_.zeitbalken, this);
    binder().verbinden(logik_.zeitbalken, zeitbalken_, "zeitbalken", [this, kasten] {
        const bool nach_zeit = logik_.zeitbalken.sichtbar();
        kasten->setVisible(nach_zeit);
        static_cast<QVBoxLayout*>(layout())->setStretchFactor(spuren_, nach_zeit ? 16 : 64);  // without their laps
        zeitbalken_->update();
    });
    aufbau->addWidget(zeitbalken_, 15);
    return kasten;
}

void EinfahrenFenster::alarm_anlegen() {
    alarm_ = hell_schreiben(binder().anzeige(logik_.geraetealarm, "geraetealarm"));
    alarm_->setAttribute(Qt::WA_TransparentForMouseEvents);
    faerben(alarm_, QColor(200, 0, 0));
    alarm_->setFarbe(Qt::white);
    alarm_->setRahmen(Qt::white);
    alarm_->setZweizeilig();
}

void EinfahrenFenster::aufschlagen() {
    if (!isVisible()) {
        if (parentWidget()->isFullScreen()) {
            setGeometry(parentWidget()->geometry());
            showFullScreen();
        } else {
            setGeometry(parentWidget()->isVisible() ? parentWidget()->geometry() : screen()->availableGeometry());
            showNormal();
        }
    }
    raise();
    activateWindow();
}

void EinfahrenFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    const int hoch = height();
    titel_->setSchriftPx(hoch * 8 / 100);
    einheit_->setSchriftPx(hoch * 6 / 100);
    ende_->setSchriftPx(hoch * 11 / 100);
    weiter_->setSchriftPx(hoch * 5 / 100);
    zeit_->setSchriftPx(hoch * 42 / 100);
    for (const Spurfeld& felder : spurfelder_) {
        felder.nummer->setSchriftPx(hoch * 6 / 100);
        felder.fahrer->setSchriftPx(hoch * 5 / 100);
        felder.runden->setSchriftPx(hoch * 42 / 100);
    }
    QFont schrift = knopf_->font();
    schrift.setPixelSize(std::clamp(hoch / 30, 16, 40));
    knopf_->setFont(schrift);
    alarm_->setGeometry(width() / 50, hoch * 40 / 100, width() * 48 / 50, hoch * 11 / 100);
    alarm_->setSchriftPx(hoch / 14);
    alarm_->raise();
}

void EinfahrenFenster::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter(this).fillRect(rect(), grund);
}

}  // namespace tarvel::ui
