#include "ui/form2_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"
#include "ui/tastenfaenger.h"

namespace tarvel::ui {
namespace {

constexpr std::size_t je_reihe = 5;
const QColor grund(13, 15, 18);

const char* const regeln =
    "QLabel { color: #f0f2f5; font-weight: bold; }"
    "QPushButton { background: #2b2f37; color: #f0f2f5; border: 1px solid #565c68; border-radius: 8px;"
    " padding: 10px 36px; }"
    "QPushButton:hover { background: #383d47; }"
    "QPushButton:focus { border: 2px solid #ffffff; }"
    "QPushButton:disabled { color: #6a707c; background: #1c1f24; border-color: #33373f; }";

/// A light of the drag tree, in the colour of its shape.
class Baumlicht final : public QWidget {
public:
    Baumlicht(form& element, QWidget* eltern) : QWidget(eltern), element_(element) {}

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        lampe_malen(maler, rect(), stil::farbe_von(element_.hintergrund().value_or(0)), true);
    }

private:
    form& element_;
};

}  // namespace

Form2Fenster::Form2Fenster(startampel& logik, const einstellungen& einst, const dateien& ablage, Bildtakt& takt,
                           QWidget* bahn)
    : Fenster("Form2", takt, bahn), logik_(logik), einst_(einst) {
    setWindowFlag(Qt::FramelessWindowHint);
    setStyleSheet(regeln);
    binder().fenstertitel(logik.fenster.titel);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(24, 24, 24, 20);
    aufbau->setSpacing(14);
    aufbau->addStretch();
    aufbau->addWidget(lampenkasten(ablage), 0, Qt::AlignHCenter);
    aufbau->addWidget(dragbaum(), 0, Qt::AlignHCenter);

    auto* hinweise = new QWidget(this);  // holds its place, so that the light does not jump when a text appears
    auto* zeilen = new QVBoxLayout(hinweise);
    zeilen->setContentsMargins(0, 0, 0, 0);
    zeilen->setSpacing(2);
    QLabel* abbruch = binder().label(logik.fenster.Label1, "Label1");
    abbruch->setStyleSheet("color: #ff5a4a;");
    QLabel* spuren = binder().label(logik.fenster.Label_fruehstart, "Label_fruehstart");
    spuren->setStyleSheet("color: #ffc83c;");
    for (QLabel* text : {abbruch, spuren}) {
        text->setAlignment(Qt::AlignCenter);
        QSizePolicy haelt_platz = text->sizePolicy();
        haelt_platz.setRetainSizeWhenHidden(true);
        text->setSizePolicy(haelt_platz);
        zeilen->addWidget(text);
        texte_.push_back(text);
    }
    aufbau->addWidget(hinweise);
    QPushButton* knopf = binder().knopf(logik.fenster.abbrampel, "abbrampel");
    aufbau->addWidget(knopf, 0, Qt::AlignHCenter);
    texte_.push_back(knopf);
    aufbau->addStretch();

    auto* nacht = new QWidget(this);  // stands for the whole screen, takes no room itself
    nacht->setAttribute(Qt::WA_TransparentForMouseEvents);
    nacht->resize(0, 0);
    binder().verbinden(logik.fenster.Nachtabschaltung, nacht, "Nachtabschaltung", [this] { anordnen(); });
    new Tastenfaenger(
        this, [&logik](int code) { return logik.ist_belegt(code); }, [&logik](int code) { logik.taste(code); });
}

QWidget* Form2Fenster::lampenkasten(const dateien& ablage) {
    auto* kasten = new QWidget(this);
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setSpacing(0);
    for (std::size_t i = 0; i < logik_.fenster.ampelbild.size(); ++i) {
        auto* lampe = new Ampelfeld(
            logik_.fenster.ampelbild.at(i), "ampelbild_" + QString::number(i + 1), binder(),
            [&ablage](const std::string& datei) { return ablage.pfad(datei); }, kasten);
        raster->addWidget(lampe, static_cast<int>(i / je_reihe), static_cast<int>(i % je_reihe));
        lampen_.push_back(lampe);
    }
    return kasten;
}

