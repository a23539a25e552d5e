#include "race/rueckstand.h"

#include <algorithm>

#include "race/rundenkonto.h"

namespace tarvel {
namespace {

/// When the lane was given so many laps, which is what the places go by. 0 without a stamp.
zeit_ms gezaehlt_bei(const rundenkonto& konto, int spur, int runden) {
    const zeit_ms stempel = konto.stempel(spur, runden);
    return stempel == 0 ? 0 : stempel + konto.gewartet(spur, runden);
}

/// The same on a clock that stands in the pauses.
zeit_ms rennzeit_bei(const rundenkonto& konto, int spur, int runden) {
    zeit_ms zeit = gezaehlt_bei(konto, spur, runden);
    for (int zeile = 0; zeit != 0 && zeile <= runden; ++zeile) {
        zeit -= konto.pause(spur, zeile);
    }
    return zeit;
}

/// Laps that `fuehrende` had when `spur` came over the line last.
int runden_damals(const rundenkonto& konto, int fuehrende, int spur) {
    const int seine = konto.runden(spur);
    int damals = konto.runden(fuehrende);
    while (damals > seine && gezaehlt_bei(konto, fuehrende, damals) > gezaehlt_bei(konto, spur, seine)) {
        --damals;
    }
    return damals;
}

}  // namespace

sprachliste& rueckstand_worte::eintragen(sprachliste& texte) {
    texte.text("Runde", runde).text("Runden", runden);
    return texte.text("zurück", zurueck).text("gleichauf", gleichauf);
}

std::string dauer_gesagt(zeit_ms dauer, const trennzeichen_tabelle& trennzeichen) {
    constexpr zeit_ms minute = 60000;
    constexpr zeit_ms zehn_sekunden = 10000;
    const std::string text = zeit_formatieren(dauer, dauer >= minute, trennzeichen);
    return text.substr(dauer < zehn_sekunden ? 1 : 0) + (dauer < minute ? " s" : " min");
}

std::string runden_gesagt(int runden, const rueckstand_worte& wort) {
    return std::to_string(runden) + " " + (runden == 1 ? wort.runde : wort.runden);
}

rueckstand rueckstand_an_der_linie(const rundenkonto& konto, int spur, int fuehrende, bool gewertet) {
    const int seine = konto.runden(spur);
    const int ihre = konto.runden(fuehrende);
    if (seine < 0 || gewertet) {
        const int runden = std::max(ihre, 0) - std::max(seine, 0);
        if (runden > 0 || seine < 0) {
            return {std::max(runden, 0), 0, runden > 0};
        }
    }
    const int runden = std::max(runden_damals(konto, fuehrende, spur) - seine, ihre - seine - 1);
    if (runden > 0) {
        return {runden, 0, true};
    }
    const zeit_ms vorn = rennzeit_bei(konto, fuehrende, seine);
    const zeit_ms hinten = rennzeit_bei(konto, spur, seine);
    const bool von_gruen = seine == 0 && hinten == vorn;  // false starters are counted from the light alike
    const bool gemessen = vorn != 0 && hinten != 0 && hinten >= vorn && !von_gruen;  // else ahead the last time
    return {0, gemessen ? hinten - vorn : 0, gemessen};
}

std::string rueckstand_gesagt(const rueckstand& r, const rueckstand_worte& wort,
                              const trennzeichen_tabelle& trennzeichen) {
    if (!r.bekannt) {
        return {};
    }
    if (r.runden > 0) {
        return runden_gesagt(r.runden, wort) + " " + wort.zurueck;
    }
    return r.dauer > 0 ? "+" + dauer_gesagt(r.dauer, trennzeichen) : wort.gleichauf;
}

}  // namespace tarvel
