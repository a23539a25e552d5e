#include "ui/rennspalte.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

// font sizes in design units
constexpr double schrift_name = 760;
constexpr double schrift_platz = 820;
constexpr double schrift_zaehler = 2600;
constexpr double schrift_titel = 380;
constexpr double schrift_spur = 560;
constexpr double schrift_zeit = 1100;
constexpr double schrift_liste = 560;
constexpr double schrift_strafe = 480;
constexpr double schrift_tank = 620;
constexpr double hoehe_tank = 520;
constexpr double hoehe_gelb = 260;
constexpr double lampe_groesse = 440;

const QColor leise(190, 195, 203);

}  // namespace

Rennspalte::Rennspalte(bahn1& bahn, int spur, Binder& binder, QWidget* eltern) : QWidget(eltern) {
    const std::size_t index = feld_index(spur);
    const QString nummer = QString::number(spur);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setSpacing(0);

    const auto titel = [&](bezeichnung& element, const QString& name) {
        TextAnzeige* anzeige = binder.anzeige(element, name + "_" + nummer, schrift_titel);
        anzeige->setFarbe(leise);
        aufbau->addWidget(anzeige);
    };
    const auto zeigen = [&](steuerelement& element, const QString& name, double entwurf) {
        TextAnzeige* anzeige = binder.anzeige(element, name + "_" + nummer, entwurf);
        anzeige->setFett(true);
        aufbau->addWidget(anzeige);
        return anzeige;
    };
    gelb_ = new QWidget(this);
    gelb_->setAutoFillBackground(true);
    QPalette gelb = gelb_->palette();
    gelb.setColor(QPalette::Window, QColor(255, 214, 10));
    gelb_->setPalette(gelb);
    QSizePolicy haelt_platz = gelb_->sizePolicy();
    haelt_platz.setRetainSizeWhenHidden(true);
    gelb_->setSizePolicy(haelt_platz);
    binder.verbinden(bahn.yellowframe[spur], gelb_, "yellowframe_" + nummer, {});
    aufbau->addWidget(gelb_);
    aufbau->addWidget(namenszeile(bahn, spur, binder));
    aufbau->addWidget(kopfzeile(bahn, spur, binder));
    auto* im_zaehler = new QVBoxLayout(zeigen(bahn.zaehler[spur], "zaehler", schrift_zaehler));
    im_zaehler->setContentsMargins(0, 0, 0, 0);
    im_zaehler->addStretch();  // digits leave the foot of their line empty: no room is taken from the list of laps
    im_zaehler->addWidget(binder.anzeige(bahn.bestzeit_label[spur], "bestzeit_label_" + nummer, schrift_titel));
    aufbau->addWidget(tankzeile(bahn, spur, binder));
    titel(bahn.Label_lrunde[spur], "Label_lrunde");
    zeigen(bahn.lrunde[spur], "lrunde", schrift_zeit);
    titel(bahn.Label_brunde[spur], "Label_brunde");
    zeigen(bahn.brunde[spur], "brunde", schrift_zeit);
    liste_ = binder.listenfeld(bahn.t_liste.at(index), "t_liste_" + QString::number(index), Qt::AlignCenter);
    liste_->setFrameShape(QFrame::NoFrame);
    liste_->setFocusPolicy(Qt::NoFocus);
    liste_->setSelectionMode(QAbstractItemView::NoSelection);
    liste_->setStyleSheet("QListView { background: transparent; border: none; } QListView::item { padding: 0px; }");
    liste_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste_->setMinimumHeight(0);  // where room is short, the list gives way and not the clock
    liste_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    aufbau->addWidget(liste_, 1);
    zeigen(bahn.straflabel[spur], "straflabel", schrift_strafe);

    binder.verbinden(bahn.bahnshape[spur], this, "bahnshape_" + nummer, [this, &bahn, spur] {
        const form& flaeche = bahn.bahnshape[spur];
        randfarbe_ = flaeche.randfarbe() ? stil::farbe_von(*flaeche.randfarbe()) : QColor();
        spurfarbe_ = stil::farbe_von(flaeche.schriftfarbe().value_or(0));
        QPalette schild = nummer_->palette();
        schild.setColor(QPalette::Window, spurfarbe_);
        nummer_->setPalette(schild);
        grundfarbe_ = stil::farbe_von(flaeche.hintergrund().value_or(0));
        update();
    });
}

QWidget* Rennspalte::namenszeile(bahn1& bahn, int spur, Binder& binder) {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(4);
    nummer_ = binder.anzeige(bahn.Label_spur[spur], "Label_spur_" + QString::number(spur), schrift_spur);
    nummer_->setMusterText("00");
    nummer_->setFett(true);
    nummer_->setFarbe(Qt::black);
    nummer_->setAutoFillBackground(true);
    TextAnzeige* name = binder.anzeige(bahn.namenslabel[spur], "namenslabel_" + QString::number(spur), schrift_name);
    name->setFett(true);
    aufbau->addWidget(nummer_, 0, Qt::AlignVCenter);
    aufbau->addWidget(name, 1);
    schuld_ = binder.kasten(bahn.ch_strafzeit_hacken[spur], "ch_strafzeit_hacken_" + QString::number(spur));
    aufbau->addWidget(schuld_, 0, Qt::AlignVCenter);
    return zeile;
}

