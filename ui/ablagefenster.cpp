#include "ui/ablagefenster.h"

#include <QScreen>

#include "ui/stil.h"

namespace tarvel::ui {

Ablagefenster::teile Ablagefenster::aufteilen(int spaltenbreite, bezeichnung& kopf, const char* kopfname, int kopf_px) {
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(14);
    teile t;
    t.spalte = new QWidget(this);
    t.spalte->setFixedWidth(spaltenbreite);
    t.links = new QVBoxLayout(t.spalte);
    t.links->setContentsMargins(0, 0, 0, 0);
    t.links->setSpacing(6);
    aufbau->addWidget(t.spalte);
    t.rechts = new QVBoxLayout;
    t.rechts->setSpacing(6);
    TextAnzeige* anzeige = binder().anzeige(kopf, kopfname);
    anzeige->setFett(true);
    anzeige->setSchriftPx(kopf_px);
    constexpr int zeilen = 3;  // six long names
    anzeige->setMehrzeilig(zeilen);
    anzeige->setHoeheNachText();
    anzeige->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    t.kopfzeile = new QHBoxLayout;
    t.kopfzeile->addWidget(anzeige, 1);
    t.rechts->addLayout(t.kopfzeile);
    aufbau->addLayout(t.rechts, 1);
    return t;
}

void Ablagefenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = schirm_des_leiters()->availableGeometry().size();
        resize(platz.width() * 19 / 20, platz.height() * 9 / 10);
    }
    Fenster::aufschlagen();
}

}  // namespace tarvel::ui
