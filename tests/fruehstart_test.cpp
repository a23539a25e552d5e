#include "start/fruehstart.h"

#include "tests/startampel_probe.h"

namespace tarvel {
namespace {

class Fruehstart : public test::StartampelProbe {
protected:
    /// What the light says of it; its lines break only where it has plain blanks.
    std::string gesagt(bool mit_umbruch = false) {
        std::string text = t.p.startampel.fenster.Label_fruehstart.text();
        constexpr std::string_view fest = "\u00A0";
        for (auto ort = text.find(fest); ort != std::string::npos; ort = text.find(fest)) {
            text.replace(ort, fest.size(), mit_umbruch ? "_" : " ");
        }
        return text;
    }
};

TEST_F(Fruehstart, FruehstartWirdImNaechstenTaktBemerktUndAngesagt) {
    t.p.einst.fruehstart_option = fruehstart_aktion::zeitstrafe;
    t.p.einst.fruehstart_schritte = 7s;
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.startampel.taste('2');
    EXPECT_EQ(t.spur(2).strafzeit, 0s);
    t.maschine.laufen(1);
    EXPECT_EQ(t.spur(2).strafzeit, 7s);
    EXPECT_EQ(t.bahn().straflabel[2].text(), "Strafzeit: 7 sec");
    EXPECT_TRUE(t.bahn().straflabel[2].sichtbar());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\fs2.wav");
    EXPECT_EQ(gesagt(), "Frühstart: Spur 2 · Fahrer 2 — 7 s Zeitstrafe");
    ampeltaste('2');
    EXPECT_EQ(t.spur(2).strafzeit, 7s) << "a second false start costs nothing more";
    EXPECT_EQ(gespielt("fs2.wav"), 1);
    EXPECT_TRUE(strom(2));
    t.p.ereignisse.ereignis_melden(29);  // a tank contact of the same lane, and one of a lane that is not in the race
    t.p.ereignisse.ereignis_melden(36);
    t.maschine.laufen(1);
    EXPECT_EQ(gesagt(true), "Frühstart: Spur_2_·_Fahrer_2, 5 —_7_s_Zeitstrafe");
    EXPECT_FALSE(t.bahn().straflabel[5].sichtbar()) << "no notice on a column that is not shown";
}

TEST_F(Fruehstart, StromunterbrechungDauertVonGruenAn) {
    t.p.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    t.p.einst.fruehstart_strafzeit = 5s;
    beginnen(1);
    t.maschine.laufen(gruen_nach + 3000);
    t.rennabbruch();  // in the middle of the penalty: the next one takes its full time all the same
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.startampel.taste('3');
    t.maschine.laufen(2);
    EXPECT_EQ(gesagt(), "Frühstart: Spur 3 · Fahrer 3 — 5 s ohne Strom");
    EXPECT_FALSE(strom(3));
    EXPECT_TRUE(strom(1));
    EXPECT_TRUE(t.bahn().ampel_rt[2].sichtbar());
    bis_gruen(4002);
    ASSERT_TRUE(rennen_laeuft());
    EXPECT_FALSE(t.bahn().ampel_gr[2].sichtbar());
    EXPECT_TRUE(t.bahn().ampel_gr[0].sichtbar());
    EXPECT_EQ(t.runden(3), 0) << "the crossing has counted";
    t.maschine.laufen(4999);
    EXPECT_FALSE(strom(3));
    t.taste("3");
    EXPECT_TRUE(strom(3));
    EXPECT_EQ(t.bahn().t_liste[2].zeilen(), std::vector<std::string>{" 0. 00,000"});
    EXPECT_TRUE(t.bahn().t_liste[0].zeilen().empty());
    t.runde_nach(5000, "3");
    EXPECT_EQ(t.runden(3), 0) << "locked for one minimum lap more";
    t.runde_nach(200, "3");
    EXPECT_EQ(t.runden(3), 1);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(3, 1), 5000 + 5000 + 200 - 1);
    EXPECT_EQ(t.p.einst.fruehstart_strafzeit, 5s);
}

TEST_F(Fruehstart, RennendeBeendetDieStromunterbrechung) {
    t.p.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    t.p.einst.fruehstart_strafzeit = 5s;
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.startampel.taste('3');
    bis_gruen(4000);
    ASSERT_TRUE(rennen_laeuft());
    t.maschine.laufen(2000);
    t.p.rennen.ende.rennende_ablauf();
    t.maschine.laufen(20000);
    EXPECT_TRUE(t.bahn().t_liste[2].zeilen().empty()) << "served into a race that is over";
}

TEST_F(Fruehstart, OhneStromausfallIstDieSperreImErstenRennenSoKurzWieSpaeter) {
    for (const int option : {0, 4, 5}) {
        t.p.einst.fruehstart_option = fruehstart_aktion(option);
        t.p.einst.fruehstart_strafzeit = 5s;
        for (const int rennen : {1, 2}) {
            SCOPED_TRACE(std::to_string(option) + " race " + std::to_string(rennen));
            beginnen(1);
            t.maschine.laufen(5000);
            ampeltaste('2');
            bis_gruen(5002);
            const int bei_gruen = t.runden(2);
            t.runde_nach(t.p.param.min_rundenzeit_ms + 110, "2");
            EXPECT_EQ(t.runden(2), bei_gruen + 1);
            t.rennabbruch();
        }
    }
}

TEST_F(Fruehstart, JedeAndereAktionTrifftNurIhreSpur) {
    for (const auto& [option, runden_bei_gruen, strafzeit, mit_strom, zaehler, folge] :
         {std::tuple(0, 0, 0, true, "0", "ohne Strafe"),
          {2, -1, 0, false, "Dis.", "disqualifiziert"},
          {4, -1, 0, true, "0", "1 Runde Abzug"},
          {5, -1, 10, true, "0", "10 s Zeitstrafe"}}) {
        SCOPED_TRACE(option);
        t.p.einst.fruehstart_option = fruehstart_aktion(option);
        t.p.einst.fruehstart_strafzeit = 3s;
        beginnen(3);
        t.maschine.laufen(5000);
        ampeltaste('2');
        EXPECT_EQ(gesagt(), std::string("Frühstart: Spur 2 · Fahrer 2 — ") + folge);
        t.maschine.laufen(2000 + 5 * 1500 - 5002);
        ASSERT_TRUE(rennen_laeuft());
        EXPECT_EQ(t.runden(2), runden_bei_gruen);
        EXPECT_EQ(t.spur(2).strafzeit, dauer_s(strafzeit));
        EXPECT_EQ(strom(2), mit_strom);
        EXPECT_EQ(t.bahn().zaehler[2].text(), zaehler);
        EXPECT_EQ(t.runden(1), -1);
        EXPECT_TRUE(strom(1));
        t.runde_nach(2500, "1");
        EXPECT_EQ(t.p.einst.fruehstart_strafzeit, option == 2 ? 3s : dauer_hs(10))
            << "overwritten when the light closes";
        t.runde_nach(6000, "12");
        EXPECT_EQ(t.runden(1), 1);
        EXPECT_EQ(t.runden(2), option == 2 ? -1 : runden_bei_gruen + 1);
        t.rennabbruch();
    }
}

TEST_F(Fruehstart, VieleLangeNamenHabenAlleIhrenPlatz) {
    t.p.einst.fruehstart_option = fruehstart_aktion::runde_abzug;
    beginnen(1, {1, 2, 3, 4, 5, 6});
    t.p.param.fahrer_name.fuellen("Ümit Ärger-Öztürk von und zu Ü");
    t.maschine.laufen(5000);
    ampeltaste('6');
    EXPECT_EQ(gesagt(), "Frühstart: Spur 6 · Ümit Ärger-Öztürk von und zu Ü — 1 Runde Abzug");
    for (const int spur : {2, 4, 6}) {
        t.p.param.fahrer_name[spur] = "Zoë";
    }
    for (const char spur : {'1', '2', '3', '4', '5'}) {
        ampeltaste(spur);
    }
    EXPECT_EQ(gesagt(),
              "Frühstart: Spur 1 · Ümit Ärger-Öztürk von und zu Ü, 2 · Zoë, 3 · Ümit Ärger-Öztürk von und zu Ü, "
              "4 · Zoë, 5 · Ümit Ärger-Öztürk von und zu Ü, 6 · Zoë — 1 Runde Abzug")
        << "the short ones leave it room";
}

TEST_F(Fruehstart, FruehstartBrichtDenStartAb) {
    t.p.einst.fruehstart_option = fruehstart_aktion::startabbruch;
    for (const int modus : {1, 7}) {
        SCOPED_TRACE(modus);
        beginnen(modus);
        t.maschine.laufen(5000);
        ampeltaste('1');
        EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Form2)) << "a hidden light comes out";
        EXPECT_TRUE(t.p.startampel.fenster.Label1.sichtbar());
        EXPECT_EQ(t.p.startampel.fenster.Label1.text(), "Rennabbruch: Frühstart");
        EXPECT_EQ(gesagt(), "Frühstart: Spur 1 · Fahrer 1 — Start wird wiederholt");
        EXPECT_EQ(t.p.startampel.fenster.abbrampel.text(), "OK");
        EXPECT_FALSE(strom(1) || strom(3));
        t.maschine.laufen(60000);
        EXPECT_FALSE(rennen_laeuft());
        EXPECT_EQ(rote_am_geraet(), 2) << "the lamps stay as they were";
        t.p.startampel.fenster.abbrampel.klicken();
        EXPECT_TRUE(strom(1) && strom(3));
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2));
        EXPECT_TRUE(t.bahn().Command1.bedienbar() && t.bahn().Command2.bedienbar());
        t.maschine.laufen(500);
        EXPECT_EQ(rote_am_geraet(), 5) << "blinks: ready again";
        starten();
        EXPECT_EQ(rote_am_geraet(), 0) << "the light begins from its first lamp";
        t.maschine.laufen(13000);
        EXPECT_TRUE(rennen_laeuft());
        t.rennabbruch();
    }
}

