#include "start/startampel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/plattform/ausgabe_protokoll.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

using ausgang = schaltung::ausgang;

class Startampel : public testing::Test {
protected:
    Startampel() { t.p.ausgaben.anschliessen(ausgabe_platz::timekeeper, geraet); }

    /// Opens the race window and presses start; the light begins.
    void beginnen(int modus, std::initializer_list<int> lanes = {1, 2, 3}) {
        t.einrichten("Zeit", "5", lanes);
        t.p.einst.start_ampel_modus = modus;
        starten();
    }
    void starten() {
        geraet.befehle.clear();
        t.maschine.sounds.clear();
        t.bahn().Command1.klicken();
    }
    /// One character per lamp: "R", "G" lit, "r", "g" dark, "-" no lamp there; a blank between the rows.
    std::string lampen() {
        std::string bild;
        for (std::size_t i = 0; i < 10; ++i) {
            const auto& lampe = t.p.startampel.fenster.ampelbild.at(i);
            const std::string& datei = lampe.datei();
            bild += i == 5 ? " " : "";
            if (!lampe.sichtbar()) {
                bild += "-";
            } else if (datei.find("rt_") != std::string::npos) {
                bild += datei == "ampel/rt_an.gif" ? "R" : "r";
            } else {
                bild += datei == "ampel/gr_an.gif" ? "G" : "g";
            }
        }
        return bild;
    }
    int rote_am_geraet() const {
        int rote = 0;
        for (int n = 1; n <= 5; ++n) {
            rote += geraet.ist_an(ausgang::ampel_rot, n) ? 1 : 0;
        }
        return rote;
    }
    bool strom(int spur) const { return geraet.ist_an(ausgang::bahnstrom, spur) || !geschaltet(spur); }
    bool geschaltet(int spur) const {
        return std::any_of(geraet.befehle.begin(), geraet.befehle.end(), [&](const schaltung& befehl) {
            return befehl.was == ausgang::bahnstrom && (befehl.nummer == spur || befehl.nummer == 0);
        });
    }
    std::ptrdiff_t gespielt(const std::string& datei) const {
        return std::count(t.maschine.sounds.begin(), t.maschine.sounds.end(), "sound\\" + datei);
    }
    bool rennen_laeuft() { return t.p.rennen.zeitgeber.renntimer->laeuft(); }
    void ampeltaste(char taste) {
        t.p.startampel.taste(taste);
        t.maschine.laufen(2);
    }
    /// Lets the rest of the time up to green pass, from `verstrichen` ms after the start.
    void bis_gruen(int verstrichen) { t.maschine.laufen(gruen_nach - verstrichen); }

    static constexpr int gruen_nach = 2000 + 6 * 1500;  ///< lights with five red steps

    test::ausgabe_protokoll geraet;
    test::testprogramm t;
};

TEST_F(Startampel, JederModusLaeuftSeineSchritteBisGruen) {
    struct fall {
        int modus;
        int schritte;
        const char* anfang;
        const char* nach_zwei;
        const char* voll;
        const char* gruen;
        bool verborgen = false;
    };
    const std::vector<fall> faelle{
        {1, 5, "rrrrr ggggg", "RRrrr ggggg", "RRRRR ggggg", "rrrrr GGGGG"},
        {2, 5, "rrrrr rrrrr", "RRrrr RRrrr", "RRRRR RRRRR", "rrrrr rrrrr"},
        {3, 4, "rrrr- gggg-", "RRrr- gggg-", "RRRR- gggg-", "rrrr- GGGG-"},
        {4, 4, "rrrr- rrrr-", "RRrr- RRrr-", "RRRR- RRRR-", "rrrr- rrrr-"},
        {5, 3, "rrr-- rrr--", "RRr-- RRr--", "RRR-- RRR--", "rrr-- rrr--"},
        {7, 5, "----- -----", "----- -----", "----- -----", "----- -----", true},
        {8, 4, "----- -----", "----- -----", "----- -----", "----- -----", true},
        {9, 3, "----- -----", "----- -----", "----- -----", "----- -----", true},
    };
    for (const fall& f : faelle) {
        SCOPED_TRACE(f.modus);
        beginnen(f.modus);
        EXPECT_EQ(lampen(), f.anfang);
        EXPECT_TRUE(t.p.startampel.laeuft());
        t.maschine.laufen(3499);
        EXPECT_EQ(rote_am_geraet(), 0);
        EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0));
        EXPECT_EQ(t.p.fenster.ist_offen("Form2"), !f.verborgen);
        t.maschine.laufen(1501);
        EXPECT_EQ(lampen(), f.nach_zwei);
        EXPECT_EQ(rote_am_geraet(), 2);
        t.maschine.laufen(1500 * (f.schritte - 2));
        EXPECT_EQ(lampen(), f.voll);
        EXPECT_EQ(rote_am_geraet(), f.schritte);
        EXPECT_EQ(gespielt("as.wav"), f.schritte);
        t.maschine.laufen(1499);
        EXPECT_FALSE(rennen_laeuft());
        t.maschine.laufen(1);
        EXPECT_TRUE(rennen_laeuft());
        EXPECT_EQ(lampen(), f.gruen);
        EXPECT_EQ(rote_am_geraet(), 0);
        EXPECT_TRUE(geraet.ist_an(ausgang::ampel_gruen, 0));
        EXPECT_EQ(gespielt("rs.wav"), 1);
        EXPECT_EQ(t.p.rennen.zustand.start_zeit, t.maschine.jetzt());
        EXPECT_FALSE(t.p.startampel.fenster.abbrampel.aktiviert());
        t.maschine.laufen(1999);
        EXPECT_FALSE(t.bahn().Command4.aktiviert());
        t.maschine.laufen(1);
        EXPECT_TRUE(t.bahn().Command2.aktiviert() && t.bahn().Command4.aktiviert());
        EXPECT_FALSE(t.p.startampel.laeuft());
        EXPECT_FALSE(t.p.fenster.ist_offen("Form2"));
        t.bahn().Command2.klicken();
    }
}

