#include "results/auswertung.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

/// The result, and how the program goes on from it.
class Auswertung : public test::ProgrammProbe {
protected:
    auswertung& a = t.p.auswertung;

    /// Presses the small start light's command and lets it go green.
    void gruen() {
        t.p.k_ampel.Command1.klicken();
        EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0));
        t.maschine.laufen(1500 + 1500 + 1500 + 2500);
    }
    std::vector<std::string> namen() {
        const auto& n = t.p.param.fahrer_name;
        return {n.begin(), n.end()};
    }
    /// Lanes 1 and 2: 3 and 2 laps of 6 s and 7 s.
    void zwei_spuren_fahren(const char* rennart, const char* dauer) {
        t.p.einst.zielmodus_erster = true;
        t.p.einst.runde_beenden = false;
        t.starten(rennart, dauer, {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.runde_nach(1000, "2");
        t.runde_nach(5000, "1");
        t.runde_nach(2000, "2");
        t.runde_nach(4000, "1");
    }
};

TEST_F(Auswertung, SechsSpurenRundenrennenVonDerTasteBisZumStand) {
    t.starten("Runden", "3", {1, 2, 3, 4, 5, 6});
    t.runde_nach(1000, "123456");
    t.runde_nach(8000, "123456");
    t.runde_nach(7500, "421");
    t.runde_nach(500, "35");
    t.runde_nach(6000, "2");
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    EXPECT_EQ(t.ergebnis(1).platz, 2);
    EXPECT_EQ(t.ergebnis(4).platz, 3);
    EXPECT_EQ(t.ergebnis(3).platz, 4);
    EXPECT_EQ(t.ergebnis(5).platz, 5);
    EXPECT_EQ(t.ergebnis(6).platz, 6);
    EXPECT_EQ(a.Frame[1].reihe(), 0);
    EXPECT_EQ(a.runden_aus[1].text(), "3");
    EXPECT_EQ(a.beste_aus[1].text(), "06,500");
    EXPECT_EQ(a.zeit_aus[1].text(), "00:22,000");
    EXPECT_EQ(a.liste[1].zeilen(), (std::vector<std::string>{"1.  00:08,000", "2.  00:07,500", "3.  00:06,500"}));
    EXPECT_FALSE(a.abstandlabel[1].sichtbar());
    EXPECT_EQ(a.runden_aus[0].text(), "2");
    EXPECT_EQ(a.abstandlabel[0].text(), "- 00:06,500") << "a lane behind in laps may be ahead in time";
    EXPECT_EQ(a.ges_meter[0].text(), "50,00 m");
    // 25 m in 7.5 s, and 50 m in 15.5 s
    EXPECT_EQ(a.kmh_label[0].text(), "12,00 / 11,61 km/h");
    EXPECT_EQ(a.fahrer[5].text(), "Fahrer 6");
}

TEST_F(Auswertung, AbstandIstEineReineZeitdifferenz) {
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(8000, "1");
    t.runde_nach(1234, "2");
    t.maschine.laufen(60000);
    EXPECT_EQ(a.abstandlabel[1].text(), "+ 00:01,234");
    EXPECT_TRUE(a.abstandlabel[1].sichtbar());
    EXPECT_FALSE(a.Frame[2].sichtbar());
}

TEST_F(Auswertung, WerAnDerLinieVornWarStehtDaWennDieWertungEsAndersSieht) {
    t.starten("Runden", "3", {1, 2, 3});
    t.runde_nach(1000, "1");
    t.runde_nach(1000, "23");
    t.runde_nach(5500, "1");
    t.p.einst.chaosampel_an = false;
    t.bahn().Command3.klicken();
    t.maschine.laufen(30000);
    t.bahn().Command3.klicken();
    t.runde_nach(500, "2");
    t.runde_nach(6000, "12");
    t.runde_nach(100, "3");
    t.rennende();
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    EXPECT_EQ(t.ergebnis(3).platz, 3);
    EXPECT_FALSE(a.Label_ab_gruen.sichtbar()) << "both have come to the line together";
    EXPECT_EQ(t.bahn().ergebnisfolge.text(), "Ergebnis: 1.\u00A0Fahrer\u00A02, 2.\u00A0Fahrer\u00A01");
    a.Command1.klicken();

    t.bahn().Command1.klicken();
    t.maschine.laufen(12000);
    t.runde_nach(1000, "1");
    t.runde_nach(1000, "23");
    t.runde_nach(5500, "1");
    t.runde_nach(200, "2");
    t.runde_nach(100, "3");
    t.rennende();
    EXPECT_EQ(t.ergebnis(2).platz, 1) << "5.7 s from its own first crossing";
    EXPECT_TRUE(a.Label_ab_gruen.sichtbar());
    EXPECT_EQ(a.Label_ab_gruen.text(),
              "Die Zeit zählt ab der eigenen ersten Überfahrt; ab Grün gezählt wäre die Folge: 1.\u00A0Fahrer\u00A01, "
              "2.\u00A0Fahrer\u00A02, 3.\u00A0Fahrer\u00A03");
    EXPECT_EQ(t.bahn().ergebnisfolge.text(),
              "Gewertet ab der eigenen ersten Überfahrt: 1.\u00A0Fahrer\u00A02, 2.\u00A0Fahrer\u00A03, "
              "3.\u00A0Fahrer\u00A01");
    EXPECT_TRUE(t.bahn().ergebnisfolge.sichtbar());
    a.Command1.klicken();
    EXPECT_FALSE(t.bahn().ergebnisfolge.sichtbar());
}

TEST_F(Auswertung, StrafeAenderDieFolgeAufDerBahnUndFruehstartDieZeit) {
    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    t.einrichten("Runden", "2", {1, 2, 3});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    t.bahn().Command1.klicken();
    t.maschine.laufen(5000);
    t.p.startampel.taste('3');
    t.maschine.laufen(6000);
    ASSERT_EQ(t.runden(3), 0);
    t.runde_nach(1000, "12");
    t.runde_nach(6000, "123");
    t.spur(1).strafzeit = 5s;
    t.runde_nach(6000, "1");
    t.runde_nach(1000, "23");
    t.rennende();
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    EXPECT_EQ(t.bahn().ergebnisfolge.text(), "Ergebnis: 1.\u00A0Fahrer\u00A02, 3.\u00A0Fahrer\u00A01");
    EXPECT_EQ(a.Label_ab_gruen.text(), "Nach einem Frühstart zählt die Zeit schon ab Grün: Fahrer\u00A03");
}

TEST_F(Auswertung, HauptmenueRaeumtDasRennenAb) {
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(60001);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_EQ(a.Command5.text(), "Hauptmenü");
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft()) << "late cars keep being stamped behind the result";
    a.Command5.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
    t.starten("Runden", "1", {3});
    t.runde_nach(1000, "3");
    t.runde_nach(6000, "3");
    EXPECT_EQ(a.runden_aus[2].text(), "1");
    EXPECT_EQ(a.ges_meter[2].text(), "25,00 m") << "nothing is left of the race before";
}

