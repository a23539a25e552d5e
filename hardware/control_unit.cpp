#include "hardware/control_unit.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

constexpr int volle_stufe = 14;           // of the 15 that a tank can tell
constexpr int durchgaenge_max = 100;      // slow passes without an end of a record
constexpr zeit_ms verbunden_ms = 1000;    // the unit counts as connected for so long after a record
constexpr zeit_ms ampel_still_ms = 3000;  // and a race waits for its light this long
constexpr zeit_ms ohne_luecke_ms = 200;   // between two records of a unit that answers
constexpr zeit_ms nach_luecke_ms = 1000;  // what has waited comes in the time that it waited, and a little
constexpr zeit_ms stau_max_ms = 60000;    // and no buffer holds more
constexpr zeit_ms gehorcht_ms = 1000;     // on a slow line its statuses show so late that its cars have been stopped

/// What a car's passage at a sensor means; cars 7 and 8 have no lane.
ereignis_art cu_art(int sensor, int fahrzeug) {
    if (fahrzeug < 1 || fahrzeug > spuren_max) {
        return 0;
    }
    return sensor == 1 ? art::rundenzaehlung[fahrzeug] : erste_zwischenzeit + 2 * (fahrzeug - 1) + sensor - 2;
}

using plattform::zeitgeber_art;

}  // namespace

control_unit::control_unit(const umgebung& um, const plattform::dienste& dienste)
    : um_(um),
      uhr_(dienste.uhr),
      leitung_(dienste),
      cu_abfrage_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      cu_auswertung_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      cu_tankabfrage_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100ms)),
      cu_tankentscheidung_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100ms)),
      cu_alter_rz_start_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1ms)),
      cu_ende_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100ms)) {
    cu_abfrage_timer_->bei_tick = [this] { leitung_.abfragen(); };
    cu_auswertung_timer_->bei_tick = [this] { cu_auswertung_tick(); };
    cu_tankabfrage_->bei_tick = [this] { leitung_.abfragen(); };
    cu_tankentscheidung_->bei_tick = [this] { cu_tankentscheidung_tick(); };
    cu_alter_rz_start_->bei_tick = [this] { cu_alter_rz_start_tick(); };
    cu_ende_timer_->bei_tick = [this] {
        if ((im_startzustand() && !im_licht()) || anhalten()) {
            neustart_seit_.reset();
            cu_ende_timer_->aus();
        }
    };
}

faehigkeiten control_unit::kann() const {
    return {.eigener_tank = true, .start_am_geraet = !um_.einst.cu.cu_sondermodus, .feste_wagen = true};
}

bool control_unit::oeffnen() {
    schliessen();
    gewuenscht_ = true;
    const int anschluss = um_.einst.cu.anschluss.cu_modus;
    stand_verbraucht_ = std::exchange(anschluss_, anschluss) == anschluss && stand_verbraucht_;
    if (!leitung_.oeffnen(anschluss)) {
        return false;
    }
    geoeffnet_ = uhr_.jetzt();
    rennbetrieb(false);
    return true;
}

void control_unit::wieder_aufnehmen() {
    if (!gewuenscht_ || leitung_.offen() || !leitung_.oeffnen(um_.einst.cu.anschluss.cu_modus)) {
        return;
    }
    geoeffnet_ = uhr_.jetzt();
    cu_startzustand_ = start::unbekannt;  // what it has done meanwhile is no news
    if (im_rennfenster_ && !rennen_laeuft_) {
        fuer_rennen_einrichten();
    } else {
        rennbetrieb(im_rennfenster_);  // in a race nothing may clear the laps that it has counted meanwhile
    }
}

void control_unit::schliessen() {
    gewuenscht_ = false;
    leitung_.schliessen();
    cu_abfrage_timer_->aus();
    cu_auswertung_timer_->aus();
    cu_tankabfrage_->aus();
    cu_tankentscheidung_->aus();
    cu_alter_rz_start_->aus();
    cu_ende_timer_->aus();
    geantwortet_ = 0;
    geraeteuhr_.vergessen();
    summenpruefung_ = {};
    pausengang_ = 1;
    luecke_ = 0;
    cu_startzustand_ = start::unbekannt;
}

