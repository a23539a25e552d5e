#include "core/fensterregister.h"

#include <algorithm>
#include <utility>

#include "core/fensterlogik.h"

namespace tarvel {

fensterregister::fenster& fensterregister::an(const fensterlogik& logik) {
    return an(logik.kennung());
}

bool fensterregister::nur_gezaehlt(fenstername name) const {
    return vor_der_stille_ && std::find(mitspieler_.begin(), mitspieler_.end(), name) == mitspieler_.end();
}

void fensterregister::auf_den_schirm(fenstername name, bool offen) {
    if (anzeige_ == nullptr || vor_der_stille_) {
        return;
    }
    if (offen) {
        anzeige_->zeigen(name, an(name).art);
    } else {
        anzeige_->verbergen(name);
    }
}

void fensterregister::stillhalten(std::vector<fenstername> mitspieler) {
    mitspieler_ = std::move(mitspieler);
    vor_der_stille_ = fenster_;
}

void fensterregister::aufleben() {
    const alle_fenster vorher = *vor_der_stille_;
    for (std::size_t i = 0; i < fenster_.size(); ++i) {
        if (nur_gezaehlt(static_cast<fenstername>(i))) {
            fenster_.at(i).offen = vorher.at(i).offen;
        }
    }
    vor_der_stille_.reset();
    for (const fenstername name : mitspieler_) {
        if (ist_offen(name) || vorher.at(static_cast<std::size_t>(name)).offen) {
            auf_den_schirm(name, ist_offen(name));
        }
    }
}

bool fensterregister::beschaeftigt(std::initializer_list<fenstername> ausser) const {
    for (std::size_t i = 0; i < fenster_.size(); ++i) {
        const bool davor = fenster_.at(i).offen && fenster_.at(i).art == anzeige_art::modal;
        if (davor && std::find(ausser.begin(), ausser.end(), static_cast<fenstername>(i)) == ausser.end()) {
            return true;
        }
    }
    return anzeige_ != nullptr && anzeige_->fragt();
}

void fensterregister::laden(fenstername name) {
    fenster& f = an(name);
    if (nur_gezaehlt(name)) {
        return;
    }
    if (f.logik != nullptr && !std::exchange(f.geladen, true)) {
        f.logik->laden();
    }
}

void fensterregister::zeigen(fenstername name, anzeige_art art) {
    laden(name);
    if (!an(name).geladen && !nur_gezaehlt(name)) {
        return;  // unknown, or closed again by its own load handler
    }
    an(name).offen = true;
    an(name).art = art;
    auf_den_schirm(name, true);
}

void fensterregister::verbergen(fenstername name) {
    if (std::exchange(an(name).offen, false)) {
        auf_den_schirm(name, false);
    }
}

void fensterregister::entladen(fenstername name) {
    fenster& f = an(name);
    if (nur_gezaehlt(name)) {
        f.offen = false;
        return;
    }
    if (!f.geladen) {
        return;
    }
    const bool war_offen = std::exchange(f.offen, false);
    f.geladen = false;
    f.logik->entladen();
    if (war_offen) {
        auf_den_schirm(name, false);
    }
}

void fensterregister::neu_laden(fenstername name) {
    fenster& f = an(name);
    if (!f.geladen || nur_gezaehlt(name)) {
        return;
    }
    const bool war_offen = f.offen;
    f.geladen = false;
    f.logik->entladen();
    laden(name);
    f.offen = war_offen && f.geladen;
}

void fensterregister::sprache_gewechselt() {
    for (const fenster& f : fenster_) {
        if (f.geladen) {
            f.logik->sprache_gewechselt();
        }
    }
}

bool fensterregister::sprache_wechselbar() const {
    constexpr std::array am_abend{fenstername::wettkampf1, fenstername::wettkampf2, fenstername::w_auswertung,
                                  fenstername::Tagesrennen};
    return std::none_of(am_abend.begin(), am_abend.end(), [this](fenstername name) { return ist_offen(name); });
}

void fensterregister::alle_entladen() {
    for (std::size_t i = 0; i < fenster_.size(); ++i) {
        entladen(static_cast<fenstername>(i));
    }
}

std::vector<sprachliste> fensterregister::sprachdateien() const {
    std::vector<sprachliste> alle;
    for (const fenster& f : fenster_) {
        if (f.logik == nullptr) {
            continue;
        }
        for (sprachliste& neue : f.logik->sprachdateien()) {
            const auto gleiche = std::find_if(
                alle.begin(), alle.end(), [&neue](const sprachliste& schon) { return schon.datei() == neue.datei(); });
            if (gleiche == alle.end()) {
                alle.push_back(std::move(neue));
            } else if (gleiche->anzahl() < neue.anzahl()) {
                *gleiche = std::move(neue);
            }
        }
    }
    return alle;
}

}  // namespace tarvel
