#include "core/einstellungsdatei.h"

#include <gtest/gtest.h>

#include "core/einstellungstabelle.h"
#include "core/nebendateien.h"
#include "core/text.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

constexpr const char* datei = "Einstellungen/einstellungen.ini";

class Einstellungsdatei : public testing::Test {
protected:
    Einstellungsdatei() { grund = *ablage.zeilen_lesen(datei, 1000); }

    /// Replaces line Z of a good file, starts the program with it and tells whether the file was accepted.
    bool start_mit(const std::vector<std::pair<int, std::string>>& geaendert) {
        std::vector<std::string> zeilen = grund;
        for (const auto& [nummer, text] : geaendert) {
            zeilen.at(nummer == 0 ? 0 : static_cast<std::size_t>(nummer) + 1) = text;
        }
        return start_mit_datei(zeilen);
    }
    bool start_mit_datei(const std::vector<std::string>& zeilen) {
        EXPECT_TRUE(ablage.zeilen_schreiben(datei, zeilen));
        t.maschine.meldungen_gezeigt.clear();
        p = std::make_unique<programm>(t.maschine.dienste());
        p->starten();
        const auto& gezeigt = t.maschine.meldungen_gezeigt;
        return std::none_of(gezeigt.begin(), gezeigt.end(), [&](const auto& m) { return m.text == p->txt.meldung[9]; });
    }

    test::testprogramm t;
    dateien ablage{t.maschine.ordner()};
    std::vector<std::string> grund;  ///< a default file
    std::unique_ptr<programm> p;
};

TEST_F(Einstellungsdatei, JedeZeileStehtAnIhremPlatz) {
    ASSERT_EQ(grund.size(), 349U);
    const auto z = [this](std::size_t nummer) { return grund.at(nummer + 1); };
    EXPECT_EQ(grund[0], "Tarvel Version 2.23");
    EXPECT_EQ(grund[1], "");
    EXPECT_EQ(z(25), "[allgemein]");
    EXPECT_EQ(z(29), "2");
    EXPECT_EQ(z(36), " 60 ");
    EXPECT_EQ(z(65), "[Hardwareeinstellungen]");
    EXPECT_EQ(z(79), "Falsch");
    EXPECT_EQ(z(99), " 0 ");
    EXPECT_EQ(z(113), "[Boolean-Grundwerte]");
    EXPECT_EQ(z(128), "[Soundeinstellungen]");
    EXPECT_EQ(z(136), "sound\\sr2.wav");
    EXPECT_EQ(z(178), "[4x4 USB Einstellungen]");
    EXPECT_EQ(z(194), " 32 ");
    EXPECT_EQ(z(217), "[Fahrer5]");
    EXPECT_EQ(z(225), "25");
    EXPECT_EQ(z(229), "[Timekeeper]");
    EXPECT_EQ(z(249), " 10 ");
    EXPECT_EQ(z(251), "[CU Carrera Control Unit]");
    EXPECT_EQ(z(256), "[Erweiterte Einstellungen]");
    EXPECT_EQ(z(285), "sound\\sd.wav");
    EXPECT_EQ(z(292), "[UART USB Einstellungen]");
    EXPECT_EQ(z(300), "[Trainingseinstellungen]");
    EXPECT_EQ(z(305), "[sonstige ab Version 1.83]");
    EXPECT_EQ(z(312), "sound\\s10.wav");
    EXPECT_EQ(z(323), "Tarvel Standard :  1 - 6 - 5 - 4 - 3 - 2");
    EXPECT_EQ(z(331), z(323));
    EXPECT_EQ(z(336), "tvk_at2560.uart");
    EXPECT_EQ(z(343), " 15 ");
    EXPECT_EQ(z(346), "{EOF}");
}

TEST_F(Einstellungsdatei, MitgelieferteDateiHatDieStandardwerte) {
    const dateien mitgeliefert{std::filesystem::path(TARVEL_QUELLEN) / "data"};
    EXPECT_EQ(mitgeliefert.zeilen_lesen(datei, 1000), grund) << "run tools/grunddateien";
}

