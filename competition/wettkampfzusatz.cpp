#include "competition/wettkampfzusatz.h"

#include <algorithm>
#include <array>

#include "core/einstellungszeile.h"
#include "core/text.h"
#include "race/rundenspeicher.h"

namespace tarvel {
namespace {

// A later version may add lines of other names; they are passed over.
constexpr std::string_view zusatz_kopf = "[Wettkampfzusatz 1]";
constexpr std::string_view kopf_anfang = "[Wettkampfzusatz ";
constexpr std::string_view zusatz_ende = "[Zusatzende]";
constexpr std::int64_t laenge_max = 999999999;
constexpr std::int64_t gutschrift_max = 1000000000000;
constexpr std::size_t gutschrift_werte = 6;

using werte = std::vector<std::string_view>;

std::string reihe(std::string_view name, std::initializer_list<std::int64_t> zahlen) {
    std::string zeile(name);
    for (const std::int64_t zahl : zahlen) {
        zeile += "," + zahl_mit_platz(zahl);
    }
    return zeile;
}

std::string teil_zeile(const gefahrener_teil& einer) {
    std::string zeile = reihe("Fahrt", {einer.rennen, einer.teil});
    for (const fahrt& eine : einer.fahrten) {
        zeile += "," + zahl_mit_platz(eine.zeit) + ", " + zahl_fest(als_meter(eine.meter), '.');
    }
    return zeile;
}

std::string gutschrift_zeile(const gefahrener_teil& einer, const spuren<gutschrift>& aus_rennen) {
    std::string zeile = reihe("Gutschrift", {einer.rennen, einer.teil});
    for (const gutschrift& g : aus_rennen) {
        zeile +=
            reihe("", {g.gefahren.runden, g.gefahren.zeit, g.gefahren.meter, g.gefahren.beste, g.strafe, g.restmeter});
    }
    return zeile;
}

/// False if the line is broken. The first value is the line's name.
using zeilenleser = bool (*)(wettkampf_zusatz& z, const werte& w, std::string_view zeile);

bool art_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    const auto nummer = zahl_zwischen(w[1], 1, wettkampf_modus_max);
    z.modus = static_cast<wettkampf_modus>(nummer.value_or(1));
    return nummer.has_value();
}

bool teile_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.teile = zahl_zwischen(w[1], 1, spuren_max).value_or(0);
    return z.teile != 0;
}

bool herkunft_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    for (const int spur : alle_spuren) {
        const auto von = zahl_zwischen(w[static_cast<std::size_t>(spur)], 0, spuren_max);
        if (!von) {
            return false;
        }
        z.herkunft[spur] = *von;
    }
    return true;
}

bool wertung_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.wertung = static_cast<sortier_modus>(zahl_zwischen(w[1], 1, 3).value_or(2));
    return true;
}

bool qualifying_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.qualifying_an = gekuerzt(w[1]) == "Wahr";
    return true;
}

bool laenge_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.rennlaenge = ganzzahl_lesen(w[1], 0, laenge_max);
    return true;
}

bool beginn_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.beginn = wettkampf_text(w[1]);
    return true;
}

bool platz_lesen(wettkampf_zusatz& z, const werte& w, std::string_view zeile) {
    const auto fahrer = zahl_zwischen(w[1], 0, tabelle_max);
    const auto fueller = zahl_zwischen(w[2], 0, tabelle_max);
    if (!fahrer || !fueller || (*fahrer == 0) == (*fueller == 0)) {
        return false;
    }
    z.teilnehmer.push_back({*fahrer, *fueller});
    const std::size_t bild = w[0].size() + w[1].size() + w[2].size() + 3;  // may hold commas
    z.bilder.push_back(als_zeile(zeile.substr(bild)));
    return true;
}

bool fahrt_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    const auto rennen = zahl_zwischen(w[1], 1, tabelle_max);
    const auto teil = zahl_zwischen(w[2], 1, spuren_max);
    if (!rennen || !teil) {
        return false;
    }
    gefahrener_teil neu{*rennen, *teil, {}};
    for (const int spur : alle_spuren) {
        const auto stelle = 2 * static_cast<std::size_t>(spur) + 1;
        neu.fahrten[spur].zeit = ganzzahl_lesen(w[stelle], 0, laenge_max);
        neu.fahrten[spur].meter = zentimeter_aus(zahl_lesen(w[stelle + 1]));
        neu.fahrten[spur] = begrenzt(neu.fahrten[spur]);
    }
    z.gefahren.push_back(neu);
    return true;
}

