// Measures the thread that looks at devices: how far apart its samples are while four processes beside it keep every
// core busy. Prints the share of samples at most 2 ms apart, and the longest gaps. Usage: abtaster_messen [<seconds>]

#include <QCoreApplication>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include "platform_qt/qt_abtaster.h"

namespace {

using stoppuhr = std::chrono::steady_clock;

struct messuhr final : tarvel::plattform::uhr {
    tarvel::zeit_ms jetzt() const override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(stoppuhr::now().time_since_epoch()).count();
    }
};

constexpr std::size_t last_prozesse = 4;
constexpr const char* last = "--last";

/// One of the processes beside it.
[[noreturn]] void auslasten() {
    for (std::atomic<unsigned> zahl = 0;; ++zahl) {
    }
}

/// Gaps between the samples of so many seconds, in ms, ascending.
std::vector<double> messen(int sekunden) {
    const messuhr uhr;
    tarvel::qt::QtAbtasterDienst dienst(uhr);
    std::vector<stoppuhr::time_point> zeiten;
    zeiten.reserve(static_cast<std::size_t>(sekunden) * 2000);
    {
        const auto laufend = dienst.starten(tarvel::dauer_ms(1), [&zeiten](tarvel::zeit_ms) {
            if (zeiten.size() < zeiten.capacity()) {
                zeiten.push_back(stoppuhr::now());
            }
        });
        QThread::sleep(static_cast<unsigned long>(sekunden));
    }
    std::vector<double> abstaende;
    for (std::size_t i = 1; i < zeiten.size(); ++i) {
        abstaende.push_back(std::chrono::duration<double, std::milli>(zeiten[i] - zeiten[i - 1]).count());
    }
    std::sort(abstaende.begin(), abstaende.end());
    return abstaende;
}

void ausgeben(const char* was, const std::vector<double>& abstaende) {
    if (abstaende.empty()) {
        std::printf("%-28s keine Abtastung\n", was);
        return;
    }
    const auto bis = [&](double ms) {
        const auto anzahl = std::upper_bound(abstaende.begin(), abstaende.end(), ms) - abstaende.begin();
        return 100 * static_cast<double>(anzahl) / static_cast<double>(abstaende.size());
    };
    const auto teil = [&](double anteil) {
        return abstaende[static_cast<std::size_t>(anteil * static_cast<double>(abstaende.size() - 1))];
    };
    std::printf("%-28s %7zu Abtastungen   höchstens 2 ms: %6.2f %%   99,9 %%: %6.2f ms   längster: %6.2f ms\n", was,
                abstaende.size(), bis(2.0), teil(0.999), abstaende.back());
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == last) {
        auslasten();
    }
    const QCoreApplication anwendung(argc, argv);
    constexpr int kurz_s = 10;
    const int sekunden = std::max(argc > 1 ? std::atoi(argv[1]) : kurz_s, 1);
    ausgeben("allein", messen(sekunden));
    std::vector<std::unique_ptr<QProcess>> prozesse;
    while (prozesse.size() < last_prozesse) {
        prozesse.push_back(std::make_unique<QProcess>());
        prozesse.back()->start(QCoreApplication::applicationFilePath(), {last});
        prozesse.back()->waitForStarted();
    }
    ausgeben("neben vier vollen Prozessen", messen(sekunden));
    for (const auto& prozess : prozesse) {
        prozess->kill();
        prozess->waitForFinished();
    }
    return 0;
}
