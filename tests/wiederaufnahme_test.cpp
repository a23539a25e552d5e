// Races that were cut off: by the end of the program, in any line of their log, or by hand. And what becomes of them.

#include "programm/rennprotokoll.h"

#include <gtest/gtest.h>

#include "results/beste_zeiten_fenster.h"
#include "tests/plattform/neustart.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

using test::neustart;
using test::protokoll_von;

class Wiederaufnahme : public testing::Test {
protected:
    void SetUp() override {
        t_.p.belegung.vorbelegen(belegung_stufe::alle);
        t_.p.form1.wertmin.eingeben("1");
    }

    test::testprogramm t_;
};

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

TEST_F(Wiederaufnahme, EinErgebnisDasNochOffenWarKommtMitSeinenKorrekturenWieder) {
    t_.p.einst.aut_speichern = true;
    t_.starten("Runden", "3", {1, 2});
    t_.runde_nach(5000, "12");
    t_.runde_nach(6000, "1");
    t_.runde_nach(7000, "12");
    t_.runde_nach(8000, "1");
    t_.rennende();
    auswertung& vorher = t_.p.auswertung;
    vorher.liste[0].auswaehlen(1);
    vorher.Command8.klicken();
    vorher.Command_nachtragen.klicken();
    vorher.nachtrag.cbo_nachtrag.waehlen(1);
    vorher.nachtrag.Command_eintragen.klicken();
    ASSERT_EQ(t_.ergebnis(2).rundenzahl(), 2);
    vorher.Command6.klicken();
    vorher.meter[0].eingeben("2,5");
    vorher.meter[1].eingeben("3");
    vorher.Command6.klicken();
    vorher.Command_zurueck.klicken();

    neustart danach(t_, protokoll_von(t_), 700000);
    danach.p.starten();
    ASSERT_EQ(danach.maschine.fragen_gestellt.size(), 1U);
    auswertung& a = danach.p.auswertung;
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_EQ(danach.lauf().zustand.konto.runden(1), t_.runden(1));
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_EQ(a.liste[i].zeilen(), vorher.liste[i].zeilen());
        EXPECT_EQ(a.ges_meter[i].text(), vorher.ges_meter[i].text());
    }
    a.Command_wieder.klicken();
    EXPECT_EQ(danach.p.wertung.ergebnis().auf(1)->restmeter, 2.5);
    EXPECT_EQ(danach.p.wertung.ergebnis().auf(2)->restmeter, 3) << "one step, as it was entered";
    EXPECT_FALSE(a.Command_wieder.bedienbar());
    for (int mal = 0; mal < 3; ++mal) {
        a.Command_zurueck.klicken();
    }
    EXPECT_EQ(danach.p.wertung.ergebnis().auf(1)->rundenzahl(), 3);
    EXPECT_FALSE(a.Command_zurueck.bedienbar());
    a.Command_wieder.klicken();
    a.Command_wieder.klicken();
    EXPECT_EQ(danach.p.wertung.ergebnis().auf(2)->rundenzahl(), 2);
    a.Command5.klicken();
    EXPECT_EQ(test::nachrechnen(danach.p, danach.maschine), "");
}

TEST_F(Wiederaufnahme, AuchNachEinemAusfallImRennenKommtSeinErgebnisWieder) {
    t_.starten("Runden", "9", {1, 2});
    t_.runde_nach(5000, "12");
    t_.runde_nach(6000, "12");
    neustart danach(t_, protokoll_von(t_), 700000);
    danach.p.starten();
    danach.weiter();
    danach.maschine.laufen(6000);
    danach.p.rennen.befehle.taste('1');
    danach.maschine.laufen(10);
    danach.p.rennen.endfrage.bestaetigen();
    danach.maschine.laufen(20000);
    ASSERT_TRUE(danach.p.fenster.ist_offen(fenstername::auswertung));
    std::string datei = danach.p.rennprotokoll.dateiname();
    std::replace(datei.begin(), datei.end(), '\\', '/');
    neustart noch_einmal(t_, danach.maschine.datei_lesen(datei), 30000);
    noch_einmal.p.starten();
    ASSERT_TRUE(noch_einmal.p.fenster.ist_offen(fenstername::auswertung))
        << testing::PrintToString(noch_einmal.maschine.meldungen_gezeigt);
    EXPECT_EQ(noch_einmal.lauf().zustand.konto.runden(1), 2);
}

