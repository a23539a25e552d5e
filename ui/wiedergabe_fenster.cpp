#include "ui/wiedergabe_fenster.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <array>
#include <utility>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int rand_px = 8;
constexpr zeit_ms pfeil_ms = 5000;  // what an arrow key goes
constexpr zeit_ms seite_ms = 60000;
constexpr std::array<const char*, 2> knopfkaesten{"bahn1.Frame1", "bahn1.ch_strafframe"};

bool ist_knopfkasten(const QObject& objekt) {
    return std::any_of(knopfkaesten.begin(), knopfkaesten.end(),
                       [&](const char* name) { return objekt.objectName() == name; });
}

}  // namespace

Zeitleiste::Zeitleiste(zeitleiste& leiste, Binder& binder, QWidget* eltern) : QWidget(eltern), leiste_(leiste) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    binder.verbinden(leiste, this, "leiste", [this] {
        setAccessibleName(QString::fromStdString(leiste_.ansage()));
        if (std::exchange(auflage_, leiste_.auflage()) != leiste_.auflage()) {
            marken_malen();
        }
        update();
    });
}

double Zeitleiste::ort(zeit_ms zeit) const {
    const auto laenge = static_cast<double>(std::max<zeit_ms>(leiste_.ende() - leiste_.anfang(), 1));
    return rand_px + static_cast<double>(zeit - leiste_.anfang()) / laenge * (width() - 2 * rand_px);
}

void Zeitleiste::marken_malen() {
    bild_ = QPixmap(size() * devicePixelRatio());
    bild_.setDevicePixelRatio(devicePixelRatio());
    bild_.fill(Qt::transparent);
    QPainter maler(&bild_);
    const double je_spur = (height() - 8.0) / spuren_max;
    zeit_ms pause_seit = -1;
    for (const rennspieler::marke& m : leiste_.marken()) {
        const double x = ort(m.bei);
        if (m.was == rennspieler::marke::sorte::pause) {
            if (pause_seit >= 0) {
                maler.fillRect(QRectF(ort(pause_seit), 2, std::max(x - ort(pause_seit), 2.0), height() - 4),
                               QColor(255, 200, 0, 110));
            }
            pause_seit = pause_seit >= 0 ? -1 : m.bei;
        }
    }
    for (const rennspieler::marke& m : leiste_.marken()) {
        const double x = ort(m.bei);
        if (m.was == rennspieler::marke::sorte::runde && m.spur > 0) {
            maler.fillRect(QRectF(x, 4 + je_spur * (m.spur - 1), 1.5, je_spur),
                           stil::farbe_von(leiste_.farben[m.spur]));
        } else if (m.was == rennspieler::marke::sorte::sonst) {
            maler.fillRect(QRectF(x, 0, 1, 4), palette().color(QPalette::WindowText));
        }
    }
}

void Zeitleiste::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.fillRect(rect().adjusted(rand_px, 4, -rand_px, -4), QColor(40, 40, 40));
    maler.drawPixmap(0, 0, bild_);
    const double x = ort(leiste_.stelle());
    maler.fillRect(QRectF(x - 1.5, 0, 3, height()), QColor(255, 255, 255));
    maler.setPen(QPen(QColor(0, 0, 0), 1));
    maler.drawRect(QRectF(x - 2, 0, 4, height() - 1));
    if (hasFocus()) {
        maler.setPen(QPen(palette().color(QPalette::Highlight), 1));
        maler.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Zeitleiste::greifen(double x) {
    const double teil = std::clamp((x - rand_px) / std::max(width() - 2 * rand_px, 1), 0.0, 1.0);
    const auto laenge = static_cast<double>(leiste_.ende() - leiste_.anfang());
    leiste_.greifen(leiste_.anfang() + static_cast<zeit_ms>(teil * laenge));
}

void Zeitleiste::mousePressEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton) {
        greifen(ereignis->position().x());
    }
}

void Zeitleiste::mouseMoveEvent(QMouseEvent* ereignis) {
    if ((ereignis->buttons() & Qt::LeftButton) != 0) {
        greifen(ereignis->position().x());
    }
}

void Zeitleiste::keyPressEvent(QKeyEvent* ereignis) {
    struct sprung {
        int taste;
        zeit_ms um;
    };
    for (const sprung& s :
         {sprung{Qt::Key_Left, -pfeil_ms}, sprung{Qt::Key_Right, pfeil_ms}, sprung{Qt::Key_PageUp, -seite_ms},
          sprung{Qt::Key_PageDown, seite_ms}, sprung{Qt::Key_Home, leiste_.anfang() - leiste_.stelle()},
          sprung{Qt::Key_End, leiste_.ende() - leiste_.stelle()}}) {
        if (ereignis->key() == s.taste) {
            leiste_.greifen(leiste_.stelle() + s.um);
            return;
        }
    }
    QWidget::keyPressEvent(ereignis);
}

void Zeitleiste::resizeEvent(QResizeEvent* /*ereignis*/) {
    marken_malen();
}

