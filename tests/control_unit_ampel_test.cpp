#include "competition/einfahren.h"
#include "tests/control_unit_probe.h"
#include "tests/plattform/vereinsabend.h"

/// The race follows the unit's own light: its start, its pauses and their ends.
namespace tarvel::test {
namespace {

TEST_F(ControlUnitRennen, StartUeberSoftwareDruecktZweimalUndEinFruehstartFaelltAuf) {
    mit_software_starten(5);
    status(false);
    ueberfahrt(2, 5000);  // rolls to the start
    t.bahn().Command1.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 1);
    status(true);
    t.maschine.laufen(2000);
    EXPECT_EQ(geschrieben("T2P$"), 2);
    EXPECT_EQ(t.p.startampel.fenster.ampelbild[0].datei(), "ampel/rt_an.gif");
    ueberfahrt(1, 6000);
    EXPECT_TRUE(t.p.startampel.fenster.Label_fruehstart.sichtbar());
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_EQ(t.spur(1).strafzeit, t.p.einst.fruehstart_schritte);
    EXPECT_EQ(t.spur(2).strafzeit, 0s);
    t.maschine.laufen(2100);
    EXPECT_TRUE(t.bahn().Command3.bedienbar());
}

TEST_F(ControlUnitRennen, EinFruehstartDerDenStartAbbrichtHaeltAuchDasGeraetAn) {
    mit_software_starten(1);
    status(true);
    t.maschine.laufen(2100);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    ueberfahrt(1, 6000);
    EXPECT_EQ(geschrieben("T2P$"), 2);
    t.p.startampel.fenster.abbrampel.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2) << "a third press would start its light again";
    t.maschine.laufen(5000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "the unit stands, but for the start that is off";
    t.bahn().Command1.klicken();
    t.maschine.laufen(2100);
    EXPECT_EQ(geschrieben("T2P$"), 3) << "another start";
    t.p.rennen.befehle.rennen_abbrechen();
    EXPECT_EQ(geschrieben("T2P$"), 4) << "closed over the running light";
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.laufen(3000);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2)) << "nor does the next race begin by itself";
}

TEST_F(ControlUnitRennen, ZumEinfahrenFahrenDieWagenUndStehenDanachOhneDassEinRennenBeginnt) {
    vereinsabend abend(t.p);
    mit_software_starten(1);
    status(false);
    t.p.rennen.teil_von.wechseln(abend);
    t.p.fenster.neu_laden(fenstername::bahn1);
    t.bahn().Command6.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 0) << "they drive already";
    t.p.einfahren.Command5.klicken();
    t.maschine.laufen(150);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    status(true);
    t.maschine.laufen(3000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    t.bahn().Command6.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2) << "its light lets them go";
    status(false);
    status(true);  // somebody has pressed the unit's key
    t.maschine.laufen(1000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    t.p.einfahren.Command5.klicken();
    t.maschine.laufen(1000);
    EXPECT_EQ(geschrieben("T2P$"), 2) << "they stand";
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    t.bahn().Command1.klicken();
    t.maschine.laufen(2100);
    EXPECT_EQ(geschrieben("T2P$"), 3) << "the race's own light";
}

TEST_F(ControlUnitRennen, DieRundenzaehlerboxStartetJedesMalWennSieBereitWird) {
    t.p.einst.cu.cu_option = true;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    senden("?00$");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2));
    t.p.startampel.fenster.abbrampel.klicken();
    senden("?00$");
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2)) << "it is still ready from the start that is off";
    senden("?10$");
    senden("?00$");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2));
}

TEST_F(ControlUnitRennen, DieStarttasteAmGeraetBereitetDasRennenVorUndSeinEndeNicht) {
    t.p.einst.cu.cu_sondermodus = true;
    t.einrichten(t.p.txt.text_runden, "2", {1});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    status(true);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2));
    t.maschine.laufen(2500);
    EXPECT_EQ(geschrieben("T2P$"), 1);  // the unit is stopped already: only its light is started
    status(false);
    t.maschine.laufen(100);
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(50);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    t.maschine.laufen(100);
    EXPECT_EQ(geschrieben("T2P$"), 2);  // stops the cars
    status(true);
    t.p.auswertung.Command2.klicken();
    status(true);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2)) << "nobody has pressed for a new race";
    t.rennabbruch();
    t.p.geraete.hardware_starten(false);  // it is asked anew, and stands as it stood
    t.einrichten(t.p.txt.text_runden, "2", {1});
    status(true);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2));
    status(false);
    status(true);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2)) << "now somebody has";
}

