// What the race and its lanes are in, on the race window.
#include <QHideEvent>
#include <utility>

#include "race/spurgeometrie.h"
#include "ui/bahn1_fenster.h"

namespace tarvel::ui {

namespace {

using f = fenster_teil;

}  // namespace

void Bahn1Fenster::restrunden() {
    auto* feld = new QWidget(this);
    feld->setAttribute(Qt::WA_TransparentForMouseEvents);
    teil(f::restrunden) = feld;
    rest_titel_ = binder().anzeige(logik_.bahn1.Label_restrunden, "Label_restrunden");
    rest_zahl_ = binder().anzeige(logik_.bahn1.restrunden, "restrunden");
    rest_zahl_->setFett(true);
    for (TextAnzeige* text : {rest_titel_, rest_zahl_}) {
        text->setParent(feld);
    }
}

void Bahn1Fenster::restrunden_anordnen() {
    const QSize groesse = teil(f::restrunden)->size();
    const int titel = groesse.height() * 24 / 100;
    rest_titel_->setGeometry(0, 0, groesse.width(), titel);
    rest_titel_->setSchriftPx(titel * 8 / 10);
    rest_zahl_->setGeometry(0, titel, groesse.width(), groesse.height() - titel);
    rest_zahl_->setSchriftPx(groesse.height() - titel);
}

void Bahn1Fenster::lagen() {
    pause_ = new Lagetafel(this);
    binder().verbinden(logik_.bahn1.pausendauer, pause_, "pausendauer", [this] {
        const bahn1& bahn = logik_.bahn1;
        const QString wort =
            QString::fromStdString(ohne_trennstellen(bahn.wort.lagen.at(static_cast<std::size_t>(lage::pause))));
        pause_->zeigen({lage::pause, wort, wort, QString::fromStdString(bahn.pausendauer.text()), 0});
        const bool da = bahn.pausendauer.sichtbar() && !bahn.pausendauer.text().empty();  // there was none yet
        if (std::exchange(mit_pause_, da) != da) {
            anordnen();
        }
    });
    folge_ = binder().anzeige(logik_.bahn1.ergebnisfolge, "ergebnisfolge");
    folge_->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    folge_->setFett(true);  // it contradicts what stands large over it
    constexpr int lagetakt_ms = 50;
    lagetakt_.setInterval(lagetakt_ms);
    QObject::connect(&lagetakt_, &QTimer::timeout, this, [this] { lagen_nachfuehren(); });
}

void Bahn1Fenster::folge_anordnen(const plaetze<fenster_teil>& orte) {
    const rechteck& rekord = orte[f::bestzeit_gesamt].ort;
    const int rechts = befehle_woanders_ ? rekord.rechts() : orte[f::ch_strafframe].ort.rechts();
    folge_->setGeometry(rekord.x, rekord.y, rechts - rekord.x, rekord.hoehe);
    folge_->setSchriftPx(orte[f::bestzeit_gesamt].schrift_px);
    folge_->setMindestPx(lesbar_px(height()));
}

void Bahn1Fenster::lagen_nachfuehren() {
    logik_.lage.nachfuehren();
    const spuren<int> ordnung = logik_.lage.ordnung();
    if (!std::equal(ordnung.begin(), ordnung.end(), ordnung_.begin())) {
        ordnung_ = ordnung;
        bloecke_anordnen(aufteilung(), true);
    }
}

void Bahn1Fenster::bloecke_anordnen(const ansicht_geometrie& geometrie, bool gleitend) {
    for (Spurblock* block : bloecke_) {
        block->anordnen(geometrie, gleitend);
    }
}

void Bahn1Fenster::showEvent(QShowEvent* ereignis) {
    Fenster::showEvent(ereignis);
    lagen_nachfuehren();
    lagetakt_.start();
}

void Bahn1Fenster::hideEvent(QHideEvent* ereignis) {
    lagetakt_.stop();
    if (!ereignis->spontaneous()) {
        logik_.umgebung.fenster.entladen(fenstername::leitstand);
    }
    Fenster::hideEvent(ereignis);
}

void Bahn1Fenster::pause_anordnen() {
    const rechteck ort = aufteilung().pause;
    const QWidget* hinweis = teil(f::cu_startframe);
    const int hoehe = mit_pause_ && !hinweis->isHidden() ? hinweis->y() - ort.y : ort.hoehe;
    pause_->setGeometry(ort.x, ort.y, ort.breite, hoehe);
}

}  // namespace tarvel::ui
