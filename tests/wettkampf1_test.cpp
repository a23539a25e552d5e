#include "competition/wettkampf1.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using namen = std::vector<std::string>;

struct folgen_protokoll final : wettkampf1_folgen {
    std::vector<wettkampfvorgabe> begonnen;

    void beginnen(const wettkampfvorgabe& vorgabe) override { begonnen.push_back(vorgabe); }
    void laden() override {}
};

/// The window with windows of its own beside those of the program, after four lanes and five minutes were set up.
class Wettkampf1 : public test::ProgrammProbe {
protected:
    Wettkampf1() {
        einrichten({1, 2, 3, 4});
        w.oeffnen();
    }

    void einrichten(const std::vector<int>& spuren, std::string_view dauer = "5") {
        t.einrichten("Zeit", dauer, spuren);
        t.rennabbruch();
        t.p.form1.Command3.klicken();
        t.maschine.meldungen_gezeigt.clear();
        w.optionen_geschlossen();
    }
    static namen ohne_bilder(const teilnehmerliste& liste) {
        namen alle;
        for (const listeneintrag& eintrag : liste.eintraege()) {
            alle.push_back(eintrag.name);
        }
        return alle;
    }
    namen links() const { return ohne_bilder(w.gesamtliste()); }
    namen rechts() const { return ohne_bilder(w.teilnehmer()); }
    meldungen hinzufuegen(std::string_view name) {
        t.maschine.meldungen_gezeigt.clear();
        w.auswahl.eingeben(name);
        w.Command1.klicken();
        return t.maschine.meldungen_gezeigt;
    }
    void fahrer_bis(int anzahl) {
        for (int nummer = static_cast<int>(rechts().size()) + 1; nummer <= anzahl; ++nummer) {
            hinzufuegen("F" + std::to_string(nummer));
        }
    }
    void mit_datei(befehl& knopf, std::string_view datei) {
        knopf.klicken();
        dateiwahl.name.eingeben(datei);
        dateiwahl.Command1.klicken();
    }
    /// Messages of a start that does not come about.
    meldungen abgelehnt(befehl& knopf) {
        t.maschine.meldungen_gezeigt.clear();
        knopf.klicken();
        EXPECT_TRUE(folgen.begonnen.empty());
        return t.maschine.meldungen_gezeigt;
    }

    fensterregister eigene;
    fenster_umgebung welt{t.p.ablage, t.p.txt, eigene, t.p.dienste.meldungen};
    speichernfenster dateiwahl{welt, fenstername::fahrerspeichernfenster, "language\\language_s2.txt"};
    bildwahl bilder{welt};
    folgen_protokoll folgen;
    wettkampf1 w{{welt, t.p.einst, t.p.einrichtung, t.p.param, t.p.fahrerliste, t.p.zuletzt_gefahren, dateiwahl, bilder,
                  t.p.dienste.zufall, folgen}};
};

TEST_F(Wettkampf1, NamenOhneKommasUndKeinerDoppelt) {
    EXPECT_EQ(links(), (namen{"Fahrer 1", "Fahrer 2", "Fahrer 3", "Fahrer 4", "Fahrer 5", "Fahrer 6"}));
    EXPECT_EQ(hinzufuegen(" Müller, Hans "), meldungen{});
    EXPECT_EQ(w.auswahl.text(), "");
    EXPECT_EQ(hinzufuegen("Fahrer 2"), meldungen{});
    EXPECT_EQ(rechts(), (namen{"Müller Hans", "Fahrer 2"}));
    EXPECT_EQ(links().size(), 5U) << "who is typed is not to be chosen any more";
    EXPECT_EQ(hinzufuegen("Müller Hans,"), (meldungen{{"Name in Liste enthalten: Müller Hans", "Hinweis"}}));
    EXPECT_EQ(w.auswahl.text(), "Müller Hans,") << "stays in its field";
    EXPECT_EQ(hinzufuegen(" , "), meldungen{});
    for (const char* platzhalter : {"frei", "frei 1", "fre,i 2", "kein Fahrer", "{pic}"}) {
        EXPECT_EQ(hinzufuegen(platzhalter).size(), 1U) << platzhalter;
    }
    EXPECT_EQ(hinzufuegen("Freimut"), meldungen{});
    EXPECT_EQ(w.label_anzahl2.text(), "3 Fahrer");
    fahrer_bis(99);
    EXPECT_EQ(hinzufuegen("F100"), (meldungen{{"Rennliste voll.", "Hinweis"}}));
    w.Command17.klicken();
    EXPECT_EQ(rechts().size(), 99U);
    EXPECT_EQ(links().size(), 5U) << "nobody is lost";
}

