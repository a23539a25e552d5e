#include "ui/wettkampf2_fenster.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/eingabefelder.h"
#include "ui/lampenknopf.h"
#include "ui/namenseinpassung.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double breite_entwurf = 1000;
constexpr int fuss_hoehe = 100;    // of the window below the list, and its margins
constexpr int rand_entwurf = 100;  // pixels of the glance that no line takes
constexpr double schrift_klein = 21;
constexpr double schrift_paarung = 46;
constexpr double schrift_nummer = 58;
constexpr double schrift_spur = 34;
constexpr double schrift_fahrer = 56;
constexpr double schrift_einsetzer = 46;
constexpr double anteil_blick = 0.6;  // of the window beside the list
constexpr double planschrift_px = 15;
constexpr double planschrift_min_px = 10;  // of many lanes; what still has no room is scrolled to
constexpr int planhoehe_min = 190;
constexpr int planzeilen_min = 9;   // as many races are in sight,
constexpr int planzeilen_max = 14;  // and where there are more of them, so many
constexpr int planrand_px = 24;     // beside the columns, with the bar that scrolls
constexpr int fleck_breite = 18;
constexpr int spalte_danach = 5;  // behind one that keeps the names apart

}  // namespace

Wettkampf2Fenster::Wettkampf2Fenster(wettkampf2& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                     QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), ablage_(ablage) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    for (QWidget* feld : {blickfeld(), rundenfeld(), namenfeld()}) {  // one of them at a time
        aufbau->addWidget(feld, 6);
    }
    aufbau->addWidget(listenfeld(), 4);
    QLabel* fehler = binder().label(logik_.Label_fehler, "Label_fehler");
    fehler->setProperty("rolle", "warnung");
    fehler->setStyleSheet("font-weight: bold;");
    aufbau->addWidget(fehler);  // below whatever is shown: in the automatic flow no box tells of it
    aufbau->addLayout(fuss());
}

QWidget* Wettkampf2Fenster::blickfeld() {
    QGroupBox* feld = binder().gruppe(logik_.Frame_blick, "Frame_blick");
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setSpacing(4);
    aufbau->addLayout(kopfzeile(), 5);
    auto* spuren = new QGridLayout;
    spuren->setHorizontalSpacing(12);
    spuren->setVerticalSpacing(4);
    spuren->addWidget(klein(logik_.Label_jetzt, "Label_jetzt"), 0, 3);
    spuren->addWidget(klein(logik_.Label_danach, "Label_danach"), 0, spalte_danach);
    for (const int spur : alle_spuren) {
        spurzeile(*spuren, spur);
    }
    spuren->setColumnStretch(1, 3);
    spuren->setColumnStretch(2, 2);
    spuren->setColumnStretch(3, 18);
    spuren->setColumnStretch(spalte_danach, 17);
    spuren->addWidget(klein(logik_.Label_einsetzer, "Label_einsetzer"), spuren_max + 1, 0, 1, 3);
    einsetzer_ = gross(logik_.Label_einsetzer_fahrer, "Label_einsetzer_fahrer", schrift_einsetzer);
    einsetzer_->setZweizeilig();
    spuren->addWidget(einsetzer_, spuren_max + 1, 3, 1, 3);
    spuren->setRowStretch(spuren_max + 1, 7);
    aufbau->addLayout(spuren, 31);
    spuren_ = spuren;
    return feld;
}

TextAnzeige* Wettkampf2Fenster::klein(bezeichnung& element, const QString& name) {
    TextAnzeige* anzeige = gross(element, name, schrift_klein);
    anzeige->setLeise();
    kleine_.emplace_back(anzeige, schrift_klein);
    return anzeige;
}

TextAnzeige* Wettkampf2Fenster::gross(bezeichnung& element, const QString& name, double schrift) {
    TextAnzeige* anzeige = binder().anzeige(element, name, schrift);
    anzeige->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    return anzeige;
}

