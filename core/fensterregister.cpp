#include "core/fensterregister.h"

#include <utility>

namespace tarvel {

void fensterregister::anmelden(std::string_view name, eintrag verhalten) {
    fenster_[std::string(name)].verhalten = std::move(verhalten);
}

bool fensterregister::kennt(std::string_view name) const {
    return fenster_.contains(name);
}

void fensterregister::laden(std::string_view name) {
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end() || gefunden->second.geladen) {
        return;
    }
    gefunden->second.geladen = true;
    if (gefunden->second.verhalten.laden) {
        gefunden->second.verhalten.laden();
    }
}

void fensterregister::zeigen(std::string_view name, anzeige_art art) {
    laden(name);
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end() || !gefunden->second.geladen) {
        return;  // unknown, or closed again by its own load handler
    }
    gefunden->second.offen = true;
    if (anzeige_ != nullptr) {
        anzeige_->zeigen(gefunden->first, art);
    }
}

void fensterregister::verbergen(std::string_view name) {
    const auto gefunden = fenster_.find(name);
    if (gefunden != fenster_.end() && std::exchange(gefunden->second.offen, false) && anzeige_ != nullptr) {
        anzeige_->verbergen(gefunden->first);
    }
}

void fensterregister::entladen(std::string_view name) {
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end() || !gefunden->second.geladen) {
        return;
    }
    const bool war_offen = std::exchange(gefunden->second.offen, false);
    gefunden->second.geladen = false;
    if (gefunden->second.verhalten.entladen) {
        gefunden->second.verhalten.entladen();
    }
    if (war_offen && anzeige_ != nullptr) {
        anzeige_->verbergen(gefunden->first);
    }
}

void fensterregister::neu_laden(std::string_view name) {
    const auto gefunden = fenster_.find(name);
    if (gefunden == fenster_.end() || !gefunden->second.geladen) {
        return;
    }
    const bool war_offen = gefunden->second.offen;
    gefunden->second.geladen = false;
    if (gefunden->second.verhalten.entladen) {
        gefunden->second.verhalten.entladen();
    }
    laden(name);
    gefunden->second.offen = war_offen && gefunden->second.geladen;
}

bool fensterregister::ist_offen(std::string_view name) const {
    const auto gefunden = fenster_.find(name);
    return gefunden != fenster_.end() && gefunden->second.offen;
}

}  // namespace tarvel
