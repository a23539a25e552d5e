#include "competition/wettkampf1.h"
#include "competition/wettkampf2.h"
#include "competition/wettkampfabend.h"
#include "competition/wettkampfdatei.h"
#include "competition/wettkampfspeicher.h"
#include "core/einstellungstabelle.h"
#include "core/hauptfensterdatei.h"
#include "core/nebendateien.h"
#include "core/text.h"
#include "programm/rennprotokoll.h"
#include "results/rundenspeichern.h"
#include "tests/wettkampfabend_probe.h"

namespace tarvel {
namespace {

/// An evening that comes back: behind an outage, ended early, or from its file.
using Wettkampfrueckkehr = test::Abendprobe;

TEST_F(Wettkampfrueckkehr, MitDemAbendGehtAuchSeinAbgeschnittenesRennenWeiter) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    rennen_fahren();
    ASSERT_TRUE(abend.rennen_starten());
    t.bahn().Command1.klicken();
    const zeit_ms beginn = t.maschine.jetzt();
    runden_fahren(1);
    const spuren<std::string> fahrer = t.p.param.fahrer_name;
    t.p.rennen.protokoll.aufhoeren();  // the power goes
    t.p.rennen.zeitgeber.alle_aus();

    t.maschine.antwort = true;
    t.maschine.fragen_gestellt.clear();
    programm neu(t.maschine.dienste());
    neu.starten();
    ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U) << "one question for both";
    EXPECT_NE(t.maschine.fragen_gestellt.front().text.find("wurde in Runde 2 unterbrochen"), std::string::npos);
    ASSERT_TRUE(neu.fenster.ist_offen(fenstername::bahn1));
    EXPECT_TRUE(neu.rennen.zustand.chaos_aktiv);
    EXPECT_EQ(neu.param.fahrer_name, fahrer);
    neu.k_ampel.Command1.klicken();
    t.maschine.laufen(7000);
    for (int runde = 2; runde <= 3; ++runde) {
        t.maschine.laufen(5500);
        for (const int spur : alle_spuren) {
            if (neu.param.spur_aktiv[spur]) {
                neu.rennen.befehle.taste('0' + spur);
                t.maschine.laufen(150);
            }
        }
    }
    ASSERT_TRUE(neu.fenster.ist_offen(fenstername::auswertung));
    neu.auswertung.Command5.klicken();
    EXPECT_EQ(neu.wettkampfabend.stand().aktuelles_rennen, 3);
    const auto& dauern = neu.wettkampfabend.stand().renndauern;
    ASSERT_EQ(dauern.size(), 2U);
    EXPECT_NEAR(static_cast<double>(dauern.back()), static_cast<double>(t.maschine.jetzt() - beginn), 500)
        << "before the outage it has lasted as well";
}

