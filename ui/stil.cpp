#include "ui/stil.h"

#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <cmath>

/// The pictures lie in a static library: without this call nobody would register them. Not possible inside a namespace.
static void bilder_bereitstellen() {
    Q_INIT_RESOURCE(bilder);
}

namespace tarvel::ui::stil {
namespace {

const char* const regeln = R"(
QGroupBox { background: #ffffff; border: 1px solid #d0d4db; border-radius: 8px; margin-top: 26px; padding: 8px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 4px; top: 3px; color: #c41e2a; }
QLineEdit, QComboBox { background: #ffffff; border: 1px solid #aab1bd; border-radius: 5px; padding: 3px 7px;
                       min-height: 24px; selection-background-color: #c41e2a; }
QLineEdit:focus, QComboBox:focus { border: 2px solid #c41e2a; padding: 2px 6px; }
QLineEdit:disabled, QComboBox:disabled { background: #eceef1; color: #9aa1ad; }
QComboBox { combobox-popup: 0; }
QPushButton { outline: none; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow { image: url(:/bilder/pfeil.png); width: 20px; height: 20px; }
QPushButton { background: #ffffff; border: 1px solid #aab1bd; border-radius: 6px; padding: 7px 16px; }
QPushButton[rolle="schmal"] { padding: 7px 5px; }
QPushButton:hover { background: #f2f4f7; }
QPushButton:pressed { background: #e2e5ea; }
QPushButton:focus { border: 2px solid #c41e2a; padding: 6px 15px; }
QPushButton[rolle="schmal"]:focus { padding: 6px 4px; }
QPushButton:disabled { color: #9aa1ad; background: #eceef1; border-color: #d0d4db; }
QPushButton[rolle="haupt"] { background: #c41e2a; color: #ffffff; border: 1px solid #9d1721; font-weight: bold; }
QPushButton[rolle="haupt"]:hover { background: #d62a37; }
QPushButton[rolle="haupt"]:pressed { background: #a51823; }
QPushButton[rolle="haupt"]:focus { border: 2px solid #1c2028; }
QPushButton[rolle="haupt"]:disabled { background: #d9a5a9; border-color: #d0d4db; color: #ffffff; }
QCheckBox, QRadioButton { spacing: 8px; padding: 2px 0; }
QLabel[rolle="leise"] { color: #626a78; }
QListView { outline: none; }
QListView::item { padding: 3px 6px; border: 0px solid transparent; border-radius: 3px; }
QListView::item:selected { background: #c41e2a; color: #ffffff; }
QListView { background: #ffffff; border: 1px solid #d0d4db; border-radius: 5px; }
QListView:focus { border-color: #c41e2a; }
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 12px; }
QScrollBar:horizontal { height: 12px; }
QScrollArea > QWidget > QScrollBar:vertical { width: 18px; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar::handle { background: #aab1bd; border-radius: 4px; }
QScrollBar::handle:hover { background: #626a78; }
QScrollBar::handle:vertical { min-height: 30px; margin: 2px; }
QScrollArea > QWidget > QScrollBar::handle:vertical { margin-left: 8px; }
QScrollBar::handle:horizontal { min-width: 30px; margin: 2px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QToolTip { background: #ffffff; color: #1c2028; border: 1px solid #aab1bd; padding: 3px 6px; }
)";

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
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QFont grundschrift = QApplication::font();
    grundschrift.setPixelSize(15);
    QApplication::setFont(grundschrift);
    QPalette palette(karte, flaeche);  // every colour is ours, also where the desktop has a dark theme
    palette.setColor(QPalette::Window, flaeche);
    palette.setColor(QPalette::WindowText, schrift);
    palette.setColor(QPalette::Base, karte);
    palette.setColor(QPalette::Text, schrift);
    palette.setColor(QPalette::Button, karte);
    palette.setColor(QPalette::ButtonText, schrift);
    palette.setColor(QPalette::Highlight, akzent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, akzent);
    palette.setColor(QPalette::LinkVisited, akzent);
    palette.setColor(QPalette::PlaceholderText, schrift_leise);
    for (const QPalette::ColorRole rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, rolle, schrift_gesperrt);
    }
    QApplication::setPalette(palette);
    anwendung.setStyleSheet(regeln);
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
