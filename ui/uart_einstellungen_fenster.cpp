#include "ui/uart_einstellungen_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "hardware/uart_einstellungen.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int protokoll_breite = 310;
constexpr int knopfhoehe = 42;
constexpr int ereignis_breite = 72;
constexpr int spur_breite = 96;
constexpr int wahl_breiteste = 240;

/// A row that shows and hides as one.
QHBoxLayout* reihe(Binder& binder, rahmen& element, const QString& name, QGridLayout* raster, int platz) {
    auto* zeile = new QWidget;
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 2, 0, 2);
    raster->addWidget(zeile, platz, 0, 1, 2);
    binder.verbinden(element, zeile, name, {});
    return aufbau;
}

}  // namespace

UartEinstellungenFenster::UartEinstellungenFenster(uart_einstellungen& logik, Fensterverwaltung& verwaltung,
                                                   QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(14);
    QGroupBox* kasten = binder().gruppe(logik.auto_einrichtung, "auto_einrichtung");
    auto* links = new QVBoxLayout(kasten);
    links->setSpacing(10);
    QLabel* schritt = binder().label(logik.schritt, "schritt");
    schritt->setStyleSheet("font-size: 21px; font-weight: bold;");
    QLabel* anleitung = binder().label(logik.anleitung, "anleitung");
    anleitung->setWordWrap(true);
    links->addWidget(schritt);
    links->addWidget(anleitung);
    using s = uart_einstellungen;
    links->addWidget(seite(s::seite_port, [this](QGridLayout* raster) { port_seite(raster); }), 1);
    links->addWidget(seite(s::seite_anzahl, [this](QGridLayout* raster) { anzahl_seite(raster); }), 1);
    links->addWidget(seite(s::seite_sensoren, [this](QGridLayout* raster) { sensoren_seite(raster); }), 1);
    links->addWidget(seite(s::seite_chaos, [this](QGridLayout* raster) { chaos_seite(raster); }), 1);
    links->addWidget(seite(s::seite_fertig,
                           [this](QGridLayout* raster) {
                               raster->addWidget(binder().listenfeld(logik_.zusammenfassung, "zusammenfassung"), 0, 0,
                                                 1, 2);
                           }),
                     1);
    mitte->addWidget(kasten, 1);
    mitte->addWidget(protokoll());
    aufbau->addLayout(mitte, 1);
    aufbau->addWidget(befehlszeile());
    setMinimumWidth(1000);  // of its widest page
    resize(1000, 640);
}

QWidget* UartEinstellungenFenster::seite(int nummer, const std::function<void(QGridLayout*)>& fuellen) {
    auto* flaeche = new QWidget(this);
    auto* raster = new QGridLayout(flaeche);
    raster->setContentsMargins(0, 6, 0, 0);
    raster->setVerticalSpacing(6);
    raster->setColumnStretch(1, 1);
    fuellen(raster);
    if (nummer != uart_einstellungen::seite_fertig) {
        raster->setRowStretch(raster->rowCount(), 1);
    }
    binder().verbinden(logik_.seiten.at(static_cast<std::size_t>(nummer)), flaeche, "seite_" + QString::number(nummer),
                       {});
    return flaeche;
}

void UartEinstellungenFenster::port_seite(QGridLayout* raster) {
    QPushButton* ermitteln = binder().knopf(logik_.port_ermitteln, "port_ermitteln");
    ermitteln->setMinimumSize(220, knopfhoehe);
    raster->addWidget(ermitteln, 0, 0, 1, 2, Qt::AlignLeft);
    raster->setRowMinimumHeight(1, 12);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().label(logik_.Label_port, "Label_port"));
    zeile->addWidget(binder().auswahlfeld(logik_.port, "port"));
    zeile->addSpacing(12);
    zeile->addWidget(binder().knopf(logik_.port_schliessen, "port_schliessen"));
    zeile->addStretch();
    raster->addLayout(zeile, 2, 0, 1, 2);
    raster->setRowMinimumHeight(3, 12);
    QLabel* ergebnis = binder().label(logik_.ergebnis, "ergebnis");
    ergebnis->setStyleSheet("font-size: 18px; font-weight: bold;");
    ergebnis->setWordWrap(true);
    raster->addWidget(ergebnis, 4, 0, 1, 2);
}

void UartEinstellungenFenster::anzahl_seite(QGridLayout* raster) {
    QLineEdit* anzahl = binder().zeile(logik_.sensoranzahl, "sensoranzahl");
    anzahl->setFixedWidth(ereignis_breite);
    anzahl->setAlignment(Qt::AlignRight);
    QObject::connect(anzahl, &QLineEdit::returnPressed, anzahl, [this] { logik_.weiter.klicken(); });
    raster->addWidget(binder().label(logik_.Label_anzahl, "Label_anzahl"), 0, 0);
    raster->addWidget(anzahl, 0, 1);
    QComboBox* pins = binder().auswahlfeld(logik_.is_liste, "is_liste");
    pins->setMinimumContentsLength(18);
    raster->addWidget(binder().label(logik_.Label_is, "Label_is"), 1, 0);
    raster->addWidget(pins, 1, 1, Qt::AlignLeft);
}

