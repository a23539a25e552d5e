#include "hardware/at2560.h"

#include <cstdlib>
#include <utility>

#include "core/text.h"

namespace tarvel {
namespace {

constexpr int nachhall = 20;  // ticks of the chaos switch's timer that each message of the unit is good for

/// Number of the word for this output; `alle` is the switching of all of them at once.
std::size_t zeile_fuer(int nummer, bool an) {
    constexpr int alle_an = 13;
    constexpr int alle_aus = 14;
    if (nummer == 0) {
        return static_cast<std::size_t>(an ? alle_an : alle_aus);
    }
    return static_cast<std::size_t>(an ? nummer : nummer + 6);
}

constexpr unsigned ganze_bahn = 1;

/// The lane of an event's row, as a bit.
unsigned betroffene_der_zeile(int zeile) {
    constexpr int erste_ohne_spur = at_zeile::chaos_allgemein;
    if (zeile >= erste_ohne_spur) {
        return ganze_bahn;
    }
    const bool ziel = zeile <= at_zeile::rundenzaehlung(spuren_max);
    const int spur = ziel ? zeile : (zeile - at_zeile::tanken_ein(1)) / 2 % spuren_max + 1;
    return 1U << static_cast<unsigned>(spur);
}

}  // namespace

const std::string& at_schaltwort(const at_profil& profil, const schaltung& befehl) {
    using ausgang = schaltung::ausgang;
    constexpr int gruen = 6;
    const std::size_t an_oder_aus = befehl.an ? 1 : 2;
    switch (befehl.was) {
        case ausgang::ampel_rot:
            return profil.at_ampel.at(zeile_fuer(befehl.nummer, befehl.an));
        case ausgang::ampel_gruen:
            return profil.at_ampel.at(zeile_fuer(gruen, befehl.an));
        case ausgang::bahnstrom:
            return profil.at_bahnstrom.at(zeile_fuer(befehl.nummer, befehl.an));
        case ausgang::chaosanzeige:
            return profil.at_chaos.at(an_oder_aus);
        case ausgang::rennende:
            break;
    }
    return profil.at_rennende.at(an_oder_aus);
}

std::string at_port_werte(const at2560_anschluss& anschluss) {
    std::string stopbits = anschluss.uart_stopbits;
    werte_pruefen2(stopbits);  // the comma parts the values
    return anschluss.uart_baud + "," + anschluss.uart_parity + "," + std::to_string(anschluss.uart_datenbits) + "," +
           stopbits;
}

at2560::at2560(const umgebung& um)
    : um_(um),
      MSComm2_(um.serienports.erzeugen()),
      tmr_µportopen_(um.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, at_bootzeit)) {
    MSComm2_->bei_empfang = [this](std::string_view bytes, zeit_ms stempel) { empfangen(bytes, stempel); };
    MSComm2_->bei_verlust = [this] { verloren_melden(); };
    tmr_µportopen_->bei_tick = [this] { tmr_µportopen_tick(); };
}

void at2560::profil_laden() {
    const std::string& datei = um_.einst.uart.uart_datei;
    profil_ = {};
    bool gut = true;
    if (datei == at_standarddatei && !um_.ablage.gibt_es(datei)) {
        gut = at_profil_speichern(um_.ablage, datei, profil_);
    }
    gut = at_profil_laden(um_.ablage, datei, profil_) && gut;
    if (!gut) {
        um_.meldungen.zeigen(um_.txt.meldung[26], um_.txt.titel[1]);
    }
}

void at2560::profil_wechseln() {
    profil_laden();
    if (!tmr_µportopen_->laeuft()) {  // else it is told when it has booted
        at_senden(profil_.at_is_befehl);
    }
}

bool at2560::oeffnen() {
    schliessen();
    profil_laden();
    const bool geoeffnet = µC_MSCOMM_settings_setzen();
    gewuenscht_ = geoeffnet;
    if (!geoeffnet) {
        um_.bedienung.nicht_zu_oeffnen(*this, um_.txt.meldung[27]);
    }
    return geoeffnet;
}

bool at2560::µC_MSCOMM_settings_setzen() {
    if (!MSComm2_->oeffnen(um_.einst.uart.uart_port, at_port_werte(um_.einst.uart))) {
        return false;
    }
    if (um_.einst.hardware.hw_uart) {
        tmr_µportopen_->an();
        um_.bedienung.wartehinweis(true);
    }
    return true;
}

