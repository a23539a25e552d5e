#include "results/protokollmithoerer.h"

#include <cstddef>

namespace tarvel {
namespace {

constexpr std::size_t vorrat_bytes = std::size_t{256} * 1024;  // of a second, and the race tick allocates nothing

}  // namespace

void protokollmithoerer::beginnen() {
    aufhoeren();
    neu_.reserve(vorrat_bytes);
    von_vorn_lesen();
    if (r_.fenster.fuehrung != nullptr) {
        r_.fenster.fuehrung->mitlesen(*this);
    }
}

void protokollmithoerer::aufhoeren() {
    if (r_.fenster.fuehrung != nullptr) {
        r_.fenster.fuehrung->nicht_mehr_mitlesen(*this);
    }
    hergang_.reset();
    inhalt_.clear();
}

void protokollmithoerer::von_vorn_lesen() {
    neu_.clear();
    zu_viel_ = false;
    inhalt_ = r_.fenster.fuehrung == nullptr ? std::string() : r_.fenster.fuehrung->bisher();
    hergang_ = std::make_unique<hergangsmitleser>(inhalt_);
}

void protokollmithoerer::anhaengen(std::string_view zeile) {
    constexpr std::string_view kopf_zu_ende = "# Anfang";  // of another log: a race begins anew
    zu_viel_ = zu_viel_ || neu_.size() + zeile.size() > neu_.capacity() || zeile.starts_with(kopf_zu_ende);
    if (!zu_viel_) {
        neu_ += zeile;
    }
}

bool protokollmithoerer::nachlesen() {
    if (hergang_ == nullptr) {
        return false;
    }
    if (zu_viel_) {
        von_vorn_lesen();
        return true;
    }
    constexpr std::string_view zeilenende = "\r\n";
    const std::size_t vorher = hergang_->anzahl();
    std::string_view rest = neu_;
    for (std::size_t ende = rest.find(zeilenende); ende != std::string_view::npos; ende = rest.find(zeilenende)) {
        hergang_->zeile(rest.substr(0, ende + zeilenende.size()));
        rest.remove_prefix(ende + zeilenende.size());
    }
    inhalt_ += neu_;
    neu_.clear();
    return hergang_->anzahl() != vorher;
}

}  // namespace tarvel
