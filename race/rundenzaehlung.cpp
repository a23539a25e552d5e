#include "race/rundenzaehlung.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

namespace tarvel {
rundenzaehlung::rundenzaehlung(const renn_umgebung& um, const teile& t) : um_(um), t_(t) {
    nachzaehlen_ = um_.protokoll.eingang(
        "nachzaehlen", 0,
        [this](const mitschrift::werte& /*keine*/) {
            um_.ereignisse.messzeit = um_.zeit.messzeit_lesen();
            runden_auswerten();
        },
        mitschrift::sorte::blick);
    um_.ereignisse.verworfen = [this](int spur, zeit_ms stempel, verwurf wie) { verworfen(spur, stempel, wie); };
}

bool rundenzaehlung::entprellen(int spur, ereignis_zeile& ereignis) {
    sensorsperre& sperre = um_.zustand.spur[spur].sensor_sperre;
    if (!(ereignis.aktiv && sperre == sensorsperre::eben_gezaehlt)) {
        sperre = sensorsperre::bereit;
    } else if (ereignis.pegel == ereignis.pegel_ruhe) {
        sperre = sensorsperre::bereit;
        ereignis.aktiv = !zu_nah(spur, ereignis.ereignis_zeit);
        if (!ereignis.aktiv) {
            ablehnen(spur, ereignis.ereignis_zeit,
                     {ablehnung::prellen, um_.zustand.spur[spur].gezaehlt_bei + prellen_ms});
        }
    }
    return ereignis.aktiv && sperre == sensorsperre::bereit;
}

bool rundenzaehlung::zu_nah(int spur, zeit_ms stempel) const {
    return stempel - um_.zustand.spur[spur].gezaehlt_bei < prellen_ms;
}

zeit_ms rundenzaehlung::rundenzeit_messen(int spur, const ereignis_zeile& ereignis) {
    const zeit_ms stempel = ereignis.ereignis_zeit;
    spur_zustand& zustand = um_.zustand.spur[spur];
    const rundenkonto& konto = um_.zustand.konto;
    if (konto.runden(spur) >= 0 && !zustand.gesperrt(ereignis)) {
        return stempel - um_.zustand.rundenbeginn(spur) + zustand.strafzuschlag();
    }
    if (um_.einst.start_zeit_sensor && konto.runden(spur) == -1) {
        zustand.start_zeit = stempel;
    }
    return stempel - zustand.start_zeit;
}

std::optional<rundenzaehlung::hindernis> rundenzaehlung::hindernis_von(int spur, zeit_ms zeit,
                                                                       const ereignis_zeile& ereignis) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    const zeit_ms mindestens = um_.param.min_rundenzeit_ms + zustand.pause_abzug;
    if (!um_.param.spur_aktiv[spur]) {
        return hindernis{ablehnung::nicht_dabei};
    }
    if (zustand.disqualifiziert) {
        return hindernis{ablehnung::disqualifiziert};
    }
    if (zustand.gesperrt(ereignis)) {
        return hindernis{ablehnung::sperre, zustand.sperre.bis};
    }
    if (zustand.tank_haelt(ereignis) && um_.einst.tank_art != tankweise::zwischen_zwei_kontakten) {
        return hindernis{ablehnung::volltanken, zustand.tank_halt.bis};
    }
    if (zeit < mindestens && um_.zustand.konto.runden(spur) != -1) {
        return hindernis{ablehnung::zu_schnell, zeit - zustand.pause_abzug, um_.param.min_rundenzeit_ms};
    }
    if (zustand.tank_gesperrt(ereignis)) {
        return hindernis{ablehnung::tankstrafe, zustand.tank_sperre.bis};
    }
    if (zustand.ziel_erreicht) {
        return hindernis{ablehnung::im_ziel};
    }
    if (ereignis.ereignis_zeit < zustand.prellen_bis) {
        return hindernis{ablehnung::prellen, zustand.prellen_bis};
    }
    return std::nullopt;
}

void rundenzaehlung::ablehnen(int spur, zeit_ms stempel, const hindernis& h) const {
    um_.protokoll.vermerken(vermerk::abgelehnt, {spur, static_cast<int>(h.grund), stempel, h.wert, h.grenze});
    if (h.grund != ablehnung::prellen) {
        um_.zustand.spur[spur].abgelehnt = {stempel, h.grund, h.wert};
    }
}

void rundenzaehlung::verworfen(int spur, zeit_ms stempel, verwurf wie) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    const bool prellt = std::abs(stempel - std::exchange(zustand.verworfen_bei, stempel)) < prellen_ms ||
                        std::abs(stempel - zustand.gezaehlt_bei) < prellen_ms;
    if (um_.zustand.rennen_beendet || !um_.param.spur_aktiv[spur] || prellt) {
        return;
    }
    ablehnen(spur, stempel,
             {zustand.disqualifiziert ? ablehnung::disqualifiziert
              : zustand.ziel_erreicht ? ablehnung::im_ziel
              : wie == verwurf::pause ? ablehnung::pause
                                      : ablehnung::vor_dem_start});
}

