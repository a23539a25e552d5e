#include "results/rundenverlauf.h"

#include <algorithm>

namespace tarvel {
namespace {

// A lap is no longer a usual one if it lies further above the slow quarter than this many times the spread of the
// middle half, and takes at least half as long again as the lane's middle lap.
constexpr zeit_ms streuungen = 3;
constexpr zeit_ms zuschlag_prozent = 150;
constexpr std::size_t aussagekraeftig = 3;  // laps from which a lane knows what is usual for it

std::vector<verlaufsrunde> runden_lesen(const rennergebnis::spur& spur) {
    std::vector<verlaufsrunde> runden;
    for (std::size_t i = 1; i < spur.runden.size(); ++i) {
        if (spur.runden[i].zeit > 0) {
            runden.push_back(
                {static_cast<int>(i), spur.runden[i].zeit, spur.runden[i].pause.value_or(0), spur.geteilt(i)});
        }
    }
    return runden;
}

/// The slowest usual lap of these times, which are not none.
zeit_ms grenze_bilden(std::vector<zeit_ms> zeiten) {
    std::sort(zeiten.begin(), zeiten.end());
    const auto viertel = [&zeiten](std::size_t n) { return zeiten[(zeiten.size() - 1) * n / 4]; };
    const zeit_ms grenze =
        std::max(viertel(3) + streuungen * (viertel(3) - viertel(1)), viertel(2) * zuschlag_prozent / 100);
    return *std::prev(std::upper_bound(zeiten.begin(), zeiten.end(), grenze));
}

}  // namespace

rundenverlauf rundenverlauf_bilden(const rennergebnis& ergebnis) {
    rundenverlauf verlauf;
    for (const rennergebnis::spur& spur : ergebnis.spuren) {
        spur_verlauf lauf{spur.nummer, spur.fahrer, spur.disqualifiziert, {}, 0};
        if (!lauf.disqualifiziert) {
            lauf.runden = runden_lesen(spur);
        }
        // a lap that was taken off may have been the best: then the best is none of these
        const auto beste = std::find_if(lauf.runden.begin(), lauf.runden.end(),
                                        [&spur](const verlaufsrunde& runde) { return runde.zeit == spur.beste; });
        lauf.beste = beste == lauf.runden.end() ? 0 : beste->runde;
        verlauf.push_back(std::move(lauf));
    }
    return verlauf;
}

int letzte_runde(const rundenverlauf& verlauf) {
    int letzte = 0;
    for (const spur_verlauf& lauf : verlauf) {
        letzte = std::max(letzte, lauf.runden.empty() ? 0 : lauf.runden.back().runde);
    }
    return letzte;
}

zeitspanne uebliche_zeiten(const rundenverlauf& verlauf) {
    const bool nur_nachgetragene = std::all_of(verlauf.begin(), verlauf.end(), [](const spur_verlauf& lauf) {
        return std::all_of(lauf.runden.begin(), lauf.runden.end(),
                           [](const verlaufsrunde& r) { return r.nachgetragen; });
    });
    std::vector<zeit_ms> alle;
    zeit_ms grenze = 0;
    for (const spur_verlauf& lauf : verlauf) {
        std::vector<zeit_ms> zeiten;
        for (const verlaufsrunde& runde : lauf.runden) {
            if (!runde.nachgetragen || nur_nachgetragene) {
                zeiten.push_back(runde.zeit);
            }
        }
        alle.insert(alle.end(), zeiten.begin(), zeiten.end());
        if (zeiten.size() >= aussagekraeftig) {
            grenze = std::max(grenze, grenze_bilden(std::move(zeiten)));  // a slow driver's laps are usual for him
        }
    }
    if (alle.empty()) {
        return {};
    }
    if (grenze == 0) {
        grenze = grenze_bilden(alle);
    }
    const zeit_ms von = *std::min_element(alle.begin(), alle.end());
    const zeit_ms platz = std::max(grenze - von, grenze / 10);  // the usual laps keep half of the height
    zeit_ms bis = grenze;
    for (const zeit_ms zeit : alle) {
        bis = zeit <= grenze + platz ? std::max(bis, zeit) : bis;
    }
    return {von, bis};
}

std::vector<verlaufsrunde> ausgeduennt(const std::vector<verlaufsrunde>& runden, std::size_t hoechstens) {
    if (runden.size() <= hoechstens) {
        return runden;
    }
    const std::size_t gruppen = std::max<std::size_t>(hoechstens / 2, 1);
    const auto schneller = [](const verlaufsrunde& a, const verlaufsrunde& b) { return a.zeit < b.zeit; };
    std::vector<verlaufsrunde> bleibende;
    bleibende.reserve(2 * gruppen);
    for (std::size_t gruppe = 0; gruppe < gruppen; ++gruppe) {
        const auto an = [&](std::size_t n) {
            return runden.begin() + static_cast<std::ptrdiff_t>(runden.size() * n / gruppen);
        };
        const auto [kurz, lang] = std::minmax_element(an(gruppe), an(gruppe + 1), schneller);
        bleibende.push_back(*std::min(kurz, lang));
        if (kurz != lang) {
            bleibende.push_back(*std::max(kurz, lang));
        }
    }
    return bleibende;
}

}  // namespace tarvel
