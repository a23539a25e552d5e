#include "ui/ampel_fenster.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

const QColor grund(13, 15, 18);
const QColor rand(86, 92, 104);
constexpr QMargins rand_frei(24, 24, 24, 20);
constexpr QMargins rand_schmal(12, 5, 12, 5);

}  // namespace

AmpelFenster::AmpelFenster(fensterlogik& logik, rahmen& nacht, const umfeld& um)
    : Fenster(logik, um.verwaltung, um.bahn),
      nacht_(nacht),
      bahn_(*um.bahn),
      ablage_(um.ablage),
      aufbau_(new QVBoxLayout(this)) {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);  // a dialog stays in front of its race window
    setStyleSheet(stil::dunkle_regeln("padding: 10px 36px;") + "QLabel { font-weight: bold; }");
    aufbau_->setSpacing(14);
    auto* flaeche = new QWidget(this);  // stands for the whole screen, takes no room itself
    flaeche->setAttribute(Qt::WA_TransparentForMouseEvents);
    flaeche->resize(0, 0);
    binder().verbinden(nacht, flaeche, "Nachtabschaltung", [this] {
        if (isVisible()) {
            anordnen();
        }
    });
}

QWidget* AmpelFenster::lampenkasten(std::span<bild> lampen, int je_reihe, const QString& name) {
    je_reihe_ = je_reihe;
    auto* kasten = new QWidget(this);
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setSpacing(0);
    int nummer = 0;
    for (bild& element : lampen) {
        auto* lampe = new Ampelfeld(
            element, Ampelfeld::art::wechselt, name + "_" + QString::number(nummer + 1), binder(),
            [this](const std::string& datei) { return ablage_.pfad(datei); }, kasten);
        raster->addWidget(lampe, nummer / je_reihe, nummer % je_reihe);
        lampen_.push_back(lampe);
        ++nummer;
    }
    return kasten;
}

int AmpelFenster::schrift_px(int kante) {
    return std::max(kante / 5, 14);
}

int AmpelFenster::reihen() const {
    const auto an = std::count_if(lampen_.begin(), lampen_.end(), [](const Ampelfeld* l) { return !l->isHidden(); });
    return std::max(static_cast<int>(an) / je_reihe_, 1);
}

void AmpelFenster::masse_setzen(const QRect& platz, const QRect& eigener, double anteil) {
    const bool schmal = !eigener.isEmpty();
    aufbau_->setDirection(schmal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    aufbau_->setContentsMargins(schmal ? rand_schmal : rand_frei);
    const int hoehe = eigener.height() - rand_schmal.top() - rand_schmal.bottom();
    const int kante = schmal ? std::min(hoehe / reihen(), eigener.width() / (2 * je_reihe_))
                             : static_cast<int>(anteil * std::min(platz.width() / 8, platz.height() / 5));
    for (Ampelfeld* lampe : lampen_) {
        lampe->setFixedSize(kante, kante);
    }
    for (QWidget* text : texte_) {
        QFont schrift = text->font();
        schrift.setPixelSize(schrift_px(schmal ? hoehe : kante));
        text->setFont(schrift);
    }
    skalieren(kante);
}

QRect AmpelFenster::platz_des_rennens() const {
    if (!isWindow()) {
        return parentWidget()->rect();
    }
    return parentWidget()->isVisible() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
}

QRect AmpelFenster::im_rennen(const QRect& auf_dem_schirm) const {
    return isWindow() || auf_dem_schirm.isEmpty()
               ? auf_dem_schirm
               : QRect(parentWidget()->mapFromGlobal(auf_dem_schirm.topLeft()), auf_dem_schirm.size());
}

QRect AmpelFenster::unter_den_namen(const QRect& platz) const {
    constexpr int rand_unten = 8;
    QRect unten = platz.adjusted(0, 0, 0, -rand_unten);
    if (const QRect frei = im_rennen(bahn_.unter_den_namen()); !frei.isEmpty() && bahn_.neben_den_namen().isEmpty()) {
        unten.setTop(std::max(unten.top(), frei.top()));
    }
    return unten;
}

void AmpelFenster::neu_auslegen() {
    for (QWidget* teil : findChildren<QWidget*>()) {  // lamps have come and gone since the last start
        if (teil->layout() != nullptr) {
            teil->layout()->invalidate();
            teil->layout()->activate();
        }
    }
    layout()->invalidate();
    layout()->activate();
}

void AmpelFenster::anordnen() {
    const QRect platz = platz_des_rennens();
    const QRect eigener = im_rennen(eigener_platz());
    masse_setzen(platz, eigener);
    if (nacht_.sichtbar()) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        setGeometry(isWindow() ? parentWidget()->screen()->geometry() : platz);
        return;
    }
    neu_auslegen();
    const int frei = unter_den_namen(platz).height();
    if (eigener.isEmpty() && sizeHint().height() > frei) {
        masse_setzen(platz, eigener, 1.0 * frei / sizeHint().height());
        neu_auslegen();
    }
    setFixedSize(eigener.isEmpty() ? sizeHint() : sizeHint().expandedTo(eigener.size()));
    hinstellen(platz, eigener);
}

