#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QProcess>
#include <QTest>

#include "competition/wettkampfdatei.h"
#include "competition/wettkampfspeicher.h"
#include "core/dateien.h"
#include "core/ordner.h"
#include "platform_qt/qt_dateisystem.h"
#include "tests/plattform/test_plattform.h"
#include "tests/ui/dauerschreiber.h"

namespace tarvel {
namespace {

class Absturz : public testing::Test {
protected:
    /// Lets the writer run this long once it writes, and kills it wherever it is then, or as soon as it has begun a
    /// file.
    void schreiben_und_toeten(int ms, bool im_schreiben) {
        schreibreste_loeschen(ablage);  // left over from the writer before
        QProcess schreiber;
        const QString ordner = QString::fromStdU16String(maschine.ordner().u16string());
        schreiber.start(TARVEL_DAUERSCHREIBER, {ordner, abend ? "abend" : ""});
        ASSERT_TRUE(schreiber.waitForStarted());
        ASSERT_TRUE(QTest::qWaitFor([&] { return ablage.gibt_es(datei) && reste() > 0; }, 20000));
        QTest::qSleep(ms);
        for (const QDeadlineTimer frist(2000); im_schreiben && reste() == 0 && !frist.hasExpired();) {
        }
        ASSERT_EQ(schreiber.state(), QProcess::Running) << "it could not write";
        schreiber.kill();
        ASSERT_TRUE(schreiber.waitForFinished());
    }

    std::ptrdiff_t reste() const {
        std::error_code egal;
        const std::filesystem::directory_iterator ordner(ablage.pfad(datei).parent_path(), egal);
        return std::count_if(begin(ordner), end(ordner),
                             [](const auto& eintrag) { return eintrag.path().extension() == ".tarvel-neu"; });
    }

    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
    std::string_view datei = test::dauer_datei;
    bool abend = false;  ///< its state is written
};

TEST_F(Absturz, MittenImSchreibenBleibtDieAlteOderDieNeueDatei) {
    constexpr int male = 30;
    constexpr std::size_t alle_zeilen = 30000;
    int angefangene = 0;
    for (int mal = 0; mal < male; ++mal) {
        ASSERT_NO_FATAL_FAILURE(schreiben_und_toeten(1 + mal * 7 % male, mal % 2 == 0));
        const auto zeilen = ablage.zeilen_lesen(test::dauer_datei, alle_zeilen);
        ASSERT_TRUE(zeilen);
        ASSERT_TRUE(*zeilen == test::dauer_zeilen(false) || *zeilen == test::dauer_zeilen(true))
            << zeilen->size() << " lines after kill " << mal;
        angefangene += reste() > 0 ? 1 : 0;
    }
    EXPECT_GT(angefangene, 0) << "no kill fell into the writing";
    EXPECT_EQ(ablage.auflisten("Einstellungen", "", ""), std::vector<std::string>{"dauer.ini"});
    schreibreste_loeschen(ablage);
    EXPECT_EQ(reste(), 0);
}

TEST_F(Absturz, EinAbendIstImmerGanzDa) {
    abend = true;
    datei = laufender_wettkampf;
    const texte txt;
    constexpr int male = 16;
    int angefangene = 0;
    for (int mal = 0; mal < male; ++mal) {
        ASSERT_NO_FATAL_FAILURE(schreiben_und_toeten(1 + mal * 7 % male, mal % 2 == 0));
        const auto gelesen = wettkampf_lesen(*ablage.zeilen_lesen(datei, 10000), wettkampf_annahme{txt});
        ASSERT_TRUE(gelesen) << "after kill " << mal;
        EXPECT_TRUE(*gelesen == test::dauer_abend(false) || *gelesen == test::dauer_abend(true));
        angefangene += reste() > 0 ? 1 : 0;
    }
    EXPECT_GT(angefangene, 0) << "no kill fell into the writing";
}

TEST(Dateisystem, NeueDateiFolgtKeinemVerweisUndUeberschreibtNichts) {
    test::test_plattform maschine;
    const qt::QtDateisystem system;
    const auto ort = maschine.ordner();
    EXPECT_TRUE(system.neue_datei(ort / "neu", "a"));
    EXPECT_FALSE(system.neue_datei(ort / "neu", "b"));
    EXPECT_EQ(maschine.datei_lesen("neu"), "a");
#ifndef _WIN32
    std::filesystem::create_symlink(ort / "ziel", ort / "verweis");
    EXPECT_FALSE(system.neue_datei(ort / "verweis", "b"));
    EXPECT_FALSE(maschine.datei_da("ziel"));
    EXPECT_TRUE(system.ist_verweis(ort / "verweis"));
#endif
    EXPECT_FALSE(system.ist_verweis(ort / "neu"));
}

}  // namespace
}  // namespace tarvel
