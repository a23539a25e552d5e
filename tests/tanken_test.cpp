#include "race/tanken.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Tanken : public test::ProgrammProbe {
protected:
    Tanken() { t.p.form1.t_aktiv.umschalten(); }
    /// Lane 1 after its first crossing, with this much fuel.
    void fahren(double liter, const char* rennart = "Zeit", const char* dauer = "59") {
        t.starten(rennart, dauer, {1, 2});
        t.runde_nach(1000, "1");
        t.spur(1).tank_inhalt = liter;
        t.maschine.sounds.clear();
    }
};

TEST(Verbrauch, NachZeitMitGrenzenUndStreuung) {
    EXPECT_DOUBLE_EQ(verbrauch(8000, 7, 8s), 7);
    EXPECT_DOUBLE_EQ(verbrauch(8500, 7, 8s), 7.09);
    EXPECT_DOUBLE_EQ(verbrauch(7000, 7, 8s), 8);
    EXPECT_DOUBLE_EQ(verbrauch(16000, 7, 8s), 4.67);
    EXPECT_DOUBLE_EQ(verbrauch(16999, 7, 8s), 5.67);
    EXPECT_DOUBLE_EQ(verbrauch(2000, 7, 8s), 14.75);
    EXPECT_DOUBLE_EQ(verbrauch(3600000 + 8000, 7, 8s), 7);
    EXPECT_DOUBLE_EQ(verbrauch(0, 7, 8s), 14.75);
    EXPECT_DOUBLE_EQ(verbrauch(68000, 7, 8s), 4.67);
    EXPECT_DOUBLE_EQ(verbrauch(4067, 7, 8s), 13.84);
}

TEST_F(Tanken, ErsteUeberfahrtVerbrauchtAuchUndAnzeigenFolgen) {
    t.starten("Zeit", "5", {1});
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "60,00");
    EXPECT_DOUBLE_EQ(t.bahn().tankbalken[0].hoehe(), t.bahn().tank_balkenhoehe);
    t.runde_nach(8000, "1");
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, 60 - verbrauch(7998, 7, 8s));
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "52,00") << "7 litres, and 0.998 of scatter";
    EXPECT_NEAR(t.bahn().tankbalken[0].hoehe(), t.bahn().tank_balkenhoehe * 52.0 / 60, 0.01);
    t.rennabbruch();
    t.p.einst.tank_inhalt = 100;
    t.starten("Zeit", "5", {1});
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "100");
}

TEST_F(Tanken, WarnungenInIhrerReihenfolge) {
    t.p.einst.tank_warnung = 10;
    fahren(27);
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.bahn().t_bahn[1].schriftfarbe(), 0x00C000U);
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.bahn().t_bahn[1].schriftfarbe(), 0x8080FFU);
    EXPECT_FALSE(gespielt("tw1.wav"));
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.bahn().t_bahn[1].schriftfarbe(), farben::rot);
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\tw1.wav") << "the warning is what is heard of the tick";
}

TEST_F(Tanken, LeererTankHatVierFolgen) {
    for (const auto& [option, runden, dis, mit_strom, strafzeit, zeilen] : {std::tuple(1, 2, true, false, 0, 3U),
                                                                            {2, 1, false, true, 0, 2U},
                                                                            {3, 1, false, false, 0, 2U},
                                                                            {4, 2, false, true, 10, 3U}}) {
        SCOPED_TRACE(option);
        t.p.einst.tank_straf_option = leer_aktion(option);
        fahren(12);
        t.runde_nach(8000, "1");
        t.runde_nach(8000, "1");
        EXPECT_EQ(t.runden(1), runden);
        EXPECT_EQ(t.spur(1).disqualifiziert, dis);
        EXPECT_EQ(t.bahn().zaehler[1].text(), dis ? "Dis." : std::to_string(runden));
        EXPECT_EQ(strom(1), mit_strom);
        EXPECT_EQ(t.spur(1).strafzeit, dauer_s(strafzeit));
        EXPECT_EQ(t.bahn().straflabel[1].sichtbar(), strafzeit > 0);
        EXPECT_EQ(t.bahn().t_liste[0].zeilen().size(), zeilen);
        EXPECT_EQ(t.bahn().t_bahn[1].text(), "0,00");
        EXPECT_EQ(t.bahn().tankbalken[0].hoehe(), 0);
        EXPECT_TRUE(gespielt("tl1.wav"));
        EXPECT_EQ(gespielt("ds1.wav") > 0, dis);
        t.rennabbruch();
    }
}

TEST_F(Tanken, StromstrafeInDerLetztenRundeGiltFuerAlle) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 10s;
    t.p.einst.tank_inhalt = 5;
    t.p.einst.zielmodus_erster = true;
    t.p.einst.runde_beenden = false;
    t.p.form1.t_aktiv.gesetzt(true);
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.maschine.laufen(20000);  // already the first crossing has emptied the tanks
    t.runde_nach(7000, "2");
    t.runde_nach(500, "1");
    t.maschine.laufen(11000);
    ASSERT_TRUE(offen(fenstername::auswertung)) << "lane 2 has served its penalty";
    EXPECT_EQ(rundenzeit(2, 1) + 500, rundenzeit(1, 1));
    EXPECT_GT(rundenzeit(1, 1), 10000);
}

