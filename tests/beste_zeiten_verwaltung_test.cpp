#include "optionen/beste_zeiten_verwaltung.h"

#include "tests/optionen_probe.h"

namespace tarvel {
namespace {

class BesteZeitenVerwaltung : public test::OptionenProbe {
protected:
    BesteZeitenVerwaltung() {
        for (const zeit_ms ms : {9000, 8500, 8000}) {
            t.p.bestzeiten.einfuegen(2, {ms, "Jörg", "Viper", "01.02.2026"});
        }
        EXPECT_TRUE(t.p.bestzeiten.speichern(t.p.ablage, "bestefile"));
        verwalten();
    }
    void verwalten() { element<befehl>("bestzeiten_verwalten").klicken(); }
    bool verwaltung_offen() { return t.p.fenster.ist_offen(fenstername::beste_zeiten_verwaltung); }
    bestzeiten datei(const char* stamm) {
        bestzeiten tabelle;
        EXPECT_TRUE(tabelle.laden(t.p.ablage, stamm)) << stamm;
        return tabelle;
    }
    meldungen aendern(const char* zeit) {
        t.maschine.meldungen_gezeigt.clear();
        v.Text1.eingeben(zeit);
        v.Command34.klicken();
        return t.maschine.meldungen_gezeigt;
    }
    liste& spur(int nummer) { return v.bestefile_list.at(feld_index(nummer)); }

    beste_zeiten_verwaltung& v = t.p.beste_zeiten_verwaltung;
};

TEST_F(BesteZeitenVerwaltung, KorrekturenGeltenSortiertNachDemSchliessen) {
    EXPECT_EQ(v.bestlabel2.text(), "00:08,000   Jörg   01.02.2026");
    EXPECT_EQ(spur(2).zeilen()[0], "00:08,000  Jörg             01.02.2026");
    EXPECT_EQ(aendern("00:07,000").size(), 1U) << "no line is selected";
    spur(2).auswaehlen(2);
    EXPECT_EQ(v.Text1.text(), "00:09,000");
    EXPECT_EQ(v.Text4.text(), "Viper");
    for (const char* zeit : {"", "Unfug", "00:00,000", "02:00,000", "00:08", "1:2:3:004", "8", "00:08,12"}) {
        EXPECT_EQ(aendern(zeit).size(), 1U) << zeit;
    }
    v.Text2.eingeben("Anna \"Blitz\" €");
    EXPECT_EQ(aendern("01:02.345"), meldungen{});
    EXPECT_EQ(v.Text1.text(), "01:02,345") << "a minute is a minute here";
    EXPECT_EQ(
        aendern("7,5"),
        (meldungen{{"Die Zeit ist nicht lesbar oder zu lang. Bitte in dieser Form eintragen, höchstens 01:39,998.",
                    "Hinweis"}}));
    EXPECT_EQ(aendern("7:500").size(), 0U);
    EXPECT_EQ(v.bestlabel2.text(), "00:07,500   Anna 'Blitz' €   01.02.2026");
    spur(5).auswaehlen(9);
    EXPECT_EQ(spur(2).markiert(), -1) << "one line of all";
    EXPECT_EQ(aendern("0:59,999"), meldungen{});
    spur(2).auswaehlen(0);
    const auto vorher = spur(2).zeilen();
    v.Command29.klicken();
    EXPECT_EQ(spur(2).zeilen(), vorher) << "it asks first";
    t.maschine.antwort = true;
    v.Command29.klicken();
    t.maschine.antwort = false;
    EXPECT_EQ(spur(2).zeilen()[0], vorher[1]) << "no hole";
    EXPECT_EQ(t.p.bestzeiten.beste(2), 8000) << "not yet";

    v.Command1.klicken();
    EXPECT_FALSE(verwaltung_offen());
    EXPECT_EQ(t.p.bestzeiten.eintrag(1, 2), (bestzeit{7500, "Anna 'Blitz' €", "Viper", "01.02.2026"}));
    EXPECT_EQ(t.p.bestzeiten.eintrag(2, 2).ms, 8500);
    EXPECT_EQ(t.p.bestzeiten.eintrag(3, 2), bestzeit{});
    EXPECT_EQ(t.p.bestzeiten.beste(5), 59999);
    EXPECT_EQ(datei("bestefile"), t.p.bestzeiten);
    EXPECT_EQ(t.p.form1.Label_fahrzeug[1].text(), "00:07,500");
}

TEST_F(BesteZeitenVerwaltung, AlleLoeschenFragtUndGeschriebenWirdNurEineAenderung) {
    v.Command35.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    std::filesystem::remove(t.maschine.ordner() / "Ergebnisse/Bestzeiten/bestefile.bst");
    v.Command1.klicken();
    EXPECT_FALSE(t.maschine.datei_da("Ergebnisse/Bestzeiten/bestefile.bst"));
    verwalten();
    t.maschine.antwort = true;
    v.Command35.klicken();
    v.Command1.klicken();
    EXPECT_EQ(datei("bestefile"), bestzeiten{});
}

TEST_F(BesteZeitenVerwaltung, NeueUndAndereDateien) {
    spur(1).auswaehlen(0);
    EXPECT_EQ(aendern("00:05,000"), meldungen{});
    t.maschine.meldungen_gezeigt.clear();
    for (const char* name : {"", "../x", "a:b", "Bestefile", "bestefile.bst", ".x", "Łódź"}) {
        v.bestefile_name.eingeben(name);
        v.Command37.klicken();
    }
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 7U);
    EXPECT_EQ(datei("bestefile").beste(1), keine_bestzeit) << "nothing was created";
    v.bestefile_name.eingeben("Klub 2");
    v.Command37.klicken();
    EXPECT_EQ(v.Combo2.text(), "Klub 2");
    EXPECT_EQ(datei("Klub 2"), bestzeiten{});
    EXPECT_EQ(datei("bestefile").beste(1), 5000) << "the edits belong to the file before";
    spur(6).auswaehlen(3);
    EXPECT_EQ(aendern("00:06,000"), meldungen{});
    v.Combo1.waehlen(1);
    v.Command1.klicken();
    EXPECT_EQ(datei("Klub 2").beste(6), 6000);
    EXPECT_EQ(element<auswahl>("beste_datei").text(), "Klub 2") << "the options window shows it at once";
    EXPECT_EQ(element<auswahl>("Combo1").platz(), 1);
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.einst.beste_modus, bestzeit_speicherung::automatisch);
    EXPECT_EQ(neu.bestzeiten.beste(6), 6000);

