#include "core/hauptfensterdatei.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/namensliste.h"
#include "core/text.h"
#include "core/zahleneingabe.h"

namespace tarvel {
namespace {

constexpr std::string_view stand_datei = "tvk_hauptfenster.ini";
constexpr std::string_view stand_ja = "Wahr";
constexpr std::string_view stand_nein = "Falsch";
constexpr std::size_t zahl_zeichen_max = 8;  // as the fields take them
constexpr std::size_t standzeilen_max = 100;

using standwerte = std::vector<std::pair<std::string, std::function<void(const std::string&)>>>;

void schalter_lesen(standwerte& alle, const std::string& name, bool& ziel) {
    alle.emplace_back(name,
                      [&ziel](const std::string& wert) { ziel = wert == stand_ja || (wert != stand_nein && ziel); });
}

void zahl_nehmen(standwerte& alle, const std::string& name, std::string& ziel) {
    alle.emplace_back(name, [&ziel](const std::string& wert) {
        if (ist_zahl(wert) && laenge(wert) <= zahl_zeichen_max) {
            ziel = wert;
        }
    });
}

/// An empty one is nobody, in whatever language.
void name_nehmen(standwerte& alle, const std::string& name, std::string& ziel, const std::string& niemand) {
    alle.emplace_back(name, [&ziel, &niemand](const std::string& wert) {
        ziel = wert.empty() ? niemand : std::string(links(wert, namensliste::name_laenge_max));
    });
}

}  // namespace

void hauptfenster_laden(const dateien& ablage, const texte& txt, renneinrichtung& ziel) {
    const auto zeilen = ablage.zeilen_lesen(stand_datei, standzeilen_max);
    if (!zeilen) {
        return;
    }
    bool runden = ziel.art == renn_art::runden;
    standwerte alle;
    schalter_lesen(alle, "Runden", runden);
    schalter_lesen(alle, "Tanken", ziel.tanken);
    zahl_nehmen(alle, "Stunden", ziel.stunden);
    zahl_nehmen(alle, "Dauer", ziel.dauer);
    zahl_nehmen(alle, "Mindestrunde", ziel.mindestrunde);
    zahl_nehmen(alle, "Massstab", ziel.massstab);
    for (const int nummer : alle_spuren) {
        renneinrichtung::spur& spur = ziel.bahn[nummer];
        const std::string davor = "Spur" + std::to_string(nummer) + ".";
        schalter_lesen(alle, davor + "dabei", spur.dabei);
        zahl_nehmen(alle, davor + "Laenge", spur.laenge);
        name_nehmen(alle, davor + "Fahrer", spur.fahrer, txt.kein_fahrer);
        name_nehmen(alle, davor + "Fahrzeug", spur.fahrzeug, txt.standardfahrzeug_text);
    }
    for (const std::string& zeile : *zeilen) {
        const std::size_t gleich = zeile.find('=');
        for (const auto& [name, setzen] : alle) {
            if (gleich != std::string::npos && zeile.compare(0, gleich, name) == 0) {
                setzen(zeile.substr(gleich + 1));
            }
        }
    }
    ziel.art = runden ? renn_art::runden : renn_art::zeit;
    ziel.vor_dem_speichern_pruefen();
}

bool hauptfenster_speichern(const dateien& ablage, const texte& txt, const renneinrichtung& stand) {
    std::vector<std::string> zeilen;
    const auto zeile = [&zeilen](const std::string& name, std::string_view wert) {
        zeilen.push_back(name + "=" + std::string(wert));
    };
    const auto ja_nein = [](bool an) { return an ? stand_ja : stand_nein; };
    zeile("Runden", ja_nein(stand.art == renn_art::runden));
    zeile("Tanken", ja_nein(stand.tanken));
    zeile("Stunden", stand.stunden);
    zeile("Dauer", stand.dauer);
    zeile("Mindestrunde", stand.mindestrunde);
    zeile("Massstab", stand.massstab);
    for (const int nummer : alle_spuren) {
        const renneinrichtung::spur& spur = stand.bahn[nummer];
        const std::string davor = "Spur" + std::to_string(nummer) + ".";
        zeile(davor + "dabei", ja_nein(spur.dabei));
        zeile(davor + "Laenge", spur.laenge);
        zeile(davor + "Fahrer", spur.fahrer == txt.kein_fahrer ? "" : spur.fahrer);
        zeile(davor + "Fahrzeug", spur.fahrzeug == txt.standardfahrzeug_text ? "" : spur.fahrzeug);
    }
    return ablage.zeilen_schreiben(stand_datei, zeilen);
}

}  // namespace tarvel
