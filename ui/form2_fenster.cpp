#include "ui/form2_fenster.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/lampe.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

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

Form2Fenster::Form2Fenster(startampel& logik, const dateien& ablage, Fensterverwaltung& verwaltung, Bahn1Fenster* bahn)
    : AmpelFenster(logik, logik.fenster.Nachtabschaltung, {ablage, verwaltung, bahn}), logik_(logik) {
    constexpr int je_reihe = 5;
    aufbau()->addStretch();
    aufbau()->addWidget(lampenkasten(logik.fenster.ampelbild, je_reihe, "ampelbild"), 0, Qt::AlignHCenter);
    aufbau()->addWidget(dragbaum(), 0, Qt::AlignHCenter);
    aufbau()->addWidget(hinweise());
    QPushButton* knopf = binder().knopf(logik.fenster.abbrampel, "abbrampel");
    text_aufnehmen(knopf);
    aufbau()->addWidget(knopf, 0, Qt::AlignHCenter);
    aufbau()->addStretch();
}

QWidget* Form2Fenster::hinweise() {
    auto* kasten = new QWidget(this);  // holds its place, so that the light does not jump when a text appears
    auto* zeilen = new QVBoxLayout(kasten);
    zeilen->setContentsMargins(0, 0, 0, 0);
    zeilen->setSpacing(2);
    QLabel* abbruch = binder().label(logik_.fenster.Label1, "Label1");
    abbruch->setStyleSheet("color: #ff5a4a;");
    abbruch->setAlignment(Qt::AlignCenter);
    text_aufnehmen(abbruch);
    zu_frueh_ = new TextAnzeige(kasten);
    zu_frueh_->setFarbe(QColor(255, 200, 60));
    zu_frueh_->setFett(true);
    constexpr int fuer_sechs_lange_namen = 3;
    zu_frueh_->setMehrzeilig(fuer_sechs_lange_namen);
    bezeichnung& fruehstart = logik_.fenster.Label_fruehstart;
    binder().verbinden(fruehstart, zu_frueh_, "Label_fruehstart", [this, &fruehstart] {
        zu_frueh_->setText(QString::fromStdString(fruehstart.text()));
        if (isVisible()) {
            anordnen();  // names need more room than a few lamps
        }
    });
    for (QWidget* text : {static_cast<QWidget*>(abbruch), static_cast<QWidget*>(zu_frueh_)}) {
        QSizePolicy haelt_platz = text->sizePolicy();
        haelt_platz.setRetainSizeWhenHidden(true);
        text->setSizePolicy(haelt_platz);
        zeilen->addWidget(text, 0, Qt::AlignHCenter);
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
    text_aufnehmen(vorn);
    text_aufnehmen(bereit);
    for (std::size_t i = 0; i < logik_.fenster.Shape12.size(); i += 2) {
        paar(2 + static_cast<int>(i / 2), logik_.fenster.Shape12, i, "Shape12");
    }
    binder().verbinden(logik_.fenster.dragbaum, baum, "dragbaum", {});
    return baum;
}

void Form2Fenster::aufschlagen() {
    if (logik_.zu_sehen()) {  // a window that comes and goes within a millisecond may take the keys with it
        AmpelFenster::aufschlagen();
    }
}

void Form2Fenster::skalieren(int kante) {
    const int rund = kante * 45 / 100;
    for (QWidget* baumlicht : lichter_) {
        baumlicht->setFixedSize(rund, rund);
    }
    constexpr int lampen_breit = 5;  // as the widest light is
    zu_frueh_->setSchriftPx(schrift_px(kante));
    zu_frueh_->setMindestPx(schrift_px(kante) * 3 / 5);  // three lines of it take the height of two
    const int zeile = zu_frueh_->sizeHint().height();
    zu_frueh_->setFixedSize(logik_.fenster.Label_fruehstart.sichtbar() ? lampen_breit * kante : 1, 2 * zeile);
}

}  // namespace tarvel::ui
