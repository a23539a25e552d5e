#include "results/ergebniszusammenfassung.h"

#include <algorithm>
#include <iterator>

namespace tarvel {

ergebnisangabe angabe_von(const rennergebnis& ergebnis) {
    std::vector<const rennergebnis::spur*> folge;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        folge.push_back(&s);
    }
    std::stable_sort(folge.begin(), folge.end(), [](const auto* a, const auto* b) {
        return a->platz.value_or(spuren_max + 1) < b->platz.value_or(spuren_max + 1);
    });
    using art = ergebnisangabe::art;
    const bool nach_zeit = ergebnis.ziel && ergebnis.ziel->ist_zeit();
    ergebnisangabe angabe{
        ergebnis.datum + " " + ergebnis.uhrzeit, nach_zeit ? art::zeitrennen : art::rundenrennen, {}, 0, {}};
    if (!folge.empty() && !folge.front()->disqualifiziert) {
        angabe.runden = folge.front()->rundenzahl();
    }
    std::transform(folge.begin(), folge.end(), std::back_inserter(angabe.fahrer),
                   [](const auto* s) { return s->fahrer; });
    return angabe;
}

ergebnisangabe tagesangabe(std::string_view pfad, const std::string& datum, const std::vector<tagesfuehrender>& vorn) {
    std::string_view name = pfad.substr(pfad.find_last_of("\\/") + 1);
    name = name.substr(0, name.find_last_of('.'));
    ergebnisangabe angabe{datum, ergebnisangabe::art::tagesrennen, std::string(name), 0, {}};
    if (vorn.size() == 1) {
        angabe.runden = static_cast<int>(vorn.front().runden);
        angabe.fahrer = {vorn.front().name};
    }
    return angabe;
}

}  // namespace tarvel