TEST_F(Startampel, DragraceHatEigeneSchritteUndDenBaum) {
    beginnen(6);
    t.p.rennen.ablauf.start_abgebrochen();
    t.p.fenster.entladen("Form2");
    t.p.einst.folgen_ableiten();
    starten();
    auto& f = t.p.startampel.fenster;
    const auto leuchten = [&](std::size_t i) { return f.Shape12.at(i).hintergrund() != f.Shape12.at(0).hintergrund(); };
    EXPECT_EQ(lampen(), "----- -----");
    EXPECT_TRUE(f.dragbaum.sichtbar());
    t.maschine.laufen(4000);
    EXPECT_EQ(f.Shape11.at(3).hintergrund(), 16777215U);
    EXPECT_EQ(rote_am_geraet(), 1);
    t.maschine.laufen(4000);
    EXPECT_EQ(rote_am_geraet(), 3);
    EXPECT_TRUE(leuchten(2)) << "only the first pair is yellow";
    t.maschine.laufen(500);
    EXPECT_EQ(f.Shape12.at(3).hintergrund(), 65535U);
    t.maschine.laufen(500);
    EXPECT_EQ(f.Shape12.at(5).hintergrund(), 65535U);
    EXPECT_FALSE(rennen_laeuft());
    t.maschine.laufen(500);
    EXPECT_TRUE(rennen_laeuft());
    EXPECT_TRUE(leuchten(6)) << "green";
}

TEST_F(Startampel, VariableStartzeitDehntDenLetztenSchritt) {
    struct fall {
        int modus;
        double zufall;
        int takt;
    };
    t.p.einst.start_option = 2;
    for (const fall& f : std::vector<fall>{
             {1, 0, 1000}, {1, 0.26, 2000}, {1, 0.999, 4000}, {6, 0, 500}, {6, 0.5, 1750}, {6, 0.9999, 2999}}) {
        t.maschine.zufallszahl = f.zufall;
        beginnen(f.modus);
        const int davor = f.modus == 6 ? 2000 + 3 * 2000 + 2 * 500 : gruen_nach - 1500;
        t.maschine.laufen(davor + f.takt - 1);
        EXPECT_FALSE(rennen_laeuft()) << f.modus << " " << f.zufall;
        t.maschine.laufen(1);
        EXPECT_TRUE(rennen_laeuft()) << f.modus << " " << f.zufall;
        t.maschine.laufen(2000);
        t.bahn().Command2.klicken();
    }
}

