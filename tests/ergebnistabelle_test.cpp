#include "results/ergebnistabelle.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <random>

#include "competition/wettkampftabelle.h"
#include "results/ergebniskorrektur.h"
#include "results/ergebnissortierung.h"
#include "results/fahrer_addieren.h"
#include "results/fahrervergleich.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using textzeilen = std::vector<std::string>;
using test::rennen_mit;
using test::rennzeilen;
using test::tabelle_aus;
using test::tageszeilen;

textzeilen gefahrener_wettkampf(m modus, unsigned start) {
    std::mt19937 wuerfel(start);
    wettkampf w = test::wettkampf_mit(modus, 5, {2, 4});
    while (w.ergebnis_eintragen(test::zufallsfahrten(wuerfel))) {
        w.naechstes_offenes_rennen();
    }
    return tabelle_schreiben(w, {}, trennzeichen_standard);
}

/// A file of each kind as the program writes it.
std::vector<textzeilen> alle_arten(unsigned start) {
    textzeilen tag = tages_zeilen(rennen_mit({"A;Anna", "Ben", "A;Cem"}, 3 + static_cast<int>(start), "14:00:00"),
                                  trennzeichen_standard);
    return {rennzeilen(rennen_mit({"Anna", "Ben", "Cem"}, 3 + static_cast<int>(start), "14:00:00")), tageszeilen(tag),
            gefahrener_wettkampf(m::rotation, start), gefahrener_wettkampf(m::jeder_gegen_jeden, start)};
}

textzeilen texte_von(const ergebnistabelle& t) {
    textzeilen texte;
    for (const ergebniszeile& zeile : t.zeilen) {
        texte.push_back(zeile.text);
    }
    return texte;
}

struct summen {
    std::int64_t runden = 0;
    double meter = 0;
    zeit_ms zeit = 0;
};

summen summen_von(const ergebnistabelle& t) {
    summen s;
    for (std::size_t i = 0; i < t.zeilen.size(); ++i) {
        const auto eintrag = eintrag_lesen(t, i).value();
        s.runden = std::accumulate(eintrag.runden.begin(), eintrag.runden.end(), s.runden);
        s.meter = std::accumulate(eintrag.meter.begin(), eintrag.meter.end(), s.meter);
        s.zeit += eintrag.gesamtzeit;
    }
    return s;
}

TEST(Ergebnistabelle, JedeArtGehtOhneVerlustDurchTabelleUndDatei) {
    const auto zweite = alle_arten(2);
    for (std::size_t art = 0; art < zweite.size(); ++art) {
        const textzeilen datei = alle_arten(1).at(art);
        SCOPED_TRACE(datei.front());
        ergebnistabelle t = tabelle_aus(datei);
        EXPECT_EQ(t.alle_zeilen(), datei);
        EXPECT_EQ(hinzufuegen(t, tabelle_aus(zweite[art])), hinzufuegen_ergebnis::hinzugefuegt);
        const std::size_t fahrer = t.zeilen.size();
        const summen vorher = summen_von(t);
        for (const auto modus : {sortier_modus::meter, sortier_modus::runden, sortier_modus::beste}) {
            sortieren(t, modus);
            const textzeilen gespeichert = t.alle_zeilen();
            const ergebnistabelle wieder = tabelle_aus(gespeichert);
            EXPECT_EQ(wieder.alle_zeilen(), gespeichert);
            EXPECT_EQ(wieder.typ, t.typ);
        }
        gleiche_fahrer_addieren(t, true);
        EXPECT_EQ(t.zeilen.size(), fahrer / 2);
        const summen nachher = summen_von(t);
        EXPECT_EQ(nachher.runden, vorher.runden);
        EXPECT_NEAR(nachher.meter, vorher.meter, 0.001);
        EXPECT_EQ(nachher.zeit, vorher.zeit);
        EXPECT_EQ(tabelle_aus(t.alle_zeilen()).alle_zeilen(), t.alle_zeilen());
    }
}

