#include "core/letzte_ergebnisse.h"

#include <algorithm>

#include "core/ordner.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view zuletzt_datei = "tvk_zuletzt.ini";
constexpr std::size_t text_zeichen_max = 200;
constexpr char trenner = '\t';  // which nobody can type into a name
constexpr std::size_t felder_min = 4;

}  // namespace

std::string ergebnisangabe::zeile() const {
    std::string text = wann + trenner + static_cast<char>(was) + trenner + name + trenner + std::to_string(runden);
    for (std::size_t i = 0; i < std::min(fahrer.size(), genannte_max); ++i) {
        text += trenner + fahrer[i];
    }
    return fahrer.size() > genannte_max ? text + trenner + "…" : text;
}

std::optional<ergebnisangabe> ergebnisangabe::aus_zeile(std::string_view zeile) {
    std::vector<std::string> felder{{}};
    for (const char c : zeile) {
        if (c == trenner) {
            felder.emplace_back();
        } else {
            felder.back() += c;
        }
    }
    if (felder.size() < felder_min || felder[1].size() != 1 ||
        std::string_view("ZRTW").find(felder[1]) == std::string_view::npos) {
        return std::nullopt;
    }
    ergebnisangabe angabe{felder[0], static_cast<art>(felder[1].front()), felder[2], 0, {}};
    angabe.runden = static_cast<int>(ganzzahl_lesen(felder[3], 0, 1000000));
    angabe.fahrer.assign(felder.begin() + felder_min, felder.end());
    return angabe;
}

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
