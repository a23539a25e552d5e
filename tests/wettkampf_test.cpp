#include "competition/wettkampf.h"

#include <gtest/gtest.h>

#include "competition/abendblick.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using test::wettkampf_mit;
using test::worte;
using namen = std::vector<std::string>;

void fahren(wettkampf& w, const spuren<fahrt>& fahrten) {
    EXPECT_TRUE(w.ergebnis_eintragen(fahrten));
    w.naechstes_offenes_rennen();
}

TEST(Wettkampf, WiederholenNimmtGenauDiesesRennenZurueck) {
    std::mt19937 wuerfel(6);
    for (int art = 1; art <= wettkampf_modus_max; ++art) {
        const bool jeder = m(art) == m::jeder_gegen_jeden;
        auto w = jeder ? wettkampf_mit(m(art), 5, {2, 5}) : wettkampf_mit(m(art), 7, {1, 3, 4}, true);
        while (!w.ende_pruefen()) {
            w.rennen_waehlen(1 + static_cast<int>(wuerfel() % static_cast<unsigned>(w.rennen_gesamt())));
            const wettkampf vorher = w;
            const int rennen = w.aktuelles_rennen;
            while (w.rennen_gefahren(rennen) != rennstatus::gefahren) {
                EXPECT_TRUE(w.ergebnis_eintragen(test::zufallsfahrten(wuerfel)));
            }
            EXPECT_FALSE(w.ergebnis_eintragen({})) << "taken over once";
            wettkampf zurueck = w;
            w.naechstes_offenes_rennen();
            EXPECT_TRUE(zurueck.wiederholen(rennen));
            EXPECT_TRUE(zurueck == vorher) << "as if it had not been driven";
            EXPECT_FALSE(zurueck.wiederholen(rennen)) << "only what has been driven";
        }
        EXPECT_EQ(w.uebergabe().rennen, 0);
        EXPECT_TRUE(w.wiederholen(w.rennen_gesamt()));
        EXPECT_FALSE(w.ende_pruefen());
    }
}

TEST(Wettkampf, SummenFolgenDenSpurenUndHeats) {
    std::mt19937 wuerfel(7);
    for (int art = 1; art <= wettkampf_modus_max; ++art) {
        const bool jeder = m(art) == m::jeder_gegen_jeden;
        auto w = jeder ? wettkampf_mit(m(art), 5, {2, 5}) : wettkampf_mit(m(art), 7, {1, 3, 4}, true);
        std::vector<fahrt> summe(w.teilnehmer.size() + 1);
        zeit_ms beste = schnellste_runde::keine;
        while (!w.ende_pruefen()) {
            const renn_uebergabe dran = w.uebergabe();
            const auto fahrten = test::zufallsfahrten(wuerfel);
            for (const int spur : alle_spuren) {
                EXPECT_EQ(dran.rennen_spur_aktiv[spur], dran.spur_fahrer[spur] != 0 && !dran.fueller[spur]);
                if (dran.rennen_spur_aktiv[spur]) {
                    summe.at(static_cast<std::size_t>(dran.spur_fahrer[spur])) += fahrten[spur];
                    beste = fahrten[spur].beste == 0 ? beste : std::min(beste, fahrten[spur].beste);
                }
            }
            fahren(w, fahrten);
        }
        EXPECT_EQ(w.beste_runde().beste_runde_ms, beste);
        const auto staende = w.staende();
        for (int platz = 1; platz <= w.plaetze(); ++platz) {
            const auto& auf = staende.at(static_cast<std::size_t>(platz - 1)).auf;
            EXPECT_EQ(auf[0], summe.at(static_cast<std::size_t>(platz))) << "kind " << art << ", place " << platz;
            fahrt aller;
            std::for_each(auf.begin() + 1, auf.end(), [&](const fahrt& eine) { aller += eine; });
            EXPECT_EQ(auf[0], aller);
            EXPECT_TRUE(!jeder || w.jeder_tabelle().at(static_cast<std::size_t>(platz - 1)).heat[0] == aller);
        }
    }
}

