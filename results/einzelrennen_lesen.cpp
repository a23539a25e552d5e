#include <algorithm>
#include <array>
#include <charconv>

#include "core/text.h"
#include "race/rundenspeicher.h"
#include "results/einzelrennen_datei.h"
#include "results/ergebnisdatei.h"
#include "results/ergebniswerte.h"
#include "results/rennblock.h"

namespace tarvel {
namespace {

constexpr std::size_t felder_je_spur = 5;
constexpr std::size_t erste_spurzeile = 5;
constexpr std::size_t fusszeilen = 4;

using felder = std::vector<std::string>;

/// All digits, and not too many of them; none otherwise.
std::optional<zeit_ms> ziffern_lesen(std::string_view text) {
    constexpr std::size_t ziffern_max = 8;
    unsigned wert = 0;  // takes no sign
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
    const bool gut = text.size() <= ziffern_max && fehler == std::errc() && ende == text.data() + text.size();
    return gut ? std::optional<zeit_ms>(wert) : std::nullopt;
}

/// Two, two and three digits with a character between them: minutes, seconds, thousandths. A sum may have hours in
/// front of them. Nothing else is a time.
std::optional<zeit_ms> zeit_lesen(std::string_view text, trennzeichen_tabelle& trennzeichen) {
    constexpr std::size_t ohne_stunden = 9;
    const std::string_view hinten = rechts(text, ohne_stunden);
    const std::string_view doppelpunkt = mitte(hinten, 3, 1);
    std::string_view stunden = text.substr(0, text.size() - hinten.size());
    std::optional<zeit_ms> stundenzahl = 0;
    if (!stunden.empty() && stunden.ends_with(doppelpunkt)) {
        stundenzahl = ziffern_lesen(stunden.substr(0, stunden.size() - doppelpunkt.size()));
    } else if (!stunden.empty() || laenge(hinten) != ohne_stunden) {
        return std::nullopt;
    }
    const auto minuten = ziffern_lesen(links(hinten, 2));
    const auto sekunden = ziffern_lesen(mitte(hinten, 4, 2));
    const auto tausendstel = ziffern_lesen(rechts(hinten, 3));
    if (!stundenzahl || !minuten || !sekunden || !tausendstel) {
        return std::nullopt;
    }
    trennzeichen[0] = doppelpunkt;
    trennzeichen[1] = mitte(hinten, 6, 1);
    return ((*stundenzahl * 60 + *minuten) * 60 + *sekunden) * 1000 + *tausendstel;
}

class leser {
public:
    explicit leser(const std::vector<std::string>& zeilen) : z_(zeilen) {}

    std::optional<gelesenes_rennen> lesen() {
        const bool gut = datei_typ_erkennen(z_) == ergebnis_typ::einzelrennen && kopf() && direktvergleich() &&
                         kennzahlen() && rundentabelle();
        return gut ? std::optional(std::move(r_)) : std::nullopt;
    }

private:
    using spur = rennergebnis::spur;

    const std::string& trenner() const { return r_.trennzeichen[2]; }

    /// The end's time of day stands last, the date in front of it, and a separator in front of both.
    bool kopf() {
        constexpr std::size_t uhrzeit_laenge = 8;
        if (z_.size() < erste_spurzeile + fusszeilen || laenge(z_[0]) <= uhrzeit_laenge) {
            return false;
        }
        r_.trennzeichen[2] = links(rechts(z_[0], uhrzeit_laenge + 1), 1);
        const felder teile = felder_teilen(z_[0], trenner());
        if (teile.size() < 3 || laenge(teile.back()) != uhrzeit_laenge) {
            return false;
        }
        rennergebnis& e = r_.ergebnis;
        e.uhrzeit = teile.back();
        e.datum = teile[teile.size() - 2];
        r_.wort.rennergebnis = teile[0];
        r_.wort.tanken_aktiv = z_[1];
        e.tanken = !z_[1].empty();
        r_.wort.direktvergleich = z_[3];
        return true;
    }

    /// Without the way to the first crossing, as the total.
    static zeit_ms rundensumme(const spur& s) {
        zeit_ms summe = 0;
        for (std::size_t i = 1; i < s.runden.size(); ++i) {
            summe += s.runden[i].zeit;
        }
        return summe;
    }

    bool direktvergleich() {
        for (zeile_ = erste_spurzeile; zeile_ < z_.size() && !z_[zeile_].empty(); ++zeile_) {
            felder teile = felder_teilen(z_[zeile_], trenner());
            if (teile.size() < 6 || r_.ergebnis.spuren.size() == spuren_max) {
                return false;
            }
            spur s;
            s.fahrer = teile[0];
            const auto beste = zeit_lesen(teile[3], r_.trennzeichen);
            const auto gesamt = zeit_lesen(teile[4], r_.trennzeichen);
            if (!beste || !gesamt) {
                return false;
            }
            s.beste = *beste;
            for (std::size_t i = 5; i + 1 < teile.size(); ++i) {  // behind the last separator stands nothing
                const auto zeit = zeit_lesen(teile[i], r_.trennzeichen);
                if (!zeit || s.runden.size() > static_cast<std::size_t>(runden_max)) {
                    return false;
                }
                s.runden.push_back({*zeit, {}, {}});
            }
            s.gesamtzeit = nennt_stunden(teile[4]) ? *gesamt : mit_stunden(*gesamt, rundensumme(s));
            s.strafzeit = strafzeit_von(s.gesamtzeit, rundensumme(s));
            r_.ergebnis.spuren.push_back(std::move(s));
        }
        zeile_ += 2;  // two blank lines
        return !r_.ergebnis.spuren.empty();
    }

