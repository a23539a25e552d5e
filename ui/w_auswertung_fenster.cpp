#include "ui/w_auswertung_fenster.h"

#include <QFocusEvent>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/dateien.h"
#include "ui/stil.h"
#include "ui/wettkampfblatt.h"

namespace tarvel::ui {
namespace {

constexpr double klein_anteil = 0.62;  // of the large letters
constexpr double kopf_anteil = 0.66;
constexpr int kopfrand_px = 12;
constexpr double zeile_je_px = 2.1;  // height of a row
constexpr double dehnung_max = 1.4;  // where there are few
constexpr int standzeilen_mindestens = 8;
constexpr double standschrift_min_px = 14;
constexpr double zeilen_anteil = 0.8;         // of the height of the window
constexpr double schrift_max_anteil = 0.045;  // of the height of the rows together
constexpr int zeilen_viele = 16;              // to be seen at once, where there are as many
constexpr double schieben_anteil = 0.026;     // likewise, where not all columns are in sight anyway
constexpr double balken_anteil = 0.24;        // of the width
constexpr double balken_anteil_min = 0.18;
constexpr double schrift_klein_px = 17;    // from here on the letters come before the bars
constexpr double name_max_em = 11;         // for which the letters are as large as they can be
constexpr double anteil_fuer_namen = 0.8;  // of that size, down to which longer ones stay whole

}  // namespace

WAuswertungFenster::WAuswertungFenster(w_auswertung& logik, const dateien& ablage, Fensterverwaltung& verwaltung,
                                       QWidget* eltern)
    : Fenster(logik, verwaltung, eltern), logik_(logik) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    aufbau->setSpacing(6);
    stand_ = binder().anzeige(logik.Label_stand, "Label_stand");
    stand_->setFett(true);
    stand_->setAusrichtung(Qt::AlignLeft | Qt::AlignVCenter);
    aufbau->addWidget(stand_);
    werte_ = stil::leise(binder().label(logik.Label3, "Label3"));
    aufbau->addWidget(werte_);
    aufbau->addWidget(tabelle(), 1);
    schieber_ = new QScrollBar(Qt::Horizontal, this);
    schieber_->setFocusPolicy(Qt::TabFocus);  // without a mouse too
    schieber_->setStyleSheet("QScrollBar:focus { border: 1px solid #c41e2a; border-radius: 5px; }");
    schieber_->setObjectName("w_auswertung.schieber");
    aufbau->addWidget(schieber_);
    QScrollBar* innen = mitte_->horizontalScrollBar();
    QObject::connect(schieber_, &QScrollBar::valueChanged, innen, &QScrollBar::setValue);
    QObject::connect(innen, &QScrollBar::valueChanged, schieber_, &QScrollBar::setValue);
    QObject::connect(innen, &QScrollBar::rangeChanged, schieber_, [this, innen](int von, int bis) {
        schieber_->setPageStep(innen->pageStep());
        schieber_->setRange(von, bis);
        schieber_->setVisible(bis > von);
    });
    schieber_->hide();
    aufbau->addLayout(knopfzeile());
    logik.drucken = [this] { drucken(); };
    logik.als_pdf = [this, &ablage] { pdf_speichern(ablage); };
    logik.rollen = [this](int zeile) { gleich_rollen(zeile); };
    setMinimumSize(760, 420);
    resize(1180, 760);
}

QLabel* WAuswertungFenster::kopf(bezeichnung& element, const QString& name, Qt::Alignment ausrichtung) {
    QLabel* widget = stil::leise(new QLabel(this));
    widget->setTextFormat(&element == &logik_.Label_balken ? Qt::RichText : Qt::PlainText);
    widget->setAlignment(ausrichtung | Qt::AlignVCenter);
    binder().verbinden(element, widget, name, [this, &element, widget] {
        widget->setText(QString::fromStdString(element.text()));
        QString regel = "padding: 0 6px;";
        if (element.hintergrund()) {
            const QColor farbe = stil::farbe_von(*element.hintergrund());
            regel = QString(
                        "background: %1; color: %2; border: 1px solid #aab1bd; border-radius: 5px; padding: 0 4px;"
                        "margin: 0 3px; font-weight: bold;")
                        .arg(farbe.name(), stil::schrift_auf(farbe).name());
        }
        widget->setStyleSheet(regel);
        skalieren_vormerken();
    });
    return widget;
}