TEST_F(ControlUnitRennen, EinFortgesetztesRennenHaeltAnWennDasGeraetAnhaelt) {
    starten(t.p.txt.text_runden, "10", {1});
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(200);
    status(true);
    t.p.auswertung.cmd3_fortsetzung();
    t.p.k_ampel.Command1.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2);
    status(false);
    ASSERT_FALSE(t.p.rennen.zustand.rennen_beendet);
    t.maschine.laufen(3000);
    status(true);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, PauseAmGeraetEndetMitSeinemGruen) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    EXPECT_FALSE(t.bahn().Command3.bedienbar()) << "paused at the unit, as it was started there";
    ueberfahrt(1, 1000);
    t.maschine.laufen(4000 - 3);
    status(true);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_TRUE(t.bahn().Command3.bedienbar());
    EXPECT_TRUE(t.bahn().cu_startframe.sichtbar());
    t.maschine.laufen(20000 - 3);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_FALSE(t.bahn().cu_startframe.sichtbar());
    t.maschine.laufen(3000 - 3);
    ueberfahrt(1, 28000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 1)), 7000, 10);
    EXPECT_EQ(geschrieben("T2P$"), 0);
}

TEST_F(ControlUnitRennen, EinBeschaedigterStatusBereitetKeinRennenVorUndBeendetKeinePause) {
    const auto einmal = [this](bool steht) {
        wartend.emplace_back(std::string("?:55555500") + (steht ? '1' : '0') + "0000000$");
        t.maschine.laufen(50);
    };
    t.p.einst.cu.cu_sondermodus = true;
    t.einrichten(t.p.txt.text_runden, "10", {1});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    status(false);
    for (std::uint32_t i = 0; i < 10; ++i) {  // from here on damage on this line is known
        std::string satz = passage(8, 1000 + i);
        unsigned summe = 0;
        for (const char zeichen : satz.substr(1, satz.size() - 3)) {
            summe += static_cast<unsigned char>(zeichen) & 15U;
        }
        satz[satz.size() - 2] = static_cast<char>('0' + (summe & 15U));
        senden(satz);
    }
    einmal(true);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    status(true);
    t.maschine.laufen(3000);
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    einmal(false);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2));
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft()) << "no green";
    status(false);
    t.maschine.laufen(5000);
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
    status(true);
    t.maschine.laufen(3000);
    einmal(false);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    status(false);
    t.maschine.laufen(50);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, PauseMitDerTasteHaeltDasGeraetAnUndWartetAufSeinGruen) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    t.taste("c");
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    status(true);
    t.maschine.laufen(3000);
    t.taste("c");
    t.maschine.laufen(4000);
    t.taste("c");  // nobody is patient
    t.bahn().Command3.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2);
    t.maschine.laufen(20000);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv) << "the cars still stand";
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, WerImLichtNachDerPauseAufhoertLaesstKeineWagenLos) {
    t.p.einst.chaosampel_an = false;
    const auto ins_licht = [this] {
        starten(t.p.txt.text_runden, "10", {1});
        t.taste("c");
        status(true);
        t.maschine.laufen(3000);
        t.taste("c");
        t.maschine.laufen(1000);
        return geschrieben("T2P$");
    };
    const auto vorher = ins_licht();
    t.p.rennen.befehle.rennen_abbrechen();
    t.maschine.laufen(3000);
    EXPECT_EQ(geschrieben("T2P$"), vorher + 1) << "stops it as the race window closes";
    ins_licht();
    const auto im_licht = geschrieben("T2P$");
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(3000);
    EXPECT_EQ(geschrieben("T2P$"), im_licht + 1) << "and behind its end";
    t.p.auswertung.cmd3_fortsetzung();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(1000);
    ASSERT_EQ(geschrieben("T2P$"), im_licht + 2);
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(3000);
    EXPECT_EQ(geschrieben("T2P$"), im_licht + 3) << "as behind the end before it went on";
}

