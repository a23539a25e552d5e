#pragma once

#include <optional>

#include "hardware/ereignisse.h"
#include "hardware/tastenbelegung.h"

namespace tarvel {

/// What a key may do to the running race, beside delivering events.
class tasten_rennen {
public:
    virtual ~tasten_rennen() = default;
    virtual bool beendet() const = 0;
    /// Toggles the night screen.
    virtual void bildschirm_dunkel() = 0;
    /// The chaos key, which may stand for a button or for a switch.
    virtual void chaos_taste() = 0;
    /// Takes a lap off by hand. False, and nothing done, for a disqualified lane.
    virtual bool runde_abziehen(int spur) = 0;
};

/// The keyboard as a source of events. It stays active beside every timing device, so that a race can always be
/// corrected or driven by hand.
class tastatur {
public:
    tastatur(ereignis_tabelle& ereignisse, const tastenbelegung& belegung, tasten_rennen& rennen)
        : ereignisse_(ereignisse), belegung_(belegung), rennen_(rennen) {}

    /// `taste` is the Windows-1252 value of the typed character, pressed at `stempel`; without one at the last tick.
    void taste_auswerten(int taste, std::optional<zeit_ms> stempel = {});

private:
    bool ist(int taste, int zeile) const;
    bool rundenabzug_auswerten(int taste);

    ereignis_tabelle& ereignisse_;
    const tastenbelegung& belegung_;
    tasten_rennen& rennen_;
};

}  // namespace tarvel
