#include "ui/auswertung_fenster.h"

#include <QHBoxLayout>
#include <QScreen>
#include <algorithm>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double zeile_entwurf_px = 104;  // height of a row at scale 1
constexpr double breite_entwurf_px = 1000;

}  // namespace

AuswertungFenster::AuswertungFenster(auswertung& logik, Bildtakt& takt, QWidget* eltern)
    : Fenster("auswertung", takt, eltern) {
    binder().fenstertitel(logik.titel);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(16, 10, 16, 12);
    QLabel* kopf = binder().label(logik.kopf_label, "kopf_label");
    QFont schrift = kopf->font();
    schrift.setPixelSize(20);
    kopf->setFont(schrift);
    aufbau->addWidget(kopf);

    reihen_ = new QVBoxLayout;
    reihen_->setSpacing(6);
    for (const int spur : alle_spuren) {
        auto* zeile = new Ergebniszeile(logik, spur, binder(), this);
        zeile->bei_umzug = [this] { ordnen(); };
        zeilen_.push_back(zeile);
        reihen_->addWidget(zeile, 1);
    }
    aufbau->addLayout(reihen_, 1);

    auto* knoepfe = new QHBoxLayout;
    QPushButton* zurueck = binder().hauptknopf(logik.Command5, "Command5");
    zurueck->setMinimumSize(200, 46);
    knoepfe->addStretch();
    knoepfe->addWidget(zurueck);
    aufbau->addLayout(knoepfe);
    setMinimumSize(760, 420);
    resize(1180, 760);
}

void AuswertungFenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = screen()->availableGeometry().size();
        resize(platz.width() * 9 / 10, platz.height() * 9 / 10);
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
    for (std::size_t i = 1; i < folge.size(); ++i) {
        setTabOrder(folge[i - 1]->tabziel(), folge[i]->tabziel());
    }
    skalieren();
}

void AuswertungFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    skalieren();
}

void AuswertungFenster::skalieren() {
    const auto gezeigt =
        std::count_if(zeilen_.begin(), zeilen_.end(), [](const auto* zeile) { return zeile->gezeigt(); });
    const double je_zeile = (height() - 130.0) / static_cast<double>(std::max<std::ptrdiff_t>(gezeigt, 1)) - 6;
    const double skala = std::clamp(std::min(je_zeile / zeile_entwurf_px, width() / breite_entwurf_px), 0.6, 1.9);
    binder().skala(skala);
    for (Ergebniszeile* zeile : zeilen_) {
        zeile->skalieren(skala);
    }
}

}  // namespace tarvel::ui
