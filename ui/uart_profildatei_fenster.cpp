#include "ui/uart_profildatei_fenster.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/uart_profildatei.h"
#include "ui/stil.h"

namespace tarvel::ui {

UartProfildateiFenster::UartProfildateiFenster(uart_profildatei& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(10);
    QLabel* hinweis = binder().label(logik.hinweis, "hinweis");
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    auto* zeile = new QHBoxLayout;
    QLineEdit* name = binder().zeile(logik.name, "name");
    zeile->addWidget(binder().label(logik.Label_name, "Label_name"));
    zeile->addWidget(name, 1);
    aufbau->addLayout(zeile);
    aufbau->addWidget(binder().listenfeld(logik.dateiliste, "dateiliste"), 1);
    QPushButton* uebernehmen = binder().hauptknopf(logik.Command1, "Command1");
    QObject::connect(name, &QLineEdit::returnPressed, uebernehmen, [&logik] { logik.Command1.klicken(); });
    aufbau->addLayout(stil::knopfzeile({uebernehmen, binder().knopf(logik.Command2, "Command2")}));
    resize(520, 420);
}

}  // namespace tarvel::ui