/// How far the evening is: captions, and below them what they name.
QLayout* Wettkampf2Fenster::kopfzeile() {
    auto* kopf = new QGridLayout;
    kopf->setHorizontalSpacing(12);
    kopf->setVerticalSpacing(0);
    kopf->addWidget(klein(logik_.Label2, "Label2"), 0, 0, 1, 2);
    kopf->addWidget(klein(logik_.Label_warten, "Label_warten"), 0, 2);
    kopf->addWidget(klein(logik_.Label_noch, "Label_noch"), 0, 3);
    kopf->addWidget(klein(logik_.Label1, "Label1"), 0, 4, 1, 2);
    TextAnzeige* nummer = gross(logik_.Label_nr, "Label_nr", schrift_nummer);
    nummer->setFett(true);
    kopf->addWidget(nummer, 1, 0);
    kopf->addWidget(gross(logik_.Label_von, "Label_von", schrift_paarung), 1, 1);
    TextAnzeige* warten = gross(logik_.Label_wartezeit, "Label_wartezeit", schrift_nummer);
    warten->setFett(true);
    warten->setFarbrolle(QPalette::Link);
    kopf->addWidget(warten, 1, 2);
    kopf->addWidget(gross(logik_.Label_dauer, "Label_dauer", schrift_paarung), 1, 3);
    kopf->addWidget(gross(logik_.label_best, "label_best", schrift_klein * 1.4), 1, 4);
    constexpr double schrift_bester = schrift_klein * 1.1;
    TextAnzeige* fahrer = gross(logik_.label_fahrer, "label_fahrer", schrift_bester);
    kleine_.emplace_back(fahrer, schrift_bester);
    fahrer->setZweizeilig();
    kopf->addWidget(fahrer, 1, 5);
    int spalte = 0;
    for (const int breite : {3, 6, 6, 11, 5, 6}) {
        kopf->setColumnStretch(spalte++, breite);
    }
    kopf->setRowStretch(1, 1);
    kopf_ = kopf;
    return kopf;
}

void Wettkampf2Fenster::spurzeile(QGridLayout& zeilen, int spur) {
    const std::size_t i = feld_index(spur);
    const QString nummer = "_" + QString::number(i);
    auto* fleck = new QLabel(this);
    fleck->setFixedWidth(fleck_breite);
    form& farbe = logik_.spurfarbe.at(i);
    binder().verbinden(farbe, fleck, "spurfarbe" + nummer, [this, fleck, &farbe, &zeilen, spur] {
        stil::fleck_faerben(fleck, farbe.hintergrund().value_or(0));
        zeilen.setRowStretch(spur, farbe.sichtbar() ? 4 : 0);
        skalieren();
    });
    zeilen.addWidget(fleck, spur, 0);
    zeilen.addWidget(gross(logik_.listlabel.at(i), "listlabel" + nummer, schrift_spur), spur, 1);
    zeilen.addWidget(binder().bildanzeige(logik_.Image_b.at(i), "Image_b" + nummer,
                                          [this](const std::string& datei) { return ablage_.pfad(datei); }),
                     spur, 2);
    TextAnzeige* name = gross(logik_.Label_b.at(i), "Label_b" + nummer, schrift_fahrer);
    name->setFett(true);
    name->setZweizeilig();
    name->installEventFilter(this);
    fahrer_.push_back(name);
    zeilen.addWidget(name, spur, 3);
    TextAnzeige* danach = gross(logik_.Label_danach_b.at(i), "Label_danach_b" + nummer, schrift_fahrer);
    danach->setZweizeilig();
    danach->installEventFilter(this);
    fahrer_.push_back(danach);
    zeilen.addWidget(danach, spur, spalte_danach);
}

QWidget* Wettkampf2Fenster::rundenfeld() {
    QGroupBox* feld = binder().gruppe(logik_.Frame_runden, "Frame_runden");
    auto* aufbau = new QHBoxLayout(feld);
    aufbau->setSpacing(18);
    auto* wahl = new QVBoxLayout;
    wahl->addWidget(binder().label(logik_.Label_rundenwahl, "Label_rundenwahl"));
    wahl->addWidget(binder().listenfeld(logik_.rundenliste, "rundenliste"), 1);
    aufbau->addLayout(wahl, 3);
    auto* werte = new QGridLayout;
    werte->setHorizontalSpacing(10);
    werte->setVerticalSpacing(3);  // six lanes, and the list below, on a small screen
    werte->setColumnStretch(1, 2);
    werte->setColumnStretch(2, 5);
    werte->addWidget(stil::leise(binder().label(logik_.Label_runden, "Label_runden")), 0, 1);
    QLabel* meter = stil::leise(binder().label(logik_.Label_meter, "Label_meter"));
    meter->setWordWrap(true);
    werte->addWidget(meter, 0, 2);
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        const QString nummer = "_" + QString::number(i);
        werte->addWidget(binder().label(logik_.Label_anz.at(i), "Label_anz" + nummer), spur, 0);
        werte->addWidget(binder().zeile(logik_.anz_runden.at(i), "anz_runden" + nummer), spur, 1);
        werte->addWidget(binder().zeile(logik_.anz_meter.at(i), "anz_meter" + nummer), spur, 2);
    }
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(8);
    knoepfe->addStretch(1);
    knoepfe->addWidget(binder().knopf(logik_.Command_uebernehmen, "Command_uebernehmen"));
    knoepfe->addWidget(binder().knopf(logik_.Command_runden_fertig, "Command_runden_fertig"));
    werte->addLayout(knoepfe, spuren_max + 1, 0, 1, 3);
    werte->setRowStretch(spuren_max + 2, 1);
    aufbau->addLayout(werte, 4);
    return feld;
}

