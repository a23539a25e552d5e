#include "results/ergebniszusammenfassung.h"

#include <algorithm>

namespace tarvel {
namespace {

constexpr std::string_view dazwischen = "  ·  ";
constexpr std::size_t genannte_max = 6;

}  // namespace

std::string platzreihe(const std::vector<std::string>& fahrer) {
    std::string reihe;
    for (std::size_t i = 0; i < std::min(fahrer.size(), genannte_max); ++i) {
        reihe += (i == 0 ? "" : "  ") + std::to_string(i + 1) + ". " + fahrer[i];
    }
    return fahrer.size() > genannte_max ? reihe + "  …" : reihe;
}

std::string ergebniszusammenfassung(const rennergebnis& ergebnis) {
    std::vector<const rennergebnis::spur*> folge;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        folge.push_back(&s);
    }
    std::stable_sort(folge.begin(), folge.end(), [](const auto* a, const auto* b) {
        return a->platz.value_or(spuren_max + 1) < b->platz.value_or(spuren_max + 1);
    });
    std::vector<std::string> fahrer;
    std::transform(folge.begin(), folge.end(), std::back_inserter(fahrer), [](const auto* s) { return s->fahrer; });
    return ergebnis.datum + " " + ergebnis.uhrzeit + std::string(dazwischen) + platzreihe(fahrer);
}

std::string tagestext(std::string_view pfad, const rennergebnis& ergebnis) {
    std::string_view name = pfad.substr(pfad.find_last_of("\\/") + 1);
    name = name.substr(0, name.find_last_of('.'));
    return ergebnis.datum + std::string(dazwischen) + std::string(name);
}

}  // namespace tarvel