void at2560::wieder_aufnehmen() {
    if (gewuenscht_ && !offen()) {
        µC_MSCOMM_settings_setzen();
    }
}

void at2560::schliessen() {
    gewuenscht_ = false;
    port_schliessen();
    geraeteuhr_.vergessen();
}

void at2560::port_schliessen() {
    MSComm2_->schliessen();
    empfang_.leeren();
    uhr_vergessen();
    if (tmr_µportopen_->laeuft()) {
        tmr_µportopen_->aus();
        um_.bedienung.wartehinweis(false);
    }
}

void at2560::uhr_vergessen() {
    at_zeitversatz_ = 0;
    versatz_davor_ = 0;
    letzte_zeit_ = 0;
    geraeteuhr_.neu_beginnen();
}

void at2560::verloren_melden() {
    port_schliessen();
    um_.bedienung.verloren();
}

void at2560::tmr_µportopen_tick() {
    tmr_µportopen_->aus();
    at_senden(profil_.at_is_befehl);
    um_.bedienung.wartehinweis(false);
    if (im_rennen_) {  // it was gone meanwhile, and knows nothing of it
        rennstart();
    }
}

void at2560::at_senden(std::string_view text) {
    if (MSComm2_->offen()) {
        MSComm2_->schreiben(nach_1252(profil_.at_startzeichen + std::string(text) + profil_.at_endzeichen) + '\r');
    }
}

void at2560::rennfenster_offen() {
    im_rennen_ = false;
    if (um_.einst.hardware.hw_uart && !MSComm2_->offen() && !µC_MSCOMM_settings_setzen()) {  // lost, not there again
        um_.bedienung.port_fehlt(um_.txt.meldung[27]);
    }
}

void at2560::rennen_bereit() {
    im_rennen_ = false;
    empfang_.leeren();
    uhr_vergessen();
    um_.ereignisse.chaos_nachhall(0);
}

void at2560::rennstart() {
    im_rennen_ = true;
    at_senden(profil_.at_rennstart);
    at_senden(profil_.at_zeit_anfordern);
}

void at2560::rennen_fortgesetzt() {
    if (at_zeitversatz_ == 0) {  // it has come back since, and knows of no race
        rennstart();
    }
    im_rennen_ = true;
}

void at2560::schalten(const schaltung& befehl) {
    at_senden(at_schaltwort(profil_, befehl));
}

void at2560::empfangen(std::string_view bytes, zeit_ms stempel) {
    constexpr zeit_ms abfragepause_ms = 100;
    empfang_.anhaengen(bytes);
    angekommen_ = stempel;
    // In a race each tick takes what it can tell apart, so that the race sees all of it. But the clock is still to be
    // fetched before it, and in a pause nobody asks while the unit repeats that its chaos switch is on. A race that
    // runs and has not asked for long has stood still, and will ask.
    const bool rennen_fragt = im_rennen_ && um_.rennen.rennen_laeuft();
    const bool ungefragt = !rennen_fragt && um_.uhr.jetzt() - letzte_abfrage_ > abfragepause_ms;
    while ((at_zeitversatz_ == 0 || ungefragt) && µC_neuer_befehl()) {
        µC_wert_zerlegen();
    }
}

/// Six cars may cross at once, and ticks of a busy machine are rare: nothing waits for one of its own but what speaks
/// of the same lane.
void at2560::abfragen() {
    letzte_abfrage_ = um_.uhr.jetzt();
    unsigned schon = 0;
    while (µC_neuer_befehl()) {
        const unsigned dieser = betroffene();
        const bool allein = ((schon | dieser) & ganze_bahn) != 0;
        if (schon != 0 && (allein || (schon & dieser) != 0)) {
            empfang_.zuruecklegen();
            return;
        }
        schon |= dieser;
        µC_wert_zerlegen();
    }
}

unsigned at2560::betroffene() const {
    const auto meldung = empfang_.meldung(profil_);
    unsigned alle = 0;
    for (int zeile = 1; meldung && zeile <= at_ereignisse_max; ++zeile) {
        if (profil_.at_ereignis.at(static_cast<std::size_t>(zeile)) == meldung->ereignis) {
            alle |= betroffene_der_zeile(zeile);
        }
    }
    return alle;
}