TEST(Ergebnistabelle, AndereArtUndUnbrauchbaresLassenDieTabelleWieSieIst) {
    const auto arten = alle_arten(1);
    for (std::size_t art = 0; art < arten.size(); ++art) {
        ergebnistabelle t = tabelle_aus(arten[art]);
        EXPECT_EQ(hinzufuegen(t, tabelle_aus(arten[(art + 1) % arten.size()])), hinzufuegen_ergebnis::anderer_typ);
        EXPECT_EQ(t.alle_zeilen(), arten[art]);
        textzeilen abgeschnitten = arten[art];
        abgeschnitten.pop_back();
        const auto rest = ergebnistabelle_lesen(abgeschnitten, trennzeichen_standard);
        EXPECT_EQ(rest.has_value(), arten[art].front() == magie_tagesrennen) << "a day race has no end of its own";
    }
    for (const textzeilen& vorne : arten) {
        for (const textzeilen& hinten : arten) {
            textzeilen beide = vorne;
            beide.insert(beide.end(), hinten.begin(), hinten.end());
            EXPECT_EQ(ergebnistabelle_lesen(beide, trennzeichen_standard).has_value(),
                      vorne.front() == magie_tagesrennen && vorne == hinten);
        }
    }
    textzeilen mit_kopf = arten[2];
    mit_kopf.insert(mit_kopf.begin() + 3, mit_kopf[1]);
    EXPECT_FALSE(tabelle_aus(mit_kopf).zeilen[1].ergebnis) << "a second head is no driver";
    textzeilen gemischt = arten[0];
    gemischt[12] += "mehr als die Spuren;";
    EXPECT_FALSE(ergebnistabelle_lesen(gemischt, trennzeichen_standard));
    EXPECT_FALSE(ergebnistabelle_lesen({"\x01\x02", ""}, trennzeichen_standard));
}

TEST(Ergebnistabelle, AddierteRennenBleibenEinzelnLesbar) {
    const std::vector<std::string> sechs{"Anna", "Ben", "Cem", "Dora", "Emil", "Fee"};
    ergebnistabelle t = tabelle_aus(rennzeilen(rennen_mit(sechs, 4, "14:00:00")));
    for (const char* uhrzeit : {"14:30:00", "14:30:00"}) {
        hinzufuegen(t, tabelle_aus(rennzeilen(rennen_mit(sechs, 6, uhrzeit))));
    }
    sortieren(t, sortier_modus::beste);
    t = tabelle_aus(t.alle_zeilen());
    ASSERT_EQ(t.zeilen.size(), 18U);
    ASSERT_EQ(t.rennen.size(), 3U) << "the same race once more is another one";
    int runden = 0;
    for (std::size_t rennen = 0; rennen < 3; ++rennen) {
        const auto eines = rennen_von(t, rennen, sortier_modus::runden).value();
        ASSERT_EQ(eines.spuren.size(), 6U);
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_EQ(eines.spuren[i].fahrer, sechs[i]);
            EXPECT_EQ(eines.spuren[i].platz, static_cast<int>(i) + 1);
            EXPECT_EQ(static_cast<int>(eines.spuren[i].runden.size()), eines.rundenzeilen);
        }
        EXPECT_EQ(eines.uhrzeit, eines.spuren[0].rundenzahl() == 4 ? "14:00:00" : "14:30:00");
        runden += eines.spuren[0].rundenzahl();
    }
    EXPECT_EQ(runden, 4 + 6 + 6);
    EXPECT_FALSE(rennen_von(t, 3, sortier_modus::runden));
}

TEST(Ergebnistabelle, SortiertNachWertenUndJedeKlasseFuerSich) {
    ergebnistabelle t = tabelle_aus(tageszeilen({
        "B;Null; 0;0.00;00:06,000;00:00,000",
        "B;Eine; 1;10.00;00:09,000;00:09,000",
        "A;Lang; 100;1000.00;00:08,000;1:00:00,000",
        "",
        "A;Kurz; 100;1000.00;00:08,500;59:00,000",
        "A;Weit; 99;1000.50;00:07,900;58:00,000",
    }));
    const auto namen = [&t] {
        std::string alle;
        for (const ergebniszeile& zeile : t.zeilen) {
            alle += zeile.text.empty() ? "|" : zeile.text.substr(2, 1) + std::to_string(zeile.platz);
        }
        return alle;
    };
    sortieren(t, sortier_modus::runden);
    EXPECT_EQ(namen(), "K1L2W3|E1N2") << "an hour more comes behind; other lines keep their place";
    sortieren(t, sortier_modus::meter);
    EXPECT_EQ(namen(), "W1K2L3|E1N2");
    sortieren(t, sortier_modus::beste);
    EXPECT_EQ(namen(), "W1L2K3|E1N2") << "no best lap comes last";
    EXPECT_EQ(t.zeilen[0].text, "A;Weit; 99;1000.50;00:07,900;58:00,000") << "a place never becomes a class";
    EXPECT_EQ(klassen_von(t), (textzeilen{"A", "B"}));
}

