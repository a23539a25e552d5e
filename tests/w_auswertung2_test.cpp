#include "results/w_auswertung2.h"

#include "competition/wettkampftabelle.h"
#include "results/ergebnissortierung.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/programm_probe.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using textzeilen = std::vector<std::string>;

class Ergebnisbetrachter : public test::ProgrammProbe {
protected:
    void ablegen(const std::string& name, const textzeilen& zeilen) {
        ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Ergebnisse\\Tagesrennen\\" + name, zeilen));
    }
    void tag_ablegen(const std::string& name, const textzeilen& zeilen) { ablegen(name, test::tageszeilen(zeilen)); }
    textzeilen gelesen(const std::string& name) {
        return t.p.ablage.zeilen_lesen("Ergebnisse\\Tagesrennen\\" + name, 20000).value_or(textzeilen{});
    }
    void zeigen(const std::string& name) { w.datei_zeigen("Ergebnisse\\Tagesrennen\\" + name); }
    void waehlen(const std::string& name) {
        const auto& namen = w.File1.zeilen();
        w.File1.auswaehlen(static_cast<int>(std::find(namen.begin(), namen.end(), name) - namen.begin()));
    }
    void speichern_als(const char* name) {
        w.Command16.klicken();
        w.Text3.eingeben(name);
        w.Command17.klicken();
    }
    std::string namen() const {
        std::string alle;
        const std::size_t name = w.Label_kopf.text().starts_with("Pl.") ? 5 : 0;
        for (const std::string& zeile : w.auswertung_schoen.zeilen()) {
            alle += zeile.size() > 5 ? (name > 0 ? zeile.substr(0, 2) : "") + zeile.substr(name, 1) + " " : "| ";
        }
        return alle;
    }

    const textzeilen abend{"A;Anna; 7;70.25;00:08,000;00:58,000", "B;Ben; 9;90.00;00:07,500;01:09,000",
                           "A;Cem; 8;80.00;00:07,900;01:01,000", "A;Anna; 3;30.00;00:07,800;00:24,000"};
    w_auswertung2& w = t.p.w_auswertung2;
};

TEST_F(Ergebnisbetrachter, OeffnetWasGewaehltIst) {
    tag_ablegen("mai.csv", abend);
    ablegen("kaputt.csv", {"Tarvel", "TV-ERD", "x"});
    t.p.wettkampf1.oeffnen();
    t.p.wettkampf1.Command25.klicken();
    ASSERT_TRUE(offen(fenstername::w_auswertung2));
    EXPECT_EQ(w.File1.zeilen(), textzeilen{}) << "no single race has been saved";
    w.Command4.klicken();
    EXPECT_EQ(letzte_meldung(), "Keine Datei ausgewählt!");
    w.Command19[1].klicken();
    waehlen("mai.csv");
    w.Command2.klicken();  // to nothing
    EXPECT_EQ(w.Label_datei.text(), "mai.csv  ·  Tagesrennen  ·  4 Einträge");
    EXPECT_EQ(namen(), "A B C A ") << "as they were driven";
    EXPECT_TRUE(w.Label_fuehrung.text().starts_with(
        "In Führung: Klasse\u00a0A: Anna, 10 Runden  ·  Klasse\u00a0B: Ben, 9 Runden.  „gleiche"))
        << w.Label_fuehrung.text() << ": all that each has driven";
    waehlen("kaputt.csv");
    w.Command4.klicken();
    EXPECT_EQ(letzte_meldung(), "Dateifehler, Ergebnisse können nicht angezeigt werden!");
    EXPECT_EQ(namen(), "A B C A ");
    ablegen("rennen.csv", test::rennzeilen(test::rennen_mit({"Anna"}, 3, "14:00:00")));
    w.Command19[1].klicken();
    waehlen("rennen.csv");
    w.Command2.klicken();
    EXPECT_EQ(letzte_meldung(), "Ergebnisse anderen Typs können nicht hinzugefügt werden!");
    EXPECT_EQ(namen(), "A B C A ");
    w.Dir1.doppelklicken(0);
    EXPECT_EQ(w.Label_ordner.text(), "Ergebnisse");
    EXPECT_NE(w.Dir1.zeilen().front(), "..") << "no way out of the results";
}

