#include "race/rennansicht.h"

#include "tests/plattform/vereinsabend.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Rennansicht : public test::ProgrammProbe {
protected:
    void oeffnen(std::initializer_list<int> lanes) {
        t.rennabbruch();  // a window that is open stays as it is
        t.einrichten("Zeit", "5", lanes);
    }
    const ansicht_inhalt& inhalt() { return t.bahn().ansicht.inhalt(); }

    test::vereinsabend abend{t.p};
};

TEST_F(Rennansicht, EinstellungUndSpurenWaehlenDieAnsicht) {
    oeffnen({4});
    EXPECT_EQ(inhalt().art, ansicht_art::einfahrer);
    EXPECT_TRUE(inhalt().spur_aktiv[4]);
    oeffnen({2, 4});
    EXPECT_EQ(inhalt().art, ansicht_art::spalten);
    t.p.einst.darstellung_zeile = true;
    oeffnen({4});
    EXPECT_EQ(inhalt().art, ansicht_art::zeilen);
}

TEST_F(Rennansicht, ZeigtWasEinstellungenUndDateienHergeben) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tankanzeige_grafisch = false;
    t.p.einst.fahrzeugbild_an = true;
    t.p.einst.grosse_zeit = true;
    t.p.ablage.zeilen_schreiben("pictures/wrpic1.jpg", {"?"});
    t.p.ablage.zeilen_schreiben("pictures/anna.jpg", {"?"});
    t.p.fahrerliste.leeren();
    t.p.fahrerliste.hinzufuegen("Anna");
    t.p.fahrerliste.bild_setzen(0, "anna");
    t.p.form1.fahrer[0].eingeben("Anna");
    oeffnen({1, 2, 3});
    EXPECT_EQ(inhalt().tank, tankanzeige_art::zahl);
    EXPECT_TRUE(inhalt().grosse_zeit);
    EXPECT_TRUE(inhalt().wrpic1 && !inhalt().logobild && !inhalt().wrpic2);
    EXPECT_TRUE(t.bahn().wrpic1.sichtbar() && !t.bahn().logobild.sichtbar());
    EXPECT_EQ(t.bahn().Image1[1].datei(), "pictures/anna.jpg");
    EXPECT_EQ(t.bahn().Image1[2].datei(), "pictures/nopic.jpg");
    EXPECT_TRUE(t.bahn().Image2[3].sichtbar() && !t.bahn().Image2[4].sichtbar());
    t.p.einst.tankanzeige_grafisch = true;
    t.p.ablage.zeilen_schreiben("tvkpic2.jpg", {"?"});
    oeffnen({1, 2});
    EXPECT_EQ(inhalt().tank, tankanzeige_art::balken);
    EXPECT_EQ(t.bahn().Image1[1].datei(), "pictures/anna.jpg");
    EXPECT_EQ(t.bahn().Image1[2].datei(), "tvkpic2.jpg") << "the club's picture for a driver without one";
}

TEST_F(Rennansicht, EinfahrzeitGibtDieBahnFreiUndDanebenStehtWerAlsNaechstesFaehrt) {
    oeffnen({1});
    EXPECT_FALSE(t.bahn().Command6.sichtbar() || inhalt().einfahrzeit || inhalt().naechstes_rennen);
    abend.naechste = "Gerd, Hanna";
    t.p.form1.einzelrennen_beginnen = [this] { t.p.rennen_beginnen(abend); };
    oeffnen({1, 2});
    EXPECT_TRUE(inhalt().einfahrzeit && inhalt().naechstes_rennen);
    EXPECT_EQ(t.bahn().Label_naechstesrennen.text() + t.bahn().Label5.text(), "Nächstes Rennen:Gerd, Hanna");
    t.taste("1");
    t.bahn().Command6.klicken();
    EXPECT_TRUE(offen(fenstername::einfahren));
    EXPECT_FALSE(t.p.ereignisse[16].aktiv);
    t.p.fenster.entladen(fenstername::einfahren);
    t.p.rennen.ablauf.einfahrzeit_beendet();
    EXPECT_FALSE(strom(1));
    t.bahn().Command1.klicken();
    EXPECT_FALSE(t.bahn().Command6.bedienbar());
    EXPECT_TRUE(strom(1));
}

TEST_F(Rennansicht, ZaehlerInDerZeileRuecktBeiTausendRunden) {
    t.p.einst.darstellung_zeile = true;
    t.starten("Zeit", "5", {1});
    t.runde_nach(1000, "1");
    const bezeichnung& zaehler = t.bahn().zaehler[1];
    const double links = zaehler.links();
    for (const int runden : {100, 1000}) {
        t.runden_auffuellen(1, runden - 1);
        t.runde_nach(8000, "1");
        EXPECT_DOUBLE_EQ(zaehler.schriftgroesse(), 0.8 * t.bahn().zaehler_schrift);
        EXPECT_DOUBLE_EQ(zaehler.links(), runden == 1000 ? links / 2 : links);
    }
    t.p.rennen.ansicht.anzeigen_leeren();
    t.p.rennen.ansicht.stand_zeigen();
    EXPECT_DOUBLE_EQ(zaehler.links(), links / 2) << "the same for a race that goes on";
    t.p.rennen.ansicht.anzeigen_leeren();
    EXPECT_DOUBLE_EQ(zaehler.links(), links);
}

TEST_F(Rennansicht, AmpelBlinktVorDemRennen) {
    const auto rot = [&] { return geraet.ist_an(ausgang::ampel_rot, 1) && !geraet.ist_an(ausgang::ampel_gruen, 0); };
    t.einrichten("Zeit", "5", {1, 2});
    t.maschine.laufen(500);
    EXPECT_TRUE(rot());
    t.maschine.laufen(500);
    EXPECT_FALSE(rot());
    t.maschine.laufen(500);
    t.bahn().Command1.klicken();
    EXPECT_FALSE(rot()) << "a race without a light is driven on green";
    geraet.befehle.clear();
    t.maschine.laufen(5000);
    EXPECT_TRUE(geraet.befehle.empty());
    t.rennabbruch();

    t.einrichten("Zeit", "5", {1, 2});
    t.maschine.laufen(500);
    t.rennabbruch();
    EXPECT_FALSE(geraet.ist_an(ausgang::ampel_gruen, 0)) << "the window has left the light dark";
    geraet.befehle.clear();
    t.maschine.laufen(5000);
    t.p.einst.blinken_an = false;
    t.einrichten("Zeit", "5", {1, 2});
    t.maschine.laufen(5000);
    EXPECT_FALSE(geraet.enthaelt({ausgang::ampel_rot, 0, true}));
}

}  // namespace
}  // namespace tarvel
