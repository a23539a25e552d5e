#include "core/speichernfenster.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Speichernfenster : public test::ProgrammProbe {
protected:
    void speichern_als(const char* name) {
        t.p.form1.Command5.klicken();
        ausfuehren(name);
    }
    void ausfuehren(const char* name) {
        s.name.eingeben(name);
        s.Command1.klicken();
    }

    speichernfenster& s = t.p.speichernfenster;
};

TEST_F(Speichernfenster, SpeichertUnterEinemNamenUndLaedtWieder) {
    t.p.form1.fahrer[0].eingeben("Käthe");
    speichern_als("Klubabend");
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::speichernfenster));
    EXPECT_TRUE(t.maschine.datei_da("Einstellungen/Klubabend.ini"));
    EXPECT_EQ(t.p.form1.Label6.text(), "Einstellungsdatei: Klubabend.ini");
    t.p.form1.fahrer[0].eingeben("Jörg");
    t.maschine.datei_schreiben("auto-1.csv", "");

    t.maschine.datei_schreiben("Einstellungen/notiz.txt", "");
    t.maschine.datei_schreiben("Einstellungen/klub.ini.tarvel-neu", "");  // left over, and none of the operator's
    t.p.form1.Command7.klicken();
    EXPECT_EQ(s.titel.text(), "Einstellungen laden");
    s.alle_dateien.umschalten();
    EXPECT_EQ(s.dateiliste.zeilen().size(), 3U);
    s.alle_dateien.umschalten();
    EXPECT_EQ(s.dateiliste.zeilen(), (std::vector<std::string>{"Klubabend.ini", "einstellungen.ini"}));
    s.dateiliste.doppelklicken(0);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::speichernfenster));
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "Käthe");
    EXPECT_TRUE(t.maschine.datei_da("auto-1.csv")) << "only the start of the program tidies up";
}

TEST_F(Speichernfenster, FragtVorDemUeberschreiben) {
    const std::string alt = t.maschine.datei_lesen("Einstellungen/einstellungen.ini");
    t.p.form1.massstab.eingeben("32");
    speichern_als("einstellungen.ini");
    ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(t.maschine.datei_lesen("Einstellungen/einstellungen.ini"), alt);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::speichernfenster));
    t.maschine.antwort = true;
    s.Command1.klicken();
    EXPECT_NE(t.maschine.datei_lesen("Einstellungen/einstellungen.ini"), alt);
}

TEST_F(Speichernfenster, FalscheDateiWirdNichtGeladenUndNichtUeberschrieben) {
    t.maschine.datei_schreiben("Einstellungen/fremd.ini", "[section]\r\nkey=1\r\n");
    t.p.form1.Command7.klicken();
    ausfuehren("fremd");
    EXPECT_EQ(letzte_meldung(), "Dies ist keine gültige Tarvel Datei. Die Einstellungen wurden nicht geladen");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::speichernfenster));
    EXPECT_EQ(t.maschine.datei_lesen("Einstellungen/fremd.ini"), "[section]\r\nkey=1\r\n");
    EXPECT_EQ(t.p.form1.Label6.text(), "Einstellungsdatei: einstellungen.ini");
    ausfuehren("gibt es nicht");
    EXPECT_EQ(letzte_meldung(), "Die Datei gibt es nicht.ini ist nicht vorhanden.");
}

TEST_F(Speichernfenster, NamenFuehrenNichtAusDemOrdner) {
    for (const char* name : {"", "   ", "../fremd", "a\\b", "c:x", "was?", ".ini", "a\tb"}) {
        speichern_als(name);
        EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::speichernfenster)) << name;
        s.Command2.klicken();
    }
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 8U);
    EXPECT_FALSE(t.maschine.datei_da("fremd.ini"));
    speichern_als("Klub 2.0");
    EXPECT_TRUE(t.maschine.datei_da("Einstellungen/Klub 2.0.ini")) << "a dot in the name is no extension yet";
    speichern_als("klub.INI");
    EXPECT_TRUE(t.maschine.datei_da("Einstellungen/klub.INI"));
}

TEST_F(Speichernfenster, FelderAusserhalbIhrerGrenzenMachenKeineUngueltigeDatei) {
    t.p.form1.lspur[0].eingeben("0");
    t.p.form1.renndauer.eingeben("-3");
    t.p.form1.massstab.eingeben("0");
    speichern_als("grenzen");
    t.p.form1.Command7.klicken();
    ausfuehren("grenzen");
    EXPECT_EQ(letzte_meldung(), "");
}

}  // namespace
}  // namespace tarvel
