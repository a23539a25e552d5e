#include "core/form1.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Form1 : public test::ProgrammProbe {
protected:
    form1& f = t.p.form1;
};

TEST_F(Form1, FelderWerdenStillBerichtigt) {
    const auto pruefen = [this](feld& wert, const char* eingabe, const char* danach) {
        wert.text(eingabe);
        f.werte_pruefen();
        EXPECT_EQ(wert.text(), danach) << eingabe;
    };
    f.stddauer.text("1");
    pruefen(f.lspur[0], "12,5", "12.5");
    pruefen(f.lspur[0], "0,9", "25");
    pruefen(f.lspur[1], "10001", "25");
    pruefen(f.lspur[2], "xyz", "25");
    pruefen(f.lspur[3], "10000", "10000");
    pruefen(f.wertmin, "0,05", "5");
    pruefen(f.wertmin, "59.1", "5");
    pruefen(f.wertmin, "0,1", "0.1");
    pruefen(f.stddauer, "-1", "0");
    pruefen(f.stddauer, "25", "24");
    pruefen(f.stddauer, "", "0");
    pruefen(f.renndauer, "-5", "0");
    pruefen(f.renndauer, "60", "59");
    pruefen(f.renndauer, "99999999", "59");
    f.rennart.eingeben("Runden");
    pruefen(f.renndauer, "10000", "9999");
    pruefen(f.renndauer, "-1", "1");
}

TEST_F(Form1, RenndauerInMinutenUndSekunden) {
    const auto pruefen = [this](const char* eingabe, const char* danach, zeit_ms dauer) {
        f.renndauer.text(eingabe);
        f.Command1.klicken();
        EXPECT_EQ(f.renndauer.text(), danach) << eingabe;
        EXPECT_EQ(t.p.param.renndauer_ms, dauer) << eingabe;
        EXPECT_EQ(t.p.param.renn_ziel, rennziel::zeit(dauer)) << eingabe;
        t.rennabbruch();
    };
    pruefen("5,3", "5,30", 330000);
    pruefen("5.05", "5,05", 305000);
    pruefen(" 07", "7", 420000);
    pruefen("2,75", "2,59", 179000);
    pruefen("3,x", "3", 180000);
    pruefen(",5", "0,50", 50000);
    pruefen("1,0", "1", 60000);
    f.stddauer.eingeben("2");
    f.wertmin.eingeben("2,5");
    t.einrichten("Zeit", "0,5", {1});
    EXPECT_EQ(t.p.param.renndauer_ms, 2 * 3600000 + 50000);
    EXPECT_EQ(t.p.param.min_rundenzeit_ms, 2600);
    EXPECT_EQ(t.bahn().ziel_label.text(), "2 h 0:50 min");
    EXPECT_TRUE(t.bahn().uhr1.stunden.sichtbar());
    EXPECT_EQ(t.bahn().uhr1.stunden.text() + t.bahn().uhr1.sekunden.text(), "0250");
    t.bahn().Command1.klicken();
    t.maschine.laufen(10);
    EXPECT_TRUE(t.bahn().uhr2.stunden.sichtbar() && t.bahn().uhr2.nach_stunden.sichtbar());
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
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    t.einrichten("Runden", "10000", {1});
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_EQ(t.p.param.renn_ziel, rennziel::runden(9999));
}

