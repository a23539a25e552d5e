#include "results/fahrervergleich.h"

#include <algorithm>
#include <map>

#include "race/rundenspeicher.h"
#include "results/einzelrennen_datei.h"
#include "results/platzierung.h"

namespace tarvel {
namespace {

constexpr std::size_t erste_runde = 6;  // of a single race's line, behind the way to the first crossing

std::vector<zeit_ms> zeiten_von(const fahrerzeile& fahrer, bool runden) {
    const auto& [felder, spalten] = fahrer;
    const std::size_t ab = runden ? erste_runde : spalten.beste.ab;
    const std::size_t ende = runden ? felder.size() : spalten.beste.ende();
    std::vector<zeit_ms> zeiten;
    for (std::size_t i = ab; i < ende; ++i) {
        if (const zeit_ms zeit = ergebniszeit_lesen(felder[i]); zeit > 0) {
            zeiten.push_back(zeit);
        }
    }
    return zeiten;
}

/// Of sorted times, between two of them as far as it lies.
zeit_ms anteil_von(const std::vector<zeit_ms>& zeiten, int viertel) {
    const std::size_t weg = (zeiten.size() - 1) * static_cast<std::size_t>(viertel);
    const zeit_ms unten = zeiten[weg / 4];
    const zeit_ms oben = zeiten[std::min(weg / 4 + 1, zeiten.size() - 1)];
    return unten + (oben - unten) / 4 * static_cast<zeit_ms>(weg % 4) +
           (oben - unten) % 4 * static_cast<zeit_ms>(weg % 4) / 4;
}

fahrerstreuung streuung_von(const std::string& name, std::vector<zeit_ms> zeiten) {
    std::sort(zeiten.begin(), zeiten.end());
    fahrerstreuung s{
        name, zeiten.size(), zeiten.front(), anteil_von(zeiten, 1), anteil_von(zeiten, 2), anteil_von(zeiten, 3), 0};
    const zeit_ms grenze = s.dreiviertel + s.streuung() * 3 / 2;
    s.laengste_uebliche = *(std::upper_bound(zeiten.begin(), zeiten.end(), grenze) - 1);
    return s;
}

/// A corrected number of laps counts, whatever times there are.
void runden_angleichen(const ergebnistabelle& tabelle, std::size_t rennen, rennergebnis& ergebnis) {
    const std::string& trenner = tabelle.trennzeichen[2];
    for (const ergebniszeile& zeile : tabelle.zeilen) {
        const std::string nummer = blockfeld(zeile.block, blockreihe::spur, 0, trenner);
        for (rennergebnis::spur& s : ergebnis.spuren) {
            const auto fahrer = zeile.rennen == rennen && nummer.ends_with(" " + std::to_string(s.nummer))
                                    ? fahrerzeile_von(tabelle, zeile)
                                    : std::nullopt;
            if (fahrer && !s.disqualifiziert) {
                const auto runden =
                    std::min<std::int64_t>(ergebnisrunden_lesen(fahrer->felder[fahrer->spalten.runden.ab]), runden_max);
                if (runden != s.rundenzahl()) {
                    s.runden.resize(static_cast<std::size_t>(runden) + 1);
                }
            }
        }
    }
}

}  // namespace

bool vergleicht_runden(const ergebnistabelle& tabelle) {
    return tabelle.typ == ergebnis_typ::einzelrennen;
}

std::vector<fahrerstreuung> fahrervergleich(const ergebnistabelle& tabelle) {
    std::map<std::string, std::vector<zeit_ms>> zeiten;
    for (const ergebniszeile& zeile : tabelle.zeilen) {
        if (const auto fahrer = zeile.ergebnis ? fahrerzeile_von(tabelle, zeile) : std::nullopt) {
            const auto eigene = zeiten_von(*fahrer, vergleicht_runden(tabelle));
            auto& alle = zeiten[fahrer->felder[fahrer->spalten.name]];
            alle.insert(alle.end(), eigene.begin(), eigene.end());
        }
    }
    std::vector<fahrerstreuung> vergleich;
    for (const auto& [name, seine] : zeiten) {
        if (!seine.empty()) {
            vergleich.push_back(streuung_von(name, seine));
        }
    }
    std::stable_sort(vergleich.begin(), vergleich.end(),
                     [](const auto& a, const auto& b) { return a.median < b.median; });
    return vergleich;
}

std::optional<rennergebnis> rennen_von(const ergebnistabelle& tabelle, std::size_t rennen, sortier_modus nach) {
    if (tabelle.typ != ergebnis_typ::einzelrennen || tabelle.addiert || rennen >= tabelle.rennen.size()) {
        return std::nullopt;
    }
    auto gelesen = einzelrennen_lesen(rennen_zeilen(tabelle, rennen));
    if (!gelesen) {
        return std::nullopt;
    }
    runden_angleichen(tabelle, rennen, gelesen->ergebnis);
    gelesen->ergebnis.wertung = nach;
    platzieren(gelesen->ergebnis);
    return std::move(gelesen->ergebnis);
}

}  // namespace tarvel
