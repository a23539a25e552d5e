#include "race/rennlage.h"

#include "tests/startampel_probe.h"

namespace tarvel {
namespace {

class Rennlage : public test::StartampelProbe {
protected:
    Rennlage() { t.p.einst.chaosampel_an = false; }
    /// What the lane says of itself now; empty while it drives.
    std::string sagt(int spur) {
        t.p.rennen.lage.nachfuehren();
        const lage_anzeige& anzeige = t.bahn().lage[spur];
        EXPECT_EQ(anzeige.sichtbar(), !anzeige.text().empty());
        return anzeige.text();
    }
    /// And at its foot.
    std::string hinweis(int spur) {
        t.p.rennen.lage.nachfuehren();
        const hinweis_anzeige& anzeige = t.bahn().hinweis[spur];
        return anzeige.sichtbar() ? anzeige.text() : "";
    }
    int fuehrt() {
        t.p.rennen.lage.nachfuehren();
        int wer = 0;
        for (const int spur : alle_spuren) {
            wer += t.bahn().lage[spur].stand().fuehrt ? spur : 0;
        }
        return wer;
    }
    void fahren(const char* rennart, const char* dauer) {
        t.starten(rennart, dauer, {1, 2, 3});
        t.runde_nach(1000, "123");
    }
};

TEST_F(Rennlage, FruehstartZaehltSeineSekundenBisZumStrom) {
    t.p.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    t.p.einst.fruehstart_strafzeit = 5s;
    beginnen(1);
    t.maschine.laufen(6000);
    EXPECT_EQ(sagt(2), "");
    ampeltaste('2');
    EXPECT_EQ(sagt(2), "FRÜHSTART 5 s");
    bis_gruen(6002);
    t.maschine.laufen(2100);
    EXPECT_EQ(sagt(2), "FRÜHSTART 3 s");
    EXPECT_EQ(sagt(1), "");
    t.maschine.laufen(3000);
    EXPECT_EQ(sagt(2), "FRÜHSTART") << "drives, and counts nothing yet";
    EXPECT_EQ(fuehrt(), 0);
    t.taste("2");
    EXPECT_EQ(hinweis(2), "noch gesperrt");
    t.taste("3");
    EXPECT_EQ(fuehrt(), 3) << "who is counted from the light leads nothing";
    EXPECT_EQ(t.bahn().l_PosAnz[1].text(), "1");
    EXPECT_EQ(t.bahn().rueckstand[2].text(), "");
    t.maschine.laufen(6000);
    EXPECT_EQ(sagt(2), "");
    EXPECT_EQ(fuehrt(), 3);
    t.taste("2");
    EXPECT_EQ(fuehrt(), 2) << "before he has a lap of his own";
    t.rennabbruch();

    for (const auto& [aktion, wort] : {std::pair(fruehstart_aktion::startabbruch, "FRÜHSTART"),
                                       {fruehstart_aktion::disqualifikation, "DISQUALIFIZIERT"}}) {
        t.p.einst.fruehstart_option = aktion;
        beginnen(1);
        t.maschine.laufen(6000);
        ampeltaste('3');
        EXPECT_EQ(sagt(3), wort);
        EXPECT_EQ(sagt(1), "");
        t.p.startampel.fenster.abbrampel.klicken();
        EXPECT_EQ(sagt(3), "") << "of a start that has not been";
        t.rennabbruch();
    }

    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    beginnen(1);
    t.maschine.laufen(6000);
    ampeltaste('3');
    EXPECT_EQ(fuehrt(), 0) << "in the red light nobody leads";
    t.p.startampel.fenster.abbrampel.klicken();
    EXPECT_EQ(fuehrt(), 0);
}

TEST_F(Rennlage, PauseStehtUeberAllenUndDieStrafeDanachZaehltHerunter) {
    t.p.einst.chaos_strafe_strom = false;
    fahren("Zeit", "5");
    t.bahn().Command3.klicken();
    t.maschine.laufen(3100);
    EXPECT_EQ(sagt(1), "PAUSE");
    EXPECT_TRUE(t.bahn().pausendauer.sichtbar());
    EXPECT_EQ(t.bahn().pausendauer.text(), "0:03");
    EXPECT_TRUE(t.bahn().Label_schuld[2].sichtbar() && !t.bahn().Label_schuld[4].sichtbar());
    t.bahn().ch_strafzeit_hacken[2].umschalten();
    t.bahn().Command3.klicken();
    EXPECT_EQ(sagt(2), "STRAFE 10 s");
    EXPECT_EQ(sagt(1), "");
    EXPECT_FALSE(t.bahn().pausendauer.sichtbar());
    t.maschine.laufen(4500);
    EXPECT_EQ(sagt(2), "STRAFE 6 s");
    t.bahn().Command3.klicken();
    t.maschine.laufen(65000);
    EXPECT_EQ(sagt(2), "STRAFE 6 s") << "a penalty stands still in a pause";
    EXPECT_EQ(t.bahn().pausendauer.text(), "1:05");
    t.bahn().Command3.klicken();
    t.maschine.laufen(6000);
    EXPECT_EQ(sagt(2), "");
    t.p.einst.rennbild.worte = false;
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    EXPECT_EQ(sagt(1), "");
    EXPECT_FALSE(t.bahn().pausendauer.sichtbar());
}

TEST_F(Rennlage, TankZeigtWieErSteigtUndWerLeerIst) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.p.einst.tank_wartezeit = {};
    fahren("Zeit", "5");
    sagt(1);
    t.spur(1).tank_inhalt = 30;
    t.taste("q");
    t.maschine.laufen(1000);
    const spurlage vorher = (sagt(1), t.bahn().lage[1].stand());
    EXPECT_EQ(vorher.was, lage::box);
    t.maschine.laufen(1000);
    EXPECT_EQ(sagt(1), "BOX " + std::to_string(vorher.zahl + 10) + " l");
    EXPECT_GT(t.bahn().lage[1].stand().stand, vorher.stand);
    t.spur(2).tank_inhalt = 1;
    t.runde_nach(8000, "2");
    EXPECT_EQ(sagt(2), "LEER 10 s");
    EXPECT_EQ(hinweis(2), "Runde wartet");
    t.runde_nach(4000, "2");
    EXPECT_EQ(hinweis(2), "ohne Strom") << "this one counts neither now nor then";
    t.maschine.laufen(2000);
    EXPECT_EQ(hinweis(2), "Runde wartet");
    t.maschine.laufen(4000);
    EXPECT_EQ(sagt(2), "LEER") << "has its power back, and no fuel";
    EXPECT_EQ(hinweis(2), "+10 s Strafe") << "the lap is shown longer than it was";
    t.maschine.laufen(3000);
    EXPECT_EQ(hinweis(2), "");
}

TEST_F(Rennlage, WerInDerPauseAufDenKontaktKommtStehtGleichInDerBox) {
    t.p.form1.t_aktiv.umschalten();
    fahren("Zeit", "5");
    t.spur(2).tank_inhalt = 30;
    t.bahn().Command3.klicken();
    t.maschine.laufen(2000);
    EXPECT_EQ(sagt(2), "PAUSE");
    t.taste("w");
    EXPECT_EQ(sagt(2), "BOX 30 l");
    t.maschine.laufen(3000);
    EXPECT_EQ(sagt(2), "BOX 30 l") << "in a pause nothing flows";
    EXPECT_EQ(sagt(1), "PAUSE");
}

TEST_F(Rennlage, WasNichtZaehltSagtWarumUndNurEinenAugenblick) {
    t.p.form1.wertmin.eingeben("3");
    fahren("Zeit", "5");
    EXPECT_EQ(hinweis(1), "");
    t.runde_nach(853, "1");
    EXPECT_EQ(hinweis(1), "zu kurz 0,853 s");
    EXPECT_EQ(hinweis(2), "");
    t.maschine.laufen(1900);
    EXPECT_EQ(hinweis(1), "zu kurz 0,853 s");
    t.runde_nach(300, "2");
    EXPECT_EQ(hinweis(1), "");
    EXPECT_EQ(hinweis(2), "erst ab 3,100 s") << "longer than what was typed";
    t.runde_nach(100, "2");
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_EQ(hinweis(2), "") << "now it has counted";
    t.runde_nach(500, "2");
    EXPECT_EQ(hinweis(2), "zu kurz 0,500 s");
    t.bahn().Command3.klicken();
    EXPECT_EQ(hinweis(2), "") << "the pause says enough";
}

TEST_F(Rennlage, UeberfahrtInDerPauseSagtDassSieNichtZaehlt) {
    t.p.einst.sensor_timeout = 500ms;
    const auto rollt = [this](char spur) {
        t.p.rennen.befehle.taste(spur, 0);
        t.maschine.laufen(20);
    };
    t.p.form1.wertmin.eingeben("3");
    fahren("Zeit", "5");
    t.maschine.laufen(8000);
    t.runde_nach(300, "2");
    t.bahn().Command3.klicken();
    t.maschine.laufen(100);
    rollt('1');
    rollt('1');  // bounces
    EXPECT_EQ(hinweis(1), "Runde wartet");
    rollt('2');
    EXPECT_EQ(hinweis(2), "zu kurz 0,141 s");
    t.maschine.laufen(600);
    EXPECT_EQ(hinweis(1), "Runde wartet") << "counts behind the pause";
    rollt('2');
    EXPECT_EQ(hinweis(2), "zählt nicht");
    EXPECT_EQ(hinweis(3), "");
    t.maschine.laufen(2000);
    EXPECT_EQ(hinweis(2), "") << "said for a moment";
    rollt('3');
    t.bahn().Command3.klicken();
    t.maschine.laufen(1000);
    EXPECT_EQ(hinweis(3), "zählt nicht") << "and as long where the race has gone on";
    EXPECT_EQ(hinweis(1), "") << "now it has";
    t.maschine.laufen(1000);
    EXPECT_EQ(hinweis(3), "");
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(t.runden(2), 1);
}

TEST_F(Rennlage, WasHinterDerPauseZaehltIstNichtZuKurz) {
    t.p.einst.sensor_timeout = 2s;
    t.p.form1.wertmin.eingeben("3");
    fahren("Zeit", "5");
    t.maschine.laufen(3500);
    t.bahn().Command3.klicken();
    t.maschine.laufen(1200);
    t.p.rennen.befehle.taste('1', 0);
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    EXPECT_EQ(hinweis(1), "Runde wartet");
    t.maschine.laufen(400);
    EXPECT_EQ(hinweis(1), "Runde wartet") << "the pause is off the lap, and comes on to its crossing";
    t.maschine.laufen(300);
    EXPECT_EQ(t.runden(1), 1);
    t.runde_nach(5000, "1");
    t.p.rennen.zaehlung.runde_abziehen(1);
    t.maschine.laufen(1000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(200);
    t.p.rennen.befehle.taste('1', 0);
    t.maschine.laufen(20);
    EXPECT_EQ(hinweis(1), "Runde wartet") << "it takes in the lap that was taken off";
}

TEST_F(Rennlage, WerGleichWiederPauseVerlangtErfaehrtWarumKeineKommt) {
    t.p.einst.chaosampel_an = false;
    fahren("Zeit", "5");
    const auto gesagt = [this] {
        t.p.rennen.lage.nachfuehren();
        return t.bahn().ergebnisfolge.sichtbar() ? t.bahn().ergebnisfolge.text() : "";
    };
    const auto druecken = [this](bool taste) {
        if (taste) {
            t.taste("c");
        } else {
            t.bahn().Command3.klicken();
        }
        t.maschine.laufen(20);
    };
    for (const bool taste : {true, false}) {
        t.maschine.laufen(3000);
        druecken(taste);
        ASSERT_TRUE(t.p.rennen.zustand.chaos_aktiv);
        druecken(taste);
        EXPECT_EQ(gesagt(), "") << "the same hand once more";
        t.maschine.laufen(3000);
        druecken(taste);
        ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_EQ(gesagt(), "");
        t.maschine.laufen(600);
        druecken(taste);
        EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        EXPECT_EQ(gesagt(), "Neue Pause erst 2,5 s nach „Weiter“");
        t.maschine.laufen(2000);
        EXPECT_EQ(gesagt(), "");
    }
}

TEST_F(Rennlage, RueckstandIstWieManIhnSagt) {
    t.p.einst.zielmodus_erster = false;
    const auto zurueck = [&](int spur) {
        t.p.rennen.lage.nachfuehren();
        const bezeichnung& label = t.bahn().rueckstand[spur];
        EXPECT_EQ(label.sichtbar(), !label.text().empty());
        return label.text();
    };
    t.starten("Runden", "5", {1, 2, 3});
    EXPECT_EQ(zurueck(2), "");
    t.runde_nach(1000, "1");
    t.runde_nach(300, "2");
    EXPECT_EQ(zurueck(1), "");
    EXPECT_EQ(zurueck(2), "+0,300 s");
    t.runde_nach(8000, "1");
    EXPECT_EQ(zurueck(2), "+0,300 s") << "no lap behind before it has been lapped";
    EXPECT_EQ(zurueck(3), "1 Runde zurück") << "has not even begun";
    t.p.rennen.plaetze.positionen_tauschen(0, 1);
    EXPECT_EQ(zurueck(1), "") << "was ahead when both were measured";
    t.p.rennen.plaetze.positionen_tauschen(0, 1);
    t.p.einst.chaosampel_an = false;
    t.bahn().Command3.klicken();
    t.maschine.laufen(20000);
    t.bahn().Command3.klicken();
    t.runde_nach(2314, "2");
    EXPECT_EQ(zurueck(2), "+2,314 s") << "a pause is nobody's";
    t.runde_nach(6000, "1");
    t.runde_nach(8000, "1");
    EXPECT_EQ(zurueck(2), "1 Runde zurück");
    t.runde_nach(100, "2");
    EXPECT_EQ(zurueck(2), "1 Runde zurück");
    t.runde_nach(7900, "1");
    t.runde_nach(8000, "1");
    EXPECT_EQ(sagt(1), "ZIEL 1.");
    EXPECT_EQ(zurueck(2), "2 Runden zurück");
    t.runde_nach(100, "2");
    EXPECT_EQ(zurueck(2), "2 Runden zurück");
    t.runde_nach(8000, "2");
    EXPECT_EQ(zurueck(2), "1 Runde zurück");
    t.runde_nach(53500, "2");
    EXPECT_EQ(zurueck(2), "+01:01,600 min");
    t.spur(2).disqualifiziert = true;
    EXPECT_EQ(zurueck(2), "");
    t.rennende();
    EXPECT_EQ(zurueck(3), "5 Runden zurück");
}

TEST_F(Rennlage, NachLeeremTankGehtDerRueckstandWieDiePlaetze) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    fahren("Zeit", "5");
    t.spur(1).tank_inhalt = 1;
    t.spur(3).tank_inhalt = 1;
    t.runde_nach(8000, "1");
    t.runde_nach(1200, "3");
    t.runde_nach(6800, "2");
    t.maschine.laufen(4000);
    t.p.rennen.lage.nachfuehren();
    EXPECT_EQ(fuehrt(), 2) << "the laps of the others have waited";
    EXPECT_EQ(t.bahn().l_PosAnz[0].text() + t.bahn().l_PosAnz[2].text(), "23");
    EXPECT_EQ(t.bahn().rueckstand[1].text(), "+2,000 s");
    EXPECT_EQ(t.bahn().rueckstand[3].text(), "+3,200 s");
}

TEST_F(Rennlage, ZweiVonGruenGezaehlteSindNichtGleichauf) {
    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    beginnen(1);
    t.maschine.laufen(6000);
    ampeltaste('1');
    ampeltaste('2');
    bis_gruen(6004);
    ASSERT_EQ(t.p.rennen.zustand.konto.stempel(2, 0), t.p.rennen.zustand.konto.stempel(1, 0));
    t.runde_nach(8000, "1");
    t.p.rennen.lage.nachfuehren();
    EXPECT_EQ(t.bahn().rueckstand[2].text(), "");
}

TEST_F(Rennlage, ZielHatSeinenPlatzUndWerDraussenIstFuehrtNicht) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::disqualifikation;
    t.p.einst.zielmodus_erster = false;
    t.einrichten("Runden", "3", {1, 2, 3});
    EXPECT_EQ(fuehrt(), 0) << "nobody leads before the start";
    t.bahn().Command1.klicken();
    t.runde_nach(1000, "123");
    t.runde_nach(8000, "1");
    EXPECT_EQ(fuehrt(), 1);
    EXPECT_EQ(t.bahn().restrunden.text(), "2");
    t.spur(1).tank_inhalt = 1;
    t.runde_nach(8000, "1");
    EXPECT_EQ(sagt(1), "DISQUALIFIZIERT");
    EXPECT_EQ(t.bahn().l_PosAnz[0].text(), "1") << "keeps its place until it is overtaken";
    EXPECT_EQ(fuehrt(), 2);
    EXPECT_EQ(t.bahn().restrunden.text(), "3") << "the leader's";
    for (int runde = 0; runde < 3; ++runde) {
        t.runde_nach(8000, "2");
    }
    EXPECT_EQ(sagt(2), "ZIEL 1.");
    EXPECT_EQ(sagt(3), "");
}

