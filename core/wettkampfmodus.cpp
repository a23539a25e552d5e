#include "core/wettkampfmodus.h"

#include <algorithm>
#include <array>

namespace tarvel {
namespace {

struct modus_zeile {
    gruppenwahl wahl;
    wettkampf_modus standard;
    wettkampf_modus schema;
};

using m = wettkampf_modus;
constexpr std::array<modus_zeile, 6> modi{{
    {{false, false, false}, m::rotation, m::schema_rotation},
    {{false, true, false}, m::rotation, m::schema_gleichmaessig},
    {{true, false, false}, m::gruppen, m::schema_gruppen},
    {{true, true, false}, m::gruppen_verteilt, m::schema_gruppen_verteilt},
    {{true, false, true}, m::am_stueck, m::schema_am_stueck},
    {{true, true, true}, m::am_stueck_verteilt, m::schema_am_stueck_verteilt},
}};

}  // namespace

bool ist_standardschema(const wechsel_folge& folge) {
    return wechsel_folge_ergaenzt(folge) == wechsel_standard;
}

gruppenwahl zulaessige_gruppenwahl(gruppenwahl gewaehlt, bool standardschema) {
    gewaehlt.am_stueck = gewaehlt.am_stueck && gewaehlt.feste_gruppen;
    gewaehlt.optimal_verteilen = gewaehlt.optimal_verteilen && (gewaehlt.feste_gruppen || !standardschema);
    return gewaehlt;
}

wettkampf_modus wettkampf_modus_bestimmen(wechselweise weise, const wechsel_folge& folge, gruppenwahl gewaehlt) {
    if (weise == wechselweise::jeder_gegen_jeden) {
        return m::jeder_gegen_jeden;
    }
    if (weise == wechselweise::nur_einmal) {
        return m::einmal;
    }
    const bool standard = ist_standardschema(folge);
    const gruppenwahl wahl = zulaessige_gruppenwahl(gewaehlt, standard);
    const auto* zeile = std::find_if(modi.begin(), modi.end(), [&](const modus_zeile& z) { return z.wahl == wahl; });
    return standard ? zeile->standard : zeile->schema;
}

}  // namespace tarvel
