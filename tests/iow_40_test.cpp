#include "hardware/iow_40.h"

#include <algorithm>
#include <random>

#include "tests/kontaktgeraete_probe.h"

namespace tarvel::test {
namespace {

using Iow40 = Kontaktgeraet;

TEST_F(Iow40, AusgaengeHaltenKeinenEingangUndNurDieZugewiesenenSchalten) {
    iow_profil profil{};
    profil[0] = 24;
    profil[1] = 16;
    brett.produkt = 5377;
    iow_waehlen(profil);
    EXPECT_EQ(brett.laenge, 3U);
    EXPECT_EQ(iow_ausgang(1), 0xFE) << "the lane has power";
    t.starten("Runden", "5", {1});
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    EXPECT_EQ(iow_ausgang(1), 0xFF);
    t.p.programm_beenden();
    EXPECT_EQ(brett.schliessungen, 1);
    EXPECT_EQ(brett.ausgang[1], 0xFE) << "the last word reaches the board before it closes";
}

TEST_F(Iow40, EinePlatineDieHaengtHaeltDasRennenNichtAuf) {
    iow_waehlen();
    t.starten("Runden", "50", {1});
    puls(16, 1000);
    t.maschine.faeden_stehen = true;
    t.bahn().Command3.klicken();
    EXPECT_TRUE(pause());
    t.maschine.laufen(2100);
    EXPECT_FALSE(t.p.geraete.verbunden()) << "nothing reaches its outputs";
    t.maschine.laufen(200000);
    t.taste("1");
    t.maschine.faeden_stehen = false;
    EXPECT_EQ(iow_ausgang(3) & 0xF0, 0xF0) << "the pause has cut the power";
    t.maschine.laufen(60);
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_EQ(brett.schliessungen, 0);
    brett.steckt = false;
    t.maschine.laufen(1100);
    EXPECT_FALSE(t.p.geraete.verbunden());
    EXPECT_EQ(brett.schliessungen, 1);
}

TEST_F(Iow40, NebenEinemAnderenGeraetSchaltetEsNur) {
    iow_waehlen();
    lpt_waehlen();
    EXPECT_EQ(iow_ausgang(3) & 0xF0, 0x00) << "the lanes have power";
    t.starten("Runden", "5", {1});
    puls(16, 1000);
    EXPECT_EQ(t.runden(1), -1) << "another device measures";
    t.bahn().Command3.klicken();
    EXPECT_EQ(iow_ausgang(3) & 0xF0, 0xF0);
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(5000);
    brett.steckt = false;
    t.maschine.laufen(2000);
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_FALSE(pause());
    brett.steckt = true;
    brett.ausgang = {};
    t.maschine.laufen(1100);
    EXPECT_EQ(iow_ausgang(3), 0x0F);
    t.p.fenster.zeigen(fenstername::usbtest);
    t.p.fenster.entladen(fenstername::usbtest);
    EXPECT_EQ(iow_ausgang(3) & 0xF0, 0x00) << "the test window gives it back";
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Iow40, EineAbgezogenePlatineWirdWiederGefunden) {
    iow_waehlen();
    t.starten("Runden", "50", {1});
    puls(16, 1000);
    t.maschine.laufen(3000);
    kontakt(bit(16), true, 3000);
    brett.steckt = false;
    t.maschine.laufen(1100);
    EXPECT_FALSE(t.p.geraete.verbunden());
    t.maschine.laufen(2000);
    brett.steckt = true;
    brett.ausgang = {};
    t.maschine.laufen(3000);
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_EQ(iow_ausgang(3) & 0xF0, 0x00) << "its outputs are as they were";
    EXPECT_EQ(t.runden(1), 1) << "the car has stood there all the time";
    kontakt(bit(16), false, 4000);
    puls(16, 1000);
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Iow40, OhnePlatineOderBibliothekBleibtDieTastatur) {
    const auto& text = t.p.txt.meldung;
    brett.steckt = false;
    iow_waehlen();
    EXPECT_EQ(gemeldet(), text[1]);
    EXPECT_TRUE(t.p.einst.hardware.hw_simulation);
    brett.steckt = true;
    brett.produkt = 4711;
    iow_waehlen();
    EXPECT_TRUE(t.p.einst.hardware.hw_iow) << "a board that nobody knows is as the first one";
    EXPECT_EQ(brett.laenge, 5U);
    t.p.ablage.loeschen(t.p.einst.iow.iow_datei);
    iow_starten();
    EXPECT_EQ(gemeldet(), text[11]);
    EXPECT_TRUE(t.p.einst.hardware.hw_iow);
    t.maschine.bibliotheken.da["iowkit"].erase("IowKitWrite");
    iow_waehlen();
    EXPECT_TRUE(t.p.einst.hardware.hw_iow) << "the library is still loaded";
}

TEST_F(Iow40, DerFehlendeRufStehtImFenster) {
    t.maschine.bibliotheken.da["iowkit"].erase("IowKitWrite");
    iow_waehlen();
    EXPECT_EQ(gemeldet(), t.p.txt.meldung[1]);
    t.p.fenster.zeigen(fenstername::usbtest);
    const usbtest& w = t.p.geraete.von<iow_verdrahtung>().usbtest;
    EXPECT_NE(w.zustand.text().find("IowKitWrite"), std::string::npos);
    EXPECT_NE(w.protokoll.zeilen().back().find("IowKitWrite"), std::string::npos);
}

TEST_F(Iow40, EinePlatineDieHaengtHaeltIhrFensterNichtAuf) {
    iow_waehlen();
    usbtest& w = t.p.geraete.von<iow_verdrahtung>().usbtest;
    t.p.fenster.zeigen(fenstername::usbtest);
    t.maschine.laufen(1100);
    t.maschine.faeden_stehen = true;
    w.c[23].umschalten();
    t.maschine.laufen(3100);
    EXPECT_NE(w.zustand.text().find("nimmt nichts mehr an"), std::string::npos);
    w.Command6.klicken();
    EXPECT_EQ(brett.schliessungen, 1) << "the race's own; this one is left behind";
    EXPECT_EQ(gemeldet(), t.p.txt.meldung[1]) << "for the race there is none now";
    t.p.fenster.zeigen(fenstername::usbtest);
    EXPECT_NE(w.zustand.text().find("nimmt nichts mehr an"), std::string::npos);
    t.maschine.faeden_stehen = false;
    t.maschine.laufen(1100);
    EXPECT_EQ(brett.schliessungen, 2);
    EXPECT_NE(w.zustand.text().find("IO-Warrior 40"), std::string::npos);
    EXPECT_EQ(brett.ausgang[3], 0xFF);
}

TEST_F(Iow40, WasDieBibliothekAuchSagtIstKeinAbsturz) {
    iow_waehlen();
    t.starten("Runden", "50", {1, 2, 3, 4});
    for (const std::uint32_t bytes : {0U, 1U, 2U, 3U, 4U, 6U, 8U, 0xFFFFFFFFU}) {
        brett.gelesen = bytes;
        puls(16, 1000);
        EXPECT_EQ(t.runden(1), -1) << "a report that is cut is none";
    }
    brett.gelesen = 5;
    puls(16, 1000);
    EXPECT_EQ(t.runden(1), 0);
    std::mt19937 zufall(7);
    for (int n = 0; n < 20000; ++n) {
        brett.kontakte = static_cast<std::uint32_t>(zufall());
        brett.gelesen = zufall() % 4 == 0 ? static_cast<std::uint32_t>(zufall()) : 5;
        t.maschine.laufen(1);
    }
}

TEST_F(Iow40, ProfildateiMitFehlern) {
    const auto laden = [&](const std::string& inhalt) {
        t.maschine.datei_schreiben("x.iow", inhalt);
        return iow_profil_laden(t.p.ablage, "x.iow");
    };
    std::string bytes;
    for (const ereignis_art nummer : iow_werkseinstellung()) {
        bytes += std::to_string(nummer) + "\r\n";
    }
    EXPECT_EQ(laden(bytes), iow_werkseinstellung());
    for (std::size_t ende = 0; ende < bytes.size() - 3; ++ende) {
        laden(bytes.substr(0, ende));
    }
    EXPECT_FALSE(laden(bytes.substr(0, bytes.size() - 4)));
    const auto mit_kopf = laden("Wettkampfdatei: Abend\r\n" + bytes);
    ASSERT_TRUE(mit_kopf);
    EXPECT_EQ((*mit_kopf)[0], 0);
    EXPECT_EQ((*mit_kopf)[31], 31);
    const auto wild = laden("60\r\n-1\r\n99999999999999\r\n" + bytes);
    ASSERT_TRUE(wild);
    EXPECT_EQ(belegung_von(*wild)[1].iow_maske, 8);
    EXPECT_EQ(linien_von(*wild)[0], 0);
}

TEST_F(Iow40, UsbtestPrueftSchaltetUndSpeichert) {
    iow_waehlen();
    usbtest& w = t.p.geraete.von<iow_verdrahtung>().usbtest;
    t.p.fenster.zeigen(fenstername::usbtest);
    kontakt(bit(16), true, 50);
    EXPECT_TRUE(w.lampe[15].gesetzt());
    EXPECT_NE(w.protokoll.zeilen().back().find("Rundenzählung 1"), std::string::npos);
    EXPECT_FALSE(w.c[15].sichtbar());
    w.c[7].umschalten();
    EXPECT_EQ(iow_ausgang(1), 0x7F);
    w.tp[0].eingeben("0");
    w.setzen.klicken();
    EXPECT_EQ(iow_ausgang(1), 0x01) << "the button on pin 0 is not held by an output";
    w.Command5.klicken();
    EXPECT_EQ(iow_ausgang(1), 0xFF);
    kontakt(bit(15), true, 50);
    EXPECT_FALSE(w.lampe[14].gesetzt()) << "the lamps stand still";
    w.lesen.klicken();
    EXPECT_EQ(w.tp[1].text(), "63");
    kontakt(bit(15), false, 50);
    EXPECT_FALSE(w.lampe[14].gesetzt()) << "and live again";
    w.combo_c[8].waehlen(16);
    w.Command3.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Ein Ereignis wurde mehrfach einem Port zugewiesen.");
    w.Command4.klicken();
    EXPECT_FALSE(w.Frame[2].sichtbar());
    w.iow_profildatei.eingeben("klub");
    w.Command3.klicken();
    EXPECT_EQ(t.p.einst.iow.iow_datei, "klub.iow");
    EXPECT_EQ(iow_profil_laden(t.p.ablage, "klub.iow")->at(2), 32);
    w.Command1.klicken();
    EXPECT_TRUE(w.Frame[2].sichtbar());
    EXPECT_EQ(w.combo_c[2].platz(), 3);
    w.combo_c[0].waehlen(24);
    w.c[0].umschalten();
    EXPECT_EQ(iow_ausgang(1), 0xFE) << "that pin, although another one has the same meaning";
    w.Command8.klicken();
    const auto& dateien = w.dateiliste.zeilen();
    w.dateiliste.auswaehlen(
        static_cast<int>(std::find(dateien.begin(), dateien.end(), "tvk_usb.iow") - dateien.begin()));
    w.Command10.klicken();
    EXPECT_EQ(t.p.einst.iow.iow_datei, "tvk_usb.iow") << "it is in force";
    EXPECT_EQ(w.combo_c[0].platz(), 1);
    kontakt(bit(16), true, 50);
    EXPECT_TRUE(w.lampe[15].gesetzt());
    brett.steckt = false;
    t.maschine.laufen(1100);
    EXPECT_NE(w.protokoll.zeilen().back().find("abgezogen"), std::string::npos);
    EXPECT_FALSE(w.lampe[15].gesetzt());
    brett.steckt = true;
    t.maschine.laufen(1100);
    w.Command6.klicken();
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_EQ(t.p.ausgaben.bericht.belegung[16].iow_maske, 128);
}

}  // namespace
}  // namespace tarvel::test