TEST_F(Einstellungsdatei, GespeichertGeladenGespeichertIstGleichBisAufsByte) {
    programm& q = t.p;
    q.form1.fahrer[2].text("Jörg €");
    q.form1.rennart.text("Runden");
    q.form1.spur[5].gesetzt(true);
    q.einst.tank_warnung = 12.5;
    q.einst.chaos_strafzeit = -1;
    q.einst.farben_ampel[2] = 0xFFFFFF;
    q.einst.sektor_an[2] = true;
    q.einst.sektor_laenge[3][4] = "7.5";
    q.einst.hardware.hw_cu = true;
    q.datei.einstellungen_speichern(datei);
    const std::string erste = t.maschine.datei_lesen(datei);
    EXPECT_NE(erste.find("J\xF6rg \x80\r\n"), std::string::npos);
    EXPECT_NE(erste.find("\r\n-1 \r\n"), std::string::npos);
    EXPECT_NE(erste.find("\r\n 12,5 \r\n"), std::string::npos);

    programm spaeter(t.maschine.dienste());
    t.maschine.meldungen_gezeigt.clear();
    spaeter.starten();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    EXPECT_EQ(spaeter.form1.fahrer[2].text(), "Jörg €");
    EXPECT_EQ(spaeter.form1.Label19.text(), "Runden");
    EXPECT_TRUE(spaeter.einst.sektor_an[0]);
    EXPECT_EQ(spaeter.einst.tank_warnung, 12) << "the reader stops at the comma";
    spaeter.einst.tank_warnung = 12.5;
    spaeter.datei.einstellungen_speichern(datei);
    EXPECT_EQ(t.maschine.datei_lesen(datei), erste);
}

TEST_F(Einstellungsdatei, UnzulaessigeZeilenVerwerfenDieGanzeDatei) {
    for (const auto& [nummer, text] : std::vector<std::pair<int, std::string>>{{0, "Tarvel  Version 2.23"},
                                                                               {1, "[Fahrer 1]"},
                                                                               {2, "2"},
                                                                               {2, ""},
                                                                               {8, "0.5"},
                                                                               {3, "10001"},
                                                                               {26, "0"},
                                                                               {28, "-1"},
                                                                               {29, "4"},
                                                                               {29, "2.5"},
                                                                               {36, "101"},
                                                                               {40, "0"},
                                                                               {48, "Ja"},
                                                                               {63, "ja"},
                                                                               {71, "131"},
                                                                               {103, "4"},
                                                                               {109, "999"},
                                                                               {217, "[x]"},
                                                                               {219, "0"},
                                                                               {62, "abc-1"}}) {
        const bool gueltig = nummer == 62;  // a text without a number reads as 0
        EXPECT_EQ(start_mit({{nummer, text}, {27, "3"}}), gueltig) << nummer << " " << text;
        EXPECT_EQ(p->form1.stddauer.text(), gueltig ? "3" : "0") << "nothing of a refused file is taken over";
        EXPECT_EQ(ablage.zeilen_lesen(datei, 400)->at(28), gueltig ? "3" : "0") << "and the defaults replace it";
    }
}

TEST_F(Einstellungsdatei, GrenzwerteUndReparaturenLaden) {
    ASSERT_TRUE(start_mit({{3, "10000"},
                           {179, "9"},
                           {36, "100"},
                           {249, "60"},
                           {176, "0"},
                           {294, "1200"},
                           {296, "X"},
                           {297, "1,5"},
                           {333, "123456"},
                           {293, "17"},
                           {335, "7"},
                           {344, "11"}}));
    EXPECT_EQ(p->form1.lspur[0].text(), "10000");
    EXPECT_EQ(p->einst.hardware.hw_4x4_modus, 7);
    EXPECT_FALSE(p->einst.hardware.hw_simulation);
    EXPECT_EQ(p->einst.tank_warnung, 25);
    EXPECT_EQ(p->einst.snd_beste_runde, 5);
    EXPECT_EQ(p->einst.uart_baud, "57600");
    EXPECT_EQ(p->einst.uart_parity, "N");
    EXPECT_EQ(p->einst.uart_stopbits, "1,5");
    EXPECT_EQ(p->einst.uart_port, 3);
    EXPECT_EQ(p->einst.chaos_strafzeit, 1234);
    EXPECT_EQ(p->einst.auswertung_nach, 2);
    EXPECT_EQ(p->einst.tanksensor_justierung, 20);
    EXPECT_TRUE(start_mit({{36, "100"}, {249, "52"}}));
    EXPECT_EQ(p->einst.tank_warnung, 52);
}

