#include "ui/ampel_fenster.h"

#include <QGridLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

const QColor grund(13, 15, 18);
const QColor rand(86, 92, 104);

}  // namespace

AmpelFenster::AmpelFenster(const QString& name, rahmen& nacht, const umfeld& um)
    : Fenster(name, um.takt, um.bahn),
      nacht_(nacht),
      einst_(um.einst),
      ablage_(um.ablage),
      aufbau_(new QVBoxLayout(this)) {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);  // a dialog stays in front of its race window
    setStyleSheet(stil::dunkle_regeln("padding: 10px 36px;") + "QLabel { font-weight: bold; }");
    aufbau_->setContentsMargins(24, 24, 24, 20);
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
    auto* kasten = new QWidget(this);
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setSpacing(0);
    int nummer = 0;
    for (bild& element : lampen) {
        auto* lampe = new Ampelfeld(
            element, name + "_" + QString::number(nummer + 1), binder(),
            [this](const std::string& datei) { return ablage_.pfad(datei); }, kasten);
        raster->addWidget(lampe, nummer / je_reihe, nummer % je_reihe);
        lampen_.push_back(lampe);
        ++nummer;
    }
    return kasten;
}

void AmpelFenster::anordnen() {
    const QRect platz = parentWidget()->isVisible() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
    const int kante = std::min(platz.width() / 8, platz.height() / 5);
    for (Ampelfeld* lampe : lampen_) {
        lampe->setFixedSize(kante, kante);
    }
    for (QWidget* text : texte_) {
        QFont schrift = text->font();
        schrift.setPixelSize(std::clamp(kante / 5, 14, 40));
        text->setFont(schrift);
    }
    skalieren(kante);
    if (nacht_.sichtbar()) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        setGeometry(parentWidget()->screen()->geometry());
        return;
    }
    for (QWidget* teil : findChildren<QWidget*>()) {  // lamps have come and gone since the last start
        if (teil->layout() != nullptr) {
            teil->layout()->invalidate();
            teil->layout()->activate();
        }
    }
    layout()->invalidate();
    layout()->activate();
    setFixedSize(sizeHint());
    // below the names, the counters and the times of the columns; above the middle in the rows
    const double hoehe = einst_.darstellung_zeile ? 0.35 : 0.6;
    QRect ziel(QPoint(0, 0), size());
    ziel.moveCenter({platz.center().x(), platz.top() + static_cast<int>(platz.height() * hoehe)});
    ziel.moveBottom(std::min(ziel.bottom(), platz.bottom() - 8));
    move(ziel.topLeft());
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
        return;
    }
    maler.fillRect(rect(), grund);
    maler.setPen(QPen(rand, 2));
    maler.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace tarvel::ui
