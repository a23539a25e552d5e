#include "programm/programm.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

TEST(Start, ErsterStartImLeerenOrdnerMeldetUndLegtAllesAn) {
    test::test_plattform maschine;
    programm p(maschine.dienste());
    p.starten();
    ASSERT_EQ(maschine.meldungen_gezeigt.size(), 3U);
    EXPECT_EQ(maschine.meldungen_gezeigt[0].text, p.txt.meldung[7]);
    EXPECT_EQ(maschine.meldungen_gezeigt[1].text, p.txt.meldung[8]);
    EXPECT_EQ(maschine.meldungen_gezeigt[2].text, p.txt.meldung[9]);
    maschine.meldungen_gezeigt.clear();
    programm zweiter(maschine.dienste());
    zweiter.starten();
    EXPECT_TRUE(maschine.meldungen_gezeigt.empty());
    ASSERT_TRUE(p.ablage.loeschen("Ergebnisse/Bestzeiten/bestefile.bst"));
    programm dritter(maschine.dienste());
    dritter.starten();
    ASSERT_EQ(maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(maschine.meldungen_gezeigt[0].text, p.txt.meldung[20]) << "they were there";
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
    const std::string felder = "Runden=Wahr\r\nDauer=17\r\nSpur1.Fahrer=Anna\r\n";
    maschine.datei_schreiben("tvk_hauptfenster.ini", felder);
    maschine.datei_schreiben("tvk_anzeige.ini", "language\r\n0\r\nWahr\r\n");
    programm p(maschine.dienste());
    EXPECT_FALSE(p.starten());
    EXPECT_EQ(maschine.datei_lesen("tvk_hauptfenster.ini"), felder) << "its own fields are those of nobody";
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
    maschine.datei_schreiben("auto-1.csv", "alt");
    maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen/auto-1.csv", "Abend");
    maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen/meins.csv", "bleibt");
    maschine.datei_schreiben("Ergebnisse/Wettkampf-Zwischenstand/x.wta", "");
    programm p(maschine.dienste());
    EXPECT_TRUE(p.starten());
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Bestzeiten/a.bst"), "1");
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Bestzeiten/b.bst"), "2");
    EXPECT_FALSE(maschine.datei_da("a.bst"));
    EXPECT_EQ(maschine.datei_lesen("tvk_at2560.uart"), "u");
    EXPECT_FALSE(maschine.datei_da("auto-1.csv"));
    EXPECT_FALSE(maschine.datei_da("Ergebnisse/auto-Einzelrennen/auto-1.csv"));
    EXPECT_TRUE(maschine.datei_da("Ergebnisse/auto-Einzelrennen/meins.csv"));
    EXPECT_FALSE(maschine.datei_da("Ergebnisse/Wettkampf-Zwischenstand/x.wta"));
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Papierkorb/auto-1.csv"), "alt");
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/Papierkorb/auto-1-2.csv"), "Abend");
    EXPECT_TRUE(maschine.datei_da("Ergebnisse/Papierkorb/x.wta"));
}

TEST(Start, PapierkorbBehaeltDreissigTage) {
    test::test_plattform maschine;
    const auto altern = [&](const std::string& name, int tage) {
        const auto datei = maschine.ordner() / name;
        std::filesystem::last_write_time(datei,
                                         std::filesystem::file_time_type::clock::now() - std::chrono::days(tage));
    };
    const std::string korb = "Ergebnisse/Papierkorb/";
    maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen/auto-1.csv", "");
    altern("Ergebnisse/auto-Einzelrennen/auto-1.csv", 300);  // its time there begins when it gets there
    for (const auto& [name, tage] : {std::pair("frisch.csv", 29), {"alt.csv", 31}}) {
        maschine.datei_schreiben(korb + name, "");
        altern(korb + name, tage);
    }
    for (int start = 0; start < 2; ++start) {
        programm p(maschine.dienste());
        p.starten();
        EXPECT_TRUE(maschine.datei_da(korb + "auto-1.csv"));
        EXPECT_TRUE(maschine.datei_da(korb + "frisch.csv"));
        EXPECT_FALSE(maschine.datei_da(korb + "alt.csv"));
    }
}

#ifndef _WIN32  // where a test may make no links
TEST(Start, VerlinktesWirdWederAufgeraeumtNochUeberschrieben) {
    test::test_plattform maschine;
    test::test_plattform fremde;
    fremde.datei_schreiben("auto-1.csv", "fremd");
    fremde.datei_schreiben("x.wta", "fremd");
    fremde.datei_schreiben("rest.tarvel-neu", "fremd");
    std::filesystem::create_directories(maschine.ordner() / "Ergebnisse");
    std::filesystem::create_directory_symlink(fremde.ordner(), maschine.ordner() / "Ergebnisse/auto-Einzelrennen");
    std::filesystem::create_directory_symlink(fremde.ordner(),
                                              maschine.ordner() / "Ergebnisse/Wettkampf-Zwischenstand");
    maschine.datei_schreiben("Einstellungen/einstellungen.ini.77.tarvel-neu", "abgebrochen");
    std::filesystem::create_symlink(fremde.ordner() / "x.wta", maschine.ordner() / "Einstellungen/y.tarvel-neu");
    std::filesystem::create_symlink(fremde.ordner() / "x.wta", maschine.ordner() / "Einstellungen/einstellungen.ini");
    programm p(maschine.dienste());
    p.starten();
    for (const char* name : {"auto-1.csv", "x.wta", "rest.tarvel-neu"}) {
        EXPECT_EQ(fremde.datei_lesen(name), "fremd") << name;
    }
    EXPECT_TRUE(maschine.datei_lesen("Einstellungen/einstellungen.ini").starts_with("Tarvel Version"));
    EXPECT_EQ(dateien{maschine.ordner()}.auflisten("Einstellungen", "", "").size(), 1U);
    const std::filesystem::directory_iterator ordner(maschine.ordner() / "Einstellungen");
    EXPECT_EQ(std::distance(begin(ordner), end(ordner)), 1) << "what a killed writer left is gone";
}
#endif

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
