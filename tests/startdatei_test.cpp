#include <gtest/gtest.h>

#include "core/nebendateien.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

class Startdatei : public testing::Test {
protected:
    /// Starts with this file of settings.
    programm& start_mit(const std::string& datei, const std::string& zustand_und_modus = "0\r\n\r\n") {
        t.maschine.datei_schreiben("tvk_s6.ini", zustand_und_modus + datei + "\r\n0\r\n\r\n");
        t.maschine.meldungen_gezeigt.clear();
        p = std::make_unique<programm>(t.maschine.dienste());
        p->starten();
        return *p;
    }

    test::testprogramm t;
    dateien ablage{t.maschine.ordner()};
    std::unique_ptr<programm> p;
};

TEST_F(Startdatei, SchreibweisenDesOrdnersMeinenDasselbe) {
    t.p.einst.tank_inhalt = 42;
    ASSERT_TRUE(ablage.zeilen_schreiben("Einstellungen/klub, alt.ini", t.p.datei.schreiben()));
    const std::string voll = (t.maschine.ordner() / "Einstellungen").string();
    for (const std::string& ordner : {std::string("Einstellungen/"), std::string("Einstellungen\\"), voll + "/"}) {
        const programm& neu = start_mit("\"" + ordner + "klub, alt.ini\"");
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty()) << ordner;
        EXPECT_EQ(neu.einst.tank_inhalt, 42) << ordner;
        EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: klub, alt.ini");
        EXPECT_EQ(neu.form1.Label6.tipp(), "Beim Programmstart: klub, alt.ini");
    }
}

TEST_F(Startdatei, FehlendeWirdMitDenStandardwertenAngelegt) {
    const programm& neu = start_mit("Einstellungen/klub.ini");
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: klub.ini");
    EXPECT_TRUE(t.maschine.datei_da("Einstellungen/klub.ini"));
}

TEST_F(Startdatei, NieEineAndereDatei) {
    const std::string liste = t.maschine.datei_lesen("Listen/fahrer.lst");
    for (const char* name :
         {"Einstellungen\\..\\Listen\\fahrer.lst", "..\\Listen\\fahrer.lst", "C:\\x.ini", "/etc/x"}) {
        const programm& neu = start_mit(name);
        EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: einstellungen.ini") << name;
        EXPECT_EQ(t.maschine.datei_lesen("Listen/fahrer.lst"), liste) << name;
    }
}

TEST_F(Startdatei, NeustartVerlangtEinenModusNurFuerDiesenStart) {
    t.p.einst.hardware.hw_iow = true;
    ASSERT_TRUE(ablage.zeilen_schreiben("Einstellungen/iow.ini", t.p.datei.schreiben()));
    programm& neu = start_mit("Einstellungen\\iow.ini", "2\r\n5\r\n");
    EXPECT_FALSE(neu.einst.hardware.hw_iow);
    EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, 5);
    EXPECT_EQ(s6_laden(ablage).zustand, "0");
    neu.form1.Command7.klicken();
    neu.speichernfenster.name.eingeben("iow");
    neu.speichernfenster.Command1.klicken();
    EXPECT_TRUE(neu.einst.hardware.hw_iow) << "what is loaded later counts as it stands";
    EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, 3);
    start_mit("Einstellungen\\iow.ini", "2\r\n1\r\n");
    EXPECT_EQ(p->einst.hardware.hw_4x4_modus, 3) << "there is no such mode";
}

}  // namespace
}  // namespace tarvel