TEST_F(Startampel, FruehstartWirdImNaechstenTaktBemerktUndAngesagt) {
    t.p.einst.fruehstart_option = 5;
    t.p.einst.fruehstart_schritte = 7;
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.startampel.taste('2');
    EXPECT_EQ(t.spur(2).strafzeit, 0);
    t.maschine.laufen(1);
    EXPECT_EQ(t.spur(2).strafzeit, 7);
    EXPECT_EQ(t.bahn().straflabel[2].text(), "Strafzeit: 7 sec");
    EXPECT_TRUE(t.bahn().straflabel[2].sichtbar());
    EXPECT_EQ(t.maschine.sounds.back(), "sound\\fs2.wav");
    EXPECT_EQ(t.p.startampel.fenster.Label_fruehstart.text(), "Frühstart: Spur 2");
    ampeltaste('2');
    EXPECT_EQ(t.spur(2).strafzeit, 7) << "a second false start costs nothing more";
    EXPECT_EQ(gespielt("fs2.wav"), 1);
    EXPECT_TRUE(strom(2));
    t.p.ereignisse.ereignis_melden(29);  // a tank contact of the same lane, and one of a lane that is not in the race
    t.p.ereignisse.ereignis_melden(36);
    t.maschine.laufen(1);
    EXPECT_EQ(t.p.startampel.fenster.Label_fruehstart.text(), "Frühstart: Spur 2, 5");
    EXPECT_FALSE(t.bahn().straflabel[5].sichtbar()) << "no notice on a column that is not shown";
}

TEST_F(Startampel, StromunterbrechungDauertVonGruenAn) {
    t.p.einst.fruehstart_option = 3;
    t.p.einst.fruehstart_strafzeit = 500;
    beginnen(1);
    t.maschine.laufen(gruen_nach + 3000);
    t.bahn().Command2.klicken();  // in the middle of the penalty: the next one takes its full time all the same
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.startampel.taste('3');
    t.maschine.laufen(2);
    EXPECT_FALSE(strom(3));
    EXPECT_TRUE(strom(1));
    EXPECT_TRUE(t.bahn().ampel_rt[2].sichtbar());
    bis_gruen(4002);
    ASSERT_TRUE(rennen_laeuft());
    EXPECT_FALSE(t.bahn().ampel_gr[2].sichtbar());
    EXPECT_TRUE(t.bahn().ampel_gr[0].sichtbar());
    EXPECT_EQ(t.spur(3).runden, 0) << "the crossing has counted";
    t.maschine.laufen(4999);
    EXPECT_FALSE(strom(3));
    t.taste("3");
    EXPECT_TRUE(strom(3));
    EXPECT_EQ(t.bahn().t_liste[2].zeilen(), std::vector<std::string>{" 0. 00,000"});
    EXPECT_TRUE(t.bahn().t_liste[0].zeilen().empty());
    t.runde_nach(5000, "3");
    EXPECT_EQ(t.spur(3).runden, 0) << "locked for one minimum lap more";
    t.runde_nach(200, "3");
    EXPECT_EQ(t.spur(3).runden, 1);
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(3, 1), 5000 + 5000 + 200 - 1);
    EXPECT_EQ(t.p.einst.fruehstart_strafzeit, 500);
}

TEST_F(Startampel, JedeAndereAktionTrifftNurIhreSpur) {
    struct fall {
        int option;
        int runden_bei_gruen;
        int strafzeit;
        bool strom;
        const char* zaehler;
    };
    for (const fall& f : std::vector<fall>{
             {0, 0, 0, true, "0"}, {2, -1, 0, false, "Dis."}, {4, -1, 0, true, "0"}, {5, -1, 10, true, "0"}}) {
        SCOPED_TRACE(f.option);
        t.p.einst.fruehstart_option = f.option;
        t.p.einst.fruehstart_strafzeit = 300;
        beginnen(3);
        t.maschine.laufen(5000);
        ampeltaste('2');
        t.maschine.laufen(2000 + 5 * 1500 - 5002);
        ASSERT_TRUE(rennen_laeuft());
        EXPECT_EQ(t.spur(2).runden, f.runden_bei_gruen);
        EXPECT_EQ(t.spur(2).strafzeit, f.strafzeit);
        EXPECT_EQ(strom(2), f.strom);
        EXPECT_EQ(t.bahn().zaehler[2].text(), f.zaehler);
        EXPECT_EQ(t.spur(1).runden, -1);
        EXPECT_TRUE(strom(1));
        t.runde_nach(2500, "1");
        EXPECT_EQ(t.p.einst.fruehstart_strafzeit, f.option == 2 ? 300 : 10) << "overwritten when the light closes";
        t.runde_nach(6000, "12");
        EXPECT_EQ(t.spur(1).runden, 1);
        EXPECT_EQ(t.spur(2).runden, f.option == 2 ? -1 : f.runden_bei_gruen + 1);
        t.bahn().Command2.klicken();
    }
}

