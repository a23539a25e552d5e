#include "race/rundenkorrektur.h"

#include <random>
#include <set>

#include "programm/rennprotokoll.h"
#include "results/korrekturliste.h"
#include "results/platzierung.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using korrekturart = korrektur::art;

class Zufallsergebnis {
public:
    int bis(int ende) { return static_cast<int>(zufall_() % static_cast<unsigned>(ende + 1)); }

    rennergebnis ergebnis() {
        rennergebnis e;
        const bool zeitrennen = bis(1) == 1;
        e.ziel = zeitrennen ? rennziel::zeit(60000) : rennziel::runden(8);
        e.zeit_um = zeitrennen ? std::optional<zeit_ms>(60000) : std::nullopt;
        e.wertung = sortier_modus(1 + bis(2));
        for (const int nummer : {1, 2, 4, 6}) {
            rennergebnis::spur s;
            s.nummer = nummer;
            s.strafzeit = dauer_s(bis(3));
            s.disqualifiziert = bis(9) == 0;
            s.vor_fortsetzung = bis(2);
            const int runden = s.disqualifiziert ? 0 : bis(8);
            zeit_ms stempel = 0;
            for (int i = 0; i <= runden; ++i) {
                rennergebnis::runde r;
                r.zeit = 2000 + bis(8000);
                r.pause = bis(4) == 0 ? bis(5000) : 0;
                r.stempel = stempel += r.zeit + *r.pause;
                r.meter = 10 + bis(1);
                s.runden.push_back(r);
            }
            e.spuren.push_back(s);
            korrigieren(e, {.was = korrekturart::restmeter, .spur = nummer, .meter = 0});
        }
        for (rennergebnis::spur& s : e.spuren) {  // all that follows from the laps
            s.gesamtzeit = gesamtzeit(s);
            s.beste = beste(s);
        }
        return korrekturliste().angewandt(e);
    }

    korrektur eine(const rennergebnis& e) {
        const rennergebnis::spur& s = e.spuren[static_cast<std::size_t>(bis(3))];
        korrektur k{korrekturart(1 + bis(3)), s.nummer, 1 + bis(s.rundenzahl() + 1)};
        if (k.was == korrekturart::restmeter) {
            k.meter = bis(20) - 5;
        } else if (k.traegt_nach() && !s.runden.empty()) {
            const auto davor = static_cast<std::size_t>(std::min(k.runde, s.rundenzahl() + 1) - 1);
            k.pause = bis(3) == 0 ? bis(3000) : 0;
            k.zeit = bis(9000);
            k.stempel = s.runden[davor].stempel + k.zeit + k.pause;
            k.meter = 10;
        }
        return k;
    }

    static zeit_ms gesamtzeit(const rennergebnis::spur& s) {
        zeit_ms summe = dauer_ms(*s.strafzeit).count();
        for (std::size_t i = 1; i < s.runden.size(); ++i) {
            summe += s.runden[i].zeit;
        }
        return summe;
    }
    static zeit_ms beste(const rennergebnis::spur& s) {
        zeit_ms beste = 0;
        for (std::size_t i = 1; i < s.runden.size(); ++i) {
            beste = i == 1 ? s.runden[i].zeit : std::min(beste, s.runden[i].zeit);
        }
        return beste;
    }

private:
    std::mt19937 zufall_{11};
};

/// What must hold for a result whatever has been corrected.
void pruefen(const rennergebnis& e, const rennergebnis& gefahren) {
    rennergebnis neu = e;
    for (rennergebnis::spur& s : neu.spuren) {
        s.platz.reset();
    }
    platzieren(neu);
    EXPECT_EQ(neu, e) << "places as from scratch";
    for (std::size_t i = 0; i < e.spuren.size(); ++i) {
        const rennergebnis::spur& s = e.spuren[i];
        EXPECT_EQ(s.gesamtzeit, Zufallsergebnis::gesamtzeit(s));
        EXPECT_TRUE(e.ziel->ist_zeit() || s.rundenzahl() <= e.ziel->runden());
        const auto dahinter = std::count_if(s.runden.begin(), s.runden.end(), [&](const rennergebnis::runde& r) {
            return e.zeit_um && r.stempel > *e.zeit_um && r.nachgetragen;
        });
        EXPECT_LE(dahinter, 1);
        double meter = s.restmeter;
        zeit_ms vorher = -1;
        for (std::size_t r = 0; r < s.runden.size(); ++r) {
            meter += r > 0 ? s.runden[r].meter : 0;
            EXPECT_GT(s.runden[r].stempel, vorher);
            vorher = s.runden[r].stempel;
            EXPECT_TRUE(s.runden[r].zeit > 0 && *s.runden[r].pause >= 0);
        }
        EXPECT_DOUBLE_EQ(s.meter, meter);
        EXPECT_TRUE(s.beste == 0 || s.beste >= gefahren.spuren[i].beste) << "a correction makes nobody faster";
    }
}

