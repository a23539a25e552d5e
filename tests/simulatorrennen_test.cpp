#include "programm/control_unit_verdrahtung.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/programm_probe.h"
#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"
#include "tools/simulator/m4x4.h"
#include "tools/simulator/timekeeper.h"

namespace tarvel::test {
namespace {

constexpr int com_der_leitung = 7;

/// The program against a simulated device, on one clock. The line carries a few characters a millisecond, so that every
/// record comes in pieces.
struct Simulatorrennen : testing::Test {
    void anschliessen(std::unique_ptr<simulator::geraet> neu) {
        geraet = std::move(neu);
        geraet->senden = [this](std::string_view bytes) { leitung += bytes; };
        t.maschine.anschluesse.da = {com_der_leitung};
        t.maschine.anschluesse.geraet = [this](int /*com*/, std::string_view bytes) { geraet->empfangen(bytes); };
        t.p.geraete.hardware_starten(false);
    }
    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            geraet->weiter(t.maschine.jetzt());
            if (!leitung.empty() && !leitung_steht) {
                t.maschine.anschluesse.senden(com_der_leitung, leitung.substr(0, zeichen_je_ms));
                leitung.erase(0, zeichen_je_ms);
            }
            t.maschine.laufen(1);
            if (t.p.rennen.zustand.chaos_aktiv != (pausen.size() % 2 == 1)) {
                pausen.push_back(geraet->uhr());
            }
        }
    }
    /// The line says nothing for so long, and then all at once.
    void leitung_stockt(zeit_ms dauer) {
        leitung_steht = true;
        laufen(dauer);
        leitung_steht = false;
        t.maschine.anschluesse.senden(com_der_leitung, std::exchange(leitung, {}));
    }
    /// Neither timers nor records; the cars drive on.
    void rechner_steht(zeit_ms dauer) {
        t.maschine.uhr_stellen(dauer);
        geraet->weiter(t.maschine.jetzt());
    }
    void starten(const char* minuten, const std::vector<int>& lanes = {1, 2, 3, 4, 5, 6}) {
        t.einrichten(t.p.txt.text_zeit, minuten, lanes);
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.p.einst.zielmodus_erster = true;
        t.p.fenster.neu_laden(fenstername::bahn1);  // a race keeps the settings that it began with
        laufen(500);
        t.bahn().Command1.klicken();
    }
    void control_unit_anschliessen(const simulator::control_unit_einstellung& einst) {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_cu = true;
        t.p.einst.cu.anschluss.cu_modus = com_der_leitung;
        t.p.einst.cu.cu_sondermodus = true;
        anschliessen(std::make_unique<simulator::control_unit>(einst));
    }
    void at2560_anschliessen(int gang_ppm) {
        simulator::at2560_einstellung einst;
        einst.rennen.wagen.resize(6);
        einst.rennen.saat = 5;
        einst.rennen.uhr_start = 123456789;
        einst.rennen.gang_ppm = gang_ppm;
        einst.bootzeit = 1500;
        zeichen_je_ms = 6;
        t.maschine.datei_schreiben("tvk_at2560.uart", simulator::at2560_profil());
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_uart = true;
        t.p.einst.uart.uart_port = com_der_leitung;
        anschliessen(std::make_unique<simulator::at2560>(einst));
        geraet->verbunden();
        laufen(4000);
    }
    void pause_machen(zeit_ms dauer) {
        t.bahn().Command3.klicken();
        laufen(dauer);
        t.bahn().Command3.klicken();
    }
    /// What of the device's time from one stamp to another was a pause.
    zeit_ms pause_zwischen(zeit_ms von, zeit_ms bis) const {
        zeit_ms summe = 0;
        for (std::size_t i = 1; i < pausen.size(); i += 2) {
            summe += std::max<zeit_ms>(std::min(bis, pausen[i]) - std::max(von, pausen[i - 1]), 0);
        }
        return summe;
    }
    void rennen_fahren(const char* minuten) {
        starten(minuten);
        laufen(zeit_ms{32} * 60 * 1000);
    }
    void rennen_verlassen() {
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.fenster.entladen(fenstername::bahn1);
        pausen.clear();
    }
    void modul_4x4_anschliessen(const simulator::m4x4_einstellung& einst, modul_4x4 modus) {
        zeichen_je_ms = 1;
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_4x4_modus = modus;
        anschliessen(std::make_unique<simulator::m4x4>(einst));
        geraet->verbunden();
        laufen(4000);
    }
    /// Stamps of the finish line.
    std::vector<zeit_ms> ueberfahrten(int wagen) const {
        std::vector<zeit_ms> stempel;
        for (const simulator::ueberfahrt& fahrt : geraet->fahrten()) {
            if (fahrt.wagen == wagen && fahrt.sensor == 1) {
                stempel.push_back(fahrt.stempel);
            }
        }
        return stempel;
    }
    bool fruehstart(int spur) const {
        return t.p.rennen.zustand.konto.stempel(spur, 0) == t.p.rennen.zustand.start_zeit;
    }
    /// Every lap of the device is counted, and takes as long as the device says.
    void vergleichen(zeit_ms minuten, int wagen = spuren_max) {
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        for (int spur = 1; spur <= wagen; ++spur) {
            const std::vector<zeit_ms> stempel = ueberfahrten(spur);
            const int runden = t.runden(spur);
            ASSERT_GT(runden, 6 * minuten);
            ASSERT_LE(static_cast<std::size_t>(runden), stempel.size());
            const bool zu_frueh = fruehstart(spur);  // its first lap counts from the start
            for (int runde = zu_frueh ? 2 : 1; runde <= runden; ++runde) {
                const auto i = static_cast<std::size_t>(runde);
                const zeit_ms pause = pause_zwischen(stempel[i - 1], stempel[i]);
                ASSERT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(spur, runde)),
                            static_cast<double>(stempel[i] - stempel[i - 1] - pause), pause > 0 ? 20 : genauigkeit)
                    << spur << " " << runde;
            }
            const zeit_ms letzte = stempel[static_cast<std::size_t>(runden)];
            const zeit_ms bis_zur_letzten = letzte - stempel[0] - pause_zwischen(stempel[0], letzte);
            EXPECT_GT(bis_zur_letzten + 10000, minuten * 60 * 1000) << "a lap is missing at the end";
        }
        EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
    }

    testprogramm t;
    std::unique_ptr<simulator::geraet> geraet;
    std::string leitung;
    bool leitung_steht = false;
    std::vector<zeit_ms> pausen;  ///< the device's time of each beginning and end
    std::size_t zeichen_je_ms = 2;
    double genauigkeit = 0;  ///< ms that a lap may be off; only a device that stamps nothing needs any
};

