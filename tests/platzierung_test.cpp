#include "results/platzierung.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvel {
namespace {

constexpr platz_werte inaktiv{false, -2, -100.0, 999999999, 999999};

std::vector<int> folge(const spuren<platz_werte>& werte, sortier_modus modus) {
    const spuren<int> rang = rang_folge_bilden(werte, modus);
    return {rang.begin(), rang.end()};
}

TEST(Platzierung, RundenVorZeitVorBesterRunde) {
    const spuren<platz_werte> werte{{{{true, 5, 0, 50000, 9000},
                                      {true, 6, 0, 70000, 9500},
                                      {true, 5, 0, 49000, 9900},
                                      {true, 5, 0, 50000, 8000},
                                      {true, 0, 0, 0, 0},
                                      {true, 6, 0, 70000, 9400}}}};
    EXPECT_EQ(folge(werte, sortier_modus::runden), (std::vector<int>{6, 2, 3, 4, 1, 5}));
}

TEST(Platzierung, MeterUndBesteRunde) {
    const spuren<platz_werte> werte{{{{true, 5, 125.5, 50000, 9000},
                                      {true, 5, 130.0, 60000, 9500},
                                      {true, 0, 0, 0, 0},
                                      {true, 7, 130.0, 55000, 9000},
                                      inaktiv,
                                      inaktiv}}};
    const auto erste_vier = [&](sortier_modus modus) {
        auto rang = folge(werte, modus);
        rang.resize(4);
        return rang;
    };
    EXPECT_EQ(erste_vier(sortier_modus::meter), (std::vector<int>{4, 2, 1, 3}));
    EXPECT_EQ(erste_vier(sortier_modus::beste), (std::vector<int>{3, 4, 1, 2}))
        << "a lane without a lap has the best lap 0 and comes first";
}

TEST(Platzierung, InaktiveSpurenStehenHintenUndTauschenEinenGleichstand) {
    const platz_werte gut{true, 4, 0, 40000, 9000};
    const platz_werte ohne_runde{true, 0, 0, 0, 0};
    const auto erste_zwei = [](const spuren<platz_werte>& werte) {
        const auto rang = folge(werte, sortier_modus::runden);
        return std::vector<int>{rang[0], rang[1]};
    };
    EXPECT_EQ(erste_zwei({{{inaktiv, ohne_runde, inaktiv, inaktiv, gut, inaktiv}}}), (std::vector<int>{5, 2}));
    EXPECT_EQ(erste_zwei({{{gut, gut, gut, inaktiv, inaktiv, inaktiv}}})[0], 1) << "the lane order holds";
    // Lanes 2 and 3 are equal in all keys. Lane 1 is not in the race, so the pair at place 1 is exchanged once more.
    EXPECT_EQ(erste_zwei({{{inaktiv, gut, gut, inaktiv, inaktiv, inaktiv}}}), (std::vector<int>{3, 2}));
}

TEST(Platzierung, UnbekannterModusHeisstRunden) {
    EXPECT_EQ(sortier_modus_von(0), sortier_modus::runden);
    EXPECT_EQ(sortier_modus_von(4), sortier_modus::runden);
    EXPECT_EQ(sortier_modus_von(3), sortier_modus::beste);
}

}  // namespace
}  // namespace tarvel
