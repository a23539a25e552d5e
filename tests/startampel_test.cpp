#include "start/startampel.h"

#include "tests/startampel_probe.h"

namespace tarvel {
namespace {

class Startampel : public test::StartampelProbe {};

TEST_F(Startampel, JederModusLaeuftSeineSchritteBisGruen) {
    for (const auto& [modus, schritte, anfang, nach_zwei, voll, gruen, verborgen] : {
             std::tuple(1, 5, "rrrrr ggggg", "RRrrr ggggg", "RRRRR ggggg", "rrrrr GGGGG", false),
             {2, 5, "rrrrr rrrrr", "RRrrr RRrrr", "RRRRR RRRRR", "rrrrr rrrrr", false},
             {3, 4, "rrrr- gggg-", "RRrr- gggg-", "RRRR- gggg-", "rrrr- GGGG-", false},
             {4, 4, "rrrr- rrrr-", "RRrr- RRrr-", "RRRR- RRRR-", "rrrr- rrrr-", false},
             {5, 3, "rrr-- rrr--", "RRr-- RRr--", "RRR-- RRR--", "rrr-- rrr--", false},
             {7, 5, "----- -----", "----- -----", "----- -----", "----- -----", true},
             {8, 4, "----- -----", "----- -----", "----- -----", "----- -----", true},
             {9, 3, "----- -----", "----- -----", "----- -----", "----- -----", true},
         }) {
        SCOPED_TRACE(modus);
        beginnen(modus);
        EXPECT_EQ(lampen(), anfang);
        EXPECT_TRUE(t.p.startampel.laeuft());
        t.maschine.laufen(3499);
        EXPECT_EQ(rote_am_geraet(), 0);
        EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0));
        EXPECT_EQ(t.p.fenster.ist_offen(fenstername::Form2), !verborgen);
        t.maschine.laufen(1501);
        EXPECT_EQ(lampen(), nach_zwei);
        EXPECT_EQ(rote_am_geraet(), 2);
        t.maschine.laufen(zeit_ms{1500} * (schritte - 2));
        EXPECT_EQ(lampen(), voll);
        EXPECT_EQ(rote_am_geraet(), schritte);
        EXPECT_EQ(gespielt("as.wav"), schritte);
        t.maschine.laufen(1499);
        EXPECT_FALSE(rennen_laeuft());
        t.maschine.laufen(1);
        EXPECT_TRUE(rennen_laeuft());
        EXPECT_EQ(lampen(), gruen);
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
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2));
        t.rennabbruch();
    }
}

TEST_F(Startampel, DragraceHatEigeneSchritteUndDenBaum) {
    beginnen(6);
    t.p.rennen.ablauf.start_abgebrochen();
    t.p.fenster.entladen(fenstername::Form2);
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
    t.p.einst.start_option = startzeit::variabel;
    for (const auto& [modus, zufall, takt] : {std::tuple(1, 0.0, 1000),
                                              {1, 0.26, 2000},
                                              {1, 0.999, 4000},
                                              {6, 0.0, 500},
                                              {6, 0.5, 1750},
                                              {6, 0.9999, 2999}}) {
        t.maschine.zufallszahl = zufall;
        beginnen(modus);
        const int davor = modus == 6 ? 2000 + 3 * 2000 + 2 * 500 : gruen_nach - 1500;
        t.maschine.laufen(davor + takt - 1);
        EXPECT_FALSE(rennen_laeuft()) << modus << " " << zufall;
        t.maschine.laufen(1);
        EXPECT_TRUE(rennen_laeuft()) << modus << " " << zufall;
        t.maschine.laufen(2000);
        t.rennabbruch();
    }
}

TEST_F(Startampel, AbbruchVonHandHaeltInJedemSchrittAllesAn) {
    t.p.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    t.p.einst.blinken_an = false;  // else the light shows that the window is ready again
    for (const int nach : {0, 1999, 3500, 6500, gruen_nach - 1}) {
        SCOPED_TRACE(nach);
        beginnen(1);
        t.maschine.laufen(nach);
        t.p.startampel.taste('2');
        t.maschine.laufen(nach % 2);
        t.p.startampel.schliessen();
        if (nach == gruen_nach - 1) {
            EXPECT_TRUE(rennen_laeuft()) << "green has come first";
            t.maschine.laufen(2000);
            t.rennabbruch();
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
        t.rennabbruch();
    }
}

TEST_F(Startampel, TanksensorAlsRundensensorUndNachttaste) {
    t.p.einst.fruehstart_option = fruehstart_aktion::zeitstrafe;
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_2;
    t.p.einst.nachtrennen_modus = nachtrennen::rennen_und_ampel;
    t.p.form1.t_aktiv.umschalten();
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
    EXPECT_EQ(t.spur(1).strafzeit, 10s);
    bis_gruen(2 + 2 + 1);
    t.maschine.laufen(1999);
    t.p.startampel.taste('w');  // lane 2 comes to its tank contact, lane 3 leaves it, as the light closes
    t.p.startampel.taste('d');
    ASSERT_TRUE(t.p.ereignisse[art::tanken_ein[2]].aktiv && t.p.ereignisse[art::tanken_aus[3]].aktiv);
    t.maschine.laufen(2);
    EXPECT_FALSE(t.spur(2).tank_kontakt) << "tank events of the start are forgotten";
    EXPECT_EQ(t.runden(3), -1);
}

TEST_F(Startampel, RennenDasVorDerFreigabeEndetNimmtDieAmpelMit) {
    t.einrichten("Runden", "1", {1});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    t.p.param.min_rundenzeit_ms = 100;
    starten();
    t.maschine.laufen(gruen_nach);
    t.runde_nach(500, "1");
    t.runde_nach(700, "1");
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2) || t.p.startampel.laeuft());
    t.p.auswertung.Command5.klicken();
    beginnen(1);
    t.maschine.laufen(gruen_nach);
    EXPECT_TRUE(rennen_laeuft()) << "the next start is a whole one";
}

TEST_F(Startampel, FensterDesRennensSchliesstAuchDieAmpel) {
    beginnen(1);
    t.maschine.laufen(4000);
    t.p.rennen.befehle.fenster_schliessen();
    EXPECT_TRUE(t.p.startampel.laeuft()) << "it asks first";
    t.maschine.laufen(1000);
    t.p.rennen.befehle.fenster_schliessen();
    t.maschine.laufen(20000);
    EXPECT_FALSE(rennen_laeuft());
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form2) || t.p.fenster.ist_offen(fenstername::bahn1));
}

}  // namespace
}  // namespace tarvel
