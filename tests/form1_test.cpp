#include "core/form1.h"

#include <gtest/gtest.h>

#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

using meldungen = std::vector<test::test_plattform::meldung>;

const test::test_plattform::meldung unzulaessig{"Unzulässige Zeit-/ Rundenangaben, Werte bitte überprüfen.",
                                                "Fehlermeldung"};
const test::test_plattform::meldung keine_spur{"Keine Spuren ausgewählt, Auswahl bitte wiederholen.", "Fehlermeldung"};

class Form1 : public testing::Test {
protected:
    test::testprogramm t;
    form1& f = t.p.form1;
};

TEST_F(Form1, StehtNachDemStartAufDenStandardwerten) {
    EXPECT_EQ(f.version_label.text(), "V 2.23");
    EXPECT_EQ(f.rennart.text(), "Zeit");
    EXPECT_EQ(f.renndauer.text(), "5");
    EXPECT_EQ(f.wertmin.text(), "5");
    EXPECT_EQ(f.massstab.text(), "43");
    EXPECT_TRUE(f.spur[3].gesetzt());
    EXPECT_FALSE(f.spur[4].gesetzt());
    EXPECT_FALSE(f.fahrer[4].aktiviert());
    EXPECT_EQ(f.fahrer[5].text(), "Fahrer 6");
    EXPECT_EQ(f.modus_label.text(), "Simulationsmodus");
}

TEST_F(Form1, FelderWerdenStillBerichtigt) {
    struct fall {
        feld& wert;
        const char* eingabe;
        const char* danach;
    };
    f.stddauer.text("1");
    for (const fall& fall : {
             fall{f.lspur[0], "12,5", "12.5"},
             {f.lspur[0], "0,9", "25"},
             {f.lspur[1], "10001", "25"},
             {f.lspur[2], "xyz", "25"},
             {f.lspur[3], "10000", "10000"},
             {f.wertmin, "0,05", "5"},
             {f.wertmin, "59.1", "5"},
             {f.wertmin, "0,1", "0.1"},
             {f.stddauer, "-1", "0"},
             {f.stddauer, "25", "24"},
             {f.stddauer, "", "0"},
             {f.stddauer, "abc", "0"},
             {f.renndauer, "-5", "0"},
             {f.renndauer, "60", "59"},
             {f.renndauer, "99999999", "59"},
         }) {
        fall.wert.text(fall.eingabe);
        f.werte_pruefen();
        EXPECT_EQ(fall.wert.text(), fall.danach) << fall.eingabe;
    }
    f.rennart.eingeben("Runden");
    f.renndauer.text("10000");
    f.werte_pruefen();
    EXPECT_EQ(f.renndauer.text(), "9999");
    f.renndauer.text("-1");
    f.werte_pruefen();
    EXPECT_EQ(f.renndauer.text(), "1");
}

TEST_F(Form1, RenndauerInMinutenUndSekunden) {
    struct fall {
        const char* eingabe;
        const char* danach;
        zeit_ms dauer;
    };
    for (const fall& fall : {fall{"5,3", "5,30", 330000},
                             {"5.05", "5,05", 305000},
                             {" 07", "7", 420000},
                             {"2,75", "2,59", 179000},
                             {"3,x", "3", 180000},
                             {",5", "0,50", 50000},
                             {"1,0", "1", 60000}}) {
        f.renndauer.text(fall.eingabe);
        f.Command1.klicken();
        EXPECT_EQ(f.renndauer.text(), fall.danach) << fall.eingabe;
        EXPECT_EQ(t.p.param.renndauer_ms, fall.dauer) << fall.eingabe;
        EXPECT_EQ(t.p.param.renn_ziel, fall.dauer) << fall.eingabe;
        t.bahn().Command2.klicken();
    }
    f.stddauer.eingeben("2");
    t.einrichten("Zeit", "0,5", {1});
    EXPECT_EQ(t.p.param.renndauer_ms, 2 * 3600000 + 50000);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Form1, UnzulaessigeLaengeStartetNicht) {
    for (const char* dauer : {"0", "", "abc", "-3"}) {
        t.einrichten("Zeit", dauer, {1});
        EXPECT_FALSE(t.p.fenster.ist_offen("bahn1")) << dauer;
    }
    t.einrichten("Runden", "0", {1});
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen(5, unzulaessig));
    t.einrichten("Runden", "10000", {1});
    EXPECT_TRUE(t.p.fenster.ist_offen("bahn1"));
    EXPECT_EQ(t.p.param.renn_ziel, 9999);
}