TEST_F(Ergebnisbetrachter, ZeigtAutomatischeNurWoNichtsGespeichertIst) {
    const auto oeffnen = [this] {
        t.p.form1.Command18.klicken();
        textzeilen dateien = w.File1.zeilen();
        w.schliessen();
        return dateien;
    };
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Ergebnisse\\Papierkorb\\auto-0.csv", {"x"}));
    EXPECT_EQ(oeffnen(), textzeilen{"auto-0.csv"}) << "moved there as the program started";
    EXPECT_EQ(w.Label_ordner.text(), "automatisch gesichert");
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Ergebnisse\\auto-Einzelrennen\\auto-1.csv", {"x"}));
    EXPECT_EQ(oeffnen(), textzeilen{"auto-1.csv"});
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Ergebnisse\\Einzelrennen\\Finale.csv", {"x"}));
    EXPECT_EQ(oeffnen(), textzeilen{"Finale.csv"});
}

TEST_F(Ergebnisbetrachter, SortiertJedeKlasseUndZeigtDieGewaehlten) {
    tag_ablegen("mai.csv", abend);
    zeigen("mai.csv");
    EXPECT_TRUE(w.Check1[0].sichtbar() && w.Check1[1].gesetzt() && !w.Check1[2].sichtbar());
    w.Command3.klicken();
    EXPECT_EQ(namen(), "1.C 2.A 3.A 1.B ");
    w.opt_sortieren_nach[2].sichtbar(true);
    w.Command22.klicken();
    w.opt_sortieren_nach[2].umschalten();
    w.Check1[1].umschalten();
    w.Command1.klicken();
    EXPECT_EQ(namen(), "1.A 2.C 3.A ");
    w.Check1[1].umschalten();
    w.Command6.klicken();
    w.Command17.klicken();
    EXPECT_EQ(gelesen("mai-A.csv").size(), 4U) << "in a file of its own";
    speichern_als("alle");
    EXPECT_EQ(gelesen("alle.csv").size(), 5U) << "what is not shown is not lost";
    EXPECT_EQ(gelesen("alle.csv").at(1), abend[3]) << "without its place";
    w.Command8.klicken();
    EXPECT_EQ(namen(), "1.A 2.C 3.A 1.B ");
    w.Check1[0].umschalten();
    w.Command1.klicken();
    zeigen("mai.csv");
    EXPECT_EQ(namen(), "A B C A ") << "classes are left out of one file, and a place comes with sorting";
}

TEST_F(Ergebnisbetrachter, AddiertFahrerMitUndOhneKlasse) {
    tag_ablegen("mai.csv", abend);
    tag_ablegen("juni.csv", {"B;Anna; 100;1000.00;00:07,700;59:00,000"});
    for (const bool mit_klasse : {true, false}) {
        zeigen("mai.csv");
        waehlen("juni.csv");
        w.Command2.klicken();
        t.maschine.antwort = mit_klasse;
        w.Command20.klicken();
        EXPECT_EQ(t.maschine.fragen_gestellt.back(),
                  (test::test_plattform::meldung{"Klasse in den Vergleich einbeziehen?", "Vergleichsmethode wählen"}));
        EXPECT_EQ(t.maschine.angebote, mit_klasse ? 1 : 2) << "Enter leaves the classes apart";
        EXPECT_EQ(namen(), mit_klasse ? "1.A 2.C 1.A 2.B " : "1.A 2.C 1.B ");
        EXPECT_FALSE(w.Label_fuehrung.sichtbar()) << "the places say it";
        EXPECT_EQ(w.Label_datei.text().find("ohne Klassen") == std::string::npos, mit_klasse);
    }
    EXPECT_NE(w.auswertung_schoen.zeilen().front().find("1:00:22,000"), std::string::npos);
}