TEST_F(Auswertung, WiederholenUndNeuStartenOeffnenEinFrischesRennen) {
    zwei_spuren_fahren("Runden", "3");
    ASSERT_TRUE(offen(fenstername::auswertung));
    const auto vorher = namen();
    a.Command1.klicken();
    EXPECT_FALSE(offen(fenstername::auswertung));
    EXPECT_TRUE(offen(fenstername::bahn1));
    EXPECT_EQ(t.runden(1), -1);
    EXPECT_EQ(namen(), vorher);
    EXPECT_TRUE(t.bahn().Command1.aktiviert());
    t.bahn().Command1.klicken();
    t.rennende();
    EXPECT_NE(a.kopf_label.text().find("vorzeitig beendet"), std::string::npos);
    a.Command2.klicken();
    EXPECT_EQ(namen()[0], vorher[1]) << "two lanes: the drivers change places";
    EXPECT_EQ(namen()[1], vorher[0]);
    EXPECT_EQ(t.bahn().namenslabel[1].text(), vorher[1]);
    EXPECT_EQ(t.p.form1.fahrer[0].text(), vorher[0]) << "the set-up stays";
}

TEST_F(Auswertung, FortgesetztesRundenrennenNimmtAllesMit) {
    t.p.form1.lspur[1].eingeben("20");
    zwei_spuren_fahren("Runden", "3");
    t.spur(1).strafzeit = 5s;
    t.spur(1).tank_inhalt = 12.5;
    EXPECT_EQ(a.neues_ziel.text(), "6");
    EXPECT_EQ(a.ziel_einheit.text(), "Runden insgesamt");
    a.Command3.klicken();
    EXPECT_FALSE(offen(fenstername::auswertung));
    ASSERT_TRUE(offen(fenstername::k_ampel));
    EXPECT_EQ(t.bahn().namenslabel[2].text(), "Fahrer 1");
    EXPECT_EQ(t.bahn().zaehler[2].text(), "3");
    EXPECT_EQ(t.bahn().brunde[2].text(), "06,000");
    EXPECT_EQ(t.bahn().straflabel[2].text(), "Strafzeit: 5 sec");
    EXPECT_EQ(t.bahn().l_PosAnz[1].text(), "1") << "the leader stays the leader";
    EXPECT_EQ(t.bahn().t_liste[1].zeilen().back(), " 3. 06,000");
    EXPECT_EQ(t.bahn().ziel_label.text(), "6 Runden");
    EXPECT_EQ(t.spur(2).tank_inhalt, 12.5);
    EXPECT_FALSE(t.bahn().Command3.aktiviert()) << "no pause before green";

    t.maschine.laufen(20000);
    t.taste("1");  // pushed over the line before green
    t.taste("c");
    gruen();
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    // lane 1: Fahrer 2, 4 s into his third lap when the race ended; lane 2: Fahrer 1, was home, starts anew
    t.runde_nach(4000, "1");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 3), 4000 + 4000);
    t.runde_nach(1500, "2");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, 4), 5499 + 5)
        << "five seconds of penalty lengthen each lap, and a key has the stamp of the tick before";
    t.runde_nach(6000, "2");
    t.runde_nach(6000, "2");
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    EXPECT_EQ(t.ergebnis(2).gesamtzeit, 18000 + 5504 + 6005 + 6005 + 5000);
    EXPECT_EQ(a.ges_meter[1].text(), "135,00 m") << "three laps of 25 m, three of 20 m";
    EXPECT_EQ(a.ges_meter[0].text(), "65,00 m");
    EXPECT_EQ(a.kmh_label[1].text(), "13,08 / 12,00 km/h") << "the average by the metres driven: 135 m in 40.514 s";
    a.Command1.klicken();
    EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(3)) << "repeated as it was set up";
}

