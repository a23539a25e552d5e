#include "ui/w_auswertung2_fenster.h"

#include <QAction>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "core/dateien.h"
#include "results/rundenverlauf.h"
#include "ui/blattausgabe.h"
#include "ui/eingabefelder.h"
#include "ui/korrekturfeld.h"
#include "ui/korrekturtasten.h"
#include "ui/namenseinpassung.h"
#include "ui/stil.h"
#include "ui/w_auswertung2_teile.h"

namespace tarvel::ui {
namespace {

constexpr int dateispalte_breite = 236;
constexpr int dateispalte_breite_max = 460;
constexpr int einzug_px = 6;
constexpr int zellrand_px = 3;  // that Qt adds to the text of a cell
constexpr double schrift_min_px = 13;
constexpr double schrift_max_px = 30;
constexpr int ordner_zeilen = 5;

}  // namespace

QSize Ergebniszeichner::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*zelle*/) const {
    return {breite, static_cast<int>(QFontMetricsF(schrift).height() * 1.25)};
}

void Ergebniszeichner::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& zelle) const {
    QStyledItemDelegate::initStyleOption(option, zelle);
    option->font = schrift;
    option->font.setBold(logik_.ist_kopf(static_cast<std::size_t>(zelle.row())));
}

WAuswertung2Fenster::WAuswertung2Fenster(w_auswertung2& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                         QWidget* eltern)
    : Ablagefenster(logik, verwaltung, eltern), logik_(logik) {
    const teile t = aufteilen(dateispalte_breite, logik.Label_datei, "Label_datei", 20);
    dateispalte_ = t.spalte;
    dateispalte_fuellen(t.links);
    // Beside the other ways to paper it is too wide for a small screen.
    t.kopfzeile->addWidget(binder().knopf(logik.Command_protokoll, "Command_protokoll", "schmal"));
    t.kopfzeile->addWidget(binder().knopf(logik.Command_urkunden, "Command_urkunden", "schmal"));
    QVBoxLayout* rechts = t.rechts;
    rechts->addLayout(blickzeile());
    rechts->addLayout(rennzeile());
    rechts->addWidget(tabelle(), 1);
    blatt_ = new Blattbild(this);
    verlauf_ = new Rundendiagramm(this);
    vergleich_ = new Vergleichsbild(this);
    auto* rollfeld = new QScrollArea(this);
    rollfeld->setFrameShape(QFrame::NoFrame);
    rollfeld->setStyleSheet(
        "QScrollArea { border: 2px solid transparent; }"
        "QScrollArea:focus { border: 2px solid #c41e2a; }");  // the arrow keys scroll it
    rollfeld->setWidgetResizable(true);
    rollfeld->setWidget(vergleich_);
    const std::array<QWidget*, 3> bilder{blatt_, verlauf_, rollfeld};
    for (std::size_t i = 0; i < bilder.size(); ++i) {
        binder().verbinden(logik.Frame_blick.at(i + 1), bilder.at(i), "Frame_blick_" + QString::number(i + 1), {});
        rechts->addWidget(bilder.at(i), 1);
    }
    for (QWidget* feld :
         {korrekturfeld(logik.korrektur, binder(), this), klassenfeld(), sortierfeld(), speicherfeld()}) {
        rechts->addWidget(feld);
    }
    rechts->addLayout(befehlszeile());
    rechts->addLayout(fusszeile());
    korrekturtasten(this, logik.Command_zurueck, logik.Command_wieder);
    logik.zeichnen = [this] { zeichnen(); };
    logik.drucken = [this] { drucken(); };
    logik.als_pdf = [this, &ablage] { pdf_speichern(ablage); };
    setMinimumSize(900, 560);
    resize(1180, 760);
}

