#include "ui/auswertung_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <climits>
#include <initializer_list>
#include <utility>

#include "ui/blattausgabe.h"
#include "ui/korrekturtasten.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double zeile_entwurf_px = 104;  // height of a row at scale 1
constexpr double breite_entwurf_px = 1240;
constexpr double schrift_ueber_dem_stand = 16;
constexpr double skala_max = 3;  // of a wall screen
constexpr int zeilenabstand_px = 5;
constexpr int zielfeld_breite_px = 80;

}  // namespace

AuswertungFenster::AuswertungFenster(auswertung& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                     QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand.left(), 8, stil::fensterrand.right(), stil::fensterrand.bottom());
    aufbau->setSpacing(6);
    kopf_ = binder().anzeige(logik.kopf_label, "kopf_label");
    kopf_->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    aufbau->addWidget(kopf_);
    ab_gruen_ = binder().label(logik.Label_ab_gruen, "Label_ab_gruen");
    ab_gruen_->setWordWrap(true);
    aufbau->addWidget(ab_gruen_);
    aufbau->addWidget(standfeld(ablage), 1);
    aufbau->addWidget(verlaufsfeld(), 1);
    aufbau->addWidget(nachtragsfeld(), 1);
    aufbau->addLayout(korrekturzeile());  // both in one row are too wide for a small screen
    aufbau->addLayout(wegezeile());
    logik.drucken = [this] { drucken(); };
    logik.als_pdf = [this, &ablage] { pdf_speichern(ablage); };
    logik.verlauf_zeichnen = [this] { diagramm_->setInhalt(bildinhalt()); };
    bei_escape = [&n = logik.nachtrag] {  // the result itself is not left so easily
        if (n.Frame_nachtrag.sichtbar()) {
            n.Command_abbrechen.klicken();
        }
    };
    korrekturtasten(this, logik.Command_zurueck, logik.Command_wieder);
    setMinimumSize(760, 420);
    resize(1180, 760);
}

QWidget* AuswertungFenster::standfeld(const dateien& ablage) {
    stand_ = new QWidget(this);
    reihen_ = new QVBoxLayout(stand_);
    reihen_->setContentsMargins(0, 0, 0, 0);
    reihen_->setSpacing(zeilenabstand_px);
    for (const int spur : alle_spuren) {
        auto* zeile = new Ergebniszeile(logik_, spur, ablage, binder(), this);
        zeile->bei_umzug = [this] { ordnen(); };
        zeile->bei_runden = [this] { skalieren(); };
        zeilen_.push_back(zeile);
        reihen_->addWidget(zeile, 1);
    }
    binder().verbinden(logik_.Frame_stand, stand_, "Frame_stand", {});
    stand_->installEventFilter(this);
    return stand_;
}

/// What stands in its place at times leaves it half of the height for a moment, within one and the same window.
bool AuswertungFenster::eventFilter(QObject* wer, QEvent* ereignis) {
    if (wer == stand_ && ereignis->type() == QEvent::Resize) {
        skalieren();
    }
    return Fenster::eventFilter(wer, ereignis);
}

QWidget* AuswertungFenster::verlaufsfeld() {
    diagramm_ = new Rundendiagramm(this);
    binder().verbinden(logik_.Frame_verlauf, diagramm_, "Frame_verlauf", {});
    return diagramm_;
}

QWidget* AuswertungFenster::nachtragsfeld() {
    rundennachtrag& n = logik_.nachtrag;
    QGroupBox* feld = binder().gruppe(n.Frame_nachtrag, "Frame_nachtrag");
    auto* aufbau = new QVBoxLayout(feld);
    auto* oben = new QHBoxLayout;
    oben->setSpacing(8);
    oben->addWidget(binder().label(n.Label_nachtrag_spur, "Label_nachtrag_spur"));
    QComboBox* spur = binder().auswahlfeld(n.cbo_nachtrag, "cbo_nachtrag");
    spur->setMinimumContentsLength(36);  // the name of a driver, and his lane
    oben->addWidget(spur);
    oben->addStretch(1);
    aufbau->addLayout(oben);
    QLabel* was = stil::leise(binder().label(n.Label_nachtrag, "Label_nachtrag"));
    was->setWordWrap(true);
    aufbau->addWidget(was);
    aufbau->addWidget(binder().listenfeld(n.angebote, "angebote"), 1);
    auto* unten = new QHBoxLayout;
    unten->setSpacing(8);
    unten->addStretch(1);
    unten->addWidget(binder().knopf(n.Command_eintragen, "Command_eintragen"));
    unten->addWidget(binder().knopf(n.Command_abbrechen, "Command_abbrechen"));
    aufbau->addLayout(unten);
    return feld;
}

