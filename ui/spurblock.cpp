#include "ui/spurblock.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/ampelfeld.h"
#include "ui/bildanzeige.h"
#include "ui/lagezeichen.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

const QColor gelb(255, 214, 10);

}  // namespace

Spurblock::Spurblock(bahn1& bahn, int spur, Binder& binder,
                     const std::function<std::filesystem::path(const std::string&)>& pfad, QWidget* eltern)
    : QWidget(eltern),
      bahn_(bahn),
      spur_(spur),
      index_(feld_index(spur)),
      binder_(binder),
      nummer_("_" + QString::number(spur)) {
    kopf(pfad);
    zaehler();
    tank();
    anzeigen(spur_teil::Label_lrunde, bahn.Label_lrunde[spur], "Label_lrunde" + nummer_)->setLeise();
    anzeigen(spur_teil::lrunde, bahn.lrunde[spur], "lrunde" + nummer_)->setFett(true);
    anzeigen(spur_teil::Label_brunde, bahn.Label_brunde[spur], "Label_brunde" + nummer_)->setLeise();
    anzeigen(spur_teil::brunde, bahn.brunde[spur], "brunde" + nummer_)->setFett(true);
    anzeigen(spur_teil::bestzeit_label, bahn.bestzeit_label[spur], "bestzeit_label" + nummer_)->setLeise();
    rundenliste();
    anzeigen(spur_teil::straflabel, bahn.straflabel[spur], "straflabel" + nummer_)->setFett(true);
    constexpr int mit_tausenden = 3;  // of laps: a narrow place has a line for each word
    anzeigen(spur_teil::rueckstand, bahn.rueckstand[spur], "rueckstand" + nummer_)->setMehrzeilig(mit_tausenden);
    flaeche();
    lagetafel();
    hinweisschild();
}

TextAnzeige* Spurblock::anzeigen(spur_teil name, steuerelement& element, const QString& widget_name) {
    TextAnzeige* anzeige = binder_.anzeige(element, widget_name);
    anzeige->setParent(this);
    teil(name) = anzeige;
    return anzeige;
}

void Spurblock::kopf(const std::function<std::filesystem::path(const std::string&)>& pfad) {
    auto* balken = new QWidget(this);
    balken->setAutoFillBackground(true);
    QPalette farben = balken->palette();
    farben.setColor(QPalette::Window, gelb);
    balken->setPalette(farben);
    binder_.verbinden(bahn_.yellowframe[spur_], balken, "yellowframe" + nummer_, {});
    teil(spur_teil::yellowframe) = balken;

    TextAnzeige* schild = anzeigen(spur_teil::Label_spur, bahn_.Label_spur[spur_], "Label_spur" + nummer_);
    schild->setFett(true);
    schild->setAttribute(Qt::WA_StyledBackground);
    TextAnzeige* fahrer = anzeigen(spur_teil::namenslabel, bahn_.namenslabel[spur_], "namenslabel" + nummer_);
    fahrer->setFett(true);
    fahrer->setZweizeilig();
    teil(spur_teil::Image1) = binder_.bildanzeige(bahn_.Image1[spur_], "Image1" + nummer_, pfad);
    teil(spur_teil::Image2) = binder_.bildanzeige(bahn_.Image2[spur_], "Image2" + nummer_, pfad);
    for (const auto& [name, lampe, widget_name] :
         {std::tuple<spur_teil, bild&, const char*>{spur_teil::ampel_rt, bahn_.ampel_rt.at(index_), "ampel_rt_"},
          {spur_teil::ampel_ge, bahn_.ampel_ge.at(index_), "ampel_ge_"},
          {spur_teil::ampel_gr, bahn_.ampel_gr.at(index_), "ampel_gr_"}}) {
        teil(name) =
            new Ampelfeld(lampe, Ampelfeld::art::erlischt, widget_name + QString::number(index_), binder_, pfad, this);
    }
    anzeigen(spur_teil::Label_schuld, bahn_.Label_schuld[spur_], "Label_schuld" + nummer_)->setFett(true);
    anzeigen(spur_teil::Label_platz, bahn_.Label_platz[spur_], "Label_platz" + nummer_)->setLeise();
    platzziffer();
    teil(spur_teil::ch_strafzeit_hacken) =
        binder_.kasten(bahn_.ch_strafzeit_hacken[spur_], "ch_strafzeit_hacken" + nummer_);
    for (const spur_teil name : {spur_teil::Image1, spur_teil::Image2, spur_teil::ampel_rt, spur_teil::ampel_ge,
                                 spur_teil::ampel_gr, spur_teil::ch_strafzeit_hacken}) {
        teil(name)->setParent(this);
    }
}