QWidget* Rennspalte::tankzeile(bahn1& bahn, int spur, Binder& binder) {
    const std::size_t index = feld_index(spur);
    const QString nummer = QString::number(spur);
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(4, 0, 4, 0);
    TextAnzeige* titel = binder.beschriftung(schrift_titel);
    titel->setFarbe(leise);
    titel->setSizePolicy(QSizePolicy::Ignored,
                         titel->sizePolicy().verticalPolicy());  // the figure goes before its title
    aufbau->addWidget(titel, 2);
    TextAnzeige* liter = binder.anzeige(bahn.t_bahn[spur], "t_bahn_" + nummer, schrift_tank);
    liter->setFett(true);
    liter->setMusterText("00,00");
    aufbau->addWidget(liter, 3);
    balken_ = new Tankbalken(zeile);
    aufbau->addWidget(balken_, 3);
    binder.verbinden(bahn.tankbalken.at(index), balken_, "tankbalken_" + QString::number(index), [this, &bahn, index] {
        const form& balken = bahn.tankbalken.at(index);
        balken_->setStand(balken.hoehe() / bahn.tank_balkenhoehe, stil::farbe_von(balken.hintergrund().value_or(0)));
    });
    binder.verbinden(bahn.frame_tank[spur], zeile, "frame_tank_" + nummer,
                     [titel, &bahn, spur] { titel->setText(QString::fromStdString(bahn.frame_tank[spur].text())); });
    return zeile;
}

QWidget* Rennspalte::kopfzeile(bahn1& bahn, int spur, Binder& binder) {
    const std::size_t index = feld_index(spur);
    const QString nummer = QString::number(index);
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(4);
    lampen_ = {binder.lampe(bahn.ampel_rt.at(index), "ampel_rt_" + nummer, QColor(255, 40, 30)),
               binder.lampe(bahn.ampel_ge.at(index), "ampel_ge_" + nummer, QColor(255, 200, 20)),
               binder.lampe(bahn.ampel_gr.at(index), "ampel_gr_" + nummer, QColor(30, 230, 70))};
    aufbau->addStretch();
    for (Lampe* lampe : lampen_) {
        aufbau->addWidget(lampe);
    }
    aufbau->addStretch();
    TextAnzeige* titel = binder.anzeige(bahn.Label_platz[spur], "Label_platz_" + QString::number(spur), schrift_titel);
    titel->setMusterText("Platz");
    titel->setFarbe(leise);
    aufbau->addWidget(titel);
    TextAnzeige* platz = binder.anzeige(bahn.l_PosAnz.at(index), "l_PosAnz_" + nummer, schrift_platz);
    platz->setMusterText("0");
    platz->setFett(true);
    aufbau->addWidget(platz);
    aufbau->addStretch();
    return zeile;
}

void Rennspalte::skalieren(double skala) {
    QFont schrift = liste_->font();
    // "9999. 00,000" fits the column
    const double breite_px = width() > 0 ? width() / 7.6 : schrift_liste * skala;
    schrift.setPixelSize(std::max(8, static_cast<int>(std::lround(std::min(schrift_liste * skala, breite_px)))));
    liste_->setFont(schrift);
    const int kante = std::max(8, static_cast<int>(std::lround(lampe_groesse * skala)));
    for (Lampe* lampe : lampen_) {
        lampe->setFixedSize(kante, kante);
    }
    balken_->setFixedHeight(std::max(12, static_cast<int>(std::lround(hoehe_tank * skala))));
    gelb_->setFixedHeight(std::max(6, static_cast<int>(std::lround(hoehe_gelb * skala))));
    schuld_->setFixedWidth(kante + 8);
    schuld_->setStyleSheet(QString("QCheckBox::indicator { width: %1px; height: %1px; }").arg(kante));
    const int rand = std::max(4, static_cast<int>(std::lround(110 * skala)));
    layout()->setContentsMargins(rand, 10 + rand, rand, rand);
}

void Rennspalte::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF flaeche = QRectF(rect()).adjusted(3, 3, -3, -3);
    const bool im_ziel = randfarbe_.isValid();
    maler.setPen(QPen(im_ziel ? randfarbe_ : QColor(52, 56, 64), im_ziel ? 5 : 1));
    maler.setBrush(grundfarbe_);
    maler.drawRoundedRect(flaeche, 10, 10);
    maler.setPen(Qt::NoPen);
    maler.setBrush(spurfarbe_);
    maler.drawRoundedRect(QRectF(flaeche.left() + 8, flaeche.top() + 4, flaeche.width() - 16, 6), 3, 3);
}

}  // namespace tarvel::ui
