#include "hardware/ereignisse.h"

#include <algorithm>
#include <iterator>

namespace tarvel {
namespace {

struct eingangsart {
    const char* name;
    std::size_t werte;
};

/// Index is the entry.
constexpr std::array<eingangsart, 9> eingangsarten{{{"ereignis", 2},
                                                    {"jetzt", 2},
                                                    {"ueberfahrt", 2},
                                                    {"weg", 1},
                                                    {"ruhe", 2},
                                                    {"knopf", 1},
                                                    {"taster", 1},
                                                    {"nachhall", 1},
                                                    {"zeile", 6}}};

}  // namespace

void ereignis_tabelle::mitschreiben(mitschrift& protokoll) {
    static_assert(eingangsarten.size() == eingaenge);
    protokoll_ = &protokoll;
    for (std::size_t i = 0; i < eingaenge; ++i) {
        const eingangsart& art = eingangsarten.at(i);
        eingang_.at(i) = protokoll.eingang(
            art.name, art.werte, [this, i](const mitschrift::werte& w) { ausfuehren(static_cast<eingang>(i), w); });
    }
}

void ereignis_tabelle::tun(eingang was, std::int64_t erstes, std::int64_t zweites) {
    if (protokoll_ != nullptr) {
        protokoll_->geschieht(eingang_.at(static_cast<std::size_t>(was)), {erstes, zweites});
    } else {
        ausfuehren(was, {erstes, zweites});
    }
}

void ereignis_tabelle::stand_mitschreiben() {
    for (int nummer = 0; nummer < zeilen_anzahl; ++nummer) {
        const ereignis_zeile& z = (*this)[nummer];
        if (z.aktiv || z.pegel || z.pegel_ruhe || z.ereignis_zeit != 0) {
            protokoll_->geschieht(
                eingang_.at(static_cast<std::size_t>(eingang::zeile)),
                {nummer, z.aktiv ? 1 : 0, z.pegel ? 1 : 0, z.pegel_ruhe ? 1 : 0, z.ereignis_zeit, z.verschoben});
        }
    }
    tun(eingang::nachhall, chaos_at_zaehler);
    tun(eingang::taster, chaos_taster_gedrueckt ? 1 : 0);
}

void ereignis_tabelle::ausfuehren(eingang was, const mitschrift::werte& w) {
    const std::int64_t erstes = protokoll_stempel(w[0]);
    const std::int64_t zweites = protokoll_stempel(w[1]);
    const auto nummer = static_cast<ereignis_art>(std::clamp<std::int64_t>(erstes, 0, zeilen_anzahl - 1));
    switch (was) {
        case eingang::melden:
            if (zweites >= gilt_ab) {
                setzen(nummer, zweites);
            } else {
                verwerfen(nummer, zweites, pausen_anzahl_ > 0 ? verwurf::pause : verwurf::vor_dem_start);
            }
            break;
        case eingang::setzen:
            setzen(nummer, zweites);
            break;
        case eingang::ueberfahrt:
            ueberfahrt_aufnehmen(nummer, zweites);
            break;
        case eingang::weg:
            (*this)[nummer].aktiv = false;
            break;
        case eingang::ruhe:
            (*this)[nummer].pegel = (*this)[nummer].pegel_ruhe = zweites != 0;
            break;
        case eingang::knopf:
            chaos_fahrer[std::clamp(nummer, 1, spuren_max)] = true;
            break;
        case eingang::taster:
            chaos_taster_gedrueckt = erstes != 0;
            break;
        case eingang::nachhall:
            chaos_at_zaehler = static_cast<int>(erstes);
            break;
        case eingang::zeile:
            (*this)[nummer] = {w[1] != 0, w[2] != 0, w[3] != 0, protokoll_stempel(w[4]), protokoll_stempel(w[5]),
                               false};
            break;
    }
}

void ereignis_tabelle::setzen(ereignis_art nummer, zeit_ms stempel) {
    if (steht_seit_) {  // no tick has taken what was there
        zeile_verwerfen(nummer);
    }
    ereignis_zeile& zeile = (*this)[nummer];
    zeile.ereignis_zeit = stempel;
    zeile.verschoben = 0;
    zeile.aktiv = true;
    zeile.vorgemerkt = false;
    zeile.spaet_moeglich = false;
}

void ereignis_tabelle::ueberfahrt_setzen(ereignis_art nummer, zeit_ms stempel, zeit_ms verschoben) {
    setzen(nummer, stempel);
    (*this)[nummer].verschoben = verschoben;
    (*this)[nummer].spaet_moeglich = true;
}

void ereignis_tabelle::verwerfen(ereignis_art nummer, zeit_ms stempel, verwurf grund) const {
    const auto lauf = std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), nummer);
    if (lauf != art::rundenzaehlung.end() && verworfen) {
        verworfen(static_cast<int>(lauf - art::rundenzaehlung.begin()) + 1, stempel, grund);
    }
}