TEST_F(Ergebnisbetrachter, KorrekturOhneAenderungLaesstDieDateiByteFuerByte) {
    const std::string krumm = "A;Anna;7 ;70,250;0:08,0;58,000;mehr";
    tag_ablegen("mai.csv", {krumm});
    zeigen("mai.csv");
    w.Command18.klicken();
    EXPECT_EQ(letzte_meldung(), "Bitte den zu berichtigenden Eintrag auswählen.");
    w.auswertung_schoen.auswaehlen(0);
    w.Command18.klicken();
    ASSERT_TRUE(w.korrektur.offen());
    w.korrektur.Command14.klicken();
    speichern_als("gleich");
    EXPECT_EQ(gelesen("gleich.csv").at(1), krumm);
    w.auswertung_schoen.auswaehlen(0);
    w.Command18.klicken();
    w.korrektur.aus_runden[0].eingeben("acht");
    w.korrektur.Command14.klicken();
    EXPECT_TRUE(w.korrektur.offen()) << "no number";
    w.korrektur.aus_runden[0].eingeben("8");
    for (const char* keine_zeit : {"8,5000", "8s", "1:2:3:4", "75,000", "8,", ":8,5"}) {
        w.korrektur.aus_beste[0].eingeben(keine_zeit);
        w.korrektur.Command14.klicken();
        EXPECT_TRUE(w.korrektur.offen()) << keine_zeit;
    }
    w.korrektur.aus_beste[0].eingeben("8,5");
    w.korrektur.w_aus_min.eingeben("");
    w.korrektur.Command14.klicken();
    EXPECT_TRUE(w.korrektur.offen()) << "no minutes are not 0 of them";
    w.korrektur.w_aus_min.eingeben("01");
    w.korrektur.Command14.klicken();
    speichern_als("anders.csv");
    EXPECT_EQ(gelesen("anders.csv").at(1), "A;Anna; 8;70,250;00:08,500;01:58,000;mehr");
    EXPECT_EQ(gelesen("mai.csv").at(1), krumm) << "the source";
    w.Command5.klicken();
    EXPECT_FALSE(offen(fenstername::w_auswertung2)) << "all is saved";
}

TEST_F(Ergebnisbetrachter, KorrekturenGehenNichtUngefragtVerloren) {
    tag_ablegen("mai.csv", abend);
    zeigen("mai.csv");
    w.auswertung_schoen.auswaehlen(0);
    w.Command18.klicken();
    w.korrektur.Text2.eingeben("Anna-Lena");
    w.korrektur.cbo_klasse.eingeben("C");
    w.korrektur.Command14.klicken();
    t.maschine.antwort = false;
    w.Command5.klicken();
    zeigen("mai.csv");
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 2U);
    EXPECT_EQ(w.auswertung_schoen.zeilen().front().substr(0, 9), "Anna-Lena");
    EXPECT_EQ(w.Check1[2].text(), "C");
    t.maschine.antwort = true;
    w.Command5.klicken();
    EXPECT_FALSE(offen(fenstername::w_auswertung2));
}

TEST_F(Ergebnisbetrachter, KorrekturenLassenSichZuruecknehmenUndWiederholen) {
    ablegen("mai.csv", test::tageszeilen(abend));
    zeigen("mai.csv");
    EXPECT_FALSE(w.Command_zurueck.bedienbar() || w.Command_wieder.bedienbar());
    std::vector<textzeilen> staende{w.auswertung_schoen.zeilen()};
    for (const char* runden : {"9", "9", "11"}) {  // the second changes nothing
        w.auswertung_schoen.auswaehlen(0);
        w.Command18.klicken();
        EXPECT_FALSE(w.Command_zurueck.bedienbar()) << "not within a correction";
        w.korrektur.aus_runden[0].eingeben(runden);
        w.korrektur.Command14.klicken();
        if (w.auswertung_schoen.zeilen() != staende.back()) {
            staende.push_back(w.auswertung_schoen.zeilen());
        }
    }
    ASSERT_EQ(staende.size(), 3U);
    w.Command3.klicken();  // another order
    w.Command_zurueck.klicken();
    EXPECT_EQ(w.auswertung_schoen.zeilen(), staende[1]);
    w.Command_zurueck.klicken();
    EXPECT_EQ(w.auswertung_schoen.zeilen(), staende[0]);
    EXPECT_FALSE(w.Command_zurueck.bedienbar());
    speichern_als("gleich.csv");
    EXPECT_EQ(gelesen("gleich.csv"), gelesen("mai.csv"));
    w.Command_wieder.klicken();
    EXPECT_EQ(w.auswertung_schoen.zeilen(), staende[1]);
    t.maschine.antwort = false;
    w.Command5.klicken();
    EXPECT_TRUE(offen(fenstername::w_auswertung2)) << "that is not saved";
    waehlen("mai.csv");
    w.Command2.klicken();
    EXPECT_FALSE(w.Command_zurueck.bedienbar()) << "other lines have come";
    w.Command5.klicken();
    EXPECT_TRUE(offen(fenstername::w_auswertung2));
}