void Spurblock::platzziffer() {
    auto* anzeige = new TextAnzeige(this);
    anzeige->setFett(true);
    teil(spur_teil::l_PosAnz) = anzeige;
    binder_.verbinden(bahn_.l_PosAnz.at(index_), anzeige, "l_PosAnz_" + QString::number(index_), [this, anzeige] {
        const bezeichnung& platz = bahn_.l_PosAnz.at(index_);
        anzeige->setText(QString::fromStdString(platz.text()));
        anzeige->setFarbe(stil::farbe_von(platz.schriftfarbe().value_or(0)));
        plakette_setzen();
    });
}

void Spurblock::plakette_setzen() {  // the leader is found at a glance
    static_cast<TextAnzeige*>(teil(spur_teil::l_PosAnz))->setPlakette(bahn_.lage[spur_].stand().fuehrt);
}

void Spurblock::lagetafel() {
    tafel_ = new Lagetafel(this);
    binder_.verbinden(bahn_.lage[spur_], tafel_, "lage" + nummer_, [this] { lage_zeigen(); });
}

void Spurblock::hinweisschild() {
    schild_ = new Hinweisschild(this);
    hinweis_anzeige& hinweis = bahn_.hinweis[spur_];
    binder_.verbinden(hinweis, schild_, "hinweis" + nummer_,
                      [this, &hinweis] { schild_->zeigen(QString::fromStdString(hinweis.text()), hinweis.art()); });
}

void Spurblock::lage_zeigen() {
    const spurlage& stand = bahn_.lage[spur_].stand();
    const std::string& wort = bahn_.wort.lagen.at(static_cast<std::size_t>(stand.was));
    tafel_->zeigen({stand.was, QString::fromStdString(ohne_trennstellen(wort)), QString::fromStdString(in_zeilen(wort)),
                    QString::fromStdString(zahl_von(stand)), stand.stand / 1000.0});
    plakette_setzen();
    const bool draussen = stand.was == lage::disqualifiziert;
    for (const spur_teil name : {spur_teil::namenslabel, spur_teil::l_PosAnz, spur_teil::zaehler, spur_teil::lrunde,
                                 spur_teil::brunde, spur_teil::straflabel}) {
        static_cast<TextAnzeige*>(teil(name))->setBlass(draussen);
    }
    const bool da = stand.was != lage::faehrt && stand.was != lage::pause;  // that stands over all lanes at once
    tafel_->setVisible(da);
    if (std::exchange(mit_tafel_, da) != da) {
        teile_anordnen();
    }
    update();
}

void Spurblock::zaehler() {
    auto* anzeige = new TextAnzeige(this);
    anzeige->setFett(true);
    teil(spur_teil::zaehler) = anzeige;
    binder_.verbinden(bahn_.zaehler[spur_], anzeige, "zaehler" + nummer_, [this, anzeige] {
        const bezeichnung& runden = bahn_.zaehler[spur_];
        anzeige->setText(QString::fromStdString(runden.text()));
        anzeige->setFarbe(stil::farbe_von(runden.schriftfarbe().value_or(0)));
        zaehler_anordnen();
    });
}

void Spurblock::zaehler_anordnen() {
    const bezeichnung& runden = bahn_.zaehler[spur_];
    auto* anzeige = static_cast<TextAnzeige*>(teil(spur_teil::zaehler));
    const rechteck& ort =
        runden.links() < bahn_.zaehler_links ? geometrie_.zaehler_weit : geometrie_.spur[spur_teil::zaehler].ort;
    anzeige->setGeometry(ort.x, ort.y, ort.breite, ort.hoehe);
    const double anteil = runden.schriftgroesse() > 0 ? runden.schriftgroesse() / bahn_.zaehler_schrift : 1;
    anzeige->setSchriftPx(static_cast<int>(std::lround(geometrie_.spur[spur_teil::zaehler].schrift_px * anteil)));
}

