#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvel::test {

/// Random numbers that are the same with every compiler and cheap to start anew.
class zufall {
public:
    explicit zufall(std::uint64_t saat) : zustand_(saat) {}

    std::uint64_t zahl();
    /// From 0 to `grenze` - 1; 0 for a limit of 0.
    std::size_t unter(std::size_t grenze) { return grenze == 0 ? 0 : static_cast<std::size_t>(zahl() % grenze); }

private:
    std::uint64_t zustand_;
};

inline constexpr std::size_t bytes_max = 65536;

/// The bytes with one to five faults in them. `gute` gives the parts of other files that get among them.
std::string veraendert(std::string bytes, const std::vector<std::string>& gute, zufall& z);

}  // namespace tarvel::test
