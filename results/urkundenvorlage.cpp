#include "results/urkundenvorlage.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

using elementart = vorlagenelement::art;
using buendig = vorlagenelement::buendig;

constexpr std::array<std::string_view, 2> kennzeilen{"Tarvel Urkunde", "Tarvel Certificate"};
constexpr std::size_t elemente_max = 300;
constexpr double laenge_max_mm = 500;

/// The words of a line one by one.
class wortleser {
public:
    explicit wortleser(std::string_view zeile) : rest_(zeile) {}

    std::string_view wort() {
        rest_ = gekuerzt(rest_);
        const std::size_t ende = std::min(rest_.find_first_of(" \t"), rest_.size());
        const std::string_view gelesen = rest_.substr(0, ende);
        rest_.remove_prefix(ende);
        return gelesen;
    }
    std::string rest() { return std::string(gekuerzt(rest_)); }
    bool zu_ende() const { return gekuerzt(rest_).empty(); }

    bool zahl(double& ziel, double min, double max) {
        std::string text(wort());
        werte_pruefen2(text);
        const bool gut = !text.empty() && text.find_first_not_of("-.0123456789") == std::string::npos;
        ziel = zahl_lesen(text);
        return gut && ziel >= min && ziel <= max;
    }
    /// "#RRGGBB", as in a web page.
    bool farbton(farbe& ziel) {
        const std::string_view text = wort();
        unsigned wert = 0;
        const char* ende = text.data() + text.size();
        if (text.size() != 7 || text[0] != '#' || std::from_chars(text.data() + 1, ende, wert, 16).ptr != ende) {
            return false;
        }
        ziel = (wert & 0xFFU) << 16U | (wert & 0xFF00U) | wert >> 16U;
        return true;
    }

private:
    std::string_view rest_;
};

bool buendig_lesen(wortleser& worte, vorlagenelement& e) {
    static const std::map<std::string_view, buendig> namen{{"links", buendig::links},   {"mitte", buendig::mitte},
                                                           {"rechts", buendig::rechts}, {"left", buendig::links},
                                                           {"center", buendig::mitte},  {"right", buendig::rechts}};
    const auto gefunden = namen.find(worte.wort());
    if (gefunden == namen.end()) {
        return false;
    }
    e.an = gefunden->second;
    return true;
}

/// "fett-serifen" and the like.
bool stil_lesen(std::string_view stil, vorlagenelement& e) {
    bool egal = false;
    const std::map<std::string_view, bool*> eigenschaften{
        {"normal", &egal}, {"fett", &e.fett},     {"kursiv", &e.kursiv}, {"serifen", &e.serifen},
        {"bold", &e.fett}, {"italic", &e.kursiv}, {"serif", &e.serifen}};
    while (!stil.empty()) {
        const std::size_t ende = std::min(stil.find('-'), stil.size());
        const auto gefunden = eigenschaften.find(stil.substr(0, ende));
        if (gefunden == eigenschaften.end()) {
            return false;
        }
        *gefunden->second = true;
        stil.remove_prefix(std::min(ende + 1, stil.size()));
    }
    return true;
}

std::optional<std::size_t> wort_von(std::string_view name) {
    for (const auto* namen : {&urkundenwort_namen, &urkundenwort_englisch}) {
        const auto gefunden = std::find(namen->begin(), namen->end(), name);
        if (gefunden != namen->end()) {
            return static_cast<std::size_t>(gefunden - namen->begin());
        }
    }
    return std::nullopt;
}

/// Calls `text` with what stands outside of braces and `wort` with the number of each word in them; false for a word
/// that is none.
template <class Text, class Wort>
bool vorlage_zerlegen(std::string_view inhalt, const Text& text, const Wort& wort) {
    while (!inhalt.empty()) {
        const std::size_t auf = std::min(inhalt.find('{'), inhalt.size());
        text(inhalt.substr(0, auf));
        inhalt.remove_prefix(auf);
        if (inhalt.empty()) {
            break;
        }
        const std::size_t zu = inhalt.find('}');
        const auto name = inhalt.substr(1, std::min(zu, inhalt.size()) - 1);
        const auto welches = wort_von(name);
        if (zu == std::string_view::npos || !welches) {
            return false;
        }
        wort(*welches);
        inhalt.remove_prefix(zu + 1);
    }
    return true;
}

bool text_lesen(wortleser& worte, vorlagenelement& e) {
    if (!worte.zahl(e.mass, 1, 100) || !buendig_lesen(worte, e) || !stil_lesen(worte.wort(), e) ||
        !worte.farbton(e.farbton)) {
        return false;
    }
    return vorlage_zerlegen(
        worte.rest(), [&e](std::string_view text) { e.inhalt += text; },
        [&e](std::size_t wort) { e.inhalt += "{" + std::string(urkundenwort_namen.at(wort)) + "}"; });
}

