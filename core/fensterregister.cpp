#include "core/fensterregister.h"

#include <algorithm>
#include <utility>

#include "core/fensterlogik.h"

namespace tarvel {

fensterregister::fenster& fensterregister::an(const fensterlogik& logik) {
    return an(logik.kennung());
}

void fensterregister::laden(fenstername name) {
    fenster& f = an(name);
    if (f.logik != nullptr && !std::exchange(f.geladen, true)) {
        f.logik->laden();
    }
}

void fensterregister::zeigen(fenstername name, anzeige_art art) {
    laden(name);
    if (!an(name).geladen) {
        return;  // unknown, or closed again by its own load handler
    }
    an(name).offen = true;
    if (anzeige_ != nullptr) {
        anzeige_->zeigen(name, art);
    }
}

void fensterregister::verbergen(fenstername name) {
    if (std::exchange(an(name).offen, false) && anzeige_ != nullptr) {
        anzeige_->verbergen(name);
    }
}

void fensterregister::entladen(fenstername name) {
    fenster& f = an(name);
    if (!f.geladen) {
        return;
    }
    const bool war_offen = std::exchange(f.offen, false);
    f.geladen = false;
    f.logik->entladen();
    if (war_offen && anzeige_ != nullptr) {
        anzeige_->verbergen(name);
    }
}

void fensterregister::neu_laden(fenstername name) {
    fenster& f = an(name);
    if (!f.geladen) {
        return;
    }
    const bool war_offen = f.offen;
    f.geladen = false;
    f.logik->entladen();
    laden(name);
    f.offen = war_offen && f.geladen;
}

void fensterregister::alle_entladen() {
    for (std::size_t i = 0; i < fenster_.size(); ++i) {
        entladen(static_cast<fenstername>(i));
    }
}

std::vector<sprachliste> fensterregister::sprachdateien() const {
    std::vector<sprachliste> alle;
    for (const fenster& f : fenster_) {
        if (f.logik == nullptr) {
            continue;
        }
        for (sprachliste& neue : f.logik->sprachdateien()) {
            const auto gleiche = std::find_if(
                alle.begin(), alle.end(), [&neue](const sprachliste& schon) { return schon.datei() == neue.datei(); });
            if (gleiche == alle.end()) {
                alle.push_back(std::move(neue));
            } else if (gleiche->anzahl() < neue.anzahl()) {
                *gleiche = std::move(neue);
            }
        }
    }
    return alle;
}

}  // namespace tarvel
