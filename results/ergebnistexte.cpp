#include "results/ergebnistexte.h"

#include <array>
#include <cstdlib>

#include "core/text.h"
#include "core/texte.h"
#include "race/sektoren.h"
#include "results/platzierung.h"

namespace tarvel::ergebnistext {

std::string runden(const spur& s) {
    return s.disqualifiziert ? std::string(disqualifiziert_text) : std::to_string(s.rundenzahl());
}

std::string meter(const spur& s) {
    return zahl_fest(s.meter, ',') + " m";
}

std::string zeit(const spur& s, const trennzeichen_tabelle& trennzeichen) {
    return zeit_formatieren(s.gesamtzeit, true, trennzeichen);
}

std::string beste(const spur& s, const trennzeichen_tabelle& trennzeichen) {
    return minuten_davor(s.beste, trennzeichen) + zeit_formatieren(s.beste, false, trennzeichen);
}

std::string abstand(const rennergebnis& ergebnis, const spur& s, const trennzeichen_tabelle& trennzeichen) {
    const spur* erster = ergebnis.fuehrende();
    if (erster == nullptr || erster->nummer == s.nummer) {
        return {};
    }
    const zeit_ms dahinter = s.gesamtzeit - erster->gesamtzeit;
    return (dahinter < 0 ? "- " : "+ ") + zeit_formatieren(std::abs(dahinter), true, trennzeichen);
}

namespace {

/// What the places go by, within the same lap; empty where there is no difference.
std::string unterschied(const rennergebnis& ergebnis, const spur& erster, const spur& s, const rueckstand_worte& wort,
                        const trennzeichen_tabelle& trennzeichen) {
    constexpr double zentimeter = 0.01;
    const sortier_modus wertung = ergebnis.wertung.value_or(sortier_modus::runden);
    if (wertung == sortier_modus::beste && s.beste > erster.beste) {
        return dauer_gesagt(s.beste - erster.beste, trennzeichen);
    }
    if (wertung != sortier_modus::beste && erster.rundenzahl() > s.rundenzahl()) {
        return runden_gesagt(erster.rundenzahl() - s.rundenzahl(), wort);
    }
    if (wertung == sortier_modus::meter && erster.meter - s.meter >= zentimeter) {
        return zahl_fest(erster.meter - s.meter, ',') + " m";
    }
    const zeit_ms dahinter = s.gesamtzeit - erster.gesamtzeit;
    return dahinter > 0 ? dauer_gesagt(dahinter, trennzeichen) : std::string();
}

}  // namespace

std::string rueckstand(const rennergebnis& ergebnis, const spur& s, const rueckstand_worte& wort,
                       const trennzeichen_tabelle& trennzeichen) {
    const spur* erster = ergebnis.fuehrende();
    if (erster == nullptr || erster->nummer == s.nummer || s.disqualifiziert) {
        return {};
    }
    const std::string um = unterschied(ergebnis, *erster, s, wort, trennzeichen);
    if (const zeit_ms dahinter = s.gesamtzeit - erster->gesamtzeit;
        dahinter > 0 && um == dauer_gesagt(dahinter, trennzeichen)) {
        return {};
    }
    return um.empty() ? wort.gleichauf : um + " " + wort.zurueck;
}

std::string tempo(const spur& s) {
    const auto ueber = [](double meter, zeit_ms dauer) { return zahl_fest(sektor_tempo(meter, dauer), ','); };
    const double in_der_zeit = s.meter - s.restmeter;  // a driver may have come from a lane of another length
    return ueber(zahl_lesen(s.laenge), s.beste) + " / " + ueber(in_der_zeit, s.gesamtzeit) + " km/h";
}

namespace {

void aufzaehlen(std::string& text, const std::string& wort, const std::string& eines) {
    text += (text.empty() ? wort + " " : ", ") + eines;
}

std::string mit_platz(int platz, const spur& s) {
    return unteilbar(std::to_string(platz) + ". " + s.fahrer);  // a line may end between two names
}

}  // namespace

std::string ab_gruen(const rennergebnis& ergebnis, const blatt_worte& wort) {
    std::string folge;
    for (const auto& [platz, nummer] : anders_ab_gruen(ergebnis)) {
        aufzaehlen(folge, wort.ab_gruen, mit_platz(platz, *ergebnis.auf(nummer)));
    }
    std::string zu_frueh;
    for (const int nummer : gezaehlt_ab_gruen(ergebnis)) {
        aufzaehlen(zu_frueh, wort.nach_fruehstart, unteilbar(ergebnis.auf(nummer)->fahrer));
    }
    return folge + (folge.empty() || zu_frueh.empty() ? "" : "\n") + zu_frueh;
}

std::string anders_auf_der_bahn(const rennergebnis& ergebnis, const spuren<int>& auf_der_bahn,
                                const std::string& wort) {
    std::array<const spur*, spuren_max> nach_platz{};
    for (const spur& s : ergebnis.spuren) {
        if (s.rundenzahl() > 0 && !s.disqualifiziert && s.platz != auf_der_bahn[s.nummer]) {
            nach_platz.at(feld_index(*s.platz)) = &s;
        }
    }
    std::string text;
    for (const spur* s : nach_platz) {
        if (s != nullptr) {
            aufzaehlen(text, wort, mit_platz(*s->platz, *s));
        }
    }
    return text;
}

std::string strafe(const spur& s, const std::string& wort, const std::string& tank_leer,
                   const trennzeichen_tabelle& trennzeichen) {
    std::string text;
    if (s.strafzeit.value_or(0s) > 0s) {
        text = wort + ": " + std::to_string(s.strafzeit->count()) + " sec";
    }
    if (const zeit_ms zuschlag = s.zuschlag(); zuschlag > 0) {
        const char komma = trennzeichen[1].empty() ? ',' : trennzeichen[1].front();
        const std::string sekunden = zahl_text(static_cast<double>(zuschlag) / 1000, komma);
        text += (text.empty() ? "" : ", ") + tank_leer + ": +" + sekunden + " s";
    }
    return text;
}

}  // namespace tarvel::ergebnistext