TEST(Ergebnistabelle, WettkampfNachDerSchnellstenSpurUndMitNeuenPlaetzen) {
    const std::string spuren = ";2;1;1;0;0;0;0;20;10;10;0;0;0;0;";
    ergebnistabelle t = tabelle_aus({"Pokal", "Nr", "1;Anna" + spuren + "00:09,000;00:08,000;;;;;00:17,000",
                                     "2;Ben" + spuren + "00:00,000;00:07,900;;;;;00:17,500",
                                     "3;Cem" + spuren + ";;;;;;00:16,000", "TV-WKD"});
    sortieren(t, sortier_modus::beste);
    EXPECT_TRUE(t.zeilen[0].text.starts_with("1.;Ben;")) << t.zeilen[0].text;
    EXPECT_TRUE(t.zeilen[1].text.starts_with("2.;Anna;")) << t.zeilen[1].text;
    EXPECT_TRUE(t.zeilen[2].text.starts_with("3.;Cem;")) << t.zeilen[2].text;
}

TEST(Ergebnistabelle, AddiertGleicheFahrer) {
    ergebnistabelle t =
        tabelle_aus(tageszeilen({"A;Anna; 7;70.25;00:08,000;59:30,000", "B;Anna; 95;950.50;00:07,500;59:45,250",
                                 "A;Anna; 0;0.00;00:00,000;00:00,000"}));
    ergebnistabelle nach_klassen = t;
    gleiche_fahrer_addieren(nach_klassen, true);
    EXPECT_EQ(texte_von(nach_klassen),
              (textzeilen{"A;Anna; 7;70.25;00:08,000;59:30,000", "B;Anna; 95;950.50;00:07,500;59:45,250"}));
    gleiche_fahrer_addieren(t, false);
    EXPECT_EQ(texte_von(t), textzeilen{"A;Anna; 102;1020.75;00:07,500;1:59:15,250"}) << "with its hours";
    const textzeilen vorher = t.alle_zeilen();
    gleiche_fahrer_addieren(t, false);
    EXPECT_EQ(t.alle_zeilen(), vorher);

    ergebnistabelle jeder =
        tabelle_aus({"Pokal", "Nr;Name", "1.;Anna; 9; 9;00:08,000;01:12,000", "1.;Anna;991;991;00:07,000;01:13,000",
                     "1.;Anna; 9; 4; 5;00:08,000;00:07,000;01:12,000", "TV-JJ2-WKD"});
    gleiche_fahrer_addieren(jeder, true);
    EXPECT_EQ(texte_von(jeder),
              (textzeilen{"1.;Anna;1000;1000;00:07,000;02:25,000", "1.;Anna; 9; 4; 5;00:08,000;00:07,000;01:12,000"}))
        << "other columns are other heats";
}

TEST(Ergebnistabelle, RundenAddierterRennenFolgenEinander) {
    ergebnistabelle t = tabelle_aus(rennzeilen(rennen_mit({"Anna", "Ben"}, 2, "14:00:00")));
    hinzufuegen(t, tabelle_aus(rennzeilen(rennen_mit({"Ben", "Anna"}, 3, "15:00:00"))));
    gleiche_fahrer_addieren(t, false);
    const auto gelesen = einzelrennen_lesen(t.alle_zeilen());
    ASSERT_TRUE(gelesen);
    const rennergebnis::spur& anna = gelesen->ergebnis.spuren.at(0);
    EXPECT_EQ(anna.rundenzahl(), 5);
    EXPECT_EQ(anna.runden.back().zeit, 8200);
    EXPECT_EQ(anna.meter, 50);
    EXPECT_EQ(anna.beste, 8100);
    EXPECT_EQ(anna.gesamtzeit, 2 * 8100 + 3 * 8200);
    EXPECT_FALSE(rennen_von(t, 0, sortier_modus::runden)) << "no race any more";
}

