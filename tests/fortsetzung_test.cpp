#include "race/fortsetzung.h"

#include <cstdlib>
#include <random>

#include "core/text.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

/// Races that go on from their result.
class Fortsetzung : public test::ProgrammProbe {
protected:
    Fortsetzung() {
        t.p.einst.zielmodus_erster = true;
        t.p.einst.runde_beenden = false;
        t.p.einst.sensor_timeout = 0ms;
        t.p.einst.aut_speichern = false;
        t.p.form1.wertmin.eingeben("1");
        nur_eingaben = true;
    }

    void gruen() {
        t.p.k_ampel.Command1.klicken();
        t.maschine.laufen(1500 * 3 + 2500);
    }
    int spur_von(const std::string& fahrer) {
        const auto hat = [&](int spur) { return t.p.param.fahrer_name[spur] == fahrer; };
        return *std::find_if(alle_spuren.begin(), alle_spuren.end(), hat);
    }

    auswertung& a = t.p.auswertung;
    renn_zustand& zustand = t.p.rennen.zustand;
};

TEST_F(Fortsetzung, UhrZielUndKopfZeigenDieNeueDauer) {
    t.p.einst.nachtrennen_modus = nachtrennen::rennen;
    t.starten("Zeit", "1", {1});
    t.runde_nach(1000, "1");
    t.maschine.laufen(22456);
    t.rennende();
    a.neues_ziel.eingeben("120");
    a.Command3.klicken();
    EXPECT_EQ(t.bahn().uhr1.stunden.text() + ":" + t.bahn().uhr1.minuten.text(), "01:59");
    EXPECT_TRUE(t.bahn().uhr1.stunden.sichtbar());
    EXPECT_EQ(t.bahn().ziel_label.text(), "2 h 0:00 min");
    t.rennende();
    EXPECT_EQ(a.neues_ziel.text(), "2") << "nothing was driven of it";
    EXPECT_NE(a.kopf_label.text().find("1:00 min"), std::string::npos) << a.kopf_label.text();
    a.neues_ziel.eingeben("2");
    a.Command3.klicken();
    gruen();
    EXPECT_TRUE(t.bahn().Nachtabschaltung.sichtbar()) << "a night race stays one";
    t.maschine.laufen(120000);
    EXPECT_NE(a.kopf_label.text().find("2:00 min"), std::string::npos) << a.kopf_label.text();
}

TEST_F(Fortsetzung, WerAmStartDisqualifiziertWurdeBleibtEs) {
    t.starten("Zeit", "1", {1, 2});
    t.spur(2).disqualifiziert = true;  // before it has crossed the line
    t.bahn().zaehler[2].text("Dis.");
    t.runde_nach(1000, "1");
    t.rennende();
    a.neues_ziel.eingeben("5");
    a.Command3.klicken();
    EXPECT_EQ(t.bahn().zaehler[1].text() + t.bahn().zaehler[2].text(), "Dis.0") << "changed lanes";
    t.p.rennen.ansicht.bildschirm_dunkel();  // by key, while the light waits
    t.p.param.tank_aktiv = true;
    t.taste("q");  // a car is pushed over the tank and the sector
    t.p.ereignisse.ereignis_melden(erste_zwischenzeit);
    gruen();
    EXPECT_TRUE(strom(2) && !strom(1)) << "green is for those who still drive";
    EXPECT_FALSE(t.p.ereignisse[erste_zwischenzeit].aktiv || t.p.ereignisse[art::tanken_ein[1]].aktiv);
    EXPECT_TRUE(t.bahn().Nachtabschaltung.sichtbar());
}

