#include "hardware/iow_bericht.h"

#include "hardware/iow_pins.h"

namespace tarvel {

iow_belegung::iow_belegung() {
    for (std::size_t pin = 0; pin < iow_bits; ++pin) {
        zuweisen(static_cast<ereignis_art>(pin + 1), pin);
    }
}

void iow_belegung::zuweisen(ereignis_art nummer, std::size_t pin) {
    if (nummer < 1 || nummer >= static_cast<int>(stellen_.size()) || pin >= iow_bits) {
        return;
    }
    stellen_.at(static_cast<std::size_t>(nummer)) = {static_cast<int>(pin / iow_bits_je_port) + 1,
                                                     static_cast<std::uint8_t>(1U << pin % iow_bits_je_port)};
}

void iow_bericht::schalten(ereignis_art nummer, bool an) {
    const auto [iow_port, iow_maske] = belegung[nummer];
    std::uint8_t& byte = iow_ausgang_.at(static_cast<std::size_t>(iow_port));
    byte = static_cast<std::uint8_t>(an ? byte & ~iow_maske : byte | iow_maske);
}

bool iow_bericht::ist_an(ereignis_art nummer) const {
    const auto [iow_port, iow_maske] = belegung[nummer];
    return iow_maske != 0 && (iow_ausgang_.at(static_cast<std::size_t>(iow_port)) & iow_maske) == 0;
}

}  // namespace tarvel
