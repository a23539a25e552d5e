#include "ui/wettkampf1_fenster.h"

#include <QFontInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/eingabefelder.h"
#include "ui/stil.h"
#include "ui/ziehen.h"

namespace tarvel::ui {
namespace {

constexpr QSize bildgroesse(132, 99);
constexpr int rechte_spalte = 256;
constexpr QSize fleck_groesse(28, 20);
constexpr int pfeil_px = 12;
constexpr int pfeil_abstand_px = 5;  // from the word

/// A triangle that points to the list where a driver goes.
QIcon pfeil(bool nach_rechts) {
    constexpr int scharf = 3;  // on a fine screen
    QPixmap flaeche((pfeil_px + pfeil_abstand_px) * scharf, pfeil_px * scharf);
    flaeche.setDevicePixelRatio(scharf);
    flaeche.fill(Qt::transparent);
    QPainter maler(&flaeche);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(stil::akzent);
    const double spitze = nach_rechts ? pfeil_abstand_px + pfeil_px - 1 : 1;
    const double hinten = nach_rechts ? pfeil_abstand_px + 1 : pfeil_px - 1;
    maler.drawPolygon(QPolygonF({{hinten, 1}, {spitze, pfeil_px / 2.0}, {hinten, pfeil_px - 1.0}}));
    return flaeche;
}

QVBoxLayout* spalte_in(QWidget* kasten, int abstand) {
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setSpacing(abstand);
    return aufbau;
}

QHBoxLayout* zeile_in(QWidget* traeger) {
    auto* aufbau = new QHBoxLayout(traeger);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(8);
    return aufbau;
}

}  // namespace

Wettkampf1Fenster::Wettkampf1Fenster(wettkampf1& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                     QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), ablage_(ablage) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    aufbau->addWidget(titelzeile());
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(10);
    mitte->addWidget(gesamtspalte(), 5);
    mitte->addWidget(zwischenspalte());
    mitte->addWidget(startspalte(), 6);
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(4);
    rechts->addWidget(bildfeld());
    rechts->addWidget(plankarte());
    rechts->addStretch();
    mitte->addLayout(rechts);
    aufbau->addLayout(mitte, 1);
    QLabel* hinweis = binder().label(logik.Label_hinweis, "Label_hinweis");
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    aufbau->addWidget(fusszeile());
    resize(1180, 800);
}

QWidget* Wettkampf1Fenster::titelzeile() {
    auto* zeile = new QWidget(this);
    QHBoxLayout* aufbau = zeile_in(zeile);
    aufbau->addWidget(binder().label(logik_.Label_titel, "Label_titel"));
    QLineEdit* titel = binder().zeile(logik_.Text1, "Text1");
    titel->setProperty(Eingabezeile::als_ganzes, true);
    titel->setStyleSheet("font-size: 20px; font-weight: bold;");
    aufbau->addWidget(titel, 1);
    return zeile;
}

QListView* Wettkampf1Fenster::namensfeld(liste& element, const QString& name) {
    constexpr int mindestbreite = 150;
    QListView* namen = binder().listenfeld(element, name);
    namen->setMinimumWidth(mindestbreite);
    namen->setTextElideMode(Qt::ElideRight);  // below the picture stands the whole name
    namen_.push_back(namen);
    return namen;
}

/// On a large screen the names are read by those who stand around it.
void Wettkampf1Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    constexpr int zeilen = 80;
    constexpr int schrift_max_px = 26;
    QFont schrift = font();
    schrift.setPixelSize(std::clamp(height() / zeilen, QFontInfo(schrift).pixelSize(), schrift_max_px));
    for (QListView* namen : namen_) {
        namen->setFont(schrift);
    }
}

QWidget* Wettkampf1Fenster::gesamtspalte() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_gesamt, "Frame_gesamt");
    QVBoxLayout* aufbau = spalte_in(kasten, 6);
    aufbau->addWidget(stil::leise(binder().label(logik_.label_anzahl, "label_anzahl")));
    aufbau->addWidget(namensfeld(logik_.rennliste, "rennliste"), 1);
    aufbau->addLayout(knopfreihe({{&logik_.Command22, "Command22"}, {&logik_.Command23, "Command23"}}));
    return kasten;
}

