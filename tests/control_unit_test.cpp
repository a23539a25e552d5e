#include <random>
#include <utility>

#include "core/nebendateien.h"
#include "tests/control_unit_probe.h"
#include "tests/plattform/neustart.h"

namespace tarvel::test {
namespace {

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

TEST_F(ControlUnitRennen, TankStandUndWarnung) {
    t.p.form1.t_aktiv.gesetzt(true);
    t.p.einst.sound_an = true;
    t.p.einst.cu.cu_tankautomatik = false;
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
    status(false, "70>555");
    t.rennabbruch();
    starten(t.p.txt.text_runden, "10", {1, 2});
    status(false, "70>555");
    ueberfahrt(1, 1000);
    t.maschine.laufen(8000);
    ueberfahrt(1, 9000);
    ASSERT_EQ(t.runden(1), 1);
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "30,00") << "a lap burns what the unit says";
}

TEST_F(ControlUnitRennen, DerTankIstDerDesWagens) {
    t.p.form1.t_aktiv.gesetzt(true);
    t.p.einst.cu.cu_tankautomatik = false;
    starten(t.p.txt.text_runden, "10", {1, 2});
    status(false, "72>555");
    t.p.rennen.fortsetzung.fahrer_umsetzen({{2, 1, 0, 0, 0, 0}});
    t.p.rennen.tanken.fuellstaende_zeigen();
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "30,00") << "the driver has changed, not the car";
    t.p.einst.tank_inhalt = 80;
    t.maschine.laufen(20);
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "40,00");
    t.p.rennen.befehle.rennen_abbrechen();
    t.spur(1).tank_inhalt = 3;  // a race with the keyboard
    t.p.einst.sound_an = true;
    t.einrichten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.sounds.clear();
    t.maschine.laufen(20);
    EXPECT_EQ(t.bahn().t_bahn[1].text(), "40,00");
    EXPECT_TRUE(t.maschine.sounds.empty()) << "nothing has changed";
}

TEST_F(ControlUnitRennen, NachDemAbziehenImRennenZaehltWasSieInzwischenGemessenHat) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 900000);
    t.maschine.laufen(4000);
    t.maschine.anschluesse.abziehen(com);
    t.maschine.laufen(16000);
    wartend = {passage(1, 906500), passage(1, 914000), passage(2, 912000)};
    t.maschine.anschluesse.da = {com};
    t.maschine.laufen(2600);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 6500);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 7500);
    EXPECT_EQ(t.runden(2), 0);
}

/// Asked again, the unit tells what one car has driven just now before what another has driven in the outage. The
/// calendar has lost nearly a second of that.
TEST_F(ControlUnitRennen, WasSieImAusfallBehaltenHatZaehltNicht) {
    const zeit_ms auf = t.maschine.jetzt();
    t.p.form1.wertmin.eingeben("0,1");
    starten(t.p.txt.text_runden, "10", {1, 2});
    zeit_ms uhr = 500000 - t.maschine.jetzt();
    for (const zeit_ms danach : {8000, 200}) {
        ueberfahrt(1, static_cast<std::uint32_t>(uhr + t.maschine.jetzt()));
        ueberfahrt(2, static_cast<std::uint32_t>(uhr + t.maschine.jetzt()));
        t.maschine.laufen(danach);
    }
    while ((t.maschine.jetzt() - auf + 1400) % 1000 != 0) {
        t.maschine.laufen(1);
    }
    const auto sekunden = static_cast<int>(22 + (t.maschine.jetzt() - auf + 1400) / 1000);
    const zeit_ms weg = uhr + t.maschine.jetzt();
    const zeit_ms gefahren = weg - t.p.rennen.zustand.konto.stempel(2, 1);

    neustart danach(t, protokoll_von(t));
    test_anschluesse& leitung = danach.maschine.anschluesse;
    uhr = weg + 1700 - danach.maschine.jetzt();
    danach.p.ablage.zeilen_schreiben(standard_einstellungen, t.p.datei.festhalten());
    danach.maschine.datum_stellen({2026, 11, 21, 14, 3 + sekunden / 60, sekunden % 60});
    leitung.da = {com};
    leitung.geraet = [&](int /*nummer*/, std::string_view bytes) {
        if (bytes == "\"?\r") {
            leitung.senden(com, wartend.empty() ? letzter_status : wartend.front());
            wartend.erase(wartend.begin(), wartend.begin() + (wartend.empty() ? 0 : 1));
        }
    };
    const auto wagen_2 = [&](zeit_ms um) { return passage(2, static_cast<std::uint32_t>(um)); };
    danach.maschine.waehrend_frage = [&] {
        wartend = {passage(1, static_cast<std::uint32_t>(uhr + danach.maschine.jetzt()))};
        danach.maschine.laufen(250);
        danach.maschine.uhr_stellen(300);  // the windows of the race are made
        wartend = {wagen_2(weg + 500), wagen_2(weg + 1300)};
    };
    danach.p.starten();
    danach.maschine.laufen(500);
    ASSERT_TRUE(danach.lauf().zustand.chaos_aktiv);
    danach.weiter();
    ASSERT_FALSE(danach.lauf().zustand.chaos_aktiv);
    danach.maschine.laufen(7000);
    const rundenkonto& konto = danach.lauf().zustand.konto;
    EXPECT_EQ(konto.runden(2), 1);
    wartend = {wagen_2(uhr + danach.maschine.jetzt())};
    danach.maschine.laufen(10);
    ASSERT_EQ(konto.runden(2), 2);
    EXPECT_NEAR(static_cast<double>(konto.rundenzeit(2, 2)), static_cast<double>(7000 + gefahren), 220)
        << "as driven before the outage and behind it; the last sign of life is a moment old";
}

