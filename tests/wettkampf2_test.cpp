#include "competition/wettkampf2.h"

#include "competition/wettkampfspeicher.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

/// The director's window, on an evening whose first race of four has been driven.
class Wettkampf2 : public test::ProgrammProbe {
protected:
    Wettkampf2() {
        wettkampf neu = test::vereinswettkampf::neu(wettkampf_modus::rotation, 4, {1, 3});
        test::vereinswettkampf::fahren(neu, 1);
        t.p.wettkampfabend.beginnen(std::move(neu));
        t.p.fenster.zeigen(fenstername::wettkampf2);
    }
    const wettkampf& stand() const { return t.p.wettkampfabend.stand(); }

    wettkampf2& w = t.p.wettkampf2;
};

TEST_F(Wettkampf2, DerLeiterBestimmtWelchesRennenKommt) {
    w.List1.auswaehlen(1);
    w.Command9.klicken();
    EXPECT_EQ(w.Label_nr.text(), "3");
    EXPECT_EQ(w.List1.zeilen().at(1).back(), 'Z');
    w.List1.auswaehlen(3);
    EXPECT_EQ(w.Label_nr.text(), "3") << "only looked at";
    w.opt_reihenfolge.umschalten();
    w.List1.auswaehlen(1);
    EXPECT_EQ(w.Label_nr.text(), "2");
    EXPECT_EQ(stand().rennen_gefahren(2), rennstatus::offen);
}

TEST_F(Wettkampf2, SchnellsteRundeStehtErstDaWennEsEineGibt) {
    EXPECT_TRUE(w.label_best.sichtbar() && w.label_fahrer.sichtbar());
    t.p.wettkampfabend.beginnen(test::vereinswettkampf::neu(wettkampf_modus::rotation, 4, {1, 3}));
    EXPECT_EQ(w.label_best.text(), "99 : 99 , 999");
    EXPECT_FALSE(w.label_best.sichtbar() || w.label_fahrer.sichtbar() || w.Label1.sichtbar());
}

TEST_F(Wettkampf2, SagtWerWoAlsNaechsterFaehrtUndWerZeitHat) {
    wettkampf neu = test::vereinswettkampf::neu(wettkampf_modus::gruppen, 19, {2, 4});
    t.p.wettkampfabend.beginnen(std::move(neu));
    const startfeld danach = stand().plan.feld(2);
    for (const int spur : {2, 4}) {
        EXPECT_EQ(w.Label_danach_b[feld_index(spur)].text(), stand().name(danach[spur]));
    }
    EXPECT_EQ(w.Label_einsetzer_fahrer.text(),
              "Emil Lindner, Frieda, Gustav, Hilde, Fahrer 9, Fahrer 10, Fahrer 11 und 10 weitere");
    w.Command_aushang.klicken();
    EXPECT_TRUE(w.Frame_blick.sichtbar() && !w.Frame_liste.sichtbar());
    w.Command_aushang.klicken();
    EXPECT_TRUE(w.Frame_blick.sichtbar() && w.Frame_liste.sichtbar());
}

TEST_F(Wettkampf2, RundenMeterUndNamenWerdenBerichtigt) {
    t.p.param.spurlaenge[3] = 10.5;
    const fahrt vorher = (*stand().ergebnis(1))[3];
    w.List1.auswaehlen(0);
    w.Command13.klicken();
    w.rundenliste.auswaehlen(1);
    w.anz_runden[2].eingeben(std::to_string(vorher.runden + 2));
    w.Command_uebernehmen.klicken();
    EXPECT_EQ((*stand().ergebnis(1))[3], (fahrt{vorher.runden + 2, vorher.zeit, vorher.meter + 2100, vorher.beste}));
    w.anz_runden[2].eingeben("7");
    w.anz_meter[2].eingeben("80,25");
    w.Command_uebernehmen.klicken();
    EXPECT_EQ((*stand().ergebnis(1))[3], (fahrt{7, vorher.zeit, 8025, vorher.beste}));
    w.anz_runden[2].eingeben("9");
    w.anz_meter[2].eingeben("abc");
    w.Command_uebernehmen.klicken();
    EXPECT_NE(letzte_meldung().find("Hier steht keine Zahl."), std::string::npos);
    EXPECT_EQ((*stand().ergebnis(1))[3].runden, 7);
    w.Command_runden_fertig.klicken();
    EXPECT_TRUE(w.Frame_runden.sichtbar());
    w.anz_meter[2].eingeben("99");
    w.Command_runden_fertig.klicken();  // what was typed is not lost
    EXPECT_FALSE(w.Frame_runden.sichtbar());
    EXPECT_EQ(w.List1.markiert(), stand().aktuelles_rennen - 1) << "which comes next";
    w.List1.auswaehlen(0);
    EXPECT_EQ((*stand().ergebnis(1))[3], (fahrt{9, vorher.zeit, 9900, vorher.beste}));
    w.Command13.klicken();
    w.rundenliste.auswaehlen(1);
    w.anz_runden[2].eingeben("8");
    w.rundenliste.auswaehlen(0);
    EXPECT_EQ((*stand().ergebnis(1))[3].runden, 8);
    EXPECT_EQ(w.rundenliste.markiert(), 0);
    w.Command14.klicken();
    w.aendernliste.auswaehlen(1);
    w.neuer_name.eingeben("Anna");
    w.Command_umbenennen.klicken();
    EXPECT_EQ(letzte_meldung(), "Name in Liste enthalten: Anna");
    w.neuer_name.eingeben("Berta");
    w.Command_umbenennen.klicken();
    EXPECT_EQ(stand().name(1), "Anna");
    EXPECT_EQ(stand().name(2), "Berta");
    EXPECT_NE(w.List1.zeilen().at(0).find("Berta"), std::string::npos);
}