TEST(Rundenkorrektur, JedeFolgeLaesstSichGanzZuruecknehmenUndWiederherstellen) {
    Zufallsergebnis zufall;
    int gelungen = 0;
    for (int rennen = 0; rennen < 300 && !testing::Test::HasFailure(); ++rennen) {
        SCOPED_TRACE(rennen);
        const rennergebnis gefahren = zufall.ergebnis();
        korrekturliste liste;
        std::vector<rennergebnis> staende{gefahren};  // after each step that counts
        for (int mal = 0; mal < 25; ++mal) {
            rennergebnis jetzt = liste.angewandt(gefahren);
            EXPECT_EQ(jetzt, staende.back());
            pruefen(jetzt, gefahren);
            const korrektur k = zufall.eine(jetzt);
            if (zufall.bis(4) == 0) {
                if (liste.zuruecknehmen() != nullptr) {
                    staende.pop_back();
                }
            } else if (korrigieren(jetzt, k)) {
                ++gelungen;
                liste.anfuegen({k});
                EXPECT_EQ(liste.naechster(), nullptr) << "what was taken back is gone";
                staende.push_back(liste.angewandt(gefahren));
            } else {
                EXPECT_EQ(jetzt, staende.back()) << "what does not fit changes nothing";
            }
        }
        while (liste.zuruecknehmen() != nullptr) {
        }
        EXPECT_EQ(liste.angewandt(gefahren), gefahren);
        for (std::size_t i = 1; i < staende.size(); ++i) {
            liste.wiederherstellen();
            EXPECT_EQ(liste.angewandt(gefahren), staende[i]);
        }
    }
    EXPECT_GT(gelungen, 1500);
}

TEST(Rundenkorrektur, WerDasZielSchonEherErreichtHatFuhrDanachWeiter) {
    rennergebnis e;
    e.ziel = rennziel::runden(3);
    rennergebnis::spur& s = e.spuren.emplace_back();
    s.nummer = 1;
    s.runden = {{1000, {}, 0, 1000, 10}, {5000, {}, 0, 6000, 10}, {10000, {}, 0, 16000, 10}, {6000, {}, 0, 22000, 10}};
    const korrektur k{korrekturart::geteilt, 1, 2, 5000, 11000, 0};
    ASSERT_TRUE(korrigieren(e, k));
    EXPECT_EQ(e.spuren[0].rundenzahl(), 3);
    EXPECT_EQ(e.spuren[0].gesamtzeit, 15000) << "home at 16 s";
    EXPECT_EQ(e.spuren[0].beste, 5000) << "lap 1, none of the halves";
    EXPECT_FALSE(korrigieren(e, {korrekturart::ueberfahrt, 1, 4, 3000, 19000, 0, 10})) << "behind the target";
}

class KorrekturImFenster : public test::ProgrammProbe {
protected:
    KorrekturImFenster() {
        t.p.form1.wertmin.eingeben("2");
        t.p.einst.zielmodus_erster = true;
        t.p.einst.sensor_timeout = 0ms;
        t.p.einst.aut_speichern = true;
        nur_eingaben = true;
    }
    std::string protokoll() {
        std::string name = t.p.rennprotokoll.dateiname();
        std::replace(name.begin(), name.end(), '\\', '/');
        return t.maschine.datei_lesen(name);
    }
    void klick(befehl& knopf) {
        ASSERT_TRUE(knopf.bedienbar());
        knopf.klicken();
    }
    auswertung& a = t.p.auswertung;
};

