#include "ui/bestzeitverwaltung_fenster.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/namenseinpassung.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int spalten_anzahl = 3;
constexpr int schrift_min_px = 13;
constexpr double schrift_max_px = 44;
constexpr int zeilenrand_px = 32;  // beside the columns, with the bar that scrolls
constexpr int breite_max = 1460;   // of the window: names are whole
constexpr int knopfhoehe = 36;
constexpr QSize fleck_groesse(30, 14);

}  // namespace

BestzeitverwaltungFenster::BestzeitverwaltungFenster(beste_zeiten_verwaltung& logik, Fensterverwaltung& verwaltung,
                                                     QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    auto* kopf = new QGridLayout;
    kopf->setSpacing(8);
    kopf->addWidget(binder().label(logik.Label_datei, "Label_datei"), 0, 0);
    kopf->addWidget(dateizeile(), 0, 1);
    kopf->addWidget(binder().label(logik.Label_modus, "Label_modus"), 1, 0);
    kopf->addWidget(moduszeile(), 1, 1);
    aufbau->addLayout(kopf);
    auto* listen = new QGridLayout;
    listen->setHorizontalSpacing(12);
    for (const int spur : alle_spuren) {
        const int platz = spur - 1;
        listen->addWidget(spurliste(spur), platz / spalten_anzahl, platz % spalten_anzahl);
    }
    aufbau->addLayout(listen, 1);
    aufbau->addWidget(korrektur());
    auto* unten = new QHBoxLayout;
    unten->addStretch();
    unten->addWidget(stil::fensterknopf(binder().hauptknopf(logik.Command1, "Command1")));
    aufbau->addLayout(unten);
    resize(1180, 760);
}

QWidget* BestzeitverwaltungFenster::dateizeile() {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(8);
    QComboBox* datei = binder().auswahlfeld(logik_.Combo2, "Combo2");
    datei->setMinimumContentsLength(11);
    aufbau->addWidget(datei, 1);
    aufbau->addWidget(binder().knopf(logik_.Command36, "Command36"));
    aufbau->addSpacing(14);
    QLineEdit* name = binder().zeile(logik_.bestefile_name, "bestefile_name");
    QPushButton* anlegen = binder().knopf(logik_.Command37, "Command37");
    QObject::connect(name, &QLineEdit::returnPressed, anlegen, [this] { logik_.Command37.klicken(); });
    aufbau->addWidget(binder().label(logik_.Label_neu, "Label_neu"));
    aufbau->addWidget(name, 1);
    aufbau->addWidget(anlegen);
    return zeile;
}

QWidget* BestzeitverwaltungFenster::moduszeile() {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(8);
    QComboBox* modus = binder().auswahlfeld(logik_.Combo1, "Combo1");
    modus->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    aufbau->addWidget(modus);
    aufbau->addSpacing(20);
    aufbau->addWidget(binder().label(logik_.bestlabel1, "bestlabel1"));
    QLabel* rekord = binder().label(logik_.bestlabel2, "bestlabel2");
    rekord->setStyleSheet("font-weight: bold;");
    rekord->setWordWrap(true);
    rekord->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long name does not widen the window
    aufbau->addWidget(rekord, 1);
    return zeile;
}

QWidget* BestzeitverwaltungFenster::spurliste(int spur) {
    const std::size_t i = feld_index(spur);
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(2);
    auto* kopf = new QHBoxLayout;
    kopf->setSpacing(8);
    auto* fleck = new QLabel(this);
    fleck->setFixedSize(fleck_groesse);
    auto* titel = new QLabel(this);
    titel->setTextFormat(Qt::PlainText);
    bezeichnung& name = logik_.Label_spur.at(i);
    binder().verbinden(name, titel, "Label_spur_" + QString::number(i), [titel, fleck, &name] {
        titel->setText(QString::fromStdString(name.text()));
        stil::fleck_faerben(fleck, name.hintergrund().value_or(0));
    });
    kopf->addWidget(fleck);
    kopf->addWidget(titel, 1);
    aufbau->addLayout(kopf);
    QListView* zeilen = binder().listenfeld(logik_.bestefile_list.at(i), "bestefile_list_" + QString::number(i));
    listen_.at(i) = zeilen;
    QObject::connect(zeilen->model(), &QAbstractItemModel::modelReset, this, [this] { einpassen(); });
    zeilen->installEventFilter(this);
    aufbau->addWidget(zeilen, 1);
    return feld;
}

