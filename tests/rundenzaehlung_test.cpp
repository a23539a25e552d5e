#include "race/rundenzaehlung.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Rundenzaehlung : public test::ProgrammProbe {
protected:
    void SetUp() override { t.starten("Zeit", "10", {1, 2}); }

    const std::vector<std::string>& liste(int spur) { return t.bahn().t_liste.at(feld_index(spur)).zeilen(); }
};

TEST_F(Rundenzaehlung, ErsteUeberfahrtStartetNurDieZaehlung) {
    t.runde_nach(1000, "1");  // far below the minimum lap
    EXPECT_EQ(t.runden(1), 0);
    EXPECT_EQ(t.bahn().zaehler[1].text(), "0");
    EXPECT_EQ(t.bahn().lrunde[1].text(), "00:00:000");
    EXPECT_EQ(t.p.rennen.zustand.konto.beste(1), 0);
    EXPECT_EQ(liste(1), (std::vector<std::string>{" 0. 00,998"}));
    EXPECT_EQ(t.bahn().zaehler[1].schriftfarbe(), t.p.einst.farben_spur[1]);
    EXPECT_EQ(t.bahn().zaehler[2].schriftfarbe(), t.p.einst.farben_schrift[2]);
}

TEST_F(Rundenzaehlung, ZaehltRundenZeitenUndBesteRundeJeSpur) {
    t.runde_nach(1000, "12");
    t.runde_nach(8123, "1");
    t.runde_nach(500, "2");
    t.runde_nach(7000, "1");
    t.runde_nach(3000, "1");  // below the minimum: vanishes, and the next lap is timed from the older stamp
    t.runde_nach(6000, "1");
    EXPECT_EQ(t.runden(1), 3);
    EXPECT_EQ(rundenzeit(1, 1), 8123);
    EXPECT_EQ(rundenzeit(1, 2), 7500);
    EXPECT_EQ(rundenzeit(1, 3), 9000);
    EXPECT_EQ(t.p.rennen.zustand.konto.beste(1), 7500);
    EXPECT_EQ(t.bahn().lrunde[1].text(), "09,000");
    EXPECT_EQ(t.bahn().brunde[1].text(), "07,500");
    EXPECT_EQ(liste(1).back(), " 3. 09,000");
    EXPECT_EQ(t.bahn().t_liste[0].markiert(), 3);
    EXPECT_EQ(rundenzeit(2, 1), 8623);
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_EQ(t.p.rennen.zustand.fuehrungsrunden, 3);
}

TEST_F(Rundenzaehlung, MinutenStehenVorDerKurzenZeit) {
    const auto gezeigt = [](const bezeichnung& label) { return label.davor() + label.text(); };
    t.runde_nach(1000, "1");
    t.runde_nach(61322, "1");
    EXPECT_EQ(t.bahn().lrunde[1].text(), "01,322");
    EXPECT_EQ(gezeigt(t.bahn().lrunde[1]), "1:01,322");
    EXPECT_EQ(gezeigt(t.bahn().brunde[1]), "1:01,322");
    t.runde_nach(9000, "1");
    EXPECT_EQ(gezeigt(t.bahn().lrunde[1]), "09,000");
    EXPECT_EQ(gezeigt(t.bahn().brunde[1]), "09,000");
    const class liste& zeilen = t.bahn().t_liste[0];
    EXPECT_EQ(zeilen.gezeigt(1), " 1. 1:01,322");
    EXPECT_EQ(zeilen.gezeigt(2), " 2. 09,000");
}

TEST_F(Rundenzaehlung, DieKuerzesteRundeIstDieEingegebeneUndEineZehntelsekunde) {
    ASSERT_EQ(t.p.form1.wertmin.text(), "5");
    t.runde_nach(1000, "1");
    t.runde_nach(5099, "1");
    EXPECT_EQ(t.runden(1), 0);
    t.runde_nach(1, "1");
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(rundenzeit(1, 1), 5100);
}

TEST_F(Rundenzaehlung, SperrtHundertMillisekundenNachJederRunde) {
    t.p.param.min_rundenzeit_ms = 10;
    t.runde_nach(1000, "1");
    t.runde_nach(99, "1");
    EXPECT_EQ(t.runden(1), 0);
    t.runde_nach(2, "1");
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(rundenzeit(1, 1), 101);
}

