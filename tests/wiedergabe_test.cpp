#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/protokollordner.h"
#include "programm/ergebnisvergleich.h"
#include "programm/wiedergabe.h"
#include "tests/plattform/neustart.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

std::string mit_schraegstrich(std::string name) {
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

/// All that the race window shows of the race.
std::string bild(rennen& r) {
    const bahn1& b = r.bahn1;
    std::string alles;
    for (const rennuhr_felder* uhr : {&b.uhr1, &b.uhr2}) {
        alles += uhr->stunden.text() + ":" + uhr->minuten.text() + ":" + uhr->sekunden.text() + "," +
                 uhr->tausendstel.text() + "\n";
    }
    for (const int spur : alle_spuren) {
        const std::size_t i = feld_index(spur);
        alles += b.zaehler[spur].text() + " " + b.lrunde[spur].text() + " " + b.brunde[spur].text() + " " +
                 b.l_PosAnz.at(i).text() + " " + b.t_bahn[spur].text() + " " + b.straflabel[spur].text();
        for (const std::string& zeile : b.t_liste.at(i).zeilen()) {
            alles += "|" + zeile;
        }
        alles += "\n";
    }
    return alles + b.Command3.text() + (r.zustand.chaos_aktiv ? " pause" : "");
}

class Wiedergabe : public test::ProgrammProbe {
protected:
    Wiedergabe() {
        t.p.einst.sensor_timeout = 0ms;
        t.p.form1.wertmin.eingeben("1");
        t.p.einst.aut_speichern = true;
        t.p.form1.t_aktiv.umschalten();
    }

    /// Laps, refuelling and a pause on two lanes; its log, its name below the program folder.
    std::string fahren() {
        t.starten("Zeit", "2", {1, 2});
        for (int runde = 0; runde < 5; ++runde) {
            t.runde_nach(6000 + 37 * runde, "12");
        }
        t.taste("q");
        t.maschine.laufen(2500);
        t.taste("q");
        t.bahn().Command3.klicken();
        t.maschine.laufen(7000);
        t.bahn().Command3.klicken();
        t.maschine.laufen(10000);
        while (!t.p.rennen.zustand.rennen_beendet) {
            t.runde_nach(7100, "21");
        }
        return t.p.rennprotokoll.dateiname();
    }
    std::string inhalt(const std::string& name) { return t.maschine.datei_lesen(mit_schraegstrich(name)); }
    void ergebnis_verlassen() { t.p.auswertung.Command5.klicken(); }
};

TEST_F(Wiedergabe, SpringenHinUndZurueckZeigtDasselbe) {
    const std::string name = fahren();
    const std::string log = inhalt(name);
    rennspieler einer(t.maschine.ordner(), log);
    ASSERT_EQ(einer.wie(), rennspieler::gueltigkeit::ganz);
    EXPECT_FALSE(einer.vor(einer.ende(), 20)) << "a stretch at a time";
    EXPECT_TRUE(einer.vor(einer.ende(), 1000000));
    EXPECT_EQ(bild(einer.rennen()), bild(t.p.rennen)) << "the race as it stands";
    for (const zeit_ms stelle : {33000, 61234, 500}) {
        rennspieler schrittweise(t.maschine.ordner(), log);
        for (zeit_ms bis = 0; bis <= stelle; bis += 10) {
            schrittweise.vor(schrittweise.anfang() + bis, 1000000);
        }
        einer.von_vorn();
        einer.alten_vergessen();
        einer.vor(einer.anfang() + stelle, 1000000);
        schrittweise.vor(schrittweise.anfang() + stelle, 1000000);
        EXPECT_EQ(bild(einer.rennen()), bild(schrittweise.rennen())) << stelle;
        EXPECT_FALSE(einer.abgewichen() || schrittweise.abgewichen());
    }
    t.maschine.laufen(600000);
    EXPECT_LT(rennspieler(t.maschine.ordner(), inhalt(name)).ende(), einer.ende() + 6000)
        << "somebody reads the result";
    EXPECT_NE(einer.rennen().bahn1.uhr1.sekunden.text(), "00") << "the clock runs between two happenings";
}

TEST_F(Wiedergabe, EinePauseZeigtWerSchuldWar) {
    t.p.einst.chaos_strafzeit = 3s;
    t.starten("Zeit", "2", {1, 2});
    std::vector<zeit_ms> mitten;
    const zeit_ms beginn = t.p.rennen.protokoll.beginn();
    for (const int schuldiger : {2, 0, 1}) {
        t.runde_nach(6000, "12");
        t.bahn().Command3.klicken();
        t.maschine.laufen(7000);
        mitten.push_back(t.maschine.jetzt() - beginn);
        if (schuldiger > 0) {
            t.bahn().ch_strafzeit_hacken[schuldiger].umschalten();
            t.bahn().ch_Text1.eingeben("8");
        }
        t.bahn().Command3.klicken();
        t.maschine.laufen(10000);
    }
    rennspieler s(t.maschine.ordner(), inhalt(t.p.rennprotokoll.dateiname()));
    const bahn1& bahn = s.rennen().bahn1;
    const auto haken = [&bahn] {
        return std::pair(bahn.ch_strafzeit_hacken[1].gesetzt(), bahn.ch_strafzeit_hacken[2].gesetzt());
    };
    s.vor(mitten[0], 1000000);
    EXPECT_EQ(haken(), std::pair(false, true));
    EXPECT_EQ(bahn.ch_Text1.text(), "8");
    s.vor(mitten[1] - 10000, 1000000);
    EXPECT_EQ(haken(), std::pair(false, false)) << "the race goes on";
    s.vor(mitten[1], 1000000);
    EXPECT_EQ(haken(), std::pair(false, false));
    s.vor(mitten[2], 1000000);
    EXPECT_EQ(haken(), std::pair(true, false));
    EXPECT_FALSE(s.abgewichen());
}

TEST_F(Wiedergabe, LaeuftMitSeinemTempoUndHaeltAmEnde) {
    const std::string name = fahren();
    ergebnis_verlassen();
    tarvel::wiedergabe& w = t.p.wiedergabe;
    const auto dateien_vorher = t.p.ablage.auflisten("Ergebnisse\\Protokoll", "", "");
    w.zeigen(name);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::wiedergabe));
    const auto gelaufen = [&](zeit_ms dauer) {
        const zeit_ms vorher = w.spieler()->stelle();
        t.maschine.laufen(dauer);
        return w.spieler()->stelle() - vorher;
    };
    EXPECT_EQ(gelaufen(1000), 0);
    w.Command_spielen.klicken();
    EXPECT_NEAR(static_cast<double>(gelaufen(2000)), 2000, 20);
    w.tempo[2].umschalten();
    EXPECT_NEAR(static_cast<double>(gelaufen(2000)), 32000, 320);
    w.Command_spielen.klicken();
    EXPECT_EQ(gelaufen(500), 0);
    w.leiste.greifen(20000);
    t.maschine.laufen(50);
    EXPECT_EQ(w.spieler()->stelle(), 20000);
    w.Command_naechste.klicken();
    t.maschine.laufen(50);
    const zeit_ms marke = w.spieler()->stelle();
    EXPECT_GT(marke, 20000);
    w.Command_naechste.klicken();
    t.maschine.laufen(50);
    w.Command_vorige.klicken();
    t.maschine.laufen(50);
    EXPECT_EQ(w.spieler()->stelle(), marke);
    w.Command_spielen.klicken();
    t.maschine.laufen(60000);
    EXPECT_FALSE(w.spielt());
    EXPECT_EQ(w.spieler()->stelle(), w.spieler()->ende());
    EXPECT_EQ(t.p.ablage.auflisten("Ergebnisse\\Protokoll", "", ""), dateien_vorher);
    t.starten("Zeit", "1", {1});
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::wiedergabe)) << "a race goes before";
    w.zeigen(name);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::wiedergabe));
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
}