/// A sensor that fires with the second poll of one millisecond: the one that the green moment makes itself.
struct spaete_flanke : messquelle {
    explicit spaete_flanke(test::testprogramm& t) : programm(t) {}
    void abfragen() override {
        if (programm.maschine.jetzt() == wann && ++abfragen_bisher == 2) {
            programm.p.ereignisse.ereignis_melden(art::rundenzaehlung[1]);
        }
    }

    test::testprogramm& programm;
    zeit_ms wann = 0;
    int abfragen_bisher = 0;
};

TEST_F(Fruehstart, FlankeImGruenenAugenblickIstNochEinFruehstart) {
    spaete_flanke sensor(t);
    t.p.quellen.anschliessen(sensor);
    for (const int option : {1, 5}) {
        SCOPED_TRACE(option);
        t.p.einst.fruehstart_option = fruehstart_aktion(option);
        beginnen(1);
        sensor.wann = t.maschine.jetzt() + gruen_nach;
        sensor.abfragen_bisher = 0;
        t.maschine.laufen(gruen_nach);
        EXPECT_EQ(rennen_laeuft(), option != 1) << "an aborted start does not go green";
        EXPECT_EQ(t.spur(1).strafzeit, option == 5 ? 10s : 0s);
        t.maschine.laufen(2000);
        EXPECT_EQ(t.runden(1), -1);
        EXPECT_EQ(t.p.startampel.laeuft(), option == 1);
        t.p.startampel.fenster.abbrampel.klicken();
        t.rennabbruch();
    }
}

