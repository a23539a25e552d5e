#include "race/rennhergang.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "core/protokollzeile.h"
#include "core/spuren.h"
#include "race/hergangsleser.h"

namespace tarvel {
namespace {

constexpr std::size_t alle_max = 500'000;

/// What lasts, from its beginning to its end.
class dauern {
public:
    void ansehen(geschehen& g) {
        const bool alles = g.was == vorgang::ende || g.was == vorgang::gruen;
        // a false start has its lane without power beyond the green light
        const bool alle_mit_strom = (alles && g.seit_gruen != 0) || g.ist_befehl("ampel_abbrechen");
        for (const int spur : alle_spuren) {
            const bool seine = spur == g.spur;
            if (alle_mit_strom || (seine && (g.was == vorgang::strom_an || g.was == vorgang::ziel))) {
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

bool geschehen::ist_befehl(std::string_view name) const {
    return was == vorgang::befehl && nummer >= 0 && static_cast<std::size_t>(nummer) < std::size(hergang_befehle) &&
           hergang_befehle[static_cast<std::size_t>(nummer)] == name;
}

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

zeit_ms rennhergang::gefahren_bis() const {
    std::optional<zeit_ms> bis;
    for (const geschehen& g : alle) {
        if (g.was == vorgang::gruen) {
            bis.reset();  // it goes on
        } else if (g.was == vorgang::ende || (bis && (g.was == vorgang::runde || g.was == vorgang::ziel))) {
            bis = g.seit_gruen;
        }
    }
    return bis.value_or(dauer());
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
    l.zeiten_setzen();
    dauern d;
    for (geschehen& g : h.alle) {
        d.ansehen(g);
    }
    d.abschliessen(h.dauer());
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