QWidget* Form2Fenster::licht(form& element, const QString& name, QWidget* eltern) {
    auto* widget = new Baumlicht(element, eltern);
    binder().verbinden(element, widget, name, [widget] { widget->update(); });
    lichter_.push_back(widget);
    return widget;
}

QWidget* Form2Fenster::dragbaum() {
    auto* baum = new QWidget(this);
    auto* raster = new QGridLayout(baum);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setHorizontalSpacing(18);
    raster->setVerticalSpacing(6);
    const auto paar = [&](int zeile, auto& formen, std::size_t erstes, const QString& name) {
        for (std::size_t seite = 0; seite < 2; ++seite) {
            QWidget* rund = licht(formen.at(erstes + seite), name + "_" + QString::number(erstes + seite), baum);
            raster->addWidget(rund, zeile, 2 * static_cast<int>(seite), Qt::AlignCenter);
        }
    };
    paar(0, logik_.fenster.Shape11, 0, "Shape11");
    paar(1, logik_.fenster.Shape11, 2, "Shape11");
    QLabel* vorn = binder().label(logik_.fenster.Label_prestage, "Label_prestage");
    QLabel* bereit = binder().label(logik_.fenster.Label_stage, "Label_stage");
    raster->addWidget(vorn, 0, 1, Qt::AlignCenter);
    raster->addWidget(bereit, 1, 1, Qt::AlignCenter);
    texte_.push_back(vorn);
    texte_.push_back(bereit);
    for (std::size_t i = 0; i < logik_.fenster.Shape12.size(); i += 2) {
        paar(2 + static_cast<int>(i / 2), logik_.fenster.Shape12, i, "Shape12");
    }
    binder().verbinden(logik_.fenster.dragbaum, baum, "dragbaum", {});
    return baum;
}

void Form2Fenster::lampen_skalieren(int kante) {
    for (Ampelfeld* lampe : lampen_) {
        lampe->setFixedSize(kante, kante);
    }
    const int rund = kante * 45 / 100;
    for (QWidget* baumlicht : lichter_) {
        baumlicht->setFixedSize(rund, rund);
    }
    for (QWidget* text : texte_) {
        QFont schrift = text->font();
        schrift.setPixelSize(std::clamp(kante / 5, 14, 40));
        text->setFont(schrift);
    }
}

void Form2Fenster::anordnen() {
    const QRect platz = parentWidget()->isVisible() ? parentWidget()->frameGeometry() : screen()->availableGeometry();
    lampen_skalieren(std::min(platz.width() / 8, platz.height() / 5));
    if (logik_.fenster.Nachtabschaltung.sichtbar()) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        setGeometry(parentWidget()->screen()->geometry());
        return;
    }
    layout()->activate();
    setFixedSize(sizeHint());
    // below the names, the counters and the times of the columns; above the middle in the rows
    const double hoehe = einst_.darstellung_zeile ? 0.35 : 0.6;
    QRect ziel(QPoint(0, 0), size());
    ziel.moveCenter({platz.center().x(), platz.top() + static_cast<int>(platz.height() * hoehe)});
    ziel.moveBottom(std::min(ziel.bottom(), platz.bottom() - 8));
    move(ziel.topLeft());
}

void Form2Fenster::aufschlagen() {
    anordnen();
    show();
    raise();
    activateWindow();
}

void Form2Fenster::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    if (logik_.fenster.Nachtabschaltung.sichtbar()) {
        maler.fillRect(rect(), Qt::black);
        return;
    }
    maler.fillRect(rect(), grund);
    maler.setPen(QPen(QColor(86, 92, 104), 2));
    maler.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace tarvel::ui
