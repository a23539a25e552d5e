#include "results/wertung.h"

#include <gtest/gtest.h>

#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

struct ueberfahrt {
    zeit_ms nach;
    const char* tasten;
};

/// A race whose standing was computed by hand.
struct rennen_von_hand {
    const char* was;
    int auswertung_nach;
    std::vector<int> spuren;
    std::vector<ueberfahrt> fahrt;
    std::vector<int> stand;          ///< lanes in the order of their places
    int strafe_spur = 0;             ///< has a penalty of one second
    int ausgeschieden = 0;           ///< lane
    std::vector<zeit_ms> zeit = {};  ///< total times in the order of the places, where they matter
};

const std::vector<rennen_von_hand> rennen_liste{
    {"laps, then time, then best lap, then lane",
     2,
     {1, 2, 3, 4, 5, 6},
     {{1000, "123456"},
      {2500, "2"},
      {500, "135"},
      {1000, "4"},
      {1900, "3"},
      {100, "125"},
      {2000, "4"},
      {1000, "6"},
      {3000, "4"}},
     {4, 3, 2, 1, 5, 6},
     0,
     0,
     {12000, 5900, 6000, 6000, 6000, 9000}},
    {"any other number means laps", 7, {1, 2}, {{1000, "12"}, {2000, "1"}, {1000, "2"}, {3000, "2"}}, {2, 1}},
    {"best lap, then laps, then time",
     3,
     {1, 2, 3, 4},
     {{1000, "1234"}, {2900, "4"}, {100, "123"}, {3500, "3"}, {500, "2"}},
     {4, 3, 2, 1}},
    {"no lap is a best lap of 0", 3, {1, 2, 3}, {{1000, "12"}, {3000, "1"}}, {2, 3, 1}},
    {"metres, then time, then best lap",
     1,
     {1, 2, 3, 4},
     {{1000, "1234"}, {2500, "24"}, {500, "13"}, {2500, "2"}, {500, "14"}},
     {2, 4, 1, 3},
     0,
     0,
     {5500, 6000, 6000, 3000}},
    {"a penalty turns the standing", 2, {1, 2}, {{1000, "12"}, {3000, "1"}, {900, "2"}}, {2, 1}, 1, 0, {3900, 4000}},
    {"equal times, the best lap decides, and place 1 reads as lane 1, which is not used",
     2,
     {2, 3},
     {{1000, "23"}, {2500, "2"}, {500, "3"}, {3000, "23"}},
     {3, 2}},
    {"the same exchange without any tie in the last key", 2, {3, 6}, {{1000, "36"}, {3000, "36"}}, {6, 3}},
    {"with a time that differs nothing is exchanged", 2, {2, 3}, {{1000, "23"}, {2500, "2"}, {500, "3"}}, {2, 3}},
    {"who never crossed the line is behind who did", 2, {1, 4, 6}, {{1000, "6"}}, {6, 1, 4}},
    {"all equal: the order of the lanes",
     2,
     {1, 2, 3, 4, 5, 6},
     {{1000, "654321"}, {3000, "654321"}},
     {1, 2, 3, 4, 5, 6}},
    {"out: behind by laps", 2, {1, 2}, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {2, 1}, 0, 1, {4000, 0}},
    {"out: behind by metres", 1, {1, 2}, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {2, 1}, 0, 1},
    {"out: behind by the best lap", 3, {1, 2}, {{1000, "12"}, {2000, "1"}, {2000, "12"}}, {2, 1}, 0, 1},
};

TEST(Wertung, RennenDieVonHandGerechnetSind) {
    test::testprogramm t;
    t.p.form1.wertmin.eingeben("1");
    t.p.einst.zielmodus_erster = true;
    t.p.einst.sensor_timeout = 0;
    for (const rennen_von_hand& r : rennen_liste) {
        SCOPED_TRACE(r.was);
        t.p.einst.auswertung_nach = r.auswertung_nach;
        for (const int spur : alle_spuren) {
            const bool soll = std::find(r.spuren.begin(), r.spuren.end(), spur) != r.spuren.end();
            haken& kasten = t.p.form1.spur.at(feld_index(spur));
            if (kasten.gesetzt() != soll) {
                kasten.umschalten();
            }
        }
        t.p.einst.start_ampel_modus = 0;
        t.p.einst.beste_modus = 0;
        t.p.form1.Command1.klicken();
        t.bahn().Command1.klicken();
        for (const ueberfahrt& u : r.fahrt) {
            t.runde_nach(u.nach, u.tasten);
        }
        if (r.strafe_spur != 0) {
            t.spur(r.strafe_spur).strafzeit = 1;
        }
        if (r.ausgeschieden != 0) {
            t.spur(r.ausgeschieden).disqualifiziert = true;
        }
        t.bahn().Command4.klicken();
        for (std::size_t platz = 0; platz < r.stand.size(); ++platz) {
            EXPECT_EQ(t.p.wertung.platzierung(r.stand[platz]), static_cast<int>(platz) + 1) << r.stand[platz];
            if (!r.zeit.empty()) {
                EXPECT_EQ(t.p.wertung.gesamtzeit(r.stand[platz]), r.zeit[platz]) << r.stand[platz];
            }
        }
        t.p.auswertung.Command5.klicken();
    }
}

