#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "hardware/cu_protokoll.h"
#include "hardware/messquelle.h"
#include "platform/uhr.h"

namespace tarvel {

/// What is known of a Control Unit's clock: where it stands, and how fast it runs against the machine's. Its passages
/// tell, but they come late: by the time that the line takes, and by as long as the line or the machine stood still.
/// So being late says nothing of the clock. One that has begun anew shows itself by stamps that run back.
class cu_uhr {
public:
    /// A passage, as it was found.
    struct eingang {
        cu::ueberfahrt ueberfahrt;
        zeit_ms maschine = 0;  ///< the machine's clock
        zeit_ms messzeit = 0;  ///< and the race's
        zeit_ms luecke = 0;    ///< ms for which the unit could not be heard just before, 0 if it was
        bool pause = false;    ///< the race stands still: what has been measured of it must not change underneath
    };
    struct befund {
        zeit_ms stempel = 0;               ///< of the passage, on a clock without overflows
        std::optional<zeit_ms> versetzen;  ///< the race's clock has nothing to do with the unit's yet: ms between them
        bool nachstellen = false;          ///< `lesen` and `gang` know more than before
        bool im_ausfall = false;           ///< the unit has kept it, and it was not before the outage for sure
        bool nur_die_uhr = false;          ///< what has been stamped by the unit is not to be moved
    };

    befund aufnehmen(const eingang& neu);
    /// Another unit, or nobody knows which.
    void vergessen() {
        jetzt_ = {};
        davor_.reset();
        ausfall_.reset();
    }
    /// A race gets ready: its stamps follow the clock as its first passage shows it.
    void neu_ausrichten() {
        jetzt_.ausrichten = true;
        davor_.reset();
        ausfall_.reset();
    }
    /// It goes on behind an outage, in which the unit may have gone on too, and kept what passed. The machine's
    /// calendar is too coarse to tell which of that the race still had; the unit's own clock is not.
    void anschliessen(const ausfall_stand& vorher) {
        ausfall_ = vorher;
        staut_ = true;
    }
    /// The unit has not been heard for a while: what it tells now has perhaps waited.
    void wieder_zu_hoeren() { wartet_ = true; }
    /// It had no passage to tell: what comes from now on has just happened.
    void nichts_wartet() { staut_ = wartet_ = false; }

    /// What the unit's clock shows at this moment of the machine's.
    zeit_ms lesen(zeit_ms maschine) const { return jetzt_.lesen(maschine); }
    /// Its milliseconds in one of the machine's.
    double gang() const { return jetzt_.gang; }

private:
    /// A passage that has come through fast.
    struct anker {
        zeit_ms maschine = 0;
        zeit_ms stempel = 0;
    };
    struct stand {
        bool bekannt = false;
        bool ausrichten = false;
        bool gang_bekannt = false;
        double gang = 1;
        anker erster;               ///< the fastest when the clock was first seen
        anker fenster;              ///< the fastest of these seconds
        anker vorher;               ///< and of those before
        zeit_ms beginn = 0;         ///< machine's clock: the clock was first seen
        zeit_ms fenster_seit = 0;   ///< these seconds began
        zeit_ms genommen = 0;       ///< the last passage that was not late
        zeit_ms zu_spaet_seit = 0;  ///< since then all were too late, 0 if the last was not
        zeit_ms nachsicht = 0;      ///< so late was perhaps the passage that the clock was set by
        zeit_ms letzter = 0;        ///< latest stamp
        zeit_ms umlauf = 0;         ///< what the overflows add up to
        /// Last stamp of each car at each sensor, 0 none: these come in order.
        std::array<zeit_ms, std::size_t{cu::fahrzeuge_max + 1} * (cu::sensoren_max + 1)> je_sensor{};

        /// All its stamps are later by so much.
        void heben(zeit_ms um);
        zeit_ms lesen(zeit_ms maschine) const;
        zeit_ms an(const anker& a, zeit_ms maschine) const;
        zeit_ms durchgehend(std::uint32_t stempel);
        bool zurueck(const cu::ueberfahrt& u, zeit_ms stempel, zeit_ms luecke) const;
        void gesehen(const cu::ueberfahrt& u, zeit_ms stempel);
        /// How far the reading may be off after the time without a passage.
        zeit_ms spiel(zeit_ms maschine) const;
        /// And how far ahead of it a passage may be that tells no more of the clock than what it was set by.
        zeit_ms hoechstens_voraus(zeit_ms maschine) const;
        bool passt(const eingang& neu, zeit_ms stempel) const;
        void beginnen(const eingang& neu, zeit_ms stempel);
        bool folgen(const eingang& neu, zeit_ms stempel);
        void gang_bestimmen();
    };

    befund ausrichten(const eingang& neu, zeit_ms stempel);
    std::optional<befund> fortsetzen(const eingang& neu, zeit_ms stempel);
    befund einordnen(const eingang& neu);
    befund springen(const eingang& neu, zeit_ms stempel);
    befund aufholen(const eingang& neu, zeit_ms stempel);
    befund nachruecken(const eingang& neu, zeit_ms stempel);
    std::optional<befund> sprung_zuruecknehmen(const eingang& neu);

    stand jetzt_;
    std::optional<stand> davor_;            ///< a jump that no second passage has borne out may be a damaged record
    zeit_ms sprung_ = 0;                    ///< of it
    std::optional<ausfall_stand> ausfall_;  ///< until the race goes on behind it
    bool staut_ = false;                    ///< what the unit has kept in it comes first, in whatever order
    bool angeschlossen_ = false;            ///< the unit's clock is the one from before it
    bool wartet_ = false;                   ///< it may still tell what passed while nobody heard it
    bool vorlaeufig_ = false;               ///< aligned by one that had waited; those behind it know better
    bool unbenutzt_ = false;  ///< aligned in a pause, and no lap has been stamped by it yet: it may still be moved
};

}  // namespace tarvel
