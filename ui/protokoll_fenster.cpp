#include "ui/protokoll_fenster.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "core/namensspalten.h"
#include "ui/stil.h"
#include "ui/tabellenblatt.h"

namespace tarvel::ui {
namespace {

constexpr int logspalte_breite = 240;
constexpr int logspalte_breite_max = 420;
constexpr int fleck_px = 12;
/// A refused crossing stands out, on light and on dark ground.
struct Auszeichnung {
    QColor grund;
    QColor schrift;
};

Auszeichnung abgelehnt_farben() {
    const bool dunkel = QGuiApplication::palette().base().color().lightness() < 128;
    return dunkel ? Auszeichnung{{74, 32, 38}, {255, 176, 180}} : Auszeichnung{{253, 234, 236}, stil::akzent};
}

/// Each row has as many lines as its names need.
class Umbruchzeilen final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& wie, const QModelIndex& zeile) const override {
        constexpr QMargins rand(9, 4, 9, 4);  // around the letters
        constexpr int zeilen_max = 10;        // a damaged log may hold any name
        const int breite = static_cast<const QListView*>(wie.widget)->viewport()->width();
        const QRect platz = QRect(0, 0, breite, zeilen_max * wie.fontMetrics.lineSpacing());
        const QRect text = wie.fontMetrics.boundingRect(platz.marginsRemoved(QMargins(rand.left(), 0, rand.right(), 0)),
                                                        Qt::TextWordWrap, zeile.data().toString());
        return {breite, std::min(text.height(), platz.height()) + rand.top() + rand.bottom()};
    }
};

}  // namespace

QString Protokollmodell::text(std::size_t zeile, spalte welche) const {
    const geschehen& g = logik_.zeile(zeile);
    switch (welche) {
        case zeit:
            return QString::fromStdString(logik_.zeit_von(g));
        case spur:
            return g.spur == 0 ? "" : QString::number(g.spur);
        case fahrer:
            return QString::fromStdString(logik_.fahrername(g));
        default:
            return QString::fromStdString(logik_.worte_von(g));
    }
}

