#include "core/form1.h"

#include <gtest/gtest.h>

#include "tests/plattform/testprogramm.h"

namespace tarvel {
namespace {

using meldungen = std::vector<test::test_plattform::meldung>;

class Form1 : public testing::Test {
protected:
    test::testprogramm t;
    form1& f = t.p.form1;
};

TEST_F(Form1, FelderWerdenStillBerichtigt) {
    struct fall {
        feld& wert;
        const char* eingabe;
        const char* danach;
    };
    f.stddauer.text("1");
    const auto pruefen = [this](const fall& fall) {
        fall.wert.text(fall.eingabe);
        f.werte_pruefen();
        EXPECT_EQ(fall.wert.text(), fall.danach) << fall.eingabe;
    };
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
             {f.renndauer, "-5", "0"},
             {f.renndauer, "60", "59"},
             {f.renndauer, "99999999", "59"},
         }) {
        pruefen(fall);
    }
    f.rennart.eingeben("Runden");
    pruefen({f.renndauer, "10000", "9999"});
    pruefen({f.renndauer, "-1", "1"});
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

TEST_F(Form1, OhneLaengeOderSpurKeinRennen) {
    for (const char* dauer : {"0", "", "abc", "-3"}) {
        t.einrichten("Zeit", dauer, {1});
    }
    t.einrichten("Runden", "0", {1});
    t.einrichten("Runden", "5", {});
    meldungen gemeldet(5, {"Unzulässige Zeit-/ Rundenangaben, Werte bitte überprüfen.", "Fehlermeldung"});
    gemeldet.push_back({"Keine Spuren ausgewählt, Auswahl bitte wiederholen.", "Fehlermeldung"});
    EXPECT_EQ(t.maschine.meldungen_gezeigt, gemeldet);
    EXPECT_FALSE(t.p.fenster.ist_offen("bahn1"));
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

TEST_F(Form1, NiedrigerBildschirmSperrtSpurFuenfUndSechsUndZeigtKeinBild) {
    t.maschine.bildschirm_groesse = {1024, 719};
    t.maschine.laufen(1000);
    EXPECT_FALSE(f.startbild.sichtbar()) << "the fields need the room";
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 1);
    EXPECT_FALSE(f.fahrer[4].aktiviert());
    t.bahn().Command2.klicken();
    t.maschine.bildschirm_groesse = {1280, 720};
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 3);
    test::testprogramm gross;
    gross.maschine.laufen(1000);
    EXPECT_TRUE(gross.p.form1.startbild.sichtbar());
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

TEST_F(Form1, HakenZeigtDieTankoptionen) {
    EXPECT_FALSE(f.tank_label.sichtbar());
    f.t_aktiv.umschalten();
    EXPECT_TRUE(f.tank_label.sichtbar());
    EXPECT_EQ(f.tank_label.text(), "60 Liter, 7 Liter je Runde");
}

TEST_F(Form1, RennenWartetAufDasMessgeraet) {
    int geoeffnet = 0;
    f.messgeraet_oeffnen = [&] {
        ++geoeffnet;
        f.wartehinweis(true);
    };
    t.einrichten("Runden", "5", {1});  // within the first second of the window
    EXPECT_EQ(geoeffnet, 1);
    EXPECT_FALSE(f.inhalt.sichtbar());
    EXPECT_FALSE(t.p.fenster.ist_offen("bahn1"));
    t.maschine.laufen(3000);
    EXPECT_EQ(geoeffnet, 1);
    f.wartehinweis(false);
    f.Command1.klicken();
    EXPECT_TRUE(t.p.fenster.ist_offen("bahn1"));
}

}  // namespace
}  // namespace tarvel
