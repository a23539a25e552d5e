#include "ui/stil.h"

#include <QFont>
#include <QPalette>
#ifdef Q_OS_WIN
#include <QSettings>
#endif
#include <QStyleFactory>
#include <algorithm>
#include <array>
#include <cmath>

/// The pictures lie in a static library: without this call nobody would register them. Not possible inside a namespace.
static void bilder_bereitstellen() {
    Q_INIT_RESOURCE(bilder);
}

namespace tarvel::ui::stil {
namespace {

constexpr const char* palette_des_systems = "palette_des_systems";
constexpr int halbe_helligkeit = 128;

const char* const regeln = R"(
QGroupBox { background: @karte; border: 1px solid @linie; border-radius: 8px; margin-top: 26px; padding: 8px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 4px; top: 3px; color: @akzent; }
QLineEdit, QComboBox { background: @karte; border: 1px solid @rand; border-radius: 5px; padding: 3px 7px;
                       min-height: 24px; selection-background-color: @vollakzent; }
QLineEdit:focus, QComboBox:focus { border: 2px solid @akzent; padding: 2px 6px; }
QLineEdit:disabled, QComboBox:disabled { background: @grau; color: @gesperrt; }
QComboBox { combobox-popup: 0; }
QPushButton { outline: none; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow { image: url(:/bilder/@pfeil); width: 20px; height: 20px; }
QPushButton { background: @karte; border: 1px solid @rand; border-radius: 6px; padding: 7px 16px; }
QPushButton[rolle="schmal"] { padding: 7px 5px; }
QPushButton[rolle="zeile"] { padding: 2px 10px; }
QPushButton:hover { background: @ueber; }
QPushButton:pressed { background: @gedrueckt; }
QPushButton:focus { border: 2px solid @akzent; padding: 6px 15px; }
QPushButton[rolle="schmal"]:focus { padding: 6px 4px; }
QPushButton[rolle="zeile"]:focus { padding: 1px 9px; }
QPushButton:disabled { color: @gesperrt; background: @grau; border-color: @linie; }
QPushButton[rolle="haupt"] { background: @vollakzent; color: white; border: 1px solid #9d1721; font-weight: bold; }
QPushButton[rolle="haupt"]:hover { background: #d62a37; }
QPushButton[rolle="haupt"]:pressed { background: #a51823; }
QPushButton[rolle="haupt"]:focus { border: 2px solid @schrift; }
QPushButton[rolle="haupt"]:disabled { background: @blassakzent; border-color: @linie; color: @blassschrift; }
QCheckBox, QRadioButton { spacing: 8px; padding: 2px 0; }
QLabel[rolle="leise"], QLineEdit[rolle="leise"] { color: @leise; }
QLabel[rolle="warnung"] { color: @akzent; }
QLabel[rolle="lampe"] { background: @linie; border: 1px solid @rand; border-radius: 4px; }
QListView { outline: none; }
QListView::item { padding: 3px 6px; border: 0px solid transparent; border-radius: 3px; }
QListView::item:selected { background: @vollakzent; color: white; }
QListView { background: @karte; alternate-background-color: @ueber; border: 1px solid @linie; border-radius: 5px; }
QListView:focus { border-color: @akzent; }
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 12px; }
QScrollBar:horizontal { height: 12px; }
QScrollArea > QWidget > QScrollBar:vertical { width: 18px; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar::handle { background: @rand; border-radius: 4px; }
QScrollBar::handle:hover { background: @leise; }
QScrollBar::handle:vertical { min-height: 30px; margin: 2px; }
QScrollArea > QWidget > QScrollBar::handle:vertical { margin-left: 8px; }
QScrollBar::handle:horizontal { min-width: 30px; margin: 2px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QToolTip { background: @karte; color: @schrift; border: 1px solid @rand; padding: 3px 6px; }
)";

/// What the names in the rules stand for, light and dark. No name is the beginning of another.
struct regelfarbe {
    const char* name;
    const char* hell;
    const char* dunkel;
};
constexpr std::array<regelfarbe, 14> regelfarben{{{"@karte", "#ffffff", "#272b33"},
                                                  {"@linie", "#d0d4db", "#414753"},
                                                  {"@rand", "#aab1bd", "#5d6574"},
                                                  {"@akzent", "#c41e2a", "#ff7a80"},
                                                  {"@vollakzent", "#c41e2a", "#c41e2a"},
                                                  {"@blassakzent", "#d9a5a9", "#5c3236"},
                                                  {"@blassschrift", "#ffffff", "#b3969a"},
                                                  {"@grau", "#eceef1", "#20242b"},
                                                  {"@gesperrt", "#9aa1ad", "#727a89"},
                                                  {"@ueber", "#f2f4f7", "#2f343e"},
                                                  {"@gedrueckt", "#e2e5ea", "#3a404c"},
                                                  {"@leise", "#626a78", "#a9b1bf"},
                                                  {"@schrift", "#1c2028", "#eef0f4"},
                                                  {"@pfeil", "pfeil.png", "pfeil_hell.png"}}};

const farbsatz helle_farben{akzent,        flaeche,          karte,           linie,           schrift,
                            schrift_leise, schrift_gesperrt, {244, 246, 249}, {255, 250, 232}, {214, 170, 40}};
const farbsatz dunkle_farben{{255, 122, 128}, {28, 31, 38},    {39, 43, 51}, {65, 71, 83}, {238, 240, 244},
                             {169, 177, 191}, {114, 122, 137}, {47, 52, 62}, {66, 57, 24}, {214, 170, 40}};

/// The style draws the edge of a box darker than its window, which on a dark one nobody sees.
const char* const kaesten = R"(
QCheckBox::indicator { width: 12px; height: 12px; border: 1px solid @leise; border-radius: 2px; }
QCheckBox::indicator:checked { image: url(:/bilder/haken_hell.png); }
QCheckBox::indicator:disabled { border-color: @rand; }
QCheckBox::indicator:checked:disabled { background: @rand; }
QRadioButton::indicator { width: 11px; height: 11px; border: 1px solid @leise; border-radius: 6px; }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
                                  stop: 0 @schrift, stop: 0.5 @schrift, stop: 0.65 transparent); }
QRadioButton::indicator:disabled { border-color: @rand; }
)";

const char* const eingaben_dunkel = R"(
QCheckBox::indicator { background: @karte; }
QLineEdit { background: @karte; color: @schrift; border: 1px solid @rand; }
QLineEdit:focus { border: 2px solid #ffffff; }
QLineEdit:disabled { background: @grau; color: @gesperrt; }
)";

QString gefaerbt(QString text, bool dunkel) {
    for (const regelfarbe& farbe : regelfarben) {
        text.replace(farbe.name, dunkel ? farbe.dunkel : farbe.hell);
    }
    return text;
}

QString regeln_in(bool dunkel) {
    return gefaerbt(QString(regeln) + (dunkel ? kaesten : ""), dunkel);
}

/// Every colour is ours, also where the desktop has another theme.
QPalette palette_aus(const farbsatz& f) {
    QPalette palette(f.karte, f.flaeche);
    palette.setColor(QPalette::Window, f.flaeche);
    palette.setColor(QPalette::WindowText, f.schrift);
    palette.setColor(QPalette::Base, f.karte);
    palette.setColor(QPalette::AlternateBase, f.streifen);
    palette.setColor(QPalette::Text, f.schrift);
    palette.setColor(QPalette::Button, f.karte);
    palette.setColor(QPalette::ButtonText, f.schrift);
    palette.setColor(QPalette::Highlight, akzent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, f.akzent);
    palette.setColor(QPalette::LinkVisited, f.akzent);
    palette.setColor(QPalette::PlaceholderText, f.schrift_leise);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, rolle, f.schrift_gesperrt);
    }
    return palette;
}

/// Asked of the style itself: the program's own palette lies over the desktop's.
bool system_ist_dunkel() {
#ifdef Q_OS_WIN
    const QSettings wahl(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
                         QSettings::NativeFormat);
    return wahl.value("AppsUseLightTheme", 1).toInt() == 0;
#else
    return qApp->property(palette_des_systems).value<QPalette>().color(QPalette::Window).lightness() < halbe_helligkeit;
#endif
}

const char* const regeln_dunkel =
    "QLabel { color: #f0f2f5; }"
    "QPushButton { background: #2b2f37; color: #f0f2f5; border: 1px solid #565c68; border-radius: 8px; %1 }"
    "QPushButton:hover { background: #383d47; }"
    "QPushButton:focus { border: 2px solid #ffffff; }"
    "QPushButton:disabled { color: #6a707c; background: #1c1f24; border-color: #33373f; }"
    "QPushButton[rolle=\"haupt\"]:enabled { background: #1d8a3c; border-color: #37b35a; font-weight: bold; }"
    "QPushButton[rolle=\"haupt\"]:focus { border: 2px solid #ffffff; }";

}  // namespace

