#include "core/hauptfensterdatei.h"
#include "core/spurbesetzung.h"
#include "programm/rennprotokoll.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using namen = std::vector<std::string>;

TEST(Spurbesetzung, NiemandGehtVerlorenUndNiemandStehtDoppelt) {
    renneinrichtung e;
    e.bahn[1] = {true, "25", "Anna", "Viper"};
    e.bahn[2] = {true, "26", "Ben", "Corvette"};
    e.bahn[4] = {false, "28", "niemand", "Mini"};
    spuren_tauschen(e, 1, 4);
    EXPECT_TRUE(e.bahn[4].dabei && !e.bahn[1].dabei) << "who drives goes on driving";
    EXPECT_EQ(e.bahn[4].fahrer + e.bahn[4].fahrzeug + e.bahn[4].laenge, "AnnaViper28") << "the lane keeps its length";
    fahrer_setzen(e, 2, "Anna");
    EXPECT_EQ(e.bahn[2].fahrer, "Anna");
    EXPECT_EQ(e.bahn[4].fahrer, "Ben") << "goes where she comes from";
    EXPECT_EQ(e.bahn[2].fahrzeug, "Corvette");
    fahrer_setzen(e, 1, "Carl");
    EXPECT_TRUE(e.bahn[1].dabei);
}

TEST(Namensvorschlaege, NachWortanfaengenInDerFolgeDerNamen) {
    const namen alle{"Öztürk Ali", "Anna Müller", "Hans-Öle", "öland", "Annabell", "Marianna"};
    EXPECT_EQ(namensvorschlaege("ann", alle), (namen{"Anna Müller", "Annabell"})) << "not within a word";
    EXPECT_EQ(namensvorschlaege("ÖL", alle), (namen{"öland", "Hans-Öle"}));
    EXPECT_EQ(namensvorschlaege("mü", alle), (namen{"Anna Müller"}));
    EXPECT_EQ(namensvorschlaege("Annabell", alle), namen{}) << "nothing is left to complete";
    EXPECT_EQ(namensvorschlaege(" ", alle), namen{});
}

class Hauptfenster : public test::ProgrammProbe {
protected:
    form1& f = t.p.form1;

