#include "competition/einfahren.h"
#include "competition/wettkampfabend.h"
#include "hardware/at2560.h"
#include "tests/plattform/vereinsabend.h"
#include "tests/programm_probe.h"

namespace tarvel::test {
namespace {

constexpr int com_am_stecker = 7;

/// A device that is pulled out in the race and is in again for the next one.
struct Wiedereingesteckt : testing::Test {
    void einschalten(bool messhardware::*geraet) {
        t.maschine.anschluesse.da = {com_am_stecker};
        t.p.einst.hardware = {};
        t.p.einst.hardware.*geraet = true;
        t.p.einst.cu.anschluss.cu_modus = com_am_stecker;
        t.p.einst.uart.uart_port = com_am_stecker;
        t.p.geraete.hardware_starten(false);
        t.maschine.laufen(at_bootzeit.count() + 500);
    }
    void abziehen_und_einstecken() {
        t.einrichten("Runden", "20", {1});
        t.maschine.anschluesse.abziehen(com_am_stecker);
        t.maschine.laufen(2000);
        EXPECT_TRUE(getrennt());
        t.p.fenster.entladen(fenstername::bahn1);
        t.maschine.anschluesse.da = {com_am_stecker};
        gesendet();
        t.einrichten("Runden", "20", {1});
        EXPECT_TRUE(t.maschine.anschluesse.offen(com_am_stecker));
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    }
    bool getrennt() { return t.p.form1.modus_label.text().find("keine Verbindung") != std::string::npos; }
    std::string gesendet() { return std::exchange(t.maschine.anschluesse.geschrieben[com_am_stecker], {}); }

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

TEST_F(Wiedereingesteckt, EinAbendVonSelbstWartetAufDasGeraetUndNichtAufEineAntwort) {
    einschalten(&messhardware::hw_uart);
    t.einrichten("Runden", "20", {1, 2});
    t.p.fenster.entladen(fenstername::bahn1);
    t.p.einst.w_einfahren_an = false;
    for (const bool von_selbst : {false, true}) {
        t.p.einst.w_autom = von_selbst;
        planvorgabe vorgabe;
        vorgabe.aktiv[1] = vorgabe.aktiv[2] = true;
        auto abend = wettkampf_beginnen(vorgabe, std::vector<std::string>{"Anna", "Ben"}, "Abend", t.p.txt);
        ASSERT_TRUE(abend);
        t.p.wettkampfabend.beginnen(std::move(*abend));
        t.maschine.anschluesse.abziehen(com_am_stecker);  // as the window opens
        ASSERT_TRUE(t.p.wettkampfabend.rennen_starten());
        t.maschine.laufen(10000);
        EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
        EXPECT_TRUE(t.bahn().geraetealarm.sichtbar());
        EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
        t.maschine.anschluesse.da = {com_am_stecker};
        t.maschine.laufen(at_bootzeit.count() + 3000);
        EXPECT_NE(t.p.rennen.zustand.rennen_beendet, von_selbst);
        t.p.rennen.befehle.rennen_abbrechen();
    }
}

TEST_F(Wiedereingesteckt, At2560MisstErstWennEsHoert) {
    einschalten(&messhardware::hw_uart);
    EXPECT_NE(gesendet().find(":P01;"), std::string::npos) << "it boots with the track without power";
    abziehen_und_einstecken();
    EXPECT_FALSE(getrennt());
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "a start now would not reach the unit";
    t.p.fenster.neu_laden(fenstername::bahn1);
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    t.maschine.laufen(at_bootzeit.count());
    const std::string befehle = gesendet();
    EXPECT_LT(befehle.rfind(":IS,13.11.9.7;"), befehle.rfind(":P01;")) << befehle;
    t.bahn().Command1.klicken();
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_NE(gesendet().find(":S;"), std::string::npos);
}

TEST_F(Wiedereingesteckt, ImRennenWirdEsVermisstGesuchtUndWiederAufgenommen) {
    t.p.einst.sound_an = true;
    einschalten(&messhardware::hw_uart);
    t.starten("Runden", "20", {1, 2});
    t.maschine.sounds.clear();
    const bezeichnung& alarm = t.bahn().geraetealarm;
    t.maschine.laufen(3000);
    EXPECT_FALSE(alarm.sichtbar());
    t.p.ausgaben.relais_on(2);
    t.maschine.anschluesse.abziehen(com_am_stecker);
    t.maschine.laufen(3000);
    EXPECT_TRUE(alarm.sichtbar());
    EXPECT_EQ(alarm.text(), "AT-2560 USB – keine Verbindung");
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{t.p.einst.sound_dateien[sound::pause_beginnt]});
    t.maschine.anschluesse.da = {com_am_stecker};
    gesendet();
    t.maschine.laufen(2500 + at_bootzeit.count());
    EXPECT_FALSE(alarm.sichtbar());
    const std::string befehle = gesendet();
    EXPECT_NE(befehle.find(":P20;"), std::string::npos) << "the lane stays without power";
    EXPECT_LT(befehle.find(":P01;"), befehle.find(":P20;"));
    EXPECT_NE(befehle.find(":T;"), std::string::npos) << "its clock has begun anew";
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Wiedereingesteckt, InDerPauseZurueckMisstEsWeiterAlsWaereNichtsGewesen) {
    t.p.einst.chaosampel_an = false;
    for (const bool erst_in_der_pause : {true, false}) {
        SCOPED_TRACE(erst_in_der_pause);
        einschalten(&messhardware::hw_uart);
        t.starten("Runden", "20", {1});
        zeit_ms uhr_seit = t.maschine.jetzt();
        const auto sagt = [&](const std::string& name) {
            t.maschine.anschluesse.senden(com_am_stecker,
                                          ":" + name + "," + std::to_string(t.maschine.jetzt() - uhr_seit) + ";");
        };
        const auto pause_umschalten = [&] {
            t.bahn().Command3.klicken();
            t.maschine.laufen(3000);
        };
        const auto runde_nach = [&](zeit_ms dauer) {
            t.maschine.laufen(dauer - 10);
            sagt("S13");
            t.maschine.laufen(10);
        };
        sagt("T");
        runde_nach(1000);
        runde_nach(8000);
        if (erst_in_der_pause) {
            pause_umschalten();
        }
        t.maschine.anschluesse.abziehen(com_am_stecker);
        t.maschine.laufen(2000);
        EXPECT_TRUE(t.bahn().geraetealarm.sichtbar());
        if (!erst_in_der_pause) {
            pause_umschalten();
        }
        t.maschine.anschluesse.da = {com_am_stecker};
        t.maschine.laufen(2500);
        uhr_seit = t.maschine.jetzt();
        gesendet();
        t.maschine.laufen(at_bootzeit.count());
        EXPECT_FALSE(t.bahn().geraetealarm.sichtbar());
        EXPECT_NE(gesendet().find(":T;"), std::string::npos);
        sagt("T");
        t.maschine.laufen(1000);
        pause_umschalten();
        ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        runde_nach(4000);
        runde_nach(8000);
        const rundenkonto& konto = t.p.rennen.zustand.konto;
        EXPECT_EQ(konto.rundenzeit(1, 1), 8000);
        EXPECT_EQ(konto.rundenzeit(1, 2), (erst_in_der_pause ? 0 : 2000) + 3000 + 4000);
        EXPECT_EQ(konto.rundenzeit(1, 3), 8000);
        t.rennabbruch();
    }
}

TEST_F(Wiedereingesteckt, BeimEinfahrenBleibtEineFertigeSpurOhneStrom) {
    einschalten(&messhardware::hw_uart);
    vereinsabend abend(t.p);
    t.einrichten("Runden", "20", {1, 2});
    t.p.rennen.teil_von.wechseln(abend);
    t.p.einst.w_edauer = 1;
    t.p.fenster.neu_laden(fenstername::bahn1);
    t.bahn().Command6.klicken();
    t.p.einfahren.taste('2');
    t.maschine.laufen(10);
    t.maschine.anschluesse.abziehen(com_am_stecker);
    t.maschine.laufen(3000);
    EXPECT_TRUE(t.p.einfahren.geraetealarm.sichtbar());
    t.maschine.anschluesse.da = {com_am_stecker};
    gesendet();
    t.maschine.laufen(2500 + at_bootzeit.count());
    EXPECT_FALSE(t.p.einfahren.geraetealarm.sichtbar());
    const std::string befehle = gesendet();
    EXPECT_NE(befehle.find(":P20;"), std::string::npos) << befehle;
    EXPECT_LT(befehle.rfind(":P01;"), befehle.rfind(":P20;")) << befehle;
    EXPECT_FALSE(t.bahn().Command1.bedienbar());
}

TEST_F(Wiedereingesteckt, NachDemEinfahrenWartetDerStartAufDasGeraet) {
    einschalten(&messhardware::hw_uart);
    vereinsabend abend(t.p);
    t.einrichten("Runden", "20", {1, 2});
    t.p.rennen.teil_von.wechseln(abend);
    t.p.fenster.neu_laden(fenstername::bahn1);
    t.bahn().Command6.klicken();
    t.maschine.anschluesse.abziehen(com_am_stecker);
    t.maschine.laufen(3000);
    t.maschine.anschluesse.da = {com_am_stecker};
    t.maschine.laufen(2500);
    t.p.einfahren.Command5.klicken();
    EXPECT_FALSE(t.bahn().Command1.bedienbar());
    gesendet();
    t.maschine.laufen(at_bootzeit.count());
    EXPECT_TRUE(t.bahn().Command1.bedienbar());
    EXPECT_EQ(gesendet().find(":P01;"), std::string::npos) << "the start gives the power back";
}

TEST_F(Wiedereingesteckt, VorDemStartWirdGefragt) {
    einschalten(&messhardware::hw_cu);
    t.einrichten("Runden", "20", {1});
    t.maschine.anschluesse.abziehen(com_am_stecker);
    t.maschine.laufen(2000);
    t.bahn().Command1.klicken();
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    t.maschine.antwort = true;
    t.bahn().Command1.klicken();
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 2U) << "no is no answer to the next press";
}

TEST_F(Wiedereingesteckt, WasWaehrendDerFrageVonSelbstBeginntBeginntNichtNocheinmal) {
    einschalten(&messhardware::hw_cu);
    t.einrichten("Runden", "20", {1});
    t.maschine.anschluesse.abziehen(com_am_stecker);
    t.maschine.laufen(2000);
    t.maschine.antwort = true;
    t.maschine.waehrend_frage = [this] {
        t.p.rennen.ablauf.rennstart_vorbereiten();
        t.maschine.laufen(20000);
        t.taste("1");
        t.maschine.laufen(10);
    };
    t.bahn().Command1.klicken();
    EXPECT_EQ(t.runden(1), 0) << "and not -1, as before a start";
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2));
}

/// Its clock is fast by a hundredth.
struct geraet_mit_uhr final : messquelle {
    explicit geraet_mit_uhr(const test_plattform& maschine) : maschine_(maschine), anfang_(maschine.jetzt()) {}
    std::optional<zeit_ms> uhr_lesen() override { return 7'000'000 + (maschine_.jetzt() - anfang_) * 101 / 100; }

private:
    const test_plattform& maschine_;
    zeit_ms anfang_;
};

TEST_F(ProgrammProbe, DieUhrEinesGeraetsIstDieDesRennens) {
    geraet_mit_uhr uhr(t.maschine);
    t.p.quellen.anschliessen(uhr);
    t.p.einst.chaosampel_an = false;
    const renn_zustand& zustand = t.p.rennen.zustand;
    t.starten("Runden", "20", {1});
    EXPECT_NEAR(static_cast<double>(zustand.start_zeit), 7'000'000, 10);
    t.maschine.laufen(5000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(1);
    ASSERT_TRUE(zustand.chaos_aktiv);
    EXPECT_NEAR(static_cast<double>(zustand.pause.start), 7'005'050, 2);
    t.maschine.laufen(10000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(1);
    ASSERT_FALSE(zustand.chaos_aktiv);
    EXPECT_NEAR(static_cast<double>(zustand.pause.dauer), 10100, 2);
    t.p.quellen.trennen(uhr);
}

TEST(Messhardware, NurWasDenAnschlussBetrifftStartetSieNeu) {
    using e = einstellungen;
    const auto neu_nach = [](const std::function<void(e&)>& aendern) {
        e geaendert;
        aendern(geaendert);
        return geaendert.hardware_anders_als(e{});
    };
    int nummer = 0;
    for (const std::function<void(e&)>& aendern : std::vector<std::function<void(e&)>>{
             [](e& x) { x.hardware.hw_lpt = true; }, [](e& x) { x.hardware.hw_4x4_modus = modul_4x4::modus_3; },
             [](e& x) { x.hardware.tk_spurmodus = spurmodus::analog; }, [](e& x) { x.iow.iow_datei = "x"; },
             [](e& x) { x.rc.anschluss.rc_com_port = "x"; }, [](e& x) { x.lpt.anschluss.lpt_adresse = 1; },
             [](e& x) { x.tk.tk_datei = "x"; }, [](e& x) { x.cu.anschluss.cu_modus = 1; },
             [](e& x) { x.uart.uart_port = 1; }, [](e& x) { x.uart.uart_datei = "x"; }}) {
        EXPECT_TRUE(neu_nach(aendern)) << nummer++;
    }
    EXPECT_FALSE(neu_nach([](e& x) {
        x.cu.cu_option = x.cu.cu_tankautomatik = x.cu.cu_sondermodus = true;
        x.cu.cu_spur_wert[1] = 7;
        x.rc.rc_level = x.lpt.lpt_eingang[1] = x.s6.s6_eingang[1] = 9;
    })) << "a device that drives must not be stopped for what it takes over at once";
}

}  // namespace
}  // namespace tarvel::test
