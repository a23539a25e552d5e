#include "ui/ergebnisblatt.h"

#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <algorithm>
#include <memory>

#include "core/texte.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double rand_mm = 10;
constexpr int pdf_dpi = 300;

QString wort_von(const std::string& text) {
    return QString::fromStdString(text);
}

QString text_von(const steuerelement& element) {
    return QString::fromStdString(element.text());
}

QString falls_sichtbar(const steuerelement& element) {
    return element.sichtbar() ? text_von(element) : QString();
}

QString produkt() {
    return wort_von(std::string(programm_name) + " " + std::string(programm_version));
}

ergebnisblatt::zeile zeile_lesen(const auswertung& stand, int spur) {
    const std::size_t i = feld_index(spur);
    const QString runden = text_von(stand.runden_aus.at(i));
    // what a lane without a lap is behind by, or its best lap of nothing, would only puzzle the reader
    const bool gewertet = runden != "0" && runden != wort_von(std::string(disqualifiziert_text));
    const auto zahl = [gewertet](const QString& text) { return gewertet ? text : QString("–"); };
    return {stil::farbe_von(stand.Frame.at(i).schriftfarbe().value_or(0)),
            gewertet && stand.Frame.at(i).reihe() == 0,
            {{text_von(stand.platz.at(i)), {}},
             {QString::number(spur), {}},
             {text_von(stand.fahrer.at(i)), text_von(stand.fahrzeug.at(i))},
             {runden, {}},
             {zahl(text_von(stand.ges_meter.at(i))), {}},
             {zahl(text_von(stand.zeit_aus.at(i))), falls_sichtbar(stand.aus_straflabel.at(i))},
             {zahl(falls_sichtbar(stand.abstandlabel.at(i))), {}},
             {zahl(text_von(stand.beste_aus.at(i))), {}},
             {zahl(text_von(stand.kmh_label.at(i))), {}}}};
}

QPageLayout seite() {
    return {QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(rand_mm, rand_mm, rand_mm, rand_mm),
            QPageLayout::Millimeter};
}

/// The page on a device that has just one.
bool auf_geraet_zeichnen(QPagedPaintDevice& geraet, const ergebnisblatt& blatt) {
    QPainter maler;
    if (!maler.begin(&geraet)) {
        return false;
    }
    ergebnisblatt_zeichnen(maler, QRectF(0, 0, geraet.width(), geraet.height()), blatt);
    return maler.end();
}

}  // namespace

ergebnisblatt ergebnisblatt_lesen(const auswertung& stand, rundenbild_inhalt bild, const blatt_worte& wort) {
    ergebnisblatt blatt{text_von(stand.titel), text_von(stand.kopf_label), {}, {}, std::move(bild)};
    blatt.spalten = {wort_von(wort.platz),
                     wort_von(wort.spur),
                     wort_von(wort.fahrer) + " / " + wort_von(wort.fahrzeug),
                     text_von(stand.Label_runden.front()),
                     wort_von(wort.meter),
                     text_von(stand.Label_zeit.front()),
                     wort_von(wort.abstand),
                     text_von(stand.Label_beste.front()),
                     wort_von(wort.tempo)};
    std::vector<int> folge;
    std::copy_if(alle_spuren.begin(), alle_spuren.end(), std::back_inserter(folge),
                 [&](int spur) { return stand.Frame.at(feld_index(spur)).sichtbar(); });
    std::stable_sort(folge.begin(), folge.end(), [&](int a, int b) {
        return stand.Frame.at(feld_index(a)).reihe() < stand.Frame.at(feld_index(b)).reihe();
    });
    for (const int spur : folge) {
        blatt.zeilen.push_back(zeile_lesen(stand, spur));
    }
    return blatt;
}

bool ergebnisblatt_pdf(const QString& pfad, const ergebnisblatt& blatt) {
    QDir().mkpath(QFileInfo(pfad).path());
    QSaveFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly)) {
        return false;
    }
    {
        QPdfWriter schreiber(&datei);
        schreiber.setResolution(pdf_dpi);
        schreiber.setPageLayout(seite());
        schreiber.setTitle(blatt.titel);
        schreiber.setCreator(produkt());
        if (!auf_geraet_zeichnen(schreiber, blatt)) {
            datei.cancelWriting();
        }
    }
    return datei.commit();
}

void ergebnisblatt_drucken(QWidget* eltern, const ergebnisblatt& blatt, const std::function<void()>& bei_fehler) {
    const auto drucker = std::make_shared<QPrinter>(QPrinter::HighResolution);
    drucker->setPageLayout(seite());
    drucker->setDocName(blatt.titel);
    auto* dialog = new QPrintDialog(drucker.get(), eltern);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QAbstractPrintDialog::PrintPageRange, false);  // there is but one
    QObject::connect(dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), dialog,
                     [drucker, blatt, bei_fehler](QPrinter* /*selber*/) {
                         if (!auf_geraet_zeichnen(*drucker, blatt) && bei_fehler) {
                             bei_fehler();
                         }
                     });
    dialog->open();
}

}  // namespace tarvel::ui
