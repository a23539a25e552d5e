#include "ui/urkunden_fenster.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int spalte_links = 390;  // place and long name in one line
constexpr int kasten_px = 18;      // of the box around it
constexpr int vorlage_zeichen = 16;

}  // namespace

UrkundenFenster::UrkundenFenster(urkundenfenster& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                 QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), ablage_(ablage) {
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(14);
    auto* links = new QVBoxLayout;
    links->setSpacing(10);
    links->addLayout(eingaben());
    links->addWidget(fahrerfeld(), 1);
    auto* ausgabe = new QHBoxLayout;
    ausgabe->setSpacing(8);
    for (QPushButton* knopf : {binder().hauptknopf(logik.Command_pdf, "Command_pdf"),
                               binder().knopf(logik.Command_drucken, "Command_drucken"),
                               binder().knopf(logik.Command_ende, "Command_ende")}) {
        knopf->setMinimumHeight(stil::knopfhoehe);
        ausgabe->addWidget(knopf);
    }
    links->addLayout(ausgabe);
    aufbau->addLayout(links);
    auto* rechts = new QVBoxLayout;
    bild_ = new Urkundenbild(this);
    bild_->setObjectName("urkunden.bild");
    bild_->setMinimumSize(300, 420);
    auto* leeres_blatt = new QVBoxLayout(bild_);
    QLabel* keine = binder().label(logik.Label_keine, "Label_keine");
    keine->setWordWrap(true);
    keine->setAlignment(Qt::AlignCenter);
    leeres_blatt->addWidget(keine);
    rechts->addWidget(bild_, 1);
    auto* blaettern = new QHBoxLayout;
    blaettern->addStretch(1);
    blaettern->addWidget(binder().knopf(logik.Command_zurueck, "Command_zurueck", "schmal"));
    blaettern->addWidget(binder().label(logik.Label_seite, "Label_seite"));
    blaettern->addWidget(binder().knopf(logik.Command_vor, "Command_vor", "schmal"));
    blaettern->addStretch(1);
    rechts->addLayout(blaettern);
    aufbau->addLayout(rechts, 1);
    logik.zeichnen = [this] {
        const urkunde* u = logik_.gezeigte();
        bild_->setBogen(u == nullptr ? std::nullopt : std::optional(bogen(*u)));
    };
    logik.drucken = [this] { blatt_drucken(this, seiten(), [this] { logik_.druck_misslungen(); }); };
    logik.als_pdf = [this] { pdf_speichern(); };
}

QLayout* UrkundenFenster::eingaben() {
    auto* raster = new QGridLayout;
    raster->setVerticalSpacing(6);
    const auto zeile = [&](int reihe, bezeichnung& label, const char* name, QWidget* eingabe) {
        raster->addWidget(binder().label(label, name), reihe, 0);
        eingabe->setMinimumWidth(spalte_links - 100);
        raster->addWidget(eingabe, reihe, 1);
    };
    zeile(0, logik_.Label_verein, "Label_verein", binder().zeile(logik_.verein, "verein"));
    zeile(1, logik_.Label_veranstaltung, "Label_veranstaltung", binder().zeile(logik_.veranstaltung, "veranstaltung"));
    QComboBox* vorlage = binder().auswahlfeld(logik_.vorlage, "vorlage");
    vorlage->setMinimumContentsLength(vorlage_zeichen);
    zeile(2, logik_.Label_vorlage, "Label_vorlage", vorlage);
    return raster;
}

QWidget* UrkundenFenster::fahrerfeld() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_fahrer, "Frame_fahrer");
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setSpacing(6);
    QListView* liste = binder().listenfeld(logik_.fahrer, "fahrer");
    liste->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    liste->setMinimumWidth(spalte_links - 2 * kasten_px);
    liste_ = liste;
    aufbau->addWidget(liste, 1);
    auto* unten = new QHBoxLayout;
    unten->addWidget(binder().kasten(logik_.dabei, "dabei"), 1);
    unten->addWidget(binder().knopf(logik_.Command_alle, "Command_alle", "schmal"));
    unten->addWidget(binder().knopf(logik_.Command_keiner, "Command_keiner", "schmal"));
    aufbau->addLayout(unten);
    return kasten;
}

/// One of many races has no lane whose colour it could have.
urkundenbogen UrkundenFenster::bogen(const urkunde& u) const {
    const QColor farbton = u.spur > 0 ? stil::farbe_von(logik_.einst().farben_spur[u.spur]) : stil::akzent;
    return bogen_bilden(ablage_, logik_.gezeigte_vorlage(), u, farbton);
}

void UrkundenFenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = schirm_des_leiters()->availableGeometry().size();
        const int hoch = platz.height() * 9 / 10;
        resize(spalte_links + 80 + hoch * 5 / 7, hoch);
    }
    Fenster::aufschlagen();
}

/// Names have a quarter of a large window, and in a smaller one what the sheet leaves.
void UrkundenFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    constexpr int lange_namen = 460;
    const int neben_dem_bogen = width() - height() * 5 / 7 - 80;
    liste_->setMinimumWidth(std::max({spalte_links, width() / 4, std::min(lange_namen, neben_dem_bogen)}) -
                            2 * kasten_px);
}

blattseiten UrkundenFenster::seiten() const {
    std::vector<urkundenbogen> boegen;
    for (const urkunde& u : logik_.gewaehlte()) {
        boegen.push_back(bogen(u));
    }
    return urkundenseiten(QString::fromStdString(logik_.titel.text()), std::move(boegen));
}

void UrkundenFenster::pdf_speichern() {
    const QString anzahl =
        QString("%1: %2").arg(QString::fromStdString(logik_.titel.text())).arg(logik_.gewaehlte().size());
    ui::pdf_speichern(this, logik_.Command_pdf, ablage_, logik_.pdf_datei(),
                      {[alle = seiten()](const QString& pfad) { return blatt_als_pdf(pfad, alle); },
                       [this] { logik_.pdf_misslungen(); }, logik_.papierdatei(), anzahl});
}

}  // namespace tarvel::ui
