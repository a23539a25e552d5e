#include "hardware/cu_uhr.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tarvel {
namespace {

constexpr zeit_ms umlauf_ms = zeit_ms{1} << 32;
constexpr zeit_ms sprung_ms = 2000;           // no clock is that far ahead of itself, or behind what it has told
constexpr zeit_ms fenster_ms = 5000;          // the fastest passage of so long stands for all of them
constexpr zeit_ms verwandt_ms = 10000;        // two of those that are so near are compared
constexpr zeit_ms streuung_ms = 20;           // between passages that nothing holds up
constexpr zeit_ms spaet_ms = 100;             // later than that is held up
constexpr zeit_ms dauernd_spaet_ms = 20000;   // unless it always is
constexpr zeit_ms grob_ab_ms = 10000;         // from here on two passages show how fast the clock runs
constexpr zeit_ms genau_ab_ms = 60000;        // and from here on well
constexpr zeit_ms nachzuegler_ms = 500;       // a passage is on the line for no longer
constexpr zeit_ms rueckstand_max_ms = 60000;  // nothing keeps more of them than that
constexpr zeit_ms kalender_ms = 1000;         // an outage is known to the second
constexpr double gang_abweichung = 0.01;      // of any clock at most
constexpr double gang_unsicher = 0.0003;      // of one that has been watched for `genau_ab_ms`
constexpr double gang_rauschen = 0.000002;    // not worth a change

zeit_ms anteil(zeit_ms dauer, double teil) {
    return std::llround(static_cast<double>(dauer) * teil);
}

std::size_t sensor_platz(const cu::ueberfahrt& u) {
    return static_cast<std::size_t>(u.fahrzeug) * (cu::sensoren_max + 1) + static_cast<std::size_t>(u.sensor);
}

}  // namespace

zeit_ms cu_uhr::stand::an(const anker& a, zeit_ms maschine) const {
    return a.stempel + anteil(maschine - a.maschine, gang);
}

zeit_ms cu_uhr::stand::lesen(zeit_ms maschine) const {
    return std::max(an(fenster, maschine), an(vorher, maschine));
}

void cu_uhr::stand::heben(zeit_ms um) {
    umlauf += um;
    letzter += um;
    for (anker* a : {&erster, &fenster, &vorher}) {
        a->stempel += um;
    }
}

void cu_uhr::stand::gesehen(const cu::ueberfahrt& u, zeit_ms stempel) {
    je_sensor.at(sensor_platz(u)) = stempel;
    letzter = std::max(letzter, stempel);
}

zeit_ms cu_uhr::stand::durchgehend(std::uint32_t stempel) {
    const zeit_ms ganz = stempel + umlauf;
    if (bekannt && letzter - ganz > umlauf_ms / 2) {
        umlauf += umlauf_ms;
        return ganz + umlauf_ms;
    }
    // two cars at the moment of the overflow may be reported in the other order
    return ganz - letzter > umlauf_ms / 2 && umlauf > 0 ? ganz - umlauf_ms : ganz;
}

bool cu_uhr::stand::zurueck(const cu::ueberfahrt& u, zeit_ms stempel, zeit_ms luecke) const {
    const zeit_ms zuletzt = je_sensor.at(sensor_platz(u));
    return zuletzt != 0 ? zuletzt - stempel > sprung_ms : letzter - stempel > sprung_ms + luecke;
}

zeit_ms cu_uhr::stand::spiel(zeit_ms maschine) const {
    return sprung_ms + nachsicht + anteil(maschine - genommen, gang_abweichung);
}

zeit_ms cu_uhr::stand::hoechstens_voraus(zeit_ms maschine) const {
    return streuung_ms + anteil(maschine - genommen, gang_abweichung);
}

bool cu_uhr::stand::passt(const eingang& neu, zeit_ms stempel) const {
    const zeit_ms voraus = stempel - lesen(neu.maschine);
    const zeit_ms grenze = spiel(neu.maschine);
    return !zurueck(neu.ueberfahrt, stempel, neu.luecke) && voraus <= grenze && -voraus <= grenze + neu.luecke;
}

void cu_uhr::stand::beginnen(const eingang& neu, zeit_ms stempel) {
    bekannt = true;
    ausrichten = false;
    erster = fenster = vorher = {neu.maschine, stempel};
    beginn = fenster_seit = genommen = neu.maschine;
    zu_spaet_seit = 0;
    nachsicht = neu.luecke;
}

