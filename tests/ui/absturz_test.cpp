#include <gtest/gtest.h>

#include <QProcess>
#include <QTest>

#include "core/dateien.h"
#include "tests/plattform/test_plattform.h"
#include "tests/ui/dauerschreiber.h"

namespace tarvel {
namespace {

constexpr const char* neben_datei = "Einstellungen/dauer.ini.tarvel-neu";

class Absturz : public testing::Test {
protected:
    /// Lets the writer run this long once it writes, and kills it wherever it is then.
    void schreiben_und_toeten(int ms) {
        ablage.loeschen(neben_datei);  // left over from the writer before
        QProcess schreiber;
        schreiber.start(TARVEL_DAUERSCHREIBER, {QString::fromStdU16String(maschine.ordner().u16string())});
        ASSERT_TRUE(schreiber.waitForStarted());
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return maschine.datei_da(test::dauer_datei) && maschine.datei_da(neben_datei); }));
        QTest::qSleep(ms);
        ASSERT_EQ(schreiber.state(), QProcess::Running) << "it could not write";
        schreiber.kill();
        ASSERT_TRUE(schreiber.waitForFinished());
    }

    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
};

TEST_F(Absturz, MittenImSchreibenBleibtDieAlteOderDieNeueDatei) {
    constexpr int male = 30;
    constexpr std::size_t alle_zeilen = 30000;
    int angefangene = 0;
    for (int mal = 0; mal < male; ++mal) {
        ASSERT_NO_FATAL_FAILURE(schreiben_und_toeten(1 + mal * 7 % male));
        const auto zeilen = ablage.zeilen_lesen(test::dauer_datei, alle_zeilen);
        ASSERT_TRUE(zeilen);
        ASSERT_TRUE(*zeilen == test::dauer_zeilen(false) || *zeilen == test::dauer_zeilen(true))
            << zeilen->size() << " lines after kill " << mal;
        angefangene += maschine.datei_da(neben_datei) ? 1 : 0;
    }
    EXPECT_GT(angefangene, 0) << "no kill fell into the writing";
}

TEST_F(Absturz, AngefangeneDateiStoertWederDasNaechsteSchreibenNochDieAuswahl) {
    maschine.datei_schreiben(test::dauer_datei, "alt\r\n");
    maschine.datei_schreiben(neben_datei, std::string(100000, 'x'));  // longer than what is written next
    EXPECT_EQ(ablage.auflisten("Einstellungen", "", ".ini"), std::vector<std::string>{"dauer.ini"});
    ASSERT_TRUE(ablage.zeilen_schreiben(test::dauer_datei, {"neu"}));
    EXPECT_EQ(maschine.datei_lesen(test::dauer_datei), "neu\r\n");
    EXPECT_FALSE(maschine.datei_da(neben_datei));
}

}  // namespace
}  // namespace tarvel
