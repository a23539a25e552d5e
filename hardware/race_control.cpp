#include "hardware/race_control.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace tarvel {
namespace {

/// What a lap sensor is as well: a contact of the tanks, where sensors 3 and 4 end the refuelling of lanes 1 and 2, and
/// a second finish line, where they count for these.
struct nebenrolle {
    ereignis_art sensor;
    ereignis_art tank;
    ereignis_art ziel;  ///< 0 none
};
constexpr std::array<nebenrolle, 4> nebenrollen{{{16, 32, 0}, {15, 30, 0}, {14, 31, 16}, {13, 29, 15}}};

/// Null for an event that no sensor of the box may stand for.
const nebenrolle* nebenrolle_von(ereignis_art nummer) {
    const auto rolle = std::find_if(nebenrollen.begin(), nebenrollen.end(),
                                    [nummer](const nebenrolle& r) { return r.sensor == nummer; });
    return rolle == nebenrollen.end() ? nullptr : &*rolle;
}

}  // namespace

race_control::race_control(const umgebung& um, rc_verbindung& verbindung)
    : um_(um),
      verbindung_(verbindung),
      meldung_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, dauer_ms(1))) {
    verbindung_.zuhoeren(*this);
    meldung_->bei_tick = [this] {
        meldung_->aus();
        um_.meldungen.zeigen(um_.txt.meldung[15], um_.txt.titel[1]);
    };
}

bool race_control::verbinden() {
    return verbindung_.oeffnen(um_.einst.rc.anschluss.rc_com_port);
}

bool race_control::oeffnen() {
    schliessen();
    gewuenscht_ = verbinden();
    if (gewuenscht_) {
        ansagen(true);
    } else {
        um_.bedienung.nicht_zu_oeffnen(*this, um_.txt.meldung[verbindung_.bibliothek_da() ? 14 : 16]);
    }
    return gewuenscht_;
}

void race_control::schliessen() {
    gewuenscht_ = false;
    gemeldet_ = false;
    meldung_->aus();
    verbindung_.schliessen();
    uhr_.vergessen();
    vergessen();
}

void race_control::wieder_aufnehmen() {
    if (gewuenscht_ && !verbindung_.offen()) {
        verbinden();
    }
}

void race_control::rennfenster_offen() {
    if (!um_.einst.hardware.hw_race_control || verbindung_.bereit()) {
        return;
    }
    gewuenscht_ = true;
    if (verbindung_.offen() || verbinden()) {
        ansagen(true);
    } else {
        um_.bedienung.port_fehlt(um_.txt.meldung[verbindung_.bibliothek_da() ? 14 : 16]);
    }
}

void race_control::ansagen(bool an) {
    if (std::exchange(angesagt_, an) != an) {
        um_.bedienung.wartehinweis(an);
    }
}

void race_control::rc_geschehen(rc_schritt schritt) {
    switch (schritt) {
        case rc_schritt::bereit:
            rc_bereit();
            break;
        case rc_schritt::stumm:
            stumm();
            break;
        case rc_schritt::unterbrochen:
            ansagen(false);
            if (gewuenscht_) {
                um_.bedienung.verloren();
            }
            break;
        case rc_schritt::geschlossen:
            ansagen(false);
            break;
        case rc_schritt::unbekanntes_ereignis:
            unbekanntes_ereignis();
            break;
        default:
            break;
    }
}

void race_control::rc_bereit() {
    uhr_.wieder_da();
    uhr_nachfuehren();
    if (gewuenscht_) {
        um_.zeit.nicht_zaehlen();
    }
    ansagen(false);
}

void race_control::stumm() {
    if (angesagt_) {  // else nobody has asked for it just now
        ansagen(false);
        um_.bedienung.port_fehlt(um_.txt.meldung[16]);
    }
}

void race_control::unbekanntes_ereignis() {
    if (gewuenscht_ && !std::exchange(gemeldet_, true)) {
        meldung_->an();  // a message box within the reading would hold up the line
    }
}

