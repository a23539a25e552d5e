#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tarvel::qt {

/// The sound of a wave file, one channel, -1 to 1, at `rate` samples a second: PCM of 8, 16, 24 or 32 bits or floating
/// point of 32, any number of channels. Empty for anything else; a file that is cut short gives what is there, one
/// beyond five minutes its beginning.
std::vector<float> klangdatei_lesen(std::span<const std::uint8_t> bytes, int rate);

}  // namespace tarvel::qt
