#include "core/einstellungsdatei.h"

#include "core/einstellungstabelle.h"
#include "core/nebendateien.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

constexpr const char* datei = "Einstellungen/einstellungen.ini";

class Einstellungsdatei : public test::ProgrammProbe {
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
    /// Starts with the start file naming this file of settings.
    programm& startdatei_mit(const std::string& name, const std::string& zustand_und_modus = "0\r\n\r\n") {
        t.maschine.datei_schreiben("tvk_s6.ini", zustand_und_modus + name + "\r\n0\r\n\r\n");
        t.maschine.meldungen_gezeigt.clear();
        p = std::make_unique<programm>(t.maschine.dienste());
        p->starten();
        return *p;
    }

    dateien ablage{t.maschine.ordner()};
    std::vector<std::string> grund;  ///< a default file
    std::unique_ptr<programm> p;
};

TEST_F(Einstellungsdatei, MitgelieferteDateiHatDieStandardwerteAnIhremPlatz) {
    const dateien mitgeliefert{std::filesystem::path(TARVEL_QUELLEN) / "data"};
    EXPECT_EQ(mitgeliefert.zeilen_lesen(datei, 1000), grund) << "run tools/grunddateien";
    ASSERT_EQ(grund.size(), 349U);
    EXPECT_EQ(grund.at(347), "{EOF}");
}

TEST_F(Einstellungsdatei, GespeichertGeladenGespeichertIstGleichBisAufsByte) {
    programm& q = t.p;
    q.form1.fahrer[0].text("{EOF}");
    q.form1.fahrer[1].text("  Max ");
    q.form1.fahrer[2].text("Jörg €");
    q.form1.rennart.text("Runden");
    q.form1.renndauer.text("5,30");
    q.einst.tk.tk_datei = "{EOF}";
    q.einst.tank_warnung = 12.5;
    q.einst.chaos_strafzeit = -1s;
    q.einst.sektor_an[2] = true;
    q.einst.hardware.hw_cu = true;
    q.datei.einstellungen_speichern(datei);
    const std::string erste = t.maschine.datei_lesen(datei);
    for (const char* zeile : {"\r\nJ\xF6rg \x80\r\n", "\r\n5.30\r\n", "\r\n-1 \r\n", "\r\n 12,5 \r\n"}) {
        EXPECT_NE(erste.find(zeile), std::string::npos) << zeile;
    }
    programm spaeter(t.maschine.dienste());
    spaeter.starten();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty()) << "the name of the mark that ends the file is no end of it";
    EXPECT_EQ(spaeter.form1.fahrer[1].text(), "Max");
    EXPECT_EQ(spaeter.form1.fahrer[2].text(), "Jörg €");
    EXPECT_EQ(spaeter.form1.Label19.text(), "Runden");
    EXPECT_TRUE(spaeter.einst.sektor_an[0]);
    EXPECT_EQ(spaeter.einst.tank_warnung, 12) << "the reader stops at the comma";
    spaeter.einst.tank_warnung = 12.5;
    spaeter.datei.einstellungen_speichern(datei);
    EXPECT_EQ(t.maschine.datei_lesen(datei), erste);
}

TEST_F(Einstellungsdatei, UnzulaessigeZeilenVerwerfenDieGanzeDatei) {
    const auto pruefen = [this](int z, const char* text, bool gueltig) {
        EXPECT_EQ(start_mit({{z, text}, {27, "3"}}), gueltig) << z << " " << text;
        EXPECT_EQ(p->form1.stddauer.text(), gueltig ? "3" : "0") << "nothing of a refused file is taken over";
        EXPECT_EQ(ablage.zeilen_lesen(datei, 400)->at(28), gueltig ? "3" : "0") << "and the defaults replace it";
    };
    const std::vector<std::pair<const char*, std::vector<int>>> unzulaessig{{"Tarvel  Version 2.23", {0}},
                                                                            {"[x]", {1, 217}},
                                                                            {"ja", {48, 63}},
                                                                            {"", {2}},
                                                                            {"0.5", {8}},
                                                                            {"0", {26, 40, 219}},
                                                                            {"2", {2}},
                                                                            {"10001", {3}},
                                                                            {"-1", {28}},
                                                                            {"4", {29, 103}},
                                                                            {"2.5", {29}},
                                                                            {"101", {36}},
                                                                            {"131", {71}},
                                                                            {"999", {109}}};
    for (const auto& [text, zeilen] : unzulaessig) {
        for (const int z : zeilen) {
            pruefen(z, text, false);
        }
    }
    pruefen(62, "abc-1", true);  // a text without a number reads as 0
}

