#include "ui/rangliste_fenster.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "core/text.h"
#include "ui/namenseinpassung.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int zeichen_je_zeile = 47;
constexpr int zeilen_mindestens = 9;  // to be seen at once,
constexpr int zeilen_viele = 16;      // and where there are as many drivers
constexpr double schrift_min_px = 15;
constexpr double zeilenhoehe = 1.5;  // of the size of the letters
constexpr int einzug_px = 8;
constexpr int rollbalken_px = 16;

}  // namespace

RanglisteFenster::RanglisteFenster(rangliste& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik), schrift_(QFontDatabase::systemFont(QFontDatabase::FixedFont)) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(6);
    stand_ = binder().anzeige(logik.Label_stand, "Label_stand");
    stand_->setFett(true);
    stand_->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    aufbau->addWidget(stand_);
    kopf_ = stil::leise(new QLabel(this));
    kopf_->setTextFormat(Qt::PlainText);
    kopf_->setIndent(0);
    kopf_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    aufbau->addWidget(kopf_);
    zeilen_ = binder().listenfeld(logik.List_name, "List_name");
    zeilen_->setAlternatingRowColors(true);
    binder().verbinden(logik.Label_kopf, kopf_, "Label_kopf", [this] { skalieren(); });
    QObject::connect(zeilen_->model(), &QAbstractItemModel::rowsInserted, this, [this] { skalieren(); });
    QObject::connect(zeilen_->model(), &QAbstractItemModel::modelReset, this, [this] { skalieren(); });
    aufbau->addWidget(zeilen_, 1);
    auto* unten = new QHBoxLayout;
    unten->setSpacing(8);
    unten->addWidget(binder().label(logik.Label1, "Label1"));
    QComboBox* ordnung = binder().auswahlfeld(logik.cbo_sortierung, "cbo_sortierung");
    ordnung->setMinimumContentsLength(16);
    ordnung->setMinimumHeight(stil::knopfhoehe - 6);
    unten->addWidget(ordnung);
    unten->addStretch();
    unten->addWidget(stil::fensterknopf(binder().hauptknopf(logik.Command1, "Command1")));
    aufbau->addLayout(unten);
    setMinimumSize(560, 320);
    resize(980, 680);
}

void RanglisteFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    skalieren();
}

void RanglisteFenster::skalieren() {
    const int zeilen = std::clamp(zeilen_->model()->rowCount(), zeilen_mindestens, zeilen_viele);
    const double hoechstens = std::max(schrift_min_px, height() * 0.8 / (zeilen * zeilenhoehe));
    schrift_.setPixelSize(
        namen_einpassen(*zeilen_, logik_.List_name, logik_.spalten,
                        {static_cast<double>(zeilen_->viewport()->width() - 2 * einzug_px - rollbalken_px),
                         schrift_min_px, hoechstens, zeichen_je_zeile, laenge(logik_.Label_kopf.text())}));
    kopf_->setText(kopf_einpassen(*zeilen_, logik_.Label_kopf.text()));
    kopf_->setStyleSheet(QString("font-family: '%1', monospace; font-size: %2px; padding-left: %3px;")
                             .arg(schrift_.family())
                             .arg(schrift_.pixelSize())
                             .arg(einzug_px + 2));
    stand_->setSchriftPx(std::max(20, schrift_.pixelSize()));
    zeilen_einteilen();
    QTimer::singleShot(0, this, [this] { zeilen_einteilen(); });  // once the head has taken its room
}

/// Few rows stand wider apart; of many, none is cut at the lower edge.
void RanglisteFenster::zeilen_einteilen() {
    constexpr double innen_min = 0.12;  // of the size of the letters, above and below together
    constexpr double innen_max = 0.8;
    const double px = schrift_.pixelSize();
    const double schrift = QFontMetricsF(schrift_).height();
    const double hoehe = zeilen_->viewport()->height();
    const int ganze = std::max(1, static_cast<int>(hoehe / (schrift + px * innen_min)));
    const double je_zeile = hoehe / std::clamp(zeilen_->model()->rowCount(), 1, ganze);
    const QString regel = QString(
                              "QListView { font-family: '%1', monospace; font-size: %2px; font-weight: bold; } "
                              "QListView::item { padding: 0px %3px; height: %4px; }")
                              .arg(schrift_.family())
                              .arg(schrift_.pixelSize())
                              .arg(einzug_px)
                              .arg(static_cast<int>(std::min(je_zeile, schrift + px * innen_max)));
    if (zeilen_->styleSheet() != regel) {
        zeilen_->setStyleSheet(regel);
    }
}

}  // namespace tarvel::ui
