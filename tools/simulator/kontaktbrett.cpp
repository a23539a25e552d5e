#include "tools/simulator/kontaktbrett.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace tarvel::simulator {
namespace {

constexpr zeit_ms bis_auf_weiteres = std::numeric_limits<zeit_ms>::max();
constexpr int spuren = 4;

}  // namespace

kontaktbrett::kontaktbrett(const kontaktbrett_einstellung& einst)
    : geraet(einst.rennen, spuren), einst_(einst), zu_bis_(einst.eingaenge.size(), 0) {
    for (int wagen = 1; wagen <= feld_.anzahl(); ++wagen) {
        const bool schaltbar = std::any_of(einst_.ausgaenge.begin(), einst_.ausgaenge.end(), [&](const auto& stelle) {
            return stelle.was == klemme::strom && stelle.nummer == wagen;
        });
        feld_.strom(wagen, !schaltbar || einst_.strom_invers);
    }
    if (einst_.rennen.sofort) {
        feld_.gruen();
    }
}

void kontaktbrett::schalten(std::uint32_t aktiv) {
    const std::uint32_t neu = aktiv ^ std::exchange(geschaltet_, aktiv);
    for (std::size_t linie = 0; linie < einst_.ausgaenge.size(); ++linie) {
        if ((neu >> linie & 1U) != 0) {
            ausgang_schalten(einst_.ausgaenge[linie], (aktiv >> linie & 1U) != 0);
        }
    }
}

void kontaktbrett::ausgang_schalten(const anschlussstelle& stelle, bool an) {
    switch (stelle.was) {
        case klemme::rot:
            rote_lampe(stelle.nummer, an);
            return;
        case klemme::gruen:
            gruene_lampe(an);
            return;
        case klemme::strom:
            feld_.strom(stelle.nummer, an != einst_.strom_invers);
            return;
        case klemme::chaoslampe:
            chaos_ = an;
            sagen(an ? "Chaoslampe an" : "Chaoslampe aus");
            return;
        case klemme::rennende:
            if (an) {
                feld_.anhalten();
            }
            return;
        default:
            return;
    }
}

void kontaktbrett::rote_lampe(int nummer, bool an) {
    sagen("Rot " + std::to_string(nummer) + (an ? " an" : " aus"));
    const unsigned bit = 1U << static_cast<unsigned>(nummer);
    lampen_ = an ? lampen_ | bit : lampen_ & ~bit;
    if (an && nummer == 1) {
        erste_lampe_ = uhr();
    }
    lampen_gesehen_ |= an ? bit : 0U;
}

/// The first lamp alone begins a race. In a pause all of them burn, and the cars go on where they stand; before a race
/// all of them blink.
void kontaktbrett::startampel_deuten() {
    constexpr zeit_ms alle_zusammen_ms = 50;
    if (erste_lampe_ < 0 || uhr() - erste_lampe_ < alle_zusammen_ms) {
        return;
    }
    erste_lampe_ = -1;
    if (std::popcount(lampen_) != 1 || chaos_) {
        return;
    }
    ampel_laeuft_ = true;
    lampen_gesehen_ = lampen_;
    erste_fahrt_ = fahrten().size();
    feld_.aufstellen();
    feld_.rot();
}

void kontaktbrett::gruene_lampe(bool an) {
    sagen(an ? "Grün an" : "Grün aus");
    const bool gestartet = std::exchange(ampel_laeuft_, ampel_laeuft_ && !an) && an;
    if (gestartet && std::popcount(lampen_gesehen_) >= lampen_vor_gruen) {
        feld_.gruen();
        sagen("Die Wagen fahren los");
    }
    lampen_gesehen_ = an ? 0 : lampen_gesehen_;
}

bool kontaktbrett::schliessen(klemme was, int nummer, zeit_ms dauer) {
    bool verdrahtet = false;
    for (std::size_t linie = 0; linie < einst_.eingaenge.size(); ++linie) {
        if (einst_.eingaenge[linie].was == was && einst_.eingaenge[linie].nummer == nummer) {
            zu_bis_[linie] = dauer == bis_auf_weiteres ? dauer : uhr() + dauer;
            verdrahtet = true;
        }
    }
    return verdrahtet;
}

void kontaktbrett::chaos_druecken(int spur) {
    sagen("Chaostaster");
    if (!schliessen(klemme::chaos, spur, einst_.tasterzeit)) {
        schliessen(klemme::chaos, 0, einst_.tasterzeit);
    }
}