TEST_F(Einstellungsdatei, WahrheitswerteFremderSpracheUndIhreEigenheiten) {
    std::vector<std::string> englisch = grund;
    for (std::string& zeile : englisch) {
        zeile = zeile == "Wahr" ? "True" : zeile == "Falsch" ? "False" : zeile;
    }
    EXPECT_TRUE(start_mit_datei(englisch));
    EXPECT_TRUE(p->einst.zielmodus_erster);
    EXPECT_FALSE(p->einst.freie_slots);
    EXPECT_TRUE(start_mit({{234, "irgendwas"}, {235, "irgendwas"}, {334, "irgendwas"}, {332, "irgendwas"}}));
    EXPECT_FALSE(p->einst.darstellung_zeile);
    EXPECT_FALSE(p->einst.tankanzeige_grafisch);
    EXPECT_TRUE(p->einst.chaos_strafe_strom);
    EXPECT_TRUE(p->einst.cu_tankautomatik);
    EXPECT_TRUE(start_mit({{114, ""}, {115, ""}, {239, ""}}));
    EXPECT_TRUE(p->einst.fahrzeugbild_an) << "an empty word for true makes every empty line true";
}

TEST_F(Einstellungsdatei, AeltereDateienUndAndereVersion) {
    std::vector<std::string> alt(grund.begin(), grund.begin() + 306);  // up to the blank line Z 304
    alt.emplace_back("{EOF}");
    alt[0] = "Tarvel Version 1.82";
    EXPECT_TRUE(start_mit_datei(alt));
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, p->txt.meldung[19]);
    EXPECT_EQ(p->einst.sound_dateien[64], "");
    EXPECT_EQ(p->einst.sound_dateien[49], "sound\\m5.wav");
    EXPECT_EQ(p->einst.chaos_strafzeit, 10);
    EXPECT_EQ(p->einst.auswertung_nach, 2);
    EXPECT_EQ(p->einst.wechsel_schema[2], 6);
    EXPECT_EQ(p->einst.cu_spur_wert[6], 15);
    EXPECT_EQ(p->einst.uart_datei, "tvk_at2560.uart");

    std::vector<std::string> abgerissen(grund.begin(), grund.begin() + 200);
    EXPECT_FALSE(start_mit_datei(abgerissen));
    std::vector<std::string> verschoben = grund;
    verschoben.erase(verschoben.begin() + 30);  // Z 29
    EXPECT_FALSE(start_mit_datei(verschoben));
}

TEST_F(Einstellungsdatei, WechselschemaNurAlsGanzesUndReglerwerteEinzeln) {
    EXPECT_TRUE(start_mit({{323, "Neu"}, {324, "8"}, {338, "3"}, {339, "16"}, {340, ""}}));
    EXPECT_EQ(p->einst.wechselschema_name, "Tarvel Standard :  1 - 6 - 5 - 4 - 3 - 2");
    EXPECT_EQ(p->einst.wechsel_schema[1], 1);
    EXPECT_EQ(p->einst.cu_spur_wert[1], 3);
    EXPECT_EQ(p->einst.cu_spur_wert[2], 15);
    EXPECT_EQ(p->einst.cu_spur_wert[3], 15);
    EXPECT_TRUE(start_mit({{323, "Neu"}, {324, "2"}}));
    EXPECT_EQ(p->einst.wechselschema_name, "Neu");
}

TEST_F(Einstellungsdatei, HardwareSchliesstSichAus) {
    EXPECT_TRUE(start_mit({{66, "Wahr"}}));
    EXPECT_FALSE(p->einst.hardware.hw_simulation);
    EXPECT_EQ(p->form1.modus_label.text(), "IOW 40 USB");
    EXPECT_TRUE(start_mit({{252, "Wahr"}}));
    EXPECT_EQ(p->form1.modus_label.text(), "Carrera Control Unit");
}

TEST_F(Einstellungsdatei, WettkampfdateiHatEineZeileDavorUndIhreDatenDahinter) {
    programm quelle(t.maschine.dienste());
    quelle.starten();
    quelle.form1.stddauer.text("1");
    quelle.form1.renndauer.text("10");
    quelle.form1.rennart.text("Runden");
    quelle.form1.wertmin.text("4.5");
    quelle.form1.t_aktiv.gesetzt(true);
    std::vector<std::string> wettkampf = quelle.datei.schreiben_fuer_wettkampf("Vereinsmeister");
    EXPECT_EQ(wettkampf.front(), "Wettkampfdatei: Vereinsmeister");
    EXPECT_EQ(wettkampf.size(), grund.size() + 1);
    wettkampf.emplace_back("Teilnehmer");
    ASSERT_TRUE(ablage.zeilen_schreiben("w.wtk", wettkampf));
    t.p.datei.einstellungsdatei_einlesen("w.wtk", true);
    t.p.datei.einstellungsdatei_pruefen();
    EXPECT_FALSE(t.p.datei.fehler_laden());
    ASSERT_FALSE(t.p.datei.rest().empty());
    EXPECT_EQ(t.p.datei.rest().back(), "Teilnehmer");
    t.p.datei.einstellungen_uebernehmen(0);
    EXPECT_EQ(t.p.param.renn_art_text, "Runden");
    EXPECT_EQ(t.p.param.min_rundenzeit_ms, 4500);
    EXPECT_EQ(t.p.param.renndauer_ms, 3600000 + 600000);
    EXPECT_EQ(t.p.param.renndauer_rest_ms, t.p.param.renndauer_ms);
    EXPECT_TRUE(t.p.param.tank_aktiv);
    t.p.datei.einstellungsdatei_einlesen("w.wtk");
    EXPECT_TRUE(t.p.datei.fehler_laden());
}

