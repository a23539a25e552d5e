#pragma once

#include <algorithm>

#include "race/ansicht_geometrie.h"

namespace tarvel {

/// Font size that fills a place: by its height, and where `breite_em` is given by the width of the longest usual text.
inline void schrift(platz& ort, double anteil, double breite_em = 0) {
    constexpr int schrift_min_px = 8;
    double px = ort.ort.hoehe * anteil;
    if (breite_em > 0) {
        px = std::min(px, ort.ort.breite / breite_em);
    }
    ort.schrift_px = std::max(schrift_min_px, static_cast<int>(px));
}

/// What matters in a race is read from the other side of the track: no letter is lower in a window of this height.
constexpr int lesbar_px(int hoehe) {
    constexpr int teil = 45;
    return (hoehe + teil - 1) / teil;
}

/// Puts the controls of a lane into its block: a column, a double one, a row or the room for one alone. `skala` is in
/// pixels per unit of the design.
void spalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double skala, ansicht_geometrie& ganzes);
void doppelspalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double skala, ansicht_geometrie& ganzes);
void zeile_legen(const ansicht_inhalt& inhalt, const rechteck& block, double skala, ansicht_geometrie& ganzes);
void einfahrer_legen(const ansicht_inhalt& inhalt, const rechteck& block, double skala, ansicht_geometrie& ganzes);
/// The column shows things side by side.
bool ist_breite_spalte(int breite, double skala);
/// The blocks change hands: the first goes to the lane of the lowest value.
void bloecke_ordnen(ansicht_geometrie& g, const spuren<int>& ordnung);
/// The fonts in these places.
void spur_schriften(plaetze<spur_teil>& g, double skala, int lesbar_px);

}  // namespace tarvel
