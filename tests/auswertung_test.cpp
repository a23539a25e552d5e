#include "results/auswertung.h"

#include <gtest/gtest.h>

#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

class Auswertung : public testing::Test {
protected:
    auswertung& a = t_.p.auswertung;
    wertung& w = t_.p.wertung;
    test::testprogramm& t = t_;

private:
    test::testprogramm t_;
};

TEST_F(Auswertung, SechsSpurenRundenrennenVonDerTasteBisZumStand) {
    t.starten("Runden", "3", {1, 2, 3, 4, 5, 6});
    t.runde_nach(1000, "123456");
    t.runde_nach(8000, "123456");
    t.runde_nach(7500, "421");
    t.runde_nach(500, "35");
    t.runde_nach(6000, "2");
    ASSERT_TRUE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_EQ(w.platzierung(2), 1);
    EXPECT_EQ(w.platzierung(1), 2);
    EXPECT_EQ(w.platzierung(4), 3);
    EXPECT_EQ(w.platzierung(3), 4);
    EXPECT_EQ(w.platzierung(5), 5);
    EXPECT_EQ(w.platzierung(6), 6);
    EXPECT_EQ(a.Frame[1].reihe(), 0);
    EXPECT_EQ(a.runden_aus[1].text(), "3");
    EXPECT_EQ(a.beste_aus[1].text(), "06,500");
    EXPECT_EQ(a.zeit_aus[1].text(), "00:22,000");
    EXPECT_EQ(a.liste[1].zeilen(), (std::vector<std::string>{"1.  00:08,000", "2.  00:07,500", "3.  00:06,500"}));
    EXPECT_FALSE(a.abstandlabel[1].sichtbar());
    EXPECT_EQ(a.runden_aus[0].text(), "2");
    EXPECT_EQ(a.abstandlabel[0].text(), "- 00:06,500") << "a lane behind in laps may be ahead in time";
    EXPECT_EQ(a.ges_meter[0].text(), "50,00 m");
    // 25 m in 7.5 s, and 50 m in 15.5 s
    EXPECT_EQ(a.kmh_label[0].text(), "12,00 / 11,61 km/h");
    EXPECT_EQ(a.fahrer[5].text(), "Fahrer 6");
}

TEST_F(Auswertung, AbstandIstEineReineZeitdifferenz) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(8000, "1");
    t.runde_nach(1234, "2");
    t.maschine.laufen(60000);
    EXPECT_EQ(a.abstandlabel[1].text(), "+ 00:01,234");
    EXPECT_TRUE(a.abstandlabel[1].sichtbar());
    EXPECT_FALSE(a.Frame[2].sichtbar());
}

TEST_F(Auswertung, OhneUeberfahrtNullRundenUndAusgeschiedeneHinten) {
    t.starten("Zeit", "1", {1, 2, 3});
    t.runde_nach(1000, "12");
    t.runde_nach(6000, "12");
    t.runde_nach(6000, "1");
    t.spur(1).disqualifiziert = true;
    t.maschine.laufen(60000);
    EXPECT_EQ(w.platzierung(2), 1);
    EXPECT_EQ(a.runden_aus[0].text(), "Dis.");
    EXPECT_TRUE(a.liste[0].zeilen().empty());
    EXPECT_EQ(a.runden_aus[2].text(), "0");
    EXPECT_EQ(a.zeit_aus[2].text(), "00:00,000");
    EXPECT_EQ(a.kmh_label[2].text(), "0,00 / 0,00 km/h");
}

TEST_F(Auswertung, MeterUndBesteRundeAlsMassstabGeltenImFenster) {
    t.p.form1.lspur[1].eingeben("20");
    t.p.einst.auswertung_nach = 1;
    const auto fahren = [this] {
        t.starten("Zeit", "1", {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "2");
        t.runde_nach(1000, "1");
        t.maschine.laufen(60000);
    };
    fahren();
    EXPECT_EQ(a.ges_meter[0].text(), "25,00 m");
    EXPECT_EQ(w.platzierung(1), 1) << "more metres in the same laps";
    a.Command5.klicken();
    t.p.einst.auswertung_nach = 3;
    fahren();
    EXPECT_EQ(w.platzierung(2), 1) << "the better lap";
}

TEST_F(Auswertung, StrafzeitZaehltZurGesamtzeit) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(6000, "1");
    t.runde_nach(200, "2");
    t.spur(1).strafzeit = 5;
    t.maschine.laufen(60000);
    EXPECT_EQ(w.gesamtzeit(1), 11000);
    EXPECT_EQ(w.platzierung(2), 1);
    EXPECT_EQ(a.aus_straflabel[0].text(), "Strafzeit: 5 sec");
    EXPECT_FALSE(a.aus_straflabel[1].sichtbar());
}

TEST_F(Auswertung, HauptmenueRaeumtDasRennenAb) {
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(60001);
    ASSERT_TRUE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_EQ(a.Command5.text(), "Hauptmenü");
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft()) << "late cars keep being stamped behind the result";
    a.Command5.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_FALSE(t.p.fenster.ist_offen("bahn1"));
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
    t.starten("Runden", "1", {3});
    t.runde_nach(1000, "3");
    t.runde_nach(6000, "3");
    EXPECT_EQ(a.runden_aus[2].text(), "1");
    EXPECT_EQ(a.ges_meter[2].text(), "25,00 m") << "nothing is left of the race before";
}

TEST_F(Auswertung, LetzterImZielHaeltDieZeitgeberAn) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Runden", "1", {1});
    t.runde_nach(1000, "1");
    t.runde_nach(6000, "1");
    ASSERT_TRUE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
}

}  // namespace
}  // namespace tarvel
