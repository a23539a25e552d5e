#include "platform_qt/qt_zeitgeber.h"

#include <QTimer>

namespace tarvel::qt {
namespace {

class QtZeitgeber final : public plattform::zeitgeber {
public:
    QtZeitgeber(const plattform::uhr& uhr, plattform::zeitgeber_art art, dauer_ms intervall)
        : uhr_(uhr), art_(art), intervall_(intervall.count()) {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { feuern(); });
    }

    void intervall(dauer_ms dauer) override {
        intervall_ = dauer.count();
        if (laeuft_) {
            aus();
            an();
        }
    }

    void an() override {
        if (laeuft_) {
            return;
        }
        laeuft_ = true;
        if (intervall_ > 0) {
            faellig_ = uhr_.jetzt() + intervall_;
            timer_.start(static_cast<int>(intervall_));
        }
    }

    void aus() override {
        laeuft_ = false;
        timer_.stop();
    }

    bool laeuft() const override { return laeuft_; }

private:
    void feuern() {
        if (art_ == plattform::zeitgeber_art::abfragend) {
            tick();
            return;
        }
        // The loop may come early by less than a millisecond, or late by many ticks.
        const zeit_ms jetzt = uhr_.jetzt();
        while (laeuft_ && intervall_ > 0 && faellig_ <= jetzt + 1) {
            faellig_ += intervall_;
            tick();
        }
    }

    void tick() const {
        if (bei_tick) {
            bei_tick();
        }
    }

    const plattform::uhr& uhr_;
    plattform::zeitgeber_art art_;
    zeit_ms intervall_;
    bool laeuft_ = false;
    zeit_ms faellig_ = 0;
    QTimer timer_;
};

}  // namespace

std::unique_ptr<plattform::zeitgeber> QtZeitgeberDienst::erzeugen(plattform::zeitgeber_art art, dauer_ms intervall) {
    return std::make_unique<QtZeitgeber>(uhr_, art, intervall);
}

}  // namespace tarvel::qt
