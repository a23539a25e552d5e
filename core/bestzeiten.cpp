#include "core/bestzeiten.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/felder.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr std::string_view ordner = "Ergebnisse\\Bestzeiten";
constexpr std::string_view endung = ".bst";
constexpr std::size_t felder_je_eintrag = 4;
constexpr std::size_t felder_anzahl = felder_je_eintrag * bestzeiten::zeilen_anzahl * spuren_max;

/// As the file will give it back: one line of its characters.
std::string lesbarer_text(std::string_view text) {
    std::string lesbar = von_1252(nach_1252(links(text, bestzeiten::text_laenge_max)));
    std::replace(lesbar.begin(), lesbar.end(), '"', '\'');
    std::replace_if(
        lesbar.begin(), lesbar.end(), [](char zeichen) { return static_cast<unsigned char>(zeichen) < ' '; }, ' ');
    return lesbar;
}

bestzeit lesbarer_eintrag(const bestzeit& eintrag) {
    if (eintrag.ms <= 0 || eintrag.ms >= keine_bestzeit) {
        return {};
    }
    return {eintrag.ms, lesbarer_text(eintrag.name), lesbarer_text(eintrag.fahrzeug), lesbarer_text(eintrag.datum)};
}

}  // namespace

bestzeiten::bestzeiten() = default;

bool bestzeiten::laden(const dateien& ablage, std::string_view stamm) {
    leeren();
    const auto gelesen = dateiname_zulaessig(stamm) ? felder_lesen(ablage, bestzeit_pfad(stamm), felder_anzahl)
                                                    : std::optional<std::vector<std::string>>();
    if (!gelesen) {
        return false;
    }
    auto feld = gelesen->begin();
    const auto naechstes = [&] { return feld == gelesen->end() ? std::string() : *feld++; };
    for (rangliste& rang : spuren_) {
        for (bestzeit& eintrag : rang) {
            eintrag.ms = ganzzahl_lesen(naechstes(), 0, keine_bestzeit);
            for (std::string* text : {&eintrag.name, &eintrag.fahrzeug, &eintrag.datum}) {
                *text = naechstes();
            }
            eintrag = lesbarer_eintrag(eintrag);
        }
    }
    gesamt_bilden();
    return true;
}

bool bestzeiten::speichern(const dateien& ablage, std::string_view stamm) const {
    std::vector<std::string> zeilen;
    for (const rangliste& rang : spuren_) {
        for (const bestzeit& eintrag : rang) {
            zeilen.push_back(" " + std::to_string(eintrag.ms));
            for (const std::string* text : {&eintrag.name, &eintrag.fahrzeug, &eintrag.datum}) {
                zeilen.push_back(als_feld(*text));
            }
        }
    }
    return dateiname_zulaessig(stamm) && ablage.zeilen_schreiben(bestzeit_pfad(stamm), zeilen);
}

void bestzeiten::einfuegen(int spur, bestzeit neu) {
    neu = lesbarer_eintrag(neu);
    if (neu.leer()) {
        return;
    }
    rangliste& rang = spuren_[spur];
    std::move_backward(rang.begin(), rang.end() - 1, rang.end());
    rang.front() = std::move(neu);
    gesamt_bilden();
}

void bestzeiten::setzen(int zeile, int spur, const bestzeit& neu) {
    spuren_[spur].at(platz(zeile)) = lesbarer_eintrag(neu);
    gesamt_bilden();
}

void bestzeiten::streichen(int zeile, int spur) {
    rangliste& rang = spuren_[spur];
    const auto weg = rang.begin() + static_cast<std::ptrdiff_t>(platz(zeile));
    std::move(weg + 1, rang.end(), weg);
    rang.back() = {};
    gesamt_bilden();
}

void bestzeiten::sortieren() {
    for (rangliste& rang : spuren_) {
        std::stable_sort(rang.begin(), rang.end(), [](const bestzeit& a, const bestzeit& b) { return a.ms < b.ms; });
    }
    gesamt_bilden();
}

void bestzeiten::gesamt_bilden() {
    gesamt_ = {};
    for (const rangliste& rang : spuren_) {
        if (rang.front().ms < gesamt_.ms) {
            gesamt_ = rang.front();
        }
    }
}

std::string bestzeit_pfad(std::string_view stamm) {
    return std::string(ordner) + "\\" + std::string(stamm) + std::string(endung);
}

std::vector<std::string> bestzeit_dateien(const dateien& ablage) {
    std::vector<std::string> staemme;
    for (std::string& datei : ablage.auflisten(ordner, "", endung)) {
        datei.erase(datei.size() - endung.size());
        if (ablage.gibt_es(bestzeit_pfad(datei))) {  // not so where capitals count and the extension has some
            staemme.push_back(std::move(datei));
        }
    }
    return staemme;
}

std::vector<std::string> bestzeit_auswahl(const dateien& ablage, const std::string& gewaehlt) {
    std::vector<std::string> staemme = bestzeit_dateien(ablage);
    if (std::find(staemme.begin(), staemme.end(), gewaehlt) == staemme.end()) {
        staemme.push_back(gewaehlt);
    }
    return staemme;
}

}  // namespace tarvel
