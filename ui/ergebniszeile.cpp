#include "ui/ergebniszeile.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// font sizes in pixels at scale 1
constexpr double schrift_platz = 46;
constexpr double schrift_name = 28;
constexpr double schrift_runden = 30;
constexpr double schrift_wert = 28;
constexpr double schrift_zusatz = 15;
constexpr double schrift_titel = 13;
constexpr double schrift_liste = 16;

constexpr auto links_mitte = Qt::AlignLeft | Qt::AlignVCenter;

}  // namespace

Ergebniszeile::Ergebniszeile(auswertung& logik, int spur, Binder& binder, QWidget* eltern)
    : QWidget(eltern), logik_(logik), index_(feld_index(spur)) {
    const QString nummer = QString::number(index_);
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(22, 6, 8, 6);
    aufbau->setSpacing(14);

    TextAnzeige* platz = binder.anzeige(logik.platz.at(index_), "platz_" + nummer, schrift_platz);
    platz->setMusterText("6.");
    platz->setFett(true);
    aufbau->addWidget(platz);

    const std::size_t i = index_;
    aufbau->addWidget(
        zelle({logik.Label_spur[i], logik.fahrer[i], logik.aus_straflabel[i], "fahrer", schrift_name}, binder), 5);
    aufbau->addWidget(
        zelle({logik.Label_runden[i], logik.runden_aus[i], logik.ges_meter[i], "runden_aus", schrift_runden}, binder),
        3);
    aufbau->addWidget(
        zelle({logik.Label_zeit[i], logik.zeit_aus[i], logik.abstandlabel[i], "zeit_aus", schrift_wert}, binder), 4);
    aufbau->addWidget(
        zelle({logik.Label_beste[i], logik.beste_aus[i], logik.kmh_label[i], "beste_aus", schrift_wert}, binder), 5);

    liste_ = binder.listenfeld(logik.liste.at(index_), "liste_" + nummer);
    liste_->setMinimumWidth(150);
    liste_->setMinimumHeight(60);
    aufbau->addWidget(liste_, 4);

    binder.verbinden(logik.Frame.at(index_), this, "Frame_" + nummer, [this] {
        spurfarbe_ = stil::farbe_von(logik_.Frame.at(index_).schriftfarbe().value_or(0));
        update();
        if (bei_umzug) {
            bei_umzug();
        }
    });
}

QWidget* Ergebniszeile::zelle(const zelle_inhalt& inhalt, Binder& binder) {
    const QString nummer = "_" + QString::number(index_);
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(0);
    TextAnzeige* kopf = binder.anzeige(inhalt.titel, "Label_" + inhalt.name + nummer, schrift_titel);
    kopf->setFarbe(stil::schrift_leise);
    kopf->setAusrichtung(links_mitte);
    TextAnzeige* wert = binder.anzeige(inhalt.wert, inhalt.name + nummer, inhalt.entwurf);
    wert->setAusrichtung(links_mitte);
    wert->setFett(true);
    TextAnzeige* darunter = binder.anzeige(inhalt.zusatz, inhalt.name + "_zusatz" + nummer, schrift_zusatz);
    darunter->setAusrichtung(links_mitte);
    QSizePolicy platz_halten = darunter->sizePolicy();
    platz_halten.setRetainSizeWhenHidden(true);
    darunter->setSizePolicy(platz_halten);
    aufbau->addStretch();
    aufbau->addWidget(kopf);
    aufbau->addWidget(wert);
    aufbau->addWidget(darunter);
    aufbau->addStretch();
    return feld;
}

void Ergebniszeile::skalieren(double skala) {
    QFont schrift = liste_->font();
    schrift.setPixelSize(std::max(12, static_cast<int>(std::lround(schrift_liste * skala))));
    liste_->setFont(schrift);
}

void Ergebniszeile::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche = QRectF(rect()).adjusted(1, 1, -1, -1);
    const bool sieger = reihe() == 0;
    maler.setPen(QPen(sieger ? QColor(214, 170, 40) : stil::linie, sieger ? 2 : 1));
    maler.setBrush(sieger ? QColor(255, 250, 232) : stil::karte);
    maler.drawRoundedRect(flaeche, 8, 8);
    maler.setPen(QPen(QColor(0, 0, 0, 60), 1));
    maler.setBrush(spurfarbe_);
    maler.drawRoundedRect(QRectF(flaeche.left() + 5, flaeche.top() + 6, 9, flaeche.height() - 12), 4, 4);
}

}  // namespace tarvel::ui
