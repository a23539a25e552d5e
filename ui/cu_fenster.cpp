#include "ui/cu_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/cu_eigenschaften.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {

CuFenster::CuFenster(cu_eigenschaften& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    auto* spalten = new QHBoxLayout;
    auto* links = new QVBoxLayout;
    for (QWidget* gruppe : {portgruppe(), optionengruppe(), wagengruppe()}) {
        links->addWidget(gruppe);
    }
    links->addStretch();
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(statusgruppe(), 1);
    rechts->addWidget(befehlsgruppe());
    rechts->addWidget(codiergruppe());
    spalten->addLayout(links);
    spalten->addLayout(rechts, 1);
    aufbau->addLayout(spalten, 1);
    auto* fuss = new QHBoxLayout;
    fuss->addStretch();
    fuss->addWidget(stil::fensterknopf(binder().hauptknopf(logik_.Command4, "Command4")));
    aufbau->addLayout(fuss);
    resize(960, 680);
}

QWidget* CuFenster::portgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_port, "Frame_port");
    auto* raster = new QGridLayout(kasten);
    raster->addWidget(binder().label(logik_.Label_port, "Label_port"), 0, 0);
    QComboBox* port = binder().auswahlfeld(logik_.cbo_cu_comport, "cbo_cu_comport");
    port->setMinimumWidth(150);
    raster->addWidget(port, 0, 1);
    raster->addWidget(binder().knopf(logik_.Command8, "Command8"), 0, 2);
    raster->addWidget(binder().knopf(logik_.Command2, "Command2"), 1, 1);
    raster->addWidget(binder().knopf(logik_.Command1, "Command1"), 1, 2);
    auto* start = new QHBoxLayout;
    start->addWidget(lampe(binder(), logik_.lampe_start, "lampe_start"));
    start->addWidget(binder().label(logik_.Label_start, "Label_start"));
    start->addStretch();
    raster->addLayout(start, 2, 0, 1, 2);
    raster->addWidget(binder().knopf(logik_.starttaste, "starttaste"), 2, 2);
    return kasten;
}

QWidget* CuFenster::optionengruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_optionen, "Frame_optionen");
    auto* spalte = new QVBoxLayout(kasten);
    spalte->addWidget(binder().kasten(logik_.opt_cu_tankautomatik, "opt_cu_tankautomatik"));
    spalte->addWidget(binder().kasten(logik_.opt_cu_prgstart, "opt_cu_prgstart"));
    spalte->addWidget(binder().kasten(logik_.opt_cu_alterRZ, "opt_cu_alterRZ"));
    return kasten;
}

QWidget* CuFenster::wagengruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_wagen, "Frame_wagen");
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(10);
    int spalte = 0;
    for (const auto& [element, name] : {std::pair<bezeichnung&, const char*>{logik_.Label_wagen, "Label_wagen"},
                                        {logik_.Label_runden, "Label_runden"},
                                        {logik_.Label_zeit, "Label_zeit"},
                                        {logik_.Label_tank, "Label_tank"},
                                        {logik_.Label_box, "Label_box"},
                                        {logik_.Label_tankgroesse, "Label_tankgroesse"}}) {
        raster->addWidget(stil::leise(binder().label(element, name)), 0, spalte++);
    }
    for (const int spur : alle_spuren) {
        const QString nummer = "_" + QString::number(spur);
        auto* auto_nummer = new QHBoxLayout;
        auto_nummer->setSpacing(8);
        auto_nummer->addWidget(lampe(binder(), logik_.lampe_wagen[spur], "lampe_wagen" + nummer));
        auto_nummer->addWidget(binder().label(logik_.wagen[spur], "wagen" + nummer), 1);
        raster->addLayout(auto_nummer, spur, 0);
        raster->addWidget(binder().label(logik_.rundenanzeige[spur], "rundenanzeige" + nummer), spur, 1);
        raster->addWidget(binder().label(logik_.zeitanzeige[spur], "zeitanzeige" + nummer), spur, 2);
        raster->addWidget(binder().label(logik_.tank[spur], "tank" + nummer), spur, 3);
        raster->addWidget(lampe(binder(), logik_.Shape1[spur], "Shape1" + nummer), spur, 4);
        QComboBox* groesse = binder().auswahlfeld(logik_.cbo_cu_tankgroesse[spur], "cbo_cu_tankgroesse" + nummer);
        groesse->setMinimumContentsLength(2);
        groesse->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        groesse->setFixedWidth(72);
        raster->addWidget(groesse, spur, 5);
    }
    return kasten;
}

QWidget* CuFenster::statusgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_status, "Frame_status");
    auto* spalte = new QVBoxLayout(kasten);
    spalte->addWidget(binder().protokollfeld(logik_.List1, "List1"), 1);
    spalte->addWidget(binder().kasten(logik_.timer_aus, "timer_aus"));
    auto* befehle = new QHBoxLayout;
    befehle->addWidget(binder().knopf(logik_.Command9, "Command9"));
    befehle->addStretch();
    spalte->addLayout(befehle);
    befehle = new QHBoxLayout;
    befehle->addWidget(binder().knopf(logik_.Command14, "Command14"));
    befehle->addStretch();
    befehle->addWidget(binder().knopf(logik_.Command3, "Command3"));
    befehle->addWidget(binder().knopf(logik_.Command6, "Command6"));
    spalte->addLayout(befehle);
    return kasten;
}

QWidget* CuFenster::befehlsgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_senden, "Frame_senden");
    auto* zeile = new QHBoxLayout(kasten);
    zeile->addWidget(binder().label(logik_.Label_befehl, "Label_befehl"));
    zeile->addWidget(binder().zeile(logik_.Text1, "Text1"), 1);
    zeile->addWidget(binder().knopf(logik_.Command7, "Command7"));
    return kasten;
}

QWidget* CuFenster::codiergruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_codieren, "Frame_codieren");
    auto* raster = new QGridLayout(kasten);
    const std::array<feld*, 4> felder{&logik_.Text2, &logik_.Text3, &logik_.Text4, &logik_.Text5};
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const QString nummer = QString::number(i + 2);
        const int spalte = static_cast<int>(i);
        raster->addWidget(stil::leise(binder().label(logik_.Label_code.at(i), "Label_code_" + nummer)), 0, spalte);
        QLineEdit* eingabe = binder().zeile(*felder.at(i), "Text" + nummer);
        eingabe->setFixedWidth(44);
        raster->addWidget(eingabe, 1, spalte);
    }
    raster->setColumnStretch(4, 1);
    raster->addWidget(binder().knopf(logik_.Command10, "Command10"), 2, 0, 1, 5, Qt::AlignRight);
    return kasten;
}

}  // namespace tarvel::ui
