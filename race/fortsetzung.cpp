#include "race/fortsetzung.h"

#include <algorithm>

#include "core/text.h"

namespace tarvel {

fortsetzung::fortsetzung(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    umsetzen_ = um_.protokoll.eingang("umsetzen", spuren_max, [this](const mitschrift::werte& w) {
        spuren<int> herkunft;
        for (const int spur : alle_spuren) {
            herkunft[spur] = std::clamp(static_cast<int>(w.at(feld_index(spur))), 0, spuren_max);
        }
        umsetzen(herkunft);
    });
    vorbereiten_ = um_.protokoll.eingang("fortsetzen", 1, [this](const mitschrift::werte& w) {
        einrichten(rennziel::aus_zahl(um_.param.renn_ziel.art(), protokoll_stempel(w[0])));
        um_.fenster.zeigen(fenstername::k_ampel);
    });
}

void fortsetzung::fahrer_umsetzen(const spuren<int>& herkunft) {
    mitschrift::werte w{};
    for (const int spur : alle_spuren) {
        w.at(feld_index(spur)) = herkunft[spur];
    }
    um_.protokoll.geschieht(umsetzen_, w);
}

void fortsetzung::umsetzen(const spuren<int>& herkunft) {
    um_.param.spuren_wiederherstellen();  // a place without a driver goes round as well
    const spuren<spur_zustand> vorher = um_.zustand.spur;
    const auto namen = um_.param.fahrer_name;
    const auto klassen = um_.param.klasse;
    const auto fahrzeuge = um_.param.fahrzeug_name;
    for (const int spur : alle_spuren) {
        const int von = herkunft[spur];
        if (von == 0) {
            continue;
        }
        um_.zustand.umgesetzt = true;
        um_.param.fahrer_name[spur] = namen[von];
        um_.param.klasse[spur] = klassen[von];
        if (um_.einst.fahrzeug_wechseln) {
            um_.param.fahrzeug_name[spur] = fahrzeuge[von];
        }
        spur_zustand& zustand = um_.zustand.spur[spur];
        const sensorsperre sperre = zustand.sensor_sperre;  // the sensors stay where they are
        const double tank_inhalt = um_.quellen.kann().eigener_tank ? zustand.tank_inhalt : vorher[von].tank_inhalt;
        zustand = vorher[von];
        zustand.sensor_sperre = sperre;
        zustand.tank_inhalt = tank_inhalt;  // a tank that the device has itself is the car's, and stays with it
    }
    for (rennpause& p : um_.zustand.unterbrechungen) {
        const spuren<bool> daheim = p.daheim;
        for (const int spur : alle_spuren) {
            p.daheim[spur] = daheim[herkunft[spur] == 0 ? spur : herkunft[spur]];
        }
    }
    um_.zustand.konto.fahrer_umsetzen(herkunft);
    t_.sektor.fahrer_umsetzen(herkunft);
    t_.plaetze.fahrer_umsetzen(herkunft);
}

zeit_ms fortsetzung::gefahren() const {
    const renn_zustand& zustand = um_.zustand;
    const zeit_ms gelaufen = zustand.renn_ende_stempel - zustand.start_zeit - zustand.pause_abzug;
    return um_.ist_zeitrennen() ? std::min(gelaufen, um_.param.renn_ziel.ms()) : gelaufen;
}

void fortsetzung::einrichten(rennziel neues_ziel) {
    um_.param.spuren_wiederherstellen();
    renn_zustand& zustand = um_.zustand;
    um_.zeitgeber.alle_aus();
    const zeit_ms gefahren_ms = gefahren();
    zustand.pause_abzug = zustand.renn_ende_stempel - zustand.start_zeit - gefahren_ms;  // the run-on is no race time
    ziel_vorher_ = um_.param.renn_ziel;
    abbruch_vorher_ = zustand.rennabbruch;
    dunkel_ = um_.bahn.Nachtabschaltung.sichtbar();
    um_.param.renn_ziel = neues_ziel;
    if (um_.ist_zeitrennen()) {
        um_.param.renndauer_rest_ms = neues_ziel.ms() - gefahren_ms;
        um_.param.renndauer_ms = um_.param.renndauer_rest_ms;
        t_.uhr.restzeit_vorbereiten(um_.param.renndauer_rest_ms);
    }
    t_.ende.zuruecksetzen();
    um_.spuren_einteilen(true);
    for (const int spur : alle_spuren) {
        daheim_[spur] = zustand.spur[spur].ziel_erreicht;
        standzeit_abziehen(spur);
        spur_freigeben(spur);
    }
    um_.ereignisse.messzeit = zustand.renn_ende_stempel;
    zustand.fortgesetzt = true;
    zustand.fortsetzung_wartet = true;
    zustand.rennen_beendet = false;
    t_.ansicht.oeffnen();
    t_.ansicht.anzeigen_leeren();
    t_.ansicht.stand_zeigen();
    t_.plaetze.neu_ordnen();
    t_.tank.fuellstaende_zeigen();
    t_.uhr.fortsetzen_uhreinstellen();
    for (const int spur : alle_spuren) {
        if (um_.param.spur_aktiv[spur] && zustand.spur[spur].strafzeit > 0s) {
            t_.strafe.straflabel_zeigen(spur);
        }
    }
    um_.bahn.Command1.aktiviert(false);
    um_.bahn.Command2.aktiviert(true);
    um_.bahn.Command3.aktiviert(false);
    um_.bahn.Command4.aktiviert(true);
}

void fortsetzung::standzeit_abziehen(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    const rundenkonto& konto = um_.zustand.konto;
    const zeit_ms letzte_ueberfahrt = konto.stempel(spur, konto.runden(spur));
    if (um_.param.spur_aktiv[spur] && zustand.ziel_erreicht && letzte_ueberfahrt != 0) {
        zustand.pause_abzug =
            um_.zustand.renn_ende_stempel - letzte_ueberfahrt;  // was home: starts anew with the light
    }
}

void fortsetzung::spur_freigeben(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    const bool rest_zu_verbuessen = zustand.ch_strafe_rest > 0;
    um_.zustand.konto.fortsetzen(spur, !zustand.ziel_erreicht);
    zustand.ziel_erreicht = !um_.param.spur_aktiv[spur];
    zustand.fruehstart_sperre = rest_zu_verbuessen;
    zustand.sperre = {};
    zustand.strom_aus = rest_zu_verbuessen || zustand.disqualifiziert;
    zustand.tank_kontakt = false;
    zustand.tankt_seit = 0;
    zustand.tank_wartezaehler = {};
    zustand.tank_halt = {};
    zustand.ch_durchfahrt = false;
}

void fortsetzung::zuruecknehmen() {
    if (um_.zustand.fortsetzung_wartet) {
        um_.zustand.fortsetzung_wartet = false;
        um_.zustand.rennabbruch = abbruch_vorher_;
        um_.ereignisse.strecke_leeren();  // whoever was pushed over the line meanwhile has driven nothing
        for (const int spur : alle_spuren) {
            um_.zustand.spur[spur].ziel_erreicht = daheim_[spur];
        }
        um_.param.renn_ziel = ziel_vorher_;
        t_.ansicht.ziel_zeigen();
        um_.bahn.Nachtabschaltung.sichtbar(dunkel_);
    }
}

void fortsetzung::weiterfahren() {
    renn_zustand& zustand = um_.zustand;
    const zeit_ms fortsetz_zeit = um_.moment_lesen();  // as the end was read
    zustand.unterbrechung_abziehen(fortsetz_zeit - zustand.renn_ende_stempel);
    zustand.unterbrechungen.push_back(
        {zustand.renn_ende_stempel, fortsetz_zeit, daheim_, fortsetz_zeit - zustand.start_zeit - zustand.pause_abzug});
    um_.param.renndauer_ms = um_.param.renndauer_rest_ms;
    zustand.renn_ende_zeit = fortsetz_zeit + um_.param.renndauer_rest_ms - zustand.pause_abzug;
    zustand.pausen_bis_ende.reset();
    zustand.fortsetzung_wartet = false;
    zustand.umgesetzt = false;
    zustand.konto.teil_beginnen();
    um_.ereignisse.messzeit = fortsetz_zeit;
    um_.ereignisse.gelten_lassen(fortsetz_zeit, zeitsperre::seit_immer);  // before, the lane was another driver's
    zustand.strafreste_ab(fortsetz_zeit);
    um_.ereignisse.chaos_fahrer.fuellen(false);
    um_.ereignisse.strecke_leeren();
    um_.ereignisse[art::chaostaster].aktiv = um_.einst.chaos_schalter && um_.ereignisse[art::chaostaster].aktiv;
    for (const int spur : alle_spuren) {
        if (zustand.spur[spur].ch_strafe_rest > 0) {
            um_.zeitgeber.straftimer_ch[spur]->an();
        }
    }
    um_.zeitgeber.rennen_an();
    um_.quellen.melden(&messquelle::rennen_fortgesetzt);
    um_.teil_von.melden(&veranstaltung::weitergefahren);
    t_.ablauf.befehle_freigeben();
    t_.ansicht.freigeben();
    um_.bahn.Nachtabschaltung.sichtbar(dunkel_ || um_.bahn.Nachtabschaltung.sichtbar());
}

}  // namespace tarvel