bool strich_lesen(wortleser& worte, vorlagenelement& e) {
    return worte.farbton(e.farbton) && worte.zahl(e.mass, 0.05, 20) && worte.zu_ende();
}

bool bild_lesen(wortleser& worte, vorlagenelement& e) {
    const std::string_view form = worte.wort();
    e.rund = form == "rund" || form == "round";
    if ((!e.rund && form != "eckig" && form != "square") || !worte.farbton(e.farbton) || !worte.zahl(e.mass, 0, 20)) {
        return false;
    }
    e.inhalt = worte.rest();
    if (e.inhalt == "Fahrer" || e.inhalt == "Driver") {
        e.zeigt = vorlagenelement::motiv::fahrer;
        e.inhalt.clear();
    } else if (e.inhalt == "Fahrzeug" || e.inhalt == "Car") {
        e.zeigt = vorlagenelement::motiv::fahrzeug;
        e.inhalt.clear();
    } else {
        e.zeigt = vorlagenelement::motiv::datei;
    }
    return e.zeigt != vorlagenelement::motiv::datei || !e.inhalt.empty();
}

bool nur_farbe_lesen(wortleser& worte, vorlagenelement& e) {
    return worte.farbton(e.farbton) && worte.zu_ende();
}

bool nichts_lesen(wortleser& worte, vorlagenelement& /*e*/) {
    return worte.zu_ende();
}

struct zeilenart {
    std::string_view name;
    elementart was;
    bool (*lesen)(wortleser&, vorlagenelement&);  ///< what follows place and size
};
constexpr std::array<zeilenart, 14> zeilenarten{{{"Fläche", elementart::flaeche, nur_farbe_lesen},
                                                 {"Flaeche", elementart::flaeche, nur_farbe_lesen},
                                                 {"Rahmen", elementart::rahmen, strich_lesen},
                                                 {"Linie", elementart::linie, strich_lesen},
                                                 {"Text", elementart::text, text_lesen},
                                                 {"Bild", elementart::bild, bild_lesen},
                                                 {"Plakette", elementart::plakette, nichts_lesen},
                                                 {"Zielflagge", elementart::zielflagge, nur_farbe_lesen},
                                                 {"Area", elementart::flaeche, nur_farbe_lesen},
                                                 {"Frame", elementart::rahmen, strich_lesen},
                                                 {"Line", elementart::linie, strich_lesen},
                                                 {"Picture", elementart::bild, bild_lesen},
                                                 {"Badge", elementart::plakette, nichts_lesen},
                                                 {"Flag", elementart::zielflagge, nur_farbe_lesen}}};

bool element_lesen(const std::string& zeile, vorlagenelement& e) {
    wortleser worte(zeile);
    const std::string_view name = worte.wort();
    const auto* gefunden =
        std::find_if(zeilenarten.begin(), zeilenarten.end(), [&](const zeilenart& eine) { return eine.name == name; });
    if (gefunden == zeilenarten.end()) {
        return false;
    }
    e.was = gefunden->was;
    return worte.zahl(e.x, -laenge_max_mm, laenge_max_mm) && worte.zahl(e.y, -laenge_max_mm, laenge_max_mm) &&
           worte.zahl(e.breite, 0, laenge_max_mm) && worte.zahl(e.hoehe, 0, laenge_max_mm) && gefunden->lesen(worte, e);
}

}  // namespace

gelesene_vorlage vorlage_lesen(const std::vector<std::string>& zeilen) {
    gelesene_vorlage gelesen;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const std::string_view zeile = gekuerzt(zeilen[i]);
        if (i == 0 && std::find(kennzeilen.begin(), kennzeilen.end(), zeile) != kennzeilen.end()) {
            continue;
        }
        if (i > 0 && (zeile.empty() || zeile.front() == ';')) {
            continue;
        }
        vorlagenelement element;
        if (i == 0 || gelesen.vorlage.size() == elemente_max || !element_lesen(zeilen[i], element)) {
            gelesen.fehlerzeile = i + 1;
            return gelesen;
        }
        gelesen.vorlage.push_back(std::move(element));
    }
    gelesen.fehlerzeile = gelesen.vorlage.empty() ? std::max<std::size_t>(zeilen.size(), 1) : 0;
    return gelesen;
}

std::string eingesetzt(std::string_view inhalt, const urkundenworte& worte) {
    std::string aus;
    bool leer = false;
    vorlage_zerlegen(
        inhalt, [&aus](std::string_view text) { aus += text; },
        [&](std::size_t wort) {
            aus += worte.at(wort);
            leer = leer || worte.at(wort).empty();
        });
    return leer ? std::string() : aus;
}

}  // namespace tarvel