TEST(Ergebnistabelle, UeberEineStundeKommtAusDenRundenZurueck) {
    constexpr int runden = 555;
    constexpr zeit_ms dauer = zeit_ms{runden} * 8100;
    const auto datei = rennzeilen(rennen_mit({"Anna"}, runden, "14:00:00"));
    EXPECT_EQ(einzelrennen_lesen(datei)->ergebnis.spuren.at(0).gesamtzeit, dauer);
    ergebnistabelle t = tabelle_aus(datei);
    auto eintrag = eintrag_lesen(t, 0).value();
    EXPECT_EQ(eintrag.gesamtzeit, dauer);
    eintrag.gesamtzeit -= 3600000;
    eintrag_schreiben(t, 0, eintrag);
    EXPECT_EQ(eintrag_lesen(t, 0), eintrag) << "a correction is no lost hour";
    EXPECT_EQ(rennen_von(t, 0, sortier_modus::runden)->spuren.at(0).gesamtzeit, eintrag.gesamtzeit);
    hinzufuegen(t, tabelle_aus(datei));
    hinzufuegen(t, tabelle_aus(datei));
    gleiche_fahrer_addieren(t, false);
    EXPECT_EQ(einzelrennen_lesen(t.alle_zeilen())->ergebnis.spuren.at(0).gesamtzeit, 3 * dauer - 3600000);
}

TEST(Ergebnistabelle, KorrekturAendertNurWasAndersIst) {
    for (const textzeilen& datei : alle_arten(1)) {
        SCOPED_TRACE(datei.front());
        ergebnistabelle t = tabelle_aus(datei);
        auto eintrag = eintrag_lesen(t, 1).value();
        eintrag_schreiben(t, 1, eintrag);
        EXPECT_EQ(t.alle_zeilen(), datei);
        const auto felder = felder_teilen(t.zeilen[1].text, ";");
        eintrag.runden[0] += 5;
        eintrag.name = "Ben; der Neue";
        eintrag_schreiben(t, 1, eintrag);
        auto neue = felder_teilen(t.zeilen[1].text, ";");
        const auto spalten = *spalten_von(t.typ, neue.size());
        EXPECT_EQ(neue.at(spalten.name), "Ben  der Neue");
        EXPECT_EQ(ergebnisrunden_lesen(neue.at(spalten.runden.ab)), eintrag.runden[0]);
        if (t.typ == ergebnis_typ::einzelrennen) {  // its lane's own block too
            const rennblock& block = t.zeilen[1].block;
            EXPECT_EQ(blockfeld(block, blockreihe::fahrer, 0, ";"), neue.at(spalten.name));
            EXPECT_EQ(blockfeld(block, blockreihe::rundenzahl, 1, ";"), neue.at(spalten.runden.ab));
        }
        neue[spalten.name] = felder[spalten.name];
        neue[spalten.runden.ab] = felder[spalten.runden.ab];
        EXPECT_EQ(neue, felder);
        if (const auto rennen = rennen_von(t, 0, sortier_modus::runden)) {
            EXPECT_EQ(rennen->spuren.at(1).rundenzahl(), eintrag.runden[0]);
            EXPECT_EQ(rennen->spuren.at(1).platz, 1);
        }
    }
}

