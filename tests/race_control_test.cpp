#include "hardware/race_control.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "programm/race_control_verdrahtung.h"
#include "tests/plattform/geraete_mithoerer.h"
#include "tests/plattform/testprogramm.h"
#include "tools/ersatz/race_control/bibliothek.h"
#include "tools/ersatz/race_control/box.h"

namespace tarvel {
namespace {

constexpr int com = 7;
constexpr std::int64_t tickende = std::int64_t{1} << 32;

void bibliothek_hinlegen(test::test_bibliotheken& b) {
    b.ruf("RaceControl", "InitBoxes", &InitBoxes);
    b.ruf("RaceControl", "OpenBox", &OpenBox);
    b.ruf("RaceControl", "RX_data", &RX_data);
    b.ruf("RaceControl", "Get_Event", &Get_Event);
    b.ruf("RaceControl", "Get_TXDat", &Get_TXDat);
    b.ruf("RaceControl", "Get_TStamp", &Get_TStamp);
}

/// The program with a simulated box at COM7, on one clock, and the library that understands it.
class RaceControl : public testing::Test {
protected:
    explicit RaceControl(const simulator::rc_box_einstellung& einst = {}) { box_hinstellen(einst); }

    void box_hinstellen(const simulator::rc_box_einstellung& einst) {
        box = std::make_unique<simulator::rc_box>(einst);
        box->senden = [this](std::string_view bytes) { leitung += bytes; };
    }
    void SetUp() override {
        bibliothek_hinlegen(t.maschine.bibliotheken);
        t.maschine.anschluesse.da = {com};
        t.maschine.anschluesse.geraet = [this](int /*com*/, std::string_view bytes) { box->empfangen(bytes); };
        t.p.einst.rc.anschluss.rc_com_port = "COM7";
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_race_control = true;
    }
    /// Opens it, and lets it become active.
    void verbinden() {
        t.p.geraete.hardware_starten(false);
        laufen(600);
    }
    /// The line carries a byte each other millisecond, as 4800 baud do.
    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            box->weiter(t.maschine.jetzt());
            if (!leitung.empty() && t.maschine.jetzt() % 2 == 0) {
                t.maschine.anschluesse.senden(com, leitung.substr(0, 1));
                leitung.erase(0, 1);
            }
            t.maschine.laufen(1);
        }
    }
    /// A contact straight from the library.
    void kontakt(int sensor, zeit_ms um) {
        satz({simulator::rc_draht::art::ueberfahrt, static_cast<std::uint8_t>(sensor), ticks(um)});
    }
    void satz(const simulator::rc_draht::satz& s) {
        t.maschine.anschluesse.senden(com, simulator::rc_draht::schreiben(s));
    }
    static std::uint32_t ticks(zeit_ms ms) { return static_cast<std::uint32_t>((ms * 24 + 4) / 5); }
    ereignis_zeile& zeile(ereignis_art art) { return t.p.ereignisse[art]; }
    zeit_ms messzeit() { return t.p.rennen.zeit.messzeit_lesen(); }

    void rennen_starten(const char* minuten) {
        t.einrichten(t.p.txt.text_zeit, minuten, {1, 2, 3, 4});
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.p.einst.zielmodus_erster = true;
        laufen(500);
        t.bahn().Command1.klicken();
        for (int i = 0; i < 30000 && (t.p.rennen.zustand.rennen_beendet || t.p.rennen.umgebung.ampel_laeuft()); ++i) {
            laufen(1);
        }
        box->los();
    }
    void kabel_ziehen(zeit_ms dauer) {
        t.maschine.anschluesse.abziehen(com);
        t.maschine.anschluesse.da.clear();
        for (zeit_ms davor = messzeit(), i = 0; i < dauer; ++i) {
            laufen(1);
            ASSERT_EQ(messzeit(), ++davor) << "the race's clock runs on";
            leitung.clear();
        }
        EXPECT_FALSE(t.p.geraete.verbunden());
    }
    std::vector<zeit_ms> ueberfahrten(int wagen) const {
        std::vector<zeit_ms> stempel;
        for (const simulator::ueberfahrt& fahrt : box->fahrten()) {
            if (fahrt.wagen == wagen && fahrt.sensor == 1) {
                stempel.push_back(fahrt.stempel);
            }
        }
        return stempel;
    }
    void alle_runden_stimmen(int mindestens) {
        for (const int spur : {1, 2, 3, 4}) {
            const std::vector<zeit_ms> stempel = ueberfahrten(spur);
            const int runden = t.runden(spur);
            ASSERT_GE(runden, mindestens);
            ASSERT_LT(static_cast<std::size_t>(runden), stempel.size());
            for (int runde = 1; runde <= runden; ++runde) {
                const auto i = static_cast<std::size_t>(runde);
                ASSERT_EQ(t.p.rennen.zustand.konto.rundenzeit(spur, runde), stempel[i] - stempel[i - 1])
                    << spur << " " << runde;
            }
        }
    }

