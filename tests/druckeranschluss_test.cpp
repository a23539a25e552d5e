#include "hardware/druckeranschluss.h"

#include "tests/kontaktgeraete_probe.h"

namespace tarvel::test {
namespace {

using Druckeranschluss = Kontaktgeraet;

TEST_F(Druckeranschluss, DruckeranschlussSchaltetSeineLinien) {
    t.p.einst.lpt.lpt_ausgang[7] = 32;
    t.p.einst.lpt.lpt_ausgang[8] = 24;
    lpt_waehlen();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(7)) << "green";
    EXPECT_FALSE(lpt_pin(8)) << "the tank's supply waits for the race window";
    EXPECT_FALSE(lpt_pin(9)) << "low while the lane has power";
    t.starten("Runden", "5", {1});
    t.maschine.laufen(3000);
    EXPECT_TRUE(lpt_pin(8));
    t.bahn().Command3.klicken();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9) && lpt_pin(2) && lpt_pin(6));
    EXPECT_FALSE(lpt_pin(7));
    lpt()[lpt_basis] = 0;  // somebody prints
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9));
    t.p.einst.bahnstrom_invers = true;
    lpt_waehlen();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9)) << "with inverted wiring high is power";
    lpt().erase(lpt_basis + lpt::status);
    t.maschine.laufen(2);
    EXPECT_FALSE(t.p.geraete.verbunden()) << "a machine without the port";
    lpt()[lpt_basis] = 0x55;
    t.p.einst.hardware = {};
    t.p.geraete.hardware_starten(false);
    EXPECT_NE(lpt()[lpt_basis], 0x55) << "the last word reaches the port";
    lpt()[lpt_basis] = 3;
    t.maschine.laufen(2);
    EXPECT_EQ(lpt()[lpt_basis], 3) << "another device is chosen: nothing writes there";
}

TEST_F(Druckeranschluss, DasSignalDesRennendesStehtSolangeEsGilt) {
    t.p.einst.lpt.lpt_ausgang[8] = art::zieleinfahrt;
    lpt_waehlen();
    t.starten("Runden", "1", {1});
    t.maschine.laufen(1000);
    t.taste("1");
    t.maschine.laufen(2000);
    EXPECT_FALSE(lpt_pin(9));
    t.taste("1");
    t.maschine.laufen(100);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_TRUE(lpt_pin(9));
    t.maschine.laufen(20000);
    EXPECT_FALSE(lpt_pin(9));
}

TEST_F(Druckeranschluss, DruckerfensterPrueftAdresseUndListen) {
    t.p.einst.hardware.hw_lpt = true;
    lpt_waehlen();
    drucker_fenster& w = t.p.geraete.von<druckeranschluss_verdrahtung>().drucker_fenster;
    t.p.fenster.zeigen(fenstername::drucker_fenster);
    EXPECT_EQ(w.lpt_text.text(), "378");
    lpt()[lpt_basis + lpt::status] = 64;
    t.maschine.laufen(20);
    EXPECT_TRUE(w.eanzeiger[0].gesetzt() && w.eanzeiger[1].gesetzt()) << "pin 11 is active low";
    const int vorher = lpt()[lpt_basis];
    w.aanzeiger[2].umschalten();
    EXPECT_EQ(lpt()[lpt_basis], vorher ^ 4);
    lpt()[0x278] = 17;
    w.lpt_text.eingeben("2");
    w.lpt_text.eingeben("27");
    EXPECT_EQ(lpt()[lpt_basis], vorher ^ 4) << "what is half typed is no port";
    w.lpt_text.eingeben("278");
    EXPECT_EQ(lpt()[lpt_basis], vorher) << "the port that is left is as it was";
    w.aanzeiger[0].umschalten();
    EXPECT_EQ(lpt()[0x278], 16);
    w.ecomb[4].waehlen(16);
    w.Command3.klicken();
    EXPECT_EQ(gemeldet(), "Auswahlelemente -Eingang- doppelt. Einstellungen wurden nicht übernommen.");
    w.ecomb[4].waehlen(1);
    w.comb[7].waehlen(8);
    w.Command3.klicken();
    EXPECT_EQ(gemeldet(), "Auswahlelemente -Ausgang- doppelt. Einstellungen wurden nicht übernommen.");
    w.comb[7].waehlen(33);
    for (const char* falsch : {"", "xyz", "37G", "FFFF", "-3"}) {
        w.lpt_text.eingeben(falsch);
        w.Command3.klicken();
        EXPECT_NE(gemeldet().find("hexadezimal"), std::string::npos) << falsch;
    }
    lpt()[0xD010] = 0;
    w.comb[6].waehlen(32);
    w.lpt_text.eingeben("d010");
    w.Command3.klicken();
    t.maschine.laufen(2);
    EXPECT_EQ(lpt()[0xD010] & 0x40, 0x40) << "the tank's supply";
    EXPECT_EQ(lpt()[0x278], 17);
    EXPECT_EQ(t.p.einst.lpt.anschluss.lpt_adresse, 0xD010);
    EXPECT_EQ(t.p.einst.lpt.lpt_eingang[5], 1);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::drucker_fenster));
}

}  // namespace
}  // namespace tarvel::test
