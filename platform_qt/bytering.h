#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <string_view>
#include <vector>

namespace tarvel::qt {

/// Bytes that one thread hands to another, in their order: one gives, one takes, neither waits.
class Bytering {
public:
    static constexpr std::size_t platz = std::size_t{1} << 20U;

    /// All or none: false if there is no room.
    bool geben(std::string_view bytes) {
        const std::size_t ort = gegeben_.load(std::memory_order_relaxed);
        if (bytes.size() > platz - (ort - genommen_.load(std::memory_order_acquire))) {
            return false;
        }
        const std::size_t bis_rand = std::min(bytes.size(), platz - ort % platz);
        bytes.copy(zellen_.data() + ort % platz, bis_rand);
        bytes.substr(bis_rand).copy(zellen_.data(), bytes.size() - bis_rand);
        gegeben_.store(ort + bytes.size(), std::memory_order_release);
        return true;
    }
    /// So many bytes have been given in all; the count wraps.
    std::size_t gegeben() const { return gegeben_.load(std::memory_order_acquire); }

    /// By the taker: what waits, in two pieces. It stays in place until `nehmen`.
    std::array<std::string_view, 2> wartend() const {
        const std::size_t ort = genommen_.load(std::memory_order_relaxed);
        const std::size_t anzahl = gegeben() - ort;
        const std::size_t bis_rand = std::min(anzahl, platz - ort % platz);
        return {std::string_view(zellen_.data() + ort % platz, bis_rand),
                std::string_view(zellen_.data(), anzahl - bis_rand)};
    }
    void nehmen(std::size_t anzahl) { genommen_.store(genommen() + anzahl, std::memory_order_release); }
    std::size_t genommen() const { return genommen_.load(std::memory_order_relaxed); }

private:
    static_assert((platz & (platz - 1)) == 0, "the counters wrap");
    static constexpr std::size_t zwischenspeicherzeile = 64;  // what two threads write lies in two of them

    std::vector<char> zellen_ = std::vector<char>(platz);
    alignas(zwischenspeicherzeile) std::atomic<std::size_t> gegeben_ = 0;
    alignas(zwischenspeicherzeile) std::atomic<std::size_t> genommen_ = 0;
};

}  // namespace tarvel::qt