bool cu_uhr::stand::folgen(const eingang& neu, zeit_ms stempel) {
    const zeit_ms still = neu.maschine - genommen;
    const zeit_ms voraus = stempel - lesen(neu.maschine);
    const bool zu_spaet = -voraus > spaet_ms + anteil(still, gang_bekannt ? gang_unsicher : gang_abweichung);
    if (neu.luecke > 0 || zu_spaet) {
        zu_spaet_seit = neu.luecke > 0 || zu_spaet_seit == 0 ? neu.maschine : zu_spaet_seit;
        if (neu.maschine - zu_spaet_seit < dauernd_spaet_ms) {
            return false;
        }
        beginnen(neu, stempel);
        return true;
    }
    if (voraus > hoechstens_voraus(neu.maschine)) {  // what the clock was set by had been held up
        beginnen(neu, stempel);
        return true;
    }
    zu_spaet_seit = 0;
    nachsicht = 0;
    genommen = neu.maschine;
    const anker dieser{neu.maschine, stempel};
    if (neu.maschine - beginn < fenster_ms && stempel >= an(erster, neu.maschine)) {
        erster = dieser;
    }
    if (neu.maschine - fenster_seit >= fenster_ms) {
        vorher = neu.maschine - fenster.maschine < verwandt_ms ? fenster : dieser;
        fenster = dieser;
        fenster_seit = neu.maschine;
    } else if (stempel >= an(fenster, neu.maschine)) {
        fenster = dieser;
    }
    gang_bestimmen();
    return true;
}

void cu_uhr::stand::gang_bestimmen() {
    const zeit_ms jetzt = std::max(fenster.maschine, vorher.maschine);
    const anker& bester = an(fenster, jetzt) >= an(vorher, jetzt) ? fenster : vorher;
    const zeit_ms seither = bester.maschine - erster.maschine;
    if (seither < (gang_bekannt ? genau_ab_ms : grob_ab_ms)) {
        return;
    }
    gang_bekannt = seither >= genau_ab_ms;
    const double neu = static_cast<double>(bester.stempel - erster.stempel) / static_cast<double>(seither);
    if (std::abs(neu - gang) > gang_rauschen) {
        gang = std::clamp(neu, 1 - gang_abweichung, 1 + gang_abweichung);
    }
}

cu_uhr::befund cu_uhr::springen(const eingang& neu, zeit_ms stempel) {
    davor_ = jetzt_;
    angeschlossen_ = false;
    sprung_ = stempel - neu.messzeit;
    jetzt_.beginnen(neu, stempel);
    jetzt_.je_sensor = {};
    jetzt_.letzter = stempel;
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    return {stempel, sprung_, true};
}

/// What tells of the clock had waited longer and longer, and does so no more. The unit's stamps know nothing of that.
cu_uhr::befund cu_uhr::aufholen(const eingang& neu, zeit_ms stempel) {
    davor_ = jetzt_;
    sprung_ = 0;
    jetzt_.beginnen(neu, stempel);
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    return {stempel, std::nullopt, true};
}

/// The race stands on a clock that is behind by as long as the passage had waited which it was aligned by.
cu_uhr::befund cu_uhr::nachruecken(const eingang& neu, zeit_ms stempel) {
    jetzt_.beginnen(neu, stempel);
    befund b{stempel, stempel - neu.messzeit, true};
    b.nur_die_uhr = true;
    return b;
}

std::optional<cu_uhr::befund> cu_uhr::sprung_zuruecknehmen(const eingang& neu) {
    stand vorher = *davor_;
    const zeit_ms stempel = vorher.durchgehend(neu.ueberfahrt.stempel);
    if (!vorher.passt(neu, stempel)) {
        return std::nullopt;
    }
    jetzt_ = vorher;
    davor_.reset();
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    return befund{stempel, -sprung_, true};
}

cu_uhr::befund cu_uhr::ausrichten(const eingang& neu, zeit_ms stempel) {
    davor_.reset();
    jetzt_.je_sensor = {};
    // One that has waited shows less of the clock than what is known of it already.
    const bool im_takt =
        jetzt_.bekannt && neu.luecke > 0 && std::abs(stempel - jetzt_.lesen(neu.maschine)) <= sprung_ms + neu.luecke;
    jetzt_.ausrichten = false;
    if (!im_takt) {
        jetzt_.beginnen(neu, stempel);
        jetzt_.letzter = stempel;
    }
    unbenutzt_ = neu.pause;
    vorlaeufig_ = !im_takt && !neu.pause && neu.luecke > 0 && wartet_;
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    return im_takt ? befund{stempel, std::nullopt, false} : befund{stempel, stempel - neu.messzeit, true};
}

