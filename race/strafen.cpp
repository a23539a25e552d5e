#include "race/strafen.h"

#include <algorithm>
#include <string>

#include "core/zeit.h"

namespace tarvel {

strafen::strafen(const renn_umgebung& um, rennansicht& ansicht) : um_(um), ansicht_(ansicht) {
    um_.zeitgeber.f_straftimer->bei_tick = [this] { f_straftimer_tick(); };
    um_.zeitgeber.f_straftimer2->bei_tick = [this] { f_straftimer2_tick(); };
}

void strafen::zeitstrafe(int spur, dauer_s mehr) {
    um_.zustand.spur[spur].strafzeit += mehr;
    straflabel_zeigen(spur);
}

void strafen::straflabel_zeigen(int spur) {
    bezeichnung& label = um_.bahn.straflabel[spur];
    label.text(um_.bahn.wort.strafzeit + ": " + std::to_string(um_.zustand.spur[spur].strafzeit.count()) + " sec");
    label.sichtbar(um_.param.spur_aktiv[spur]);
}

void strafen::spur_strom_aus(int spur) {
    um_.zustand.spur[spur].strom_aus = true;
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

void strafen::nullzeile_eintragen(int spur) {
    liste& runden = um_.bahn.t_liste.at(feld_index(spur));
    if (runden.sichtbar()) {
        runden.hinzufuegen(" 0. " + zeit_formatieren(0, false, um_.einst.trennzeichen));
        runden.markieren(0);
    }
}

bool strafen::verbuesst_fruehstart(int spur) const {
    return um_.zustand.spur[spur].fruehstart_sperre && !um_.zeitgeber.straftimer_ch[spur]->laeuft();
}

void strafen::f_straftimer_tick() {
    um_.zeitgeber.f_straftimer2->intervall(dauer_ms(um_.param.min_rundenzeit_ms));
    if (++um_.zustand.fruehstart_zaehler < um_.einst.fruehstart_strafzeit) {
        return;
    }
    um_.ausgaben.bericht.schreiben();
    for (const int spur : alle_spuren) {
        if (verbuesst_fruehstart(spur)) {
            spur_strom_an(spur);
            nullzeile_eintragen(spur);
            um_.zeitgeber.f_straftimer2->an();
        }
    }
    um_.zustand.fruehstart_zaehler = {};
    um_.zeitgeber.f_straftimer->aus();
}

void strafen::f_straftimer2_tick() {
    um_.zeitgeber.f_straftimer2->aus();
    for (const int spur : alle_spuren) {
        if (verbuesst_fruehstart(spur)) {
            um_.zustand.spur[spur].fruehstart_sperre = false;
        }
    }
}

}  // namespace tarvel
