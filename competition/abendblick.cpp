#include "competition/abendblick.h"

#include <algorithm>
#include <numeric>

namespace tarvel {
namespace {

/// Fillers have no name here: nobody comes to the track.
spuren<std::string> fahrer_namen(const wettkampf& w, const startfeld& feld) {
    spuren<std::string> namen;
    for (const int spur : alle_spuren) {
        namen[spur] = feld[spur] == 0 || w.ist_fueller(feld[spur]) ? std::string() : w.name(feld[spur]);
    }
    return namen;
}

}  // namespace

abendblick abend_blicken(const wettkampf& w) {
    abendblick blick;
    blick.rennen_gesamt = w.rennen_gesamt();
    const renn_uebergabe dran = w.uebergabe();
    if (dran.rennen == 0) {
        return blick;
    }
    for (int rennen = 1; rennen <= w.rennen_gesamt(); ++rennen) {
        blick.noch += w.rennen_gefahren(rennen) == rennstatus::gefahren ? 0 : 1;
    }
    blick.rennen = dran.rennen;
    blick.faehrt = fahrer_namen(w, dran.spur_fahrer);
    blick.naechstes_rennen = w.folgendes_rennen();
    const int teil = w.fortsetzung_nummer(blick.naechstes_rennen) + 1;
    blick.als_naechste = fahrer_namen(w, w.plan.feld(blick.naechstes_rennen, teil));
    for (int platz = 1; platz <= w.plaetze(); ++platz) {
        const auto& feld = dran.spur_fahrer;
        if (!w.ist_fueller(platz) && std::find(feld.begin(), feld.end(), platz) == feld.end()) {
            blick.einsetzer.push_back(w.name(platz));
        }
    }
    const auto& bald = blick.als_naechste;
    std::stable_partition(blick.einsetzer.begin(), blick.einsetzer.end(), [&](const std::string& name) {
        return std::find(bald.begin(), bald.end(), name) == bald.end();
    });
    if (const auto& dauern = w.renndauern; !dauern.empty()) {
        const zeit_ms summe = std::accumulate(dauern.begin(), dauern.end(), zeit_ms{0});
        blick.dauert_noch = summe / static_cast<zeit_ms>(dauern.size()) * blick.noch;
    }
    return blick;
}

}  // namespace tarvel