TEST_F(Auswertung, FortgesetztStehenDiePlaetzeSofortNachDenRunden) {
    a.spurwechsel.gesetzt(false);
    zwei_spuren_fahren("Zeit", "1");
    t.rennende();
    for (const int runde : {3, 2}) {
        t.p.wertung.korrigieren({{.was = korrektur::art::geloescht, .spur = 1, .runde = runde}});
    }
    a.Command3.klicken();
    EXPECT_EQ(t.bahn().l_PosAnz[0].text() + t.bahn().l_PosAnz[1].text(), "21");
}

TEST_F(Auswertung, FortgesetztesZeitrennenLaeuftAufDieNeueDauer) {
    zwei_spuren_fahren("Zeit", "1");
    t.maschine.laufen(60000);
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(a.neues_ziel.text(), "2");
    a.neues_ziel.eingeben("1,30");
    EXPECT_EQ(a.ziel_einheit.text(), "Minuten insgesamt (1:30)");
    a.spurwechsel.umschalten();
    const zeit_ms letzte = t.p.rennen.zustand.konto.stempel(1, 3);
    const zeit_ms rest_der_runde = t.p.rennen.zustand.renn_ende_stempel - letzte;
    a.Command3.klicken();
    EXPECT_EQ(t.bahn().namenslabel[1].text(), "Fahrer 1");
    EXPECT_EQ(t.bahn().uhr1.sekunden.text(), "30");
    EXPECT_EQ(t.bahn().uhr2.minuten.text(), "01");
    t.maschine.laufen(500000);
    gruen();
    t.runde_nach(10000, "1");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 4), rest_der_runde + 9999);
    EXPECT_EQ(t.bahn().uhr1.sekunden.text() + t.bahn().uhr1.tausendstel.text(), "20000");
    t.maschine.laufen(19999);
    EXPECT_FALSE(offen(fenstername::auswertung));
    t.maschine.laufen(1);
    EXPECT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(a.neues_ziel.text(), "2,30") << "old target and the length of the race";
}

TEST_F(Auswertung, WasGefahrenIstKannNichtDasZielSein) {
    zwei_spuren_fahren("Runden", "3");
    for (const char* ziel : {"3", "0", "", "abc"}) {
        a.neues_ziel.eingeben(ziel);
        a.Command3.klicken();
        EXPECT_TRUE(offen(fenstername::auswertung)) << ziel;
    }
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 4U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, t.p.txt.meldung[13]);
    a.neues_ziel.eingeben("10000");
    a.Command3.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back(),
              (test::test_plattform::meldung{"Rennmaximum erreicht. Fortsetzung nicht möglich.",
                                             "Runden/Zeitmaximum erreicht. Fortsetzung nicht möglich."}));
    a.neues_ziel.eingeben("9999");
    a.Command3.klicken();
    EXPECT_FALSE(offen(fenstername::auswertung));
}