TEST(Wettkampf, ZurueckgestellteKommenNachAllenAnderen) {
    auto w = wettkampf_mit(m::einmal, 8, {1, 2});
    EXPECT_TRUE(w.zurueckstellen(1));
    EXPECT_EQ(w.aktuelles_rennen, 2);
    EXPECT_TRUE(w.zurueckstellen(3));
    EXPECT_EQ(w.rennen_gefahren(3), rennstatus::zurueckgestellt);
    EXPECT_EQ(w.folgendes_rennen(), 4);
    fahren(w, {});
    EXPECT_EQ(w.aktuelles_rennen, 4);
    EXPECT_EQ(w.folgendes_rennen(), 1);
    fahren(w, {});
    EXPECT_EQ(w.aktuelles_rennen, 1);
    EXPECT_EQ(w.rennen_gefahren(3), rennstatus::offen) << "all that was put off is open again";
    EXPECT_TRUE(w.zurueckstellen(3) && w.zurueckstellen(1));
    EXPECT_EQ(w.aktuelles_rennen, 3) << "the one put off last comes last";
    w.rennen_waehlen(1);
    fahren(w, {});
    EXPECT_TRUE(w.zurueckstellen(3)) << "the only one left stays where it is";
    EXPECT_EQ(w.uebergabe().rennen, 3);
    fahren(w, {});
    EXPECT_FALSE(w.zurueckstellen(2) || w.zurueckstellen(0) || w.wiederholen(9) || w.rennen_waehlen(5));
    EXPECT_TRUE(w.ende_pruefen());
}

TEST(Wettkampf, HeatsBehaltenIhrenPlatz) {
    auto w = wettkampf_mit(m::jeder_gegen_jeden, 3, {2, 5});  // 1-2, 2-3, 3-1, 1-3, 2-1, 3-2
    const auto fahrten = [](int runden, zeit_ms beste) {
        return fahrt{runden, zeit_ms{1000} * runden, zentimeter{100} * runden, runden == 0 ? 0 : beste};
    };
    const auto paar = [&](int links, int rechts) {
        spuren<fahrt> neu;
        neu[2] = fahrten(links, 900);
        neu[5] = fahrten(rechts, 950);
        return neu;
    };
    w.rennen_waehlen(4);
    fahren(w, paar(7, 5));
    w.rennen_waehlen(1);
    fahren(w, paar(0, 4));
    EXPECT_EQ(w.beste_runde().beste_runde_fahrer, 1);
    EXPECT_TRUE(w.runden_aendern(4, 1, 5, 9, 12.5));
    const auto tabelle = w.jeder_tabelle();
    EXPECT_EQ(tabelle[0].jeder_runden(1), 0) << "a heat of no lap";
    EXPECT_EQ(tabelle[0].jeder_runden(3), 7) << "his third in the plan, though driven first";
    EXPECT_EQ(tabelle[2].jeder_runden(3), 9);
    EXPECT_EQ(tabelle[2].heat[0].meter, 500 + 4 * 1250);
    w.wiederholen(4);
    EXPECT_EQ(w.jeder_tabelle()[0].jeder_runden(0), 0);
    EXPECT_EQ(w.beste_runde(), (schnellste_runde{950, 2}));
}

TEST(Wettkampf, BerichtigenBewegtMeterUndSummen) {
    auto w = wettkampf_mit(m::gruppen, 5, {1, 2});
    fahren(w, {{fahrt{10, 80000, 12345, 7900}, fahrt{9, 80000, 11000, 8000}}});
    EXPECT_TRUE(w.runden_aendern(1, 1, 1, 12, 10.05));
    EXPECT_EQ(w.staende()[0].fahrer_meter(0), 12345 + 2010);
    EXPECT_TRUE(w.runden_aendern(1, 1, 2, -3, 100.0));
    EXPECT_EQ(w.staende()[1].fahrer_runden(2), 0);
    EXPECT_EQ(w.staende()[1].fahrer_meter(0), 0) << "nobody drives less than nothing";
    EXPECT_TRUE(w.meter_aendern(1, 1, 2, 3.14));
    EXPECT_EQ(w.staende()[1].fahrer_meter(2), 314);
    EXPECT_FALSE(w.runden_aendern(2, 1, 1, 5, 10)) << "not driven yet";
    EXPECT_FALSE(w.runden_aendern(1, 1, 3, 5, 10)) << "nobody there";
    w.rennen_waehlen(3);
    fahren(w, {{fahrt{1, 8000, 1000, 7000}, fahrt{9, 9, 9, 9}}});
    EXPECT_FALSE(w.meter_aendern(3, 1, 2, 5) || w.beste_runde().beste_runde_fahrer == 6) << "a filler";
}

