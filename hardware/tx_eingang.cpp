#include "hardware/tx_eingang.h"

#include <cstddef>

namespace tarvel {

ereignis_art tx_eingang(const modul_4x4_einstellungen& s6, int gruppe, int wert) {
    constexpr int gruppen = 4;
    if (gruppe < 0 || gruppe > gruppen || wert < 1 || wert > (gruppe == 0 ? tx_eingang_max : spuren_max)) {
        return 0;
    }
    return gruppe == 0 ? s6.s6_eingang.at(static_cast<std::size_t>(wert))
                       : s6.s6_eingang_modus[wert].at(static_cast<std::size_t>(gruppe));
}

}  // namespace tarvel