    /// The five fields of each lane in the next line.
    bool block_zeile(std::vector<std::array<std::string, felder_je_spur>>& bloecke) {
        if (zeile_ >= z_.size()) {
            return false;
        }
        const felder teile = felder_teilen(z_[zeile_++], trenner());
        const std::size_t anzahl = r_.ergebnis.spuren.size();
        if (teile.size() < anzahl * felder_je_spur) {
            return false;
        }
        bloecke.resize(anzahl);
        for (std::size_t i = 0; i < anzahl * felder_je_spur; ++i) {
            bloecke[i / felder_je_spur].at(i % felder_je_spur) = teile[i];
        }
        return true;
    }

    bool kennzahlen() {
        std::array<std::vector<std::array<std::string, felder_je_spur>>, kennzahlen_anzahl> k;
        for (auto& zeile : k) {
            if (!block_zeile(zeile)) {
                return false;
            }
        }
        auto& [nummern, fahrer, fahrzeuge, runden, laengen, sektoren, rest, meter, zeiten] = k;
        r_.wort.rundenzahl = runden[0][0];
        r_.wort.spurlaenge = laengen[0][0];
        r_.wort.sektorlaenge = sektoren[0][0];
        r_.wort.restmeter = rest[0][0];
        r_.wort.gesamtmeter = meter[0][0];
        r_.wort.gesamtzeit = zeiten[0][0];
        for (std::size_t i = 0; i < r_.ergebnis.spuren.size(); ++i) {
            spur& s = r_.ergebnis.spuren[i];
            if (!nummer_lesen(nummern[i][0], s)) {
                return false;
            }
            s.fahrzeug = fahrzeuge[i][0];
            s.disqualifiziert = runden[i][1].find_first_of("0123456789") == std::string::npos;
            if (s.disqualifiziert) {
                r_.wort.disqualifiziert = runden[i][1];
            }
            s.laenge = laengen[i][1];
            std::copy(sektoren[i].begin() + 1, sektoren[i].begin() + 4, s.sektorlaenge.begin());
            for (std::size_t sektor = 0; sektor < sektoren_max; ++sektor) {
                r_.ergebnis.gemessen.at(sektor) = r_.ergebnis.gemessen.at(sektor) || !s.sektorlaenge.at(sektor).empty();
            }
            s.restmeter = zahl_lesen(rest[i][1]);
            s.meter = zahl_lesen(meter[i][1]);
        }
        return true;
    }

    /// "Spur 3": the number stands last.
    bool nummer_lesen(const std::string& text, spur& s) {
        const std::size_t blank = text.rfind(' ');
        if (blank == std::string::npos) {
            return false;
        }
        r_.wort.spur = text.substr(0, blank);
        s.nummer = static_cast<int>(ganzzahl_lesen(text.substr(blank + 1), 0, spuren_max));
        const auto gleiche = std::count_if(r_.ergebnis.spuren.begin(), r_.ergebnis.spuren.end(),
                                           [&s](const spur& andere) { return andere.nummer == s.nummer; });
        return s.nummer >= 1 && gleiche == 1;
    }

    bool rundentabelle() {
        ++zeile_;  // the mark in front of the table
        std::vector<std::array<std::string, felder_je_spur>> bloecke;
        std::size_t runde = 0;
        for (; zeile_ + fusszeilen < z_.size(); ++runde) {
            if (!block_zeile(bloecke)) {
                return false;
            }
            for (std::size_t i = 0; i < bloecke.size(); ++i) {
                sektoren_lesen(bloecke[i], r_.ergebnis.spuren[i], runde);
            }
        }
        r_.ergebnis.rundenzeilen = static_cast<int>(runde);
        return true;
    }

    void sektoren_lesen(const std::array<std::string, felder_je_spur>& block, spur& s, std::size_t runde) {
        for (std::size_t i = 0; i < sektoren_max; ++i) {
            if (runde < s.runden.size()) {
                s.runden[runde].sektoren.at(i) = zeit_lesen(block.at(i + 1), r_.trennzeichen).value_or(0);
            }
        }
    }

    const std::vector<std::string>& z_;
    std::size_t zeile_ = 0;
    gelesenes_rennen r_;
};

}  // namespace

std::optional<gelesenes_rennen> einzelrennen_lesen(const std::vector<std::string>& zeilen) {
    return leser(zeilen).lesen();
}

}  // namespace tarvel
