#include <QTest>
#include <algorithm>
#include <array>
#include <utility>

#include "results/protokollfenster.h"
#include "results/w_auswertung2.h"
#include "tools/fensterbilder/szenen.h"

namespace tarvel {
namespace {

/// The start light in its second red phase.
QWidget& ampel(buehne& b) {
    b.einrichten("Runden", "20", {1, 2, 3});
    b.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    b.t.bahn().Command1.klicken();
    b.t.maschine.laufen(5500);
    return b.o.form2;
}

/// The same in front of its race.
template <bool zeilen, int... spuren>
QWidget& ampel_im_rennen(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.einrichten("Runden", "20", {spuren...});
    b.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    b.t.bahn().Command1.klicken();
    b.t.maschine.laufen(5500);
    return b.o.bahn1;
}

/// Some have moved too early, one of them with a long name.
template <fruehstart_aktion aktion, bool zeilen = false>
QWidget& zu_frueh(buehne& b, const char* spuren) {
    b.p.einst.fruehstart_option = aktion;
    b.p.einst.fruehstart_strafzeit = 5s;
    b.p.einst.fruehstart_schritte = 5s;
    ampel_im_rennen<zeilen, 1, 2, 3, 4, 5, 6>(b);
    b.p.param.fahrer_name[2] = "Maximiliane Freifrau von Straß";
    for (const char* spur = spuren; *spur != '\0'; ++spur) {
        b.t.taste({spur, 1});
    }
    return b.o.bahn1;
}

template <zeit_ms gefahren = 31000>
QWidget& tanken(buehne& b) {
    b.p.form1.t_aktiv.gesetzt(true);
    b.p.einst.tank_inhalt = 60;
    b.rennen(gefahren);
    return b.o.bahn1;
}

/// Two sectors: the time of each in large, its speed in small.
void sektoren_messen(buehne& b) {
    b.p.einst.sektor_an = {true, true, true, true};
    b.p.einst.sektor_anzeige = sektor_ort::gross;
    b.p.einst.topspeed_anzeige = sektor_ort::klein;
    for (auto& laenge : b.p.einst.sektor_laenge) {
        std::fill(laenge.begin(), laenge.end(), "4.2");
    }
}

/// Counters of two, three and four digits.
template <bool zeilen>
QWidget& tausend_runden(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.rennen(20000);
    for (const auto& [spur, runden] : {std::pair(1, 9997), {2, 1234}, {3, 998}, {4, 111}, {5, 87}}) {
        b.t.runden_auffuellen(spur, runden);
    }
    b.fahren(16000);
    return b.o.bahn1;
}

/// Laps of more than a minute.
template <bool zeilen>
QWidget& lange_runden(buehne& b) {
    b.p.einst.darstellung_zeile = zeilen;
    b.einrichten("Runden", "20", {1, 2, 3, 4, 5, 6});
    b.t.bahn().Command1.klicken();
    b.t.runde_nach(1000, "123456");
    for (const char* spur : {"1", "2", "3", "4", "5", "6"}) {
        b.t.runde_nach(spur[0] == '1' ? 61322 : 1200, spur);
    }
    b.t.runde_nach(58007, "1");
    return b.o.bahn1;
}

void einfahren_zeigen(buehne& b, bool runden, int laenge, std::initializer_list<int> spuren) {
    b.p.einst.w_edauer_runden = runden;
    b.p.einst.w_edauer = laenge;
    b.p.form1.einzelrennen_beginnen = [&b] { b.p.rennen_beginnen(b.abend); };
    b.einrichten("Runden", "10", spuren);
    b.t.bahn().Command6.klicken();
}

/// A race in which more happened than laps.
void bewegtes_rennen(buehne& b) {
    b.p.einst.chaosampel_an = false;
    b.p.einst.chaos_strafe_strom = false;
    b.p.einst.tank_inhalt = 60;
    b.p.form1.t_aktiv.gesetzt(true);
    b.rundenrennen(38000, "24", {1, 2, 3, 4});
    b.t.runde_nach(400, "3");
    b.fahren(21000);
    b.t.taste("q");
    b.t.bahn().Command3.klicken();
    b.t.bahn().ch_strafzeit_hacken[2].umschalten();
    b.t.runde_nach(4000, "4");
    b.t.bahn().Command3.klicken();
    b.fahren(30000);
    b.t.runde_nach(700, "1");
    b.fahren(12000);
    b.t.taste("a");
    b.fahren(60000);
}

QWidget& protokoll(buehne& b) {
    bewegtes_rennen(b);
    b.t.rennende();
    b.p.auswertung.Command_protokoll.klicken();
    const auto& zeilen = b.p.protokollfenster.zeilen();
    for (std::size_t i = zeilen.size(); i-- > 0;) {
        if (b.p.protokollfenster.zeile(i).ist_abgelehnt()) {
            b.p.protokollfenster.waehlen(static_cast<int>(i));
        }
    }
    return *b.o.protokoll;
}

QWidget& protokoll_auswahl(buehne& b) {
    b.rundenrennen(40000, "5", {1, 2});
    b.p.auswertung.Command5.klicken();
    b.p.w_auswertung2.Command_protokoll.klicken();
    return *b.o.protokoll;
}

const std::vector<szeneneintrag> alle_rennszenen{
    {"protokoll", protokoll},
    {"protokoll_auswahl", protokoll_auswahl},
    {"rennen_vor_dem_start",
     [](buehne& b) -> QWidget& {
         b.einrichten("Zeit", "5", {1, 2, 3, 4, 5, 6});
         return b.o.bahn1;
     }},
    {"rennen",
     [](buehne& b) -> QWidget& {
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_ohne_fahrzeugbilder",
     [](buehne& b) -> QWidget& {
         b.p.einst.fahrzeugbild_an = false;
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_zwei_spuren",
     [](buehne& b) -> QWidget& {
         b.rundenrennen(64000, "30", {2, 5});
         return b.o.bahn1;
     }},
    {"rennen_eine_spur",
     [](buehne& b) -> QWidget& {
         b.rundenrennen(64000, "30", {4});
         return b.o.bahn1;
     }},
    {"rennen_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         b.rennen(64000);
         return b.o.bahn1;
     }},
    {"rennen_nach_platz",
     [](buehne& b) -> QWidget& {
         b.p.einst.rennbild.nach_platz = true;
         b.rennen(40000);
         b.t.runde_nach(3000, "5");
         b.t.runde_nach(3000, "5");
         b.o.takt.ausfuehren();
         b.o.bahn1.showNormal();
         constexpr int umgestellt_ms = 1000;
         QTest::qWait(umgestellt_ms);
         return b.o.bahn1;
     }},
    {"rennen_drei_spuren",
     [](buehne& b) -> QWidget& {
         b.p.einst.grosse_zeit = true;
         b.rundenrennen(64000, "30", {1, 3, 5});
         return b.o.bahn1;
     }},
    {"rennen_tanken", tanken<>},
    {"rennen_tank_leer", tanken<49000>},
    {"rennen_tanken_liter",
     [](buehne& b) -> QWidget& {
         b.p.einst.tankanzeige_grafisch = false;
         return tanken<>(b);
     }},
    {"rennen_tanken_zeilen",
     [](buehne& b) -> QWidget& {
         b.p.einst.darstellung_zeile = true;
         return tanken<>(b);
     }},
    {"rennen_nacht",
     [](buehne& b) -> QWidget& {
         b.rennen(40000);
         b.t.taste("n");
         return b.o.bahn1;
     }},
    {"rennen_sektoren",
     [](buehne& b) -> QWidget& {
         sektoren_messen(b);
         b.rennen(62000);
         return b.o.bahn1;
     }},
    {"rennen_sektoren_zeilen",
     [](buehne& b) -> QWidget& {
         sektoren_messen(b);
         b.p.einst.darstellung_zeile = true;
         b.rennen(62000);
         return b.o.bahn1;
     }},
    {"rennen_mit_einfahrzeit",
     [](buehne& b) -> QWidget& {
         b.abend.naechste = "Gerd, Hanna, Ingo Petersen, Jule, Karl-Heinz, Lena";
         b.p.form1.einzelrennen_beginnen = [&b] { b.p.rennen_beginnen(b.abend); };
         b.einrichten("Zeit", "5", {1, 2, 3, 4, 5, 6});
         return b.o.bahn1;
     }},
    {"einfahren_runden",
     [](buehne& b) -> QWidget& {
         einfahren_zeigen(b, true, 8, {1, 2, 3, 4, 5, 6});
         for (const int taste : std::to_array<unsigned char>({'1', '2', '4', '4', '6'})) {
             b.t.maschine.laufen(6000);
             b.p.einfahren.taste(taste);
         }
         b.t.maschine.laufen(10);
         return b.o.einfahren;
     }},
    {"einfahren_zwei_spuren_99",
     [](buehne& b) -> QWidget& {
         einfahren_zeigen(b, true, 99, {1, 2});
         return b.o.einfahren;
     }},
    {"einfahren_zeit",
     [](buehne& b) -> QWidget& {
         einfahren_zeigen(b, false, 180, {1, 2, 3, 4});
         b.t.maschine.laufen(51300);
         return b.o.einfahren;
     }},
    {"einfahren_ende",
     [](buehne& b) -> QWidget& {
         einfahren_zeigen(b, false, 10, {1, 2, 3, 4});
         b.t.maschine.laufen(10000);
         b.p.einfahren.weiterlabel.sichtbar(true);
         b.p.einfahren.weiterlabel.text("Weiter in: 27");
         return b.o.einfahren;
     }},
    {"rennen_nachlauf",
     [](buehne& b) -> QWidget& {
         b.p.einst.zielmodus_erster = false;
         b.einrichten("Zeit", "1", {1, 2, 3, 4});
         b.t.bahn().Command1.klicken();
         b.fahren(61500);
         return b.o.bahn1;
     }},
    {"startampel", ampel, true},
    {"startampel_im_rennen", ampel_im_rennen<false, 1, 2, 3>},
    {"startampel_im_rennen_sechs", ampel_im_rennen<false, 1, 2, 3, 4, 5, 6>},
    {"startampel_im_rennen_zeilen", ampel_im_rennen<true, 1, 2, 3, 4, 5, 6>},
    {"startampel_im_rennen_zwei_zeilen", ampel_im_rennen<true, 2, 5>},
    {"kleine_ampel",
     [](buehne& b) -> QWidget& {
         b.ergebnis("8", {1, 2, 3});
         b.p.auswertung.cmd3_fortsetzung();
         return b.o.k_ampel;
     },
     true},
    {"rennen_mit_stunden",
     [](buehne& b) -> QWidget& {
         b.p.form1.stddauer.eingeben("2");
         b.rennen(64000, {1, 2, 3});
         return b.o.bahn1;
     }},
    {"rennen_mit_langen_runden", lange_runden<false>},
    {"rennen_mit_langen_runden_zeilen", lange_runden<true>},
    {"rennen_control_unit_start",
     [](buehne& b) -> QWidget& {
         b.control_unit_anschliessen();
         b.einrichten("Runden", "20", {1, 2, 3, 4, 5, 6});
         b.t.bahn().Command1.klicken();
         return b.o.bahn1;
     }},
    {"rennen_geraet_fehlt",
     [](buehne& b) -> QWidget& {
         b.rennen(31000);
         b.p.rennen.ansicht.geraetealarm_setzen("Carrera Control Unit – keine Verbindung");
         return b.o.bahn1;
     }},
    {"rennen_tausend_runden", tausend_runden<false>},
    {"rennen_tausend_runden_zeilen", tausend_runden<true>},
    {"rennen_helle_farben",
     [](buehne& b) -> QWidget& {
         b.p.einst.farben_ampel[1] = 0xF0F0F0;
         b.p.einst.farben_schrift[2] = 0x202020;
         return tanken<>(b);
     }},
    {"startampel_dragrace",
     [](buehne& b) -> QWidget& {
         b.einrichten("Runden", "20", {1, 2});
         b.p.einst.start_ampel_modus = ampelwahl::dragrace;
         b.t.bahn().Command1.klicken();
         b.t.maschine.laufen(8700);
         return b.o.form2;
     },
     true},
    {"startampel_fruehstart",
     [](buehne& b) -> QWidget& {
         b.p.einst.fruehstart_option = fruehstart_aktion::startabbruch;
         ampel(b);
         b.t.taste("2");
         return b.o.form2;
     },
     true},
    {"fruehstart_strom", [](buehne& b) -> QWidget& { return zu_frueh<fruehstart_aktion::stromunterbrechung>(b, "2"); }},
    {"fruehstart_zeitstrafe_zeilen",
     [](buehne& b) -> QWidget& { return zu_frueh<fruehstart_aktion::zeitstrafe, true>(b, "24"); }},
    {"fruehstart_rennleitung",
     [](buehne& b) -> QWidget& {
         zu_frueh<fruehstart_aktion::zeitstrafe>(b, "24");
         b.p.fenster.zeigen(fenstername::leitstand);
         b.t.maschine.laufen(400);
         return *b.o.leitstand;
     }},
    {"fruehstart_alle", [](buehne& b) -> QWidget& { return zu_frueh<fruehstart_aktion::runde_abzug>(b, "123456"); }},
};

}  // namespace

const std::vector<szeneneintrag>& rennszenen() {
    return alle_rennszenen;
}

}  // namespace tarvel
