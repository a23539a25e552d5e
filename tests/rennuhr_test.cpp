#include "race/rennuhr.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Rennuhr : public test::ProgrammProbe {
protected:
    std::string uhr(const rennuhr_felder& u) const {
        return u.stunden.text() + ":" + u.minuten.text() + ":" + u.sekunden.text() + "," + u.tausendstel.text();
    }
};

TEST_F(Rennuhr, UhrenEinesZeitrennens) {
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
    EXPECT_FALSE(offen(fenstername::auswertung));
    t.maschine.laufen(14);
    EXPECT_TRUE(offen(fenstername::auswertung));
}

TEST_F(Rennuhr, UhrenEinesRundenrennens) {
    t.einrichten("Runden", "1", {1, 2});
    EXPECT_EQ(uhr(t.bahn().uhr1), "00:00:00,000");
    t.bahn().Command1.klicken();
    t.maschine.uhr_stellen(3600000);
    t.runde_nach(1, "1");
    EXPECT_EQ(uhr(t.bahn().uhr1), "01:00:00,000");
    EXPECT_TRUE(t.bahn().uhr1.stunden.sichtbar());
    t.maschine.laufen(9);
    EXPECT_EQ(uhr(t.bahn().uhr1), "01:00:00,009");
    EXPECT_EQ(uhr(t.bahn().uhr2), "01:00:00,009");
    t.runde_nach(6000, "1");
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.maschine.laufen(100);
    EXPECT_EQ(uhr(t.bahn().uhr1), "01:00:00,000") << "minutes, seconds and thousandths stand at zero";
}

TEST_F(Rennuhr, CountdownKommtAufDieMillisekunde) {
    t.p.einst.sound_dateien[64] = "sound\\frei.wav";
    t.starten("Zeit", "6", {1});
    t.maschine.laufen(1);
    std::istringstream ansagen(
        "300500 m5 120500 m2 60500 m1 42500 frei 30500 s30 20500 s20 10200 s10 9200 s9 8200 s8 7200 s7 6200 s6 5200 s5 "
        "4200 s4 3150 s3 2150 s2 1100 s1");
    zeit_ms rest = 360000;
    zeit_ms vor_ende = 0;
    for (std::string name; ansagen >> vor_ende >> name; rest = vor_ende) {
        t.maschine.laufen(rest - vor_ende - 1);
        EXPECT_FALSE(gespielt(name + ".wav")) << name;
        t.maschine.laufen(1);
        EXPECT_TRUE(gespielt(name + ".wav")) << name;
    }
    EXPECT_EQ(t.maschine.sounds.size(), 2U + 16U) << "each once, beside the two of the start";
}

TEST_F(Rennuhr, CountdownSpieltNurWasDieRenndauerHergibt) {
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(60001);
    EXPECT_FALSE(gespielt("m1.wav"));
    EXPECT_TRUE(gespielt("s30.wav"));
}

TEST_F(Rennuhr, ZehnSekundenRennenZaehltNichtHerunter) {
    t.starten("Zeit", "0,10", {1});
    t.maschine.laufen(10001);
    EXPECT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(t.maschine.sounds, (std::vector<std::string>{"sound\\rv.wav", "sound\\rs.wav", "sound\\re.wav"}));
}

}  // namespace
}  // namespace tarvel
