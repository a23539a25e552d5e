#include "hardware/tastatur.h"

#include "core/text.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Tastatur : public test::ProgrammProbe {
protected:
    feld& taste(int zeile) { return t.p.tastaturbelegung.taste.at(static_cast<std::size_t>(zeile)); }
};

TEST_F(Tastatur, PersoenlicherChaosknopfWirktNurAlsChaostaste) {
    constexpr int keine = tastenbelegung::keine_taste;
    for (const auto& [knopf, chaos, nacht] :
         {std::array<int, 3>{'1', 'c', 'n'}, {'y', keine, keine}, {'y', 'c', 'c'}}) {
        t.p.belegung.taste(56, knopf);  // of lane 3; '1' is lane 1's lap as well
        t.p.belegung.taste(tastenbelegung::zeile_chaos, chaos);
        t.p.belegung.taste(tastenbelegung::zeile_nacht, nacht);
        t.p.ereignisse.chaos_fahrer.fuellen(false);
        t.starten("Zeit", "5", {1});
        t.p.rennen.befehle.taste(knopf);
        t.maschine.laufen(1);
        EXPECT_TRUE(t.p.ereignisse.chaos_fahrer[3] && t.p.rennen.zustand.chaos_aktiv) << knopf;
        EXPECT_FALSE(t.bahn().Nachtabschaltung.sichtbar()) << knopf;
        EXPECT_EQ(t.runden(1), -1) << knopf;
        t.rennabbruch();
    }
}

TEST_F(Tastatur, NachtbildschirmNurImRennen) {
    const auto& nacht = t.bahn().Nachtabschaltung;
    t.p.einst.nachtrennen_modus = nachtrennen::rennen;
    t.starten("Zeit", "1", {1});
    for (const bool dunkel : {true, false}) {
        EXPECT_EQ(nacht.sichtbar(), dunkel);
        t.taste("n");
    }
    t.rennabbruch();
    EXPECT_FALSE(nacht.sichtbar()) << "it goes with its window";
    t.taste("n");
    EXPECT_FALSE(nacht.sichtbar());
}

TEST_F(Tastatur, AbzugstasteEinesAusgeschiedenenFaelltDurch) {
    t.p.belegung.taste(61, 'x');
    t.p.belegung.taste(42, 'x');
    t.starten("Zeit", "5", {1});
    t.taste("x");
    EXPECT_FALSE(t.p.ereignisse[42].aktiv);
    t.spur(1).disqualifiziert = true;
    t.taste("X");
    EXPECT_FALSE(t.p.ereignisse[42].aktiv) << "a capital is another key";
    t.taste("x");
    EXPECT_TRUE(t.p.ereignisse[42].aktiv);
}

TEST_F(Tastatur, JedeTasteInJedemZustandIstUngefaehrlich) {
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    const auto alle_tasten = [this] {
        for (int code = -1; code <= 256; ++code) {
            t.p.rennen.befehle.taste(code);
        }
        t.maschine.laufen(3);
    };
    t.einrichten("Zeit", "1", {1, 6});
    alle_tasten();
    t.bahn().Command1.klicken();
    alle_tasten();
    t.maschine.laufen(30000);
    alle_tasten();  // the chaos key among them: a pause, or its end
    t.rennende();
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    alle_tasten();
    t.p.auswertung.Command5.klicken();
    alle_tasten();
}

TEST_F(Tastatur, ZeitstempelKollidierenNicht) {
    zeitbasis& zeit = t.p.rennen.zeit;
    const zeit_ms jetzt = zeit.messzeit_lesen();
    std::vector<zeit_ms> zuschlaege(11);
    for (zeit_ms& zuschlag : zuschlaege) {
        zuschlag = zeit.ereignis_zeit_lesen() - jetzt;
    }
    EXPECT_EQ(zuschlaege, (std::vector<zeit_ms>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1}));
}

TEST_F(Tastatur, DateiHatIhreZeilenAnIhremPlatz) {
    t.p.belegung.vorbelegen(belegung_stufe::alle);
    const dateien ablage(t.maschine.ordner());
    ASSERT_TRUE(t.p.belegung.tastenbelegung_speichern(ablage));
    const std::string bytes = t.maschine.datei_lesen("tvk_taste.ini");
    EXPECT_EQ(bytes.substr(0, 12), " 99 \r\n 52 \r\n");  // row 1, then lane 4's lap in row 13
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 55);
}

TEST_F(Tastatur, BeschaedigteDateiLaesstDieStandardtasten) {
    const dateien ablage(t.maschine.ordner());
    std::string gut;
    for (int zeile = 0; zeile < 55; ++zeile) {
        gut += " 65 \r\n";
    }
    for (const std::string& kaputt :
         {std::string(), std::string("\0\xFF\xFE", 3), gut.substr(0, 300), "x" + gut, "-5\r\n" + gut, "\r\n" + gut}) {
        t.maschine.datei_schreiben("tvk_taste.ini", kaputt);
        tastenbelegung belegung;
        EXPECT_FALSE(belegung.tastenbelegung_laden(ablage));
        EXPECT_EQ(belegung.taste(16), '1');
    }
    t.maschine.datei_schreiben("tvk_taste.ini", "99999999999999999999\r\n0\r\n" + gut);
    tastenbelegung belegung;
    EXPECT_TRUE(belegung.tastenbelegung_laden(ablage));
    EXPECT_EQ(belegung.taste(1), tastenbelegung::keine_taste);
    EXPECT_EQ(belegung.taste(13), tastenbelegung::keine_taste);
    EXPECT_EQ(belegung.taste(14), 'A');
}

