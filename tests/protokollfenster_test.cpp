#include "results/protokollfenster.h"

#include <fstream>

#include "core/protokollordner.h"
#include "core/protokollzeile.h"
#include "programm/rennprotokoll.h"
#include "results/w_auswertung2.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class Protokollfenster : public test::ProgrammProbe {
protected:
    using f = protokollfenster;

    protokollfenster& fenster() { return t.p.protokollfenster; }
    void fahren() {
        t.p.einst.chaosampel_an = false;
        t.starten("Runden", "9", {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.runde_nach(1000, "1");
    }
    std::vector<std::string> zeilen() {
        std::vector<std::string> alle;
        for (std::size_t i = 0; i < fenster().zeilen().size(); ++i) {
            alle.push_back(std::to_string(fenster().zeile(i).spur) + " " + fenster().worte_von(fenster().zeile(i)));
        }
        return alle;
    }
    void nur(std::initializer_list<f::gruppe> gruppen) {
        for (haken& kasten : fenster().Check_gruppe) {
            kasten.gesetzt(false);
        }
        for (const f::gruppe g : gruppen) {
            fenster().Check_gruppe.at(g).umschalten();
        }
    }
};

TEST_F(Protokollfenster, InDerPauseOeffnetEsUndGehtMitIhrZu) {
    fahren();
    EXPECT_FALSE(t.bahn().Command_protokoll.sichtbar());
    t.maschine.laufen(3000);
    t.taste("c");
    t.bahn().Command_protokoll.klicken();
    ASSERT_TRUE(offen(fenstername::protokoll));
    EXPECT_TRUE(fenster().Command_weiter.sichtbar());
    EXPECT_EQ(fenster().Label_hinweis.text(), "1 Überfahrt nicht gezählt.");
    nur({f::abgelehnt, f::pausen});
    EXPECT_EQ(zeilen(), (std::vector<std::string>{"1 zu kurz: 1,000 s, gezählt wird ab 5,100 s", "0 Pause"}));
    t.maschine.laufen(4000);
    fenster().waehlen(1);
    t.runde_nach(0, "2");
    t.maschine.laufen(300);
    EXPECT_EQ(zeilen().back(), "2 nicht gezählt: Pause")
        << "what comes while it is open, though the race has still to note it";
    EXPECT_EQ(fenster().Label_hinweis.text(), "2 Überfahrten nicht gezählt.");
    EXPECT_EQ(fenster().gewaehlt(), 2) << "the last row was chosen, and is again";
    fenster().waehlen(0);
    t.runde_nach(1000, "1");
    t.maschine.laufen(300);
    EXPECT_EQ(zeilen().size(), 4U);
    EXPECT_EQ(fenster().gewaehlt(), 0) << "who looks at another row goes on looking at it";
    EXPECT_TRUE(offen(fenstername::protokoll));
    fenster().Command_weiter.klicken();
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv || t.bahn().Command_protokoll.sichtbar());
    t.maschine.laufen(100);
    EXPECT_FALSE(offen(fenstername::protokoll));
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    ASSERT_TRUE(offen(fenstername::protokoll));
    EXPECT_FALSE(fenster().Command_weiter.sichtbar());
    EXPECT_TRUE(offen(fenstername::auswertung));
}

TEST_F(Protokollfenster, GibtDerAmpelDenBlickFreiUndNenntDieZeitDerPause) {
    fahren();
    t.p.einst.chaosampel_an = true;
    t.taste("c");
    t.maschine.laufen(3000);
    t.bahn().Command_protokoll.klicken();
    fenster().Command_weiter.klicken();
    t.maschine.laufen(100);
    EXPECT_FALSE(offen(fenstername::protokoll));
    EXPECT_TRUE(offen(fenstername::k_ampel) && t.p.rennen.zustand.chaos_aktiv);
    t.bahn().Command_protokoll.klicken();
    EXPECT_FALSE(offen(fenstername::protokoll));
    t.maschine.laufen(10000);
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    EXPECT_EQ(fenster().Label_hinweis.text(),
              "1 Überfahrt nicht gezählt.  Die Zeiten gehen vom Grün an weiter; die Rennuhr stand in Pausen 0:10 "
              "still.");
}

TEST_F(Protokollfenster, SagtDassEineRundeAufDieTankstrafeWartet) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    fahren();
    t.spur(2).tank_inhalt = 1;
    t.runde_nach(1000, "2");
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    nur({f::tanken});
    EXPECT_EQ(zeilen().front(), "2 Tank leer: Strom aus, Runde 1 zählt erst nach der Strafe");
    EXPECT_EQ(t.p.auswertung.aus_straflabel[1].text(), "");
}

TEST_F(Protokollfenster, SagtDassDieTankstrafeDieLetzteRundeLaengerMacht) {
    t.p.form1.t_aktiv.umschalten();
    t.p.einst.tank_straf_option = leer_aktion::stromunterbrechung;
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "2");
    t.spur(2).tank_inhalt = 1;
    t.runde_nach(8000, "2");
    t.maschine.laufen(20000);
    ASSERT_TRUE(offen(fenstername::auswertung));
    t.p.auswertung.Command_protokoll.klicken();
    nur({f::tanken});
    EXPECT_EQ(zeilen().front(), "2 Tank leer: Strom aus, Runde 1 zählt erst nach der Strafe und wird um sie länger");
}