TEST_F(Wettkampfrueckkehr, AbgeschnittenerAbendWirdAngebotenUndGehtGleichWeiter) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    rennen_fahren();
    const wettkampf vorher = abend.stand();
    t.maschine.antwort = true;
    {
        programm neu(t.maschine.dienste());
        neu.starten();
        ASSERT_FALSE(t.maschine.fragen_gestellt.empty());
        EXPECT_EQ(t.maschine.fragen_gestellt.back().text,
                  "Der Wettkampf „Vereinsabend“ vom " + vorher.beginn + " wurde nicht beendet. Fortsetzen?");
        EXPECT_TRUE(neu.fenster.ist_offen(fenstername::wettkampf2));
        EXPECT_EQ(neu.wettkampfabend.stand(), vorher);
        EXPECT_EQ(neu.param.renn_laenge, rennziel::runden(3));
        EXPECT_EQ(neu.param.min_rundenzeit_ms, 5000) << "no margin in a competition";
        EXPECT_FALSE(neu.form1.Command1.bedienbar() && neu.form1.inhalt.aktiviert());
        neu.einst.hardware.hw_uart = true;
        neu.form1.taste_F1();
        EXPECT_FALSE(neu.fenster.ist_offen(fenstername::UART_Profildatei)) << "nobody sets the device up meanwhile";
        neu.einst.hardware.hw_uart = false;
        t.maschine.antwort = false;
        neu.form1.schliessen();
        EXPECT_TRUE(
            t.maschine.fragen_gestellt.back().text.starts_with("Der Wettkampf ist noch nicht beendet. Wirklich"));
        EXPECT_EQ(t.maschine.beendet, 0);
        t.maschine.antwort = true;
        neu.wettkampf2.Command5.klicken();
        EXPECT_TRUE(neu.fenster.ist_offen(fenstername::Form1));
        EXPECT_TRUE(neu.form1.inhalt.aktiviert());
        EXPECT_TRUE(neu.ablage.gibt_es(laufender_wettkampf)) << "the next start offers it again";
        neu.form1.command_fortsetzen.klicken();
        EXPECT_EQ(neu.wettkampfabend.stand(), vorher) << "and so does this program";
        neu.wettkampf2.Command5.klicken();
        neu.form1.Command3.klicken();
        neu.wettkampf1.Command17.klicken();
        neu.wettkampf1.Command3.klicken();
        ASSERT_NE(neu.wettkampfabend.stand(), vorher);
        const auto liegen = neu.ablage.auflisten("Ergebnisse\\Wettkampf", "nicht beendet ", ".wtk");
        EXPECT_EQ(liegen.size(), 1U) << "another evening does not write over it";
    }
    abend.aendern([](wettkampf&) { return true; });
    t.p.ablage.kopieren(laufender_wettkampf, "Ergebnisse\\Wettkampf-Zwischenstand\\Abend.wta");
    t.maschine.antwort = false;
    programm anderer(t.maschine.dienste());
    anderer.starten();
    EXPECT_FALSE(anderer.wettkampfabend.wettkampf_aktiv());
    EXPECT_FALSE(anderer.ablage.gibt_es(laufender_wettkampf)) << "not asked a second time";
    const auto liegen = anderer.ablage.auflisten("Ergebnisse\\Wettkampf", "nicht beendet ", ".wtk");
    ASSERT_EQ(liegen.size(), 2U);
    EXPECT_TRUE(anderer.ablage.gibt_es("Ergebnisse\\Papierkorb\\Abend.wta"));
    anderer.form1.Command3.klicken();
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;
    anderer.wettkampf1.Command9.klicken();
    anderer.rundenspeichern.dateiliste.auswaehlen(0);
    EXPECT_EQ(anderer.rundenspeichern.name.text(), liegen.front());
    anderer.rundenspeichern.Command1.klicken();
    EXPECT_EQ(anderer.wettkampfabend.stand(), vorher) << "an answer given too fast has lost nothing";
}

TEST_F(Wettkampfrueckkehr, GefahrenerAbendWirdNichtNochEinmalAngeboten) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    while (!abend.stand().ende_pruefen()) {
        rennen_fahren();
    }
    ASSERT_TRUE(t.p.ablage.gibt_es(laufender_wettkampf));
    t.p.form1.schliessen();
    EXPECT_EQ(t.maschine.beendet, 1);
    EXPECT_FALSE(t.p.ablage.gibt_es(laufender_wettkampf));
}