TEST_F(Wettkampf2, KeineZahlInDenRundenHaeltNurFestSolangeSieZuSehenIst) {
    w.List1.auswaehlen(0);
    w.Command13.klicken();
    w.rundenliste.auswaehlen(1);
    w.anz_runden[2].eingeben("");
    w.Command14.klicken();
    EXPECT_EQ(letzte_meldung(), "Runden, Spur 3: Hier steht keine Zahl.");
    EXPECT_TRUE(w.Frame_runden.sichtbar() && !w.aendernframe.sichtbar());
    t.p.fenster.neu_laden(fenstername::wettkampf2);
    EXPECT_FALSE(w.Frame_runden.sichtbar());
    w.List1.auswaehlen(1);
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U) << "nobody can mend it there";
}

TEST_F(Wettkampf2, GetippteRundenGehenMitKeinemBefehlVerloren) {
    int runden = 100;
    const auto tippen = [&](const std::string& text) {
        w.List1.auswaehlen(0);
        w.Command13.klicken();
        w.rundenliste.auswaehlen(1);
        w.anz_runden[2].eingeben(text);
        t.maschine.meldungen_gezeigt.clear();
        t.maschine.fragen_gestellt.clear();
    };
    t.maschine.antwort = false;
    for (befehl* knopf : {&w.Command4, &w.Command5, &w.Command8, &w.Command2}) {
        tippen("");
        knopf->klicken();
        EXPECT_EQ(letzte_meldung(), "Runden, Spur 3: Hier steht keine Zahl.");
        EXPECT_TRUE(t.maschine.fragen_gestellt.empty() && !offen(fenstername::bahn1) && !t.p.einst.w_autom);
        if (knopf == &w.Command5) {
            knopf->klicken();
            EXPECT_EQ(t.maschine.fragen_gestellt.size(), 1U) << "nobody is locked in";
        }
        tippen(std::to_string(++runden));
        knopf->klicken();
        EXPECT_EQ((*stand().ergebnis(1))[3].runden, runden);
        t.p.einst.w_autom = false;
    }
    EXPECT_TRUE(offen(fenstername::bahn1));
}

TEST_F(Wettkampf2, AbgeschnitteneDateiAendertNichts) {
    t.p.einst.w_zeit1 = 77s;
    t.p.wettkampfabend.aendern([](wettkampf&) { return true; });
    const std::string ganz = t.maschine.datei_lesen("Ergebnisse/Wettkampf/laufend.wtk");
    const std::string halb = ganz.substr(0, ganz.size() / 2);
    t.maschine.antwort = true;
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::ja;
    w.Command5.klicken();
    t.p.einst.w_zeit1 = 5s;
    for (const std::string& inhalt : {halb, ganz}) {
        t.p.form1.Command3.klicken();
        t.maschine.datei_schreiben("Ergebnisse/Wettkampf-Zwischenstand/Abend.wta", inhalt);
        t.p.wettkampf1.Command9.klicken();
        t.p.rundenspeichern.dateiliste.auswaehlen(0);
        t.p.rundenspeichern.Command1.klicken();
        EXPECT_EQ(t.p.wettkampfabend.wettkampf_aktiv(), inhalt == ganz);
        EXPECT_EQ(t.p.einst.w_zeit1, inhalt == ganz ? 77s : 5s);
        EXPECT_EQ(letzte_meldung(), t.p.txt.wettkampf.ladefehler);
    }
    t.maschine.datei_schreiben("Ergebnisse/Wettkampf/laufend.wtk", halb);
    t.maschine.fragen_gestellt.clear();
    programm neu(t.maschine.dienste());
    neu.starten();
    EXPECT_TRUE(t.maschine.fragen_gestellt.empty());
    EXPECT_TRUE(letzte_meldung().starts_with(neu.txt.wettkampf.ladefehler + "\n"));
    EXPECT_FALSE(neu.wettkampfabend.wettkampf_aktiv() || neu.ablage.gibt_es(laufender_wettkampf));
    EXPECT_NE(neu.einst.w_zeit1, 77s);
}

}  // namespace
}  // namespace tarvel
