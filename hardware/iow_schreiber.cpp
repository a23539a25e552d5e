#include "hardware/iow_schreiber.h"

#include <algorithm>

namespace tarvel {

void iow_schreiber::anfangen() {
    anhalten();
    faden_ = abtaster_.starten(2ms, [this](zeit_ms /*jetzt*/) { wartende_schreiben(); });
}

void iow_schreiber::anhalten() {
    if (faden_ == nullptr) {
        return;
    }
    faden_.reset();
    wartende_schreiben();
    gegeben_ = erledigt_ = 0;
    verweigert_ = false;
}

bool iow_schreiber::geben(std::span<const std::uint8_t> bericht) {
    iow_bericht::bytes neu = iow_bericht::in_ruhe;
    std::copy_n(bericht.begin(), std::min(bericht.size(), neu.size()), neu.begin());
    if (faden_ == nullptr || !wartende_.geben(neu)) {
        return false;
    }
    ++gegeben_;
    return !verweigert_;
}

void iow_schreiber::wartende_schreiben() {
    while (const auto bericht = wartende_.nehmen()) {
        if (!verweigert_ && !platine_.schreiben(*bericht)) {
            verweigert_ = true;
        }
        ++erledigt_;
    }
}

}  // namespace tarvel
