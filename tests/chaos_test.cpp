#include "race/chaos.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Chaos : public test::ProgrammProbe {
protected:
    Chaos() { t.p.einst.chaosampel_an = false; }
    /// A race in which lanes 1 and 2 have crossed once, 10 s after the start.
    void fahren(const char* dauer = "5") {
        t.starten("Zeit", dauer, {1, 2});
        t.runde_nach(10000, "12");
    }
    bool pause() { return t.p.rennen.zustand.chaos_aktiv; }
    std::string restzeit() {
        const auto& uhr = t.bahn().uhr1;
        return uhr.minuten.text() + ":" + uhr.sekunden.text() + "," + uhr.tausendstel.text();
    }
};

TEST_F(Chaos, PauseHaeltUhrStromUndZaehlungAnUndVerschiebtDasEnde) {
    fahren("1");
    t.maschine.laufen(5000);
    t.taste("c");
    ASSERT_TRUE(pause());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\cp1.wav");
    EXPECT_EQ(t.bahn().Command3.text(), "Weiter");
    EXPECT_TRUE(t.bahn().yellowframe[1].sichtbar());
    EXPECT_FALSE(t.bahn().yellowframe[3].sichtbar());
    EXPECT_TRUE(t.bahn().ampel_ge[0].sichtbar());
    EXPECT_TRUE(geraet.ist_an(ausgang::chaosanzeige, 0));
    EXPECT_TRUE(geraet.ist_an(ausgang::ampel_rot, 3));
    EXPECT_FALSE(strom(1) || strom(2));
    const std::string rest = restzeit();
    t.maschine.laufen(30000);
    EXPECT_EQ(restzeit(), rest);
    t.bahn().Command3.klicken();
    ASSERT_FALSE(pause());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\cp2.wav");
    EXPECT_EQ(t.bahn().Command3.text(), "Chaos/Pause");
    EXPECT_FALSE(geraet.ist_an(ausgang::chaosanzeige, 0));
    EXPECT_TRUE(strom(1) && strom(2) && geraet.ist_an(ausgang::ampel_gruen, 0));
    EXPECT_FALSE(t.bahn().yellowframe[1].sichtbar());
    EXPECT_TRUE(t.bahn().ampel_gr[0].sichtbar());
    EXPECT_EQ(rest, "00:45,000");
    t.maschine.laufen(1);
    EXPECT_EQ(restzeit(), "00:44,999");
    t.runde_nach(5000, "1");
    EXPECT_EQ(rundenzeit(1, 1), 10000 + 1 + 1) << "without the pause";
    t.maschine.laufen(40000 - 2);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
    t.maschine.laufen(10);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(Chaos, SperrenVerwerfenDenDruck) {
    t.p.einst.chaos_strafzeit = -1s;
    fahren();
    t.taste("c");
    EXPECT_FALSE(t.bahn().ch_strafframe.sichtbar() || t.bahn().ch_strafzeit_hacken[1].sichtbar()) << "no penalties";
    t.maschine.laufen(2400);
    t.taste("c");
    EXPECT_TRUE(pause());
    t.bahn().Command3.klicken();
    EXPECT_TRUE(pause());
    t.maschine.laufen(200);
    t.taste("c");
    EXPECT_FALSE(pause());
    t.taste("c");
    t.maschine.laufen(2400);
    EXPECT_FALSE(pause()) << "neither right after its end";
    t.bahn().Command3.klicken();
    EXPECT_FALSE(pause());
    t.maschine.laufen(200);
    t.bahn().Command3.klicken();
    EXPECT_TRUE(pause());
}

TEST_F(Chaos, UeberfahrtBeimAnhaltenZaehltNachDerPauseMitIhrerZeit) {
    t.p.einst.sensor_timeout = 2000ms;
    fahren();
    t.maschine.laufen(7000);
    t.taste("c");
    t.maschine.laufen(1233);
    t.taste("1");
    const zeit_ms ueberfahrt = t.maschine.jetzt();
    t.maschine.laufen(50);
    t.taste("1");
    t.maschine.laufen(1000);
    t.taste("2");  // too late: the window has closed
    t.maschine.laufen(20000);
    EXPECT_EQ(t.runden(1), 0);
    t.taste("c");
    ASSERT_FALSE(pause());
    const zeit_ms weiter = t.maschine.jetzt();
    t.maschine.laufen(400);
    EXPECT_EQ(t.runden(1), 0);
    t.maschine.laufen(110);
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_NEAR(static_cast<double>(rundenzeit(1, 1)), 7000 + 1 + 1233 + 1, 1);
    EXPECT_EQ(t.runden(2), 0);
    EXPECT_EQ(t.spur(1).pause_abzug, 0);
    EXPECT_GT(t.spur(2).pause_abzug, 20000);
    EXPECT_GT(weiter, ueberfahrt);
}

TEST_F(Chaos, OhneSammelfensterGehtDieUeberfahrtVerloren) {
    t.p.einst.sensor_timeout = 0ms;
    fahren();
    t.maschine.laufen(7000);
    t.taste("c");
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
    t.taste("1");
    t.maschine.laufen(5000);
    t.taste("c");
    t.maschine.laufen(1000);
    EXPECT_FALSE(pause());
    EXPECT_EQ(t.runden(1), 0);
}

TEST_F(Chaos, SchalterHaeltDiePauseSolangeErAnIst) {
    t.p.einst.chaos_schalter = true;
    for (const int timeout : {0, 2000, 10000}) {
        SCOPED_TRACE(timeout);
        t.p.einst.sensor_timeout = dauer_ms(timeout);
        fahren();
        t.p.ereignisse.ereignis_melden(1);
        t.maschine.laufen(4000);
        EXPECT_TRUE(pause());
        t.maschine.laufen(20000);
        EXPECT_TRUE(pause());
        t.p.ereignisse[1].aktiv = false;
        t.maschine.laufen(2);
        EXPECT_FALSE(pause());
        t.maschine.laufen(3000);
        t.taste("c");
        EXPECT_TRUE(pause()) << "the key turns the switch over";
        t.maschine.laufen(1000);
        t.taste("c");
        EXPECT_TRUE(pause()) << "not right after it began";
        t.maschine.laufen(2000);
        t.taste("c");
        EXPECT_FALSE(pause());
        t.rennabbruch();
    }
}

TEST_F(Chaos, StrafeNachZeitOderStrom) {
    t.p.einst.chaos_strafzeit = 5s;
    for (const bool zeit : {true, false}) {
        SCOPED_TRACE(zeit);
        t.p.einst.chaos_strafe_strom = zeit;
        fahren();
        t.maschine.laufen(2000);
        t.taste("c");
        EXPECT_TRUE(t.bahn().ch_strafframe.sichtbar());
        EXPECT_EQ(t.bahn().ch_Text1.text(), "5");
        EXPECT_FALSE(t.bahn().ch_strafzeit_hacken[3].sichtbar());
        t.bahn().ch_strafzeit_hacken[2].umschalten();
        t.bahn().ch_Text1.eingeben("7");
        t.maschine.laufen(4000);
        t.taste("c");
        ASSERT_FALSE(pause());
        EXPECT_FALSE(t.bahn().ch_strafframe.sichtbar() || t.bahn().ch_strafzeit_hacken[2].gesetzt());
        EXPECT_EQ(t.spur(2).strafzeit, zeit ? 7s : 0s);
        EXPECT_EQ(t.bahn().straflabel[2].sichtbar(), zeit);
        EXPECT_EQ(strom(2), zeit);
        EXPECT_TRUE(strom(1));
        t.maschine.laufen(4000);
        t.taste("c");  // a pause within the penalty does not count for it
        t.maschine.laufen(10000);
        t.taste("c");
        EXPECT_EQ(strom(2), zeit) << "the pause does not give the power back";
        t.taste("2");
        EXPECT_EQ(t.runden(2), zeit ? 1 : 0);
        t.maschine.laufen(3000);
        EXPECT_EQ(strom(2), zeit);
        t.maschine.laufen(120);
        EXPECT_TRUE(strom(2));
        EXPECT_FALSE(t.spur(2).fruehstart_sperre);
        t.rennabbruch();
    }
}

TEST_F(Chaos, TankstrafeSchaltetNachDerNaechstenPauseWiederAb) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_strafzeit = 20s;
    t.p.einst.chaos_strafe_strom = false;
    t.p.einst.chaos_strafzeit = 2s;
    fahren();
    t.spur(1).tank_inhalt = 1;
    t.runde_nach(8000, "1");
    t.taste("c");
    t.bahn().ch_strafzeit_hacken[1].umschalten();
    t.maschine.laufen(4000);
    t.taste("c");
    t.maschine.laufen(5000);
    EXPECT_TRUE(strom(1)) << "the end of the shorter penalty";
    t.taste("c");
    t.maschine.laufen(4000);
    geraet.befehle.clear();
    t.taste("c");
    EXPECT_FALSE(strom(1));
    EXPECT_FALSE(geraet.enthaelt({ausgang::bahnstrom, 1, true})) << "not even for a moment";
    t.maschine.laufen(16000);
    EXPECT_TRUE(strom(1));
}

