#include "competition/rangfolge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using zahlen = std::vector<int>;

std::vector<fahrer_stand> staende(const std::vector<fahrt>& gesamt) {
    std::vector<fahrer_stand> alle;
    for (const fahrt& eine : gesamt) {
        alle.emplace_back().auf[0] = eine;
    }
    return alle;
}

/// Smaller is better. Everybody has a time and a best lap, so that the order is one.
template <class Schluessel>
zahlen von_hand(const std::vector<fahrt>& gesamt, Schluessel schluessel) {
    zahlen liste(gesamt.size());
    for (std::size_t i = 0; i < liste.size(); ++i) {
        liste[i] = static_cast<int>(i) + 1;
    }
    std::stable_sort(liste.begin(), liste.end(), [&](int a, int b) {
        return schluessel(gesamt[static_cast<std::size_t>(a - 1)]) <
               schluessel(gesamt[static_cast<std::size_t>(b - 1)]);
    });
    return liste;
}

TEST(Rangfolge, JedeListeNachIhrenSchluesseln) {
    std::mt19937 wuerfel(8);
    const auto zahl = [&](unsigned bis) { return static_cast<int>(wuerfel() % bis); };
    for (int versuch = 0; versuch < 50; ++versuch) {
        std::vector<fahrt> g(105);
        for (fahrt& eine : g) {
            eine = {zahl(3), 1 + zahl(3), zahl(3), 1 + zahl(3)};
        }
        const ranglisten listen = rangfolge_berechnen(staende(g));
        EXPECT_EQ(listen.nach(sortier_modus::meter),
                  von_hand(g, [](const fahrt& f) { return std::tuple(-f.meter, -f.runden, f.zeit, f.beste); }));
        EXPECT_EQ(listen.nach(sortier_modus(0)),
                  von_hand(g, [](const fahrt& f) { return std::tuple(-f.runden, -f.meter, f.zeit, f.beste); }));
        EXPECT_EQ(listen.nach(sortier_modus::beste),
                  von_hand(g, [](const fahrt& f) { return std::tuple(f.beste, -f.meter, -f.runden, f.zeit); }));
    }
}

TEST(Rangfolge, WerNichtGefahrenIstUeberholtNicht) {
    const ranglisten l = rangfolge_berechnen(staende(
        {{5, 0, 900, 0}, {5, 70, 900, 0}, {5, 60, 900, 0}, {0, 0, 0, 0}, {1, 90, 100, 8000}, {9, 90, 50, 9000}}));
    EXPECT_EQ(l.rangfolge, (zahlen{1, 3, 2, 5, 6, 4}));
    EXPECT_EQ(l.rangfolge_runden, (zahlen{6, 1, 3, 2, 5, 4}));
    EXPECT_EQ(l.rangfolge_beste, (zahlen{5, 6, 1, 3, 2, 4})) << "no best lap is behind any, whatever the metres";
}

TEST(Rangfolge, ListeZeilenUndBalken) {
    auto w = test::wettkampf_mit(m::einmal, 3, {1, 2});
    w.name_aendern(1, "Käthe Meyer-Schulze", test::worte);
    w.ergebnis_eintragen({{fahrt{3, 25000, 3150, 8100}, fahrt{3, 24000, 3150, 8000}}});
    w.naechstes_offenes_rennen();
    w.ergebnis_eintragen({{fahrt{1, 9000, 1050, 7999}}});
    EXPECT_EQ(rangschreiben(w, sortier_modus::meter, trennzeichen_standard),
              (std::vector<std::string>{"1.  Fahrer 2          3     31,50    00:24,000",
                                        "2.  Käthe Meyer-Sch   3     31,50    00:25,000",
                                        "3.  Fahrer 3          1     10,50    00:09,000"}))
        << "and no filler";
    EXPECT_EQ(rangschreiben(w, sortier_modus::beste, trennzeichen_standard).front(),
              "1.  Fahrer 3          1     10,50    00:07,999");
    EXPECT_EQ(rangschreiben(w, sortier_modus::meter, trennzeichen_standard, rangspalten(w).breite).at(1),
              "2.  Käthe Meyer-Schulze   3     31,50    00:25,000");
    const auto zeilen = w_auswertung_schreiben(w, sortier_modus::runden, trennzeichen_standard);
    ASSERT_EQ(zeilen.size(), 3U);
    EXPECT_EQ(zeilen[1].name + ", " + zeilen[1].ganzer_name, "Käthe Meyer-Schulz, Käthe Meyer-Schulze");
    EXPECT_EQ(zeilen[1].platz + zeilen[1].runden + zeilen[1].meter, "2.331,50");
    EXPECT_EQ(zeilen[0].je.at(1).runden + " " + zeilen[0].je.at(1).beste, "3 00:08,000");
    EXPECT_EQ(balken(w, sortier_modus::meter).at(1).runden[1], 3);
    w.wertung = sortier_modus::beste;
    EXPECT_EQ(qualifying_uebernehmen(w), (std::vector<std::string>{"Fahrer 3", "Fahrer 2", "Käthe Meyer-Schulze"}));
    const auto jeder = test::wettkampf_mit(m::jeder_gegen_jeden, 4, {1, 2});
    EXPECT_EQ(w_auswertung_schreiben(jeder, sortier_modus::meter, trennzeichen_standard).at(0).je.size(), 6U);
}

}  // namespace
}  // namespace tarvel