    test::testprogramm t;
    std::unique_ptr<simulator::rc_box> box;
    std::string leitung;
};

simulator::rc_box_einstellung vier_wagen() {
    simulator::rc_box_einstellung einst;
    einst.rennen.wagen.resize(4);
    einst.rennen.uhr_start = 5000;
    return einst;
}

TEST_F(RaceControl, DreissigMinutenUeberDasEndeDerTicksHinwegStimmtJedeRunde) {
    simulator::rc_box_einstellung einst = vier_wagen();
    einst.ticks_start = tickende - std::int64_t{600} * 4800;
    einst.rennen.gang_ppm = 300;
    box_hinstellen(einst);
    verbinden();
    ASSERT_TRUE(t.p.geraete.verbunden());
    rennen_starten("30");
    laufen(zeit_ms{32} * 60 * 1000);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    alle_runden_stimmen(200);
}

TEST_F(RaceControl, DieUhrDesRennensIstDieDerBox) {
    box_hinstellen(vier_wagen());
    verbinden();
    t.einrichten(t.p.txt.text_zeit, "5", {1});
    t.bahn().Command1.klicken();
    for (int i = 0; i < 500; ++i) {
        laufen(7);
        ASSERT_NEAR(static_cast<double>(messzeit()), static_cast<double>(box->uhr()), 16) << "what the line takes";
    }
}

TEST_F(RaceControl, AbgezogenUndWiederDaKostetKeineZeit) {
    enum class was { kabel_heraus, kabel_heraus_und_aus, kurz_aus };
    for (const was fall : {was::kabel_heraus, was::kabel_heraus_und_aus, was::kurz_aus}) {
        const bool neue_uhr = fall != was::kabel_heraus;
        box_hinstellen(vier_wagen());
        verbinden();
        rennen_starten("4");
        laufen(60000);
        if (fall != was::kurz_aus) {
            kabel_ziehen(20000);
        } else {
            for (const std::size_t bisher = ueberfahrten(1).size(); ueberfahrten(1).size() == bisher;) {
                laufen(1);
            }
            laufen(6000);  // the next ones come soon
        }
        const zeit_ms gefahren = box->uhr();
        if (neue_uhr) {
            box->neustart();
        } else {
            box->verbunden();
        }
        t.maschine.anschluesse.da = {com};
        laufen(zeit_ms{5} * 60 * 1000);
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        for (const int spur : {1, 2, 3, 4}) {
            std::vector<zeit_ms> wahr = ueberfahrten(spur);  // on a clock that does not begin anew
            for (std::size_t i = 1; i < wahr.size(); ++i) {
                wahr[i] += wahr[i] < wahr[i - 1] ? gefahren - 5000 : 0;
            }
            zeit_ms bisher = wahr[0];
            for (int runde = 1; runde <= t.runden(spur); ++runde) {
                bisher += t.p.rennen.zustand.konto.rundenzeit(spur, runde);
                const zeit_ms fehlt = *std::min_element(wahr.begin(), wahr.end(), [&](zeit_ms x, zeit_ms y) {
                    return std::abs(x - bisher) < std::abs(y - bisher);
                }) - bisher;
                EXPECT_LE(std::abs(fehlt), neue_uhr ? 20 : 0) << spur << " " << runde;
                EXPECT_TRUE(fall != was::kurz_aus || t.p.rennen.zustand.konto.rundenzeit(spur, runde) < 10000);
            }
            EXPECT_GE(t.runden(spur), 24);
        }
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.fenster.entladen(fenstername::bahn1);
    }
}

