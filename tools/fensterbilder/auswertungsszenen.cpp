#include "tools/fensterbilder/szenen.h"

namespace tarvel {
namespace {

const std::vector<szeneneintrag> alle_auswertungsszenen{
    {"auswertung",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         return b.o.auswertung;
     }},
    {"auswertung_tanken",
     [](buehne& b) -> QWidget& {
         b.p.form1.t_aktiv.umschalten();
         b.p.einst.tank_straf_option = leer_aktion::zeitstrafe;
         b.rennen(95000);
         b.t.rennende();
         return b.o.auswertung;
     }},
    {"auswertung_ab_gruen",  // who came over the line first is last by his laps
     [](buehne& b) -> QWidget& {
         b.einrichten("Runden", "30", {1, 2, 3, 4, 5, 6});
         b.t.bahn().Command1.klicken();
         b.t.runde_nach(1000, "1");
         b.t.runde_nach(1000, "23456");
         b.t.runde_nach(6500, "1");
         b.t.runde_nach(100, "23456");
         b.t.rennende();
         return b.o.auswertung;
     }},
    {"rennen_ergebnis_anders",  // as the hall sees it behind the result
     [](buehne& b) -> QWidget& {
         b.p.einst.rennbild.auf_schirm_2 = true;  // where there is one
         b.einrichten("Runden", "30", {1, 2, 4, 5, 6});
         b.t.bahn().Command1.klicken();
         b.t.runde_nach(1000, "1");
         b.t.runde_nach(1000, "2456");
         b.t.runde_nach(6500, "1");
         b.t.runde_nach(100, "2456");
         b.t.rennende();
         return b.o.bahn1;
     }},
    {"auswertung_fruehstart",  // the same, and the time of one runs from the green light
     [](buehne& b) -> QWidget& {
         b.p.einst.fruehstart_option = fruehstart_aktion::ohne;
         b.einrichten("Runden", "1", {1, 2, 3, 4, 5, 6});
         b.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
         b.t.bahn().Command1.klicken();
         b.t.maschine.laufen(5500);
         b.t.taste("3");
         b.t.maschine.laufen(6000);
         b.t.runde_nach(1000, "1");
         b.t.runde_nach(1000, "2456");
         b.t.runde_nach(5500, "1");
         b.t.runde_nach(100, "23456");
         b.t.rennende();
         b.t.maschine.laufen(20000);  // no crossing counts any more
         return b.o.auswertung;
     }},
    {"urkunden_tag",
     [](buehne& b) -> QWidget& {
         std::vector<tabellenplatz> plaetze;
         for (const char* wer : {"Anna", "Ben", "Carl-Friedrich von Gauß", "Dora", "Emil", "Frieda", "Gustav"}) {
             const int n = static_cast<int>(plaetze.size());
             plaetze.push_back({n + 1, wer, "A", 120 - 3 * n, 3000.0 - 75 * n, 6500 + 120 * n, 840000 + 9000 * n});
         }
         b.p.ergebnis_fluegel().urkunden.oeffnen(plaetze, "21.11.2026", "Tagesrennen");
         return *b.o.urkunden;
     }},
    {"urkunden",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command_urkunden.klicken();
         b.p.ergebnis_fluegel().urkunden.verein.eingeben("Slotfreunde Nordheide e. V.");
         b.p.ergebnis_fluegel().urkunden.veranstaltung.eingeben("Kinderpokal 2026, dritter Lauf");
         return *b.o.urkunden;
     }},
    {"auswertung_zwei_spuren",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {2, 5});
         return b.o.auswertung;
     }},
    {"auswertung_meter",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command6.klicken();
         return b.o.auswertung;
     }},
    {"wiedergabe",
     [](buehne& b) -> QWidget& {
         b.p.form1.t_aktiv.umschalten();
         b.rennen(61000);
         b.t.bahn().Command3.klicken();
         b.t.maschine.laufen(5000);
         b.t.bahn().Command3.klicken();
         b.t.maschine.laufen(10000);
         b.fahren(40000);
         b.t.rennende();
         b.t.maschine.laufen(20000);  // no crossing counts any more
         b.p.auswertung.Command_wiedergabe.klicken();
         b.p.wiedergabe.leiste.greifen(34500);
         b.t.maschine.laufen(100);
         return *b.o.wiedergabe;
     }},
    {"wiedergabe_ampel",
     [](buehne& b) -> QWidget& {
         b.einrichten("Runden", "20", {1, 2, 3, 4});
         b.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
         b.p.fenster.neu_laden(fenstername::bahn1);  // a race keeps the settings that it began with
         b.t.bahn().Command1.klicken();
         b.t.maschine.laufen(12000);
         b.fahren(20000);
         b.t.bahn().Command3.klicken();
         b.t.maschine.laufen(5000);
         b.t.rennende();
         b.p.auswertung.Command_wiedergabe.klicken();
         b.p.wiedergabe.leiste.greifen(5500);
         b.t.maschine.laufen(100);
         return *b.o.wiedergabe;
     }},
    {"auswertung_nachtragen",
     [](buehne& b) -> QWidget& {
         b.p.form1.wertmin.eingeben("5");
         b.rundenrennen(40000, "14", {1, 2, 3, 4, 5, 6});
         for (int mal = 0; mal < 4; ++mal) {
             b.t.taste("1");
             b.fahren(1300);
         }
         b.fahren(100000);
         b.p.auswertung.liste[0].auswaehlen(4);
         b.p.auswertung.Command_nachtragen.klicken();
         return b.o.auswertung;
     }},
    {"auswertung_nachgetragen",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         for (const std::size_t spur : {0U, 3U}) {
             b.p.auswertung.liste.at(spur).auswaehlen(5);
             b.p.auswertung.Command_nachtragen.klicken();
             b.p.auswertung.nachtrag.Command_eintragen.klicken();
         }
         b.p.auswertung.Command_zurueck.klicken();
         b.p.auswertung.Command_wieder.klicken();
         return b.o.auswertung;
     }},
    {"rundenverlauf_nachgetragen",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.liste[0].auswaehlen(5);
         b.p.auswertung.Command_nachtragen.klicken();
         b.p.auswertung.nachtrag.Command_eintragen.klicken();
         b.p.auswertung.Command_verlauf.klicken();
         return b.o.auswertung;
     }},
    {"rundenverlauf",
     [](buehne& b) -> QWidget& {
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command_verlauf.klicken();
         return b.o.auswertung;
     }},
    {"bestzeiten",
     [](buehne& b) -> QWidget& {
         b.p.bestzeiten.leeren();
         b.ergebnis("14", {1, 2, 3, 4, 5, 6});
         b.p.auswertung.Command5.klicken();
         return *b.o.bestzeiten;
     },
     true},
    {"bestzeitverwaltung",
     [](buehne& b) -> QWidget& {
         b.p.beste_zeiten_verwaltung.oeffnen();
         return *b.o.bestzeitverwaltung;
     }},
    {"ergebnis_speichern",
     [](buehne& b) -> QWidget& {
         b.ergebnis("8", {1, 2});
         b.p.auswertung.Command4.klicken();
         return *b.o.rundenspeichern;
     },
     true},
};

}  // namespace

const std::vector<szeneneintrag>& auswertungsszenen() {
    return alle_auswertungsszenen;
}

}  // namespace tarvel
