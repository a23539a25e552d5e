#include "tests/programm_probe.h"

namespace tarvel::test {
namespace {

constexpr int com = 7;

/// A device that is pulled out in the race and is in again for the next one.
struct Wiedereingesteckt : testing::Test {
    void einschalten(bool messhardware::*geraet) {
        t.maschine.anschluesse.da = {com};
        t.p.einst.hardware = {};
        t.p.einst.hardware.*geraet = true;
        t.p.einst.cu.anschluss.cu_modus = com;
        t.p.einst.uart.uart_port = com;
        t.p.geraete.hardware_starten(false);
        t.maschine.laufen(at_bootzeit.count() + 500);
    }
    void abziehen_und_einstecken() {
        t.einrichten("Runden", "20", {1});
        t.maschine.anschluesse.abziehen(com);
        t.maschine.laufen(2000);
        EXPECT_TRUE(getrennt());
        t.p.fenster.entladen("bahn1");
        t.maschine.anschluesse.da = {com};
        gesendet();
        t.einrichten("Runden", "20", {1});
        EXPECT_TRUE(t.maschine.anschluesse.offen(com));
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    }
    bool getrennt() { return t.p.form1.modus_label.text().find("keine Verbindung") != std::string::npos; }
    std::string gesendet() { return std::exchange(t.maschine.anschluesse.geschrieben[com], {}); }

    testprogramm t;
};

TEST_F(Wiedereingesteckt, ControlUnitWirdMitDemRennfensterWiederBefragt) {
    einschalten(&messhardware::hw_cu);
    abziehen_und_einstecken();
    t.maschine.laufen(10);
    const std::string befehle = gesendet();
    EXPECT_NE(befehle.find("\"?\r"), std::string::npos);
    EXPECT_NE(befehle.find("\"=101$"), std::string::npos) << "its laps are told anew";
}

TEST_F(Wiedereingesteckt, At2560MisstErstWennEsHoert) {
    einschalten(&messhardware::hw_uart);
    EXPECT_NE(gesendet().find(":P01;"), std::string::npos) << "it boots with the track without power";
    abziehen_und_einstecken();
    EXPECT_FALSE(getrennt());
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "a start now would not reach the unit";
    t.p.fenster.neu_laden("bahn1");
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    t.maschine.laufen(at_bootzeit.count());
    const std::string befehle = gesendet();
    EXPECT_LT(befehle.rfind(":IS,13.11.9.7;"), befehle.rfind(":P01;")) << befehle;
    t.bahn().Command1.klicken();
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_NE(gesendet().find(":S;"), std::string::npos);
}

}  // namespace
}  // namespace tarvel::test
