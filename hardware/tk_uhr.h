#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/uhr.h"

namespace tarvel {

/// What is known of a Timekeeper's clock from its answers: where it stands, and how fast it runs against the machine's.
/// An answer comes late and never early, so the one that makes the clock stand highest is the best of the last ones.
class tk_uhr {
public:
    enum class befund {
        neu,       ///< the clock is known from here on, or has begun anew
        weiter,    ///< more is known of it than before
        fraglich,  ///< does not fit what is known; the next answer decides
    };

    /// The box has told the time `geraet`, and it was there at `maschine`.
    befund aufnehmen(zeit_ms maschine, zeit_ms geraet);
    /// Another box, or the same one has been switched off meanwhile.
    void vergessen();

    bool bekannt() const { return anzahl_ > 0; }
    /// What its clock shows at this moment of the machine's.
    zeit_ms lesen(zeit_ms maschine) const;
    /// Its milliseconds in one of the machine's.
    double gang() const { return gang_; }

    /// A stamp that was there at `maschine` may be from this clock.
    bool glaubhaft(zeit_ms stempel, zeit_ms maschine) const;
    /// It has been taken for one: later ones are not from long before it.
    void gesehen(zeit_ms stempel) { letzter_ = std::max(letzter_, stempel); }

private:
    struct abgleich {
        zeit_ms maschine = 0;
        zeit_ms geraet = 0;
    };
    static constexpr std::size_t abgleiche_max = 4;

    zeit_ms an(const abgleich& a, zeit_ms maschine) const;
    /// What the machine's clock is ahead of it: the least of what its last answers say.
    zeit_ms tk_versatz(zeit_ms maschine) const;
    const abgleich& bester(zeit_ms maschine) const;
    void beginnen(const abgleich& neu);
    void gang_bestimmen(zeit_ms maschine);

    std::array<abgleich, abgleiche_max> letzte_{};
    std::size_t anzahl_ = 0;  ///< since the clock is known; the next one goes to this place, round and round
    abgleich tk_erste_zeit_;  ///< the best of the first ones
    abgleich zweifel_;        ///< the answer that did not fit
    bool zweifelt_ = false;
    zeit_ms letzter_ = 0;  ///< latest stamp
    double gang_ = 1;
};

}  // namespace tarvel
