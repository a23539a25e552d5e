#include "ui/wettkampf2_fenster.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>

#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double breite_entwurf = 1000;
constexpr double hoehe_entwurf = 700;
constexpr int schrift_liste_px = 15;
constexpr QSize bildgroesse(64, 48);
constexpr int fleck_breite = 18;

TextAnzeige* links_buendig(TextAnzeige* anzeige) {
    anzeige->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    return anzeige;
}

/// A caption above what it names.
TextAnzeige* ueberschrift(TextAnzeige* anzeige) {
    anzeige->setLeise();
    return links_buendig(anzeige);
}

}  // namespace

Wettkampf2Fenster::Wettkampf2Fenster(wettkampf2& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                     QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), ablage_(ablage) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    for (QWidget* feld : {blickfeld(), rundenfeld(), namenfeld()}) {  // one of them at a time
        aufbau->addWidget(feld, 5);
    }
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(12);
    mitte->addWidget(listenfeld(), 1);
    mitte->addLayout(rennbefehle());
    aufbau->addLayout(mitte, 4);
    aufbau->addLayout(fuss());
}

QWidget* Wettkampf2Fenster::blickfeld() {
    QGroupBox* feld = binder().gruppe(logik_.Frame_blick, "Frame_blick");
    auto* aufbau = new QHBoxLayout(feld);
    aufbau->setSpacing(18);
    aufbau->addWidget(rennkopf(), 2);
    auto* spuren = new QVBoxLayout;
    spuren->setSpacing(4);
    for (const int spur : alle_spuren) {
        spuren->addWidget(spurzeile(spur), 1);
    }
    aufbau->addLayout(spuren, 6);
    aufbau->addWidget(nebenfeld(), 4);
    return feld;
}

QWidget* Wettkampf2Fenster::rennkopf() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);
    aufbau->addWidget(ueberschrift(binder().anzeige(logik_.Label2, "Label2", 17)));
    TextAnzeige* nummer = links_buendig(binder().anzeige(logik_.Label_nr, "Label_nr", 110));
    nummer->setFett(true);
    aufbau->addWidget(nummer, 3);
    aufbau->addWidget(links_buendig(binder().anzeige(logik_.Label_von, "Label_von", 34)), 1);
    TextAnzeige* warten = links_buendig(binder().anzeige(logik_.Label_wartezeit, "Label_wartezeit", 22));
    warten->setZweizeilig();
    warten->setFett(true);
    warten->setFarbe(stil::akzent);
    aufbau->addWidget(warten, 1);
    return feld;
}

QWidget* Wettkampf2Fenster::spurzeile(int spur) {
    const std::size_t i = feld_index(spur);
    const QString nummer = "_" + QString::number(i);
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(10);
    auto* fleck = new QLabel(this);
    fleck->setFixedWidth(fleck_breite);
    form& farbe = logik_.spurfarbe.at(i);
    binder().verbinden(farbe, fleck, "spurfarbe" + nummer,
                       [fleck, &farbe] { stil::fleck_faerben(fleck, farbe.hintergrund().value_or(0)); });
    aufbau->addWidget(fleck);
    aufbau->addWidget(links_buendig(binder().anzeige(logik_.listlabel.at(i), "listlabel" + nummer, 20)), 2);
    QLabel* bild = binder().bildfeld(logik_.Image_b.at(i), "Image_b" + nummer, bildgroesse,
                                     [this](const std::string& datei) { return ablage_.pfad(datei); });
    aufbau->addWidget(bild);
    TextAnzeige* name = links_buendig(binder().anzeige(logik_.Label_b.at(i), "Label_b" + nummer, 44));
    name->setFett(true);
    aufbau->addWidget(name, 9);
    return zeile;
}