TEST_F(Einstellungsdatei, EinzelneZeilenWerdenBerichtigt) {
    struct fall {
        int z;
        const char* gelesen;
        const char* geschrieben;
    };
    const std::vector<fall> faelle{{3, "10000", "10000"},  // a limit is within
                                   {36, "100", " 100 "},
                                   {249, "60", " 25 "},
                                   {179, "9", " 7 "},
                                   {176, "0", " 5 "},
                                   {294, "1200", "57600"},
                                   {296, "X", "N"},
                                   {297, "1,5", "1,5"},
                                   {293, "17", " 3 "},
                                   {333, "123456", " 1234 "},
                                   {335, "7", " 2 "},
                                   {344, "11", " 20 "},
                                   {338, "3", " 3 "},
                                   {339, "16", " 15 "},
                                   {340, "", " 15 "},
                                   {234, "irgendwas", "Falsch"},
                                   {235, "irgendwas", "Falsch"},
                                   {332, "irgendwas", "Wahr"},
                                   {334, "irgendwas", "Wahr"}};
    std::vector<std::pair<int, std::string>> gelesen;
    gelesen.reserve(faelle.size());
    for (const fall& eine : faelle) {
        gelesen.emplace_back(eine.z, eine.gelesen);
    }
    ASSERT_TRUE(start_mit(gelesen));
    const std::vector<std::string> geschrieben = p->datei.schreiben();
    for (const fall& eine : faelle) {
        EXPECT_EQ(geschrieben.at(static_cast<std::size_t>(eine.z) + 1), eine.geschrieben) << eine.z;
    }
    EXPECT_FALSE(p->einst.hardware.hw_simulation);
    EXPECT_TRUE(start_mit({{36, "100"}, {249, "52"}}));
    EXPECT_EQ(p->einst.tank_warnung, 52);
    EXPECT_TRUE(start_mit({{323, "Neu"}, {324, "8"}}));
    EXPECT_EQ(p->einst.wechselschema_name, "Tarvel Standard :  1 - 6 - 5 - 4 - 3 - 2");
    EXPECT_EQ(p->einst.wechsel_schema[1], 1) << "the order of the lanes is taken over as a whole";
    EXPECT_TRUE(start_mit({{323, "Neu"}, {324, "2"}}));
    EXPECT_EQ(p->einst.wechselschema_name, "Neu");
}

TEST_F(Einstellungsdatei, WahrheitswerteStehenInDerSpracheDerDatei) {
    std::vector<std::string> englisch = grund;
    std::replace(englisch.begin(), englisch.end(), std::string("Wahr"), std::string("True"));
    std::replace(englisch.begin(), englisch.end(), std::string("Falsch"), std::string("False"));
    EXPECT_TRUE(start_mit_datei(englisch));
    EXPECT_TRUE(p->einst.zielmodus_erster);
    EXPECT_FALSE(p->einst.freie_slots);
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
    EXPECT_EQ(p->einst.chaos_strafzeit, 10s);
    EXPECT_EQ(p->einst.auswertung_nach, sortier_modus::runden);
    EXPECT_EQ(p->einst.wechsel_schema[2], 6);
    EXPECT_EQ(p->einst.cu.cu_spur_wert[6], 15);
    EXPECT_EQ(p->einst.uart.uart_datei, "tvk_at2560.uart");

    EXPECT_FALSE(start_mit_datei({grund.begin(), grund.begin() + 200})) << "torn off";
    std::vector<std::string> verschoben = grund;
    verschoben.erase(verschoben.begin() + 30);  // Z 29
    EXPECT_FALSE(start_mit_datei(verschoben));
}

