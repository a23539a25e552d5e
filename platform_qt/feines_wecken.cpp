#include "platform_qt/feines_wecken.h"

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

}  // namespace

FeinesWecken::FeinesWecken() {
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

#ifdef Q_OS_WIN
FeinesWecken::~FeinesWecken() {
    timeEndPeriod(1);
}
#endif

}  // namespace tarvel::qt