bool control_unit::antwortet() const {
    return leitung_.offen() && geantwortet_ != 0 && uhr_.jetzt() - geantwortet_ <= verbunden_ms;
}

geraeteampel* control_unit::ampel() {
    return leitung_.offen() && uhr_.jetzt() - std::max(geoeffnet_, geantwortet_) <= ampel_still_ms ? this : nullptr;
}

void control_unit::starttaste() {
    leitung_.senden(cu::starttaste);
}

bool control_unit::anhalten() {
    const zeit_ms jetzt = uhr_.jetzt();
    if (angehalten_ && jetzt - *angehalten_ < gehorcht_ms) {
        return false;
    }
    angehalten_ = jetzt;
    starttaste();
    return true;
}

bool control_unit::im_licht() const {
    return neustart_seit_ && uhr_.jetzt() - *neustart_seit_ <= laengste_ms;
}

void control_unit::cu_auswertung_tick() {
    const std::string satz = leitung_.satz();
    if (!satz.empty()) {
        satz_verarbeiten(satz);
    }
}

void control_unit::cu_tankentscheidung_tick() {
    const std::string satz = leitung_.satz();
    if (!satz.empty()) {
        durchgaenge_ohne_satz_ = 0;
        satz_verarbeiten(satz);
    } else if (leitung_.rest_da() && ++durchgaenge_ohne_satz_ >= durchgaenge_max) {
        leitung_.verwerfen();
        durchgaenge_ohne_satz_ = 0;
    }
}

void control_unit::satz_verarbeiten(const std::string& satz) {
    const zeit_ms jetzt = uhr_.jetzt();
    const zeit_ms still = geantwortet_ == 0 ? 0 : jetzt - geantwortet_;
    geantwortet_ = jetzt;
    if (still > ohne_luecke_ms) {
        geraeteuhr_.wieder_zu_hoeren();
        luecke_ = jetzt < luecke_bis_ ? std::max(luecke_, still) : still;
        luecke_bis_ = std::max(luecke_bis_, jetzt + std::min(luecke_, stau_max_ms) + nach_luecke_ms);
    } else if (jetzt >= luecke_bis_) {
        luecke_ = 0;
    }
    std::visit([this](const auto& inhalt) { verarbeiten(inhalt); }, cu::satz_lesen(satz));
}

void control_unit::verarbeiten(const cu::ueberfahrt& ueberfahrt) {
    if (!summenpruefung_.annehmen(ueberfahrt)) {
        ++verworfen_;
        return;
    }
    const cu_uhr::befund befund =
        geraeteuhr_.aufnehmen({ueberfahrt, uhr_.jetzt(), um_.zeit.messzeit_lesen(), luecke_, um_.rennen.pause()});
    uhr_nachstellen(befund);
    if (const ereignis_art nummer = cu_art(ueberfahrt.sensor, ueberfahrt.fahrzeug); nummer != 0) {
        um_.ereignisse.ueberfahrt_melden(nummer, befund.im_ausfall ? in_der_pause() : befund.stempel);
    }
}

/// A stamp of the pause that is, or was the last.
zeit_ms control_unit::in_der_pause() const {
    constexpr zeit_ms davor_ms = 200;  // behind which nobody could mean a car that has just been let go
    return um_.rennen.pause() ? um_.zeit.messzeit_lesen() : um_.ereignisse.gilt_ab - davor_ms;
}

void control_unit::uhr_nachstellen(const cu_uhr::befund& befund) {
    if (!befund.nachstellen) {
        return;
    }
    const double gang = geraeteuhr_.gang();
    const zeit_ms stand = geraeteuhr_.lesen(uhr_.jetzt());
    if (befund.versetzen) {
        um_.zeit.stellen(stand, gang);
        befund.nur_die_uhr ? um_.rennen.uhr_nachruecken(*befund.versetzen)
                           : um_.rennen.stempel_verschieben(*befund.versetzen);
        if (nach_ausfall_) {  // which the calendar has measured, or this clock itself
            um_.rennen.pausen_festhalten(befund.stempel);
        }
    } else {
        um_.zeit.nachstellen(stand, gang);
    }
    if (gang != pausengang_) {
        um_.rennen.pausen_nachmessen(gang / pausengang_);
        pausengang_ = gang;
    }
}

