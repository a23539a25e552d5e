#include "competition/wettkampfabend.h"

#include "competition/rangfolge.h"
#include "competition/wettkampf1.h"
#include "competition/wettkampf2.h"
#include "competition/wettkampfdatei.h"
#include "competition/wettkampfspeicher.h"
#include "competition/wettkampftabelle.h"
#include "core/protokollordner.h"
#include "results/ergebnisdatei.h"
#include "results/rundenspeichern.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

using Wettkampfabend = test::Abendprobe;

TEST_F(Wettkampfabend, JederFaehrtJedeSpurUndAlleRundenStehenInDerTabelle) {
    t.p.einst.w_speichern = true;
    beginnen(wettkampf_modus::rotation, 5, {1, 2, 4});
    for (int rennen = 1; rennen <= 5; ++rennen) {
        ASSERT_EQ(abend.stand().aktuelles_rennen, rennen);
        rennen_fahren();
        EXPECT_TRUE(offen(fenstername::bahn1) == false);
        EXPECT_EQ(t.p.ablage.auflisten("Ergebnisse\\Wettkampf-Zwischenstand", "", ".wta").size(),
                  static_cast<std::size_t>(rennen));
    }
    EXPECT_TRUE(abend.stand().ende_pruefen());
    EXPECT_FALSE(abend.rennen_starten());
    for (const fahrer_stand& fahrer : abend.stand().staende()) {
        EXPECT_EQ(fahrer.fahrer_runden(0), 9);
        EXPECT_EQ(fahrer.fahrer_runden(3), 0);
        EXPECT_EQ(fahrer.fahrer_meter(0), 9 * 2500);
    }
}

TEST_F(Wettkampfabend, CentermodeFaehrtAlleTeileInEinemRennenUndBuchtJedenFuerSich) {
    t.p.einst.aut_speichern = true;
    beginnen(wettkampf_modus::am_stueck, 3, {1, 3, 4}, true);
    ASSERT_EQ(abend.stand().plan.teile, 3);
    const startfeld erstes = abend.stand().plan.feld(1, 1);
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    for (int teil = 1; teil <= 3; ++teil) {
        for (const int spur : {1, 3, 4}) {
            EXPECT_EQ(t.p.param.fahrer_name[spur], abend.stand().name(abend.stand().plan.feld(1, teil)[spur]));
        }
        runden_fahren(teil == 1 ? 3 : 2);  // a continued lap goes on
        ASSERT_TRUE(offen(fenstername::auswertung));
        EXPECT_EQ(t.p.auswertung.Command5.text(), "Weiter");
        EXPECT_TRUE(t.p.auswertung.kopf_label.text().starts_with("Wettkampf " + abend.stand().wettkampf_name +
                                                                 ", Rennen 1  ·  "));
        t.p.auswertung.Command5.klicken();
        EXPECT_EQ(abend.stand().fortsetzung_nummer(1), teil);
        const std::string ende = teil < 3 ? "-Rennen1-Teil" + std::to_string(teil) + ".csv" : "-Rennen1.csv";
        EXPECT_EQ(t.p.ablage.auflisten("Ergebnisse\\Wettkampf", "Vereinsabend-", ende).size(), 1U) << ende;
        if (teil < 3) {
            gruen();
        }
    }
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_TRUE(abend.stand().ende_pruefen());
    for (const int spur : {1, 3, 4}) {
        const fahrer_stand fahrer = abend.stand().staende().at(static_cast<std::size_t>(erstes[spur] - 1));
        EXPECT_EQ(fahrer.fahrer_runden(0), 9);
        for (const int auf : {1, 3, 4}) {
            EXPECT_EQ(fahrer.fahrer_runden(auf), 3);
        }
    }
}

TEST_F(Wettkampfabend, EineRundeVonDerVorigenSpurIstNichtDieBesteDerNeuen) {
    beginnen(wettkampf_modus::am_stueck, 2, {1, 2}, true);
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    const auto ueberfahrten = [&](std::initializer_list<zeit_ms> abstaende) {
        for (const zeit_ms abstand : abstaende) {
            t.maschine.laufen(abstand);
            t.taste("1");
            t.maschine.laufen(100);
            t.taste("2");
        }
        t.maschine.laufen(3000);
    };
    ueberfahrten({5400, 7900, 6900});
    t.rennende();  // while all are on their way
    t.p.auswertung.Command5.klicken();
    gruen();
    ueberfahrten({3500, 8900, 8400});
    for (const int spur : {1, 2}) {
        EXPECT_LT(rundenzeit(spur, 3), 6900) << "the shortest lap of all";
    }
    t.p.auswertung.Command5.klicken();
    ASSERT_TRUE(abend.stand().ende_pruefen());
    for (const int spur : {1, 2}) {
        EXPECT_EQ((*abend.stand().ergebnis(1, 1))[spur].beste / 100, 70);
        EXPECT_EQ((*abend.stand().ergebnis(1, 2))[spur].runden, 3);
        EXPECT_EQ((*abend.stand().ergebnis(1, 2))[spur].beste / 100, 85);
    }
    EXPECT_EQ(abend.stand().beste_runde().beste_runde_ms / 100, 70);
}