void anwenden(QApplication& anwendung) {
    bilder_bereitstellen();
    anwendung.setProperty(palette_des_systems, QApplication::palette());
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QFont grundschrift = QApplication::font();
    grundschrift.setPixelSize(15);
    QApplication::setFont(grundschrift);
    faerben(aussehen::hell);
}

void faerben(aussehen wie) {
    const bool dunkel = wie == aussehen::dunkel || (wie == aussehen::wie_das_system && system_ist_dunkel());
    const QString neue_regeln = regeln_in(dunkel);
    if (qApp->styleSheet() != neue_regeln) {  // costs every widget a look
        QApplication::setPalette(palette_aus(dunkel ? dunkle_farben : helle_farben));
        qApp->setStyleSheet(neue_regeln);
    }
}

const farbsatz& auf_dem_schirm() {
    return QApplication::palette().color(QPalette::Window).lightness() < halbe_helligkeit ? dunkle_farben
                                                                                          : helle_farben;
}

const farbsatz& auf_papier() {
    return helle_farben;
}

QMargins zusammenhaltend(const QSize& fenster, const QMargins& rand) {
    constexpr QSize genug(1920, 1200);
    const int seite = std::max(fenster.width() - genug.width(), 0) / 2;
    return rand + QMargins(seite, 0, seite, std::max(fenster.height() - genug.height(), 0));
}

