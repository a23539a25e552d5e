#include "race/rundenkorrektur.h"

#include <algorithm>
#include <numeric>

#include "race/bestensuche.h"
#include "race/rundenspeicher.h"

namespace tarvel {
namespace {

using spurteil = rennergebnis::spur;
using runde = rennergebnis::runde;

/// How far a lane can come.
struct grenze {
    int runden = runden_max;
    std::optional<zeit_ms> zeit_um;
    int teil = 0;  ///< of the race, to which a lap behind the last belongs
};

grenze grenze_bilden(const std::optional<rennziel>& ziel, std::optional<zeit_ms> um, int teil) {
    return ziel && !ziel->ist_zeit() ? grenze{std::clamp(ziel->runden(), 0, runden_max), {}, teil}
                                     : grenze{runden_max, um, teil};
}

bool loeschen(spurteil& s, int nummer) {
    if (nummer < 1 || nummer > s.rundenzahl()) {
        return false;
    }
    const auto weg = s.runden.begin() + nummer;
    runde& davor = *(weg - 1);
    davor.zeit += weg->zeit;
    davor.pause = davor.pause.value_or(0) + weg->pause.value_or(0);
    davor.stempel = weg->stempel;
    davor.nachgetragen = weg->nachgetragen;
    davor.zuschlag += weg->zuschlag;
    davor.ausfall = davor.ausfall || weg->ausfall;
    for (std::size_t i = 0; i < davor.sektoren.size(); ++i) {
        davor.sektoren.at(i) += weg->sektoren.at(i);
    }
    s.runden.erase(weg);
    if (s.vor_fortsetzung && nummer <= *s.vor_fortsetzung) {
        --*s.vor_fortsetzung;
    }
    return true;
}

/// Only one crossing counts behind the end of the time: the one that ends the lap then under way.
bool in_der_zeit(const spurteil& s, const korrektur& k, const grenze& g) {
    return !g.zeit_um || k.stempel <= *g.zeit_um ||
           std::none_of(s.runden.begin(), s.runden.end(), [&](const runde& r) { return r.stempel > *g.zeit_um; });
}

bool anhaengen(spurteil& s, const korrektur& k, const grenze& g) {
    if (k.was != korrektur::art::ueberfahrt || s.runden.empty() || k.zeit <= 0 || s.rundenzahl() >= g.runden ||
        k.stempel <= s.runden.back().stempel) {
        return false;
    }
    const bool angefangen = s.rundenzahl() < s.vor_fortsetzung.value_or(0);
    s.runden.push_back({k.zeit, {}, k.pause, k.stempel, k.meter, true, angefangen, g.teil});
    return true;
}

bool teilen(spurteil& s, const korrektur& k, const grenze& g) {
    const auto ganze = s.runden.begin() + k.runde;
    const zeit_ms pause = ganze->pause.value_or(0);
    const bool darin = k.stempel > (ganze - 1)->stempel && k.stempel < ganze->stempel;
    if (k.zeit <= 0 || k.zeit >= ganze->zeit || k.pause < 0 || k.pause > pause || !darin) {
        return false;
    }
    ganze->zeit -= k.zeit;
    ganze->pause = pause - k.pause;
    ganze->sektoren = {};  // nobody knows on which side of the crossing they were
    s.runden.insert(
        ganze, {k.zeit, {}, k.pause, k.stempel, ganze->meter, true, ganze->angefangen, ganze->teil, ganze->ausfall});
    if (s.vor_fortsetzung && k.runde <= *s.vor_fortsetzung) {
        ++*s.vor_fortsetzung;
    }
    if (s.rundenzahl() > g.runden) {
        s.runden.pop_back();  // was home a lap earlier
        if (s.vor_fortsetzung) {
            s.vor_fortsetzung = std::min(*s.vor_fortsetzung, s.rundenzahl());
        }
    }
    return true;
}

bool nachtragen(spurteil& s, const korrektur& k, const grenze& g) {
    if (k.runde < 1 || k.runde > s.rundenzahl() + 1 || s.rundenzahl() >= runden_max || !in_der_zeit(s, k, g)) {
        return false;
    }
    return k.runde > s.rundenzahl() ? anhaengen(s, k, g) : teilen(s, k, g);
}

/// All that follows from the laps.
void ableiten(spurteil& s) {
    bestensuche suche(!s.runden.empty() && s.runden.front().nachgetragen);
    s.gesamtzeit = dauer_ms(s.strafzeit.value_or(0s)).count();
    s.meter = s.restmeter;
    for (std::size_t i = 1; i < s.runden.size(); ++i) {
        suche.runde(s.runden[i]);
        s.gesamtzeit += s.runden[i].zeit;
        s.meter += s.runden[i].meter;
    }
    s.beste = suche.beste();
}

bool spur_korrigieren(spurteil& s, const korrektur& k, const grenze& g) {
    if (s.disqualifiziert) {
        return false;
    }
    if (k.was == korrektur::art::restmeter) {
        s.restmeter += k.meter;
        s.meter = std::accumulate(s.runden.begin() + (s.runden.empty() ? 0 : 1), s.runden.end(), s.restmeter,
                                  [](double summe, const runde& r) { return summe + r.meter; });
        return true;
    }
    if (k.was == korrektur::art::geloescht ? !loeschen(s, k.runde) : !nachtragen(s, k, g)) {
        return false;
    }
    ableiten(s);
    return true;
}

}  // namespace

bool korrigieren(rennergebnis& ergebnis, const korrektur& k) {
    const auto s = std::find_if(ergebnis.spuren.begin(), ergebnis.spuren.end(),
                                [&](const spurteil& eine) { return eine.nummer == k.spur; });
    return s != ergebnis.spuren.end() &&
           spur_korrigieren(*s, k, grenze_bilden(ergebnis.ziel, ergebnis.zeit_um, ergebnis.teil));
}

std::optional<zeit_ms> zeit_um(const renn_umgebung& um) {
    const renn_zustand& zustand = um.zustand;
    return um.ist_zeitrennen()
               ? std::optional(zustand.renn_ende_zeit + zustand.pausen_bis_ende.value_or(zustand.pause_abzug))
               : std::nullopt;
}

rundenkorrektur::rundenkorrektur(const renn_umgebung& um, sektoren& sektor) : um_(um), sektor_(sektor) {
    korrektur_ = um_.protokoll.eingang("korrektur", mitschrift::werte_max, [this](const mitschrift::werte& w) {
        const auto kurz = [](std::int64_t wert) {
            return static_cast<int>(std::clamp<std::int64_t>(wert, 0, runden_max + 1));
        };
        const korrektur k{static_cast<korrektur::art>(kurz(w[0])), kurz(w[1]), kurz(w[2]), w[3], w[4], w[5]};
        if (k.spur >= 1 && k.spur <= spuren_max) {
            eintragen(k);
        }
    });
}

void rundenkorrektur::uebernehmen(const korrektur& k) {
    if (k.was != korrektur::art::restmeter) {  // no part of the race
        um_.protokoll.geschieht(korrektur_,
                                {static_cast<std::int64_t>(k.was), k.spur, k.runde, k.zeit, k.stempel, k.pause});
    }
}

void rundenkorrektur::eintragen(const korrektur& k) {
    rundenkonto& konto = um_.zustand.konto;
    rennergebnis::spur s;
    s.disqualifiziert = um_.zustand.spur[k.spur].disqualifiziert;
    s.vor_fortsetzung = konto.vor_fortsetzung(k.spur);
    for (int zeile = 0; zeile <= konto.runden(k.spur); ++zeile) {
        s.runden.push_back(konto.runde(k.spur, zeile));
        s.runden.back().sektoren = sektor_.zeile(k.spur, zeile);
    }
    const int vorher = s.rundenzahl();
    if (spur_korrigieren(s, k, grenze_bilden(um_.param.renn_ziel, zeit_um(um_), konto.teil()))) {
        const bool am_ende = k.traegt_nach() && k.runde > vorher;
        if (am_ende) {
            zeit_ms& frei = um_.zustand.spur[k.spur].pause_abzug;
            frei = std::max<zeit_ms>(frei - k.pause, 0);
        }
        sektor_.runden_setzen(k.spur, s.runden, konto.laufende(k.spur), am_ende);
        konto.runden_setzen(k.spur, s.runden, *s.vor_fortsetzung);
    }
}

}  // namespace tarvel
