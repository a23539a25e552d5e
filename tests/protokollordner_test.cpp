#include "core/protokollordner.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/protokollfortsetzung.h"
#include "tests/plattform/test_plattform.h"

namespace tarvel {
namespace {

struct Protokollordner : testing::Test {
    void anlegen(const std::string& name) const { maschine.datei_schreiben("Ergebnisse/Protokoll/" + name, "x"); }
    std::vector<std::string> namen() const { return ablage.auflisten(protokoll_ordner, "", ""); }

    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
    plattform::datum_uhrzeit heute{2026, 3, 1, 9, 5, 7};
};

TEST_F(Protokollordner, JederNameIstNeuUndSortiertSichNachDerZeit) {
    std::vector<std::string> vergeben;
    for (int mal = 0; mal < 12; ++mal) {
        vergeben.push_back(neuer_protokollname(ablage, heute));
        anlegen(vergeben.back());
    }
    EXPECT_EQ(vergeben.front(), "2026-03-01 09-05-07.txt");
    EXPECT_EQ(vergeben.back(), "2026-03-01 09-05-07_0012.txt");
    EXPECT_EQ(namen(), vergeben);
    heute.jahr = 2027;
    protokolle_aufraeumen(ablage, heute, vergeben[3]);
    EXPECT_EQ(namen(), std::vector<std::string>{vergeben[3]}) << "what is in use stays, however old";
}

TEST_F(Protokollordner, NeunzigTageBleibtEinProtokollUndAllesFremdeFuerImmer) {
    const std::vector<std::string> bleiben{
        "2025-12-01 00-00-00.txt",      "2024-01-01 10-00-00.txt.bak", "2024-01-01 10-00-00 Jörg.txt",
        "2024-01-01 10-00-00_.txt",     "2024-01-01 10-00-00_2x.txt",  "2024-01-01.txt",
        "2024-01-01 10-00-00.csv",      "2024-01-01 10-00-0a.txt",     "2024-01-01T10-00-00.txt",
        "2024-01-01 10-00-00",          "alt 2024-01-01 10-00-00.txt", "2024-01-01 11-00-00.txt/innen.txt",
        "unter/2024-01-01 10-00-00.txt"};
    const std::vector<std::string> gehen{"2025-11-30 23-59-59.txt", "2025-11-30 23-59-59_002.txt",
                                         "1999-01-01 00-00-00.txt"};
    for (const auto& liste : {bleiben, gehen}) {
        std::for_each(liste.begin(), liste.end(), [&](const auto& name) { anlegen(name); });
    }
    protokolle_aufraeumen(ablage, heute, "");
    for (const std::string& name : bleiben) {
        EXPECT_TRUE(maschine.datei_da("Ergebnisse/Protokoll/" + name)) << name;
    }
    for (const std::string& name : gehen) {
        EXPECT_FALSE(maschine.datei_da("Ergebnisse/Protokoll/" + name)) << name;
    }
}

TEST_F(Protokollordner, ZweihundertBleibenUndKeinemVerweisWirdGefolgt) {
    anlegen("fremd.txt");
    std::vector<std::string> alle;
    for (int nr = 0; nr < 203; ++nr) {
        heute.minute = nr / 60;
        heute.sekunde = nr % 60;
        alle.push_back(neuer_protokollname(ablage, heute));
        anlegen(alle.back());
    }
    const auto ordner = ablage.pfad(protokoll_ordner);
    const std::string verweis = "2024-01-01 10-00-00.txt";
#ifndef _WIN32
    create_symlink(ordner / "fremd.txt", ordner / verweis);
    const auto woanders = maschine.ordner() / "woanders";
    rename(ordner, woanders);
    create_directory_symlink(woanders, ordner);
    protokolle_aufraeumen(ablage, heute, "");
    EXPECT_EQ(namen().size(), 205U) << "the folder itself leads elsewhere";
    remove(ordner);
    rename(woanders, ordner);
    alle.insert(alle.begin(), verweis);
#endif
    protokolle_aufraeumen(ablage, heute, "");
    std::erase_if(alle, [&](const std::string& name) { return name != verweis && name < "2026-03-01 09-00-03"; });
    alle.push_back("fremd.txt");
    EXPECT_EQ(namen(), alle);
}

TEST_F(Protokollordner, EinGeschlossenesProtokollGehtHinterSeinerLetztenGanzenZeileWeiter) {
    const auto datei = ablage.pfad(protokoll_ordner) / "lauf.txt";
    protokollschreiber schreiber;
    std::string ganz;
    for (const int nr : {1, 2}) {
        ganz += schreiber.beginnen(0).wort("t0").zahl(nr).fertig();
    }
    for (const std::string_view rest : {"", "t0 3", "t0 3*\r"}) {
        maschine.datei_schreiben("Ergebnisse/Protokoll/lauf.txt", ganz + std::string(rest));
        const auto stand = protokollfortsetzung::lesen(datei);
        ASSERT_TRUE(stand && stand->inhalt() == ganz && !stand->beschaedigt()) << rest;
        protokollschreiber weiter;
        weiter.fortsetzen(stand->kette());
        stand->oeffnen(maschine.anhaengedateien)->anhaengen(weiter.beginnen(0).wort("# danach").fertig());
        const std::string jetzt = maschine.datei_lesen("Ergebnisse/Protokoll/lauf.txt");
        protokollleser leser(jetzt);
        EXPECT_TRUE(leser.zeile() && leser.zeile() && leser.zeile() == "# danach" && leser.vollstaendig()) << rest;
    }
    maschine.datei_schreiben("Ergebnisse/Protokoll/lauf.txt", ganz + "t1 3*0000\r\nt2 4*0000\r\n");
    EXPECT_TRUE(protokollfortsetzung::lesen(datei)->beschaedigt()) << "what is behind may be whole";
    maschine.datei_schreiben("Ergebnisse/Protokoll/lauf.txt", "x");
    EXPECT_FALSE(protokollfortsetzung::lesen(datei));
}

}  // namespace
}  // namespace tarvel