void WAuswertungFenster::spalte_anlegen(QHBoxLayout* aufbau, liste& element, QLabel* kopf, const QString& name,
                                        Qt::Alignment ausrichtung) {
    auto* feld = new QWidget(this);
    auto* saeule = new QVBoxLayout(feld);
    saeule->setContentsMargins(0, 0, 0, 0);
    saeule->setSpacing(3);
    saeule->addWidget(kopf);
    QListView* zeilen = binder().listenfeld(element, name);
    const bool balken = &element == &logik_.List_balken;
    if (balken) {
        kopf->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    Standzeichner* zeichner = balken ? new Balkenzeichner(mass_, logik_.balken(), logik_.farben(), this)
                                     : new Standzeichner(mass_, ausrichtung, this);
    zeilen->setItemDelegate(zeichner);
    zeilen->setStyleSheet(
        "QListView { border: none; border-top: 2px solid #aab1bd; border-radius: 0; }"
        "QListView[mit_tasten=\"true\"]:focus { border-top-color: #c41e2a; }");
    zeilen->setVerticalScrollBarPolicy(balken ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    zeilen->setFocusPolicy(&element == &logik_.List_name ? Qt::StrongFocus : Qt::ClickFocus);  // one way through a row
    zeilen->installEventFilter(this);
    QObject::connect(zeilen->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int n) { gleich_rollen(n); });
    QObject::connect(zeilen->model(), &QAbstractItemModel::modelReset, this, [this] { skalieren_vormerken(); });
    QObject::connect(zeilen->model(), &QAbstractItemModel::rowsInserted, this, [this] { skalieren_vormerken(); });
    saeule->addWidget(zeilen, 1);
    aufbau->addWidget(feld, balken ? 1 : 0);
    spalten_.push_back(
        {element, feld, kopf, zeilen, zeichner,
         aufbau->parentWidget() != nullptr && mitte_ != nullptr && aufbau->parentWidget() == mitte_->widget()});
}

QWidget* WAuswertungFenster::tabelle() {
    auto* karte = new QWidget(this);
    auto* reihe = new QHBoxLayout(karte);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(0);
    const auto anlegen = [&](QHBoxLayout* aufbau, liste& element, const QString& name, bezeichnung& ueber,
                             const QString& kopfname, Qt::Alignment ausrichtung) {
        spalte_anlegen(aufbau, element, kopf(ueber, kopfname, ausrichtung), name, ausrichtung);
    };
    anlegen(reihe, logik_.List_platz, "List_platz", logik_.Label1, "Label1", Qt::AlignRight);
    spalten_.front().zeilen->viewport()->installEventFilter(this);
    anlegen(reihe, logik_.List_name, "List_name", logik_.Label2, "Label2", Qt::AlignLeft);
    anlegen(reihe, logik_.List_gesamt, "List_gesamt", logik_.Label_gesamt, "Label_gesamt", Qt::AlignRight);
    mitte_ = new QScrollArea(this);
    mitte_->setFrameShape(QFrame::NoFrame);
    mitte_->setWidgetResizable(true);
    mitte_->setFocusPolicy(Qt::NoFocus);
    mitte_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // in a row of its own: the lists end at one height
    mitte_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* innen = new QWidget(mitte_);
    auto* je = new QHBoxLayout(innen);
    je->setContentsMargins(0, 0, 0, 0);
    je->setSpacing(0);
    mitte_->setWidget(innen);
    for (std::size_t i = 0; i < w_auswertung::je_max; ++i) {
        anlegen(je, logik_.List_je.at(i), "List_je_" + QString::number(i), logik_.Label_je.at(i),
                "Label_je_" + QString::number(i), Qt::AlignHCenter);
    }
    reihe->addWidget(mitte_);
    anlegen(reihe, logik_.List_zeit, "List_zeit", logik_.Label_zeit, "Label_zeit", Qt::AlignRight);
    anlegen(reihe, logik_.List_balken, "List_balken", logik_.Label_balken, "Label_balken", Qt::AlignLeft);
    return karte;
}

QLayout* WAuswertungFenster::knopfzeile() {
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    const auto anfuegen = [zeile](QPushButton* knopf) {
        knopf->setMinimumHeight(stil::knopfhoehe);  // and as wide as its caption: there are many of them
        zeile->addWidget(knopf);
    };
    for (auto [element, name] : {std::pair{&logik_.Command1, "Command1"}, {&logik_.Command2, "Command2"}}) {
        anfuegen(binder().knopf(*element, name));
    }
    zeile->addStretch();
    anfuegen(binder().knopf(logik_.Command_urkunden, "Command_urkunden"));
    anfuegen(binder().knopf(logik_.Command_drucken, "Command_drucken"));
    anfuegen(binder().knopf(logik_.Command_pdf, "Command_pdf"));
    anfuegen(binder().hauptknopf(logik_.Command_schliessen, "Command_schliessen"));
    return zeile;
}

void WAuswertungFenster::gleich_rollen(int zeile) {
    for (const spalte& eine : spalten_) {
        eine.zeilen->verticalScrollBar()->setValue(zeile);
    }
    const QListView* namen = spalten_.front().zeilen;
    logik_.gerollt(namen->verticalScrollBar()->value(), namen->viewport()->height() / mass_.zeilenhoehe);
}

void WAuswertungFenster::drucken() {
    blatt_drucken(this, wettkampfseiten(logik_.blatt()), [this] { logik_.druck_misslungen(); });
}

void WAuswertungFenster::pdf_speichern(const dateien& ablage) {
    ui::pdf_speichern(  // as it stands now, whatever follows meanwhile
        this, logik_.Command_pdf, ablage, logik_.blatt_datei(),
        {[seiten = wettkampfseiten(logik_.blatt())](const QString& pfad) { return blatt_als_pdf(pfad, seiten); },
         [this] { logik_.pdf_misslungen(); }, logik_.papierdatei()});
}

void WAuswertungFenster::aufschlagen() {
    if (!isVisible()) {
        const QSize platz = schirm_des_leiters()->availableGeometry().size();
        resize(platz.width() * 19 / 20, platz.height() * 9 / 10);
    }
    Fenster::aufschlagen();
    skalieren();
}

void WAuswertungFenster::resizeEvent(QResizeEvent* ereignis) {
    Fenster::resizeEvent(ereignis);
    skalieren_vormerken();
}

/// Once for all the lists that have changed.
void WAuswertungFenster::skalieren_vormerken() {
    if (!std::exchange(vorgemerkt_, true)) {
        QTimer::singleShot(0, this, [this] {
            vorgemerkt_ = false;
            skalieren();
        });
    }
}

void WAuswertungFenster::schriften_setzen(double px) {
    mass_.gross = font();
    mass_.gross.setPixelSize(static_cast<int>(px));
    mass_.gross.setBold(true);
    mass_.klein = font();
    mass_.klein.setPixelSize(std::max(11, static_cast<int>(px * klein_anteil)));
    QFont kopf = font();
    kopf.setPixelSize(std::max(12, static_cast<int>(px * kopf_anteil)));
    for (const spalte& eine : spalten_) {
        eine.kopf->setFont(kopf);
    }
    werte_->setFont(kopf);
    schieber_->setAccessibleName(werte_->text());
    stand_->setSchriftPx(std::max(static_cast<int>(px), 24));
}

int WAuswertungFenster::breite_von(const spalte& eine) const {
    const int zeilen = eine.zeichner->breite(*eine.zeilen);
    if (&eine.logik == &logik_.List_name) {
        return std::max(std::min(zeilen, name_max_px_), eine.kopf->sizeHint().width());
    }
    return std::max(zeilen, eine.kopf->sizeHint().width());
}

int WAuswertungFenster::breite_der_spalten() const {
    int breite = 0;
    for (const spalte& eine : spalten_) {
        breite += eine.logik.sichtbar() && &eine != &spalten_.back() ? breite_von(eine) : 0;
    }
    return breite;
}

/// Beside the bars; what the columns need more than that, with names up to `name_em` wide, is above 0.
double WAuswertungFenster::ueberstand(double px, double name_em, int platz) {
    schriften_setzen(px);
    name_max_px_ = static_cast<int>(name_em * mass_.gross.pixelSize());
    return breite_der_spalten() - platz * (1 - (px > schrift_klein_px ? balken_anteil : balken_anteil_min));
}

/// The columns grow with their letters, but for their margins: each step comes closer and none goes too far.
double WAuswertungFenster::passende_schrift(int platz, int hoehe) {
    const int zeilen = std::clamp(spalten_.front().zeilen->model()->rowCount(), 1, zeilen_viele);
    double px = std::max(standschrift_min_px, hoehe * std::min(schrift_max_anteil, 1 / (zeilen * zeile_je_px)));
    while (true) {
        const double zuviel = ueberstand(px, name_max_em, platz);
        if (zuviel <= 0) {
            return schrift_fuer_ganze_namen(px, platz);
        }
        if (px <= standschrift_min_px) {
            break;
        }
        const double breite = breite_der_spalten();
        px = std::max(standschrift_min_px, std::min(px - 0.5, px * (breite - zuviel) / breite));
    }
    px = std::max(standschrift_min_px, hoehe * schieben_anteil);
    ueberstand(px, name_max_em, platz);
    return px;
}

/// Whole names may cost some of the size; longer ones have the room that is left.
double WAuswertungFenster::schrift_fuer_ganze_namen(double px, int platz) {
    constexpr double beliebig_em = 100;
    const double mindestens = std::max(standschrift_min_px, px * anteil_fuer_namen);
    double zuviel = ueberstand(px, beliebig_em, platz);
    while (zuviel > 0 && px > mindestens) {
        px = std::max(mindestens, px - 0.5);
        zuviel = ueberstand(px, beliebig_em, platz);
    }
    if (zuviel > 0) {
        const auto namen = std::find_if(spalten_.begin(), spalten_.end(),
                                        [this](const spalte& eine) { return &eine.logik == &logik_.List_name; });
        name_max_px_ = breite_von(*namen) - static_cast<int>(std::ceil(zuviel));
    }
    return px;
}

/// As large as the columns leave it.
void WAuswertungFenster::skalieren() {
    const int platz = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    schrift_px_ = passende_schrift(platz, static_cast<int>(height() * zeilen_anteil));
    spalten_.back().kopf->setText(balkenkopf());
    breiten_setzen(platz);
    zeilen_einteilen();
}

/// The heads take their room when the window is laid out.
bool WAuswertungFenster::eventFilter(QObject* wer, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize && schrift_px_ > 0 && wer == spalten_.front().zeilen->viewport()) {
        zeilen_einteilen();
    }
    if (ereignis->type() == QEvent::FocusIn) {
        const Qt::FocusReason grund = static_cast<QFocusEvent*>(ereignis)->reason();
        tasten_zeigen(wer, grund == Qt::TabFocusReason || grund == Qt::BacktabFocusReason);
    } else if (ereignis->type() == QEvent::KeyPress) {
        tasten_zeigen(wer, true);
    }
    return Fenster::eventFilter(wer, ereignis);
}

