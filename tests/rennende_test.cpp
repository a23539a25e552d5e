#include "race/rennende.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

class Rennende : public testing::Test {
protected:
    bool beendet() { return t.p.fenster.ist_offen("auswertung"); }
    bool gespielt(const char* datei) const {
        return std::find(t.maschine.sounds.begin(), t.maschine.sounds.end(), datei) != t.maschine.sounds.end();
    }
    std::string uhr(const rennuhr_felder& u) const {
        return u.stunden.text() + ":" + u.minuten.text() + ":" + u.sekunden.text() + "," + u.tausendstel.text();
    }

    test::testprogramm t;
};

struct ausgabe_protokoll : ausgabe_geraet {
    std::vector<schaltung> befehle;
    void schalten(const schaltung& befehl) override { befehle.push_back(befehl); }
    bool enthaelt(const schaltung& befehl) const {
        return std::find(befehle.begin(), befehle.end(), befehl) != befehle.end();
    }
};

TEST_F(Rennende, UhrenEinesZeitrennens) {
    t.einrichten("Zeit", "1,5", {1});
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:01:50,000");
    t.bahn().Command1.klicken();
    t.maschine.laufen(10001);
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:01:40,000");
    EXPECT_EQ(uhr(t.bahn().uhr2), "00:00:10,000");
    EXPECT_FALSE(t.bahn().uhr1.stunden.sichtbar());
    t.maschine.laufen(99985);
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:00:00,015");
    t.maschine.laufen(1);
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:00:00,000") << "the last milliseconds show as zero";
    EXPECT_EQ(uhr(t.bahn().uhr2), "00:01:49,000");
    EXPECT_FALSE(beendet());
    t.maschine.laufen(14);
    EXPECT_TRUE(beendet());
}

TEST_F(Rennende, StundenErscheinenMitIhrenTrennern) {
    t.p.form1.stddauer.eingeben("1");
    t.einrichten("Zeit", "1", {1});
    EXPECT_TRUE(t.bahn().uhr1.stunden.sichtbar());
    EXPECT_EQ(uhr(t.bahn().uhr1), "01:01:00,000");
    EXPECT_EQ(t.bahn().ziel_label.text(), "1 h 1:00 min");
    t.bahn().Command1.klicken();
    t.maschine.laufen(10);
    EXPECT_TRUE(t.bahn().uhr2.stunden.sichtbar());
    EXPECT_TRUE(t.bahn().uhr2.nach_stunden.sichtbar());
}

TEST_F(Rennende, PauseHaeltDieUhrAnUndVerschiebtDasEnde) {
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(10001);
    t.p.rennen.zustand.chaos_aktiv = true;
    t.maschine.laufen(5000);
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:00:50,000");
    t.p.rennen.zustand.chaos_aktiv = false;
    t.p.rennen.zustand.pause_abzug = 5000;
    t.maschine.laufen(1000);
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:00:49,000");
    t.maschine.laufen(48999);
    EXPECT_FALSE(beendet());
    t.maschine.laufen(1);
    EXPECT_TRUE(beendet());
}

TEST_F(Rennende, ZeitrennenErsterImZielEndetBeiNull) {
    ausgabe_protokoll geraet;
    t.p.ausgaben.anschliessen(geraet);
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "1");
    t.maschine.laufen(59001);
    ASSERT_TRUE(beendet());
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_FALSE(t.p.rennen.zustand.rennabbruch);
    EXPECT_EQ(t.p.rennen.zustand.minuten_gefahren, "01");
    EXPECT_EQ(t.p.rennen.zustand.rennen_ende_uhrzeit, "21.11.2026-14:03:22");
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\re.wav");
    EXPECT_EQ(geraet.befehle.back(), (schaltung{schaltung::ausgang::bahnstrom_aus, 0, false}));
    t.runde_nach(7000, "1");
    EXPECT_EQ(t.spur(1).runden, 0) << "no lap counts behind the result";
}

