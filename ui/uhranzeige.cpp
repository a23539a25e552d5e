#include "ui/uhranzeige.h"

#include <QEvent>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "race/spurgeometrie.h"
#include "ui/stil.h"

namespace tarvel::ui {

Uhranzeige::Uhranzeige(rennuhr_felder& uhr, int nummer, Binder& binder, QWidget* eltern)
    : QWidget(eltern), titel_(new TextAnzeige(this)) {
    struct teil {
        bezeichnung& element;
        QString name;
        QString muster;
    };
    const bool erste = nummer == 1;
    for (const teil& t : {teil{uhr.stunden, erste ? "labelstd1" : "Labelstd2", "00"},
                          teil{uhr.nach_stunden, erste ? "Label10" : "Label11", ":"},
                          teil{uhr.minuten, erste ? "labelmin1" : "Labelmin2", "00"},
                          teil{uhr.nach_minuten, erste ? "Label7" : "Label6", ":"},
                          teil{uhr.sekunden, erste ? "labelsec1" : "Labelsec2", "00"},
                          teil{uhr.nach_sekunden, erste ? "Label8" : "Label9", ","},
                          teil{uhr.tausendstel, erste ? "labelhun1" : "Labelhun2", "000"}}) {
        TextAnzeige* anzeige = binder.anzeige(t.element, t.name);
        anzeige->setParent(this);
        anzeige->setFett(true);
        teile_.push_back({anzeige, t.muster});
    }
    for (const Teil& t : teile_) {
        t.anzeige->installEventFilter(this);
    }
    binder.verbinden(uhr.uhrframe, this, "uhrframe" + QString::number(nummer), [this, &uhr] {
        titel_->setText(QString::fromStdString(uhr.uhrframe.text()));
        if (uhr.uhrframe.schriftfarbe()) {
            titel_->setFarbe(stil::farbe_von(*uhr.uhrframe.schriftfarbe()));
        }
    });
}

void Uhranzeige::setSchriftPx(int px) {
    schrift_px_ = px;
    anordnen();
}

void Uhranzeige::anordnen() {
    constexpr int probe_px = 100;
    QFont schrift = font();
    schrift.setBold(true);
    schrift.setPixelSize(probe_px);
    const QFontMetricsF masse(schrift);
    const auto em = [&](const Teil& t) {  // with a little air, so that no digit is squeezed by rounding
        return t.anzeige->isHidden() ? 0 : masse.horizontalAdvance(t.muster) / probe_px + 0.03;
    };
    double breite_em = 0;
    for (const Teil& t : teile_) {
        breite_em += em(t);
    }
    const int lesbar = lesbar_px(window()->height());
    const int titel = std::min(std::max(height() * 19 / 100, lesbar + 2), height() / 3);
    const int hoehe_max = height() - titel;  // with the comma: below it may be the title of another clock
    const int px = std::min({schrift_px_, static_cast<int>(width() / breite_em), hoehe_max});
    const int oben = (height() - titel - px) / 2;
    titel_->setGeometry(0, oben, width(), titel);
    titel_->setSchriftPx(std::min(std::max(titel * 95 / 100, lesbar), titel));
    double x = (width() - breite_em * px) / 2;
    for (const Teil& t : teile_) {
        const double breite = em(t) * px;
        t.anzeige->setGeometry(static_cast<int>(x), oben + titel, static_cast<int>(std::ceil(breite)), px);
        t.anzeige->setSchriftPx(px);
        x += breite;
    }
}

void Uhranzeige::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    anordnen();
}

bool Uhranzeige::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() == QEvent::ShowToParent || ereignis->type() == QEvent::HideToParent) {
        anordnen();  // with the hours the rest gets less room
    }
    return QWidget::eventFilter(ziel, ereignis);
}

}  // namespace tarvel::ui
