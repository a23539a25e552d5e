// The result of a race that was cut off, or whose result window was.

#include <gtest/gtest.h>

#include "programm/rennprotokoll.h"
#include "results/beste_zeiten_fenster.h"
#include "tests/wiederaufnahme_probe.h"

namespace tarvel {
namespace {

using test::neustart;
using test::protokoll_von;
using test::Wiederaufnahme;

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
    EXPECT_TRUE(a.liste[1].zeilen()[0].ends_with(" (Neustart)"));

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

}  // namespace
}  // namespace tarvel