/// The lists get their width when the window is laid out, which is behind the window's own change of size.
bool BestzeitverwaltungFenster::eventFilter(QObject* wer, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize && std::find(listen_.begin(), listen_.end(), wer) != listen_.end()) {
        einpassen();
    }
    return Fenster::eventFilter(wer, ereignis);
}

/// All lists have letters of one size: as large as there is room for the rows, and for their names.
void BestzeitverwaltungFenster::einpassen() {
    std::size_t reihen = 1;
    for (const liste& eine : logik_.bestefile_list) {
        reihen = std::max(reihen, eine.zeilen().size());
    }
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    schrift.setPixelSize(100);
    const double je_px = QFontMetricsF(schrift).height() / schrift.pixelSize();
    const double hoehe = listen_.front()->height() / (je_px * static_cast<double>(reihen + 1));
    const auto groesse = [this](double mindestens, double hoechstens) {
        int px = static_cast<int>(hoechstens);
        for (std::size_t i = 0; i < listen_.size(); ++i) {
            const double breite = listen_.at(i)->width() - zeilenrand_px;
            px = std::min(px, namen_einpassen(*listen_.at(i), logik_.bestefile_list.at(i), logik_.namen.at(i),
                                              {breite, mindestens, hoechstens}));
        }
        return px;
    };
    const int px = groesse(schrift_min_px, std::clamp<double>(hoehe, schrift_min_px, schrift_max_px));
    groesse(px, px);
    const QString regel = QString(
                              "QListView { font-family: '%1', monospace; font-size: %2px; }"  // columns stay below
                              "QListView::item { padding: 0px 3px; }")                        // each other
                              .arg(schrift.family())
                              .arg(px);
    for (QListView* zeilen : listen_) {
        if (zeilen->styleSheet() != regel) {
            zeilen->setStyleSheet(regel);
        }
    }
}

void BestzeitverwaltungFenster::aufschlagen() {
    if (!isVisible()) {
        resize(std::clamp(schirm_des_leiters()->availableGeometry().width() * 19 / 20, width(), breite_max), height());
    }
    Fenster::aufschlagen();
}

QWidget* BestzeitverwaltungFenster::korrektur() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_korrektur, "Frame_korrektur");
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(10);
    raster->setVerticalSpacing(2);
    const std::array<feld*, 4> felder{&logik_.Text1, &logik_.Text2, &logik_.Text3, &logik_.Text4};
    constexpr std::array<int, 4> breiten{110, 0, 110, 0};
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const int spalte = static_cast<int>(i);
        raster->addWidget(stil::leise(binder().label(logik_.Label_k.at(i), "Label_k_" + QString::number(i))), 0,
                          spalte);
        QLineEdit* eingabe = binder().zeile(*felder.at(i), "Text" + QString::number(i + 1));
        QObject::connect(eingabe, &QLineEdit::returnPressed, eingabe, [this] { logik_.Command34.klicken(); });
        if (breiten.at(i) > 0) {
            eingabe->setFixedWidth(breiten.at(i));
        } else {
            raster->setColumnStretch(spalte, 1);
        }
        raster->addWidget(eingabe, 1, spalte);
    }
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(8);
    for (QPushButton* knopf :
         {binder().knopf(logik_.Command34, "Command34"), binder().knopf(logik_.Command29, "Command29"),
          binder().knopf(logik_.Command35, "Command35")}) {
        knopf->setMinimumHeight(knopfhoehe);
        knoepfe->addWidget(knopf);
    }
    raster->addLayout(knoepfe, 1, static_cast<int>(felder.size()));
    return kasten;
}

}  // namespace tarvel::ui
