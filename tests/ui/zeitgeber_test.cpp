#include <gtest/gtest.h>

#include <QTest>
#include <thread>

#include "platform_qt/qt_dienste.h"

namespace tarvel {
namespace {

TEST(QtZeitgeber, ZaehlenderHoltNachAbfragenderLaesstFallen) {
    const qt::QtUhr uhr;
    qt::QtZeitgeberDienst dienst(uhr);
    auto zaehlend = dienst.erzeugen(plattform::zeitgeber_art::zaehlend, 10ms);
    auto abfragend = dienst.erzeugen(plattform::zeitgeber_art::abfragend, 10ms);
    int gezaehlt = 0;
    int abgefragt = 0;
    zaehlend->bei_tick = [&] { ++gezaehlt; };
    abfragend->bei_tick = [&] { ++abgefragt; };
    const zeit_ms start = uhr.jetzt();
    zaehlend->an();
    abfragend->an();
    std::this_thread::sleep_for(std::chrono::milliseconds(200));  // the loop is busy elsewhere
    while (gezaehlt < 30) {
        QTest::qWait(1);
    }
    const zeit_ms gebraucht = uhr.jetzt() - start;
    EXPECT_GE(gebraucht, 298) << "thirty ticks of ten milliseconds stand for that much time";
    EXPECT_LE(abgefragt, 1 + (gebraucht - 200) / 10 + 1);
}

TEST(QtZeitgeber, AusImTickHaeltAuchDasNachholenAn) {
    const qt::QtUhr uhr;
    qt::QtZeitgeberDienst dienst(uhr);
    auto einmal = dienst.erzeugen(plattform::zeitgeber_art::zaehlend, 5ms);
    int mal = 0;
    einmal->bei_tick = [&] {
        ++mal;
        einmal->aus();
    };
    einmal->an();
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    QTest::qWait(60);
    EXPECT_EQ(mal, 1);
    EXPECT_FALSE(einmal->laeuft());
    einmal->intervall(0ms);
    einmal->an();
    QTest::qWait(20);
    EXPECT_EQ(mal, 1) << "an interval of 0 never fires";
}

}  // namespace
}  // namespace tarvel