TEST_F(Rennlage, WerNachGewerteterZeitVornIstStehtDaSolangeEinAndererFuehrt) {
    const auto gesagt = [this] {
        t.p.rennen.lage.nachfuehren();
        return t.bahn().ergebnisfolge.sichtbar() ? t.bahn().ergebnisfolge.text() : "";
    };
    t.p.einst.zielmodus_erster = false;
    t.starten("Runden", "9", {1, 2, 3});
    t.runde_nach(1000, "1");
    t.runde_nach(600, "2");
    t.runde_nach(100, "3");
    t.runde_nach(7000, "1");
    EXPECT_EQ(gesagt(), "") << "nobody else has a lap";
    t.runde_nach(200, "2");
    EXPECT_EQ(gesagt(), "Nach gewerteter Zeit vorn: Fahrer 2");
    t.runde_nach(100, "3");
    EXPECT_EQ(gesagt(), "Nach gewerteter Zeit vorn: Fahrer 2") << "no further ahead than the second";
    t.runde_nach(7000, "1");
    EXPECT_EQ(gesagt(), "Nach gewerteter Zeit vorn: Fahrer 2") << "compared at the lap that both have";
    t.bahn().Command3.klicken();
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(300);
    t.bahn().Command3.klicken();
    EXPECT_EQ(gesagt(), "Neue Pause erst 2,5 s nach „Weiter“");
    t.maschine.laufen(2500);
    EXPECT_EQ(gesagt(), "Nach gewerteter Zeit vorn: Fahrer 2");
    t.p.rennen.zustand.spur[2].strafzeit = 5s;
    EXPECT_EQ(gesagt(), "Nach gewerteter Zeit vorn: Fahrer 3") << "a penalty counts with it";
    t.runde_nach(5000, "1");
    EXPECT_EQ(gesagt(), "") << "they have been lapped";
}