void rundenzaehlung::zaehlen(int spur, zeit_ms zeit, const ereignis_zeile& ereignis) {
    const zeit_ms stempel = ereignis.ereignis_zeit;
    spur_zustand& zustand = um_.zustand.spur[spur];
    zustand.sensor_sperre = sensorsperre::eben_gezaehlt;
    zustand.gezaehlt_bei = stempel;
    zustand.pause_im_stempel = ereignis.verschoben;
    zustand.prellen_bis = stempel + prellen_ms;
    rundenkonto& konto = um_.zustand.konto;
    const bool voll = konto.runden(spur) == runden_max;
    if (!voll) {
        zeit = std::max<zeit_ms>(zeit - zustand.pause_abzug, 0);
        t_.sektor.letzten_sektor_speichern(spur, konto.laufende(spur), stempel, zustand.pause_abzug);
        konto.zaehlen(spur, zeit, stempel, std::exchange(zustand.pause_abzug, 0), ereignis.verschoben);
    }
    um_.protokoll.vermerken(vermerk::runde, {spur, konto.runden(spur), zeit, stempel});
    // Told late, a crossing from before the end is no finish. Also with the account full the car can still come home.
    constexpr zeit_ms takt_ms = 1;  // the tick that ended the race may have read its clock a moment earlier
    const bool nachlauf = um_.zeitgeber.nachlauftimer1->laeuft();
    const zeit_ms gestanden = nachlauf ? um_.zustand.pausen_im_nachlauf() : 0;  // has moved this one, but not the end
    const bool nach_dem_ende = stempel - gestanden >= um_.zustand.renn_ende_stempel - takt_ms;
    if (nachlauf && nach_dem_ende) {
        t_.ende.spur_ziel_setzen(spur);
    } else if (um_.zustand.rennen_beendet && (nach_dem_ende || t_.ende.hat_das_ziel(spur))) {
        zustand.ziel_erreicht = true;  // the lap that the end has cut short, and no further one
    }
    if (!voll && konto.runden(spur) >= 0) {  // laps taken off before the first crossing come first
        zaehler_zeigen(spur);
        t_.anzeige.runde_melden(spur, zeit);
        if (um_.param.tank_aktiv) {
            t_.tank.tank_verbrauch_rechnen(zeit, spur);
        }
    }
}

void rundenzaehlung::zaehler_zeigen(int spur) {
    bezeichnung& zaehler = um_.bahn.zaehler[spur];
    const int runden = um_.zustand.konto.runden(spur);
    zaehler.text(std::to_string(runden));
    if (runden == 100 || runden == 1000) {
        zaehler_verkleinern(um_.bahn, spur, runden);
    }
}

void rundenzaehlung::ueberfahrt_auswerten(int spur) {
    um_.ereignisse.vorlassen(spur);
    ereignis_zeile& ereignis = um_.ereignisse[art::rundenzaehlung[spur]];
    if (entprellen(spur, ereignis)) {
        t_.tank.strafe_abgelaufen(spur, ereignis.ereignis_zeit);
        const zeit_ms zeit = rundenzeit_messen(spur, ereignis);
        if (const auto grund = hindernis_von(spur, zeit, ereignis)) {
            ablehnen(spur, ereignis.ereignis_zeit, *grund);
        } else {
            zaehlen(spur, zeit, ereignis);
        }
    }
    ereignis.aktiv = false;
}

void rundenzaehlung::runden_auswerten() {
    um_.zielsensoren_falten();
    for (const int spur : alle_spuren) {
        do {
            ueberfahrt_auswerten(spur);
        } while (!t_.ende.hat_das_ziel(spur) && um_.ereignisse.vorlassen(spur));
    }
    t_.plaetze.positions_pruefung();
    for (const int spur : alle_spuren) {
        const int runden = um_.zustand.konto.runden(spur);
        if (runden > um_.zustand.fuehrungsrunden) {
            um_.zustand.fuehrungsrunden = runden;
            um_.quellen.melden<int>(&messquelle::fuehrungsrunden, runden);
        }
    }
}

bool rundenzaehlung::runde_abziehen(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (zustand.disqualifiziert) {
        return false;
    }
    const bool hat_eine = um_.zustand.konto.runden(spur) > 0;
    zustand.pause_abzug += um_.zustand.konto.abziehen(spur);
    um_.protokoll.vermerken(vermerk::abzug, {spur, um_.zustand.konto.runden(spur)});
    if (hat_eine) {
        t_.anzeige.beste_zeigen(spur);
    }
    return true;
}

void rundenzaehlung::zaehler_nachfuehren() {
    for (const int spur : alle_spuren) {
        const int runden = um_.zustand.konto.runden(spur);
        if (!um_.zustand.spur[spur].disqualifiziert && runden > -1) {
            um_.bahn.zaehler[spur].text(std::to_string(runden));
        }
    }
}

}  // namespace tarvel
