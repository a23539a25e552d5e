#include "competition/wettkampfdatei.h"

#include <algorithm>

#include "competition/wettkampftabelle.h"
#include "tests/programm_probe.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using zeilen = std::vector<std::string>;

zeilen geschrieben(const wettkampf& w) {
    return wettkampf_zeilen(w, trennzeichen_standard);
}

wettkampf beispiel(m art) {
    auto w = art == m::jeder_gegen_jeden ? test::wettkampf_mit(art, 4, {2, 5})
                                         : test::wettkampf_mit(art, 7, {1, 3, 4}, true);
    w.beginn = "21.11.2026";
    w.wertung = sortier_modus::beste;
    w.qualifying_an = true;
    w.zwischenstand_an = true;
    w.rennlaenge = 330000;
    w.renndauern = {412345, 398001};
    w.bilder.back() = "Käthe, neu.jpg";
    return w;
}

/// Some races driven, one of them only in part where that can be, and one put off.
wettkampf mitten_darin(m art) {
    std::mt19937 wuerfel(9);
    auto w = beispiel(art);
    for (int i = 0; i < w.plan.teile + 1; ++i) {
        w.ergebnis_eintragen(test::zufallsfahrten(wuerfel));
        w.naechstes_offenes_rennen();
    }
    w.zurueckstellen(w.rennen_gesamt());
    return w;
}

wettkampf_annahme als(m art) {
    return {test::worte, art, wechsel_standard, "Wahr"};
}

class Wettkampfdatei : public test::ProgrammProbe {};

TEST_F(Wettkampfdatei, AbendMitUndOhneUnterbrechungGehtGleichAus) {
    for (int art = 1; art <= wettkampf_modus_max; ++art) {
        SCOPED_TRACE(art);
        std::mt19937 wuerfel(static_cast<unsigned>(art));
        wettkampf durch = beispiel(m(art));
        wettkampf unterbrochen = durch;
        for (int mal = 1; !durch.ende_pruefen(); ++mal) {
            const auto fahrten = test::zufallsfahrten(wuerfel);
            for (wettkampf* w : {&durch, &unterbrochen}) {
                ASSERT_TRUE(w->ergebnis_eintragen(fahrten));
                if (mal == 3 || mal == 7) {
                    w->wiederholen(w->gefahren.front().rennen);
                    w->zurueckstellen(w->aktuelles_rennen);
                }
                w->naechstes_offenes_rennen();
            }
            const auto gelesen = wettkampf_lesen(geschrieben(unterbrochen), als(m::einmal));
            ASSERT_TRUE(gelesen);
            ASSERT_EQ(*gelesen, durch);
            unterbrochen = *gelesen;
        }
        EXPECT_EQ(geschrieben(unterbrochen), geschrieben(durch));
        EXPECT_EQ(tabelle_schreiben(unterbrochen, {}, trennzeichen_standard),
                  tabelle_schreiben(durch, {}, trennzeichen_standard));
    }
}

TEST_F(Wettkampfdatei, EineDateiMitDenEinstellungen) {
    const char* const datei = "Ergebnisse/Wettkampf/Pokal.wtk";
    const wettkampf w = mitten_darin(m::gruppen);
    t.p.form1.fahrer[0].eingeben("Käthe");
    ASSERT_TRUE(wettkampf_speichern(t.p.ablage, datei, t.p.datei, w, trennzeichen_standard));
    const std::string bytes = t.maschine.datei_lesen(datei);
    EXPECT_TRUE(bytes.starts_with("Wettkampfdatei: Pokal\r\nTarvel Version 2.23\r\n\r\n[Fahrer1]\r\n"));
    t.p.form1.fahrer[0].eingeben("Otto");
    const auto laden = [&](einstellungen_aus_datei wie) { return wettkampf_laden(t.p.datei, datei, {}, t.p.txt, wie); };
    EXPECT_EQ(laden(einstellungen_aus_datei::lassen), w);
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "Otto");
    EXPECT_EQ(laden(einstellungen_aus_datei::uebernehmen), w);
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "Käthe");
    EXPECT_TRUE(wettkampf_speichern(t.p.ablage, datei, t.p.datei, w, trennzeichen_standard));
    EXPECT_EQ(t.maschine.datei_lesen(datei), bytes) << "byte for byte";
    t.maschine.datei_schreiben(datei, bytes.substr(0, bytes.size() - 20));
    t.p.form1.fahrer[0].eingeben("Otto");
    EXPECT_FALSE(laden(einstellungen_aus_datei::uebernehmen));
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "Otto") << "a broken competition changes no setting";
    EXPECT_FALSE(wettkampf_laden(t.p.datei, "gibt es nicht", {}, t.p.txt, einstellungen_aus_datei::lassen));
}