TEST_F(Rennlage, WerUeberrundetIstIstNichtNachZeitVorn) {
    const auto gesagt = [this] {
        t.p.rennen.lage.nachfuehren();
        return t.bahn().ergebnisfolge.sichtbar();
    };
    t.p.einst.zielmodus_erster = false;
    t.starten("Runden", "9", {1, 2});
    t.runde_nach(1000, "1");
    t.runde_nach(6200, "1");
    t.runde_nach(1000, "2");  // came late, and is fast
    t.runde_nach(5400, "1");
    t.runde_nach(500, "2");
    EXPECT_FALSE(gesagt()) << "ahead by time, but a lap behind over the line";
}

TEST_F(Rennlage, WoDerErsteAmZielGewinntSagtDieZeitNichts) {
    for (const bool erster : {false, true}) {
        t.p.einst.zielmodus_erster = erster;
        t.starten("Runden", "9", {1, 2});
        t.runde_nach(1000, "1");
        t.runde_nach(600, "2");
        t.runde_nach(7000, "1");
        t.runde_nach(200, "2");
        t.p.rennen.lage.nachfuehren();
        EXPECT_EQ(t.bahn().ergebnisfolge.sichtbar(), !erster);
        t.rennabbruch();
    }
}

TEST_F(Rennlage, EinUeberholterIstNichtNachZeitVorn) {
    t.p.einst.zielmodus_erster = false;
    fahren("Runden", "9");
    t.runde_nach(7000, "1");
    t.runde_nach(500, "2");
    t.runde_nach(6000, "2");
    t.p.rennen.lage.nachfuehren();
    EXPECT_EQ(fuehrt(), 2);
    EXPECT_FALSE(t.bahn().ergebnisfolge.sichtbar());
}

}  // namespace
}  // namespace tarvel
