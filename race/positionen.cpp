#include "race/positionen.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace tarvel {

void positionen::aufstellen() {
    int naechste = 1;
    for (const int spur : alle_spuren) {
        position_.at(feld_index(spur)) = um_.param.spur_aktiv[spur] ? naechste++ : 0;
    }
    zeigen();
}

void positionen::zeigen() {
    for (const int spur : alle_spuren) {
        const std::size_t index = feld_index(spur);
        um_.bahn.l_PosAnz.at(index).text(std::to_string(position_.at(index)));
        um_.bahn.l_PosAnz.at(index).sichtbar(um_.param.spur_aktiv[spur]);
    }
}

void positionen::neu_ordnen() {
    const std::array<int, spuren_max> vorher = position_;
    std::vector<int> folge;
    std::copy_if(alle_spuren.begin(), alle_spuren.end(), std::back_inserter(folge),
                 [&](int spur) { return um_.param.spur_aktiv[spur]; });
    std::stable_sort(folge.begin(), folge.end(), [&](int a, int b) {
        const int runden_a = um_.zustand.konto.runden(a);
        const int runden_b = um_.zustand.konto.runden(b);
        return runden_a != runden_b ? runden_a > runden_b : vorher.at(feld_index(a)) < vorher.at(feld_index(b));
    });
    position_ = {};
    int platz = 0;
    for (const int spur : folge) {
        position_.at(feld_index(spur)) = ++platz;
        if (vorher.at(feld_index(spur)) != platz) {
            um_.protokoll.vermerken(vermerk::platz, {spur, platz});
            um_.quellen.melden<int, int>(&messquelle::platz, spur, platz);
        }
    }
    zeigen();
}

void positionen::fahrer_umsetzen(const spuren<int>& herkunft) {
    const std::array<int, spuren_max> vorher = position_;
    for (const int spur : alle_spuren) {
        if (herkunft[spur] != 0) {
            position_.at(feld_index(spur)) = vorher.at(feld_index(herkunft[spur]));
        }
    }
}

void positionen::positions_pruefung() {
    for (const int a : alle_spuren) {
        for (const int b : alle_spuren) {
            const bool beide_dabei = um_.param.spur_aktiv[a] && um_.param.spur_aktiv[b];
            if (beide_dabei && um_.zustand.konto.runden(a) > um_.zustand.konto.runden(b) &&
                position_[feld_index(a)] > position_[feld_index(b)]) {
                positionen_tauschen(feld_index(a), feld_index(b));
            }
        }
    }
}

void positionen::positionen_tauschen(std::size_t a, std::size_t b) {
    std::swap(position_.at(a), position_.at(b));
    um_.bahn.l_PosAnz.at(b).text(std::to_string(position_.at(b)));
    um_.bahn.l_PosAnz.at(a).text(std::to_string(position_.at(a)));
    for (const std::size_t index : {b, a}) {
        um_.protokoll.vermerken(vermerk::platz, {static_cast<int>(index) + 1, position_.at(index)});
        um_.quellen.melden<int, int>(&messquelle::platz, static_cast<int>(index) + 1, position_.at(index));
    }
}

}  // namespace tarvel
