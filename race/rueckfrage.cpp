#include "race/rueckfrage.h"

#include <utility>

namespace tarvel {
namespace {

constexpr int frist_s = 3;
constexpr zeit_ms frist = zeit_ms{1000} * frist_s;
constexpr zeit_ms versehen = 400;  // a double click, or a key that bounces

}  // namespace

rueckfrage::rueckfrage(befehl& knopf, umfeld um)
    : knopf_(knopf),
      um_(std::move(um)),
      tun_(knopf.bei_klick),
      sekunden_(um_.zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, dauer_s(1))) {
    knopf.bei_klick = [this] { druecken(); };
    sekunden_->bei_tick = [this] {
        --rest_;
        if (rest_ <= 0 || !um_.noetig()) {
            zuruecknehmen();
        } else {
            rest_zeigen();
        }
    };
}

void rueckfrage::druecken() {
    const zeit_ms her = um_.uhr.jetzt() - seit_;
    const bool gefragt = fragt() && her < frist;  // a busy machine may have missed the last second's tick
    if (!um_.noetig() || (gefragt && her >= versehen)) {
        bestaetigen();
    } else if (!gefragt) {
        fragen();
    }
}

void rueckfrage::bestaetigen() {
    zuruecknehmen();
    tun_();
}

void rueckfrage::fragen() {
    zuruecknehmen();
    seit_ = um_.uhr.jetzt();
    rest_ = frist_s;
    tipp_ = knopf_.tipp();
    knopf_.tipp(um_.tipp);
    rest_zeigen();
    sekunden_->an();
}

void rueckfrage::rest_zeigen() {
    knopf_.frage(um_.wort + " (" + std::to_string(rest_) + " s)");
}

void rueckfrage::zuruecknehmen() {
    if (fragt()) {
        sekunden_->aus();
        knopf_.frage({});
        knopf_.tipp(tipp_);
    }
}

}  // namespace tarvel