TEST_F(Wettkampfabend, FreieSpurFaehrtNichtMitUndZeigtSichNurWennErwuenscht) {
    for (const bool ausblenden : {false, true}) {
        t.p.einst.freie_slots = ausblenden;
        t.p.einst.rennbild.nach_platz = true;
        beginnen(wettkampf_modus::gruppen, 3, {1, 2});
        int mit_freiem = 0;
        for (int rennen = 1; rennen <= 4; ++rennen) {
            ASSERT_TRUE(abend.rennen_starten());
            const renn_uebergabe dran = abend.stand().uebergabe();
            const bool allein = dran.fueller[1] || dran.fueller[2];
            EXPECT_EQ(t.bahn().ansicht.inhalt().art,
                      allein && ausblenden ? ansicht_art::einfahrer : ansicht_art::spalten);
            const spuren<int> ordnung = t.p.rennen.lage.ordnung();
            EXPECT_EQ(ordnung[1] < ordnung[2], !dran.fueller[1]) << "the empty lane comes last";
            for (const int spur : {1, 2}) {
                mit_freiem += dran.fueller[spur] ? 1 : 0;
                EXPECT_EQ(t.p.param.spur_aktiv[spur], !dran.fueller[spur]);
                EXPECT_EQ(t.bahn().ansicht.inhalt().spur_aktiv[spur], !dran.fueller[spur] || !ausblenden);
            }
            t.bahn().Command1.klicken();
            runden_fahren(3);
            t.p.auswertung.Command5.klicken();
        }
        EXPECT_EQ(mit_freiem, 2);
        EXPECT_TRUE(abend.stand().ende_pruefen());
    }
}

TEST_F(Wettkampfabend, InEinerAnderenSpracheKenntErSeineFreienPlaetzeWeiter) {
    std::filesystem::copy(std::filesystem::path(TARVEL_QUELLEN) / "data/language-en",
                          t.maschine.ordner() / "language-en");
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;  // not those of the table before
    t.maschine.antwort = true;
    const auto hinaus = [this] {
        t.p.fenster.zeigen(fenstername::wettkampf2);
        t.p.wettkampf2.Command5.klicken();
        t.p.form1.wettkampf_laeuft(false);
    };
    for (const bool englisch : {false, true}) {
        const auto sprechen = [this](bool jetzt_englisch) {
            t.erscheinen({jetzt_englisch ? "language-en" : "language", aussehen::hell});
            EXPECT_EQ(t.p.txt.frei_text, jetzt_englisch ? "free" : "frei");
        };
        sprechen(englisch);
        planvorgabe vorgabe{wettkampf_modus::gruppen, 0, {}, wechsel_standard, false};
        vorgabe.aktiv[1] = vorgabe.aktiv[2] = true;
        abend.beginnen(
            wettkampf_beginnen(vorgabe, std::vector<std::string>{"Anna", "Ben", "Carl"}, "", t.p.txt).value());
        EXPECT_EQ(abend.stand().teilnehmer.back(), englisch ? "free 1" : "frei 1");
        rennen_fahren();
        hinaus();
        sprechen(!englisch);
        auto weiter = wettkampf_laden(t.p.datei, laufender_wettkampf, {}, t.p.txt, einstellungen_aus_datei::lassen);
        ASSERT_TRUE(weiter);
        abend.beginnen(std::move(*weiter));
        while (!abend.stand().ende_pruefen()) {
            rennen_fahren();
        }
        const wettkampf& w = abend.stand();
        auto alt = wettkampf_zeilen(w, t.p.einst.trennzeichen);  // an old file tells them by their names alone
        alt.erase(std::find(alt.begin(), alt.end(), "[Wettkampfzusatz 1]"), alt.end());
        const auto gelesen = wettkampf_lesen(alt, {t.p.txt, w.modus, wechsel_standard, "Wahr"});
        ASSERT_TRUE(gelesen);
        EXPECT_EQ(gelesen->plan, w.plan);
        for (const wettkampf* einer : {&w, &*gelesen}) {
            EXPECT_EQ(einer->staende().back().fahrer_runden(0), 0);
            EXPECT_EQ(fahrer_in_rangfolge(*einer, sortier_modus::runden).size(), 3U);
        }
        EXPECT_EQ(name_pruefen(w.teilnehmer.back(), t.p.txt), namensmangel::wie_fueller);
        hinaus();
    }
}

