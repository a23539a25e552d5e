#include "competition/wettkampf2.h"
#include "competition/wettkampfabend.h"
#include "competition/wettkampftabelle.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

using Wettkampfautomatik = test::Abendprobe;

TEST_F(Wettkampfautomatik, VonSelbstVomErstenStartBisZurTabelle) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 20s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    for (int rennen = 1; rennen <= 3; ++rennen) {
        ASSERT_TRUE(offen(fenstername::bahn1));
        t.maschine.laufen(2000);
        EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
        t.maschine.laufen(1100);
        EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
        runden_fahren(3);  // the result is seen for three seconds of its ten
        ASSERT_TRUE(offen(fenstername::auswertung));
        t.maschine.laufen(8000);
        EXPECT_FALSE(offen(fenstername::auswertung));
        EXPECT_EQ(abend.stand().fortsetzung_nummer(rennen), 1);
        EXPECT_EQ(abend.wartet_auf_rennen(), rennen < 3);
        t.maschine.laufen(19000);
    }
    EXPECT_TRUE(abend.stand().ende_pruefen());
    EXPECT_FALSE(offen(fenstername::bahn1));
    const auto tabellen = t.p.ablage.auflisten("Ergebnisse\\Wettkampf", "Vereinsabend-", ".csv");
    ASSERT_EQ(tabellen.size(), 1U);
    EXPECT_EQ(*t.p.ablage.zeilen_lesen("Ergebnisse\\Wettkampf\\" + tabellen.front(), 1000),
              tabelle_schreiben(abend.stand(), {}, t.p.einst.trennzeichen));
}

TEST_F(Wettkampfautomatik, AbbruchHaeltDenAblaufAnUndEineEingabeIhnAuf) {
    t.p.einst.w_autom = true;
    t.p.einst.zielmodus_erster = true;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    t.maschine.laufen(10000);
    t.rennabbruch();
    t.maschine.laufen(600000);
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_TRUE(abend.unterbrochen());
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;
    ASSERT_TRUE(abend.rennen_starten());
    t.maschine.laufen(4000);
    runden_fahren(3);
    t.p.auswertung.Command6.klicken();  // metres are being entered
    t.maschine.laufen(60000);
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.Command6.klicken();
    t.maschine.laufen(12000);
    EXPECT_FALSE(offen(fenstername::auswertung));
}

TEST_F(Wettkampfautomatik, CentermodeLaeuftAuchVonSelbst) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 30s;
    beginnen(wettkampf_modus::am_stueck, 2, {1, 2}, true);
    ASSERT_TRUE(abend.rennen_starten());
    t.maschine.laufen(4000);
    runden_fahren(3);
    t.maschine.laufen(20000);
    EXPECT_TRUE(offen(fenstername::auswertung)) << "the cars are being moved";
    t.maschine.laufen(20000);
    runden_fahren(2);
    t.maschine.laufen(10000);
    EXPECT_TRUE(abend.stand().ende_pruefen());
    EXPECT_EQ(abend.stand().staende().front().fahrer_runden(0), 6);
}

TEST_F(Wettkampfautomatik, NiemandWirdVomAblaufUeberrascht) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 5s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    t.p.fenster.zeigen(fenstername::wettkampf2);
    ASSERT_TRUE(abend.rennen_starten());
    t.maschine.laufen(4000);
    runden_fahren(3);
    t.maschine.laufen(8000);
    ASSERT_TRUE(abend.wartet_auf_rennen());
    t.p.wettkampf2.Command14.klicken();  // a name is being corrected
    t.maschine.laufen(60000);
    EXPECT_FALSE(offen(fenstername::bahn1));
    t.p.wettkampf2.Command_namen_fertig.klicken();
    t.p.wettkampf2.Command_aushang.klicken();  // is for reading, and holds nobody up
    t.p.wettkampf2.Command12.klicken();        // no power while the cars are placed
    EXPECT_FALSE(strom(1));
    t.maschine.laufen(6000);
    EXPECT_TRUE(offen(fenstername::bahn1));
    EXPECT_TRUE(strom(1));
    abend.automatik_umschalten();
    t.maschine.laufen(10000);
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet) << "switched off is off";
    EXPECT_FALSE(abend.automatik_an());
}