TEST_F(Tastatur, FensterUebernimmtUndSpeichert) {
    t.p.form1.command_tasten.klicken();
    EXPECT_EQ(taste(16).text(), "1");
    EXPECT_EQ(taste(61).text(), "");
    taste(16).eingeben("ß");
    taste(15).eingeben(" ");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Tastaturbelegung));
    EXPECT_EQ(t.p.belegung.taste(16), 0xDF);
    EXPECT_EQ(t.p.belegung.taste(15), tastenbelegung::keine_taste);

    programm spaeter(t.maschine.dienste());
    spaeter.starten();
    EXPECT_EQ(spaeter.belegung.taste(16), 0xDF);
}

TEST_F(Tastatur, FensterWeistDoppelteUndUngueltigeZeichenAb) {
    t.p.form1.command_tasten.klicken();
    taste(15).eingeben("1");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_EQ(letzte_meldung(), "Felder doppelt belegt!!!");
    EXPECT_EQ(t.p.tastaturbelegung.hinweis.text(), "1 – Spur 1/Auto 1: Rundenzählung, Spur 2/Auto 2: Rundenzählung");
    EXPECT_TRUE(taste(15).fokuswunsch_abholen());
    taste(15).eingeben("2");
    EXPECT_TRUE(t.p.tastaturbelegung.hinweis.text().starts_with("Je Feld")) << "the conflict has gone, and its note";
    taste(16).eingeben("2");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_TRUE(taste(16).fokuswunsch_abholen()) << "the one that was typed last";
    EXPECT_FALSE(taste(15).fokuswunsch_abholen());
    taste(16).eingeben("1");
    taste(15).eingeben("漢");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_EQ(letzte_meldung(), "Ungültiges Zeichen!!!");
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::Tastaturbelegung));
    t.p.tastaturbelegung.Command2.klicken();
    EXPECT_EQ(t.p.belegung.taste(15), '2') << "cancelling keeps the old keys";
    tastenbelegung gespeichert;
    EXPECT_TRUE(gespeichert.tastenbelegung_laden(dateien(t.maschine.ordner())));
    EXPECT_EQ(gespeichert.taste(15), '2');
}

TEST_F(Tastatur, FensterVorlagen) {
    t.p.form1.command_tasten.klicken();
    t.p.tastaturbelegung.Command3.klicken();
    EXPECT_EQ(taste(63).text(), "§");
    EXPECT_EQ(taste(42).text(), "");
    t.p.tastaturbelegung.Command4.klicken();
    EXPECT_EQ(taste(50).text(), "ü");
    EXPECT_EQ(taste(17).text(), "ß");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Tastaturbelegung)) << "a field has a key that another one has";
    t.p.form1.command_tasten.klicken();
    t.p.tastaturbelegung.Command5.klicken();
    EXPECT_EQ(taste(16).text(), "");
    t.p.belegung.taste(40, 'x');  // a row without a field, from a file
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_FALSE(t.p.belegung.ist_belegt('x'));
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    EXPECT_EQ(t.p.belegung.taste(16), tastenbelegung::keine_taste);
}

TEST_F(Tastatur, NichtSchreibbarMeldetSichUndBehaeltDieBelegung) {
    t.maschine.nicht_schreibbar = "tvk_taste.ini";
    t.p.form1.command_tasten.klicken();
    taste(16).eingeben("k");
    t.p.tastaturbelegung.Command1.klicken();
    EXPECT_EQ(letzte_meldung(), t.p.txt.meldung[4]);
    EXPECT_EQ(t.p.belegung.taste(16), 'k');
}

TEST_F(Tastatur, UeberfahrtHatDenAugenblickDesDrucks) {
    t.starten("Zeit", "5", {1, 2});
    t.runde_nach(1000, "12");
    t.maschine.laufen(8000);
    t.p.rennen.befehle.taste('1', 300);  // the program was busy
    t.maschine.laufen(1);
    EXPECT_EQ(t.p.rennen.zustand.konto.stempel(1, 1), t.maschine.jetzt() - 1 - 300);
    t.p.einst.chaosampel_an = false;
    t.p.einst.sensor_timeout = 2000ms;
    t.taste("c");
    t.maschine.laufen(3000);
    t.taste("c");
    ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(100);
    t.p.rennen.befehle.taste('2', 200);
    t.maschine.laufen(1);
    EXPECT_EQ(t.runden(2), 0) << "pushed over the line in the pause";
    t.p.rennen.befehle.taste('2', 50);
    t.maschine.laufen(1);
    EXPECT_EQ(t.runden(2), 1);
}

}  // namespace
}  // namespace tarvel