TEST_F(Rundenzaehlung, ZweiFlankenImSelbenTickSindEineMitDemSpaeterenStempel) {
    t.runde_nach(1000, "1");
    t.maschine.laufen(8000);
    ereignis_zeile& ereignis = t.p.ereignisse[16];
    ereignis.aktiv = true;
    ereignis.ereignis_zeit = t.p.ereignisse.messzeit - 40;
    t.p.ereignisse.ereignis_melden(16);
    t.maschine.laufen(1);
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(rundenzeit(1, 1), 8001);
}

TEST_F(Rundenzaehlung, GehaltenerKontaktZaehltNurEinmal) {
    t.p.param.min_rundenzeit_ms = 10;
    t.runde_nach(1000, "1");
    t.maschine.laufen(8000);
    t.p.ereignisse[16].pegel = true;  // away from rest: the car stands in the sensor
    for (int tick = 0; tick < 300; ++tick) {
        t.p.ereignisse.ereignis_melden(16);
        t.maschine.laufen(1);
    }
    EXPECT_EQ(t.runden(1), 1);
    t.p.ereignisse[16].pegel = false;
    t.maschine.laufen(1);
    t.runde_nach(200, "1");
    EXPECT_EQ(t.runden(1), 2);
}

TEST_F(Rundenzaehlung, PauseHebtDasMinimumFuerGenauEineRunde) {
    t.runde_nach(1000, "1");
    t.spur(1).pause_abzug = 2000;
    t.runde_nach(6000, "1");  // 6000 < 5100 + 2000
    EXPECT_EQ(t.runden(1), 0);
    t.runde_nach(2000, "1");
    EXPECT_EQ(rundenzeit(1, 1), 6000);
    EXPECT_EQ(t.spur(1).pause_abzug, 0);
    t.runde_nach(6000, "1");
    EXPECT_EQ(rundenzeit(1, 2), 6000);
    t.p.param.min_rundenzeit_ms = -100000;
    t.spur(1).pause_abzug = 7000;
    t.runde_nach(6000, "1");
    EXPECT_EQ(rundenzeit(1, 3), 0) << "never below zero";
}

TEST_F(Rundenzaehlung, GesperrteUndAusgeschiedeneSpurenZaehlenNicht) {
    t.runde_nach(1000, "12");
    t.spur(1).tank_strafe_aktiv = true;
    t.spur(2).disqualifiziert = true;
    t.bahn().zaehler[2].text("Dis.");
    t.runde_nach(8000, "12345");
    EXPECT_EQ(t.runden(1), 0);
    EXPECT_EQ(t.runden(2), 0);
    EXPECT_EQ(t.bahn().zaehler[2].text(), "Dis.");
    EXPECT_EQ(t.runden(3), -1) << "not in the race";
    t.spur(1).tank_strafe_aktiv = false;
    t.spur(1).tank_halt = {zeitsperre::seit_immer, -zeitsperre::seit_immer};
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.runden(1), 0);
    t.p.einst.tank_art = tankweise::zwischen_zwei_kontakten;
    t.runde_nach(8000, "1");
    EXPECT_EQ(t.runden(1), 1);
}

TEST_F(Rundenzaehlung, StartzeitJeSpurAmSensor) {
    t.p.einst.start_zeit_sensor = true;
    t.runde_nach(3000, "1");
    EXPECT_EQ(liste(1).front(), " 0. 00,000");
    t.runde_nach(8000, "1");
    EXPECT_EQ(rundenzeit(1, 1), 8000);
}

TEST_F(Rundenzaehlung, SchriftDesZaehlersSchrumpft) {
    t.runde_nach(1000, "1");
    const double voll = t.bahn().zaehler_schrift;
    const auto bis = [&](int runden) {
        t.runden_auffuellen(1, runden - 1);
        t.runde_nach(8000, "1");
        return t.bahn().zaehler[1].schriftgroesse();
    };
    EXPECT_DOUBLE_EQ(bis(99), voll);
    EXPECT_DOUBLE_EQ(bis(100), 0.8 * voll);
    EXPECT_DOUBLE_EQ(bis(1000), 0.6 * voll);
}

