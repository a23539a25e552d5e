// The windows around the module.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/nebendateien.h"
#include "tests/tx_probe.h"

namespace tarvel {
namespace {

using test::com_am_modul;
using test::TxModul;

TEST_F(TxModul, DieListeNenntPortsUndIhreEreignisse) {
    t.maschine.anschluesse.bekannt[com_am_modul] = {"USB 0403:6001", "/dev/ttyUSB0", "Serial"};
    t.p.fenster.laden(fenstername::frmMain);
    t.maschine.laufen(4000);
    t.maschine.anschluesse.ereignis(com_am_modul, 7);
    tx.frm_main.Command6.klicken();
    EXPECT_EQ(tx.frm_main.hinweis.text(), "Firmware: V1.2") << "also where it is known";
    sagt("mod1\r1@\r");
    const auto& zeilen = tx.frm_main.List1.zeilen();
    for (const char* zeile : {"Port: COM5", "Typ: USB 0403:6001", " Name:/dev/ttyUSB0", " DESC: Serial", "EVENT 7"}) {
        EXPECT_EQ(std::count(zeilen.begin(), zeilen.end(), zeile), 1) << zeile;
    }
    EXPECT_EQ(zeilen.back(), "Digital IR-Modus") << "and no car 0";
}

TEST_F(TxModul, DasFensterZeigtJedenEingangUndSchaltetJedenAusgang) {
    t.p.einstellungsfenster.oeffnen(einstellungsfenster::seite_hardware);
    t.p.einstellungsfenster.hardware.at(4).umschalten();
    std::get<befehl>(t.p.einstellungsfenster.zeile("tx_einrichten").element).klicken();
    t.maschine.laufen(4000);
    frm_main& w = tx.frm_main;
    ASSERT_TRUE(tx.modul.verbunden()) << "also before it is chosen";
    sagt("mod4\r3?\r");
    const auto aus = w.lampe_eingang[0].hintergrund();
    EXPECT_NE(w.lampe_eingang[2].hintergrund(), aus);
    EXPECT_EQ(w.hinweis.text(), "Eingang 3: Rundenzählung 3");
    t.maschine.laufen(1000);
    EXPECT_EQ(w.lampe_eingang[2].hintergrund(), aus);
    w.optModus[1].umschalten();
    sagt("mod1\r2;\r");
    EXPECT_EQ(w.auto_sensor[1].text(), "5");
    gesendet();
    w.chkTrafficAll.umschalten();
    w.chkBahnStrom[3].umschalten();
    w.chkBahnStrom[5].umschalten();
    EXPECT_EQ(gesendet(), "IHGFEC") << "lane 5 has no output";
    w.Command2[2].klicken();
    w.Check2.umschalten();
    w.optModus[0].umschalten();
    w.Command3.klicken();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.back().text.starts_with("Ohne Modus misst das Modul nicht"))
        << "and it waits for one";
    w.optModus[1].umschalten();
    w.Command3.klicken();
    EXPECT_FALSE(offen(fenstername::frmMain));
    EXPECT_FALSE(tx.modul.verbunden());
    EXPECT_EQ(t.p.einst.s6.s6_eingang_modus[6][3], art::tanken_ein[6]);
    EXPECT_EQ(t.p.einst.s6.s6_eingang_modus[5][4], art::tanken_aus[5]);
    t.p.einstellungsfenster.Command1.klicken();
    t.maschine.laufen(4000);
    EXPECT_TRUE(tx.modul.verbunden());
    EXPECT_EQ(t.p.einst.hardware.hw_4x4_modus, modul_4x4::modus_1);
    EXPECT_EQ(t.p.einst.s6.s6_eingang_modus[6][3], art::tanken_ein[6]) << "the options show what the window has set";
    t.p.fenster.zeigen(fenstername::frmMain);
    w.optModus[3].umschalten();
    gesendet();
    w.Command4.klicken();
    EXPECT_TRUE(gesendet().starts_with("01")) << "the race has its mode back";
    t.p.fenster.zeigen(fenstername::frmMain);
    w.optModus[2].umschalten();
    w.Command3.klicken();
    EXPECT_EQ(t.p.einst.hardware.hw_4x4_modus, modul_4x4::modus_2) << "of the module in force it holds at once";
    EXPECT_TRUE(tx.modul.verbunden());
}

TEST_F(TxModul, WechselZwischenAnalogUndDigitalBietetDenNeustartAn) {
    waehlen(modul_4x4::modus_1);
    waehlen(modul_4x4::modus_3);
    EXPECT_FALSE(offen(fenstername::s6_fragefenster));
    waehlen(modul_4x4::modus_4);
    ASSERT_TRUE(offen(fenstername::s6_fragefenster));
    tx.s6_fragefenster.Command2.klicken();
    EXPECT_FALSE(t.maschine.datei_da("tvk_s6_load.ini"));
    waehlen(modul_4x4::modus_2);
    ASSERT_TRUE(offen(fenstername::s6_fragefenster));
    tx.s6_fragefenster.Command4.klicken();
    EXPECT_EQ(t.maschine.beendet, 1);
    EXPECT_EQ(s6_laden(t.p.ablage).zustand, "2");
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, modul_4x4::modus_2) << "though the file says otherwise";
}

TEST_F(TxModul, DerStartFragtNachDemModusSolangeEsSoEingestelltIst) {
    t.p.einst.s6.s6_option = true;
    t.p.form1.Command5.klicken();
    t.p.speichernfenster.name.eingeben("klub");
    t.p.speichernfenster.Command1.klicken();
    struct fall {
        std::function<void(s6_fragefenster&)> antwort;
        modul_4x4 modus;
    };
    for (const fall& f :
         std::vector<fall>{{[](auto& w) { w.Option1[0].umschalten(), w.Command1.klicken(); }, modul_4x4::modus_4},
                           {[](auto& w) { w.Option1[1].umschalten(), w.Command1.klicken(); }, modul_4x4::modus_3},
                           {[](auto& w) { w.Option1[2].umschalten(), w.Command1.klicken(); }, modul_4x4::modus_2},
                           {[](auto& w) { w.Option1[3].umschalten(), w.Command1.klicken(); }, modul_4x4::modus_1},
                           {[](auto& w) { w.Option1[4].umschalten(), w.Command1.klicken(); }, modul_4x4::aus},
                           {[](auto& w) { w.schliessen(); }, modul_4x4::aus}}) {
        programm neu(t.maschine.dienste());
        neu.starten();
        EXPECT_TRUE(neu.fenster.ist_offen(fenstername::s6_fragefenster));
        EXPECT_FALSE(neu.fenster.ist_offen(fenstername::Form1));
        f.antwort(neu.geraete.von<tx_verdrahtung>().s6_fragefenster);
        EXPECT_TRUE(neu.fenster.ist_offen(fenstername::Form1));
        EXPECT_EQ(neu.einst.hardware.hw_4x4_modus, f.modus);
        EXPECT_EQ(neu.form1.Label6.text(), "Einstellungsdatei: klub.ini");
    }
    t.p.einst.s6.s6_option = false;
    t.maschine.antwort = true;
    t.p.form1.Command5.klicken();
    t.p.speichernfenster.Command1.klicken();
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_TRUE(neu.fenster.ist_offen(fenstername::Form1));
}

}  // namespace
}  // namespace tarvel
