#pragma once

#include <deque>

#include "tests/programm_probe.h"
#include "tools/simulator/control_unit.h"

namespace tarvel::test {

/// A program with a Control Unit at COM7; what the unit says is up to the test.
struct ControlUnitRennen : testing::Test {
    static constexpr int com = 7;

    ControlUnitRennen() {
        t.maschine.anschluesse.da = {com};
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_cu = true;
        t.p.einst.cu.anschluss.cu_modus = com;
        t.p.einst.cu.cu_sondermodus = false;
        t.maschine.anschluesse.geraet = [this](int /*nummer*/, std::string_view bytes) {
            if (bytes == "\"?\r") {
                antworten();
            }
        };
        t.p.geraete.hardware_starten(false);
    }
    void antworten() {
        if (!wartend.empty()) {
            t.maschine.anschluesse.senden(com, wartend.front());
            wartend.pop_front();
        } else if (lebt) {
            t.maschine.anschluesse.senden(com, letzter_status);
        }
    }
    /// The unit's next answer.
    void senden(std::string_view satz) {
        wartend.emplace_back(satz);
        t.maschine.laufen(3);
    }
    int geschrieben(std::string_view befehl) {
        const std::string& alles = t.maschine.anschluesse.geschrieben[com];
        const std::string gesucht = "\"" + std::string(befehl);
        int anzahl = 0;
        for (std::size_t ort = alles.find(gesucht); ort != std::string::npos; ort = alles.find(gesucht, ort + 1)) {
            ++anzahl;
        }
        return anzahl;
    }
    void status(bool steht, std::string_view tank = "555555", char modus = '0') {
        letzter_status = "?:" + std::string(tank) + "00" + (steht ? '1' : '0') + modus + "000000$";
        senden(letzter_status);
    }
    void ueberfahrt(int wagen, std::uint32_t stempel, int sensor = 1) { senden(passage(wagen, stempel, sensor)); }
    static std::string passage(int wagen, std::uint32_t stempel, int sensor = 1) {
        return "?" + std::to_string(wagen) + simulator::control_unit::stempeltext(stempel) + std::to_string(sensor) +
               "0$";
    }
    /// A race window from which the program starts the unit's light.
    void mit_software_starten(int fruehstart_option) {
        t.p.einst.cu.cu_sondermodus = true;
        t.p.einst.fruehstart_option = fruehstart_aktion(fruehstart_option);
        t.einrichten(t.p.txt.text_runden, "10", {1, 2});
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    }
    /// Start at the unit's own key, up to its green.
    void starten(std::string_view rennart, std::string_view dauer, std::initializer_list<int> lanes) {
        t.einrichten(rennart, dauer, lanes);
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        status(false);
        t.bahn().Command1.klicken();
        t.maschine.laufen(1000);
        status(true);
        t.maschine.laufen(3000);
        status(false);
        t.maschine.laufen(2500);
    }

    bool lebt = true;  ///< answers each poll
    std::deque<std::string> wartend;
    std::string letzter_status = "?:55555500000000000$";
    testprogramm t;
};

}  // namespace tarvel::test
