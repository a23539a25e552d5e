#include "hardware/timekeeper.h"

#include "programm/timekeeper_verdrahtung.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/programm_probe.h"

namespace tarvel::test {
namespace {

struct Timekeeper : testing::Test {
    Timekeeper() { ftdi.eintragen(t.maschine.bibliotheken); }
    void einschalten() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_timekeeper = true;
        t.p.geraete.hardware_starten(false);
    }
    /// Switched on, and the box's clock is known: it stands at `uhr`.
    void bereit(zeit_ms uhr = 5000) {
        einschalten();
        t.maschine.laufen(1000);
        zeit_sagen(uhr);
    }
    /// The box's clock from here on.
    void zeit_sagen(zeit_ms uhr) {
        beginn = t.maschine.jetzt() + 1 - uhr;
        sagt("|" + std::to_string(uhr) + ">");
    }
    zeit_ms geraetezeit() const { return t.maschine.jetzt() - beginn; }
    /// Signs that can be read for those of the frame; what is told then reaches the program.
    void sagt(std::string bytes, bool mit_anfang = true) {
        bytes = (mit_anfang ? "<" : "") + bytes;
        std::replace(bytes.begin(), bytes.end(), '<', '\x02');
        std::replace(bytes.begin(), bytes.end(), '>', '\x03');
        std::replace(bytes.begin(), bytes.end(), '|', '\x17');
        ftdi.wartet += bytes;
        t.maschine.laufen(110);
    }
    /// What the thread that writes has written by now.
    std::string gesendet() {
        t.maschine.laufen(1);
        return std::exchange(ftdi.gesendet, {});
    }
    ereignis_zeile& zeile(ereignis_art art) { return t.p.ereignisse[art]; }
    timekeeper& geraet() { return t.p.geraete.von<timekeeper_verdrahtung>().tk; }