TEST_F(Wettkampf1, ZwischenDenListenGehtNiemandVerloren) {
    const namen alle = links();
    w.rennliste.doppelklicken(1);
    w.rennliste.auswaehlen(0);
    w.Command16.klicken();
    EXPECT_EQ(rechts(), (namen{"Fahrer 2", "Fahrer 1"}));
    EXPECT_EQ(w.rennliste.markiert(), 0) << "the next one";
    w.auswahlliste.auswaehlen(1);
    EXPECT_EQ(w.rennliste.markiert(), -1);
    EXPECT_FALSE(w.Command12.aktiviert());
    w.Command10.klicken();
    EXPECT_EQ(rechts(), (namen{"Fahrer 1", "Fahrer 2"}));
    EXPECT_EQ(w.auswahlliste.markiert(), 0) << "goes with its driver";
    w.Command12.klicken();
    w.Command18.klicken();
    EXPECT_EQ(rechts(), namen{"Fahrer 2"});
    EXPECT_EQ(links().back(), "Fahrer 1");
    w.Command21.klicken();
    EXPECT_EQ(links(), namen{"Fahrer 2"});
    EXPECT_EQ(rechts().size(), 5U);
    w.Command15.klicken();
    EXPECT_EQ(rechts(), namen{"Fahrer 2"});
    w.Command17.klicken();
    EXPECT_EQ(rechts(), namen{"Fahrer 2"}) << "was there already";
    w.Command20.klicken();
    EXPECT_EQ(links(), rechts());
    w.Command7.klicken();
    EXPECT_EQ(rechts().size(), 1U) << "the answer was no";
    t.maschine.antwort = true;
    w.Command7.klicken();
    EXPECT_EQ(rechts(), namen{});
    w.Command4.klicken();
    w.oeffnen();
    EXPECT_EQ(links(), alle);
    w.Command17.klicken();
    for (const double zahl : {0.999, 0.4, 0.0}) {
        t.maschine.zufallszahl = zahl;
        w.Command13.klicken();
        namen sortiert = rechts();
        EXPECT_EQ(sortiert == alle, zahl == 0.999) << zahl;
        std::sort(sortiert.begin(), sortiert.end());
        EXPECT_EQ(sortiert, alle);
    }
}

TEST_F(Wettkampf1, ListenAusDateienWerdenGeprueft) {
    t.maschine.datei_schreiben(
        "Listen/wettkampf.lst",
        "Fahrerliste:\r\nAnna\r\nAn,na\r\n\r\nfrei 1\r\nFahrer 3\r\n{pic}\r\nanna\r\n{ende}\r\n");
    hinzufuegen("Berta");
    w.Command5.klicken();
    EXPECT_EQ(dateiwahl.name.text(), "wettkampf.lst");
    dateiwahl.Command1.klicken();
    EXPECT_EQ(rechts(), (namen{"Anna", "Fahrer 3"}));
    EXPECT_EQ(links(), (namen{"Fahrer 1", "Fahrer 2", "Fahrer 4", "Fahrer 5", "Fahrer 6", "Berta"}));
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_NE(letzte_meldung().find("\nAn,na\n\nfrei 1"), std::string::npos) << "who is left out is named";
    mit_datei(w.Command6, "abend");
    EXPECT_EQ(t.maschine.datei_lesen("Listen/abend.lst"),
              "Fahrerliste:\r\nAnna\r\nFahrer 3\r\n{pic}\r\nanna\r\n\r\n{ende}\r\n");
    mit_datei(w.Command23, "wettkampfliste.lst");
    t.maschine.datei_schreiben("Listen/kaputt.lst", "Fahrzeugliste:\r\nViper\r\n{pic}\r\n{ende}\r\n");
    mit_datei(w.Command5, "kaputt.lst");
    EXPECT_EQ(rechts().size(), 2U) << "as it was";
    w.Command19.klicken();
    mit_datei(w.Command22, "wettkampfliste.lst");
    EXPECT_EQ(links().back(), "Berta");
    EXPECT_EQ(rechts(), namen{});
}