TEST_F(Einstellungsdatei, NichtSchreibbarMeldetSichUndLaesstDieAlteDatei) {
    const std::string alt = t.maschine.datei_lesen(datei);
    std::filesystem::create_directory(t.maschine.ordner() / (std::string(datei) + ".tarvel-neu"));
    t.p.einst.tank_inhalt = 99;
    t.p.datei.einstellungen_speichern(datei);
    EXPECT_TRUE(t.p.datei.fehler_laden());
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text,
              "Fehler beim Schreiben der Datei. Die Einstellungen wurde nicht gespeichert.");
    EXPECT_EQ(t.maschine.datei_lesen(datei), alt);
}

TEST_F(Einstellungsdatei, BeschaedigteEinstellungenKostenDieTastenNicht) {
    t.p.belegung.taste(16, 'k');
    ASSERT_TRUE(t.p.belegung.tastenbelegung_speichern(ablage));
    EXPECT_FALSE(start_mit({{1, "kaputt"}}));
    EXPECT_EQ(p->belegung.taste(16), 'k');
    tastenbelegung gespeichert;
    ASSERT_TRUE(gespeichert.tastenbelegung_laden(ablage));
    EXPECT_EQ(gespeichert.taste(16), 'k');
}

TEST(Nebendateien, TrennzeichenHinUndZurueckUndKaputt) {
    test::test_plattform maschine;
    const dateien ablage(maschine.ordner());
    trennzeichen_tabelle werte{"·", ".", "\t"};
    trennzeichen_tabelle gelesen{":", ",", ";"};
    EXPECT_FALSE(trennzeichen_laden(ablage, gelesen));
    werte[2] = "|";
    ASSERT_TRUE(trennzeichen_speichern(ablage, werte));
    EXPECT_EQ(maschine.datei_lesen("trennzeichen.ini"), " 183 \r\n 46 \r\n 124 \r\n");
    EXPECT_TRUE(trennzeichen_laden(ablage, gelesen));
    EXPECT_EQ(gelesen, werte);
    for (const char* kaputt : {"", "58\r\n44", "58,44,x", "58\r\n300\r\n59", "1\r\n2\r\n3"}) {
        maschine.datei_schreiben("trennzeichen.ini", kaputt);
        EXPECT_FALSE(trennzeichen_laden(ablage, gelesen)) << kaputt;
        EXPECT_EQ(gelesen, werte);
    }
    maschine.datei_schreiben("trennzeichen.ini", "58,44,59");
    EXPECT_TRUE(trennzeichen_laden(ablage, gelesen));
}

TEST(Nebendateien, StartdateiUndWerbezeile) {
    test::test_plattform maschine;
    const dateien ablage(maschine.ordner());
    EXPECT_EQ(s6_laden(ablage).einstell_datei, "Einstellungen\\einstellungen.ini");
    EXPECT_EQ(s6_laden(ablage).zustand, "0");
    maschine.datei_schreiben("tvk_s6.ini", "\"2\", 6 ,\"Einstellungen\\klub.ini\",\"0\",\"\"\r\n");
    const s6_start start = s6_laden(ablage);
    EXPECT_EQ(start.zustand, "2");
    EXPECT_EQ(start.modus, "6");
    EXPECT_EQ(start.einstell_datei, "Einstellungen\\klub.ini");
    EXPECT_EQ(start.naechster_zustand, "0");

    std::string werbung = "alt";
    tvk_ini_laden(ablage, werbung);
    EXPECT_EQ(werbung, "alt");
    maschine.datei_schreiben("tvk.ini", "\"Bahn, Bier und Benzin\"");
    tvk_ini_laden(ablage, werbung);
    EXPECT_EQ(werbung, "Bahn, Bier und Benzin");
}

}  // namespace
}  // namespace tarvel
