#include "tests/timekeeper_probe.h"

namespace tarvel::test {
namespace {

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

}  // namespace
}  // namespace tarvel::test