TEST_F(Wiedergabe, BeginntVorDerGewaehltenZeileUndUebergehtNurWasSteht) {
    t.p.einst.chaosampel_an = false;
    t.starten("Zeit", "2", {1, 2});
    t.runde_nach(6000, "12");
    t.bahn().Command3.klicken();
    t.maschine.laufen(100000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(30000);  // nobody comes over the line, and the clock runs
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    protokollfenster& protokoll = t.p.protokollfenster;
    int zeile = 0;
    while (protokoll.zeile(static_cast<std::size_t>(zeile)).was != vorgang::pause) {
        ++zeile;
    }
    protokoll.waehlen(zeile);
    protokoll.Command_wiedergabe.klicken();
    tarvel::wiedergabe& w = t.p.wiedergabe;
    t.maschine.laufen(50);
    const zeit_ms pause = protokoll.zeile(static_cast<std::size_t>(zeile)).zeit;
    EXPECT_EQ(w.spieler()->stelle(), pause - 2000);
    w.Command_spielen.klicken();
    t.maschine.laufen(4900);
    EXPECT_TRUE(w.spieler()->stelle() < pause + 3000);
    t.maschine.laufen(200);
    EXPECT_NEAR(static_cast<double>(w.spieler()->stelle()), static_cast<double>(pause) + 100000 - 9000, 200);
    EXPECT_EQ(w.Label_zeit.text(), "Stillstand von 0:01:28 übersprungen");
    const zeit_ms danach = w.spieler()->stelle();
    t.maschine.laufen(20000);
    EXPECT_NEAR(static_cast<double>(w.spieler()->stelle() - danach), 20000, 100);
    EXPECT_NE(w.Label_zeit.text().find("mit Ampel und Pausen"), std::string::npos);
}

TEST_F(Wiedergabe, ImAusfallStehtDasRennen) {
    t.p.einst.zielmodus_erster = true;
    t.starten("Runden", "4", {1, 2});
    t.runde_nach(6000, "12");
    t.runde_nach(6100, "12");
    t.maschine.laufen(2000);
    test::neustart spaeter(t, test::protokoll_von(t));
    spaeter.maschine.datum_stellen({2026, 11, 21, 14, 23, 22});
    spaeter.p.starten();
    spaeter.maschine.laufen(3000);
    spaeter.weiter();
    ASSERT_FALSE(spaeter.lauf().zustand.chaos_aktiv);
    rennspieler s(spaeter.maschine.ordner(),
                  spaeter.maschine.datei_lesen(mit_schraegstrich(spaeter.p.rennprotokoll.dateiname())));
    ASSERT_EQ(s.wie(), rennspieler::gueltigkeit::ganz);
    const auto pause = std::find_if(s.marken().begin(), s.marken().end(),
                                    [](const auto& m) { return m.was == rennspieler::marke::sorte::pause; });
    ASSERT_NE(pause, s.marken().end());
    EXPECT_NEAR(static_cast<double>(pause->bei - s.anfang()), 14100, 500) << "from when it went away";
    s.vor(pause->bei, 1000000);
    EXPECT_FALSE(s.rennen().zustand.chaos_aktiv);
    s.vor(pause->bei + 10, 1000000);
    EXPECT_TRUE(s.rennen().zustand.chaos_aktiv) << "nobody waits for an hour without power";
    EXPECT_GT(s.stelle(), pause->bei + 60000);
}

TEST_F(Wiedergabe, BeschaedigtesLaeuftSoWeitEsGutIstUndFremdesGarNicht) {
    const std::string log = inhalt(fahren());
    ergebnis_verlassen();
    std::string krank = log;
    krank[krank.size() / 2] ^= 1;
    t.maschine.datei_schreiben("Ergebnisse/Protokoll/krank.txt", krank);
    t.p.wiedergabe.zeigen("Ergebnisse\\Protokoll\\krank.txt");
    ASSERT_NE(t.p.wiedergabe.spieler(), nullptr);
    EXPECT_TRUE(t.p.wiedergabe.hinweis.sichtbar());
    t.p.wiedergabe.spieler()->vor(1000000, 1000000);
    EXPECT_FALSE(t.p.wiedergabe.spieler()->abgewichen());
    EXPECT_GT(t.p.wiedergabe.spieler()->rennen().zustand.konto.runden(1), 0);
    t.maschine.datei_schreiben("Ergebnisse/Protokoll/fremd.txt", "# Tarvel-Rennprotokoll 2*0000\r\n");
    for (const char* name : {"Ergebnisse\\Protokoll\\fremd.txt", "Ergebnisse\\Protokoll\\keines.txt"}) {
        t.maschine.meldungen_gezeigt.clear();
        t.p.wiedergabe.zeigen(name);
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::wiedergabe));
        EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    }
}

