#include "results/beste_zeiten_fenster.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class BesteZeitenFenster : public test::ProgrammProbe {
protected:
    BesteZeitenFenster() {
        angebote[1] = {true, "Jörg", "Viper", 8500, {9000, 8500, 0, 8500, 9123}};
        angebote[2] = {true, "Anna", "Mini", 8123, {8123}};
        angebote[3] = {true, "Käthe", "Corvette", 0, {}};
        angebote[4] = {false, "Max", "Viper", 7000, {7000}};
    }
    void oeffnen(int modus = 2) {
        t.p.einst.beste_modus = bestzeit_speicherung(modus);
        f.oeffnen(angebote, [this] {
            ++danach;
            EXPECT_FALSE(offen());
        });
    }
    bool offen() const { return t.p.fenster.ist_offen(fenstername::beste_zeiten_fenster); }
    void schreibschutz(bool an) { t.maschine.nicht_schreibbar = an ? "bestefile.bst" : ""; }

    beste_zeiten_fenster& f = t.p.beste_zeiten_fenster;
    bestzeiten& tabelle = t.p.bestzeiten;
    spuren<spur_angebot> angebote;
    int danach = 0;
};

TEST_F(BesteZeitenFenster, ZeigtUndSpeichertWasBesserIst) {
    tabelle.einfuegen(1, {8600, "Alt", "Alt", "01.01.2026"});
    tabelle.einfuegen(2, {8123, "Alt", "Alt", "01.01.2026"});
    oeffnen();
    EXPECT_EQ(f.beste_combo[0].eintraege(),
              (std::vector<std::string>{"00:08,500", "00:09,000", "00:08,500", "00:09,123"}));
    EXPECT_EQ(f.beste_alt[0].text(), "00:08,600");
    EXPECT_EQ(f.beste_combo[2].text(), "---");
    EXPECT_EQ(f.beste_alt[2].text(), "00:00:000");
    EXPECT_EQ(f.spur_chk[2].text(), "Spur 3");
    EXPECT_FALSE(f.Frame[3].sichtbar());
    EXPECT_TRUE(f.wird_gespeichert(1));
    EXPECT_FALSE(f.wird_gespeichert(2)) << "an equal time does not replace the stored one";
    EXPECT_TRUE(f.Shape1[0].hintergrund() && !f.Shape1[1].hintergrund() && !f.Shape1[3].hintergrund());
    t.maschine.laufen(60000);
    EXPECT_TRUE(offen()) << "the operator saves";
    f.Command1.klicken();
    EXPECT_EQ(danach, 1);
    EXPECT_EQ(tabelle.eintrag(1, 1), (bestzeit{8500, "Jörg", "Viper", "21.11.2026"}));
    EXPECT_EQ(tabelle.eintrag(2, 1).name, "Alt");
    EXPECT_EQ(tabelle.eintrag(1, 2).name, "Alt");
    EXPECT_EQ(tabelle.eintrag(2, 2), bestzeit{});
    EXPECT_EQ(tabelle.beste(3), keine_bestzeit);
    EXPECT_EQ(tabelle.beste(4), keine_bestzeit) << "the lane was not in the race";
    EXPECT_EQ(t.p.form1.Label_fahrzeug[0].text(), "00:08,500");
    bestzeiten gelesen;
    ASSERT_TRUE(gelesen.laden(t.p.ablage, "bestefile"));
    EXPECT_EQ(gelesen, tabelle);
}

TEST_F(BesteZeitenFenster, GetippteZeitenUndHaken) {
    oeffnen();
    for (const auto& [text, ms] :
         {std::pair<const char*, zeit_ms>{"01:01,000", 7000},  // as the files have always had it
          {" 00:08,123", 8123},
          {"00:08.123", 8123},
          {"00:08:123", 8123},
          {"00·08·123", 8123},
          {"00:00,000", keine_bestzeit},
          {"00:08", keine_bestzeit},
          {"8,123", keine_bestzeit},
          {"-1:08,123", keine_bestzeit},
          {"", keine_bestzeit},
          {"99:99,999", keine_bestzeit}}) {
        tabelle.leeren();
        oeffnen();
        f.beste_combo[0].laenge_max(0);
        f.beste_combo[0].eingeben(text);
        EXPECT_EQ(f.Shape1[0].hintergrund().has_value(), ms != keine_bestzeit) << text;
        f.Command1.klicken();
        EXPECT_EQ(tabelle.beste(1), ms) << text;
    }
    oeffnen();
    f.beste_combo[0].eingeben("00:05,000");
    f.btext_name[0].eingeben(std::string(200, 'N'));
    f.spur_chk[0].umschalten();
    EXPECT_FALSE(f.wird_gespeichert(1));
    f.Command3.klicken();
    EXPECT_EQ(f.beste_combo[0].text(), "00:08,500");
    EXPECT_EQ(f.btext_name[0].text(), "Jörg");
    EXPECT_TRUE(f.wird_gespeichert(1));
}

TEST_F(BesteZeitenFenster, SpeichertVonSelbstAberKeineHalbeKorrektur) {
    oeffnen(1);
    t.maschine.laufen(1900);
    f.btext_name[0].eingeben("J");
    t.maschine.laufen(1900);
    EXPECT_TRUE(offen());
    f.btext_name[0].eingeben("Jo");
    t.maschine.laufen(2000);
    EXPECT_EQ(danach, 1);
    EXPECT_EQ(tabelle.eintrag(1, 1).name, "Jo");
    oeffnen(1);
    f.Command2.klicken();
    oeffnen(2);
    t.maschine.laufen(10000);
    EXPECT_TRUE(offen()) << "the timer ends with its window";
    EXPECT_EQ(danach, 2);
}

TEST_F(BesteZeitenFenster, DanachLaeuftGenauEinmal) {
    oeffnen(0);
    EXPECT_EQ(danach, 1) << "switched off: no window";
    oeffnen();
    f.schliessen();
    f.schliessen();
    f.Command1.klicken();
    EXPECT_EQ(danach, 2);
    f.oeffnen(angebote, [this] { oeffnen(); });
    f.Command2.klicken();
    EXPECT_TRUE(offen()) << "what comes after may open it again";
    t.p.programm_beenden();
    EXPECT_EQ(danach, 2) << "nothing goes on in a program that ends";
}

TEST_F(BesteZeitenFenster, MisslungenesSpeichernVerliertNichts) {
    schreibschutz(true);
    oeffnen(1);
    f.btext_name[0].eingeben("Jochen");
    t.maschine.laufen(10000);
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{t.p.txt.meldung[21], "Fehlermeldung"}})) << "only once";
    EXPECT_TRUE(offen());
    EXPECT_TRUE(f.wird_gespeichert(1));
    EXPECT_EQ(tabelle, bestzeiten{});
    schreibschutz(false);
    f.Command1.klicken();
    EXPECT_EQ(tabelle.eintrag(1, 1).name, "Jochen");
    EXPECT_EQ(danach, 1);
}

}  // namespace
}  // namespace tarvel