QWidget* Wettkampf2Fenster::namenfeld() {
    QGroupBox* feld = binder().gruppe(logik_.aendernframe, "aendernframe");
    auto* aufbau = new QHBoxLayout(feld);
    aufbau->setSpacing(18);
    auto* wahl = new QVBoxLayout;
    wahl->addWidget(binder().label(logik_.Label_namenwahl, "Label_namenwahl"));
    wahl->addWidget(binder().listenfeld(logik_.aendernliste, "aendernliste"), 1);
    aufbau->addLayout(wahl, 3);
    auto* neu = new QVBoxLayout;
    neu->addWidget(binder().label(logik_.Label_neuer_name, "Label_neuer_name"));
    QLineEdit* name = binder().zeile(logik_.neuer_name, "neuer_name");
    QObject::connect(name, &QLineEdit::returnPressed, name, [this] { logik_.Command_umbenennen.klicken(); });
    neu->addWidget(name);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(8);
    knoepfe->addStretch(1);
    knoepfe->addWidget(binder().knopf(logik_.Command_umbenennen, "Command_umbenennen"));
    knoepfe->addWidget(binder().knopf(logik_.Command_namen_fertig, "Command_namen_fertig"));
    neu->addLayout(knoepfe);
    neu->addStretch(1);
    aufbau->addLayout(neu, 4);
    return feld;
}

/// The list is as wide as it can be: six names stand in a row.
QWidget* Wettkampf2Fenster::listenfeld() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(4);
    auto* kopf = new QHBoxLayout;
    kopf->setSpacing(6);
    kopf->addWidget(binder().label(logik_.Label_liste, "Label_liste"));
    kopf->addSpacing(10);
    QLabel* zeichen = stil::leise(binder().label(logik_.Label_zeichen, "Label_zeichen"));
    zeichen->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // it does not widen the window
    kopf->addWidget(zeichen, 1);
    kopf->addWidget(binder().kasten(logik_.opt_reihenfolge, "opt_reihenfolge"), 0, Qt::AlignVCenter);
    kopf->addSpacing(16);
    kopf->addWidget(lampe(binder(), logik_.automatiklampe, "automatiklampe"));
    kopf->addWidget(binder().knopf(logik_.Command4, "Command4", "schmal"));
    aufbau->addLayout(kopf);
    plan_ = binder().listenfeld(logik_.List1, "List1");
    plan_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    QObject::connect(plan_->model(), &QAbstractItemModel::modelReset, this, [this] { skalieren(); });
    static_cast<Listenfeld*>(plan_)->setGanzeZeilen();
    plan_->setMinimumHeight(planhoehe_min);
    plan_->installEventFilter(this);
    auto* unten = new QHBoxLayout;
    unten->setSpacing(12);
    unten->addWidget(plan_, 1);
    unten->addLayout(rennbefehle());
    aufbau->addLayout(unten, 1);
    binder().verbinden(logik_.Frame_liste, feld, "Frame_liste", [this] { skalieren(); });
    return feld;
}

/// The columns of the races stay below each other, as large as the list is wide and some rows of it are in sight.
void Wettkampf2Fenster::plan_skalieren() {
    constexpr double zeile_je_px = 1.6;
    const int zeilen = std::clamp(plan_->model()->rowCount(), planzeilen_min, planzeilen_max);
    const double hoechstens = std::max(planschrift_px, plan_->height() / (zeilen * zeile_je_px));
    zeilenplatz platz{static_cast<double>(plan_->width() - planrand_px), planschrift_min_px, hoechstens};
    platz.anteil_fuer_namen = 0.5;  // a name that is whole is worth more than large letters
    const int px = namen_einpassen(*plan_, logik_.List1, logik_.planspalten, platz);
    plan_->setStyleSheet(QString("QListView { font-family: '%1', monospace; font-size: %2px; }")
                             .arg(QFontDatabase::systemFont(QFontDatabase::FixedFont).family())
                             .arg(px));
}

QLayout* Wettkampf2Fenster::rennbefehle() {
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(6);
    spalte->addWidget(binder().knopf(logik_.Command8, "Command8"));
    spalte->addWidget(binder().knopf(logik_.Command9, "Command9"));
    spalte->addWidget(binder().knopf(logik_.Command13, "Command13"));
    spalte->addWidget(binder().knopf(logik_.Command14, "Command14"));
    spalte->addStretch(1);
    return spalte;
}

