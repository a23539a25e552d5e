#include "ui/tx_fenster.h"

#include <QVBoxLayout>

#include "hardware/form5.h"
#include "hardware/s6_fragefenster.h"
#include "ui/stil.h"

namespace tarvel::ui {

Form5Fenster::Form5Fenster(form5& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    QLabel* stand = binder().label(logik.Label1, "Label1");
    stand->setStyleSheet("font-size: 20px; font-weight: bold;");
    QLabel* folge = binder().label(logik.Label2, "Label2");
    QLabel* hinweis = stil::leise(binder().label(logik.hinweis, "hinweis"));
    for (QLabel* label : {stand, folge, hinweis}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        aufbau->addWidget(label);
    }
    aufbau->addStretch();
    aufbau->addLayout(stil::knopfzeile({binder().knopf(logik.Command1, "Command1")}));
    resize(480, 210);
}

S6FrageFenster::S6FrageFenster(s6_fragefenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->addWidget(modusgruppe());
    aufbau->addWidget(neustartgruppe());
    resize(480, 340);
}

QWidget* S6FrageFenster::modusgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_modus, "Frame_modus");
    auto* spalte = new QVBoxLayout(kasten);
    spalte->setSpacing(8);
    int nummer = 0;
    for (haken& eine : logik_.Option1) {
        spalte->addWidget(binder().wahlknopf(eine, "Option1_" + QString::number(nummer++)));
    }
    QLabel* datei = stil::leise(binder().label(logik_.Label_datei, "Label_datei"));
    datei->setIndent(26);
    spalte->addWidget(datei);
    spalte->addStretch();
    spalte->addLayout(stil::knopfzeile({binder().hauptknopf(logik_.Command1, "Command1")}));
    return kasten;
}

QWidget* S6FrageFenster::neustartgruppe() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_neustart, "Frame_neustart");
    auto* spalte = new QVBoxLayout(kasten);
    spalte->setSpacing(10);
    QLabel* text = binder().label(logik_.Label_neustart, "Label_neustart");
    text->setWordWrap(true);
    spalte->addWidget(text);
    QPushButton* fortsetzen = binder().hauptknopf(logik_.Command2, "Command2");
    fortsetzen->setMinimumHeight(stil::knopfhoehe);
    spalte->addWidget(fortsetzen);
    spalte->addStretch();
    spalte->addWidget(binder().label(logik_.Label_mit, "Label_mit"));
    for (QPushButton* knopf :
         {binder().knopf(logik_.Command3, "Command3"), binder().knopf(logik_.Command4, "Command4")}) {
        knopf->setMinimumHeight(stil::knopfhoehe);
        spalte->addWidget(knopf);
    }
    return kasten;
}

}  // namespace tarvel::ui