TEST_F(Auswertung, DauerUeber1499MinutenGehtNicht) {
    t.p.form1.stddauer.eingeben("24");
    t.starten("Zeit", "59", {1});
    t.rennende();
    EXPECT_EQ(a.neues_ziel.text(), "1499") << "held at the limit";
    a.neues_ziel.eingeben("1499,01");
    a.Command3.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    a.neues_ziel.eingeben("1499");
    a.Command3.klicken();
    EXPECT_TRUE(offen(fenstername::k_ampel));
}

TEST_F(Auswertung, RennendeVorDemLichtLaesstAllesWieEsWar) {
    zwei_spuren_fahren("Zeit", "1");
    t.maschine.laufen(60000);
    const zeit_ms ende = t.p.rennen.zustand.renn_ende_stempel;
    a.Command3.klicken();
    t.maschine.laufen(30000);
    t.p.rennen.befehle.taste('1');
    t.rennende();
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_FALSE(offen(fenstername::k_ampel));
    EXPECT_EQ(t.p.rennen.zustand.renn_ende_stempel, ende);
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 2) << "the drivers have changed lanes";
    a.Command3.klicken();
    gruen();
    t.maschine.laufen(59999);
    EXPECT_FALSE(offen(fenstername::auswertung));
    t.maschine.laufen(61000);
    EXPECT_TRUE(offen(fenstername::auswertung));
}

TEST_F(Auswertung, SpaeteUeberfahrtZaehltEinmal) {
    t.p.einst.sensor_timeout = 2000ms;
    t.p.einst.zielmodus_erster = true;
    zwei_spuren_fahren("Runden", "3");
    ASSERT_TRUE(offen(fenstername::auswertung));
    ASSERT_EQ(t.ergebnis(2).rundenzahl(), 2);
    t.maschine.laufen(5000 - 4000);
    t.p.ereignisse.ereignis_melden(art::rundenzaehlung[1]);
    t.maschine.laufen(1);
    t.p.ereignisse[art::rundenzaehlung[2]] = {true, false, false, t.maschine.jetzt()};
    t.p.rennen.zustand.spur[2].pause_abzug = -5000;  // long enough on the way
    t.maschine.laufen(20);
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 3) << "is home";
    EXPECT_EQ(a.runden_aus[1].text(), "3");
    EXPECT_EQ(t.ergebnis(1).platz, 1);
    EXPECT_EQ(a.Label_vorlaeufig.text(), "Überfahrten zählen noch mit");
    t.maschine.laufen(2000);
    EXPECT_EQ(a.Label_vorlaeufig.text(), "Überfahrten zählen nicht mehr");
    EXPECT_TRUE(a.Label_vorlaeufig.sichtbar());
    EXPECT_TRUE(t.spur(2).ziel_erreicht);
}

TEST_F(Auswertung, IntervalltrainingGehtVonSelbstWeiter) {
    t.p.einst.training_wechseldauer = 3s;
    t.p.einst.training_weiter = training_weitergang::neu_starten;
    t.p.einst.aut_speichern = false;
    t.einrichten("Runden", "1", {1});
    t.p.rennen.teil_von.wechseln(t.p.intervalltraining);
    t.bahn().Command1.klicken();
    t.rennende();
    EXPECT_EQ(a.trainingslabel.text(), "Training wird fortgesetzt in:  3   ");
    EXPECT_FALSE(a.Frame1.sichtbar());
    t.maschine.laufen(2000);
    EXPECT_EQ(a.trainingslabel.text(), "Training wird fortgesetzt in:  1   ");
    t.maschine.laufen(1000);
    EXPECT_FALSE(offen(fenstername::auswertung));
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet) << "the next round has begun";
    t.p.einst.training_weiter = training_weitergang::fortsetzen;
    t.p.einst.nachtrennen_modus = nachtrennen::rennen;
    t.rennende();
    t.maschine.laufen(3000);
    ASSERT_TRUE(offen(fenstername::k_ampel));
    t.maschine.laufen(499);
    EXPECT_TRUE(t.p.k_ampel.Command1.aktiviert());
    t.maschine.laufen(1);
    EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert());
    EXPECT_TRUE(t.p.k_ampel.k_nachtabschaltung.sichtbar());
    t.maschine.laufen(1500 * 3 + 2500);
    EXPECT_FALSE(offen(fenstername::k_ampel));
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
}

}  // namespace
}  // namespace tarvel
