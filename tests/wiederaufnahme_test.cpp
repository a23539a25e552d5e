// Races that were cut off: by the end of the program, in any line of their log, or by hand. And what becomes of them.

#include "programm/rennprotokoll.h"

#include <gtest/gtest.h>

#include "results/beste_zeiten_fenster.h"
#include "tests/wiederaufnahme_probe.h"

namespace tarvel {
namespace {

using test::neustart;
using test::protokoll_von;
using test::Wiederaufnahme;

TEST_F(Wiederaufnahme, NachEinemAusfallGehtDasRennenWeiterAlsWaereErEinePause) {
    t_.starten("Runden", "10", {1, 2});
    t_.runde_nach(4000, "12");
    for (int runde = 0; runde < 3; ++runde) {
        t_.runde_nach(4000, "1");
        t_.runde_nach(1000, "2");
    }
    t_.maschine.laufen(2400);  // lane 1 has driven 3.4 s of its lap, lane 2 2.4 s

    neustart danach(t_, protokoll_von(t_));
    danach.maschine.datum_stellen({2026, 11, 21, 14, 30, 0});
    danach.p.starten();

    ASSERT_EQ(danach.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(danach.maschine.angebote, 1) << "whoever presses Enter goes on";
    EXPECT_EQ(danach.maschine.antworten_der_frage, "Weiterfahren/Später");
    const std::string& frage = danach.maschine.fragen_gestellt.front().text;
    EXPECT_TRUE(frage.starts_with("Das Rennen von 14:03 wurde in Runde 4 unterbrochen. Fortsetzen?\n")) << frage;
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::bahn1))
        << testing::PrintToString(danach.maschine.meldungen_gezeigt);
    EXPECT_TRUE(danach.p.fenster.ist_offen(fenstername::k_ampel));
    EXPECT_TRUE(danach.lauf().zustand.chaos_aktiv);
    EXPECT_FALSE(danach.p.form1.spur[3].gesetzt() || danach.p.form1.fahrer[3].aktiviert());
    const zeit_ms weg = danach.maschine.jetzt() - danach.lauf().zustand.pause.start;
    EXPECT_NEAR(static_cast<double>(weg), (26 * 60 + 38) * 1000 - 18400, 5000) << "since the last sign of life";
    const rundenkonto& konto = danach.lauf().zustand.konto;
    const rundenkonto& vorher = t_.p.rennen.zustand.konto;
    for (const int spur : {1, 2}) {
        ASSERT_EQ(konto.runden(spur), 3);
        for (int runde = 1; runde <= 3; ++runde) {
            EXPECT_EQ(konto.rundenzeit(spur, runde), vorher.rundenzeit(spur, runde));
        }
    }
    danach.weiter();
    EXPECT_FALSE(danach.lauf().zustand.chaos_aktiv);
    danach.maschine.laufen(1600);
    danach.p.rennen.befehle.taste('1');
    danach.p.rennen.befehle.taste('2');
    danach.maschine.laufen(1);
    EXPECT_NEAR(static_cast<double>(konto.rundenzeit(1, 4)), 5000, 210) << "the last sign of life is a moment old";
    EXPECT_EQ(konto.rundenzeit(1, 4) - konto.rundenzeit(2, 4), 1000);
    for (int runde = 4; runde < 10; ++runde) {
        danach.maschine.laufen(4999);
        danach.p.rennen.befehle.taste('1');
        danach.maschine.laufen(1);
        EXPECT_EQ(konto.rundenzeit(1, runde + 1), 5000);
    }
    danach.p.rennen.endfrage.bestaetigen();
    EXPECT_TRUE(danach.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_EQ(konto.runden(1), 10);
    EXPECT_EQ(test::nachrechnen(danach.p, danach.maschine), "");
}

TEST_F(Wiederaufnahme, UeberfahrtImBeginnDerPauseUeberlebtDenAusfallGleichNachIhr) {
    t_.p.einst.sensor_timeout = 2000ms;
    t_.p.einst.chaosampel_an = false;
    t_.starten("Runden", "10", {1, 2});
    t_.runde_nach(1000, "12");
    t_.maschine.laufen(4000);
    t_.taste("c");
    t_.runde_nach(500, "1");
    t_.maschine.laufen(5000);
    t_.taste("c");
    t_.maschine.laufen(450);
    ASSERT_FALSE(t_.p.rennen.zustand.chaos_aktiv);
    ASSERT_EQ(t_.runden(1), 0);

    neustart danach(t_, protokoll_von(t_));
    danach.p.starten();
    ASSERT_TRUE(danach.lauf().zustand.chaos_aktiv);
    danach.weiter();
    danach.maschine.laufen(2000);
    danach.p.rennen.befehle.taste('1');
    danach.maschine.laufen(600);
    const rundenkonto& konto = danach.lauf().zustand.konto;
    ASSERT_EQ(konto.runden(1), 2);
    EXPECT_NEAR(static_cast<double>(konto.rundenzeit(1, 1)), 4500, 5);
    danach.p.rennen.endfrage.bestaetigen();
    EXPECT_EQ(test::nachrechnen(danach.p, danach.maschine), "");
}

TEST_F(Wiederaufnahme, WerNichtWillWirdNichtNochEinmalGefragtUndKannEsSpaeter) {
    t_.starten("Zeit", "10", {1});
    t_.runde_nach(5000, "1");
    t_.runde_nach(5000, "1");
    neustart danach(t_, protokoll_von(t_));
    danach.maschine.antwort = false;
    danach.p.starten();
    EXPECT_FALSE(danach.p.fenster.ist_offen(fenstername::bahn1));

    neustart morgen(t_, danach.maschine.datei_lesen("Ergebnisse/Protokoll/2026-11-21 14-03-22.txt"));
    morgen.p.starten();
    EXPECT_TRUE(morgen.maschine.fragen_gestellt.empty());
    morgen.maschine.antwort = true;
    morgen.p.form1.command_fortsetzen.klicken();
    EXPECT_TRUE(morgen.lauf().zustand.chaos_aktiv);
    EXPECT_EQ(morgen.lauf().zustand.konto.runden(1), 1);
}

TEST_F(Wiederaufnahme, EinAbbruchWirdVomHauptfensterAusZurueckgenommen) {
    t_.starten("Zeit", "10", {1});
    t_.runde_nach(5000, "1");
    t_.runde_nach(5000, "1");
    t_.p.rennen.befehle.fenster_schliessen();
    t_.runde_nach(2500, "1");
    t_.p.rennen.befehle.fenster_schliessen();
    ASSERT_FALSE(t_.p.fenster.ist_offen(fenstername::bahn1));
    ASSERT_EQ(t_.maschine.mitgeteilt.size(), 1U);
    EXPECT_EQ(t_.maschine.mitgeteilt.back(), "Rennen abgebrochen. „Fortsetzen“ holt es zurück.");

    t_.maschine.laufen(60000);
    t_.maschine.antwort = true;
    t_.p.form1.command_fortsetzen.klicken();
    ASSERT_TRUE(t_.p.fenster.ist_offen(fenstername::bahn1)) << testing::PrintToString(t_.maschine.meldungen_gezeigt);
    EXPECT_TRUE(t_.p.rennen.zustand.chaos_aktiv);
    EXPECT_EQ(t_.runden(1), 2) << "the lap while it asked was driven";
    t_.p.k_ampel.Command1.klicken();
    t_.maschine.laufen(7000);
    EXPECT_FALSE(t_.p.rennen.zustand.chaos_aktiv);
    t_.runde_nach(4000, "1");
    EXPECT_EQ(t_.p.rennen.zustand.konto.rundenzeit(1, 3), 4000);
    t_.rennende();
    EXPECT_EQ(test::nachrechnen(t_.p, t_.maschine), "");
}

TEST_F(Wiederaufnahme, DasNaechsteWirdNurGezeigtWoEsEinesGibt) {
    for (const bool zweites : {false, true}) {
        t_.maschine.antwort = true;
        t_.starten("Zeit", "10", {1});
        t_.runde_nach(5000, "1");
        t_.rennabbruch();
        t_.maschine.laufen(2000);
        t_.maschine.fragen_gestellt.clear();
        t_.maschine.meldungen_gezeigt.clear();
        t_.maschine.antwort = false;
        t_.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;
        t_.p.form1.command_fortsetzen.klicken();
        EXPECT_EQ(t_.maschine.fragen_gestellt.size(), zweites ? 2U : 1U);
        EXPECT_TRUE(t_.maschine.antworten_der_frage.ends_with("/Später")) << t_.maschine.antworten_der_frage;
        EXPECT_TRUE(t_.maschine.meldungen_gezeigt.empty()) << "no dead end";
    }
}

TEST_F(Wiederaufnahme, WasInzwischenEingestelltWurdeGiltNachDemRennenWieder) {
    const dateien& ablage = t_.p.ablage;
    tarvel::bestzeiten beste;
    beste.einfuegen(1, {2000, "Anna", "", ""});
    beste.speichern(ablage, "Holzbahn");
    beste.einfuegen(1, {1000, "Ben", "", ""});
    beste.speichern(ablage, "Clubbahn");
    t_.p.einst.beste_datei = "Holzbahn";
    t_.starten("Runden", "10", {1, 2});
    t_.runde_nach(4000, "12");
    t_.runde_nach(4000, "1");
    t_.rennabbruch();
    t_.p.einst.tank_inhalt = 44;
    t_.p.belegung.taste(1, 200);
    t_.p.form1.fahrer[0].eingeben("Gast");
    t_.p.einst.beste_datei = "Clubbahn";
    t_.p.einst.rc.rc_ziel_sensor34 = true;
    t_.maschine.antwort = true;
    t_.p.form1.command_fortsetzen.klicken();
    ASSERT_TRUE(t_.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_NE(t_.p.einst.tank_inhalt, 44) << "the race goes on with what it began with";
    EXPECT_NE(t_.p.belegung.taste(1), 200);
    EXPECT_EQ(t_.p.bestzeiten.gesamt().name, "Anna");
    EXPECT_TRUE(t_.p.form1.spur_frei(3));
    t_.p.einst.sound_an = !t_.p.einst.sound_an;  // switched meanwhile
    const bool ton = t_.p.einst.sound_an;
    t_.p.k_ampel.Command1.klicken();
    t_.maschine.laufen(8000);
    t_.rennende();
    EXPECT_NE(t_.p.einst.tank_inhalt, 44);
    t_.p.auswertung.Command1.klicken();
    t_.maschine.laufen(1000);
    EXPECT_NE(t_.p.einst.tank_inhalt, 44) << "the same race once more";
    t_.rennabbruch();
    t_.maschine.laufen(1000);
    EXPECT_EQ(t_.p.einst.tank_inhalt, 44);
    EXPECT_EQ(t_.p.belegung.taste(1), 200);
    EXPECT_EQ(t_.p.form1.fahrer[0].text(), "Gast");
    EXPECT_EQ(t_.p.bestzeiten.gesamt().name, "Ben") << "the next best time would write over the club's";
    EXPECT_FALSE(t_.p.form1.spur_frei(3));
    EXPECT_EQ(t_.p.einst.sound_an, ton);
}

TEST_F(Wiederaufnahme, WasEineEinstellungsdateiNichtSagenDarfHaeltKeinRennenAuf) {
    t_.p.einst.tank_strafzeit = {};
    t_.p.form1.massstab.eingeben("600");
    t_.starten("Runden", "10", {1, 2});
    t_.runde_nach(4000, "12");
    t_.runde_nach(4000, "1");
    EXPECT_EQ(test::nachrechnen(t_.p, t_.maschine), "");
    neustart danach(t_, protokoll_von(t_));
    danach.p.starten();
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_EQ(danach.lauf().zustand.konto.runden(1), 1);
    EXPECT_EQ(danach.p.einst.tank_strafzeit.count(), 0);
}

TEST_F(Wiederaufnahme, LangeStrafenFuellenDasProtokollNichtUndGehenDochWeiter) {
    constexpr std::size_t bytes_je_minute = 5'000'000 / 60;
    einstellungen& e = t_.p.einst;
    t_.p.form1.t_aktiv.umschalten();
    e.tank_inhalt = 1;  // empty after each lap
    e.tank_straf_option = leer_aktion::stromunterbrechung;
    e.tank_strafzeit = 40s;
    t_.starten("Zeit", "10", {1, 2, 3, 4, 5, 6});
    for (int runde = 0; runde < 5; ++runde) {
        t_.runde_nach(42000, "123456");
    }
    t_.maschine.laufen(30000);
    ASSERT_TRUE(t_.spur(6).tank_strafe_aktiv);
    EXPECT_LT(protokoll_von(t_).size(), 4 * bytes_je_minute);

    neustart danach(t_, protokoll_von(t_));
    danach.p.starten();
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::bahn1));
    for (const int spur : alle_spuren) {
        const auto verloren = t_.spur(spur).tank_strafzaehler - danach.spur(spur).tank_strafzaehler;
        EXPECT_TRUE(verloren >= 0ms && verloren <= 200ms) << "the last sign of life is a moment old";
    }
    danach.weiter();
    danach.maschine.laufen(9000);
    EXPECT_TRUE(danach.spur(6).tank_strafe_aktiv);
    danach.maschine.laufen(1300);
    EXPECT_FALSE(danach.spur(6).tank_strafe_aktiv);
    danach.p.rennen.endfrage.bestaetigen();
    EXPECT_EQ(test::nachrechnen(danach.p, danach.maschine), "");
}

TEST_F(Wiederaufnahme, NachEinemSpurwechselBleibtJedemFahrerWasErAufDerSpurDavorFuhr) {
    t_.p.einst.aut_speichern = true;
    t_.p.form1.lspur[1].eingeben("31");
    t_.starten("Runden", "2", {1, 2});
    t_.runde_nach(5000, "12");
    t_.runde_nach(5000, "12");
    t_.runde_nach(5000, "1");
    t_.rennende();
    t_.p.auswertung.neues_ziel.eingeben("4");
    t_.p.auswertung.Command3.klicken();
    t_.p.k_ampel.Command1.klicken();
    t_.maschine.laufen(8000);
    t_.runde_nach(5000, "12");
    const std::string protokoll = protokoll_von(t_);
    t_.rennende();

    neustart danach(t_, protokoll);
    danach.p.starten();
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::bahn1));
    danach.weiter();
    danach.p.rennen.endfrage.bestaetigen();
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_EQ(danach.p.auswertung.ges_meter[i].text(), t_.p.auswertung.ges_meter[i].text());
    }
}

