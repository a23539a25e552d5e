#include "core/letzte_ergebnisse.h"

#include <algorithm>

#include "core/ordner.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view zuletzt_datei = "tvk_zuletzt.ini";
constexpr std::size_t text_zeichen_max = 200;

}  // namespace

void letzte_ergebnisse::laden(const dateien& ablage) {
    eintraege_.clear();
    const auto zeilen = ablage.zeilen_lesen(zuletzt_datei, 2 * anzahl_max).value_or(std::vector<std::string>{});
    for (std::size_t i = 0; i + 1 < zeilen.size(); i += 2) {
        if (!zeilen[i].empty() && !ablage.pfad(zeilen[i]).empty()) {
            eintraege_.push_back({zeilen[i], std::string(links(zeilen[i + 1], text_zeichen_max))});
        }
    }
}

void letzte_ergebnisse::merken(const dateien& ablage, const eintrag& neu) {
    const std::string_view text = links(neu.text, text_zeichen_max);
    std::erase_if(eintraege_, [&](const eintrag& e) { return e.pfad == neu.pfad || e.text == text; });
    eintraege_.insert(eintraege_.begin(), {neu.pfad, std::string(text)});
    eintraege_.resize(std::min(eintraege_.size(), anzahl_max));
    std::vector<std::string> zeilen;
    for (const eintrag& e : eintraege_) {
        zeilen.push_back(e.pfad);
        zeilen.push_back(e.text);
    }
    ablage.zeilen_schreiben(zuletzt_datei, zeilen);
}

std::string letzte_ergebnisse::ort(const dateien& ablage, const eintrag& e) {
    if (ablage.gibt_es(e.pfad)) {
        return e.pfad;
    }
    const std::string weggeraeumt = std::string(papierkorb) + "\\" + e.pfad.substr(e.pfad.find_last_of("\\/") + 1);
    return ablage.gibt_es(weggeraeumt) ? weggeraeumt : std::string();
}

}  // namespace tarvel
