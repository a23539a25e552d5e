#include "tests/programm_probe.h"
#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"

namespace tarvel::test {
namespace {

constexpr int com = 7;

/// The program against a simulated device, on one clock. The line carries a few characters a millisecond, so that every
/// record comes in pieces.
struct Simulatorrennen : testing::Test {
    void anschliessen(std::unique_ptr<simulator::geraet> neu) {
        geraet = std::move(neu);
        geraet->senden = [this](std::string_view bytes) { leitung += bytes; };
        t.maschine.anschluesse.da = {com};
        t.maschine.anschluesse.geraet = [this](int /*com*/, std::string_view bytes) { geraet->empfangen(bytes); };
        t.p.geraete.hardware_starten(false);
    }
    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            geraet->weiter(t.maschine.jetzt());
            if (!leitung.empty()) {
                t.maschine.anschluesse.senden(com, leitung.substr(0, zeichen_je_ms));
                leitung.erase(0, zeichen_je_ms);
            }
            t.maschine.laufen(1);
        }
    }
    void rennen_fahren(const char* minuten) {
        t.einrichten(t.p.txt.text_zeit, minuten, {1, 2, 3, 4, 5, 6});
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.p.einst.zielmodus_erster = true;
        laufen(500);
        t.bahn().Command1.klicken();
        laufen(zeit_ms{32} * 60 * 1000);
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
    /// Every lap of the device is counted, and takes as long as the device says.
    void vergleichen() {
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        for (const int spur : alle_spuren) {
            const std::vector<zeit_ms> stempel = ueberfahrten(spur);
            const int runden = t.runden(spur);
            ASSERT_GT(runden, 200);
            ASSERT_LE(static_cast<std::size_t>(runden), stempel.size());
            for (int runde = 1; runde <= runden; ++runde) {
                const auto i = static_cast<std::size_t>(runde);
                ASSERT_EQ(t.p.rennen.zustand.konto.rundenzeit(spur, runde), stempel[i] - stempel[i - 1])
                    << spur << " " << runde;
            }
            const zeit_ms bis_zur_letzten = stempel[static_cast<std::size_t>(runden)] - stempel[0];
            EXPECT_GT(bis_zur_letzten + 10000, zeit_ms{30} * 60 * 1000) << "a lap is missing at the end";
        }
    }

    testprogramm t;
    std::unique_ptr<simulator::geraet> geraet;
    std::string leitung;
    std::size_t zeichen_je_ms = 2;
};

TEST_F(Simulatorrennen, ControlUnitDreissigMinuten) {
    simulator::control_unit_einstellung einst;
    einst.rennen.wagen.resize(6);
    einst.rennen.uhr_start = 0xFFFFFFFF - 600000;  // its clock overflows in the race
    einst.vorspann_promille = 100;
    t.p.einst.hardware = {};
    t.p.einst.hardware.hw_cu = true;
    t.p.einst.cu.anschluss.cu_modus = com;
    t.p.einst.cu.cu_sondermodus = true;
    anschliessen(std::make_unique<simulator::control_unit>(einst));
    rennen_fahren("30");
    vergleichen();
}

TEST_F(Simulatorrennen, At2560DreissigMinuten) {
    simulator::at2560_einstellung einst;
    einst.rennen.wagen.resize(6);
    einst.rennen.saat = 5;
    einst.rennen.uhr_start = 123456789;
    einst.bootzeit = 1500;
    zeichen_je_ms = 6;
    t.maschine.datei_schreiben("tvk_at2560.uart", simulator::at2560_profil());
    t.p.einst.hardware = {};
    t.p.einst.hardware.hw_uart = true;
    t.p.einst.uart.uart_port = com;
    anschliessen(std::make_unique<simulator::at2560>(einst));
    geraet->verbunden();
    laufen(4000);
    rennen_fahren("30");
    vergleichen();
}

}  // namespace
}  // namespace tarvel::test