TEST(Ergebnistabelle, JenseitsDerGrenzeIstGekuerzt) {
    textzeilen viele(10000, "A;Anna; 7;70.25;00:08,000;00:56,000");
    viele.pop_back();
    ergebnistabelle voll = tabelle_aus(tageszeilen(viele));
    EXPECT_FALSE(voll.gekuerzt);
    EXPECT_EQ(hinzufuegen(voll, tabelle_aus(tageszeilen({viele[0]}))), hinzufuegen_ergebnis::zu_viele_zeilen);
    EXPECT_EQ(voll.umfang(), 10000U);
    viele.push_back(viele[0]);
    const ergebnistabelle mehr = tabelle_aus(tageszeilen(viele));
    EXPECT_TRUE(mehr.gekuerzt);
    EXPECT_EQ(mehr.alle_zeilen(), voll.alle_zeilen());
    const ergebnistabelle lang = tabelle_aus(rennzeilen(rennen_mit({"Anna"}, 9999, "14:00:00")));
    EXPECT_TRUE(lang.gekuerzt);
    EXPECT_EQ(lang.alle_zeilen().size(), 10000U);
    EXPECT_EQ(eintrag_lesen(lang, 0)->runden.at(0), 9999);
    ergebnistabelle summe = tabelle_aus(rennzeilen(rennen_mit({"Anna", "Anna"}, 4990, "14:00:00")));
    gleiche_fahrer_addieren(summe, false);
    EXPECT_TRUE(summe.gekuerzt) << "laps that have no line of their own";
    summe = tabelle_aus(rennzeilen(rennen_mit({"Anna", "Anna"}, 4950, "14:00:00")));
    gleiche_fahrer_addieren(summe, false);
    EXPECT_FALSE(summe.gekuerzt);
}

TEST(Ergebnistabelle, AndereTrennzeichen) {
    const trennzeichen_tabelle andere{".", "'", "|"};
    const auto datei = einzelrennen_zeilen(rennen_mit({"Anna", "Ben"}, 3, "14:00:00"), test::rennworte, andere);
    ergebnistabelle t = ergebnistabelle_lesen(datei, andere).value();
    EXPECT_EQ(t.alle_zeilen(), datei);
    hinzufuegen(t, t);
    gleiche_fahrer_addieren(t, false);
    EXPECT_TRUE(t.zeilen[0].text.starts_with("Anna| 6|60.00|00.08'100|00.48'600|")) << t.zeilen[0].text;
    EXPECT_FALSE(ergebnistabelle_lesen(datei, trennzeichen_standard)) << "its lanes cannot be told apart";
    EXPECT_FALSE(ergebnistabelle_lesen(tageszeilen({"A|Anna| 7|70.25|00:08,000|00:58,000"}), trennzeichen_standard));
    EXPECT_TRUE(ergebnistabelle_lesen(tageszeilen({}), trennzeichen_standard)) << "nobody has driven yet";
    for (const char* trenner : {",", ".", ":", ""}) {
        for (const textzeilen& mit_semikolon : alle_arten(1)) {
            EXPECT_FALSE(ergebnistabelle_lesen(mit_semikolon, {":", ".", trenner})) << trenner << mit_semikolon.front();
        }
    }
}

TEST(Fahrervergleich, MisstWieGleichmaessigGefahrenWird) {
    rennergebnis e = rennen_mit({"Anna", "Ben"}, 5, "14:00:00");
    const std::vector<zeit_ms> zeiten{99999, 8000, 9000, 8200, 60000, 8400};
    for (std::size_t i = 0; i < zeiten.size(); ++i) {
        e.spuren[0].runden[i].zeit = zeiten[i];
    }
    const auto vergleich = fahrervergleich(tabelle_aus(rennzeilen(e)));
    ASSERT_EQ(vergleich.size(), 2U);
    EXPECT_EQ(vergleich[0].name, "Ben");
    EXPECT_EQ(vergleich[0].streuung(), 0);
    EXPECT_EQ(vergleich[1], (fahrerstreuung{"Anna", 5, 8000, 8200, 8400, 9000, 9000}));
    e = rennen_mit({"Anna"}, 4, "14:00:00");
    for (std::size_t i = 1; i < 5; ++i) {
        e.spuren[0].runden[i].zeit = 8000 + 100 * static_cast<zeit_ms>(i * i);
    }
    EXPECT_EQ(fahrervergleich(tabelle_aus(rennzeilen(e))).at(0),
              (fahrerstreuung{"Anna", 4, 8100, 8325, 8650, 9075, 9600}))
        << "between two times";
    for (const textzeilen& datei : alle_arten(1)) {
        EXPECT_FALSE(fahrervergleich(tabelle_aus(datei)).empty()) << datei.front();
    }
}

}  // namespace
}  // namespace tarvel
