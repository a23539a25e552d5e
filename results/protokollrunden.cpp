#include "results/protokollrunden.h"

#include <algorithm>
#include <utility>

#include "results/korrekturliste.h"

namespace tarvel {
namespace {

class nachbildung {
public:
    explicit nachbildung(const protokollkopf& kopf) {
        rennen_.ziel = kopf.param.renn_ziel;
        for (const int spur : alle_spuren) {
            if (kopf.param.spur_aktiv[spur]) {
                rennen_.spuren.emplace_back().nummer = spur;
            }
        }
    }

    void geschieht(const geschehen& g) {
        if (g.was == vorgang::weiter) {
            pausen_.push_back(g);
        } else if (g.was == vorgang::runde || g.was == vorgang::abzug) {
            runde(g);
        } else if (g.was == vorgang::korrektur) {
            korrektur_lesen(g.text);
        } else if (g.ist_befehl("fortsetzen")) {
            rennen_ = fertig();
            rennen_.ziel.reset();  // it is another one
            korrekturen_.leeren();
        }
    }

    rennergebnis fertig() { return korrekturen_.angewandt(std::move(rennen_)); }

private:
    /// A lap that was taken off is driven again under its number.
    void runde(const geschehen& g) {
        const auto spur = std::find_if(rennen_.spuren.begin(), rennen_.spuren.end(),
                                       [&g](const auto& s) { return s.nummer == g.spur; });
        if (spur == rennen_.spuren.end()) {
            return;
        }
        auto& runden = spur->runden;
        const bool abzug = g.was == vorgang::abzug;
        const auto bleiben = static_cast<std::size_t>(std::max<std::int64_t>(g.nummer + (abzug ? 1 : 0), 0));
        if (bleiben > runden.size()) {
            rennen_.spuren.erase(spur);  // the log does not tell of all its laps
            return;
        }
        runden.resize(bleiben);
        if (!abzug && g.nummer >= 0) {
            const zeit_ms vorher = runden.empty() ? geschehen::keine : runden.back().stempel;
            runden.push_back({g.wert, {}, gestanden(vorher, g.stempel), g.stempel});
        }
    }

    zeit_ms gestanden(zeit_ms von, zeit_ms bis) const {
        zeit_ms summe = 0;
        for (const geschehen& pause : pausen_) {
            summe += pause.stempel > von && pause.stempel <= bis ? pause.wert : 0;
        }
        return summe;
    }

    void korrektur_lesen(std::string_view text) {
        using weise = korrekturvermerk::weise;
        const auto v = korrekturzeile_lesen(text);
        if (!v || !folge_.gilt(*v, korrekturen_)) {
            return;
        }
        switch (v->wie) {
            case weise::neu:
                korrekturen_.anfuegen({v->was});
                break;
            case weise::dazu:
                korrekturen_.ergaenzen(v->was);
                break;
            case weise::zurueck:
                korrekturen_.zuruecknehmen();
                break;
            case weise::wieder:
                korrekturen_.wiederherstellen();
        }
    }

    rennergebnis rennen_;
    std::vector<geschehen> pausen_;
    korrekturliste korrekturen_;
    korrekturfolge folge_;
};

}  // namespace

std::optional<rennergebnis> protokollrunden(const rennhergang& hergang) {
    if (!hergang.kopf) {
        return std::nullopt;
    }
    nachbildung rennen(*hergang.kopf);
    for (const geschehen& g : hergang.alle) {
        if (g.ist_befehl("umsetzen")) {
            return std::nullopt;
        }
        rennen.geschieht(g);
    }
    return rennen.fertig();
}

void marken_eintragen(rennergebnis& gelesen, const rennergebnis& protokolliert) {
    for (rennergebnis::spur& s : gelesen.spuren) {
        const rennergebnis::spur* andere = protokolliert.auf(s.nummer);
        if (andere == nullptr || andere->runden.size() != s.runden.size()) {
            continue;
        }
        for (std::size_t i = 0; i < s.runden.size(); ++i) {
            const rennergebnis::runde& selbe = andere->runden[i];
            if (selbe.zeit == s.runden[i].zeit) {
                s.runden[i].pause = selbe.pause;
                s.runden[i].nachgetragen = selbe.nachgetragen;
            }
        }
    }
}

}  // namespace tarvel
