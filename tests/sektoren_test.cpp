#include "race/sektoren.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Sektoren : public test::ProgrammProbe {
protected:
    void fahren() {
        t.p.belegung.vorbelegen(belegung_stufe::alle);
        t.p.einst.sektor_an = {true, true, true, true};
        t.p.einst.sektor_anzeige = sektor_ort::gross;
        t.starten("Zeit", "5", {1});
        t.runde_nach(1000, "1");
        t.maschine.sounds.clear();
    }
    zeit_ms zeit(int sektor, int zeile = 1) { return t.p.rennen.sektoren.sektorzeit(1, sektor, zeile); }
};

TEST_F(Sektoren, SektorenErgebenDieRundeAuchOhneDenDritten) {
    fahren();
    t.runde_nach(3000, "u");
    EXPECT_EQ(t.bahn().lrunde[1].text(), "03,000");
    EXPECT_EQ(t.bahn().Label_lrunde[1].text() + ", " + t.bahn().Label_brunde[1].text(), "Sektor 1, beste Runde");
    EXPECT_EQ(t.bahn().brunde[1].text(), "00:00:000");
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{"sound\\sd.wav"});
    t.runde_nach(2500, "j");
    t.runde_nach(2000, "1");
    EXPECT_EQ(zeit(1), 3000);
    EXPECT_EQ(zeit(2), 2500);
    EXPECT_EQ(zeit(3), 2000);
    EXPECT_EQ(t.bahn().lrunde[1].text(), "07,500") << "the lap takes its place back";
    EXPECT_EQ(t.bahn().Label_lrunde[1].text(), "letzte Runde");
    t.p.einst.sektor_an = {true, true, false, false};
    t.runde_nach(3000, "u");
    t.runde_nach(1000, "j");
    t.runde_nach(3000, "1");
    EXPECT_EQ(zeit(2, 2), 4000);
    EXPECT_EQ(zeit(3, 2), 0);
    t.rennabbruch();
    fahren();
    EXPECT_EQ(zeit(1), 0) << "nothing is left of the race before";
}

TEST_F(Sektoren, SperreVorDerLinieUndNachDemZiel) {
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    t.p.einst.sektor_an = {true, true, true, true};
    t.starten("Zeit", "5", {1});
    t.runde_nach(1000, "u");
    EXPECT_EQ(zeit(1, 0), 0);
    EXPECT_EQ(zeit(1, 1), 0);
    t.runde_nach(2000, "1");
    t.runde_nach(3000, "u");
    t.runde_nach(1000, "u");
    EXPECT_EQ(zeit(1), 3000) << "a second hit is dropped";
    t.maschine.laufen(1000);
    EXPECT_FALSE(t.p.ereignisse[42].aktiv);
    t.spur(1).ziel_erreicht = true;
    t.runde_nach(1000, "j");
    EXPECT_EQ(zeit(2), 0);
}

TEST_F(Sektoren, PauseGehtVonJedemSektorAbUndDieSummeStimmt) {
    t.p.einst.chaosampel_an = false;
    fahren();
    t.maschine.laufen(1500);
    t.taste("c");
    t.maschine.laufen(20000);
    t.taste("c");
    t.runde_nach(1500, "u");
    EXPECT_NEAR(static_cast<double>(zeit(1)), 3000, 3);
    t.runde_nach(2000, "j");
    EXPECT_EQ(zeit(2), 2000);
    t.runde_nach(2000, "1");
    EXPECT_EQ(zeit(3), 2000);
    EXPECT_EQ(zeit(1) + zeit(2) + zeit(3), t.p.rennen.zustand.konto.rundenzeit(1, 1));
}

TEST_F(Sektoren, TempoNachLaengeUndMassstab) {
    t.p.form1.massstab.eingeben("32");
    fahren();
    t.p.einst.topspeed_anzeige = sektor_ort::klein;
    t.p.einst.sektor_laenge[1][1] = "5";
    t.p.einst.sektor_laenge[2][1] = "0";
    t.runde_nach(1600, "u");
    EXPECT_EQ(t.bahn().brunde[1].text(), "11,25 k/h");
    EXPECT_EQ(t.bahn().Label_brunde[1].text(), "Topspeed");
    EXPECT_EQ(t.bahn().lrunde[1].text(), "01,600");
    t.runde_nach(1600, "j");
    EXPECT_EQ(t.bahn().brunde[1].text(), "0,00 k/h");
    t.runde_nach(3000, "1");
    t.p.einst.real_speed = true;
    t.runde_nach(1600, "u");
    EXPECT_EQ(t.bahn().brunde[1].text(), "360 k/h");
    EXPECT_EQ(sektor_tempo(5, 0), 0);
}

}  // namespace
}  // namespace tarvel