QLabel* leise(QLabel* label) {
    label->setProperty("rolle", "leise");
    return label;
}

QPushButton* fensterknopf(QPushButton* knopf) {
    constexpr int breite = 140;
    knopf->setMinimumSize(breite, knopfhoehe);
    return knopf;
}

void nimmt_den_rest(QAbstractItemView* liste, int mindestens) {
    liste->setSizePolicy(liste->sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    liste->setMinimumHeight(mindestens);
}

QHBoxLayout* knopfzeile(std::initializer_list<QPushButton*> knoepfe) {
    auto* zeile = new QHBoxLayout;
    zeile->addStretch();
    for (QPushButton* knopf : knoepfe) {
        zeile->addWidget(fensterknopf(knopf));
    }
    return zeile;
}

void fleck_faerben(QLabel* fleck, farbe spurfarbe) {
    fleck->setStyleSheet(
        QString("background: %1; border: 1px solid #aab1bd; border-radius: 4px;").arg(farbe_von(spurfarbe).name()));
}

QString dunkle_regeln(const char* innen) {
    return QString(regeln_dunkel).arg(innen);
}

QString dunkle_eingaben() {
    return gefaerbt(QString(kaesten) + eingaben_dunkel, true);
}

QColor titelfarbe(const QColor& farbton, const QColor& grund) {
    constexpr int hell_genug = 175;
    constexpr int dunkler_grund = 64;
    const int heller = qGray(farbton.rgb());
    if (qGray(grund.rgb()) > dunkler_grund || heller >= hell_genug) {
        return farbton;
    }
    const double weiss = static_cast<double>(hell_genug - heller) / (255 - heller);
    const auto mischen = [weiss](int anteil) { return static_cast<int>(std::lround(anteil + weiss * (255 - anteil))); };
    return {mischen(farbton.red()), mischen(farbton.green()), mischen(farbton.blue())};
}

double helligkeit(const QColor& farbe) {
    const auto anteil = [](double teil) { return std::pow(teil, 2.2); };  // brightness grows faster than its number
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

double kontrast(const QColor& a, const QColor& b) {
    const auto [dunkler, heller] = std::minmax({helligkeit(a), helligkeit(b)});  // by value
    return (heller + 0.05) / (dunkler + 0.05);
}

QColor auf_hellem_grund(const QColor& farbton, const QColor& grund) {
    constexpr double kontrast_min = 2;
    constexpr int dunkler = 220;
    const bool hell = grund.isValid() && grund.lightness() > halbe_helligkeit;
    return hell && kontrast(farbton, grund) < kontrast_min ? farbton.darker(dunkler) : farbton;
}

QColor schrift_auf(const QColor& grund) {
    constexpr int mittelgrau = 120;
    return qGray(grund.rgb()) > mittelgrau ? schrift : QColor(Qt::white);
}

QColor farbe_von(farbe zahl) {
    return {static_cast<int>(zahl & 0xFFU), static_cast<int>((zahl >> 8U) & 0xFFU),
            static_cast<int>((zahl >> 16U) & 0xFFU)};
}

farbe zahl_von(const QColor& farbton) {
    return static_cast<farbe>(farbton.red()) | static_cast<farbe>(farbton.green()) << 8U |
           static_cast<farbe>(farbton.blue()) << 16U;
}

}  // namespace tarvel::ui::stil