TEST_F(ControlUnitRennen, EinLichtDasEinAndererAngehaltenHatWirdAmEndeNichtGestartet) {
    t.p.einst.chaosampel_an = false;
    starten(t.p.txt.text_runden, "10", {1});
    t.taste("c");
    status(true);
    t.maschine.laufen(3000);
    t.taste("c");
    for (int sekunde = 0; sekunde < 16; ++sekunde) {
        t.maschine.laufen(1000);
        status(true);
    }
    const auto vorher = geschrieben("T2P$");
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(3000);
    EXPECT_EQ(geschrieben("T2P$"), vorher);
}

TEST_F(ControlUnitRennen, AufEinerLangsamenLeitungHaeltKeinZweiterDruckAn) {
    for (const bool gehoert : {true, false}) {
        starten(t.p.txt.text_runden, "10", {1});
        const int vorher = geschrieben("T2P$");
        t.taste("c");
        t.p.rennen.befehle.rennen_beenden();
        t.maschine.laufen(500);
        EXPECT_EQ(geschrieben("T2P$"), vorher + 1) << "another one would let the cars go";
        if (gehoert) {
            status(true);
        }
        t.maschine.laufen(3000);
        EXPECT_EQ(geschrieben("T2P$"), vorher + (gehoert ? 1 : 2)) << "the cars stand";
        t.p.auswertung.Command5.klicken();
    }
}

TEST_F(ControlUnitRennen, EineAmpelDieSchonLiefWirdNachDerFristNochEinmalGestartet) {
    t.p.einst.chaosampel_an = true;
    starten(t.p.txt.text_runden, "10", {1});
    t.taste("c");
    status(true);
    t.taste("c");
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::k_ampel));
    const int bis_hier = geschrieben("T2P$");
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(14000);
    EXPECT_EQ(geschrieben("T2P$"), bis_hier + 1) << "this press may have stopped it";
    t.maschine.laufen(14000);
    EXPECT_EQ(geschrieben("T2P$"), bis_hier + 2);
    EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert());
    t.maschine.laufen(3000);
    EXPECT_TRUE(t.p.k_ampel.Command1.aktiviert()) << "deaf";
    EXPECT_EQ(geschrieben("T2P$"), bis_hier + 2);
    status(false);
    t.maschine.laufen(100);
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(7100);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, EinGeraetOhneStromUeberlaesstPauseUndAmpelDemProgramm) {
    starten(t.p.txt.text_runden, "10", {1});
    ASSERT_FALSE(t.bahn().Command3.bedienbar());
    status(true);
    ASSERT_TRUE(t.bahn().cu_startframe.sichtbar());
    lebt = false;  // the port stays open
    t.maschine.laufen(3100);
    EXPECT_TRUE(t.bahn().Command3.bedienbar());
    EXPECT_FALSE(t.bahn().cu_startframe.sichtbar());
    lebt = true;
    status(false);  // back, and driving
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv) << "hands are on the track";
    lebt = false;
    t.maschine.laufen(3100);
    t.bahn().Command3.klicken();
    t.maschine.laufen(7100);  // the program's own light
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.p.rennen.befehle.rennen_abbrechen();
    t.maschine.antwort = true;  // to the question whether to start without it
    t.starten(t.p.txt.text_runden, "10", {1});
    t.maschine.laufen(5000);
    t.taste("1");
    EXPECT_EQ(t.runden(1), 0);
}

TEST_F(ControlUnitRennen, WaehrendDesStartsAbgezogenBeginntDasRennenDochNoch) {
    for (const int modus : {0, 5}) {
        t.maschine.anschluesse.da = {com};
        t.p.geraete.hardware_starten(false);
        t.einrichten(t.p.txt.text_runden, "10", {1});
        t.p.einst.start_ampel_modus = ampelwahl(modus);
        status(false);
        t.bahn().Command1.klicken();
        status(true);
        t.maschine.anschluesse.abziehen(com);
        t.maschine.laufen(15000);
        EXPECT_TRUE(t.bahn().Command4.bedienbar()) << modus;
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2)) << modus;
        t.rennabbruch();
    }
}

TEST_F(ControlUnitRennen, InDerPauseAbgezogenGehtEsMitDerTastaturWeiter) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    t.taste("c");
    status(true);
    t.maschine.anschluesse.abziehen(com);
    t.maschine.laufen(3000);
    t.taste("c");
    t.maschine.laufen(7100);  // the program's own light
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(10000);
    t.taste("1");
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

}  // namespace
}  // namespace tarvel::test
