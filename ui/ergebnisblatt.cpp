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
#include "results/ergebnistexte.h"
#include "ui/fenster.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr double rand_mm = 10;
constexpr int pdf_dpi = 300;

QString wort_von(const std::string& text) {
    return QString::fromStdString(text);
}

QString produkt() {
    return wort_von(std::string(programm_name) + " " + std::string(programm_version));
}

ergebnisblatt::zeile zeile_bilden(const rennergebnis& ergebnis, const rennergebnis::spur& s,
                                  const std::string& strafzeit, const rundenbild_inhalt& bild) {
    namespace text = ergebnistext;
    const trennzeichen_tabelle& trennzeichen = bild.trennzeichen;
    // what a lane without a lap is behind by, or its best lap of nothing, would only puzzle the reader
    const bool gewertet = s.rundenzahl() > 0 && !s.disqualifiziert;
    const auto zahl = [gewertet](const std::string& figur) { return gewertet ? wort_von(figur) : QString("–"); };
    return {stil::farbe_von(bild.farben[s.nummer]),
            gewertet && s.platz == 1,
            {{QString::number(s.platz.value_or(0)) + ".", {}},
             {QString::number(s.nummer), {}},
             {wort_von(s.fahrer), wort_von(s.fahrzeug)},
             {wort_von(text::runden(s)), {}},
             {zahl(text::meter(s)), {}},
             {zahl(text::zeit(s, trennzeichen)), wort_von(text::strafe(s, strafzeit))},
             {zahl(text::abstand(ergebnis, s, trennzeichen)), {}},
             {zahl(text::beste(s, trennzeichen)), {}},
             {zahl(text::tempo(s)), {}}}};
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

ergebnisblatt ergebnisblatt_bilden(const rennergebnis& ergebnis, const blatt_beschriftung& beschriftung,
                                   rundenbild_inhalt bild) {
    const blatt_worte& wort = beschriftung.wort;
    ergebnisblatt blatt{wort_von(beschriftung.titel), wort_von(beschriftung.kopf), {}, {}, std::move(bild)};
    blatt.spalten = {
        wort_von(wort.platz),   wort_von(wort.spur),  wort_von(wort.fahrer) + " / " + wort_von(wort.fahrzeug),
        wort_von(wort.runden),  wort_von(wort.meter), wort_von(wort.gesamtzeit),
        wort_von(wort.abstand), wort_von(wort.beste), wort_von(wort.tempo)};
    std::vector<rennergebnis::spur> folge = ergebnis.spuren;
    std::stable_sort(folge.begin(), folge.end(), [](const auto& a, const auto& b) { return a.platz < b.platz; });
    for (const rennergebnis::spur& s : folge) {
        blatt.zeilen.push_back(zeile_bilden(ergebnis, s, beschriftung.strafzeit, blatt.bild));
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
    vor_allem_zeigen(*dialog);
}

}  // namespace tarvel::ui
