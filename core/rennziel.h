#pragma once

#include <cassert>
#include <compare>
#include <cstdint>

#include "core/einstellungswerte.h"
#include "platform/uhr.h"

namespace tarvel {

/// What a race is driven for: a number of laps, or a time. Whoever wants one of the two has to know which it is, and
/// only targets of one kind are compared and added.
class rennziel {
public:
    constexpr rennziel() = default;  ///< a time race of no length
    static constexpr rennziel runden(int anzahl) { return {renn_art::runden, anzahl}; }
    static constexpr rennziel zeit(zeit_ms dauer) { return {renn_art::zeit, dauer}; }
    /// From the number that a file has for it.
    static constexpr rennziel aus_zahl(renn_art art, std::int64_t zahl) { return {art, zahl}; }

    constexpr renn_art art() const { return art_; }
    constexpr bool ist_zeit() const { return art_ == renn_art::zeit; }
    constexpr int runden() const {
        assert(!ist_zeit());
        return static_cast<int>(zahl_);
    }
    constexpr zeit_ms ms() const {
        assert(ist_zeit());
        return zahl_;
    }
    /// For a file that tells the kind elsewhere: laps, or ms.
    constexpr std::int64_t zahl() const { return zahl_; }

    friend constexpr bool operator==(const rennziel&, const rennziel&) = default;
    friend constexpr auto operator<=>(const rennziel& eines, const rennziel& anderes) {
        assert(eines.art_ == anderes.art_);
        return eines.zahl_ <=> anderes.zahl_;
    }
    friend constexpr rennziel operator+(const rennziel& eines, const rennziel& anderes) {
        assert(eines.art_ == anderes.art_);
        return {eines.art_, eines.zahl_ + anderes.zahl_};
    }

private:
    constexpr rennziel(renn_art art, std::int64_t zahl) : art_(art), zahl_(zahl) {}

    renn_art art_ = renn_art::zeit;
    std::int64_t zahl_ = 0;
};

}  // namespace tarvel