TEST_F(KorrekturImFenster, WerAlleRundenHatErfaehrtDassDieLetzteWegfaellt) {
    t.starten("Runden", "2", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(1500, "1");  // too fast
    t.runde_nach(1500, "12");
    t.runde_nach(3000, "1");
    t.rennende();
    ASSERT_EQ(t.ergebnis(1).rundenzahl(), 2);
    klick(a.Command_nachtragen);
    const std::string weg = "seine letzte Runde fällt weg.";
    a.nachtrag.cbo_nachtrag.waehlen(1);
    EXPECT_FALSE(a.nachtrag.Label_nachtrag.text().ends_with(weg));
    a.nachtrag.cbo_nachtrag.waehlen(0);
    EXPECT_TRUE(a.nachtrag.Label_nachtrag.text().ends_with(weg));
    klick(a.nachtrag.Command_eintragen);
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 2);
    EXPECT_EQ(t.ergebnis(1).gesamtzeit, 3000);
}

TEST_F(KorrekturImFenster, AbgelehnteUeberfahrtZaehltDochUndAllesFolgt) {
    t.starten("Runden", "5", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(3000, "12");
    t.runde_nach(1500, "1");  // too fast
    t.runde_nach(1500, "12");
    t.runde_nach(3000, "2");
    t.runde_nach(1000, "1");
    t.rennende();
    EXPECT_EQ(t.ergebnis(2).platz, 1);
    const rennergebnis gefahren = a.ergebnis();
    a.liste[0].auswaehlen(1);
    klick(a.Command_nachtragen);
    ASSERT_TRUE(a.nachtrag.Frame_nachtrag.sichtbar());
    EXPECT_EQ(a.nachtrag.angebote.zeilen().front(),
              "Runde 2:  Überfahrt bei 0:05,498, zu kurz: 1,500 s, gezählt wird ab 2,100 s  →  00:01,500 + "
              "00:01,500");
    EXPECT_EQ(a.nachtrag.angebote.markiert(), 0);
    klick(a.nachtrag.Command_eintragen);
    EXPECT_EQ(a.liste[0].zeilen(),
              (std::vector<std::string>{"1.  00:03,000", "2.  00:01,500 +", "3.  00:01,500 (Rest)", "4.  00:04,000"}));
    EXPECT_EQ(t.ergebnis(1).platz, 1);
    EXPECT_EQ(t.ergebnis(1).beste, 3000) << "an added crossing makes no best lap";
    EXPECT_EQ(a.ges_meter[0].text(), "100,00 m");
    const rennergebnis nachgetragen = a.ergebnis();
    a.liste[1].auswaehlen(0);
    klick(a.Command8);
    a.Command6.klicken();
    a.meter[0].eingeben("2,5");
    a.meter[1].eingeben("3");
    EXPECT_FALSE(a.Command_zurueck.bedienbar()) << "not within an entry";
    a.Command6.klicken();
    const rennergebnis alles = a.ergebnis();
    EXPECT_EQ(t.ergebnis(2).restmeter, 3);
    for (int mal = 0; mal < 2; ++mal) {
        klick(a.Command_zurueck);
        EXPECT_EQ(t.ergebnis(1).restmeter, 0) << "an entry of metres is one step";
        klick(a.Command_zurueck);
        EXPECT_EQ(a.ergebnis(), nachgetragen);
        klick(a.Command_zurueck);
        EXPECT_EQ(a.ergebnis(), gefahren);
        EXPECT_FALSE(a.Command_zurueck.bedienbar());
        for (int wieder = 0; wieder < 3; ++wieder) {
            klick(a.Command_wieder);
            EXPECT_EQ(a.liste[0].markiert(), wieder == 0 ? 1 : -1) << "the lap that is back";
        }
        EXPECT_EQ(a.ergebnis(), alles);
        EXPECT_FALSE(a.Command_wieder.bedienbar());
    }
    for (const char* zeile : {"# Korrektur Spur 1 Runde 2 Überfahrt nachgetragen: Zeit 1500 Stempel ",
                              "# Korrektur zurück Spur 2 Runde 1 gelöscht", "# Korrektur wieder Spur 2 Restmeter 3"}) {
        EXPECT_NE(protokoll().find(zeile), std::string::npos) << zeile;
    }
    a.Command_protokoll.klicken();
    std::set<std::string> erzaehlt;
    for (const geschehen& g : t.p.protokollfenster.hergang().alle) {
        erzaehlt.insert(t.p.protokollfenster.worte_von(g));
    }
    for (const char* satz : {"Korrektur: Spur 1, Runde 2: Überfahrt nachgetragen (1,500 s)",
                             "Korrektur zurückgenommen: Spur 2, Runde 1 gelöscht (ihre Zeit zählt nicht mehr)",
                             "Korrektur gilt wieder: Spur 2, Restmeter 3"}) {
        EXPECT_TRUE(erzaehlt.contains(satz)) << satz;
    }
    t.p.protokollfenster.Command_schliessen.klicken();
    a.Command5.klicken();
    const auto dateien_da = t.p.ablage.auflisten("Ergebnisse\\auto-Einzelrennen", "auto-", ".csv");
    ASSERT_EQ(dateien_da.size(), 1U);
    const std::string datei = t.maschine.datei_lesen("Ergebnisse/auto-Einzelrennen/" + dateien_da[0]);
    EXPECT_NE(datei.find("Fahrer 1; 4;102.50;00:03,000;00:10,000;00:00,998;00:03,000;00:01,500;00:01,500;00:04,000;"),
              std::string::npos)
        << datei;
    EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
}

TEST_F(KorrekturImFenster, HinterDemFortsetzenZaehltWasDasRennenGezaehltHaette) {
    a.spurwechsel.gesetzt(false);
    t.starten("Runden", "2", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(2500, "1");
    t.runde_nach(2300, "2");
    t.runde_nach(200, "1");
    t.maschine.laufen(60000);
    a.neues_ziel.eingeben("9");
    a.Command3.klicken();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(7100);
    t.bahn().Command3.klicken();
    t.maschine.laufen(10000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(7000);
    t.runde_nach(700, "12");  // too fast: lane 2 had been under way for 200 ms, lane 1 was home
    t.bahn().Command3.klicken();
    t.maschine.laufen(3000);
    t.rennende();
    a.neues_ziel.eingeben("20");
    a.Command3.klicken();  // nobody comes round any more
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(7100);
    t.rennende();
    klick(a.Command_nachtragen);
    for (const auto& [spur, zeit] : {std::pair(2, std::string("1,000")), std::pair(1, std::string("0,799"))}) {
        a.nachtrag.cbo_nachtrag.waehlen(spur - 1);
        const std::string angeboten = a.nachtrag.angebote.zeilen().front();
        EXPECT_NE(angeboten.find("(ohne Pausen 0:06,798), zu kurz: " + zeit + " s"), std::string::npos) << angeboten;
        EXPECT_TRUE(angeboten.ends_with("→  00:0" + zeit)) << angeboten;
    }
}

TEST_F(KorrekturImFenster, FortgesetztGiltDasKorrigierte) {
    std::mt19937 zufall(3);
    a.spurwechsel.gesetzt(false);
    for (const char* rennart : {"Runden", "Zeit"}) {
        SCOPED_TRACE(rennart);
        t.starten(rennart, rennart == std::string("Zeit") ? "1" : "9", {1, 2, 3});
        for (int teil = 0; teil < 3; ++teil) {
            for (int runde = 0; runde < 4; ++runde) {
                t.runde_nach(2500 + static_cast<zeit_ms>(zufall() % 900), "1");
                t.runde_nach(1500, "12");
                t.runde_nach(1200, "3");
            }
            t.rennende();
            ASSERT_TRUE(offen(fenstername::auswertung));
            for (int mal = 0; mal < 6; ++mal) {
                const std::size_t i = zufall() % 3;
                a.liste[i].auswaehlen(static_cast<int>(zufall() % 4));
                if (zufall() % 3 == 0) {
                    a.Command8.klicken();
                } else {
                    a.Command_nachtragen.klicken();
                    a.nachtrag.angebote.auswaehlen(static_cast<int>(zufall() % 6));
                    a.nachtrag.Command_eintragen.klicken();
                }
                (zufall() % 3 == 0 ? a.Command_zurueck : a.Command10).klicken();
            }
            const rennergebnis korrigiert = a.ergebnis();
            t.p.wertung.festschreiben();
            t.p.wertung.auswerten();
            EXPECT_EQ(a.ergebnis(), korrigiert) << "the race has it as the window";
            for (const rennergebnis::spur& s : korrigiert.spuren) {
                EXPECT_EQ(t.p.rennen.zustand.konto.beste(s.nummer), s.beste);
            }
            if (teil < 2) {
                a.neues_ziel.eingeben(rennart == std::string("Zeit") ? "4" : "60");
                a.Command3.klicken();
                ASSERT_TRUE(offen(fenstername::k_ampel));
                t.p.k_ampel.Command1.klicken();
                t.maschine.laufen(7000);
            }
        }
        a.Command5.klicken();
        EXPECT_EQ(test::nachrechnen(t.p, t.maschine), "");
    }
}

}  // namespace
}  // namespace tarvel
