#pragma once

#include "core/fensterlogik.h"
#include "hardware/geraetezugang.h"

namespace tarvel {

/// A window that tries or sets up a timing device, which it has for itself meanwhile.
class geraetefenster : public fensterlogik {
public:
    using fensterlogik::fensterlogik;

    geraetezugang* zugang = nullptr;  ///< null without a device

protected:
    void geraet_nehmen() {
        if (zugang != nullptr) {
            zugang->geraet_trennen();
        }
    }
    void geraet_zurueckgeben() {
        if (zugang != nullptr) {
            zugang->geraet_verbinden();
        }
    }
    /// False if they could not be kept.
    bool einstellungen_sichern() { return zugang == nullptr || zugang->einstellungen_speichern(); }
};

}  // namespace tarvel