void WAuswertung2Fenster::dateispalte_fuellen(QVBoxLayout* aufbau) {
    QLabel* hinweis = stil::leise(binder().label(logik_.Label1, "Label1"));
    hinweis->setWordWrap(true);
    aufbau->addWidget(hinweis);
    for (std::size_t i = 0; i < logik_.Command19.size(); ++i) {
        aufbau->addWidget(binder().knopf(logik_.Command19.at(i), "Command19_" + QString::number(i), "schmal"));
    }
    QLabel* ordner = stil::leise(binder().label(logik_.Label_ordner, "Label_ordner"));
    ordner->setWordWrap(true);
    ordner->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    aufbau->addWidget(ordner);
    QListView* unterordner = binder().listenfeld(logik_.Dir1, "Dir1");
    unterordner->setFixedHeight(ordner_zeilen * fontMetrics().height() * 5 / 4);
    aufbau->addWidget(unterordner);
    QListView* dateien = binder().listenfeld(logik_.File1, "File1");
    dateien->setTextElideMode(Qt::ElideMiddle);
    dateien->setItemDelegate(new Dateinamen(
        [this](const QString& datei) { return QString::fromStdString(logik_.anzeigename(datei.toStdString())); },
        dateien));
    for (QListView* liste : {unterordner, dateien}) {
        liste->setProperty(Listenfeld::fokus_waehlt, true);
    }
    aufbau->addWidget(dateien, 1);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(8);
    for (const auto& [element, name] : {std::pair{&logik_.Command4, "Command4"}, {&logik_.Command2, "Command2"}}) {
        QPushButton* knopf = binder().knopf(*element, name);
        knopf->setMinimumHeight(stil::knopfhoehe - 4);
        knoepfe->addWidget(knopf, 1);
    }
    aufbau->addLayout(knoepfe);
}

QLayout* WAuswertung2Fenster::blickzeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(4);
    for (std::size_t i = 0; i < logik_.Command_blick.size(); ++i) {
        zeile->addWidget(binder().knopf(logik_.Command_blick.at(i), "Command_blick_" + QString::number(i), "schmal"));
    }
    zeile->addStretch(1);
    zeile->addWidget(binder().knopf(logik_.Command_drucken, "Command_drucken", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_pdf, "Command_pdf", "schmal"));
    return zeile;
}

QLayout* WAuswertung2Fenster::rennzeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(binder().label(logik_.Label_rennen, "Label_rennen"));
    QComboBox* rennen = binder().auswahlfeld(logik_.cbo_rennen, "cbo_rennen");
    rennen->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    zeile->addWidget(rennen);
    zeile->addStretch(1);
    zeile->addWidget(binder().knopf(logik_.Command_zurueck, "Command_zurueck", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_wieder, "Command_wieder", "schmal"));
    return zeile;
}

QWidget* WAuswertung2Fenster::tabelle() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QVBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(3);
    QLabel* fuehrung = binder().label(logik_.Label_fuehrung, "Label_fuehrung");
    fuehrung->setStyleSheet("font-weight: bold;");
    fuehrung->setWordWrap(true);
    aufbau->addWidget(fuehrung);
    kopf_ = new Tabellenkopf(einzug_px + zellrand_px, this);
    binder().verbinden(logik_.Label_kopf, kopf_, "Label_kopf", [this] { skalieren(); });
    aufbau->addWidget(kopf_);
    zeilen_ = binder().listenfeld(logik_.auswertung_schoen, "auswertung_schoen");
    zeilen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    zeilen_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    zeilen_->setAlternatingRowColors(true);
    zeilen_->setStyleSheet(QString("QListView::item { padding: 0px %1px; }").arg(einzug_px));
    zeichner_ = new Ergebniszeichner(logik_, this);
    zeilen_->setItemDelegate(zeichner_);
    speicherzeilen_im_menue();
    QObject::connect(zeilen_->model(), &QAbstractItemModel::modelReset, this, [this] { skalieren(); });
    QObject::connect(zeilen_->horizontalScrollBar(), &QScrollBar::valueChanged, kopf_, &Tabellenkopf::setVersatz);
    constexpr int vier_zeilen = 92;
    stil::nimmt_den_rest(zeilen_, vier_zeilen);
    aufbau->addWidget(zeilen_, 1);
    auto* unten = new QHBoxLayout;
    unten->setSpacing(4);
    unten->addWidget(binder().knopf(logik_.Command10, "Command10", "schmal"));
    unten->addWidget(binder().knopf(logik_.command9, "command9", "schmal"));
    unten->addWidget(binder().knopf(logik_.Command11, "Command11", "schmal"));
    unten->addStretch(1);
    aufbau->addLayout(unten);
    binder().verbinden(logik_.Frame_blick[0], feld, "Frame_blick_0", {});
    return feld;
}

/// The lines in memory are for who looks for a fault: behind the right mouse button.
void WAuswertung2Fenster::speicherzeilen_im_menue() {
    auto* punkt = new QAction(zeilen_);
    punkt->setObjectName("w_auswertung2.Command13_menue");
    QObject::connect(punkt, &QAction::triggered, this, [this] { logik_.Command13.klicken(); });
    zeilen_->addAction(punkt);
    zeilen_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* traeger = new QWidget(this);  // stands for it among the widgets, takes no room
    traeger->resize(0, 0);
    binder().verbinden(logik_.Command13, traeger, "Command13",
                       [this, punkt] { punkt->setText(QString::fromStdString(logik_.Command13.text())); });
}

