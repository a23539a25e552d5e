#include "results/korrekturliste.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/mitschrift.h"
#include "core/text.h"
#include "race/rundenspeicher.h"
#include "results/platzierung.h"

namespace tarvel {
namespace {

constexpr std::string_view anfang = "Korrektur";
constexpr std::string_view restmeter = "Restmeter";
constexpr double meter_max = 1e6;

using weise = korrekturvermerk::weise;
constexpr std::array<std::pair<weise, std::string_view>, 3> weisen{
    {{weise::dazu, "dazu"}, {weise::zurueck, "zurück"}, {weise::wieder, "wieder"}}};
constexpr std::array<std::pair<korrektur::art, std::string_view>, 3> arten{
    {{korrektur::art::geloescht, "gelöscht"},
     {korrektur::art::ueberfahrt, "Überfahrt nachgetragen:"},
     {korrektur::art::geteilt, "geteilt:"}}};

}  // namespace

void korrekturliste::anfuegen(korrekturschritt schritt) {
    schritte_.resize(geltende_);
    schritte_.push_back(std::move(schritt));
    ++geltende_;
}

void korrekturliste::ergaenzen(const korrektur& k) {
    if (geltende_ > 0) {
        schritte_.resize(geltende_);
        schritte_.back().push_back(k);
    }
}

void korrekturliste::stempel_verschieben(zeit_ms um) {
    for (korrekturschritt& schritt : schritte_) {
        for (korrektur& k : schritt) {
            k.stempel += um;
        }
    }
}

void korrekturliste::leeren() {
    schritte_.clear();
    geltende_ = 0;
}

rennergebnis korrekturliste::angewandt(rennergebnis gefahren) const {
    for (std::size_t i = 0; i < geltende_; ++i) {
        for (const korrektur& k : schritte_[i]) {
            korrigieren(gefahren, k);
        }
    }
    for (const rennergebnis::spur& s : gefahren.spuren) {
        gefahren.rundenzeilen = std::max(gefahren.rundenzeilen, static_cast<int>(s.runden.size()));
    }
    platzieren(gefahren);
    return gefahren;
}

std::string korrekturzeile(const korrekturvermerk& v) {
    const korrektur& k = v.was;
    std::string zeile = std::string(anfang) + " ";
    for (const auto& [weise, wort] : weisen) {
        zeile += weise == v.wie ? std::string(wort) + " " : "";
    }
    zeile += "Spur " + std::to_string(k.spur);
    if (k.was == korrektur::art::restmeter) {
        return zeile + " Restmeter " + zahl_text(k.meter, '.');
    }
    zeile += " Runde " + std::to_string(k.runde);
    for (const auto& [art, worte] : arten) {
        zeile += art == k.was ? " " + std::string(worte) : "";
    }
    return k.traegt_nach() ? zeile + " Zeit " + std::to_string(k.zeit) + " Stempel " + std::to_string(k.stempel) +
                                 " Pause " + std::to_string(k.pause)
                           : zeile;
}

std::optional<korrekturvermerk> korrekturzeile_lesen(std::string_view zeile) {
    korrekturvermerk v;
    if (naechstes_wort(zeile) != anfang) {
        return std::nullopt;
    }
    for (const auto& [weise, wort] : weisen) {
        if (zeile.starts_with(wort)) {
            naechstes_wort(zeile);
            v.wie = weise;
            break;
        }
    }
    bool ganz = true;
    const auto zahl = [&](std::string_view wort) {
        ganz = ganz && naechstes_wort(zeile) == wort;
        const std::optional<std::int64_t> gelesen = als_zahl(naechstes_wort(zeile));
        ganz = ganz && gelesen;
        return protokoll_stempel(gelesen.value_or(0));
    };
    korrektur& k = v.was;
    k.spur = static_cast<int>(std::clamp<std::int64_t>(zahl("Spur"), 0, spuren_max + 1));
    if (zeile.starts_with(restmeter)) {
        naechstes_wort(zeile);
        k.was = korrektur::art::restmeter;
        k.meter = std::clamp(zahl_lesen(zeile), -meter_max, meter_max);
    } else {
        k.runde = static_cast<int>(std::clamp<std::int64_t>(zahl("Runde"), 0, runden_max + 1));
        const auto gemeint =
            std::find_if(arten.begin(), arten.end(), [&](const auto& eine) { return zeile.starts_with(eine.second); });
        ganz = ganz && gemeint != arten.end();
        if (ganz) {
            k.was = gemeint->first;
            zeile.remove_prefix(std::min(gemeint->second.size() + 1, zeile.size()));
        }
        for (const auto& [wort, wert] : {std::pair("Zeit", &korrektur::zeit), std::pair("Stempel", &korrektur::stempel),
                                         std::pair("Pause", &korrektur::pause)}) {
            k.*wert = ganz && k.traegt_nach() ? zahl(wort) : 0;
        }
    }
    return ganz ? std::optional(v) : std::nullopt;
}

bool korrekturfolge::gilt(const korrekturvermerk& v, const korrekturliste& liste) {
    if (v.wie == weise::neu || v.wie == weise::dazu) {
        steht_schon_ = 0;
        return true;
    }
    if (steht_schon_ > 0) {
        --steht_schon_;
        return false;
    }
    const korrekturschritt* schritt = v.wie == weise::zurueck ? liste.letzter() : liste.naechster();
    steht_schon_ = schritt == nullptr ? 0 : schritt->size() - 1;
    return schritt != nullptr;
}

}  // namespace tarvel
