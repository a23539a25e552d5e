#include "results/korrekturliste.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "results/platzierung.h"

namespace tarvel {

void korrekturliste::anfuegen(korrekturschritt schritt) {
    schritte_.resize(geltende_);
    schritte_.push_back(std::move(schritt));
    ++geltende_;
}

void korrekturliste::leeren() {
    schritte_.clear();
    geltende_ = 0;
}

rennergebnis korrekturliste::angewandt(rennergebnis gefahren) const {
    for (std::size_t i = 0; i < geltende_; ++i) {
        for (const korrektur& k : schritte_[i]) {
            korrigieren(gefahren, k);
        }
    }
    for (const rennergebnis::spur& s : gefahren.spuren) {
        gefahren.rundenzeilen = std::max(gefahren.rundenzeilen, static_cast<int>(s.runden.size()));
    }
    platzieren(gefahren);
    return gefahren;
}

std::string korrekturzeile(std::string_view wie, const korrektur& k) {
    std::string zeile = "Korrektur ";
    if (!wie.empty()) {
        zeile += std::string(wie) + " ";
    }
    zeile += "Spur " + std::to_string(k.spur);
    if (k.was == korrektur::art::restmeter) {
        return zeile + " Restmeter " + zahl_text(k.meter, '.');
    }
    zeile += " Runde " + std::to_string(k.runde);
    if (k.was == korrektur::art::geloescht) {
        return zeile + " gelöscht";
    }
    zeile += k.was == korrektur::art::geteilt ? " geteilt" : " Überfahrt nachgetragen";
    return zeile + ": Zeit " + std::to_string(k.zeit) + " Stempel " + std::to_string(k.stempel) + " Pause " +
           std::to_string(k.pause);
}

}  // namespace tarvel