TEST_F(RaceControl, WasWartenMussteHatDieZeitDerBox) {
    box_hinstellen(vier_wagen());
    verbinden();
    rennen_starten("3");
    for (const zeit_ms dauer : {300, 2300, 9000}) {
        laufen(11000);
        t.maschine.uhr_stellen(dauer);  // neither timers nor bytes; the cars drive on
        box->weiter(t.maschine.jetzt());
        t.maschine.anschluesse.senden(com, std::exchange(leitung, {}));
    }
    laufen(zeit_ms{3} * 60 * 1000);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    alle_runden_stimmen(18);
}

TEST_F(RaceControl, EinePauseKommtVonDerRundeAb) {
    box_hinstellen(vier_wagen());
    verbinden();
    rennen_starten("3");
    laufen(21000);
    t.bahn().Command3.klicken();
    const zeit_ms von = box->uhr();
    laufen(40000);
    t.bahn().Command3.klicken();
    while (t.p.rennen.zustand.chaos_aktiv) {
        laufen(1);
    }
    const zeit_ms bis = box->uhr();
    laufen(20000);
    for (const int spur : {1, 2, 3, 4}) {
        const std::vector<zeit_ms> stempel = ueberfahrten(spur);
        ASSERT_GE(t.runden(spur), 3);
        const zeit_ms summe = t.p.rennen.zustand.konto.stempel(spur, t.runden(spur)) - stempel[0] - (bis - von);
        zeit_ms gezaehlt = 0;
        for (int runde = 1; runde <= t.runden(spur); ++runde) {
            gezaehlt += t.p.rennen.zustand.konto.rundenzeit(spur, runde);
        }
        EXPECT_NEAR(static_cast<double>(gezaehlt), static_cast<double>(summe), 20) << spur;
    }
}

TEST_F(RaceControl, SensorenZaehlenFuerIhreSpurUndFuerWasSieSonstNochSind) {
    verbinden();
    for (const bool tank : {false, true}) {
        for (const bool ziel : {false, true}) {
            t.p.einst.rc.rc_tank_sensor34 = tank;
            t.p.einst.rc.rc_ziel_sensor34 = ziel;
            constexpr std::array<std::array<ereignis_art, 3>, 4> rollen{
                {{16, 32, 0}, {15, 30, 0}, {14, 31, 16}, {13, 29, 15}}};
            for (int sensor = 0; sensor < 4; ++sensor) {
                const auto& [runde, kontakt_art, zweite] = rollen.at(static_cast<std::size_t>(sensor));
                for (ereignis_art art = 1; art < 60; ++art) {
                    zeile(art).aktiv = false;
                }
                satz({simulator::rc_draht::art::verlassen, static_cast<std::uint8_t>(sensor), ticks(box->uhr())});
                EXPECT_FALSE(zeile(runde).aktiv);
                t.p.einst.rc.rc_sensor.at(static_cast<std::size_t>(sensor)) = 0;
                kontakt(sensor, box->uhr());
                EXPECT_FALSE(zeile(runde).aktiv) << "no lane's";
                t.p.einst.rc.rc_sensor.at(static_cast<std::size_t>(sensor)) = runde;
                kontakt(sensor, box->uhr());
                for (ereignis_art art = 13; art <= 32; ++art) {
                    const bool soll = art == runde || (ziel && art == zweite);
                    EXPECT_EQ(zeile(art).aktiv, soll) << sensor << " " << art << " the fuel takes its own at once";
                }
                EXPECT_EQ(zeile(runde).ereignis_zeit, box->uhr());
                EXPECT_EQ(zeile(kontakt_art).ereignis_zeit == box->uhr(), tank);
                zeile(kontakt_art).ereignis_zeit = 0;
            }
        }
    }
}