TEST_F(Wettkampfrueckkehr, SeineEinstellungenGeltenNurBisZuSeinemEnde) {
    t.p.einst.tank_inhalt = 44;
    t.p.einst.fruehstart_option = fruehstart_aktion::ohne;
    t.p.einst.s6.s6_option = true;
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    t.p.einst.fruehstart_strafzeit = 5s;
    rennen_fahren();
    t.maschine.antwort = false;
    programm neu(t.maschine.dienste());
    neu.starten();
    neu.einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    neu.einst.fruehstart_strafzeit = 3s;
    const int sonst = neu.einst.tank_inhalt;
    ASSERT_NE(sonst, 44);
    neu.form1.fahrer[0].eingeben("Gast");
    t.maschine.antwort = true;
    neu.form1.command_fortsetzen.klicken();
    EXPECT_EQ(neu.einst.tank_inhalt, 44);
    neu.wettkampf2.Command7.klicken();  // a driver comes late, and the operator is at the options
    std::get<haken>(neu.einstellungsfenster.zeile("sound_an").element).umschalten();
    neu.einstellungsfenster.Command1.klicken();
    const bool ton = neu.einst.sound_an;
    const auto in_der_datei = [&] {
        neu.datei.einstellungsdatei_einlesen(standard_einstellungen);
        return neu.datei.zeilen().at(z::tank_inhalt);
    };
    EXPECT_EQ(ganzzahl_lesen(in_der_datei(), 0, 999), sonst) << "the next start has nothing to do with the evening";
    EXPECT_NE(s6_laden(neu.ablage).zustand, "1") << "and asks for no mode";
    t.maschine.laufen(1000);
    EXPECT_EQ(neu.einst.tank_inhalt, 44);
    neu.startampel.entladen();  // leaves another power cut behind, for the evening alone
    EXPECT_EQ(neu.einst.fruehstart_strafzeit, dauer_hs(10));
    neu.wettkampf2.Command5.klicken();
    EXPECT_EQ(neu.einst.tank_inhalt, sonst);
    EXPECT_EQ(neu.einst.fruehstart_strafzeit, 3s);
    EXPECT_EQ(neu.einst.sound_an, ton);
    EXPECT_EQ(neu.form1.fahrer[0].text(), "Gast");
}

TEST_F(Wettkampfrueckkehr, WasImHauptfensterStandUeberlebtIhn) {
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    rennen_fahren();
    t.maschine.antwort = false;
    programm neu(t.maschine.dienste());
    neu.starten();
    neu.form1.fahrer[0].eingeben("Gast");
    neu.form1.renndauer.eingeben("7");
    neu.form1.felder_merken.umschalten();
    const auto gemerkt = [&neu] {
        renneinrichtung felder;
        hauptfenster_laden(neu.ablage, neu.txt, felder);
        return felder.bahn[1].fahrer + felder.dauer;
    };
    t.maschine.antwort = true;
    neu.form1.command_fortsetzen.klicken();
    ASSERT_NE(neu.form1.fahrer[0].text(), "Gast");
    ASSERT_TRUE(neu.wettkampfabend.rennen_starten());
    EXPECT_EQ(gemerkt(), "Gast7");
    neu.ablage.loeschen("tvk_hauptfenster.ini");
    neu.programm_beenden();
    EXPECT_EQ(gemerkt(), "Gast7");

    programm danach(t.maschine.dienste());
    danach.starten();
    ASSERT_TRUE(danach.wettkampfabend.wettkampf_aktiv());
    danach.wettkampf2.Command5.klicken();
    EXPECT_EQ(danach.form1.fahrer[0].text() + danach.form1.renndauer.text(), "Gast7");
}