TEST_F(Rundenzaehlung, RundenabzugNimmtDieRundeAusDemSpeicher) {
    t.p.belegung.vorbelegen(belegung_stufe::standard);
    t.runde_nach(1000, "1");
    t.runde_nach(8000, "1");
    t.runde_nach(7000, "1");
    t.taste("!");
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(t.bahn().zaehler[1].text(), "1");
    EXPECT_EQ(t.p.rennen.zustand.konto.beste(1), 8000);
    EXPECT_EQ(t.bahn().brunde[1].text(), "08,000");
    t.runde_nach(5999, "1");  // timed from the crossing before the one that was taken off
    EXPECT_EQ(rundenzeit(1, 2), 13000);
    t.taste("!");
    t.taste("!");
    t.taste("!");
    EXPECT_EQ(t.runden(1), 0) << "a lane at 0 stays at 0";
}

TEST_F(Rundenzaehlung, AbzugVorDerErstenUeberfahrtGehtTiefer) {
    t.p.belegung.vorbelegen(belegung_stufe::standard);
    for (int mal = 0; mal < 3; ++mal) {
        t.taste("!");
    }
    EXPECT_EQ(t.runden(1), -4);
    for (int mal = 0; mal < 5; ++mal) {
        t.runde_nach(8000, "1");
    }
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(liste(1).size(), 2U);
    t.spur(2).disqualifiziert = true;
    t.taste("\"");
    EXPECT_EQ(t.runden(2), -1);
}

TEST_F(Rundenzaehlung, PlaetzeFolgenAlleinDenRunden) {
    t.rennabbruch();
    t.starten("Zeit", "10", {2, 5});
    EXPECT_EQ(t.bahn().l_PosAnz[1].text(), "1");
    EXPECT_EQ(t.bahn().l_PosAnz[4].text(), "2");
    EXPECT_FALSE(t.bahn().l_PosAnz[0].sichtbar());
    t.runde_nach(1000, "5");
    EXPECT_EQ(t.bahn().l_PosAnz[4].text(), "1");
    t.runde_nach(1000, "2");
    EXPECT_EQ(t.bahn().l_PosAnz[4].text(), "1") << "who reached the lap first stays ahead";
    t.runde_nach(8000, "25");
    EXPECT_EQ(t.bahn().l_PosAnz[4].text(), "1");
    t.runde_nach(8000, "2");
    EXPECT_EQ(t.bahn().l_PosAnz[1].text(), "1");
    EXPECT_EQ(t.bahn().l_PosAnz[4].text(), "2");
}

struct geraet_mit_spur_drei : messquelle {
    explicit geraet_mit_spur_drei(ereignis_tabelle& ziel) : ereignisse(ziel) {}
    void abfragen() override {
        if (std::exchange(flanke, false)) {
            ereignisse[art].ereignis_zeit = 4711;
            ereignisse[art].aktiv = true;
        }
    }
    void abtasten() override { ++proben; }
    ereignis_tabelle& ereignisse;
    ereignis_art art = 14;
    bool flanke = false;
    int proben = 0;
};

TEST_F(Rundenzaehlung, GeraeteLiefernUndSensorDreiZaehltAufWunschFuerSpurEins) {
    geraet_mit_spur_drei sensor(t.p.ereignisse);
    t.p.quellen.anschliessen(sensor);
    t.p.einst.rc.rc_ziel_sensor34 = true;
    sensor.flanke = true;
    t.maschine.laufen(3);
    EXPECT_EQ(t.runden(1), 0);
    EXPECT_EQ(t.p.rennen.zustand.konto.stempel(1, 0), 4711);
    EXPECT_EQ(t.runden(3), -1);
    EXPECT_EQ(sensor.proben, 3);
    sensor.art = 13;
    sensor.flanke = true;
    t.maschine.laufen(3);
    EXPECT_EQ(t.runden(2), 0);
    t.maschine.laufen(8000);
    t.taste("3");
    EXPECT_EQ(t.runden(1), 1) << "by key as well";
}

}  // namespace
}  // namespace tarvel