QVariant Protokollmodell::data(const QModelIndex& zelle, int rolle) const {
    if (!zelle.isValid() || static_cast<std::size_t>(zelle.row()) >= logik_.zeilen().size()) {
        return {};
    }
    const auto zeile = static_cast<std::size_t>(zelle.row());
    const auto welche = static_cast<spalte>(zelle.column());
    const geschehen& g = logik_.zeile(zeile);
    const bool abgelehnt = g.ist_abgelehnt();
    switch (rolle) {
        case Qt::DisplayRole:
            return text(zeile, welche);
        case Qt::ToolTipRole:
            return welche == was || welche == fahrer ? text(zeile, welche) : QVariant();
        case Qt::TextAlignmentRole:
            return static_cast<int>((welche == zeit ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        case Qt::DecorationRole: {
            if (welche != spur || g.spur == 0) {
                return {};
            }
            QPixmap fleck(fleck_px, fleck_px);
            fleck.fill(stil::farbe_von(logik_.einst().farben_spur[g.spur]));
            return fleck;
        }
        case Qt::BackgroundRole:
            return abgelehnt ? QVariant(abgelehnt_farben().grund) : QVariant();
        case Qt::ForegroundRole:
            return abgelehnt ? QVariant(abgelehnt_farben().schrift) : QVariant();
        default:
            return {};
    }
}

QVariant Protokollmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || abschnitt < 0 || abschnitt >= spalten_anzahl) {
        return {};
    }
    if (rolle == Qt::TextAlignmentRole) {
        return static_cast<int>((abschnitt == zeit ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (rolle == Qt::ToolTipRole && abschnitt == zeit) {
        return QString::fromStdString(logik_.zeit_tipp());
    }
    return rolle == Qt::DisplayRole
               ? QVariant(QString::fromStdString(logik_.spalten().at(static_cast<std::size_t>(abschnitt))))
               : QVariant();
}

void Protokollmodell::neuerInhalt() {
    beginResetModel();
    zeilen_ = static_cast<int>(logik_.zeilen().size());
    endResetModel();
}

ProtokollFenster::ProtokollFenster(protokollfenster& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                   QWidget* eltern)
    : Ablagefenster(logik, verwaltung, eltern), logik_(logik) {
    const teile t = aufteilen(logspalte_breite, logik.Label_kopf, "Label_kopf", 18);
    dateispalte_fuellen(t);
    QVBoxLayout* rechts = t.rechts;
    rechts->addWidget(stil::leise(binder().label(logik.Label_hinweis, "Label_hinweis")));
    rechts->addLayout(filterzeile());
    rechts->addLayout(artenfeld());
    streifen_ = new Protokollstreifen(logik, this);
    rechts->addWidget(streifen_);
    rechts->addWidget(tabelle(), 1);
    rechts->addLayout(fusszeile());
    logik.inhalt_neu = [this] { inhalt_neu(); };
    logik.wahl_neu = [this] { wahl_zeigen(); };
    logik.ausschnitt_neu = [this] { streifen_->neuerBlick(); };
    logik.drucken = [this] { drucken(); };
    logik.als_pdf = [this, &ablage] { pdf_speichern(ablage); };
    setMinimumSize(760, 480);
    resize(1180, 760);
    inhalt_neu();
}

void ProtokollFenster::dateispalte_fuellen(const teile& t) {
    t.links->addWidget(stil::leise(binder().label(logik_.Label_dateien, "Label_dateien")));
    QListView* liste = binder().listenfeld(logik_.List_dateien, "List_dateien");
    liste->setWordWrap(true);
    liste->setUniformItemSizes(false);
    liste->setTextElideMode(Qt::ElideNone);
    liste->setItemDelegate(new Umbruchzeilen(liste));
    liste->setResizeMode(QListView::Adjust);
    dateispalte_ = t.spalte;
    t.links->addWidget(liste, 1);
    binder().verbinden(logik_.Frame_dateien, t.spalte, "Frame_dateien", {});
}

QLayout* ProtokollFenster::filterzeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(binder().label(logik_.Label_spur, "Label_spur"));
    QComboBox* spur = binder().auswahlfeld(logik_.cbo_spur, "cbo_spur");
    spur->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // a choice keeps keys for itself, and in a pause they are the race's
    QObject::connect(spur, &QComboBox::activated, this, [this] { tabelle_->setFocus(); });
    zeile->addWidget(spur);
    zeile->addStretch(1);
    zeile->addWidget(binder().knopf(logik_.Command_groesser, "Command_groesser", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_kleiner, "Command_kleiner", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_ganz, "Command_ganz", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_drucken, "Command_drucken", "schmal"));
    zeile->addWidget(binder().knopf(logik_.Command_pdf, "Command_pdf", "schmal"));
    return zeile;
}

QLayout* ProtokollFenster::artenfeld() {
    constexpr int spalten = 5;
    auto* felder = new QGridLayout;
    felder->setHorizontalSpacing(14);
    felder->setVerticalSpacing(2);
    for (int i = 0; i < static_cast<int>(logik_.Check_gruppe.size()); ++i) {
        haken& kasten = logik_.Check_gruppe.at(static_cast<std::size_t>(i));
        felder->addWidget(binder().kasten(kasten, "Check_gruppe_" + QString::number(i)), i / spalten, i % spalten);
    }
    return felder;
}

QTableView* ProtokollFenster::tabelle() {
    tabelle_ = new QTableView(this);
    tabelle_->setObjectName("protokoll.tabelle");
    modell_ = new Protokollmodell(logik_, tabelle_);
    tabelle_->setModel(modell_);
    tabelle_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabelle_->setSelectionMode(QAbstractItemView::SingleSelection);
    tabelle_->setShowGrid(false);
    tabelle_->setTabKeyNavigation(false);
    tabelle_->setWordWrap(false);
    tabelle_->verticalHeader()->hide();
    tabelle_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);  // nobody measures ten thousand rows
    tabelle_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    tabelle_->horizontalHeader()->setHighlightSections(false);
    tabelle_->horizontalHeader()->setStretchLastSection(true);
    tabelle_->setColumnWidth(Protokollmodell::spur, 3 * fontMetrics().height() + fleck_px);
    QObject::connect(tabelle_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                     [this](const QModelIndex& neu) {
                         if (neu.isValid()) {
                             logik_.waehlen(neu.row());
                         }
                     });
    return tabelle_;
}

QLayout* ProtokollFenster::fusszeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(stil::fensterknopf(binder().knopf(logik_.Command_wiedergabe, "Command_wiedergabe")));
    zeile->addStretch(1);
    zeile->addWidget(stil::fensterknopf(binder().knopf(logik_.Command_weiter, "Command_weiter")));
    zeile->addWidget(stil::fensterknopf(binder().hauptknopf(logik_.Command_schliessen, "Command_schliessen")));
    return zeile;
}

/// Whole names; what happened keeps the larger part.
void ProtokollFenster::spalten_legen() {
    constexpr int zellrand_px = 12;
    const int em = fontMetrics().height();
    int breite = 10 * em;
    for (const int spur : alle_spuren) {
        const QString name = QString::fromStdString(logik_.fahrer(spur));
        breite = std::max(breite, tabelle_->fontMetrics().horizontalAdvance(name) + zellrand_px);
    }
    tabelle_->setColumnWidth(Protokollmodell::fahrer, std::min(breite, 18 * em));
    const QString zeittitel = QString::fromStdString(logik_.spalten().at(Protokollmodell::zeit));
    tabelle_->setColumnWidth(Protokollmodell::zeit,
                             std::max(5 * em, tabelle_->fontMetrics().horizontalAdvance(zeittitel) + 2 * zellrand_px));
}

