#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace tarvel {

inline constexpr int spuren_max = 6;
inline constexpr int sektoren_max = 3;  ///< of a lap
inline constexpr std::array<int, spuren_max> alle_spuren{1, 2, 3, 4, 5, 6};

/// One value per lane, indexed by the lane number 1 to 6.
template <class T>
class spuren {
public:
    constexpr T& operator[](int spur) { return werte_[platz(spur)]; }
    constexpr const T& operator[](int spur) const { return werte_[platz(spur)]; }

    constexpr auto begin() { return werte_.begin(); }
    constexpr auto end() { return werte_.end(); }
    constexpr auto begin() const { return werte_.begin(); }
    constexpr auto end() const { return werte_.end(); }

    constexpr void fuellen(const T& wert) { werte_.fill(wert); }
    bool operator==(const spuren&) const = default;

    std::array<T, spuren_max> werte_{};

private:
    static constexpr std::size_t platz(int spur) {
        assert(spur >= 1 && spur <= spuren_max);
        return static_cast<std::size_t>(spur - 1);
    }
};

/// Index of a lane in the control arrays that count from 0.
constexpr std::size_t feld_index(int spur) {
    assert(spur >= 1 && spur <= spuren_max);
    return static_cast<std::size_t>(spur - 1);
}

}  // namespace tarvel
