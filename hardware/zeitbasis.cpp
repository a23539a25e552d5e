#include "hardware/zeitbasis.h"

namespace tarvel {

zeit_ms zeitbasis::ereignis_zeit_lesen() {
    ++zeit_zaehler_;
    const zeit_ms stempel = messzeit_lesen() + zeit_zaehler_;
    if (zeit_zaehler_ == 9) {
        zeit_zaehler_ = -1;
    }
    return stempel;
}

}  // namespace tarvel
