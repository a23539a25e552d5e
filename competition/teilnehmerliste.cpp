#include "competition/teilnehmerliste.h"

#include <algorithm>
#include <utility>

namespace tarvel {

std::optional<std::size_t> teilnehmerliste::zeile_von(std::string_view name) const {
    const auto gefunden =
        std::find_if(eintraege_.begin(), eintraege_.end(), [&](const listeneintrag& e) { return e.name == name; });
    return gefunden == eintraege_.end() ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(gefunden - eintraege_.begin()));
}

namensmangel teilnehmerliste::pruefen(std::string_view name) const {
    if (const namensmangel mangel = name_pruefen(name, txt_); mangel != namensmangel::keiner) {
        return mangel;
    }
    if (zeile_von(name)) {
        return namensmangel::vergeben;
    }
    return eintraege_.size() >= max_ ? namensmangel::voll : namensmangel::keiner;
}

namensmangel teilnehmerliste::hinzufuegen(listeneintrag neu) {
    neu.name = startlistenname(neu.name);
    const namensmangel mangel = pruefen(neu.name);
    if (mangel == namensmangel::keiner) {
        eintraege_.push_back(std::move(neu));
    }
    return mangel;
}

void teilnehmerliste::entfernen(std::size_t zeile) {
    if (zeile < eintraege_.size()) {
        eintraege_.erase(eintraege_.begin() + static_cast<std::ptrdiff_t>(zeile));
    }
}

void teilnehmerliste::mit_naechster_tauschen(std::size_t zeile) {
    if (zeile + 1 < eintraege_.size()) {
        std::swap(eintraege_[zeile], eintraege_[zeile + 1]);
    }
}

void teilnehmerliste::mischen(plattform::zufall& zufall) {
    for (std::size_t rest = eintraege_.size(); rest > 1; --rest) {
        const auto gezogen = static_cast<std::size_t>(zufall.bruchteil() * static_cast<double>(rest));
        std::swap(eintraege_[std::min(gezogen, rest - 1)], eintraege_[rest - 1]);
    }
}

void teilnehmerliste::inhalt_tauschen(teilnehmerliste& andere) {
    std::swap(eintraege_, andere.eintraege_);
}

void teilnehmerliste::bild_setzen(std::size_t zeile, std::string_view stamm) {
    if (zeile < eintraege_.size()) {
        eintraege_[zeile].bild = stamm;
    }
}

void teilnehmerliste::bilder_von(const namensliste& andere) {
    for (std::size_t i = 0; i < std::min(eintraege_.size(), andere.eintraege().size()); ++i) {
        eintraege_[i].bild = andere.eintraege()[i].bild;
    }
}

namensliste teilnehmerliste::als_namensliste(const namensliste::art& art) const {
    namensliste neu(art);
    for (std::size_t i = 0; i < eintraege_.size(); ++i) {
        neu.hinzufuegen(eintraege_[i].name);
        neu.bild_setzen(i, eintraege_[i].bild);
    }
    return neu;
}

}  // namespace tarvel
