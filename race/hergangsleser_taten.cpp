#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "race/hergangsleser.h"
#include "race/zeitgeber.h"

namespace tarvel {
namespace {

constexpr zeit_ms wiederholt_ms = 300;  // a board tells a contact that is held again and again

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

}  // namespace

void hergangsleser::tat(std::string_view name, std::string_view rest, bool aussen) {
    const auto* const befehl = std::find(std::begin(hergang_befehle), std::end(hergang_befehle), name);
    const bool ist_befehl = befehl != std::end(hergang_befehle);
    if (name == "start") {
        zeitstrafe_ = {};
    }
    zu_ende_ = zu_ende_ && name != "fortsetzen" && name != "start";
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
    ++taten_;
    if (ist_befehl) {
        anhaengen(vorgang::befehl, 0).nummer = std::distance(std::begin(hergang_befehle), befehl);
        if (name == "umsetzen") {
            umsetzen(rest);
        } else if (name == "fortsetzen") {
            ziel_ = zahl(rest).value_or(ziel_);
        } else if (name == "pause") {
            pause_verlangt(true);
        }
    } else if (name == "ereignis" || name == "jetzt" || name == "ueberfahrt") {
        const std::int64_t was = zahl(rest).value_or(-1);
        geraet(was);
        const auto lauf = std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), was);
        if (lauf != art::rundenzaehlung.end()) {
            const std::optional<std::int64_t> gestempelt = zahl(rest);
            erzaehlt(static_cast<int>(lauf - art::rundenzaehlung.begin()) + 1,
                     gestempelt ? *gestempelt - verschoben_ : geschehen::keine);
        }
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

void hergangsleser::umsetzen(std::string_view rest) {
    const spuren<int> vorher = fahrer_;
    for (const int spur : alle_spuren) {
        const std::int64_t von = zahl(rest).value_or(0);
        fahrer_[spur] = von >= 1 && von <= spuren_max ? vorher[static_cast<int>(von)] : fahrer_[spur];
    }
}

void hergangsleser::verschieben(zeit_ms um) {
    verschoben_ = std::clamp(verschoben_ + um, -zahl_max, zahl_max);
}

void hergangsleser::nachruecken(zeit_ms um) {
    constexpr int so_oft_hoechstens = 1000;  // in a log that nobody has damaged it is a few times
    if (++nachgerueckt_ > so_oft_hoechstens) {
        return;
    }
    verschieben(um);
    for (geschehen& g : h_.alle) {
        g.stempel -= g.spur != 0 && g.stempel != geschehen::keine ? um : 0;
    }
}

void hergangsleser::taste(std::int64_t code) {
    const std::vector<tastenzeile>& zeilen = tastenzeilen();
    const auto treffer = std::find_if(zeilen.begin(), zeilen.end(), [&](const tastenzeile& t) {
        return code != tastenbelegung::keine_taste && h_.kopf->belegung.taste(t.zeile) == code;
    });
    const bool belegt = treffer != zeilen.end();
    geschehen& g = anhaengen(vorgang::taste, belegt ? treffer->spur : 0);
    g.nummer = code;
    g.wert = belegt ? treffer->zeile : 0;
    if (belegt && treffer->spur != 0 && treffer->zeile == art::rundenzaehlung[treffer->spur]) {
        erzaehlt(treffer->spur, geschehen::keine);
    } else if (g.wert == tastenbelegung::zeile_chaos || art::spur_des_fahrertasters(static_cast<int>(g.wert)) != 0) {
        pause_verlangt(false);
    }
}

void hergangsleser::pause_verlangt(bool befehl) {
    constexpr zeit_ms takt_ms = 10;  // the tick that has let one in may have come a moment earlier
    const bool gesperrt = weiter_ && zeit_ - *weiter_ < dauer_ms(pausensperre).count() - takt_ms;
    if (gesperrt && (befehl || !schalter_) && std::exchange(verlangt_, zeit_) != zeit_) {
        anhaengen(vorgang::pause_verlangt, 0);
    }
}

void hergangsleser::geraet(std::int64_t art) {
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
        if (art == art::chaostaster) {
            pause_verlangt(false);
        }
    }
    w.zeit = zeit_;
}

}  // namespace tarvel
