#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/tx_probe.h"

namespace tarvel {
namespace {

using test::com_am_modul;
using test::TxModul;
using arten = std::vector<ereignis_art>;

TEST_F(TxModul, JedeZeileWirdVerstandenWoImmerDieBytesGeschnittenSind) {
    struct fall {
        modul_4x4 modus;
        std::string zeile;
        std::string antwort;
        arten ereignisse;
    };
    t.p.einst.s6.s6_eingang[8] = 56;
    for (const fall& f : std::vector<fall>{{modul_4x4::modus_1, "1?", "", {16}},
                                           {modul_4x4::modus_1, "2:", "", {35}},
                                           {modul_4x4::modus_2, "3>", "", {30}},
                                           {modul_4x4::modus_3, "4;", "", {37}},
                                           {modul_4x4::modus_1, "0<", "", {13}},
                                           {modul_4x4::modus_1, "x?", "", {16}},
                                           {modul_4x4::modus_1, "19", "", {}},
                                           {modul_4x4::modus_1, "1@", "", {}},
                                           {modul_4x4::modus_1, "17", "", {}},
                                           {modul_4x4::modus_1, "9?", "", {}},
                                           {modul_4x4::modus_1, "1\xFF", "", {}},
                                           {modul_4x4::modus_4, "2?", "", {15}},
                                           {modul_4x4::modus_4, "5V", "", {31}},
                                           {modul_4x4::modus_4, "8 ", "", {1}},
                                           {modul_4x4::modus_4, "0?", "", {}},
                                           {modul_4x4::modus_4, "9?", "", {}},
                                           {modul_4x4::modus_4, "?1", "", {}},
                                           {modul_4x4::modus_4, "RC2Long", "", {1}},
                                           {modul_4x4::modus_4, "RC2", "", {1}},
                                           {modul_4x4::modus_4, "TRAXIUM-USB", "+", {}},
                                           {modul_4x4::modus_3, "MODUS", "<", {}},
                                           {modul_4x4::modus_4, "1?2?", "", {}},
                                           {modul_4x4::modus_4, std::string(200, '1'), "", {}}}) {
        waehlen(f.modus);
        gruesst = antwortet = false;
        const std::string bytes = std::string("\n", 1) + f.zeile.substr(0, 1) + '\0' + f.zeile.substr(1) + "\r\n";
        for (std::size_t schnitt = 0; schnitt <= bytes.size(); ++schnitt) {
            t.maschine.laufen(1);
            sagt(bytes.substr(0, schnitt));
            sagt(bytes.substr(schnitt));
            EXPECT_EQ(gesendet(), f.antwort) << f.zeile;
            EXPECT_EQ(gemeldet(), f.ereignisse) << f.zeile << schnitt;
        }
        gruesst = antwortet = true;
    }
    EXPECT_TRUE(t.p.ereignisse.chaos_fahrer[3]);
}

TEST_F(TxModul, EsWirdAnJedemPortGesuchtUndDannZuerstAnSeinem) {
    for (const bool meldet_sich : {true, false}) {
        gruesst = meldet_sich;
        waehlen(modul_4x4::aus);
        t.p.einst.hardware.hw_4x4_modus = modul_4x4::modus_2;
        t.p.geraete.hardware_starten(false);
        t.maschine.laufen(4000);
        EXPECT_TRUE(tx.modul.verbunden());
        EXPECT_EQ(t.maschine.anschluesse.werte[com_am_modul], "9600,n,8,1");
        EXPECT_FALSE(t.maschine.anschluesse.offen(2));
        const std::string bytes = gesendet();
        EXPECT_NE(bytes.find("02"), std::string::npos) << bytes;
        EXPECT_NE(bytes.find("ABCDihgfe"), std::string::npos) << "power, and no lamp: " << bytes;
        EXPECT_EQ(t.p.form1.modus_label.text(), "4x4 USB: PRO-X Lochposition");
        EXPECT_EQ(t.maschine.datei_lesen("tvk_4x4.ini"), "\"V1.2\"\r\nFalsch\r\n5\r\n");
        EXPECT_EQ(gesendet(2).empty(), !meldet_sich) << "the second time it is where it was";
    }
    t.maschine.datei_schreiben("tvk_4x4.ini", "\"V1.2\"\r\nFalsch\r\n2\r\n");
    waehlen(modul_4x4::modus_2);
    EXPECT_TRUE(tx.modul.verbunden()) << "something else is where it was";
}

TEST_F(TxModul, OhneModulGehtEsOhneWeiter) {
    struct fall {
        std::set<int> ports;
        std::string meldung;
    };
    antwortet = false;
    for (const fall& f :
         {fall{{}, "Kann 4x4 USB nicht öffnen. Bitte das Modul aus-/einstecken!"},
          fall{{com_am_modul}, "4x4 USB kann nicht aktiviert werden. Bitte das Modul aus-/einstecken!"}}) {
        t.maschine.anschluesse.da = f.ports;
        t.maschine.meldungen_gezeigt.clear();
        t.p.einst.hardware.hw_4x4_modus = modul_4x4::modus_4;
        t.p.geraete.hardware_starten(false);
        EXPECT_TRUE(offen(fenstername::Form5));
        sagt("$GPVTG,1,T\r");  // another device
        t.maschine.laufen(5900);
        EXPECT_EQ(t.maschine.meldungen_gezeigt.empty(), !f.ports.empty());
        t.maschine.laufen(600);
        ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
        EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, f.meldung);
        EXPECT_EQ(t.p.form1.modus_label.text(), "Simulationsmodus");
        EXPECT_FALSE(t.maschine.anschluesse.offen(com_am_modul));
        t.maschine.laufen(2000);
        EXPECT_FALSE(offen(fenstername::Form5));
    }
}

TEST_F(TxModul, AusgaengeSindDieDesModuls) {
    tarvel::ausgaben& aus = t.p.ausgaben;
    struct fall {
        std::function<void()> tat;
        std::string vier;
        std::string sechs;
    };
    const std::vector<fall> faelle{
        {[&] { aus.ampelnRon(1); }, "I", "I"},         {[&] { aus.ampelnRon(4); }, "F", ""},
        {[&] { aus.ampelnRoff(5); }, "e", ""},         {[&] { aus.ampelnRon(0); }, "IHGFE", "IHG"},
        {[&] { aus.ampelnRoff(0); }, "ihgfe", "ihg"},  {[&] { aus.ampelnGRon(); }, "", ""},
        {[&] { aus.relais_on(2); }, "b", "b"},         {[&] { aus.relais_off(6); }, "", "F"},
        {[&] { aus.relais_off(0); }, "ABCD", "ABCDEF"}};
    waehlen(modul_4x4::modus_4);
    for (const bool sechs : {false, true}) {
        tx.modul.spuren_6_setzen(sechs);
        gesendet();
        for (const fall& f : faelle) {
            f.tat();
            EXPECT_EQ(gesendet(), sechs ? f.sechs : f.vier);
        }
    }
    EXPECT_TRUE(tx_datei_laden(t.p.ablage).spuren_6);
    t.p.einst.bahnstrom_invers = true;
    aus.relais_on(1);
    EXPECT_EQ(gesendet(), "A");
    tx.modul.tx_ausgang_setzen(0, false);
    EXPECT_EQ(gesendet(), "abcdefghi");
}

TEST_F(TxModul, WerSchweigtOderAbgezogenWirdIstWegUndKommtWieder) {
    waehlen(modul_4x4::modus_4);
    t.starten("Runden", "20", {1, 2});
    t.maschine.laufen(20000);
    ASSERT_TRUE(tx.modul.verbunden());
    const auto rundenzahl_nach_ueberfahrt = [&] {
        t.maschine.laufen(7000);
        sagt("1?\r");
        t.maschine.laufen(10);
        return t.runden(1);
    };
    sagt("1?\r");
    EXPECT_EQ(rundenzahl_nach_ueberfahrt(), 1);
    t.p.ausgaben.relais_on(2);
    gesendet();
    gesendet(2);
    const std::vector<std::function<void(bool)>> stoerungen{
        [&](bool da) { antwortet = da; },
        [&](bool da) {
            da ? (void)t.maschine.anschluesse.da.insert(com_am_modul) : t.maschine.anschluesse.abziehen(com_am_modul);
        }};
    for (const auto& stoerung : stoerungen) {
        stoerung(false);
        t.maschine.laufen(8000);
        EXPECT_FALSE(tx.modul.verbunden());
        EXPECT_TRUE(t.p.form1.modus_label.text().ends_with("keine Verbindung"));
        stoerung(true);
        t.maschine.laufen(8000);
        EXPECT_TRUE(tx.modul.verbunden());
        EXPECT_FALSE(offen(fenstername::Form5)) << "nobody waits for it in a race";
        const std::string bytes = gesendet();
        EXPECT_NE(bytes.find("04"), std::string::npos);
        EXPECT_GT(bytes.rfind('b'), bytes.find("ABCD")) << "the lane is dead as before: " << bytes;
        const int bisher = t.runden(1);
        EXPECT_EQ(rundenzahl_nach_ueberfahrt(), bisher + 1);
    }
    EXPECT_EQ(gesendet(2), "") << "the device beside it is left alone";
    sagt("TRAXIUM-USB\r");
    const std::string bytes = gesendet();
    EXPECT_GT(bytes.rfind('b'), bytes.find("ABCD")) << "it has begun anew, with its outputs at rest: " << bytes;
    EXPECT_TRUE(t.p.einst.hardware.hw_4x4());
}

TEST_F(TxModul, WasWaehrendEinesDialogsKamZaehltMitSeinerZeit) {
    waehlen(modul_4x4::modus_4);
    t.starten("Runden", "20", {1, 2});
    sagt("1?\r2?\r");
    t.maschine.laufen(10);
    const zeit_ms von = t.maschine.jetzt();
    t.maschine.uhr_stellen(30000);
    t.maschine.anschluesse.senden(com_am_modul, "1?\r2?\r", von + 7000);
    t.maschine.anschluesse.senden(com_am_modul, "1?\r5?\r1", von + 15000);
    t.maschine.anschluesse.senden(com_am_modul, "?\r", von + 24500);
    t.maschine.laufen(10);
    const rundenkonto& konto = t.p.rennen.zustand.konto;
    EXPECT_EQ(konto.runden(1), 3);
    EXPECT_EQ(konto.stempel(1, 1), von + 7000);
    EXPECT_EQ(konto.stempel(1, 2), von + 15000);
    EXPECT_EQ(konto.stempel(1, 3), von + 24500);
    EXPECT_EQ(konto.stempel(2, 1), von + 7000);
}

TEST_F(TxModul, EinTastendruckUndEinPersoenlicherTasterHaltenDasRennenAn) {
    t.p.einst.s6.s6_eingang[5] = 55;
    for (const char* zeile : {"RC2Long\r", "RC2\r", "5?\r"}) {
        waehlen(modul_4x4::modus_4);
        t.starten("Runden", "20", {1, 2});
        t.maschine.laufen(1000);
        sagt(zeile);
        t.maschine.laufen(5);
        EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv) << zeile;
        t.p.fenster.entladen(fenstername::bahn1);
    }
}

TEST_F(TxModul, EinModusDenEsVerpasstHatWirdNochmalsGesetzt) {
    waehlen(modul_4x4::modus_4);
    sagt("MODUS\r");
    t.maschine.laufen(1000);
    EXPECT_EQ(gesendet(), "<04");
    sagt("MODUS\rmod4\r");
    t.maschine.laufen(1000);
    EXPECT_EQ(gesendet(), "<");
    tx.modul.tx_modus_setzen(2);
    sagt("MODUS\r");
    t.maschine.laufen(1000);
    EXPECT_EQ(gesendet(), "02<02");
}

}  // namespace
}  // namespace tarvel
