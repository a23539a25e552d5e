#include "results/platzierung.h"

#include <algorithm>
#include <array>
#include <compare>
#include <limits>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

using vergleich = std::partial_ordering;

vergleich mehr_meter(const platz_werte& x, const platz_werte& y) {
    return y.meter <=> x.meter;
}

vergleich mehr_runden(const platz_werte& x, const platz_werte& y) {
    return y.runden <=> x.runden;
}

vergleich weniger_zeit(const platz_werte& x, const platz_werte& y) {
    return x.gesamtzeit <=> y.gesamtzeit;
}

vergleich schnellere_runde(const platz_werte& x, const platz_werte& y) {
    return x.beste_runde <=> y.beste_runde;
}

using schluessel = vergleich (*)(const platz_werte&, const platz_werte&);
using schluessel_folge = std::array<schluessel, 3>;

schluessel_folge schluessel_von(sortier_modus modus) {
    switch (modus) {
        case sortier_modus::meter:
            return {mehr_meter, weniger_zeit, schnellere_runde};
        case sortier_modus::beste:
            return {schnellere_runde, mehr_runden, weniger_zeit};
        case sortier_modus::runden:
            break;
    }
    return {mehr_runden, weniger_zeit, schnellere_runde};
}

// A lane that was not in the race stays behind all others, whatever the key.
constexpr zeit_ms beste_inaktiv = 999999;
constexpr platz_werte werte_inaktiv{false, -2, -100.0, 999999999, beste_inaktiv};

platz_werte werte_von(const rennergebnis::spur& spur, sortier_modus modus) {
    const double meter = std::max(zahl_lesen(zahl_fest(spur.meter, '.')), 0.0);  // what is shown decides
    const int runden = static_cast<int>(spur.runden.size()) - 1;  // -1 is behind who has crossed the line
    // out: no lap, and so no fast one either; nor does a lap of a quarter of an hour fall behind who was not there
    const bool ohne_beste = spur.disqualifiziert && modus == sortier_modus::beste;
    return {true, runden, meter, spur.gesamtzeit, ohne_beste ? beste_inaktiv : std::min(spur.beste, beste_inaktiv)};
}

bool gewertet(const rennergebnis::spur& s) {
    return s.rundenzahl() > 0 && !s.disqualifiziert;
}

/// How long each lane took from the first one's first crossing to its own, pauses taken off. A result that was read has
/// no stamps, and the way from the green light.
spuren<zeit_ms> anlaufzeiten(const rennergebnis& ergebnis) {
    const bool mit_stempel = std::all_of(ergebnis.spuren.begin(), ergebnis.spuren.end(),
                                         [](const auto& s) { return !gewertet(s) || s.runden.front().stempel != 0; });
    spuren<zeit_ms> anlauf{};
    zeit_ms frueheste = std::numeric_limits<zeit_ms>::max();
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        if (gewertet(s)) {
            const rennergebnis::runde& erste = s.runden.front();
            anlauf[s.nummer] = mit_stempel ? erste.stempel - erste.pause.value_or(0) : erste.zeit;
            frueheste = std::min(frueheste, anlauf[s.nummer]);
        }
    }
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        anlauf[s.nummer] -= gewertet(s) ? frueheste : 0;
    }
    return anlauf;
}

/// Lanes in the order of the standing, their total times longer by `zuschlag`.
spuren<int> folge_bilden(const rennergebnis& ergebnis, const spuren<zeit_ms>& zuschlag) {
    const sortier_modus modus = gueltiger_modus(ergebnis.wertung.value_or(sortier_modus::runden));
    spuren<platz_werte> werte;
    werte.fuellen(werte_inaktiv);
    for (const rennergebnis::spur& spur : ergebnis.spuren) {
        werte[spur.nummer] = werte_von(spur, modus);
        werte[spur.nummer].gesamtzeit += zuschlag[spur.nummer];
    }
    return rang_folge_bilden(werte, modus);
}

}  // namespace

sortier_modus gueltiger_modus(sortier_modus modus) {
    return modus >= sortier_modus::meter && modus <= sortier_modus::beste ? modus : sortier_modus::runden;
}

spuren<int> rang_folge_bilden(const spuren<platz_werte>& werte, sortier_modus modus) {
    const schluessel_folge folge = schluessel_von(modus);
    spuren<int> rang{alle_spuren};
    for (int a = 1; a <= spuren_max; ++a) {
        for (int b = a; b <= spuren_max; ++b) {
            const platz_werte& x = werte[rang[a]];
            const platz_werte& y = werte[rang[b]];
            std::size_t stufe = 0;
            while (stufe + 1 < folge.size() && std::is_eq(folge.at(stufe)(x, y))) {
                ++stufe;
            }
            if (std::is_gt(folge.at(stufe)(x, y))) {
                std::swap(rang[a], rang[b]);
            }
            const bool dritter_schluessel = stufe + 1 == folge.size();
            if (dritter_schluessel && !werte[a].aktiv) {
                std::swap(rang[a], rang[b]);
            }
        }
    }
    return rang;
}

void platzieren(rennergebnis& ergebnis) {
    const spuren<int> folge = folge_bilden(ergebnis, {});
    for (rennergebnis::spur& spur : ergebnis.spuren) {
        spur.platz = static_cast<int>(std::find(folge.begin(), folge.end(), spur.nummer) - folge.begin()) + 1;
    }
}

std::vector<platz_ab_gruen> anders_ab_gruen(const rennergebnis& ergebnis) {
    const spuren<int> folge = folge_bilden(ergebnis, anlaufzeiten(ergebnis));
    std::vector<platz_ab_gruen> andere;
    for (int platz = 1; platz <= spuren_max; ++platz) {
        const rennergebnis::spur* s = ergebnis.auf(folge[platz]);
        if (s != nullptr && gewertet(*s) && s->platz.value_or(platz) != platz) {
            andere.push_back({platz, s->nummer});
        }
    }
    return andere;
}

std::vector<int> gezaehlt_ab_gruen(const rennergebnis& ergebnis) {
    std::vector<int> gezaehlte;
    bool andere = false;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        if (gewertet(s) && s.runden.front().zeit > 0) {
            andere = true;
        } else if (gewertet(s) && !s.runden.front().nachgetragen) {
            gezaehlte.push_back(s.nummer);
        }
    }
    return andere ? gezaehlte : std::vector<int>();
}

}  // namespace tarvel
