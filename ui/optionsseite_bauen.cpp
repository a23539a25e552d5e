#include "ui/optionsseite_bauen.h"

#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "ui/eingabefelder.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr int feldbreite = 84;
constexpr int zahlenfeld_laenge = 8;  // characters; no row for words has as many
constexpr int schmalste_auswahl = 110;
constexpr int spaltenbreite_max = 640;  // on a wide screen a field stays beside its caption
constexpr int spaltenabstand = 14;
constexpr std::size_t langer_eintrag = 17;  // characters; such a choice stands under its caption

}  // namespace

QWidget* OptionsseiteBauen::seite(optionsseite& inhalt, QWidget* vorneweg) {
    auto* rollen = new QScrollArea(eltern_);
    rollen->setFrameShape(QFrame::NoFrame);
    rollen->setWidgetResizable(true);
    rollen->setFocusPolicy(Qt::NoFocus);
    auto* flaeche = new QWidget;
    auto* spalten = new QHBoxLayout(flaeche);
    spalten->setContentsMargins(0, 0, 0, 0);
    spalten->setSpacing(spaltenabstand);
    int anzahl = 1;
    for (const auto& eine : inhalt.gruppen) {
        anzahl = std::max(anzahl, eine->spalte + 1);
    }
    std::vector<QVBoxLayout*> aufbau;
    for (int spalte = 0; spalte < anzahl; ++spalte) {
        aufbau.push_back(new QVBoxLayout);
        spalten->addLayout(aufbau.back(), 1);
    }
    if (anzahl == 1) {
        spalten->addStretch(1);  // a single column would be drawn too wide to read across
    }
    if (vorneweg != nullptr) {
        aufbau.front()->addWidget(vorneweg);
    }
    for (std::size_t i = 0; i < inhalt.gruppen.size(); ++i) {
        optionsgruppe& eine = *inhalt.gruppen[i];
        const QString name = QString::fromStdString(inhalt.deutsch) + "_" + QString::number(i);
        aufbau.at(static_cast<std::size_t>(eine.spalte))->addWidget(gruppe(eine, name));
    }
    for (QVBoxLayout* spalte : aufbau) {
        spalte->addStretch();
    }
    const int breite = std::max(anzahl, 2) * spaltenbreite_max;
    flaeche->setMaximumWidth(breite);
    rollen->setMaximumWidth(breite + spaltenabstand + rollen->verticalScrollBar()->sizeHint().width());
    rollen->setWidget(flaeche);
    return rollen;
}

QWidget* OptionsseiteBauen::gruppe(optionsgruppe& inhalt, const QString& name) {
    QGroupBox* kasten = binder_.gruppe(inhalt.titel, name);
    auto* raster = new QGridLayout(kasten);
    raster->setHorizontalSpacing(8);
    raster->setVerticalSpacing(4);
    raster->setColumnStretch(0, 1);
    int platz = 0;
    for (const optionszeile_zeiger& eine : inhalt.zeilen) {
        zeile(*eine, kasten, platz);
        platz += 2;  // the second row for what stands below
    }
    return kasten;
}

void OptionsseiteBauen::zeile(optionszeile& inhalt, QWidget* traeger, int platz) {
    auto* raster = static_cast<QGridLayout*>(traeger->layout());
    const QString name = QString::fromStdString(inhalt.name);
    if (auto* kasten = std::get_if<haken>(&inhalt.element)) {
        raster->addWidget(binder_.kasten(*kasten, name), platz, 0, 1, 3);
        return;
    }
    if (auto* knopf = std::get_if<befehl>(&inhalt.element)) {
        raster->addWidget(binder_.knopf(*knopf, name), platz, 0, 1, 3);
        return;
    }
    QLabel* titel = binder_.label(inhalt.beschriftung, name + "_Label");
    titel->setWordWrap(true);
    const bool allein = std::holds_alternative<std::monostate>(inhalt.element);
    raster->addWidget(allein ? stil::leise(titel) : titel, platz, 0, 1, allein ? 3 : 1);
    if (auto* eingabe = std::get_if<feld>(&inhalt.element)) {
        eingabefeld(inhalt, *eingabe, raster, platz);
    } else if (auto* liste = std::get_if<auswahl>(&inhalt.element)) {
        QComboBox* widget = binder_.auswahlfeld(*liste, name);
        widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        widget->setMinimumWidth(schmalste_auswahl);
        // entries that come with a file may be long as well
        const bool lang = inhalt.eintraege.empty() ||
                          std::any_of(inhalt.eintraege.begin(), inhalt.eintraege.end(),
                                      [](const std::string& eintrag) { return eintrag.size() > langer_eintrag; });
        raster->addWidget(widget, lang ? platz + 1 : platz, lang ? 0 : 1, 1, lang ? 3 : 2);
    } else if (auto* farbe_element = std::get_if<farbfeld>(&inhalt.element)) {
        QPushButton* widget = binder_.farbknopf(*farbe_element, name);
        widget->setMinimumWidth(schmalste_auswahl);
        raster->addWidget(widget, platz, 1, 1, 2);
    } else if (auto* sound = std::get_if<soundfeld>(&inhalt.element)) {
        QComboBox* widget = binder_.auswahlfeld(sound->datei, name);
        widget->setMinimumContentsLength(11);
        raster->addWidget(widget, platz, 1);
        raster->setColumnStretch(1, 1);  // file names are longer than captions
        QPushButton* abspielen = binder_.knopf(sound->abspielen, name + "_abspielen", "schmal");
        abspielen->setMaximumWidth(36);
        raster->addWidget(abspielen, platz, 2);
    }
}

void OptionsseiteBauen::eingabefeld(optionszeile& inhalt, feld& eingabe, QGridLayout* raster, int platz) {
    const QString name = QString::fromStdString(inhalt.name);
    QLineEdit* widget = binder_.zeile(eingabe, name);
    QObject::connect(widget, &QLineEdit::returnPressed, weiter_, [ziel = weiter_] { ziel->setFocus(); });
    if (inhalt.nur_zahlen || eingabe.laenge_max() == zahlenfeld_laenge) {
        nur_zahlen_annehmen(widget);
    }
    QLabel* einheit = stil::leise(binder_.label(inhalt.einheit, name + "_Einheit"));
    einheit->setWordWrap(true);
    if (eingabe.laenge_max() > 0 && eingabe.laenge_max() <= 8) {
        widget->setAlignment(eingabe.laenge_max() == 1 ? Qt::AlignCenter : Qt::AlignRight);
        widget->setFixedWidth(feldbreite);
        raster->addWidget(widget, platz, 1);
        raster->addWidget(einheit, platz, 2);
    } else {
        raster->addWidget(widget, platz + 1, 0, 1, 3);
        raster->addWidget(einheit, platz, 1, 1, 2, Qt::AlignRight);
    }
}

}  // namespace tarvel::ui
