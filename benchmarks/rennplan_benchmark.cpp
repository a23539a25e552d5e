// The plan of the largest competition; none may take 10 ms.

#include <benchmark/benchmark.h>

#include "competition/rennplan.h"

namespace tarvel {
namespace {

void plan_fuer_99(benchmark::State& lauf) {
    const auto modus = static_cast<wettkampf_modus>(lauf.range(0));
    const bool jeder = modus == wettkampf_modus::jeder_gegen_jeden;
    const planvorgabe vorgabe{modus, jeder ? 10 : 99, {{true, true, !jeder, !jeder, !jeder, false}}};
    for (auto _ : lauf) {
        benchmark::DoNotOptimize(rennplan_erstellen(vorgabe).rennen_gesamt());
    }
}
BENCHMARK(plan_fuer_99)->DenseRange(1, wettkampf_modus_max)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvel
