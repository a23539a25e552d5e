#include "ui/ergebniszeile.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

#include "core/text.h"
#include "ui/eingabefelder.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// font sizes in pixels at scale 1
constexpr double schrift_platz = 46;
constexpr double schrift_name = 28;
constexpr double schrift_wert = 29;
constexpr double schrift_zusatz = 18;
constexpr double schrift_titel = 17;
constexpr double schrift_liste = 17;
constexpr double schrift_knopf = 15;

constexpr double schrift_eingabe = 20;
constexpr int eingabe_breite_px = 84;
constexpr double eingabe_breite = 124;  // at scale 1
constexpr int knopfrand_px = 12;
constexpr double bild_kante = 60;
constexpr int abstand = 12;
constexpr int abstand_darunter = 8;

constexpr auto links_mitte = Qt::AlignLeft | Qt::AlignVCenter;

}  // namespace

Ergebniszeile::Ergebniszeile(auswertung& logik, int spur, const dateien& ablage, Binder& binder, QWidget* eltern)
    : QWidget(eltern), logik_(logik), index_(feld_index(spur)) {
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(22, 4, 8, 4);
    aufbau->setSpacing(abstand);

    TextAnzeige* platz = binder.anzeige(logik.platz.at(index_), nummeriert("platz"), schrift_platz);
    platz->setMusterText("6.");
    platz->setFett(true);
    aufbau->addWidget(platz);
    bilder(ablage, binder, *aufbau);
    aufbau->addWidget(fahrerzelle(binder), 7);
    aufbau->addWidget(rundenzelle(binder), 3);
    aufbau->addWidget(meterzelle(binder));
    const std::size_t i = index_;
    QWidget* tank = zelle({logik.Label_tank[i], logik.tankinhalt[i], "tankinhalt", schrift_wert}, binder).feld;
    aufbau->addWidget(tank, 3);
    tankzelle_ = tank;
    const zelle_teile zeit = zelle({logik.Label_zeit[i], logik.zeit_aus[i], "zeit_aus", schrift_wert}, binder);
    abstaende_ = {zusatz(logik.abstandlabel[i], "abstandlabel", binder),
                  zusatz(logik.rueckstandlabel[i], "rueckstandlabel", binder)};
    unter_der_zeit_ = zeit.zusatz;
    zeit.zusatz->addWidget(abstaende_[0], 4);
    zeit.zusatz->addWidget(abstaende_[1], 5);
    constexpr int zeit_anteil = 7;
    aufbau->addWidget(zeit.feld, zeit_anteil);
    rahmen& mit_tank = logik.Frame_tank.at(i);
    binder.verbinden(mit_tank, tank, nummeriert("Frame_tank"), [aufbau, &mit_tank, feld = zeit.feld] {
        constexpr int neben_dem_tank = 9;  // the words under the time stay readable on a small screen
        aufbau->setStretchFactor(feld, mit_tank.sichtbar() ? neben_dem_tank : zeit_anteil);
    });
    const zelle_teile beste = zelle({logik.Label_beste[i], logik.beste_aus[i], "beste_aus", schrift_wert}, binder);
    beste.wert->setRotrolle(QPalette::Link);
    beste.zusatz->addWidget(zusatz(logik.kmh_label[i], "kmh_label", binder));
    aufbau->addWidget(beste.feld, 5);
    aufbau->addWidget(listenspalte(binder), 4);

    binder.verbinden(logik.Frame.at(index_), this, nummeriert("Frame"), [this] {
        spurfarbe_ = stil::farbe_von(logik_.Frame.at(index_).schriftfarbe().value_or(0));
        update();
        if (bei_umzug) {
            bei_umzug();
        }
    });
}

void Ergebniszeile::bilder(const dateien& ablage, Binder& binder, QHBoxLayout& aufbau) {
    const auto pfad = [&ablage](const std::string& datei) { return ablage.pfad(datei); };
    for (const auto& [element, name] :
         {std::pair<bild&, const char*>{logik_.Image1.at(index_), "Image1"}, {logik_.Image2.at(index_), "Image2"}}) {
        bilder_.push_back(binder.bildanzeige(element, nummeriert(name), pfad));
        aufbau.addWidget(bilder_.back());
    }
}