TEST_F(Fortsetzung, FreierPlatzWandertMit) {
    t.p.einst.freie_slots = false;
    t.einrichten("Runden", "2", {1, 2, 3});
    t.p.param.fahrer_name[3] = t.p.txt.frei_text + " 1";
    t.bahn().Command1.klicken();
    for (const zeit_ms dauer : {1000, 2000, 2000}) {
        t.runde_nach(dauer, "12");
    }
    a.Command3.klicken();
    EXPECT_FALSE(t.p.param.spur_aktiv[2]) << "the free place has come to lane 2";
    gruen();
    t.runde_nach(2000, "13");
    t.runde_nach(2000, "13");
    ASSERT_TRUE(offen(fenstername::auswertung));
    a.Command3.klicken();
    EXPECT_TRUE(t.p.param.spur_aktiv[2]);
    EXPECT_FALSE(t.p.param.spur_aktiv[1]);
    EXPECT_EQ(t.p.param.fahrer_name[2], "Fahrer 1");
}

TEST_F(Fortsetzung, UeberfahrtImBeginnDerPauseZaehltAuchWennDasRennenInIhrEndet) {
    t.p.einst.sensor_timeout = 2000ms;
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "5", {1, 2});
    t.runde_nach(1000, "12");
    t.maschine.laufen(4000);
    t.bahn().Command3.klicken();
    t.runde_nach(500, "1");
    t.maschine.laufen(10000);
    t.rennende();
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 1);
    EXPECT_NEAR(static_cast<double>(t.ergebnis(1).gesamtzeit), 4500, 2);
    EXPECT_EQ(t.ergebnis(2).rundenzahl(), 0);
    t.bahn().Command3.klicken();
    EXPECT_FALSE(zustand.chaos_aktiv) << "no pause behind the result";
}

