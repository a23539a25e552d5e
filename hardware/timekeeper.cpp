#include "hardware/timekeeper.h"

#include <algorithm>
#include <string_view>
#include <variant>

namespace tarvel {
namespace {

using plattform::zeitgeber_art;

constexpr dauer_ms erste_abgleiche_takt{200};
constexpr int erste_abgleiche = 6;
constexpr dauer_ms abgleich_takt{10000};
constexpr zeit_ms still_ms = 25000;  // two of its answers are missing
constexpr zeit_ms abfragepause_ms = 100;

std::string mit_nummer(const std::string& was, int nummer, const char* zustand) {
    return was + std::to_string(nummer) + zustand;
}

}  // namespace

std::string tk_schaltbefehl(const schaltung& befehl) {
    using ausgang = schaltung::ausgang;
    const char* zustand = befehl.an ? "on" : "off";
    switch (befehl.was) {
        case ausgang::ampel_rot:
            return befehl.nummer == 0 ? std::string("ampelnR") + zustand : mit_nummer("ampelR", befehl.nummer, zustand);
        case ausgang::ampel_gruen:
            return std::string("ampelnGR") + zustand;
        case ausgang::bahnstrom:
            return befehl.nummer == 0 ? std::string("relais_") + zustand : mit_nummer("relais", befehl.nummer, zustand);
        case ausgang::chaosanzeige:
            return std::string("ampelnGE") + zustand;
        case ausgang::rennende:
            break;
    }
    return std::string("raceEnd") + zustand;
}

timekeeper::timekeeper(const umgebung& um, const plattform::dienste& dienste)
    : um_(um),
      uhr_(dienste.uhr),
      meldungen_(dienste.meldungen),
      leitung_(dienste),
      zeitgeber_{dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, dauer_ms{1000}),
                 dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, dauer_ms{5}),
                 dienste.zeitgeber.erzeugen(zeitgeber_art::abfragend, abgleich_takt)} {
    zeitgeber_.tk_timer1->bei_tick = [this] { tk_timer1_tick(); };
    zeitgeber_.tk_timer->bei_tick = [this] { tk_timer_tick(); };
    zeitgeber_.tk_sync->bei_tick = [this] { tk_sync_tick(); };
    leitung_.melden = [this](const std::string& zeile) { letzte_zeile_ = zeile; };
}

void timekeeper::profil_laden() {
    const std::string& stamm = um_.einst.tk.tk_datei;
    profil_ = {};
    if (!um_.ablage.gibt_es(tk_dateiname(stamm)) && !tk_profil_speichern(um_.ablage, stamm, profil_)) {
        meldungen_.zeigen(um_.txt.meldung[22], um_.txt.titel[1]);
    } else if (!tk_profil_laden(um_.ablage, stamm, profil_)) {
        meldungen_.zeigen(um_.txt.meldung[23], um_.txt.titel[1]);
    }
    um_.einst.hardware.tk_spurmodus = profil_.modus;
}

bool timekeeper::oeffnen() {
    schliessen();
    profil_laden();
    gewuenscht_ = kanal_oeffnen();
    if (!gewuenscht_) {
        um_.bedienung.nicht_zu_oeffnen(*this, um_.nicht_da() + "\n\n" + letzte_zeile_);
    }
    return gewuenscht_;
}

bool timekeeper::kanal_oeffnen() {
    if (!leitung_.tk_oeffnen()) {
        return false;
    }
    empfang_.leeren();
    geraeteuhr_.vergessen();
    gehoert_ = uhr_.jetzt();
    zeitgeber_.tk_timer1->an();
    zeitgeber_.tk_timer->an();
    return true;
}

void timekeeper::schliessen() {
    gewuenscht_ = false;
    zeitgeber_.tk_timer1->aus();
    zeitgeber_.tk_timer->aus();
    zeitgeber_.tk_sync->aus();
    leitung_.schliessen();
}

bool timekeeper::verbunden() const {
    return leitung_.offen() && !leitung_.gestoert() && uhr_.jetzt() - gehoert_ <= still_ms;
}

void timekeeper::wieder_aufnehmen() {
    if (gewuenscht_ && !verbunden()) {
        schliessen();
        kanal_oeffnen();
        gewuenscht_ = true;
    }
}

void timekeeper::rennfenster_offen() {
    im_rennen_ = false;
    wieder_aufnehmen();
    if (gewuenscht_ && !verbunden()) {
        um_.bedienung.port_fehlt(um_.weg());
    }
}

void timekeeper::tk_timer1_tick() {
    zeitgeber_.tk_timer1->aus();
    leitung_.tk_senden("activate");
    leitung_.tk_senden("timest_start");
    for (const std::string_view befehl : tk_modusbefehle(profil_.modus)) {
        leitung_.tk_senden(befehl);
    }
    um_.ausgaben.wiederholen();  // what was switched before has not reached it
    abgleiche_ = 0;
    zeitgeber_.tk_sync->intervall(erste_abgleiche_takt);
    zeitgeber_.tk_sync->an();
}

