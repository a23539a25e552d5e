#include "competition/rennautomat.h"

#include <algorithm>

namespace tarvel {
namespace {

constexpr dauer_s takt{1};

}  // namespace

rennautomat::rennautomat(plattform::zeitgeber_dienst& zeitgeber, automatenfolgen& folgen)
    : folgen_(folgen),
      w_auto1_(zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, takt)),
      w_auto2_(zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, takt)),
      w_auto3_(zeitgeber.erzeugen(plattform::zeitgeber_art::zaehlend, takt)) {
    w_auto1_->bei_tick = [this] { w_auto1_tick(); };
    w_auto2_->bei_tick = [this] {
        if (vorbei() && folgen_.w_auto2_vorbei()) {
            w_auto2_->aus();
        }
    };
    w_auto3_->bei_tick = [this] {
        if (vorbei() && folgen_.w_auto3_vorbei()) {
            w_auto3_->aus();
        }
    };
}

void rennautomat::beginnen(const std::unique_ptr<plattform::zeitgeber>& zeitgeber, dauer_s wartezeit) {
    aus();
    rest_ = wartezeit;
    zeitgeber->an();
}

bool rennautomat::vorbei() {
    rest_ = std::max(rest_ - takt, dauer_s{});
    return rest_ == dauer_s{};
}

void rennautomat::auf_naechstes_rennen(dauer_ms wartezeit) {
    beginnen(w_auto1_, std::chrono::ceil<dauer_s>(wartezeit));
}

void rennautomat::w_auto1_tick() {
    if (!folgen_.darf_warten()) {
        return;
    }
    const bool ende = vorbei();
    if (ende) {
        w_auto1_->aus();
    }
    folgen_.wartezeit_zeigen();
    if (ende) {
        folgen_.w_auto1_vorbei();
    }
}

void rennautomat::aus() {
    for (const auto* zeitgeber : {&w_auto1_, &w_auto2_, &w_auto3_}) {
        (*zeitgeber)->aus();
    }
}

}  // namespace tarvel
