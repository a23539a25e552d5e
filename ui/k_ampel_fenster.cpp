#include "ui/k_ampel_fenster.h"

#include <QVBoxLayout>

#include "ui/tastenfaenger.h"

namespace tarvel::ui {

KAmpelFenster::KAmpelFenster(k_ampel& logik, rennbefehle& befehle, const einstellungen& einst, const dateien& ablage,
                             Bildtakt& takt, QWidget* bahn)
    : AmpelFenster("k_ampel", logik.k_nachtabschaltung, {einst, ablage, takt, bahn}) {
    binder().fenstertitel(logik.titel);
    aufbau()->addStretch();
    aufbau()->addWidget(lampenkasten(logik.k_ampelbild, k_ampel::schritte, "k_ampelbild"), 0, Qt::AlignHCenter);
    QPushButton* knopf = binder().knopf(logik.Command1, "Command1");
    text_aufnehmen(knopf);
    aufbau()->addWidget(knopf, 0, Qt::AlignHCenter);
    aufbau()->addStretch();
    new Tastenfaenger(
        this, [&befehle](int code) { return befehle.ist_belegt(code); }, [&befehle](int code) { befehle.taste(code); });
}

}  // namespace tarvel::ui
