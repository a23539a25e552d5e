#include "ui/timekeeper_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/tk_einstellungen.h"
#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int sensoren_je_spalte = 8;
constexpr int lampengroesse = 14;
constexpr int zeilenhoehe = 22;
constexpr int rahmenhoehe = 62;  // of a group around its content, which it does not ask for by itself
constexpr int ergebnisbreite = 80;
constexpr int eingabebreite = 150;
constexpr int schmaler_knopf = 57;
constexpr int schaltknopf = 72;

QPushButton* schmal(QPushButton* knopf, int breite) {
    knopf->setFixedWidth(breite);
    knopf->setStyleSheet("padding-left: 1px; padding-right: 1px;");
    return knopf;
}

}  // namespace

TimekeeperFenster::TimekeeperFenster(tk_einstellungen& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(6);
    auto* oben = new QHBoxLayout;
    oben->addWidget(modusgruppe(), 1);
    oben->addWidget(firmwaregruppe());
    aufbau->addLayout(oben);
    aufbau->addWidget(sensorgruppe());
    auto* unten = new QHBoxLayout;
    for (QWidget* schalter : {ampelgruppe(), relaisgruppe()}) {
        auto* spalte = new QVBoxLayout;
        spalte->addWidget(schalter);
        spalte->addStretch();
        unten->addLayout(spalte);
    }
    unten->addWidget(protokollgruppe(), 1);
    aufbau->addLayout(unten, 1);
    aufbau->addLayout(fuss());
    resize(1000, 700);
}

QWidget* TimekeeperFenster::modusgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_modus, "Frame_modus");
    auto* zeile = new QHBoxLayout(kasten);
    for (std::size_t i = 0; i < logik_.Option.size(); ++i) {
        zeile->addWidget(binder().wahlknopf(logik_.Option.at(i), "Option" + QString::number(i + 1)));
    }
    zeile->addStretch();
    zeile->addWidget(binder().knopf(logik_.suchen, "suchen"));
    return kasten;
}

QWidget* TimekeeperFenster::sensorgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_sensoren, "Frame_sensoren");
    kasten->setMinimumHeight(sensoren_je_spalte * (zeilenhoehe + 1) + rahmenhoehe);
    auto* spalten = new QHBoxLayout(kasten);
    QGridLayout* raster = nullptr;
    for (std::size_t i = 0; i < logik_.kanaele.size(); ++i) {
        const int reihe = static_cast<int>(i) % sensoren_je_spalte;
        if (reihe == 0) {
            raster = new QGridLayout;
            raster->setVerticalSpacing(1);
            raster->setHorizontalSpacing(4);
            raster->setColumnStretch(2, 1);
            spalten->addLayout(raster, 1);
        }
        auto& k = logik_.kanaele.at(i);
        const QString nummer = "_" + QString::number(i + 1);
        raster->addWidget(lampe(binder(), k.lampe, "lampe" + nummer, lampengroesse), reihe, 0);
        raster->addWidget(binder().label(k.sensornum, "sensornum" + nummer), reihe, 1);
        QComboBox* wahl = binder().auswahlfeld(k.sensorart, "sensorart" + nummer);
        wahl->setMinimumContentsLength(10);
        wahl->setStyleSheet(
            "QComboBox { font-size: 13px; min-height: 0; padding: 0 2px 0 4px; } QComboBox::drop-down { width: 20px; "
            "}");
        wahl->setFixedHeight(zeilenhoehe);  // all of them on a small screen too
        wahl->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        raster->addWidget(wahl, reihe, 2);
        QLabel* ergebnis = binder().label(k.ergebnis, "ergebnis" + nummer);
        ergebnis->setFixedWidth(ergebnisbreite);
        raster->addWidget(ergebnis, reihe, 3);
    }
    return kasten;
}

QWidget* TimekeeperFenster::ampelgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_ampel, "Frame_ampel");
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(2);
    for (std::size_t i = 0; i < logik_.ampel_check.size(); ++i) {
        raster->addWidget(binder().kasten(logik_.ampel_check.at(i), "ampel_check_" + QString::number(i + 1)),
                          static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    raster->addWidget(schmal(binder().knopf(logik_.ampel_alle_an, "ampel_alle_an"), schaltknopf), 4, 0);
    raster->addWidget(schmal(binder().knopf(logik_.ampel_alle_aus, "ampel_alle_aus"), schaltknopf), 4, 1);
    return kasten;
}

QWidget* TimekeeperFenster::relaisgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_relais, "Frame_relais");
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(2);
    for (const int spur : alle_spuren) {
        raster->addWidget(binder().kasten(logik_.relais_check[spur], "relais_check_" + QString::number(spur)), spur, 0);
    }
    raster->addWidget(schmal(binder().knopf(logik_.relais_alle_an, "relais_alle_an"), schaltknopf), 1, 1, 2, 1);
    raster->addWidget(schmal(binder().knopf(logik_.relais_alle_aus, "relais_alle_aus"), schaltknopf), 3, 1, 2, 1);
    return kasten;
}

QWidget* TimekeeperFenster::firmwaregruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_firmware, "Frame_firmware");
    auto* zeile = new QHBoxLayout(kasten);
    QLabel* anzeige = binder().label(logik_.firmware, "firmware");
    anzeige->setMinimumWidth(60);
    zeile->addWidget(anzeige, 1);
    zeile->addWidget(binder().knopf(logik_.firmware_lesen, "firmware_lesen"));
    return kasten;
}

QWidget* TimekeeperFenster::protokollgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_log, "Frame_log");
    auto* spalte = new QVBoxLayout(kasten);
    QListView* protokoll = binder().protokollfeld(logik_.List1, "List1");
    constexpr int drei_zeilen = 72;
    stil::nimmt_den_rest(protokoll, drei_zeilen);
    spalte->addWidget(protokoll, 1);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().label(logik_.Label_command, "Label_command"));
    QLineEdit* eingabe = binder().zeile(logik_.tk_command, "tk-command");
    QObject::connect(eingabe, &QLineEdit::returnPressed, eingabe, [this] { logik_.Send.klicken(); });
    zeile->addWidget(eingabe, 1);
    zeile->addWidget(binder().knopf(logik_.Send, "Send"));
    spalte->addLayout(zeile);
    zeile = new QHBoxLayout;
    zeile->setSpacing(2);
    for (const int spur : alle_spuren) {
        zeile->addWidget(
            schmal(binder().knopf(logik_.debug_open[spur], "debug_open_" + QString::number(spur)), schmaler_knopf));
    }
    zeile->addWidget(schmal(binder().knopf(logik_.debug_close, "debug_close"), schmaler_knopf));
    zeile->addStretch();
    spalte->addLayout(zeile);
    return kasten;
}

QLayout* TimekeeperFenster::fuss() {
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().label(logik_.Label_datei, "Label_datei"));
    QLineEdit* datei = binder().zeile(logik_.tk_datei, "tk_datei");
    datei->setFixedWidth(eingabebreite);
    zeile->addWidget(datei);
    zeile->addWidget(binder().knopf(logik_.Laden, "Laden"));
    zeile->addWidget(binder().knopf(logik_.Werkseinstellungen, "Werkseinstellungen"));
    zeile->addStretch();
    zeile->addWidget(stil::fensterknopf(binder().knopf(logik_.Abbrechen, "Abbrechen")));
    zeile->addWidget(stil::fensterknopf(binder().hauptknopf(logik_.Speichern, "Speichern")));
    return zeile;
}

}  // namespace tarvel::ui