TEST_F(RaceControl, EineUeberfahrtDerZweitenZiellinieZaehltEinmal) {
    simulator::rc_box_einstellung einst = vier_wagen();
    einst.rennen.wagen.resize(2);
    box_hinstellen(einst);
    verbinden();
    t.p.einst.rc.rc_ziel_sensor34 = true;
    t.einrichten(t.p.txt.text_zeit, "5", {1, 2});
    t.bahn().Command1.klicken();
    for (int runde = 0; runde <= 5; ++runde) {
        laufen(6000);
        kontakt(2, box->uhr());
        laufen(5);
        EXPECT_EQ(t.runden(1), runde);
        EXPECT_EQ(t.runden(2), -1);
    }
}

TEST_F(RaceControl, WasFehltEndetInSeinerMeldung) {
    const auto gemeldet = [this] { return t.maschine.meldungen_gezeigt.back().text; };
    auto& fenster = t.p.geraete.von<race_control_verdrahtung>().rc_einstellungen;
    const auto starten = [&] {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_race_control = true;
        t.p.geraete.hardware_starten(false);
    };
    const auto letzter_schritt = [&] {
        fenster.oeffnen("COM7");
        fenster.doInit.klicken();
        std::string text = fenster.status.text();
        t.p.fenster.entladen(fenstername::rc_einstellungen);
        return text;
    };
    t.maschine.bibliotheken.da["RaceControl"].erase("Get_TXDat");
    starten();
    EXPECT_EQ(gemeldet(), "RaceControl kann nicht aktiviert werden.");
    EXPECT_TRUE(t.p.einst.hardware.hw_simulation && !t.p.einst.hardware.hw_race_control);
    EXPECT_EQ(letzter_schritt(), "Fehler: In der Bibliothek des Herstellers fehlt der Aufruf Get_TXDat");
    t.maschine.bibliotheken.da.clear();
    starten();
    EXPECT_EQ(letzter_schritt(), "Fehler: Bibliothek des Herstellers nicht gefunden: RaceControl");
    bibliothek_hinlegen(t.maschine.bibliotheken);
    t.maschine.anschluesse.da.clear();
    starten();
    EXPECT_EQ(gemeldet(), "COM-Port kann nicht geöffnet werden.");
    EXPECT_EQ(letzter_schritt(), "Fehler: COM-Port kann nicht geöffnet werden");
    t.maschine.anschluesse.da = {com};
    t.maschine.meldungen_gezeigt.clear();
    starten();  // a port without a box behind it
    EXPECT_FALSE(t.p.form1.inhalt.sichtbar());
    t.maschine.laufen(rc_antwortzeit.count() - 1);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    t.maschine.laufen(1);
    EXPECT_EQ(gemeldet(), "RaceControl kann nicht aktiviert werden.");
    EXPECT_TRUE(t.p.form1.inhalt.sichtbar() && t.p.einst.hardware.hw_race_control);
    t.maschine.laufen(60000);
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U) << "what is looked for silently is not told again";
    laufen(5000);
    EXPECT_TRUE(t.p.geraete.verbunden()) << "switched on meanwhile";
    t.maschine.anschluesse.abziehen(com);
    t.maschine.anschluesse.da.clear();
    t.einrichten(t.p.txt.text_zeit, "5", {1});
    EXPECT_EQ(gemeldet(), "COM-Port kann nicht geöffnet werden.") << "as its race window opens";
}

