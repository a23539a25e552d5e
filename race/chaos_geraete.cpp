#include <algorithm>

#include "race/chaos.h"

namespace tarvel {

bool chaos::am_geraet_fortsetzen() {
    geraeteampel* licht = um_.quellen.ampel();
    zeit_ms& verlangt = um_.zustand.pause.neustart_verlangt;
    const zeit_ms jetzt = um_.zeit.messzeit_lesen();
    if (licht == nullptr || !licht->rot() || (verlangt != 0 && jetzt - verlangt > geraeteampel::laengste_ms)) {
        return false;  // a deaf device is passed over
    }
    um_.ereignisse[art::chaostaster].aktiv = um_.einst.chaos_schalter && um_.ereignisse[art::chaostaster].aktiv;
    if (verlangt == 0) {  // else its light runs
        verlangt = jetzt;
        licht->neustart();
    }
    return true;
}

bool chaos::gruen_am_geraet() {
    const geraeteampel* licht = um_.quellen.ampel();
    bool& rot = um_.zustand.pause.geraet_rot;
    if (licht == nullptr) {
        rot = false;  // one that comes back may drive at once: that is no green
    } else if (licht->rot()) {
        rot = true;
    } else {
        return rot;
    }
    return false;
}

void chaos::chaos_schalter_at2560_tick() {
    constexpr int losgelassen_unter = 15;  // of 20 that each message of the unit sets: a second of silence
    int& zaehler = um_.ereignisse.chaos_at_zaehler;
    zaehler = std::max(zaehler - 1, 0);
    if (zaehler < losgelassen_unter) {
        um_.zeitgeber.chaos_schalter_at2560->aus();
        zaehler = 0;
        um_.ereignisse[art::chaostaster].aktiv = false;
        chaos_umschalten();
    }
}

void chaos::geraeteschalter_vergessen() {
    um_.zeitgeber.chaos_schalter_at2560->aus();
    um_.ereignisse.chaos_at_zaehler = 0;
}

}  // namespace tarvel
