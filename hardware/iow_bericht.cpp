#include "hardware/iow_bericht.h"

#include <cstddef>

namespace tarvel {
namespace {

constexpr int ports = 4;
constexpr int bits_je_port = 8;

}  // namespace

iow_belegung::iow_belegung() {
    for (int platz = 0; platz < ports * bits_je_port; ++platz) {
        zuweisen(platz + 1, platz / bits_je_port + 1, platz % bits_je_port);
    }
}

void iow_belegung::zuweisen(ereignis_art nummer, int port, int bit) {
    if (nummer < 1 || nummer >= static_cast<int>(stellen_.size()) || port < 1 || port > ports || bit < 0 ||
        bit >= bits_je_port) {
        return;
    }
    stellen_.at(static_cast<std::size_t>(nummer)) = {port, static_cast<std::uint8_t>(1U << static_cast<unsigned>(bit))};
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