QWidget* WAuswertung2Fenster::klassenfeld() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame_klassen, "Frame_klassen");
    auto* aufbau = new QVBoxLayout(kasten);
    aufbau->setContentsMargins(10, 2, 10, 6);
    aufbau->setSpacing(4);
    auto* klassen = new QGridLayout;
    klassen->setHorizontalSpacing(14);
    klassen->setVerticalSpacing(2);
    constexpr int je_reihe = 12;
    for (std::size_t i = 0; i < logik_.Check1.size(); ++i) {
        const int nummer = static_cast<int>(i);
        klassen->addWidget(binder().kasten(logik_.Check1.at(i), "Check1_" + QString::number(i)), nummer / je_reihe,
                           nummer % je_reihe);
    }
    klassen->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, je_reihe);
    aufbau->addLayout(klassen);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(4);
    for (const auto& [element, name] : {std::pair{&logik_.Command8, "Command8"},
                                        {&logik_.Command1, "Command1"},
                                        {&logik_.Command21, "Command21"},
                                        {&logik_.Command6, "Command6"}}) {
        knoepfe->addWidget(binder().knopf(*element, name, "schmal"));
    }
    knoepfe->addStretch(1);
    aufbau->addLayout(knoepfe);
    return kasten;
}

QWidget* WAuswertung2Fenster::sortierfeld() {
    auto* feld = new QWidget(this);
    auto* aufbau = new QHBoxLayout(feld);
    aufbau->setContentsMargins(0, 0, 0, 0);
    aufbau->setSpacing(14);
    aufbau->addWidget(binder().label(logik_.Label10, "Label10"));
    for (std::size_t i = 0; i < logik_.opt_sortieren_nach.size(); ++i) {
        aufbau->addWidget(
            binder().wahlknopf(logik_.opt_sortieren_nach.at(i), "opt_sortieren_nach_" + QString::number(i)));
    }
    aufbau->addStretch(1);
    binder().verbinden(logik_.Frame_sortieren, feld, "Frame_sortieren", {});
    return feld;
}

QWidget* WAuswertung2Fenster::speicherfeld() {
    QGroupBox* kasten = binder().gruppe(logik_.Frame7, "Frame7");
    auto* aufbau = new QHBoxLayout(kasten);
    aufbau->setContentsMargins(10, 2, 10, 6);
    aufbau->setSpacing(8);
    QLineEdit* name = binder().zeile(logik_.Text3, "Text3");
    QPushButton* speichern = binder().hauptknopf(logik_.Command17, "Command17");
    QObject::connect(name, &QLineEdit::returnPressed, speichern, [this] { logik_.Command17.klicken(); });
    aufbau->addWidget(name, 1);
    aufbau->addWidget(speichern);
    aufbau->addWidget(binder().knopf(logik_.Command12, "Command12"));
    return kasten;
}

QLayout* WAuswertung2Fenster::befehlszeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(4);
    for (const auto& [element, name] : {std::pair{&logik_.Command3, "Command3"},
                                        {&logik_.Command22, "Command22"},
                                        {&logik_.Command20, "Command20"},
                                        {&logik_.Command18, "Command18"}}) {
        zeile->addWidget(binder().knopf(*element, name, "schmal"));  // else too wide for a small screen
    }
    zeile->addStretch(1);
    return zeile;
}

QLayout* WAuswertung2Fenster::fusszeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    QLabel* hinweis = stil::leise(binder().label(logik_.korrekturzeile, "korrekturzeile"));
    hinweis->setWordWrap(true);
    zeile->addWidget(hinweis, 1);
    zeile->addStretch(0);
    zeile->addWidget(stil::fensterknopf(binder().knopf(logik_.Command16, "Command16")));
    zeile->addWidget(stil::fensterknopf(binder().hauptknopf(logik_.Command5, "Command5")));
    return zeile;
}

void WAuswertung2Fenster::aufschlagen() {
    Ablagefenster::aufschlagen();
    skalieren();
}

void WAuswertung2Fenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    dateispalte_->setFixedWidth(std::clamp(width() * 25 / 100, dateispalte_breite, dateispalte_breite_max));
    layout()->activate();  // the letters go by the room that this leaves
    skalieren();
}

