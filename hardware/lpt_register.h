#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/portadresse.h"
#include "platform/druckerport.h"

/// The printer port's registers and pins.
namespace tarvel::lpt {

/// Places of the registers behind the base address. The first is the one that is written, with the outputs.
inline constexpr int lpt_offset = 0;
inline constexpr int status = 1;
inline constexpr int steuerung = 2;

/// The three of a port. A machine without it reads nothing.
struct registersatz {
    plattform::druckerport& port;
    int lpt_basis = 888;

    /// A settings file can name any address: where no port can be, none is there.
    std::optional<std::uint8_t> lesen(int platz) const {
        return portadresse_gilt(lpt_basis) ? port.lesen(lpt_basis + platz) : std::nullopt;
    }
    void schreiben(std::uint8_t ausgaenge) const {
        if (portadresse_gilt(lpt_basis)) {
            port.schreiben(lpt_basis + lpt_offset, ausgaenge);
        }
    }
};

struct eingangspin {
    int stecker = 0;  ///< number in the connector
    std::uint8_t maske = 0;
    bool invertiert = false;  ///< the port itself turns the line over
};
inline constexpr std::array<eingangspin, 5> eingaenge{
    {{10, 64, false}, {11, 128, true}, {12, 32, false}, {13, 16, false}, {15, 8, false}}};

inline constexpr std::size_t ausgaenge = 8;  ///< connector pins 2 to 9, data bits 1 to 128
inline constexpr int erster_ausgang_stecker = 2;

/// The status register without any active input.
inline constexpr std::uint8_t in_ruhe = 128;

/// Which inputs are active, a bit each in the order of `eingaenge`.
constexpr std::uint32_t aktive_linien(std::uint8_t statusregister) {
    std::uint32_t linien = 0;
    for (std::size_t i = 0; i < eingaenge.size(); ++i) {
        if (((statusregister & eingaenge[i].maske) != 0) != eingaenge[i].invertiert) {
            linien |= 1U << i;
        }
    }
    return linien;
}

}  // namespace tarvel::lpt