Ergebniszeile::zelle_teile Ergebniszeile::zelle(const zelle_inhalt& inhalt, Binder& binder) {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);
    TextAnzeige* kopf = binder.anzeige(inhalt.titel, nummeriert("Label_" + inhalt.name), schrift_titel);
    kopf->setFarbrolle(QPalette::PlaceholderText);
    kopf->setAusrichtung(links_mitte);
    TextAnzeige* wert = binder.anzeige(inhalt.wert, nummeriert(inhalt.name), inhalt.entwurf);
    wert->setAusrichtung(links_mitte);
    wert->setFett(true);
    wert->setZweizeilig();  // a long name, whose letters were too small to read in one line
    auto* darueber = new QHBoxLayout;
    auto* darunter = new QHBoxLayout;
    darueber->setSpacing(abstand_darunter);
    darunter->setSpacing(abstand_darunter);
    darueber->addWidget(kopf, 1);
    werte_.push_back(wert);
    aufbau->addStretch(1);
    aufbau->addLayout(darueber);
    aufbau->addWidget(wert, 4);
    aufbau->addLayout(darunter);
    aufbau->addStretch(1);
    return {feld, darueber, darunter, wert};
}

TextAnzeige* Ergebniszeile::zusatz(steuerelement& element, const QString& name, Binder& binder) {
    TextAnzeige* anzeige = binder.anzeige(element, nummeriert(name), schrift_zusatz);
    anzeige->setAusrichtung(links_mitte);
    QSizePolicy platz_halten = anzeige->sizePolicy();
    platz_halten.setRetainSizeWhenHidden(true);
    anzeige->setSizePolicy(platz_halten);
    return anzeige;
}

int Ergebniszeile::abstandsschrift() const {
    int px = INT_MAX;
    for (const TextAnzeige* einer : abstaende_) {
        px = einer->isVisible() && !einer->text().isEmpty() ? std::min(px, einer->schriftPx(0)) : px;
    }
    return px;
}

void Ergebniszeile::abstandsschrift_setzen(int px) {
    for (TextAnzeige* einer : abstaende_) {
        einer->setHoechstPx(px);
    }
}

QWidget* Ergebniszeile::fahrerzelle(Binder& binder) {
    const std::size_t i = index_;
    const zelle_teile teile = zelle({logik_.Label_spur[i], logik_.fahrer[i], "fahrer", schrift_name}, binder);
    teile.zusatz->addWidget(zusatz(logik_.fahrzeug[i], "fahrzeug", binder));
    TextAnzeige* strafe = binder.anzeige(logik_.aus_straflabel[i], nummeriert("aus_straflabel"), schrift_titel);
    strafe->setAusrichtung(links_mitte);
    strafe->setFarbrolle(QPalette::Link);
    teile.kopf->setStretch(0, 2);
    teile.kopf->addWidget(strafe, 5);
    return teile.feld;
}

QWidget* Ergebniszeile::rundenzelle(Binder& binder) {
    const std::size_t i = index_;
    const zelle_teile teile = zelle({logik_.Label_runden[i], logik_.runden_aus[i], "runden_aus", schrift_wert}, binder);
    teile.zusatz->addWidget(zusatz(logik_.ges_meter[i], "ges_meter", binder));
    return teile.feld;
}

QWidget* Ergebniszeile::meterzelle(Binder& binder) {
    const std::size_t i = index_;
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    TextAnzeige* titel = binder.anzeige(logik_.meter_label[i], nummeriert("meter_label"), schrift_titel);
    titel->setFarbrolle(QPalette::PlaceholderText);
    titel->setAusrichtung(links_mitte);
    QLineEdit* eingabe = binder.zeile(logik_.meter[i], nummeriert("meter"));
    eingabe->setFixedWidth(eingabe_breite_px);
    aufbau->addStretch();
    aufbau->addWidget(titel);
    aufbau->addWidget(eingabe);
    aufbau->addStretch();
    QObject::connect(eingabe, &QLineEdit::returnPressed, eingabe, [this] { logik_.Command6.klicken(); });
    meterfeld_ = eingabe;
    return feld;
}

QWidget* Ergebniszeile::listenspalte(Binder& binder) {
    const std::size_t i = index_;
    auto* spalte = new QWidget(this);
    auto* aufbau = new QHBoxLayout(spalte);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(4);
    liste_ = binder.listenfeld(logik_.liste.at(i), nummeriert("liste"));
    liste_->setMinimumHeight(50);
    liste_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    static_cast<Listenfeld*>(liste_)->setGanzeZeilen();
    QObject::connect(liste_->model(), &QAbstractItemModel::modelReset, this, [this] {
        if (bei_runden) {
            bei_runden();
        }
    });
    aufbau->addWidget(liste_, 1);
    auto* knoepfe = new QVBoxLayout;
    knoepfe->setSpacing(2);
    const auto knopf = [&](befehl& element, const QString& name) {
        QPushButton* widget = binder.knopf_ohne_kuerzel(element, nummeriert(name));  // there are too many of them
        knoepfe_.push_back(widget);
        widget->setMinimumHeight(20);
        widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        widget->setStyleSheet("padding: 0;");
        knoepfe->addWidget(widget);
    };
    knopf(logik_.cmd_anzeige[i], "cmd_anzeige");
    knopf(logik_.cmd_rd_add[i], "cmd_rd_add");
    knopf(logik_.cmd_rd_inc[i], "cmd_rd_inc");
    aufbau->addLayout(knoepfe);
    return spalte;
}

