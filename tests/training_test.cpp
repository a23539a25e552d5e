#include <string>

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

/// Practice on the main window's set-up.
class Training : public test::ProgrammProbe {
protected:
    Training() {
        t.p.einst.aut_speichern = false;
        t.p.einst.training_art = trainingsart::normal;
    }

    /// The fields as typed; the race window is closed again, and its set-up left to the training.
    void aufstellen(const char* rennart, const char* dauer, const std::vector<int>& lanes) {
        t.einrichten(rennart, "3", lanes);
        t.rennabbruch();
        ASSERT_TRUE(offen(fenstername::Form1));
        t.p.form1.renndauer.eingeben(dauer);
    }
    void begonnen(trainingsart art) {
        t.p.einst.training_art = art;
        t.p.form1.Command11.klicken();
        ASSERT_TRUE(offen(fenstername::bahn1));
    }
    void runde(zeit_ms dauer) { t.runde_nach(dauer, "12"); }
    void verlassen() {
        t.p.auswertung.Command5.klicken();
        EXPECT_TRUE(offen(fenstername::Form1));
        EXPECT_FALSE(offen(fenstername::bahn1));
    }
    /// An ordinary race of three laps, whose laps are what they are.
    void danach_rennen_pruefen() {
        t.p.form1.rennart.eingeben("Runden");
        t.p.form1.renndauer.eingeben("3");
        t.p.form1.Command1.klicken();
        ASSERT_TRUE(offen(fenstername::bahn1));
        EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(3));
        t.maschine.laufen(20000);
        EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "nobody starts it";
        t.bahn().Command1.klicken();
        for (const zeit_ms dauer : {1500, 6000, 7000, 8000}) {
            runde(dauer);
        }
        EXPECT_EQ(rundenzeit(1, 1), 6000);
        EXPECT_EQ(rundenzeit(2, 3), 8000);
        ASSERT_TRUE(offen(fenstername::auswertung));
        EXPECT_FALSE(t.p.auswertung.trainingslabel.sichtbar());
        EXPECT_TRUE(t.p.auswertung.Frame1.sichtbar());
        EXPECT_EQ(t.p.auswertung.Frame1.text(), "Spur wechseln");
        t.maschine.laufen(60000);
        EXPECT_TRUE(offen(fenstername::auswertung)) << "nothing goes on by itself";
        verlassen();
    }
};

TEST_F(Training, NormalFaehrtWasEingestelltIst) {
    aufstellen("Zeit", "1,3", {1, 2});
    begonnen(trainingsart::normal);
    EXPECT_EQ(t.p.param.renn_ziel, rennziel::zeit(90000));
    EXPECT_EQ(t.p.form1.renndauer.text(), "1,30");
    EXPECT_EQ(t.bahn().ziel_label.text(), "normales Training · 1:30 min");
    t.bahn().Command1.klicken();
    t.maschine.laufen(91000);
    t.rennende();
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(t.p.auswertung.Frame1.text(), "Rennen");
    EXPECT_TRUE(t.p.auswertung.kopf_label.text().starts_with("Training  ·  Zeitrennen"));
    EXPECT_FALSE(t.p.auswertung.trainingslabel.sichtbar());
    verlassen();
    aufstellen("Runden", "0", {1, 2});
    t.p.form1.Command11.klicken();
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_EQ(letzte_meldung(), "Unzulässige Zeit-/ Rundenangaben, Werte bitte überprüfen.");
    danach_rennen_pruefen();
}