TEST_F(Wettkampfabend, GesichertWirdNachDemRennenUndNieDarin) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    ASSERT_TRUE(abend.rennen_starten());
    ASSERT_TRUE(t.p.ablage.loeschen(laufender_wettkampf));
    t.bahn().Command1.klicken();
    runden_fahren(3);
    EXPECT_FALSE(t.p.ablage.gibt_es(laufender_wettkampf)) << "no tick waits for the disk";
    t.p.auswertung.Command5.klicken();
    EXPECT_TRUE(t.p.ablage.gibt_es(laufender_wettkampf));
}

TEST_F(Wettkampfabend, WiederholenUndAbbrechenBuchenNichts) {
    beginnen(wettkampf_modus::rotation, 4, {1, 2});
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    runden_fahren(3);
    t.p.auswertung.Command1.klicken();
    EXPECT_TRUE(abend.stand().gefahren.empty());
    ASSERT_TRUE(offen(fenstername::bahn1));
    t.bahn().Command1.klicken();
    t.maschine.laufen(1000);
    t.rennabbruch();
    EXPECT_FALSE(offen(fenstername::bahn1));
    EXPECT_TRUE(abend.stand().gefahren.empty());
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;  // from the start
    rennen_fahren();
    EXPECT_EQ(abend.stand().gefahren.size(), 1U);
    EXPECT_EQ(abend.stand().aktuelles_rennen, 2);
}

TEST_F(Wettkampfabend, EinVorzeitigBeendeterTeilMachtDenNaechstenNichtLaenger) {
    beginnen(wettkampf_modus::am_stueck, 2, {1, 2}, true);
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    runden_fahren(1);
    t.rennende();
    t.p.auswertung.Command5.klicken();
    EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(1 + 3));
}

TEST_F(Wettkampfabend, EineTabelleDieNichtGeschriebenWirdLaesstDenAbendLiegen) {
    beginnen(wettkampf_modus::rotation, 2, {1, 2});
    rennen_fahren();
    EXPECT_FALSE(abend.nicht_gesichert());
    t.maschine.nicht_schreibbar = "Vereinsabend-" + ergebnis_stempel(t.maschine.dienste().kalender.jetzt()) + ".csv";
    rennen_fahren();
    EXPECT_TRUE(abend.stand().ende_pruefen() && abend.nicht_gesichert());
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    abend.aendern([&](wettkampf& w) { return w.name_aendern(1, "Anton", t.p.txt) == namensmangel::keiner; });
    abend.beenden();
    EXPECT_TRUE(t.p.ablage.gibt_es(laufender_wettkampf));
}

TEST_F(Wettkampfabend, WasNachDemLetztenRennenBerichtigtWirdStehtInDerTabelle) {
    beginnen(wettkampf_modus::einmal, 2, {1, 2});
    rennen_fahren();
    abend.aendern([&](wettkampf& w) { return w.name_aendern(1, "Anton", t.p.txt) == namensmangel::keiner; });
    abend.beenden();
    const auto tabellen = t.p.ablage.auflisten("Ergebnisse\\Wettkampf", "Vereinsabend-", ".csv");
    ASSERT_EQ(tabellen.size(), 2U);
    EXPECT_TRUE(std::any_of(tabellen.begin(), tabellen.end(), [&](const std::string& name) {
        return *t.p.ablage.zeilen_lesen("Ergebnisse\\Wettkampf\\" + name, 1000) ==
               tabelle_schreiben(abend.stand(), {}, t.p.einst.trennzeichen);
    }));
    EXPECT_FALSE(t.p.ablage.gibt_es(laufender_wettkampf));
}

TEST_F(Wettkampfabend, WerDenStandNichtSpeichernKannErfaehrtWasFehlt) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    t.p.fenster.zeigen(fenstername::wettkampf2);
    for (const auto& [klick, was] : {std::pair{&t.p.wettkampf2.Command1, "datei. Die Einstellungen wurden"},
                                     std::pair{&t.p.wettkampf2.Command10, "Datei. Rennergebnisse wurden"}}) {
        klick->klicken();
        t.maschine.nicht_schreibbar = "Pokal";
        t.p.rundenspeichern.name.eingeben("Pokal");
        t.p.rundenspeichern.Command1.klicken();
        EXPECT_EQ(letzte_meldung(), "Fehler beim Schreiben der " + std::string(was) + " nicht gespeichert.");
        t.p.fenster.entladen(fenstername::rundenspeichern);
    }
}