TEST_F(Form1, WasNichtSeinKannWirdGesagtOderGefragt) {
    f.fahrer[0].eingeben("Anna");
    f.fahrer[2].eingeben("Anna");
    t.einrichten("Zeit", "5", {1, 3});
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_EQ(t.maschine.fragen_gestellt, (meldungen{{"Anna fährt auf zwei Spuren. Trotzdem starten?", "Hinweis"}}));
    f.fahrer[2].eingeben("Łucja");
    f.lspur[0].eingeben("lang");
    f.massstab.eingeben("");
    t.einrichten("Zeit", "5", {1, 3});
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_EQ(t.maschine.meldungen_gezeigt,
              (meldungen{{"Hier stand keine Zahl. Jetzt gilt:\nMaßstab 1/: 43\nSpurlänge, Spur/Auto 1: 25\n\n"
                          "Zeichen, die in keiner Datei stehen können, sind ersetzt:\nŁucja – ?ucja",
                          "Hinweis"}}));
    EXPECT_EQ(t.p.param.fahrer_name[3], "?ucja");
    t.rennabbruch();
    t.einrichten("Zeit", "fünf", {1});
    EXPECT_EQ(f.renndauer.text(), "fünf") << "to be mended";
    f.Command5.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text,
              "Hier stand keine Zahl. Jetzt gilt:\nRenndauer Minuten/Runden: 5");
}

TEST_F(Form1, NachEinerVerliehenenSpurWirdNichtGefragt) {
    f.fahrer[0].eingeben("Anna");
    f.fahrer[2].eingeben("Anna");
    f.lspur[2].eingeben("lang");
    t.p.einst.rc.rc_ziel_sensor34 = true;
    f.leihspuren_sperren();
    t.einrichten("Zeit", "5", {1, 3});
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::bahn1));
    EXPECT_TRUE(t.maschine.fragen_gestellt.empty() && t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Form1, NiedrigerBildschirmSperrtSpurFuenfUndSechsUndZeigtKeinBild) {
    t.maschine.bildschirm_groesse = {1024, 719};
    t.maschine.laufen(1000);
    EXPECT_FALSE(f.startbild.sichtbar()) << "the fields need the room";
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 1);
    EXPECT_FALSE(f.fahrer[4].aktiviert());
    t.rennabbruch();
    t.maschine.bildschirm_groesse = {1280, 720};
    t.einrichten("Zeit", "5", {1, 5, 6});
    EXPECT_EQ(t.p.param.spuren_anzahl, 3);
    test::testprogramm gross;
    gross.maschine.laufen(1000);
    EXPECT_TRUE(gross.p.form1.startbild.sichtbar());
}

TEST_F(Form1, SpurenDreiUndVierSindZuSolangeIhreSensorenVerliehenSind) {
    t.einrichten("Zeit", "5", {1, 3});
    for (const bool verliehen : {true, false}) {
        t.rennabbruch();
        t.p.einst.rc.rc_tank_sensor34 = verliehen;
        f.leihspuren_sperren();
        EXPECT_NE(f.spur[2].aktiviert() && f.lspur[2].aktiviert(), verliehen);
        EXPECT_TRUE(f.spur[2].gesetzt()) << "as it was, once the sensors are its own again";
        f.Command1.klicken();
        EXPECT_EQ(t.p.param.spuren_anzahl, verliehen ? 1 : 2);
    }
}

TEST_F(Form1, RennartUndTankhakenStellenDieFelderUm) {
    f.rennart.eingeben("Runden");
    EXPECT_EQ(f.Label19.text(), "Runden");
    EXPECT_FALSE(f.stddauer.aktiviert() || f.stddauer.sichtbar());
    EXPECT_FALSE(f.Label8.sichtbar());
    f.rennart.text("Unfug");
    f.rennart_geaendert();
    EXPECT_EQ(f.rennart.text(), "Zeit");
    EXPECT_EQ(f.Label19.text(), "Minuten");
    EXPECT_TRUE(f.stddauer.aktiviert() && f.stddauer.sichtbar());
    EXPECT_FALSE(f.tank_label.sichtbar());
    f.t_aktiv.umschalten();
    EXPECT_EQ(f.tank_label.text(), "60 Liter, 7 Liter je Runde");
    EXPECT_TRUE(f.tank_label.sichtbar());
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
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    t.maschine.laufen(3000);
    EXPECT_EQ(geoeffnet, 1);
    f.wartehinweis(false);
    f.Command1.klicken();
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::bahn1));
}

}  // namespace
}  // namespace tarvel