void AmpelFenster::hinstellen(const QRect& platz, const QRect& eigener) {
    QRect ziel(QPoint(0, 0), size());
    const QRect frei = eigener.isEmpty() ? im_rennen(bahn_.neben_den_namen()) : eigener;
    if (frei.isEmpty()) {  // below the clock and the names of the columns
        constexpr double hoehe = 0.6;
        const QRect unten = unter_den_namen(platz);
        ziel.moveCenter({platz.center().x(), platz.top() + static_cast<int>(platz.height() * hoehe)});
        ziel.moveTop(std::max(ziel.top(), unten.top()));
        ziel.moveBottom(std::min(ziel.bottom(), unten.bottom()));
    } else {
        ziel.moveCenter(frei.center());
    }
    ziel.translate(verschiebung_);
    ziel.moveRight(std::min(ziel.right(), platz.right()));
    ziel.moveBottom(std::min(ziel.bottom(), platz.bottom()));
    ziel.moveLeft(std::max(ziel.left(), platz.left()));
    ziel.moveTop(std::max(ziel.top(), platz.top()));
    move(ziel.topLeft());
}

void AmpelFenster::mousePressEvent(QMouseEvent* ereignis) {
    griff_ = ereignis->globalPosition().toPoint();
}

void AmpelFenster::mouseMoveEvent(QMouseEvent* ereignis) {
    if (nacht_.sichtbar() || !ereignis->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    const QPoint ort = ereignis->globalPosition().toPoint();
    verschiebung_ += ort - griff_;
    move(pos() + ort - griff_);
    griff_ = ort;
}

void AmpelFenster::keyPressEvent(QKeyEvent* ereignis) {
    const QList<QAbstractButton*> knoepfe = bahn_.findChildren<QAbstractButton*>();
    const auto gemeint = std::find_if(knoepfe.begin(), knoepfe.end(), [&](const QAbstractButton* knopf) {
        return knopf->isVisible() && knopf->isEnabled() && !knopf->shortcut().isEmpty() &&
               knopf->shortcut() == QKeySequence(ereignis->keyCombination());
    });
    if (gemeint != knoepfe.end()) {
        (*gemeint)->animateClick();
    } else {
        Fenster::keyPressEvent(ereignis);
    }
}

void AmpelFenster::aufschlagen() {
    anordnen();
    show();
    raise();
    activateWindow();
}

void AmpelFenster::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    if (nacht_.sichtbar()) {
        maler.fillRect(rect(), Qt::black);
        maler.setPen(stil::nachtschrift);
        maler.drawText(rect(), Qt::AlignHCenter | Qt::AlignBottom, bahn_.nachthinweis());
        return;
    }
    maler.fillRect(rect(), grund);
    maler.setPen(QPen(rand, 2));
    maler.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace tarvel::ui
