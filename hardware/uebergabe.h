#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <optional>

namespace tarvel {

/// What one thread hands to another, in its order: one gives, one takes, neither waits.
template <class T, std::size_t platz>
class uebergabe {
public:
    /// False if the taker is so far behind that there is no room.
    bool geben(const T& eines) {
        const std::size_t ort = gegeben_.load(std::memory_order_relaxed);
        if (ort - genommen_.load(std::memory_order_acquire) == platz) {
            return false;
        }
        zellen_.at(ort % platz) = eines;
        gegeben_.store(ort + 1, std::memory_order_release);
        return true;
    }
    /// By the giver: there is no room.
    bool voll() const {
        return gegeben_.load(std::memory_order_relaxed) - genommen_.load(std::memory_order_acquire) == platz;
    }
    std::optional<T> nehmen() {
        const std::size_t ort = genommen_.load(std::memory_order_relaxed);
        if (ort == gegeben_.load(std::memory_order_acquire)) {
            return std::nullopt;
        }
        const T eines = zellen_.at(ort % platz);
        genommen_.store(ort + 1, std::memory_order_release);
        return eines;
    }
    /// By the taker: what waits is forgotten.
    void leeren() { genommen_.store(gegeben_.load(std::memory_order_acquire), std::memory_order_release); }

private:
    static_assert((platz & (platz - 1)) == 0, "the counters wrap");

    std::array<T, platz> zellen_{};
    std::atomic<std::size_t> gegeben_ = 0;
    std::atomic<std::size_t> genommen_ = 0;
};

}  // namespace tarvel
