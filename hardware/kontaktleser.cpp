#include "hardware/kontaktleser.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

bool steht_in(const spuren<ereignis_art>& arten, ereignis_art nummer) {
    return std::find(arten.begin(), arten.end(), nummer) != arten.end();
}

bool ist_chaostaster(ereignis_art nummer) {
    return nummer == art::chaostaster || art::spur_des_fahrertasters(nummer) != 0;
}

bool ist_tankkontakt(ereignis_art nummer) {
    return steht_in(art::tanken_ein, nummer) || steht_in(art::tanken_aus, nummer);
}

/// The contact is the lane's lap sensor too.
bool zaehlt_runden(ereignis_art nummer, rundenzaehlung_auf modus) {
    return (modus == rundenzaehlung_auf::tanksensor_1 && steht_in(art::tanken_ein, nummer)) ||
           (modus == rundenzaehlung_auf::tanksensor_2 && steht_in(art::tanken_aus, nummer));
}

}  // namespace

void kontaktleser::beginnen(std::uint32_t linien) {
    proben_ = std::make_shared<kontaktproben>(linien);
    ruhe_merken();
}

std::shared_ptr<kontaktproben> kontaktleser::neuer_abtaster() {
    const std::shared_ptr<kontaktproben> alte =
        std::exchange(proben_, std::make_shared<kontaktproben>(wartet_ ? wartet_->linien : stand_));
    while (const auto p = alte->nehmen()) {
        proben_->gesehen(p->stempel, p->linien);
    }
    return proben_;
}

void kontaktleser::von_neuem() {
    proben_->leeren();
    wartet_.reset();
    stand_ = proben_->linien();
    chaos_von_hier_ = false;
    nach_ausfall_ = false;
    tank_frei_.fuellen(false);
}

void kontaktleser::ruhe_merken() {
    von_neuem();
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        const ereignis_art nummer = arten_.at(linie);
        if (art::ist_eingang(nummer)) {
            const bool offen_ist_ruhe =
                eigenheit_.schalter_zu_ist_an && um_.einst.chaos_schalter && nummer == art::chaostaster;
            um_.ereignisse.ruhe_lernen(nummer, !offen_ist_ruhe && (stand_ >> linie & 1U) != 0);
        }
    }
    schalter_wartet_ = chaostaster_gehalten();
    um_.ereignisse.chaos_taster(false);
}

void kontaktleser::nach_ausfall() {
    von_neuem();
    nach_ausfall_ = true;
    schalter_wartet_ = chaostaster_gehalten();
    um_.ereignisse.chaos_taster(false);
}

bool kontaktleser::von_ruhe_weg(std::size_t linie, std::uint32_t linien) const {
    const ereignis_art nummer = arten_.at(linie);
    return art::ist_eingang(nummer) && ((linien >> linie & 1U) != 0) != um_.ereignisse[nummer].pegel_ruhe;
}

bool kontaktleser::zu_frueh(const kontaktprobe& p) const {
    if (!um_.rennen.rennen_laeuft()) {
        return false;
    }
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        const ereignis_art nummer = arten_.at(linie);
        const bool runde = steht_in(art::rundenzaehlung, nummer) && um_.ereignisse[nummer].aktiv;
        if (runde && von_ruhe_weg(linie, p.linien) && !von_ruhe_weg(linie, stand_)) {
            return true;
        }
    }
    return false;
}

void kontaktleser::auswerten() {
    bool neues = false;
    while (wartet_ || (wartet_ = proben_->nehmen())) {
        if (!gewartet_ && zu_frueh(*wartet_)) {
            gewartet_ = true;
            break;
        }
        gewartet_ = false;
        uebernehmen(*std::exchange(wartet_, std::nullopt));
        neues = true;
    }
    schalter_nachmelden();
    if (std::exchange(nach_ausfall_, false)) {
        tankkontakte_nachsehen();
    }
    if (tankkontakte_halten() || neues) {
        um_.rennen.tankflanken_auswerten();
    }
    tankkontakte_freigeben();
}

void kontaktleser::uebernehmen(const kontaktprobe& p) {
    const std::uint32_t vorher = std::exchange(stand_, p.linien);
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        const bool weg = von_ruhe_weg(linie, p.linien);
        if (weg == von_ruhe_weg(linie, vorher)) {
            continue;
        }
        if (weg) {
            weggegangen(arten_.at(linie), p.stempel);
        } else {
            zurueckgekommen(arten_.at(linie));
        }
    }
}

