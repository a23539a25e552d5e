#include "ui/usbtest_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/usbtest.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int pinhoehe = 26;  // all four ports have to fit on a small screen
constexpr int kastenbreite = 22;
constexpr int rechts_breite = 272;

}  // namespace

UsbtestFenster::UsbtestFenster(usbtest& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    QLabel* hinweis = stil::leise(binder().label(logik.hinweis, "hinweis"));
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(12);
    auto* raster = new QGridLayout;
    raster->setSpacing(8);
    for (std::size_t nummer = 0; nummer < usbtest::ports; ++nummer) {
        raster->addWidget(port(nummer), static_cast<int>(nummer) / 2, static_cast<int>(nummer) % 2, Qt::AlignTop);
    }
    raster->setRowStretch(2, 1);
    mitte->addLayout(raster, 1);
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(8);
    rechts->addWidget(vorlagen());
    rechts->addWidget(meldungen(), 1);
    rechts->addWidget(dateiwahl(), 1);
    mitte->addLayout(rechts);
    aufbau->addLayout(mitte, 1);

    auto* fuss = new QHBoxLayout;
    fuss->addWidget(binder().label(logik.Label_datei, "Label_datei"));
    fuss->addWidget(binder().zeile(logik.iow_profildatei, "iow_profildatei"), 1);
    QPushButton* oeffnen = binder().knopf(logik.Command8, "Command8");
    oeffnen->setMinimumHeight(stil::knopfhoehe);
    fuss->addWidget(oeffnen);
    fuss->addSpacing(24);
    fuss->addWidget(stil::fensterknopf(binder().hauptknopf(logik.Command3, "Command3")));
    fuss->addWidget(stil::fensterknopf(binder().knopf(logik.Command6, "Command6")));
    aufbau->addLayout(fuss);
    resize(1012, 690);
}

QWidget* UsbtestFenster::port(std::size_t nummer) {
    QGroupBox* kasten = binder().gruppe(logik_.Frame.at(nummer), "Frame_" + QString::number(nummer));
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(8, 6, 8, 8);
    raster->setVerticalSpacing(2);
    raster->setHorizontalSpacing(5);
    raster->setColumnStretch(2, 1);
    for (std::size_t bit = 0; bit < usbtest::bits_je_port; ++bit) {
        const std::size_t platz = nummer * usbtest::bits_je_port + bit;
        const QString ziffer = QString::number(platz);
        const int zeile = static_cast<int>(bit);
        raster->addWidget(binder().label(logik_.Label.at(platz), "Label_" + ziffer), zeile, 0);
        raster->addWidget(lampe(binder(), logik_.lampe.at(platz), "lampe_" + ziffer, false), zeile, 1);
        QComboBox* funktion = binder().auswahlfeld(logik_.combo_c.at(platz), "combo_c_" + ziffer);
        funktion->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        funktion->setFixedHeight(pinhoehe);
        funktion->setStyleSheet("QComboBox { padding: 0 2px 0 4px; font-size: 13px; }");
        raster->addWidget(funktion, zeile, 2);
        QCheckBox* ausgang = binder().kasten(logik_.c.at(platz), "c_" + ziffer);
        ausgang->setFixedWidth(kastenbreite);
        raster->addWidget(ausgang, zeile, 3);
    }
    raster->setColumnMinimumWidth(3, kastenbreite);
    auto* wert = new QHBoxLayout;
    wert->addWidget(binder().label(logik_.Label_wert.at(nummer), "Label_wert_" + QString::number(nummer)));
    QLineEdit* feld = binder().zeile(logik_.tp.at(nummer), "tp" + QString::number(nummer));
    feld->setFixedSize(56, pinhoehe);
    feld->setStyleSheet("padding-top: 0; padding-bottom: 0;");
    feld->setAlignment(Qt::AlignRight);
    wert->addWidget(feld);
    wert->addStretch();
    raster->addLayout(wert, static_cast<int>(usbtest::bits_je_port), 0, 1, 4);
    return kasten;
}

QWidget* UsbtestFenster::meldungen() {
    auto* flaeche = new QWidget(this);
    flaeche->setFixedWidth(rechts_breite);
    auto* aufbau = new QVBoxLayout(flaeche);
    aufbau->setContentsMargins(0, 0, 0, 0);
    auto* werte = new QHBoxLayout;
    werte->addWidget(binder().knopf(logik_.lesen, "lesen"));
    werte->addWidget(binder().knopf(logik_.setzen, "setzen"));
    werte->addStretch();
    aufbau->addLayout(werte);
    QLabel* zustand = binder().label(logik_.zustand, "zustand");
    zustand->setStyleSheet("font-weight: bold;");
    zustand->setWordWrap(true);
    aufbau->addWidget(zustand);
    aufbau->addWidget(stil::leise(binder().label(logik_.Label_protokoll, "Label_protokoll")));
    QListView* liste = binder().protokollfeld(logik_.protokoll, "protokoll");
    liste->setFocusPolicy(Qt::ClickFocus);
    aufbau->addWidget(liste, 1);
    return flaeche;
}

QWidget* UsbtestFenster::dateiwahl() {
    QGroupBox* kasten = binder().gruppe(logik_.oeffnen_rahmen, "oeffnen_rahmen");
    kasten->setFixedWidth(rechts_breite);  // as what it takes the place of
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->addWidget(stil::leise(binder().label(logik_.muster, "muster")));
    aufbau->addWidget(binder().listenfeld(logik_.dateiliste, "dateiliste"), 1);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addWidget(binder().knopf(logik_.Command10, "Command10"));
    knoepfe->addWidget(binder().knopf(logik_.Command9, "Command9"));
    knoepfe->addStretch();
    aufbau->addLayout(knoepfe);
    return kasten;
}

QWidget* UsbtestFenster::vorlagen() {
    QGroupBox* kasten = binder().gruppe(logik_.vorlagen, "vorlagen");
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setSpacing(4);
    kasten->setFixedWidth(rechts_breite);
    constexpr int knopfhoehe = 32;
    for (QPushButton* knopf : {binder().knopf(logik_.Command1, "Command1"), binder().knopf(logik_.Command2, "Command2"),
                               binder().knopf(logik_.Command4, "Command4"), binder().knopf(logik_.Command7, "Command7"),
                               binder().knopf(logik_.Command5, "Command5")}) {
        knopf->setMinimumHeight(knopfhoehe);
        knopf->setStyleSheet("font-size: 13px; padding-left: 4px; padding-right: 4px;");
        aufbau->addWidget(knopf);
    }
    return kasten;
}

}  // namespace tarvel::ui
