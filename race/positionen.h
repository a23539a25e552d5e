#pragma once

#include <array>
#include <cstddef>

#include "race/umgebung.h"

namespace tarvel {

/// The live places of the lanes. Laps alone decide: only a strictly higher count moves a lane up, so of two lanes on
/// the same lap the one that reached it first stays ahead.
class positionen {
public:
    explicit positionen(const renn_umgebung& um) : um_(um) {}

    /// Before the start the places follow the order of the lanes in the race.
    void aufstellen();
    /// A driver keeps his place on another lane: lane i takes that of lane `herkunft[i]`, 0 leaves it.
    void fahrer_umsetzen(const spuren<int>& herkunft);
    void zeigen();
    /// All places anew by the laps, where a result has changed them or a lane has left; among equals who was ahead
    /// stays so.
    void neu_ordnen();
    /// At the end of every lap step.
    void positions_pruefung();
    void positionen_tauschen(std::size_t a, std::size_t b);

    /// Place of a lane, index lane - 1; 0 for a lane that is not in the race.
    int position(std::size_t index) const { return position_.at(index); }

private:
    renn_umgebung um_;
    std::array<int, spuren_max> position_{};
};

}  // namespace tarvel