QLabel* UartEinstellungenFenster::ereignis(bezeichnung& element, const QString& name) {
    auto* label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedWidth(ereignis_breite);
    binder().verbinden(element, label, name, [&element, label] {
        label->setText(QString::fromStdString(element.text()));
        const QColor grund =
            element.hintergrund() ? stil::farbe_von(*element.hintergrund()) : stil::auf_dem_schirm().karte;
        label->setStyleSheet(
            QString("background: %1; color: %2; border: 1px solid #d0d4db; border-radius: 4px; padding: 4px;")
                .arg(grund.name(), stil::schrift_auf(grund).name()));
    });
    return label;
}

void UartEinstellungenFenster::sensoren_seite(QGridLayout* raster) {
    int platz = 0;
    for (auto& eine : logik_.sensoren) {
        const QString nummer = QString::number(platz);
        QHBoxLayout* zeile = reihe(binder(), eine.zeile, "sensor_" + nummer, raster, platz++);
        zeile->addWidget(binder().label(eine.nummer, "nummer_" + nummer));
        zeile->addWidget(ereignis(eine.ereignis, "ereignis_" + nummer));
        QComboBox* spur = binder().auswahlfeld(eine.spur, "spur_" + nummer);
        spur->setFixedWidth(spur_breite);
        zeile->addWidget(spur);
        QComboBox* funktion = binder().auswahlfeld(eine.funktion, "funktion_" + nummer);
        QComboBox* tanken = binder().auswahlfeld(eine.tanken, "tanken_" + nummer);
        for (QComboBox* wahl : {funktion, tanken}) {
            wahl->setMinimumContentsLength(12);
            wahl->setMaximumWidth(wahl_breiteste);
            zeile->addWidget(wahl, 1);
        }
        zeile->addStretch();
    }
    raster->addWidget(binder().knopf(logik_.neu, "neu"), platz, 0, 1, 2, Qt::AlignLeft);
}

void UartEinstellungenFenster::chaos_seite(QGridLayout* raster) {
    raster->addWidget(binder().label(logik_.Label_taster, "Label_taster"), 0, 0, 1, 2);
    raster->addWidget(binder().auswahlfeld(logik_.chaos_anzahl, "chaos_anzahl"), 1, 0, 1, 2, Qt::AlignLeft);
    QLabel* stecker = binder().label(logik_.Label_stecker, "Label_stecker");
    stecker->setWordWrap(true);
    raster->addWidget(stecker, 2, 0, 1, 2);
    QComboBox* steckerwahl = binder().auswahlfeld(logik_.stecker, "stecker");
    steckerwahl->setMinimumContentsLength(9);
    raster->addWidget(steckerwahl, 3, 0, 1, 2, Qt::AlignLeft);
    int platz = 0;
    for (auto& eine : logik_.taster) {
        const QString nummer = QString::number(platz);
        QHBoxLayout* zeile = reihe(binder(), eine.zeile, "taster_" + nummer, raster, 4 + platz++);
        zeile->addWidget(binder().label(eine.nummer, "taster_nummer_" + nummer));
        zeile->addWidget(ereignis(eine.ereignis, "taster_ereignis_" + nummer));
        QComboBox* chaos = binder().auswahlfeld(eine.cbo_chaos, "cbo_chaos_" + nummer);
        chaos->setMinimumContentsLength(11);
        zeile->addWidget(chaos);
        zeile->addStretch();
    }
    QLabel* von_hand = binder().label(logik_.Label_von_hand, "Label_von_hand");
    von_hand->setWordWrap(true);
    stil::leise(von_hand);
    raster->addWidget(von_hand, 4 + platz, 0, 1, 2);
}

QWidget* UartEinstellungenFenster::protokoll() {
    auto* flaeche = new QWidget(this);
    flaeche->setFixedWidth(protokoll_breite);
    auto* aufbau = new QVBoxLayout(flaeche);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(binder().label(logik_.Label_protokoll, "Label_protokoll"));
    QListView* liste = binder().protokollfeld(logik_.protokoll, "protokoll");
    liste->setFocusPolicy(Qt::ClickFocus);
    aufbau->addWidget(liste, 1);
    return flaeche;
}

QWidget* UartEinstellungenFenster::befehlszeile() {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 6, 0, 0);
    aufbau->addStretch();
    for (QPushButton* knopf : {binder().knopf(logik_.zurueck, "zurueck"), binder().hauptknopf(logik_.weiter, "weiter"),
                               binder().knopf(logik_.abbrechen, "abbrechen")}) {
        knopf->setMinimumSize(130, knopfhoehe);
        aufbau->addWidget(knopf);
    }
    return zeile;
}

}  // namespace tarvel::ui
