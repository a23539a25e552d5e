#include "hardware/rc_uhr.h"

#include <algorithm>

namespace tarvel {
namespace {

constexpr std::int64_t ticks_je_sekunde = 4800;
constexpr std::int64_t ms_je_sekunde = 1000;
constexpr zeit_ms sprung_ms = 1000;         // no clock is that far ahead of itself, or behind what it has told
constexpr zeit_ms abweichung_teil = 1000;   // of the time without a reading, one part for the clocks' difference
constexpr zeit_ms fenster_ms = 1000;        // the fastest reading of so long stands for all of them
constexpr zeit_ms spaet_ms = 50;            // a reading that is later has waited somewhere
constexpr zeit_ms dauernd_spaet_ms = 3000;  // unless all are

}  // namespace

zeit_ms rc_uhr::stempel_umrechnen(std::int64_t ticks) {
    const std::int64_t tausendfach = ticks * ms_je_sekunde;
    const std::int64_t ganze = tausendfach / ticks_je_sekunde;
    return ganze - (tausendfach % ticks_je_sekunde < 0 ? 1 : 0);
}

zeit_ms rc_uhr::stand(zeit_ms maschine) const {
    return maschine + std::max(versatz_, versatz_vorher_);
}

bool rc_uhr::hat_neu_begonnen(std::int64_t ticks, zeit_ms maschine) const {
    if (stempel_umrechnen(ticks_) - stempel_umrechnen(ticks) > sprung_ms) {
        return true;
    }
    const zeit_ms voraus = stempel_umrechnen(ticks) - stand(maschine);
    const zeit_ms grenze = sprung_ms + (maschine - genommen_) / abweichung_teil;
    const bool auch_nicht_spaet =
        war_weg_ || (spaet_seit_ != 0 && maschine - spaet_seit_ > dauernd_spaet_ms);  // nothing holds it up so long
    return voraus > grenze || (auch_nicht_spaet && -voraus > grenze);
}

void rc_uhr::beginnen(zeit_ms versatz, zeit_ms maschine) {
    versatz_ = versatz_vorher_ = versatz;
    genommen_ = fenster_seit_ = maschine;
    spaet_seit_ = 0;
}

bool rc_uhr::folgen(zeit_ms versatz, zeit_ms maschine) {
    const zeit_ms vorher = std::max(versatz_, versatz_vorher_);
    if (vorher - versatz > spaet_ms) {
        spaet_seit_ = spaet_seit_ == 0 ? maschine : spaet_seit_;
        if (maschine - spaet_seit_ <= dauernd_spaet_ms) {
            return false;
        }
        beginnen(versatz, maschine);
        return true;
    }
    spaet_seit_ = 0;
    genommen_ = maschine;
    if (maschine - fenster_seit_ >= fenster_ms) {
        versatz_vorher_ = versatz_;
        versatz_ = versatz;
        fenster_seit_ = maschine;
    } else {
        versatz_ = std::max(versatz_, versatz);
    }
    return std::max(versatz_, versatz_vorher_) != vorher;
}

rc_uhr::befund rc_uhr::lesen(std::uint32_t ticks, zeit_ms maschine, zeit_ms messzeit) {
    const auto seither = static_cast<std::int32_t>(ticks - static_cast<std::uint32_t>(ticks_));
    const std::int64_t weiter = bekannt_ ? ticks_ + seither : ticks;
    if (bekannt_ && seither == 0 && !war_weg_) {
        return {stempel_umrechnen(ticks_), {}, {}};  // nothing has come in since
    }
    if (!bekannt_ || hat_neu_begonnen(weiter, maschine)) {
        ticks_ = ticks;
        const zeit_ms stempel = stempel_umrechnen(ticks_);
        beginnen(stempel - maschine, maschine);
        bekannt_ = true;
        war_weg_ = false;
        return {stempel, stempel - messzeit, stempel};
    }
    war_weg_ = false;
    ticks_ = weiter;
    const zeit_ms stempel = stempel_umrechnen(ticks_);
    const bool neu = folgen(stempel - maschine, maschine);
    return {stempel, {}, neu ? std::optional(stand(maschine)) : std::nullopt};
}

}  // namespace tarvel
