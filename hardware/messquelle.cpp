#include "hardware/messquelle.h"

#include <array>
#include <cstddef>

namespace tarvel {
namespace {

constexpr std::array<bool faehigkeiten::*, 5> alle_faehigkeiten{
    &faehigkeiten::eigener_tank, &faehigkeiten::start_am_geraet, &faehigkeiten::feste_wagen,
    &faehigkeiten::kontakte_wiederholt, &faehigkeiten::bootet};

}  // namespace

faehigkeiten messquellen::kann() const {
    const std::int64_t bits = erfragen("kann", kann_zuletzt_, [this] {
        faehigkeiten alles;
        for (const messquelle* quelle : alle_) {
            alles = alles | quelle->kann();
        }
        std::int64_t zusammen = 0;
        for (std::size_t i = 0; i < alle_faehigkeiten.size(); ++i) {
            zusammen |= alles.*alle_faehigkeiten.at(i) ? std::int64_t{1} << i : 0;
        }
        return zusammen;
    });
    faehigkeiten alles;
    for (std::size_t i = 0; i < alle_faehigkeiten.size(); ++i) {
        alles.*alle_faehigkeiten.at(i) = (bits >> i & 1) != 0;
    }
    return alles;
}

std::optional<zeit_ms> messquellen::uhr_lesen() const {
    std::optional<zeit_ms> zeit;
    aussen([&] {
        for (auto quelle = alle_.begin(); quelle != alle_.end() && !zeit; ++quelle) {
            zeit = (*quelle)->uhr_lesen();
        }
    });
    if (protokoll_ == nullptr) {
        return zeit;
    }
    if (protokoll_->zustand("geraeteuhr", uhr_zuletzt_, [&] { return zeit ? 1 : 0; }) != 1) {
        return std::nullopt;
    }
    return protokoll_stempel(protokoll_->antwort("stand", [&] { return *zeit; }));
}

geraeteampel* messquellen::ampel() const {
    ampel_.echte = nullptr;
    const auto suchen = [this] {
        for (auto quelle = alle_.begin(); quelle != alle_.end() && ampel_.echte == nullptr; ++quelle) {
            ampel_.echte = (*quelle)->ampel();
        }
        return ampel_.echte != nullptr ? 1 : 0;
    };
    return erfragen("ampel", ampel_zuletzt_, suchen) == 1 ? &ampel_ : nullptr;
}

bool messquellen::ampelbild::rot() const {
    return quellen.erfragen("rot", rot_zuletzt, [this] { return echte->rot() ? 1 : 0; }) == 1;
}

void messquellen::ampelbild::startkommando() {
    quellen.aussen([this] { echte->startkommando(); });
}

void messquellen::ampelbild::abbrechen() {
    quellen.aussen([this] { echte->abbrechen(); });
}

void messquellen::ampelbild::neustart() {
    quellen.aussen([this] { echte->neustart(); });
}

}  // namespace tarvel
