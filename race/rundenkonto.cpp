#include "race/rundenkonto.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace tarvel {

void rundenkonto::leeren(int spur) {
    spur_[spur] = {};
    speicher_.leeren(spur, 0);
}

void rundenkonto::zaehlen(int spur, zeit_ms rundenzeit, zeit_ms stempel, zeit_ms pause) {
    assert(runden(spur) < runden_max);
    speicher_.setzen(spur, laufende(spur), rundenzeit, stempel, pause);
    ++spur_[spur].runden;
    speicher_.leeren(spur, laufende(spur));
}

bool rundenkonto::beste_werten(int spur, zeit_ms zeit) {
    spur_konto& konto = spur_[spur];
    if (zeit >= konto.beste && konto.runden != 1) {
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
    const zeit_ms frei = konto.runden > 0 ? pause(spur, konto.runden) : 0;
    --konto.runden;
    konto.vor_fortsetzung = std::min(konto.vor_fortsetzung, std::max(konto.runden, 0) + 1);
    speicher_.zeile_kopieren(spur, laufende(spur) + 1, laufende(spur));  // a lap that is held back moves up
    speicher_.leeren(spur, laufende(spur) + 1);
    beste_suchen(spur);
    return frei;
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

void rundenkonto::zurueckgeben(int spur, zeit_ms zuschlag) {
    if (!std::exchange(spur_[spur].zurueckgehalten, false)) {
        return;
    }
    const int zeile = laufende(spur);
    speicher_.setzen(spur, zeile, rundenzeit(spur, zeile) + zuschlag, stempel(spur, zeile) + zuschlag,
                     pause(spur, zeile));
    ++spur_[spur].runden;
}

void rundenkonto::letzten_stempel_verschieben(int spur, zeit_ms um) {
    const int zeile = runden(spur);
    if (zeile >= 0) {
        speicher_.setzen(spur, zeile, rundenzeit(spur, zeile), stempel(spur, zeile) + um, pause(spur, zeile));
    }
}

bool rundenkonto::verschmelzen(int spur, int runde) {
    spur_konto& konto = spur_[spur];
    if (runde < 1 || runde > konto.runden) {
        return false;
    }
    speicher_.zeile_verschmelzen(spur, runde, konto.runden);
    --konto.runden;
    konto.vor_fortsetzung -= runde <= konto.vor_fortsetzung ? 1 : 0;
    beste_suchen(spur);
    return true;
}

void rundenkonto::beste_suchen(int spur) {
    zeit_ms beste = runden(spur) > 0 ? rundenzeit(spur, 1) : 0;
    for (int runde = 2; runde <= runden(spur); ++runde) {
        const zeit_ms zeit = rundenzeit(spur, runde);
        if (zeit > 0 && zeit < beste) {
            beste = zeit;
        }
    }
    spur_[spur].beste = beste;
}

void rundenkonto::fortsetzen(int spur, bool unterwegs) {
    spur_[spur].vor_fortsetzung = std::max(unterwegs ? laufende(spur) : runden(spur), 0);
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
