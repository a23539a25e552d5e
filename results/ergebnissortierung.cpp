#include "results/ergebnissortierung.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace tarvel {
namespace {

struct sortierzeile {
    ergebniszeile* zeile = nullptr;
    std::string klasse;
    zeilenwerte werte;
};

/// What comes first is less.
using vergleich = std::weak_ordering (*)(const zeilenwerte& a, const zeilenwerte& b);

std::weak_ordering mehr_meter(const zeilenwerte& a, const zeilenwerte& b) {
    return std::weak_order(b.meter, a.meter);
}
std::weak_ordering mehr_runden(const zeilenwerte& a, const zeilenwerte& b) {
    return b.runden <=> a.runden;
}
std::weak_ordering kuerzere_zeit(const zeilenwerte& a, const zeilenwerte& b) {
    return a.gesamtzeit <=> b.gesamtzeit;
}
/// No best lap comes last.
std::weak_ordering schnellere_runde(const zeilenwerte& a, const zeilenwerte& b) {
    return std::pair(a.beste == 0, a.beste) <=> std::pair(b.beste == 0, b.beste);
}

std::vector<vergleich> vergleiche(ergebnis_typ typ, sortier_modus nach) {
    if (typ == ergebnis_typ::jeder_gegen_jeden) {
        return {mehr_runden, kuerzere_zeit};
    }
    switch (nach) {
        case sortier_modus::meter:
            return {mehr_meter, mehr_runden, kuerzere_zeit};
        case sortier_modus::beste:
            return {schnellere_runde, mehr_meter, mehr_runden, kuerzere_zeit};
        case sortier_modus::runden:
            break;
    }
    return {mehr_runden, mehr_meter, kuerzere_zeit};
}

std::vector<sortierzeile> fahrer_von(ergebnistabelle& tabelle) {
    std::vector<sortierzeile> alle;
    for (ergebniszeile& zeile : tabelle.zeilen) {
        if (auto fahrer = zeile.ergebnis ? fahrerzeile_von(tabelle, zeile) : std::nullopt) {
            const auto& klasse = fahrer->spalten.klasse;
            alle.push_back({&zeile, klasse ? fahrer->felder[*klasse] : std::string(),
                            werte_von(fahrer->felder, fahrer->spalten, tabelle.trennzeichen)});
        }
    }
    return alle;
}

void platz_schreiben(const ergebnistabelle& tabelle, ergebniszeile& zeile, int platz) {
    zeile.platz = platz;
    if (auto fahrer = fahrerzeile_von(tabelle, zeile); fahrer && fahrer->spalten.platz) {
        fahrer->felder[*fahrer->spalten.platz] = std::to_string(platz) + ".";
        zeile.text = felder_verbinden(fahrer->felder, tabelle.trennzeichen[2]);
    }
}

}  // namespace

void sortieren(ergebnistabelle& tabelle, sortier_modus nach) {
    std::vector<sortierzeile> fahrer = fahrer_von(tabelle);
    std::vector<ergebniszeile*> plaetze;
    plaetze.reserve(fahrer.size());
    for (const sortierzeile& einer : fahrer) {
        plaetze.push_back(einer.zeile);
    }
    const auto schluessel = vergleiche(tabelle.typ, nach);
    std::stable_sort(fahrer.begin(), fahrer.end(), [&](const sortierzeile& a, const sortierzeile& b) {
        if (a.klasse != b.klasse) {
            return a.klasse < b.klasse;
        }
        for (const vergleich vergleichen : schluessel) {
            if (const auto ordnung = vergleichen(a.werte, b.werte); std::is_neq(ordnung)) {
                return std::is_lt(ordnung);
            }
        }
        return false;
    });
    std::vector<ergebniszeile> geordnet;
    geordnet.reserve(fahrer.size());
    for (const sortierzeile& einer : fahrer) {
        geordnet.push_back(std::move(*einer.zeile));
    }
    int platz = 0;
    for (std::size_t i = 0; i < geordnet.size(); ++i) {
        platz = i > 0 && fahrer[i].klasse == fahrer[i - 1].klasse ? platz + 1 : 1;
        platz_schreiben(tabelle, geordnet[i], platz);
        *plaetze[i] = std::move(geordnet[i]);
    }
}

}  // namespace tarvel
