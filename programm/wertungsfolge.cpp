#include "programm/wertungsfolge.h"

#include <algorithm>
#include <utility>

namespace tarvel {

bool wertungsfolge::weiter() {
    mitschrift& protokoll = r_.protokoll;
    protokoll.bei_kopfzeile = [this](std::string_view text) {
        korrektur_lesen(text);
        if (bei_kopfzeile) {
            bei_kopfzeile(text);
        }
    };
    const std::optional<protokollsatz> tat = protokoll.naechste_tat();
    protokoll.bei_kopfzeile = nullptr;
    const std::optional<spuren<int>> herkunft = tat ? abschliessen_vor(*tat) : std::nullopt;
    const bool weiter = protokoll.weiter();
    if (herkunft) {
        wertung_.fahrer_umsetzen(*herkunft);
    }
    return weiter;
}

std::optional<spuren<int>> wertungsfolge::abschliessen_vor(const protokollsatz& tat) {
    const bool umzug = tat.wort == "umsetzen";
    const bool weiter = tat.wort == "fortsetzen";
    if ((umzug || weiter || tat.wort == "korrektur") && !std::exchange(abgeschlossen_, true)) {
        wertung_.abschliessen();
    }
    abgeschlossen_ = abgeschlossen_ && !weiter;
    if (!umzug) {
        return std::nullopt;
    }
    std::string_view rest = tat.rest;
    naechstes_wort(rest);  // the time
    spuren<int> herkunft;
    for (const int spur : alle_spuren) {
        const std::int64_t von = als_zahl(naechstes_wort(rest)).value_or(0);
        herkunft[spur] = static_cast<int>(std::clamp<std::int64_t>(von, 0, spuren_max));
    }
    return herkunft;
}

void wertungsfolge::korrektur_lesen(std::string_view text) {
    using weise = korrekturvermerk::weise;
    std::optional<korrekturvermerk> v = korrekturzeile_lesen(text);
    if (!v) {
        return;
    }
    abgeschlossen_ = false;
    wertung_.auswerten();
    if (v->was.traegt_nach() && v->was.spur >= 1 && v->was.spur <= spuren_max) {
        v->was.meter = r_.umgebung.param.spurlaenge[v->was.spur];
    }
    if (!folge_.gilt(*v, wertung_.korrekturen())) {
        return;
    }
    switch (v->wie) {
        case weise::neu:
            wertung_.korrigieren({v->was});
            break;
        case weise::dazu:
            wertung_.ergaenzen(v->was);
            break;
        case weise::zurueck:
            wertung_.zuruecknehmen();
            break;
        case weise::wieder:
            wertung_.wiederherstellen();
    }
}

}  // namespace tarvel
