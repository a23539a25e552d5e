#include "race/strafen.h"

#include <algorithm>
#include <string>

namespace tarvel {

void strafen::zeitstrafe(int spur, dauer_s mehr) {
    um_.zustand.spur[spur].strafzeit += mehr;
    um_.protokoll.vermerken(vermerk::strafe, {spur, mehr.count(), 0});
    straflabel_zeigen(spur);
}

void strafen::straflabel_zeigen(int spur) {
    bezeichnung& label = um_.bahn.straflabel[spur];
    label.text(um_.bahn.wort.strafzeit + ": " + std::to_string(um_.zustand.spur[spur].strafzeit.count()) + " sec");
    label.sichtbar(um_.param.spur_aktiv[spur]);
}

void strafen::spur_strom_aus(int spur) {
    um_.zustand.spur[spur].strom_aus = true;
    um_.protokoll.vermerken(vermerk::strom_aus, {spur});
    um_.ausgaben.relais_on(spur);
    ansicht_.kleine_ampel(spur, kleines_licht::rot);
}

void strafen::alle_strom_an() {
    for (const int spur : alle_spuren) {
        um_.zustand.spur[spur].strom_aus = false;
        um_.ausgaben.relais_off(spur);
    }
}

void strafen::spur_strom_an(int spur) {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    if (zustand.disqualifiziert || (zustand.ziel_erreicht && um_.param.spur_aktiv[spur])) {
        return;
    }
    um_.zustand.spur[spur].strom_aus = false;
    um_.protokoll.vermerken(vermerk::strom_an, {spur});
    um_.ausgaben.relais_off(spur);
    if (um_.zeitgeber.renntimer->laeuft()) {
        ansicht_.kleine_ampel(spur, kleines_licht::gruen);
    }
}

void strafen::strom_wiederherstellen() {
    const auto& spuren = um_.zustand.spur;
    if (std::none_of(spuren.begin(), spuren.end(), [](const spur_zustand& s) { return s.strom_aus; })) {
        um_.ausgaben.relais_off(0);
        return;
    }
    for (const int spur : alle_spuren) {  // one by one: not even a moment of power for the others
        if (spuren[spur].strom_aus) {
            um_.ausgaben.relais_on(spur);
        } else {
            um_.ausgaben.relais_off(spur);
        }
    }
}

}  // namespace tarvel