TEST_F(Rennende, ZeitrennenLetzterImZielGibtJedemNochEineUeberfahrt) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(58900, "1");
    t.maschine.laufen(101);
    EXPECT_FALSE(beendet());
    EXPECT_TRUE(t.bahn().nachlauflabel.sichtbar());
    EXPECT_FALSE(t.bahn().uhr1.uhrframe.sichtbar());
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.spur(1).ziel_erreicht);
    EXPECT_EQ(t.bahn().bahnshape[1].randfarbe(), farben::rot);
    EXPECT_TRUE(t.bahn().ampel_rt[0].sichtbar());
    EXPECT_FALSE(t.bahn().ampel_gr[0].sichtbar());
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.spur(1).runden, 2) << "home is home";
    EXPECT_FALSE(beendet());
    t.runde_nach(20000, "2");
    EXPECT_TRUE(beendet());
    EXPECT_EQ(t.spur(2).runden, 1);
}

TEST_F(Rennende, NachlaufDauertHoechstensZweiMinuten) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "1", {1, 2});
    t.maschine.laufen(60001 + 119999);
    EXPECT_FALSE(beendet());
    t.maschine.laufen(1);
    EXPECT_TRUE(beendet());
    EXPECT_FALSE(t.bahn().nachlauflabel.sichtbar());
    EXPECT_TRUE(t.bahn().uhr1.uhrframe.sichtbar());
}

TEST_F(Rennende, RundenrennenErsterImZielEndetFuerAlle) {
    ausgabe_protokoll geraet;
    t.p.ausgaben.anschliessen(geraet);
    t.starten("Runden", "2", {1, 3});
    t.runde_nach(1000, "13");
    t.runde_nach(6000, "13");
    EXPECT_FALSE(beendet());
    t.runde_nach(6000, "3");
    ASSERT_TRUE(beendet());
    EXPECT_TRUE(gespielt("sound\\ez.wav"));
    EXPECT_TRUE(geraet.enthaelt({schaltung::ausgang::bahnstrom_aus, 3, true}));
    EXPECT_TRUE(geraet.enthaelt({schaltung::ausgang::zieleinfahrt, 3, true}));
    EXPECT_FALSE(geraet.enthaelt({schaltung::ausgang::zieleinfahrt, 1, true}));
    EXPECT_EQ(t.spur(1).runden, 1);
}

TEST_F(Rennende, AusgeschiedeneSpurBeendetDasRundenrennenNicht) {
    t.starten("Runden", "2", {1, 3});
    t.runde_nach(1000, "13");
    t.runde_nach(6000, "3");
    t.spur(3).runden = 2;
    t.spur(3).disqualifiziert = true;
    t.maschine.laufen(10);
    EXPECT_FALSE(beendet());
}

TEST_F(Rennende, RundenrennenLetzterImZielWartetAufAlle) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Runden", "1", {2, 5});
    t.runde_nach(1000, "25");
    t.runde_nach(6000, "2");
    EXPECT_TRUE(t.spur(2).ziel_erreicht);
    t.runde_nach(6000, "2");
    EXPECT_EQ(t.spur(2).runden, 1);
    EXPECT_FALSE(beendet());
    t.runde_nach(6000, "5");
    EXPECT_TRUE(beendet());
    EXPECT_EQ(std::count(t.maschine.sounds.begin(), t.maschine.sounds.end(), "sound\\ez.wav"), 1);
}

TEST_F(Rennende, AktuelleRundeBeendenLaesstJedenAusfahren) {
    t.p.einst.runde_beenden = true;
    t.starten("Runden", "1", {1, 2, 3});
    t.runde_nach(1000, "123");
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.spur(1).ziel_erreicht);
    EXPECT_FALSE(beendet());
    t.runde_nach(500, "2");
    EXPECT_TRUE(t.spur(2).ziel_erreicht);
    t.runde_nach(500, "3");
    EXPECT_TRUE(beendet());
}

TEST_F(Rennende, VonHandBeendetGibtGenauEinErgebnis) {
    t.starten("Zeit", "5", {1});
    t.maschine.laufen(1000);
    t.maschine.sounds.clear();
    t.bahn().Command4.klicken();
    t.bahn().Command4.klicken();
    EXPECT_TRUE(beendet());
    EXPECT_TRUE(t.p.rennen.zustand.rennabbruch);
    t.maschine.laufen(400000);
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{"sound\\re.wav"});
}

