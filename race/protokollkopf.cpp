#include "race/protokollkopf.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <type_traits>
#include <unordered_map>

#include "core/protokollzeile.h"

namespace tarvel {
namespace {

constexpr std::string_view kennung = "Tarvel-Rennprotokoll 2";
constexpr std::string_view kennung_einzeln = "Tarvel-Rennprotokoll 1";  // has a line for each count
constexpr std::string_view einstellung = "E";
constexpr std::string_view tasten = "Tasten";
constexpr std::string_view teil = "Teil";
constexpr std::string_view ende = "Anfang";

/// Each value of the head with its name.
template <class Kopf, class Feld>
void jedes_feld(Kopf& k, Feld feld) {
    feld("Zeitpunkt", k.zeitpunkt);
    feld("Beginn", k.beginn);
    auto& p = k.param;
    feld("Ziel", p.renn_ziel);
    feld("Laenge", p.renn_laenge);
    feld("Dauer", p.renndauer_ms);
    feld("Rest", p.renndauer_rest_ms);
    feld("Mindestens", p.min_rundenzeit_ms);
    feld("Massstab", p.massstab);
    feld("Tanken", p.tank_aktiv);
    feld("Wertung", p.auswertung_nach_rennen);
    feld("Spuren", p.spuren_anzahl);
    feld("SpurenGemerkt", p.spuren_anzahl_gemerkt);
    for (const int spur : alle_spuren) {
        const std::string nummer = std::to_string(spur);
        feld("Aktiv" + nummer, p.spur_aktiv[spur]);
        feld("AktivGemerkt" + nummer, p.spur_aktiv_gemerkt[spur]);
        feld("Fahrer" + nummer, p.fahrer_name[spur]);
        feld("Klasse" + nummer, p.klasse[spur]);
        feld("Fahrzeug" + nummer, p.fahrzeug_name[spur]);
        feld("Meter" + nummer, p.spurlaenge[spur]);
        feld("MeterText" + nummer, p.spurlaenge_text[spur]);
    }
}

template <class Wert>
std::string als_text(const Wert& wert) {
    if constexpr (std::is_same_v<Wert, std::string>) {
        return wert;
    } else if constexpr (std::is_same_v<Wert, rennziel>) {
        return als_text(wert.art()) + " " + std::to_string(wert.zahl());
    } else if constexpr (std::is_same_v<Wert, double>) {
        constexpr std::size_t stellen = 32;
        std::array<char, stellen> text{};
        return {text.data(), std::to_chars(text.data(), text.data() + text.size(), wert).ptr};
    } else {
        return std::to_string(static_cast<std::int64_t>(wert));
    }
}

template <class Wert>
void aus_text(std::string_view text, Wert& wert) {
    if constexpr (std::is_same_v<Wert, std::string>) {
        wert = text;
    } else if constexpr (std::is_same_v<Wert, rennziel>) {
        renn_art art{};
        aus_text(naechstes_wort(text), art);
        wert = rennziel::aus_zahl(art == renn_art::runden ? art : renn_art::zeit, als_zahl(text).value_or(0));
    } else if constexpr (std::is_same_v<Wert, double>) {
        std::from_chars(text.data(), text.data() + text.size(), wert);
    } else {
        wert = static_cast<Wert>(als_zahl(text).value_or(0));
    }
}

}  // namespace

std::vector<std::string> kopf_schreiben(const protokollkopf& kopf) {
    std::vector<std::string> zeilen{std::string(kennung)};
    jedes_feld(kopf, [&](const std::string& name, const auto& wert) { zeilen.push_back(name + " " + als_text(wert)); });
    std::string codes(tasten);
    for (int zeile = 0; zeile <= tastenbelegung::zeile_max; ++zeile) {
        codes += " " + std::to_string(kopf.belegung.taste(zeile));
    }
    zeilen.push_back(codes);
    zeilen.push_back(std::string(teil) + " " + kopf.teil_von);
    for (const std::string& zeile : kopf.einstellungen) {
        zeilen.push_back(std::string(einstellung) + " " + zeile);
    }
    zeilen.emplace_back(ende);
    return zeilen;
}

std::optional<gelesener_kopf> kopf_lesen(std::span<const std::string_view> zeilen) {
    gelesener_kopf gelesen;
    std::unordered_map<std::string_view, std::string_view> werte;
    bool erste = true;
    for (std::string_view rest : zeilen) {
        ++gelesen.zeilen;
        if (naechstes_wort(rest) != "#" || (erste && rest != kennung && rest != kennung_einzeln)) {
            return std::nullopt;
        }
        erste = false;
        if (rest == ende) {
            bool ganz = true;
            jedes_feld(gelesen.kopf, [&](const std::string& name, auto& wert) {
                const auto gefunden = werte.find(name);
                ganz = ganz && gefunden != werte.end();
                aus_text(gefunden != werte.end() ? gefunden->second : "", wert);
            });
            return ganz ? std::optional(gelesen) : std::nullopt;
        }
        const std::string_view name = naechstes_wort(rest);
        if (name == einstellung) {
            gelesen.kopf.einstellungen.emplace_back(rest);
        } else if (name == teil) {
            gelesen.kopf.teil_von = rest;
        } else if (name == tasten) {
            for (int zeile = 0; zeile <= tastenbelegung::zeile_max; ++zeile) {
                gelesen.kopf.belegung.taste(zeile, static_cast<int>(als_zahl(naechstes_wort(rest)).value_or(0)));
            }
        } else {
            werte.emplace(name, rest);
        }
    }
    return std::nullopt;
}

std::string_view teil_von_lesen(std::string_view anfang) {
    protokollleser leser(anfang);
    while (const auto zeile = leser.zeile()) {
        std::string_view rest = *zeile;
        if (naechstes_wort(rest) != "#") {
            break;
        }
        if (naechstes_wort(rest) == teil) {
            return rest;
        }
    }
    return {};
}

}  // namespace tarvel
