#include "platform_qt/qt_abtaster.h"

#include <QThread>
#include <atomic>
#include <chrono>
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
        if (pthread_setschedparam(pthread_self(), SCHED_RR, &vorrang) != 0) {  // granted to few
            kurz_und_bald();
        }
#endif
    }
    FeinesWecken(const FeinesWecken&) = delete;
    FeinesWecken& operator=(const FeinesWecken&) = delete;
    ~FeinesWecken() {
#ifdef Q_OS_WIN
        timeEndPeriod(1);
#endif
    }
};

class QtAbtaster final : public schnittstelle {
public:
    QtAbtaster(const plattform::uhr& uhr, dauer_ms abstand, std::function<void(zeit_ms)> blick)
        : faden_(QThread::create([this, &uhr, abstand, blick = std::move(blick)] { laufen(uhr, abstand, blick); })) {
        faden_->start(QThread::TimeCriticalPriority);
    }
    ~QtAbtaster() override {
        beendet_ = true;
        faden_->wait();
    }

private:
    void laufen(const plattform::uhr& uhr, dauer_ms abstand, const std::function<void(zeit_ms)>& blick) const {
        using stoppuhr = std::chrono::steady_clock;
        const FeinesWecken wecken;
        stoppuhr::time_point naechster = stoppuhr::now();
        while (!beendet_) {
            blick(uhr.jetzt());
            naechster = std::max(naechster + abstand, stoppuhr::now());  // missed samples are gone
            std::this_thread::sleep_until(naechster);
        }
    }

    std::atomic<bool> beendet_ = false;
    std::unique_ptr<QThread> faden_;
};

}  // namespace

std::unique_ptr<schnittstelle> QtAbtasterDienst::starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) {
    return std::make_unique<QtAbtaster>(uhr_, abstand, std::move(blick));
}

}  // namespace tarvel::qt
