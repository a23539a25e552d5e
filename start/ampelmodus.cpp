#include "start/ampelmodus.h"

#include <array>
#include <cstddef>

namespace tarvel {
namespace {

using reihe2 = ampelmodus::zweite_reihe;

/// Index is the number of the choice - 1.
constexpr std::array<ampelmodus, 9> modi{{
    {5, reihe2::gruen, true, false},
    {5, reihe2::rot, true, false},
    {4, reihe2::gruen, true, false},
    {4, reihe2::rot, true, false},
    {3, reihe2::rot, true, false},
    {5, reihe2::keine, false, false},  // drag race
    {5, reihe2::keine, false, true},
    {4, reihe2::keine, false, true},
    {3, reihe2::keine, false, true},
}};

}  // namespace

const ampelmodus& ampelmodus_von(ampelwahl wahl) {
    const int nummer = static_cast<int>(wahl);
    const bool in_der_liste = nummer >= 1 && nummer <= static_cast<int>(modi.size());
    return modi.at(in_der_liste ? static_cast<std::size_t>(nummer - 1) : 0);
}

}  // namespace tarvel
