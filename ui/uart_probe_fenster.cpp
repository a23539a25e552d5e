#include "ui/uart_probe_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/lampenknopf.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int probelampe = 16;
constexpr int zeilenabstand = 6;

}  // namespace

UartProbeFenster::UartProbeFenster(uart_probe& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    auto* oben = new QHBoxLayout;
    QLabel* zustand = binder().label(logik.zustand, "zustand");
    zustand->setStyleSheet("font-size: 18px; font-weight: bold;");
    zustand->setWordWrap(true);
    oben->addWidget(zustand, 1);
    oben->addWidget(binder().knopf(logik.verbinden, "verbinden"));
    aufbau->addLayout(oben);
    aufbau->addWidget(eingangsgruppe());
    auto* unten = new QHBoxLayout;
    for (QWidget* schalter : {ampelgruppe(), stromgruppe()}) {
        auto* spalte = new QVBoxLayout;
        spalte->addWidget(schalter);
        spalte->addStretch();
        unten->addLayout(spalte);
    }
    unten->addWidget(meldungsgruppe(), 1);
    aufbau->addLayout(unten, 1);
    aufbau->addLayout(stil::knopfzeile({stil::fensterknopf(binder().hauptknopf(logik.Command1, "Command1"))}));
    resize(1000, 720);
}

QHBoxLayout* UartProbeFenster::kanal(int zeile) {
    auto& eine = logik_.kanaele.at(static_cast<std::size_t>(zeile) - 1);
    const QString nummer = "_" + QString::number(zeile);
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(lampe(binder(), eine.lampe, "lampe" + nummer, probelampe));
    reihe->addWidget(binder().label(eine.ereignis, "ereignis" + nummer), 1);
    return reihe;
}

QWidget* UartProbeFenster::eingangsgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_eingaenge, "Frame_eingaenge");
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(zeilenabstand);
    for (const int spur : alle_spuren) {
        raster->addWidget(stil::leise(binder().label(logik_.Label_spur[spur], "Label_spur_" + QString::number(spur))),
                          0, spur);
        raster->setColumnStretch(spur, 1);
    }
    for (std::size_t reihe = 0; reihe < uart_probe::reihen; ++reihe) {
        const int ort = static_cast<int>(reihe) + 1;
        raster->addWidget(binder().label(logik_.Label_reihe.at(reihe), "Label_reihe_" + QString::number(ort)), ort, 0);
        for (const int spur : alle_spuren) {
            raster->addLayout(kanal(uart_probe::zeile_von(reihe, spur)), ort, spur);
        }
    }
    int ort = static_cast<int>(uart_probe::reihen) + 1;
    raster->addWidget(binder().label(logik_.Label_chaos, "Label_chaos"), ort, 0);
    raster->addLayout(kanal(at_zeile::chaos_allgemein), ort, 1);
    raster->addWidget(binder().label(logik_.Label_sound, "Label_sound"), ++ort, 0);
    auto* sounds = new QHBoxLayout;
    for (int sensor = 1; sensor <= static_cast<int>(uart_probe::soundsensoren); ++sensor) {
        sounds->addLayout(kanal(at_zeile::soundsensor(sensor)), 1);
    }
    raster->addLayout(sounds, ort, 1, 1, spuren_max);
    return kasten;
}

QWidget* UartProbeFenster::ampelgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_ampel, "Frame_ampel");
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(2);
    for (std::size_t i = 0; i < uart_probe::lampen; ++i) {
        raster->addWidget(binder().kasten(logik_.ampel.at(i), "ampel_" + QString::number(i + 1)),
                          static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    raster->addWidget(binder().knopf(logik_.ampel_alle_an, "ampel_alle_an"), 3, 0);
    raster->addWidget(binder().knopf(logik_.ampel_alle_aus, "ampel_alle_aus"), 3, 1);
    raster->addWidget(binder().kasten(logik_.chaosanzeige, "chaosanzeige"), 4, 0);
    raster->addWidget(binder().kasten(logik_.rennende, "rennende"), 4, 1);
    return kasten;
}

QWidget* UartProbeFenster::stromgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_strom, "Frame_strom");
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(2);
    for (const int spur : alle_spuren) {
        raster->addWidget(binder().kasten(logik_.strom[spur], "strom_" + QString::number(spur)), (spur - 1) / 2,
                          (spur - 1) % 2);
    }
    raster->addWidget(binder().knopf(logik_.strom_alle_an, "strom_alle_an"), 3, 0);
    raster->addWidget(binder().knopf(logik_.strom_alle_aus, "strom_alle_aus"), 3, 1);
    return kasten;
}

QWidget* UartProbeFenster::meldungsgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_meldungen, "Frame_meldungen");
    auto* spalte = new QVBoxLayout(kasten);
    QListView* liste = binder().protokollfeld(logik_.protokoll, "protokoll");
    liste->setFocusPolicy(Qt::ClickFocus);
    liste->setUniformItemSizes(false);  // some of its lines are long
    liste->setWordWrap(true);
    liste->setResizeMode(QListView::Adjust);
    spalte->addWidget(liste, 1);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().label(logik_.Label_befehl, "Label_befehl"));
    QLineEdit* eingabe = binder().zeile(logik_.befehlstext, "befehlstext");
    QObject::connect(eingabe, &QLineEdit::returnPressed, eingabe, [this] { logik_.senden.klicken(); });
    zeile->addWidget(eingabe, 1);
    zeile->addWidget(binder().knopf(logik_.senden, "senden"));
    spalte->addLayout(zeile);
    zeile = new QHBoxLayout;
    zeile->addWidget(binder().knopf(logik_.seriennummer, "seriennummer"));
    zeile->addWidget(binder().knopf(logik_.zuruecksetzen, "zuruecksetzen"));
    zeile->addStretch();
    spalte->addLayout(zeile);
    return kasten;
}

}  // namespace tarvel::ui
