#include "hardware/at2560_zuordnung.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

constexpr std::size_t erste_zeile_von_hand = 36;

/// Rows of the command file, each with the event that belongs there.
using zeilenliste = std::vector<std::pair<int, std::string>>;

zeilenliste zeilen_von(const at_zuordnung& zuordnung) {
    zeilenliste zeilen;
    for (const at_sensor& sensor : zuordnung.sensoren) {
        if (sensor.ereignis.empty()) {
            continue;
        }
        if (sensor.funktion == at_funktion::rundenzaehlung) {
            zeilen.emplace_back(at_zeile::rundenzaehlung(sensor.spur), sensor.ereignis);
        } else if (sensor.funktion != at_funktion::keine) {
            const int nummer = sensor.funktion == at_funktion::zwischenzeit_1 ? 1 : 2;
            zeilen.emplace_back(at_zeile::zwischenzeit(sensor.spur, nummer), sensor.ereignis);
        }
        if (sensor.tanksensor != 0) {
            const bool ein = sensor.tanksensor == 1;
            zeilen.emplace_back(ein ? at_zeile::tanken_ein(sensor.spur) : at_zeile::tanken_aus(sensor.spur),
                                sensor.ereignis);
        }
    }
    for (const at_chaostaster& taster : zuordnung.taster) {
        if (!taster.ereignis.empty() && taster.fahrer != at_chaostaster::keiner) {
            zeilen.emplace_back(at_zeile::chaos_allgemein + taster.fahrer, taster.ereignis);
        }
    }
    return zeilen;
}

}  // namespace

std::string at_pin(const std::string& ereignis) {
    const std::size_t letzter_buchstabe = ereignis.find_last_not_of("0123456789");
    return ereignis.substr(letzter_buchstabe == std::string::npos ? 0 : letzter_buchstabe + 1);
}

bool at_zuordnung::doppelt() const {
    zeilenliste zeilen = zeilen_von(*this);
    std::sort(zeilen.begin(), zeilen.end());
    return std::adjacent_find(zeilen.begin(), zeilen.end(),
                              [](const auto& a, const auto& b) { return a.first == b.first; }) != zeilen.end();
}

at_profil at_zuordnung::eintragen(const at_profil& bisher) const {
    at_profil neu = bisher;
    std::fill(neu.at_ereignis.begin() + 1, neu.at_ereignis.begin() + erste_zeile_von_hand, at_nicht_belegt);
    std::vector<std::string> pins;
    const auto pin_merken = [&pins](const std::string& ereignis) {
        const std::string pin = at_pin(ereignis);
        if (!pin.empty() && std::find(pins.begin(), pins.end(), pin) == pins.end()) {
            pins.push_back(pin);
        }
    };
    for (const at_sensor& sensor : sensoren) {
        pin_merken(sensor.ereignis);
    }
    for (const at_chaostaster& einer : taster) {
        pin_merken(einer.ereignis);
    }
    for (const auto& [zeile, ereignis] : zeilen_von(*this)) {
        neu.at_ereignis.at(static_cast<std::size_t>(zeile)) = ereignis;
    }
    for (std::size_t zeile = erste_zeile_von_hand; zeile < neu.at_ereignis.size(); ++zeile) {
        pin_merken(neu.at_ereignis.at(zeile));
    }
    if (!pins.empty()) {
        neu.at_is_befehl = "IS,";
        for (const std::string& pin : pins) {
            neu.at_is_befehl += (&pin == &pins.front() ? "" : ".") + pin;
        }
    }
    return neu;
}

}  // namespace tarvel
