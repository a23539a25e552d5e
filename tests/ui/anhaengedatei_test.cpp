#include <gtest/gtest.h>

#include <QTest>
#include <atomic>
#include <filesystem>
#include <string>

#include "platform_qt/bytering.h"
#include "platform_qt/qt_anhaengedatei.h"
#include "tests/plattform/test_plattform.h"

#ifdef __linux__
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

/// The disk: it can hold up who waits for it, and says how much of the last file it has for certain.
struct platte {
    std::atomic<bool> haengt = false;
    std::atomic<off_t> sicher = 0;
    std::atomic<int> gefragt = 0;
} die_platte;

}  // namespace

extern "C" int fdatasync(int datei) {  // in place of the system's
    ++die_platte.gefragt;
    while (die_platte.haengt) {
        usleep(1000);
    }
    const off_t groesse = lseek(datei, 0, SEEK_END);
    const int ergebnis = static_cast<int>(syscall(SYS_fdatasync, datei));
    die_platte.sicher = groesse;
    return ergebnis;
}
#endif

namespace tarvel {
namespace {

namespace fs = std::filesystem;

struct Anhaengedatei : testing::Test {
    /// However long the disk needs: it has others to serve.
    static bool gesichert(plattform::anhaengedatei& datei) {
        return QTest::qWaitFor([&] { return datei.sichern(); }, 30000);
    }
    std::string inhalt() const { return maschine.datei_lesen("Ergebnisse/Protokoll/rennen.txt"); }

    test::test_plattform maschine;
    qt::QtAnhaengeDienst echter;
    plattform::anhaenge_dienst& dienst = echter;
    fs::path pfad = maschine.ordner() / "Ergebnisse" / "Protokoll" / "rennen.txt";
};

TEST_F(Anhaengedatei, VielUndSchnellKommtGanzUndDerReiheNachAn) {
    constexpr int zeilen = 100000;  // some megabytes: several times round the ring
    constexpr int auf_einmal = 8000;
    std::string erwartet;
    const auto datei = dienst.oeffnen(pfad);
    ASSERT_NE(datei, nullptr);
    for (int nr = 0; nr < zeilen; ++nr) {
        const std::string zeile = std::to_string(nr) + std::string(static_cast<std::size_t>(nr) % 100, 'x') + "\n";
        ASSERT_TRUE(datei->anhaengen(zeile)) << nr;
        erwartet += zeile;
        ASSERT_TRUE(nr % auf_einmal != 0 || gesichert(*datei));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return fs::file_size(pfad) == erwartet.size(); }, 30000)) << "nobody asks for it";
    EXPECT_TRUE(inhalt() == erwartet);
    EXPECT_FALSE(datei->gescheitert());
}

TEST_F(Anhaengedatei, GehtAmEndeWeiterOderNachDemWasGanzIst) {
    for (plattform::anhaenge_dienst* einer : {&dienst, &maschine.dienste().anhaenge}) {
        fs::remove(pfad);
        einer->oeffnen(pfad)->anhaengen("eins\n");
        einer->oeffnen(pfad)->anhaengen("zwei\ndr");
        einer->oeffnen(pfad, 10)->anhaengen("drei\n");
        einer->oeffnen(pfad, 1000)->anhaengen("vier\n");
        EXPECT_EQ(inhalt(), "eins\nzwei\ndrei\nvier\n");
        einer->oeffnen(pfad, 0);
        EXPECT_EQ(inhalt(), "");
    }
}

TEST_F(Anhaengedatei, WasKeinenPlatzFindetHinterlaesstKeineLuecke) {
    const auto datei = dienst.oeffnen(pfad);
    EXPECT_TRUE(datei->anhaengen("vorher\n"));
    EXPECT_FALSE(datei->anhaengen(std::string(qt::Bytering::platz + 1, 'x')));
    EXPECT_TRUE(datei->gescheitert());
    EXPECT_FALSE(datei->anhaengen("danach\n"));
    EXPECT_TRUE(gesichert(*datei)) << "what was taken is there";
    EXPECT_EQ(inhalt(), "vorher\n");
}

TEST_F(Anhaengedatei, WoKeineDateiSeinKannIstKeine) {
    maschine.datei_schreiben("Ergebnisse/datei", "bleibt");
    fs::create_directories(pfad);
    EXPECT_EQ(dienst.oeffnen(pfad), nullptr) << "a folder";
    EXPECT_EQ(dienst.oeffnen(maschine.ordner() / "Ergebnisse" / "datei" / "rennen.txt"), nullptr) << "below a file";
#ifdef __linux__
    const fs::path verweis = maschine.ordner() / "verweis";
    for (const char* ziel : {"Ergebnisse/datei", "fehlt"}) {
        fs::create_symlink(maschine.ordner() / ziel, verweis);
        EXPECT_EQ(dienst.oeffnen(verweis, 0), nullptr) << ziel;
        fs::remove(verweis);
    }
    EXPECT_FALSE(maschine.datei_da("fehlt"));
    ASSERT_EQ(mkfifo(verweis.c_str(), 0600), 0);
    EXPECT_EQ(dienst.oeffnen(verweis), nullptr) << "and nobody waits for the other end of a pipe";
#endif
    EXPECT_EQ(maschine.datei_lesen("Ergebnisse/datei"), "bleibt");
}

