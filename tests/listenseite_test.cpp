#include "optionen/listenseite.h"

#include "core/ordnerblick.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using namen = std::vector<std::string>;

class Listenseite : public test::ProgrammProbe {
protected:
    Listenseite() {
        t.p.form1.Command8.klicken();
        t.maschine.meldungen_gezeigt.clear();
    }

    void hinzufuegen(std::string_view name) {
        fahrer.name.eingeben(name);
        fahrer.hinzufuegen.klicken();
    }
    void uebernehmen() { t.p.einstellungsfenster.Command1.klicken(); }
    /// Presses the button that opens the window for a list's file, and names the file.
    void mit_datei(befehl& knopf, std::string_view datei) {
        knopf.klicken();
        t.p.fahrerspeichernfenster.name.eingeben(datei);
        t.p.fahrerspeichernfenster.Command1.klicken();
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::fahrerspeichernfenster));
    }
    void bild_anlegen(const std::string& name, const std::string& bytes = "\xFF\xD8\xFF\xE0 Bild") {
        t.maschine.datei_schreiben(name, bytes);
    }

    listenseite& fahrer = t.p.einstellungsfenster.fahrerseite;
    bildwahl& bilder = t.p.fahrerbild_laden;
};

TEST_F(Listenseite, NeueNamenGeltenErstNachDemUebernehmen) {
    EXPECT_TRUE(t.p.einstellungsfenster.seitenrahmen[einstellungsfenster::seite_fahrer].sichtbar());
    hinzufuegen(" Käthe ");
    hinzufuegen("");
    hinzufuegen("{pic}");
    fahrer.namen.auswaehlen(0);
    fahrer.entfernen.klicken();
    hinzufuegen("Fahrer 3");  // is there already
    EXPECT_EQ(fahrer.namen.zeilen(), (namen{"Fahrer 2", "Fahrer 3", "Fahrer 4", "Fahrer 5", "Fahrer 6", "Käthe"}));
    EXPECT_EQ(fahrer.namen.markiert(), 1);
    fahrer.anderes_bild.klicken();
    bilder.Command2.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::fahrerbild_laden));
    EXPECT_EQ(t.p.form1.fahrer[0].eintraege().at(1), "Fahrer 1");
    uebernehmen();
    EXPECT_EQ(t.p.form1.fahrer[0].eintraege().back(), "Käthe");
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "Fahrer 1") << "who is chosen stays";
    EXPECT_NE(t.maschine.datei_lesen("Listen/fahrer.lst").find("K\xE4the\r\n{pic}\r\n\r\n\r\n"), std::string::npos)
        << "no picture was chosen";
}

TEST_F(Listenseite, MehrAlsHundertNamenNimmtKeineListe) {
    fahrer.alle_loeschen.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt, (meldungen{{"Alle Namen der Liste löschen?", "Hinweis"}}));
    EXPECT_EQ(fahrer.namen.zeilen().size(), 6U) << "the answer was no";
    t.maschine.antwort = true;
    fahrer.alle_loeschen.klicken();
    for (int nummer = 1; nummer <= 100; ++nummer) {
        hinzufuegen("F" + std::to_string(nummer));
    }
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{});
    hinzufuegen("F101");
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{"Fahrerliste voll.", "Hinweis"}}));
    EXPECT_EQ(fahrer.namen.zeilen().size(), 100U);
    t.p.einstellungsfenster.Command2.klicken();
    EXPECT_EQ(t.p.fahrerliste.eintraege().size(), 6U);
}

TEST_F(Listenseite, ListenLassenSichSpeichernUndLaden) {
    hinzufuegen("Anna");
    mit_datei(fahrer.Liste_speichern, "klub");
    EXPECT_EQ(t.p.fahrerspeichernfenster.titel.text(), "Fahrerliste speichern");
    EXPECT_TRUE(t.maschine.datei_da("Listen/klub.lst"));
    t.maschine.antwort = true;
    fahrer.alle_loeschen.klicken();
    mit_datei(fahrer.Liste_laden, "klub.lst");
    EXPECT_EQ(fahrer.namen.zeilen().back(), "Anna");
    EXPECT_EQ(t.p.form1.fahrer[0].eintraege().size(), 7U) << "the main window's choice stays until it is taken over";

    t.maschine.datei_schreiben("Listen/falsch.lst", "Fahrzeugliste:\r\n{pic}\r\n{ende}\r\n");
    mit_datei(fahrer.Liste_laden, "falsch.lst");
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{t.p.txt.meldung[8], "Fehlermeldung"}}));
    EXPECT_EQ(fahrer.namen.zeilen().size(), 6U) << "the built-in names stand in";
}

TEST_F(Listenseite, MisslungenesSchreibenWirdGemeldetUndNachgeholt) {
    t.maschine.nicht_schreibbar = "fahrer.lst";
    const std::string vorher = t.maschine.datei_lesen("Listen/fahrer.lst");
    fahrer.name.eingeben("Anna");  // typed only: it counts as well
    uebernehmen();
    EXPECT_EQ(t.maschine.meldungen_gezeigt, (meldungen{{t.p.txt.meldung[3], "Fehlermeldung"}}));
    EXPECT_EQ(t.maschine.datei_lesen("Listen/fahrer.lst"), vorher);
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::einstellungen));
    EXPECT_EQ(fahrer.namen.zeilen().back(), "Anna") << "nothing the operator has typed is lost";
    t.maschine.nicht_schreibbar.clear();
    uebernehmen();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::einstellungen));
    EXPECT_NE(t.maschine.datei_lesen("Listen/fahrer.lst").find("Anna"), std::string::npos);
}