TEST_F(Ergebnisbetrachter, KorrekturEinesWettkampfsFolgtDenSpuren) {
    auto wettkampf = test::wettkampf_mit(wettkampf_modus::rotation, 3, {1, 2});
    spuren<fahrt> fahrten;
    fahrten[1] = {12, 98765, 12000, 8001};
    wettkampf.ergebnis_eintragen(fahrten);
    ablegen("pokal.csv", tabelle_schreiben(wettkampf, {}, trennzeichen_standard));
    for (const int spur : alle_spuren) {
        t.p.form1.lspur[feld_index(spur)].eingeben("12,5");
    }
    t.p.form1.einrichtung_lesen();
    zeigen("pokal.csv");
    w.auswertung_schoen.auswaehlen(0);
    w.Command18.klicken();
    w.korrektur.aus_runden[1].eingeben("14");
    EXPECT_EQ(w.korrektur.aus_runden[0].text(), "14");
    w.korrektur.meter_berechnen.klicken();
    w.korrektur.Command14.klicken();
    speichern_als("neu");
    EXPECT_EQ(w.Label_datei.text().substr(0, 7), "neu.csv") << "what is in memory now";
    const auto felder = felder_teilen(gelesen("neu.csv").at(2), ";");
    EXPECT_EQ((textzeilen{felder[2], felder[3], felder[9], felder[10], felder[16], felder[22]}),
              (textzeilen{"14", "14", "175", "175", "00:08,001", "01:38,765"}));
}

TEST_F(Ergebnisbetrachter, StartnummernHeissenNichtPlatz) {
    auto runde = test::wettkampf_mit(wettkampf_modus::jeder_gegen_jeden, 2, {1, 2});
    spuren<fahrt> fahrten;
    fahrten[1] = {7, 98765, 0, 8001};
    fahrten[2] = {12, 98765, 0, 8001};
    runde.ergebnis_eintragen(fahrten);
    ablegen("runde.csv", tabelle_schreiben(runde, {}, trennzeichen_standard));
    zeigen("runde.csv");
    EXPECT_TRUE(w.Label_kopf.text().starts_with("Nr.")) << "the second has won";
    w.Command3.klicken();
    EXPECT_TRUE(w.Label_kopf.text().starts_with("Pl."));
}

TEST_F(Ergebnisbetrachter, EineZeileAlleinAendertSichBeimAddierenNicht) {
    const auto wettkampf = test::wettkampf_mit(wettkampf_modus::rotation, 2, {1, 2});
    auto zeilen = tabelle_schreiben(wettkampf, {}, trennzeichen_standard);
    zeilen.erase(zeilen.begin() + 3);
    ablegen("allein.csv", zeilen);
    zeigen("allein.csv");
    w.Command20.klicken();
    speichern_als("danach");
    EXPECT_EQ(gelesen("danach.csv"), gelesen("allein.csv"));
}

TEST_F(Ergebnisbetrachter, MehrAls10000ZeilenWerdenGesagtUndNieUeberschrieben) {
    tag_ablegen("lang.csv", textzeilen(10000, abend[0]));
    tag_ablegen("voll.csv", textzeilen(9999, abend[1]));
    t.maschine.antwort = true;
    zeigen("voll.csv");
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    zeigen("lang.csv");
    EXPECT_NE(letzte_meldung().find("mehr als 10000 Zeilen"), std::string::npos);
    speichern_als("lang");
    EXPECT_NE(letzte_meldung().find("wird nicht überschrieben"), std::string::npos);
    EXPECT_EQ(gelesen("lang.csv").size(), 10001U);
    w.Command12.klicken();
    waehlen("voll.csv");
    w.Command2.klicken();
    EXPECT_NE(letzte_meldung().find("nicht hinzugefügt"), std::string::npos);
}

