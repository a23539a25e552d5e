#include <string>

#include "tests/timekeeper_probe.h"

namespace tarvel::test {
namespace {

TEST_F(Timekeeper, DateiGehtRundUndVerdorbeneWerteWerdenKeine) {
    tk_profil p;
    p.modus = spurmodus::digital_143;
    p.tk_sensor_art[13] = 34;
    p.tk_sensor_art[23] = 59;
    ASSERT_TRUE(tk_profil_speichern(t.p.ablage, "klub", p));
    tk_profil q;
    ASSERT_TRUE(tk_profil_laden(t.p.ablage, "klub", q));
    EXPECT_EQ(p, q);
    t.maschine.datei_schreiben("klub.tk", tk_datei(9, "2 61 -4 x 13"));
    ASSERT_TRUE(tk_profil_laden(t.p.ablage, "klub", q));
    EXPECT_EQ((std::vector<int>(q.tk_sensor_art.begin(), q.tk_sensor_art.begin() + 6)),
              (std::vector<int>{0, 0, 0, 0, 13, 31}));
    t.p.einst.tk.tk_datei = "fremd";
    t.maschine.datei_schreiben("fremd.tk", "etwas\r\n\r\n1\r\n");
    einschalten();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, t.p.txt.meldung[23]);
    EXPECT_EQ(geraet().profil(), tk_profil());
}

TEST_F(Timekeeper, DasFensterProbiertSchreibtMitUndSpeichert) {
    bereit();
    tk_einstellungen& f = t.p.geraete.von<timekeeper_verdrahtung>().tk_einstellungen;
    std::get<befehl>(t.p.einstellungsfenster.zeile("tk_einrichten").element).klicken();
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::timekeeper));
    const auto protokoll = [&](const std::string& zeile) {
        const auto& alle = f.List1.zeilen();
        return std::find(alle.begin(), alle.end(), zeile) != alle.end();
    };
    t.maschine.laufen(2);
    EXPECT_TRUE(protokoll("Device description received:  #1 Timekeeper USB"));
    EXPECT_TRUE(protokoll("Command sent: activate"));
    sagt("Timekeeper_active><D3|700>");
    EXPECT_TRUE(protokoll("Data received: <Timekeeper_active><D3|700>"));
    EXPECT_TRUE(protokoll("Device activated"));
    EXPECT_EQ(f.kanaele[2].lampe.hintergrund(), 0x00C800U);
    t.maschine.laufen(1000);
    EXPECT_NE(f.kanaele[2].lampe.hintergrund(), 0x00C800U);
    sagt("Chaos_bttn|17>");
    EXPECT_TRUE(protokoll("Chaostaster 17"));
    f.firmware_lesen.klicken();
    sagt("V2.1>");
    EXPECT_EQ(f.firmware.text(), "V2.1");
    gesendet();
    f.ampel_check[5].umschalten();
    f.relais_check[4].umschalten();
    f.Option[3].umschalten();
    EXPECT_EQ(gesendet(), "ampelnGRon,relais4on,timest_start,mode2,digital143,mode?,digital?,");
    EXPECT_TRUE(protokoll("Modus 2 - Digital 143"));
    f.tk_command.eingeben("open 4");
    f.Send.klicken();
    t.maschine.laufen(2);
    sagt("D3|2|2345>");
    f.debug_close.klicken();
    t.maschine.laufen(2);
    EXPECT_TRUE(protokoll("tk_debug_info-4.txt open") && protokoll("file closed"));
    EXPECT_NE(t.maschine.datei_lesen("tk_debug_info-4.txt").find("2345"), std::string::npos);
    f.kanaele[13].sensorart.waehlen(5);
    f.tk_datei.eingeben("../klub");
    f.Speichern.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, t.p.txt.meldung[22]);
    f.tk_datei.eingeben("klub");
    f.Speichern.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::timekeeper));
    EXPECT_NE(gesendet().find("ampelnGRoff,relais4off,"), std::string::npos) << "nothing stays on";
    EXPECT_EQ(t.p.einst.tk.tk_datei, "klub");
    EXPECT_EQ(geraet().profil().tk_sensor_art[13], 34);
    EXPECT_EQ(geraet().profil().modus, spurmodus::digital_143) << "the device is in force again";
    EXPECT_TRUE(ftdi.offen);
}

TEST_F(Timekeeper, DasFensterSagtWennDasGeraetWegIst) {
    t.p.fenster.zeigen(fenstername::timekeeper);
    tk_einstellungen& f = t.p.geraete.von<timekeeper_verdrahtung>().tk_einstellungen;
    ftdi.fehler["FT_GetQueueStatus"] = 4;
    t.maschine.laufen(50);
    EXPECT_EQ(f.List1.zeilen().back(), "Queue error");
    ftdi.fehler = {{"FT_Read", 5}};
    f.suchen.klicken();
    sagt("D1|1>");
    EXPECT_EQ(f.List1.zeilen().back(), "FT_Read error ftStatus=5");
    ftdi.abziehen();
    f.Send.klicken();
    f.tk_command.eingeben("version");
    f.Send.klicken();
    t.maschine.laufen(2);
    EXPECT_EQ(f.List1.zeilen().back(), "Write Failed");
}

}  // namespace
}  // namespace tarvel::test