TEST_F(Startampel, FruehstartBrichtDenStartAb) {
    t.p.einst.fruehstart_option = 1;
    for (const int modus : {1, 7}) {
        SCOPED_TRACE(modus);
        beginnen(modus);
        t.maschine.laufen(5000);
        ampeltaste('1');
        EXPECT_TRUE(t.p.fenster.ist_offen("Form2")) << "a hidden light comes out";
        EXPECT_TRUE(t.p.startampel.fenster.Label1.sichtbar());
        EXPECT_EQ(t.p.startampel.fenster.Label1.text(), "Rennabbruch: Frühstart");
        EXPECT_EQ(t.p.startampel.fenster.abbrampel.text(), "OK");
        EXPECT_FALSE(strom(1) || strom(3));
        t.maschine.laufen(60000);
        EXPECT_FALSE(rennen_laeuft());
        EXPECT_EQ(rote_am_geraet(), 2) << "the lamps stay as they were";
        t.p.startampel.fenster.abbrampel.klicken();
        EXPECT_TRUE(strom(1) && strom(3));
        EXPECT_FALSE(t.p.fenster.ist_offen("Form2"));
        EXPECT_TRUE(t.bahn().Command1.bedienbar() && t.bahn().Command2.bedienbar());
        starten();
        t.maschine.laufen(13000);
        EXPECT_TRUE(rennen_laeuft());
        t.bahn().Command2.klicken();
    }
}

TEST_F(Startampel, AbbruchVonHandHaeltInJedemSchrittAllesAn) {
    t.p.einst.fruehstart_option = 3;
    for (const int nach : {0, 1999, 3500, 6500, gruen_nach - 1}) {
        SCOPED_TRACE(nach);
        beginnen(1);
        t.maschine.laufen(nach);
        t.p.startampel.taste('2');
        t.maschine.laufen(nach % 2);
        t.p.startampel.fenster_schliessen();
        if (nach == gruen_nach - 1) {
            EXPECT_TRUE(rennen_laeuft()) << "green has come first";
            t.maschine.laufen(2000);
            t.bahn().Command2.klicken();
            continue;
        }
        EXPECT_EQ(t.maschine.sounds.back(), "sound\\ra.wav");
        EXPECT_TRUE(geraet.ist_an(ausgang::ampel_rot, 1));
        EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0));
        geraet.befehle.clear();
        t.maschine.laufen(20000);
        EXPECT_TRUE(geraet.befehle.empty());
        EXPECT_FALSE(rennen_laeuft());
        EXPECT_TRUE(t.bahn().Command1.bedienbar());
        t.bahn().Command2.klicken();
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
    void abtasten() override {}

    test::testprogramm& programm;
    zeit_ms wann = 0;
    int abfragen_bisher = 0;
};

TEST_F(Startampel, FlankeImGruenenAugenblickIstNochEinFruehstart) {
    spaete_flanke sensor(t);
    t.p.rennen.ablauf.anschliessen(sensor);
    for (const int option : {1, 5}) {
        SCOPED_TRACE(option);
        t.p.einst.fruehstart_option = option;
        beginnen(1);
        sensor.wann = t.maschine.jetzt() + gruen_nach;
        sensor.abfragen_bisher = 0;
        t.maschine.laufen(gruen_nach);
        EXPECT_EQ(rennen_laeuft(), option != 1) << "an aborted start does not go green";
        EXPECT_EQ(t.spur(1).strafzeit, option == 5 ? 10 : 0);
        t.maschine.laufen(2000);
        EXPECT_EQ(t.spur(1).runden, -1);
        EXPECT_EQ(t.p.startampel.laeuft(), option == 1);
        t.p.startampel.fenster.abbrampel.klicken();
        t.bahn().Command2.klicken();
    }
}

TEST_F(Startampel, OhneSoundsWirdBestraftAberNichtGestempelt) {
    t.p.einst.sound_an = false;
    t.p.einst.fruehstart_option = 3;
    t.p.einst.start_zeit_sensor = true;
    beginnen(1);
    t.maschine.laufen(4000);
    ampeltaste('2');
    EXPECT_EQ(t.spur(2).start_zeit, 0);
    EXPECT_TRUE(t.p.ereignisse[15].aktiv);
    EXPECT_FALSE(strom(2));
    EXPECT_EQ(t.spur(2).runden, 0);
    bis_gruen(4002);
    EXPECT_FALSE(t.p.ereignisse[15].aktiv) << "the crossing before green is no lap";
    EXPECT_EQ(t.spur(2).start_zeit, t.p.rennen.zustand.start_zeit) << "a lane without a stamp is timed from green";
    EXPECT_TRUE(t.maschine.sounds.empty());
}

