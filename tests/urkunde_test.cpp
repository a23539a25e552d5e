#include "results/urkunde.h"

#include <chrono>
#include <filesystem>

#include "results/urkundenfenster.h"
#include "results/w_auswertung2.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using w = urkundenwort;

TEST(Urkundenvorlage, EinFehlerNenntSeineZeileUndLeereWorteLassenDieZeileWeg) {
    EXPECT_EQ(vorlage_lesen(eingebaute_vorlage()).fehlerzeile, 0U);
    const auto fehler_in = [](const std::string& zeile) {
        return vorlage_lesen({"Tarvel Urkunde", "; x", "Fläche 0 0 210 297 #FFFFFF", zeile}).fehlerzeile;
    };
    EXPECT_EQ(fehler_in(" Text 1,5 2 30 8 6 mitte fett-serifen #C41E2A Platz {Platz} von {Teilnehmer} "), 0U);
    for (const char* zeile :
         {"Kreis 0 0 1 1", "Fläche 0 0 x 297 #FFFFFF", "Fläche 0 0 1 1 rot", "Fläche 0 0 1 1 #FFFFFF 3",
          "Text 1 2 30 8 6 oben normal #C41E2A x", "Text 1 2 30 8 6 mitte dick #C41E2A x",
          "Text 1 2 30 8 6 mitte normal #C41E2A {Gewicht}", "Text 1 2 30 8 6 mitte normal #C41E2A {Platz",
          "Text 1 2 30 8 900 mitte normal #C41E2A x", "Bild 0 0 9 9 rund #C9A227 1", "Rahmen 0 0 9 9 #12345G 1"}) {
        EXPECT_EQ(fehler_in(zeile), 4U) << zeile;
    }
    EXPECT_EQ(vorlage_lesen({}).fehlerzeile, 1U);
    EXPECT_EQ(vorlage_lesen({"Fläche 0 0 210 297 #FFFFFF"}).fehlerzeile, 1U) << "any other file";
    const auto element = vorlage_lesen({"Tarvel Urkunde", "Linie 1 2,5 3 0 #C41E2A 0.3"}).vorlage.at(0);
    EXPECT_EQ(element.y, 2.5);
    EXPECT_EQ(element.farbton, 0x2A1EC4U) << "lowest byte red";

    urkundenworte worte;
    worte[static_cast<std::size_t>(w::platz)] = "2";
    EXPECT_EQ(eingesetzt("Platz {Platz}!", worte), "Platz 2!");
    EXPECT_EQ(eingesetzt("{Platz} im {Verein}", worte), "");
}

TEST(Urkunde, SagtWasDasErgebnisSagt) {
    rennergebnis e = test::rennen_mit({"Anna", "Ben", "Carl"}, 10, "14:03:22");
    e.spuren[0].platz = 2;
    e.spuren[1].platz = 1;
    e.spuren[1].laenge = "10,5";
    e.spuren[2].platz = 3;
    e.spuren[2].disqualifiziert = true;
    const auto alle =
        urkunden_bilden(e, {{"SRC Nord", "Pokal", {}}, "Rennen", "Platz", "dabei", trennzeichen_standard, {}});
    ASSERT_EQ(alle.size(), 3U);
    EXPECT_EQ(alle[0].wort(w::fahrer), "Ben");
    EXPECT_EQ(alle[0].wort(w::platzwort), "1. Platz");
    EXPECT_EQ(alle[0].wort(w::beste), "8,200 s");
    EXPECT_EQ(alle[0].wort(w::gesamtzeit), "01:22,000");
    EXPECT_EQ(alle[0].wort(w::strecke), "10,5 m");
    EXPECT_EQ(alle[0].wort(w::teilnehmer), "3");
    EXPECT_EQ(alle[2].wort(w::platzwort), "dabei");
    EXPECT_EQ(alle[2].platz, 0);
    EXPECT_EQ(alle[2].wort(w::beste), "") << "a lap that does not count is none";
    EXPECT_EQ(streckenlaenge(e), "10 – 10,5 m");
    const auto englisch = urkunden_bilden(e, {{}, "Race", "Place #", "Took part", trennzeichen_standard, {}});
    EXPECT_EQ(englisch.at(0).wort(w::platzwort), "Place 1");
}