TEST_F(Wiedergabe, ZumGezeigtenErgebnisOeffnetSichSeinProtokollUndNichtDasNeueste) {
    fahren();
    ergebnis_verlassen();
    t.maschine.datum_stellen({2026, 11, 22, 10, 0, 0});
    fahren();
    ergebnis_verlassen();
    const auto dateien = t.p.ablage.auflisten("Ergebnisse\\auto-Einzelrennen", "", "");
    ASSERT_EQ(dateien.size(), 2U);
    const auto protokoll_von = [this](const std::string& datei) {
        w_auswertung2& w = t.p.w_auswertung2;
        w.datei_zeigen(datei);
        t.p.protokollfenster.List_dateien.markieren(-1);
        w.Command_protokoll.klicken();
        const int zeile = t.p.protokollfenster.List_dateien.markiert();
        t.p.protokollfenster.schliessen();
        w.schliessen();
        return zeile;
    };
    const std::string von_selbst = "Ergebnisse\\auto-Einzelrennen\\";
    EXPECT_EQ(protokoll_von(von_selbst + dateien.front()), 1);
    const std::string weg = "Ergebnisse\\Papierkorb\\" + dateien.front();
    ASSERT_TRUE(t.p.ablage.kopieren(von_selbst + dateien.front(), weg));
    EXPECT_EQ(protokoll_von(weg), 1) << "moved";
    const std::string andere = von_selbst + dateien.back();
    ASSERT_TRUE(t.p.ablage.loeschen(andere) && t.p.ablage.kopieren(weg, andere));
    EXPECT_EQ(protokoll_von(andere), 1) << "written over another race";
}