TEST_F(Wettkampfdatei, ZeilenDesFormats) {
    auto w = test::wettkampf_mit(m::gruppen, 3, {1, 3});
    spuren<fahrt> fahrten;
    fahrten[1] = {12, 98765, 12345, 8001};
    fahrten[3] = {13, 98001, 13050, 7500};
    w.ergebnis_eintragen(fahrten);
    w.naechstes_offenes_rennen();
    const zeilen z = geschrieben(w);
    EXPECT_EQ(zeilen(z.begin(), z.begin() + 22), (zeilen{"",         "[Wettkampfparameter für Rennen]",
                                                         "Pokal",    " 2",
                                                         "Falsch",   " 2",
                                                         " 4",       " 3",
                                                         " 4",       "00:07,500",
                                                         "Fahrer 2", " 7500",
                                                         "Falsch",   "Wahr",
                                                         "Falsch",   "Wahr",
                                                         "Falsch",   "Falsch",
                                                         "Falsch",   "Falsch",
                                                         "Wahr",     " 0"}));
    const auto erste = z.begin() + 22 + 8;
    EXPECT_EQ(zeilen(erste, erste + 8),
              (zeilen{", 12, 98765, 123.45, 8001", "Fahrer 1, 12, 98765, 123.45, 8001", ", 0, 0, 0, 0",
                      "Fahrer 2, 0, 0, 0, 0", ", 0, 0, 0, 0", ", 0, 0, 0, 0", ", 0, 0, 0, 0", " 2,Fahrer 1, 1"}));
    EXPECT_EQ(zeilen(z.begin() + 22 + 808, z.begin() + 22 + 812), (zeilen{" 0", " 0", "", "Ende der Wettkampfdaten"}));
    const zeilen jeder = geschrieben(test::wettkampf_mit(m::jeder_gegen_jeden, 4, {2, 5}));
    EXPECT_EQ(zeilen(jeder.begin() + 6, jeder.begin() + 9), (zeilen{" 12", " 4", " 12"}));
    EXPECT_EQ(jeder.at(22 + 11 * 8 + 7), " 11,Fahrer 3, 0") << "the names again, up to the number of races";
    EXPECT_EQ(jeder.at(22 + 808 + 1), " 5");
    EXPECT_EQ(jeder.at(22 + 810 + 11 * 39), "");
}

TEST_F(Wettkampfdatei, DateiEinerAelterenVersion) {
    for (int art = 1; art <= wettkampf_modus_max; ++art) {
        SCOPED_TRACE(art);
        const wettkampf w = mitten_darin(m(art));
        zeilen alt = geschrieben(w);
        const auto zusatz = std::find(alt.begin(), alt.end(), "[Wettkampfzusatz 1]");
        ASSERT_NE(zusatz, alt.end());
        alt.erase(zusatz, alt.end());
        auto gelesen = wettkampf_lesen(alt, als(m(art)));
        ASSERT_TRUE(gelesen);
        EXPECT_EQ(gelesen->plan, w.plan);
        EXPECT_EQ(gelesen->zurueckgestellte, w.zurueckgestellte);
        for (std::size_t i = 0; i < w.teilnehmer.size(); ++i) {
            const fahrt ihre = gelesen->staende()[i].auf[0];
            const fahrt unsere = w.staende()[i].auf[0];
            EXPECT_EQ(ihre.runden, unsere.runden);
            EXPECT_EQ(ihre.beste, unsere.beste);
            EXPECT_NEAR(static_cast<double>(ihre.zeit), static_cast<double>(unsere.zeit), 2) << "heats share the total";
            EXPECT_NEAR(static_cast<double>(ihre.meter), static_cast<double>(unsere.meter), 2);
        }
    }
}

TEST_F(Wettkampfdatei, WasNichtGehtWirdGesagt) {
    for (const m art : {m::am_stueck, m::jeder_gegen_jeden}) {
        const wettkampf w = mitten_darin(art);
        const zeilen gut = geschrieben(w);
        for (std::size_t laenge = 0; laenge < gut.size(); laenge += 1 + laenge % 7) {
            const auto teil =
                wettkampf_lesen({gut.begin(), gut.begin() + static_cast<std::ptrdiff_t>(laenge)}, als(art));
            EXPECT_TRUE(!teil || teil->plan == w.plan) << laenge;
        }
        const auto ersetzt = [&](const std::string& was, const std::string& durch) {
            zeilen neu = gut;
            for (std::string& zeile : neu) {
                const auto stelle = zeile.find(was);
                zeile = stelle == std::string::npos ? zeile : zeile.replace(stelle, was.size(), durch);
            }
            return wettkampf_lesen(neu, als(art));
        };
        EXPECT_EQ(ersetzt("Fahrer 2", "Fah,rer 2"), w) << "the comma goes";
        EXPECT_FALSE(ersetzt("Fahrer 2", "Fahrer 1") || ersetzt("Fahrer 2", "") || ersetzt("Art, ", "Art, 9"));
        EXPECT_FALSE(ersetzt("Fahrt, 1, 1", "Fahrt, 1, 2") || ersetzt("Fahrt, 1", "Fahrt, 99"));
        EXPECT_FALSE(ersetzt("Wahr", "Falsch")) << "no lane";
        EXPECT_TRUE(ersetzt("Rennlänge", "Neues")) << "of a later version";
    }
}

}  // namespace
}  // namespace tarvel