void kontaktbrett::wagen_meldet(const wagen_ereignis& was) {
    constexpr zeit_ms keine = 0;
    switch (was.art) {
        case wagen_art::ueberfahrt:
            schliessen(was.sensor == 1   ? klemme::ziel
                       : was.sensor == 2 ? klemme::sektor_1
                                         : klemme::sektor_2,
                       was.wagen, einst_.kontaktzeit);
            return;
        case wagen_art::box_ein:
            schliessen(klemme::tank_ein, was.wagen, bis_auf_weiteres);
            return;
        case wagen_art::box_aus:
            schliessen(klemme::tank_ein, was.wagen, keine);
            schliessen(klemme::tank_aus, was.wagen, einst_.kontaktzeit);
            return;
        case wagen_art::chaos:
            if (!chaos_ && chaos_ende_ < 0) {
                chaos_ende_ = einst_.rennen.chaos_dauer > 0 ? uhr() + einst_.rennen.chaos_dauer : -1;
                chaos_fahrer_ = was.wagen;
                chaos_druecken(chaos_fahrer_);
            }
            return;
    }
}

void kontaktbrett::schritt() {
    if (chaos_ende_ >= 0 && uhr() >= chaos_ende_) {
        chaos_ende_ = -1;
        if (chaos_) {
            chaos_druecken(chaos_fahrer_);
        }
    }
    startampel_deuten();
    std::uint32_t neu = 0;
    for (std::size_t linie = 0; linie < zu_bis_.size(); ++linie) {
        neu |= zu_bis_[linie] > uhr() ? 1U << linie : 0U;
    }
    if (neu != std::exchange(kontakte_, neu)) {
        aenderungen_.push_back(neu);
    }
}

std::vector<std::uint32_t> kontaktbrett::aenderungen() {
    return std::exchange(aenderungen_, {});
}

std::vector<zeit_ms> kontaktbrett::runden(int wagen) const {
    std::vector<zeit_ms> zeiten;
    zeit_ms vorher = -1;
    for (std::size_t i = erste_fahrt_; i < fahrten().size(); ++i) {
        const ueberfahrt& u = fahrten()[i];
        if (u.wagen == wagen && u.sensor == 1) {
            if (vorher >= 0) {
                zeiten.push_back(u.stempel - vorher);
            }
            vorher = u.stempel;
        }
    }
    return zeiten;
}

kontaktbrett_einstellung iow_werksverdrahtung(const rennen_einstellung& rennen) {
    constexpr std::size_t linien = 32;
    kontaktbrett_einstellung einst;
    einst.rennen = rennen;
    einst.eingaenge.resize(linien);
    einst.ausgaenge.resize(linien);
    einst.eingaenge[0] = {klemme::chaos, 0};
    einst.ausgaenge[1] = {klemme::chaoslampe, 0};
    einst.ausgaenge[2] = {klemme::gruen, 0};
    for (int lampe = 1; lampe <= 5; ++lampe) {
        einst.ausgaenge[static_cast<std::size_t>(8 - lampe)] = {klemme::rot, lampe};
    }
    for (int spur = 1; spur <= spuren; ++spur) {
        einst.eingaenge[static_cast<std::size_t>(16 - spur)] = {klemme::ziel, spur};
        einst.ausgaenge[static_cast<std::size_t>(24 - spur)] = {klemme::strom, spur};
        einst.eingaenge[static_cast<std::size_t>(32 - 2 * spur)] = {klemme::tank_aus, spur};
        einst.eingaenge[static_cast<std::size_t>(33 - 2 * spur)] = {klemme::tank_ein, spur};
    }
    return einst;
}

kontaktbrett_einstellung lpt_verdrahtung(const rennen_einstellung& rennen) {
    kontaktbrett_einstellung einst;
    einst.rennen = rennen;
    for (int spur = 1; spur <= spuren; ++spur) {
        einst.eingaenge.push_back({klemme::ziel, spur});
    }
    einst.eingaenge.push_back({klemme::chaos, 0});
    for (int lampe = 1; lampe <= 5; ++lampe) {
        einst.ausgaenge.push_back({klemme::rot, lampe});
    }
    einst.ausgaenge.push_back({klemme::gruen, 0});
    einst.ausgaenge.push_back({klemme::chaoslampe, 0});
    return einst;
}

}  // namespace tarvel::simulator
