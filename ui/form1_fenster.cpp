#include "ui/form1_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/stil.h"
#include "ui/streckenbild.h"

namespace tarvel::ui {
namespace {

constexpr int feldbreite = 74;

void schmal(QLineEdit* feld) {
    feld->setFixedWidth(feldbreite);
    feld->setAlignment(Qt::AlignRight);
}

/// The focus goes through these from left to right.
void tabfolge(const std::vector<QWidget*>& folge) {
    for (std::size_t i = 1; i < folge.size(); ++i) {
        QWidget::setTabOrder(folge[i - 1], folge[i]);
    }
}

QLabel* spaltenkopf(const QString& text) {
    auto* kopf = new QLabel(text);
    kopf->setStyleSheet("color: #626a78;");
    return kopf;
}

}  // namespace

Form1Fenster::Form1Fenster(form1& logik, Bildtakt& takt) : Fenster("Form1", takt, nullptr), logik_(logik) {
    setWindowTitle("Tarvel");
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);

    auto* kopf = new Streckenbild(this);
    binder().verbinden(logik.startbild, kopf, "startbild", {});
    kopf->setMinimumHeight(110);
    kopf->setTitel("Tarvel", "Zeitmessung und Rennleitung für die Modellrennbahn");
    auto* kopf_aufbau = new QHBoxLayout(kopf);
    QLabel* version = binder().label(logik.version_label, "version_label");
    version->setStyleSheet("color: #cdd2dc; background: transparent;");
    kopf_aufbau->addWidget(version, 0, Qt::AlignRight | Qt::AlignTop);
    aufbau->addWidget(kopf, 2);

    auto* inhalt = new QVBoxLayout;
    inhalt->setContentsMargins(18, 4, 18, 14);
    inhalt->setSpacing(6);
    inhalt->addWidget(rennen_gruppe());
    inhalt->addWidget(spuren_gruppe(), 3);
    inhalt->addSpacing(8);
    inhalt->addWidget(befehlszeile());
    inhalt->addWidget(statuszeile());
    aufbau->addLayout(inhalt, 5);
    resize(980, 700);
}

QWidget* Form1Fenster::rennen_gruppe() {
    auto* gruppe = new QGroupBox("Rennen");
    auto* raster = new QGridLayout(gruppe);
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(8);

    QComboBox* art = binder().auswahlfeld(logik_.rennart, "rennart", "Rennart");
    art->setMinimumWidth(130);
    QLineEdit* stunden = binder().zeile(logik_.stddauer, "stddauer", "Renndauer Stunden");
    QLineEdit* dauer = binder().zeile(logik_.renndauer, "renndauer", "Renndauer Minuten oder Runden");
    dauer->setToolTip(
        "Minuten, auch mit Sekunden: 5,30 sind fünf Minuten und dreißig Sekunden.\n"
        "Im Rundenrennen die Zahl der Runden.");
    QLineEdit* kuerzeste = binder().zeile(logik_.wertmin, "wertmin", "Kürzeste Rundenzeit in Sekunden");
    QLineEdit* massstab = binder().zeile(logik_.massstab, "massstab", "Maßstab eins zu");
    for (QLineEdit* feld : {stunden, dauer, kuerzeste, massstab}) {
        schmal(feld);
    }

    raster->addWidget(new QLabel("Rennart"), 0, 0);
    raster->addWidget(art, 0, 1);
    raster->setColumnMinimumWidth(2, 24);
    raster->addWidget(binder().label(logik_.dauerlabel, "dauerlabel"), 0, 3);
    auto* dauer_zeile = new QHBoxLayout;
    dauer_zeile->addWidget(stunden);
    dauer_zeile->addWidget(binder().label(logik_.Label8, "Label8"));
    dauer_zeile->addSpacing(8);
    dauer_zeile->addWidget(dauer);
    dauer_zeile->addWidget(binder().label(logik_.Label19, "Label19"));
    dauer_zeile->addStretch();
    raster->addLayout(dauer_zeile, 0, 4);

    raster->addWidget(binder().label(logik_.Label2, "Label2"), 1, 0);
    raster->addWidget(massstab, 1, 1);
    raster->addWidget(binder().label(logik_.Label9, "Label9"), 1, 3);
    auto* verwerfen = new QHBoxLayout;
    verwerfen->addWidget(kuerzeste);
    verwerfen->addWidget(binder().label(logik_.Label10, "Label10"));
    verwerfen->addSpacing(24);
    verwerfen->addWidget(binder().kasten(logik_.t_aktiv, "t_aktiv"));
    verwerfen->addStretch();
    raster->addLayout(verwerfen, 1, 4);
    raster->setColumnStretch(4, 1);
    tabfolge({art, stunden, dauer, massstab, kuerzeste});
    return gruppe;
}

