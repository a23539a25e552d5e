#include "results/ergebnisdatei.h"

#include <sstream>

#include "core/text.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

/// Result files of real races, byte for byte.
class Ergebnisdatei : public test::ProgrammProbe {
protected:
    Ergebnisdatei() { t.p.einst.aut_speichern = true; }

    static constexpr const char* automatisch = "Ergebnisse/auto-Einzelrennen/auto-21112026-14032.csv";

    std::vector<std::string> gespeichert(const char* name = automatisch) {
        const std::string bytes = t.maschine.datei_lesen(name);
        std::vector<std::string> zeilen;
        std::istringstream strom(bytes);
        for (std::string zeile; std::getline(strom, zeile);) {
            EXPECT_TRUE(zeile.ends_with('\r')) << zeile;
            zeilen.push_back(von_1252(zeile.substr(0, zeile.size() - 1)));
        }
        if (const auto gelesen = einzelrennen_lesen(zeilen)) {
            EXPECT_EQ(einzelrennen_zeilen(gelesen->ergebnis, gelesen->wort, gelesen->trennzeichen), zeilen);
            EXPECT_FALSE(gelesen->ergebnis.spuren.front().platz) << "the file has no places";
        } else {
            EXPECT_EQ(datei_typ_erkennen(zeilen), ergebnis_typ::tagesrennen);
        }
        return zeilen;
    }

    auswertung& a = t.p.auswertung;
};

TEST_F(Ergebnisdatei, EineSpurZweiRunden) {
    t.p.form1.fahrer[0].eingeben("Anna");
    t.p.form1.auto_[0].eingeben("Rot");
    t.p.form1.lspur[0].eingeben("10,5");
    t.starten("Zeit", "1", {1});
    t.runde_nach(2172, "1");
    t.runde_nach(8123, "1");
    t.runde_nach(8119, "1");
    t.rennende();
    a.Command6.klicken();
    a.meter[0].eingeben("2,4");
    a.Command6.klicken();
    EXPECT_EQ(a.ges_meter[0].text(), "23,40 m");
    a.Command5.klicken();
    std::string datei;
    for (const std::string& zeile : gespeichert()) {
        datei += zeile + "|";
    }
    EXPECT_EQ(datei,
              "Rennergebnis;21.11.2026;14:03:22|||Rundendirektvergleich||"
              "Anna; 2;23.40;00:08,119;00:16,242;00:02,170;00:08,123;00:08,119;|||"
              "Spur 1;;;;;|Anna;;;;;|Rot;;;;;|Rundenzahl; 2;;;;|Spurlänge;10.5;;;;|Sektorlänge;;;;;|Restmeter;2.4;;;;|"
              "Gesamtmeter;23.40;;;;|Gesamtzeit;00:16,242;;;;|;;|00:02,170;;;;;|00:08,123;;;;;|00:08,119;;;;;||"
              "Tarvel|TV-ERD|https://tarvel.invalid|")
        << "as the table program of the club reads it";
    EXPECT_EQ(datei_typ_erkennen(ergebnis_zeilen_lesen(t.p.ablage, automatisch)), ergebnis_typ::einzelrennen);
}

