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
constexpr int zeilen_mindestens = 9;  // to be seen at once
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
    const double hoechstens = std::max(schrift_min_px, height() * 0.8 / (zeilen_mindestens * zeilenhoehe));
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

/// Few rows stand wider apart.
void RanglisteFenster::zeilen_einteilen() {
    const double px = schrift_.pixelSize();
    const double je_zeile =
        zeilen_->viewport()->height() / static_cast<double>(std::max(1, zeilen_->model()->rowCount()));
    const double innen = std::clamp((je_zeile - QFontMetricsF(schrift_).height()) / 2 - 1, px * 0.06, px * 0.4);
    const QString regel = QString(
                              "QListView { font-family: '%1', monospace; font-size: %2px; font-weight: bold; } "
                              "QListView::item { padding: %3px %4px; }")
                              .arg(schrift_.family())
                              .arg(schrift_.pixelSize())
                              .arg(static_cast<int>(innen))
                              .arg(einzug_px);
    if (zeilen_->styleSheet() != regel) {
        zeilen_->setStyleSheet(regel);
    }
}

}  // namespace tarvel::ui