QHBoxLayout* Wettkampf1Fenster::knopfreihe(const std::vector<std::pair<befehl*, const char*>>& befehle) {
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(6);
    for (const auto& [element, name] : befehle) {
        reihe->addWidget(binder().knopf(*element, name, "schmal"), 1);
    }
    return reihe;
}

QPushButton* Wettkampf1Fenster::pfeilknopf(befehl& element, const QString& name, bool nach_rechts) {
    QPushButton* knopf = binder().knopf(element, name, "schmal");
    knopf->setIcon(pfeil(nach_rechts));
    knopf->setIconSize({pfeil_px + pfeil_abstand_px, pfeil_px});
    knopf->setLayoutDirection(nach_rechts ? Qt::RightToLeft : Qt::LeftToRight);  // the arrow at its own side
    return knopf;
}

QWidget* Wettkampf1Fenster::zwischenspalte() {
    auto* spalte = new QWidget(this);
    auto* aufbau = new QVBoxLayout(spalte);
    aufbau->setContentsMargins(0, 26, 0, 0);
    aufbau->setSpacing(6);
    aufbau->addStretch();
    aufbau->addWidget(pfeilknopf(logik_.Command16, "Command16", true));
    aufbau->addWidget(pfeilknopf(logik_.Command17, "Command17", true));
    aufbau->addWidget(binder().knopf(logik_.Command15, "Command15", "schmal"));
    aufbau->addSpacing(14);
    aufbau->addWidget(binder().knopf(logik_.Command21, "Command21", "schmal"));
    aufbau->addSpacing(14);
    aufbau->addWidget(pfeilknopf(logik_.Command18, "Command18", false));
    aufbau->addWidget(pfeilknopf(logik_.Command19, "Command19", false));
    aufbau->addWidget(binder().knopf(logik_.Command20, "Command20", "schmal"));
    aufbau->addStretch();
    return spalte;
}

QWidget* Wettkampf1Fenster::namenszeile() {
    auto* zeile = new QWidget(this);
    QHBoxLayout* aufbau = zeile_in(zeile);
    aufbau->addWidget(binder().label(logik_.Label_name, "Label_name"));
    QComboBox* name = binder().auswahlfeld(logik_.auswahl, "auswahl");
    QObject::connect(
        name->lineEdit(), &QLineEdit::returnPressed, name, [this] { logik_.Command1.klicken(); },
        Qt::QueuedConnection);  // a name that is chosen with this key comes into the field after it
    aufbau->addWidget(name, 1);
    aufbau->addWidget(binder().knopf(logik_.Command1, "Command1", "schmal"));
    return zeile;
}

QWidget* Wettkampf1Fenster::startspalte() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_auswahl, "Frame_auswahl");
    QVBoxLayout* aufbau = spalte_in(kasten, 6);
    aufbau->addWidget(namenszeile());
    aufbau->addWidget(stil::leise(binder().label(logik_.label_anzahl2, "label_anzahl2")));
    aufbau->addWidget(namensfeld(logik_.auswahlliste, "auswahlliste"), 1);
    aufbau->addLayout(knopfreihe(
        {{&logik_.Command10, "Command10"}, {&logik_.Command12, "Command12"}, {&logik_.Command13, "Command13"}}));
    aufbau->addLayout(knopfreihe({{&logik_.Command2, "Command2"}, {&logik_.Command7, "Command7"}}));
    aufbau->addLayout(knopfreihe({{&logik_.Command5, "Command5"}, {&logik_.Command6, "Command6"}}));
    return kasten;
}

