#include "race/rundenkonto.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <utility>

#include "race/bestensuche.h"

namespace tarvel {
namespace {

constexpr zeit_ms vor_allen_ms = std::numeric_limits<zeit_ms>::min() / 2;

}  // namespace

void rundenkonto::leeren(int spur) {
    spur_[spur] = {};
    speicher_.leeren(spur, 0);
}

void rundenkonto::zaehlen(int spur, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause, zeit_ms verschoben) {
    assert(runden(spur) < runden_max);
    spur_konto& konto = spur_[spur];
    const bool angefangen = laufende(spur) > 0 && laufende(spur) <= vor_fortsetzung(spur);
    // a device may have kept a crossing from before the program was away: that is in the next lap then
    const bool danach = konto.ausfall_bei && stempel - verschoben >= *konto.ausfall_bei;
    const bool ausfall = danach || (konto.zurueckgehalten && speicher_.auf(spur, laufende(spur)).ausfall);
    speicher_.setzen(spur, laufende(spur), {rundenzeit, stempel, pause, false, angefangen, teil_, ausfall});
    if (danach) {
        konto.ausfall_bei.reset();
    }
    ++konto.runden;
    speicher_.leeren(spur, laufende(spur));
}

bool rundenkonto::beste_werten(int spur, zeit_ms zeit) {
    spur_konto& konto = spur_[spur];
    if (!bestenfaehig(spur, konto.runden)) {
        return false;
    }
    bool erste = konto.runden == 1 || konto.beste == 0;
    for (int zeile = 1; erste && zeile < konto.runden; ++zeile) {
        erste = !bestenfaehig(spur, zeile);
    }
    if (zeit >= konto.beste && !erste) {
        return false;
    }
    konto.beste = zeit;
    return true;
}

zeit_ms rundenkonto::abziehen(int spur) {
    spur_konto& konto = spur_[spur];
    if (konto.runden == 0) {
        return 0;  // nothing to take off; a lap that is held back stays as it is
    }
    const rundenspeicher::runde weg = konto.runden > 0 ? speicher_.auf(spur, konto.runden) : rundenspeicher::runde{};
    if (weg.ausfall) {  // the lap that takes it in was driven in that time, too
        konto.ausfall_bei = vor_allen_ms;
    }
    --konto.runden;
    konto.vor_fortsetzung = std::min(konto.vor_fortsetzung, std::max(konto.runden, 0) + 1);
    speicher_.zeile_kopieren(spur, laufende(spur) + 1, laufende(spur));  // a lap that is held back moves up
    speicher_.leeren(spur, laufende(spur) + 1);
    beste_suchen(spur);
    return weg.pause;
}

zeit_ms rundenkonto::zurueckhalten(int spur) {
    spur_konto& konto = spur_[spur];
    assert(konto.runden > 0);
    const zeit_ms frei = pause(spur, konto.runden);
    --konto.runden;
    konto.vor_fortsetzung = std::min(konto.vor_fortsetzung, laufende(spur));
    konto.zurueckgehalten = true;
    return frei;
}

void rundenkonto::zurueckgeben(int spur, zeit_ms zuschlag, zeit_ms gewartet) {
    if (!std::exchange(spur_[spur].zurueckgehalten, false)) {
        return;
    }
    const int zeile = laufende(spur);
    rundenspeicher::runde zurueck = speicher_.auf(spur, zeile);
    zurueck.zeit += zuschlag;
    zurueck.stempel += zuschlag;
    zurueck.zuschlag = zuschlag;
    zurueck.gewartet = std::max<zeit_ms>(gewartet - zuschlag, 0);
    speicher_.setzen(spur, zeile, zurueck);
    ++spur_[spur].runden;
}

void rundenkonto::letzten_stempel_verschieben(int spur, zeit_ms um) {
    const int zeile = runden(spur);
    if (zeile >= 0) {
        rundenspeicher::runde letzte = speicher_.auf(spur, zeile);
        letzte.stempel += um;
        speicher_.setzen(spur, zeile, letzte);
    }
}

void rundenkonto::runden_setzen(int spur, const std::vector<rennergebnis::runde>& runden, int vor_fortsetzung) {
    spur_konto& konto = spur_[spur];
    const rennergebnis::runde dahinter = runde(spur, laufende(spur));
    int zeile = 0;
    const auto eintragen = [&](const rennergebnis::runde& r) {
        speicher_.setzen(
            spur, zeile++,
            {r.zeit, r.stempel, r.pause.value_or(0), r.nachgetragen, r.angefangen, r.teil, r.ausfall, r.zuschlag});
    };
    std::for_each(runden.begin(), runden.end(), eintragen);
    const int vorher = std::exchange(konto.runden, zeile - 1);
    eintragen(dahinter);
    while (zeile <= vorher + 1) {
        speicher_.leeren(spur, zeile++);
    }
    konto.vor_fortsetzung = vor_fortsetzung;
    beste_suchen(spur);
}

void rundenkonto::beste_suchen(int spur) {
    bestensuche suche(speicher_.auf(spur, 0).nachgetragen);
    for (int zeile = 1; zeile <= runden(spur); ++zeile) {
        suche.runde(speicher_.auf(spur, zeile));
    }
    spur_[spur].beste = suche.beste();
}

void rundenkonto::fortsetzen(int spur, bool unterwegs) {
    spur_[spur].vor_fortsetzung = std::max(unterwegs ? laufende(spur) : runden(spur), 0);
    if (!unterwegs) {
        spur_[spur].ausfall_bei.reset();
    }
}

void rundenkonto::stempel_verschieben(zeit_ms um) {
    speicher_.stempel_verschieben(um);
    ausfaelle_verschieben(um);
}

void rundenkonto::ausfaelle_verschieben(zeit_ms um) {
    for (spur_konto& konto : spur_) {
        konto.ausfall_bei = konto.ausfall_bei ? std::optional(*konto.ausfall_bei + um) : std::nullopt;
    }
}

void rundenkonto::fahrer_umsetzen(const spuren<int>& herkunft) {
    const rundenkonto vorher = *this;
    for (const int spur : alle_spuren) {
        const int von = herkunft[spur];
        if (von != 0) {
            spur_[spur] = vorher.spur_[von];
            speicher_.spur_uebernehmen(spur, vorher.speicher_, von, std::max(runden(spur), 0));
        }
    }
}

}  // namespace tarvel
