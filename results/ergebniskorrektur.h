#pragma once

#include "results/ergebnistabelle.h"

namespace tarvel {

/// What the operator may correct of a driver. Index 0 of laps and metres is the total, the others are lanes or heats;
/// best laps count from 1, or stand at 0 where there is only one.
struct ergebniseintrag {
    std::string klasse;
    std::string name;
    std::vector<std::int64_t> runden;
    std::vector<double> meter;
    std::vector<zeit_ms> beste;
    zeit_ms gesamtzeit = 0;

    bool operator==(const ergebniseintrag&) const = default;
};

/// None for a line that is no driver's.
std::optional<ergebniseintrag> eintrag_lesen(const ergebnistabelle& tabelle, std::size_t zeile);

/// Writes what differs from the line as it is; every other field stays byte for byte. A separator in a name becomes a
/// blank.
void eintrag_schreiben(ergebnistabelle& tabelle, std::size_t zeile, const ergebniseintrag& neu);

}  // namespace tarvel
