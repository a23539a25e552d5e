#include "race/rundenzaehlung.h"

#include <algorithm>
#include <string>

#include "core/zeit.h"

namespace tarvel {
bool rundenzaehlung::entprellen(int spur, ereignis_zeile& ereignis) {
    sensorsperre& sperre = um_.zustand.spur[spur].sensor_sperre;
    if (!(ereignis.aktiv && sperre == sensorsperre::eben_gezaehlt)) {
        sperre = sensorsperre::bereit;
    } else if (ereignis.pegel == ereignis.pegel_ruhe) {
        sperre = sensorsperre::bereit;
        ereignis.aktiv = false;
    }
    return ereignis.aktiv && sperre == sensorsperre::bereit;
}

zeit_ms rundenzaehlung::rundenzeit_messen(int spur, zeit_ms stempel) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (zustand.runden >= 0 && !zustand.fruehstart_sperre) {
        for (int zeile = zustand.runden_zeile - 1; zeile >= 0; --zeile) {
            const zeit_ms vorher = um_.zustand.rundenzeiten.stempel(spur, zeile);
            if (vorher != 0) {
                return stempel - vorher + zustand.strafzuschlag();
            }
        }
        return stempel - zustand.start_zeit + zustand.strafzuschlag();
    }
    if (um_.einst.start_zeit_sensor && zustand.runden == -1) {
        zustand.start_zeit = stempel;
    }
    return stempel - zustand.start_zeit;
}

bool rundenzaehlung::zaehlt(int spur, zeit_ms zeit) const {
    const spur_zustand& zustand = um_.zustand.spur[spur];
    return um_.param.spur_aktiv[spur] && !zustand.disqualifiziert && !zustand.fruehstart_sperre &&
           (!zustand.tank_halt || um_.einst.tank_art == tankweise::zwischen_zwei_kontakten) &&
           (zeit >= um_.param.min_rundenzeit_ms + zustand.pause_abzug || zustand.runden == -1) &&
           !zustand.tank_strafe_aktiv && !zustand.ziel_erreicht &&
           !um_.zeitgeber.tankwartetimer.at(feld_index(spur))->laeuft();
}

void rundenzaehlung::zaehlen(int spur, zeit_ms zeit, zeit_ms stempel) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    zustand.sensor_sperre = sensorsperre::eben_gezaehlt;
    um_.zeitgeber.tankwartetimer.at(feld_index(spur))->an();
    const bool nachlauf = um_.zeitgeber.nachlauftimer1->laeuft();
    if (zustand.runden == runden_max) {  // the store is full: the car can still come home
        if (nachlauf) {
            ende_.spur_ziel_setzen(spur);
        }
        return;
    }
    zeit = std::max<zeit_ms>(zeit - zustand.pause_abzug, 0);
    um_.zustand.rundenzeiten.setzen(spur, zustand.runden_zeile, zeit, stempel, zustand.pause_abzug);
    sektoren_.letzten_sektor_speichern(spur, zustand.runden_zeile, stempel, zustand.pause_abzug);
    zustand.pause_abzug = 0;
    ++zustand.runden;
    zustand.runden_zeile = zustand.runden + 1;
    um_.zustand.rundenzeiten.leeren(spur, zustand.runden_zeile);
    if (nachlauf) {
        ende_.spur_ziel_setzen(spur);
    }
    if (zustand.runden >= 0) {  // laps taken off before the first crossing come first
        zaehler_zeigen(spur);
        rundenzeiten_pruefen(zeit, zustand.runden_zeile, spur);
        if (um_.param.tank_aktiv) {
            tanken_.tank_verbrauch_rechnen(zeit, spur);
        }
    }
}

void rundenzaehlung::zaehler_zeigen(int spur) {
    bezeichnung& zaehler = um_.bahn.zaehler[spur];
    const int runden = um_.zustand.spur[spur].runden;
    zaehler.text(std::to_string(runden));
    if (runden == 100 || runden == 1000) {
        zaehler_verkleinern(um_.bahn, spur, runden);
    }
}

void rundenzaehlung::rundenzeiten_pruefen(zeit_ms zeit, int zeile, int spur) {
    --zeile;
    const int runden = um_.zustand.spur[spur].runden;
    rundenspeicher& speicher = um_.zustand.rundenzeiten;
    const std::string zeit_text = zeit_formatieren(zeit, false, um_.einst.trennzeichen);
    if (zeile > 0) {
        um_.sounds.spielen(sound::runde);
        if (zeit < speicher.beste(spur) || zeile == 1) {
            speicher.beste(spur, zeit);
            if (runden > um_.einst.snd_beste_runde) {
                um_.sounds.spielen(sound::beste_runde + spur);
            }
        }
        um_.bahn.lrunde[spur].text(zeit_text);
        um_.bahn.brunde[spur].text(zeit_formatieren(speicher.beste(spur), false, um_.einst.trennzeichen));
    }
    liste& runden_liste = um_.bahn.t_liste.at(feld_index(spur));
    if (runden_liste.sichtbar()) {
        runden_liste.hinzufuegen(" " + std::to_string(runden) + ". " + zeit_text);
        runden_liste.markieren(static_cast<int>(runden_liste.zeilen().size()) - 1);
    }
}

void rundenzaehlung::runden_auswerten() {
    for (const int spur : alle_spuren) {
        ereignis_zeile& ereignis = um_.ereignisse[art::rundenzaehlung[spur]];
        if (entprellen(spur, ereignis)) {
            const zeit_ms zeit = rundenzeit_messen(spur, ereignis.ereignis_zeit);
            if (zaehlt(spur, zeit)) {
                zaehlen(spur, zeit, ereignis.ereignis_zeit);
            }
        }
        ereignis.aktiv = false;
    }
    plaetze_.positions_pruefung();
    for (const spur_zustand& zustand : um_.zustand.spur) {
        if (zustand.runden > um_.zustand.fuehrungsrunden) {
            um_.zustand.fuehrungsrunden = zustand.runden;
            um_.quellen.melden<int>(&messquelle::fuehrungsrunden, zustand.runden);
        }
    }
}

bool rundenzaehlung::runde_abziehen(int spur) {
    spur_zustand& zustand = um_.zustand.spur[spur];
    if (zustand.disqualifiziert) {
        return false;
    }
    if (zustand.runden > 0) {
        zustand.pause_abzug += um_.zustand.rundenzeiten.pause(spur, zustand.runden);
    }
    --zustand.runden;
    if (zustand.runden == -1) {
        zustand.runden = 0;
    }
    zustand.runden_zeile = zustand.runden + 1;
    zustand.runden_vorher = std::min(zustand.runden_vorher, std::max(zustand.runden, 0) + 1);
    um_.zustand.rundenzeiten.zeile_kopieren(spur, zustand.runden_zeile + 1, zustand.runden_zeile);
    um_.zustand.rundenzeiten.leeren(spur, zustand.runden_zeile + 1);
    return true;
}

void rundenzaehlung::zaehler_nachfuehren() {
    for (const int spur : alle_spuren) {
        spur_zustand& zustand = um_.zustand.spur[spur];
        if (zustand.runden == runden_max + 1) {
            zustand.runden = runden_max;
        }
        if (!zustand.disqualifiziert && zustand.runden > -1) {
            um_.bahn.zaehler[spur].text(std::to_string(zustand.runden));
        }
    }
}

}  // namespace tarvel
