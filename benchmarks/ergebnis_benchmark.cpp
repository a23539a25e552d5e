// A file of 10,000 lines may take 1 s to be read, sorted and added up each.

#include <benchmark/benchmark.h>

#include <random>

#include "results/ergebnissortierung.h"
#include "results/fahrer_addieren.h"

namespace tarvel {
namespace {

std::vector<std::string> volle_datei() {
    std::mt19937 wuerfel(1);
    std::vector<std::string> zeilen{std::string(magie_tagesrennen)};
    while (zeilen.size() < ergebnistabelle::zeilen_max) {
        const auto zahl = [&wuerfel](unsigned bis) { return static_cast<int>(wuerfel() % bis); };
        zeilen.push_back(std::string(1, static_cast<char>('A' + zahl(26))) + ";Fahrer " + std::to_string(zahl(3000)) +
                         "; " + std::to_string(zahl(300)) + ";" + std::to_string(zahl(90000)) + ".25;" +
                         ergebniszeit(zahl(60000), trennzeichen_standard) + ";" +
                         ergebniszeit(zahl(7200000), trennzeichen_standard));
    }
    return zeilen;
}

void ergebnisse_lesen(benchmark::State& lauf) {
    const auto zeilen = volle_datei();
    for (auto _ : lauf) {
        benchmark::DoNotOptimize(ergebnistabelle_lesen(zeilen, trennzeichen_standard)->zeilen.size());
    }
}
BENCHMARK(ergebnisse_lesen)->Unit(benchmark::kMillisecond);

void ergebnisse_sortieren(benchmark::State& lauf) {
    const auto tabelle = ergebnistabelle_lesen(volle_datei(), trennzeichen_standard).value();
    for (auto _ : lauf) {
        ergebnistabelle t = tabelle;
        sortieren(t, sortier_modus::meter);
        benchmark::DoNotOptimize(t.zeilen.front().platz);
    }
}
BENCHMARK(ergebnisse_sortieren)->Unit(benchmark::kMillisecond);

void ergebnisse_addieren(benchmark::State& lauf) {
    const auto tabelle = ergebnistabelle_lesen(volle_datei(), trennzeichen_standard).value();
    for (auto _ : lauf) {
        ergebnistabelle t = tabelle;
        gleiche_fahrer_addieren(t, true);
        benchmark::DoNotOptimize(t.zeilen.size());
    }
}
BENCHMARK(ergebnisse_addieren)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvel
