#include <gtest/gtest.h>

#include <deque>
#include <random>

#include "tests/plattform/testprogramm.h"
#include "tools/simulator/control_unit.h"

namespace tarvel::test {
namespace {

constexpr int com = 7;

/// A program with a Control Unit at COM7; what the unit says is up to the test.
struct ControlUnitRennen : testing::Test {
    ControlUnitRennen() {
        t.maschine.anschluesse.da = {com};
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_cu = true;
        t.p.einst.cu_modus = com;
        t.p.einst.cu_sondermodus = false;
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
    /// Start at the unit's own key, up to its green.
    void starten(std::string_view rennart, std::string_view dauer, std::initializer_list<int> lanes) {
        t.einrichten(rennart, dauer, lanes);
        t.p.einst.start_ampel_modus = 1;
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

TEST_F(ControlUnitRennen, DerStempelDesGeraetsStehtImEreignisUndWagen7und8GehenNirgendsHin) {
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(7, 5000);
    ueberfahrt(8, 5000, 3);
    for (int nummer = 0; nummer < ereignis_tabelle::zeilen_anzahl; ++nummer) {
        EXPECT_FALSE(t.p.ereignisse[nummer].aktiv) << nummer;
    }
    ueberfahrt(6, 123456);
    EXPECT_TRUE(t.p.ereignisse[35].aktiv);
    EXPECT_EQ(t.p.ereignisse[35].ereignis_zeit, 123456);
    ueberfahrt(2, 123460, 2);
    EXPECT_EQ(t.p.ereignisse[44].ereignis_zeit, 123460);
    ueberfahrt(4, 0xFFFFFFFF, 3);
    EXPECT_EQ(t.p.ereignisse[49].ereignis_zeit, 0xFFFFFFFF);
    ueberfahrt(4, 15, 3);  // the unit's clock has overflowed
    EXPECT_EQ(t.p.ereignisse[49].ereignis_zeit, 0x10000000FLL);
}

TEST_F(ControlUnitRennen, DieErsteUeberfahrtBringtAlleZeitenAufDieUhrDesGeraets) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.laufen(2000);
    ueberfahrt(1, 900000);  // 4.5 s after green
    t.maschine.laufen(10000 - 3);
    ueberfahrt(1, 910000);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 1), 10000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 0)), 4500, 5);
    EXPECT_EQ(t.bahn().uhr1.minuten.text() + t.bahn().uhr1.sekunden.text(), "0014");
    t.taste("2");  // by hand, on the same clock
    t.maschine.laufen(6999);
    t.taste("2");
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(2, 1), 7000);
    // the unit was switched off and on: its clock begins anew
    t.maschine.laufen(3000 - 3);
    ueberfahrt(1, 100);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 2)), 10000, 5);
    t.maschine.laufen(6000 - 3);
    ueberfahrt(1, 6100);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 3), 6000);
}

TEST_F(ControlUnitRennen, TankStandUndWarnung) {
    t.p.form1.t_aktiv.gesetzt(true);
    t.p.einst.sound_an = true;
    t.p.einst.cu_tankautomatik = false;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.sounds.clear();
    status(false, "70>555");
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "30,00");
    EXPECT_EQ(t.bahn().t_bahn[3].text(), "60,00");
    EXPECT_TRUE(t.maschine.sounds.empty());
    status(false, "10>555");
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{t.p.einst.sound_dateien[25]});
    t.maschine.sounds.clear();
    status(false, "00>555");
    status(false, "00>555");
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "0,00");
    EXPECT_EQ(t.maschine.sounds, std::vector<std::string>{t.p.einst.sound_dateien[31]});
}

TEST_F(ControlUnitRennen, VorDemRennenFolgtDieTankfunktionDemGeraet) {
    lebt = false;
    t.p.einst.cu_tankautomatik = true;
    t.p.form1.t_aktiv.gesetzt(false);
    t.maschine.laufen(1600);
    EXPECT_EQ(t.p.form1.modus_label.text(), "Carrera Control Unit – keine Verbindung");
    senden("?:55555500010");  // never ends: thrown away, so that the next record is understood
    t.maschine.laufen(10200);
    lebt = true;
    status(false, "555555", '1');
    t.maschine.laufen(600);
    EXPECT_TRUE(t.p.form1.t_aktiv.gesetzt());
    EXPECT_EQ(t.p.form1.modus_label.text(), "Carrera Control Unit");
}

TEST_F(ControlUnitRennen, RennfensterRichtetEinUndOhnePortBleibtDieTastatur) {
    t.einrichten(t.p.txt.text_runden, "10", {1});
    EXPECT_EQ(geschrieben("J60980$"), 1);
    EXPECT_EQ(geschrieben("=101$"), 1);
    EXPECT_EQ(geschrieben("J2:1518$"), 1);
    t.bahn().Command2.klicken();
    t.maschine.anschluesse.abziehen(com);
    t.starten(t.p.txt.text_runden, "10", {1});
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, t.p.txt.meldung[14]);
    t.taste("1");
    EXPECT_EQ(t.spur(1).runden, 0);
}

TEST_F(ControlUnitRennen, DieAnzeigeZaehltDieRundenDesFuehrendenHerunter) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    t.maschine.laufen(6000);
    ueberfahrt(2, 7000);
    t.maschine.laufen(1000);
    t.maschine.anschluesse.geschrieben.clear();
    ueberfahrt(1, 8000);
    EXPECT_EQ(geschrieben("J1?0991$") + geschrieben("J1?0915$"), 1);  // 9 laps to go
    t.maschine.laufen(6000);
    ueberfahrt(2, 14000);
    t.maschine.laufen(6000);
    ueberfahrt(2, 20000);
    EXPECT_GE(geschrieben("J621"), 1);  // lane 2 leads: its place on the tower
    EXPECT_GE(geschrieben("J602"), 1);
}

TEST_F(ControlUnitRennen, StartAmGeraet) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_FALSE(t.bahn().Command3.bedienbar()) << "paused at the unit, as it was started there";
    EXPECT_EQ(geschrieben("T2P$"), 0);
}

TEST_F(ControlUnitRennen, StartUeberSoftwareDruecktZweimalUndEinFruehstartFaelltAuf) {
    t.p.einst.cu_sondermodus = true;
    t.p.einst.fruehstart_option = 5;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.p.einst.start_ampel_modus = 1;
    status(false);
    ueberfahrt(2, 5000);  // rolls to the start
    t.bahn().Command1.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 1);
    status(true);
    t.maschine.laufen(2000);
    EXPECT_EQ(geschrieben("T2P$"), 2);
    EXPECT_EQ(t.p.startampel.fenster.ampelbild[0].datei(), "ampel/rt_an.gif");
    ueberfahrt(1, 6000);
    EXPECT_TRUE(t.p.startampel.fenster.Label_fruehstart.sichtbar());
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    EXPECT_EQ(t.spur(1).strafzeit, t.p.einst.fruehstart_schritte);
    EXPECT_EQ(t.spur(2).strafzeit, 0);
    t.maschine.laufen(2100);
    EXPECT_TRUE(t.bahn().Command3.bedienbar());
}

TEST_F(ControlUnitRennen, EinFruehstartDerDenStartAbbrichtHaeltAuchDasGeraetAn) {
    t.p.einst.cu_sondermodus = true;
    t.p.einst.fruehstart_option = 1;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.p.einst.start_ampel_modus = 1;
    status(true);
    t.maschine.laufen(2100);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    ueberfahrt(1, 6000);
    EXPECT_EQ(geschrieben("T2P$"), 2);
    t.p.startampel.fenster.abbrampel.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2) << "a third press would start its light again";
    t.maschine.laufen(5000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "the unit stands, but for the start that is off";
    t.bahn().Command1.klicken();
    t.maschine.laufen(2100);
    EXPECT_EQ(geschrieben("T2P$"), 3) << "another start";
    t.p.rennen.befehle.rennen_abbrechen();
    EXPECT_EQ(geschrieben("T2P$"), 4) << "closed over the running light";
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.laufen(3000);
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2")) << "nor does the next race begin by itself";
}

TEST_F(ControlUnitRennen, DieRundenzaehlerboxStartetJedesMalWennSieBereitWird) {
    t.p.einst.cu_option = true;
    t.p.einst.start_ampel_modus = 1;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.p.einst.start_ampel_modus = 1;
    senden("?00$");
    EXPECT_TRUE(t.p.fenster.ist_offen("Form2"));
    t.p.startampel.fenster.abbrampel.klicken();
    senden("?00$");
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2")) << "it is still ready from the start that is off";
    senden("?10$");
    senden("?00$");
    EXPECT_TRUE(t.p.fenster.ist_offen("Form2"));
}

TEST_F(ControlUnitRennen, DieStarttasteAmGeraetBereitetDasRennenVorUndSeinEndeNicht) {
    t.p.einst.cu_sondermodus = true;
    t.einrichten(t.p.txt.text_runden, "2", {1});
    t.p.einst.start_ampel_modus = 1;
    status(true);
    EXPECT_TRUE(t.p.fenster.ist_offen("Form2"));
    t.maschine.laufen(2500);
    EXPECT_EQ(geschrieben("T2P$"), 1);  // the unit is stopped already: only its light is started
    status(false);
    t.maschine.laufen(100);
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(50);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    t.maschine.laufen(100);
    EXPECT_EQ(geschrieben("T2P$"), 2);  // stops the cars
    status(true);
    t.p.auswertung.Command2.klicken();
    status(true);
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2")) << "nobody has pressed for a new race";
}

TEST_F(ControlUnitRennen, EinFortgesetztesRennenHaeltAnWennDasGeraetAnhaelt) {
    starten(t.p.txt.text_runden, "10", {1});
    t.p.rennen.befehle.rennen_beenden();
    t.maschine.laufen(200);
    status(true);
    t.p.auswertung.cmd3_fortsetzung();
    t.p.k_ampel.Command1.klicken();
    EXPECT_EQ(geschrieben("T2P$"), 2);
    status(false);
    ASSERT_FALSE(t.p.rennen.zustand.rennen_beendet);
    t.maschine.laufen(3000);
    status(true);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, EineVerspaetetGemeldeteUeberfahrtVerschiebtNichts) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 900000);
    ueberfahrt(2, 899999);
    t.maschine.laufen(9994);
    ueberfahrt(1, 910000);
    ueberfahrt(2, 909997);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 1), 10000);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(2, 1), 9998);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.stempel(2, 0), 899999);
}

TEST_F(ControlUnitRennen, PauseAmGeraetEndetMitSeinemGruen) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    t.maschine.laufen(4000 - 3);
    status(true);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_TRUE(t.bahn().cu_startframe.sichtbar());
    t.maschine.laufen(20000 - 3);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_FALSE(t.bahn().cu_startframe.sichtbar());
    t.maschine.laufen(3000 - 3);
    ueberfahrt(1, 28000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 1)), 7000, 10);
    EXPECT_EQ(geschrieben("T2P$"), 0);
}

TEST_F(ControlUnitRennen, PauseMitDerTasteHaeltDasGeraetAnUndWartetAufSeinGruen) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    t.taste("c");
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_EQ(geschrieben("T2P$"), 1);
    status(true);
    t.maschine.laufen(3000);
    t.taste("c");
    t.maschine.laufen(4000);
    t.bahn().Command3.klicken();  // nobody is patient
    EXPECT_EQ(geschrieben("T2P$"), 2);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv) << "the cars still stand";
    status(false);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(ControlUnitRennen, EinGeraetOhneStromUeberlaesstPauseUndAmpelDemProgramm) {
    starten(t.p.txt.text_runden, "10", {1});
    ASSERT_FALSE(t.bahn().Command3.bedienbar());
    status(true);
    ASSERT_TRUE(t.bahn().cu_startframe.sichtbar());
    lebt = false;  // the port stays open
    t.maschine.laufen(3100);
    EXPECT_TRUE(t.bahn().Command3.bedienbar());
    EXPECT_FALSE(t.bahn().cu_startframe.sichtbar());
    t.bahn().Command3.klicken();
    t.maschine.laufen(7100);  // the program's own light
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.p.rennen.befehle.rennen_abbrechen();
    t.starten(t.p.txt.text_runden, "10", {1});
    t.maschine.laufen(5000);
    t.taste("1");
    EXPECT_EQ(t.spur(1).runden, 0);
}

TEST_F(ControlUnitRennen, WaehrendDesStartsAbgezogenBeginntDasRennenDochNoch) {
    for (const int modus : {0, 5}) {
        t.maschine.anschluesse.da = {com};
        t.p.geraete.hardware_starten(false);
        t.einrichten(t.p.txt.text_runden, "10", {1});
        t.p.einst.start_ampel_modus = modus;
        status(false);
        t.bahn().Command1.klicken();
        status(true);
        t.maschine.anschluesse.abziehen(com);
        t.maschine.laufen(15000);
        EXPECT_TRUE(t.bahn().Command4.bedienbar()) << modus;
        EXPECT_FALSE(t.p.fenster.ist_offen("Form2")) << modus;
        t.bahn().Command2.klicken();
    }
}

TEST_F(ControlUnitRennen, InDerPauseAbgezogenGehtEsMitDerTastaturWeiter) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    t.taste("c");
    status(true);
    t.maschine.anschluesse.abziehen(com);
    t.maschine.laufen(3000);
    t.taste("c");
    t.maschine.laufen(7100);  // the program's own light
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(10000);
    t.taste("1");
    EXPECT_EQ(t.spur(1).runden, 1);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(ControlUnitRennen, WasEinStehenderRechnerSpaetFindetHatSeineZeit) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    ueberfahrt(2, 1100);
    t.maschine.laufen(3000);
    t.maschine.uhr_stellen(7000);  // neither timers nor records
    wartend = {letzter_status, passage(1, 9000), passage(2, 9300)};
    t.maschine.laufen(20);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(1, 1), 8000);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(2, 1), 8200);
}

TEST_F(ControlUnitRennen, EineMillionZufaelligeBytesUndDerNaechsteSatzStimmt) {
    lebt = false;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    std::mt19937 zufall(7);
    for (int i = 0; i < 2000; ++i) {
        std::string bytes(500, '\0');
        for (char& zeichen : bytes) {
            zeichen = static_cast<char>(zufall() % 8 == 0 ? zufall() % 256 : '!' + zufall() % 32);
        }
        t.maschine.anschluesse.senden(com, bytes);
        if (i % 10 == 0) {
            t.maschine.laufen(1);
        }
    }
    t.maschine.anschluesse.senden(com, "$");
    t.maschine.laufen(4200);  // one record a tick
    lebt = true;
    ueberfahrt(5, 123456);
    EXPECT_TRUE(t.p.ereignisse[34].aktiv);
    EXPECT_EQ(t.p.ereignisse[34].ereignis_zeit, 123456);
}

}  // namespace
}  // namespace tarvel::test