void Spurblock::tank() {
    auto* rahmen = new QWidget(this);
    teil(spur_teil::frame_tank) = rahmen;
    auto* titel = new TextAnzeige(rahmen);
    titel->setLeise();
    teil(spur_teil::tanktitel) = titel;
    TextAnzeige* liter = anzeigen(spur_teil::t_bahn, bahn_.t_bahn[spur_], "t_bahn" + nummer_);
    liter->setParent(rahmen);
    liter->setFett(true);
    auto* balken = new Tankbalken(rahmen);
    teil(spur_teil::tankbalken) = balken;
    binder_.verbinden(
        bahn_.tankbalken.at(index_), balken, "tankbalken_" + QString::number(index_), [this, balken, liter] {
            const form& stand = bahn_.tankbalken.at(index_);
            liter->setRahmen(stand.hoehe() > 0 ? QColor() : Tankbalken::warnung);
            balken->setStand(stand.hoehe() / bahn_.tank_balkenhoehe, stil::farbe_von(stand.hintergrund().value_or(0)));
        });
    binder_.verbinden(bahn_.frame_tank[spur_], rahmen, "frame_tank" + nummer_, [this, titel] {
        const auto& frame = bahn_.frame_tank[spur_];
        titel->setText(QString::fromStdString(frame.text()));
        if (frame.schriftfarbe()) {
            const QColor grund = stil::farbe_von(bahn_.bahnshape[spur_].hintergrund().value_or(0));
            titel->setFarbe(stil::titelfarbe(stil::farbe_von(*frame.schriftfarbe()), grund));
        }
    });
}

void Spurblock::rundenliste() {
    QListView* liste =
        binder_.listenfeld(bahn_.t_liste.at(index_), "t_liste_" + QString::number(index_), Qt::AlignCenter);
    liste->setParent(this);
    liste->setFrameShape(QFrame::NoFrame);
    liste->setFocusPolicy(Qt::NoFocus);
    liste->setSelectionMode(QAbstractItemView::NoSelection);
    liste->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    teil(spur_teil::t_liste) = liste;
}

void Spurblock::flaeche() {
    binder_.verbinden(bahn_.bahnshape[spur_], this, "bahnshape" + nummer_, [this] {
        const form& shape = bahn_.bahnshape[spur_];
        randfarbe_ = shape.randfarbe() ? stil::farbe_von(*shape.randfarbe()) : QColor();
        spurfarbe_ = stil::farbe_von(shape.schriftfarbe().value_or(0));
        QWidget* schild = teil(spur_teil::Label_spur);
        // Not by its palette: in a window with a style sheet of its own that is not its own any more.
        schild->setStyleSheet(QString(".QWidget { background: %1; }").arg(spurfarbe_.name()));
        static_cast<TextAnzeige*>(schild)->setFarbe(stil::schrift_auf(spurfarbe_));
        grundfarbe_ = stil::farbe_von(shape.hintergrund().value_or(0));
        static_cast<Tankbalken*>(teil(spur_teil::tankbalken))->setGrund(grundfarbe_);
        for (QWidget* widget : teile_) {
            auto* text = dynamic_cast<TextAnzeige*>(widget);
            if (text != nullptr && text != teil(spur_teil::Label_spur)) {  // that stands on the lane's colour
                text->setGrund(grundfarbe_);
            }
        }
        update();
    });
}

void Spurblock::anordnen(const ansicht_geometrie& geometrie, bool gleitend) {
    const rechteck& block = geometrie.block[spur_];
    if (gleitend && size() == QSize(block.breite, block.hoehe)) {
        constexpr int dauer_ms = 600;
        fahrt_.stop();
        fahrt_.setDuration(dauer_ms);
        fahrt_.setEasingCurve(QEasingCurve::InOutCubic);
        fahrt_.setStartValue(pos());
        fahrt_.setEndValue(QPoint(block.x, block.y));
        fahrt_.start();
        return;
    }
    fahrt_.stop();
    setGeometry(block.x, block.y, block.breite, block.hoehe);
    geometrie_ = geometrie;
    teile_anordnen();
    update();
}

