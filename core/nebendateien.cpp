#include "core/nebendateien.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "core/felder.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view trennzeichen_datei = "trennzeichen.ini";
constexpr std::string_view gruppen_datei = "tvk_gruppen.ini";
constexpr std::string_view rennbild_datei = "tvk_rennbild.ini";
constexpr std::string_view s6_datei = "tvk_s6.ini";
constexpr std::string_view s6_vorgabe_datei = "tvk_s6_load.ini";
constexpr std::string_view werbe_datei = "tvk.ini";

constexpr std::string_view wahr = "Wahr";
constexpr std::string_view falsch = "Falsch";
constexpr std::array kaesten{&gruppenwahl::feste_gruppen, &gruppenwahl::optimal_verteilen, &gruppenwahl::am_stueck};
constexpr std::array rennbildkaesten{&rennbildwahl::worte, &rennbildwahl::nach_platz, &rennbildwahl::auf_schirm_2};

/// One "Wahr" or "Falsch" a line. Any other file leaves `ziel`.
template <class Wahl, std::size_t anzahl>
void kaesten_laden(const dateien& ablage, std::string_view datei, const std::array<bool Wahl::*, anzahl>& felder,
                   Wahl& ziel) {
    const auto zeilen = ablage.zeilen_lesen(datei, anzahl).value_or(std::vector<std::string>{});
    Wahl neu;
    if (zeilen.size() < anzahl) {
        return;
    }
    for (std::size_t i = 0; i < anzahl; ++i) {
        if (zeilen[i] != wahr && zeilen[i] != falsch) {
            return;
        }
        neu.*felder.at(i) = zeilen[i] == wahr;
    }
    ziel = neu;
}

template <class Wahl, std::size_t anzahl>
bool kaesten_speichern(const dateien& ablage, std::string_view datei, const std::array<bool Wahl::*, anzahl>& felder,
                       const Wahl& werte) {
    std::vector<std::string> zeilen;
    std::transform(felder.begin(), felder.end(), std::back_inserter(zeilen),
                   [&](const auto kasten) { return std::string(werte.*kasten ? wahr : falsch); });
    return ablage.zeilen_schreiben(datei, zeilen);
}

}  // namespace

bool trennzeichen_laden(const dateien& ablage, trennzeichen_tabelle& ziel) {
    constexpr int tabulator = 9;
    const auto felder = felder_lesen(ablage, trennzeichen_datei, ziel.size()).value_or(std::vector<std::string>{});
    trennzeichen_tabelle neu;
    if (felder.size() < neu.size()) {
        return false;
    }
    for (std::size_t i = 0; i < neu.size(); ++i) {
        const auto code = static_cast<int>(ganzzahl_lesen(felder[i], 0, 256));
        if ((code < erstes_druckbares && code != tabulator) || code > 255) {
            return false;
        }
        neu.at(i) = ansi_zeichen(code);
    }
    ziel = neu;
    return true;
}

bool trennzeichen_speichern(const dateien& ablage, const trennzeichen_tabelle& werte) {
    std::vector<std::string> zeilen;
    for (const std::string& zeichen : werte) {
        zeilen.push_back(" " + std::to_string(ansi_code(zeichen).value_or('?')) + " ");
    }
    return ablage.zeilen_schreiben(trennzeichen_datei, zeilen);
}

void gruppenwahl_laden(const dateien& ablage, gruppenwahl& ziel) {
    kaesten_laden(ablage, gruppen_datei, kaesten, ziel);
}

bool gruppenwahl_speichern(const dateien& ablage, const gruppenwahl& werte) {
    return kaesten_speichern(ablage, gruppen_datei, kaesten, werte);
}

void rennbildwahl_laden(const dateien& ablage, rennbildwahl& ziel) {
    kaesten_laden(ablage, rennbild_datei, rennbildkaesten, ziel);
}

bool rennbildwahl_speichern(const dateien& ablage, const rennbildwahl& werte) {
    return kaesten_speichern(ablage, rennbild_datei, rennbildkaesten, werte);
}

void tvk_ini_laden(const dateien& ablage, std::string& ziel) {
    const auto felder = felder_lesen(ablage, werbe_datei, 1);
    if (felder && !felder->empty() && !felder->front().empty()) {
        ziel = felder->front();
    }
}

s6_start s6_laden(const dateien& ablage) {
    std::vector<std::string> felder = felder_lesen(ablage, s6_datei, 5).value_or(std::vector<std::string>{});
    felder.resize(5);
    s6_start start{felder[0], felder[1], felder[2], felder[3], felder[4]};
    if (start.zustand.empty()) {
        start.zustand = "0";
    }
    if (start.einstell_datei.empty()) {
        start.einstell_datei = standard_einstellungen;
    }
    return start;
}

bool s6_speichern(const dateien& ablage, const s6_start& werte) {
    return ablage.zeilen_schreiben(s6_datei, {werte.zustand, werte.modus, als_feld(werte.einstell_datei),
                                              werte.naechster_zustand, werte.naechster_modus});
}

std::string s6_vorgabe_laden(const dateien& ablage) {
    const auto felder = felder_lesen(ablage, s6_vorgabe_datei, 1);
    return felder && !felder->empty() && !felder->front().empty() ? felder->front()
                                                                  : std::string(standard_einstellungen);
}

bool s6_vorgabe_speichern(const dateien& ablage, std::string_view einstell_datei) {
    return ablage.zeilen_schreiben(s6_vorgabe_datei, {als_feld(einstell_datei)});
}

}  // namespace tarvel
