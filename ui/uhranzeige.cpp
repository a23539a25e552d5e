#include "ui/uhranzeige.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/stil.h"

namespace tarvel::ui {

namespace {

constexpr double schrift_titel = 420;  // design units

}  // namespace

Uhranzeige::Uhranzeige(rennuhr_felder& uhr, int nummer, double entwurf, Binder& binder, QWidget* eltern)
    : QWidget(eltern) {
    const QString ziffer = QString::number(nummer);
    auto* gestapelt = new QVBoxLayout(this);
    gestapelt->setContentsMargins(0, 0, 0, 0);
    gestapelt->setSpacing(0);
    TextAnzeige* titel = binder.beschriftung(schrift_titel);
    gestapelt->addWidget(titel);
    auto* aufbau = new QHBoxLayout;
    aufbau->setSpacing(0);
    gestapelt->addLayout(aufbau, 1);
    aufbau->addStretch();

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
        TextAnzeige* anzeige = binder.anzeige(t.element, t.name, entwurf);
        anzeige->setFett(true);
        anzeige->setMusterText(t.muster);
        aufbau->addWidget(anzeige);
    }
    aufbau->addStretch();
    binder.verbinden(uhr.uhrframe, this, "uhrframe" + ziffer, [this, &uhr, titel] {
        titel->setText(QString::fromStdString(uhr.uhrframe.text()));
        if (uhr.uhrframe.schriftfarbe()) {
            titel->setFarbe(stil::farbe_von(*uhr.uhrframe.schriftfarbe()));
        }
    });
}

}  // namespace tarvel::ui