rundenbild_inhalt AuswertungFenster::bildinhalt() const {
    const einstellungen& einst = logik_.einst();
    return {rundenverlauf_bilden(logik_.ergebnis()), einst.farben_spur, logik_.diagramm, einst.trennzeichen};
}

ergebnisblatt AuswertungFenster::blatt_bilden() const {
    return ergebnisblatt_bilden(
        logik_.ergebnis(),
        {logik_.titel.text(), logik_.kopf(), logik_.wort_strafzeit(), logik_.blatt, logik_.blattkopf().zeile()},
        bildinhalt());
}

void AuswertungFenster::drucken() {
    ergebnisblatt_drucken(this, blatt_bilden(), [this] { logik_.druck_misslungen(); });
}

void AuswertungFenster::pdf_speichern(const dateien& ablage) {
    ui::pdf_speichern(  // as it stands now, whatever happens while the name is chosen
        this, logik_.Command_pdf, ablage, logik_.blatt_datei(),
        {[blatt = blatt_bilden()](const QString& pfad) { return ergebnisblatt_pdf(pfad, blatt); },
         [this] { logik_.pdf_misslungen(); }, logik_.papierdatei()});
}

QLayout* AuswertungFenster::korrekturzeile() {
    auto* zeilen = new QVBoxLayout;  // in one row they would be wider than a small screen
    zeilen->setSpacing(4);
    const auto zeile = [&](std::initializer_list<std::pair<befehl*, const char*>> knoepfe) {
        auto* neue = new QHBoxLayout;
        neue->setSpacing(4);
        for (const auto& [element, name] : knoepfe) {
            neue->addWidget(binder().knopf(*element, name, "schmal"));
        }
        zeilen->addLayout(neue);
        return neue;
    };
    zeile({{&logik_.Command6, "Command6"},
           {&logik_.Command8, "Command8"},
           {&logik_.Command_nachtragen, "Command_nachtragen"},
           {&logik_.Command_zurueck, "Command_zurueck"},
           {&logik_.Command_wieder, "Command_wieder"},
           {&logik_.Command10, "Command10"},
           {&logik_.Command9, "Command9"}})
        ->addStretch(1);
    auto* wege = zeile({{&logik_.Command_verlauf, "Command_verlauf"},
                        {&logik_.Command_protokoll, "Command_protokoll"},
                        {&logik_.Command_wiedergabe, "Command_wiedergabe"},
                        {&logik_.Command_drucken, "Command_drucken"},
                        {&logik_.Command_pdf, "Command_pdf"},
                        {&logik_.Command_urkunden, "Command_urkunden"},
                        {&logik_.Command4, "Command4"}});
    TextAnzeige* vorlaeufig = binder().anzeige(logik_.Label_vorlaeufig, "Label_vorlaeufig", 20);
    vorlaeufig->setAusrichtung(Qt::AlignRight | Qt::AlignVCenter);
    wege->addStretch(0);
    wege->addWidget(vorlaeufig, 1);
    return zeilen;
}

QLayout* AuswertungFenster::wegezeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(10);
    zeile->addWidget(spurwechselfeld());
    const auto gross = [](QPushButton* knopf, int breite) {
        knopf->setMinimumSize(breite, stil::knopfhoehe);
        return knopf;
    };
    TextAnzeige* training = binder().anzeige(logik_.trainingslabel, "trainingslabel", 30);
    training->setFett(true);
    zeile->addWidget(training, 1);
    zeile->addWidget(binder().knopf(logik_.Command7, "Command7"), 0, Qt::AlignBottom);
    zeile->addStretch(1);
    auto* rechts = new QVBoxLayout;  // beside each other they would be too wide for a small screen
    rechts->setSpacing(6);
    rechts->addStretch(1);
    rechts->addWidget(gross(binder().knopf(logik_.Command1, "Command1"), 170));
    rechts->addWidget(gross(binder().hauptknopf(logik_.Command5, "Command5"), 170));
    zeile->addLayout(rechts);
    return zeile;
}