WiedergabeFenster::WiedergabeFenster(wiedergabe& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), innen_(verwaltung.takt()) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 8);
    flaeche_ = new QWidget;
    auto* rahmen = new QVBoxLayout(flaeche_);
    rahmen->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(flaeche_, 1);
    auto* unten = new QVBoxLayout;
    unten->setContentsMargins(8, 0, 8, 0);
    QLabel* hinweis = binder().label(logik.hinweis, "hinweis");
    hinweis->setWordWrap(true);
    unten->addWidget(hinweis);
    unten->addWidget(new Zeitleiste(logik.leiste, binder(), this));
    unten->addLayout(befehlszeile());
    aufbau->addLayout(unten);
    resize(1280, 960);
    logik.zeichnen = [this](programm* p) { rennen_zeichnen(p); };
}

WiedergabeFenster::~WiedergabeFenster() {
    logik_.zeichnen = nullptr;
    rennen_zeichnen(nullptr);
}

QLayout* WiedergabeFenster::befehlszeile() {
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().knopf(logik_.Command_vorige, "Command_vorige"));
    QPushButton* spielen = binder().hauptknopf(logik_.Command_spielen, "Command_spielen");
    spielen->setMinimumSize(140, stil::knopfhoehe);
    zeile->addWidget(spielen);
    zeile->addWidget(binder().knopf(logik_.Command_naechste, "Command_naechste"));
    zeile->addSpacing(16);
    for (std::size_t i = 0; i < logik_.tempo.size(); ++i) {
        zeile->addWidget(binder().wahlknopf(logik_.tempo.at(i), "tempo_" + QString::number(i)));
    }
    zeile->addSpacing(16);
    zeile->addWidget(binder().label(logik_.Label_zeit, "Label_zeit"));
    zeile->addStretch(1);
    zeile->addWidget(binder().knopf(logik_.Command_schliessen, "Command_schliessen"));
    return zeile;
}

void WiedergabeFenster::Lichtschalter::zeigen(fenstername name, anzeige_art art) {
    if (name == fenstername::Form2 || name == fenstername::k_ampel) {
        fenster_.zeigen(name, art);
    }
}

void WiedergabeFenster::Lichtschalter::verbergen(fenstername name) {
    if (name == fenstername::Form2 || name == fenstername::k_ampel) {
        fenster_.verbergen(name);
    }
}

void WiedergabeFenster::lichter_zeichnen() {
    programm& p = *gezeichnet_;
    const std::array<AmpelFenster*, 2> lichter{new Form2Fenster(p.startampel, p.ablage, innen_, bahn_),
                                               new KAmpelFenster(p.k_ampel, p.ablage, innen_, bahn_)};
    for (AmpelFenster* licht : lichter) {
        licht->setParent(bahn_, Qt::Widget);
        licht->setEnabled(false);
    }
    bahn_->bei_umzug = [lichter] {
        for (AmpelFenster* licht : lichter) {
            if (licht->isVisible()) {
                licht->nachruecken();
            }
        }
    };
    p.fenster.anzeigen_auf(&lichter_);
    for (const fenstername licht : {fenstername::Form2, fenstername::k_ampel}) {
        if (p.fenster.ist_offen(licht)) {
            lichter_.zeigen(licht, anzeige_art::frei);
        }
    }
}

void WiedergabeFenster::rennen_zeichnen(programm* p) {
    if (gezeichnet_ != nullptr) {
        gezeichnet_->fenster.anzeigen_auf(nullptr);
    }
    gezeichnet_ = p;
    Bahn1Fenster* vorher = bahn_;
    bahn_ = nullptr;
    if (p != nullptr) {
        bahn_ = new Bahn1Fenster(p->rennen, innen_, this);
        bahn_->setParent(flaeche_, Qt::Widget);
        bahn_->setAttribute(Qt::WA_TransparentForMouseEvents);
        bahn_->setAutoFillBackground(true);
        bahn_->setMinimumSize(320, 240);
        for (QWidget* teil : bahn_->findChildren<QWidget*>()) {
            teil->setFocusPolicy(Qt::NoFocus);
            teil->installEventFilter(this);
        }
        flaeche_->layout()->addWidget(bahn_);
        innen_.takt().ausfuehren();
        for (const char* kasten : knopfkaesten) {
            bahn_->findChild<QWidget*>(kasten)->setEnabled(false);  // and all in it, so that they look like it
        }
        bahn_->show();
        lichter_zeichnen();
    }
    delete vorher;
}

bool WiedergabeFenster::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::EnabledChange && ist_knopfkasten(*ziel)) {
        static_cast<QWidget*>(ziel)->setEnabled(false);  // the race has told it otherwise
    }
    return ereignis->type() == QEvent::Shortcut || Fenster::eventFilter(ziel, ereignis);
}

void WiedergabeFenster::aufschlagen() {
    if (!isVisible()) {
        const QRect schirm = schirm_des_leiters()->availableGeometry();
        resize(schirm.width() * 7 / 8, schirm.height() * 7 / 8);
    }
    Fenster::aufschlagen();
}

}  // namespace tarvel::ui