    std::size_t stelle(const std::string& name) {
        const auto& zeilen = f.fahrerreihe.zeilen();
        return static_cast<std::size_t>(std::find(zeilen.begin(), zeilen.end(), name) - zeilen.begin());
    }
    void neu_starten() {
        t.p.programm_beenden();
        zweites = std::make_unique<programm>(t.maschine.dienste());
        zweites->starten();
    }
    void lauf_fahren() {
        t.starten("Runden", "1", {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.maschine.laufen(200000);
        ASSERT_TRUE(offen(fenstername::auswertung));
    }
    std::unique_ptr<programm> zweites;
};

TEST_F(Hauptfenster, WerGeradeFuhrWirdZuerstAngebotenAuchNachDemNeustart) {
    f.fahrer[0].eingeben("Gast");
    t.einrichten("Runden", "5", {1, 3});
    t.rennabbruch();
    EXPECT_EQ(f.fahrer[1].vorschlagen("ga"), namen{"Gast"});
    EXPECT_EQ(f.fahrer[1].vorschlagen("fahrer").front(), "Fahrer 3");
    neu_starten();
    EXPECT_EQ(zweites->form1.fahrer[1].vorschlagen("GA"), namen{"Gast"});
    EXPECT_EQ(f.auto_[1].vorschlagen("standardf"), namen{"Standardfahrzeug"});
    t.maschine.datei_schreiben("tvk_fahrer.ini", std::string("\0\xFF\nGast\r\n\r\nGast\r\n", 17));
    zweites->zuletzt_gefahren.laden(zweites->ablage);
    EXPECT_EQ(std::count(zweites->zuletzt_gefahren.namen().begin(), zweites->zuletzt_gefahren.namen().end(), "Gast"),
              1);
}

TEST_F(Hauptfenster, FahrerKommenMitZifferEnterUndZugAufDieSpuren) {
    f.command_liste.klicken();
    ASSERT_TRUE(f.Frame_liste.sichtbar());
    for (std::size_t i = 0; i < 6; ++i) {
        f.fahrer[i].eingeben(i == 2 ? "kein Fahrer" : "Gast " + std::to_string(i));
        if (f.spur[i].gesetzt() != (i < 3)) {
            f.spur[i].umschalten();
        }
    }
    f.fahrerreihe.auswaehlen(static_cast<int>(stelle("Fahrer 4")));
    f.gewaehlten_auf_spur(0);
    EXPECT_EQ(f.fahrer[2].text(), "Fahrer 4") << "takes part and had nobody";
    f.fahrerreihe.auswaehlen(static_cast<int>(stelle("Fahrer 5")));
    f.fahrerreihe.doppelklicken(f.fahrerreihe.markiert());
    EXPECT_EQ(f.fahrer[3].text(), "Fahrer 5") << "all others have one: the next lane takes part";
    EXPECT_TRUE(f.spur[3].gesetzt() && f.lspur[3].aktiviert());
    f.gewaehlten_auf_spur(1);
    EXPECT_EQ(f.fahrer[0].text() + f.fahrer[3].text(), "Fahrer 5Gast 0");
    t.p.einst.rc.rc_ziel_sensor34 = true;
    f.leihspuren_sperren();
    f.gewaehlten_auf_spur(3);
    EXPECT_EQ(f.fahrer[2].text(), "Fahrer 4") << "a lane that is lent takes nobody";
    EXPECT_EQ(f.spur_schieben(2, 1), 5) << "and is passed over";
    EXPECT_EQ(f.fahrer[4].text(), "Gast 1");
    EXPECT_TRUE(f.spur[4].gesetzt() && !f.spur[1].gesetzt());
    EXPECT_EQ(f.spur_schieben(1, -1), 0);
}

TEST_F(Hauptfenster, EinAbgelegtesBildGehoertDemFahrerDerInDieListeKommt) {
    const std::filesystem::path bild = t.maschine.ordner() / "gast.jpg";
    t.maschine.datei_schreiben("gast.jpg", "\xFF\xD8\xFF\xE0 Bild");
    f.fahrer[0].eingeben("Gast");
    const std::size_t vorher = t.p.fahrerliste.eintraege().size();
    f.fahrerbild_ablegen("Gast", bild);
    EXPECT_EQ(f.fahrerbild[0].datei(), "pictures/Gast.jpg");
    EXPECT_EQ(f.fahrer[0].eintraege().back(), "Gast");
    EXPECT_NE(t.maschine.datei_lesen("Listen/fahrer.lst").find("Gast"), std::string::npos);
    f.fahrerbild_ablegen("Gast", bild);
    EXPECT_EQ(t.p.fahrerliste.eintraege().size(), vorher + 1);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    f.fahrerbild_ablegen("kein Fahrer", bild);
    f.fahrzeugbild_ablegen("Viper", t.maschine.ordner() / "Listen/fahrer.lst");
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 2U) << "nobody to take it, and no picture";
    EXPECT_FALSE(t.maschine.datei_da("pictures/kein Fahrer.jpg") || t.maschine.datei_da("slotcars/Viper.jpg"));
}

TEST_F(Hauptfenster, DasLetzteErgebnisOeffnetSichAlsBlattAuchAusDemPapierkorb) {
    EXPECT_FALSE(f.letzte_zeilen().front().da) << "says that there is none";
    lauf_fahren();
    t.p.auswertung.Command5.klicken();
    ASSERT_EQ(t.p.zuletzt_geschrieben.eintraege().size(), 1U);
    EXPECT_EQ(f.letzte_zeilen().front().text,
              "21.11.2026 14:03  ·  Rundenrennen  ·  Sieger: Fahrer 1, 1 Runde  2. Fahrer 2  ·  automatisch gesichert");
    neu_starten();  // what was saved by itself is tidied away
    ASSERT_TRUE(zweites->form1.letzte_zeilen().front().da);
    zweites->form1.letztes_oeffnen(0);
    EXPECT_TRUE(zweites->fenster.ist_offen(fenstername::w_auswertung2));
    EXPECT_EQ(zweites->w_auswertung2.gezeigt(), w_auswertung2::blick::blatt);
    zweites->w_auswertung2.schliessen();
    std::filesystem::remove_all(t.maschine.ordner() / "Ergebnisse/Papierkorb");
    EXPECT_FALSE(zweites->form1.letzte_zeilen().front().da);
    zweites->form1.letztes_oeffnen(0);
    zweites->form1.letztes_oeffnen(7);
    EXPECT_FALSE(zweites->fenster.ist_offen(fenstername::w_auswertung2));
}

TEST_F(Hauptfenster, LetzteErgebnisseSagenWasUndWer) {
    using art = ergebnisangabe::art;
    const auto sagen = [this](const std::string& text) {
        f.letzte_nennen = [text] { return std::vector<form1::letztes>{{text, true, false}}; };
        return f.letzte_zeilen().front().text;
    };
    const auto gesagt = [&](const ergebnisangabe& angabe) { return sagen(angabe.zeile()); };
    EXPECT_EQ(gesagt({"21.11.2026 14:03:22", art::wettkampf, "Pokal", 84, {"Anna", "Ben", "Cem", "Dora"}}),
              "21.11.2026 14:03  ·  Wettkampf Pokal  ·  Sieger: Anna, 84 Runden  2. Ben  3. Cem  …");
    EXPECT_TRUE(gesagt({"21.11.2026", art::zeitrennen, "", 9, {"Anna", std::string(30, 'B'), "Cem"}}).ends_with("…"))
        << "wider than the screen";
    EXPECT_EQ(gesagt({"21.11.2026", art::tagesrennen, "Samstag", 12, {"Anna"}}),
              "21.11.2026  ·  Tagesrennen Samstag  ·  In Führung: Anna, 12 Runden");
    EXPECT_EQ(gesagt({"21.11.2026", art::tagesrennen, "Samstag", 0, {}}), "21.11.2026  ·  Tagesrennen Samstag");
    EXPECT_EQ(gesagt({"21.11.2026 14:03", art::zeitrennen, "", 0, {"Anna", "Ben"}}),
              "21.11.2026 14:03  ·  Zeitrennen  ·  1. Anna  2. Ben")
        << "nobody has won";
    EXPECT_EQ(sagen("21.11.2026 14:03:22  ·  1. Anna  2. Ben"), "21.11.2026 14:03:22  ·  1. Anna  2. Ben")
        << "written by an older program";
}

TEST(LetzteErgebnisse, ZwanzigJedesEinmalUndWasUnlesbarIstFehlt) {
    test::test_plattform maschine;
    const dateien ablage{maschine.ordner()};
    letzte_ergebnisse alle;
    for (int i = 1; i <= 25; ++i) {
        alle.merken(ablage, {"Ergebnisse\\" + std::to_string(i) + ".csv", "Lauf " + std::to_string(i)});
    }
    alle.merken(ablage, {"Ergebnisse\\20.csv", "Lauf 20, neu"});
    alle.merken(ablage, {"Ergebnisse\\eigen.csv", "Lauf 24"});
    letzte_ergebnisse gelesen;
    gelesen.laden(ablage);
    EXPECT_EQ(gelesen.eintraege(), alle.eintraege());
    ASSERT_EQ(gelesen.eintraege().size(), 20U);
    EXPECT_EQ(gelesen.eintraege()[0].pfad, "Ergebnisse\\eigen.csv");
    EXPECT_EQ(gelesen.eintraege()[1].text, "Lauf 20, neu");
    EXPECT_EQ(gelesen.eintraege()[2].text, "Lauf 25");
    EXPECT_EQ(gelesen.eintraege()[3].text, "Lauf 23");
    maschine.datei_schreiben("tvk_zuletzt.ini", "..\\..\\fremd.csv\r\nx\r\na.csv\r\nLauf\r\nallein.csv\r\n");
    gelesen.laden(ablage);
    ASSERT_EQ(gelesen.eintraege().size(), 1U);
    EXPECT_EQ(gelesen.eintraege()[0].pfad, "a.csv");
    for (const char* name : {"selbst.csv", "eigen.csv"}) {
        gelesen.merken(ablage, {name, std::string(300, 'x')});
    }
    EXPECT_EQ(gelesen.eintraege().size(), 2U) << "one race, kept by itself and by hand";
}

TEST_F(Hauptfenster, AufWunschStehtEsWieBeimEndeUndDieEinstellungsdateiBleibt) {
    const auto umstellen = [](programm& p) {
        p.form1.rennart.eingeben("Runden");
        p.form1.renndauer.eingeben("17");
        p.form1.fahrer[1].eingeben("Gast");
        p.form1.lspur[1].eingeben("12,5");
    };
    umstellen(t.p);
    neu_starten();
    EXPECT_NE(zweites->form1.fahrer[1].text(), "Gast") << "nobody asked for it";
    const std::string einstellungen = t.maschine.datei_lesen("Einstellungen/einstellungen.ini");
    EXPECT_FALSE(zweites->form1.felder_merken.gesetzt());
    zweites->form1.felder_merken.umschalten();
    umstellen(*zweites);
    zweites->programm_beenden();
    programm drittes(t.maschine.dienste());
    drittes.starten();
    EXPECT_EQ(drittes.form1.rennart.text() + drittes.form1.renndauer.text(), "Runden17");
    EXPECT_EQ(drittes.form1.fahrer[1].text(), "Gast");
    EXPECT_EQ(drittes.form1.lspur[1].text(), "12.5");
    EXPECT_TRUE(drittes.form1.felder_merken.gesetzt());
    EXPECT_EQ(t.maschine.datei_lesen("Einstellungen/einstellungen.ini"), einstellungen);
}

TEST_F(Hauptfenster, EinRennenDasZweimalAbgeschnittenWurdeLaesstStehenWasGetipptWar) {
    t.starten("Runden", "10", {1, 2});
    t.runde_nach(4000, "12");
    t.rennabbruch();
    f.fahrer[0].eingeben("Gast");
    f.renndauer.eingeben("7");
    f.felder_merken.umschalten();
    neu_starten();
    t.maschine.antwort = true;
    zweites->form1.command_fortsetzen.klicken();
    zweites->rennprotokoll.sichern();
    zweites.reset();  // the power goes
    programm drittes(t.maschine.dienste());
    drittes.starten();
    ASSERT_TRUE(drittes.rennen.zustand.chaos_aktiv);
    ASSERT_EQ(drittes.form1.fahrer[0].text() + drittes.form1.renndauer.text(), "Fahrer 110");
    drittes.rennen.abbruchfrage.bestaetigen();
    t.maschine.laufen(1000);
    EXPECT_EQ(drittes.form1.fahrer[0].text() + drittes.form1.renndauer.text(), "Gast7");
}

TEST_F(Hauptfenster, FahrerVomLetztenMalWerdenAngebotenUndGehenUngefragtNichtVerloren) {
    f.rennart.eingeben("Runden");
    f.spur[3].umschalten();
    f.fahrer[0].eingeben("Anna");
    f.fahrer[1].eingeben("Jörg von der langen Geraden am Ende");
    neu_starten();
    const auto neu = [this] {
        zweites->programm_beenden();
        zweites = std::make_unique<programm>(t.maschine.dienste());
        zweites->starten();
        return &zweites->form1;
    };
    const form1* haupt = neu();  // who only looked in has lost nothing
    EXPECT_EQ(haupt->fahrer[0].text(), "Fahrer 1");
    EXPECT_TRUE(haupt->command_wieder.bedienbar());
    EXPECT_EQ(haupt->command_wieder.text(), "Wie beim letzten Mal: Anna, Jörg von der langen Geraden am Ende, …");
    zweites->form1.command_wieder.klicken();
    EXPECT_FALSE(haupt->command_wieder.sichtbar());
    EXPECT_EQ(haupt->rennart.text() + haupt->fahrer[0].text(), "RundenAnna");
    EXPECT_FALSE(haupt->spur[3].gesetzt() || haupt->fahrer[3].aktiviert());
    haupt = neu();
    EXPECT_TRUE(haupt->command_wieder.sichtbar());
    zweites->form1.fahrer[2].eingeben("C");
    EXPECT_FALSE(haupt->command_wieder.sichtbar()) << "somebody sets up another race";
    zweites->form1.fahrer[2].eingeben("Fahrer 3");
    haupt = neu();
    EXPECT_FALSE(haupt->command_wieder.sichtbar()) << "as in the settings file";
}

TEST_F(Hauptfenster, EinRennbeginnMerktDieFahrerUndNimmtDasAngebotWeg) {
    f.fahrer[0].eingeben("Anna");
    neu_starten();
    zweites->form1.Command3.klicken();
    EXPECT_TRUE(zweites->form1.command_wieder.sichtbar()) << "a competition has drivers of its own";
    zweites->wettkampf1.Command4.klicken();
    zweites->form1.Command1.klicken();
    zweites->rennen.befehle.fenster_schliessen();
    EXPECT_TRUE(zweites->form1.command_wieder.sichtbar()) << "only looked at";
    zweites->form1.Command1.klicken();
    zweites->rennen.bahn1.Command1.klicken();
    EXPECT_FALSE(zweites->form1.command_wieder.sichtbar());
    programm nach_dem_ausfall(t.maschine.dienste());
    t.maschine.antwort = false;
    nach_dem_ausfall.starten();
    EXPECT_FALSE(nach_dem_ausfall.form1.command_wieder.sichtbar()) << "those of the race that was begun";
}

TEST_F(Hauptfenster, EinWettkampfMerktDieFelderMitDenenErBegannUndNimmtDasAngebotWeg) {
    f.fahrer[0].eingeben("Anna");
    neu_starten();
    zweites->form1.renndauer.eingeben("7");
    zweites->form1.Command3.klicken();
    zweites->wettkampf1.Command17.klicken();
    zweites->wettkampf1.Command3.klicken();
    EXPECT_FALSE(zweites->form1.command_wieder.sichtbar());
    ASSERT_TRUE(zweites->wettkampfabend.rennen_starten());
    renneinrichtung felder;
    hauptfenster_laden(zweites->ablage, zweites->txt, felder);
    EXPECT_EQ(felder.dauer, "7");
}

TEST_F(Hauptfenster, DasAngebotFolgtDerSprache) {
    std::string worte;
    for (int zeile = 1; zeile < 48; ++zeile) {
        worte += "x\r\n";
    }
    t.maschine.datei_schreiben("language-en/language_m2.txt", worte + "nobody\r\n");
    t.maschine.datei_schreiben("language-en/language_m1.txt", "x\r\nStandard car\r\n");
    f.fahrer[0].eingeben("Anna");
    f.fahrer[1].eingeben("kein Fahrer");
    neu_starten();
    zweites->form1.sprache_waehlen(1);
    EXPECT_EQ(zweites->form1.command_wieder.text(), "Wie beim letzten Mal: Anna, Fahrer 3, Fahrer 4");
    zweites->form1.command_wieder.klicken();
    EXPECT_EQ(zweites->form1.fahrer[1].text() + ", " + zweites->form1.auto_[0].text(), "nobody, Standard car");
}

TEST_F(Hauptfenster, SpracheUndAussehenSindZurHandUndBleiben) {
    t.maschine.datei_schreiben("language-en/language_m2.txt", "x\r\nx\r\n\"Lane\"\r\n");
    t.maschine.datei_schreiben("language-en/language_m1.txt", "x\r\nStandard car\r\n");
    EXPECT_EQ(f.command_sprache.text() + f.command_aussehen.text(), "DeutschHell");
    EXPECT_EQ(f.sprachen().zeilen, (namen{"Deutsch", "English"}));
    f.command17.klicken();
    f.sprache_waehlen(1);
    EXPECT_EQ(f.command_sprache.text(), "Deutsch") << "an evening is of one language";
    t.p.tagesrennen_fenster.schliessen();
    f.sprache_waehlen(1);
    f.aussehen_waehlen(1);
    EXPECT_EQ(f.command_sprache.text() + f.command_aussehen.text(), "EnglishDunkel");
    EXPECT_EQ(f.spur[0].text() + f.auto_[0].text(), "Lane 1Standard car");
    neu_starten();
    EXPECT_EQ(zweites->form1.sprachen().gewaehlt, 1U);
    EXPECT_EQ(zweites->form1.aussehensarten().gewaehlt, 1U);
    EXPECT_EQ(zweites->form1.auto_[0].text(), "Standard car") << "its word was saved in another language";
    t.maschine.nicht_schreibbar = "tvk_anzeige.ini";
    zweites->form1.aussehen_waehlen(0);
    EXPECT_EQ(letzte_meldung(), t.p.txt.meldung[4]) << "in force, but not kept";
}

TEST(Hauptfensterdatei, WasBeschaedigtIstBleibtWieEsWar) {
    test::test_plattform maschine;
    const dateien ablage{maschine.ordner()};
    const texte txt;
    renneinrichtung e;
    e.dauer = "5";
    e.stunden = "0";
    e.bahn[1] = {true, "25", "Anna", "Viper"};
    maschine.datei_schreiben("tvk_hauptfenster.ini",
                             "Dauer=viele\r\nTanken=ja\r\nSpur1.dabei=\r\nSpur1.Laenge=123456789\r\nSpur9.Fahrer=X\r\n"
                             "=\r\nSpur1\r\nSpur1.Fahrer=\r\nMassstab=9999\r\nStunden=2\r\n");
    hauptfenster_laden(ablage, txt, e);
    EXPECT_EQ(e.dauer, "5");
    EXPECT_FALSE(e.tanken);
    EXPECT_TRUE(e.bahn[1].dabei);
    EXPECT_EQ(e.bahn[1].laenge, "25");
    EXPECT_EQ(e.bahn[1].fahrer, "kein Fahrer");
    EXPECT_EQ(e.massstab, "43") << "within what a settings file takes";
    EXPECT_EQ(e.stunden, "2");
}

}  // namespace
}  // namespace tarvel
