#pragma once

#include <string>
#include <vector>

#include "results/einzelrennen_datei.h"
#include "results/ergebnistabelle.h"

namespace tarvel::test {

inline const ergebnis_worte rennworte{
    "Rennergebnis", "Tanken aktiv", "Rundendirektvergleich", "Spur",      "Rundenzahl", "Disqualifiziert", "Spurlänge",
    "Sektorlänge",  "Restmeter",    "Gesamtmeter",           "Gesamtzeit"};

/// A race on as many lanes as there are drivers: the one on lane n drives `runden` laps of 8 s and n tenths.
inline rennergebnis rennen_mit(const std::vector<std::string>& fahrer, int runden, const std::string& uhrzeit) {
    rennergebnis e;
    e.datum = "21.11.2026";
    e.uhrzeit = uhrzeit;
    e.rundenzeilen = runden + 1;
    for (const std::string& name : fahrer) {
        rennergebnis::spur s;
        s.nummer = static_cast<int>(e.spuren.size()) + 1;
        s.fahrer = name;
        s.fahrzeug = "Viper";
        s.laenge = "10";
        s.beste = 8000 + 100 * s.nummer;
        s.runden.assign(static_cast<std::size_t>(runden) + 1, {s.beste, {}, {}});
        s.gesamtzeit = runden * s.beste;
        s.meter = runden * 10;
        e.spuren.push_back(s);
    }
    return e;
}

inline std::vector<std::string> rennzeilen(const rennergebnis& e) {
    return einzelrennen_zeilen(e, rennworte, trennzeichen_standard);
}

inline ergebnistabelle tabelle_aus(const std::vector<std::string>& zeilen) {
    return ergebnistabelle_lesen(zeilen, trennzeichen_standard).value();
}

/// A file of a day race with these lines.
inline std::vector<std::string> tageszeilen(std::vector<std::string> zeilen) {
    zeilen.insert(zeilen.begin(), std::string(magie_tagesrennen));
    return zeilen;
}

}  // namespace tarvel::test