TEST_F(Wiederaufnahme, WasBeschaedigtIstWirdNurEinmalAngebotenUndNichtAngeruehrt) {
    const std::string name = "Ergebnisse/Protokoll/2026-11-21 14-03-22.txt";
    const std::string liste = "Ergebnisse/Protokoll/Weggelegt.txt";
    t_.starten("Zeit", "10", {1});
    t_.runde_nach(5000, "1");
    t_.runde_nach(5000, "1");
    std::string protokoll = protokoll_von(t_);
    protokoll.insert(protokoll.rfind("\r\n", protokoll.size() - 3) + 2, "x*0000\r\n");
    neustart danach(t_, protokoll);
    danach.maschine.antwort = false;
    danach.p.starten();
    EXPECT_EQ(danach.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(danach.maschine.datei_lesen(name), protokoll);

    neustart morgen(t_, protokoll);
    morgen.maschine.datei_schreiben(liste, danach.maschine.datei_lesen(liste));
    morgen.p.starten();
    EXPECT_TRUE(morgen.maschine.fragen_gestellt.empty());
    morgen.maschine.antwort = true;
    morgen.p.form1.command_fortsetzen.klicken();
    EXPECT_TRUE(morgen.lauf().zustand.chaos_aktiv);
    EXPECT_EQ(morgen.maschine.datei_lesen(name + ".beschaedigt"), protokoll) << "what is cut off may be whole";
    EXPECT_EQ(morgen.maschine.datei_lesen(liste), "") << "cut off once more, it is asked for again";
}

}  // namespace
}  // namespace tarvel
