#include "core/sprache.h"

#include "core/felder.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using zeilen = std::vector<std::string>;

class Sprache : public testing::Test {
protected:
    /// A program that finds these lines in one file of the language folder.
    programm& mit_datei(const std::string& name, const zeilen& inhalt) {
        EXPECT_TRUE(ablage.zeilen_schreiben("language/" + name, inhalt));
        p = std::make_unique<programm>(maschine.dienste());
        p->starten();
        return *p;
    }

    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
    std::unique_ptr<programm> p;
};

TEST_F(Sprache, MitgelieferteDateienUndLeserPassenZusammen) {
    test::testprogramm t;
    const dateien mitgeliefert{std::filesystem::path(TARVEL_QUELLEN) / "data"};
    for (const sprachliste& sprache : t.p.sprachdateien()) {
        std::string name = sprache.datei();
        SCOPED_TRACE(name);
        EXPECT_EQ(mitgeliefert.zeilen_lesen(name, 10000), sprache.deutsche_datei()) << "run tools/grunddateien";
        name.replace(0, name.find_first_of("/\\"), "language-en");
        const auto englisch = mitgeliefert.zeilen_lesen(name, 10000);
        ASSERT_TRUE(englisch);
        EXPECT_EQ(englisch->size(), sprache.anzahl());
        const bool zeilenweise = sprache.deutsche_datei().front().front() != '"';
        EXPECT_TRUE(zeilenweise || felder_lesen(mitgeliefert, name, 10000)->size() == sprache.anzahl())
            << "an open quote";
    }
}

TEST_F(Sprache, FelderMitUndOhneAnfuehrungszeichen) {
    ASSERT_TRUE(ablage.zeilen_schreiben("f.txt", {"\"a, b\" , c,,  d ", "", "\"offen", "e"}));
    EXPECT_EQ(felder_lesen(ablage, "f.txt", 10), (zeilen{"a, b", "c", "", "d", "", "offen", "e"}));
    EXPECT_EQ(felder_lesen(ablage, "f.txt", 2), (zeilen{"a, b", "c"}));
    EXPECT_EQ(felder_lesen(ablage, "fehlt.txt", 2), std::nullopt);
    EXPECT_EQ(als_feld("sag \"ja\""), "\"sag 'ja'\"");
}

TEST_F(Sprache, KurzeDateiLaesstDenRestDeutsch) {
    const programm& kurz =
        mit_datei("language_m1.txt", {"heading", "Standard car", "Driver", "Time", "Laps", "Note", "", "message one"});
    EXPECT_EQ(kurz.txt.titel[0], "Note");
    EXPECT_EQ(kurz.txt.titel[1], "") << "an empty line is an empty text";
    EXPECT_EQ(kurz.txt.meldung[1], "message one");
    EXPECT_EQ(kurz.txt.meldung[2], "Fehler beim Schreiben der Datei. Die Fahrzeugliste wurde nicht gespeichert.");
    EXPECT_EQ(kurz.form1.fahrer[0].text(), "Driver 1");
}

TEST_F(Sprache, UebersetzteRennartAendertWederDateiNochRennen) {
    programm& uebersetzt = mit_datei("language_m1.txt", {"", "Car", "Driver", "Time", "Laps"});
    uebersetzt.form1.rennart.eingeben("Laps");
    uebersetzt.form1.renndauer.eingeben("12");
    const zeilen datei = uebersetzt.datei.schreiben();
    EXPECT_EQ(datei.at(30), "3");
    ASSERT_TRUE(ablage.zeilen_schreiben("Einstellungen/einstellungen.ini", datei));
    programm neu(maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.form1.rennart.text(), "Laps");
    EXPECT_FALSE(neu.form1.stddauer.aktiviert());
    neu.form1.Command1.klicken();
    EXPECT_EQ(neu.rennen.bahn1.ziel_label.text(), "12 Runden") << "a text of its own, which this file lacks";
}

TEST_F(Sprache, HauptfensterNimmtSeineTexteDerReiheNach) {
    const form1& haupt =
        mit_datei("language_m2.txt", {"x", "\"y\"", "Lane", "Length", "Best", "Power", "\"Settings: \""}).form1;
    EXPECT_EQ(haupt.spur[3].text(), "Lane 4");
    EXPECT_EQ(haupt.label_spurlaenge.text(), "Length");
    EXPECT_EQ(haupt.Label6.text(), "Settings: einstellungen.ini");
    EXPECT_EQ(haupt.Label8.text(), "Stunden");
    EXPECT_EQ(haupt.fahrer[1].ansage(), "Fahrer, Lane 2");
}

TEST_F(Sprache, GewaehlteSpracheGiltSofortUndNachDemNeustart) {
    programm& deutsch = mit_datei("../language-xy/language_m1.txt", {"", "Car", "Driver", "Time", "Laps", "Note"});
    ASSERT_TRUE(ablage.zeilen_schreiben("language-xy/language_m2.txt", {"", "", "Lane", "Length"}));
    deutsch.form1.rennart.eingeben("Runden");
    deutsch.form1.Command4.klicken();
    auto& wahl = std::get<auswahl>(deutsch.einstellungsfenster.zeile("sprache").element);
    EXPECT_EQ(wahl.eintraege(), (zeilen{"Deutsch", "xy"}));
    wahl.waehlen(1);
    deutsch.einstellungsfenster.Command1.klicken();
    const auto pruefen = [](const programm& q) {
        EXPECT_EQ(q.form1.rennart.text(), "Laps") << "the same choice in another word";
        EXPECT_EQ(q.txt.titel[0], "Note");
        EXPECT_EQ(q.form1.spur[2].text(), "Lane 3");
        EXPECT_EQ(q.form1.Label6.text(), "Einstellungsdatei: einstellungen.ini");
    };
    pruefen(deutsch);
    p = std::make_unique<programm>(maschine.dienste());
    p->starten();
    pruefen(*p);

    for (const zeilen& unfug : {zeilen{}, zeilen{"language-weg", "7"}, zeilen{"..", "-1"}}) {
        ASSERT_TRUE(ablage.zeilen_schreiben("tvk_anzeige.ini", unfug));
        erscheinung gelesen;
        erscheinung_laden(ablage, gelesen);
        EXPECT_EQ(gelesen, erscheinung());
    }
}

TEST_F(Sprache, EreignisnamenStehenRueckwaertsInDerDatei) {
    zeilen inhalt(59, "n");
    inhalt[0] = "erster";
    inhalt[52] = "letzter";
    ASSERT_TRUE(ablage.zeilen_schreiben("language/language_e_usb2.txt", inhalt));
    texte txt;
    txt.sprache_usb2_laden(ablage);
    EXPECT_EQ(txt.ereignis_name[52], "erster");
    EXPECT_EQ(txt.ereignis_name[0], "letzter");
    EXPECT_EQ(txt.ereignis_name[53], "Zwischenzeit 2, Spur 6");
    EXPECT_EQ(txt.ereignis_name[59], "Chaostaster Fahrer 6");
}

}  // namespace
}  // namespace tarvel
