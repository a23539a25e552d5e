// The largest competition: its ranking may take 1 ms, and saving its state 50 ms.

#include <benchmark/benchmark.h>

#include <random>

#include "competition/rangfolge.h"
#include "competition/wettkampfdatei.h"
#include "tests/plattform/testprogramm.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

void rangfolge_mit_105(benchmark::State& lauf) {
    std::mt19937 wuerfel(1);
    std::vector<fahrer_stand> staende(105);
    for (fahrer_stand& stand : staende) {
        stand.auf[0] = {static_cast<int>(wuerfel() % 50), static_cast<zeit_ms>(wuerfel() % 900000),
                        static_cast<zentimeter>(wuerfel() % 90000), static_cast<zeit_ms>(wuerfel() % 9000)};
    }
    for (auto _ : lauf) {
        benchmark::DoNotOptimize(rangfolge_berechnen(staende).rangfolge.front());
    }
}
BENCHMARK(rangfolge_mit_105)->Unit(benchmark::kMicrosecond);

void wettkampf_mit_96_speichern(benchmark::State& lauf) {
    test::testprogramm t;
    std::mt19937 wuerfel(1);
    wettkampf w = test::wettkampf_mit(wettkampf_modus::rotation, 96, {1, 2, 3, 4, 5, 6});
    while (w.ergebnis_eintragen(test::zufallsfahrten(wuerfel))) {
        w.naechstes_offenes_rennen();
    }
    for (auto _ : lauf) {
        if (!wettkampf_speichern(t.p.ablage, "stand.wtk", t.p.datei, w, trennzeichen_standard)) {
            lauf.SkipWithError("cannot be written");
        }
    }
}
BENCHMARK(wettkampf_mit_96_speichern)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvel
