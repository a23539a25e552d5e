#include "results/wertung.h"

#include "results/platzierung.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

struct ueberfahrt {
    zeit_ms nach;
    const char* tasten;
};

/// What a lane must have, and the lanes in the order of their places.
struct platz_von_hand {
    int spur;
    int runden;
    zeit_ms zeit;
};

/// A race whose standing was computed by hand.
struct rennen_von_hand {
    const char* was;
    int auswertung_nach;
    std::vector<ueberfahrt> fahrt;
    std::vector<platz_von_hand> stand;
    int strafe_spur = 0;    ///< has a penalty of one second
    int ausgeschieden = 0;  ///< lane
};

const std::vector<rennen_von_hand> rennen_liste{
    {"laps, then time, then best lap, then lane",
     2,
     {{1000, "123456"},
      {2500, "2"},
      {500, "135"},
      {1000, "4"},
      {1900, "3"},
      {100, "125"},
      {2000, "4"},
      {1000, "6"},
      {3000, "4"}},
     {{4, 3, 12000}, {3, 2, 5900}, {2, 2, 6000}, {1, 2, 6000}, {5, 2, 6000}, {6, 1, 9000}}},
    {"any other number means laps",
     7,
     {{1000, "12"}, {2000, "1"}, {1000, "2"}, {3000, "2"}},
     {{2, 2, 6000}, {1, 1, 2000}}},
    {"best lap, then laps, then time",
     3,
     {{1000, "1234"}, {2900, "4"}, {100, "123"}, {3500, "3"}, {500, "2"}},
     {{4, 1, 2900}, {3, 2, 6500}, {2, 2, 7000}, {1, 1, 3000}}},
    {"no lap is a best lap of 0", 3, {{1000, "12"}, {3000, "1"}}, {{2, 0, 0}, {3, 0, 0}, {1, 1, 3000}}},
    {"metres, then time, then best lap",
     1,
     {{1000, "1234"}, {2500, "24"}, {500, "13"}, {2500, "2"}, {500, "14"}},
     {{2, 2, 5500}, {4, 2, 6000}, {1, 2, 6000}, {3, 1, 3000}}},
    {"a penalty turns the standing", 2, {{1000, "12"}, {3000, "1"}, {900, "2"}}, {{2, 1, 3900}, {1, 1, 4000}}, 1},
    {"equal times: the best lap decides, but place 1 reads as lane 1, which is not used",
     2,
     {{1000, "23"}, {2500, "2"}, {500, "3"}, {3000, "23"}},
     {{3, 2, 6000}, {2, 2, 6000}}},
    {"the same exchange where all is equal", 2, {{1000, "36"}, {3000, "36"}}, {{6, 1, 3000}, {3, 1, 3000}}},
    {"times that differ are not exchanged", 2, {{1000, "23"}, {2500, "2"}, {500, "3"}}, {{2, 1, 2500}, {3, 1, 3000}}},
    {"who never crossed the line is behind who did", 2, {{1000, "6"}}, {{6, 0, 0}, {1, 0, 0}, {4, 0, 0}}},
    {"all equal: the order of the lanes",
     2,
     {{1000, "654321"}, {3000, "654321"}},
     {{1, 1, 3000}, {2, 1, 3000}, {3, 1, 3000}, {4, 1, 3000}, {5, 1, 3000}, {6, 1, 3000}}},
    {"out: behind by laps", 2, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {{2, 1, 4000}, {1, 0, 0}}, 0, 1},
    {"out: behind by metres", 1, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {{2, 1, 4000}, {1, 0, 0}}, 0, 1},
    {"out: behind by the best lap", 3, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {{2, 1, 4000}, {1, 0, 0}}, 0, 1},
};

TEST(Wertung, RennenDieVonHandGerechnetSind) {
    test::testprogramm t;
    t.p.form1.wertmin.eingeben("1");
    t.p.einst.zielmodus_erster = true;
    t.p.einst.sensor_timeout = 0ms;
    for (const rennen_von_hand& r : rennen_liste) {
        SCOPED_TRACE(r.was);
        t.p.einst.auswertung_nach = sortier_modus(r.auswertung_nach);
        std::vector<int> lanes;
        for (const platz_von_hand& p : r.stand) {
            lanes.push_back(p.spur);
        }
        t.starten("Zeit", "5", lanes);
        for (const ueberfahrt& u : r.fahrt) {
            t.runde_nach(u.nach, u.tasten);
        }
        if (r.strafe_spur != 0) {
            t.spur(r.strafe_spur).strafzeit = 1s;
        }
        if (r.ausgeschieden != 0) {
            t.spur(r.ausgeschieden).disqualifiziert = true;
        }
        t.rennende();
        int platz = 0;
        for (const platz_von_hand& p : r.stand) {
            SCOPED_TRACE(p.spur);
            EXPECT_EQ(t.ergebnis(p.spur).platz, ++platz);
            EXPECT_EQ(t.ergebnis(p.spur).rundenzahl(), p.runden);
            EXPECT_EQ(t.ergebnis(p.spur).gesamtzeit, p.zeit);
        }
        t.p.auswertung.Command5.klicken();
    }
}

class WertungKorrektur : public test::ProgrammProbe {
protected:
    WertungKorrektur() {
        t.p.form1.wertmin.eingeben("1");
        t.p.einst.zielmodus_erster = true;
        t.p.einst.sensor_timeout = 0ms;
    }
    auswertung& a = t.p.auswertung;
};

