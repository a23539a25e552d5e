#include "ui/tagesrennen_fenster.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <utility>

#include "ui/namenseinpassung.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int klassenbreite = 66;
constexpr int listenbreite = 480;
constexpr int fahrer_hoehe_max = 900;  // so that what has been driven stands by its driver
constexpr int zeichen_je_zeile = 58;
constexpr int zeilenrand_px = 32;  // beside the columns, with the bar that scrolls
constexpr double schrift_min_px = 12;
constexpr double schrift_max_px = 22;
constexpr double schrift_anteil = 0.014;  // of the height of a window that is higher

/// A line that is filled with what belongs there: grey, and what is typed takes its place.
class Erklaerung final : public QObject {
public:
    Erklaerung(QLineEdit* zeile, std::function<bool()> noch_da)
        : QObject(zeile), zeile_(zeile), noch_da_(std::move(noch_da)) {
        zeile->installEventFilter(this);
        QObject::connect(zeile, &QLineEdit::textChanged, this, [this] { faerben(); });
        faerben();
    }

    bool eventFilter(QObject* ziel, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::FocusIn && noch_da_()) {
            QTimer::singleShot(0, zeile_, &QLineEdit::selectAll);  // a click sets its cursor first
        }
        return QObject::eventFilter(ziel, ereignis);
    }

private:
    void faerben() {
        const QString rolle = noch_da_() ? "leise" : "";
        if (zeile_->property("rolle").toString() != rolle) {
            zeile_->setProperty("rolle", rolle);
            zeile_->style()->polish(zeile_);
        }
    }

    QLineEdit* zeile_;
    std::function<bool()> noch_da_;
};

}  // namespace

TagesrennenFenster::TagesrennenFenster(tagesrennen_fenster& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    bei_aktivierung = [&logik] { logik.datei_pruefen(); };  // after a look at the file
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(8);
    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(12);
    auto* links = new QVBoxLayout;
    links->setSpacing(8);
    links->addWidget(dateigruppe());
    QWidget* fahrer = fahrergruppe();
    fahrer->setMaximumHeight(fahrer_hoehe_max);
    links->addWidget(fahrer, 1);
    links->addStretch();
    mitte->addLayout(links, 4);
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(8);
    rechts->addWidget(listengruppe(), 1);
    rechts->addWidget(klassengruppe());
    mitte->addLayout(rechts, 5);
    aufbau->addLayout(mitte, 1);
    aufbau->addLayout(fusszeile());
    resize(1100, 690);
}

QWidget* TagesrennenFenster::dateigruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_datei, "Frame_datei");
    auto* aufbau = new QVBoxLayout(gruppe);
    aufbau->setSpacing(4);
    auto* zeile = new QHBoxLayout;
    zeile->addWidget(binder().label(logik_.Label17, "Label17"));
    zeile->addWidget(binder().zeile(logik_.text_lf_datei, "text_lf_datei"), 1);
    zeile->addWidget(binder().label(logik_.Label18, "Label18"));
    aufbau->addLayout(zeile);
    auto* hinweis = stil::leise(new QLabel(this));
    hinweis->setTextFormat(Qt::PlainText);
    bezeichnung& zustand = logik_.Label_lf_hinweis;
    binder().verbinden(zustand, hinweis, "Label_lf_hinweis", [&zustand, hinweis] {
        const auto farbe = zustand.schriftfarbe();
        hinweis->setText(QString::fromStdString(zustand.text()));
        hinweis->setStyleSheet(farbe ? QString("color: %1; font-weight: bold;").arg(stil::farbe_von(*farbe).name())
                                     : QString());
    });
    aufbau->addWidget(hinweis);
    return gruppe;
}

QWidget* TagesrennenFenster::fahrergruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_fahrer, "Frame_fahrer");
    auto* raster = new QGridLayout(gruppe);
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(2);
    raster->addWidget(stil::leise(binder().label(logik_.Label_fahrer, "Label_fahrer")), 0, 2, Qt::AlignBottom);
    raster->addWidget(binder().kasten(logik_.Check1, "Check1"), 0, 3, Qt::AlignBottom);
    for (std::size_t i = 0; i < logik_.Text_fahrer.size(); ++i) {
        spurzeile(raster, i);
    }
    raster->setColumnStretch(2, 1);
    return gruppe;
}