class Urkundenfenster : public test::ProgrammProbe {
protected:
    urkundenfenster& u = t.p.ergebnis_fluegel().urkunden;
    auswertung& a = t.p.auswertung;

    void rennen_fahren() {
        t.starten("Runden", "1", {1, 2, 3});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "12");
        t.maschine.laufen(200000);
        ASSERT_TRUE(offen(fenstername::auswertung));
    }
};

TEST_F(Urkundenfenster, WerOhneRundeIstBekommtNurAufWunschEine) {
    rennen_fahren();
    a.Command_urkunden.klicken();
    ASSERT_TRUE(offen(fenstername::urkunden));
    ASSERT_EQ(u.gewaehlte().size(), 2U);
    EXPECT_EQ(u.gewaehlte()[0].wort(w::fahrer), "Fahrer 1");
    EXPECT_EQ(u.gewaehlte()[0].wort(w::rennen), "Rundenrennen  ·  1 Runde");
    u.Command_zurueck.klicken();
    EXPECT_EQ(u.gezeigte()->wort(w::fahrer), "Fahrer 3") << "from the first back to the last";
    EXPECT_EQ(u.fahrer.markiert(), 2);
    u.dabei.umschalten();
    EXPECT_EQ(u.gewaehlte().size(), 3U);
    u.fahrer.doppelklicken(0);
    EXPECT_EQ(u.gewaehlte().size(), 2U);
    EXPECT_FALSE(u.dabei.gesetzt());
    u.Command_keiner.klicken();
    EXPECT_FALSE(u.Command_pdf.bedienbar());
    u.Command_alle.klicken();
    EXPECT_EQ(u.gewaehlte().size(), 3U);
    a.Command5.klicken();
    EXPECT_FALSE(offen(fenstername::urkunden)) << "goes with its result";
}

TEST_F(Urkundenfenster, DieNamenDesVereinsBleibenUndStehenUeberDemBlatt) {
    rennen_fahren();
    a.Command_urkunden.klicken();
    u.verein.eingeben(" SRC Nord ");
    u.veranstaltung.eingeben("Pokal");
    EXPECT_EQ(u.gewaehlte()[0].wort(w::verein), "SRC Nord");
    u.schliessen();
    EXPECT_EQ(a.blattkopf().zeile(), "SRC Nord  ·  Pokal");
    a.Command_urkunden.klicken();
    EXPECT_EQ(u.veranstaltung.text(), "Pokal");
    u.veranstaltung.eingeben("");
    t.maschine.nicht_schreibbar = "papier.ini";
    u.schliessen();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(a.blattkopf().zeile(), "SRC Nord  ·  Pokal");
}

TEST_F(Urkundenfenster, EineSchlechteVorlageWirdGemeldetUndErsetzt) {
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Urkunden\\gut.txt", {"Tarvel Urkunde", "Plakette 1 1 9 9"}));
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben("Urkunden\\schlecht.txt", {"Tarvel Urkunde", "Plakete 1 1 9 9"}));
    rennen_fahren();
    a.Command_urkunden.klicken();
    const std::size_t eingebaut = u.gezeigte_vorlage().size();
    u.vorlage.waehlen(1);
    EXPECT_EQ(u.gezeigte_vorlage().size(), 1U);
    u.vorlage.waehlen(2);
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt[0].text.ends_with("Zeile: 2"));
    EXPECT_EQ(u.gezeigte_vorlage().size(), eingebaut);
    EXPECT_EQ(u.vorlage.platz(), 0);
    u.schliessen();
    t.p.ablage.loeschen("Urkunden\\gut.txt");
    a.Command_urkunden.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 2U) << "the chosen one is missing";
    EXPECT_EQ(u.gezeigte_vorlage().size(), eingebaut);
}

