#include "race/rennende.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Rennende : public test::ProgrammProbe {
protected:
    bool beendet() { return offen(fenstername::auswertung); }
};

TEST_F(Rennende, ZweiteRennenImSelbenProgrammBeginnenGanzVonVorn) {
    t.p.belegung.vorbelegen(belegung_stufe::standard);
    for (int rennen = 0; rennen < 2; ++rennen) {
        t.maschine.sounds.clear();
        t.starten("Runden", "2", {1, 2});
        EXPECT_FALSE(t.p.rennen.zustand.rennabbruch);
        t.runde_nach(1000, "12");
        t.runde_nach(6000 + 500 * rennen, "1");
        EXPECT_EQ(t.bahn().brunde[1].text(), rennen == 0 ? "06,000" : "06,500");
        EXPECT_EQ(t.p.rennen.zustand.fuehrungsrunden, 1);
        t.spur(2).strafzeit = 7s;
        t.spur(2).pause_abzug = 400;
        t.runde_nach(6000, "1");
        ASSERT_TRUE(beendet()) << rennen;
        EXPECT_EQ(gespielt("ez.wav"), 1);
        t.p.auswertung.Command5.klicken();
        t.starten("Zeit", "1", {1});
        EXPECT_EQ(t.spur(2).strafzeit, 0s);
        EXPECT_EQ(t.spur(2).pause_abzug, 0);
        EXPECT_EQ(t.p.rennen.zustand.konto.beste(1), 0);
        t.rennende();
        t.p.auswertung.Command5.klicken();
    }
}

TEST_F(Rennende, UeberfahrtVorDemStartZaehltNicht) {
    t.einrichten("Zeit", "5", {1});
    t.taste("1");
    t.p.ereignisse[35].aktiv = true;
    t.bahn().Command1.klicken();
    t.maschine.laufen(5);
    EXPECT_EQ(t.runden(1), -1);
    EXPECT_FALSE(t.bahn().Command1.aktiviert());
    EXPECT_EQ(t.p.rennen.zustand.rennen_start_uhrzeit, "21.11.2026-14:03:22");
}

TEST_F(Rennende, ZeitrennenErsterImZielEndetBeiNull) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "1");
    t.maschine.laufen(59001);
    ASSERT_TRUE(beendet());
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_FALSE(t.p.rennen.zustand.rennabbruch);
    EXPECT_EQ(t.p.rennen.zustand.rennen_ende_uhrzeit, "21.11.2026-14:03:22");
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\re.wav");
    EXPECT_TRUE(geraet.ist_an(ausgang::bahnstrom, 1));
    EXPECT_TRUE(geraet.ist_an(ausgang::rennende, 0));
    t.runde_nach(7000, "1");
    EXPECT_EQ(t.runden(1), 0) << "no lap counts behind the result";
    EXPECT_FALSE(geraet.ist_an(ausgang::rennende, 0)) << "the signal has ended by itself";
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
    EXPECT_EQ(t.runden(1), 2) << "home is home";
    EXPECT_FALSE(beendet());
    t.runde_nach(20000, "2");
    EXPECT_TRUE(beendet());
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_FALSE(t.p.rennen.zeitgeber.nachlauftimer1->laeuft());
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
}

TEST_F(Rennende, WasSpaetGesagtWirdZaehltFuerDenAugenblickInDemEsGeschah) {
    t.p.einst.zielmodus_erster = false;
    t.p.einst.sensor_timeout = 0ms;
    t.p.einst.chaosampel_an = false;
    t.starten("Zeit", "1", {1, 2, 3});
    const zeit_ms null = t.p.rennen.zustand.start_zeit + 60000;
    t.runde_nach(1000, "123");
    t.maschine.laufen(58900);
    t.maschine.uhr_stellen(300);  // the loop stands still
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[1], null + 50);
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[2], null - 50);
    t.maschine.laufen(2);
    EXPECT_TRUE(t.spur(1).ziel_erreicht) << "that was its last crossing";
    EXPECT_FALSE(strom(1));
    EXPECT_FALSE(t.spur(2).ziel_erreicht);
    t.maschine.laufen(4000);
    t.taste("c");
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[3], null - 40);
    t.maschine.laufen(4000);
    t.taste("c");
    ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(10);
    EXPECT_EQ(t.runden(3), 1);
    EXPECT_FALSE(t.spur(3).ziel_erreicht) << "the line was slow, the car was not";
    EXPECT_FALSE(beendet());
    t.runde_nach(4000, "123");
    EXPECT_TRUE(beendet());
    for (const int spur : {1, 2, 3}) {
        EXPECT_EQ(t.runden(spur), spur == 1 ? 1 : 2);
    }
    EXPECT_EQ(t.p.wertung.ergebnis().zeit_um, null) << "no pause of the run-on moves it";
    EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
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
    t.starten("Runden", "2", {1, 3});
    t.runde_nach(1000, "13");
    t.runde_nach(6000, "13");
    EXPECT_FALSE(beendet());
    t.runde_nach(6000, "3");
    ASSERT_TRUE(beendet());
    EXPECT_TRUE(gespielt("ez.wav"));
    EXPECT_EQ(std::count(geraet.befehle.begin(), geraet.befehle.end(), schaltung{ausgang::bahnstrom, 3, false}), 1);
    EXPECT_FALSE(geraet.enthaelt({ausgang::bahnstrom, 1, false}));
    EXPECT_EQ(t.runden(1), 1);
}

