#include "competition/tagesdatei.h"

#include "core/text.h"
#include "results/ergebnisdatei.h"
#include "results/ergebniswerte.h"

namespace tarvel {
namespace {

constexpr std::string_view parameter_datei = "Tagesrennen.ini";
constexpr std::string_view parameter_titel = "Tarvel Parameter-Datei für das Tagesrennen";
const std::string ordner = std::string(ergebnis_ordner::tagesrennen) + "\\";
constexpr std::string_view endung = ".csv";
constexpr std::size_t feste_zeilen = 3;
constexpr std::size_t zeilen_max = 1000000;  // an evening is never too long to be looked at

std::string_view ohne_endung(std::string_view name) {
    const std::string_view ende = rechts(name, endung.size());
    return ende == endung || ende == ".CSV" ? name.substr(0, name.size() - endung.size()) : name;
}

}  // namespace

std::optional<tagesparameter> tagesparameter_laden(const dateien& ablage) {
    const auto zeilen = ablage.zeilen_lesen(parameter_datei, feste_zeilen + klassenzeilen);
    if (!zeilen || zeilen->size() < feste_zeilen || zeilen->front() != parameter_titel) {
        return {};
    }
    tagesparameter werte;
    const std::string_view pfad = ohne_endung((*zeilen)[1]);
    werte.name = mitte(pfad, ordner.size() + 1, laenge(pfad));
    werte.klassen = gekuerzt((*zeilen)[2]) == "1";
    for (std::size_t i = 0; i + feste_zeilen < zeilen->size(); ++i) {
        werte.klassen_text.at(i) = (*zeilen)[i + feste_zeilen];
    }
    return werte;
}

bool tagesparameter_speichern(const dateien& ablage, const tagesparameter& werte) {
    std::vector<std::string> zeilen{std::string(parameter_titel), tagesdatei_pfad(werte.name),
                                    zahl_mit_platz(werte.klassen ? 1 : 0)};
    zeilen.insert(zeilen.end(), werte.klassen_text.begin(), werte.klassen_text.end());
    return ablage.zeilen_schreiben(parameter_datei, zeilen);
}

std::string tagesdatei_pfad(std::string_view name) {
    return ordner + std::string(ohne_endung(name)) + std::string(endung);
}

tagesdatei_zustand tagesdatei_pruefen(const dateien& ablage, std::string_view name) {
    if (ohne_endung(name).empty() || !dateiname_zulaessig(ohne_endung(name))) {
        return tagesdatei_zustand::unbrauchbar;
    }
    const std::string pfad = tagesdatei_pfad(name);
    const auto zeilen = ablage.zeilen_lesen(pfad, 1);
    if (!zeilen && !ablage.gibt_es(pfad)) {
        return tagesdatei_zustand::neu;
    }
    const bool bereit = zeilen && !zeilen->empty() && zeilen->front() == magie_tagesrennen;
    return bereit ? tagesdatei_zustand::bereit : tagesdatei_zustand::unbrauchbar;
}

bool tagesdatei_anlegen(const dateien& ablage, std::string_view name) {
    return ablage.zeilen_schreiben(tagesdatei_pfad(name), {std::string(magie_tagesrennen)});
}

std::vector<tageszeile> tageszeilen_lesen(const dateien& ablage, std::string_view name,
                                          const trennzeichen_tabelle& trennzeichen) {
    std::vector<tageszeile> alle;
    const auto zeilen = ablage.zeilen_lesen(tagesdatei_pfad(name), zeilen_max).value_or(std::vector<std::string>{});
    for (std::size_t i = 1; i < zeilen.size(); ++i) {
        const auto f = felder_teilen(zeilen[i], trennzeichen[2]);
        if (f.size() == 6) {
            alle.push_back({f[0], f[1], std::string(gekuerzt(f[2])), f[3], f[4], f[5]});
        }
    }
    return alle;
}

}  // namespace tarvel