TEST(Wertung, LangsameRundeFaelltNichtHinterFreieSpurenZurueck) {
    rennergebnis e;
    e.wertung = sortier_modus::beste;
    for (const int nummer : {3, 5}) {
        rennergebnis::spur& s = e.spuren.emplace_back();
        s.nummer = nummer;
        s.runden.resize(nummer == 3 ? 4 : 3);
        s.beste = s.gesamtzeit = 1100000;
    }
    platzieren(e);
    EXPECT_EQ(e.spuren[0].platz, 1);
    EXPECT_EQ(e.spuren[1].platz, 2);
}

TEST_F(WertungKorrektur, GeloeschteRundeGehtInDieDavorUndOrdnetNeu) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(3000, "1");
    t.runde_nach(1000, "2");
    t.runde_nach(2000, "1");
    t.runde_nach(2000, "2");
    t.runde_nach(1500, "1");
    t.rennende();
    a.Command8.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Bitte zu löschende Runde auswählen.");
    EXPECT_EQ(t.ergebnis(1).platz, 1);
    a.liste[0].auswaehlen(1);  // 3000, 3000, 3500
    a.Command8.klicken();
    EXPECT_EQ(a.liste[0].zeilen(), (std::vector<std::string>{"1.  00:06,000", "2.  00:03,500"}));
    EXPECT_EQ(t.ergebnis(1).gesamtzeit, 9500);
    EXPECT_EQ(t.ergebnis(1).beste, 3500);
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    EXPECT_EQ(a.ges_meter[0].text(), "50,00 m");
    a.liste[1].auswaehlen(0);
    a.cmd_rd_add[1].klicken();
    EXPECT_EQ(a.liste[1].markiert(), 1);
    a.liste[0].auswaehlen(0);
    EXPECT_EQ(a.liste[1].markiert(), -1) << "one lap is selected, not one in each list";
    a.cmd_rd_inc[0].klicken();
    EXPECT_EQ(t.ergebnis(1).gesamtzeit, 3500) << "the first lap goes to the way to the line";
    a.liste[0].auswaehlen(0);
    a.cmd_rd_inc[0].klicken();
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 0);
    EXPECT_EQ(t.ergebnis(1).beste, 0);
    EXPECT_EQ(a.kmh_label[0].text(), "0,00 / 0,00 km/h");
}

TEST_F(WertungKorrektur, MeterEntscheidenUndGehenAnAusgeschiedenenVorbei) {
    t.p.einst.auswertung_nach = sortier_modus::meter;
    t.starten("Zeit", "1", {1, 2, 3});
    t.runde_nach(1000, "123");
    t.runde_nach(3000, "12");
    t.spur(3).disqualifiziert = true;
    t.rennende();
    a.Command6.klicken();
    EXPECT_EQ(a.Command6.text(), "fertig");
    for (const befehl* anderer : {&a.Command5, &a.Command_urkunden, &a.Command_protokoll, &a.cmd_anzeige[0]}) {
        EXPECT_FALSE(anderer->aktiviert());
    }
    EXPECT_FALSE(a.meter[3].sichtbar());
    a.meter[1].eingeben("2,455");
    a.meter[2].eingeben("99");
    a.Command6.klicken();
    EXPECT_EQ(a.ges_meter[1].text(), "27,46 m");
    EXPECT_EQ(a.ges_meter[2].text(), "0,00 m");
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    a.Command10.klicken();
    EXPECT_EQ(a.ges_meter[1].text(), "27,46 m") << "counts once";
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Geprüft: Die Plätze stimmen.");
    a.Command6.klicken();
    a.meter[1].eingeben("viel");
    a.Command6.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Spur 2: Restmeter: Hier steht keine Zahl.");
    a.meter[1].eingeben("23");
    a.Command6.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.back().text,
              "Spur 2: Restmeter: 25,455 m. Die Spur ist nur so lang: 25 m. Trotzdem eintragen?");
    a.meter[1].eingeben("-2,5");
    a.Command6.klicken();
    EXPECT_EQ(t.ergebnis(1).platz, 1) << "a wrong entry can be taken back";
    a.Command6.klicken();
    a.meter[1].eingeben("99");
    t.maschine.antwort = true;
    t.maschine.waehrend_frage = [this] {
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.rennen.ablauf.rennstart_vorbereiten();  // the result that was asked about is no more
    };
    a.Command6.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(WertungKorrektur, AnzeigeDerSektoren) {
    t.p.einst.sektor_an = {true, true, false, false};
    t.p.einst.sektor_laenge[1][1] = "10";
    t.starten("Zeit", "1", {1});
    t.runde_nach(1000, "1");
    t.maschine.laufen(1999);
    t.p.ereignisse.ereignis_melden(42);
    t.runde_nach(5001, "1");
    t.rennende();
    const char* const zeit = "1.  00:07,000";
    for (const char* dahinter : {"    T1: 02,000", "    S1: 18,00 km/h", "    T1: 02,000    S1: 18,00 km/h", ""}) {
        a.cmd_anzeige[0].klicken();
        EXPECT_EQ(a.liste[0].zeilen().front(), std::string(zeit) + dahinter);
    }
    t.p.einst.sektor_an = {};
    a.Command10.klicken();
    a.cmd_anzeige[0].klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Sektoren nicht aktiviert - Anzeigeänderung nicht möglich.");
}

}  // namespace
}  // namespace tarvel