TEST_F(Rennende, AusgeschiedeneSpurBeendetDasRundenrennenNicht) {
    t.starten("Runden", "2", {1, 3});
    t.runde_nach(1000, "13");
    t.runde_nach(6000, "3");
    t.runden_auffuellen(3, 2);
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
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_FALSE(beendet());
    t.runde_nach(6000, "5");
    EXPECT_TRUE(beendet());
    EXPECT_EQ(gespielt("ez.wav"), 1);
}

TEST_F(Rennende, AktuelleRundeBeendenLaesstJedenAusfahren) {
    t.p.einst.runde_beenden = true;
    t.starten("Runden", "1", {1, 2, 3});
    t.runde_nach(1000, "123");
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.spur(1).ziel_erreicht);
    EXPECT_FALSE(beendet());
    t.maschine.laufen(1);
    t.runde_nach(499, "2");
    EXPECT_TRUE(t.spur(2).ziel_erreicht);
    t.runde_nach(500, "3");
    EXPECT_TRUE(beendet());
}

TEST_F(Rennende, WerNachDemSiegerKamFaehrtAuchSpaetGesagtKeineRundeMehr) {
    t.p.einst.runde_beenden = true;
    t.p.einst.chaosampel_an = false;
    t.starten("Runden", "2", {1, 2, 3, 4});
    t.runde_nach(1000, "1234");
    t.runde_nach(6000, "1");
    t.maschine.laufen(6000);
    const zeit_ms sieg = t.p.rennen.zeit.messzeit_lesen();
    t.maschine.uhr_stellen(60);  // the loop stands still
    for (const auto& [spur, nach] : {std::pair(1, 0), {2, 20}}) {
        t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[spur], sieg + nach);
    }
    t.maschine.laufen(5);
    EXPECT_EQ(t.p.rennen.zustand.renn_ende_stempel, sieg);
    EXPECT_TRUE(t.spur(2).ziel_erreicht) << "told in the same look";
    for (const auto& [spur, nach] : {std::pair(3, 30), {4, -30}}) {
        t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[spur], sieg + nach);
    }
    t.maschine.laufen(5);
    EXPECT_TRUE(t.spur(3).ziel_erreicht) << "told behind the end";
    EXPECT_FALSE(t.spur(4).ziel_erreicht) << "before the winner: one lap more";
    EXPECT_EQ(t.runden(4), 1);
}

TEST_F(Rennende, EineAbgeschalteteSpurRuehrtSichAuchNachDemFortsetzenNicht) {
    t.p.einst.runde_beenden = true;
    t.starten("Runden", "2", {1});
    geraet.befehle.clear();
    for (int runde = 0; runde < 3; ++runde) {
        t.runde_nach(6000, "12");
    }
    t.maschine.laufen(10);
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.neues_ziel.eingeben("4");
    t.p.auswertung.Command3.klicken();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(7000);
    ASSERT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
    t.runde_nach(6000, "12");
    EXPECT_EQ(t.runden(1), 3);
    EXPECT_EQ(t.runden(2), -1);
    EXPECT_TRUE(t.spur(2).ziel_erreicht);
    EXPECT_EQ(t.p.rennen.zustand.konto.beste(2), 0);
    EXPECT_FALSE(geraet.enthaelt({ausgang::bahnstrom, 2, false}));
}

TEST_F(Rennende, VonHandBeendetGibtGenauEinErgebnis) {
    t.starten("Zeit", "5", {1});
    t.maschine.laufen(1000);
    t.maschine.sounds.clear();
    t.rennende();
    t.rennende();
    EXPECT_TRUE(beendet());
    EXPECT_TRUE(t.p.rennen.zustand.rennabbruch);
    t.maschine.laufen(400000);
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{"sound\\re.wav"});
}

TEST_F(Rennende, ErstDerZweiteDruckBeendetUndStempelt) {
    t.starten("Zeit", "5", {1});
    t.runde_nach(1000, "1");
    t.maschine.laufen(5000);
    befehl& ende = t.bahn().Command4;
    ende.klicken();
    EXPECT_EQ(ende.frage(), "Wirklich? Noch einmal drücken (3 s)");
    t.maschine.laufen(399);
    ende.klicken();
    EXPECT_FALSE(beendet()) << "the second half of a double click";
    t.runde_nach(1000, "1");
    EXPECT_EQ(t.runden(1), 1) << "no crossing waits for the answer";
    EXPECT_EQ(ende.frage(), "Wirklich? Noch einmal drücken (2 s)");
    t.maschine.laufen(1601);
    EXPECT_EQ(ende.frage(), "") << "nobody has meant it";
    ende.klicken();
    EXPECT_FALSE(beendet());
    t.maschine.laufen(2999);
    ende.klicken();
    EXPECT_TRUE(beendet());
    EXPECT_EQ(t.p.rennen.zustand.renn_ende_stempel, t.p.rennen.zeit.messzeit_lesen());
    EXPECT_EQ(ende.frage(), "");
    EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
}