TEST_F(Ergebnisbetrachter, UeberschreibtNichtsUngesagt) {
    tag_ablegen("mai.csv", abend);
    tag_ablegen("juni.csv", abend);
    zeigen("mai.csv");
    t.maschine.antwort = true;
    const auto frage = [this] {
        w.Command17.klicken();
        return t.maschine.fragen_gestellt.back().text;
    };
    waehlen("juni.csv");
    w.Command16.klicken();
    EXPECT_TRUE(frage().starts_with("mai.csv\n")) << "what is open, whatever is marked";
    tag_ablegen("mai.csv", {abend[0]});
    w.Command16.klicken();
    w.Text3.eingeben("mai");
    EXPECT_NE(frage().find("wurde geändert"), std::string::npos) << "a race has come in meanwhile";
    w.Command16.klicken();
    EXPECT_NE(frage().find("bereits vorhanden"), std::string::npos) << "as it has just been saved";
}

TEST_F(Ergebnisbetrachter, SpeichertNurUnterBrauchbarenNamen) {
    tag_ablegen("mai.csv", abend);
    zeigen("mai.csv");
    for (const char* name : {" ", "../aus", "a:b", ".csv"}) {
        const std::size_t bisher = t.maschine.meldungen_gezeigt.size();
        speichern_als(name);
        EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), bisher + 1) << name;
        w.Command12.klicken();
    }
    t.maschine.nicht_schreibbar = "neu.csv";
    speichern_als("neu");
    EXPECT_EQ(letzte_meldung(), "Datei kann nicht geschrieben werden!");
    t.maschine.antwort = false;
    w.Text3.eingeben("mai");
    w.Command17.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U) << "an old file";
    EXPECT_EQ(gelesen("mai.csv"), test::tageszeilen(abend));
}

TEST_F(Ergebnisbetrachter, ZeigtRennenAlsBlattUndVerlauf) {
    ablegen("eins.csv", test::rennzeilen(test::rennen_mit({"Anna", "Ben"}, 3, "14:00:00")));
    ablegen("zwei.csv", test::rennzeilen(test::rennen_mit({"Cem", "Ben"}, 5, "15:00:00")));
    zeigen("eins.csv");
    EXPECT_FALSE(w.cbo_rennen.sichtbar());
    waehlen("zwei.csv");
    w.Command2.klicken();
    w.Command10.klicken();
    EXPECT_EQ(w.auswertung_schoen.zeilen().at(5), "Rennen            1          1          2          2");
    int gezeichnet = 0;
    w.zeichnen = [&] { ++gezeichnet; };
    w.Command_blick[1].klicken();
    ASSERT_TRUE(w.rennen());
    EXPECT_EQ(w.rennen()->spuren.at(0).fahrer, "Anna");
    w.cbo_rennen.waehlen(1);
    EXPECT_EQ(w.rennen()->spuren.at(0).fahrer, "Cem");
    EXPECT_EQ(w.rennen()->spuren.at(0).platz, 1);
    w.opt_sortieren_nach[0].umschalten();
    EXPECT_EQ(w.kopf(), "Rennen 21.11.2026, Ende 15:00:00  ·  gewertet nach Runden")
        << "as long as the places are those";
    w.Command3.klicken();
    EXPECT_EQ(w.kopf(), "Rennen 21.11.2026, Ende 15:00:00  ·  gewertet nach Metern");
    EXPECT_EQ(w.blatt_datei(), "Ergebnisse\\Tagesrennen\\eins Ergebnisblatt 2");
    w.Command_blick[3].klicken();
    EXPECT_EQ(w.vergleich().size(), 3U);
    EXPECT_EQ(gezeichnet, 4);
    w.Command20.klicken();
    EXPECT_FALSE(w.Command_blick[1].aktiviert()) << "sums are no race";
    EXPECT_NE(w.Label_datei.text().find("gleiche Fahrer addiert"), std::string::npos) << "nothing about classes";
}