QWidget* Wettkampf1Fenster::bildfeld() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_bild, "Frame_bild");
    kasten->setFixedWidth(rechte_spalte);
    QVBoxLayout* aufbau = spalte_in(kasten, 6);
    QLabel* bild = binder().bildfeld(logik_.Image1, "Image1", bildgroesse,
                                     [this](const std::string& datei) { return ablage_.pfad(datei); });
    bild_annehmen(bild, [this](const std::filesystem::path& datei) { logik_.bild_ablegen(datei); });
    aufbau->addWidget(bild, 0, Qt::AlignHCenter);
    QLabel* name = binder().label(logik_.Label_bild, "Label_bild");
    name->setAlignment(Qt::AlignCenter);
    name->setStyleSheet("font-weight: bold;");
    name->setWordWrap(true);
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long name does not widen the window
    aufbau->addWidget(name);
    aufbau->addWidget(binder().knopf(logik_.Command24, "Command24", "schmal"));
    aufbau->addWidget(binder().knopf(logik_.Command14, "Command14", "schmal"));
    return kasten;
}

QLayout* Wettkampf1Fenster::spurzeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(4);
    for (std::size_t i = 0; i < logik_.spurfarbe.size(); ++i) {
        auto* fleck = new QLabel(this);
        fleck->setFixedSize(fleck_groesse);
        fleck->setAlignment(Qt::AlignCenter);
        form& spur = logik_.spurfarbe.at(i);
        binder().verbinden(spur, fleck, "spurfarbe_" + QString::number(i), [&spur, fleck] {
            fleck->setText(QString::fromStdString(spur.text()));
            const farbe grund = spur.hintergrund().value_or(0);
            stil::fleck_faerben(fleck, grund);
            fleck->setStyleSheet(fleck->styleSheet() + " color: " + stil::schrift_auf(stil::farbe_von(grund)).name());
        });
        zeile->addWidget(fleck);
    }
    zeile->addStretch();
    return zeile;
}

QWidget* Wettkampf1Fenster::plankarte() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_plan, "Frame_plan");
    kasten->setFixedWidth(rechte_spalte);
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(1, 1);
    int reihe = 0;
    for (std::size_t i = 0; i < logik_.Label_plan.size(); ++i, ++reihe) {
        const QString nummer = QString::number(i);
        QLabel* wert = binder().label(logik_.plan_wert.at(i), "plan_wert_" + nummer);
        wert->setStyleSheet("font-weight: bold;");
        raster->addWidget(stil::leise(binder().label(logik_.Label_plan.at(i), "Label_plan_" + nummer)), reihe, 0);
        if (i == wettkampf1::plan_art) {  // longer than its caption leaves room for
            wert->setWordWrap(true);
            raster->addWidget(wert, ++reihe, 0, 1, 2);
        } else {
            raster->addWidget(wert, reihe, 1);
        }
        if (i == wettkampf1::plan_spuren) {
            raster->addLayout(spurzeile(), ++reihe, 0, 1, 2);
        }
    }
    QLabel* hinweis = binder().label(logik_.plan_hinweis, "plan_hinweis");
    hinweis->setWordWrap(true);
    hinweis->setProperty("rolle", "warnung");
    raster->addWidget(hinweis, reihe, 0, 1, 2);
    return kasten;
}

QWidget* Wettkampf1Fenster::fusszeile() {
    auto* zeile = new QWidget(this);
    QHBoxLayout* aufbau = zeile_in(zeile);
    QPushButton* starten = binder().hauptknopf(logik_.Command3, "Command3");
    starten->setMinimumWidth(200);
    QPushButton* qualifying = binder().knopf(logik_.Command11, "Command11");
    QPushButton* laden = binder().knopf(logik_.Command9, "Command9");
    QPushButton* auswertung = binder().knopf(logik_.Command25, "Command25");
    QPushButton* einstellungen = binder().knopf(logik_.Command8, "Command8");
    QPushButton* ende = binder().knopf(logik_.Command4, "Command4");
    for (QPushButton* knopf : {starten, qualifying, laden, auswertung, einstellungen, ende}) {
        knopf->setMinimumHeight(stil::knopfhoehe);
        aufbau->addWidget(knopf);
        if (knopf == qualifying) {
            aufbau->addStretch();
        }
    }
    return zeile;
}

}  // namespace tarvel::ui