TEST_F(Urkundenfenster, AuchFuerEinRennenAusEinerDatei) {
    const std::string datei = "Ergebnisse\\Einzelrennen\\lauf.csv";
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(datei, test::rennzeilen(test::rennen_mit({"Anna", "Ben"}, 5, "14:27:00"))));
    t.p.w_auswertung2.datei_zeigen(datei);
    t.p.w_auswertung2.Command_urkunden.klicken();
    ASSERT_EQ(u.gewaehlte().size(), 2U);
    EXPECT_EQ(u.gewaehlte()[0].wort(w::fahrer), "Anna");
    u.veranstaltung.eingeben("Pokal 1/26");
    EXPECT_EQ(u.pdf_datei(), "Ergebnisse\\Einzelrennen\\2026-11-21 Urkunden Pokal 1_26");
    u.dabei.umschalten();
    EXPECT_EQ(u.pdf_datei(), "Ergebnisse\\Einzelrennen\\2026-11-21 Urkunde Ben");
    t.p.w_auswertung2.schliessen();
    EXPECT_FALSE(offen(fenstername::urkunden));
}

TEST_F(Urkundenfenster, JederFahrerDesTagesBekommtEineInSeinerKlasse) {
    const std::string datei = "Ergebnisse\\Tagesrennen\\pokal-21112026-14032.csv";
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(
        datei, {"Tarvel Tagesrennen", "A;Anna; 5;125.00;00:05,100;00:26,000", "B;Ben; 7;175.00;00:04,100;00:31,000",
                "A;Carl; 8;200.00;00:06,100;00:52,000", "A;Anna; 5;125.00;00:04,900;00:25,000"}));
    auto& v = t.p.w_auswertung2;
    v.datei_zeigen(datei);
    v.Command_urkunden.klicken();
    const auto alle = u.gewaehlte();
    ASSERT_EQ(alle.size(), 3U);
    EXPECT_EQ(alle[0].wort(w::fahrer) + ", " + alle[0].wort(w::platzwort), "Anna, 1. Platz");
    EXPECT_EQ(alle[0].wort(w::runden) + ", " + alle[0].wort(w::beste), "10, 4,900 s") << "her two races together";
    EXPECT_TRUE(alle[0].wort(w::rennen).ends_with("  ·  Klasse A")) << alle[0].wort(w::rennen);
    EXPECT_EQ(alle[0].wort(w::datum), "21.11.2026");
    EXPECT_EQ(alle[1].wort(w::platz) + "/" + alle[1].wort(w::teilnehmer), "2/2");
    EXPECT_EQ(alle[2].wort(w::fahrer) + ", " + alle[2].wort(w::platzwort), "Ben, 1. Platz");
    EXPECT_EQ(alle[2].spur, 0);
    EXPECT_EQ(v.File1.zeilen().size(), 1U);
    EXPECT_TRUE(v.Label_datei.text().find("4 ") != std::string::npos) << "the table itself is as it was";
    u.schliessen();
    const std::string ohne_tag = "Ergebnisse\\Tagesrennen\\Samstag.csv";
    ASSERT_TRUE(t.p.ablage.zeilen_schreiben(ohne_tag, {"Tarvel Tagesrennen", "0;Anna; 5;125.00;00:05,100;00:26,000"}));
    std::filesystem::last_write_time(t.p.ablage.pfad(ohne_tag),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(24));
    v.datei_zeigen(ohne_tag);
    v.Command_urkunden.klicken();
    EXPECT_EQ(u.gewaehlte().at(0).wort(w::datum), "20.11.2026") << "when it was driven";
}