TEST_F(Startampel, EigeneStartzeitBleibtDieDesFruehstarts) {
    t.p.einst.fruehstart_option = 0;
    t.p.einst.start_zeit_sensor = true;
    beginnen(1);
    t.maschine.laufen(gruen_nach - 501);
    ampeltaste('2');
    const zeit_ms stempel = t.spur(2).start_zeit;
    EXPECT_EQ(stempel, t.maschine.jetzt() - 1);
    t.maschine.laufen(499);
    t.runde_nach(8000, "2");
    EXPECT_EQ(t.p.rennen.zustand.rundenzeiten.rundenzeit(2, 1), t.maschine.jetzt() - 1 - stempel);
}

TEST_F(Startampel, TanksensorAlsRundensensorUndNachttaste) {
    t.p.einst.fruehstart_option = 5;
    t.p.einst.tank_runden_modus = 2;
    t.p.einst.nachtrennen_modus = 2;
    beginnen(1);
    auto& nacht = t.p.startampel.fenster.Nachtabschaltung;
    EXPECT_TRUE(nacht.sichtbar());
    EXPECT_TRUE(t.bahn().Nachtabschaltung.sichtbar());
    ampeltaste('n');
    EXPECT_FALSE(nacht.sichtbar());
    EXPECT_FALSE(t.bahn().Nachtabschaltung.sichtbar());
    nacht.sichtbar(true);  // as if only one of them were dark
    ampeltaste('n');
    EXPECT_TRUE(nacht.sichtbar() && t.bahn().Nachtabschaltung.sichtbar());
    t.p.startampel.taste('a');  // leaves the tank contact of lane 1
    EXPECT_TRUE(t.p.ereignisse[16].aktiv);
    t.maschine.laufen(1);
    EXPECT_EQ(t.spur(1).strafzeit, 10);
    bis_gruen(3);
    t.p.ereignisse[29].aktiv = true;
    t.p.ereignisse[38].aktiv = true;
    t.maschine.laufen(2000);
    EXPECT_FALSE(t.p.ereignisse[29].aktiv || t.p.ereignisse[38].aktiv) << "tank events of the start are forgotten";
}

TEST_F(Startampel, OhneAmpelBeginntDasRennenSofortUndZaehltKeineStrafe) {
    beginnen(0);
    EXPECT_TRUE(rennen_laeuft());
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2"));
    EXPECT_TRUE(t.bahn().Command4.bedienbar());
    EXPECT_FALSE(t.p.rennen.zeitgeber.f_straftimer->laeuft());
}

TEST_F(Startampel, RennenDasVorDerFreigabeEndetNimmtDieAmpelMit) {
    t.einrichten("Runden", "1", {1});
    t.p.einst.start_ampel_modus = 1;
    t.p.param.min_rundenzeit_ms = 100;
    starten();
    t.maschine.laufen(gruen_nach);
    t.runde_nach(500, "1");
    t.runde_nach(700, "1");
    ASSERT_TRUE(t.p.fenster.ist_offen("auswertung"));
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2") || t.p.startampel.laeuft());
    t.p.auswertung.Command5.klicken();
    beginnen(1);
    t.maschine.laufen(gruen_nach);
    EXPECT_TRUE(rennen_laeuft()) << "the next start is a whole one";
}

TEST_F(Startampel, AusgeschlosseneSpurHaeltDasEndeNichtAuf) {
    t.p.einst.fruehstart_option = 2;
    t.p.einst.zielmodus_erster = false;
    t.einrichten("Runden", "1", {1, 2});
    t.p.einst.start_ampel_modus = 1;
    starten();
    t.maschine.laufen(4000);
    ampeltaste('2');
    bis_gruen(4002);
    t.runde_nach(1000, "1");
    t.runde_nach(6000, "1");
    EXPECT_TRUE(t.p.fenster.ist_offen("auswertung"));
}

TEST_F(Startampel, FensterDesRennensSchliesstAuchDieAmpel) {
    beginnen(1);
    t.maschine.antwort = true;
    t.maschine.laufen(4000);
    t.p.rennen.befehle.fenster_schliessen();
    EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    t.maschine.laufen(20000);
    EXPECT_FALSE(rennen_laeuft());
    EXPECT_FALSE(t.p.fenster.ist_offen("Form2") || t.p.fenster.ist_offen("bahn1"));
}

}  // namespace
}  // namespace tarvel
