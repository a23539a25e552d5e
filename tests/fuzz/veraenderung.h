#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace tarvel::test {

/// Random numbers that are the same with every compiler.
using zufall = std::mt19937_64;

/// From 0 to `grenze` - 1.
inline std::size_t unter(zufall& z, std::size_t grenze) {
    return static_cast<std::size_t>(z() % grenze);
}

inline constexpr std::size_t bytes_max = 65536;

/// The bytes with one to five faults in them. `gute` gives the parts of other files that get among them.
std::string veraendert(std::string bytes, const std::vector<std::string>& gute, zufall& z);

}  // namespace tarvel::test