TEST_F(Tanken, StromstrafeGibtDieRundeZurueck) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 10s;
    fahren(12);
    t.runde_nach(8000, "1");
    t.runde_nach(8000, "1");
    ASSERT_EQ(t.runden(1), 1);
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.runden(1), 1) << "a lane in the penalty counts nothing";
    t.maschine.laufen(3999);
    EXPECT_FALSE(strom(1));
    t.maschine.laufen(2);
    EXPECT_TRUE(strom(1));
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_EQ(t.bahn().zaehler[1].text(), "2");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 8000);
    EXPECT_EQ(t.bahn().lrunde[1].text(), "18,001") << "the display tells the lap with its penalty";
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.runden(1), 2) << "empty again: the next lap is taken at once";
}

TEST_F(Tanken, StromstrafeRuhtInDerPause) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 10s;
    fahren(1);
    t.runde_nach(8000, "1");
    ASSERT_TRUE(t.spur(1).tank_strafe_aktiv);
    t.maschine.laufen(4000);
    t.taste("c");
    t.maschine.laufen(30000);
    EXPECT_TRUE(t.spur(1).tank_strafe_aktiv);
    t.taste("c");
    EXPECT_FALSE(strom(1));
    t.maschine.laufen(5900);
    EXPECT_TRUE(t.spur(1).tank_strafe_aktiv);
    t.maschine.laufen(200);
    EXPECT_FALSE(t.spur(1).tank_strafe_aktiv);
    EXPECT_TRUE(strom(1));
}

TEST_F(Tanken, RennendeInDerStromstrafeGibtDieRundeZurueck) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    fahren(1);
    t.runde_nach(8000, "1");
    ASSERT_EQ(t.runden(1), 0);
    t.rennende();
    EXPECT_EQ(t.p.auswertung.runden_aus[0].text(), "1");
    t.maschine.sounds.clear();
    t.maschine.laufen(60000);
    EXPECT_EQ(t.runden(1), 1) << "nothing changes behind the result";
    EXPECT_TRUE(t.maschine.sounds.empty());
}

TEST_F(Tanken, StrafeInRundeEinsVerschlechtertDieBesteNicht) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 10s;
    fahren(6);
    t.runde_nach(8000, "1");
    t.maschine.laufen(10001);
    ASSERT_EQ(t.runden(1), 1);
    EXPECT_EQ(t.bahn().lrunde[1].text(), "18,001");
    EXPECT_EQ(t.p.rennen.zustand.konto.beste(1), 8000);
}

TEST_F(Tanken, StrafeInDerLetztenRundeVerlaengertSie) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 5s;
    fahren(6, "Runden", "1");
    t.runde_nach(8000, "1");
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
    t.maschine.laufen(5001);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 13000);
    EXPECT_EQ(t.p.auswertung.aus_straflabel[0].text(), "Tank leer: +5 s");
}

TEST_F(Tanken, LeerVorDerErstenRundeSchenktKeine) {
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.starten("Zeit", "5", {1});
    t.spur(1).tank_inhalt = 3;
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.runden(1), 0);
    t.maschine.laufen(20000);
    EXPECT_EQ(t.runden(1), 0);
    EXPECT_TRUE(strom(1));
}

TEST_F(Tanken, AufEinemKontaktWirdNachDerWartezeitGetankt) {
    t.p.einst.tank_wartezeit = 1s;
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_1;
    fahren(10);
    t.taste("q");
    t.maschine.laufen(1000);
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, 10) << "the wait";
    t.maschine.laufen(1000);
    EXPECT_NEAR(t.spur(1).tank_inhalt, 20, 0.2);
    EXPECT_EQ(t.bahn().t_bahn[1].schriftfarbe(), 0x8080FFU) << "above two laps of fuel";
    t.maschine.laufen(3990);
    EXPECT_NEAR(t.spur(1).tank_inhalt, 60, 0.3);
    t.maschine.laufen(40);
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, 60);
    EXPECT_FALSE(t.spur(1).tank_kontakt) << "full: thrown off the contact";
    t.taste("1");
    EXPECT_EQ(t.runden(1), 0) << "held for a moment";
    t.maschine.laufen(500);
    t.taste("1");
    EXPECT_EQ(t.runden(1), 1);
}

TEST_F(Tanken, VerlassenDesKontaktsUndStrafeHaltenDasTankenAn) {
    t.p.einst.tank_wartezeit = 0s;
    fahren(10);
    t.taste("q");
    t.maschine.laufen(511);
    const double stand = t.spur(1).tank_inhalt;
    EXPECT_NEAR(stand, 15, 0.2);
    t.taste("a");
    t.maschine.laufen(500);
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, stand);
    t.taste("q");
    t.spur(1).ziel_erreicht = true;
    t.maschine.laufen(500);
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, stand);
    t.taste("w");
    t.maschine.laufen(100);
    EXPECT_DOUBLE_EQ(t.spur(2).tank_inhalt, 60);
}

TEST_F(Tanken, TanksensorZaehltRunden) {
    for (const int modus : {1, 2}) {
        t.p.einst.tank_runden_modus = rundenzaehlung_auf(modus);
        fahren(60);
        t.maschine.laufen(6000);
        t.taste("q");
        EXPECT_EQ(t.runden(1), modus == 1 ? 1 : 0);
        t.maschine.laufen(6000);
        t.taste("a");
        EXPECT_EQ(t.runden(1), 1);
        t.rennabbruch();
    }
}

TEST_F(Tanken, OhneTankfunktionBrenntUndTanktNichts) {
    t.p.form1.t_aktiv.umschalten();
    fahren(60);
    t.taste("q");
    EXPECT_FALSE(t.spur(1).tank_kontakt);
    t.runde_nach(8000, "1");
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, 60);
    EXPECT_FALSE(t.bahn().frame_tank[1].sichtbar());
}

}  // namespace
}  // namespace tarvel