zeit_ms race_control::stempel_von(std::uint32_t ticks) {
    const rc_uhr::befund befund = uhr_.lesen(ticks, um_.uhr.jetzt(), um_.zeit.messzeit_lesen());
    if (befund.versetzen) {
        um_.zeit.stellen(befund.stempel, 1);
        um_.rennen.stempel_verschieben(*befund.versetzen);
        wartende_verschieben(*befund.versetzen);
    } else if (befund.stand) {
        um_.zeit.nachstellen(*befund.stand, 1);
    }
    return befund.stempel;
}

void race_control::wartende_verschieben(zeit_ms um) {
    std::array<sensor_ereignis, wartende_max> alle{};
    std::size_t anzahl = 0;
    while (const auto eines = ereignisse_.nehmen()) {
        alle.at(anzahl++) = *eines;
    }
    for (sensor_ereignis& eines : std::span(alle).first(anzahl)) {
        eines.stempel += um;
        ereignisse_.geben(eines);
    }
    if (wartet_) {
        wartet_->stempel += um;
    }
}

void race_control::uhr_nachfuehren() {
    if (gewuenscht_ && verbindung_.bereit()) {
        stempel_von(verbindung_.stempel());
    }
}

ereignis_art race_control::rc_eingang_art(int sensor) const {
    return um_.einst.rc.rc_sensor.at(static_cast<std::size_t>(sensor));
}

void race_control::rc_meldet(const rc_kontakt& kontakt) {
    if (!gewuenscht_ || !verbindung_.bereit()) {
        return;
    }
    const sensor_ereignis neu{rc_eingang_art(kontakt.sensor), stempel_von(kontakt.stempel)};
    if (kontakt.belegt && nebenrolle_von(neu.nummer) != nullptr && !ereignisse_.geben(neu)) {
        weitergeben(true);
        ereignisse_.geben(neu);
    }
}

void race_control::rc_gelesen() {
    constexpr zeit_ms abfragepause_ms = 100;
    uhr_nachfuehren();
    // a race that runs and has not asked for long has stood still, and will ask
    if (!um_.rennen.rennen_laeuft() && um_.uhr.jetzt() - letzte_abfrage_ > abfragepause_ms) {
        weitergeben(true);
    }
}

void race_control::abfragen() {
    letzte_abfrage_ = um_.uhr.jetzt();
    uhr_nachfuehren();
    weitergeben(false);
}

bool race_control::zu_frueh(const sensor_ereignis& ereignis) const {
    const ereignis_art ziel = um_.einst.rc.rc_ziel_sensor34 ? nebenrolle_von(ereignis.nummer)->ziel : 0;
    return um_.ereignisse[ereignis.nummer].aktiv || (ziel != 0 && um_.ereignisse[ziel].aktiv);
}

void race_control::weitergeben(bool alle) {
    while (wartet_ || (wartet_ = ereignisse_.nehmen())) {
        if (!alle && !gewartet_ && zu_frueh(*wartet_)) {
            gewartet_ = true;
            return;
        }
        gewartet_ = false;
        rc_ereignis(*std::exchange(wartet_, std::nullopt));
    }
}

void race_control::vergessen() {
    ereignisse_.leeren();
    wartet_.reset();
    gewartet_ = false;
}

void race_control::rc_ereignis(const sensor_ereignis& ereignis) {
    const nebenrolle& rolle = *nebenrolle_von(ereignis.nummer);
    um_.ereignisse.ueberfahrt_melden(ereignis.nummer, ereignis.stempel);
    if (um_.einst.rc.rc_tank_sensor34) {
        um_.ereignisse.ereignis_melden(rolle.tank, ereignis.stempel);
    }
    if (um_.einst.rc.rc_ziel_sensor34 && rolle.ziel != 0) {
        um_.ereignisse.ueberfahrt_melden(rolle.ziel, ereignis.stempel);
    }
    um_.rennen.tankflanken_auswerten();
}

}  // namespace tarvel