/// Under the head of a single column the mark of the focus would look like that of an order: only who uses the keys
/// has it.
void WAuswertungFenster::tasten_zeigen(QObject* wer, bool mit_tasten) {
    auto* zeilen = qobject_cast<QListView*>(wer);
    if (zeilen != nullptr && zeilen->property("mit_tasten").toBool() != mit_tasten) {
        zeilen->setProperty("mit_tasten", mit_tasten);
        zeilen->style()->unpolish(zeilen);
        zeilen->style()->polish(zeilen);
    }
}

void WAuswertungFenster::zeilen_einteilen() {
    const int hoehe = spalten_.front().zeilen->viewport()->height();
    const double grund = schrift_px_ * zeile_je_px;
    const int gezeigt = std::clamp(std::max(spalten_.front().zeilen->model()->rowCount(), standzeilen_mindestens), 1,
                                   std::max(1, static_cast<int>(hoehe / grund)));
    mass_.zeilenhoehe = static_cast<int>(std::clamp(static_cast<double>(hoehe) / gezeigt, grund, grund * dehnung_max));
    mass_.mit_sieger = !logik_.balken().empty() && logik_.balken().front().gesamt > 0;
    for (const spalte& eine : spalten_) {
        eine.zeilen->doItemsLayout();
        eine.zeilen->viewport()->update();
    }
    gleich_rollen(spalten_.front().zeilen->verticalScrollBar()->value());
}

