#include "race/rundenanzeige.h"

#include <string>

#include "core/zeit.h"

namespace tarvel {

void kurz_zeigen(steuerelement& label, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    label.text(zeit_formatieren(zeit, false, trennzeichen), minuten_davor(zeit, trennzeichen));
}

void letzte_runde_zeigen(bahn1& bahn, int spur, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    kurz_zeigen(bahn.lrunde[spur], zeit, trennzeichen);
    bahn.Label_lrunde[spur].text(bahn.wort.letzte_runde);
}

void beste_runde_zeigen(bahn1& bahn, int spur, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    kurz_zeigen(bahn.brunde[spur], zeit, trennzeichen);
    bahn.Label_brunde[spur].text(bahn.wort.beste_runde);
}

void kurz_auflisten(liste& zeilen, int runde, zeit_ms zeit, const trennzeichen_tabelle& trennzeichen) {
    const std::string nummer = " " + std::to_string(runde) + ". ";
    const std::string kurz = zeit_formatieren(zeit, false, trennzeichen);
    zeilen.hinzufuegen(nummer + kurz, nummer + minuten_davor(zeit, trennzeichen) + kurz);
}

void rundenanzeige::runde_melden(int spur, zeit_ms zeit) {
    rundenkonto& konto = um_.zustand.konto;
    const int runde = konto.runden(spur);
    if (runde > 0) {
        um_.sounds.spielen(sound::runde);
        if (konto.beste_werten(spur, konto.rundenzeit(spur, runde)) && runde > um_.einst.snd_beste_runde) {
            um_.sounds.spielen(sound::beste_runde + spur);
        }
        letzte_runde_zeigen(um_.bahn, spur, zeit, um_.einst.trennzeichen);
        beste_zeigen(spur);
    }
    liste& runden = um_.bahn.t_liste.at(feld_index(spur));
    if (runden.sichtbar()) {
        kurz_auflisten(runden, runde, zeit, um_.einst.trennzeichen);
        runden.markieren(static_cast<int>(runden.zeilen().size()) - 1);
    }
}

void rundenanzeige::beste_zeigen(int spur) {
    beste_runde_zeigen(um_.bahn, spur, um_.zustand.konto.beste(spur), um_.einst.trennzeichen);
}

}  // namespace tarvel
