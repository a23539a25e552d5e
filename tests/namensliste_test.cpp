#include "core/namensliste.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using eintraege = std::vector<listeneintrag>;

class Namensliste : public testing::Test {
protected:
    Namensliste() { liste.eingebaut({"Fahrer 1", "Fahrer 2"}); }

    bool laden(const std::vector<std::string>& zeilen) {
        EXPECT_TRUE(ablage.zeilen_schreiben("l.lst", zeilen));
        return liste.laden(ablage, "l.lst");
    }

    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
    namensliste liste{{"Fahrerliste:", "pictures", "nopic.jpg"}};
};

TEST_F(Namensliste, NamenUndBilderGehenHinUndZurueck) {
    ASSERT_TRUE(laden({"Fahrerliste:", "Jörg", "Anna", "Max", "{pic}", "joerg", "", "max", "{ende}"}));
    EXPECT_EQ(liste.eintraege(), (eintraege{{"Jörg", "joerg"}, {"Anna", ""}, {"Max", "max"}}));
    liste.bild_setzen(1, "Anna");
    ASSERT_TRUE(liste.speichern(ablage, "Listen\\neu.lst"));
    EXPECT_EQ(maschine.datei_lesen("Listen/neu.lst"),
              "Fahrerliste:\r\nJ\xF6rg\r\nAnna\r\nMax\r\n{pic}\r\njoerg\r\nAnna\r\nmax\r\n{ende}\r\n");
    EXPECT_TRUE(laden({"Fahrerliste:", "{ende}"}));
    EXPECT_TRUE(liste.eintraege().empty());
}

TEST_F(Namensliste, BilddateiNurWennSieDaIst) {
    ASSERT_TRUE(
        laden({"Fahrerliste:", "Jörg", "Anna", "Max", "Eva", "{pic}", "joerg", "", "..\\..\\max", "eva", "{ende}"}));
    maschine.datei_schreiben("pictures/joerg.jpg", "x");
    maschine.datei_schreiben("max.jpg", "x");
    EXPECT_EQ(liste.bilddatei(ablage, "Jörg"), "pictures/joerg.jpg");
    for (const char* ohne : {"Anna", "Max", "Eva", "niemand", ""}) {
        EXPECT_EQ(liste.bilddatei(ablage, ohne), "pictures/nopic.jpg") << ohne;
    }
}

TEST_F(Namensliste, BilduebernahmeNachDemNamenDerDatei) {
    ASSERT_TRUE(laden({"Fahrerliste:", "Anna", "nopic", "Max", "Anna", "{pic}", "alt", "", "", "", "{ende}"}));
    for (const char* datei : {"Anna.JPG", "nopic.jpg", "max.jpg", "Max.txt", "Max"}) {
        maschine.datei_schreiben(std::string("pictures/") + datei, "x");
    }
    EXPECT_EQ(liste.bilder_uebernehmen(ablage, "nopic"), 2);
    EXPECT_EQ(liste.eintraege(), (eintraege{{"Anna", "Anna"}, {"nopic", ""}, {"Max", ""}, {"Anna", "Anna"}}));
}

TEST_F(Namensliste, UnbrauchbareDateiGibtDieEingebautenNamen) {
    EXPECT_FALSE(liste.laden(ablage, "fehlt.lst"));
    for (const char* inhalt :
         {"", "Fahrerliste:", "Fahrzeugliste:\nViper\n{pic}\n\n{ende}", "Fahrerliste:\nAnna\n{pic}\n"}) {
        maschine.datei_schreiben("l.lst", inhalt);
        EXPECT_FALSE(liste.laden(ablage, "l.lst")) << inhalt;
        EXPECT_EQ(liste.eintraege(), (eintraege{{"Fahrer 1", ""}, {"Fahrer 2", ""}}));
    }
}

TEST_F(Namensliste, HundertNamenUndNichtMehr) {
    std::vector<std::string> zeilen(102, "Max");
    zeilen.front() = "Fahrerliste:";
    zeilen.insert(zeilen.end(), {"{pic}", "bild", "{ende}"});
    EXPECT_TRUE(laden(zeilen));
    EXPECT_EQ(liste.eintraege(), eintraege(100, {"Max", ""})) << "the pictures lie beyond the list";
}

TEST_F(Namensliste, JederMitgelieferteNameHatSeinBild) {
    test::testprogramm t;
    const dateien mitgeliefert{std::filesystem::path(TARVEL_QUELLEN) / "data"};
    const auto pruefen = [&](namensliste& l, const char* datei) {
        eintraege erwartet = l.eintraege();
        for (listeneintrag& eintrag : erwartet) {
            eintrag.bild = eintrag.name;
        }
        ASSERT_TRUE(l.laden(mitgeliefert, datei));
        EXPECT_EQ(l.eintraege(), erwartet) << "run tools/bilder.sh, then tools/grunddateien";
        for (const listeneintrag& eintrag : erwartet) {
            EXPECT_EQ(l.bilddatei(mitgeliefert, eintrag.name), l.listenart().bildordner + "/" + eintrag.name + ".jpg");
        }
    };
    pruefen(t.p.fahrerliste, "Listen/fahrer.lst");
    pruefen(t.p.fahrzeugliste, "Listen/fahrzeuge.kfz");
}

}  // namespace
}  // namespace tarvel
