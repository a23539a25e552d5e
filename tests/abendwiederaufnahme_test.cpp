// Heats of an evening that were broken off, or put away: the evening offers them again.

#include <gtest/gtest.h>

#include "programm/rennprotokoll.h"
#include "tests/plattform/neustart.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

using test::protokoll_von;

/// An evening whose first race is broken off after a crossing of everybody.
struct Abgebrochen : test::Abendprobe {
    using antwort = plattform::dreifache_antwort;
    void anfahren_und_abbrechen() {
        beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
        ASSERT_TRUE(abend.rennen_starten());
        t.bahn().Command1.klicken();
        t.runde_nach(6000, "123");
        t.maschine.antwort = true;
        t.maschine.antwort_mit_ausweg = antwort::ja;
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
        t.maschine.fragen_gestellt.clear();
        t.maschine.antwort_mit_ausweg = antwort::abbrechen;
        EXPECT_FALSE(abend.rennen_starten());
        EXPECT_FALSE(offen(fenstername::bahn1)) << "nothing is decided yet";
        t.maschine.antwort_mit_ausweg = weiter ? antwort::ja : antwort::nein;
        ASSERT_TRUE(abend.rennen_starten());
        ASSERT_TRUE(offen(fenstername::bahn1));
        ASSERT_EQ(t.maschine.fragen_gestellt.size(), 2U);
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
    t.maschine.antwort_mit_ausweg = antwort::nein;
    ASSERT_TRUE(abend.rennen_starten());  // from the start, but then not yet after all
    t.maschine.antwort_mit_ausweg = antwort::ja;
    t.rennabbruch();
    ASSERT_FALSE(offen(fenstername::bahn1));
    t.p.form1.Command1.klicken();  // somebody tries the track
    t.bahn().Command1.klicken();
    t.rennabbruch();
    ASSERT_TRUE(abend.rennen_starten());
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
}

TEST_F(Abgebrochen, WasNichtMehrGehtSetztAuchDenAblaufNichtFort) {
    t.p.einst.w_autom = true;
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten() && abend.automatik_an());
    t.bahn().Command1.klicken();
    runden_fahren(1);
    t.p.rennprotokoll.sichern();
    std::string name = t.p.rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    t.maschine.datei_schreiben(name, test::mit_anderer_runde(protokoll_von(t)));
    nur_eingaben = false;
    t.maschine.antwort = true;
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_EQ(letzte_meldung(), neu.txt.wettkampf.nicht_fortsetzbar);
    ASSERT_TRUE(neu.wettkampfabend.wettkampf_aktiv());
    EXPECT_FALSE(neu.wettkampfabend.automatik_an()) << "nobody has started its race";
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
    t.maschine.antwort_mit_ausweg = antwort::ja;
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