TEST_F(Simulatorrennen, ControlUnitDreissigMinuten) {
    simulator::control_unit_einstellung einst;
    einst.rennen.wagen.resize(6);
    einst.rennen.uhr_start = 0xFFFFFFFF - 600000;  // its clock overflows in the race
    einst.vorspann_promille = 100;
    control_unit_anschliessen(einst);
    rennen_fahren("30");
    vergleichen(30);
}

TEST_F(Simulatorrennen, EineUhrMitAndererGeschwindigkeitVerschiebtKeineRunde) {
    for (const int gang_ppm : {-5000, 5000}) {
        simulator::control_unit_einstellung einst;
        einst.rennen.wagen.resize(6);
        einst.rennen.gang_ppm = gang_ppm;
        control_unit_anschliessen(einst);
        laufen(2000);
        rechner_steht(zeit_ms{5} * 60 * 60 * 1000);
        starten("8");
        laufen(35000);  // nothing is known of its clock yet
        pause_machen(300000);
        laufen(180000);
        pause_machen(300000);
        laufen(zeit_ms{6} * 60 * 1000);
        vergleichen(8);
        rennen_verlassen();
    }
}

TEST_F(Simulatorrennen, WasWartenMussteHatDieZeitDesGeraets) {
    simulator::control_unit_einstellung einst;
    einst.rennen.wagen.resize(6);
    for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
        w.rundenzeit = 3000;
    }
    control_unit_anschliessen(einst);
    t.p.form1.wertmin.eingeben("1");
    starten("6");
    laufen(15000);
    for (const zeit_ms dauer : {2300, 3500, 7000, 10000, 30000}) {
        leitung_stockt(dauer);
        laufen(11000);
        rechner_steht(dauer);
        laufen(11000);
    }
    laufen(zeit_ms{5} * 60 * 1000);
    vergleichen(6);
}

TEST_F(Simulatorrennen, EinVerfaelschterSatzFehltUndVerschiebtNichts) {
    simulator::control_unit_einstellung einst;
    einst.rennen.wagen.resize(6);
    einst.stoerung_promille = 5;
    control_unit_anschliessen(einst);
    starten("5");
    laufen(zeit_ms{6} * 60 * 1000);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    for (const int spur : alle_spuren) {
        const std::vector<zeit_ms> stempel = ueberfahrten(spur);
        zeit_ms bisher = t.p.rennen.zustand.konto.stempel(spur, 0);
        for (int runde = 1; runde <= t.runden(spur); ++runde) {
            bisher += t.p.rennen.zustand.konto.rundenzeit(spur, runde);
            EXPECT_EQ(std::count(stempel.begin(), stempel.end(), bisher), 1) << spur << " " << runde;
        }
        EXPECT_GT(t.runden(spur), 30);
    }
    EXPECT_GT(t.p.geraete.von<control_unit_verdrahtung>().cu.verworfene_saetze(), 0);
}

TEST_F(Simulatorrennen, At2560DreissigMinuten) {
    at2560_anschliessen(0);
    rennen_fahren("30");
    vergleichen(30);
}

TEST_F(Simulatorrennen, EineSchiefeUhrEinesAt2560VerschiebtKeineRunde) {
    for (const int gang_ppm : {-15000, 5000}) {
        at2560_anschliessen(gang_ppm);
        starten("8");
        laufen(35000);  // nothing is known of its clock yet
        pause_machen(300000);
        laufen(60000);
        for (const zeit_ms dauer : {300, 2300, 7000}) {
            leitung_stockt(dauer);
            laufen(15000);
        }
        pause_machen(300000);
        laufen(zeit_ms{8} * 60 * 1000);
        vergleichen(8);
        rennen_verlassen();
    }
}

