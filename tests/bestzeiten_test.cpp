#include "core/bestzeiten.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Bestzeiten : public test::ProgrammProbe {
protected:
    bestzeiten geladen(const std::string& bytes) {
        t.maschine.datei_schreiben("Ergebnisse/Bestzeiten/klub.bst", bytes);
        bestzeiten tabelle;
        EXPECT_TRUE(tabelle.laden(t.p.ablage, "klub"));
        return tabelle;
    }
};

TEST_F(Bestzeiten, NeueZeitSchiebtDieSpurNachUntenUndKommtDurchDieDatei) {
    bestzeiten tabelle;
    for (zeit_ms ms = 8000; ms > 7988; --ms) {
        tabelle.einfuegen(2, {ms, "Jörg \"Blitz\", jun.", "Viper", "21.11.2026"});
    }
    tabelle.einfuegen(5, {7989, std::string(500, 'x') + "€\n", "Ł", ""});
    tabelle.einfuegen(6, {0, "zu kurz", "", ""});
    tabelle.einfuegen(6, {keine_bestzeit, "zu lang", "", ""});
    EXPECT_EQ(tabelle.beste(2), 7989);
    EXPECT_EQ(tabelle.eintrag(10, 2).ms, 7998) << "the first two have dropped out";
    EXPECT_EQ(tabelle.gesamt().name, "Jörg 'Blitz', jun.") << "of two equal times the lower lane's counts";
    EXPECT_EQ(tabelle.beste(6), keine_bestzeit);
    ASSERT_TRUE(tabelle.speichern(t.p.ablage, "klub"));
    const std::string bytes = t.maschine.datei_lesen("Ergebnisse/Bestzeiten/klub.bst");
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 240);
    const std::string lane2 = " 7989\r\n\"J\xF6rg 'Blitz', jun.\"\r\n\"Viper\"\r\n\"21.11.2026\"\r\n 7990\r\n";
    EXPECT_NE(bytes.find(lane2), std::string::npos);
    EXPECT_TRUE(bytes.starts_with(" 99999\r\n\"\"\r\n\"\"\r\n\"\"\r\n"));
    bestzeiten zurueck;
    ASSERT_TRUE(zurueck.laden(t.p.ablage, "klub"));
    EXPECT_EQ(zurueck, tabelle);
    EXPECT_EQ(zurueck.eintrag(1, 5).fahrzeug, "?");
}

TEST_F(Bestzeiten, WasNichtLesbarIstIstLeer) {
    EXPECT_EQ(geladen(""), bestzeiten{});
    for (const char* zeit : {"0", "-5", "99999", "1e9", "999999999999999999999", "\"\"", "acht"}) {
        const bestzeiten tabelle = geladen(std::string(zeit) + "\r\n\"A\"\r\n\"B\"\r\n\"C\"\r\n 9000 \r\n\"Anna");
        EXPECT_EQ(tabelle.beste(1) == keine_bestzeit, std::string(zeit) != "1e9") << zeit;
        EXPECT_EQ(tabelle.eintrag(2, 1).ms, 9000) << zeit;
        EXPECT_EQ(tabelle.eintrag(2, 1).name, "Anna") << zeit;
    }
    bestzeiten tabelle = geladen("8000,A,B,C");
    EXPECT_EQ(tabelle.gesamt(), (bestzeit{8000, "A", "B", "C"}));
    EXPECT_FALSE(tabelle.laden(t.p.ablage, "fehlt"));
    EXPECT_EQ(tabelle, bestzeiten{}) << "nothing of another file is left";
    EXPECT_FALSE(tabelle.laden(t.p.ablage, "..\\Bestzeiten\\klub"));
    EXPECT_FALSE(tabelle.speichern(t.p.ablage, "..\\klub"));
}

TEST_F(Bestzeiten, GeltenMitDerEinstellungsdateiUndZeigenSichInBeidenFenstern) {
    bestzeiten tabelle;
    tabelle.einfuegen(3, {8123, "Anna", "Viper", "01.02.2026"});
    tabelle.einfuegen(1, {61500, "Käthe", "Mini", "02.02.2026"});
    ASSERT_TRUE(tabelle.speichern(t.p.ablage, "bestefile"));
    programm p(t.maschine.dienste());
    p.starten();
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{});
    EXPECT_EQ(p.form1.Label_fahrzeug[0].text(), "01:01,500");
    EXPECT_EQ(p.form1.Label_fahrzeug[0].tipp(), "Käthe   Mini   02.02.2026");
    EXPECT_EQ(p.form1.Label_fahrzeug[1].text(), "–");
    const bahn1& bahn = p.rennen.bahn1;
    p.form1.Command1.klicken();
    EXPECT_EQ(bahn.bestzeit_label[3].text(), "Best: 00:08,123");
    EXPECT_EQ(bahn.bestzeit_label[3].tipp(), "Anna   Viper   01.02.2026");
    EXPECT_EQ(bahn.bestzeit_label[2].text(), "");
    EXPECT_EQ(bahn.bestzeit_gesamt.text(), "Bahnrekord: 00:08,123   Anna   01.02.2026");
    p.fenster.entladen(fenstername::bahn1);
    p.einst.beste_modus = bestzeit_speicherung::aus;
    p.form1.beste_zeiten_anzeigen();
    EXPECT_EQ(p.form1.Label_fahrzeug[0].text(), "–");
    p.form1.Command1.klicken();
    EXPECT_EQ(bahn.bestzeit_label[3].text(), "");

    // damaged settings: the table of the defaults, not the one of the file before
    p.einst.beste_datei = "klub";
    t.maschine.datei_schreiben("Einstellungen/einstellungen.ini", "Unfug");
    std::filesystem::remove(t.maschine.ordner() / "Ergebnisse/Bestzeiten/bestefile.bst");
    programm zweites(t.maschine.dienste());
    zweites.starten();
    EXPECT_EQ(t.maschine.meldungen_gezeigt,
              (meldungen{{p.txt.meldung[9], "Fehlermeldung"}, {p.txt.meldung[20], "Fehlermeldung"}}));
    EXPECT_EQ(zweites.bestzeiten, bestzeiten{});
}

}  // namespace
}  // namespace tarvel
