#pragma once

#include "core/einstellungswerte.h"
#include "core/wechselschema.h"

namespace tarvel {

/// How the races of a competition are drawn up. The numbers are those of its files. "Schema" kinds move the drivers as
/// the chosen order of lanes says, the others to the next lane up.
enum class wettkampf_modus {
    rotation = 1,        ///< no groups: who comes next takes a lane that he has not had
    gruppen,             ///< fixed groups that alternate
    gruppen_verteilt,    ///< fillers are spread over the groups
    am_stueck_verteilt,  ///< a group drives its races one after the other
    am_stueck,           ///< the same, with all fillers in the last group
    jeder_gegen_jeden,   ///< on two lanes
    einmal,              ///< each group drives once
    schema_rotation,     ///< no groups: whom the pause takes waits until all others have had their turn
    schema_am_stueck,    ///< as `am_stueck`
    schema_am_stueck_verteilt,
    schema_gruppen,  ///< as `gruppen`
    schema_gruppen_verteilt,
    schema_gleichmaessig  ///< no groups: all wait about as long between their races
};
inline constexpr int wettkampf_modus_max = 13;

/// The tick boxes beside the order of lanes.
struct gruppenwahl {
    bool feste_gruppen = false;
    bool optimal_verteilen = false;
    bool am_stueck = false;  ///< a group drives its races one after the other

    bool operator==(const gruppenwahl&) const = default;
};

/// By the order itself: an entry of another name may hold the same.
bool ist_standardschema(const wechsel_folge& folge);

/// What may be ticked: nothing in a row without groups, and fillers need groups to be spread over; without them the
/// drivers of another order can be spread.
gruppenwahl zulaessige_gruppenwahl(gruppenwahl gewaehlt, bool standardschema);

/// Boxes that may not be ticked count as empty.
wettkampf_modus wettkampf_modus_bestimmen(wechselweise weise, const wechsel_folge& folge, gruppenwahl gewaehlt);

}  // namespace tarvel
