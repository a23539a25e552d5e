// Measures the real event loop for ten seconds: a race of six lanes on the race window, on whatever screen there is.
// Prints the gaps between race ticks and the share of one core. Usage: schleife_messen [seconds] [ohne]
// With "ohne" the race leaves no log: what that costs shows in pairs of runs, one with it and one without.

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <vector>

#include "benchmarks/messprogramm.h"
#include "programm/rennprotokoll.h"

namespace {

using uhr = std::chrono::steady_clock;

double anteil(const std::vector<double>& sortiert, double stelle) {
    return sortiert.empty() ? 0 : sortiert[static_cast<std::size_t>(stelle * static_cast<double>(sortiert.size() - 1))];
}

}  // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    const int sekunden = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10;
    messung::messprogramm m;
    if (!m.starten()) {
        return 1;
    }
    tarvel::programm& p = m.p;
    const bool mit_protokoll = argc < 3 || std::string_view(argv[2]) != "ohne";
    p.rennprotokoll.fuehren = mit_protokoll;
    p.einst.start_ampel_modus = tarvel::ampelwahl::keine;
    p.form1.Command1.klicken();
    p.rennen.bahn1.Command1.klicken();

    std::vector<double> abstaende;
    abstaende.reserve(static_cast<std::size_t>(sekunden) * 2000);
    uhr::time_point letzter = uhr::now();
    auto& tick = p.rennen.zeitgeber.renntimer->bei_tick;
    tick = [&, eigentlich = tick] {
        const uhr::time_point jetzt = uhr::now();
        abstaende.push_back(std::chrono::duration<double, std::milli>(jetzt - letzter).count());
        letzter = jetzt;
        eigentlich();
    };
    QTimer runden;  // a lap on one lane after the other, every 200 ms
    int naechste = 0;
    QObject::connect(&runden, &QTimer::timeout, [&] { p.rennen.befehle.taste('1' + naechste++ % 6); });
    runden.start(200);

    std::clock_t rechenzeit = 0;
    QTimer::singleShot(1000, [&] {  // the window is up by then
        abstaende.clear();
        rechenzeit = std::clock();
    });
    QTimer::singleShot(1000 * (sekunden + 1), [&] {
        rechenzeit = std::clock() - rechenzeit;
        QApplication::exit();
    });
    QApplication::exec();

    std::sort(abstaende.begin(), abstaende.end());
    std::printf(
        "%s Protokoll  Ticks %zu  Median %.3f ms  99 %% %.3f ms  99,9 %% %.3f ms  Maximum %.3f ms  "
        "Rechenzeit %.1f %% eines Kerns\n",
        mit_protokoll ? "mit " : "ohne", abstaende.size(), anteil(abstaende, 0.5), anteil(abstaende, 0.99),
        anteil(abstaende, 0.999), anteil(abstaende, 1.0),
        100.0 * static_cast<double>(rechenzeit) / CLOCKS_PER_SEC / sekunden);
    return 0;
}
