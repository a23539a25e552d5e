#include "hardware/control_unit.h"

#include <algorithm>
#include <array>

namespace tarvel {
namespace {

constexpr std::string_view portwerte = "19200,N,8,1";
constexpr int comport_max = 20;
constexpr std::string_view abfrage = "?\r";
constexpr std::string_view starttaste_befehl = "T2P$";
constexpr std::string_view programmierung_ruecksetzen = "J60980$";
constexpr std::string_view anzeigen_ruecksetzen = "=101$";

constexpr std::size_t empfang_max = 4096;  // characters: far more than ever wait between two ticks
constexpr int durchgaenge_max = 100;       // slow passes without an end of a record
constexpr zeit_ms antwort_max_ms = 50;     // then the poll is lost, and the next one goes out
constexpr zeit_ms verbunden_ms = 1000;     // the unit counts as there for so long after a record
constexpr zeit_ms uhr_sprung_ms = 2000;    // nothing is that late of itself: the unit's clock has begun anew
constexpr zeit_ms uhr_umlauf = zeit_ms{1} << 32;
constexpr int volle_stufe_tank = 14;

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
      port_(dienste.serienports.erzeugen()),
      cu_abfrage_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1)),
      cu_auswertung_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 1)),
      cu_tankabfrage_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100)),
      cu_ende_timer_(dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, 100)) {
    port_->bei_empfang = [this](std::string_view bytes) { empfangen(bytes); };
    cu_abfrage_timer_->bei_tick = [this] { cu_abfrage_tick(); };
    cu_auswertung_timer_->bei_tick = [this] { cu_auswertung_tick(); };
    cu_tankabfrage_->bei_tick = [this] { cu_tankabfrage_tick(); };
    cu_ende_timer_->bei_tick = [this] {
        cu_ende_timer_->aus();
        if (!im_startzustand()) {
            starttaste();
        }
    };
}

bool control_unit::mscomm1_oeffnen() {
    schliessen();
    const int nummer = um_.einst.cu_modus;
    if (nummer < 1 || nummer > comport_max || !port_->oeffnen(nummer, portwerte)) {
        return false;
    }
    cu_tankabfrage_->an();
    return true;
}

void control_unit::schliessen() {
    port_->schliessen();
    cu_abfrage_timer_->aus();
    cu_auswertung_timer_->aus();
    cu_tankabfrage_->aus();
    cu_ende_timer_->aus();
    cu_empfang_.clear();
    antwort_offen_ = false;
    geantwortet_ = 0;
    uhr_bekannt_ = false;
    letzter_stempel_ = 0;
    luecke_ = 0;
    umlauf_ = 0;
    startzustand_ = start::unbekannt;
}

bool control_unit::antwortet() const {
    return port_->offen() && geantwortet_ != 0 && uhr_.jetzt() - geantwortet_ <= verbunden_ms;
}

bool control_unit::senden(std::string_view befehl) {
    return port_->offen() && port_->schreiben(std::string(1, cu::befehlszeichen).append(befehl));
}

void control_unit::starttaste() {
    senden(starttaste_befehl);
}

void control_unit::empfangen(std::string_view bytes) {
    cu_empfang_.append(bytes);
    if (cu_empfang_.size() > empfang_max) {
        cu_empfang_.erase(0, cu_empfang_.size() - empfang_max);
    }
    if (bytes.find(cu::satzende) != std::string_view::npos) {
        antwort_offen_ = false;
    }
}

void control_unit::cu_abfrage_tick() {
    const zeit_ms jetzt = uhr_.jetzt();
    if (antwort_offen_ && jetzt - abgefragt_ < antwort_max_ms) {
        return;  // polls must not queue up in front of the commands
    }
    antwort_offen_ = true;
    abgefragt_ = jetzt;
    senden(abfrage);
}

void control_unit::cu_auswertung_tick() {
    const std::string satz = cu::satz_abtrennen(cu_empfang_);
    if (!satz.empty()) {
        satz_verarbeiten(satz);
    }
}

void control_unit::cu_tankabfrage_tick() {
    cu_abfrage_tick();
    const std::string satz = cu::satz_abtrennen(cu_empfang_);
    if (!satz.empty()) {
        durchgaenge_ohne_satz_ = 0;
        satz_verarbeiten(satz);
    } else if (!cu_empfang_.empty() && ++durchgaenge_ohne_satz_ >= durchgaenge_max) {
        cu_empfang_.clear();
        durchgaenge_ohne_satz_ = 0;
    }
}

void control_unit::satz_verarbeiten(const std::string& satz) {
    const zeit_ms still = geantwortet_ == 0 ? 0 : uhr_.jetzt() - geantwortet_;
    geantwortet_ = uhr_.jetzt();
    // A busy machine finds passages that have waited as long as it was busy, until the unit has none left.
    const bool nichts_wartet = still <= antwort_max_ms && std::holds_alternative<cu::status>(cu::satz_lesen(satz));
    luecke_ = nichts_wartet ? 0 : std::max(luecke_, still);
    if (bewirkt.satz_empfangen) {
        bewirkt.satz_empfangen(satz);
    }
    std::visit([this](const auto& inhalt) { verarbeiten(inhalt); }, cu::satz_lesen(satz));
}

void control_unit::verarbeiten(const cu::ueberfahrt& ueberfahrt) {
    zeit_ms stempel = ueberfahrt.stempel + umlauf_;
    if (uhr_bekannt_ && letzter_stempel_ - stempel > uhr_umlauf / 2) {
        umlauf_ += uhr_umlauf;
        stempel += uhr_umlauf;
    }
    uhr_nachstellen(stempel);
    if (const ereignis_art nummer = cu_art(ueberfahrt.sensor, ueberfahrt.fahrzeug); nummer != 0) {
        um_.ereignisse[nummer].aktiv = true;
        um_.ereignisse[nummer].ereignis_zeit = stempel;
    }
}

