#include "competition/wettkampfblatt.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {
namespace {

using zelle = wettkampfblatt::zelle;

constexpr int heats_je_tabelle = 6;  // more would be too small to read from the wall

/// A long evening has more than an hour.
std::string mit_stunden(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    const zeit_ms stunden = zeit_zerlegen(zeit).stunden;
    const std::string rest = zeit_formatieren(zeit, true, trennzeichen);
    return stunden > 0 ? std::to_string(stunden) + trennzeichen[0] + rest : rest;
}

class Blattbildner {
public:
    Blattbildner(const wettkampf& w, const wettkampfblatt_worte& wort, const trennzeichen_tabelle& trennzeichen)
        : w_(w), wort_(wort), trennzeichen_(trennzeichen), folge_(fahrer_in_rangfolge(w, w.wertung)) {}

    wettkampfblatt::tabelle rangliste() const;
    wettkampfblatt::tabelle je_spur() const;
    wettkampfblatt::tabelle heats(int von, int bis) const;
    wettkampfblatt::tabelle rennplan() const;

private:
    std::string zeit(zeit_ms dauer) const { return dauer == 0 ? "–" : mit_stunden(dauer, trennzeichen_); }
    static std::string meter(const fahrt& eine) { return zahl_fest(als_meter(eine.meter), ',') + " m"; }
    zelle werte(const fahrt& eine) const;
    wettkampfblatt::tabelle mit_namen(const std::string& titel) const;

    const wettkampf& w_;
    const wettkampfblatt_worte& wort_;
    const trennzeichen_tabelle& trennzeichen_;
    std::vector<int> folge_;  ///< places of the drivers in their order
};

zelle Blattbildner::werte(const fahrt& eine) const {
    if (eine == fahrt{}) {
        return {"–"};
    }
    return {std::to_string(eine.runden) + "  ·  " + meter(eine), zeit(eine.beste) + "  ·  " + zeit(eine.zeit)};
}

/// A row for each driver, with his number and name.
wettkampfblatt::tabelle Blattbildner::mit_namen(const std::string& titel) const {
    wettkampfblatt::tabelle t{titel, {}, {{wort_.nummer, 0, true}, {wort_.name}}, {}};
    for (const int platz : folge_) {
        t.zeilen.push_back({{std::to_string(t.zeilen.size() + 1) + "."}, {w_.name(platz)}});
    }
    return t;
}

wettkampfblatt::tabelle Blattbildner::rangliste() const {
    wettkampfblatt::tabelle t = mit_namen(wort_.rangliste);
    for (const std::string* kopf : {&wort_.runden, &wort_.meter, &wort_.beste, &wort_.gesamtzeit}) {
        t.spalten.push_back({*kopf, 0, true});
    }
    const auto staende = w_.staende();
    for (std::size_t n = 0; n < folge_.size(); ++n) {
        const fahrt& stand = staende.at(static_cast<std::size_t>(folge_[n] - 1)).auf.front();
        for (const std::string& wert : {std::to_string(stand.runden), zahl_fest(als_meter(stand.meter), ','),
                                        zeit(stand.beste), zeit(stand.zeit)}) {
            t.zeilen[n].push_back({wert});
        }
    }
    t.legende = wort_.spur;
    t.balken = balken(w_, w_.wertung);
    return t;
}

wettkampfblatt::tabelle Blattbildner::je_spur() const {
    wettkampfblatt::tabelle t = mit_namen(wort_.einzeln);
    t.legende = wort_.zeichenfolge;
    const auto staende = w_.staende();
    const auto spalte = [&](const std::string& kopf, int spur) {
        t.spalten.push_back({kopf, spur, true});
        for (std::size_t n = 0; n < folge_.size(); ++n) {
            const fahrer_stand& stand = staende.at(static_cast<std::size_t>(folge_[n] - 1));
            t.zeilen[n].push_back(werte(stand.auf.at(static_cast<std::size_t>(spur))));
        }
    };
    for (const int spur : alle_spuren) {
        if (w_.spur_aktiv[spur]) {
            spalte(wort_.spur + " " + std::to_string(spur), spur);
        }
    }
    return t;
}

wettkampfblatt::tabelle Blattbildner::heats(int von, int bis) const {
    wettkampfblatt::tabelle t = mit_namen(wort_.einzeln);
    t.legende = wort_.zeichenfolge;
    const auto zeilen = w_.jeder_tabelle();
    for (int heat = von; heat <= bis; ++heat) {
        t.spalten.push_back({wort_.heat + " " + std::to_string(heat), 0, true});
        for (std::size_t n = 0; n < folge_.size(); ++n) {
            const jeder_zeile& zeile = zeilen.at(static_cast<std::size_t>(folge_[n] - 1));
            t.zeilen[n].push_back(werte(zeile.heat.at(static_cast<std::size_t>(heat))));
        }
    }
    return t;
}

wettkampfblatt::tabelle Blattbildner::rennplan() const {
    wettkampfblatt::tabelle t{wort_.rennplan, {}, {{wort_.spalte_rennen, 0, true}}, {}};
    for (const int spur : alle_spuren) {
        if (w_.spur_aktiv[spur]) {
            t.spalten.push_back({wort_.spur + " " + std::to_string(spur), spur});
        }
    }
    t.spalten.push_back({wort_.gefahren, 0, true});
    for (int rennen = 1; rennen <= w_.rennen_gesamt(); ++rennen) {
        std::vector<zelle> zeile{{std::to_string(rennen)}};
        for (const int spur : alle_spuren) {
            if (const int platz = w_.plan.feld(rennen)[spur]; w_.spur_aktiv[spur]) {
                zeile.push_back({platz == 0 || w_.ist_fueller(platz) ? "–" : w_.name(platz)});
            }
        }
        zeile.push_back({w_.rennen_gefahren(rennen) == rennstatus::gefahren ? "X" : ""});
        t.zeilen.push_back(std::move(zeile));
    }
    return t;
}

}  // namespace

