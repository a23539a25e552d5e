#pragma once

#include <cstddef>

namespace tarvel {

// The pins of the IO board, as its report has them: port after port, bit 0 first.
inline constexpr std::size_t iow_ports = 4;
inline constexpr std::size_t iow_bits_je_port = 8;
inline constexpr std::size_t iow_bits = iow_ports * iow_bits_je_port;

}  // namespace tarvel