TEST_F(RaceControl, DasFensterZeigtSchritteUndSensorenUndBehaeltDieSpuren) {
    box_hinstellen(vier_wagen());
    t.p.einst.hardware = {};
    t.p.einst.rc.anschluss.rc_com_port = "COM1";
    auto& fenster = t.p.geraete.von<race_control_verdrahtung>().rc_einstellungen;
    auto& optionen = t.p.einstellungsfenster;
    optionen.oeffnen(einstellungsfenster::seite_hardware);
    std::get<auswahl>(optionen.zeile("selComPort").element).eingeben("COM7");
    std::get<befehl>(optionen.zeile("rc_einrichten").element).klicken();
    fenster.doInit.klicken();
    laufen(1000);
    EXPECT_EQ(fenster.List1.zeilen(),
              (std::vector<std::string>{"Port wird geöffnet", "RaceControl aktiviert", "TX Datenabfrage",
                                        "Box Konfiguration übertragen", "TX Datenabfrage",
                                        "Box Konfiguration übertragen", "Box aktiviert"}));
    kontakt(2, 3723004);
    EXPECT_EQ(fenster.sensoren[2].SensorTime.text(), "01:02:03.004");
    EXPECT_EQ(fenster.sensoren[2].SensorTimeStamp.text(), "17870420");
    const auto belegt = fenster.sensoren[2].SensorLED.hintergrund();
    satz({simulator::rc_draht::art::verlassen, 2, ticks(3723044)});
    leitung.clear();
    t.maschine.laufen(500);
    EXPECT_NE(fenster.sensoren[2].SensorLED.hintergrund(), belegt);
    leitung.clear();
    t.maschine.laufen(2100);
    EXPECT_EQ(fenster.status.text(), "Sensoren offline");
    t.maschine.anschluesse.abziehen(com);
    EXPECT_EQ(fenster.status.text(), "Fehler: Verbindung unterbrochen");
    fenster.sensoren[0].selSpur.waehlen(3);
    fenster.Command1.klicken();
    EXPECT_EQ(t.p.einst.rc.rc_sensor, (std::array<int, 4>{13, 15, 14, 13}));
    EXPECT_EQ(t.p.einst.rc.anschluss.rc_com_port, "COM7");
    EXPECT_FALSE(t.maschine.anschluesse.offen(com));
}

/// A library that says anything.
struct zufallsbibliothek {
    static inline std::mt19937 zufall{7};
    static inline int angefangen = 0;

    static unsigned eines(std::initializer_list<unsigned> haeufige) {
        const auto wurf = zufall() % (2 * haeufige.size());
        return wurf < haeufige.size() ? haeufige.begin()[wurf] : static_cast<unsigned>(zufall());
    }
    static void InitBoxes() { ++angefangen; }
    static std::int32_t OpenBox(std::int32_t /*box*/, const char* /*name*/) { return 3; }
    static std::int32_t RX_data(std::int32_t /*box*/, std::int32_t /*byte*/) {
        return static_cast<std::int32_t>(eines({0, 2, 2, 2, 0x8003, 0x8006, 0x8007}));
    }
    static std::uint8_t Get_Event(std::int32_t* ereignis) {
        *ereignis = static_cast<std::int32_t>(eines({0x200, 0x201, 0x302, 0x403, 0x500, 0x600}));
        return static_cast<std::uint8_t>(zufall() % 4);
    }
    static std::int32_t Get_TXDat(char* daten) {
        daten[0] = 'x';
        return static_cast<std::int32_t>(eines({0, 1, 1023})) % 1500;
    }
    static std::uint32_t Get_TStamp(std::int32_t /*box*/) { return static_cast<std::uint32_t>(zufall()); }
};

TEST_F(RaceControl, WasImmerDieBibliothekSagt) {
    using z = zufallsbibliothek;
    auto& b = t.maschine.bibliotheken;
    b.ruf("RaceControl", "InitBoxes", &z::InitBoxes);
    b.ruf("RaceControl", "OpenBox", &z::OpenBox);
    b.ruf("RaceControl", "RX_data", &z::RX_data);
    b.ruf("RaceControl", "Get_Event", &z::Get_Event);
    b.ruf("RaceControl", "Get_TXDat", &z::Get_TXDat);
    b.ruf("RaceControl", "Get_TStamp", &z::Get_TStamp);
    t.maschine.anschluesse.geraet = {};
    t.p.geraete.hardware_starten(false);
    t.maschine.anschluesse.senden(com, std::string(200, 'x'));
    t.maschine.laufen(10);
    t.einrichten(t.p.txt.text_zeit, "5", {1, 2, 3, 4});
    t.bahn().Command1.klicken();
    for (int i = 0; i < 20000; ++i) {
        t.maschine.anschluesse.senden(com, "12345");
        t.maschine.laufen(1);
    }
    EXPECT_EQ(std::count_if(t.maschine.meldungen_gezeigt.begin(), t.maschine.meldungen_gezeigt.end(),
                            [](const auto& m) { return m.text == "Unbekannter Fehler."; }),
              1)
        << "not once for each of them";
    t.p.geraete.hardware_starten(false);
    EXPECT_EQ(z::angefangen, 1) << "once a program";
}

}  // namespace
}  // namespace tarvel