void ProtokollFenster::inhalt_neu() {
    modell_->neuerInhalt();
    spalten_legen();
    tabelle_->setAccessibleName(windowTitle());
    streifen_->setAccessibleName(windowTitle());
    streifen_->neuerInhalt();
    wahl_zeigen();
}

void ProtokollFenster::wahl_zeigen() {
    const QModelIndex zelle = modell_->index(logik_.gewaehlt(), 0);
    if (zelle.isValid()) {
        tabelle_->selectionModel()->setCurrentIndex(zelle,
                                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        tabelle_->scrollTo(zelle);
        // once more when all above it have taken their room
        QTimer::singleShot(0, tabelle_, [this] { tabelle_->scrollTo(tabelle_->currentIndex()); });
    } else {
        tabelle_->selectionModel()->clear();
    }
    tabelle_->viewport()->update();
    streifen_->neuerBlick();
}

void ProtokollFenster::resizeEvent(QResizeEvent* ereignis) {
    Ablagefenster::resizeEvent(ereignis);
    dateispalte_->setFixedWidth(std::clamp(width() * 22 / 100, logspalte_breite, logspalte_breite_max));
}

void ProtokollFenster::aufschlagen() {
    Ablagefenster::aufschlagen();
    tabelle_->setFocus();
}

blattseiten ProtokollFenster::seiten() const {
    const streifeninhalt inhalt = [this] {
        streifeninhalt alles = streifeninhalt_bilden(logik_);
        alles.gewaehlt = -1;
        return alles;
    }();
    tabellenblatt blatt{windowTitle(), QString::fromStdString(logik_.kopf()), {}, {}};
    std::vector<std::string> namen;
    namen.reserve(spuren_max);
    for (const int spur : alle_spuren) {
        namen.push_back(logik_.fahrer(spur));
    }
    constexpr std::size_t name_mindestens = 20;
    const std::size_t breite = namensbreite(namen, name_mindestens);
    const auto zeile = [breite](const QString& zeit, const QString& spur, const QString& fahrer, const QString& was) {
        return zeit.rightJustified(12) + "  " + spur.leftJustified(5) +
               QString::fromStdString(tarvel::eingepasst(fahrer.toStdString(), breite)) + "  " + was;
    };
    const auto& kopf = logik_.spalten();
    const auto wort = [&](std::size_t i) { return QString::fromStdString(kopf.at(i)); };
    blatt.spalten = zeile(wort(0), wort(1), wort(2), wort(3));
    for (std::size_t i = 0; i < logik_.zeilen().size(); ++i) {
        using m = Protokollmodell;
        blatt.zeilen.push_back({zeile(modell_->text(i, m::zeit), modell_->text(i, m::spur), modell_->text(i, m::fahrer),
                                      modell_->text(i, m::was)),
                                logik_.zeile(i).ist_abgelehnt()});
    }
    const blattseiten liste = tabellenseiten(blatt);
    const auto bild = [inhalt, blatt](QPainter& maler, const QSizeF& groesse) {
        constexpr double kopf_hoehe = 175;  // all measures in tenths of a millimetre
        constexpr double zeile_hoehe_max = 220;
        constexpr double schrift = 38;
        blatttext(maler, {0, 0, groesse.width(), 85}, Qt::AlignLeft, blatt.titel, {78, true, stil::schrift});
        blatttext(maler, {0, 90, groesse.width(), 55}, Qt::AlignLeft, blatt.kopf, {44, false, stil::schrift_leise});
        const double hoehe =
            std::min(groesse.height() - kopf_hoehe,
                     70 + inhalt.legende.hoehe(schrift) +
                         zeile_hoehe_max * static_cast<double>(std::max<std::size_t>(inhalt.zeilen.size(), 1)));
        streifen_malen(maler, {0, kopf_hoehe, groesse.width(), hoehe}, inhalt, schrift, stil::auf_papier());
    };
    return {windowTitle(), [liste](const QSizeF& groesse) { return 1 + liste.anzahl(groesse); },
            [liste, bild](QPainter& maler, const QSizeF& groesse, int nummer) {
                if (nummer == 0) {
                    bild(maler, groesse);
                } else {
                    liste.zeichnen(maler, groesse, nummer - 1);
                }
            }};
}

void ProtokollFenster::drucken() {
    blatt_drucken(this, seiten(), [this] { logik_.druck_misslungen(); });
}

void ProtokollFenster::pdf_speichern(const dateien& ablage) {
    ui::pdf_speichern(this, logik_.Command_pdf, ablage, logik_.blatt_datei(),
                      {[alle = seiten()](const QString& pfad) { return blatt_als_pdf(pfad, alle); },
                       [this] { logik_.pdf_misslungen(); }, logik_.papierdatei()});
}

}  // namespace tarvel::ui