/// The cars drove on while nobody counted: what is left of that lap may be far shorter than any.
TEST_F(Wiederaufnahme, DieRundeInDerDasProgrammWegWarIstKeineBeste) {
    t_.starten("Runden", "12", {1, 2});
    t_.runde_nach(4000, "12");
    t_.runde_nach(5000, "1");
    t_.maschine.laufen(700);

    const auto tasten = [](neustart& n, const std::string& welche) {
        for (const char taste : welche) {
            n.p.rennen.befehle.taste(taste);
        }
        n.maschine.laufen(1);
    };
    neustart danach(t_, protokoll_von(t_));
    danach.p.starten();
    danach.weiter();
    danach.maschine.laufen(1500);
    tasten(danach, "12");
    const rundenkonto& konto = danach.lauf().zustand.konto;
    EXPECT_LT(konto.rundenzeit(1, 2), 2500) << "it counts as it is";
    EXPECT_EQ(konto.beste(1), 5000);
    EXPECT_EQ(konto.beste(2), 0);
    danach.maschine.laufen(7999);
    tasten(danach, "12");
    EXPECT_EQ(konto.beste(1), 5000);
    EXPECT_EQ(konto.beste(2), 8000) << "the first that was measured";
    danach.maschine.laufen(500);

    std::string datei = danach.p.rennprotokoll.dateiname();
    std::replace(datei.begin(), datei.end(), '\\', '/');
    neustart noch_einmal(t_, danach.maschine.datei_lesen(datei), 30000);
    noch_einmal.p.starten();
    ASSERT_EQ(noch_einmal.lauf().zustand.konto.beste(2), 8000);
    noch_einmal.weiter();
    noch_einmal.maschine.laufen(1500);
    tasten(noch_einmal, "12");
    noch_einmal.maschine.laufen(6999);
    tasten(noch_einmal, "12");
    noch_einmal.maschine.laufen(300);
    noch_einmal.p.rennen.endfrage.bestaetigen();
    auswertung& a = noch_einmal.p.auswertung;
    const auto angebot = [&](int spur) { return bestzeit_angebote(noch_einmal.p.wertung.ergebnis())[spur].runden; };
    EXPECT_EQ(angebot(1), (std::vector<zeit_ms>{5000, 8000, 7000}));
    EXPECT_EQ(angebot(2), (std::vector<zeit_ms>{8000, 7000}));
    EXPECT_EQ(noch_einmal.p.wertung.ergebnis().auf(2)->beste, 7000);
    EXPECT_TRUE(a.liste[1].zeilen()[0].ends_with(" (Ausfall)"));

    a.liste[1].auswaehlen(3);  // the 7000 becomes a part of the lap before
    a.Command8.klicken();
    EXPECT_EQ(noch_einmal.p.wertung.ergebnis().auf(2)->beste, 8000);
    a.neues_ziel.eingeben("20");
    a.Command3.klicken();  // the drivers change lanes
    noch_einmal.weiter();
    tasten(noch_einmal, "12");
    noch_einmal.maschine.laufen(8999);
    tasten(noch_einmal, "12");
    noch_einmal.p.rennen.endfrage.bestaetigen();
    EXPECT_EQ(noch_einmal.p.wertung.ergebnis().auf(1)->beste, 8000);
    EXPECT_EQ(noch_einmal.lauf().zustand.konto.beste(1), 8000);
    a.Command5.klicken();
    EXPECT_EQ(test::nachrechnen(noch_einmal.p, noch_einmal.maschine), "");
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

/// An evening whose first race is broken off after a crossing of everybody.
struct Abgebrochen : test::Abendprobe {
    void anfahren_und_abbrechen() {
        beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
        ASSERT_TRUE(abend.rennen_starten());
        t.bahn().Command1.klicken();
        t.runde_nach(6000, "123");
        t.maschine.antwort = true;
        t.rennabbruch();
    }
};

TEST_F(Abgebrochen, DerAbendBietetSeinRennenWiederAn) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    for (const bool weiter : {true, false}) {
        ASSERT_TRUE(abend.rennen_starten());
        t.bahn().Command1.klicken();
        t.runde_nach(6000, "123");
        t.runde_nach(6000, "123");
        t.maschine.antwort = true;
        t.rennabbruch();
        ASSERT_FALSE(offen(fenstername::bahn1));
        t.maschine.antwort = weiter;
        t.maschine.fragen_gestellt.clear();
        ASSERT_TRUE(abend.rennen_starten());
        ASSERT_TRUE(offen(fenstername::bahn1));
        ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U);
        EXPECT_TRUE(t.maschine.fragen_gestellt.front().text.starts_with("Das Rennen von 14:03 wurde in Runde 2 unter"));
        if (weiter) {
            EXPECT_EQ(t.runden(1), 1);
            gruen();
            runden_fahren(2);
            t.p.auswertung.Command5.klicken();
            EXPECT_EQ(abend.stand().rennen_gefahren(1), rennstatus::gefahren);
            EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
        } else {
            EXPECT_TRUE(t.bahn().Command1.bedienbar()) << "from the start";
        }
    }
}

