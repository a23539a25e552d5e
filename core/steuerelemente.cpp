#include "core/steuerelemente.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace tarvel {

void steuerelement::nicht_mehr_beobachten(const steuer_beobachter& wer) {
    steuer_beobachter** platz = &beobachter_;
    while (*platz != nullptr && *platz != &wer) {
        platz = &(*platz)->naechster_;
    }
    if (*platz != nullptr) {
        *platz = wer.naechster_;
    }
}

void steuerelement::text_setzen(std::string& ziel, std::string_view neu) {
    if (ziel == neu) {
        return;
    }
    ziel.assign(neu);
    melden();
}

void steuerelement::text(std::string_view neu) {
    text(neu, {});
}

void steuerelement::text(std::string_view neu, std::string_view davor) {
    text_setzen(davor_, davor);
    text_setzen(text_, neu);
}

void steuerelement::tipp(std::string_view neu) {
    text_setzen(tipp_, neu);
}

void steuerelement::ansage(std::string_view neu) {
    text_setzen(ansage_, neu);
}

void steuerelement::fokus_setzen() {
    fokuswunsch_ = true;
    melden();
}

bool steuerelement::fokuswunsch_abholen() {
    return std::exchange(fokuswunsch_, false);
}

void befehl::klicken() {
    if (bedienbar() && bei_klick) {
        bei_klick();
    }
}

void eingabe_element::eingeben(std::string_view neu) {
    if (laenge_max_ > 0) {
        neu = links(neu, static_cast<std::size_t>(laenge_max_));
    }
    if (!bedienbar() || neu == text()) {
        return;
    }
    text(neu);
    if (bei_aenderung) {
        bei_aenderung();
    }
}

void haken::umschalten() {
    if (!bedienbar()) {
        return;
    }
    gesetzt(!gesetzt());
    if (bei_aenderung) {
        bei_aenderung();
    }
}

void auswahl::eingeben(std::string_view neu) {
    if (frei_ || std::find(eintraege_.begin(), eintraege_.end(), neu) != eintraege_.end()) {
        eingabe_element::eingeben(neu);
    }
}

int auswahl::platz() const {
    const auto an = [this](int i) { return eintraege_.at(static_cast<std::size_t>(i)); };
    const int anzahl = static_cast<int>(eintraege_.size());
    if (platz_ >= 0 && platz_ < anzahl && an(platz_) == text()) {
        return platz_;
    }
    const auto gefunden = std::find(eintraege_.begin(), eintraege_.end(), text());
    return gefunden == eintraege_.end() ? -1 : static_cast<int>(gefunden - eintraege_.begin());
}

void auswahl::platz(int neu) {
    const bool gibt_es = neu >= 0 && neu < static_cast<int>(eintraege_.size());
    platz_ = gibt_es ? neu : -1;
    text(gibt_es ? eintraege_.at(static_cast<std::size_t>(neu)) : std::string());
}

void auswahl::waehlen(int neu) {
    if (!bedienbar() || neu < 0 || neu >= static_cast<int>(eintraege_.size()) || neu == platz()) {
        return;
    }
    platz(neu);
    if (bei_aenderung) {
        bei_aenderung();
    }
}

void liste::zeilen(std::vector<std::string> neu, std::vector<std::string> gezeigt) {
    if (neu == zeilen_ && gezeigt == gezeigt_) {
        return;
    }
    zeilen_ = std::move(neu);
    gezeigt_ = std::move(gezeigt);
    markiert_ = -1;
    ++stand_;
    melden();
}

void liste::hinzufuegen(std::string_view zeile, std::string_view gezeigt) {
    if (!gezeigt.empty() && gezeigt != zeile) {
        gezeigt_.insert(gezeigt_.end(), zeilen_.begin() + static_cast<std::ptrdiff_t>(gezeigt_.size()), zeilen_.end());
        gezeigt_.emplace_back(gezeigt);
    }
    zeilen_.emplace_back(zeile);
    melden();
}

void liste::leeren() {
    if (zeilen_.empty()) {
        return;
    }
    zeilen_.clear();
    gezeigt_.clear();
    markiert_ = -1;
    ++stand_;
    melden();
}

void liste::letzte_entfernen() {
    if (zeilen_.empty()) {
        return;
    }
    zeilen_.pop_back();
    gezeigt_.resize(std::min(gezeigt_.size(), zeilen_.size()));
    markiert_ = std::min(markiert_, static_cast<int>(zeilen_.size()) - 1);
    ++stand_;
    melden();
}

void liste::markieren(int zeile) {
    setzen(markiert_, std::clamp(zeile, -1, static_cast<int>(zeilen_.size()) - 1));
}

void liste::auswaehlen(int zeile) {
    if (!bedienbar()) {
        return;
    }
    markieren(zeile);
    if (bei_auswahl) {
        bei_auswahl();
    }
}

void liste::doppelklicken(int zeile) {
    auswaehlen(zeile);
    if (bedienbar() && bei_doppelklick && markiert_ >= 0) {
        bei_doppelklick();
    }
}

void farbfeld::waehlen(farbe neu) {
    if (!bedienbar() || neu == wert_) {
        return;
    }
    wert(neu);
    if (bei_aenderung) {
        bei_aenderung();
    }
}

}  // namespace tarvel