TEST_F(Wettkampfabend, WasNichtGesichertIstWirdNachgeholtOderNichtVersprochen) {
    const auto frage_beginnt = [&](std::string_view wie) {
        t.p.wettkampf2.Command5.klicken();
        return t.maschine.fragen_gestellt.back().text.starts_with(wie) && abend.wettkampf_aktiv();
    };
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    t.p.fenster.zeigen(fenstername::wettkampf2);
    t.maschine.nicht_schreibbar = "laufend.wtk";
    rennen_fahren();
    EXPECT_EQ(letzte_meldung(), "Fehler beim Schreiben der Datei. Rennergebnisse wurden nicht gespeichert.");
    EXPECT_TRUE(frage_beginnt("Der Stand des Wettkampfs lässt sich nicht speichern."));
    t.maschine.nicht_schreibbar.clear();
    EXPECT_TRUE(frage_beginnt("Der Wettkampf ist noch nicht beendet."));
    const auto gelesen = wettkampf_laden(t.p.datei, laufender_wettkampf, {}, t.p.txt, einstellungen_aus_datei::lassen,
                                         version_melden::nein);
    ASSERT_TRUE(gelesen);
    EXPECT_EQ(*gelesen, abend.stand());

    t.p.einst.aut_speichern = true;
    const std::string stamm = "Vereinsabend-" + ergebnis_stempel(t.maschine.dienste().kalender.jetzt()) + "-Rennen";
    t.maschine.nicht_schreibbar = stamm + "2.csv";
    rennen_fahren();
    EXPECT_TRUE(abend.nicht_gesichert());
    t.maschine.nicht_schreibbar = stamm + "3.csv";
    rennen_fahren();
    const std::string zweites = "Ergebnisse\\Wettkampf\\" + stamm + "2.csv";
    EXPECT_TRUE(t.p.ablage.gibt_es(zweites));
    EXPECT_FALSE(protokoll_zu_ergebnis(t.p.ablage, zweites)) << "the log of the third race is not its";
    EXPECT_TRUE(frage_beginnt("Der Stand des Wettkampfs lässt sich nicht speichern.")) << "though all are driven";
}

TEST_F(Wettkampfabend, OhneErgebnisBleibtErNurWennErSoll) {
    using antwort = plattform::dreifache_antwort;
    for (const antwort was : {antwort::abbrechen, antwort::ja, antwort::nein}) {
        beginnen(wettkampf_modus::rotation, 3, {1, 2});
        t.p.fenster.zeigen(fenstername::wettkampf2);
        t.maschine.antwort_mit_ausweg = was;
        t.p.wettkampf2.Command5.klicken();
        EXPECT_EQ(abend.wettkampf_aktiv(), was == antwort::abbrechen);
        EXPECT_EQ(t.p.ablage.gibt_es(laufender_wettkampf), was != antwort::nein);
    }
    EXPECT_EQ(t.maschine.antworten_der_frage, "Behalten/Verwerfen");
}

TEST_F(Wettkampfabend, EinZurueckgenommenerTeilWirdNichtZweimalGebucht) {
    beginnen(wettkampf_modus::am_stueck, 2, {1, 2}, true);
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    runden_fahren(3);
    t.p.auswertung.Command5.klicken();
    ASSERT_TRUE(offen(fenstername::k_ampel));
    t.rennende();  // ended before it has gone on: the earlier result again
    t.maschine.laufen(100);
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.Command5.klicken();
    EXPECT_EQ(abend.stand().fortsetzung_nummer(1), 1);
    gruen();
    runden_fahren(2);
    t.p.auswertung.Command5.klicken();
    ASSERT_TRUE(abend.stand().ende_pruefen());
    EXPECT_EQ(abend.stand().staende().front().fahrer_runden(0), 6);
}

