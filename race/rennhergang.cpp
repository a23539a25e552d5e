#include "race/rennhergang.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <utility>

#include "core/einstellungswerte.h"
#include "core/protokollzeile.h"
#include "core/spuren.h"
#include "hardware/ereignisse.h"

namespace tarvel {
namespace {

constexpr std::size_t alle_max = 500'000;
constexpr std::int64_t zahl_max = std::int64_t{1} << 50;  // sums of a few of them stay numbers
constexpr zeit_ms uhr_fremd_ms = 1000;                    // a stamp from before the window opened is of another race
constexpr zeit_ms wiederholt_ms = 300;                    // a board tells a contact that is held again and again

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

int spur_des_ereignisses(std::int64_t art) {
    for (const int spur : alle_spuren) {
        if (art == art::rundenzaehlung[spur] || art == art::tanken_ein[spur] || art == art::tanken_aus[spur] ||
            art == art::fahrertaster[spur] ||
            (art >= erste_zwischenzeit && art < erste_zwischenzeit + sektorsensoren_max &&
             (art - erste_zwischenzeit) / 2 + 1 == spur)) {
            return spur;
        }
    }
    return 0;
}

/// What lasts, from its beginning to its end.
class dauern {
public:
    void ansehen(geschehen& g) {
        const bool alles = g.was == vorgang::ende || g.was == vorgang::gruen;
        for (const int spur : alle_spuren) {
            const bool seine = spur == g.spur;
            if (alles || (seine && (g.was == vorgang::strom_an || g.was == vorgang::ziel))) {
                schliessen(strom_[spur], g.seit_gruen);
            }
            if (alles || g.was == vorgang::pause || (seine && endet_tanken(g.was))) {
                schliessen(tank_[spur], g.seit_gruen);
            }
        }
        if (alles || g.was == vorgang::weiter) {
            schliessen(pause_, g.seit_gruen);
        }
        if (g.was == vorgang::pause) {
            pause_ = &g;
        } else if (g.was == vorgang::strom_aus && strom_[g.spur] == nullptr) {
            strom_[g.spur] = &g;
        } else if (g.was == vorgang::tankt) {
            tank_[g.spur] = &g;
        }
    }
    void abschliessen(zeit_ms schluss) {
        schliessen(pause_, schluss);
        for (const int spur : alle_spuren) {
            schliessen(strom_[spur], schluss);
            schliessen(tank_[spur], schluss);
        }
    }

private:
    static bool endet_tanken(vorgang was) {
        return was == vorgang::voll || was == vorgang::tank_ende || was == vorgang::tankt || was == vorgang::ziel;
    }
    static void schliessen(geschehen*& offen, zeit_ms bis) {
        if (offen != nullptr) {
            offen->bis = bis;
        }
        offen = nullptr;
    }

    geschehen* pause_ = nullptr;
    spuren<geschehen*> strom_{};
    spuren<geschehen*> tank_{};
};

}  // namespace

class hergangsleser {
public:
    explicit hergangsleser(rennhergang& h) : h_(h) {}

    void zeile(std::string_view text) {
        const protokollsatz satz = zerlegen(text);
        if (satz.ist_kopfzeile()) {
            kopfzeile(satz.rest);
        } else if (satz.ist_entscheidung()) {
            entscheidung(satz.rest);
        } else {
            tat(satz.wort, satz.rest, satz.tiefe == 0);
        }
    }

    /// When each thing was, and how long it lasted.
    void abschliessen() {
        h_.hat_gruen = gruen_.has_value();
        for (geschehen& g : h_.alle) {
            zeit_setzen(g);
        }
        std::stable_sort(h_.alle.begin(), h_.alle.end(),
                         [](const geschehen& a, const geschehen& b) { return a.seit_gruen < b.seit_gruen; });
        dauern d;
        for (geschehen& g : h_.alle) {
            d.ansehen(g);
        }
        d.abschliessen(h_.dauer());
    }

    /// When it was, as far as the green light is known.
    void zeit_setzen(geschehen& g) const {
        const start beginn = gruen_.value_or(start{});
        const bool gestempelt = gruen_.has_value() && g.stempel != geschehen::keine &&
                                g.stempel - beginn.stempel > -beginn.zeit - uhr_fremd_ms;
        g.seit_gruen = gestempelt ? g.stempel - beginn.stempel : g.zeit - beginn.zeit;
        if (bis_stempel(g)) {
            g.bis = g.wert - beginn.stempel;
        }
        if (g.stempel != geschehen::keine) {
            g.stempel += verschoben_;
        }
    }

private:
    struct start {
        zeit_ms stempel = 0;
        zeit_ms zeit = 0;
    };
    struct wiederholung {
        std::optional<std::size_t> platz;
        zeit_ms zeit = 0;
    };