TEST_F(Wettkampf1, BilderDerTeilnehmer) {
    t.maschine.datei_schreiben("pictures/Anna.jpg", "\xFF\xD8\xFF\xE0");
    hinzufuegen("Anna");
    hinzufuegen("Berta");
    w.Command14.klicken();
    EXPECT_EQ(letzte_meldung(), "Zugeordnete Bilder: 1");
    w.auswahlliste.auswaehlen(0);
    EXPECT_EQ(w.Image1.datei(), "pictures/Anna.jpg");
    w.auswahlliste.auswaehlen(1);
    EXPECT_EQ(w.Image1.datei(), "pictures/nopic.jpg");
    w.auswahl.eingeben("Carla");
    EXPECT_EQ(w.Label_bild.text(), "Carla") << "whose name is typed";
    w.auswahl.eingeben("");
    w.Command24.klicken();
    EXPECT_TRUE(eigene.ist_offen(fenstername::fahrerbild_laden));
    bilder.datei.auswaehlen(0);
    bilder.Command1.klicken();
    EXPECT_EQ(w.Image1.datei(), "pictures/Berta.jpg");
    w.Command3.klicken();
    ASSERT_EQ(folgen.begonnen.size(), 1U);
    EXPECT_EQ(folgen.begonnen[0].bilder, (namen{"pictures/Anna.jpg", "pictures/Berta.jpg"}));
}

TEST_F(Wettkampf1, OhneFahrerOderSpurenBeginntNichts) {
    hinzufuegen("Anna");
    for (befehl* knopf : {&w.Command3, &w.Command11}) {
        EXPECT_EQ(abgelehnt(*knopf), (meldungen{{"Es wurden nicht genügend Fahrer eingegeben.", "Hinweis"}}));
    }
    fahrer_bis(11);
    einrichten({});
    EXPECT_EQ(abgelehnt(w.Command3), (meldungen{{"Es wurden nicht genügend Spuren ausgewählt.", "Hinweis"}}));
    t.p.einst.w_wechselmodus = wechselweise::jeder_gegen_jeden;
    EXPECT_EQ(abgelehnt(w.Command3),
              (meldungen{{"Für Wettkampf 'Jeder vs. Jeder' nicht mehr als 10 Fahrer eingeben.", "Hinweis"}}));
    w.auswahlliste.auswaehlen(10);
    w.Command2.klicken();
    einrichten({2, 3, 5});
    EXPECT_EQ(abgelehnt(w.Command3),
              (meldungen{{"Für Wettkampf 'Jeder vs. Jeder' bitte 2 Spuren auswählen.", "Hinweis"}}));
    EXPECT_EQ(w.plan_hinweis.text(), "Für Wettkampf 'Jeder vs. Jeder' bitte 2 Spuren auswählen.");
    einrichten({2, 5});
    EXPECT_EQ(w.plan_wert[wettkampf1::plan_rennen].text(), "90");
    w.auswahl.eingeben("Anna");
    EXPECT_EQ(abgelehnt(w.Command3).size(), 1U) << "a name that is typed is meant to take part";
    w.auswahl.eingeben("");
    w.Command3.klicken();
    EXPECT_EQ(folgen.begonnen.size(), 1U);
}

