#include "competition/rangliste.h"
#include "competition/w_auswertung.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;

class Wettkampfansicht : public testing::Test {
protected:
    void beginnen(m modus, int fahrer, int rennen) {
        wettkampf w = test::vereinswettkampf::neu(modus, fahrer, {1, 3});
        test::vereinswettkampf::fahren(w, rennen);
        abend.beginnen(std::move(w));
        t.p.fenster.zeigen(fenstername::rangliste);
        t.p.fenster.zeigen(fenstername::w_auswertung);
    }

    test::testprogramm t;
    wettkampfabend& abend = t.p.wettkampfabend;
    rangliste& rang = t.p.rangliste;
    w_auswertung& stand = t.p.w_auswertung;
};

TEST_F(Wettkampfansicht, ReihenfolgeWirdBehaltenUndAllesFolgtDemRennen) {
    beginnen(m::rotation, 5, 3);
    EXPECT_EQ(rang.cbo_sortierung.platz(), 1);
    rang.cbo_sortierung.waehlen(2);
    EXPECT_EQ(abend.stand().wertung, sortier_modus::beste);
    EXPECT_EQ(rang.List_name.zeilen(), rangschreiben(abend.stand(), sortier_modus::beste, t.p.einst.trennzeichen));
    const std::string erster = abend.stand().name(fahrer_in_rangfolge(abend.stand(), sortier_modus::beste).at(0));
    EXPECT_EQ(stand.List_name.zeilen().at(0), erster);
    EXPECT_EQ(stand.balken().at(0).name, erster);
    EXPECT_EQ(stand.blatt().tabellen.at(0).zeilen.at(0).at(1).text, erster);

    stand.List_gesamt.auswaehlen(4);
    const std::string gewaehlt = stand.List_name.zeilen().at(4);
    abend.aendern([](wettkampf& w) {
        test::vereinswettkampf::fahren(w, 2);
        return true;
    });
    const auto markiert = static_cast<std::size_t>(stand.List_balken.markiert());
    EXPECT_EQ(stand.List_name.zeilen().at(markiert), gewaehlt) << "the selection stays with its driver";
    EXPECT_EQ(stand.List_je[2].markiert(), stand.List_balken.markiert());
    EXPECT_EQ(rang.List_name.zeilen(), rangschreiben(abend.stand(), sortier_modus::beste, t.p.einst.trennzeichen));
    EXPECT_NE(stand.Label_stand.text().find("nach 5 von 5 Rennen"), std::string::npos);
    EXPECT_NE(rang.Label_stand.text().find("nach 5 von 5 Rennen"), std::string::npos);
    EXPECT_FALSE(stand.List_je[1].sichtbar()) << "nobody drives there";

    abend.aendern([](wettkampf& w) {
        w.wertung = static_cast<sortier_modus>(7);
        return true;
    });
    EXPECT_EQ(rang.cbo_sortierung.platz(), 1);
    t.p.fenster.neu_laden(fenstername::rangliste);
    EXPECT_EQ(abend.stand().wertung, sortier_modus::runden);
    abend.beenden();
    EXPECT_TRUE(rang.List_name.zeilen().empty() && stand.List_platz.zeilen().empty());
}

TEST_F(Wettkampfansicht, JederGegenJedenHatEineSpalteJeHeat) {
    beginnen(m::jeder_gegen_jeden, 10, 90);
    const auto zeilen = abend.stand().jeder_tabelle();
    const int platz = fahrer_in_rangfolge(abend.stand(), sortier_modus::runden).at(0);
    const jeder_zeile& erster = zeilen.at(static_cast<std::size_t>(platz - 1));
    for (int heat = 1; heat <= 18; ++heat) {
        const auto i = static_cast<std::size_t>(heat - 1);
        EXPECT_TRUE(stand.List_je[i].sichtbar());
        EXPECT_EQ(stand.List_je[i].zeilen().at(0),
                  std::to_string(erster.jeder_runden(heat)) + "\n" +
                      zeit_formatieren(erster.jeder_beste(heat), true, t.p.einst.trennzeichen));
    }
    const wettkampfblatt blatt = stand.blatt();
    EXPECT_EQ(blatt.tabellen.size(), 5U) << "ranking, three times six heats, plan";
    EXPECT_EQ(blatt.tabellen.at(3).spalten.back().kopf, "Heat 18");
}

TEST_F(Wettkampfansicht, BlaettertUmDieSichtbarenZeilen) {
    beginnen(m::gruppen, 99, 1);
    std::vector<int> gerollt;
    stand.rollen = [&](int zeile) { gerollt.push_back(zeile); };
    stand.gerollt(0, 40);
    EXPECT_FALSE(stand.Command1.bedienbar());
    for (int n = 0; n < 4; ++n) {
        stand.Command2.klicken();
    }
    stand.Command1.klicken();
    EXPECT_EQ(gerollt, (std::vector<int>{40, 59, 19})) << "ends with a full page, and is quiet there";
}

}  // namespace
}  // namespace tarvel
