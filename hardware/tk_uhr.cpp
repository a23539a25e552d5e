#include "hardware/tk_uhr.h"

#include <cmath>
#include <span>

namespace tarvel {
namespace {

constexpr zeit_ms voraus_ms = 100;          // what is known of the clock may be so late
constexpr zeit_ms zurueck_ms = 2000;        // what a box tells is not in order, but not by so much
constexpr zeit_ms anfang_ms = 3000;         // the answers of so long stand for its beginning
constexpr zeit_ms gang_ab_ms = 9000;        // two answers so far apart show how fast the clock runs
constexpr zeit_ms grundlinie_ms = 1200000;  // a clock that gets warm runs otherwise than so long ago
constexpr double gang_abweichung = 0.01;    // of any clock at most

}  // namespace

void tk_uhr::vergessen() {
    anzahl_ = 0;
    zweifelt_ = false;
}

zeit_ms tk_uhr::an(const abgleich& a, zeit_ms maschine) const {
    return a.geraet + std::llround(static_cast<double>(maschine - a.maschine) * gang_);
}

const tk_uhr::abgleich& tk_uhr::bester(zeit_ms maschine) const {
    const auto alle = std::span(letzte_).first(std::min(anzahl_, abgleiche_max));
    return *std::max_element(alle.begin(), alle.end(),
                             [&](const abgleich& a, const abgleich& b) { return an(a, maschine) < an(b, maschine); });
}

zeit_ms tk_uhr::tk_versatz(zeit_ms maschine) const {
    return bekannt() ? maschine - an(bester(maschine), maschine) : 0;
}

zeit_ms tk_uhr::lesen(zeit_ms maschine) const {
    return maschine - tk_versatz(maschine);
}

bool tk_uhr::glaubhaft(zeit_ms stempel, zeit_ms maschine) const {
    const zeit_ms seit = std::abs(maschine - letzte_.at((anzahl_ + abgleiche_max - 1) % abgleiche_max).maschine);
    const zeit_ms voraus = voraus_ms + std::llround(static_cast<double>(seit) * gang_abweichung);
    return bekannt() && stempel - lesen(maschine) <= voraus && letzter_ - stempel <= zurueck_ms;
}

void tk_uhr::beginnen(const abgleich& neu) {
    letzte_.front() = tk_erste_zeit_ = neu;
    anzahl_ = 1;
    letzter_ = neu.geraet;
    zweifelt_ = false;
}

tk_uhr::befund tk_uhr::aufnehmen(zeit_ms maschine, zeit_ms geraet) {
    const abgleich neu{maschine, geraet};
    if (!bekannt()) {
        beginnen(neu);
        return befund::neu;
    }
    if (!glaubhaft(geraet, maschine)) {
        const bool bestaetigt = zweifelt_ && std::abs(geraet - an(zweifel_, maschine)) <= zurueck_ms;
        zweifel_ = neu;
        zweifelt_ = !bestaetigt;
        if (!bestaetigt) {
            return befund::fraglich;
        }
        const bool wieder_von_vorn = letzter_ - geraet > zurueck_ms;  // else what it was known by had been held up
        beginnen(neu);
        return wieder_von_vorn ? befund::neu : befund::weiter;
    }
    zweifelt_ = false;
    gesehen(geraet);
    letzte_.at(anzahl_ % abgleiche_max) = neu;
    ++anzahl_;
    if (maschine - tk_erste_zeit_.maschine <= anfang_ms && geraet > an(tk_erste_zeit_, maschine)) {
        tk_erste_zeit_ = neu;
    }
    gang_bestimmen(maschine);
    return befund::weiter;
}

void tk_uhr::gang_bestimmen(zeit_ms maschine) {
    const abgleich& jetzt = bester(maschine);
    const zeit_ms seither = jetzt.maschine - tk_erste_zeit_.maschine;
    if (seither < gang_ab_ms) {
        return;
    }
    const double neu = static_cast<double>(jetzt.geraet - tk_erste_zeit_.geraet) / static_cast<double>(seither);
    gang_ = std::clamp(neu, 1 - gang_abweichung, 1 + gang_abweichung);
    if (seither > grundlinie_ms) {
        tk_erste_zeit_ = jetzt;
    }
}

}  // namespace tarvel
