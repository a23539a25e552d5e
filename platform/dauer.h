#pragma once

#include <chrono>
#include <cstdint>
#include <ratio>

namespace tarvel {

using namespace std::chrono_literals;

/// Durations in the units that the program counts in. A larger unit becomes a smaller one by itself, the other way only
/// by a cast. Stamps and lap times are plain `zeit_ms`.
using dauer_ms = std::chrono::milliseconds;
using dauer_hs = std::chrono::duration<std::int64_t, std::centi>;  ///< hundredths of a second
using dauer_s = std::chrono::seconds;

}  // namespace tarvel