TEST_F(Wiedergabe, EinWiedergeoeffnetesErgebnisHatSeineStrafeUndAusDemProtokollSeineZeichen) {
    const std::string name = fahren();
    auswertung& a = t.p.auswertung;
    t.spur(2).strafzeit = 7s;
    a.liste[0].auswaehlen(2);
    a.Command_nachtragen.klicken();
    a.nachtrag.Command_eintragen.klicken();
    a.liste[1].auswaehlen(0);
    a.Command8.klicken();
    a.Command_zurueck.klicken();
    a.Command_zurueck.klicken();
    a.Command_wieder.klicken();
    const rennergebnis gezeigt = a.ergebnis();
    ergebnis_verlassen();
    w_auswertung2& w = t.p.w_auswertung2;
    const auto dateien = t.p.ablage.auflisten("Ergebnisse\\auto-Einzelrennen", "", "");
    for (const bool mit_protokoll : {true, false}) {
        w.datei_zeigen("Ergebnisse\\auto-Einzelrennen\\" + dateien.front());
        EXPECT_NE(w.Label_kopf.text().find("Strafzeit"), std::string::npos);
        w.Command_blick[1].klicken();
        ASSERT_TRUE(w.rennen());
        int pausen = 0;
        for (const rennergebnis::spur& s : gezeigt.spuren) {
            const rennergebnis::spur& gelesen = *w.rennen()->auf(s.nummer);
            EXPECT_EQ(gelesen.strafzeit, s.strafzeit);
            EXPECT_EQ(gelesen.nachgetragene(), mit_protokoll ? s.nachgetragene() : 0);
            ASSERT_EQ(gelesen.rundenzahl(), s.rundenzahl());
            for (std::size_t i = 0; i < s.runden.size(); ++i) {
                EXPECT_EQ(gelesen.runden[i].nachgetragen, mit_protokoll && s.runden[i].nachgetragen) << i;
                EXPECT_EQ(gelesen.runden[i].pause.value_or(0), mit_protokoll ? s.runden[i].pause.value_or(0) : 0) << i;
                pausen += s.runden[i].pause.value_or(0) > 0 ? 1 : 0;
            }
        }
        EXPECT_EQ(gezeigt.auf(1)->nachgetragene(), 1);
        EXPECT_GT(pausen, 0);
        t.p.ablage.loeschen(name);
        w.schliessen();
    }
}

TEST_F(Wiedergabe, EinErgebnisRechnetSichAusSeinemProtokollNach) {
    const std::string name = fahren();
    ergebnis_verlassen();
    const auto dateien = t.p.ablage.auflisten("Ergebnisse\\auto-Einzelrennen", "", "");
    ASSERT_EQ(dateien.size(), 1U);
    const std::string datei = "Ergebnisse\\auto-Einzelrennen\\" + dateien.front();
    EXPECT_EQ(protokoll_zu_ergebnis(t.p.ablage, mit_schraegstrich(datei)), name);
    EXPECT_EQ(protokoll_zu_ergebnis(t.p.ablage, datei + "x"), std::nullopt);
    const auto vergleichen = [&] {
        test::testprogramm noch_einmal;
        return rennen_vergleichen(noch_einmal.p, inhalt(name), t.p.ablage);
    };
    EXPECT_EQ(vergleichen().gleich, std::vector{datei});
    std::string bytes = inhalt(datei);
    const std::size_t ort = bytes.find("06,037");
    ASSERT_NE(ort, std::string::npos);
    bytes[ort + 4] = '5';
    t.maschine.datei_schreiben(mit_schraegstrich(datei), bytes);
    const ergebnisvergleich v = vergleichen();
    ASSERT_EQ(v.anders.size(), 1U);
    EXPECT_FALSE(v.gut());
    EXPECT_EQ(v.anders.front().zeile,
              std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(ort), '\n') + 1);
    t.p.ablage.loeschen(datei);
    EXPECT_EQ(vergleichen().fehlen, std::vector{datei});
}

/// The race goes on from its result, which was written before, and its drivers on other lanes.
TEST_F(Wiedergabe, JederTeilEinesRennensHatSeinErgebnis) {
    const std::string name = fahren();
    t.p.auswertung.neues_ziel.eingeben("3");
    t.p.auswertung.Command3.klicken();
    t.p.k_ampel.Command1.klicken();
    t.maschine.laufen(10000);
    while (!t.p.rennen.zustand.rennen_beendet) {
        t.runde_nach(6500, "12");
    }
    ergebnis_verlassen();
    test::testprogramm noch_einmal;
    const ergebnisvergleich v = rennen_vergleichen(noch_einmal.p, inhalt(name), t.p.ablage);
    EXPECT_TRUE(v.gut());
    EXPECT_EQ(v.gleich.size(), 2U);
}

}  // namespace
}  // namespace tarvel