void control_unit::verarbeiten(const cu::rundenzaehler& zaehler) {
    geraeteuhr_.nichts_wartet();
    const bool eben_bereit = !std::exchange(zaehlerbox_bereit_, zaehler.bereit) && zaehler.bereit;
    if (eben_bereit && cu_alter_rz_start_->laeuft() && um_.rennen.rennen_ruht()) {
        cu_alter_rz_start_->aus();
        um_.rennen.rennen_vorbereiten();
    }
}

void control_unit::verarbeiten(const cu::status& status) {
    geraeteuhr_.nichts_wartet();
    // A status has no sum, and a damaged one must not stop the race: it takes two. After a silence any is news. Where
    // damage is known by the passages' sums it must not prepare, start or resume one either, nor drain a tank.
    const bool wiederholt = std::exchange(letzter_status_, status) == status;
    const bool streng = summenpruefung_.bewiesen();
    const bool bestaetigt = wiederholt || luecke_ > 0 || !(rennen_laeuft_ || streng);
    if (bestaetigt && !um_.rennen.rennen_laeuft() && um_.einst.cu.cu_tankautomatik) {
        um_.rennen.tankfunktion(status.tankmodus != 0);
    }
    if (bestaetigt && um_.param.tank_aktiv && cu_abfrage_timer_->laeuft()) {
        for (int bit = 0; bit < spuren_max - 1; ++bit) {
            cu_boxenstatus_[bit + 2] = (status.boxenbits >> bit & 1) != 0;
        }
        cu_tank_auswerten(status);
    }
    if (bestaetigt || (!status.startzustand && !streng)) {
        startzustand_auswerten(status.startzustand);
    }
}

void control_unit::cu_tank_auswerten(const cu::status& status) {
    const bool alle = std::exchange(gezeigte_tankgroesse_, um_.einst.tank_inhalt) != um_.einst.tank_inhalt;
    for (const int spur : alle_spuren) {
        const bool neu = std::exchange(cu_tank_wert_[spur], status.tank[spur]) != status.tank[spur];
        if (neu || alle) {
            um_.rennen.fuellstand(spur, status.tank[spur], volle_stufe, neu);
        }
    }
}

void control_unit::startzustand_auswerten(bool steht) {
    const start vorher = std::exchange(cu_startzustand_, steht ? start::steht : start::faehrt);
    if (!steht) {
        neustart_seit_.reset();
        stand_verbraucht_ = stand_verbraucht_ && vorher == start::faehrt;  // it may only just be asked to stop
        cu_chaos_durch_box_ = false;
        return;
    }
    angehalten_.reset();
    if (um_.einst.cu.cu_sondermodus && !stand_verbraucht_ && um_.rennen.rennen_ruht()) {
        um_.rennen.rennen_vorbereiten();
    }
    if (rennen_laeuft_ && !neustart_seit_ && um_.rennen.rennen_laeuft()) {
        cu_chaos_durch_box_ = true;
        um_.ereignisse.ereignis_melden(art::chaostaster);
    }
}

void control_unit::rennbetrieb(bool an) {
    for (const auto* zeitgeber :
         {&cu_tankabfrage_, &cu_tankentscheidung_, &cu_alter_rz_start_, &cu_abfrage_timer_, &cu_auswertung_timer_}) {
        (*zeitgeber)->aus();
    }
    if (an) {
        cu_abfrage_timer_->an();
        cu_auswertung_timer_->an();
    } else {
        cu_tankabfrage_->an();
        cu_tankentscheidung_->an();
    }
}

void control_unit::rennfenster_offen() {
    im_rennfenster_ = true;
    rennen_laeuft_ = false;
    neustart_seit_.reset();
    cu_chaos_durch_box_ = false;
    zaehlerbox_bereit_ = false;
    gezeigte_tankgroesse_ = 0;
    stand_verbraucht_ = stand_verbraucht_ && cu_startzustand_ != start::faehrt;
    if (!leitung_.offen() && !oeffnen()) {  // it may have been unplugged since, and plugged in again
        um_.bedienung.port_fehlt(um_.txt.meldung[14]);
        return;
    }
    fuer_rennen_einrichten();
}

