#include "results/urkunde.h"

#include <algorithm>

#include "core/text.h"
#include "results/ergebnissortierung.h"
#include "results/ergebnistexte.h"
#include "results/fahrer_addieren.h"

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

/// "3. Platz"; in a language that says it the other way round a # in its word stands for the number: "Place 3".
std::string platz_gesagt(int platz, const std::string& wort) {
    const std::string nummer = std::to_string(platz);
    const std::size_t stelle = wort.find('#');
    return stelle == std::string::npos ? nummer + ". " + wort : std::string(wort).replace(stelle, 1, nummer);
}

/// What every certificate says, of whatever it is.
urkunde urkunde_mit(int platz, std::string_view datum, std::string_view fahrer, std::size_t teilnehmer,
                    const urkundenangaben& angaben) {
    urkunde u;
    u.platz = platz;
    using w = urkundenwort;
    u.setzen(w::verein, angaben.kopf.verein);
    u.setzen(w::veranstaltung, angaben.kopf.veranstaltung);
    u.setzen(w::rennen, angaben.rennen);
    u.setzen(w::datum, datum);
    u.setzen(w::fahrer, fahrer);
    u.setzen(w::platz, platz > 0 ? std::to_string(platz) : "");
    u.setzen(w::platzwort, platz > 0 ? platz_gesagt(platz, angaben.platz) : angaben.ohne_platz);
    u.setzen(w::teilnehmer, std::to_string(teilnehmer));
    return u;
}

urkunde urkunde_fuer(const rennergebnis& ergebnis, const rennergebnis::spur& s, const urkundenangaben& angaben) {
    const bool gewertet = s.rundenzahl() > 0 && !s.disqualifiziert;
    urkunde u =
        urkunde_mit(gewertet ? s.platz.value_or(0) : 0, ergebnis.datum, s.fahrer, ergebnis.spuren.size(), angaben);
    u.spur = s.nummer;
    const auto setzen = [&u](urkundenwort w, std::string_view text) { u.setzen(w, text); };
    using w = urkundenwort;
    setzen(w::fahrzeug, s.fahrzeug);
    setzen(w::klasse, s.klasse);
    setzen(w::spur, std::to_string(s.nummer));
    setzen(w::strecke, laenge_von(s) > 0 ? meter_kurz(laenge_von(s)) : std::string());
    setzen(w::runden, s.disqualifiziert ? "–" : std::to_string(s.rundenzahl()));
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

std::vector<urkunde> urkunden_bilden(const std::vector<tabellenplatz>& plaetze, const std::string& datum,
                                     const urkundenangaben& angaben) {
    using w = urkundenwort;
    std::vector<urkunde> urkunden;
    urkunden.reserve(plaetze.size());
    for (const tabellenplatz& p : plaetze) {
        const auto in_klasse = std::count_if(plaetze.begin(), plaetze.end(),
                                             [&p](const tabellenplatz& einer) { return einer.klasse == p.klasse; });
        urkunde u =
            urkunde_mit(p.runden > 0 ? p.platz : 0, datum, p.fahrer, static_cast<std::size_t>(in_klasse), angaben);
        if (!p.klasse.empty()) {
            u.setzen(w::klasse, p.klasse);
            u.setzen(w::rennen, angaben.rennen + "  ·  " + angaben.klasse + " " + p.klasse);
        }
        u.setzen(w::runden, std::to_string(p.runden));
        u.setzen(w::meter, p.meter > 0 ? zahl_fest(p.meter, ',') + " m" : "");
        u.setzen(w::beste, rundenzeit(p.beste, angaben.trennzeichen));
        u.setzen(w::gesamtzeit, p.gesamtzeit > 0 ? ergebniszeit(p.gesamtzeit, angaben.trennzeichen) : "");
        urkunden.push_back(std::move(u));
    }
    return urkunden;
}

std::vector<tabellenplatz> plaetze_von(const ergebnistabelle& tabelle, sortier_modus nach,
                                       const std::set<std::string>& ohne_klassen) {
    ergebnistabelle summe = tabelle;
    const bool laeufe = summe.typ == ergebnis_typ::tagesrennen && !summe.addiert;  // its lines are races, not drivers
    if (laeufe) {
        gleiche_fahrer_addieren(summe, true);
    }
    if (laeufe || summe.typ == ergebnis_typ::jeder_gegen_jeden) {  // whose file has the order of the start list
        sortieren(summe, nach);
    }
    std::vector<tabellenplatz> plaetze;
    for (const ergebniszeile& zeile : summe.zeilen) {
        const auto fahrer = zeile.ergebnis ? fahrerzeile_von(summe, zeile) : std::nullopt;
        if (!fahrer) {
            continue;
        }
        const auto& [felder, spalten] = *fahrer;
        const zeilenwerte werte = werte_von(felder, spalten, summe.trennzeichen);
        const std::string klasse = spalten.klasse && felder[*spalten.klasse] != "0" ? felder[*spalten.klasse] : "";
        if (spalten.klasse && ohne_klassen.contains(felder[*spalten.klasse])) {
            continue;
        }
        const auto im_feld = spalten.platz ? static_cast<int>(ganzzahl_lesen(felder[*spalten.platz], 0, 99999)) : 0;
        plaetze.push_back({zeile.platz > 0 ? zeile.platz : im_feld, felder[spalten.name], klasse, werte.runden,
                           werte.meter, werte.beste, werte.gesamtzeit});
    }
    return plaetze;
}

}  // namespace tarvel
