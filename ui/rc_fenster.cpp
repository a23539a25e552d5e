#include "ui/rc_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/rc_einstellungen.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int lampe_px = 22;
constexpr int spalte_px = 110;

}  // namespace

RcFenster::RcFenster(rc_einstellungen& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    for (QWidget* gruppe : {boxgruppe(), sensorgruppe()}) {
        aufbau->addWidget(gruppe);
    }
    aufbau->addWidget(statusgruppe(), 1);
    aufbau->addLayout(stil::knopfzeile(
        {binder().hauptknopf(logik_.Command1, "Command1"), binder().knopf(logik_.Command2, "Command2")}));
    resize(760, 640);
}

QWidget* RcFenster::boxgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_box, "Frame_box");
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(10);
    raster->addWidget(binder().label(logik_.Label_port, "Label_port"), 0, 0);
    QComboBox* port = binder().auswahlfeld(logik_.selComPort, "selComPort");
    port->setMinimumWidth(spalte_px);
    raster->addWidget(port, 0, 1);
    raster->addWidget(binder().knopf(logik_.doInit, "doInit"), 0, 2);
    raster->addWidget(binder().knopf(logik_.doStop, "doStop"), 0, 3);
    raster->setColumnStretch(4, 1);
    raster->addWidget(stil::leise(binder().label(logik_.Label_uhr, "Label_uhr")), 0, 5);
    raster->addWidget(binder().label(logik_.boxuhr, "boxuhr"), 0, 6);
    QLabel* status = binder().label(logik_.status, "status");
    status->setStyleSheet("font-size: 18px; font-weight: bold;");
    status->setWordWrap(true);
    raster->addWidget(status, 1, 0, 1, 7);
    return kasten;
}

QWidget* RcFenster::sensorgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_sensoren, "Frame_sensoren");
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(16);
    raster->setColumnStretch(6, 1);
    for (std::size_t i = 0; i < logik_.Label_spalte.size(); ++i) {
        const int spalte = static_cast<int>(i);
        raster->addWidget(
            stil::leise(binder().label(logik_.Label_spalte.at(i), "Label_spalte_" + QString::number(spalte))), 0,
            spalte + 1);
    }
    int zeile = 0;
    for (auto& eine : logik_.sensoren) {
        const QString nummer = "_" + QString::number(++zeile);
        QComboBox* spur = binder().auswahlfeld(eine.selSpur, "selSpur" + nummer);
        spur->setMinimumWidth(spalte_px);
        raster->addWidget(binder().label(eine.name, "sensor" + nummer), zeile, 0);
        raster->addWidget(lampe(binder(), eine.SensorLED, "SensorLED" + nummer, lampe_px), zeile, 1);
        raster->addWidget(spur, zeile, 2);
        raster->addWidget(binder().label(eine.SensorTime, "SensorTime" + nummer), zeile, 3);
        raster->addWidget(binder().label(eine.SensorTimeStamp, "SensorTimeStamp" + nummer), zeile, 4);
        raster->addWidget(binder().label(eine.anzahl, "anzahl" + nummer), zeile, 5);
    }
    auto* haken = new QHBoxLayout;
    haken->addWidget(binder().kasten(logik_.check_rctank, "check_rctank"));
    haken->addSpacing(16);
    haken->addWidget(binder().kasten(logik_.check_rcziel, "check_rcziel"));
    haken->addStretch();
    raster->addLayout(haken, zeile + 1, 0, 1, 7);
    return kasten;
}

QWidget* RcFenster::statusgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_status, "Frame_status");
    auto* spalte = new QVBoxLayout(kasten);
    QListView* liste = binder().protokollfeld(logik_.List1, "List1");
    spalte->addWidget(liste);
    return kasten;
}

}  // namespace tarvel::ui
