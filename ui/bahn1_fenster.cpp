#include "ui/bahn1_fenster.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "race/rennansicht.h"
#include "ui/stil.h"
#include "ui/tastenfaenger.h"

namespace tarvel::ui {
namespace {

// font sizes in design units
constexpr double schrift_uhr = 1750;
constexpr double schrift_uhr2 = 780;
constexpr double schrift_ziel = 620;
constexpr double schrift_knopf = 420;
constexpr double schrift_rekord = 360;
constexpr double schrift_werbung = 380;
constexpr double schrift_formular = 330;
constexpr int sekunden_max = 9999;
constexpr int sekunden_px = 50;

const char* const knopf_regeln =
    "QLabel { color: #f0f2f5; }"
    "QPushButton { background: #2b2f37; color: #f0f2f5; border: 1px solid #565c68; border-radius: 8px;"
    " padding: 6px 18px; }"
    "QPushButton:hover { background: #383d47; }"
    "QPushButton:focus { border: 2px solid #ffffff; }"
    "QPushButton:disabled { color: #6a707c; background: #1c1f24; border-color: #33373f; }"
    "QPushButton[rolle=\"haupt\"]:enabled { background: #1d8a3c; border-color: #37b35a; font-weight: bold; }"
    "QPushButton[rolle=\"haupt\"]:focus { border: 2px solid #ffffff; }";

}  // namespace

Bahn1Fenster::Bahn1Fenster(rennen& logik, Bildtakt& takt, QWidget* eltern)
    : Fenster("bahn1", takt, eltern), logik_(logik) {
    binder().fenstertitel(logik.bahn1.titel);
    auto* grund = new QWidget(this);  // stands for the whole area, takes no room itself
    grund->setAttribute(Qt::WA_TransparentForMouseEvents);
    grund->resize(0, 0);
    binder().verbinden(logik.bahn1.hintergrund, grund, "hintergrund", [this, &logik] {
        QPalette dunkel = palette();
        dunkel.setColor(QPalette::Window, stil::farbe_von(logik.bahn1.hintergrund.hintergrund().value_or(0)));
        dunkel.setColor(QPalette::WindowText, Qt::white);
        setPalette(dunkel);
    });

    binder().skala(spalten_skala(1024, 768, spuren_max));
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(8, 4, 8, 8);
    aufbau->setSpacing(4);
    aufbau->addWidget(uhrenzeile());
    aufbau->addWidget(binder().anzeige(logik.bahn1.bestzeit_gesamt, "bestzeit_gesamt", schrift_rekord));
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(6);
    for (const int spur : alle_spuren) {
        auto* spalte = new Rennspalte(logik.bahn1, spur, binder(), this);
        spalten->addWidget(spalte, 1);
        spalten_.push_back(spalte);
    }
    aufbau->addLayout(spalten, 1);
    aufbau->addWidget(strafformular());
    aufbau->addWidget(befehlszeile());
    nachtabschaltung();
    setMinimumSize(640, 480);
    resize(1280, 1024);
    new Tastenfaenger(
        this, [&logik](int code) { return logik.befehle.ist_belegt(code); },
        [&logik](int code) { logik.befehle.taste(code); });
}

QWidget* Bahn1Fenster::uhrenzeile() {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(8, 0, 8, 0);
    TextAnzeige* ziel = binder().anzeige(logik_.bahn1.ziel_label, "ziel_label", schrift_ziel);
    ziel->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    TextAnzeige* nachlauf = binder().anzeige(logik_.bahn1.nachlauflabel, "nachlauflabel", schrift_uhr * 0.8);
    nachlauf->setFett(true);
    auto* haupt = new Uhranzeige(logik_.bahn1.uhr1, 1, schrift_uhr, binder(), this);
    auto* zweite = new Uhranzeige(logik_.bahn1.uhr2, 2, schrift_uhr2, binder(), this);
    aufbau->addWidget(ziel, 2);
    aufbau->addWidget(haupt, 4);
    aufbau->addWidget(nachlauf, 4);
    aufbau->addWidget(zweite, 2);
    return zeile;
}

QWidget* Bahn1Fenster::befehlszeile() {
    auto* zeile = new QWidget(this);
    zeile->setStyleSheet(knopf_regeln);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(4, 2, 4, 0);
    aufbau->setSpacing(12);
    QPushButton* start = binder().hauptknopf(logik_.bahn1.Command1, "Command1");
    QPushButton* pause = binder().knopf(logik_.bahn1.Command3, "Command3");
    QPushButton* ende = binder().knopf(logik_.bahn1.Command4, "Command4");
    QPushButton* abbruch = binder().knopf(logik_.bahn1.Command2, "Command2");
    aufbau->addWidget(start);
    aufbau->addWidget(pause);
    aufbau->addWidget(ende);
    TextAnzeige* werbung = binder().anzeige(logik_.bahn1.werbe_label, "werbe_label", schrift_werbung);
    werbung->setFarbe(QColor(150, 156, 166));
    aufbau->addWidget(werbung, 1);
    aufbau->addWidget(abbruch);
    knoepfe_ = {start, pause, ende, abbruch};
    setTabOrder(start, pause);
    setTabOrder(pause, ende);
    setTabOrder(ende, abbruch);
    binder().verbinden(logik_.bahn1.Frame1, zeile, "Frame1", {});
    return zeile;
}

QWidget* Bahn1Fenster::strafformular() {
    // its place is always there: no command may move under the pointer when a pause begins
    auto* platz = new QWidget(this);
    platz->setStyleSheet(knopf_regeln);
    auto* lage = new QHBoxLayout(platz);
    lage->setContentsMargins(0, 0, 0, 0);
    auto* kasten = new QWidget(platz);
    lage->addWidget(kasten);
    auto* zeile = new QHBoxLayout(kasten);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(4);
    QLabel* vorn = binder().label(logik_.bahn1.ch_Label1, "ch_Label1");
    auto* haken = new QLabel(QString::fromUtf8("\u2611"), kasten);
    QLabel* mitte = binder().label(logik_.bahn1.ch_Label2, "ch_Label2");
    QLineEdit* sekunden = binder().zeile(logik_.bahn1.ch_Text1, "ch_Text1");
    sekunden->setAlignment(Qt::AlignRight);
    sekunden->setFixedWidth(sekunden_px);
    QObject::connect(sekunden, &QLineEdit::returnPressed, this, [this] { knoepfe_.at(1)->setFocus(); });
    QLabel* hinten = binder().label(logik_.bahn1.ch_Label3, "ch_Label3");
    zeile->addStretch();
    for (QWidget* teil : {static_cast<QWidget*>(vorn), static_cast<QWidget*>(haken), static_cast<QWidget*>(mitte),
                          static_cast<QWidget*>(sekunden), static_cast<QWidget*>(hinten)}) {
        zeile->addWidget(teil);
        formular_.push_back(teil);
    }
    zeile->addStretch();
    sekunden->setValidator(new QIntValidator(0, sekunden_max, sekunden));
    binder().verbinden(logik_.bahn1.ch_strafframe, kasten, "ch_strafframe", {});
    formular_platz_ = platz;
    return platz;
}

void Bahn1Fenster::nachtabschaltung() {
    nacht_ = new QWidget(this);
    nacht_->setAutoFillBackground(true);
    QPalette schwarz;
    schwarz.setColor(QPalette::Window, Qt::black);
    nacht_->setPalette(schwarz);
    binder().verbinden(logik_.bahn1.Nachtabschaltung, nacht_, "Nachtabschaltung", [this] {
        nacht_->setGeometry(rect());
        nacht_->raise();
    });
}

void Bahn1Fenster::aufschlagen() {
    if (!isVisible()) {
        const QRect platz = screen()->availableGeometry();
        setGeometry(platz.adjusted(platz.width() / 16, platz.height() / 12, -platz.width() / 16, -platz.height() / 16));
        showMaximized();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    skalieren();
    raise();
    activateWindow();
}

void Bahn1Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    nacht_->setGeometry(rect());
    skalieren();
}

void Bahn1Fenster::skalieren() {
    const int anzahl = std::max(logik_.umgebung.param.spuren_anzahl, 1);
    const double skala = spalten_skala(width(), height(), anzahl);
    binder().skala(skala);
    for (Rennspalte* spalte : spalten_) {
        spalte->skalieren(skala);
    }
    for (QWidget* teil : formular_) {
        QFont schrift = teil->font();
        schrift.setPixelSize(std::clamp(static_cast<int>(std::lround(schrift_formular * skala)), 11, 24));
        teil->setFont(schrift);
    }
    for (QPushButton* knopf : knoepfe_) {
        QFont schrift = knopf->font();
        schrift.setPixelSize(std::max(13, static_cast<int>(std::lround(schrift_knopf * skala))));
        knopf->setFont(schrift);
    }
    int hoehe = 0;
    for (const QWidget* teil : formular_) {
        hoehe = std::max(hoehe, teil->sizeHint().height());
    }
    formular_platz_->setFixedHeight(hoehe);
    // each as wide as its longest caption: a pause changes captions, and no button may move with that
    constexpr int rand_px = 44;
    const bahn1::worte& wort = logik_.bahn1.wort;
    for (QPushButton* knopf : knoepfe_) {
        QStringList texte{knopf->text()};
        if (knopf == knoepfe_[1]) {
            for (const std::string* text : {&wort.pause, &wort.pause_wieder, &wort.weiter}) {
                texte << QString::fromStdString(*text);
            }
        }
        QFont fett = knopf->font();
        fett.setBold(true);
        int breite = 0;
        for (const QString& text : texte) {
            breite = std::max(breite, QFontMetrics(fett).horizontalAdvance(text));
        }
        knopf->setFixedWidth(breite + rand_px);
    }
}

}  // namespace tarvel::ui
