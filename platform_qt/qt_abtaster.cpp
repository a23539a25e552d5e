#include "platform_qt/qt_abtaster.h"

#include <QThread>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <utility>

#include "platform_qt/feines_wecken.h"

namespace tarvel::qt {
namespace {

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
