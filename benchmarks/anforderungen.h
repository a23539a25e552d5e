#pragma once

#include <cstddef>

namespace tarvel {

/// Heap allocations of the process so far.
std::size_t anforderungen_bisher();

}  // namespace tarvel
