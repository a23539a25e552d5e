#include "programm/programm.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

TEST(Start, ErsterStartImLeerenOrdnerMeldetUndLegtAllesAn) {
    test::test_plattform maschine;
    programm p(maschine.dienste());
    p.starten();
    ASSERT_EQ(maschine.meldungen_gezeigt.size(), 4U);
    EXPECT_EQ(maschine.meldungen_gezeigt[0].text, p.txt.meldung[7]);
    EXPECT_EQ(maschine.meldungen_gezeigt[1].text, p.txt.meldung[8]);
    EXPECT_EQ(maschine.meldungen_gezeigt[2].text, p.txt.meldung[9]);
    EXPECT_EQ(maschine.meldungen_gezeigt[3].text, p.txt.meldung[20]);
    maschine.meldungen_gezeigt.clear();
    programm zweiter(maschine.dienste());
    zweiter.starten();
    ASSERT_EQ(maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(maschine.meldungen_gezeigt[0].text, p.txt.meldung[20]) << "until the first best time is kept";
}

TEST(Start, MitgelieferteDateienGebenEinenStartOhneMeldung) {
    test::test_plattform maschine;
    std::filesystem::copy(std::filesystem::path(TARVEL_QUELLEN) / "data", maschine.ordner(),
                          std::filesystem::copy_options::recursive);
    programm p(maschine.dienste());
    p.starten();
    EXPECT_TRUE(maschine.meldungen_gezeigt.empty());
    EXPECT_EQ(p.form1.fahrer[0].eintraege().size(), 7U);
}

TEST(Start, LegtOrdnerAnUndSchliesstDieStartbilder) {
    test::testprogramm t;
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form1));
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form3));
    for (const char* ordner :
         {"Bestzeiten", "Einzelrennen", "auto-Einzelrennen", "Wettkampf", "Wettkampf-Zwischenstand", "Tagesrennen"}) {
        EXPECT_TRUE(t.maschine.datei_da(std::string("Ergebnisse/") + ordner)) << ordner;
    }
    t.maschine.laufen(500);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Update_form));
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form3));
    t.maschine.laufen(1500);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form3));
    t.p.fenster.zeigen(fenstername::Form3);
    t.p.form3.Command1.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form3));
}

TEST(Start, ZweiteInstanzMeldetSichUndRuehrtNichtsAn) {
    test::test_plattform maschine;
    maschine.erste_instanz = false;
    maschine.datei_schreiben("auto-1.csv", "alt");
    maschine.datei_schreiben("tvk_taste.ini", "unsinn");
    programm p(maschine.dienste());
    EXPECT_FALSE(p.starten());
    ASSERT_EQ(maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(maschine.meldungen_gezeigt[0].text, "Programm ist bereits gestartet");
    EXPECT_EQ(maschine.meldungen_gezeigt[0].titel, "Tarvel");
    EXPECT_EQ(maschine.beendet, 1);
    EXPECT_FALSE(p.fenster.ist_offen(fenstername::Form1));
    EXPECT_TRUE(maschine.datei_da("auto-1.csv"));
    EXPECT_EQ(maschine.datei_lesen("tvk_taste.ini"), "unsinn");
    EXPECT_FALSE(maschine.datei_da("Ergebnisse/Einzelrennen"));
}

TEST(Start, RaeumtAlteDateienUmUndAuf) {
    test::test_plattform maschine;
    maschine.datei_schreiben("a.bst", "1");
    maschine.datei_schreiben("b.bst", "2");
    maschine.datei_schreiben("tvk_UART.ini", "u");
    maschine.datei_schreiben("auto-alt.csv", "");
    maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen/auto-1.csv", "");
    maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen/meins.csv", "bleibt");
    maschine.datei_schreiben("Ergebnisse/Wettkampf-Zwischenstand/x.wta", "");
    programm p(maschine.dienste());
    EXPECT_TRUE(p.starten());
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Bestzeiten/a.bst"), "1");
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Bestzeiten/b.bst"), "2");
    EXPECT_FALSE(maschine.datei_da("a.bst"));
    EXPECT_EQ(maschine.datei_lesen("tvk_at2560.uart"), "u");
    EXPECT_FALSE(maschine.datei_da("auto-alt.csv"));
    EXPECT_FALSE(maschine.datei_da("Ergebnisse/auto-Einzelrennen/auto-1.csv"));
    EXPECT_TRUE(maschine.datei_da("Ergebnisse/auto-Einzelrennen/meins.csv"));
    EXPECT_FALSE(maschine.datei_da("Ergebnisse/Wettkampf-Zwischenstand/x.wta"));
}

TEST(Start, EndeSchliesstAllesUndLaeuftEinmal) {
    test::testprogramm t;
    t.starten("Zeit", "5", {1});
    t.maschine.laufen(1000);
    t.p.programm_beenden();
    t.p.form1.Command2.klicken();
    EXPECT_EQ(t.maschine.beendet, 1);
    using enum fenstername;
    for (const fenstername name : {Form1, Form3, Update_form, bahn1, auswertung}) {
        EXPECT_FALSE(t.p.fenster.ist_offen(name)) << text_von(name);
    }
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
}

}  // namespace
}  // namespace tarvel