TEST_F(Rennende, FortgesetzteUhrZeigtDieRenndauer) {
    t.starten("Zeit", "2", {1});
    t.maschine.laufen(5001);
    t.p.rennen.uhr.fortsetzen_uhreinstellen();
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:02:00,000");
    EXPECT_EQ(uhr(t.bahn().uhr2), "00:00:05,000");
}

TEST_F(Rennende, AbbruchGehtOhneErgebnisZurueck) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "1", {1, 2});
    t.maschine.laufen(61000);  // in the run-on
    t.bahn().Command2.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen("bahn1"));
    EXPECT_TRUE(t.p.fenster.ist_offen("Form1"));
    t.maschine.laufen(300000);
    EXPECT_FALSE(beendet());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\ra.wav");
    t.starten("Runden", "1", {1});
    EXPECT_EQ(t.spur(1).runden, -1);
    EXPECT_FALSE(t.bahn().nachlauflabel.sichtbar());
    EXPECT_TRUE(t.bahn().uhr1.uhrframe.sichtbar());
}

TEST_F(Rennende, CountdownSpieltNurWasDieRenndauerHergibt) {
    t.starten("Zeit", "1,3", {1});
    t.maschine.laufen(30000);
    EXPECT_TRUE(gespielt("sound\\m1.wav"));
    EXPECT_FALSE(gespielt("sound\\m2.wav"));
    t.maschine.laufen(60001);
    EXPECT_TRUE(beendet());
    const std::vector<std::string> ende{"sound\\s30.wav", "sound\\s20.wav", "sound\\s10.wav", "sound\\s9.wav",
                                        "sound\\s8.wav",  "sound\\s7.wav",  "sound\\s6.wav",  "sound\\s5.wav",
                                        "sound\\s4.wav",  "sound\\s3.wav",  "sound\\s2.wav",  "sound\\s1.wav",
                                        "sound\\re.wav"};
    ASSERT_GE(t.maschine.sounds.size(), ende.size());
    EXPECT_TRUE(std::equal(ende.rbegin(), ende.rend(), t.maschine.sounds.rbegin()));
}

TEST_F(Rennende, ZehnSekundenRennenZaehltNichtHerunter) {
    t.starten("Zeit", "0,10", {1});
    t.maschine.laufen(10001);
    EXPECT_TRUE(beendet());
    EXPECT_EQ(t.maschine.sounds, (std::vector<std::string>{"sound\\rv.wav", "sound\\rs.wav", "sound\\re.wav"}));
}

TEST_F(Rennende, BesteRundeKlingtErstNachDenErstenRundenUndAusHeisstAus) {
    t.starten("Zeit", "10", {1});
    t.runde_nach(1000, "1");
    for (int runde = 1; runde <= 6; ++runde) {
        EXPECT_FALSE(gespielt("sound\\sr1.wav")) << runde;
        t.runde_nach(9000 - 100 * runde, "1");
    }
    EXPECT_TRUE(gespielt("sound\\sr1.wav"));
    EXPECT_TRUE(gespielt("sound\\rd.wav"));
    t.p.einst.sound_an = false;
    t.maschine.sounds.clear();
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.maschine.sounds.empty());
}

TEST_F(Rennende, NeuntausendneunhundertneunundneunzigRundenBeendenJedesRennen) {
    t.starten("Zeit", "59", {1, 2});
    t.runde_nach(1000, "12");
    t.spur(1).runden = 9998;
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.spur(1).runden, 9999);
    EXPECT_TRUE(beendet());
}

TEST_F(Rennende, VollerSpeicherHaeltAuchImNachlauf) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "59", {1, 2});
    t.runde_nach(1000, "12");
    t.spur(1).runden = 9998;
    t.runde_nach(6000, "1");
    EXPECT_FALSE(beendet());
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.spur(1).runden, 9999);
    EXPECT_TRUE(t.spur(1).ziel_erreicht);
    t.p.rennen.befehle.taste('x');
    EXPECT_EQ(t.bahn().zaehler[1].text(), "9999");
}

}  // namespace
}  // namespace tarvel
