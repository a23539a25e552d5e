#include "ui/drucker_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/drucker_fenster.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int adressbreite = 70;

}  // namespace

DruckerFenster::DruckerFenster(drucker_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(10);
    aufbau->addLayout(kopf(logik));
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(14);
    mitte->addWidget(pinkasten({logik.ausgangsrahmen, "ausgangsrahmen", logik.Label_funktion, logik.Label_test,
                                logik.pin, logik.comb, logik.aanzeiger, "", "aanzeiger_", true}),
                     1);
    mitte->addWidget(pinkasten({logik.eingangsrahmen, "eingangsrahmen", logik.Label_efunktion, logik.Label_etest,
                                logik.epin, logik.ecomb, logik.eanzeiger, "e", "eanzeiger_", false}),
                     1);
    aufbau->addLayout(mitte, 1);
    QLabel* hinweis = stil::leise(binder().label(logik.hinweis, "hinweis"));
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    auto* fuss = new QHBoxLayout;
    fuss->addWidget(binder().label(logik.Label_status, "Label_status"));
    fuss->addWidget(binder().label(logik.status, "status"));
    fuss->addStretch();
    fuss->addWidget(stil::fensterknopf(binder().hauptknopf(logik.Command3, "Command3")));
    fuss->addWidget(stil::fensterknopf(binder().knopf(logik.Command2, "Command2")));
    aufbau->addLayout(fuss);
    resize(960, 520);
}

QHBoxLayout* DruckerFenster::kopf(drucker_fenster& logik) {
    auto* kopf = new QHBoxLayout;
    kopf->addWidget(binder().label(logik.Label_adresse, "Label_adresse"));
    QLineEdit* adresse = binder().zeile(logik.lpt_text, "lpt_text");
    adresse->setFixedWidth(adressbreite);
    kopf->addWidget(adresse);
    kopf->addWidget(stil::leise(binder().label(logik.einheit, "einheit")));
    kopf->addSpacing(20);
    QLabel* zustand = binder().label(logik.zustand, "zustand");
    zustand->setStyleSheet("font-weight: bold;");
    zustand->setWordWrap(true);
    kopf->addWidget(zustand, 1);
    return kopf;
}

QGroupBox* DruckerFenster::pinkasten(const pins& p) {
    QGroupBox* kasten = binder().gruppe(p.kasten, p.kastenname);
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(1, 1);
    raster->addWidget(stil::leise(binder().label(p.funktion, "Label_" + p.name + "funktion")), 0, 1);
    raster->addWidget(stil::leise(binder().label(p.test, "Label_" + p.name + "test")), 0, 2, Qt::AlignCenter);
    for (std::size_t i = 0; i < p.pin.size(); ++i) {
        const QString ziffer = QString::number(i + 1);
        const int zeile = static_cast<int>(i) + 1;
        raster->addWidget(binder().label(p.pin[i], p.name + "pin_" + ziffer), zeile, 0);
        raster->addWidget(binder().auswahlfeld(p.wahl[i], p.name + "comb_" + ziffer), zeile, 1);
        raster->addWidget(lampe(binder(), p.lampe[i], p.lampenname + ziffer, p.schaltbar), zeile, 2, Qt::AlignCenter);
    }
    raster->setRowStretch(raster->rowCount(), 1);
    return kasten;
}

}  // namespace tarvel::ui
