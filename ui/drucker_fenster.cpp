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
    aufbau->addLayout(kopf);

    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(14);
    QGroupBox* ausgaenge = binder().gruppe(logik.ausgangsrahmen, "ausgangsrahmen");
    QGridLayout* links = spalte(ausgaenge, logik.Label_funktion, logik.Label_test, "");
    for (std::size_t i = 0; i < drucker_fenster::ausgaenge; ++i) {
        const QString ziffer = QString::number(i + 1);
        const int zeile = static_cast<int>(i) + 1;
        links->addWidget(binder().label(logik.pin.at(i), "pin_" + ziffer), zeile, 0);
        links->addWidget(binder().auswahlfeld(logik.comb.at(i), "comb_" + ziffer), zeile, 1);
        links->addWidget(lampe(binder(), logik.aanzeiger.at(i), "aanzeiger_" + ziffer, true), zeile, 2,
                         Qt::AlignCenter);
    }
    links->setRowStretch(links->rowCount(), 1);
    mitte->addWidget(ausgaenge, 1);
    QGroupBox* eingaenge = binder().gruppe(logik.eingangsrahmen, "eingangsrahmen");
    QGridLayout* rechts = spalte(eingaenge, logik.Label_efunktion, logik.Label_etest, "e");
    for (std::size_t i = 0; i < drucker_fenster::eingaenge; ++i) {
        const QString ziffer = QString::number(i + 1);
        const int zeile = static_cast<int>(i) + 1;
        rechts->addWidget(binder().label(logik.epin.at(i), "epin_" + ziffer), zeile, 0);
        rechts->addWidget(binder().auswahlfeld(logik.ecomb.at(i), "ecomb_" + ziffer), zeile, 1);
        rechts->addWidget(lampe(binder(), logik.eanzeiger.at(i), "eanzeiger_" + ziffer, false), zeile, 2,
                          Qt::AlignCenter);
    }
    rechts->setRowStretch(rechts->rowCount(), 1);
    mitte->addWidget(eingaenge, 1);
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
    resize(820, 520);
}

QGridLayout* DruckerFenster::spalte(QGroupBox* kasten, bezeichnung& funktion, bezeichnung& test, const QString& name) {
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(1, 1);
    raster->addWidget(stil::leise(binder().label(funktion, "Label_" + name + "funktion")), 0, 1);
    raster->addWidget(stil::leise(binder().label(test, "Label_" + name + "test")), 0, 2, Qt::AlignCenter);
    return raster;
}

}  // namespace tarvel::ui
