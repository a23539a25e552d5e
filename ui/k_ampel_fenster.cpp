#include "ui/k_ampel_fenster.h"

#include <QHideEvent>
#include <QVBoxLayout>

#include "ui/stil.h"

namespace tarvel::ui {

KAmpelFenster::KAmpelFenster(k_ampel& logik, const dateien& ablage, Fensterverwaltung& verwaltung, Bahn1Fenster* bahn)
    : AmpelFenster(logik, logik.k_nachtabschaltung, {ablage, verwaltung, bahn}),
      logik_(logik),
      bahn_(bahn),
      knopf_(binder().knopf(logik.Command1, "Command1")) {
    aufbau()->addStretch();
    aufbau()->addWidget(lampenkasten(logik.k_ampelbild, k_ampel::schritte, "k_ampelbild"), 0, Qt::AlignCenter);
    for (std::size_t i = 0; i < logik.Shape1.size(); ++i) {
        auto* ring = new QWidget(this);  // drawn by its lamp
        ring->resize(0, 0);
        binder().verbinden(logik.Shape1.at(i), ring, "Shape1_" + QString::number(i + 1), [this, &logik, i] {
            lampe(i).setRing(stil::farbe_von(logik.Shape1.at(i).hintergrund().value_or(0)));
        });
    }
    text_aufnehmen(knopf_);
    aufbau()->addWidget(knopf_, 0, Qt::AlignCenter);
    aufbau()->addStretch();
    bei_aktivierung = [this] {  // after a click on it
        if (logik_.in_pause()) {
            bahn_->activateWindow();
        }
    };
}

QRect KAmpelFenster::eigener_platz() const {
    return logik_.in_pause() ? bahn_->licht_ort() : QRect();
}

void KAmpelFenster::hideEvent(QHideEvent* ereignis) {
    if (!ereignis->spontaneous()) {  // the desktop shows it again by itself
        bahn_->licht_der_pause(false);
    }
    AmpelFenster::hideEvent(ereignis);
}

void KAmpelFenster::aufschlagen() {
    const bool pause = logik_.in_pause();
    setAttribute(Qt::WA_ShowWithoutActivating, pause);
    knopf_->setFocusPolicy(pause ? Qt::NoFocus : Qt::StrongFocus);  // a click counts though the focus goes back
    binder().mit_kuerzel(knopf_, logik_.Command1, !pause);
    bahn_->licht_der_pause(pause);
    anordnen();
    show();
    raise();
    if (!pause) {
        activateWindow();
    }
}

}  // namespace tarvel::ui