#ifdef __linux__
TEST_F(Anhaengedatei, GehoertNurDiesemBenutzer) {
    fs::create_directory(maschine.ordner() / "Ergebnisse");
    maschine.datei_schreiben("kopie", "");
    fs::permissions(maschine.ordner() / "kopie", fs::perms(0666));
    for (const fs::path& datei : {pfad, maschine.ordner() / "kopie"}) {
        dienst.oeffnen(datei);
        EXPECT_EQ(fs::status(datei).permissions(), fs::perms(0600)) << datei;
    }
    EXPECT_EQ(fs::status(pfad.parent_path()).permissions(), fs::perms(0700));
}

TEST_F(Anhaengedatei, GesichertIstWasDiePlatteHat) {
    const auto datei = dienst.oeffnen(pfad);
    for (int zeile = 1; zeile <= 20; ++zeile) {
        datei->anhaengen("zehn Bytes\n");
        ASSERT_TRUE(gesichert(*datei));
        ASSERT_EQ(die_platte.sicher, zeile * 11);
    }
    const int gefragt = die_platte.gefragt;
    QTest::qSleep(200);
    EXPECT_EQ(die_platte.gefragt, gefragt) << "nothing happens, nothing is asked of the disk";
    datei->anhaengen("ohne Auftrag");
    EXPECT_TRUE(QTest::qWaitFor([] { return die_platte.sicher == 20 * 11 + 12; }));
}

TEST_F(Anhaengedatei, ToetenNimmtNichtsGesichertesWeg) {
    const pid_t kind = fork();
    if (kind == 0) {
        const auto datei = dienst.oeffnen(pfad);
        for (int zeile = 0; zeile < 1000; ++zeile) {
            datei->anhaengen("Zeile\n");
        }
        gesichert(*datei);
        kill(getpid(), SIGKILL);
    }
    int ende = 0;
    ASSERT_EQ(waitpid(kind, &ende, 0), kind);
    EXPECT_TRUE(WIFSIGNALED(ende));
    EXPECT_EQ(inhalt().size(), 6000U);
}

TEST_F(Anhaengedatei, EinePlatteDieNichtAntwortetHaeltNiemandenAuf) {
    auto datei = dienst.oeffnen(pfad);
    die_platte.haengt = true;
    datei->anhaengen("eins\n");
    EXPECT_FALSE(datei->sichern());
    const std::string zeile(1000, 'x');
    std::size_t genommen = 5;
    while (datei->anhaengen(zeile)) {
        genommen += zeile.size();
    }
    EXPECT_TRUE(datei->gescheitert());
    EXPECT_GT(genommen, qt::Bytering::platz - 2 * zeile.size());
    datei.reset();
    die_platte.haengt = false;
    EXPECT_TRUE(QTest::qWaitFor([&] { return inhalt().size() == genommen; })) << "all that was taken, late";
}

TEST_F(Anhaengedatei, VolleScheibeUndVerschwundenerOrdnerWerdenGemeldet) {
    constexpr rlim_t voll = 100'003;
    rlimit vorher{};
    getrlimit(RLIMIT_FSIZE, &vorher);
    auto* const signal_vorher = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit grenze{voll, vorher.rlim_max};
    setrlimit(RLIMIT_FSIZE, &grenze);
    const auto datei = dienst.oeffnen(pfad);
    for (int nr = 0; nr < 200; ++nr) {
        datei->anhaengen(std::string(999, 'x') + "\n");
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return datei->gescheitert(); }));
    EXPECT_FALSE(datei->sichern());
    setrlimit(RLIMIT_FSIZE, &vorher);
    std::signal(SIGXFSZ, signal_vorher);
    EXPECT_TRUE(datei->gescheitert());
    EXPECT_FALSE(datei->anhaengen("wieder Platz\n"));
    EXPECT_EQ(inhalt().size(), voll);

    const auto zweite = dienst.oeffnen(pfad);
    fs::remove_all(pfad.parent_path());
    zweite->anhaengen("wohin\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return zweite->gescheitert(); }));
}
#endif

}  // namespace
}  // namespace tarvel
