#include "ui/korrekturfeld.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int feld_breite_min = 78;  // of a time
constexpr int feld_breite_max = 120;

QWidget* korrekturraster(korrekturrahmen& k, Binder& binder, QWidget* eltern) {
    auto* grund = new QWidget(eltern);
    auto* raster = new QGridLayout(grund);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setHorizontalSpacing(6);
    raster->setVerticalSpacing(3);
    const std::array<std::pair<bezeichnung*, const char*>, 3> titel{
        {{&k.Label_runden, "Label_runden"}, {&k.Label_meter, "Label_meter"}, {&k.Label_beste, "Label_beste"}}};
    for (std::size_t i = 0; i < titel.size(); ++i) {
        raster->addWidget(binder.label(*titel.at(i).first, titel.at(i).second), static_cast<int>(i) + 1, 0);
    }
    for (std::size_t i = 0; i < korrekturrahmen::teile_max; ++i) {
        const int spalte = static_cast<int>(i) + 1;
        const QString nummer = "_" + QString::number(i);
        raster->addWidget(stil::leise(binder.label(k.Label_teil.at(i), "Label_teil" + nummer)), 0, spalte);
        const auto eingabe = [&](feld& element, const QString& name, int zeile) {
            QLineEdit* widget = binder.zeile(element, name + nummer);
            widget->setMinimumWidth(feld_breite_min);
            widget->setMaximumWidth(feld_breite_max);
            widget->setStyleSheet("QLineEdit { padding: 3px 4px; font-size: 13px; }");
            raster->addWidget(widget, zeile, spalte);
        };
        eingabe(k.aus_runden.at(i), "aus_runden", 1);
        if (i < k.aus_meter.size()) {
            eingabe(k.aus_meter.at(i), "aus_meter", 2);
        }
        eingabe(k.aus_beste.at(i), "aus_beste", 3);
    }
    raster->setColumnStretch(static_cast<int>(korrekturrahmen::teile_max) + 1, 1);
    auto* rollfeld = new QScrollArea(eltern);  // heats are more than the window is wide
    rollfeld->setFrameShape(QFrame::NoFrame);
    rollfeld->setWidgetResizable(true);
    rollfeld->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rollfeld->setFocusPolicy(Qt::NoFocus);
    rollfeld->setWidget(grund);
    for (QWidget* ohne_farbe : {static_cast<QWidget*>(rollfeld), rollfeld->viewport(), grund}) {
        ohne_farbe->setAutoFillBackground(false);
    }
    rollfeld->setFixedHeight(grund->sizeHint().height() + rollfeld->horizontalScrollBar()->sizeHint().height());
    return rollfeld;
}

QLayout* zeitzeile(korrekturrahmen& k, Binder& binder) {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(6);
    zeile->addWidget(binder.label(k.Label_zeit, "Label_zeit"));
    const std::array<std::pair<feld*, const char*>, 4> teile{{{&k.w_aus_std, "w_aus_std"},
                                                              {&k.w_aus_min, "w_aus_min"},
                                                              {&k.w_aus_sec, "w_aus_sec"},
                                                              {&k.w_aus_hun, "w_aus_hun"}}};
    for (std::size_t i = 0; i < teile.size(); ++i) {
        QLineEdit* eingabe = binder.zeile(*teile.at(i).first, teile.at(i).second);
        eingabe->setFixedWidth(52);
        zeile->addWidget(eingabe);
        zeile->addWidget(stil::leise(binder.label(k.Label_einheit.at(i), "Label_einheit_" + QString::number(i))));
    }
    zeile->addStretch(1);
    return zeile;
}

QLayout* korrekturknoepfe(korrekturrahmen& k, Binder& binder) {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(binder.knopf(k.meter_berechnen, "meter_berechnen"));
    zeile->addStretch(1);
    zeile->addWidget(binder.hauptknopf(k.Command14, "Command14"));
    zeile->addWidget(binder.knopf(k.Command15, "Command15"));
    return zeile;
}

}  // namespace

QWidget* korrekturfeld(korrekturrahmen& k, Binder& binder, QWidget* eltern) {
    QGroupBox* kasten = binder.gruppe(k.Frame2, "Frame2");
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setContentsMargins(10, 2, 10, 6);
    aufbau->setSpacing(6);
    auto* oben = new QHBoxLayout;
    oben->setSpacing(8);
    oben->addWidget(binder.label(k.Label_name, "Label_name"));
    oben->addWidget(binder.zeile(k.Text2, "Text2"), 1);
    oben->addWidget(binder.label(k.lbl_klasse, "lbl_klasse"));
    QComboBox* klasse = binder.auswahlfeld(k.cbo_klasse, "cbo_klasse");
    klasse->setMinimumContentsLength(3);
    oben->addWidget(klasse);
    aufbau->addLayout(oben);
    aufbau->addWidget(korrekturraster(k, binder, eltern));
    aufbau->addLayout(zeitzeile(k, binder));
    aufbau->addLayout(korrekturknoepfe(k, binder));
    return kasten;
}

}  // namespace tarvel::ui