TEST_F(Wettkampf1, UeberzaehligeWerdenErstGenannt) {
    fahrer_bis(98);
    einrichten({1, 2, 3, 4, 5, 6});
    abgelehnt(w.Command3);
    ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    EXPECT_NE(t.maschine.fragen_gestellt[0].text.find("96"), std::string::npos);
    EXPECT_NE(t.maschine.fragen_gestellt[0].text.find("\nF97\nF98"), std::string::npos);
    t.maschine.antwort = true;
    w.Text1.eingeben("Pokal, Runde 1");
    w.Command11.klicken();
    ASSERT_EQ(folgen.begonnen.size(), 1U);
    const wettkampfvorgabe& v = folgen.begonnen[0];
    EXPECT_EQ(v.titel, "Pokal Runde 1");
    EXPECT_TRUE(v.qualifying);
    EXPECT_EQ(v.fahrer.size(), 96U);
    EXPECT_EQ(v.fahrer.back(), "F96");
    EXPECT_EQ(v.plan.fahrer, 96);
    EXPECT_EQ(rechts().size(), 98U);
}

TEST_F(Wettkampf1, ZeigtWasFuerEinAbendEsWird) {
    const auto wert = [this](wettkampf1::planzeile zeile) { return w.plan_wert.at(zeile).text(); };
    t.p.einst.gruppen = {true};
    fahrer_bis(5);
    einrichten({1, 4}, "2,30");
    EXPECT_EQ(wert(wettkampf1::plan_art), "feste Gruppen im Wechsel");
    EXPECT_EQ(wert(wettkampf1::plan_spuren), "2");
    EXPECT_TRUE(w.spurfarbe[3].sichtbar() && !w.spurfarbe[1].sichtbar());
    EXPECT_EQ(wert(wettkampf1::plan_rennen), "6");
    EXPECT_EQ(wert(wettkampf1::plan_je_fahrer), "2");
    EXPECT_EQ(wert(wettkampf1::plan_frei), "1");
    EXPECT_EQ(wert(wettkampf1::plan_laenge), "2:30 min");
    EXPECT_EQ(wert(wettkampf1::plan_dauer), "15 min");
    t.p.einst.gruppen = {true, false, true};
    t.p.einst.centermode = true;
    einrichten({1, 4}, "30");
    EXPECT_EQ(wert(wettkampf1::plan_rennen), "3 × 2 Teile");
    EXPECT_EQ(wert(wettkampf1::plan_je_fahrer), "2");
    EXPECT_EQ(wert(wettkampf1::plan_dauer), "3 h 0 min");
}

TEST_F(Wettkampf1, QualifyingOrdnetDieStartliste) {
    t.maschine.datei_schreiben("pictures/F2.jpg", "\xFF\xD8\xFF\xE0");
    fahrer_bis(4);
    w.Command14.klicken();
    w.qualifying_uebernehmen({"F3", "frei 1", "F2", "F2", "Umbenannt", "F1"});
    EXPECT_EQ(rechts(), (namen{"F3", "F2", "Umbenannt", "F1"}));
    EXPECT_EQ(w.teilnehmer().eintraege()[1].bild, "F2");
}

TEST_F(Wettkampf1, VomHauptfensterUndZurueckAusDenEinstellungen) {
    t.p.form1.renndauer.eingeben("0");
    t.p.wettkampf1.Command4.klicken();
    EXPECT_FALSE(offen(fenstername::wettkampf1));
    t.p.form1.Command3.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt,
              (meldungen{{"Unzulässige Zeit-/ Rundenangaben, Werte bitte überprüfen.", "Fehlermeldung"}}));
    EXPECT_FALSE(offen(fenstername::wettkampf1));
    einrichten({});
    EXPECT_TRUE(offen(fenstername::wettkampf1)) << "lanes are counted by the plan";
    EXPECT_EQ(t.p.param.min_rundenzeit_ms, 5000) << "no margin of a race of its own";
    wettkampf1& fenster = t.p.wettkampf1;
    fenster.Command8.klicken();
    einstellungsfenster& optionen = t.p.einstellungsfenster;
    EXPECT_TRUE(optionen.seitenrahmen[einstellungsfenster::seite_wettkampf].sichtbar());
    std::get<haken>(optionen.zeile("wechselcheck1").element).umschalten();
    optionen.fahrerseite.name.eingeben("Käthe");
    optionen.Command1.klicken();
    EXPECT_EQ(fenster.plan_wert[wettkampf1::plan_art].text(), "feste Gruppen im Wechsel");
    EXPECT_EQ(fenster.rennliste.zeilen().back(), "Käthe");
}

}  // namespace
}  // namespace tarvel