void kontaktleser::weggegangen(ereignis_art nummer, zeit_ms stempel) {
    const ereignis_zeile& zeile = um_.ereignisse[nummer];
    if (ist_chaostaster(nummer)) {
        chaostaster_gedrueckt(nummer, stempel);
    } else if (steht_in(art::rundenzaehlung, nummer)) {
        um_.ereignisse.ueberfahrt_melden(nummer, stempel);
    } else if (!zeile.aktiv || stempel - zeile.ereignis_zeit >= prellen_ms) {
        um_.ereignisse.ereignis_melden(nummer, stempel);
    }
}

void kontaktleser::zurueckgekommen(ereignis_art nummer) {
    if (ist_chaostaster(nummer)) {
        chaostaster_losgelassen();
    }
    for (const int spur : alle_spuren) {
        tank_frei_[spur] = tank_frei_[spur] || nummer == art::tanken_ein[spur];
    }
}

void kontaktleser::chaostaster_gedrueckt(ereignis_art nummer, zeit_ms stempel) {
    ereignis_tabelle& ereignisse = um_.ereignisse;
    if (const int spur = art::spur_des_fahrertasters(nummer); spur != 0) {
        ereignisse.chaos_knopf(spur);
    }
    chaos_von_hier_ = chaos_von_hier_ || !ereignisse[art::chaostaster].aktiv;
    schalter_wartet_ = !um_.rennen.rennen_laeuft() || stempel < ereignisse.gilt_ab;
    ereignisse.ereignis_melden(art::chaostaster, stempel);
    ereignisse.chaos_taster(um_.einst.chaos_schalter || eigenheit_.taster_sperrt_taste);
}

bool kontaktleser::chaostaster_gehalten() const {
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        if (ist_chaostaster(arten_.at(linie)) && von_ruhe_weg(linie, stand_)) {
            return true;
        }
    }
    return false;
}

void kontaktleser::chaostaster_losgelassen() {
    if (chaostaster_gehalten()) {
        return;  // another one is
    }
    schalter_wartet_ = false;
    um_.ereignisse.chaos_taster(false);
    if (std::exchange(chaos_von_hier_, false) && um_.einst.chaos_schalter) {
        um_.ereignisse.ereignis_weg(art::chaostaster);
    }
}

void kontaktleser::schalter_nachmelden() {
    constexpr zeit_ms lauf_ms = 2 * prellen_ms;  // by then the race has forgotten the switch of the pause before
    const ereignis_tabelle& ereignisse = um_.ereignisse;
    if (!schalter_wartet_ || !um_.einst.chaos_schalter || !um_.rennen.rennen_laeuft() ||
        ereignisse.messzeit < ereignisse.gilt_ab + lauf_ms) {
        return;
    }
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        if (ist_chaostaster(arten_.at(linie)) && von_ruhe_weg(linie, stand_)) {
            chaostaster_gedrueckt(arten_.at(linie), ereignisse.messzeit);
        }
    }
}

void kontaktleser::tankkontakte_nachsehen() {
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        if (ist_tankkontakt(arten_.at(linie)) && !von_ruhe_weg(linie, stand_)) {
            zurueckgekommen(arten_.at(linie));
        }
    }
}

bool kontaktleser::tankkontakte_halten() {
    bool gehalten = false;
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        const ereignis_art nummer = arten_.at(linie);
        if (ist_tankkontakt(nummer) && von_ruhe_weg(linie, stand_) && !um_.ereignisse[nummer].aktiv &&
            !zaehlt_runden(nummer, um_.einst.tank_runden_modus)) {
            um_.ereignisse.ereignis_melden(nummer);
            gehalten = true;
        }
    }
    return gehalten;
}

void kontaktleser::tankkontakte_freigeben() {
    for (const int spur : alle_spuren) {
        if (!tank_frei_[spur] || um_.ereignisse[art::tanken_ein[spur]].aktiv) {
            continue;  // the race has still to learn that it was there
        }
        tank_frei_[spur] = false;
        const bool endet_anders = std::find(arten_.begin(), arten_.end(), art::tanken_aus[spur]) != arten_.end();
        if (eigenheit_.tankt_nur_auf_kontakt || !endet_anders) {
            um_.rennen.tankkontakt_verlassen(spur);
        }
    }
}

void kontaktleser::verstummt() {
    um_.ereignisse.chaos_taster(false);
    for (std::size_t linie = 0; linie < linien_max; ++linie) {
        if (von_ruhe_weg(linie, stand_) && ist_tankkontakt(arten_.at(linie))) {
            zurueckgekommen(arten_.at(linie));
        }
    }
    tankkontakte_freigeben();
}

}  // namespace tarvel