    test_ftdi ftdi;
    testprogramm t;
    zeit_ms beginn = 0;
};

std::string tk_datei(int modus, const std::string& arten) {
    std::string text = "Tarvel Timekeeper-Einstellungen\r\n\r\n" + std::to_string(modus) + "\r\n";
    for (const char zeichen : arten) {
        text += zeichen == ' ' ? std::string("\r\n") : std::string(1, zeichen);
    }
    return text + "\r\n";
}

TEST_F(Timekeeper, FaehrtInAllenModenHochUndStehtInDerStatuszeile) {
    constexpr std::array<const char*, 4> befehle{"mode0,", "mode1,", "mode2,digital124132,", "mode2,digital143,"};
    constexpr std::array<const char*, 4> namen{"Kein Modus", "Analog", "Digital 124/132", "Digital 143"};
    for (const std::size_t modus : {0U, 1U, 2U, 3U}) {
        t.maschine.datei_schreiben("tvk_tk.tk", tk_datei(static_cast<int>(modus), "16"));
        einschalten();
        gesendet();
        t.maschine.laufen(1000);
        EXPECT_TRUE(gesendet().starts_with(std::string("activate,timest_start,") + befehle.at(modus)));
        EXPECT_EQ(t.p.form1.modus_label.text(), std::string("Timekeeper: ") + namen.at(modus));
    }
    gesendet();
    t.maschine.laufen(22000);
    const std::string abgleiche = gesendet();
    EXPECT_EQ(std::count(abgleiche.begin(), abgleiche.end(), ','), 6 + 2) << abgleiche;
}

TEST_F(Timekeeper, JederSatzKommtAnWoImmerErGeschnittenIst) {
    struct fall {
        std::string satz;
        ereignis_art art;
    };
    bereit(100000);
    for (const fall& f : std::vector<fall>{{"<D1|100150>", 16}, {"<D12|100150>", 25}, {"<Chaos_bttn|9>", 1}}) {
        const std::string bytes = "<NAK><D7<D0|100150><D25|100150><D1|1x0150><D1|>D3|1>" + f.satz;
        for (std::size_t schnitt = 0; schnitt <= bytes.size(); ++schnitt) {
            zeile(f.art) = {};
            sagt(bytes.substr(0, schnitt), false);
            sagt(bytes.substr(schnitt), false);
            EXPECT_TRUE(std::exchange(zeile(f.art).aktiv, false) || f.art == 25) << f.satz << schnitt;
            EXPECT_EQ(zeile(f.art).ereignis_zeit, f.art == 1 ? zeile(1).ereignis_zeit : 100150) << f.satz << schnitt;
            for (ereignis_art art = 1; art < 60; ++art) {
                EXPECT_FALSE(art != f.art && zeile(art).aktiv) << bytes << schnitt << " " << art;
            }
        }
    }
}

TEST_F(Timekeeper, ImDigitalmodusWaehltDerWagenDieSpurUndDerSensorDasEreignis) {
    t.maschine.datei_schreiben("tvk_tk.tk", tk_datei(2, "16 32 25 43 56 20 1 0"));
    bereit(1000);
    struct fall {
        std::string satz;
        ereignis_art art;
    };
    for (const fall& f :
         std::vector<fall>{{"D1|6|1100>", 35}, {"D4|2|1101>", 45}, {"D6|3|1102>", 20}, {"D7|4|1103>", 1}}) {
        sagt(f.satz);
        EXPECT_TRUE(std::exchange(zeile(f.art).aktiv, false)) << f.satz;
    }
    sagt("D5|2|1200>");
    EXPECT_TRUE(t.p.ereignisse.chaos_fahrer[2]);
    zeile(1).aktiv = false;
    for (const char* satz : {"D1|7|1300>", "D1|0|1300>", "D8|1|1300>", "D1|1300>"}) {
        sagt(satz);
        EXPECT_FALSE(zeile(16).aktiv || zeile(34).aktiv || zeile(1).aktiv) << satz;
    }
    sagt("D1||1||1400>");
    EXPECT_EQ(zeile(16).ereignis_zeit, 1400) << "separators may stand together";
}

TEST_F(Timekeeper, RundenHabenDieZeitDesGeraetsAuchWennDasProgrammStand) {
    bereit();
    t.starten("Runden", "20", {1, 2});
    t.maschine.laufen(1000);
    const zeit_ms erste = geraetezeit();
    sagt("D1|" + std::to_string(erste) + "><D2|" + std::to_string(erste + 1) + ">");
    t.maschine.laufen(7000);
    for (const zeit_ms runde : {7345, 14002}) {
        ftdi.wartet +=
            "\x02"
            "D1\x17" +
            std::to_string(erste + runde) + "\x03";  // both at once
    }
    t.maschine.uhr_stellen(8000);
    t.maschine.laufen(10);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 7345);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 14002 - 7345);
    EXPECT_EQ(t.runden(2), 0);
}

TEST_F(Timekeeper, DerErsteStempelGiltUndZeitantwortenStehenIrgendwo) {
    bereit();
    sagt("D1|5040><D1|5090><|5150><D2|5050>");
    EXPECT_EQ(zeile(16).ereignis_zeit, 5040);
    EXPECT_EQ(zeile(15).ereignis_zeit, 5050);
    EXPECT_EQ(geraet().uhr().lesen(t.maschine.jetzt()), 5150 + 109) << "the answer counted where it stood";
}

TEST_F(Timekeeper, DieUhrDesRennensFolgtDerDesGeraetsUndGehtNieZurueck) {
    bereit(0);
    t.starten("Zeit", "2", {1});
    zeit_ms vorher = 0;
    for (int i = 1; i < 12; ++i) {
        const double gang = 1.005;
        const zeit_ms weg = zeit_ms{i} % 3 * 7;  // the way of the answer
        const auto uhr = std::llround(static_cast<double>(geraetezeit()) * gang);
        t.maschine.laufen(weg);
        ftdi.wartet += "\x02\x17" + std::to_string(uhr) + "\x03";
        for (int ms = 0; ms < 5000; ++ms) {
            t.maschine.laufen(1);
            const zeit_ms jetzt = t.p.rennen.zeit.messzeit_lesen();
            ASSERT_GE(jetzt, vorher);
            vorher = jetzt;
        }
        const double wahr = static_cast<double>(geraetezeit()) * gang;
        EXPECT_NEAR(static_cast<double>(vorher), wahr, i < 4 ? 60 : 12) << i;
    }
}

