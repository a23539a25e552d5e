#include "platform_qt/qt_abtaster.h"

#include <QThread>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
// after it
#include <timeapi.h>
#endif
#ifdef Q_OS_LINUX
#include <pthread.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#endif

namespace tarvel::qt {
namespace {

#ifdef Q_OS_LINUX
/// Who asks for little at a time comes sooner, of those who share a core; this is granted to everybody. A system that
/// does not know of it goes on as it is.
void kurz_und_bald() {
    struct {
        std::uint32_t groesse = 48;
        std::uint32_t regel = SCHED_OTHER;
        std::uint64_t merkmale = 0;
        std::int32_t nett = 0;
        std::uint32_t vorrang = 0;
        std::uint64_t dauer_ns = 100'000;  // the shortest that the system takes
        std::uint64_t frist_ns = 0;
        std::uint64_t periode_ns = 0;
    } wunsch;
    static_assert(sizeof wunsch == 48);
    syscall(SYS_sched_setattr, 0, &wunsch, 0U);
}
#endif

/// As long as it lives, the system wakes sleepers to the millisecond.
class FeinesWecken {
public:
    FeinesWecken() {
#ifdef Q_OS_WIN
        timeBeginPeriod(1);
#endif
#ifdef Q_OS_LINUX
        prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
        sched_param vorrang{};
        vorrang.sched_priority = sched_get_priority_min(SCHED_RR);
        verlaesslich_ = pthread_setschedparam(pthread_self(), SCHED_RR, &vorrang) == 0;  // granted to few
        if (!verlaesslich_) {
            kurz_und_bald();
        }
#endif
    }
    FeinesWecken(const FeinesWecken&) = delete;
    FeinesWecken& operator=(const FeinesWecken&) = delete;
#ifdef Q_OS_WIN
    ~FeinesWecken() {
        timeEndPeriod(1);
    }
#endif
    /// Nobody else holds the thread up.
    bool verlaesslich() const {
        return verlaesslich_;
    }

private:
    bool verlaesslich_ = true;
};

/// Where the system may hold a thread up for some milliseconds, a second one looks in its place: seldom are both.
class QtAbtaster final : public schnittstelle {
public:
    QtAbtaster(const plattform::uhr& uhr, dauer_ms abstand, std::function<void(zeit_ms)> blick)
        : uhr_(uhr), abstand_(abstand), blick_(std::move(blick)) {
        for (std::unique_ptr<QThread>& faden : faeden_) {
            const bool ersatz = &faden != &faeden_.front();
            faden.reset(QThread::create([this, ersatz] { laufen(ersatz); }));
            faden->start(QThread::TimeCriticalPriority);
        }
    }
    ~QtAbtaster() override {
        beendet_ = true;
        for (const std::unique_ptr<QThread>& faden : faeden_) {
            faden->wait();
        }
    }

private:
    using stoppuhr = std::chrono::steady_clock;

    void laufen(bool ersatz) {
        const FeinesWecken wecken;
        if (ersatz && wecken.verlaesslich()) {
            return;
        }
        stoppuhr::time_point naechster = stoppuhr::now() + (ersatz ? abstand_ / 2 : stoppuhr::duration::zero());
        while (!beendet_) {
            std::this_thread::sleep_until(naechster);
            hinsehen(ersatz);
            naechster = std::max(naechster + abstand_, stoppuhr::now());  // missed samples are gone
        }
    }

    void hinsehen(bool ersatz) {
        const std::unique_lock frei(sperre_, std::try_to_lock);
        if (frei.owns_lock() && (!ersatz || stoppuhr::now() - zuletzt_ > abstand_ * 3 / 4)) {
            zuletzt_ = stoppuhr::now();
            blick_(uhr_.jetzt());
        }
    }

    const plattform::uhr& uhr_;
    const stoppuhr::duration abstand_;
    const std::function<void(zeit_ms)> blick_;
    std::mutex sperre_;  ///< one of them looks at a time
    stoppuhr::time_point zuletzt_;
    std::atomic<bool> beendet_ = false;
    std::array<std::unique_ptr<QThread>, 2> faeden_;
};

}  // namespace

std::unique_ptr<schnittstelle> QtAbtasterDienst::starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) {
    return std::make_unique<QtAbtaster>(uhr_, abstand, std::move(blick));
}

}  // namespace tarvel::qt