TEST_F(Ergebnisbetrachter, EinRennenHatSeinePlaetzeUndEinAutomatischesSeineZeit) {
    rennergebnis lauf = test::rennen_mit({"Anna", "Ben"}, 3, "14:00:00");
    lauf.spuren[0].meter += 50;  // on a longer lane, and later
    lauf.spuren[0].gesamtzeit += 2000;
    const std::string ordner = "Ergebnisse\\Papierkorb\\";
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(ordner + "auto-21112026-14032.csv", test::rennzeilen(lauf)));
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(ordner + "auto-nur so.csv", test::rennzeilen(lauf)));
    w.datei_zeigen(ordner + "auto-21112026-14032.csv");
    EXPECT_EQ(namen(), "2.A 1.B ") << "those of the race, which counts the time";
    EXPECT_TRUE(w.Label_datei.text().starts_with("21.11.2026 14:03, automatisch gesichert  ·  Einzelrennen"));
    EXPECT_EQ(w.Label_ordner.text(), "automatisch gesichert") << "nobody has thrown it away";
    EXPECT_EQ(w.anzeigename(w.File1.zeilen().front()), "21.11.2026 14:03");
    w.Command16.klicken();
    EXPECT_EQ(w.Text3.text(), "21112026-14032.csv");
    w.Command12.klicken();
    w.Command3.klicken();
    EXPECT_EQ(namen(), "1.A 2.B ") << "the table counts the metres";
    waehlen("auto-nur so.csv");
    w.Command2.klicken();
    EXPECT_EQ(namen(), "A B A B ") << "two races have no places yet";
    EXPECT_EQ(w.anzeigename("auto-nur so.csv"), "auto-nur so.csv");
    rennergebnis zu_dritt = test::rennen_mit({"Anna", "Ben", "Cem"}, 3, "15:00:00");
    zu_dritt.spuren[0].runden.resize(3);
    zu_dritt.spuren[1].runden.resize(2);
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(ordner + "drei.csv", test::rennzeilen(zu_dritt)));
    w.datei_zeigen(ordner + "drei.csv");
    EXPECT_EQ(namen(), "2.A 3.B 1.C ");
    w.Command3.klicken();
    speichern_als("sortiert");
    EXPECT_FALSE(t.p.ablage.gibt_es(ordner + "sortiert.csv")) << "there it would go with time";
    w.datei_zeigen("Ergebnisse\\Einzelrennen\\sortiert.csv");
    EXPECT_EQ(namen(), "1.C 2.A 3.B ") << "each his own, in whatever order they stand";
}

TEST_F(Ergebnisbetrachter, DetailsUndDebugfensterGehenEinUndAus) {
    ablegen("eins.csv", test::rennzeilen(test::rennen_mit({"Anna", "Ben"}, 3, "14:00:00")));
    zeigen("eins.csv");
    EXPECT_EQ(w.auswertung_schoen.zeilen().size(), 2U);
    w.Command10.klicken();
    EXPECT_EQ(w.Command10.text(), "Rundendetails ausblenden");
    ASSERT_EQ(w.auswertung_schoen.zeilen().size(), 2U + 2 + 4);
    EXPECT_EQ(w.auswertung_schoen.zeilen().back(), "3.        00:08,100  00:08,200");
    w.auswertung_schoen.auswaehlen(3);
    w.Command18.klicken();
    EXPECT_EQ(letzte_meldung(), "Bitte den zu berichtigenden Eintrag auswählen.") << "a head";
    ablegen("leer.csv", {"Pokal", "Nr;Name", "TV-WKD"});
    zeigen("leer.csv");
    EXPECT_TRUE(w.auswertung_schoen.zeilen().empty()) << "details of nobody";
    zeigen("eins.csv");
    w.Command13.klicken();
    EXPECT_EQ(w.Command13.text(), "Debug-Fenster schiessen");
    EXPECT_EQ(w.debug().zeilenliste.zeilen(), gelesen("eins.csv"));
    w.debug().schliessen();
    EXPECT_EQ(w.Command13.text(), "Debug-Fenster öffnen");
}

}  // namespace
}  // namespace tarvel