TEST_F(ControlUnitRennen, NachEinemAusfallGehtEsAuchDannNichtVonSelbstWeiterWennIhreWagenSchonFahren) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 500000);
    t.taste("c");
    status(true);
    t.maschine.laufen(3000);
    neustart danach(t, protokoll_von(t));
    test_anschluesse& leitung = danach.maschine.anschluesse;
    leitung.da = {com};
    status(false);
    leitung.geraet = [&](int /*nummer*/, std::string_view /*bytes*/) { leitung.senden(com, letzter_status); };
    danach.p.starten();
    danach.maschine.laufen(5000);
    EXPECT_TRUE(danach.lauf().zustand.chaos_aktiv);
    status(true);  // somebody stops them, and starts the light, at the unit
    danach.maschine.laufen(3000);
    status(false);
    danach.maschine.laufen(3000);
    EXPECT_FALSE(danach.lauf().zustand.chaos_aktiv);
    EXPECT_EQ(leitung.geschrieben[com].find("T2P$"), std::string::npos) << "nothing stops the cars at green";
}

TEST_F(ControlUnitRennen, EinWiederaufgenommenesRennenOeffnetSeinenPortNichtNeu) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 500000);
    t.rennabbruch();
    const int damals = std::exchange(t.p.einst.tank_inhalt, 44);
    t.maschine.anschluesse.werte.clear();
    t.maschine.antwort = true;
    t.p.form1.command_fortsetzen.klicken();
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_EQ(t.p.einst.tank_inhalt, damals);
    t.rennende();
    t.p.auswertung.Command5.klicken();
    t.maschine.laufen(1000);
    EXPECT_EQ(t.p.einst.tank_inhalt, 44);
    EXPECT_TRUE(t.maschine.anschluesse.werte.empty());
}

TEST_F(ControlUnitRennen, VorDemRennenFolgtDieTankfunktionDemGeraet) {
    lebt = false;
    t.p.einst.cu.cu_tankautomatik = true;
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
    t.maschine.laufen(1000);
    const int im_rennen = geschrieben("?");
    t.rennabbruch();
    EXPECT_EQ(geschrieben("=101$"), 2) << "its displays are cleared behind the race";
    t.maschine.laufen(1000);
    EXPECT_LT(geschrieben("?") - im_rennen, im_rennen / 10) << "and it is asked but now and then";
    t.maschine.anschluesse.abziehen(com);
    t.starten(t.p.txt.text_runden, "10", {1});
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, t.p.txt.meldung[14]);
    t.taste("1");
    EXPECT_EQ(t.runden(1), 0);
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