TEST_F(Einstellungsdatei, WettkampfdateiHatEineZeileDavorUndIhreDatenDahinter) {
    form1& haupt = t.p.form1;
    haupt.stddauer.text("1");
    haupt.renndauer.text("10");
    haupt.rennart.text("Runden");
    haupt.wertmin.text("4.5");
    haupt.t_aktiv.gesetzt(true);
    std::vector<std::string> wettkampf = t.p.datei.schreiben_fuer_wettkampf("Vereinsmeister");
    EXPECT_EQ(wettkampf.front(), "Wettkampfdatei: Vereinsmeister");
    EXPECT_EQ(wettkampf.size(), grund.size() + 1);
    wettkampf.emplace_back("Teilnehmer");
    ASSERT_TRUE(ablage.zeilen_schreiben("w.wtk", wettkampf));
    programm neu(t.maschine.dienste());
    neu.datei.einstellungsdatei_einlesen("w.wtk", true);
    neu.datei.einstellungsdatei_pruefen();
    EXPECT_FALSE(neu.datei.fehler_laden());
    ASSERT_FALSE(neu.datei.rest().empty());
    EXPECT_EQ(neu.datei.rest().back(), "Teilnehmer");
    neu.datei.einstellungen_uebernehmen({});
    wettkampfdatei_uebergeben(neu.einrichtung, neu.param);
    EXPECT_EQ(neu.param.min_rundenzeit_ms, 4500);
    EXPECT_EQ(neu.param.renndauer_ms, 3600000 + 600000);
    EXPECT_EQ(neu.param.renndauer_rest_ms, neu.param.renndauer_ms);
    EXPECT_TRUE(neu.param.tank_aktiv);
    neu.datei.einstellungsdatei_einlesen("w.wtk");
    EXPECT_TRUE(neu.datei.fehler_laden());
}

TEST_F(Einstellungsdatei, NichtSchreibbarMeldetSichUndLaesstDieAlteDatei) {
    const std::string alt = t.maschine.datei_lesen(datei);
    t.maschine.nicht_schreibbar = "einstellungen.ini";
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

TEST_F(Einstellungsdatei, SchreibweisenDesOrdnersMeinenDasselbe) {
    t.p.einst.tank_inhalt = 42;
    ASSERT_TRUE(ablage.zeilen_schreiben("Einstellungen/klub, alt.ini", t.p.datei.schreiben()));
    const std::string voll = (t.maschine.ordner() / "Einstellungen").string();
    for (const std::string& ordner :
         {std::string(), std::string("Einstellungen/"), std::string("Einstellungen\\"), voll + "/"}) {
        const programm& neu = startdatei_mit("\"" + ordner + "klub, alt.ini\"");
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty()) << ordner;
        EXPECT_EQ(neu.einst.tank_inhalt, 42) << ordner;
        EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: klub, alt.ini");
        EXPECT_EQ(neu.form1.Label6.tipp(), "Beim Programmstart: klub, alt.ini");
    }
}

TEST_F(Einstellungsdatei, FehltDieDateiDesStartsWirdSieMitDenStandardwertenAngelegt) {
    const programm& neu = startdatei_mit("Einstellungen/klub.ini");
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: klub.ini");
    EXPECT_TRUE(t.maschine.datei_da("Einstellungen/klub.ini"));
}

TEST_F(Einstellungsdatei, StartdateiOeffnetNieEineAndereDatei) {
    const std::string liste = t.maschine.datei_lesen("Listen/fahrer.lst");
    for (const char* name :
         {"Einstellungen\\..\\Listen\\fahrer.lst", "..\\Listen\\fahrer.lst", "C:\\x.ini", "/etc/x"}) {
        const programm& neu = startdatei_mit(name);
        EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: einstellungen.ini") << name;
        EXPECT_EQ(t.maschine.datei_lesen("Listen/fahrer.lst"), liste) << name;
    }
}

TEST_F(Einstellungsdatei, NeustartVerlangtEinenModusNurFuerDiesenStart) {
    t.p.einst.hardware.hw_lpt = true;
    ASSERT_TRUE(ablage.zeilen_schreiben("Einstellungen/iow.ini", t.p.datei.schreiben()));
    programm& neu = startdatei_mit("Einstellungen\\iow.ini", "2\r\n5\r\n");
    EXPECT_FALSE(neu.einst.hardware.hw_lpt);
    EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, modul_4x4::modus_2);
    EXPECT_EQ(s6_laden(ablage).zustand, "0");
    EXPECT_EQ(neu.form1.Label6.tipp(), "Beim Programmstart: einstellungen.ini");
    neu.form1.Command7.klicken();
    neu.speichernfenster.name.eingeben("iow");
    neu.speichernfenster.Command1.klicken();
    EXPECT_TRUE(neu.einst.hardware.hw_lpt) << "what is loaded later counts as it stands";
    EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, modul_4x4::aus);
    startdatei_mit("Einstellungen\\iow.ini", "2\r\n1\r\n");
    EXPECT_EQ(p->einst.hardware.hw_4x4_modus, modul_4x4::aus) << "there is no such mode";
}

}  // namespace
}  // namespace tarvel