void at2560::µC_wert_zerlegen() {
    const auto meldung = empfang_.meldung(profil_);
    if (meldung && meldung->ereignis == profil_.at_zeit_anfordern) {
        uhr_nachstellen(meldung->zeit);
        if (at_zeitversatz_ == 0) {
            at_zeitversatz_ = bei_ankunft().messzeit - meldung->zeit;
            geraeteuhr_.festmachen(bei_ankunft());
            um_.rennen.pausen_festhalten(bei_ankunft().messzeit);
        }
        return;
    }
    if (meldung) {
        ereignis_melden(*meldung);
    }
    um_.rennen.tankflanken_auswerten();
}

/// The clocks as what is being taken was there.
at_uhr::moment at2560::bei_ankunft() const {
    return {angekommen_, um_.zeit.messzeit_lesen() - (um_.uhr.jetzt() - angekommen_)};
}

void at2560::uhr_nachstellen(zeit_ms geraetezeit) {
    geraeteuhr_.gehoert(bei_ankunft(), geraetezeit);
    if (!im_rennen_ || um_.rennen.pause()) {  // what has been measured of it must not change underneath
        return;
    }
    const double gang = um_.zeit.gang();
    if (const auto neu = geraeteuhr_.nachzustellen({um_.uhr.jetzt(), um_.zeit.messzeit_lesen()}, gang)) {
        um_.zeit.nachstellen(neu->stand, neu->gang);
        if (neu->gang != gang) {
            um_.rennen.pausen_nachmessen(neu->gang / gang);
        }
    }
}

void at2560::ereignis_melden(const at_meldung& meldung) {
    ereignis_tabelle& ereignisse = um_.ereignisse;
    if (ereignisse[art::chaostaster].aktiv && um_.rennen.pause()) {
        ereignisse.chaos_nachhall(nachhall);
    }
    if (meldung.ereignis.empty() || meldung.ereignis == at_nicht_belegt) {
        return;
    }
    if (betroffene() != 0) {  // what nobody knows may have a number that is no time
        uhr_nachstellen(meldung.zeit);
    }
    const zeit_ms stempel = at_zeitversatz_ != 0 ? stempel_von(meldung.zeit) : ereignisse.messzeit;
    for (int zeile = 1; zeile <= at_ereignisse_max; ++zeile) {
        if (profil_.at_ereignis.at(static_cast<std::size_t>(zeile)) == meldung.ereignis) {
            zeile_melden(zeile, stempel);
        }
    }
}

zeit_ms at2560::stempel_von(zeit_ms geraetezeit) {
    constexpr zeit_ms umlauf = zeit_ms{1} << 32;
    constexpr zeit_ms unordnung_ms = 2000;  // no event is told so long after a later one
    const zeit_ms jetzt = um_.zeit.messzeit_lesen();
    const auto abstand = [&](zeit_ms versatz) { return std::abs(jetzt - geraetezeit - versatz); };
    if (const zeit_ms davor = std::exchange(versatz_davor_, 0);
        davor != 0 && abstand(davor) < abstand(at_zeitversatz_)) {
        at_zeitversatz_ = davor;  // the event in between was damaged
    } else if (const zeit_ms zurueck = letzte_zeit_ - geraetezeit; geraetezeit >= 0 && zurueck > unordnung_ms) {
        versatz_davor_ = at_zeitversatz_;
        at_zeitversatz_ = zurueck > umlauf / 2 && zurueck <= umlauf ? at_zeitversatz_ + umlauf : jetzt - geraetezeit;
    }
    letzte_zeit_ = geraetezeit;
    return geraetezeit + at_zeitversatz_;
}

void at2560::zeile_melden(int zeile, zeit_ms stempel) {
    constexpr std::size_t vor_dem_chaos = 30;  // a name that stands here too is a sector's, not a button's
    ereignis_tabelle& ereignisse = um_.ereignisse;
    const ereignis_art nummer = at_art(zeile);
    const std::string& name = profil_.at_ereignis.at(static_cast<std::size_t>(zeile));
    if (std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), nummer) != art::rundenzaehlung.end()) {
        ereignisse.ueberfahrt_melden(nummer, stempel);
    } else {
        ereignisse.ereignis_setzen(nummer, stempel);
    }
    const int fahrer = art::spur_des_fahrertasters(nummer);
    const bool persoenlich = fahrer != 0 && name != profil_.at_ereignis.at(vor_dem_chaos);
    if (persoenlich) {
        ereignisse.chaos_knopf(fahrer);
        ereignisse.ereignis_setzen(art::chaostaster, ereignisse[art::chaostaster].ereignis_zeit);
    }
    if (persoenlich || nummer == art::chaostaster) {
        ereignisse.chaos_nachhall(nachhall);
    }
}

}  // namespace tarvel
