#include "results/rundenverlauf.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "race/rundenspeicher.h"

namespace tarvel {
namespace {

spur_verlauf lauf(int spur, const std::vector<zeit_ms>& zeiten) {
    spur_verlauf ergebnis{spur, "Fahrer", false, {}, 0};
    for (const zeit_ms zeit : zeiten) {
        ergebnis.runden.push_back({static_cast<int>(ergebnis.runden.size()) + 1, zeit, 0});
    }
    return ergebnis;
}

TEST(Rundenverlauf, LiestDieRundenDerGefahrenenSpuren) {
    rennergebnis ergebnis;
    for (const int spur : {1, 2, 3, 4, 5}) {
        rennergebnis::spur s;
        s.nummer = spur;
        s.runden = {{900, {}, {}}, {8000, {}, {}}, {7500, {}, 31000}, {7500, {}, 0}};  // row 0 only starts the count
        s.beste = 7500;
        ergebnis.spuren.push_back(s);
    }
    ergebnis.spuren[0].fahrer = "Anna";
    ergebnis.spuren[1].disqualifiziert = true;
    ergebnis.spuren[2].runden.clear();
    ergebnis.spuren[3].beste = 7000;  // that lap was taken off

    const rundenverlauf verlauf = rundenverlauf_bilden(ergebnis);
    ASSERT_EQ(verlauf.size(), 5U);
    EXPECT_EQ(verlauf[0].fahrer, "Anna");
    EXPECT_EQ(verlauf[0].runden, (std::vector<verlaufsrunde>{{1, 8000, 0}, {2, 7500, 31000}, {3, 7500, 0}}));
    EXPECT_EQ(verlauf[0].beste, 2) << "who drives it first has it";
    EXPECT_TRUE(verlauf[1].disqualifiziert);
    EXPECT_TRUE(verlauf[1].runden.empty());
    EXPECT_TRUE(verlauf[2].runden.empty());
    EXPECT_EQ(verlauf[3].beste, 0);
    EXPECT_EQ(verlauf[4].spur, 5);
    EXPECT_EQ(letzte_runde(verlauf), 3);
    EXPECT_EQ(letzte_runde({}), 0);
}

TEST(Rundenverlauf, EinAutoNebenDerBahnDruecktDieAnderenNichtFlach) {
    const auto bis = [](const rundenverlauf& verlauf) { return uebliche_zeiten(verlauf).bis; };
    EXPECT_EQ(bis({lauf(1, {8000, 8100, 8200, 62000, 8300}), lauf(2, {9000, 9100, 9000})}), 9100);
    EXPECT_EQ(bis({lauf(1, {8000, 8100, 8050}), lauf(2, {25000, 26000, 24000, 27000})}), 27000) << "a slow driver";
    EXPECT_EQ(bis({lauf(1, {8000, 8100, 12000, 15000, 8300, 8100})}), 15000) << "there is room for it";
    EXPECT_EQ(bis({lauf(1, {8000}), lauf(2, {8100}), lauf(3, {62000})}), 8100) << "before any lane has a usual time";
    EXPECT_EQ(bis({lauf(1, {62000})}), 62000);
    EXPECT_EQ(bis({lauf(1, {})}), 0);
    EXPECT_EQ(uebliche_zeiten({lauf(1, {8000, 8100, 7900}), lauf(2, {})}).von, 7900);
    spur_verlauf geteilt = lauf(1, {8000, 8100, 3950, 3950});
    for (const std::size_t i : {2U, 3U}) {
        geteilt.runden[i].nachgetragen = true;
    }
    EXPECT_EQ(uebliche_zeiten({geteilt}).von, 8000) << "nobody has driven the halves of a lap";
    geteilt.runden.erase(geteilt.runden.begin(), geteilt.runden.begin() + 2);
    EXPECT_EQ(uebliche_zeiten({geteilt}).bis, 3950) << "there are no others";
}

TEST(Rundenverlauf, AusgeduenntBleibtDerUmriss) {
    std::vector<zeit_ms> zeiten(runden_max, 8000);
    zeiten[4321] = 7000;
    zeiten[4322] = 60000;
    zeiten.back() = 9000;
    const std::vector<verlaufsrunde> runden = ausgeduennt(lauf(1, zeiten).runden, 1000);
    EXPECT_LE(runden.size(), 1000U);
    EXPECT_GT(runden.size(), 400U);
    EXPECT_TRUE(std::is_sorted(runden.begin(), runden.end(), [](auto a, auto b) { return a.runde < b.runde; }));
    for (const verlaufsrunde& ecke : {verlaufsrunde{4322, 7000, 0}, {4323, 60000, 0}, {runden_max, 9000, 0}}) {
        EXPECT_EQ(std::count(runden.begin(), runden.end(), ecke), 1) << ecke.runde;
    }
    EXPECT_EQ(ausgeduennt(lauf(1, {1, 2, 3}).runden, 3).size(), 3U);
    EXPECT_TRUE(ausgeduennt({}, 0).empty());
}

}  // namespace
}  // namespace tarvel