TEST_F(Chaos, UeberfahrtInsZielGehtVorPause) {
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(8000, "c1");
    EXPECT_TRUE(offen(fenstername::auswertung));
    EXPECT_FALSE(pause());
}

TEST_F(Chaos, InDerPauseWirdNichtGetanktUndKeinSektorGemessen) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_wartezeit = 1s;
    t.p.einst.sensor_timeout = 0ms;
    t.p.einst.sektor_an = {true, true, true, true};
    fahren();
    t.spur(1).tank_inhalt = 10;
    t.taste("q");
    t.maschine.laufen(300);
    t.taste("c");
    t.maschine.laufen(4000);
    t.taste("c");
    t.maschine.laufen(600);
    EXPECT_DOUBLE_EQ(t.spur(1).tank_inhalt, 10) << "the wait goes on where the pause has met it";
    t.maschine.laufen(2500);
    const double stand = t.spur(1).tank_inhalt;
    EXPECT_GT(stand, 13);
    t.taste("c");
    t.maschine.laufen(4000);
    t.p.ereignisse.ereignis_melden(42);
    t.taste("c");
    EXPECT_NEAR(t.spur(1).tank_inhalt, stand, 0.11);
    t.maschine.laufen(50);
    EXPECT_NEAR(t.spur(1).tank_inhalt, stand + 0.5, 0.11);
    EXPECT_EQ(t.p.rennen.sektoren.sektorzeit(1, 1, 1), 0);
}