class WertungKorrektur : public testing::Test {
protected:
    WertungKorrektur() {
        t.p.form1.wertmin.eingeben("1");
        t.p.einst.zielmodus_erster = true;
        t.p.einst.sensor_timeout = 0;
    }
    test::testprogramm t;
    auswertung& a = t.p.auswertung;
    wertung& w = t.p.wertung;
};

TEST_F(WertungKorrektur, GeloeschteRundeGehtInDieDavorUndOrdnetNeu) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(3000, "1");
    t.runde_nach(1000, "2");
    t.runde_nach(2000, "1");
    t.runde_nach(2000, "2");
    t.runde_nach(1500, "1");
    t.bahn().Command4.klicken();
    a.Command8.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Bitte zu löschende Runde auswählen.");
    EXPECT_EQ(w.platzierung(1), 1);
    a.liste[0].auswaehlen(1);  // 3000, 3000, 3500
    a.Command8.klicken();
    EXPECT_EQ(a.liste[0].zeilen(), (std::vector<std::string>{"1.  00:06,000", "2.  00:03,500"}));
    EXPECT_EQ(w.gesamtzeit(1), 9500);
    EXPECT_EQ(w.beste_runde(1), 3500);
    EXPECT_EQ(w.platzierung(2), 1);
    EXPECT_EQ(a.ges_meter[0].text(), "50,00 m");
    a.liste[1].auswaehlen(0);
    a.cmd_rd_add[1].klicken();
    EXPECT_EQ(a.liste[1].markiert(), 1);
    a.liste[0].auswaehlen(0);
    EXPECT_EQ(a.liste[1].markiert(), -1) << "one lap is selected, not one in each list";
    a.cmd_rd_inc[0].klicken();
    EXPECT_EQ(w.gesamtzeit(1), 3500) << "the first lap goes to the way to the line";
    a.liste[0].auswaehlen(0);
    a.cmd_rd_inc[0].klicken();
    EXPECT_EQ(w.runden(1), 0);
    EXPECT_EQ(w.beste_runde(1), 0);
}

TEST_F(WertungKorrektur, MeterEntscheidenUndGehenAnAusgeschiedenenVorbei) {
    t.p.einst.auswertung_nach = 1;
    t.starten("Zeit", "1", {1, 2, 3});
    t.runde_nach(1000, "123");
    t.runde_nach(3000, "12");
    t.spur(3).disqualifiziert = true;
    t.bahn().Command4.klicken();
    a.Command6.klicken();
    EXPECT_EQ(a.Command6.text(), "fertig");
    EXPECT_FALSE(a.Command5.aktiviert());
    EXPECT_FALSE(a.meter[3].sichtbar());
    a.meter[1].eingeben("2,455");
    a.meter[2].eingeben("99");
    a.Command6.klicken();
    EXPECT_EQ(a.ges_meter[1].text(), "27,46 m");
    EXPECT_EQ(a.ges_meter[2].text(), "0,00 m");
    EXPECT_EQ(w.platzierung(2), 1);
    a.Command10.klicken();
    EXPECT_EQ(a.ges_meter[1].text(), "27,46 m") << "counts once";
    a.Command6.klicken();
    a.meter[1].eingeben("-2,5");
    a.Command6.klicken();
    EXPECT_EQ(w.platzierung(1), 1) << "a wrong entry can be taken back";
}

TEST_F(WertungKorrektur, AnzeigeDerSektoren) {
    t.p.einst.sektor_an = {true, true, false, false};
    t.p.einst.sektor_laenge[1][1] = "10";
    t.starten("Zeit", "1", {1});
    t.runde_nach(1000, "1");
    t.maschine.laufen(1999);
    t.p.ereignisse.ereignis_melden(42);
    t.runde_nach(5001, "1");
    t.bahn().Command4.klicken();
    const char* const zeit = "1.  00:07,000";
    for (const char* dahinter : {"    T1: 02,000", "    S1: 18,00 km/h", "    T1: 02,000    S1: 18,00 km/h", ""}) {
        a.cmd_anzeige[0].klicken();
        EXPECT_EQ(a.liste[0].zeilen().front(), std::string(zeit) + dahinter);
    }
    t.p.einst.sektor_an = {};
    a.cmd_anzeige[0].klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Sektoren nicht aktiviert - Anzeigeänderung nicht möglich.");
}

}  // namespace
}  // namespace tarvel
