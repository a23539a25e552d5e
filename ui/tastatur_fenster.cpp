#include "ui/tastatur_fenster.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "core/spuren.h"
#include "ui/stil.h"

namespace tarvel::ui {

TastaturFenster::TastaturFenster(tastaturbelegung& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    QLabel* hinweis = binder().label(logik.hinweis, "hinweis");
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    auto* rollen = new QScrollArea;
    rollen->setFrameShape(QFrame::NoFrame);
    rollen->setWidgetResizable(true);
    rollen->setFocusPolicy(Qt::NoFocus);
    auto* gruppen = new QWidget;
    auto* raster = new QGridLayout(gruppen);
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setHorizontalSpacing(10);
    for (const int spur : alle_spuren) {
        raster->addWidget(gruppe(spur), (spur - 1) / 3, (spur - 1) % 3);
    }
    raster->addWidget(gruppe(0), 0, 3, 2, 1);
    rollen->setWidget(gruppen);
    aufbau->addWidget(rollen, 1);
    aufbau->addSpacing(8);
    aufbau->addWidget(befehlszeile());
    resize(940, 700);
}

QGroupBox* TastaturFenster::gruppe(int spur) {
    QGroupBox* kasten =
        binder().gruppe(logik_.Frame.at(static_cast<std::size_t>(spur)), "Frame_" + QString::number(spur));
    auto* raster = new QGridLayout(kasten);
    raster->setVerticalSpacing(4);
    int platz = 0;
    for (const tastenzeile& zeile : tastenzeilen()) {
        if (zeile.spur != spur) {
            continue;
        }
        const auto nummer = static_cast<std::size_t>(zeile.zeile);
        const QString ziffer = QString::number(zeile.zeile);
        QLineEdit* feld = binder().zeile(logik_.taste.at(nummer), "taste_" + ziffer);
        feld->setFixedWidth(46);
        feld->setAlignment(Qt::AlignCenter);
        raster->addWidget(binder().label(logik_.Label.at(nummer), "Label_" + ziffer), platz, 0);
        raster->addWidget(feld, platz, 1);
        ++platz;
    }
    raster->setColumnStretch(0, 1);
    raster->setRowStretch(platz, 1);
    return kasten;
}

QWidget* TastaturFenster::befehlszeile() {
    auto* zeile = new QWidget(this);
    auto* aufbau = new QHBoxLayout(zeile);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->addWidget(binder().knopf(logik_.Command3, "Command3"));
    aufbau->addWidget(binder().knopf(logik_.Command4, "Command4"));
    aufbau->addWidget(binder().knopf(logik_.Command5, "Command5"));
    aufbau->addStretch();
    aufbau->addWidget(stil::fensterknopf(binder().hauptknopf(logik_.Command1, "Command1")));
    aufbau->addWidget(stil::fensterknopf(binder().knopf(logik_.Command2, "Command2")));
    for (QPushButton* knopf : zeile->findChildren<QPushButton*>()) {
        knopf->setMinimumHeight(stil::knopfhoehe);
    }
    return zeile;
}

}  // namespace tarvel::ui
