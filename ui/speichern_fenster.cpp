#include "ui/speichern_fenster.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tarvel::ui {

SpeichernFenster::SpeichernFenster(speichernfenster& logik, Bildtakt& takt, QWidget* eltern)
    : Fenster("speichernfenster", takt, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(16, 12, 16, 12);
    aufbau->setSpacing(8);
    auto* kopf = new QWidget(this);
    auto* kopf_aufbau = new QHBoxLayout(kopf);
    kopf_aufbau->setContentsMargins(0, 0, 0, 0);
    kopf_aufbau->addWidget(binder().label(logik.ueberschrift, "ueberschrift"));
    binder().verbinden(logik.titel, kopf, "titel",
                       [this, &logik] { setWindowTitle(QString::fromStdString(logik.titel.text())); });
    QLineEdit* name = binder().zeile(logik.name, "name", "Dateiname");
    QListView* liste = binder().listenfeld(logik.dateiliste, "dateiliste", "Vorhandene Dateien");
    QPushButton* ausfuehren = binder().hauptknopf(logik.Command1, "Command1");
    QObject::connect(name, &QLineEdit::returnPressed, ausfuehren, [&logik] { logik.Command1.klicken(); });
    aufbau->addWidget(kopf);
    aufbau->addWidget(name);
    aufbau->addWidget(liste, 1);
    aufbau->addWidget(binder().kasten(logik.alle_dateien, "alle_dateien"));
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(ausfuehren);
    knoepfe->addWidget(binder().knopf(logik.Command2, "Command2"));
    aufbau->addLayout(knoepfe);
    resize(460, 420);
}

}  // namespace tarvel::ui
