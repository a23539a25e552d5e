#include "core/namensliste.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 204;  // line 0 to 203
constexpr std::string_view bild_marke = "{pic}";
constexpr std::string_view ende_marke = "{ende}";

}  // namespace

namensliste::namensliste(std::string kopfwort, std::vector<std::string> eingebaut)
    : kopfwort_(std::move(kopfwort)), eingebaut_(std::move(eingebaut)) {
    eingebaute_setzen();
}

void namensliste::eingebaute_setzen() {
    eintraege_.clear();
    for (const std::string& name : eingebaut_) {
        eintraege_.push_back({name, ""});
    }
}

bool namensliste::laden(const dateien& ablage, std::string_view datei) {
    const std::vector<std::string> zeilen = ablage.zeilen_lesen(datei, zeilen_max).value_or(std::vector<std::string>{});
    const auto ende = std::find(zeilen.begin(), zeilen.end(), ende_marke);
    const bool abgerissen = ende == zeilen.end() && zeilen.size() < zeilen_max;
    if (zeilen.empty() || zeilen.front() != kopfwort_ || abgerissen) {
        eingebaute_setzen();
        return false;
    }
    eintraege_.clear();
    auto zeile = zeilen.begin() + 1;
    while (zeile != ende && *zeile != bild_marke && eintraege_.size() < namen_max) {
        eintraege_.push_back({*zeile++, ""});
    }
    if (zeile == ende || *zeile != bild_marke) {
        return true;  // more names than rows: the pictures lie beyond the list
    }
    ++zeile;
    for (listeneintrag& eintrag : eintraege_) {
        if (zeile == ende) {
            break;
        }
        eintrag.bild = *zeile++;
    }
    return true;
}

bool namensliste::speichern(const dateien& ablage, std::string_view datei) const {
    const auto schluss =
        std::find_if(eintraege_.begin(), eintraege_.end(), [](const listeneintrag& e) { return e.name.empty(); });
    std::vector<std::string> zeilen{kopfwort_};
    std::transform(eintraege_.begin(), schluss, std::back_inserter(zeilen), [](const auto& e) { return e.name; });
    zeilen.emplace_back(bild_marke);
    std::transform(eintraege_.begin(), schluss, std::back_inserter(zeilen), [](const auto& e) { return e.bild; });
    zeilen.emplace_back(ende_marke);
    return ablage.zeilen_schreiben(datei, zeilen);
}

std::string namensliste::bild_von(std::string_view name) const {
    const auto gefunden =
        std::find_if(eintraege_.begin(), eintraege_.end(), [&](const listeneintrag& e) { return e.name == name; });
    return gefunden == eintraege_.end() ? "" : gefunden->bild;
}

void namensliste::bild_zuordnen(std::string_view stamm) {
    for (listeneintrag& eintrag : eintraege_) {
        if (eintrag.name == stamm) {
            eintrag.bild = stamm;
        }
    }
}

}  // namespace tarvel