TEST_F(Timekeeper, EineVerspaeteteErsteAntwortVerschiebtKeineRunde) {
    bereit(5000);
    beginn -= 3000;  // what the box said had been held up so long
    t.starten("Runden", "20", {1});
    t.maschine.laufen(1000);
    const zeit_ms erste = geraetezeit() - 3000;
    sagt("D1|" + std::to_string(erste) + ">");
    for (int i = 0; i < 2; ++i) {
        t.maschine.laufen(1000);
        sagt("|" + std::to_string(geraetezeit() + 1) + ">");
    }
    t.maschine.laufen(6000);
    sagt("D1|" + std::to_string(erste + 9000) + ">");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 9000);
}

TEST_F(Timekeeper, EinVerfaelschterStempelVerschiebtNichts) {
    bereit(100000);
    t.maschine.laufen(1000);
    for (const char* zeit : {"900000", "1234", "9999999999999"}) {
        zeile(16) = {};
        sagt("D1|" + std::string(zeit) + ">");
        EXPECT_NEAR(static_cast<double>(zeile(16).ereignis_zeit), static_cast<double>(geraetezeit() - 109), 2) << zeit;
        sagt("|" + std::string(zeit) + ">");
        EXPECT_NEAR(static_cast<double>(t.p.rennen.zeit.messzeit_lesen()), static_cast<double>(geraetezeit()), 2);
        sagt("|" + std::to_string(geraetezeit() + 1) + ">");
    }
    EXPECT_EQ(geraet().verworfene_saetze(), 3);
}

TEST_F(Timekeeper, AbgezogenImRennenUndWiederEingestecktZaehltEsWeiter) {
    bereit(50000);
    t.starten("Runden", "20", {1, 2});
    const auto ueberfahrt = [&](zeit_ms nach) {
        t.maschine.laufen(nach - 110);
        sagt("D1|" + std::to_string(geraetezeit()) + ">");
    };
    ueberfahrt(1000);
    ueberfahrt(8000);
    t.p.ausgaben.relais_on(2);
    ftdi.abziehen();
    t.maschine.laufen(3000);
    EXPECT_EQ(t.bahn().geraetealarm.text(), "Timekeeper: Analog – keine Verbindung");
    EXPECT_TRUE(t.bahn().geraetealarm.sichtbar());
    EXPECT_FALSE(ftdi.offen);
    ftdi.einstecken();
    gesendet();
    t.maschine.laufen(3500);
    EXPECT_FALSE(t.bahn().geraetealarm.sichtbar());
    const std::string befehle = gesendet();
    EXPECT_NE(befehle.find("activate,timest_start,mode1,"), std::string::npos);
    const std::size_t relais = befehle.find("relais2off,");
    EXPECT_TRUE(relais != std::string::npos && relais > befehle.find("activate,")) << befehle;
    zeit_sagen(300);  // its clock has begun anew
    ueberfahrt(1500);
    ueberfahrt(8000);
    EXPECT_EQ(t.runden(1), 3);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 8000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 2)), 3000 + 3500 + 110 + 1500, 5);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 3), 8000);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Timekeeper, EineZeitantwortSetztDenZaehlerDerStempelZurueck) {
    bereit();
    zeitbasis& zeit = t.p.rennen.zeit;
    for (int mal = 0; mal < 4; ++mal) {
        zeit.ereignis_zeit_lesen();
    }
    sagt("|" + std::to_string(geraetezeit() + 1) + ">");
    const zeit_ms jetzt = zeit.messzeit_lesen();
    EXPECT_EQ(zeit.ereignis_zeit_lesen(), jetzt + 1);
}

TEST_F(Timekeeper, EinGeraetDasNurAblehntFaehrtNeuHoch) {
    bereit();
    gesendet();
    for (int i = 0; i < 300; ++i) {
        sagt("NAK>");
    }
    EXPECT_NE(gesendet().find("activate,timest_start,mode1,"), std::string::npos);
}