/// A race of two laps on each of two lanes, driven on after the cars have changed lanes.
TEST(Wettkampf, TeileEinesRennensBekommenNurIhrEigenes) {
    auto w = wettkampf_mit(m::am_stueck, 2, {1, 2}, true);
    ASSERT_EQ(w.plan.teile, 2);
    rennergebnis e;
    const auto spur = [](int nummer, const std::vector<zeit_ms>& zeiten, double meter) {
        rennergebnis::spur s;
        s.nummer = nummer;
        s.meter = meter;
        for (const zeit_ms zeit : zeiten) {
            s.runden.push_back({zeit, {}, {}});
            s.gesamtzeit += s.runden.size() > 1 ? zeit : 0;
            s.beste = s.runden.size() > 1 && (s.beste == 0 || zeit < s.beste) ? zeit : s.beste;
        }
        return s;
    };
    e.spuren = {spur(1, {500, 6000, 7000}, 20.5), spur(2, {500, 8000}, 10)};
    w.ergebnis_eintragen(e, {1, 1, 1});
    EXPECT_EQ(w.rennen_gefahren(1), rennstatus::offen);
    const renn_uebergabe dran = w.uebergabe();
    EXPECT_EQ(dran.teil, 2);
    EXPECT_EQ(dran.spur_fahrer[1], 2);
    e.spuren = {spur(1, {500, 8000, 7500, 9000}, 30), spur(2, {500, 6000, 7000, 6500}, 32.25)};
    e.teil = 1;
    for (const auto& [lane, lap] : {std::pair(0, 2), {0, 3}, {1, 3}}) {
        e.spuren.at(static_cast<std::size_t>(lane)).runden.at(static_cast<std::size_t>(lap)).teil = 1;
    }
    e.spuren[0].runden[2].angefangen = true;  // was under way when the cars changed lanes
    w.ergebnis_eintragen(e, {1, 2, 2});
    EXPECT_TRUE(w.ende_pruefen());
    const auto staende = w.staende();
    EXPECT_EQ(staende[0].auf[1], (fahrt{2, 13000, 2050, 6000}));
    EXPECT_EQ(staende[0].auf[2], (fahrt{1, 6500, 1175, 6500}));
    EXPECT_EQ(staende[1].auf[1], (fahrt{2, 16500, 2000, 9000}));
    EXPECT_TRUE(w.wiederholen(1));
    EXPECT_EQ(w.fortsetzung_nummer(1), 0);
}

TEST(Wettkampf, NamenOhneKommaUndKeinerZweimal) {
    const auto mit = [](const namen& fahrer) {
        return wettkampf_beginnen({m::einmal, 0, {{true, true}}, wechsel_standard, false}, fahrer, "Pokal, 1. Lauf",
                                  worte);
    };
    auto w = mit({"An,na", "Bernd", "freitag"}).value();
    EXPECT_EQ(w.wettkampf_name, "Pokal 1. Lauf");
    EXPECT_EQ(w.teilnehmer, (namen{"Anna", "Bernd", "freitag", "frei 1"}));
    EXPECT_FALSE(mit({"Anna", "An,na"}) || mit({"Anna", " ,"}) || mit({"Anna", "frei 7"}) || mit({"Anna"}));
    EXPECT_EQ(w.name_aendern(1, " ,", worte), namensmangel::leer);
    EXPECT_EQ(w.name_aendern(1, "Ber,nd", worte), namensmangel::vergeben);
    EXPECT_EQ(w.name_aendern(1, "frei 1", worte), namensmangel::wie_fueller);
    EXPECT_EQ(w.name_aendern(4, "Dora", worte), namensmangel::kein_fahrer);
    EXPECT_EQ(w.name_aendern(1, "Anne, die", worte), namensmangel::keiner);
    EXPECT_EQ(w.uebergabe().fahrer[1], "Anne die");
}

TEST(Wettkampf, AbendAufEinenBlick) {
    auto w = wettkampf_mit(m::gruppen, 3, {1, 2});
    EXPECT_FALSE(abend_blicken(w).dauert_noch);
    fahren(w, {});
    fahren(w, {});
    w.renndauern = {60000, 90000};
    const abendblick blick = abend_blicken(w);
    EXPECT_EQ(blick.rennen, 3);
    EXPECT_EQ(blick.noch, 2);
    EXPECT_EQ(blick.dauert_noch, 150000);
    EXPECT_EQ(blick.faehrt[1], "Fahrer 2");
    EXPECT_EQ(blick.als_naechste[2], "Fahrer 3");
    EXPECT_EQ(blick.als_naechste[1], "") << "a filler need not come";
    EXPECT_EQ(blick.einsetzer, (namen{"Fahrer 3"}));
    fahren(w, {});
    EXPECT_EQ(abend_blicken(w).naechstes_rennen, 0);
    fahren(w, {});
    EXPECT_EQ(abend_blicken(w).rennen, 0);
}

}  // namespace
}  // namespace tarvel