TEST_F(Rennende, WasNichtsKostetFragtNichtUndSchliessenFragtWieDerAbbruch) {
    t.einrichten("Zeit", "5", {1});
    t.bahn().Command2.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1)) << "before the start";
    t.starten("Zeit", "5", {1});
    t.p.rennen.befehle.fenster_schliessen();
    EXPECT_EQ(t.bahn().Command2.frage(), "Wirklich? Noch einmal drücken (3 s)");
    t.maschine.laufen(500);
    t.p.rennen.befehle.fenster_schliessen();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_TRUE(t.maschine.fragen_gestellt.empty());
    t.starten("Runden", "1", {1});
    EXPECT_EQ(t.bahn().Command2.frage(), "");
    t.runde_nach(1000, "1");
    t.maschine.laufen(5500);
    t.bahn().Command2.klicken();
    t.runde_nach(900, "1");
    EXPECT_TRUE(beendet());
    EXPECT_EQ(t.bahn().Command2.frage(), "Wirklich? Noch einmal drücken (3 s)");
    t.maschine.laufen(1000);
    EXPECT_EQ(t.bahn().Command2.frage(), "");
}

TEST_F(Rennende, AuchSpaetGesagtSchneidetDasEndeNurEineRundeAb) {
    t.p.einst.zielmodus_erster = true;
    t.p.einst.sensor_timeout = 10000ms;
    t.p.einst.chaosampel_an = false;
    t.starten("Zeit", "1", {1, 2});
    const zeit_ms null = t.p.rennen.zustand.start_zeit + 60000;
    t.runde_nach(1000, "12");
    t.maschine.laufen(58900);
    t.maschine.uhr_stellen(300);  // the loop stands still
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[1], null + 50);
    t.maschine.laufen(2);
    ASSERT_TRUE(beendet());
    t.runde_nach(6000, "12");
    EXPECT_EQ(t.runden(1), 1) << "its crossing behind zero has been";
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
}

TEST_F(Rennende, AbbruchGehtOhneErgebnisZurueck) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "1", {1, 2});
    t.maschine.laufen(61000);  // in the run-on
    t.rennabbruch();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form1));
    EXPECT_EQ(geraet.befehle.back(), (schaltung{ausgang::bahnstrom, 0, true}));
    t.maschine.laufen(300000);
    EXPECT_FALSE(beendet());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\ra.wav");
    t.starten("Runden", "1", {1});
    EXPECT_EQ(t.runden(1), -1);
    EXPECT_FALSE(t.bahn().nachlauflabel.sichtbar());
    EXPECT_TRUE(t.bahn().uhr1.uhrframe.sichtbar());
}

TEST_F(Rennende, BesteRundeKlingtErstNachDenErstenRundenUndAusHeisstAus) {
    t.starten("Zeit", "10", {1, 2});
    t.runde_nach(1000, "1");
    for (int runde = 1; runde <= 6; ++runde) {
        EXPECT_FALSE(gespielt("sr1.wav")) << runde;
        t.runde_nach(9000 - 100 * runde, "1");
    }
    EXPECT_TRUE(gespielt("sr1.wav"));
    EXPECT_TRUE(gespielt("rd.wav"));
    t.runden_auffuellen(2, 1);
    t.p.rennen.zustand.konto.beste_werten(2, 99999);
    t.runden_auffuellen(2, 8);
    t.runde_nach(6000, "2");
    EXPECT_TRUE(gespielt("sr2.wav"));
    t.p.einst.sound_an = false;
    t.maschine.sounds.clear();
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.maschine.sounds.empty());
}

TEST_F(Rennende, NeuntausendneunhundertneunundneunzigRundenSindDasEnde) {
    for (const bool erster : {true, false}) {
        t.p.einst.zielmodus_erster = erster;
        t.starten("Zeit", "59", {1, 2});
        t.runde_nach(1000, "12");
        t.runden_auffuellen(1, 9998);
        t.runde_nach(6000, "1");
        EXPECT_EQ(t.runden(1), 9999);
        EXPECT_EQ(beendet(), erster);
        if (erster) {
            t.p.auswertung.Command5.klicken();
        }
    }
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.runden(1), 9999);
    EXPECT_TRUE(t.spur(1).ziel_erreicht) << "in the run-on, with the store full";
    EXPECT_EQ(t.bahn().zaehler[1].text(), "9999");
}

}  // namespace
}  // namespace tarvel