TEST_F(Ergebnisdatei, MehrereSpurenStehenNebeneinander) {
    t.p.form1.fahrer[0].eingeben("Käthe; \"die\" Łü");
    t.p.form1.t_aktiv.gesetzt(true);
    t.p.einst.sektor_an = {true, true, false, false};
    t.p.einst.sektor_laenge[1][1] = "4";
    t.starten("Zeit", "1", {1, 3, 6});
    t.runde_nach(1002, "13");
    t.maschine.laufen(1999);
    t.p.ereignisse.ereignis_melden(42);
    t.runde_nach(5001, "13");
    t.runde_nach(6000, "1");
    t.spur(3).disqualifiziert = true;
    t.spur(1).strafzeit = 7s;
    t.rennende();
    a.Command5.klicken();
    const auto zeilen = gespeichert();
    ASSERT_EQ(zeilen.size(), 7U + 3 + 9 + 1 + 3 + 4);
    EXPECT_EQ(zeilen[1], "Tanken aktiv");
    EXPECT_EQ(zeilen[5], "Käthe  \"die\" ?ü; 2;50.00;00:06,000;00:20,000;00:01,000;00:07,000;00:06,000;")
        << "a separator in a name would move the columns";
    EXPECT_EQ(zeilen[6], "Fahrer 3; 0;0.00;00:07,000;00:00,000;00:01,000;");
    EXPECT_EQ(zeilen[7], "Fahrer 6; 0;0.00;00:00,000;00:00,000;") << "never crossed the line";
    EXPECT_EQ(zeilen[10], "Spur 1;;;;;Spur 3;;;;;Spur 6;;;;;");
    EXPECT_EQ(zeilen[13], "Rundenzahl; 2;;;;Rundenzahl;Disqualifiziert;;;;Rundenzahl; 0;;;;");
    EXPECT_EQ(zeilen[15], "Sektorlänge;4;;;;Sektorlänge;0;;;;Sektorlänge;0;;;;");
    EXPECT_EQ(zeilen[19], ";;");
    EXPECT_EQ(zeilen[20], "00:01,000;;;;;00:01,000;;;;;;;;;;");
    EXPECT_EQ(zeilen[21], "00:07,000;00:02,000;;;;;;;;;;;;;;") << "sector 1; the others are not in use";
}

TEST_F(Ergebnisdatei, UnterEigenemNamenUndNieUngefragtUeberEinAltes) {
    t.p.einst.aut_speichern = false;
    t.starten("Zeit", "1", {1});
    t.rennende();
    speichernfenster& f = t.p.rundenspeichern;
    const auto speichern = [&](const char* name) {
        a.Command4.klicken();
        EXPECT_EQ(f.name.text(), "21112026-14032.csv");
        f.name.eingeben(name);
        f.Command1.klicken();
    };
    speichern("Pokal");
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::rundenspeichern));
    EXPECT_TRUE(t.maschine.datei_da("Ergebnisse/Einzelrennen/Pokal.csv"));
    speichern("Pokal.alt");
    EXPECT_TRUE(t.maschine.datei_da("Ergebnisse/Einzelrennen/Pokal.alt"));
    t.maschine.datei_schreiben("Ergebnisse/Einzelrennen/Pokal.csv", "alt");
    speichern("Pokal");
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(t.maschine.datei_lesen("Ergebnisse/Einzelrennen/Pokal.csv"), "alt");
    f.name.eingeben(" ");
    f.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Bitte geben Sie einen gültigen Dateinamen an.");
    f.Command2.klicken();
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(Ergebnisdatei, ZweiErgebnisseInZehnSekundenUndEinVollerOrdner) {
    const auto fahren = [&] {
        t.starten("Zeit", "1", {1});
        t.rennende();
    };
    for (int rennen = 0; rennen < 2; ++rennen) {
        fahren();
        a.Command5.klicken();
    }
    EXPECT_TRUE(t.maschine.datei_da(automatisch));
    EXPECT_TRUE(t.maschine.datei_da("Ergebnisse/auto-Einzelrennen/auto-21112026-14032-2.csv"));
    fs::remove_all(t.maschine.ordner() / "Ergebnisse");
    t.maschine.datei_schreiben("Ergebnisse", "a file where the folder should be");
    t.starten("Zeit", "1", {2});
    t.rennende();
    const std::string fehler = "Fehler beim Schreiben der Datei. Rennergebnisse wurden nicht gespeichert.";
    for (befehl* weg : {&a.Command1, &a.Command2, &a.Command3, &a.Command5}) {
        t.maschine.meldungen_gezeigt.clear();
        weg->klicken();
        ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
        EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, fehler);
        EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung)) << "nothing is lost without a question";
    }
    t.maschine.antwort = true;
    a.Command5.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(Ergebnisdatei, WasVonHandGesichertIstGehtNichtVerloren) {
    fs::remove_all(t.maschine.ordner() / "Ergebnisse/auto-Einzelrennen");
    t.maschine.datei_schreiben("Ergebnisse/auto-Einzelrennen", "a file where the folder should be");
    t.starten("Zeit", "1", {1});
    t.runde_nach(1000, "1");
    t.runde_nach(6000, "1");
    t.rennende();
    const auto von_hand = [&](const char* name) {
        a.Command4.klicken();
        t.p.rundenspeichern.name.eingeben(name);
        t.p.rundenspeichern.Command1.klicken();
    };
    von_hand("Pokal");
    a.liste[0].auswaehlen(0);
    a.Command8.klicken();
    a.Command5.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U) << "the result is another one since then";
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    von_hand("Pokal berichtigt");
    a.Command5.klicken();
    EXPECT_EQ(t.maschine.fragen_gestellt.size() + t.maschine.meldungen_gezeigt.size(), 2U);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(Ergebnisdatei, DasLaengsteRennenWirdWiedererkannt) {
    t.starten("Zeit", "1", {1, 4});
    t.runde_nach(1000, "14");
    t.runden_auffuellen(4, 9999);
    t.rennende();
    a.Command5.klicken();
    const auto zeilen = ergebnis_zeilen_lesen(t.p.ablage, automatisch);
    const auto gelesen = einzelrennen_lesen(zeilen);
    ASSERT_TRUE(gelesen) << zeilen.size();
    EXPECT_EQ(gelesen->ergebnis.spuren[1].rundenzahl(), 9999);
}