TEST_F(Listenseite, GeltendeListeIstBeimNaechstenStartDa) {
    mit_datei(fahrer.Liste_speichern, "klub");
    hinzufuegen("Łukas");  // no sign of the files' code page
    EXPECT_EQ(fahrer.namen.zeilen().back(), "?ukas") << "shown as it will be kept";
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text,
              "Zeichen, die in keiner Datei stehen können, sind ersetzt:\nŁukas – ?ukas");
    uebernehmen();
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.fahrerliste.eintraege().back().name, "?ukas");
}

TEST_F(Listenseite, StandardbildGehoertAllen) {
    bild_anlegen("pictures/nopic.jpg", "\xFF\xD8\xFF Standard");
    bild_anlegen("pictures/foto.jpg");
    hinzufuegen("nopic");
    hinzufuegen("kein Fahrer");
    EXPECT_EQ(fahrer.namen.zeilen().back(), "nopic") << "the standard entry is in every list already";
    fahrer.anderes_bild.klicken();
    bilder.datei.auswaehlen(0);
    bilder.Command1.klicken();
    EXPECT_EQ(t.maschine.datei_lesen("pictures/nopic.jpg"), "\xFF\xD8\xFF Standard");
    EXPECT_EQ(fahrer.vorschau.datei(), "pictures/nopic_.jpg");
}

TEST_F(Listenseite, BildWirdUnterDemNamenDesEintragsKopiert) {
    bild_anlegen("kamera/foto 17.JPG");
    bild_anlegen("kamera/text.jpg", "kein Bild");
    hinzufuegen("A/B: \"Ä\"");
    fahrer.anderes_bild.klicken();
    bilder.ordner.doppelklicken(0);
    const auto& ordner = bilder.ordner.zeilen();
    bilder.ordner.doppelklicken(static_cast<int>(std::find(ordner.begin(), ordner.end(), "kamera") - ordner.begin()));
    EXPECT_EQ(bilder.datei.zeilen(), (namen{"foto 17.JPG", "text.jpg"}));
    EXPECT_FALSE(bilder.Command1.aktiviert());
    bilder.datei.auswaehlen(1);
    bilder.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt,
              (meldungen{{"Die Datei ist kein Bild in einem Format, das das Programm liest (JPEG, GIF).", "Hinweis"}}));
    bilder.datei.auswaehlen(0);
    EXPECT_TRUE(pfad_aus_utf8(bilder.vorschau.datei()) == t.maschine.ordner() / "kamera/foto 17.JPG");
    bilder.Command1.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::fahrerbild_laden));
    EXPECT_EQ(fahrer.vorschau.datei(), "pictures/A_B_ _Ä_.jpg");
    EXPECT_TRUE(t.maschine.datei_da("pictures/A_B_ _Ä_.jpg"));
    fahrer.kein_bild.klicken();
    EXPECT_EQ(fahrer.vorschau.datei(), "pictures/nopic.jpg");
}

TEST_F(Listenseite, HauptfensterZeigtDieBilderDerSpuren) {
    t.p.einstellungsfenster.Command2.klicken();
    bild_anlegen("pictures/Fahrer 2.jpg");
    bild_anlegen("pictures/nopic.jpg");
    bild_anlegen("slotcars/Viper.jpg");
    form1& haupt = t.p.form1;
    EXPECT_EQ(haupt.fahrerbild[1].datei(), "pictures/nopic.jpg");
    EXPECT_FALSE(haupt.autobild[0].sichtbar()) << "vehicle pictures are not wanted";
    haupt.Command13.klicken();
    haupt.Command10.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt,
              (meldungen{{"Zugeordnete Bilder: 1", "Hinweis"}, {"Zugeordnete Bilder: 1", "Hinweis"}}));
    EXPECT_EQ(haupt.fahrerbild[1].datei(), "pictures/Fahrer 2.jpg");
    haupt.fahrer[0].eingeben("Fahrer 2");
    EXPECT_EQ(haupt.fahrerbild[0].datei(), "pictures/Fahrer 2.jpg");
    haupt.fahrer[0].eingeben("ein Gast");
    EXPECT_EQ(haupt.fahrerbild[0].datei(), "pictures/nopic.jpg");
    haupt.auto_[3].eingeben("Viper");
    EXPECT_EQ(haupt.autobild[3].datei(), "slotcars/Viper.jpg");
    t.p.einst.fahrzeugbild_an = true;
    haupt.bilder_anzeigen();
    EXPECT_TRUE(haupt.autobild[3].sichtbar());
    EXPECT_NE(t.maschine.datei_lesen("Listen/fahrer.lst").find("{pic}\r\n\r\nFahrer 2\r\n"), std::string::npos)
        << "the pictures are there at the next start";
}

}  // namespace
}  // namespace tarvel
