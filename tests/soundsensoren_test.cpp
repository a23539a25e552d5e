#include "race/soundsensoren.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using namen = std::vector<std::string>;

TEST(Soundsensoren, JederSensorHatSeinenSoundUndSeineSperre) {
    test::testprogramm t;
    namen erwartet;
    for (const int nummer : {41, 45, 40, 44, 39, 43, 38, 42}) {
        erwartet.push_back("sound\\" + std::to_string(nummer) + ".wav");
        t.p.einst.sound_dateien.at(static_cast<std::size_t>(nummer)) = erwartet.back();
    }
    t.starten("Zeit", "5", {1});
    t.maschine.laufen(10);
    t.maschine.sounds.clear();
    for (const int art : {9, 10, 11, 12, 17, 18, 19, 20}) {
        t.p.ereignisse.ereignis_melden(art);
    }
    t.maschine.laufen(1);
    EXPECT_EQ(t.maschine.sounds, erwartet);
    t.p.ereignisse.ereignis_melden(17);
    t.maschine.laufen(2990);
    EXPECT_EQ(t.maschine.sounds.size(), 8U);
    EXPECT_TRUE(t.p.ereignisse[17].aktiv) << "waits for the end of the hold-off";
    t.maschine.laufen(12);
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\41.wav");
    EXPECT_EQ(t.maschine.sounds.size(), 9U);
    EXPECT_FALSE(t.p.ereignisse[17].aktiv);

    t.p.einst.sound_an = false;
    t.p.ereignisse.ereignis_melden(18);
    t.maschine.laufen(100);
    EXPECT_TRUE(t.p.ereignisse[18].aktiv) << "with sounds off the sensors are not read";
    t.p.einst.sound_an = true;
    t.p.einst.sound_dateien[40].clear();
    t.maschine.laufen(1);
    EXPECT_FALSE(t.p.ereignisse[18].aktiv) << "an event without a sound is taken too";
    EXPECT_EQ(t.maschine.sounds.size(), 9U);
}

}  // namespace
}  // namespace tarvel