/// Where the columns are heats, the colours of the lanes stand nowhere else.
QString WAuswertungFenster::balkenkopf() const {
    QString text = QString::fromStdString(logik_.Label_balken.text()).toHtmlEscaped();
    for (const int spur : alle_spuren) {
        if (logik_.je_heat() && logik_.spur_aktiv()[spur]) {
            const QColor farbe = stil::farbe_von(logik_.farben()[spur]);
            text += QString("&nbsp; <span style='background-color:%1; color:%2;'>&nbsp;%3&nbsp;</span>")
                        .arg(farbe.name(), stil::schrift_auf(farbe).name())
                        .arg(spur);
        }
    }
    return text;
}

/// Of those that are scrolled through none is cut, where there is room for one.
int WAuswertungFenster::ganze_spalten(int platz) {
    int breite = 0;
    int schritt = 1;
    for (const spalte& eine : spalten_) {
        if (eine.je && eine.logik.sichtbar()) {
            const int mit_dieser = breite + breite_von(eine);
            schritt = std::max(schritt, mit_dieser - breite);
            if (mit_dieser > platz) {
                break;
            }
            breite = mit_dieser;
        }
    }
    schieber_->setSingleStep(schritt);
    return breite > 0 ? breite : platz;
}

void WAuswertungFenster::breiten_setzen(int platz) {
    int je = 0;
    int andere = static_cast<int>(platz * balken_anteil_min);
    const int kopfhoehe = spalten_.front().kopf->fontMetrics().height() + kopfrand_px;
    for (const spalte& eine : spalten_) {
        eine.feld->setVisible(eine.logik.sichtbar());
        if (eine.logik.sichtbar() && &eine != &spalten_.back()) {
            const int breite = breite_von(eine);
            eine.feld->setFixedWidth(breite);
            (eine.je ? je : andere) += breite;
        }
    }
    for (const spalte& eine : spalten_) {
        eine.kopf->setFixedHeight(kopfhoehe);
    }
    mitte_->widget()->setMinimumWidth(je);
    mitte_->setFixedWidth(ganze_spalten(std::clamp(platz - andere, std::min(je, platz / 5), std::max(je, 0))));
}

}  // namespace tarvel::ui
