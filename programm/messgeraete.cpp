#include "programm/messgeraete.h"

namespace tarvel {

messgeraete::messgeraete(const umgebung& um, const plattform::dienste& dienste)
    : cu({um.einst, um.rennen.umgebung.param, um.txt, um.ereignisse, um.rennen.zeit}, dienste),
      um_(um),
      meldungen_(dienste.meldungen),
      anzeigetakt_(dienste.zeitgeber.erzeugen(plattform::zeitgeber_art::abfragend, 500)) {
    cu_verbinden();
    anzeigetakt_->bei_tick = [this] { cu_anzeigen(); };
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
        if (!um_.fenster.ist_offen("bahn1")) {
            um_.form1.t_aktiv.gesetzt(an);
            um_.form1.tankoptionen_zeigen();
        }
    };
    cu.bewirkt.port_fehlt = [this] { meldungen_.zeigen(um_.txt.meldung[14], um_.txt.titel[1]); };
}

bool messgeraete::rennen_ruht() const {
    return um_.fenster.ist_offen("bahn1") && !um_.fenster.ist_offen("auswertung") &&
           um_.rennen.zustand.rennen_beendet && um_.rennen.bahn1.Command1.bedienbar();
}

void messgeraete::schliessen() {
    anzeigetakt_->aus();
    um_.quellen.trennen(cu);
    um_.ausgaben.trennen(ausgabe_platz::control_unit);
    cu.schliessen();
    um_.rennen.zeit.versatz(0);
}

void messgeraete::hardware_starten() {
    schliessen();
    if (um_.einst.hardware.hw_cu) {
        cu.mscomm1_oeffnen();
        um_.quellen.anschliessen(cu);
        um_.ausgaben.anschliessen(ausgabe_platz::control_unit, cu);
        anzeigetakt_->an();
    }
    um_.ausgaben.einschalten();
    um_.ausgaben.ruhezustand();
    cu_anzeigen();
}

void messgeraete::cu_anzeigen() {
    const bool da = um_.einst.hardware.hw_cu;
    um_.form1.cu_zeigen(da, !cu.port_offen() ? form1::cu_stand::kein_port
                            : cu.antwortet() ? form1::cu_stand::antwortet
                                             : form1::cu_stand::stumm);
}

}  // namespace tarvel
