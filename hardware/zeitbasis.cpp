#include "hardware/zeitbasis.h"

#include <algorithm>
#include <cmath>

namespace tarvel {

zeit_ms zeitbasis::messzeit_lesen() const {
    const zeit_ms seither = uhr_.jetzt() - bezug_;
    const zeit_ms gelaufen = gang_ == 1 ? seither : std::llround(static_cast<double>(seither) * gang_);
    return std::max(stand_ + gelaufen, mindestens_);
}

zeit_ms zeitbasis::ereignis_zeit_lesen() {
    if (!zaehlt_) {
        return messzeit_lesen();
    }
    ++zeit_zaehler_;
    const zeit_ms stempel = messzeit_lesen() + zeit_zaehler_;
    if (zeit_zaehler_ == 9) {
        zeit_zaehler_ = -1;
    }
    return stempel;
}

void zeitbasis::stellen(zeit_ms geraetezeit, double gang) {
    bezug_ = uhr_.jetzt();
    stand_ = geraetezeit;
    gang_ = gang;
    mindestens_ = nie;
}

void zeitbasis::nachstellen(zeit_ms geraetezeit, double gang) {
    const zeit_ms gelesen = messzeit_lesen();
    stellen(geraetezeit, gang);
    mindestens_ = gelesen;
}

void zeitbasis::freigeben() {
    bezug_ = 0;
    stand_ = 0;
    gang_ = 1;
    mindestens_ = nie;
    zaehlt_ = true;
}

}  // namespace tarvel