QWidget* Form1Fenster::spuren_gruppe() {
    auto* gruppe = new QGroupBox("Spuren");
    auto* raster = new QGridLayout(gruppe);
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(4);
    QLabel* laenge = binder().label(logik_.label_spurlaenge, "label_spurlaenge");
    laenge->setStyleSheet("color: #626a78;");
    raster->addWidget(laenge, 0, 2);
    raster->addWidget(spaltenkopf("Fahrer"), 0, 4);
    raster->addWidget(spaltenkopf("Fahrzeug"), 0, 5);
    for (const int spur : alle_spuren) {
        spur_zeile(raster, spur);
        raster->setRowStretch(spur, 1);
    }
    raster->setColumnStretch(4, 3);
    raster->setColumnStretch(5, 3);
    return gruppe;
}

void Form1Fenster::spur_zeile(QGridLayout* raster, int spur) {
    const std::size_t i = feld_index(spur);
    const QString nummer = QString::number(i);
    const QString ansage = QString(" Spur %1").arg(spur);
    auto* fleck = new QLabel(this);
    fleck->setFixedSize(14, 26);
    form& spurfarbe = logik_.spurfarbe.at(i);
    binder().verbinden(spurfarbe, fleck, "spurfarbe_" + nummer, [&spurfarbe, fleck] {
        fleck->setStyleSheet(QString("background: %1; border: 1px solid #aab1bd; border-radius: 4px;")
                                 .arg(stil::farbe_von(spurfarbe.hintergrund().value_or(0)).name()));
    });
    QCheckBox* kasten = binder().kasten(logik_.spur.at(i), "spur_" + nummer);
    QLineEdit* laenge = binder().zeile(logik_.lspur.at(i), "lspur_" + nummer, "Spurlänge in Metern," + ansage);
    schmal(laenge);
    QComboBox* fahrer = binder().auswahlfeld(logik_.fahrer.at(i), "fahrer_" + nummer, "Fahrer" + ansage);
    QComboBox* fahrzeug = binder().auswahlfeld(logik_.auto_.at(i), "auto_" + nummer, "Fahrzeug" + ansage);
    raster->addWidget(fleck, spur, 0, Qt::AlignVCenter);
    raster->addWidget(kasten, spur, 1, Qt::AlignVCenter);
    raster->addWidget(laenge, spur, 2, Qt::AlignVCenter);
    raster->addWidget(new QLabel("m"), spur, 3, Qt::AlignVCenter);
    raster->addWidget(fahrer, spur, 4, Qt::AlignVCenter);
    raster->addWidget(fahrzeug, spur, 5, Qt::AlignVCenter);
    tabfolge({kasten, laenge, fahrer, fahrzeug});
}

QWidget* Form1Fenster::befehlszeile() {
    auto* zeile = new QWidget;
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    QPushButton* rennen = binder().hauptknopf(logik_.Command1, "Command1");
    rennen->setMinimumSize(220, 48);
    QPushButton* tasten = binder().knopf(logik_.command_tasten, "command_tasten");
    QPushButton* ende = binder().knopf(logik_.Command2, "Command2");
    for (QPushButton* knopf : {tasten, ende}) {
        knopf->setMinimumHeight(48);
    }
    ende->setMinimumWidth(110);
    QPushButton* speichern = binder().knopf(logik_.Command5, "Command5");
    QPushButton* laden = binder().knopf(logik_.Command7, "Command7");
    speichern->setToolTip("Einstellungen und die Felder dieses Fensters in eine Datei speichern");
    laden->setToolTip("Einstellungen und die Felder dieses Fensters aus einer Datei laden");
    for (QPushButton* knopf : {speichern, laden}) {
        knopf->setMinimumHeight(48);
    }
    aufbau->addWidget(rennen);
    aufbau->addWidget(speichern);
    aufbau->addWidget(laden);
    aufbau->addWidget(tasten);
    aufbau->addStretch();
    aufbau->addWidget(ende);
    return zeile;
}

QWidget* Form1Fenster::statuszeile() {
    auto* zeile = new QWidget;
    zeile->setStyleSheet("color: #626a78;");
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(2, 0, 2, 0);
    QLabel* modus = binder().label(logik_.modus_label, "modus_label");
    modus->setToolTip("Womit gemessen wird. Im Simulationsmodus zählt die Tastatur die Runden.");
    aufbau->addWidget(modus);
    aufbau->addStretch();
    aufbau->addWidget(binder().label(logik_.Label6, "Label6"));
    return zeile;
}

}  // namespace tarvel::ui
