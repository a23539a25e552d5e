#include "race/rennablauf.h"

#include <algorithm>
#include <utility>

#include "core/zeit.h"

namespace tarvel {

rennablauf::rennablauf(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    um_.zeitgeber.renntimer->bei_tick = [this] { renntimer_tick(); };
    um_.zeitgeber.renntimer2->bei_tick = [this] { renntimer2_tick(); };
    um_.zeitgeber.renntimer3->bei_tick = [this] { renntimer3_tick(); };
    um_.zeitgeber.nachlauftimer1->bei_tick = [this] { t_.ende.nachlauf_tick(); };
    einfahrzeit_beendet_ = um_.protokoll.befehl("eingefahren", [this] { freigeben_nach_einfahrzeit(); });
}

void rennablauf::laden() {
    um_.zustand.rennen_beendet = true;
    um_.spuren_einteilen(false);
    if (um_.einst.sensorkalibrierung) {
        um_.ausgaben.kalibrieren();
    }
    t_.ansicht.oeffnen();
    t_.ansicht.farben_setzen();
    t_.ansicht.fusszeile_setzen(um_.txt.werbetext, false);
    t_.ansicht.geraetealarm_setzen("");
    rennen_zuruecksetzen();
    vor_dem_start();
    (mit_einfahrzeit() ? um_.bahn.Command6 : um_.bahn.Command1).fokus_setzen();
    t_.blinken.beginnen();
    um_.quellen.melden(&messquelle::rennfenster_offen);
}

void rennablauf::vor_dem_start() {
    um_.bahn.Command1.aktiviert(!um_.quellen.kann().bootet);
    um_.bahn.Command2.aktiviert(true);
    um_.bahn.Command3.aktiviert(false);
    um_.bahn.Command4.aktiviert(false);
    um_.bahn.Command6.aktiviert(true);
}

void rennablauf::entladen() {
    um_.fenster.entladen(fenstername::Form2);
    um_.fenster.entladen(fenstername::einfahren);
    t_.blinken.beenden();
    um_.quellen.melden(&messquelle::rennfenster_zu);
    um_.zeitgeber.alle_aus();
    um_.zustand.rennen_beendet = true;
    um_.bahn.Nachtabschaltung.sichtbar(false);
}

void rennablauf::rennen_zuruecksetzen() {
    renn_zustand& zustand = um_.zustand;
    for (const int spur : alle_spuren) {
        spur_zustand& frisch = zustand.spur[spur];
        const dauer_s strafzeit = frisch.strafzeit;     // belongs to the start, not to the reset
        const double tank_inhalt = frisch.tank_inhalt;  // perhaps that of a device
        frisch = {};
        frisch.strafzeit = strafzeit;
        frisch.tank_inhalt = tank_inhalt;
        frisch.ziel_erreicht = !um_.param.spur_aktiv[spur];
        zustand.konto.leeren(spur);
    }
    zustand.pause_abzug = 0;
    zustand.pausen_bis_ende.reset();
    zustand.pausen_messbar.reset();
    zustand.unterbrechungen.clear();
    zustand.fortgesetzt = false;
    zustand.fortsetzung_wartet = false;
    zustand.umgesetzt = false;
    zustand.konto.von_vorn();
    zustand.fuehrungsrunden = 0;
    t_.fruehstart.zuruecksetzen();
    t_.ende.zuruecksetzen();
    t_.ansicht.anzeigen_leeren();
    t_.tank.zuruecksetzen();
    t_.sektor.zuruecksetzen();
    pause->zuruecksetzen();
    t_.plaetze.aufstellen();
    t_.uhr.zuruecksetzen();
}

void rennablauf::ampel_takt_bestimmen() {
    um_.zustand.ampel_takt = um_.einst.ampel_takt;
    if (um_.einst.start_option != startzeit::variabel) {
        return;
    }
    const double zufall = um_.zufall.bruchteil();
    um_.zustand.ampel_takt = um_.einst.start_ampel_modus == ampelwahl::dragrace
                                 ? dauer_ms(static_cast<int>((zufall * 5 + 1) * 500))
                                 : dauer_s(static_cast<int>(zufall * 4 + 1));
}

void rennablauf::rennstart_vorbereiten() {
    um_.teil_von.melden(&veranstaltung::begonnen);
    t_.blinken.beenden();
    um_.ausgaben.rennende_signal(false);  // perhaps still on from the race before
    if (mit_einfahrzeit()) {
        um_.ausgaben.ruhezustand();  // the warm-up has left the track without power and the green lamp dark
    } else if (um_.einst.sensorkalibrierung) {
        um_.ausgaben.relais_off(0);  // the calibration has put the outputs to rest
    }
    um_.zustand.rennen_beendet = false;
    um_.sounds.spielen(sound::rennstart_vorbereitet);
    rennen_zuruecksetzen();
    um_.ereignisse.ruhe_herstellen();
    for (spur_zustand& spur : um_.zustand.spur) {
        spur.tank_halt = {};
        spur.strafzeit = {};
    }
    t_.uhr.restzeit_vorbereiten(um_.ist_zeitrennen() ? um_.param.renn_ziel.ms() : 0);
    ampel_takt_bestimmen();
    um_.quellen.melden(&messquelle::rennen_bereit);
    um_.bahn.Command1.aktiviert(false);
    um_.bahn.Command2.aktiviert(false);
    um_.bahn.Command3.aktiviert(false);
    um_.bahn.Command4.aktiviert(false);
    um_.bahn.Command6.aktiviert(false);
    um_.bahn.Frame1.fokus_setzen();  // a second press of the same key must not reach the next command
    if (um_.einst.nachtrennen_modus != nachtrennen::aus) {
        t_.ansicht.bildschirm_dunkel();
    }
    if (um_.einst.start_ampel_modus == ampelwahl::keine && um_.quellen.ampel() == nullptr) {
        rennen_starten();
    } else {
        um_.fenster.zeigen(fenstername::Form2);
    }
}

void rennablauf::einfahrzeit_starten() {
    um_.teil_von.melden(&veranstaltung::begonnen);
    t_.blinken.beenden();
    um_.ereignisse.ruhe_herstellen();
    rennen_zuruecksetzen();
    um_.ausgaben.stillstand();
    um_.bahn.Command1.aktiviert(false);  // a device that starts races must not start one now
    um_.bahn.Command6.aktiviert(false);
    um_.fenster.zeigen(fenstername::einfahren, anzeige_art::modal);
}

void rennablauf::freigeben_nach_einfahrzeit() {
    um_.ausgaben.stillstand();
    um_.ereignisse.ruhe_herstellen();
    um_.ereignisse.strecke_leeren();
    vor_dem_start();
    um_.bahn.Command1.fokus_setzen();
}

void rennablauf::start_abgebrochen() {
    um_.zustand.rennen_beendet = true;
    um_.bahn.Nachtabschaltung.sichtbar(false);
    rennen_zuruecksetzen();  // what a false start has brought is over with the start
    vor_dem_start();
    t_.blinken.beginnen();
    um_.bahn.Frame1.fokus_setzen();  // a second press of the key that stopped the start must not begin another
}

void rennablauf::rennen_starten() {
    um_.uhr_stellen();
    rennen_starten(um_.zeit.ereignis_zeit_lesen());
    befehle_freigeben();
}

void rennablauf::befehle_freigeben() {
    um_.bahn.Command2.aktiviert(true);
    // a device that is started at its own key is paused there too
    um_.bahn.Command3.aktiviert(um_.zustand.chaos_aktiv || um_.quellen.ampel() == nullptr ||
                                !um_.quellen.kann().start_am_geraet);
    um_.bahn.Command4.aktiviert(true);
}

void rennablauf::rennen_starten(zeit_ms stempel) {
    renn_zustand& zustand = um_.zustand;
    um_.zeitgeber.rennen_aus();
    um_.protokoll.vermerken(vermerk::gruen, {stempel});
    zustand.start_zeit = stempel;
    zustand.renn_ende_zeit = zustand.start_zeit + um_.param.renndauer_ms;
    zustand.rennen_start_uhrzeit = uhrzeit_text(um_.kalender.jetzt());
    um_.ereignisse.messzeit = zustand.start_zeit;
    um_.ereignisse.gelten_lassen(std::min(stempel, um_.zeit.messzeit_lesen()));  // it may be stamped a little ahead
    um_.ereignisse.chaos_fahrer.fuellen(false);
    um_.ereignisse[art::ampel_gruen].aktiv = false;
    um_.ereignisse[art::chaostaster].aktiv = um_.einst.chaos_schalter && um_.ereignisse[art::chaostaster].aktiv;
    um_.zeitgeber.rennen_an();
    um_.quellen.melden(&messquelle::rennstart);
    um_.sounds.spielen(sound::rennen_gestartet);
    um_.ereignisse.rundenzaehlung_leeren();
    for (const int spur : alle_spuren) {
        zeit_ms& start_zeit = zustand.spur[spur].start_zeit;
        if (!um_.einst.start_zeit_sensor || start_zeit == 0) {
            start_zeit = stempel;
        }
        zustand.konto.start_stempeln(spur, start_zeit);
    }
    t_.ansicht.freigeben();
}

void rennablauf::renntimer_tick() {
    t_.tank.tank_kontakte_auswerten();
    t_.tank.tank_alle_spuren();
    renn_zustand& zustand = um_.zustand;
    if (!zustand.rennen_beendet && !zustand.chaos_aktiv) {
        um_.ereignisse.messzeit = um_.zeit.messzeit_lesen();
        t_.zaehlung.runden_auswerten();
    }
    for (const int spur : alle_spuren) {
        if (zustand.konto.runden(spur) >= 0) {
            um_.bahn.zaehler[spur].schriftfarbe(um_.einst.farben_spur[spur]);
        }
    }
    t_.sektor.sektoren_auswerten();
    t_.sensoren.soundsensoren_pruefen();
    if (zustand.rennen_beendet) {
        return;
    }
    t_.uhr.rennuhr_anzeigen();
    if (!zustand.chaos_aktiv) {
        t_.ende.pruefen();  // before the pauses: a crossing that ends the race is worth more than a pause with it
    }
    if (!zustand.rennen_beendet) {  // else the clock stands as the end has left it
        t_.uhr.rennuhr_anzeigen();
        pause->pruefen();
    }
}

void rennablauf::quellen_abfragen() {
    um_.quellen.melden(&messquelle::abfragen);
    const bool am_geraet = um_.quellen.ampel() != nullptr;
    if (std::exchange(am_geraet_, am_geraet) && !am_geraet) {  // nobody can pause at its key any more
        um_.bahn.cu_startframe.sichtbar(false);
        um_.bahn.Command3.aktiviert(um_.bahn.Command4.aktiviert());
    }
}

void rennablauf::renntimer2_tick() {
    quellen_abfragen();
}

void rennablauf::renntimer3_tick() {
    um_.quellen.melden(&messquelle::abtasten);
}

}  // namespace tarvel
