// What the lanes are in, and pauses.
#include <algorithm>
#include <initializer_list>
#include <string>

#include "tools/fensterbilder/szenen.h"

namespace tarvel {
namespace {

QWidget& pause(buehne& b, std::initializer_list<int> spuren = {1, 2, 3, 4, 5, 6}) {
    b.rennen(40000, spuren);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

/// Without the light.
QWidget& pause_ohne_ampel(buehne& b) {
    b.p.einst.chaosampel_an = false;
    return pause(b);
}

template <bool zeilen, int... spuren>
QWidget& pause_mit_tank(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.form1.t_aktiv.gesetzt(true);
    return pause(b, {spuren...});
}

/// One lane that pauses, in the view of its own.
QWidget& pause_allein(buehne& b) {
    b.p.einst.chaosampel_an = false;
    b.rundenrennen(40000, "30", {3});
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

/// The pause of a device that is continued at its own key.
template <bool zeilen, int... spuren>
QWidget& control_unit_pause(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.chaosampel_an = false;
    b.rennen(40000, {spuren...});
    b.control_unit_anschliessen();
    b.t.maschine.laufen(100);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

/// Some lanes are home, one is out.
template <bool zeilen>
QWidget& im_ziel(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.zielmodus_erster = false;
    b.rundenrennen(37200, "5", {1, 2, 3, 4, 5, 6});
    b.t.spur(6).disqualifiziert = true;
    b.t.bahn().zaehler[6].text(disqualifiziert_text);
    b.p.rennen.strafen.spur_strom_aus(6);
    b.t.maschine.laufen(20);
    return b.o.bahn1;
}

/// Each lane in another state, as far as there are lanes for them.
template <bool zeilen, bool mit_tank, int... spuren>
QWidget& lagen(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.form1.t_aktiv.gesetzt(mit_tank);
    b.p.einst.tank_inhalt = 60;
    b.rundenrennen(40000, "30", {spuren...});
    int stelle = 0;
    for (const int spur : {spuren...}) {
        spur_zustand& zustand = b.t.spur(spur);
        zustand.strom_aus = true;
        switch (++stelle) {
            case 1:
                zustand.ch_strafe_rest = 10000;
                break;
            case 2:
                zustand.disqualifiziert = true;
                b.t.bahn().zaehler[spur].text(disqualifiziert_text);
                break;
            case 3:
                zustand.tank_kontakt = true;
                zustand.tankt_seit = 1;
                zustand.tank_inhalt = 34;
                break;
            case 4:
                zustand.ziel_erreicht = true;
                b.t.bahn().bahnshape[spur].randfarbe(farben::rot);
                break;
            case 5:
                zustand.fruehstart_sperre = true;
                break;
            default:
                zustand.tank_strafe_aktiv = true;
                break;
        }
    }
    return b.o.bahn1;
}

/// Crossings that have just not counted, and on even lanes a lap that waits behind an empty tank.
template <bool zeilen, int... spuren>
QWidget& hinweise(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.form1.t_aktiv.gesetzt(true);
    b.rundenrennen(40000, "30", {spuren...});
    for (const int spur : {spuren...}) {
        spur_zustand& zustand = b.t.spur(spur);
        if (spur % 2 == 0) {
            zustand.tank_strafe_aktiv = true;
            b.p.rennen.zustand.konto.zurueckhalten(spur);
        } else {
            const ablehnung grund = spur == 3 ? ablehnung::volltanken : ablehnung::zu_schnell;
            zustand.abgelehnt = {b.p.rennen.zeit.messzeit_lesen(), grund, 853};
            zustand.gezaehlt_bei = 0;
        }
    }
    return b.o.bahn1;
}

/// In a pause two cars roll over the line.
template <bool zeilen, int... spuren>
QWidget& pause_mit_ueberfahrten(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.chaosampel_an = false;
    b.rundenrennen(40000, "30", {spuren...});
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(12000);
    for (const char taste : {'1', '2'}) {
        b.p.rennen.befehle.taste(taste, 0);
    }
    b.t.maschine.laufen(1);
    return b.o.bahn1;
}

/// Right behind its beginning: a lap that waits, one that was too short, and a car on its tank contact.
template <bool zeilen, int... spuren>
QWidget& pause_am_anfang(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.chaosampel_an = false;
    b.p.form1.t_aktiv.gesetzt(true);
    b.p.einst.tank_inhalt = 60;
    b.rundenrennen(40000, "30", {spuren...});
    b.t.maschine.laufen(6000);
    b.t.taste("2");
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(200);
    b.p.rennen.befehle.taste('1', 0);
    b.p.rennen.befehle.taste('2', 0);
    const int letzte = std::max({spuren...});
    b.t.spur(letzte).tank_kontakt = true;
    b.t.spur(letzte).tank_inhalt = 30;
    b.t.maschine.laufen(20);
    return b.o.bahn1;
}

/// A crossing in the penalty of an empty tank, and another pause asked for too soon.
template <bool zeilen, int... spuren>
QWidget& ohne_strom(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.chaosampel_an = false;
    b.p.form1.t_aktiv.gesetzt(true);
    b.rundenrennen(40000, "30", {spuren...});
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(3000);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(600);
    b.t.bahn().Command3.klicken();
    b.t.spur(1).tank_strafe_aktiv = true;
    b.t.spur(1).strom_aus = true;
    b.t.spur(1).abgelehnt = {b.p.rennen.zeit.messzeit_lesen(), ablehnung::tankstrafe, 0};
    b.t.spur(1).gezaehlt_bei = 0;
    return b.o.bahn1;
}

/// The winner of the line is not the winner of the result: the others have begun later.
template <bool zeilen, int... spuren>
QWidget& andere_folge(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.einrichten("Runden", "3", {spuren...});
    b.t.bahn().Command1.klicken();
    b.t.runde_nach(12000, "1");
    b.t.maschine.laufen(700);
    for (const int spur : {spuren...}) {
        if (spur != 1) {
            b.t.runde_nach(60, std::to_string(spur));
        }
    }
    for (int runde = 1; runde <= 3; ++runde) {
        b.t.runde_nach(6000, "1");
        b.t.maschine.laufen(200);
        for (const int spur : {spuren...}) {
            if (spur != 1 && (runde < 3 || spur < 4)) {
                b.t.runde_nach(60, std::to_string(spur));
            }
        }
    }
    b.t.maschine.laufen(3000);
    return b.o.bahn1;
}

template <bool zeilen, int... spuren>
QWidget& pause_kurz(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.p.einst.chaosampel_an = false;
    b.rundenrennen(40000, "30", {spuren...});
    b.t.spur(2).disqualifiziert = true;
    b.t.bahn().zaehler[2].text(disqualifiziert_text);
    b.t.bahn().Command3.klicken();
    b.t.maschine.laufen(42000);
    return b.o.bahn1;
}

QWidget& protokoll_in_der_pause(buehne& b) {
    pause_ohne_ampel(b);
    b.t.bahn().Command_protokoll.klicken();
    return *b.o.protokoll;
}

const std::vector<szeneneintrag> alle_lagenszenen{
    {"protokoll_in_der_pause", protokoll_in_der_pause},
    {"rennleitung",
     [](buehne& b) -> QWidget& {
         pause_ohne_ampel(b);
         b.t.bahn().ch_strafzeit_hacken[2].umschalten();
         b.t.bahn().Command3.klicken();
         b.fahren(9000);
         b.t.runde_nach(700, "4");
         b.fahren(2000);
         b.p.fenster.zeigen(fenstername::leitstand);
         b.t.maschine.laufen(400);
         return *b.o.leitstand;
     }},
    {"rennen_pause", pause_ohne_ampel},
    {"lagen_sechs", lagen<false, false, 1, 2, 3, 4, 5, 6>},
    {"lagen_sechs_tank", lagen<false, true, 1, 2, 3, 4, 5, 6>},
    {"lagen_fuenf", lagen<false, false, 1, 2, 3, 4, 5>},
    {"lagen_drei", lagen<false, true, 1, 2, 3>},
    {"lagen_vier", lagen<false, true, 1, 2, 3, 4>},
    {"lagen_zwei", lagen<false, true, 2, 5>},
    {"lagen_zeilen_sechs", lagen<true, true, 1, 2, 3, 4, 5, 6>},
    {"lagen_zeilen_fuenf", lagen<true, true, 1, 2, 3, 4, 5>},
    {"lagen_zeilen_drei", lagen<true, true, 1, 2, 3>},
    {"lagen_zeilen_allein", lagen<true, true, 4>},
    {"lagen_zeilen_vier", lagen<true, false, 1, 2, 3, 4>},
    {"lagen_zeilen_zwei", lagen<true, true, 2, 5>},
    {"hinweise_sechs", hinweise<false, 1, 2, 3, 4, 5, 6>},
    {"hinweise_drei", hinweise<false, 1, 2, 3>},
    {"hinweise_zwei", hinweise<false, 1, 2>},
    {"hinweise_allein", hinweise<false, 1>},
    {"hinweise_zeilen_sechs", hinweise<true, 1, 2, 3, 4, 5, 6>},
    {"hinweise_zeilen_zwei", hinweise<true, 1, 2>},
    {"lagen_allein", lagen<false, true, 4>},
    {"pause_sechs", pause_kurz<false, 1, 2, 3, 4, 5, 6>},
    {"pause_fuenf", pause_kurz<false, 1, 2, 3, 4, 5>},
    {"pause_drei", pause_kurz<false, 1, 2, 3>},
    {"pause_vier", pause_kurz<false, 1, 2, 3, 4>},
    {"pause_zwei", pause_kurz<false, 1, 2>},
    {"pause_zeilen_sechs", pause_kurz<true, 1, 2, 3, 4, 5, 6>},
    {"pause_zeilen_fuenf", pause_kurz<true, 1, 2, 3, 4, 5>},
    {"pause_zeilen_vier", pause_kurz<true, 1, 2, 3, 4>},
    {"pause_zeilen_drei", pause_kurz<true, 1, 2, 3>},
    {"pause_zeilen_zwei", pause_kurz<true, 1, 2>},
    {"pause_hinweis_sechs", pause_mit_ueberfahrten<false, 1, 2, 3, 4, 5, 6>},
    {"pause_hinweis_drei", pause_mit_ueberfahrten<false, 1, 2, 3>},
    {"pause_hinweis_zwei", pause_mit_ueberfahrten<false, 1, 2>},
    {"pause_hinweis_zeilen_sechs", pause_mit_ueberfahrten<true, 1, 2, 3, 4, 5, 6>},
    {"pause_hinweis_zeilen_zwei", pause_mit_ueberfahrten<true, 1, 2>},
    {"pause_am_anfang_sechs", pause_am_anfang<false, 1, 2, 3, 4, 5, 6>},
    {"pause_am_anfang_zwei", pause_am_anfang<false, 1, 2>},
    {"pause_am_anfang_zeilen_sechs", pause_am_anfang<true, 1, 2, 3, 4, 5, 6>},
    {"pause_am_anfang_zeilen_zwei", pause_am_anfang<true, 1, 2>},
    {"ohne_strom_sechs", ohne_strom<false, 1, 2, 3, 4, 5, 6>},
    {"ohne_strom_zwei", ohne_strom<false, 1, 2>},
    {"ohne_strom_zeilen_sechs", ohne_strom<true, 1, 2, 3, 4, 5, 6>},
    {"andere_folge_sechs", andere_folge<false, 1, 2, 3, 4, 5, 6>},
    {"andere_folge_zwei", andere_folge<false, 1, 2>},
    {"andere_folge_zeilen_zwei", andere_folge<true, 1, 2>},
    {"rennen_pause_taster",
     [](buehne& b) -> QWidget& {
         b.rennen(40000);
         b.p.ereignisse.chaos_fahrer[3] = true;
         b.t.bahn().Command3.klicken();
         b.t.maschine.laufen(3000);
         return b.o.bahn1;
     }},
    {"rennen_pause_ampel", pause_mit_tank<false, 1, 2, 3, 4, 5, 6>},
    {"rennen_pause_ampel_vier_spuren", pause_mit_tank<false, 1, 2, 3, 4>},
    {"rennen_pause_ampel_zwei_spuren", pause_mit_tank<false, 2, 5>},
    {"rennen_pause_ampel_zeilen", pause_mit_tank<true, 1, 2, 3, 4, 5, 6>},
    {"rennen_pause_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         return pause_ohne_ampel(b);
     }},
    {"rennen_pause_eine_spur", pause_allein},
    {"rennen_control_unit_pause", control_unit_pause<false, 1, 2, 3, 4, 5, 6>},
    {"rennen_control_unit_pause_zeilen", control_unit_pause<true, 1, 2, 3, 4, 5, 6>},
    {"rennen_control_unit_pause_allein", control_unit_pause<false, 4>},
    {"rennen_im_ziel", im_ziel<false>},
    {"rennen_im_ziel_zeilen", im_ziel<true>},
};

}  // namespace

const std::vector<szeneneintrag>& lagenszenen() {
    return alle_lagenszenen;
}

}  // namespace tarvel