TEST_F(Ergebnisdatei, TagesrennenHaengtAnUndSpeichertSonstNichts) {
    const char* const datei = "Ergebnisse/Tagesrennen/Samstag.csv";
    t.p.tagesrennen.datei = "Ergebnisse\\Tagesrennen\\Samstag.csv";
    t.p.form1.einzelrennen_beginnen = [this] { t.p.rennen_beginnen(t.p.tagesrennen); };
    t.p.form1.fahrer[0].eingeben("Anna;5;99");
    t.p.form1.fahrer[1].eingeben("B;Ben;9");
    for (int rennen = 0; rennen < 2; ++rennen) {
        t.starten("Zeit", "1", {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.rennende();
        a.Command5.klicken();
    }
    const std::string erste = "0;Anna 5 99; 1;25.00;00:06,000;00:06,000";
    const std::string zweite = "B;Ben 9; 0;0.00;00:00,000;00:00,000";
    EXPECT_EQ(gespeichert(datei), (std::vector<std::string>{"Tarvel Tagesrennen", erste, zweite, erste, zweite}));
    EXPECT_FALSE(t.maschine.datei_da(automatisch));
    t.maschine.datei_schreiben(datei, "fremd\r\n");
    t.starten("Zeit", "1", {1});
    t.rennende();
    a.Command5.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Fehler beim Schreiben in Tages-Datei.");
    EXPECT_EQ(t.maschine.datei_lesen(datei), "fremd\r\n");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
}

TEST_F(Ergebnisdatei, TrennzeichenAlsKlasseVerschiebenKeineSpalte) {
    rennergebnis e;
    e.spuren.resize(1);
    e.spuren[0].fahrer = ";;x";
    EXPECT_EQ(tages_zeilen(e, t.p.einst.trennzeichen).front().substr(0, 6), "0;  x;");
}

TEST_F(Ergebnisdatei, ArtStehtInDerDateiNichtImNamen) {
    using zeilen = std::vector<std::string>;
    EXPECT_EQ(datei_typ_erkennen({}), ergebnis_typ::unbekannt);
    EXPECT_EQ(datei_typ_erkennen(zeilen{"TV-ERD"}), ergebnis_typ::unbekannt) << "the address is missing";
    EXPECT_EQ(datei_typ_erkennen(zeilen{"TV-ERD", ""}), ergebnis_typ::einzelrennen);
    EXPECT_EQ(datei_typ_erkennen(zeilen{"x", "TV-WKD"}), ergebnis_typ::wettkampf);
    EXPECT_EQ(datei_typ_erkennen(zeilen{"TV-JJ2-WKD"}), ergebnis_typ::jeder_gegen_jeden);
    EXPECT_EQ(datei_typ_erkennen(zeilen{"Tarvel Tagesrennen", "x"}), ergebnis_typ::tagesrennen);
    EXPECT_EQ(datei_typ_erkennen(zeilen{"x", "Tarvel Tagesrennen"}), ergebnis_typ::unbekannt);
}

}  // namespace
}  // namespace tarvel
