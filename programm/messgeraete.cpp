#include "programm/messgeraete.h"

#include <utility>

namespace tarvel {

messgeraete::messgeraete(const umgebung& um, const plattform::dienste& dienste)
    : cu({um.einst, um.rennen.umgebung.param, um.txt, um.ereignisse, um.rennen.zeit}, dienste),
      cu_eigenschaften({um.einst, um.txt, um.ablage, um.fenster}, dienste),
      at({um.einst, um.txt, um.ablage, um.ereignisse, dienste.uhr, dienste.zeitgeber, dienste.serienports,
          dienste.meldungen}),
      um_(um),
      meldungen_(dienste.meldungen),
      anzeigetakt_(dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 500ms)) {
    cu_verbinden();
    at_verbinden();
    anzeigetakt_->bei_tick = [this] { verbindung_anzeigen(); };
}

void messgeraete::cu_verbinden() {
    rennen& r = um_.rennen;
    cu.bewirkt.stempel_verschieben = [this, &r](zeit_ms um) {
        r.zustand.stempel_verschieben(um);
        um_.ereignisse.stempel_verschieben(um);
    };
    cu.bewirkt.rennen_ruht = [this] { return rennen_ruht(); };
    cu.bewirkt.rennen_laeuft = [&r] { return !r.zustand.rennen_beendet && !r.zustand.chaos_aktiv; };
    cu.bewirkt.rennen_vorbereiten = [&r] { r.bahn1.Command1.klicken(); };
    cu.bewirkt.fuellstand = [&r](int spur, int stufe) {
        constexpr int volle_stufe = 14;
        r.tanken.fuellstand_melden(spur, stufe, volle_stufe);
    };
    cu.bewirkt.tankfunktion = [this](bool an) {
        if (!um_.fenster.ist_offen(fenstername::bahn1)) {
            um_.form1.t_aktiv.gesetzt(an);
            um_.form1.tankoptionen_zeigen();
        }
    };
    cu_eigenschaften.port_belegen = [this](bool belegt) {
        if (belegt) {
            cu.schliessen();
        } else if (um_.einst.hardware.hw_cu) {
            cu.mscomm1_oeffnen();
        }
    };
    um_.form1.cu_oeffnen = [this] { um_.fenster.zeigen(fenstername::cu_eigenschaften, anzeige_art::modal); };
    cu.bewirkt.port_fehlt = [this] { meldungen_.zeigen(um_.txt.meldung[14], um_.txt.titel[1]); };
}

bool messgeraete::rennen_ruht() const {
    return um_.fenster.ist_offen(fenstername::bahn1) && !um_.fenster.ist_offen(fenstername::auswertung) &&
           um_.rennen.zustand.rennen_beendet && um_.rennen.bahn1.Command1.bedienbar();
}

void messgeraete::at_verbinden() {
    rennen& r = um_.rennen;
    at.chaos_aktiv = [&r] { return r.zustand.chaos_aktiv; };
    at.nach_ereignis = [&r] {
        r.tanken.sensoren_nachhalten();
        if (!r.umgebung.ampel_laeuft()) {  // else a tank sensor may be what sees a false start
            r.tanken.tank_kontakte_auswerten();
        }
    };
    at.wartehinweis = [this](bool an) { at_wartet_anzeigen(an); };
    at.nicht_zu_oeffnen = [this] {
        um_.einst.hardware.hw_uart = false;
        um_.einst.hardware.hw_simulation = true;
        um_.quellen.trennen(at);
        um_.ausgaben.trennen(ausgabe_platz::at_2560);
        um_.form1.modus_anzeigen();
        um_.form1.bahnstrom_schaltbar(um_.ausgaben.angeschlossen());
        meldungen_.zeigen(um_.txt.meldung[27], um_.txt.titel[1]);
    };
    at.verloren = [this, &r] {
        r.chaos.geraeteschalter_vergessen();
        verbindung_anzeigen();
    };
}

void messgeraete::at_wartet_anzeigen(bool an) {
    um_.form1.wartehinweis(an);
    befehl& rennstart = um_.rennen.bahn1.Command1;
    if (an) {
        rennstart.aktiviert(false);
    } else if (um_.rennen.zustand.rennen_beendet && !um_.fenster.ist_offen(fenstername::auswertung)) {
        rennstart.aktiviert(true);
        rennstart.fokus_setzen();
        um_.ausgaben.ruhezustand();  // what was switched while the unit booted has not reached it
    }
    verbindung_anzeigen();
}

void messgeraete::schliessen() {
    anzeigetakt_->aus();
    at_wartet_ = false;
    for (messquelle* quelle : {static_cast<messquelle*>(&cu), static_cast<messquelle*>(&at)}) {
        um_.quellen.trennen(*quelle);
    }
    um_.ausgaben.trennen(ausgabe_platz::control_unit);
    um_.ausgaben.trennen(ausgabe_platz::at_2560);
    cu.schliessen();
    at.schliessen();
    um_.rennen.zeit.versatz(0);
}

void messgeraete::hardware_starten(bool spaeter) {
    um_.ausgaben.ruhezustand();  // of the device that is left
    schliessen();
    if (um_.einst.hardware.hw_cu) {
        cu.mscomm1_oeffnen();
        um_.quellen.anschliessen(cu);
        um_.ausgaben.anschliessen(ausgabe_platz::control_unit, cu);
    }
    if (um_.einst.hardware.hw_uart) {
        um_.quellen.anschliessen(at);
        um_.ausgaben.anschliessen(ausgabe_platz::at_2560, at);
        at_wartet_ = true;
        if (!spaeter) {
            nachholen();
        }
    }
    um_.ausgaben.einschalten();
    um_.ausgaben.ruhezustand();
    um_.form1.modus_anzeigen();
    um_.form1.bahnstrom_schaltbar(um_.ausgaben.angeschlossen());
    if (um_.einst.hardware.hw_cu || um_.einst.hardware.hw_uart) {
        anzeigetakt_->an();
    }
    verbindung_anzeigen();
}

void messgeraete::nachholen() {
    if (std::exchange(at_wartet_, false)) {
        at.oeffnen();
        verbindung_anzeigen();
    }
}

void messgeraete::verbindung_anzeigen() {
    const messhardware& hw = um_.einst.hardware;
    const bool getrennt = (hw.hw_cu && !cu.antwortet()) || (hw.hw_uart && !at_wartet_ && !at.offen());
    um_.form1.messgeraet_getrennt(getrennt);
    um_.rennen.ansicht.fusszeile_setzen(getrennt ? um_.form1.modus_label.text() : um_.txt.werbetext, getrennt);
}

}  // namespace tarvel