TEST_F(Timekeeper, AusgaengeSprechenDieWorteDesGeraets) {
    bereit();
    gesendet();
    tarvel::ausgaben& aus = t.p.ausgaben;
    aus.ampelnRon(1);
    aus.ampelnRoff(0);
    aus.ampelnGRon();
    aus.relais_on(0);
    aus.relais_off(6);
    aus.rennende_signal(true);
    EXPECT_EQ(gesendet(), "ampelR1on,ampelnRoff,ampelnGRon,relais_off,relais6on,raceEndon,");
    aus.chaos_an();
    EXPECT_EQ(gesendet(), "relais_off,ampelnRon,ampelnGRoff,ampelnGEon,");
}

TEST_F(Timekeeper, AmEndeStehtDieBahnInRuheUndWerNichtsNimmtHaeltNichtAuf) {
    bereit();
    t.p.ausgaben.chaos_an();
    gesendet();
    int versuche = 0;
    ftdi.fehler["FT_Write"] = 4;
    ftdi.geraet = [&](std::string_view) { ++versuche; };
    t.p.ausgaben.chaos_aus();
    t.p.ausgaben.ruhezustand();
    EXPECT_EQ(versuche, 0) << "the loop writes nothing itself";
    t.maschine.laufen(1);
    EXPECT_EQ(versuche, 1) << "each may take seconds";
    ftdi.fehler.clear();
    t.maschine.laufen(5000);
    gesendet();
    t.p.programm_beenden();
    EXPECT_EQ(ftdi.gesendet, "relais_on,ampelnRoff,ampelnGRon,");
    EXPECT_FALSE(ftdi.offen);
}

TEST_F(Timekeeper, EinTreiberDerHaengtHaeltDenWechselDesGeraetsNichtAuf) {
    bereit();
    gesendet();
    t.maschine.faeden_stehen = true;
    t.p.ausgaben.chaos_an();
    t.p.einst.hardware = {};
    t.p.geraete.hardware_starten(false);
    EXPECT_TRUE(ftdi.offen && ftdi.gesendet.empty()) << "it is left behind";
    t.maschine.faeden_stehen = false;
    EXPECT_NE(gesendet().find("ampelnGEon"), std::string::npos) << "as it comes back it writes what waits";
    EXPECT_FALSE(ftdi.offen);
}

TEST_F(Timekeeper, WasNichtGehtNenntDieMeldungUndDieTastaturZaehlt) {
    struct fall {
        const char* ruf;
        const char* grund;
    };
    for (const fall& f : std::vector<fall>{{"FT_ListDevices", "FT_GetNumDevices failed"},
                                           {"FT_Open", "Open Failed"},
                                           {"FT_SetBaudRate", "SetBaudRate Failed"},
                                           {"FT_SetDataCharacteristics", "SetDataCharacteristics Failed"},
                                           {"FT_SetFlowControl", "SetFlowControl Failed"}}) {
        ftdi.fehler = {{f.ruf, 4}};
        einschalten();
        EXPECT_FALSE(t.p.einst.hardware.hw_timekeeper);
        EXPECT_TRUE(t.p.einst.hardware.hw_simulation);
        EXPECT_FALSE(ftdi.offen);
        ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.back().text.ends_with(f.grund));
        t.maschine.meldungen_gezeigt.clear();
    }
    ftdi.geraete = {"USB Serial Cable"};
    einschalten();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.back().text.ends_with("ListDevices failed"));
}

TEST_F(Timekeeper, OhneBibliothekOderRufBleibtDieTastatur) {
    t.maschine.bibliotheken.da["ftd2xx"].erase("FT_SetChars");
    einschalten();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.back().text.ends_with("ftd2xx lacks FT_SetChars"));
    t.maschine.bibliotheken.da.clear();
    einschalten();
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.back().text.ends_with("ftd2xx not found"));
    EXPECT_TRUE(t.p.einst.hardware.hw_simulation);
}

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
