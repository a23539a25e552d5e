#include "core/erscheinung.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/ordnerblick.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view anzeige_datei = "tvk_anzeige.ini";
constexpr std::string_view mit_endung = "language-";
constexpr std::string_view merken_ja = "Wahr";
constexpr std::string_view merken_nein = "Falsch";

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> bekannte_sprachen{{{"da", "Dansk"},
                                                                                           {"de", "Deutsch"},
                                                                                           {"en", "English"},
                                                                                           {"es", "Español"},
                                                                                           {"fi", "Suomi"},
                                                                                           {"fr", "Français"},
                                                                                           {"it", "Italiano"},
                                                                                           {"nl", "Nederlands"},
                                                                                           {"no", "Norsk"},
                                                                                           {"sv", "Svenska"}}};

}  // namespace

void erscheinung_laden(const dateien& ablage, erscheinung& ziel) {
    const auto zeilen = ablage.zeilen_lesen(anzeige_datei, 3).value_or(std::vector<std::string>{});
    if (!zeilen.empty()) {
        const std::vector<std::string> ordner = sprachordner_finden(ablage);
        if (std::find(ordner.begin(), ordner.end(), zeilen[0]) != ordner.end()) {
            ziel.sprachordner = zeilen[0];
        }
    }
    if (zeilen.size() > 1 && zeilen[1].size() == 1 && zeilen[1][0] >= '0' && zeilen[1][0] <= '2') {
        ziel.fenster = static_cast<aussehen>(zeilen[1][0] - '0');
    }
    if (zeilen.size() > 2 && (zeilen[2] == merken_ja || zeilen[2] == merken_nein)) {
        ziel.hauptfenster_wie_zuletzt = zeilen[2] == merken_ja;
    }
}

bool erscheinung_speichern(const dateien& ablage, const erscheinung& werte) {
    return ablage.zeilen_schreiben(anzeige_datei,
                                   {werte.sprachordner, std::to_string(static_cast<int>(werte.fenster)),
                                    std::string(werte.hauptfenster_wie_zuletzt ? merken_ja : merken_nein)});
}

std::vector<std::string> sprachordner_finden(const dateien& ablage) {
    std::vector<std::string> gefunden{std::string(sprachordner_standard)};
    for (const std::string& name : ordner_ansehen(ablage.pfad("."), {}).ordner) {
        if (name.size() > mit_endung.size() && name.starts_with(mit_endung)) {
            gefunden.push_back(name);
        }
    }
    return gefunden;
}

std::string sprachkuerzel(std::string_view ordner) {
    return std::string(ordner.starts_with(mit_endung) ? ordner.substr(mit_endung.size()) : "de");
}

std::string sprachname(std::string_view ordner) {
    std::string kuerzel = sprachkuerzel(ordner);
    const auto bekannt = std::find_if(bekannte_sprachen.begin(), bekannte_sprachen.end(),
                                      [&kuerzel](const auto& eine) { return eine.first == kuerzel; });
    return bekannt == bekannte_sprachen.end() ? kuerzel : std::string(bekannt->second);
}

}  // namespace tarvel
