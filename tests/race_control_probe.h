#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "programm/race_control_verdrahtung.h"
#include "tests/plattform/testprogramm.h"
#include "tools/ersatz/race_control/bibliothek.h"
#include "tools/ersatz/race_control/box.h"

namespace tarvel::test {

inline void rc_bibliothek_hinlegen(test_bibliotheken& b) {
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
    static constexpr int com = 7;

    explicit RaceControl(const simulator::rc_box_einstellung& einst = {}) { box_hinstellen(einst); }

    void box_hinstellen(const simulator::rc_box_einstellung& einst) {
        box = std::make_unique<simulator::rc_box>(einst);
        box->senden = [this](std::string_view bytes) { leitung += bytes; };
    }
    void SetUp() override {
        rc_bibliothek_hinlegen(t.maschine.bibliotheken);
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
    void kontakt(int sensor, zeit_ms um) { t.maschine.anschluesse.senden(com, satzbytes(sensor, um)); }
    static std::string satzbytes(int sensor, zeit_ms um) {
        return simulator::rc_draht::schreiben(
            {simulator::rc_draht::art::ueberfahrt, static_cast<std::uint8_t>(sensor), ticks(um)});
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

    testprogramm t;
    std::unique_ptr<simulator::rc_box> box;
    std::string leitung;
};

inline simulator::rc_box_einstellung vier_wagen() {
    simulator::rc_box_einstellung einst;
    einst.rennen.wagen.resize(4);
    einst.rennen.uhr_start = 5000;
    return einst;
}

}  // namespace tarvel::test
