#include "start/k_ampel.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class KleineAmpel : public test::ProgrammProbe {
protected:
    void pause(int modus) {
        t.starten("Zeit", "5", {1, 2});
        t.p.einst.start_ampel_modus = ampelwahl(modus);
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
};

TEST_F(KleineAmpel, BeendetDiePauseErstBeiGruen) {
    // mode, dark, after the first step, after the third, real lamp of the first step
    for (const auto& [modus, dunkel, eins, drei, lampe] : {std::tuple(1, "oooooo", "Xooooo", "XXXooo", 3),
                                                           {2, "oooooo", "XooXoo", "XXXXXX", 3},
                                                           {4, "oooooo", "XooXoo", "XXXXXX", 2},
                                                           {6, "ooo---", "Xoo---", "XXX---", 3}}) {
        SCOPED_TRACE(modus);
        pause(modus);
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::k_ampel));
        EXPECT_EQ(lampen(), dunkel);
        t.maschine.laufen(5000);
        t.p.rennen.strafen.spur_strom_aus(2);  // serves a penalty
        geraet.befehle.clear();
        t.maschine.sounds.clear();
        t.taste("c");
        EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert());
        t.maschine.laufen(1500);
        EXPECT_EQ(lampen(), eins);
        EXPECT_TRUE(geraet.enthaelt({ausgang::ampel_rot, lampe, true}));
        t.taste("c");  // once begun, the light is not begun again
        t.maschine.laufen(2999);
        EXPECT_EQ(lampen(), drei);
        EXPECT_EQ(t.maschine.sounds.size(), 3U);
        EXPECT_EQ(t.p.k_ampel.Shape1[2].hintergrund(), 255U);
        t.maschine.laufen(2499);
        EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
        t.maschine.laufen(1);
        EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::k_ampel));
        EXPECT_EQ(t.p.rennen.zustand.pause_abzug, t.p.rennen.zustand.pause.dauer);
        EXPECT_TRUE(strom(1) && geraet.ist_an(ausgang::ampel_gruen, 0));
        EXPECT_FALSE(strom(2)) << "a lane in a penalty stays without power";
        t.rennabbruch();
    }
}

TEST_F(KleineAmpel, KnopfBeginntUndAbbruchHaeltDieKetteAn) {
    pause(1);
    t.maschine.laufen(5000);
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(2000);
    t.rennabbruch();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::k_ampel));
    geraet.befehle.clear();
    t.maschine.laufen(20000);
    EXPECT_TRUE(geraet.befehle.empty());
}

}  // namespace
}  // namespace tarvel