TEST_F(Form1, HinterEinerMeldungGehtDieZeitWeiter) {
    t.p.fenster.zeigen("Form3");
    t.maschine.waehrend_meldung = [this] { t.maschine.laufen(2000); };
    t.einrichten("Zeit", "0", {1});
    EXPECT_FALSE(t.p.fenster.ist_offen("Form3"));
}

TEST_F(Form1, OhneSpurKeinRennen) {
    t.einrichten("Zeit", "5", {});
    EXPECT_EQ(t.maschine.meldungen_gezeigt, meldungen{keine_spur});
    EXPECT_FALSE(t.p.fenster.ist_offen("bahn1"));
}

TEST_F(Form1, UebergabeAnDasRennen) {
    f.fahrer[4].aktiviert(true);
    f.fahrer[4].eingeben("Käthe");
    f.wertmin.eingeben("2,5");
    t.einrichten("Runden", "12", {2, 5});
    EXPECT_EQ(t.p.param.renn_art_text, "Runden");
    EXPECT_EQ(t.p.param.renn_ziel, 12);
    EXPECT_EQ(t.p.param.spuren_anzahl, 2);
    EXPECT_TRUE(t.p.param.spur_aktiv[5]);
    EXPECT_FALSE(t.p.param.spur_aktiv[1]);
    EXPECT_EQ(t.p.param.fahrer_name[5], "Käthe");
    EXPECT_EQ(t.p.param.min_rundenzeit_ms, 2600);
}

TEST_F(Form1, NiedrigerBildschirmSperrtSpurFuenfUndSechs) {
    t.maschine.bildschirm_groesse = {1024, 719};
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 1);
    EXPECT_FALSE(f.fahrer[4].aktiviert());
    t.bahn().Command2.klicken();
    t.maschine.bildschirm_groesse = {1280, 720};
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 3);
}

TEST_F(Form1, KleinerBildschirmGibtDenFeldernDenPlatzDesBildes) {
    t.maschine.laufen(1000);
    EXPECT_TRUE(f.startbild.sichtbar());
    test::test_plattform klein;
    klein.bildschirm_groesse = {1024, 600};
    programm p(klein.dienste());
    p.starten();
    klein.laufen(1000);
    EXPECT_FALSE(p.form1.startbild.sichtbar());
}

TEST_F(Form1, RennartStelltDieFelderUm) {
    f.rennart.eingeben("Runden");
    EXPECT_EQ(f.Label19.text(), "Runden");
    EXPECT_FALSE(f.stddauer.aktiviert());
    EXPECT_FALSE(f.Label8.sichtbar());
    f.rennart.text("Unfug");
    f.rennart_geaendert();
    EXPECT_EQ(f.rennart.text(), "Zeit");
    EXPECT_EQ(f.Label19.text(), "Minuten");
    EXPECT_TRUE(f.stddauer.aktiviert());
}

TEST(Form1Tank, HakenZeigtDieTankoptionen) {
    test::testprogramm t;
    EXPECT_FALSE(t.p.form1.tank_label.sichtbar());
    t.p.form1.t_aktiv.umschalten();
    EXPECT_TRUE(t.p.form1.tank_label.sichtbar());
    EXPECT_EQ(t.p.form1.tank_label.text(), "60 Liter, 7 Liter je Runde");
}

}  // namespace
}  // namespace tarvel
