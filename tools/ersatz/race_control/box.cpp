#include "tools/ersatz/race_control/box.h"

#include <utility>

namespace tarvel::simulator {
namespace {

constexpr zeit_ms takt_ms = 50;       // so often an active box tells its clock
constexpr zeit_ms frage_ms = 200;     // and one that is not yet asks
constexpr std::int64_t zaehler = 24;  // 4800 ticks in 1000 ms
constexpr std::int64_t nenner = 5;

}  // namespace

rc_box::rc_box(const rc_box_einstellung& einst) : geraet(einst.rennen, spuren), einst_(einst) {
    feld_.strom(0, true);
    if (einst_.rennen.sofort) {
        feld_.gruen();
    }
}

/// The first tick of the millisecond, so that whole milliseconds come out of it again.
std::uint32_t rc_box::ticks() const {
    return static_cast<std::uint32_t>(einst_.ticks_start + (uhr() * zaehler + nenner - 1) / nenner);
}

/// One that is not active yet does not speak of its sensors.
void rc_box::melden_satz(rc_draht::art art, int sensor) {
    if (!aktiv_ && (art == rc_draht::art::ueberfahrt || art == rc_draht::art::verlassen)) {
        return;
    }
    hinaus(rc_draht::schreiben({art, static_cast<std::uint8_t>(sensor), ticks()}));
}

void rc_box::verbunden() {
    aktiv_ = false;
    offen_ = rc_draht::frage::wer;
}

void rc_box::neustart() {
    uhr_neu();
    verbunden();
    verlassen_ = {};
    zweite_linie_ = {};
    sagen("Neustart");
}

void rc_box::los() {
    feld_.gruen();
    sagen("Die Wagen fahren los");
}

void rc_box::empfangen(std::string_view bytes) {
    for (const char byte : bytes) {
        if (byte == rc_draht::antwort_wer) {
            aktiv_ = false;
            offen_ = rc_draht::frage::einstellungen;
            melden_satz(rc_draht::art::frage, static_cast<int>(offen_));
        } else if (byte == rc_draht::antwort_einstellungen && !std::exchange(aktiv_, true)) {
            melden_satz(rc_draht::art::aktiv, 0);
            sagen("Aktiviert");
        }
    }
}

void rc_box::kontakte_fortsetzen() {
    for (int sensor = 0; sensor < spuren; ++sensor) {
        kontakt& k = verlassen_.at(static_cast<std::size_t>(sensor));
        if (k.belegt && uhr() >= k.um) {
            k.belegt = false;
            melden_satz(rc_draht::art::verlassen, sensor);
        }
    }
    for (std::size_t i = 0; i < zweite_linie_.size(); ++i) {
        if (zweite_linie_.at(i) != 0 && uhr() >= zweite_linie_.at(i)) {
            zweite_linie_.at(i) = 0;
            melden_satz(rc_draht::art::ueberfahrt, static_cast<int>(i) + 2);
        }
    }
}

void rc_box::schritt() {
    if (bei_schritt) {
        bei_schritt();
    }
    kontakte_fortsetzen();
    if (uhr() % (aktiv_ ? takt_ms : frage_ms) == 0) {
        const auto was = aktiv_ ? rc_draht::art::takt : rc_draht::art::frage;
        melden_satz(was, aktiv_ ? 0 : static_cast<int>(offen_));
    }
}

void rc_box::wagen_meldet(const wagen_ereignis& was) {
    if (was.art != wagen_art::ueberfahrt || was.sensor != 1) {
        return;
    }
    const int sensor = was.wagen - 1;
    verlassen_.at(static_cast<std::size_t>(sensor)) = {uhr() + einst_.belegt, true};
    if (einst_.ziel34 > 0 && sensor < 2) {
        zweite_linie_.at(static_cast<std::size_t>(sensor)) = uhr() + einst_.ziel34;
    }
    melden_satz(rc_draht::art::ueberfahrt, sensor);
}

}  // namespace tarvel::simulator