TEST_F(Protokollfenster, SpurUndArtWaehlenUndDieWahlBleibt) {
    fahren();
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    nur({f::runden, f::abgelehnt});
    EXPECT_EQ(zeilen().size(), 4U);
    fenster().waehlen(3);
    ASSERT_TRUE(fenster().zeile(3).ist_abgelehnt());
    fenster().cbo_spur.waehlen(1);
    EXPECT_EQ(zeilen().size(), 3U);
    EXPECT_EQ(fenster().gewaehlt(), 2) << "the same happening";
    fenster().Check_gruppe[f::abgelehnt].umschalten();
    EXPECT_EQ(fenster().gewaehlt(), -1);
    fenster().cbo_spur.waehlen(2);
    EXPECT_EQ(zeilen().size(), 1U);
}

TEST_F(Protokollfenster, AusschnittBleibtImRennenUndZeigtDieWahl) {
    fahren();
    t.maschine.laufen(60000);
    t.rennende();
    t.maschine.laufen(600000);  // they look at it, and somebody still has his car on the track
    t.taste("1");
    t.p.auswertung.liste[0].auswaehlen(0);
    t.p.auswertung.Command8.klicken();
    t.p.auswertung.Command_protokoll.klicken();
    const f::zeitraum alles = fenster().ganzes();
    EXPECT_GT(fenster().hergang().dauer(), 600000);
    EXPECT_LT(alles.bis, 75000) << "the race was over";
    EXPECT_EQ(fenster().ausschnitt(), alles);
    fenster().zoomen(2, 5000);
    EXPECT_EQ(fenster().ausschnitt(), alles);
    fenster().zoomen(0.25, 40000);
    const f::zeitraum teil = fenster().ausschnitt();
    EXPECT_NEAR(static_cast<double>(teil.dauer()), static_cast<double>(alles.dauer()) / 4, 1);
    EXPECT_TRUE(teil.von > 7000 && teil.bis < alles.bis);
    fenster().waehlen(fenster().naechste_zeile(1, 1100, 500));
    ASSERT_EQ(fenster().gewaehlt() >= 0, true);
    const zeit_ms zeit = fenster().zeile(static_cast<std::size_t>(fenster().gewaehlt())).seit_gruen;
    EXPECT_TRUE(zeit >= fenster().ausschnitt().von && zeit <= fenster().ausschnitt().bis);
    fenster().schieben(-1000000);
    EXPECT_EQ(fenster().ausschnitt().von, alles.von);
    fenster().zoomen(0, 0);
    EXPECT_EQ(fenster().ausschnitt().dauer(), 1000);
    fenster().Command_ganz.klicken();
    EXPECT_EQ(fenster().ausschnitt(), alles);
    EXPECT_EQ(fenster().naechste_zeile(2, 4000, 100), -1);
}

TEST_F(Protokollfenster, WaehltUnterAllenProtokollenAuchBeschaedigten) {
    t.p.w_auswertung2.Command_protokoll.klicken();
    EXPECT_EQ(fenster().Label_hinweis.text(), "Es gibt noch kein Protokoll.");
    t.p.fenster.entladen(fenstername::protokoll);
    fahren();
    t.maschine.datum_stellen({2026, 11, 21, 14, 5, 10});
    t.rennende();
    t.p.auswertung.Command5.klicken();
    const auto schreiben = [&](const std::string& name, const std::string& inhalt) {
        std::ofstream(t.p.ablage.pfad(std::string(protokoll_ordner) + "\\" + name), std::ios::binary) << inhalt;
    };
    const std::string name = t.p.rennprotokoll.dateiname();
    const std::string ganz = *protokoll_lesen(t.p.ablage, name.substr(name.rfind('\\') + 1));
    schreiben("2026-11-22 10-00-00.txt", ganz.substr(0, ganz.size() - 30));
    schreiben("2026-11-23 10-00-00.txt", "etwas anderes");
    t.p.w_auswertung2.Command_protokoll.klicken();
    ASSERT_EQ(fenster().List_dateien.zeilen().size(), 3U);
    EXPECT_TRUE(fenster().List_dateien.zeilen()[2].starts_with("21.11.2026 ab 14:03  Rennen über 9 Runden: "));
    EXPECT_EQ(fenster().Label_hinweis.text(), "Dieses Protokoll ist nicht lesbar oder aus einer anderen Version.");
    fenster().List_dateien.auswaehlen(1);
    EXPECT_NE(fenster().Label_hinweis.text().find("beschädigt"), std::string::npos);
    EXPECT_FALSE(zeilen().empty());
    fenster().List_dateien.auswaehlen(2);
    EXPECT_EQ(fenster().Label_hinweis.text(), "1 Überfahrt nicht gezählt.");
    EXPECT_TRUE(fenster().Label_kopf.text().starts_with("21.11.2026 14:03 bis 14:05  Rennen über 9 Runden: "))
        << "the end is what its result names: " << fenster().Label_kopf.text();
}

}  // namespace
}  // namespace tarvel