TEST_F(Fortsetzung, EndeInDerPauseGehtAufDieMillisekundeWeiter) {
    t.p.einst.sound_an = true;
    t.starten("Zeit", "5", {1});
    t.runde_nach(1000, "1");
    t.maschine.laufen(4000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(10000);
    t.maschine.klang_haelt_auf = 25;
    t.rennende();
    t.maschine.klang_haelt_auf = 0;
    a.Command3.klicken();
    gruen();
    t.runde_nach(1000, "1");
    EXPECT_NEAR(static_cast<double>(zustand.konto.rundenzeit(1, 1)), 4000 + 1000, 4);
}

TEST_F(Fortsetzung, RundeUeberDenWechselIstKeineBestzeit) {
    t.mit_bestzeiten = true;
    t.p.einst.beste_modus = bestzeit_speicherung::manuell;
    t.p.bestzeiten.einfuegen(1, {2000, "Rekord", "", ""});
    t.p.bestzeiten.einfuegen(2, {2000, "Rekord", "", ""});
    t.p.form1.lspur[1].eingeben("30");
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(3000, "1");
    ASSERT_TRUE(offen(fenstername::auswertung));
    a.Command3.klicken();
    gruen();
    t.runde_nach(500, "1");  // the rest of a lap that began on lane 2
    t.runde_nach(1500, "1");
    t.rennende();
    EXPECT_EQ(t.ergebnis(1).rundenzahl(), 2);
    a.liste[1].auswaehlen(0);
    a.Command8.klicken();
    EXPECT_EQ(a.ges_meter[1].text(), "0,00 m") << "lap 1 was driven on lane 1, of 25 m";
    a.Command5.klicken();
    ASSERT_TRUE(offen(fenstername::beste_zeiten_fenster));
    EXPECT_EQ(t.p.beste_zeiten_fenster.beste_combo[0].text(), "00:01,500");
}

TEST_F(Fortsetzung, AbbruchVorGruenFragt) {
    t.starten("Runden", "2", {1});
    t.rennende();
    a.Command3.klicken();
    t.bahn().Command2.klicken();
    EXPECT_TRUE(offen(fenstername::bahn1)) << "the result so far is at stake";
    t.maschine.laufen(500);
    t.bahn().Command2.klicken();
    EXPECT_TRUE(offen(fenstername::Form1));
    EXPECT_FALSE(offen(fenstername::k_ampel));
}

TEST_F(Fortsetzung, WerVorGruenEndetHatDasErgebnisVonVorher) {
    t.p.einst.zielmodus_erster = false;
    t.starten("Zeit", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(64000, "1");
    t.taste("c");
    t.maschine.laufen(4000);
    t.bahn().Command3.klicken();
    gruen();
    t.runde_nach(5000, "2");
    ASSERT_TRUE(offen(fenstername::auswertung));
    const rennergebnis vorher = t.p.wertung.ergebnis();
    const zeit_ms gefahren = t.p.rennen.fortsetzung.gefahren();
    EXPECT_EQ(vorher.zeit_um, zustand.start_zeit + 60000);
    for (int mal = 0; mal < 2; ++mal) {
        t.maschine.datum_stellen({2026, 11, 21, 15, mal, 0});
        a.neues_ziel.eingeben("5");
        a.Command3.klicken();
        t.maschine.laufen(60000);
        t.rennende();
        ASSERT_TRUE(offen(fenstername::auswertung));
        const rennergebnis& danach = t.p.wertung.ergebnis();
        EXPECT_EQ(danach.zeit_um, vorher.zeit_um);
        EXPECT_EQ(danach.datum + danach.uhrzeit, vorher.datum + vorher.uhrzeit);
        EXPECT_EQ(t.p.rennen.fortsetzung.gefahren(), gefahren);
    }
    a.neues_ziel.eingeben("2");
    a.Command3.klicken();
    gruen();
    t.maschine.laufen(59990);
    EXPECT_FALSE(t.p.rennen.zeitgeber.nachlauftimer1->laeuft());
    t.maschine.laufen(20);
    EXPECT_TRUE(t.p.rennen.zeitgeber.nachlauftimer1->laeuft());
    const zeit_ms um = t.maschine.jetzt();
    t.rennende();
    EXPECT_NEAR(static_cast<double>(*t.p.wertung.ergebnis().zeit_um), static_cast<double>(um), 20);
}

TEST_F(Fortsetzung, SelbststartBleibtNichtLiegen) {
    t.p.einst.training_wechseldauer = 3s;
    t.p.einst.training_weiter = training_weitergang::fortsetzen;
    t.einrichten("Runden", "1", {1});
    t.p.rennen.teil_von.wechseln(t.p.intervalltraining);
    t.bahn().Command1.klicken();
    t.rennende();
    a.neues_ziel.eingeben("0");
    t.maschine.laufen(3000);
    ASSERT_TRUE(offen(fenstername::auswertung)) << "that is no target";
    a.Command5.klicken();
    t.p.einst.chaosampel_an = true;
    t.starten("Runden", "5", {1});
    t.bahn().Command3.klicken();
    t.maschine.laufen(20000);
    EXPECT_TRUE(zustand.chaos_aktiv) << "a pause ends when the race director says so";
}

/// What a driver has driven, kept beside the program: on a clock that runs only while the race does.
struct fahrer_modell {
    std::string name;
    zeit_ms zuletzt = -1;
    zeit_ms bereit_ab = 0;
    std::vector<zeit_ms> runden = {};
};

class FortsetzungModell : public Fortsetzung {
protected:
    bool eins_von(unsigned n) { return zufall() % n == 0; }

    /// Drives at random, with pauses, until the race ends by itself or by hand.
    void bis_zum_ende() {
        for (int i = 0; i < 300000 && !zustand.rennen_beendet; ++i) {
            spuren<int> vorher;
            for (const int spur : alle_spuren) {
                vorher[spur] = t.runden(spur);
            }
            for (const fahrer_modell& f : fahrer) {
                if (!zustand.chaos_aktiv && uhr >= f.bereit_ab && eins_von(1500)) {
                    t.p.rennen.befehle.taste('0' + spur_von(f.name));
                }
            }
            const zeit_ms stempel = uhr;
            const bool laeuft = !zustand.chaos_aktiv;
            t.maschine.laufen(1);
            uhr += laeuft && !zustand.rennen_beendet ? 1 : 0;
            for (fahrer_modell& f : fahrer) {
                const int spur = spur_von(f.name);
                if (t.runden(spur) > vorher[spur]) {
                    if (f.zuletzt >= 0) {
                        f.runden.push_back(stempel - f.zuletzt);
                    }
                    f.zuletzt = stempel;
                    f.bereit_ab = uhr + 1400;
                }
            }
            if (eins_von(zustand.chaos_aktiv ? 3000 : 9000)) {
                t.bahn().Command3.klicken();
            } else if (eins_von(40000)) {
                t.rennende();
            }
        }
        ASSERT_TRUE(offen(fenstername::auswertung));
    }

    void vergleichen() {
        for (const fahrer_modell& f : fahrer) {
            const int spur = spur_von(f.name);
            ASSERT_EQ(t.ergebnis(spur).rundenzahl(), static_cast<int>(f.runden.size())) << f.name;
            for (std::size_t i = 0; i < f.runden.size(); ++i) {
                const zeit_ms zeit = zustand.konto.rundenzeit(spur, static_cast<int>(i) + 1);
                EXPECT_NEAR(static_cast<double>(zeit), static_cast<double>(f.runden[i]), 4) << f.name << " " << i + 1;
            }
        }
    }

    void runde_loeschen() {
        fahrer_modell& f = fahrer[zufall() % fahrer.size()];
        if (f.runden.size() < 2) {
            return;
        }
        const std::size_t runde = 1 + zufall() % (f.runden.size() - 1);
        a.liste.at(feld_index(spur_von(f.name))).auswaehlen(static_cast<int>(runde));
        a.Command8.klicken();
        f.runden[runde - 1] += f.runden[runde];
        f.runden.erase(f.runden.begin() + static_cast<std::ptrdiff_t>(runde));
    }

    void fortsetzen() {
        if (eins_von(2)) {
            a.spurwechsel.umschalten();
        }
        for (fahrer_modell& f : fahrer) {
            if (t.spur(spur_von(f.name)).ziel_erreicht && f.zuletzt >= 0) {  // was home: its next lap begins at green
                f.zuletzt = uhr;
                f.bereit_ab = uhr + 1400;
            }
        }
        a.Command3.klicken();
        if (offen(fenstername::auswertung)) {
            a.neues_ziel.eingeben("50");
            a.Command3.klicken();
        }
        ASSERT_TRUE(offen(fenstername::k_ampel));
        t.maschine.laufen(static_cast<zeit_ms>(zufall() % 30000));
    }

    std::mt19937 zufall{7};
    std::vector<fahrer_modell> fahrer;
    zeit_ms uhr = 0;
};

TEST_F(FortsetzungModell, RundenBleibenWieSieGefahrenWurden) {
    t.p.einst.chaos_strafzeit = -1s;
    for (int rennen = 0; rennen < 6; ++rennen) {
        SCOPED_TRACE(rennen);
        const bool zeitrennen = eins_von(2);
        t.p.einst.zielmodus_erster = eins_von(2);
        t.p.einst.runde_beenden = eins_von(3);
        t.einrichten(zeitrennen ? "Zeit" : "Runden", zeitrennen ? "0,20" : "5", {1, 2, 4});
        fahrer = {{"Fahrer 1"}, {"Fahrer 2"}, {"Fahrer 4"}};
        uhr = 0;
        t.bahn().Command1.klicken();
        for (int teil = 0; teil < 3; ++teil) {
            bis_zum_ende();
            vergleichen();
            ASSERT_FALSE(HasFailure());
            if (teil == 2) {
                break;
            }
            runde_loeschen();
            fortsetzen();
            if (eins_von(4)) {  // not yet after all
                t.rennende();
                vergleichen();
                fortsetzen();
            }
            gruen();
        }
        a.Command5.klicken();
        ASSERT_TRUE(offen(fenstername::Form1));
    }
}

/// One who came home behind the end goes on with less than no pause; it is hardly longer on a slower clock.
TEST(Rennzustand, EinePauseUnterNullBleibtBeimNachmessen) {
    renn_zustand zustand;
    zustand.pause_abzug = 10000;
    zustand.pause.dauer = 10000;
    zustand.spur[1].pause_abzug = -700;
    zustand.pausen_nachmessen(0.9985);
    EXPECT_LE(std::abs(zustand.spur[1].pause_abzug + 700), 2);
    EXPECT_EQ(zustand.pause_abzug, 9985);
    EXPECT_EQ(zustand.pause.dauer, 9985);
}

}  // namespace
}  // namespace tarvel