TEST_F(Training, DauertrainingHatKeinEndeUndLaesstDieEingabenWieSieSind) {
    for (const auto& [rennart, dauer] : {std::pair("Zeit", "0"), {"Runden", ""}, {"Runden", "viele"}, {"Zeit", "7"}}) {
        aufstellen(rennart, dauer, {1, 2});
        t.maschine.meldungen_gezeigt.clear();
        begonnen(trainingsart::dauer);
        EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(10000));
        EXPECT_EQ(t.p.param.min_rundenzeit_ms, 5100);
        EXPECT_EQ(t.p.form1.rennart.text(), rennart);
        EXPECT_EQ(t.p.form1.renndauer.text(), dauer);
        EXPECT_EQ(t.bahn().ziel_label.text(), "Dauertraining · ohne Ende");
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
        t.rennabbruch();
    }
    begonnen(trainingsart::dauer);
    t.bahn().Command1.klicken();
    runde(1500);
    t.runden_auffuellen(1, 9000);
    t.maschine.laufen(600000);
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    t.rennende();
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.Command3.klicken();
    EXPECT_EQ(letzte_meldung(), "Rennmaximum erreicht. Fortsetzung nicht möglich.");
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.Command1.klicken();  // once more, again without an end
    EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(10000));
    t.rennabbruch();
    aufstellen("Runden", "3", {});
    t.p.form1.Command11.klicken();
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_EQ(letzte_meldung(), "Keine Spuren ausgewählt, Auswahl bitte wiederholen.");
    aufstellen("Runden", "3", {1, 2});
    danach_rennen_pruefen();
}

TEST_F(Training, IntervallDreiRundenMitFahrerwechselUndOhneWartezeit) {
    t.p.einst.training_wechseldauer = 0s;
    t.p.form1.fahrer[0].eingeben("Anna");
    t.p.form1.fahrer[1].eingeben("Ben");
    for (const bool fortsetzen : {false, true}) {
        t.p.einst.training_weiter = fortsetzen ? training_weitergang::fortsetzen : training_weitergang::neu_starten;
        aufstellen("Runden", "2", {1, 2});
        begonnen(trainingsart::intervall);
        t.p.auswertung.spurwechsel.gesetzt(false);  // as an ordinary race has left it
        t.bahn().Command1.klicken();
        for (int durchgang = 1; durchgang <= 3; ++durchgang) {
            SCOPED_TRACE(durchgang);
            EXPECT_EQ(t.p.param.fahrer_name[1], durchgang == 2 ? "Ben" : "Anna");
            if (!fortsetzen || durchgang == 1) {
                runde(1500);  // to the line
            }
            runde(6000);
            runde(6500 + durchgang);
            EXPECT_EQ(rundenzeit(1, t.runden(1)), 6500 + durchgang);
            EXPECT_EQ(t.runden(2), fortsetzen ? 2 * durchgang : 2);
            ASSERT_TRUE(offen(fenstername::auswertung));
            EXPECT_EQ(t.p.auswertung.trainingslabel.text(), "Training wird fortgesetzt in:  0   ");
            t.maschine.laufen(999);
            EXPECT_TRUE(offen(fenstername::auswertung)) << "at its first tick";
            if (durchgang == 3) {
                break;
            }
            t.maschine.laufen(1);
            EXPECT_FALSE(offen(fenstername::auswertung));
            if (fortsetzen) {
                t.maschine.laufen(500 + 3 * 1500 + 2500);
            }
            ASSERT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
        }
        verlassen();
        EXPECT_EQ(t.p.form1.renndauer.text(), "2");
        EXPECT_EQ(t.p.form1.fahrer[0].text(), "Anna");
        danach_rennen_pruefen();
    }
}

TEST_F(Training, IntervallAmRennmaximumGibtDieAuswertungFrei) {
    t.p.einst.training_wechseldauer = 2s;
    t.p.einst.training_weiter = training_weitergang::fortsetzen;
    aufstellen("Runden", "9999", {1, 2});
    begonnen(trainingsart::intervall);
    t.bahn().Command1.klicken();
    runde(1500);
    t.runden_auffuellen(1, 9998);
    runde(6000);
    t.rennende();
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_FALSE(t.p.auswertung.Frame1.sichtbar());
    t.maschine.laufen(60000);
    ASSERT_TRUE(offen(fenstername::auswertung));
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(letzte_meldung(), "Rennmaximum erreicht. Fortsetzung nicht möglich.");
    EXPECT_FALSE(t.p.auswertung.trainingslabel.sichtbar());
    EXPECT_TRUE(t.p.auswertung.Frame1.sichtbar() && t.p.auswertung.Command1.sichtbar());
    t.p.auswertung.Command2.klicken();
    t.maschine.laufen(20000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "nobody has started it";
}

}  // namespace
}  // namespace tarvel
