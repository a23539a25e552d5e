#include "race/hergangsleser.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "core/einstellungstabelle.h"
#include "core/einstellungswerte.h"
#include "core/protokollzeile.h"
#include "core/text.h"

namespace tarvel {
namespace {

constexpr zeit_ms uhr_fremd_ms = 1000;  // a stamp from before the window opened is of another race

using ort = std::int64_t geschehen::*;

struct vermerkform {
    std::string_view wort;
    vorgang was;
    bool mit_spur;
    std::array<ort, 4> zahlen;
};

constexpr ort nummer = &geschehen::nummer;
constexpr ort wert = &geschehen::wert;
constexpr ort grenze = &geschehen::grenze;
constexpr ort stempel = &geschehen::stempel;

constexpr std::array<vermerkform, 21> vermerkformen{{
    {vermerk::gruen, vorgang::gruen, false, {stempel}},
    {vermerk::fruehstart, vorgang::fruehstart, true, {stempel}},
    {vermerk::runde, vorgang::runde, true, {nummer, wert, stempel}},
    {vermerk::abgelehnt, vorgang::abgelehnt, true, {nummer, stempel, wert, grenze}},
    {vermerk::abzug, vorgang::abzug, true, {nummer}},
    {vermerk::sektor, vorgang::sektor, true, {nummer, wert}},
    {vermerk::platz, vorgang::platz, true, {nummer}},
    {vermerk::pause, vorgang::pause, false, {stempel}},
    {vermerk::weiter, vorgang::weiter, false, {stempel, wert}},
    {vermerk::durchfahrt, vorgang::durchfahrt, true, {stempel}},
    {vermerk::schalter, vorgang::schalter, false, {}},
    {vermerk::strafe, vorgang::strafe, true, {wert, nummer}},
    {vermerk::strom_aus, vorgang::strom_aus, true, {}},
    {vermerk::strom_an, vorgang::strom_an, true, {}},
    {vermerk::leer, vorgang::leer, true, {nummer}},
    {vermerk::voll, vorgang::voll, true, {}},
    {vermerk::tankt, vorgang::tankt, true, {nummer}},
    {vermerk::tank_ende, vorgang::tank_ende, true, {nummer}},
    {vermerk::ziel, vorgang::ziel, true, {}},
    {vermerk::letzte, vorgang::letzte, false, {stempel}},
    {vermerk::ende, vorgang::ende, false, {stempel, nummer}},
}};

/// What the second number of a refusal is: a stamp until which, which moves with all others.
bool bis_stempel(const geschehen& g) {
    constexpr std::array gruende{ablehnung::sperre, ablehnung::volltanken, ablehnung::tankstrafe, ablehnung::prellen};
    return g.ist_abgelehnt() && g.wert != 0 && std::find(gruende.begin(), gruende.end(), g.grund()) != gruende.end();
}

bool ist_wahr(const std::vector<std::string>& einstellungen, std::size_t zeile) {
    constexpr std::size_t hinter_dem_kopf = 1;  // a blank line
    return zeile + hinter_dem_kopf < einstellungen.size() &&
           einstellungen[zeile + hinter_dem_kopf] == einstellungen[z::wahr_wort + hinter_dem_kopf];
}

}  // namespace

hergangsleser::hergangsleser(rennhergang& h)
    : h_(h), ziel_(h.kopf->param.renn_ziel.zahl()), schalter_(ist_wahr(h.kopf->einstellungen, z::chaos_schalter)) {
    nachlauf_ = h.kopf->param.ist_zeitrennen() ? !ist_wahr(h.kopf->einstellungen, z::zielmodus_erster)
                                               : ist_wahr(h.kopf->einstellungen, z::runde_beenden);
    for (const int spur : alle_spuren) {
        fahrer_[spur] = spur;
    }
}

void hergangsleser::zeile(std::string_view text) {
    const protokollsatz satz = zerlegen(text);
    if (satz.ist_kopfzeile()) {
        kopfzeile(satz.rest);
    } else if (satz.ist_entscheidung()) {
        entscheidung(satz.rest);
    } else if (satz.tiefe > 0 && satz.wort == "datum") {
        std::string_view rest = satz.rest;
        datum(zahl(rest).value_or(0));
    } else {
        tat(satz.wort, satz.rest, satz.tiefe == 0);
    }
}

void hergangsleser::datum(std::int64_t antwort) {
    if (std::exchange(endet_, false)) {
        const std::int64_t uhrzeit = std::abs(antwort) % 1'000'000;
        h_.ende =
            ziffern(uhrzeit / 10'000, 2) + ":" + ziffern(uhrzeit / 100 % 100, 2) + ":" + ziffern(uhrzeit % 100, 2);
    }
}

void hergangsleser::zeiten_setzen() {
    for (std::optional<offene>& o : offen_) {
        if (o) {
            h_.alle.push_back(std::move(o->was));
        }
    }
    h_.hat_gruen = gruen_.has_value();
    for (geschehen& g : h_.alle) {
        zeit_setzen(g);
    }
    std::stable_sort(h_.alle.begin(), h_.alle.end(),
                     [](const geschehen& a, const geschehen& b) { return a.seit_gruen < b.seit_gruen; });
}

void hergangsleser::zeit_setzen(geschehen& g) const {
    const start beginn = gruen_.value_or(start{});
    const bool gestempelt =
        gruen_.has_value() && g.stempel != geschehen::keine && g.stempel - beginn.stempel > -beginn.zeit - uhr_fremd_ms;
    g.seit_gruen = gestempelt ? g.stempel - beginn.stempel : g.zeit - beginn.zeit;
    if (bis_stempel(g)) {
        g.bis = g.wert - beginn.stempel;
    }
    if (g.stempel != geschehen::keine) {
        g.stempel += verschoben_;
    }
}

std::optional<std::int64_t> hergangsleser::zahl(std::string_view& rest) {
    const std::optional<std::int64_t> gelesen = als_zahl(naechstes_wort(rest));
    return gelesen && *gelesen >= -zahl_max && *gelesen <= zahl_max ? gelesen : std::nullopt;
}

geschehen& hergangsleser::anhaengen(vorgang was, int spur) {
    h_.alle.push_back({.was = was, .spur = spur, .fahrer = spur == 0 ? 0 : fahrer_[spur], .zeit = zeit_});
    return h_.alle.back();
}

void hergangsleser::kopfzeile(std::string_view text) {
    const std::string_view ganze = text;
    if (naechstes_wort(text) == "Korrektur") {
        anhaengen(vorgang::korrektur, 0).text = ganze;
    }
}

void hergangsleser::entscheidung(std::string_view text) {
    const std::string_view wort = naechstes_wort(text);
    const auto form =
        std::find_if(vermerkformen.begin(), vermerkformen.end(), [&](const vermerkform& f) { return f.wort == wort; });
    if (form == vermerkformen.end() || (form->was == vorgang::letzte && !nachlauf_)) {
        return;
    }
    geschehen g{.was = form->was, .zeit = zeit_};
    if (form->mit_spur) {
        const std::int64_t spur = zahl(text).value_or(0);
        if (spur < 1 || spur > spuren_max) {
            return;
        }
        g.spur = static_cast<int>(spur);
        g.fahrer = fahrer_[g.spur];
    }
    for (const ort platz : form->zahlen) {
        if (platz == nullptr) {
            break;
        }
        const std::optional<std::int64_t> gelesen = zahl(text);
        if (!gelesen) {
            return;
        }
        g.*platz = *gelesen;
    }
    einordnen(g);
    h_.alle.push_back(std::move(g));
    ankunft(h_.alle.back());
}

/// Behind the end the race notes no finish any more: there it is the lap that the end has cut short, or that reaches
/// the target.
void hergangsleser::ankunft(const geschehen& runde) {
    constexpr zeit_ms takt_ms = 1;  // the tick that ended the race may have read its clock a moment later
    if (!runde.nach_ende) {
        return;
    }
    const bool rollte = std::exchange(gerollt_[runde.spur], false);
    const bool angebrochen = runde.stempel >= ende_stempel_ - takt_ms && !rollte;
    if (!angebrochen && !ist_letzte(runde.nummer)) {
        return;
    }
    geschehen angekommen{.was = vorgang::ziel, .spur = runde.spur, .fahrer = runde.fahrer, .zeit = runde.zeit};
    angekommen.stempel = runde.stempel;
    h_.alle.push_back(std::move(angekommen));
}

void hergangsleser::einordnen(geschehen& g) {
    if (g.stempel != geschehen::keine) {
        g.stempel -= verschoben_;
        stempel_der_tat_ = g.stempel;
    } else if (stempel_der_tat_) {  // what follows from a crossing that was told late happened with it
        g.stempel = *stempel_der_tat_;
    }
    entschieden(g);
    if (bis_stempel(g)) {
        g.wert -= verschoben_;
    }
    if (g.ist_abgelehnt()) {
        g.nach_pause = nach_pause_[g.spur];
    }
    switch (g.was) {
        case vorgang::gruen:
            gruen_ = gruen_.value_or(start{g.stempel, zeit_});
            gerollt_.fuellen(false);
            break;
        case vorgang::pause:
            weiter_.reset();
            break;
        case vorgang::durchfahrt:
            gerollt_[g.spur] = true;
            break;
        case vorgang::weiter:
            gerollt_.fuellen(false);
            weiter_ = g.zeit;
            break;
        case vorgang::fruehstart:
            nach_pause_[g.spur] = false;
            break;
        case vorgang::strafe:
            strafe(g);
            break;
        case vorgang::runde:
            letzte_runde_[g.spur] = g.nummer;
            g.grenze = g.nummer > 0 ? zeitstrafe_[g.fahrer] : 0;
            g.nach_ende = zu_ende_;
            break;
        case vorgang::leer:
            leer(g);
            break;
        case vorgang::ende:
            weiter_.reset();
            endet_ = true;
            zu_ende_ = true;
            ende_stempel_ = g.stempel;
            break;
        default:
            break;
    }
}

/// Seconds without power, or on the total and as thousandths on each later lap.
void hergangsleser::strafe(const geschehen& g) {
    if (g.nummer == 1) {
        nach_pause_[g.spur] = true;
    } else {
        constexpr std::int64_t hoechstens_s = 1'000'000;  // whatever a log says, their sum is a number
        zeitstrafe_[g.fahrer] += std::clamp<std::int64_t>(g.wert, 0, hoechstens_s);
    }
}

void hergangsleser::leer(geschehen& g) const {
    if (g.nummer == static_cast<int>(leer_aktion::stromunterbrechung)) {
        g.wert = letzte_runde_[g.spur];
        g.grenze = ist_letzte(g.wert) ? 1 : 0;
    }
}

void hergangsleser::erzaehlt(int spur, zeit_ms stempel) {
    const bool spaet = stempel != geschehen::keine && pause_seit_ && stempel < *pause_seit_;
    if (!pause_seit_ || spaet || !h_.kopf->param.spur_aktiv[spur]) {
        return;
    }
    geschehen g{.was = vorgang::abgelehnt, .spur = spur, .fahrer = fahrer_[spur], .zeit = zeit_, .stempel = stempel};
    g.nummer = static_cast<int>(ablehnung::pause);
    const std::optional<offene>& davor = offen_[spur];
    if (!davor || zeit_ - davor->was.zeit >= prellen_ms) {
        offen_[spur] = {std::move(g), taten_};
    }
}

/// What is decided while a crossing is told is about the one before it.
void hergangsleser::entschieden(const geschehen& g) {
    if (g.was == vorgang::pause) {
        pause_seit_ = g.stempel;
    } else if (g.was == vorgang::weiter || g.was == vorgang::gruen || g.was == vorgang::ende) {
        pause_seit_.reset();
        offen_.fuellen({});
    } else if (g.was == vorgang::runde || g.was == vorgang::durchfahrt || g.ist_abgelehnt()) {
        std::optional<offene>& o = offen_[g.spur];
        if (o && (o->tat != taten_ || o->was.stempel == g.stempel)) {
            o.reset();
        }
    }
}

bool hergangsleser::ist_letzte(std::int64_t runde) const {
    return !h_.kopf->param.ist_zeitrennen() && runde == ziel_;
}

}  // namespace tarvel