/// The stamps of the race are the unit's own again, as they were: what it has kept lies before the outage or in it.
std::optional<cu_uhr::befund> cu_uhr::fortsetzen(const eingang& neu, zeit_ms stempel) {
    const zeit_ms frueheste = ausfall_->stempel - nachzuegler_ms;
    const zeit_ms seither = ((stempel - frueheste) % umlauf_ms + umlauf_ms) % umlauf_ms;
    const zeit_ms laengstens = neu.maschine - ausfall_->maschine;
    if (seither > nachzuegler_ms + laengstens + anteil(laengstens, gang_abweichung) + kalender_ms + sprung_ms) {
        return std::nullopt;
    }
    davor_.reset();
    jetzt_.je_sensor = {};
    jetzt_.ausrichten = false;
    jetzt_.heben(frueheste + seither - stempel);
    stempel = frueheste + seither;
    const zeit_ms voraus = stempel - jetzt_.lesen(neu.maschine);
    if (!jetzt_.bekannt || voraus > 0 || -voraus > laengstens + sprung_ms) {  // else it has waited
        jetzt_.beginnen(neu, stempel);
        jetzt_.letzter = stempel;
    }
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    unbenutzt_ = true;
    vorlaeufig_ = false;
    angeschlossen_ = true;
    return befund{stempel, ausfall_->versatz, true};
}

cu_uhr::befund cu_uhr::aufnehmen(const eingang& neu) {
    if (ausfall_ && !neu.pause && !staut_) {
        ausfall_.reset();
    }
    befund b = einordnen(neu);
    b.im_ausfall = ausfall_ && (!angeschlossen_ || (staut_ && b.stempel >= ausfall_->stempel));
    return b;
}

cu_uhr::befund cu_uhr::einordnen(const eingang& neu) {
    stand weiter = jetzt_;
    const zeit_ms stempel = weiter.durchgehend(neu.ueberfahrt.stempel);
    if (davor_ && !weiter.passt(neu, stempel)) {
        if (const std::optional<befund> zurueck = sprung_zuruecknehmen(neu)) {
            return *zurueck;
        }
    }
    jetzt_ = weiter;
    if (!jetzt_.bekannt || jetzt_.ausrichten) {
        angeschlossen_ = false;
        const auto weiter_wie_bisher = ausfall_ && neu.pause ? fortsetzen(neu, stempel) : std::nullopt;
        return weiter_wie_bisher ? *weiter_wie_bisher : ausrichten(neu, stempel);
    }
    if (ausfall_ && staut_ && !neu.pause) {  // it shows nothing of the clock
        jetzt_.gesehen(neu.ueberfahrt, stempel);
        return {stempel, std::nullopt, false};
    }
    const bool behalten = ausfall_ && angeschlossen_ && stempel >= ausfall_->stempel - nachzuegler_ms;  // any order
    const zeit_ms voraus = stempel - jetzt_.lesen(neu.maschine);
    if ((!behalten && jetzt_.zurueck(neu.ueberfahrt, stempel, neu.luecke)) || voraus > rueckstand_max_ms) {
        return springen(neu, stempel);
    }
    if (voraus > jetzt_.spiel(neu.maschine)) {
        return aufholen(neu, stempel);
    }
    davor_.reset();
    jetzt_.gesehen(neu.ueberfahrt, stempel);
    const bool war_unbenutzt = std::exchange(unbenutzt_, unbenutzt_ && neu.pause);
    if (war_unbenutzt && voraus > streuung_ms) {  // what it was aligned by had waited
        jetzt_.beginnen(neu, stempel);
        if (ausfall_ && angeschlossen_) {
            return {stempel, std::nullopt, true};  // the stamps stand on it already
        }
        return {stempel, stempel - neu.messzeit, true};
    }
    const bool war_vorlaeufig = std::exchange(vorlaeufig_, vorlaeufig_ && (wartet_ || neu.pause));
    if (war_vorlaeufig && !neu.pause && voraus > jetzt_.hoechstens_voraus(neu.maschine)) {
        return nachruecken(neu, stempel);
    }
    return {stempel, std::nullopt, !neu.pause && jetzt_.folgen(neu, stempel)};
}

}  // namespace tarvel