QString Ergebniszeile::laengste_runde() const {
    const auto& zeilen = logik_.liste.at(index_).zeilen();
    const auto laengste = std::max_element(zeilen.begin(), zeilen.end(),
                                           [](const auto& a, const auto& b) { return laenge(a) < laenge(b); });
    return laengste == zeilen.end() ? QString() : QString::fromStdString(*laengste);
}

void Ergebniszeile::skalieren(double skala, const QString& laengste_runde) {
    QFont schrift = liste_->font();
    schrift.setPixelSize(std::max(12, static_cast<int>(std::lround(schrift_liste * skala))));
    liste_->setFont(schrift);
    constexpr int rollbalken_px = 34;  // and what the list keeps free around a line
    const QFontMetrics masse(schrift);
    const int breite = std::clamp(masse.horizontalAdvance(laengste_runde), masse.horizontalAdvance("00.  00:00,000"),
                                  masse.horizontalAdvance("000.  00:00,000 (Rest)"));  // sectors are scrolled
    liste_->setMinimumWidth(breite + rollbalken_px);
    knoepfe_skalieren(skala);
    meterfeld_skalieren(skala);
    QFont darunter = font();
    darunter.setPixelSize(std::max(static_cast<int>(std::lround(schrift_zusatz * skala)), 1));
    for (TextAnzeige* einer : abstaende_) {
        einer->setMinimumHeight(QFontMetrics(darunter).height());  // in smaller letters the line is as high
    }
    tankzelle_->setContentsMargins(0, 0, 0, QFontMetrics(darunter).height());  // its figure in line with the others
    constexpr double zwei_zeilen = 1.7;                                        // of smaller letters, for a long name
    for (QWidget* wert : werte_) {
        wert->setMaximumHeight(static_cast<int>(std::lround(schrift_wert * zwei_zeilen * skala)));
    }
    const int kante = static_cast<int>(std::lround(bild_kante * skala));
    layout()->setSpacing(static_cast<int>(std::lround(abstand * skala)));
    unter_der_zeit_->setSpacing(std::max(abstand_darunter, static_cast<int>(std::lround(abstand_darunter * skala))));
    for (QWidget* bild : bilder_) {
        bild->setFixedSize(kante, kante);
        QSizePolicy platz_halten = bild->sizePolicy();  // a row without it keeps its columns under those of the others
        platz_halten.setRetainSizeWhenHidden(bild == bilder_.front() || logik_.einst().fahrzeugbild_an);
        bild->setSizePolicy(platz_halten);
    }
}

void Ergebniszeile::meterfeld_skalieren(double skala) {
    meterfeld_->setFixedWidth(std::max(eingabe_breite_px, static_cast<int>(std::lround(eingabe_breite * skala))));
    QFont schrift = meterfeld_->font();
    schrift.setPixelSize(std::max(font().pixelSize(), static_cast<int>(std::lround(schrift_eingabe * skala))));
    meterfeld_->setFont(schrift);
}

/// As wide as the longest of their captions, in every row the same.
void Ergebniszeile::knoepfe_skalieren(double skala) {
    constexpr int kleinste_px = 12;
    int breite = 0;
    for (QPushButton* knopf : knoepfe_) {
        QFont schrift = knopf->font();
        schrift.setPixelSize(std::max(kleinste_px, static_cast<int>(std::lround(schrift_knopf * skala))));
        knopf->setFont(schrift);
        breite = std::max(breite, QFontMetrics(schrift).horizontalAdvance(knopf->text()) + knopfrand_px);
    }
    for (QPushButton* knopf : knoepfe_) {
        knopf->setFixedWidth(breite);
    }
}

void Ergebniszeile::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche = QRectF(rect()).adjusted(1, 1, -1, -1);
    const bool sieger = reihe() == 0;
    const stil::farbsatz& farben = stil::auf_dem_schirm();
    maler.setPen(QPen(sieger ? farben.sieger_rand : farben.linie, sieger ? 2 : 1));
    maler.setBrush(sieger ? farben.sieger : farben.karte);
    maler.drawRoundedRect(flaeche, 8, 8);
    maler.setPen(QPen(QColor(0, 0, 0, 60), 1));
    maler.setBrush(spurfarbe_);
    maler.drawRoundedRect(QRectF(flaeche.left() + 5, flaeche.top() + 6, 9, flaeche.height() - 12), 4, 4);
}

}  // namespace tarvel::ui