sprachliste& wettkampfblatt_worte::eintragen(sprachliste& texte) {
    texte.text("Runden", runden).text("Meter", meter).text("beste Runde", beste).text("Gesamtzeit", gesamtzeit);
    texte.text("gesamt", gesamt).text("Spur", spur).text("Heat", heat).text("Rangliste", rangliste);
    texte.text("Einzelergebnisse", einzeln)
        .text("Rennplan", rennplan)
        .text("Rennen", rennen)
        .text("Rennen", spalte_rennen);
    texte.text("gefahren", gefahren).text("Seite", seite).text("nach", nach).text("von", von);
    texte.text("Runden · Meter, darunter beste Runde · Zeit", zeichenfolge);
    texte.text("Wertung nach Metern", wertung[0]).text("Wertung nach Runden", wertung[1]);
    return texte.text("Wertung nach schnellster Runde", wertung[2]);
}

const std::string& wettkampfblatt_worte::wertung_von(sortier_modus modus) const {
    const bool gueltig = modus >= sortier_modus::meter && modus <= sortier_modus::beste;
    return wertung.at(static_cast<std::size_t>(gueltig ? modus : sortier_modus::runden) - 1);
}

std::string wettkampfblatt_worte::stand_von(const wettkampf& w) const {
    int gefahrene = 0;
    for (int rennen_nummer = 1; rennen_nummer <= w.rennen_gesamt(); ++rennen_nummer) {
        gefahrene += w.rennen_gefahren(rennen_nummer) == rennstatus::gefahren ? 1 : 0;
    }
    return nach + " " + std::to_string(gefahrene) + " " + von + " " + std::to_string(w.rennen_gesamt()) + " " + rennen +
           "  ·  " + wertung_von(w.wertung);
}

wettkampfblatt wettkampfblatt_bilden(const wettkampf& w, const wettkampfblatt_worte& wort, const spuren<farbe>& farben,
                                     const trennzeichen_tabelle& trennzeichen) {
    const Blattbildner bildner(w, wort, trennzeichen);
    wettkampfblatt blatt{w.wettkampf_name, w.beginn.empty() ? "" : w.beginn + "  ·  ", wort.seite, {}, farben};
    blatt.kopf += wort.stand_von(w);
    blatt.tabellen.push_back(bildner.rangliste());
    if (w.modus == wettkampf_modus::jeder_gegen_jeden) {
        for (int von = 1; von <= w.heats_je_fahrer(); von += heats_je_tabelle) {
            blatt.tabellen.push_back(bildner.heats(von, std::min(von + heats_je_tabelle - 1, w.heats_je_fahrer())));
        }
    } else {
        blatt.tabellen.push_back(bildner.je_spur());
    }
    blatt.tabellen.push_back(bildner.rennplan());
    return blatt;
}

}  // namespace tarvel
