// What it costs to hand a line over, and how soon it is on the disk. The files lie below the working folder: its disk
// is measured.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <thread>

#include "platform_qt/qt_anhaengedatei.h"

namespace {

const std::string zeile = std::string(79, 'x') + "\n";

struct messdatei {
    messdatei() = default;
    messdatei(const messdatei&) = delete;
    messdatei& operator=(const messdatei&) = delete;
    ~messdatei() {
        datei.reset();
        std::filesystem::remove(pfad);
    }
    /// Ends the measurement if the file takes nothing more.
    bool geht(benchmark::State& lauf) const {
        const bool gut = datei != nullptr && !datei->gescheitert();
        if (!gut) {
            lauf.SkipWithError("the file has failed");
        }
        return gut;
    }

    std::filesystem::path pfad = "anhaengen_benchmark.txt";
    tarvel::qt::QtAnhaengeDienst dienst;
    std::unique_ptr<tarvel::plattform::anhaengedatei> datei = dienst.oeffnen(pfad, 0);
};

void zeile_anhaengen(benchmark::State& lauf) {
    const messdatei m;
    constexpr int auf_einmal = 8000;  // the ring takes them, while the disk stands
    while (m.geht(lauf) && lauf.KeepRunningBatch(auf_einmal)) {
        for (int nr = 0; nr < auf_einmal; ++nr) {
            benchmark::DoNotOptimize(m.datei->anhaengen(zeile));
        }
        lauf.PauseTiming();
        m.datei->sichern();
        lauf.ResumeTiming();
    }
}
BENCHMARK(zeile_anhaengen);

/// On the disk, synchronised, as soon as it can be.
void anhaengen_und_sichern(benchmark::State& lauf) {
    const messdatei m;
    for (auto takt : lauf) {
        m.datei->anhaengen(zeile);
        m.datei->sichern();
    }
    m.geht(lauf);
}
BENCHMARK(anhaengen_und_sichern)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Until the thread comes by itself; what the disk then needs is in the one above.
void bis_der_faden_schreibt(benchmark::State& lauf) {
    const messdatei m;
    std::uintmax_t groesse = 0;
    for (auto takt : lauf) {
        lauf.PauseTiming();
        std::this_thread::sleep_for(std::chrono::milliseconds(7));  // at any moment of the thread's sleep
        lauf.ResumeTiming();
        m.datei->anhaengen(zeile);
        groesse += zeile.size();
        while (std::filesystem::file_size(m.pfad) < groesse) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    }
    m.geht(lauf);
}
BENCHMARK(bis_der_faden_schreibt)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