void ereignis_tabelle::zeile_verwerfen(ereignis_art nummer) {
    ereignis_zeile& zeile = (*this)[nummer];
    if (zeile.aktiv && !zeile.vorgemerkt) {
        verwerfen(nummer, zeile.ereignis_zeit, steht_seit_ ? verwurf::pause : verwurf::vor_dem_start);
    }
    zeile.aktiv = false;
}

std::optional<zeit_ms> ereignis_tabelle::verschiebung(zeit_ms stempel) const {
    constexpr zeit_ms uhren_uneinig_ms = 100;  // a car that is let go on the line itself is not one from the pause
    zeit_ms summe = 0;
    for (const pause& p : std::span(pausen_).first(pausen_anzahl_)) {
        if (stempel < p.von) {
            summe += p.bis - p.von;
        } else if (stempel < p.bis - uhren_uneinig_ms) {
            return std::nullopt;
        }
    }
    return summe;
}

void ereignis_tabelle::ueberfahrt_aufnehmen(ereignis_art nummer, zeit_ms stempel) {
    const std::optional<zeit_ms> um = verschiebung(stempel);
    if (!um) {
        verwerfen(nummer, stempel, verwurf::pause);
        return;
    }
    const zeit_ms verschoben = *um;
    stempel += verschoben;
    ereignis_zeile& zeile = (*this)[nummer];
    const auto lauf = std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), nummer);
    if (lauf == art::rundenzaehlung.end() || !steht_seit_ || stempel >= *steht_seit_) {
        ueberfahrt_setzen(nummer, stempel, verschoben);
        return;
    }
    schlange& wartende = schlangen_[static_cast<int>(lauf - art::rundenzaehlung.begin()) + 1];
    if (zeile.aktiv && zeile.ereignis_zeit < stempel) {  // what the pause would count only behind this one
        wartende.einreihen({zeile.ereignis_zeit, zeile.verschoben});
    }
    wartende.einreihen({stempel, verschoben});
}

void ereignis_tabelle::schlange::einreihen(const ueberfahrt& neu) {
    const auto ende = wartende.begin() + static_cast<std::ptrdiff_t>(anzahl);
    const auto ort =
        std::find_if(wartende.begin(), ende, [&](const ueberfahrt& u) { return u.stempel > neu.stempel - prellen_ms; });
    if (anzahl == platz || (ort != ende && ort->stempel < neu.stempel + prellen_ms)) {
        return;
    }
    std::move_backward(ort, ende, std::next(ende));
    *ort = neu;
    ++anzahl;
}

bool ereignis_tabelle::vorlassen(int spur) {
    ereignis_zeile& zeile = (*this)[art::rundenzaehlung[spur]];
    schlange& s = schlangen_[spur];
    if (s.anzahl > 0 && (!zeile.aktiv || s.wartende.front().stempel < zeile.ereignis_zeit)) {
        const schlange::ueberfahrt erste = s.wartende.front();
        std::move(std::next(s.wartende.begin()), s.wartende.begin() + static_cast<std::ptrdiff_t>(s.anzahl),
                  s.wartende.begin());
        --s.anzahl;
        if (zeile.aktiv) {
            s.einreihen({zeile.ereignis_zeit, zeile.verschoben});
        }
        zeile.aktiv = true;
        zeile.ereignis_zeit = erste.stempel;
        zeile.verschoben = erste.verschoben;
        zeile.spaet_moeglich = true;
    }
    return zeile.aktiv;
}