QWidget* AuswertungFenster::spurwechselfeld() {
    QGroupBox* feld = binder().gruppe(logik_.Frame1, "Frame1");
    auto* aufbau = new QGridLayout(feld);
    aufbau->setContentsMargins(8, 0, 8, 2);
    aufbau->setVerticalSpacing(4);
    aufbau->addWidget(binder().knopf(logik_.Command2, "Command2"), 0, 0);
    aufbau->addWidget(binder().knopf(logik_.Command3, "Command3"), 1, 0);
    auto* ziel = new QHBoxLayout;
    ziel->setSpacing(8);
    ziel->addWidget(binder().label(logik_.Label_bis, "Label_bis"));
    QLineEdit* eingabe = binder().zeile(logik_.neues_ziel, "neues_ziel");
    eingabe->setFixedWidth(zielfeld_breite_px);
    ziel->addWidget(eingabe);
    ziel->addWidget(binder().label(logik_.ziel_einheit, "ziel_einheit"));
    aufbau->addLayout(ziel, 1, 1);
    aufbau->addWidget(binder().kasten(logik_.spurwechsel, "spurwechsel"), 0, 2);
    aufbau->addWidget(binder().kasten(logik_.tauschfahrzeug, "tauschfahrzeug"), 1, 2);
    aufbau->setHorizontalSpacing(14);
    return feld;
}

void AuswertungFenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = schirm_des_leiters()->availableGeometry().size();
        constexpr QSize ganz(1240, 900);  // a smaller screen has no room to give away
        resize(QSize(platz.width() * 19 / 20, platz.height() * 9 / 10).expandedTo(platz.boundedTo(ganz)));
    }
    Fenster::aufschlagen();
    skalieren();
}

void AuswertungFenster::ordnen() {
    std::vector<Ergebniszeile*> folge = zeilen_;
    std::stable_sort(folge.begin(), folge.end(),
                     [](const Ergebniszeile* a, const Ergebniszeile* b) { return a->reihe() < b->reihe(); });
    for (Ergebniszeile* zeile : folge) {
        reihen_->removeWidget(zeile);
    }
    for (Ergebniszeile* zeile : folge) {
        reihen_->addWidget(zeile, 1);
    }
    constexpr std::size_t je_zeile = 5;
    std::vector<QWidget*> ziele;  // who enters metres goes down their column
    ziele.reserve(folge.size() * je_zeile);
    for (const Ergebniszeile* zeile : folge) {
        ziele.push_back(zeile->meterfeld());
    }
    for (const Ergebniszeile* zeile : folge) {
        ziele.push_back(zeile->rundenliste());
        ziele.insert(ziele.end(), zeile->knoepfe().begin(), zeile->knoepfe().end());
    }
    for (std::size_t i = 1; i < ziele.size(); ++i) {
        setTabOrder(ziele[i - 1], ziele[i]);
    }
    skalieren();
}

void AuswertungFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    const int gross = static_cast<int>(schrift_ueber_dem_stand * width() / breite_entwurf_px);
    kopf_->setSchriftPx(std::max(gross, 20));
    QFont schrift = ab_gruen_->font();
    schrift.setPixelSize(std::max(gross, 15));
    ab_gruen_->setFont(schrift);
    skalieren();
}

void AuswertungFenster::skalieren() {
    const auto gezeigt =
        std::count_if(zeilen_.begin(), zeilen_.end(), [](const auto* zeile) { return zeile->gezeigt(); });
    const double je_zeile =
        stand_->height() / static_cast<double>(std::max<std::ptrdiff_t>(gezeigt, 1)) - zeilenabstand_px;
    const double skala = std::clamp(std::min(je_zeile / zeile_entwurf_px, width() / breite_entwurf_px), 0.6, skala_max);
    binder().skala(skala);
    QString laengste;
    for (const Ergebniszeile* zeile : zeilen_) {
        const QString seine = zeile->laengste_runde();
        laengste = seine.size() > laengste.size() ? seine : laengste;
    }
    for (Ergebniszeile* zeile : zeilen_) {
        zeile->skalieren(skala, laengste);
    }
    if (!std::exchange(vorgemerkt_, true)) {
        QTimer::singleShot(0, this, [this] {  // the sizes go by the room that the lines get
            vorgemerkt_ = false;
            abstaende_angleichen();
        });
    }
}

void AuswertungFenster::abstaende_angleichen() {
    int px = INT_MAX;
    for (const Ergebniszeile* zeile : zeilen_) {
        px = zeile->gezeigt() ? std::min(px, zeile->abstandsschrift()) : px;
    }
    for (Ergebniszeile* zeile : zeilen_) {
        zeile->abstandsschrift_setzen(px);
    }
}

}  // namespace tarvel::ui