TEST_F(Wettkampfautomatik, NeueBestzeitenHaltenDenAblaufNichtAuf) {
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 5s;
    t.maschine.nicht_schreibbar = "bestefile.bst";
    for (const auto modus : {bestzeit_speicherung::manuell, bestzeit_speicherung::automatisch}) {
        t.p.einst.beste_modus = modus;
        t.p.bestzeiten = {};
        beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
        EXPECT_FALSE(abend.unterbrochen()) << "that was another evening";
        ASSERT_TRUE(abend.rennen_starten());
        t.maschine.laufen(4000);
        runden_fahren(3);
        t.maschine.laufen(8000);
        ASSERT_TRUE(offen(fenstername::beste_zeiten_fenster));
        if (modus == bestzeit_speicherung::manuell) {
            for (const char* name : {"An", "Ann", "Anna"}) {
                t.maschine.laufen(10000);
                t.p.beste_zeiten_fenster.btext_name[0].eingeben(name);
            }
            t.maschine.laufen(14000);
            EXPECT_TRUE(offen(fenstername::auswertung)) << "somebody is typing";
        }
        t.maschine.laufen(2500);
        EXPECT_FALSE(offen(fenstername::auswertung));
        t.maschine.laufen(6000);
        EXPECT_TRUE(offen(fenstername::bahn1));
        EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
        t.rennabbruch();
        EXPECT_LT(t.p.bestzeiten.beste(1), keine_bestzeit) << "also where nobody saves, or it could not be written";
    }
    t.maschine.nicht_schreibbar.clear();
    t.p.programm_beenden();
    bestzeiten auf_der_platte;
    ASSERT_TRUE(auf_der_platte.laden(t.p.ablage, t.p.einst.beste_datei));
    EXPECT_EQ(auf_der_platte, t.p.bestzeiten);
}

TEST_F(Wettkampfautomatik, EinProtokollDasNichtGanzIstHaeltKeinRennenAuf) {
    nur_eingaben = false;  // the logs cannot be whole
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 5s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    t.maschine.anhaengedateien.platz = 1000;
    ASSERT_TRUE(abend.rennen_starten());
    t.maschine.laufen(4000);
    runden_fahren(3);
    t.maschine.laufen(14000);
    EXPECT_TRUE(offen(fenstername::bahn1));
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    t.rennabbruch();
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U) << "behind the first race that somebody leads";
    EXPECT_TRUE(letzte_meldung().starts_with("Das Protokoll des Rennens ist nicht ganz geschrieben."));
}

TEST_F(Wettkampfautomatik, WerEtwasVorSichHatWirdNichtHinausgeworfen) {
    struct schreibtisch final : fensteranzeige {
        bool dialog = false;
        void zeigen(fenstername /*name*/, anzeige_art /*art*/) override {}
        void verbergen(fenstername /*name*/) override {}
        bool fragt() const override { return dialog; }
    } desktop;
    t.p.fenster.anzeigen_auf(&desktop);
    t.p.einst.w_autom = true;
    t.p.einst.w_zeit1 = 5s;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    for (const bool im_ergebnis : {true, false}) {
        ASSERT_TRUE(abend.rennen_starten());
        t.maschine.laufen(4000);
        runden_fahren(3);
        t.maschine.laufen(im_ergebnis ? 1000 : 8000);
        const fenstername wartet = im_ergebnis ? fenstername::auswertung : fenstername::bahn1;
        for (const fenstername vorn : {fenstername::protokoll, fenstername::urkunden, fenstername::einstellungen}) {
            t.p.fenster.zeigen(vorn, anzeige_art::modal);
            t.maschine.laufen(60000);
            EXPECT_EQ(offen(wartet), im_ergebnis) << text_von(vorn);
            t.p.fenster.entladen(vorn);
        }
        desktop.dialog = true;
        t.maschine.laufen(60000);
        EXPECT_EQ(offen(wartet), im_ergebnis) << "a dialog of the desktop";
        desktop.dialog = false;
        t.maschine.laufen(8000);
        EXPECT_EQ(offen(wartet), !im_ergebnis);
        abend.automatik_umschalten();
        abend.automatik_umschalten();
    }
    t.rennabbruch();
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;
    ASSERT_TRUE(abend.rennen_starten());
    t.maschine.laufen(4000);
    runden_fahren(3);
    t.maschine.laufen(4000);
    t.p.auswertung.Command_protokoll.klicken();
    t.maschine.laufen(60000);
    t.p.fenster.entladen(fenstername::protokoll);
    t.maschine.laufen(5000);
    EXPECT_TRUE(offen(fenstername::auswertung)) << "who has looked into the log has his time again";
    t.maschine.laufen(8000);
    EXPECT_FALSE(offen(fenstername::auswertung));
    t.p.fenster.anzeigen_auf(nullptr);
}

}  // namespace
}  // namespace tarvel