TEST_F(Abgebrochen, WasDerRennleiterInzwischenUmgestelltHatBleibt) {
    t.p.einst.w_autom = true;
    t.p.einst.w_speichern = false;
    anfahren_und_abbrechen();
    abend.automatik_umschalten();
    t.p.einst.w_speichern = true;
    t.p.einst.aut_speichern = true;
    ASSERT_TRUE(abend.rennen_starten());
    ASSERT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_FALSE(t.p.einst.w_autom);
    EXPECT_TRUE(t.p.einst.w_speichern && t.p.einst.aut_speichern);
}

TEST_F(Abgebrochen, EinAndererAbendBietetEsNichtAn) {
    anfahren_und_abbrechen();
    abend.beenden();
    wettkampf anderer = test::wettkampf_mit(wettkampf_modus::rotation, 3, {1, 2, 3});
    anderer.wettkampf_name = "Finale";
    abend.beginnen(std::move(anderer));
    t.maschine.fragen_gestellt.clear();
    ASSERT_TRUE(abend.rennen_starten());
    EXPECT_TRUE(t.maschine.fragen_gestellt.empty());
    EXPECT_TRUE(t.bahn().Command1.bedienbar()) << "from the start";
}

TEST_F(Abgebrochen, AuchEinRennfensterOhneGruenDazwischenNimmtEsNicht) {
    anfahren_und_abbrechen();
    t.maschine.antwort = false;
    ASSERT_TRUE(abend.rennen_starten());  // from the start, but then not yet after all
    t.maschine.antwort = true;
    t.rennabbruch();
    ASSERT_FALSE(offen(fenstername::bahn1));
    t.p.form1.Command1.klicken();  // somebody tries the track
    t.bahn().Command1.klicken();
    t.rennabbruch();
    ASSERT_TRUE(abend.rennen_starten());
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
}

/// The outage comes in the race, or in its result.
class Weggelegt : public Abgebrochen, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(RennenOderErgebnis, Weggelegt, testing::Bool());

TEST_P(Weggelegt, WartetInSeinemAbend) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    runden_fahren(GetParam() ? 3 : 1);
    ASSERT_EQ(offen(fenstername::auswertung), GetParam());
    t.p.rennprotokoll.sichern();
    t.maschine.antwort = false;
    programm neu(t.maschine.dienste());
    neu.starten();
    ASSERT_FALSE(neu.wettkampfabend.wettkampf_aktiv());
    t.maschine.antwort = true;
    neu.form1.command_fortsetzen.klicken();
    ASSERT_TRUE(neu.wettkampfabend.rennen_starten());
    EXPECT_EQ(neu.rennen.zustand.konto.runden(1), GetParam() ? 3 : 1);
    ASSERT_EQ(neu.fenster.ist_offen(fenstername::auswertung), GetParam());
    if (GetParam()) {
        neu.auswertung.Command5.klicken();
        EXPECT_EQ(neu.wettkampfabend.stand().rennen_gefahren(1), rennstatus::gefahren);
    }
}

TEST_F(Abgebrochen, EinRennenDasSchonGebuchtIstWirdNurEinmalAngeboten) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    runden_fahren(3);
    const std::string protokoll = protokoll_von(t);
    t.p.auswertung.Command5.klicken();
    ASSERT_EQ(abend.stand().aktuelles_rennen, 2);
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    t.maschine.datei_schreiben(name, protokoll);  // the program has ended in between
    t.maschine.antwort = true;
    for (const std::size_t gemeldet : {1U, 0U}) {
        t.maschine.meldungen_gezeigt.clear();
        programm neu(t.maschine.dienste());
        neu.starten();
        EXPECT_EQ(neu.wettkampfabend.stand().aktuelles_rennen, 2);
        EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), gemeldet) << letzte_meldung();
    }
}

}  // namespace
}  // namespace tarvel