TEST_F(Wettkampfabend, NachJedemRennenNeuGeladenGibtDieselbeTabelle) {
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;  // not those of the table before
    for (int art = 1; art <= wettkampf_modus_max; ++art) {
        const auto modus = static_cast<wettkampf_modus>(art);
        const bool geteilt = modus == wettkampf_modus::am_stueck;
        std::vector<wettkampf> ende;
        for (const bool neu_laden : {false, true}) {
            beginnen(modus, 3, {2, 5}, geteilt);
            while (!abend.stand().ende_pruefen()) {
                ASSERT_TRUE(abend.rennen_starten());
                t.bahn().Command1.klicken();
                runden_fahren(3);
                t.p.auswertung.Command5.klicken();
                if (geteilt && !neu_laden) {
                    gruen();
                    t.maschine.laufen(500);
                    runden_fahren(2);
                    t.p.auswertung.Command5.klicken();
                } else if (geteilt) {
                    t.p.k_ampel.Command1.klicken();
                    t.p.rennen.befehle.rennen_abbrechen();  // the rest is driven after the program's end
                }
                if (neu_laden) {
                    auto gelesen = wettkampf_laden(t.p.datei, laufender_wettkampf, {}, t.p.txt,
                                                   einstellungen_aus_datei::lassen, version_melden::nein);
                    ASSERT_TRUE(gelesen);
                    EXPECT_EQ(*gelesen, abend.stand());
                    abend.beginnen(std::move(*gelesen));
                }
                if (geteilt && neu_laden && !abend.stand().ende_pruefen()) {
                    EXPECT_EQ(abend.stand().uebergabe().teil, 2);
                    rennen_fahren();
                }
            }
            ende.push_back(abend.stand());
        }
        const auto stand = [](const wettkampf& w) {
            std::vector<int> runden;
            for (const fahrer_stand& einer : w.staende()) {
                runden.insert(runden.end(), {einer.fahrer_runden(0), einer.fahrer_runden(2), einer.fahrer_runden(5)});
            }
            return runden;
        };
        EXPECT_EQ(stand(ende[0]), stand(ende[1])) << art;
        if (!geteilt) {
            EXPECT_EQ(tabelle_schreiben(ende[0], {}, t.p.einst.trennzeichen),
                      tabelle_schreiben(ende[1], {}, t.p.einst.trennzeichen));
        }
    }
}

TEST_F(Wettkampfabend, VomHauptfensterDurchDenAbendUndZurueck) {
    t.p.form1.Command3.klicken();
    ASSERT_TRUE(offen(fenstername::wettkampf1));
    wettkampf1& vorbereitung = t.p.wettkampf1;
    vorbereitung.Text1.eingeben("Pokal, der erste");
    for (const char* name : {"Anna", "Ben", "Carl", "Dora", "Emil"}) {
        vorbereitung.auswahl.eingeben(name);
        vorbereitung.Command1.klicken();
    }
    vorbereitung.Command11.klicken();  // its ranking becomes the next start list
    ASSERT_TRUE(offen(fenstername::wettkampf2));
    EXPECT_FALSE(offen(fenstername::wettkampf1));
    wettkampf2& w = t.p.wettkampf2;
    EXPECT_EQ(abend.stand().wettkampf_name, "Pokal der erste");
    EXPECT_EQ(w.Label_nr.text(), "1");
    for (int rennen = 1; rennen <= 5; ++rennen) {
        w.Command2.klicken();
        ASSERT_TRUE(offen(fenstername::bahn1));
        EXPECT_EQ(t.p.param.min_rundenzeit_ms, 5000);
        t.bahn().Command1.klicken();
        runden_fahren(3);
        t.p.auswertung.Command5.klicken();
        EXPECT_EQ(w.List1.zeilen().at(static_cast<std::size_t>(rennen) - 1).back(), 'X');
    }
    EXPECT_EQ(w.Label_nr.text(), "ENDE");
    EXPECT_FALSE(w.Command2.sichtbar());
    t.maschine.antwort = true;
    w.List1.auswaehlen(1);
    w.Command8.klicken();
    EXPECT_EQ(w.Label_nr.text(), "2");
    EXPECT_FALSE(abend.stand().ende_pruefen());
    w.Command2.klicken();
    t.bahn().Command1.klicken();
    runden_fahren(3);
    t.p.auswertung.Command5.klicken();
    const std::vector<std::string> rangfolge = qualifying_uebernehmen(abend.stand());
    w.Command5.klicken();
    ASSERT_TRUE(offen(fenstername::wettkampf1));
    std::vector<std::string> startliste;
    for (const listeneintrag& eintrag : vorbereitung.teilnehmer().eintraege()) {
        startliste.push_back(eintrag.name);
    }
    EXPECT_EQ(startliste, rangfolge);
    vorbereitung.Command4.klicken();
    t.p.form1.Command1.klicken();
    EXPECT_EQ(t.p.param.min_rundenzeit_ms, 5100) << "a race of its own again";
}

}  // namespace
}  // namespace tarvel
