#include "ui/bestzeiten_fenster.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int spur_breite = 92;
constexpr int name_breite = 284;  // thirty letters; of a vehicle fewer, for a small screen
constexpr int fahrzeug_breite = 244;
constexpr int zeit_breite = 136;
constexpr int alt_breite = 92;
constexpr int zeichen_groesse = 26;
constexpr QMargins block_rand(22, 8, 12, 8);

/// A card with a frame in the colour of its lane.
class Spurzeiten : public QWidget {
public:
    using QWidget::QWidget;
    void setFarbe(const QColor& farbe) {
        farbe_ = farbe;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        maler.setRenderHint(QPainter::Antialiasing);
        const QRectF flaeche = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
        const QPen duenn(QColor(0, 0, 0, 60), 1);  // a pale colour is seen on the card as well
        maler.setPen(duenn);
        maler.setBrush(farbe_);
        maler.drawRoundedRect(flaeche, 8, 8);
        maler.setBrush(stil::auf_dem_schirm().karte);
        maler.drawRoundedRect(flaeche.adjusted(11, 3, -3, -3), 5, 5);
    }

private:
    QColor farbe_;
};

/// The columns of the blocks, and of the captions over them.
QHBoxLayout* spalten(QWidget* traeger, const std::vector<QWidget*>& zellen) {
    auto* aufbau = new QHBoxLayout(traeger);
    aufbau->setContentsMargins(block_rand);
    aufbau->setSpacing(10);
    const std::vector<int> breiten{spur_breite, 0, 0, zeit_breite, alt_breite, zeichen_groesse};
    for (std::size_t i = 0; i < zellen.size(); ++i) {
        if (breiten.at(i) > 0) {
            zellen[i]->setFixedWidth(breiten.at(i));
        } else {
            zellen[i]->setMinimumWidth(i == 1 ? name_breite : fahrzeug_breite);
        }
        const bool kasten = i == 0;  // its text would begin at the upper edge
        aufbau->addWidget(zellen[i], breiten.at(i) > 0 ? 0 : 1, kasten ? Qt::AlignVCenter : Qt::Alignment());
    }
    return aufbau;
}

}  // namespace

BestzeitenFenster::BestzeitenFenster(beste_zeiten_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(6);
    QLabel* hinweis = binder().label(logik.Label1, "Label1");
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    QLabel* gruen = stil::leise(binder().label(logik.Label_gruen, "Label_gruen"));
    gruen->setWordWrap(true);
    aufbau->addWidget(gruen);
    aufbau->addWidget(kopfzeile());
    for (const int spur : alle_spuren) {
        aufbau->addWidget(spurblock(spur));
    }
    aufbau->addStretch();
    auto* knoepfe = new QHBoxLayout;
    QPushButton* speichern = binder().hauptknopf(logik.Command1, "Command1");
    QPushButton* abbrechen = binder().knopf(logik.Command2, "Command2");
    QPushButton* zurueck = binder().knopf(logik.Command3, "Command3");
    knoepfe->addWidget(stil::fensterknopf(zurueck));
    knoepfe->addStretch();
    knoepfe->addWidget(stil::fensterknopf(speichern));
    knoepfe->addWidget(stil::fensterknopf(abbrechen));
    setTabOrder(zurueck, speichern);
    setTabOrder(speichern, abbrechen);
    aufbau->addLayout(knoepfe);
}

QWidget* BestzeitenFenster::kopfzeile() {
    auto* zeile = new QWidget(this);
    std::vector<QWidget*> zellen{new QWidget};
    for (std::size_t i = 0; i < logik_.Label_kopf.size(); ++i) {
        QLabel* titel = stil::leise(binder().label(logik_.Label_kopf.at(i), "Label_kopf_" + QString::number(i)));
        zellen.push_back(titel);
    }
    zellen.push_back(new QWidget);
    QHBoxLayout* aufbau = spalten(zeile, zellen);
    aufbau->setContentsMargins(block_rand.left(), 4, block_rand.right(), 0);
    return zeile;
}

QWidget* BestzeitenFenster::spurblock(int spur) {
    const std::size_t i = feld_index(spur);
    const QString nummer = "_" + QString::number(i);
    auto* block = new Spurzeiten(this);
    spalten(block, {binder().kasten(logik_.spur_chk.at(i), "spur_chk" + nummer),
                    binder().zeile(logik_.btext_name.at(i), "btext_name" + nummer),
                    binder().zeile(logik_.btext_kfz.at(i), "btext_kfz" + nummer),
                    binder().auswahlfeld(logik_.beste_combo.at(i), "beste_combo" + nummer),
                    binder().label(logik_.beste_alt.at(i), "beste_alt" + nummer), zeichen(spur)});
    rahmen& frame = logik_.Frame.at(i);
    binder().verbinden(frame, block, "Frame" + nummer,
                       [block, &frame] { block->setFarbe(stil::farbe_von(frame.schriftfarbe().value_or(0))); });
    return block;
}

QWidget* BestzeitenFenster::zeichen(int spur) {
    const std::size_t i = feld_index(spur);
    auto* fleck = new QLabel(this);
    fleck->setFixedSize(zeichen_groesse, zeichen_groesse);
    fleck->setAlignment(Qt::AlignCenter);
    form& shape = logik_.Shape1.at(i);
    binder().verbinden(shape, fleck, "Shape1_" + QString::number(i), [fleck, &shape] {
        const bool gruen = shape.hintergrund().has_value();
        const QColor grund = gruen ? stil::farbe_von(*shape.hintergrund()) : QColor(236, 238, 241);
        fleck->setText(gruen ? QString::fromUtf8("✓") : QString());
        fleck->setStyleSheet(QString("background: %1; color: white; font-weight: bold;"
                                     "border: 1px solid %2; border-radius: %3px;")
                                 .arg(grund.name(), gruen ? grund.darker(120).name() : QString("#aab1bd"))
                                 .arg(zeichen_groesse / 2));
    });
    return fleck;
}

void BestzeitenFenster::aufschlagen() {
    if (!isVisible()) {
        constexpr int ganze_namen = 1140;          // where the screen has room for them
        resize(ganze_namen, sizeHint().height());  // as many lanes as there are
    }
    Fenster::aufschlagen();
}

}  // namespace tarvel::ui