TEST_F(Chaos, SchalterDerAnBleibtBeginntKeineZweitePause) {
    t.p.einst.chaos_schalter = true;
    fahren();
    bool an = true;
    const auto laufen = [&](int ms) {  // a device repeats the switch with each poll
        for (; ms > 0; --ms) {
            if (an) {
                t.p.ereignisse.ereignis_melden(1);
            }
            t.maschine.laufen(1);
        }
    };
    laufen(5000);
    ASSERT_TRUE(pause());
    t.bahn().Command3.klicken();
    laufen(10000);
    EXPECT_FALSE(pause());
    an = false;
    laufen(200);
    an = true;
    laufen(10);
    EXPECT_TRUE(pause()) << "let go and pressed again";
}

TEST_F(Chaos, WasErstInDerPauseGesagtWirdHatSeineZeitAuchWennSieDasRennenBeendet) {
    t.p.einst.sensor_timeout = 2s;
    t.p.einst.sound_an = true;
    t.p.form1.wertmin.eingeben("3");
    fahren();
    const zeit_ms anfang = t.p.rennen.zustand.konto.stempel(1, 0);
    t.maschine.laufen(6000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(4000);
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[1], anfang + 5000);
    t.maschine.klang_haelt_auf = 60;
    t.rennende();
    EXPECT_EQ(rundenzeit(1, 1), 5000);
}

