#include "hardware/at2560_profil.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/spuren.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view kopfzeile = "Tarvel UART Einstellungsdatei";
constexpr std::size_t zeilen_max = 10000;
constexpr std::size_t zeile_bytes_max = 200;
constexpr std::size_t erste_aus = 6;  // rows of the lamps and the track power: on from 1, off from 7
constexpr std::size_t alle_an = 13;
constexpr std::size_t alle_aus = 14;

/// One key line of the file, and the values on the lines behind it; a heading has none.
struct schluessel {
    std::string name;
    std::vector<std::string*> werte;
};
using schluesselliste = std::vector<schluessel>;

template <class Reihe>
schluessel paar(std::string name, Reihe& reihe, std::size_t an, std::size_t aus) {
    return {std::move(name), {&reihe.at(an), &reihe.at(aus)}};
}

void ausgabebefehle_nennen(at_profil& p, schluesselliste& alle) {
    alle.push_back({"##Ausgabebefehle", {}});
    for (std::size_t lampe = 1; lampe < erste_aus; ++lampe) {
        alle.push_back(paar("#Ampel rot " + std::to_string(lampe), p.at_ampel, lampe, lampe + erste_aus));
    }
    alle.push_back(paar("#Ampel gruen", p.at_ampel, erste_aus, 2 * erste_aus));
    alle.push_back(paar("#Ampel rot alle", p.at_ampel, alle_an, alle_aus));
    alle.push_back(paar("##Signalausgabe bei Rennende", p.at_rennende, 1, 2));
    alle.push_back(paar("##Ausgabe bei Chaos", p.at_chaos, 1, 2));
    for (const int spur : alle_spuren) {
        const auto zeile = static_cast<std::size_t>(spur);
        alle.push_back(paar("#Bahnstrom " + std::to_string(spur), p.at_bahnstrom, zeile, zeile + erste_aus));
    }
    alle.push_back(paar("#Bahnstrom alle", p.at_bahnstrom, alle_an, alle_aus));
}

void ereignisse_nennen(at_profil& p, schluesselliste& alle) {
    std::size_t zeile = 1;
    const auto ereignis = [&](std::string name) { alle.push_back({std::move(name), {&p.at_ereignis.at(zeile++)}}); };
    for (const int spur : alle_spuren) {
        ereignis("#StartZiel Spur " + std::to_string(spur));
    }
    for (const int spur : alle_spuren) {
        const std::string tanksensor = "#Tanksensor Spur " + std::to_string(spur);
        ereignis(tanksensor + " ein");
        ereignis(tanksensor + " aus");
    }
    for (const int spur : alle_spuren) {
        const std::string zwischenzeit = "#Zwischenzeit Spur " + std::to_string(spur);
        ereignis(zwischenzeit + " Sensor 1");
        ereignis(zwischenzeit + " Sensor 2");
    }
    ereignis("#Chaos allgemein");
    for (const int spur : alle_spuren) {
        ereignis("#Chaos Spur " + std::to_string(spur));
    }
    for (int sensor = 1; sensor <= 8; ++sensor) {
        ereignis("#Soundsensor " + std::to_string(sensor));
    }
}

/// The file from top to bottom.
schluesselliste schluessel_von(at_profil& p) {
    schluesselliste alle{{"##Befehlszeichen", {}},
                         {"#Zeichen zum Starten einer Befehlssequenz", {&p.at_startzeichen}},
                         {"#Zeichen zum Trennen von Event und Wert", {&p.at_trennzeichen_wert}},
                         {"#Zeichen zwischen Event und Timecode", {&p.at_trennzeichen_zeit}},
                         {"#Zeichen zum Beenden einer Befehlssequenz", {&p.at_endzeichen}},
                         {"##allgemeine Befehle", {}},
                         {"#Hardwarereset", {&p.at_hardwarereset}},
                         {"#Seriennummer", {&p.at_seriennummer}},
                         {"#Rennstart", {&p.at_rennstart}},
                         {"#aktuellen Timecode anfordern", {&p.at_zeit_anfordern}},
                         {"#IS Befehl", {&p.at_is_befehl}}};
    ausgabebefehle_nennen(p, alle);
    ereignisse_nennen(p, alle);
    return alle;
}

/// A frame needs its characters, each of them one byte on the line: without one the factory's stays.
void befehlszeichen_pruefen(at_profil& p) {
    const at_profil werk;
    for (std::string at_profil::*zeichen : {&at_profil::at_startzeichen, &at_profil::at_trennzeichen_wert,
                                            &at_profil::at_trennzeichen_zeit, &at_profil::at_endzeichen}) {
        p.*zeichen = (p.*zeichen).empty() ? werk.*zeichen : std::string(links(p.*zeichen, 1));
    }
}

}  // namespace

at_profil::at_profil() {
    const auto fuellen = [](auto& reihe, char buchstabe) {
        for (std::size_t n = 1; n <= erste_aus; ++n) {
            reihe.at(n) = buchstabe + std::to_string(n) + "1";
            reihe.at(n + erste_aus) = buchstabe + std::to_string(n) + "0";
        }
        reihe.at(alle_an) = buchstabe + std::string("01");
        reihe.at(alle_aus) = buchstabe + std::string("00");
    };
    fuellen(at_ampel, 'A');
    fuellen(at_bahnstrom, 'P');
    at_rennende = {"", "E1", "E0"};
    at_chaos = {"", "C1", "C0"};
    std::fill(at_ereignis.begin() + 1, at_ereignis.end(), at_nicht_belegt);
    constexpr std::array<std::string_view, 4> werk{"S13", "S11", "S9", "S7"};
    std::copy(werk.begin(), werk.end(), at_ereignis.begin() + 1);
}

ereignis_art at_art(int zeile) {
    constexpr std::array<ereignis_art, at_ereignisse_max> arten{
        16, 15, 14, 13, 34, 35,                          // laps
        32, 31, 30, 29, 28, 27, 26, 25, 36, 37, 38, 39,  // tank sensors
        42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53,  // sectors
        1,  54, 55, 56, 57, 58, 59,                      // chaos
        20, 19, 18, 17, 12, 11, 10, 9};                  // sounds
    return arten.at(static_cast<std::size_t>(zeile - 1));
}

bool at_profil_laden(const dateien& ablage, std::string_view datei, at_profil& ziel) {
    const auto zeilen = ablage.zeilen_lesen(datei, zeilen_max, zeile_bytes_max);
    if (!zeilen) {
        return false;
    }
    at_profil neu;
    const schluesselliste alle = schluessel_von(neu);
    for (auto zeile = zeilen->begin(); zeile != zeilen->end(); ++zeile) {
        const auto gefunden =
            std::find_if(alle.begin(), alle.end(), [&](const schluessel& s) { return s.name == *zeile; });
        if (gefunden == alle.end()) {
            continue;
        }
        for (std::string* wert : gefunden->werte) {
            if (std::next(zeile) == zeilen->end()) {
                break;
            }
            *wert = *++zeile;
        }
    }
    befehlszeichen_pruefen(neu);
    ziel = std::move(neu);
    return true;
}

bool at_profil_speichern(const dateien& ablage, std::string_view datei, const at_profil& profil) {
    at_profil kopie = profil;
    std::vector<std::string> zeilen{std::string(kopfzeile), ""};
    for (const schluessel& s : schluessel_von(kopie)) {
        zeilen.push_back(s.name);
        for (const std::string* wert : s.werte) {
            zeilen.push_back(*wert);
        }
    }
    return ablage.zeilen_schreiben(datei, zeilen);
}

}  // namespace tarvel
