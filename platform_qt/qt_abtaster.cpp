#include "platform_qt/qt_abtaster.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "platform_qt/feines_wecken.h"

namespace tarvel::qt {
namespace {

constexpr int abschied_ms = 100;
constexpr int letzter_abschied_ms = 1000;

/// What is looked at, and how. Its threads own it, so that one that hangs harms nobody.
class Blickfeld {
public:
    Blickfeld(const plattform::uhr& uhr, dauer_ms abstand, std::function<void(zeit_ms)> blick)
        : uhr_(uhr), abstand_(abstand), blick_(std::move(blick)) {}

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
    void beenden() { beendet_ = true; }

private:
    using stoppuhr = std::chrono::steady_clock;

    void hinsehen(bool ersatz) {
        const std::unique_lock frei(sperre_, std::try_to_lock);
        if (frei.owns_lock() && !beendet_ && (!ersatz || stoppuhr::now() - zuletzt_ > abstand_ * 3 / 4)) {
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
};

/// Where the system may hold a thread up for some milliseconds, a second one looks in its place: seldom are both.
class QtAbtaster final : public schnittstelle {
public:
    QtAbtaster(std::shared_ptr<Blickfeld> feld, std::vector<std::unique_ptr<QThread>>& haengende)
        : feld_(std::move(feld)), haengende_(haengende) {
        for (std::unique_ptr<QThread>& faden : faeden_) {
            const bool ersatz = &faden != &faeden_.front();
            faden.reset(QThread::create([eigenes = feld_, ersatz]() mutable {
                const std::shared_ptr<Blickfeld> bis_zuletzt = std::move(eigenes);
                bis_zuletzt->laufen(ersatz);
            }));
            faden->start(QThread::TimeCriticalPriority);
        }
    }
    ~QtAbtaster() override {
        feld_->beenden();
        feld_.reset();
        for (std::unique_ptr<QThread>& faden : faeden_) {
            if (!faden->wait(abschied_ms)) {
                haengende_.push_back(std::move(faden));
            }
        }
    }

private:
    std::shared_ptr<Blickfeld> feld_;
    std::vector<std::unique_ptr<QThread>>& haengende_;
    std::array<std::unique_ptr<QThread>, 2> faeden_;
};

}  // namespace

QtAbtasterDienst::~QtAbtasterDienst() {
    for (std::unique_ptr<QThread>& faden : haengende_) {
        if (!faden->wait(letzter_abschied_ms)) {
            QThread* const rest = faden.release();  // the process takes it along, or it comes back before
            QObject::connect(rest, &QThread::finished, rest, &QObject::deleteLater);
        }
    }
}

std::unique_ptr<schnittstelle> QtAbtasterDienst::starten(dauer_ms abstand, std::function<void(zeit_ms)> blick) {
    std::erase_if(haengende_, [](const auto& faden) { return faden->isFinished(); });
    return std::make_unique<QtAbtaster>(std::make_shared<Blickfeld>(uhr_, abstand, std::move(blick)), haengende_);
}

}  // namespace tarvel::qt