TEST_F(Wettkampfrueckkehr, WasEinAndererAbendFuhrNimmtIhmSeinAbgebrochenesRennenNicht) {
    nur_eingaben = false;  // copies are driven by nobody
    const auto abbrechen = [this] {
        t.bahn().Command1.klicken();
        runden_fahren(1);
        t.rennabbruch();
    };
    t.maschine.antwort = true;
    t.p.form1.Command1.klicken();
    abbrechen();
    beginnen(wettkampf_modus::rotation, 3, {1, 2, 3});
    ASSERT_TRUE(abend.rennen_starten());
    abbrechen();
    const wettkampf unterwegs = abend.stand();
    abend.beenden();

    wettkampf anderer = test::wettkampf_mit(wettkampf_modus::rotation, 3, {1, 2, 3});
    anderer.wettkampf_name = "Finale";
    anderer.rennlaenge = unterwegs.rennlaenge;
    abend.beginnen(std::move(anderer));
    rennen_fahren();
    for (int lauf = 10; lauf < 35; ++lauf) {
        t.p.ablage.kopieren(t.p.rennprotokoll.dateiname(),
                            "Ergebnisse\\Protokoll\\2026-11-22 00-00-" + std::to_string(lauf) + ".txt");
    }
    abend.beenden();

    abend.beginnen(unterwegs);
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::ja;
    ASSERT_TRUE(abend.rennen_starten());
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    EXPECT_EQ(t.runden(1), 1);
    t.rennabbruch();
    abend.beenden();
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::nein;  // not the evening
    t.p.form1.command_fortsetzen.klicken();
    EXPECT_TRUE(offen(fenstername::bahn1));
    EXPECT_EQ(t.p.rennen.teil_von->kennung(), "einzelrennen");
}

TEST_F(Wettkampfrueckkehr, DasFinaleHatDieEinstellungenSeinesQualifyings) {
    t.p.einst.tank_inhalt = 44;
    beginnen(wettkampf_modus::rotation, 3, {1, 2});
    abend.aendern([](wettkampf& w) { return w.qualifying_an = true; });
    t.maschine.antwort = true;
    t.maschine.antwort_mit_ausweg = plattform::dreifache_antwort::ja;  // the evening is kept, its settings are taken
    for (const bool geladen : {false, true}) {
        programm neu(t.maschine.dienste());
        neu.starten();
        ASSERT_TRUE(neu.wettkampfabend.wettkampf_aktiv());
        t.p.ablage.kopieren(laufender_wettkampf, "Ergebnisse\\Wettkampf-Zwischenstand\\Abend.wta");
        neu.wettkampf2.Command5.klicken();
        ASSERT_TRUE(neu.fenster.ist_offen(fenstername::wettkampf1));
        t.maschine.laufen(1000);
        EXPECT_EQ(neu.einst.tank_inhalt, 44);
        if (geladen) {
            neu.wettkampf1.Command9.klicken();
            neu.rundenspeichern.dateiliste.auswaehlen(0);
            neu.rundenspeichern.Command1.klicken();
            ASSERT_TRUE(neu.fenster.ist_offen(fenstername::wettkampf2));
            neu.wettkampf2.Command5.klicken();
        }
        neu.wettkampf1.Command4.klicken();
        t.maschine.laufen(1000);
        EXPECT_EQ(neu.einst.tank_inhalt == 44, geladen) << "as the operator has loaded them, or those from before";
    }
}

TEST_F(Wettkampfrueckkehr, DasTempoDesAbendsHatSeinePausenUndUeberlebtDasProgramm) {
    beginnen(wettkampf_modus::rotation, 4, {1, 2});
    rennen_fahren();
    const zeit_ms ohne_pause = abend.stand().renndauern.front();
    t.maschine.laufen(60000);
    rennen_fahren();
    EXPECT_GE(abend.stand().renndauern.front(), ohne_pause + 60000);
    EXPECT_LT(abend.stand().renndauern.front(), ohne_pause + 61000);
    const auto noch = abend.blick().dauert_noch;
    ASSERT_TRUE(noch);
    EXPECT_EQ(*noch / 2, (abend.stand().renndauern.front() + abend.stand().renndauern.back()) / 2) << "two races more";
    auto gelesen = wettkampf_laden(t.p.datei, laufender_wettkampf, {}, t.p.txt, einstellungen_aus_datei::lassen,
                                   version_melden::nein);
    ASSERT_TRUE(gelesen);
    t.maschine.laufen(3600000);
    abend.beginnen(std::move(*gelesen));
    EXPECT_EQ(abend.blick().dauert_noch, noch);
    rennen_fahren();
    EXPECT_LT(abend.blick().dauert_noch, *noch) << "the time until it was taken up again is no race";
}

}  // namespace
}  // namespace tarvel