TEST_F(Chaos, DerStempelDesLetztenTaktesVorDerPauseIstKeinTastendruck) {
    t.p.einst.sensor_timeout = 1s;
    fahren();
    t.maschine.laufen(6000);
    const zeit_ms stempel = t.p.ereignisse.messzeit;
    t.bahn().Command3.klicken();
    t.maschine.laufen(300);
    t.p.ereignisse.ueberfahrt_melden(art::rundenzaehlung[1], stempel);
    t.maschine.laufen(5000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(1000);
    ASSERT_EQ(t.runden(1), 1);
    EXPECT_EQ(rundenzeit(1, 1), stempel - t.p.rennen.zustand.konto.stempel(1, 0));
}

TEST_F(Chaos, PauseImNachlaufBeginntSeineMinutenNeu) {
    t.p.einst.zielmodus_erster = false;
    for (const int timeout : {0, 2000, 10000}) {
        SCOPED_TRACE(timeout);
        t.p.einst.sensor_timeout = dauer_ms(timeout);
        fahren("1");
        t.maschine.laufen(50000 + 70000);
        ASSERT_TRUE(t.p.rennen.zeitgeber.nachlauftimer1->laeuft());
        EXPECT_EQ(t.p.rennen.zustand.nachlauf_minuten, 1);
        t.taste("c");
        t.maschine.laufen(timeout == 10000 ? 8000 : 300000);  // also within the window of the crossings
        EXPECT_TRUE(pause());
        t.taste("c");
        t.maschine.laufen(119900);
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
        t.maschine.laufen(200);
        EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        t.p.auswertung.Command5.klicken();
    }
}

TEST_F(Chaos, AbbruchUndEndeInDerPauseLassenNichtsZurueck) {
    for (const bool ende : {true, false}) {
        SCOPED_TRACE(ende);
        fahren();
        t.taste("c");
        t.maschine.laufen(1000);
        befehl& knopf = ende ? t.bahn().Command4 : t.bahn().Command2;
        knopf.klicken();
        t.maschine.laufen(1500);
        EXPECT_TRUE(pause());
        knopf.klicken();
        EXPECT_FALSE(pause());
        EXPECT_FALSE(geraet.ist_an(ausgang::chaosanzeige, 0));
        EXPECT_TRUE(strom(1) && strom(2));
        EXPECT_EQ(t.p.fenster.ist_offen(fenstername::auswertung), ende);
        t.maschine.laufen(20000);
        if (ende) {
            t.p.auswertung.Command5.klicken();
        }
        t.starten("Zeit", "1", {1});
        EXPECT_EQ(t.bahn().Command3.text(), "Chaos / Pause");
        EXPECT_EQ(t.p.rennen.zustand.pause_abzug, 0);
        EXPECT_FALSE(t.bahn().yellowframe[1].sichtbar() || t.bahn().ch_strafframe.sichtbar());
        t.rennabbruch();
    }
}

TEST_F(Chaos, PersoenlicherKnopfNenntDenFahrerFuerEineWeile) {
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    fahren();
    t.taste("x");
    EXPECT_TRUE(pause());
    EXPECT_TRUE(t.p.ereignisse.chaos_fahrer[2]);
    EXPECT_TRUE(t.bahn().cu_startframe.sichtbar());
    EXPECT_EQ(t.bahn().cu_startlabel.text(), "Chaos / Pause: " + t.p.param.fahrer_name[2]);
    t.maschine.laufen(3000);
    t.taste("c");
    EXPECT_EQ(t.bahn().ziel_label.text(), "5:00 min");
    t.maschine.laufen(600);
    EXPECT_FALSE(t.p.ereignisse.chaos_fahrer[2]);
    t.taste("y");  // too early, and forgotten
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    EXPECT_TRUE(pause());
    EXPECT_FALSE(t.bahn().cu_startframe.sichtbar());
}

TEST_F(Chaos, WerGleichNachGruenDrueckteBleibtZuLesenWennDieAmpelGeht) {
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    t.einrichten("Zeit", "5", {1, 2});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    t.bahn().Command1.klicken();
    while (!t.p.rennen.zustand.start_zeit) {
        t.maschine.laufen(100);
    }
    t.maschine.laufen(500);
    t.taste("x");
    ASSERT_TRUE(pause());
    t.maschine.laufen(3000);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2));
    EXPECT_TRUE(t.bahn().cu_startframe.sichtbar());
}

}  // namespace
}  // namespace tarvel
