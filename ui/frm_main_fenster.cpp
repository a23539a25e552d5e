#include "ui/frm_main_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/dateien.h"
#include "hardware/frm_main.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int rechts_breite = 282;
constexpr int links_breite = 250;
constexpr QMargins enger{10, 8, 10, 8};

}  // namespace

FrmMainFenster::FrmMainFenster(frm_main& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    auto* spalten = new QHBoxLayout;
    auto* linke_spalte = new QWidget(this);
    linke_spalte->setFixedWidth(links_breite);
    auto* links = new QVBoxLayout(linke_spalte);
    links->setContentsMargins({});
    links->addWidget(modusgruppe());
    links->addWidget(standardgruppe(ablage));
    links->addStretch();
    auto* mitte = binder().gruppe(logik_.Frame_eingang, "Frame_eingang");
    auto* eingaenge = new QVBoxLayout(mitte);
    eingaenge->setContentsMargins(2, 6, 2, 6);
    eingaenge->addWidget(analoggruppe());
    eingaenge->addWidget(digitalgruppe());
    eingaenge->addStretch();
    auto* rechte_spalte = new QWidget(this);
    rechte_spalte->setFixedWidth(rechts_breite);
    auto* rechts = new QVBoxLayout(rechte_spalte);
    rechts->setContentsMargins({});
    rechts->addWidget(ausgangsgruppe());
    rechts->addWidget(meldungsgruppe(), 1);
    spalten->addWidget(linke_spalte);
    spalten->addWidget(mitte, 1);
    spalten->addWidget(rechte_spalte);
    aufbau->addLayout(spalten, 1);
    aufbau->addLayout(stil::knopfzeile({stil::fensterknopf(binder().hauptknopf(logik_.Command3, "Command3")),
                                        stil::fensterknopf(binder().knopf(logik_.Command4, "Command4"))}));
    resize(995, 690);
}

QWidget* FrmMainFenster::modusgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_modus, "Frame_modus");
    auto* spalte = new QVBoxLayout(kasten);
    for (const std::size_t nummer : {4U, 3U, 2U, 1U, 0U}) {
        spalte->addWidget(binder().wahlknopf(logik_.optModus.at(nummer), "optModus_" + QString::number(nummer)));
    }
    return kasten;
}

QWidget* FrmMainFenster::standardgruppe(const dateien& ablage) {
    constexpr QSize bildgroesse{96, 44};
    QGroupBox* kasten = binder().gruppe(logik_.Frame_standard, "Frame_standard");
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(enger);
    raster->setHorizontalSpacing(4);
    for (int i = 0; i < static_cast<int>(frm_main::aufbauten); ++i) {
        const auto platz = static_cast<std::size_t>(i);
        raster->addWidget(binder().bildfeld(logik_.Picture1.at(platz), "Picture1_" + QString::number(i), bildgroesse,
                                            [&ablage](const std::string& name) { return ablage.pfad(name); }),
                          2 * i, 0, Qt::AlignHCenter);
        raster->addWidget(binder().knopf(logik_.Command2.at(platz), "Command2_" + QString::number(i), "schmal"),
                          2 * i + 1, 0);
    }
    return kasten;
}

void FrmMainFenster::eingangszeile(QGridLayout* raster, int zeile, form& licht, bezeichnung& name, auswahl& wahl,
                                   const QString& wort) {
    const QString nummer = "_" + QString::number(zeile);
    raster->addWidget(lampe(binder(), licht, "lampe_" + wort + nummer), zeile, 0);
    raster->addWidget(binder().label(name, "Label_" + wort + nummer), zeile, 2);
    QComboBox* liste = binder().auswahlfeld(wahl, "tx_" + wort + "_liste" + nummer);
    liste->setMinimumContentsLength(13);
    raster->addWidget(liste, zeile, 3);
    raster->setColumnStretch(3, 1);
}

QWidget* FrmMainFenster::analoggruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_analog, "Frame_analog");
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(enger);
    raster->setHorizontalSpacing(4);
    for (std::size_t i = 0; i < frm_main::eingaenge; ++i) {
        eingangszeile(raster, static_cast<int>(i), logik_.lampe_eingang.at(i), logik_.Label_eingang.at(i),
                      logik_.tx_eingang_liste.at(i), "eingang");
    }
    return kasten;
}

QWidget* FrmMainFenster::digitalgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_digital, "Frame_digital");
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(enger);
    raster->setHorizontalSpacing(4);
    for (std::size_t i = 0; i < frm_main::sensoren; ++i) {
        eingangszeile(raster, static_cast<int>(i), logik_.lampe_sensor.at(i), logik_.Label_sensor.at(i),
                      logik_.tx_sensor_liste.at(i), "sensor");
        QLabel* wagen = binder().label(logik_.auto_sensor.at(i), "auto_sensor_" + QString::number(i));
        wagen->setFixedWidth(14);
        raster->addWidget(wagen, static_cast<int>(i), 1);
    }
    return kasten;
}

QWidget* FrmMainFenster::ausgangsgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_ausgang, "Frame_ausgang");
    auto* raster = new QGridLayout(kasten);
    raster->setContentsMargins(enger);
    raster->addWidget(binder().label(logik_.Label_ampel, "Label_ampel"), 0, 0, 1, 3);
    raster->addWidget(binder().kasten(logik_.chkTrafficAll, "chkTrafficAll"), 0, 3, 1, 3);
    for (int i = 0; i < tx::lampen; ++i) {
        raster->addWidget(
            binder().kasten(logik_.chkTraffic.at(static_cast<std::size_t>(i)), "chkTraffic_" + QString::number(i)), 1,
            i);
    }
    raster->addWidget(binder().label(logik_.Label_strom, "Label_strom"), 2, 0, 1, 3);
    raster->addWidget(binder().kasten(logik_.chkBahnStromAll, "chkBahnStromAll"), 2, 3, 1, 3);
    for (const int spur : alle_spuren) {
        raster->addWidget(binder().kasten(logik_.chkBahnStrom[spur], "chkBahnStrom_" + QString::number(spur)), 3,
                          spur - 1);
    }
    QCheckBox* sechs = binder().kasten(logik_.Check2, "Check2");
    sechs->setMinimumHeight(3 * sechs->fontMetrics().lineSpacing() + 6);
    raster->addWidget(sechs, 4, 0, 1, 6);
    return kasten;
}

QWidget* FrmMainFenster::meldungsgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_meldung, "Frame_meldung");
    auto* spalte = new QVBoxLayout(kasten);
    spalte->setContentsMargins(enger);
    QLabel* hinweis = binder().label(logik_.hinweis, "hinweis");
    hinweis->setWordWrap(true);
    hinweis->setStyleSheet("font-weight: bold;");
    spalte->addWidget(hinweis);
    QListView* liste = binder().protokollfeld(logik_.List1, "List1");
    spalte->addWidget(liste, 1);
    auto* raster = new QGridLayout;
    raster->addWidget(binder().knopf(logik_.Command5, "Command5"), 0, 0);
    raster->addWidget(binder().knopf(logik_.Command6, "Command6"), 0, 1);
    raster->addWidget(binder().knopf(logik_.Command7, "Command7"), 1, 0);
    raster->addWidget(binder().knopf(logik_.Command8, "Command8"), 1, 1);
    raster->addWidget(binder().knopf(logik_.Command1, "Command1"), 2, 0, 1, 2);
    spalte->addLayout(raster);
    return kasten;
}

}  // namespace tarvel::ui
