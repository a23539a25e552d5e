#pragma once

#include <cstdint>
#include <optional>

#include "platform/uhr.h"

namespace tarvel {

/// What is known of a Race Control box's clock. It counts 4800 ticks a second in 32 bits; here it goes on behind their
/// end. A reading may be late, by as long as the line or the program has stood still; a clock that has begun anew shows
/// itself by a reading that lies behind what it has told before, or far ahead.
class rc_uhr {
public:
    struct befund {
        zeit_ms stempel = 0;               ///< what was read, in ms
        std::optional<zeit_ms> versetzen;  ///< the race's clock has nothing to do with this one yet: ms between them
        std::optional<zeit_ms> stand;      ///< more is known of the clock than before: it stands there now
    };

    /// A reading, at this moment of the machine's clock and of the race's.
    befund lesen(std::uint32_t ticks, zeit_ms maschine, zeit_ms messzeit);
    /// The box was away: it may have been switched off meanwhile.
    void wieder_da() { war_weg_ = true; }
    /// Another box, or nobody knows which.
    void vergessen() { *this = {}; }

    /// ms of so many ticks: whole ones, as the box's events are stamped.
    static zeit_ms stempel_umrechnen(std::int64_t ticks);

private:
    zeit_ms stand(zeit_ms maschine) const;
    bool hat_neu_begonnen(std::int64_t ticks, zeit_ms maschine) const;
    void beginnen(zeit_ms versatz, zeit_ms maschine);
    bool folgen(zeit_ms versatz, zeit_ms maschine);

    bool bekannt_ = false;
    bool war_weg_ = false;
    std::int64_t ticks_ = 0;      ///< of the last reading, on a count without an end
    zeit_ms genommen_ = 0;        ///< machine's clock: the last reading that was not late
    zeit_ms spaet_seit_ = 0;      ///< and since when all were late, 0 if the last was not
    zeit_ms versatz_ = 0;         ///< what the box's clock is ahead of the machine's
    zeit_ms versatz_vorher_ = 0;  ///< in the seconds before
    zeit_ms fenster_seit_ = 0;
};

}  // namespace tarvel
