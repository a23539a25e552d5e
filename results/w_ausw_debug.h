#pragma once

#include <functional>

#include "core/fensterlogik.h"
#include "results/ergebnistabelle.h"

namespace tarvel {

/// The lines that the viewer holds in memory, as they would be saved.
class w_ausw_debug final : public fensterlogik {
public:
    w_ausw_debug(fensterregister& fenster, const dateien& ablage)
        : fensterlogik(fenster, ablage, fenstername::w_ausw_debug) {}

    liste zeilenliste;

    std::function<void()> bei_ende;  ///< the window has gone

    void zeilen_zeigen(const std::vector<std::string>& zeilen) {
        zeilenliste.leeren();
        for (const std::string& zeile : zeilen) {
            zeilenliste.hinzufuegen(zeile);
        }
    }
    void entladen() override {
        zeilenliste.leeren();
        if (bei_ende) {
            bei_ende();
        }
    }
};

}  // namespace tarvel