QLayout* Wettkampf2Fenster::fuss() {
    auto* aufbau = new QGridLayout;
    aufbau->setHorizontalSpacing(8);
    aufbau->setVerticalSpacing(6);
    const auto schmal = [&](befehl& element, const QString& name, int reihe, int spalte) {
        aufbau->addWidget(binder().knopf(element, name, "schmal"), reihe, spalte);
    };
    schmal(logik_.Command5, "Command5", 0, 0);
    schmal(logik_.Command7, "Command7", 1, 0);
    schmal(logik_.Command1, "Command1", 0, 1);
    schmal(logik_.Command10, "Command10", 1, 1);
    aufbau->addWidget(binder().label(logik_.Label8, "Label8"), 0, 2, Qt::AlignCenter);
    auto* strom = new QHBoxLayout;
    strom->setSpacing(4);
    strom->addWidget(binder().knopf(logik_.Command11, "Command11", "schmal"));
    strom->addWidget(binder().knopf(logik_.Command12, "Command12", "schmal"));
    aufbau->addLayout(strom, 1, 2);
    schmal(logik_.Command6, "Command6", 0, 4);
    schmal(logik_.Command3, "Command3", 1, 4);
    QPushButton* aushang = binder().knopf(logik_.Command_aushang, "Command_aushang");
    aushang->setMinimumHeight(2 * stil::knopfhoehe - 6);
    aufbau->addWidget(aushang, 0, 5, 2, 1);
    QPushButton* start = binder().hauptknopf(logik_.Command2, "Command2");
    start->setMinimumSize(200, 2 * stil::knopfhoehe - 6);
    aufbau->addWidget(start, 0, 6, 2, 1);
    aufbau->setColumnStretch(3, 1);
    return aufbau;
}

void Wettkampf2Fenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = schirm_des_leiters()->availableGeometry().size();
        resize(platz.width() * 19 / 20, platz.height() * 19 / 20);
    }
    Fenster::aufschlagen();
}

void Wettkampf2Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    skalieren();
}

/// The list gets its width when the window is laid out, which is behind the window's own change of size.
bool Wettkampf2Fenster::eventFilter(QObject* wer, QEvent* ereignis) {
    if (wer == plan_ && ereignis->type() == QEvent::Resize) {
        skalieren();
    }
    if (ereignis->type() == QEvent::Paint && wer != plan_) {
        schriften_angleichen();
    }
    return Fenster::eventFilter(wer, ereignis);
}

/// All names in one size, and who puts cars back no larger. How small a long name is drawn shows when it has its place.
void Wettkampf2Fenster::schriften_angleichen() {
    auto px = static_cast<int>(std::lround(schrift_fahrer * skala_));
    for (int vorher = 0; vorher != px;) {  // what breaks into lines in large letters may be smaller in one line
        vorher = px;
        for (const TextAnzeige* name : fahrer_) {
            px = name->isVisible() && !name->text().isEmpty() ? std::min(px, name->schriftPx(vorher)) : px;
        }
    }
    for (TextAnzeige* name : fahrer_) {
        name->setHoechstPx(px);
    }
    einsetzer_->setSchriftPx(std::min(px, static_cast<int>(std::lround(schrift_einsetzer * skala_))));
}

/// Letters as large as the lanes of the evening leave room for.
void Wettkampf2Fenster::skalieren() {
    const auto zeilen = static_cast<double>(std::count_if(logik_.spurfarbe.begin(), logik_.spurfarbe.end(),
                                                          [](const form& farbe) { return farbe.sichtbar(); }));
    constexpr double zeilenhoehe = 1.2;
    const double entwurf =
        zeilenhoehe * (2 * schrift_klein + schrift_paarung + 2 * schrift_einsetzer + zeilen * schrift_fahrer);
    const double hoehe = (height() - fuss_hoehe) * (logik_.Frame_liste.sichtbar() ? anteil_blick : 1);
    const double skala = std::clamp(std::min(width() / breite_entwurf, (hoehe - rand_entwurf) / entwurf), 0.3, 2.4);
    skala_ = skala;
    binder().skala(skala);
    constexpr double klein_min_px = 13;
    for (const auto& [anzeige, entwurfsschrift] : kleine_) {
        anzeige->setSchriftPx(static_cast<int>(std::lround(std::max(klein_min_px, entwurfsschrift * skala))));
    }
    if (spuren_ != nullptr) {
        spuren_->setColumnMinimumWidth(spalte_danach - 1, static_cast<int>(std::lround(schrift_fahrer * skala)));
    }
    if (kopf_ != nullptr) {
        constexpr double wert_px = 44;  // also when there is little height to share
        kopf_->setRowMinimumHeight(
            0, static_cast<int>(std::lround(std::max(klein_min_px, schrift_klein * skala) * zeilenhoehe)));
        kopf_->setRowMinimumHeight(1, static_cast<int>(std::lround(std::max(wert_px, schrift_nummer * skala))));
    }
    if (plan_ != nullptr) {
        plan_skalieren();
    }
}

}  // namespace tarvel::ui
