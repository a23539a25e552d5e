// The race tick, and a whole race on the virtual clock.

#include <benchmark/benchmark.h>

#include "benchmarks/anforderungen.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

/// All that a race tick may have to do: fuel, sectors and sounds.
void alles_an(test::testprogramm& t) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.sektor_an = {true, true, true, true};
    t.p.einst.tank_straf_option = leer_aktion::zeitstrafe;
}

void tick_ohne_ereignis(benchmark::State& lauf) {
    test::testprogramm t;
    alles_an(t);
    t.p.form1.stddauer.text("24");
    t.starten("Zeit", "59", {1, 2, 3, 4, 5, 6});
    t.runde_nach(1000, "123456");
    t.taste("q");  // refuels meanwhile
    const auto& tick = t.p.rennen.zeitgeber.renntimer->bei_tick;
    const std::size_t vorher = anforderungen_bisher();
    for (auto _ : lauf) {
        t.maschine.uhr_stellen(1);  // the clock labels change with every tick, as they do in a race
        tick();
    }
    lauf.counters["Anforderungen"] = static_cast<double>(anforderungen_bisher() - vorher);
}
BENCHMARK(tick_ohne_ereignis);

void tick_mit_runde_auf_jeder_spur(benchmark::State& lauf) {
    test::testprogramm t;
    alles_an(t);
    t.p.einst.sound_an = false;  // the test machine's record of sounds grows
    t.p.form1.stddauer.text("24");
    t.starten("Zeit", "59", {1, 2, 3, 4, 5, 6});
    const auto& tick = t.p.rennen.zeitgeber.renntimer->bei_tick;
    const std::size_t vorher = anforderungen_bisher();
    for (auto _ : lauf) {
        lauf.PauseTiming();
        t.maschine.laufen(8000);
        if (t.runden(1) > 9000) {
            lauf.SkipWithError("too many laps");
            break;
        }
        for (const ereignis_art art : art::rundenzaehlung) {
            t.p.ereignisse.ereignis_melden(art);
        }
        lauf.ResumeTiming();
        tick();
    }
    lauf.counters["Anforderungen"] = static_cast<double>(anforderungen_bisher() - vorher);
}
BENCHMARK(tick_mit_runde_auf_jeder_spur)->Iterations(200);

void eine_stunde_sechs_spuren(benchmark::State& lauf) {
    for (auto _ : lauf) {
        test::testprogramm t;
        alles_an(t);
        t.p.form1.stddauer.text("1");
        t.starten("Zeit", "0", {1, 2, 3, 4, 5, 6});
        while (!t.p.rennen.zustand.rennen_beendet) {
            t.runde_nach(8000, "123456");
        }
        benchmark::DoNotOptimize(t.ergebnis(1).platz);
    }
}
BENCHMARK(eine_stunde_sechs_spuren)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace tarvel
