#include "ui/ergebnisblatt.h"

#include <algorithm>

#include "results/ergebnistexte.h"
#include "results/urkunde.h"
#include "ui/blattausgabe.h"
#include "ui/blattzeichnung.h"
#include "ui/rundenblatt.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

QString wort_von(const std::string& text) {
    return QString::fromStdString(text);
}

QString nachgetragen(const rennergebnis::spur& s, const blatt_worte& wort) {
    const int anzahl = s.nachgetragene();
    return anzahl == 0 ? QString() : wort_von(wort.nachgetragen) + " " + QString::number(anzahl);
}

ergebnisblatt::zeile zeile_bilden(const rennergebnis& ergebnis, const rennergebnis::spur& s,
                                  const blatt_beschriftung& beschriftung, const rundenbild_inhalt& bild) {
    namespace text = ergebnistext;
    const trennzeichen_tabelle& trennzeichen = bild.trennzeichen;
    // what a lane without a lap is behind by, or its best lap of nothing, would only puzzle the reader
    const bool gewertet = s.rundenzahl() > 0 && !s.disqualifiziert;
    const auto zahl = [gewertet](const std::string& figur) { return gewertet ? wort_von(figur) : QString("–"); };
    return {
        stil::farbe_von(bild.farben[s.nummer]),
        gewertet && s.platz == 1,
        {{QString::number(s.platz.value_or(0)) + ".", {}},
         {QString::number(s.nummer), {}},
         {wort_von(s.fahrer), wort_von(s.fahrzeug)},
         {wort_von(text::runden(s)), nachgetragen(s, beschriftung.wort)},
         {zahl(text::meter(s)), {}},
         {zahl(text::zeit(s, trennzeichen)),
          wort_von(text::strafe(s, beschriftung.strafzeit, beschriftung.wort.tank_leer, trennzeichen))},
         {zahl(text::abstand(ergebnis, s, trennzeichen)),
          gewertet ? wort_von(text::rueckstand(ergebnis, s, beschriftung.wort.rueckstand, trennzeichen)) : QString()},
         {zahl(text::beste(s, trennzeichen)), {}},
         {zahl(text::tempo(s)), {}}}};
}

ergebnisblatt::rundenspalte rundenspalte_bilden(const rennergebnis::spur& s, const rundenbild_inhalt& bild) {
    ergebnisblatt::rundenspalte spalte{stil::farbe_von(bild.farben[s.nummer]), wort_von(s.fahrer), {}, 0};
    for (std::size_t runde = 1; runde < s.runden.size(); ++runde) {
        const rennergebnis::runde& diese = s.runden[runde];
        const char* zusatz = diese.nachgetragen ? " +" : "";
        spalte.zeiten.push_back(wort_von(zeit_formatieren(diese.zeit, true, bild.trennzeichen) + zusatz));
        if (spalte.beste == 0 && diese.zeit == s.beste) {
            spalte.beste = runde;
        }
    }
    return spalte;
}

/// The page for the wall, and behind it the lap times.
blattseiten alle_seiten(const ergebnisblatt& blatt) {
    return {blatt.titel, [blatt](const QSizeF& groesse) { return 1 + rundenblatt_seiten(blatt, groesse); },
            [blatt](QPainter& maler, const QSizeF& groesse, int nummer) {
                if (nummer == 0) {
                    Blattzeichnung(maler, blatt, groesse).zeichnen();
                } else {
                    rundenblatt_zeichnen(maler, blatt, groesse, nummer - 1);
                }
            }};
}

}  // namespace

ergebnisblatt ergebnisblatt_bilden(const rennergebnis& ergebnis, const blatt_beschriftung& beschriftung,
                                   rundenbild_inhalt bild) {
    const blatt_worte& wort = beschriftung.wort;
    ergebnisblatt blatt;
    blatt.verein = wort_von(beschriftung.verein);
    blatt.titel = wort_von(beschriftung.titel);
    blatt.kopf = wort_von(beschriftung.kopf);
    if (const std::string strecke = streckenlaenge(ergebnis); !strecke.empty()) {
        blatt.kopf += "  ·  " + wort_von(wort.strecke + " " + strecke);
    }
    blatt.rundentitel = wort_von(wort.rundenzeiten);
    blatt.ab_gruen = wort_von(ergebnistext::ab_gruen(ergebnis, wort));
    blatt.bild = std::move(bild);
    blatt.spalten = {
        wort_von(wort.platz),   wort_von(wort.spur),  wort_von(wort.fahrer) + " / " + wort_von(wort.fahrzeug),
        wort_von(wort.runden),  wort_von(wort.meter), wort_von(wort.gesamtzeit),
        wort_von(wort.abstand), wort_von(wort.beste), wort_von(wort.tempo)};
    std::vector<rennergebnis::spur> folge = ergebnis.spuren;
    std::stable_sort(folge.begin(), folge.end(), [](const auto& a, const auto& b) { return a.platz < b.platz; });
    for (const rennergebnis::spur& s : folge) {
        blatt.zeilen.push_back(zeile_bilden(ergebnis, s, beschriftung, blatt.bild));
        if (s.rundenzahl() > 0) {
            blatt.rundenspalten.push_back(rundenspalte_bilden(s, blatt.bild));
        }
    }
    return blatt;
}

void ergebnisblatt_zeichnen(QPainter& maler, const QRectF& flaeche, const ergebnisblatt& blatt) {
    seite_malen(maler, flaeche, alle_seiten(blatt));
}

bool ergebnisblatt_pdf(const QString& pfad, const ergebnisblatt& blatt) {
    return blatt_als_pdf(pfad, alle_seiten(blatt));
}

void ergebnisblatt_drucken(QWidget* eltern, const ergebnisblatt& blatt, const std::function<void()>& bei_fehler) {
    blatt_drucken(eltern, alle_seiten(blatt), bei_fehler);
}

}  // namespace tarvel::ui
