#include "ui/speichern_fenster.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/stil.h"

namespace tarvel::ui {

SpeichernFenster::SpeichernFenster(speichernfenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    auto* kopf = new QWidget(this);
    auto* kopf_aufbau = new QHBoxLayout(kopf);
    kopf_aufbau->setContentsMargins(0, 0, 0, 0);
    kopf_aufbau->addWidget(binder().label(logik.ueberschrift, "ueberschrift"));
    QLineEdit* dateiname = binder().zeile(logik.name, "name");
    QListView* liste = binder().listenfeld(logik.dateiliste, "dateiliste");
    QCheckBox* alle = binder().kasten(logik.alle_dateien, "alle_dateien");
    QPushButton* ausfuehren = binder().hauptknopf(logik.Command1, "Command1");
    QObject::connect(dateiname, &QLineEdit::returnPressed, ausfuehren, [&logik] { logik.Command1.klicken(); });
    aufbau->addWidget(kopf);
    aufbau->addWidget(dateiname);
    aufbau->addWidget(liste, 1);
    aufbau->addWidget(alle);
    aufbau->addLayout(stil::knopfzeile({ausfuehren, binder().knopf(logik.Command2, "Command2")}));
    resize(460, 420);
}

}  // namespace tarvel::ui