/// The letters are as large as the columns leave them; more columns than that are scrolled.
void WAuswertung2Fenster::skalieren() {
    if (zeichner_ == nullptr) {
        return;  // while the window is being made
    }
    const int rollbalken = zeilen_->verticalScrollBar()->sizeHint().width();  // comes only after the lines
    const double platz = zeilen_->contentsRect().width() - rollbalken - 2 * einzug_px - 8;
    constexpr std::size_t zeichen_mindestens = 60;
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    schrift.setPixelSize(namen_einpassen(*zeilen_, logik_.auswertung_schoen, logik_.namen(),
                                         {platz, schrift_min_px, schrift_max_px, zeichen_mindestens}));
    const QString kopf = kopf_einpassen(*zeilen_, logik_.Label_kopf.text());
    const std::size_t zeichen =
        std::max(static_cast<std::size_t>(kopf.size()), laengste_zeile(*zeilen_, logik_.auswertung_schoen));
    kopf_->setText(kopf);
    kopf_->setSchrift(schrift);
    zeichner_->schrift = schrift;
    zeichner_->breite =
        static_cast<int>(QFontMetricsF(schrift).horizontalAdvance('0') * static_cast<double>(zeichen)) + 2 * einzug_px;
    zeilen_->doItemsLayout();
}

void WAuswertung2Fenster::zeichnen() {
    using blick = w_auswertung2::blick;
    if (logik_.gezeigt() == blick::blatt) {
        blatt_->setBlatt(blatt_bilden());
    } else if (logik_.gezeigt() == blick::verlauf) {
        verlauf_->setInhalt(blatt_bilden().bild);
    } else if (logik_.gezeigt() == blick::vergleich) {
        vergleich_->setInhalt(vergleich_bilden());
    }
}

ergebnisblatt WAuswertung2Fenster::blatt_bilden() const {
    const einstellungen& einst = logik_.einst();
    const rennergebnis& rennen = *logik_.rennen();
    return ergebnisblatt_bilden(
        rennen, {logik_.titel.text(), logik_.kopf(), logik_.wort_strafzeit(), logik_.blatt, logik_.blattkopf().zeile()},
        {rundenverlauf_bilden(rennen), einst.farben_spur, logik_.diagramm, einst.trennzeichen});
}

vergleichsbild_inhalt WAuswertung2Fenster::vergleich_bilden() const {
    const auto& wort = logik_.vergleichswort;
    const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
    return {logik_.vergleich(),
            logik_.einst().trennzeichen,
            text(wort.titel),
            text(logik_.kopf()),
            text(logik_.vergleichsachse()),
            text(wort.beste),
            text(wort.median),
            text(wort.streuung),
            text(wort.zeiten),
            text(wort.leer)};
}

tabellenblatt WAuswertung2Fenster::tabelle_bilden() const {
    tabellenblatt blatt{QString::fromStdString(logik_.titel.text()),
                        QString::fromStdString(logik_.kopf()),
                        QString::fromStdString(logik_.Label_kopf.text()),
                        {}};
    const auto& zeilen = logik_.auswertung_schoen.zeilen();
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        blatt.zeilen.push_back({QString::fromStdString(zeilen[i]), logik_.ist_kopf(i)});
    }
    return blatt;
}

blattseiten WAuswertung2Fenster::seiten_bilden() const {
    return logik_.gezeigt() == w_auswertung2::blick::vergleich ? vergleichsseiten(vergleich_bilden())
                                                               : tabellenseiten(tabelle_bilden());
}

void WAuswertung2Fenster::drucken() {
    const auto bei_fehler = [this] { logik_.druck_misslungen(); };
    if (logik_.rennen()) {
        ergebnisblatt_drucken(this, blatt_bilden(), bei_fehler);
    } else {
        blatt_drucken(this, seiten_bilden(), bei_fehler);
    }
}

void WAuswertung2Fenster::pdf_speichern(const dateien& ablage) {
    std::function<bool(const QString&)> schreiben;  // what is shown now, whatever follows meanwhile
    if (logik_.rennen()) {
        schreiben = [blatt = blatt_bilden()](const QString& pfad) { return ergebnisblatt_pdf(pfad, blatt); };
    } else {
        schreiben = [seiten = seiten_bilden()](const QString& pfad) { return blatt_als_pdf(pfad, seiten); };
    }
    ui::pdf_speichern(this, logik_.Command_pdf, ablage, logik_.blatt_datei(),
                      {schreiben, [this] { logik_.pdf_misslungen(); }, logik_.papierdatei()});
}

WAuswDebugFenster::WAuswDebugFenster(w_ausw_debug& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    QListView* zeilen = binder().listenfeld(logik.zeilenliste, "zeilenliste");
    zeilen->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    zeilen->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    zeilen->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    zeilen->setUniformItemSizes(false);
    aufbau->addWidget(zeilen);
    resize(820, 520);
}

}  // namespace tarvel::ui