/// Stands behind the line of its part.
bool gutschrift_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    if (z.gefahren.empty() || zahl_zwischen(w[1], 1, tabelle_max) != z.gefahren.back().rennen ||
        zahl_zwischen(w[2], 1, spuren_max) != z.gefahren.back().teil) {
        return false;
    }
    std::size_t stelle = 3;
    const auto zahl = [&] { return ganzzahl_lesen(w[stelle++], -gutschrift_max, gutschrift_max); };
    for (gutschrift& g : z.gefahren.back().aus_rennen.emplace()) {
        g.gefahren.runden = static_cast<int>(std::clamp<std::int64_t>(zahl(), 0, runden_max));
        g.gefahren.zeit = zahl();
        g.gefahren.meter = zahl();
        g.gefahren.beste = zahl();
        g.strafe = zahl();
        g.restmeter = zahl();
    }
    return true;
}

bool renndauer_lesen(wettkampf_zusatz& z, const werte& w, std::string_view /*zeile*/) {
    z.renndauern.push_back(ganzzahl_lesen(w[1], 0, laenge_max));
    return true;
}

struct zeilenart {
    std::string_view name;
    std::size_t werte;  ///< at least, with the name
    zeilenleser lesen;
};
constexpr std::array<zeilenart, 11> zeilenarten{{
    {"Art", 2, art_lesen},
    {"Teile", 2, teile_lesen},
    {"Herkunft", 1 + spuren_max, herkunft_lesen},
    {"Wertung", 2, wertung_lesen},
    {"Qualifying", 2, qualifying_lesen},
    {"Rennlänge", 2, laenge_lesen},
    {"Beginn", 2, beginn_lesen},
    {"Platz", 4, platz_lesen},
    {"Fahrt", 3 + 2 * spuren_max, fahrt_lesen},
    {"Gutschrift", 3 + gutschrift_werte* spuren_max, gutschrift_lesen},
    {"Renndauer", 2, renndauer_lesen},
}};

bool zeile_lesen(wettkampf_zusatz& z, std::string_view zeile) {
    const werte w = werte_der_zeile(zeile);
    const auto* const art = std::find_if(zeilenarten.begin(), zeilenarten.end(),
                                         [&](const zeilenart& eine) { return eine.name == w.front(); });
    return art == zeilenarten.end() || (w.size() >= art->werte && art->lesen(z, w, zeile));
}

}  // namespace

std::vector<std::string_view> werte_der_zeile(std::string_view zeile) {
    std::vector<std::string_view> alle;
    std::size_t komma = zeile.find(',');
    while (komma != std::string_view::npos) {
        alle.push_back(zeile.substr(0, komma));
        zeile.remove_prefix(komma + 1);
        komma = zeile.find(',');
    }
    alle.push_back(zeile);
    return alle;
}

std::optional<int> zahl_zwischen(std::string_view text, int min, int max) {
    const auto zahl = static_cast<int>(ganzzahl_lesen(text, std::int64_t{min} - 1, std::int64_t{max} + 1));
    return zahl < min || zahl > max ? std::nullopt : std::optional(zahl);
}

std::vector<std::string> zusatz_zeilen(const wettkampf& w) {
    const auto& von = w.plan.herkunft;
    std::vector<std::string> zeilen{
        std::string(zusatz_kopf),
        reihe("Art", {static_cast<int>(w.modus)}),
        reihe("Teile", {w.plan.teile}),
        reihe("Herkunft", {von[1], von[2], von[3], von[4], von[5], von[6]}),
        reihe("Wertung", {static_cast<int>(w.wertung)}),
        std::string("Qualifying,") + (w.qualifying_an ? "Wahr" : "Falsch"),
        reihe("Rennlänge", {w.rennlaenge}),
        "Beginn," + wettkampf_text(w.beginn),
    };
    for (std::size_t i = 0; i < w.teilnehmer.size(); ++i) {
        const startplatz& platz = w.plan.teilnehmer.at(i);
        const std::string bild = i < w.bilder.size() ? als_zeile(w.bilder[i]) : "";
        zeilen.push_back(reihe("Platz", {platz.fahrer, platz.fueller}) + "," + bild);
    }
    for (const gefahrener_teil& einer : w.gefahren) {
        zeilen.push_back(teil_zeile(einer));
        if (einer.aus_rennen) {
            zeilen.push_back(gutschrift_zeile(einer, *einer.aus_rennen));
        }
    }
    for (const zeit_ms dauer : w.renndauern) {
        zeilen.push_back(reihe("Renndauer", {dauer}));
    }
    zeilen.emplace_back(zusatz_ende);
    return zeilen;
}

std::optional<wettkampf_zusatz> zusatz_lesen(std::span<const std::string> zeilen) {
    wettkampf_zusatz z;
    auto zeile = std::find_if(zeilen.begin(), zeilen.end(),
                              [](const std::string& eine) { return eine.starts_with(kopf_anfang); });
    if (zeile == zeilen.end()) {
        return z;
    }
    for (++zeile; zeile != zeilen.end() && gekuerzt(*zeile) != zusatz_ende; ++zeile) {
        if (!zeile_lesen(z, *zeile)) {
            return std::nullopt;
        }
    }
    z.vorhanden = true;
    return zeile == zeilen.end() ? std::nullopt : std::optional(z);
}

}  // namespace tarvel