void control_unit::fuer_rennen_einrichten() {
    if (!cu_nicht_zuruecksetzen()) {
        leitung_.senden(cu::programmierung_ruecksetzen);
        leitung_.senden(cu::anzeigen_ruecksetzen);
    }
    for (const std::string& befehl : um_.einst.cu.cu_reglerbefehl) {
        leitung_.senden(befehl);
    }
    rennbetrieb(true);
    if (um_.einst.cu.cu_option) {
        cu_alter_rz_start_->an();
    }
}

void control_unit::cu_alter_rz_start_tick() {
    if (!um_.einst.cu.cu_option || rennen_laeuft_) {
        cu_alter_rz_start_->aus();
    }
}

void control_unit::rennfenster_zu() {
    im_rennfenster_ = false;
    cu_ende_timer_->aus();
    if (im_licht()) {
        starttaste();
    }
    neustart_seit_.reset();
    if (leitung_.offen()) {
        if (!cu_nicht_zuruecksetzen()) {
            leitung_.senden(cu::anzeigen_ruecksetzen);
        }
        rennbetrieb(false);
    }
}

void control_unit::einfahren_beginnt() {
    cu_ende_timer_->aus();
    if (um_.einst.cu.cu_sondermodus && im_startzustand()) {
        starttaste();  // else somebody stands at its key
    }
}

void control_unit::einfahren_vorbei() {
    stand_verbraucht_ = true;
    cu_ende_timer_->an();
}

void control_unit::rennen_bereit() {
    geraeteuhr_.neu_ausrichten();
    gezeigte_tankgroesse_ = 0;
    rennen_laeuft_ = false;
    nach_ausfall_ = false;
    neustart_seit_.reset();
    cu_ende_timer_->aus();
    const bool nach_ausfall = um_.rennen.pause();  // then it is told nothing before the director goes on
    if (um_.einst.cu.cu_sondermodus && cu_startzustand_ == start::faehrt && !nach_ausfall) {
        anhalten();  // the second press starts the light
    }
}

void control_unit::startkommando() {
    if (um_.einst.cu.cu_sondermodus) {
        starttaste();
    }
}

void control_unit::abbrechen() {
    if (um_.einst.cu.cu_sondermodus) {  // else somebody stands at its key
        starttaste();
    }
}

void control_unit::neustart() {
    neustart_seit_ = uhr_.jetzt();
    starttaste();
}

void control_unit::start_abgebrochen() {
    stand_verbraucht_ = true;  // else the race would begin again by itself
    if (leitung_.offen() && um_.einst.cu.cu_option) {
        cu_alter_rz_start_->an();
    }
}

void control_unit::rennstart() {
    rennen_laeuft_ = true;
}

void control_unit::rennende() {
    if (rennen_laeuft_ || im_licht()) {
        rennen_laeuft_ = false;
        stand_verbraucht_ = true;
        cu_ende_timer_->an();
    }
}

void control_unit::fuehrungsrunden(int runden) {
    const bool rundenrennen = !um_.param.ist_zeitrennen();
    const int wert = rundenrennen ? um_.param.renn_ziel.runden() - runden : runden;
    for (const std::string& befehl : cu::anzeigebefehle(wert)) {
        leitung_.senden(befehl);
    }
}

void control_unit::platz(int spur, int platz) {
    cu_werte_senden(spur, platz);
}

void control_unit::cu_werte_senden(int spur, int platz) {
    for (const std::string& befehl : cu::platzbefehle(spur, platz)) {
        leitung_.senden(befehl);
    }
}

void control_unit::schalten(const schaltung& befehl) {
    // its cars know no track power: what stops them in a pause is its start key
    if (befehl.was == schaltung::ausgang::chaosanzeige && befehl.an && cu_startzustand_ == start::faehrt) {
        anhalten();
    }
}

}  // namespace tarvel
