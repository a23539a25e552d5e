#include "results/urkunde.h"

#include <algorithm>

#include "core/text.h"
#include "results/ergebnistexte.h"

namespace tarvel {
namespace {

constexpr zeit_ms minute = 60000;

std::string meter_kurz(double meter) {
    return zahl_text(meter, ',') + " m";
}

/// A lap as one says it.
std::string rundenzeit(zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    if (zeit <= 0) {
        return {};
    }
    return zeit < minute ? std::to_string(zeit / 1000) + trennzeichen[1] + ziffern(zeit % 1000, 3) + " s"
                         : zeit_formatieren(zeit, true, trennzeichen);
}

double laenge_von(const rennergebnis::spur& s) {
    std::string text = s.laenge;
    werte_pruefen2(text);
    return zahl_lesen(text);
}

urkunde urkunde_fuer(const rennergebnis& ergebnis, const rennergebnis::spur& s, const urkundenangaben& angaben) {
    urkunde u;
    u.spur = s.nummer;
    const bool gewertet = s.rundenzahl() > 0 && !s.disqualifiziert;
    u.platz = gewertet ? s.platz.value_or(0) : 0;
    const auto setzen = [&u](urkundenwort w, std::string text) {
        u.worte.at(static_cast<std::size_t>(w)) = std::move(text);
    };
    using w = urkundenwort;
    setzen(w::verein, angaben.kopf.verein);
    setzen(w::veranstaltung, angaben.kopf.veranstaltung);
    setzen(w::rennen, angaben.rennen);
    setzen(w::datum, ergebnis.datum);
    setzen(w::fahrer, s.fahrer);
    setzen(w::fahrzeug, s.fahrzeug);
    setzen(w::platz, u.platz > 0 ? std::to_string(u.platz) : std::string());
    setzen(w::platzwort, u.platz > 0 ? std::to_string(u.platz) + ". " + angaben.platz : angaben.ohne_platz);
    setzen(w::teilnehmer, std::to_string(ergebnis.spuren.size()));
    setzen(w::spur, std::to_string(s.nummer));
    setzen(w::strecke, laenge_von(s) > 0 ? meter_kurz(laenge_von(s)) : std::string());
    setzen(w::runden, s.disqualifiziert ? std::string("–") : std::to_string(s.rundenzahl()));
    if (gewertet) {
        setzen(w::meter, ergebnistext::meter(s));
        setzen(w::gesamtzeit, ergebnistext::zeit(s, angaben.trennzeichen));
        setzen(w::tempo, ergebnistext::tempo(s));
    }
    setzen(w::beste, gewertet ? rundenzeit(s.beste, angaben.trennzeichen) : std::string());
    return u;
}

}  // namespace

std::string streckenlaenge(const rennergebnis& ergebnis) {
    double kuerzeste = 0;
    double laengste = 0;
    for (const rennergebnis::spur& s : ergebnis.spuren) {
        const double laenge = laenge_von(s);
        kuerzeste = kuerzeste > 0 ? std::min(kuerzeste, laenge) : laenge;
        laengste = std::max(laengste, laenge);
    }
    if (kuerzeste <= 0) {
        return {};
    }
    return kuerzeste < laengste ? zahl_text(kuerzeste, ',') + " – " + meter_kurz(laengste) : meter_kurz(laengste);
}

std::vector<urkunde> urkunden_bilden(const rennergebnis& ergebnis, const urkundenangaben& angaben) {
    std::vector<rennergebnis::spur> folge = ergebnis.spuren;
    std::stable_sort(folge.begin(), folge.end(), [](const auto& a, const auto& b) { return a.platz < b.platz; });
    std::vector<urkunde> urkunden;
    urkunden.reserve(folge.size());
    for (const rennergebnis::spur& s : folge) {
        urkunden.push_back(urkunde_fuer(ergebnis, s, angaben));
    }
    return urkunden;
}

}  // namespace tarvel
