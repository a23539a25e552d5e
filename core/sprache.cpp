#include "core/sprache.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/felder.h"

namespace tarvel {

sprachliste& sprachliste::text(std::string_view deutsch, nehmer ziel) {
    eintraege_.push_back({std::string(deutsch), std::move(ziel)});
    return *this;
}

sprachliste& sprachliste::text(std::string_view deutsch, std::string& ziel) {
    return text(deutsch, [&ziel](const std::string& neu) { ziel = neu; });
}

sprachliste& sprachliste::text(std::string_view deutsch, steuerelement& ziel) {
    return text(deutsch, [&ziel](const std::string& neu) { ziel.text(neu); });
}

sprachliste& sprachliste::tipp(std::string_view deutsch, steuerelement& ziel) {
    return text(deutsch, [&ziel](const std::string& neu) { ziel.tipp(neu); });
}

sprachliste& sprachliste::ansage(std::string_view deutsch, steuerelement& ziel) {
    return text(deutsch, [&ziel](const std::string& neu) { ziel.ansage(neu); });
}

void sprachliste::anwenden(const dateien& ablage) const {
    const std::string datei = ablage.sprachdatei(datei_);
    const auto gelesen = form_ == form::zeilen ? ablage.zeilen_lesen(datei, eintraege_.size())
                                               : felder_lesen(ablage, datei, eintraege_.size());
    setzen(gelesen.value_or(std::vector<std::string>{}));
}

void sprachliste::setzen(const std::vector<std::string>& gelesen) const {
    for (std::size_t i = 0; i < eintraege_.size(); ++i) {
        if (eintraege_[i].ziel) {
            eintraege_[i].ziel(i < gelesen.size() ? gelesen[i] : eintraege_[i].deutsch);
        }
    }
}

std::vector<std::string> sprachliste::deutsche_datei() const {
    std::vector<std::string> zeilen;
    std::transform(eintraege_.begin(), eintraege_.end(), std::back_inserter(zeilen),
                   [this](const eintrag& e) { return form_ == form::zeilen ? e.deutsch : als_feld(e.deutsch); });
    return zeilen;
}

}  // namespace tarvel
