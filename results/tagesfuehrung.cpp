#include "results/tagesfuehrung.h"

#include <algorithm>
#include <utility>

#include "results/ergebnissortierung.h"
#include "results/fahrer_addieren.h"

namespace tarvel {
namespace {

constexpr std::size_t klassen_in_der_zeile = 4;
constexpr std::string_view ohne_klasse = "0";  // as the file has it

}  // namespace

std::vector<tagesfuehrender> tagesfuehrung(ergebnistabelle tabelle, sortier_modus nach) {
    std::vector<tagesfuehrender> alle;
    if (tabelle.typ != ergebnis_typ::tagesrennen) {
        return alle;
    }
    gleiche_fahrer_addieren(tabelle, true);
    sortieren(tabelle, nach);
    for (const ergebniszeile& zeile : tabelle.zeilen) {
        const auto fahrer = zeile.ergebnis && zeile.platz == 1 ? fahrerzeile_von(tabelle, zeile) : std::nullopt;
        if (!fahrer) {
            continue;
        }
        const auto& [felder, spalten] = *fahrer;
        const std::int64_t runden = werte_von(felder, spalten, tabelle.trennzeichen).runden;
        if (runden > 0) {
            const std::string klasse = spalten.klasse ? felder[*spalten.klasse] : std::string();
            alle.push_back({klasse == ohne_klasse ? std::string() : klasse, felder[spalten.name], runden});
        }
    }
    std::stable_partition(alle.begin(), alle.end(), [](const tagesfuehrender& wer) { return !wer.klasse.empty(); });
    return alle;
}

void fuehrungsworte::eintragen(sprachliste& texte) {
    texte.text("In Führung:", in_fuehrung).text("Runde", runde).text("Runden", runden);
}

std::string fuehrungsworte::zeile(const std::vector<tagesfuehrender>& wer, const std::string& klasse) const {
    std::string text;
    for (std::size_t i = 0; i < std::min(wer.size(), klassen_in_der_zeile); ++i) {
        text += i == 0 ? in_fuehrung + " " : "  ·  ";
        text += wer[i].klasse.empty() ? std::string() : klasse + "\u00a0" + wer[i].klasse + ": ";
        text += wer[i].name + ", " + std::to_string(wer[i].runden) + " " + (wer[i].runden == 1 ? runde : runden);
    }
    return wer.size() > klassen_in_der_zeile ? text + "  ·  …" : text;
}

}  // namespace tarvel
