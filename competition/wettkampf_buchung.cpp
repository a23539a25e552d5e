#include <algorithm>
#include <optional>

#include "competition/wettkampf.h"
#include "race/bestensuche.h"

namespace tarvel {
namespace {

/// What the laps of a part come to. `teil` counts how often the race had gone on.
fahrt rundensumme(const rennergebnis::spur& s, int teil) {
    fahrt summe;
    double meter = 0;
    std::optional<bestensuche> suche;
    for (std::size_t i = 1; i < s.runden.size(); ++i) {
        const rennergebnis::runde& r = s.runden[i];
        if (r.teil != teil) {
            continue;
        }
        ++summe.runden;
        summe.zeit += r.zeit;
        meter += r.meter;
        if (r.angefangen) {  // on the former lane, it says nothing of this one
            suche.emplace(r.nachgetragen);
            continue;
        }
        if (!suche || (suche->beste() == 0 && !s.runden[i - 1].nachgetragen)) {  // a lap of no time is none
            suche.emplace(s.runden[i - 1].nachgetragen);
        }
        suche->runde(r);
    }
    summe.meter = zentimeter_aus(meter);
    summe.beste = suche ? suche->beste() : 0;
    return summe;
}

/// The books of a file that does not tell it yet.
gutschrift gutschrift_annehmen(const fahrt& gebucht, const fahrt& gefahren) {
    return {gefahren, gebucht.zeit - gefahren.zeit, gebucht.meter - gefahren.meter};
}

/// What the race gives now instead of what it gave; what was corrected in the books beside that stays corrected.
void nachfuehren(fahrt& gebucht, const gutschrift& bisher, const gutschrift& jetzt) {
    if (bisher == jetzt) {
        return;
    }
    const fahrt alt = bisher.gesamt();
    const fahrt neu = jetzt.gesamt();
    gebucht = begrenzt({gebucht.runden + neu.runden - alt.runden, gebucht.zeit + neu.zeit - alt.zeit,
                        gebucht.meter + neu.meter - alt.meter, neu.beste});
}

/// 0 for nobody, and who does not drive there.
int spur_von(const startfeld& feld, int wer) {
    const auto* const seine =
        std::find_if(alle_spuren.begin(), alle_spuren.end(), [&](int spur) { return feld[spur] == wer; });
    return wer == 0 || seine == alle_spuren.end() ? 0 : *seine;
}

}  // namespace

fahrt gutschrift::gesamt() const {
    return {gefahren.runden, gefahren.zeit + strafe, gefahren.meter + restmeter, gefahren.beste};
}

bool wettkampf::ergebnis_eintragen(const rennergebnis& ergebnis, const rennteile& teile) {
    const int rennen = uebergabe().rennen;
    if (rennen == 0) {
        return false;
    }
    const int gebucht_bis = fortsetzung_nummer(rennen);
    for (int teil = gebucht_bis + 1; teil <= teile.bis; ++teil) {
        gefahren.push_back({rennen, teil, {}});
        if (plan.teile > 1) {
            gefahren.back().aus_rennen.emplace();
        }
    }
    zurueckgestellte.erase(rennen);
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        const int wer = plan.feld(rennen, teile.auf)[s.nummer];
        if (wer != 0 && !ist_fueller(wer)) {
            fahrer_buchen(ergebnis, s, wer, teile, gebucht_bis);
        }
    }
    return true;
}

void wettkampf::fahrer_buchen(const rennergebnis& ergebnis, const rennergebnis::spur& s, int wer,
                              const rennteile& teile, int gebucht_bis) {
    fahrt davor;
    for (int nummer = teile.ab; nummer <= teile.bis; ++nummer) {
        gefahrener_teil* const teil = teil_von(aktuelles_rennen, nummer);
        const int spur = teil == nullptr ? 0 : spur_von(plan.feld(aktuelles_rennen, nummer), wer);
        if (spur == 0) {
            continue;
        }
        fahrt& gebucht = teil->fahrten[spur];
        fahrt summe = rundensumme(s, nummer - teile.ab);
        summe.beste = ergebnis.teil == 0 ? s.beste : summe.beste;
        const bool neu = nummer > gebucht_bis;
        const gutschrift bisher = neu                ? gutschrift{}
                                  : teil->aus_rennen ? (*teil->aus_rennen)[spur]
                                                     : gutschrift_annehmen(gebucht, summe);
        gutschrift jetzt = bisher;
        if (!s.disqualifiziert || nummer == teile.bis) {  // who is out keeps what he has in the books
            jetzt.gefahren = summe;
        }
        if (nummer == teile.bis) {  // penalties and rest metres that no part before has got
            jetzt.strafe = std::max<zeit_ms>(s.gesamtzeit - davor.zeit - summe.zeit, 0);
            jetzt.restmeter = zentimeter_aus(s.meter) - davor.meter - summe.meter;
        }
        nachfuehren(gebucht, bisher, jetzt);
        if (teil->aus_rennen) {
            (*teil->aus_rennen)[spur] = jetzt;
        }
        davor += jetzt.gesamt();
    }
}

}  // namespace tarvel