void TagesrennenFenster::spurzeile(QGridLayout* raster, std::size_t i) {
    const QString nummer = QString::number(i);
    const int reihe = static_cast<int>(2 * i) + 1;  // below the driver what he has driven
    auto* fleck = new QLabel(this);
    fleck->setFixedSize(14, 26);
    form& farbe = logik_.spurfarbe.at(i);
    binder().verbinden(farbe, fleck, "spurfarbe_" + nummer,
                       [&farbe, fleck] { stil::fleck_faerben(fleck, farbe.hintergrund().value_or(0)); });
    raster->addWidget(fleck, reihe, 0);
    raster->addWidget(binder().label(logik_.Label_spur.at(i), "Label_spur_" + nummer), reihe, 1);
    QComboBox* fahrer = binder().auswahlfeld(logik_.Text_fahrer.at(i), "Text_fahrer_" + nummer);
    raster->addWidget(fahrer, reihe, 2);
    QComboBox* klasse = binder().auswahlfeld(logik_.lstb_klasse.at(i), "lstb_klasse_" + nummer);
    klasse->setFixedWidth(klassenbreite);
    raster->addWidget(klasse, reihe, 3);
    QLabel* bisher = stil::leise(binder().label(logik_.Label_bisher.at(i), "Label_bisher_" + nummer));
    QSizePolicy haelt_platz = bisher->sizePolicy();
    haelt_platz.setRetainSizeWhenHidden(true);
    bisher->setSizePolicy(haelt_platz);
    raster->addWidget(bisher, reihe + 1, 2, 1, 2, Qt::AlignTop);
    raster->setRowStretch(reihe + 1, 1);
    setTabOrder(fahrer, klasse);
}

QWidget* TagesrennenFenster::klassengruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_klassen, "Frame_klassen");
    auto* aufbau = new QVBoxLayout(gruppe);
    aufbau->setSpacing(2);
    for (std::size_t i = 0; i < logik_.klassen_text.size(); ++i) {
        QLineEdit* zeile = binder().zeile(logik_.klassen_text.at(i), "klassen_text_" + QString::number(i));
        zeile->setStyleSheet("font-size: 13px;");  // the lines that stand there at first have their room
        aufbau->addWidget(zeile);
        new Erklaerung(zeile, [this, i] { return logik_.vorbelegt(i); });
    }
    return gruppe;
}

QWidget* TagesrennenFenster::listengruppe() {
    QGroupBox* gruppe = binder().gruppe(logik_.Frame_liste, "Frame_liste");
    gruppe->setMinimumWidth(listenbreite);
    auto* aufbau = new QVBoxLayout(gruppe);
    aufbau->setSpacing(2);
    kopf_ = stil::leise(new QLabel(this));
    kopf_->setTextFormat(Qt::PlainText);
    kopf_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    zeilen_ = binder().listenfeld(logik_.ergebnisse, "ergebnisse");
    zeilen_->setAlternatingRowColors(true);
    binder().verbinden(logik_.Label_kopf, kopf_, "Label_kopf", [this] { skalieren(); });
    QObject::connect(zeilen_->model(), &QAbstractItemModel::modelReset, this, [this] { skalieren(); });
    aufbau->addWidget(kopf_);
    aufbau->addWidget(zeilen_, 1);
    QLabel* fuehrung = binder().label(logik_.Label_fuehrung, "Label_fuehrung");
    fuehrung->setStyleSheet("font-weight: bold;");
    fuehrung->setWordWrap(true);
    aufbau->addWidget(fuehrung);
    return gruppe;
}

void TagesrennenFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    const QMargins seiten = stil::zusammenhaltend(size(), stil::fensterrand);
    layout()->setContentsMargins(seiten.left(), stil::fensterrand.top(), seiten.right(), stil::fensterrand.bottom());
    layout()->activate();  // the lines go by the room that this leaves
    skalieren();
}

void TagesrennenFenster::skalieren() {
    const int px = namen_einpassen(*zeilen_, logik_.ergebnisse, logik_.spalten,
                                   {static_cast<double>(zeilen_->width() - zeilenrand_px), schrift_min_px,
                                    std::max(schrift_max_px, height() * schrift_anteil), zeichen_je_zeile});
    kopf_->setText(kopf_einpassen(*zeilen_, logik_.Label_kopf.text()));
    const QString art = QString("font-family: '%1', monospace; font-size: %2px;")
                            .arg(QFontDatabase::systemFont(QFontDatabase::FixedFont).family())
                            .arg(px);
    kopf_->setStyleSheet(art + " padding-left: 6px;");
    zeilen_->setStyleSheet("QListView { " + art + " }");
}

QLayout* TagesrennenFenster::fusszeile() {
    QPushButton* starten = binder().hauptknopf(logik_.Command18, "Command18");
    QPushButton* auswertung = binder().knopf(logik_.Command1, "Command1");
    QPushButton* ende = stil::fensterknopf(binder().knopf(logik_.Command20, "Command20"));
    starten->setMinimumSize(200, stil::knopfhoehe);
    auswertung->setMinimumSize(140, stil::knopfhoehe);
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(starten);
    zeile->addWidget(auswertung);
    zeile->addStretch();
    zeile->addWidget(ende);
    return zeile;
}

}  // namespace tarvel::ui