    verwalten();
    v.Combo2.waehlen(1);
    std::filesystem::remove(t.maschine.ordner() / "Ergebnisse/Bestzeiten/bestefile.bst");
    v.Command36.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, t.p.txt.meldung[20]);
    EXPECT_EQ(v.Combo2.text(), "Klub 2");
}

TEST_F(BesteZeitenVerwaltung, MisslungenesSpeichernHaeltDasFensterOffen) {
    t.maschine.nicht_schreibbar = "bestefile.bst";
    spur(1).auswaehlen(0);
    EXPECT_EQ(aendern("00:05,000"), meldungen{});
    v.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, t.p.txt.meldung[21]);
    EXPECT_TRUE(verwaltung_offen());
    EXPECT_TRUE(spur(1).zeilen()[0].starts_with("00:05,000"));
    t.maschine.antwort = true;  // give the changes up
    v.Command1.klicken();
    EXPECT_FALSE(verwaltung_offen());
    EXPECT_EQ(t.p.bestzeiten.beste(1), keine_bestzeit);
    EXPECT_EQ(t.p.bestzeiten.beste(2), 8000);
}

TEST_F(BesteZeitenVerwaltung, SeiteBietetDieDateienAnUndBehaeltEinenNamenOhneDatei) {
    v.Command1.klicken();
    ASSERT_TRUE(t.p.bestzeiten.speichern(t.p.ablage, "klub"));
    einst.beste_datei = "fort";
    fenster.Command2.klicken();
    oeffnen();
    EXPECT_EQ(element<auswahl>("beste_datei").eintraege(), (std::vector<std::string>{"bestefile", "klub", "fort"}));
    uebernehmen();
    EXPECT_EQ(einst.beste_datei, "fort");
    EXPECT_EQ(t.p.form1.Label_fahrzeug[1].text(), "–");
    nach_wahl("beste_datei", 1);
    EXPECT_EQ(t.p.form1.Label_fahrzeug[1].text(), "00:08,000");
    nach_wahl("Combo1", 0);
    EXPECT_EQ(t.p.form1.Label_fahrzeug[1].text(), "–");
}

}  // namespace
}  // namespace tarvel