void timekeeper::tk_sync_tick() {
    leitung_.tk_senden("get_timest");
    if (++abgleiche_ == erste_abgleiche) {
        zeitgeber_.tk_sync->intervall(abgleich_takt);
    }
}

std::optional<zeit_ms> timekeeper::uhr_lesen() {
    if (geraeteuhr_.bekannt()) {
        leitung_.tk_senden("get_timest");
    }
    return std::nullopt;
}

void timekeeper::tk_timer_tick() {
    const bool rennen_fragt = im_rennen_ && um_.rennen.rennen_laeuft();
    if (!rennen_fragt && uhr_.jetzt() - letzte_abfrage_ > abfragepause_ms) {
        while (tk_wert_zerlegen()) {
        }
    }
    if (leitung_.gestoert()) {
        const bool war_gewuenscht = gewuenscht_;
        schliessen();
        gewuenscht_ = war_gewuenscht;
        um_.bedienung.verloren();
    }
}

/// One event a tick, so that a race sees each of them.
void timekeeper::abfragen() {
    letzte_abfrage_ = uhr_.jetzt();
    tk_wert_zerlegen();
}

/// Takes what waits up to the first event. False if there was none.
bool timekeeper::tk_wert_zerlegen() {
    while (true) {
        if (const auto inhalt = empfang_.naechster()) {
            const tk::satz satz = tk::satz_lesen(*inhalt, profil_.digital());
            if (std::visit([this](const auto& eines) { return verarbeiten(eines); }, satz)) {
                um_.rennen.tankflanken_auswerten();
                return true;
            }
        } else if (const auto stueck = leitung_.tk_lesen()) {
            angekommen_ = stueck->stempel;
            empfang_.anhaengen(stueck->text());
        } else {
            return false;
        }
    }
}

bool timekeeper::verarbeiten(const tk::gestoert& /*satz*/) {
    ++verworfen_;
    return false;
}

bool timekeeper::verarbeiten(const tk::uhrzeit& satz) {
    gehoert_ = angekommen_;
    tk_zeit_setzen(satz.zeit);
    return false;
}

void timekeeper::tk_zeit_setzen(zeit_ms zeit) {
    const tk_uhr::befund befund = geraeteuhr_.aufnehmen(angekommen_, zeit);
    if (befund == tk_uhr::befund::fraglich) {
        leitung_.tk_senden("get_timest");
        return;
    }
    um_.zeit.zaehler_zuruecksetzen();
    const zeit_ms stand = geraeteuhr_.lesen(uhr_.jetzt());
    if (befund == tk_uhr::befund::neu) {
        const zeit_ms um = stand - um_.zeit.messzeit_lesen();
        um_.zeit.stellen(stand, geraeteuhr_.gang());
        um_.rennen.stempel_verschieben(um);
    } else if (!um_.rennen.pause()) {  // what has been measured of it must not change underneath
        um_.zeit.nachstellen(stand, geraeteuhr_.gang());
    }
}

bool timekeeper::verarbeiten(const tk::chaostaste& /*satz*/) {
    melden(art::chaostaster, jetzt_bei_ankunft());
    return true;
}

bool timekeeper::verarbeiten(const tk::sensor& satz) {
    gehoert_ = angekommen_;
    const ereignis_art nummer = profil_.modus == spurmodus::keiner ? 0 : profil_.art_von(satz);
    if (nummer == 0) {
        return false;
    }
    const zeit_ms stempel = stempel_von(satz.zeit);
    if (const int spur = art::spur_des_fahrertasters(nummer); spur != 0) {
        um_.ereignisse.chaos_knopf(spur);
        melden(art::chaostaster, stempel);
    } else {
        melden(nummer, stempel);
    }
    return true;
}

void timekeeper::melden(ereignis_art art, zeit_ms stempel) {
    const bool ist_runde =
        std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), art) != art::rundenzaehlung.end();
    // the first stamp holds; but in a pause crossings have an order of their own
    if (um_.ereignisse[art].aktiv && !(ist_runde && um_.rennen.pause())) {
        return;
    }
    if (ist_runde) {
        um_.ereignisse.ueberfahrt_melden(art, stempel);
    } else {
        um_.ereignisse.ereignis_melden(art, stempel);
    }
}

/// The race's clock as what is being taken was there.
zeit_ms timekeeper::jetzt_bei_ankunft() const {
    return um_.zeit.messzeit_lesen() - (uhr_.jetzt() - angekommen_);
}

zeit_ms timekeeper::stempel_von(zeit_ms geraetezeit) {
    if (geraeteuhr_.glaubhaft(geraetezeit, angekommen_)) {
        geraeteuhr_.gesehen(geraetezeit);
        return geraetezeit;
    }
    if (geraeteuhr_.bekannt()) {  // damaged, or its clock has begun anew: the answer tells
        ++verworfen_;
        leitung_.tk_senden("get_timest");
    }
    return jetzt_bei_ankunft();
}

}  // namespace tarvel