void ereignis_tabelle::gelten_lassen(zeit_ms ab, std::optional<zeit_ms> beginn) {
    gilt_ab = ab;
    if (beginn) {
        std::shift_right(pausen_.begin(), pausen_.end(), 1);
        pausen_.front() = {*beginn, ab};
    }
    pausen_anzahl_ = beginn ? std::min(pausen_anzahl_ + 1, pausen_.size()) : 0;
    steht_seit_.reset();
    for (schlange& s : schlangen_) {
        s.anzahl = beginn ? s.anzahl : 0;
        for (schlange::ueberfahrt& u : std::span(s.wartende).first(s.anzahl)) {
            u.verschoben += ab - *beginn;
            u.stempel += ab - *beginn;
        }
    }
}

void ereignis_tabelle::ruhe_herstellen() {
    constexpr std::size_t zeilen = 42;
    gelten_lassen(std::numeric_limits<zeit_ms>::min());  // the next race may go by another clock
    for (ereignis_zeile& zeile : std::span(zeilen_).first(zeilen)) {
        zeile.aktiv = false;
        zeile.pegel = zeile.pegel_ruhe;
    }
}

void ereignis_tabelle::stempel_verschieben(zeit_ms um) {
    uhr_nachruecken(um);
    for (schlange& s : schlangen_) {
        for (schlange::ueberfahrt& u : s.wartende) {
            u.stempel += um;
        }
    }
    for (ereignis_zeile& zeile : zeilen_) {
        zeile.ereignis_zeit += um;
    }
}

void ereignis_tabelle::uhr_nachruecken(zeit_ms um) {
    messzeit += um;
    gilt_ab += gilt_ab == std::numeric_limits<zeit_ms>::min() ? 0 : um;
    if (steht_seit_) {
        *steht_seit_ += um;
    }
    for (pause& p : pausen_) {
        p.von += um;
        p.bis += um;
    }
}

void ereignis_tabelle::vergessen() {
    zeilen_ = {};
    pausen_anzahl_ = 0;
    schlangen_ = {};
    steht_seit_.reset();
    messzeit = 0;
    gilt_ab = std::numeric_limits<zeit_ms>::min();
    chaos_at_zaehler = 0;
    chaos_taster_gedrueckt = false;
    chaos_fahrer = {};
}

void ereignis_tabelle::rundenzaehlung_leeren() {
    for (const ereignis_art nummer : art::rundenzaehlung) {
        zeile_verwerfen(nummer);
    }
    for (schlange& s : schlangen_) {
        s.anzahl = steht_seit_ ? s.anzahl : 0;
    }
}

void ereignis_tabelle::spuren_3_4_mitzaehlen() {
    for (const int spur : {1, 2}) {
        const ereignis_zeile& zweiter = (*this)[art::rundenzaehlung[spur + 2]];
        if (zweiter.aktiv) {
            ereignis_zeile& erster = (*this)[art::rundenzaehlung[spur]];
            erster.aktiv = true;
            erster.ereignis_zeit = zweiter.ereignis_zeit;
            erster.verschoben = zweiter.verschoben;
            erster.spaet_moeglich = zweiter.spaet_moeglich;
        }
        schlange& wartende = schlangen_[spur + 2];
        for (const schlange::ueberfahrt& u : std::span(wartende.wartende).first(wartende.anzahl)) {
            schlangen_[spur].einreihen(u);
        }
        wartende.anzahl = 0;
    }
}

void ereignis_tabelle::strecke_leeren() {
    rundenzaehlung_leeren();
    for (ereignis_art nummer = erste_zwischenzeit; nummer < erste_zwischenzeit + sektorsensoren_max; ++nummer) {
        (*this)[nummer].aktiv = false;
    }
}

}  // namespace tarvel