    static std::optional<std::int64_t> zahl(std::string_view& rest) {
        const std::optional<std::int64_t> gelesen = als_zahl(naechstes_wort(rest));
        return gelesen && *gelesen >= -zahl_max && *gelesen <= zahl_max ? gelesen : std::nullopt;
    }

    static spuren<int> wie_begonnen() {
        spuren<int> jeder;
        for (const int spur : alle_spuren) {
            jeder[spur] = spur;
        }
        return jeder;
    }

    geschehen& anhaengen(vorgang was, int spur) {
        h_.alle.push_back({.was = was, .spur = spur, .fahrer = spur == 0 ? 0 : fahrer_[spur], .zeit = zeit_});
        return h_.alle.back();
    }

    void kopfzeile(std::string_view text) {
        const std::string_view ganze = text;
        if (naechstes_wort(text) == "Korrektur") {
            anhaengen(vorgang::korrektur, 0).text = ganze;
        }
    }

    void entscheidung(std::string_view text) {
        const std::string_view wort = naechstes_wort(text);
        const auto form = std::find_if(vermerkformen.begin(), vermerkformen.end(),
                                       [&](const vermerkform& f) { return f.wort == wort; });
        if (form == vermerkformen.end()) {
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
    }

    void einordnen(geschehen& g) {
        if (g.stempel != geschehen::keine) {
            g.stempel -= verschoben_;
            stempel_der_tat_ = g.stempel;
        } else if (stempel_der_tat_) {  // what follows from a crossing that was told late happened with it
            g.stempel = *stempel_der_tat_;
        }
        if (bis_stempel(g)) {
            g.wert -= verschoben_;
        }
        if (g.was == vorgang::gruen && !gruen_) {
            gruen_ = {g.stempel, zeit_};
        } else if (g.was == vorgang::fruehstart) {
            nach_pause_[g.spur] = false;
        } else if (g.was == vorgang::strafe && g.nummer == 1) {
            nach_pause_[g.spur] = true;
        } else if (g.was == vorgang::runde) {
            letzte_runde_[g.spur] = g.nummer;
        } else if (g.was == vorgang::leer && g.nummer == static_cast<int>(leer_aktion::stromunterbrechung)) {
            g.wert = letzte_runde_[g.spur];
        } else if (g.ist_abgelehnt()) {
            g.nach_pause = nach_pause_[g.spur];
        }
    }

    /// `aussen`: it does not lie in another, where answers look alike.
    void tat(std::string_view name, std::string_view rest, bool aussen) {
        const auto* const befehl = std::find(std::begin(hergang_befehle), std::end(hergang_befehle), name);
        const bool ist_befehl = befehl != std::end(hergang_befehle);
        constexpr std::array<std::string_view, 9> bekannte{"ereignis",   "jetzt",       "ueberfahrt",  "taste",   "u",
                                                           "ampeltaste", "verschieben", "nachruecken", "verloren"};
        if (!aussen && !ist_befehl && std::find(bekannte.begin(), bekannte.end(), name) == bekannte.end()) {
            return;
        }
        zeit_ = zahl(rest).value_or(zeit_);
        if (name == "u") {
            return;
        }
        stempel_der_tat_.reset();
        if (ist_befehl) {
            anhaengen(vorgang::befehl, 0).nummer = std::distance(std::begin(hergang_befehle), befehl);
            if (name == "umsetzen") {
                umsetzen(rest);
            }
        } else if (name == "ereignis" || name == "jetzt" || name == "ueberfahrt") {
            geraet(zahl(rest).value_or(-1));
        } else if (name == "verschieben") {
            verschieben(zahl(rest).value_or(0));
        } else if (name == "nachruecken") {
            nachruecken(zahl(rest).value_or(0));
        } else if (name == "taste" || name == "ampeltaste") {
            taste(zahl(rest).value_or(0));
        } else if (name == "verloren") {
            anhaengen(vorgang::verloren, 0);
        }
    }

    void umsetzen(std::string_view rest) {
        const spuren<int> vorher = fahrer_;
        for (const int spur : alle_spuren) {
            const std::int64_t von = zahl(rest).value_or(0);
            fahrer_[spur] = von >= 1 && von <= spuren_max ? vorher[static_cast<int>(von)] : fahrer_[spur];
        }
    }

    void verschieben(zeit_ms um) { verschoben_ = std::clamp(verschoben_ + um, -zahl_max, zahl_max); }

    /// What crossings have been stamped with is right already.
    void nachruecken(zeit_ms um) {
        constexpr int so_oft_hoechstens = 1000;  // in a log that nobody has damaged it is a few times
        if (++nachgerueckt_ > so_oft_hoechstens) {
            return;
        }
        verschieben(um);
        for (geschehen& g : h_.alle) {
            g.stempel -= g.spur != 0 && g.stempel != geschehen::keine ? um : 0;
        }
    }

    void taste(std::int64_t code) {
        const std::vector<tastenzeile>& zeilen = tastenzeilen();
        const auto treffer = std::find_if(zeilen.begin(), zeilen.end(), [&](const tastenzeile& t) {
            return code != tastenbelegung::keine_taste && h_.kopf->belegung.taste(t.zeile) == code;
        });
        const bool belegt = treffer != zeilen.end();
        geschehen& g = anhaengen(vorgang::taste, belegt ? treffer->spur : 0);
        g.nummer = code;
        g.wert = belegt ? treffer->zeile : 0;
    }

    void geraet(std::int64_t art) {
        if (art < 0 || art >= ereignis_tabelle::zeilen_anzahl) {
            return;
        }
        wiederholung& w = zuletzt_.at(static_cast<std::size_t>(art));
        if (w.platz && zeit_ - w.zeit <= wiederholt_ms) {
            ++h_.alle[*w.platz].wert;
        } else {
            w.platz = h_.alle.size();
            geschehen& g = anhaengen(vorgang::geraet, spur_des_ereignisses(art));
            g.nummer = art;
            g.wert = 1;
        }
        w.zeit = zeit_;
    }

    rennhergang& h_;
    zeit_ms zeit_ = 0;
    std::optional<zeit_ms> stempel_der_tat_;
    std::optional<start> gruen_;  ///< its stamp, like all until the end, by the clock as the log began
    zeit_ms verschoben_ = 0;      ///< what the clock has been moved by since
    int nachgerueckt_ = 0;        ///< so often without the crossings
    spuren<int> fahrer_ = wie_begonnen();
    spuren<bool> nach_pause_{};  ///< the lane's last penalty was that of a pause
    spuren<std::int64_t> letzte_runde_{};
    std::array<wiederholung, ereignis_tabelle::zeilen_anzahl> zuletzt_{};
};

namespace {

/// Reads up to the end of the head.
std::optional<protokollkopf> kopf_aus(protokollleser& zeilen) {
    constexpr std::size_t zeilen_max = 20'000;
    std::vector<std::string_view> gelesen;
    for (auto zeile = zeilen.zeile(); zeile && zeile->starts_with('#') && gelesen.size() < zeilen_max;
         zeile = zeilen.zeile()) {
        gelesen.push_back(*zeile);
        if (*zeile == "# Anfang") {
            std::optional<gelesener_kopf> kopf = kopf_lesen(gelesen);
            return kopf ? std::optional(std::move(kopf->kopf)) : std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace

std::string rennhergang::fahrername(const geschehen& g) const {
    return kopf && g.fahrer > 0 && kopf->param.spur_aktiv[g.fahrer] ? kopf->param.fahrer_name[g.fahrer] : "";
}

std::vector<geschehen> rennhergang::abgelehnte(int spur) const {
    std::vector<geschehen> treffer;
    std::copy_if(alle.begin(), alle.end(), std::back_inserter(treffer),
                 [spur](const geschehen& g) { return g.ist_abgelehnt() && (spur == 0 || g.spur == spur); });
    return treffer;
}

zeit_ms rennhergang::pausen() const {
    return std::accumulate(alle.begin(), alle.end(), zeit_ms{0}, [](zeit_ms summe, const geschehen& g) {
        return summe + (g.was == vorgang::weiter ? g.wert : 0);
    });
}

zeit_ms rennhergang::dauer() const {
    return alle.empty() ? 0 : alle.back().seit_gruen;
}

std::optional<protokollkopf> hergang_kopf(std::string_view anfang) {
    protokollleser zeilen(anfang);
    return kopf_aus(zeilen);
}

rennhergang hergang_lesen(std::string_view inhalt) {
    rennhergang h;
    protokollleser zeilen(inhalt);
    h.kopf = kopf_aus(zeilen);
    if (!h.kopf) {
        return h;
    }
    hergangsleser l(h);
    for (auto zeile = zeilen.zeile(); zeile && h.alle.size() < alle_max; zeile = zeilen.zeile()) {
        l.zeile(*zeile);
    }
    h.ganz = zeilen.vollstaendig();
    l.abschliessen();
    return h;
}

hergangsmitleser::hergangsmitleser(std::string_view bisher) {
    protokollleser zeilen(bisher);
    hergang_.kopf = kopf_aus(zeilen);
    if (!hergang_.kopf) {
        return;
    }
    leser_ = std::make_unique<hergangsleser>(hergang_);
    for (auto eine = zeilen.zeile(); eine; eine = zeilen.zeile()) {
        leser_->zeile(*eine);
    }
}

hergangsmitleser::~hergangsmitleser() = default;

void hergangsmitleser::zeile(std::string_view geschrieben) {
    if (leser_ != nullptr && hergang_.alle.size() < alle_max) {
        leser_->zeile(ohne_summe(geschrieben));
    }
}

geschehen hergangsmitleser::an(std::size_t nummer) const {
    geschehen g = hergang_.alle.at(nummer);
    leser_->zeit_setzen(g);
    return g;
}

}  // namespace tarvel