void control_unit::uhr_nachstellen(zeit_ms stempel) {
    const zeit_ms verspaetung = um_.zeit.messzeit_lesen() - stempel;
    if (!uhr_bekannt_ || stempel < letzter_stempel_ || verspaetung > uhr_sprung_ms + luecke_ ||
        verspaetung < -uhr_sprung_ms) {
        um_.zeit.versatz(um_.zeit.versatz() + verspaetung);
        bewirkt.stempel_verschieben(-verspaetung);
        uhr_bekannt_ = true;
    } else if (verspaetung < 0) {  // this record came through faster than any before
        um_.zeit.versatz(um_.zeit.versatz() + verspaetung);
    }
    letzter_stempel_ = stempel;
}

void control_unit::verarbeiten(const cu::rundenzaehler_bereit& /*bereit*/) {
    if (um_.einst.cu_option && bewirkt.rennen_ruht()) {
        bewirkt.rennen_vorbereiten();
    }
}

void control_unit::verarbeiten(const cu::status& status) {
    if (!bewirkt.rennen_laeuft() && um_.einst.cu_tankautomatik) {
        bewirkt.tankfunktion(status.tankmodus != 0);
    }
    if (um_.param.tank_aktiv) {
        for (int bit = 0; bit < spuren_max - 1; ++bit) {
            boxenstatus_[bit + 2] = (status.boxenbits >> bit & 1) != 0;
        }
        cu_tank_auswerten(status);
    }
    startzustand_auswerten(status.startzustand);
}

void control_unit::cu_tank_auswerten(const cu::status& status) {
    for (const int spur : alle_spuren) {
        if (status.tank[spur] != cu_tank_wert_[spur]) {
            cu_tank_wert_[spur] = status.tank[spur];
            bewirkt.fuellstand(spur, status.tank[spur]);
        }
    }
}

void control_unit::startzustand_auswerten(bool steht) {
    startzustand_ = steht ? start::steht : start::faehrt;
    if (!steht) {
        neustart_wartet_ = false;
        nach_rennende_ = false;
        chaos_durch_box_ = false;
        return;
    }
    if (um_.einst.cu_sondermodus && !nach_rennende_ && bewirkt.rennen_ruht()) {
        bewirkt.rennen_vorbereiten();
    }
    if (rennen_laeuft_ && !neustart_wartet_ && bewirkt.rennen_laeuft()) {
        chaos_durch_box_ = true;
        um_.ereignisse.ereignis_melden(art::chaostaster);
    }
}

void control_unit::rennbetrieb(bool an) {
    cu_tankabfrage_->aus();
    cu_abfrage_timer_->aus();
    cu_auswertung_timer_->aus();
    if (an) {
        cu_abfrage_timer_->an();
        cu_auswertung_timer_->an();
    } else {
        cu_tankabfrage_->an();
    }
}

void control_unit::rennfenster_offen() {
    rennen_laeuft_ = false;
    neustart_wartet_ = false;
    chaos_durch_box_ = false;
    if (!port_->offen() && !mscomm1_oeffnen()) {  // it may have been unplugged since, and plugged in again
        bewirkt.port_fehlt();
        return;
    }
    if (!im_startzustand() || nach_rennende_) {  // the reset would throw out who has pressed the key already
        senden(programmierung_ruecksetzen);
        senden(anzeigen_ruecksetzen);
    }
    for (const std::string& befehl : um_.einst.cu_reglerbefehl) {
        senden(befehl);
    }
    rennbetrieb(true);
}

void control_unit::rennfenster_zu() {
    cu_ende_timer_->aus();
    if (port_->offen()) {
        rennbetrieb(false);
    }
}

void control_unit::rennen_bereit() {
    rennen_laeuft_ = false;
    neustart_wartet_ = false;
    cu_ende_timer_->aus();
    if (um_.einst.cu_sondermodus && startzustand_ == start::faehrt) {
        starttaste();  // stops the cars; the second press starts the light
    }
}

void control_unit::startkommando() {
    if (um_.einst.cu_sondermodus) {
        starttaste();
    }
}

void control_unit::abbrechen() {
    if (um_.einst.cu_sondermodus) {  // else somebody stands at its key
        starttaste();
    }
}

void control_unit::neustart() {
    neustart_wartet_ = true;
    starttaste();
}

void control_unit::rennstart() {
    rennen_laeuft_ = true;
}

void control_unit::rennende() {
    if (rennen_laeuft_) {
        rennen_laeuft_ = false;
        nach_rennende_ = true;
        cu_ende_timer_->an();
    }
}

void control_unit::fuehrungsrunden(int runden) {
    const bool rundenrennen = um_.param.renn_art_text == um_.txt.text_runden;
    const int wert = rundenrennen ? static_cast<int>(um_.param.renn_ziel) - runden : runden;
    for (const std::string& befehl : cu::anzeigebefehle(wert)) {
        senden(befehl);
    }
}

void control_unit::platz(int spur, int platz) {
    for (const std::string& befehl : cu::platzbefehle(spur, platz)) {
        senden(befehl);
    }
}

void control_unit::schalten(const schaltung& befehl) {
    // its cars know no track power: what stops them in a pause is its start key
    if (befehl.was == schaltung::ausgang::chaosanzeige && befehl.an && startzustand_ == start::faehrt) {
        starttaste();
    }
}

}  // namespace tarvel