struct ftdi_kabel {
    test_ftdi ftdi;  // outlives the program
};

struct Timekeeperrennen : ftdi_kabel, Simulatorrennen {
    void einstecken(const simulator::rennen_einstellung& rennen, const std::string& datei) {
        ftdi.eintragen(t.maschine.bibliotheken);
        ftdi.geraet = [this](std::string_view bytes) { geraet->empfangen(bytes); };
        t.maschine.datei_schreiben("tvk_tk.tk", datei);
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_timekeeper = true;
        anschliessen(std::make_unique<simulator::timekeeper>(rennen));
        geraet->senden = [this](std::string_view bytes) { ftdi.wartet += bytes; };
        laufen(4000);
    }
    static simulator::rennen_einstellung sechs_wagen(int gang_ppm) {
        simulator::rennen_einstellung rennen;
        rennen.wagen.resize(6);
        rennen.gang_ppm = gang_ppm;
        rennen.uhr_start = 77000;
        return rennen;
    }
};

TEST_F(Timekeeperrennen, DreissigMinutenMitChaos) {
    simulator::rennen_einstellung rennen = sechs_wagen(150);
    rennen.wagen[2].chaos_promille = 30;
    einstecken(rennen, simulator::timekeeper_datei());
    rennen_fahren("30");
    EXPECT_GE(pausen.size(), 4U) << "nobody has pressed";
    laufen(zeit_ms{10} * 60 * 1000);
    vergleichen(30);
}

TEST_F(Timekeeperrennen, EineSchiefeUhrUndEinRechnerDerStehtVerschiebenKeineRunde) {
    for (const int gang_ppm : {-5000, 5000}) {
        einstecken(sechs_wagen(gang_ppm), simulator::timekeeper_datei());
        starten("5");
        laufen(15000);
        for (const zeit_ms dauer : {300, 2300, 7000}) {
            rechner_steht(dauer);
            laufen(21000);
        }
        pause_machen(20000);
        laufen(zeit_ms{5} * 60 * 1000);
        vergleichen(5);
        rennen_verlassen();
    }
}

TEST_F(Timekeeperrennen, InDenDigitalmodenFahrenSechsWagenUeberEinenSensor) {
    for (const char* modus : {"2", "3"}) {
        std::string datei = simulator::timekeeper_datei();
        datei.replace(datei.find("1\r\n16"), 1, modus);
        einstecken(sechs_wagen(0), datei);
        starten("5");
        laufen(zeit_ms{6} * 60 * 1000);
        vergleichen(5);
        rennen_verlassen();
    }
}

TEST_F(Simulatorrennen, Modul4x4DreissigMinutenAufKontakten) {
    simulator::m4x4_einstellung einst;
    einst.kontakte = simulator::m4x4_zwei_spuren;
    einst.rennen.wagen.resize(2);
    einst.rennen.wagen[0].fruehstart = true;
    for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
        w.runden_je_stopp = 4;
        w.standzeit = 4000;
    }
    einst.rennen.wagen[1].chaos_promille = 15;
    genauigkeit = 12;  // the answer to whether it is still there comes first, at the rate of its port
    t.p.einst.s6.s6_eingang = {0, 16, 15, 32, 30, 31, 29, 42, 55};
    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    t.p.einst.tank_art = tankweise::zwischen_zwei_kontakten;
    t.p.einst.sektor_an[0] = t.p.einst.sektor_an[1] = true;
    t.p.form1.t_aktiv.umschalten();
    t.p.form1.wertmin.eingeben("3");  // the false starter's first lap is short
    modul_4x4_anschliessen(einst, modul_4x4::modus_4);
    starten("30", {1, 2});
    laufen(zeit_ms{34} * 60 * 1000);
    EXPECT_GT(pausen.size(), 1U);
    vergleichen(30, 2);
    EXPECT_TRUE(fruehstart(1));
    EXPECT_GT(t.spur(1).tank_inhalt, 0) << "it has refuelled";
    EXPECT_GT(t.p.rennen.sektoren.sektorzeit(1, 1, 2), 0);
}

TEST_F(Simulatorrennen, Modul4x4DreissigMinutenDigital) {
    simulator::m4x4_einstellung einst;
    einst.rennen.wagen.resize(6);
    zeit_ms anfahrt = 400;
    for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
        w.anfahrt = anfahrt += 50;
        w.chaos_promille = 20;
    }
    genauigkeit = 9;  // three of its lines at once, at the rate of its port
    modul_4x4_anschliessen(einst, modul_4x4::modus_1);
    starten("30");
    laufen(zeit_ms{42} * 60 * 1000);  // with its pauses
    EXPECT_GT(pausen.size(), 1U);
    vergleichen(30);
}

}  // namespace
}  // namespace tarvel::test