QWidget* Wettkampf2Fenster::nebenfeld() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);
    const auto paar = [&](bezeichnung& titel, const QString& titelname, bezeichnung& inhalt, const QString& name,
                          double gross) {
        aufbau->addWidget(ueberschrift(binder().anzeige(titel, titelname, 17)), 1);
        TextAnzeige* anzeige = links_buendig(binder().anzeige(inhalt, name, gross));
        anzeige->setZweizeilig();
        aufbau->addWidget(anzeige, 3);
    };
    paar(logik_.Label_danach, "Label_danach", logik_.Label_danach_fahrer, "Label_danach_fahrer", 32);
    paar(logik_.Label_einsetzer, "Label_einsetzer", logik_.Label_einsetzer_fahrer, "Label_einsetzer_fahrer", 28);
    paar(logik_.Label1, "Label1", logik_.label_best, "label_best", 26);
    aufbau->addWidget(links_buendig(binder().anzeige(logik_.label_fahrer, "label_fahrer", 22)), 2);
    aufbau->addWidget(links_buendig(binder().anzeige(logik_.Label_dauer, "Label_dauer", 26)), 2);
    return feld;
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

QWidget* Wettkampf2Fenster::listenfeld() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(4);
    auto* kopf = new QHBoxLayout;
    kopf->addWidget(binder().label(logik_.Label_liste, "Label_liste"));
    QLabel* fehler = binder().label(logik_.Label_fehler, "Label_fehler");
    fehler->setStyleSheet(QString("color: %1; font-weight: bold;").arg(stil::akzent.name()));
    kopf->addSpacing(24);
    kopf->addWidget(fehler);
    kopf->addStretch(1);
    kopf->addWidget(binder().kasten(logik_.opt_reihenfolge, "opt_reihenfolge"));
    aufbau->addLayout(kopf);
    QListView* liste = binder().listenfeld(logik_.List1, "List1");
    const QString schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    liste->setStyleSheet(QString("QListView { font-family: '%1', monospace; font-size: %2px; }")
                             .arg(schrift)  // columns stay below each other
                             .arg(schrift_liste_px));
    aufbau->addWidget(liste, 1);
    return feld;
}

QLayout* Wettkampf2Fenster::rennbefehle() {
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(6);
    spalte->addSpacing(28);  // beside the list, not its caption
    spalte->addWidget(binder().knopf(logik_.Command8, "Command8"));
    spalte->addWidget(binder().knopf(logik_.Command9, "Command9"));
    spalte->addWidget(binder().knopf(logik_.Command13, "Command13"));
    spalte->addWidget(binder().knopf(logik_.Command14, "Command14"));
    spalte->addStretch(1);
    spalte->addWidget(binder().knopf(logik_.Command4, "Command4", "schmal"));
    return spalte;
}

QLayout* Wettkampf2Fenster::fuss() {
    auto* aufbau = new QGridLayout;
    aufbau->setHorizontalSpacing(8);
    aufbau->setVerticalSpacing(6);
    const auto klein = [&](befehl& element, const QString& name, int reihe, int spalte) {
        aufbau->addWidget(binder().knopf(element, name, "schmal"), reihe, spalte);
    };
    klein(logik_.Command5, "Command5", 0, 0);
    klein(logik_.Command7, "Command7", 1, 0);
    klein(logik_.Command1, "Command1", 0, 1);
    klein(logik_.Command10, "Command10", 1, 1);
    aufbau->addWidget(binder().label(logik_.Label8, "Label8"), 0, 2, Qt::AlignCenter);
    auto* strom = new QHBoxLayout;
    strom->setSpacing(4);
    strom->addWidget(binder().knopf(logik_.Command11, "Command11", "schmal"));
    strom->addWidget(binder().knopf(logik_.Command12, "Command12", "schmal"));
    aufbau->addLayout(strom, 1, 2);
    klein(logik_.Command6, "Command6", 0, 4);
    klein(logik_.Command3, "Command3", 1, 4);
    QPushButton* start = binder().hauptknopf(logik_.Command2, "Command2");
    start->setMinimumSize(200, 2 * stil::knopfhoehe - 6);
    aufbau->addWidget(start, 0, 5, 2, 1);
    aufbau->setColumnStretch(3, 1);
    return aufbau;
}

void Wettkampf2Fenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = screen()->availableGeometry().size();
        resize(platz.width() * 19 / 20, platz.height() * 19 / 20);
    }
    Fenster::aufschlagen();
}

void Wettkampf2Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    binder().skala(std::clamp(std::min(width() / breite_entwurf, height() / hoehe_entwurf), 0.6, 2.4));
}

}  // namespace tarvel::ui