void Spurblock::teile_anordnen() {
    const plaetze<spur_teil>& orte = mit_tafel_ ? geometrie_.spur_tafel : geometrie_.spur;
    const QWidget* tankrahmen = teil(spur_teil::frame_tank);
    const rechteck& tank = orte[spur_teil::frame_tank].ort;
    for (std::size_t i = 0; i < teile_.size(); ++i) {
        QWidget* widget = teile_.at(i);
        const platz& ort = orte[static_cast<spur_teil>(i)];
        const bool im_tank = widget->parentWidget() == tankrahmen;
        widget->setGeometry(ort.ort.x - (im_tank ? tank.x : 0), ort.ort.y - (im_tank ? tank.y : 0), ort.ort.breite,
                            ort.ort.hoehe);
        if (auto* text = dynamic_cast<TextAnzeige*>(widget)) {
            text->setSchriftPx(ort.schrift_px);
        }
    }
    auto* name = static_cast<TextAnzeige*>(teil(spur_teil::namenslabel));
    name->setMindestPx(geometrie_.lesbar_px);
    const bool ist_zeile =
        geometrie_.streifen.hoehe > geometrie_.streifen.breite;  // number and lights begin on the left
    name->setAusrichtung((ist_zeile ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
    zaehler_anordnen();
    const rechteck& tafel = geometrie_.tafel;
    tafel_->setGeometry(tafel.x, tafel.y, tafel.breite, tafel.hoehe);
    const platz& fuss = orte[spur_teil::straflabel];
    schild_->setGeometry(fuss.ort.x, fuss.ort.y, fuss.ort.breite, fuss.ort.hoehe);
    const int lesbar = std::min(geometrie_.lesbar_px, fuss.ort.hoehe);
    schild_->setSchriftPx(std::max(fuss.ort.hoehe * 3 / 4, lesbar), lesbar);
    liste_anordnen(orte[spur_teil::t_liste]);
    const int kante = orte[spur_teil::ch_strafzeit_hacken].ort.breite;
    teil(spur_teil::ch_strafzeit_hacken)  // the box stands as high as a line of its font
        ->setStyleSheet(stil::dunkle_eingaben() +
                        QString("QCheckBox { font-size: %1px; } QCheckBox::indicator { width: %2px; height: %2px; }")
                            .arg(kante * 4 / 5)
                            .arg(std::max(kante - 10, 8)));
}

void Spurblock::liste_anordnen(const platz& ort) {
    auto* liste = static_cast<QListView*>(teil(spur_teil::t_liste));
    QFont schrift = liste->font();
    schrift.setPixelSize(std::max(ort.schrift_px, 1));
    const int zeile = std::max(QFontMetrics(schrift).height(), 1);
    if (zeile > ort.ort.hoehe) {
        schrift.setPixelSize(std::max(8, ort.schrift_px * ort.ort.hoehe / zeile));
    }
    liste->setFont(schrift);
    const int hoehe = QFontMetrics(schrift).height();
    const QPalette farben = liste->palette();  // a style sheet puts its own in their place
    liste->setStyleSheet(QString("QListView { background: transparent; border: none; padding: 0px; }"
                                 "QListView::item { padding: 0px; border: none; height: %1px; }")
                             .arg(hoehe));
    liste->setPalette(farben);
    const int zeilen = std::max(ort.ort.hoehe / hoehe, 1);
    liste->resize(ort.ort.breite, std::min(zeilen * hoehe, ort.ort.hoehe));  // no row is cut through
    liste->scrollTo(liste->currentIndex());
}

void Spurblock::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    constexpr double rahmen_anteil = 0.0065;  // of the window's height: it is seen from afar
    const bool im_ziel = randfarbe_.isValid();
    const double strich = im_ziel ? std::max(rahmen_anteil * window()->height(), 5.0) : 1;
    const double innen = std::max(3.0, strich / 2);
    const QRectF rand = QRectF(rect()).adjusted(innen, innen, -innen, -innen);
    const lagefarbe farbe = bild_von(bahn_.lage[spur_].stand().was).farbe;
    if (farbe == lagefarbe::strafe || farbe == lagefarbe::aus) {  // locked or out: barred all round
        const QRectF ganz(rect());
        QPainterPath rahmen;
        rahmen.addRoundedRect(ganz, 10, 10);
        maler.setClipPath(rahmen);
        const double neben_texten = std::max(geometrie_.streifen.x, 3);
        const double dick = std::min(std::max(rahmen_anteil * window()->height(), 4.0), neben_texten);
        schraffieren(maler, ganz, 2 * dick, farbe == lagefarbe::aus ? QColor(110, 114, 122) : QColor(Qt::white),
                     Qt::black);
        maler.setClipping(false);
        maler.setPen(Qt::NoPen);
        maler.setBrush(grundfarbe_);
        maler.drawRect(ganz.adjusted(dick, dick, -dick, -dick));
        streifen_malen(maler);
        return;
    }
    maler.setPen(QPen(im_ziel ? randfarbe_ : QColor(52, 56, 64), strich));
    maler.setBrush(grundfarbe_);
    maler.drawRoundedRect(rand, 10, 10);
    streifen_malen(maler);
}

void Spurblock::streifen_malen(QPainter& maler) const {
    maler.setPen(Qt::NoPen);
    maler.setBrush(spurfarbe_);
    maler.drawRoundedRect(
        QRectF(geometrie_.streifen.x, geometrie_.streifen.y, geometrie_.streifen.breite, geometrie_.streifen.hoehe), 3,
        3);
}

}  // namespace tarvel::ui