TEST_F(Urkundenfenster, DerWettkampfHatDiePlaetzeDerRanglisteUndGanzeNamen) {
    wettkampf neu = test::vereinswettkampf::neu(wettkampf_modus::rotation, 3, {1, 2});
    neu.teilnehmer[1] = "Maximiliane Musterfrau";
    t.p.fahrerliste.hinzufuegen("Maximiliane Musterfrau");
    t.p.wettkampfabend.beginnen(neu);
    t.p.wettkampfabend.aendern([](wettkampf& stand) {
        const auto feld = stand.plan.feld(1);
        spuren<fahrt> fahrten;
        for (const int spur : alle_spuren) {
            fahrten[spur] = {feld[spur] == 2 ? 9 : 5, 60000, 10000, feld[spur] == 2 ? 5123 : 7000};
        }
        return stand.ergebnis_eintragen(fahrten);
    });
    t.p.fenster.zeigen(fenstername::w_auswertung);
    t.p.w_auswertung.Command_urkunden.klicken();
    ASSERT_EQ(u.gewaehlte().size(), 2U) << "who has not driven yet gets one only on demand";
    EXPECT_EQ(u.gewaehlte()[0].wort(w::fahrer), "Maximiliane Musterfrau");
    EXPECT_EQ(u.gewaehlte()[0].wort(w::beste) + u.gewaehlte()[0].wort(w::platzwort), "5,123 s1. Platz");
    u.schliessen();
    t.p.wettkampf2.Command10.klicken();
    t.p.rundenspeichern.Command1.klicken();
    ASSERT_EQ(t.p.zuletzt_geschrieben.eintraege().size(), 1U);
    t.p.w_auswertung2.datei_zeigen(t.p.zuletzt_geschrieben.eintraege()[0].pfad);
    t.p.w_auswertung2.Command_urkunden.klicken();
    ASSERT_FALSE(u.gewaehlte().empty());
    EXPECT_EQ(u.gewaehlte()[0].wort(w::fahrer), "Maximiliane Musterfrau") << "the file has 15 characters of her";
    EXPECT_EQ(u.gewaehlte()[0].wort(w::rennen), neu.wettkampf_name);
    EXPECT_EQ(u.gewaehlte()[0].wort(w::datum), "21.11.2026");
}

TEST(Papierkopf, JedeSpracheHatIhreVorlage) {
    const test::test_plattform maschine;
    const dateien ablage{maschine.ordner()};
    ASSERT_TRUE(papierkopf_speichern(ablage, {"Klub", "Abend", "unsere.txt"}));
    ASSERT_TRUE(papierkopf_speichern(ablage, {"Klub", "Cup", "ours.txt"}, "language-en"));
    ASSERT_TRUE(papierkopf_speichern(ablage, {"Klub", "Cup", "notre.txt"}, "language-fr"));
    EXPECT_EQ(papierkopf_laden(ablage), (papierkopf{"Klub", "Cup", "unsere.txt"}));
    EXPECT_EQ(papierkopf_laden(ablage, "language-en").vorlage, "ours.txt");
    EXPECT_EQ(papierkopf_laden(ablage, "language-fr").vorlage, "notre.txt");
    EXPECT_EQ(papierkopf_laden(ablage, "language-da").vorlage, "");
}

TEST(Papierkopf, WasBeschaedigtIstLaesstDenRest) {
    const test::test_plattform maschine;
    const dateien ablage{maschine.ordner()};
    maschine.datei_schreiben("Urkunden/papier.ini", "Klub");
    EXPECT_EQ(papierkopf_laden(ablage, "language-en"), (papierkopf{"Klub", "", ""}));
    std::string voll = "Klub\r\nAbend\r\n\r\n\r\nlanguage-en\r\n=\r\n";
    for (int zeile = 0; zeile < 60; ++zeile) {
        voll += "M\xFCll\x1A\r\n";
    }
    maschine.datei_schreiben("Urkunden/papier.ini", voll);
    EXPECT_EQ(papierkopf_laden(ablage, "language-en"), (papierkopf{"Klub", "Abend", ""}));
    ASSERT_TRUE(papierkopf_speichern(ablage, {"Klub", "Cup", "ours.txt"}, "language-en"));
    EXPECT_EQ(papierkopf_laden(ablage, "language-en").vorlage, "ours.txt") << "also behind a file that is full";
}

TEST(Urkundenvorlage, DieMitgeliefertenSindDieEingebaute) {
    const dateien mitgeliefert{std::filesystem::path(TARVEL_QUELLEN) / "data"};
    EXPECT_EQ(mitgeliefert.zeilen_lesen("Urkunden\\urkunde.txt", 1000), eingebaute_vorlage())
        << "run tools/grunddateien";
    const auto englisch = mitgeliefert.zeilen_lesen("Urkunden\\certificate.txt", 1000);
    ASSERT_TRUE(englisch);
    EXPECT_EQ(
        vorlage_lesen(*englisch).vorlage,
        vorlage_lesen(eingebaute_vorlage({"CERTIFICATE", "Laps", "Best lap", "Total time", "Date", "Race director"}))
            .vorlage)
        << "in English words";
}

}  // namespace
}  // namespace tarvel