TEST_F(Fruehstart, OhneSoundsWirdBestraftAberNichtGestempelt) {
    t.p.einst.sound_an = false;
    t.p.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    t.p.einst.start_zeit_sensor = true;
    beginnen(1);
    t.maschine.laufen(4000);
    ampeltaste('2');
    EXPECT_EQ(t.spur(2).start_zeit, 0);
    EXPECT_TRUE(t.p.ereignisse[15].aktiv);
    EXPECT_FALSE(strom(2));
    EXPECT_EQ(t.runden(2), 0);
    bis_gruen(4002);
    EXPECT_FALSE(t.p.ereignisse[15].aktiv) << "the crossing before green is no lap";
    EXPECT_EQ(t.spur(2).start_zeit, t.p.rennen.zustand.start_zeit) << "a lane without a stamp is timed from green";
    EXPECT_TRUE(t.maschine.sounds.empty());
}

TEST_F(Fruehstart, EigeneStartzeitBleibtDieDesFruehstarts) {
    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    t.p.einst.start_zeit_sensor = true;
    beginnen(1);
    t.maschine.laufen(gruen_nach - 501);
    ampeltaste('2');
    const zeit_ms stempel = t.spur(2).start_zeit;
    EXPECT_EQ(stempel, t.maschine.jetzt() - 1);
    t.maschine.laufen(499);
    t.runde_nach(8000, "2");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, 1), t.maschine.jetzt() - 1 - stempel);
}

TEST_F(Fruehstart, AusgeschlosseneSpurBekommtKeinenStromMehrUndHaeltDasEndeNichtAuf) {
    t.p.einst.fruehstart_option = fruehstart_aktion::disqualifikation;
    t.p.einst.zielmodus_erster = false;
    t.p.einst.chaosampel_an = false;
    t.p.einst.chaos_strafe_strom = false;
    t.einrichten("Runden", "1", {1, 2});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    starten();
    t.maschine.laufen(4000);
    ampeltaste('2');
    bis_gruen(4002);
    t.runde_nach(3000, "1");
    t.taste("c");
    t.bahn().ch_strafzeit_hacken[1].umschalten();
    t.bahn().ch_strafzeit_hacken[2].umschalten();
    t.bahn().ch_Text1.eingeben("3");
    t.maschine.laufen(5000);
    geraet.befehle.clear();
    t.taste("c");
    EXPECT_FALSE(strom(1) || strom(2));
    t.maschine.laufen(3200);
    EXPECT_TRUE(strom(1));
    for (const int alle_oder_zwei : {0, 2}) {  // neither at the end of the pause nor at that of the penalty
        EXPECT_FALSE(geraet.enthaelt({ausgang::bahnstrom, alle_oder_zwei, true}));
    }
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
}

}  // namespace
}  // namespace tarvel
