#include "start/k_ampel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/plattform/ausgabe_protokoll.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

using ausgang = schaltung::ausgang;

class KleineAmpel : public testing::Test {
protected:
    KleineAmpel() { t.p.ausgaben.anschliessen(ausgabe_platz::timekeeper, geraet); }

    void pause(int modus) {
        t.starten("Zeit", "5", {1, 2});
        t.p.einst.start_ampel_modus = modus;
        t.runde_nach(10000, "12");
        t.taste("c");
    }
    std::string lampen() {
        std::string bild;
        for (const auto& lampe : t.p.k_ampel.k_ampelbild) {
            bild += !lampe.sichtbar() ? "-" : lampe.datei().find("_an") != std::string::npos ? "X" : "o";
        }
        return bild;
    }
    bool strom(int spur) const { return geraet.ist_an(ausgang::bahnstrom, spur); }

    test::testprogramm t;
    test::ausgabe_protokoll geraet;
};

TEST_F(KleineAmpel, BeendetDiePauseErstBeiGruen) {
    struct fall {
        int modus;
        const char* dunkel;
        const char* eins;
        const char* drei;
        int lampe;  ///< real lamp of the first step
    };
    for (const fall& f : std::vector<fall>{{1, "oooooo", "Xooooo", "XXXooo", 3},
                                           {2, "oooooo", "XooXoo", "XXXXXX", 3},
                                           {4, "oooooo", "XooXoo", "XXXXXX", 2},
                                           {6, "ooo---", "Xoo---", "XXX---", 3}}) {
        SCOPED_TRACE(f.modus);
        pause(f.modus);
        ASSERT_TRUE(t.p.fenster.ist_offen("k_ampel"));
        EXPECT_EQ(lampen(), f.dunkel);
        t.maschine.laufen(5000);
        t.p.rennen.strafen.spur_strom_aus(2);  // serves a penalty
        geraet.befehle.clear();
        t.maschine.sounds.clear();
        t.taste("c");
        EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert());
        t.maschine.laufen(1500);
        EXPECT_EQ(lampen(), f.eins);
        EXPECT_TRUE(geraet.enthaelt({ausgang::ampel_rot, f.lampe, true}));
        t.taste("c");  // once begun, the light is not begun again
        t.maschine.laufen(2999);
        EXPECT_EQ(lampen(), f.drei);
        EXPECT_EQ(t.maschine.sounds.size(), 3U);
        EXPECT_EQ(t.p.k_ampel.Shape1[2].hintergrund(), 255U);
        t.maschine.laufen(2499);
        EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
        t.maschine.laufen(1);
        EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_FALSE(t.p.fenster.ist_offen("k_ampel"));
        EXPECT_EQ(t.p.rennen.zustand.pause_abzug, t.p.rennen.zustand.pause.dauer);
        EXPECT_TRUE(strom(1) && geraet.ist_an(ausgang::ampel_gruen, 0));
        EXPECT_FALSE(strom(2)) << "a lane in a penalty stays without power";
        t.bahn().Command2.klicken();
    }
}

TEST_F(KleineAmpel, KnopfBeginntUndAbbruchHaeltDieKetteAn) {
    pause(1);
    t.maschine.laufen(5000);
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(2000);
    t.bahn().Command2.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen("k_ampel"));
    geraet.befehle.clear();
    t.maschine.laufen(20000);
    EXPECT_TRUE(geraet.befehle.empty());
}

TEST_F(KleineAmpel, SetztEinTrainingVonSelbstFort) {
    t.starten("Zeit", "5", {1});
    t.runde_nach(10000, "1");
    t.runde_nach(7000, "1");
    t.maschine.laufen(2000);
    t.bahn().Command4.klicken();
    ASSERT_TRUE(t.p.fenster.ist_offen("auswertung"));
    const zeit_ms uhr = t.p.ereignisse.messzeit - t.p.rennen.zustand.start_zeit;
    t.maschine.laufen(30000);
    t.p.rennen.zustand.rennen_beendet = false;
    t.p.param.renndauer_rest_ms = 60000;
    t.p.param.training_autostart = true;
    t.p.einst.nachtrennen_modus = 1;
    t.p.fenster.zeigen("k_ampel");
    t.maschine.laufen(499);
    EXPECT_TRUE(t.p.k_ampel.Command1.aktiviert());
    t.maschine.laufen(1);
    EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert());
    EXPECT_FALSE(t.p.param.training_autostart);
    EXPECT_FALSE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_TRUE(t.p.k_ampel.k_nachtabschaltung.sichtbar());
    t.maschine.laufen(4500 + 2500);
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
    EXPECT_TRUE(strom(1));
    const auto& zustand = t.p.rennen.zustand;
    EXPECT_NEAR(static_cast<double>(t.p.ereignisse.messzeit - zustand.start_zeit - zustand.pause_abzug),
                static_cast<double>(uhr), 12)
        << "the clock goes on where it stood";
    t.runde_nach(5000, "1");
    EXPECT_NEAR(static_cast<double>(zustand.rundenzeiten.rundenzeit(1, 2)), 7000, 12);
    t.maschine.laufen(55020);
    EXPECT_TRUE(t.p.fenster.ist_offen("auswertung"));
}

}  // namespace
}  // namespace tarvel
