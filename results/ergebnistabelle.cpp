#include "results/ergebnistabelle.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "core/text.h"
#include "core/texte.h"

namespace tarvel {
namespace {

constexpr std::size_t tabellenkopf = 2;  // title and columns
constexpr std::size_t rennkopf = 5;
constexpr std::size_t fusszeilen = 4;
constexpr std::string_view vor_den_runden = ";;";  // whatever the separator is

using textzeilen = std::vector<std::string>;

/// The lanes stand side by side; what is missing at the end of a line is empty.
bool block_zeile_lesen(ergebnistabelle& t, const std::string& zeile) {
    const ergebnisfelder felder = felder_teilen(zeile, t.trennzeichen[2]);
    const std::size_t breite = t.zeilen.size() * felder_je_block;
    if (felder.size() > breite && std::any_of(felder.begin() + static_cast<std::ptrdiff_t>(breite), felder.end(),
                                              [](const std::string& feld) { return !feld.empty(); })) {
        return false;
    }
    for (std::size_t i = 0; i < t.zeilen.size(); ++i) {
        t.zeilen[i].block.push_back(block_aus(felder, i, t.trennzeichen[2]));
    }
    return true;
}

ergebnistabelle::lauf lauf_von(const std::string& erste_zeile, const std::string& trenner) {
    const ergebnisfelder felder = felder_teilen(erste_zeile, trenner);
    return felder.size() < 3 ? ergebnistabelle::lauf{}
                             : ergebnistabelle::lauf{felder[felder.size() - 2], felder.back()};
}

/// Which race a lane is of stands behind its number; the same lane once more is of another race.
void rennen_zuordnen(ergebnistabelle& t) {
    using beginn = std::pair<std::string, std::string>;
    std::map<std::pair<beginn, std::size_t>, std::size_t> rennen{{{beginn{}, 0}, 0}};
    std::map<std::pair<beginn, std::string>, std::size_t> wie_oft;
    t.rennen = {lauf_von(t.kopf.front(), t.trennzeichen[2])};
    for (ergebniszeile& zeile : t.zeilen) {
        const ergebnisfelder felder = felder_teilen(zeile.block.front(), t.trennzeichen[2]);
        const beginn wann{felder[1], felder[2]};
        const auto [stelle, neu] = rennen.try_emplace({wann, wie_oft[{wann, felder[0]}]++}, t.rennen.size());
        if (neu) {
            t.rennen.push_back(felder[1].empty() ? t.rennen.front() : ergebnistabelle::lauf{felder[1], felder[2]});
        }
        zeile.rennen = stelle->second;
    }
}

/// Written with these separators: the time of day, as long as it always is, stands last, and the date before it.
bool ist_rennkopf(const std::string& zeile, const std::string& trenner) {
    constexpr std::size_t uhrzeit_laenge = 8;
    const ergebnisfelder felder = felder_teilen(zeile, trenner);
    return felder.size() >= 3 && laenge(felder.back()) == uhrzeit_laenge;
}

bool rennen_lesen(ergebnistabelle& t, textzeilen zeilen) {
    if (zeilen.size() < rennkopf + 2 + kennzahlen_anzahl + 1 + fusszeilen ||
        !ist_rennkopf(zeilen.front(), t.trennzeichen[2])) {
        return false;
    }
    const auto ende = zeilen.end() - static_cast<std::ptrdiff_t>(fusszeilen);
    auto naechste = zeilen.begin() + static_cast<std::ptrdiff_t>(rennkopf);
    t.kopf.assign(zeilen.begin(), naechste);
    for (; naechste != ende && !naechste->empty(); ++naechste) {
        t.zeilen.push_back({*naechste, true, 0, {}, 0});
        if (!fahrerzeile_von(t, t.zeilen.back())) {
            return false;
        }
    }
    constexpr std::ptrdiff_t bis_zu_den_runden = 2 + kennzahlen_anzahl + 1;
    if (ende - naechste < bis_zu_den_runden || !naechste[1].empty() ||
        naechste[bis_zu_den_runden - 1] != vor_den_runden) {
        return false;
    }
    for (auto zeile = naechste + 2; zeile != ende; ++zeile) {
        if (zeile - naechste != bis_zu_den_runden - 1 && !block_zeile_lesen(t, *zeile)) {
            return false;
        }
    }
    rennen_zuordnen(t);
    return true;
}

/// A mark beside the file's own: two files have become one. Lines of two day races are one day.
bool ist_gemischt(const textzeilen& zeilen, ergebnis_typ typ) {
    const auto anzahl = [&zeilen](std::string_view marke) { return std::count(zeilen.begin(), zeilen.end(), marke); };
    const bool tagesrennen = typ == ergebnis_typ::tagesrennen;
    return anzahl(magie_einzelrennen) + anzahl(magie_wettkampf) + anzahl(magie_jeder_gegen_jeden) >
               (tagesrennen ? 0 : 1) ||
           (!tagesrennen && anzahl(magie_tagesrennen) > 0);
}

/// As many fields as a driver's line and a number of laps: the head of a table has no such number.
bool ist_fahrer(const ergebnistabelle& t, const ergebniszeile& zeile) {
    const auto fahrer = fahrerzeile_von(t, zeile);
    return fahrer && fahrer->felder[fahrer->spalten.runden.ab].find_first_of("0123456789") != std::string::npos;
}

bool tabelle_lesen(ergebnistabelle& t, textzeilen zeilen) {
    const bool tagesrennen = t.typ == ergebnis_typ::tagesrennen;
    if (!tagesrennen) {
        zeilen.pop_back();  // what told the kind of the file
    }
    const std::size_t im_kopf = std::min(tagesrennen ? 1 : tabellenkopf, zeilen.size());
    if (t.typ == ergebnis_typ::jeder_gegen_jeden && im_kopf == tabellenkopf &&
        felder_teilen(zeilen[1], t.trennzeichen[2]).size() < 2) {
        return false;  // written with other separators; any even number of fields would be a driver's
    }
    t.kopf.assign(zeilen.begin(), zeilen.begin() + static_cast<std::ptrdiff_t>(im_kopf));
    for (std::size_t i = im_kopf; i < zeilen.size(); ++i) {
        t.zeilen.push_back({std::move(zeilen[i]), false, 0, {}, 0});
        t.zeilen.back().ergebnis = ist_fahrer(t, t.zeilen.back());
    }
    // written with other separators, none of its lines is a driver's
    const auto einer = [&t](const auto& bedingung) { return std::any_of(t.zeilen.begin(), t.zeilen.end(), bedingung); };
    return einer([](const ergebniszeile& zeile) { return zeile.ergebnis; }) ||
           !einer([](const ergebniszeile& zeile) { return !zeile.text.empty(); });
}

std::size_t blockzeilen(const ergebnistabelle& t) {
    std::size_t anzahl = kennzahlen_anzahl;
    for (const ergebniszeile& zeile : t.zeilen) {
        anzahl = std::max(anzahl, zeile.block.size());
    }
    return anzahl;
}

/// Laps of a race, or drivers of a table, go where there is no room for them.
bool kuerzen(ergebnistabelle& t) {
    const std::size_t umfang = t.umfang();
    if (umfang <= ergebnistabelle::zeilen_max) {
        return true;
    }
    t.gekuerzt = true;
    const std::size_t zu_viele = umfang - ergebnistabelle::zeilen_max;
    if (t.typ != ergebnis_typ::einzelrennen) {
        t.zeilen.resize(t.zeilen.size() - std::min(zu_viele, t.zeilen.size()));
        return true;
    }
    const std::size_t bloecke = blockzeilen(t);
    for (ergebniszeile& zeile : t.zeilen) {
        zeile.block.resize(std::min(zeile.block.size(), bloecke - std::min(zu_viele, bloecke - kennzahlen_anzahl)));
    }
    return t.umfang() <= ergebnistabelle::zeilen_max;
}

void lauf_setzen(rennblock& block, const ergebnistabelle::lauf& lauf, const std::string& trenner) {
    blockfeld_setzen(block, blockreihe::spur, 1, lauf.datum, trenner);
    blockfeld_setzen(block, blockreihe::spur, 2, lauf.uhrzeit, trenner);
}

/// Rows in which no lane has anything left.
void leere_reihen_streichen(ergebnistabelle& t) {
    const std::string leer = leerer_block(t.trennzeichen[2]);
    for (ergebniszeile& zeile : t.zeilen) {
        while (zeile.block.size() > kennzahlen_anzahl && zeile.block.back() == leer) {
            zeile.block.pop_back();
        }
    }
}

}  // namespace

std::int64_t spurnummer(const ergebniszeile& zeile, const std::string& trenner) {
    const std::string name = blockfeld(zeile.block, blockreihe::spur, 0, trenner);
    return ergebnisrunden_lesen(std::string_view(name).substr(name.find_last_not_of("0123456789") + 1));
}

std::size_t ergebnistabelle::umfang() const {
    if (typ == ergebnis_typ::einzelrennen) {
        return kopf.size() + zeilen.size() + 2 + blockzeilen(*this) + 1 + fusszeilen;
    }
    return kopf.size() + zeilen.size() + (typ == ergebnis_typ::tagesrennen ? 0 : 1);
}

std::vector<std::string> ergebnistabelle::alle_zeilen() const {
    textzeilen alle = kopf;
    for (const ergebniszeile& zeile : zeilen) {
        alle.push_back(zeile.text);
    }
    if (typ == ergebnis_typ::wettkampf || typ == ergebnis_typ::jeder_gegen_jeden) {
        alle.emplace_back(typ == ergebnis_typ::wettkampf ? magie_wettkampf : magie_jeder_gegen_jeden);
    }
    if (typ != ergebnis_typ::einzelrennen) {
        return alle;
    }
    alle.insert(alle.end(), {"", ""});
    const std::string leer = leerer_block(trennzeichen[2]);
    for (std::size_t i = 0; i < blockzeilen(*this); ++i) {
        if (i == kennzahlen_anzahl) {
            alle.emplace_back(vor_den_runden);
        }
        std::string& reihe = alle.emplace_back();
        for (const ergebniszeile& zeile : zeilen) {
            reihe += i < zeile.block.size() ? zeile.block[i] : leer;
        }
    }
    if (blockzeilen(*this) == kennzahlen_anzahl) {
        alle.emplace_back(vor_den_runden);
    }
    for (const std::string_view zeile : {std::string_view(), programm_name, magie_einzelrennen, web_adresse}) {
        alle.emplace_back(zeile);
    }
    return alle;
}

std::optional<ergebnistabelle> ergebnistabelle_lesen(std::vector<std::string> zeilen,
                                                     const trennzeichen_tabelle& trennzeichen) {
    ergebnistabelle t;
    t.typ = datei_typ_erkennen(zeilen);
    t.trennzeichen = trennzeichen;
    if (t.typ == ergebnis_typ::unbekannt || ist_gemischt(zeilen, t.typ)) {
        return std::nullopt;
    }
    const bool gelesen =
        t.typ == ergebnis_typ::einzelrennen ? rennen_lesen(t, std::move(zeilen)) : tabelle_lesen(t, std::move(zeilen));
    return gelesen && kuerzen(t) ? std::optional(std::move(t)) : std::nullopt;
}

hinzufuegen_ergebnis hinzufuegen(ergebnistabelle& tabelle, const ergebnistabelle& neue) {
    if (tabelle.typ != neue.typ) {
        return hinzufuegen_ergebnis::anderer_typ;
    }
    ergebnistabelle beide = tabelle;
    for (const ergebniszeile& zeile : neue.zeilen) {
        ergebniszeile& dazu = beide.zeilen.emplace_back(zeile);
        dazu.rennen += tabelle.rennen.size();
        if (!dazu.block.empty()) {
            lauf_setzen(dazu.block, neue.rennen.at(zeile.rennen), neue.trennzeichen[2]);
        }
    }
    beide.rennen.insert(beide.rennen.end(), neue.rennen.begin(), neue.rennen.end());
    beide.gekuerzt = beide.gekuerzt || neue.gekuerzt;
    beide.addiert = beide.addiert || neue.addiert;
    if (beide.umfang() > ergebnistabelle::zeilen_max) {
        return hinzufuegen_ergebnis::zu_viele_zeilen;
    }
    for (ergebniszeile& zeile : beide.zeilen) {
        zeile.platz = 0;  // of another standing
    }
    tabelle = std::move(beide);
    return hinzufuegen_ergebnis::hinzugefuegt;
}

std::optional<fahrerzeile> fahrerzeile_von(const ergebnistabelle& tabelle, const ergebniszeile& zeile) {
    ergebnisfelder felder = felder_teilen(zeile.text, tabelle.trennzeichen[2]);
    const auto spalten = spalten_von(tabelle.typ, felder.size());
    return spalten ? std::optional(fahrerzeile{std::move(felder), *spalten}) : std::nullopt;
}

std::vector<std::string> rennen_zeilen(const ergebnistabelle& tabelle, std::size_t rennen) {
    const std::string& trenner = tabelle.trennzeichen[2];
    const ergebnistabelle::lauf& lauf = tabelle.rennen.at(rennen);
    ergebnistabelle eines = tabelle;
    eines.zeilen.clear();
    std::copy_if(tabelle.zeilen.begin(), tabelle.zeilen.end(), std::back_inserter(eines.zeilen),
                 [rennen](const ergebniszeile& zeile) { return zeile.rennen == rennen; });
    std::stable_sort(eines.zeilen.begin(), eines.zeilen.end(), [&trenner](const auto& a, const auto& b) {
        return spurnummer(a, trenner) < spurnummer(b, trenner);
    });
    for (ergebniszeile& zeile : eines.zeilen) {
        lauf_setzen(zeile.block, {}, trenner);
    }
    leere_reihen_streichen(eines);
    ergebnisfelder kopf = felder_teilen(eines.kopf.front(), trenner);
    if (kopf.size() >= 3) {
        kopf[kopf.size() - 2] = lauf.datum;
        kopf.back() = lauf.uhrzeit;
        eines.kopf.front() = felder_verbinden(kopf, trenner);
    }
    return eines.alle_zeilen();
}

std::vector<std::string> klassen_von(const ergebnistabelle& tabelle) {
    std::set<std::string> klassen;
    for (const ergebniszeile& zeile : tabelle.zeilen) {
        const auto fahrer = zeile.ergebnis ? fahrerzeile_von(tabelle, zeile) : std::nullopt;
        if (fahrer && fahrer->spalten.klasse) {
            klassen.insert(fahrer->felder[*fahrer->spalten.klasse]);
        }
    }
    return {klassen.begin(), klassen.end()};
}

}  // namespace tarvel
