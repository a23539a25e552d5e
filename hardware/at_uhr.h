#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "platform/uhr.h"

namespace tarvel {

/// What is known of an AT-2560's clock, and how the race's is kept in step with it. The unit is not asked while cars
/// drive; each of its messages has a time of its clock, and comes late: by what the line takes, and by as long as that
/// or the machine stood still. None comes early, so the messages that make the clock stand highest are nearest to it.
/// How fast it runs is seen when several of them agree.
class at_uhr {
public:
    struct moment {
        zeit_ms maschine = 0;  ///< the machine's clock
        zeit_ms messzeit = 0;  ///< and the race's
    };
    struct stellung {
        zeit_ms stand = 0;
        double gang = 1;  ///< the unit's milliseconds in one of the machine's
    };

    /// A message with the unit's time `geraet` has come in.
    void gehoert(const moment& jetzt, zeit_ms geraet);
    /// At this moment the race's clock is right: from here on it has to run as the unit's does.
    void festmachen(const moment& jetzt);
    /// Its clock may stand anywhere now, though it is as fast as it was; the race's is left alone until it is right.
    void neu_beginnen();
    /// Another unit, or nobody knows which.
    void vergessen() { *this = {}; }

    /// How the race's clock, which runs at `gang`, has to be set; none while it is in step. Clocks that nobody can tell
    /// apart are left alone.
    std::optional<stellung> nachzustellen(const moment& jetzt, double gang);

private:
    struct punkt {
        zeit_ms maschine = 0;
        zeit_ms geraet = 0;
    };
    static constexpr std::size_t punkte_max = 32;
    static constexpr zeit_ms erstes_fenster_ms = 2000;

    zeit_ms lesen(zeit_ms maschine) const;
    bool glaubhaft(const punkt& neu) const;
    bool bestaetigt(const punkt& neu);
    bool in_das_fenster(const punkt& neu);
    void platz_schaffen();
    double hoehe(const punkt& p, double gang) const;
    double hoechste(double gang) const;
    double rueckstand(double gang) const;
    void linie_legen();
    void ausgleichen();

    std::array<punkt, punkte_max> punkte_{};  ///< the nearest message of each stretch of time
    std::size_t anzahl_ = 0;
    zeit_ms fenster_ms_ = erstes_fenster_ms;  ///< length of such a stretch
    zeit_ms fenster_seit_ = 0;                ///< machine's clock: the last one began
    punkt linie_;                             ///< on this point and `gang_` the unit's clock lies
    double gang_ = 1;
    bool gang_genau_ = false;
    bool bekannt_ = false;  ///< where the clock stands, by several messages
    std::optional<punkt> zweifel_;
    std::optional<moment> fest_;
    std::optional<zeit_ms> ausgleich_;  ///< what the race's clock is ahead of the unit's
    bool folgt_ = false;
};

}  // namespace tarvel
