#include "core/namensliste.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <set>

namespace tarvel {
namespace {

constexpr std::size_t zeilen_max = 204;  // line 0 to 203
constexpr std::string_view bild_marke = "{pic}";
constexpr std::string_view ende_marke = "{ende}";
constexpr std::array<std::string_view, 4> bild_endungen{".jpg", ".gif", ".JPG", ".GIF"};

}  // namespace

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
    if (zeilen.empty() || zeilen.front() != art_.kopfwort || abgerissen) {
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
    std::vector<std::string> zeilen{art_.kopfwort};
    std::transform(eintraege_.begin(), schluss, std::back_inserter(zeilen), [](const auto& e) { return e.name; });
    zeilen.emplace_back(bild_marke);
    std::transform(eintraege_.begin(), schluss, std::back_inserter(zeilen), [](const auto& e) { return e.bild; });
    zeilen.emplace_back(ende_marke);
    return ablage.zeilen_schreiben(datei, zeilen);
}

bool namensliste::ist_marke(std::string_view name) {
    return name == bild_marke || name == ende_marke;
}

void namensliste::hinzufuegen(std::string_view name) {
    if (!voll()) {
        eintraege_.push_back({std::string(name), ""});
    }
}

void namensliste::entfernen(std::size_t zeile) {
    if (zeile < eintraege_.size()) {
        eintraege_.erase(eintraege_.begin() + static_cast<std::ptrdiff_t>(zeile));
    }
}

void namensliste::bild_setzen(std::size_t zeile, std::string_view stamm) {
    if (zeile < eintraege_.size()) {
        eintraege_[zeile].bild = stamm;
    }
}

std::string namensliste::bilddatei(const dateien& ablage, std::size_t zeile) const {
    if (zeile < eintraege_.size() && !eintraege_[zeile].bild.empty()) {
        for (const std::string_view endung : bild_endungen) {
            std::string datei = art_.bildordner + "/" + eintraege_[zeile].bild + std::string(endung);
            if (ablage.gibt_es(datei)) {
                return datei;
            }
        }
    }
    return art_.bildordner + "/" + art_.standardbild;
}

std::string namensliste::bilddatei(const dateien& ablage, std::string_view name) const {
    const auto gefunden =
        std::find_if(eintraege_.begin(), eintraege_.end(), [&](const listeneintrag& e) { return e.name == name; });
    return bilddatei(ablage, static_cast<std::size_t>(gefunden - eintraege_.begin()));
}

void namensliste::bild_zeigen(const dateien& ablage, std::string_view name, bild& anzeige) const {
    anzeige.ersatz(art_.bildordner + "/" + art_.standardbild);
    anzeige.datei(bilddatei(ablage, name));
}

int namensliste::bilder_uebernehmen(const dateien& ablage, std::string_view ausser) {
    std::set<std::string, std::less<>> staemme;
    for (const std::string_view endung : {std::string_view(".jpg"), std::string_view(".gif")}) {
        for (const std::string& datei : ablage.auflisten(art_.bildordner, "", endung)) {
            staemme.insert(datei.substr(0, datei.size() - endung.size()));
        }
    }
    int anzahl = 0;
    for (listeneintrag& eintrag : eintraege_) {
        if (eintrag.name != ausser && staemme.contains(eintrag.name)) {
            eintrag.bild = eintrag.name;
            ++anzahl;
        }
    }
    return anzahl;
}

}  // namespace tarvel
