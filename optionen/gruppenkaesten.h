#pragma once

#include "core/wettkampfmodus.h"
#include "optionen/optionszeile.h"

namespace tarvel {

/// Ties the boxes of the grouping together: one that may not be ticked, for the others or for the order of lanes, is
/// empty and cannot be reached.
class gruppenkaesten {
public:
    struct zeilen {
        optionszeile& feste_gruppen;
        optionszeile& optimal_verteilen;
        optionszeile& am_stueck;
        optionszeile& folge;
    };

    /// `in_kraft` is the order that stays where the field holds none.
    gruppenkaesten(const zeilen& z, const wechsel_folge& in_kraft);

    void abgleichen();

private:
    haken& feste_gruppen_;
    haken& optimal_verteilen_;
    haken& am_stueck_;
    feld& folge_;
    const wechsel_folge& in_kraft_;
};

}  // namespace tarvel
