#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include "platform_qt/qt_dienste.h"
#include "tests/plattform/test_plattform.h"
#include "tools/simulator/anschluss.h"

namespace tarvel {
namespace {

constexpr int com_am_ende = 7;
constexpr const char* werte = "19200,N,8,1";

std::string alle_bytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

/// By how much a busy machine holds up a thread that only sleeps.
class bremse {
public:
    zeit_ms verspaetung() const { return verspaetung_; }

private:
    std::atomic<zeit_ms> verspaetung_ = 0;
    std::jthread faden_{[this](const std::stop_token& ende) {
        constexpr int schlaf_ms = 5;
        QElapsedTimer seit;
        seit.start();
        for (int mal = 1; !ende.stop_requested(); ++mal) {
            QThread::msleep(schlaf_ms);
            verspaetung_ = seit.elapsed() - qint64{mal} * schlaf_ms;
        }
    }};
};

/// The program's end of a pseudo-terminal, and the device at the other.
struct Serienport : testing::Test {
    void SetUp() override {
        ASSERT_EQ(geraet.oeffnen(), "");
        port->bei_empfang = [this](std::string_view bytes, zeit_ms) { empfangen += bytes; };
        port->bei_verlust = [this] { ++verluste; };
    }
    /// What the device has got, once it is as long.
    std::string am_geraet(std::size_t laenge) {
        std::string bytes;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (bytes += geraet.lesen(1)).size() >= laenge; }));
        return bytes;
    }

    test::test_plattform maschine;
    qt::QtUhr uhr;
    qt::QtSerienportDienst dienst{maschine.ordner(), uhr};
    simulator::anschluss geraet{{maschine.ordner().string(), com_am_ende, {}, 19200}};
    std::unique_ptr<plattform::serienport> port = dienst.erzeugen();
    std::string empfangen;
    int verluste = 0;
};

TEST_F(Serienport, JedesByteInBeidenRichtungen) {
    EXPECT_FALSE(port->schreiben("x"));
    ASSERT_TRUE(port->oeffnen(com_am_ende, werte));
    EXPECT_TRUE(port->schreiben(alle_bytes()));
    EXPECT_EQ(am_geraet(256), alle_bytes());
    geraet.schreiben(alle_bytes());
    EXPECT_TRUE(QTest::qWaitFor([&] { return empfangen.size() >= 256; }));
    EXPECT_EQ(empfangen, alle_bytes());

    port->bei_empfang = [this](std::string_view, zeit_ms) { port->schliessen(); };
    geraet.schreiben("x");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !port->offen(); }));
    EXPECT_FALSE(geraet.verbunden());
    EXPECT_EQ(verluste, 0);
}

/// A dialog, a drawing: the loop stands still, and the device goes on.
TEST_F(Serienport, BytesHabenDieZeitIhrerAnkunftUndWerZumachtBekommtKeineMehr) {
    std::vector<zeit_ms> stempel;
    port->bei_empfang = [&](std::string_view bytes, zeit_ms wann) {
        empfangen += bytes;
        stempel.push_back(wann);
        QTest::qWait(20);  // it shows one itself
    };
    for (const bool zumachen : {false, true}) {
        ASSERT_TRUE(port->oeffnen(com_am_ende, werte));
        std::vector<zeit_ms> gesendet;
        std::jthread sender([&] {
            for (const char* byte : {"a", "b", "c"}) {
                gesendet.push_back(uhr.jetzt());
                geraet.schreiben(byte);
                std::this_thread::sleep_for(100ms);
            }
        });
        sender.join();
        if (zumachen) {
            port->schliessen();
        }
        QTest::qWait(100);
        EXPECT_EQ(empfangen, "abc");
        ASSERT_EQ(stempel.size(), 3U);
        for (std::size_t i = 0; i < 3 && !zumachen; ++i) {
            EXPECT_NEAR(static_cast<double>(stempel.at(i)), static_cast<double>(gesendet.at(i)), 50.0);
        }
    }
}

TEST_F(Serienport, WasKeinPortUndKeinWertIstWirdVerweigert) {
    for (const char* falsch :
         {"", "19200", "19200,N,8", "19200,N,8,1,1", "0,N,8,1", "-9600,N,8,1", "abc,N,8,1", "19200,X,8,1", "19200,,8,1",
          "19200,N,4,1", "19200,N,9,1", "19200,N,8,3", "19200,N,8,"}) {
        EXPECT_FALSE(port->oeffnen(com_am_ende, falsch)) << falsch;
        EXPECT_FALSE(port->offen());
    }
    for (const int nummer : {-1, 0, 8, 256, 257}) {
        EXPECT_FALSE(port->oeffnen(nummer, werte)) << nummer;
    }
    for (const char* richtig : {"4800,n,8,1", "115200,E,7,2", "57600,O,5,1"}) {
        EXPECT_TRUE(port->oeffnen(com_am_ende, richtig)) << richtig;
    }
    const auto zweiter = dienst.erzeugen();
    EXPECT_FALSE(zweiter->oeffnen(com_am_ende, werte)) << "somebody else has it";
    EXPECT_NE(dienst.sperrdatei().find("/LCK.."), std::string::npos) << "and this file says so";
    EXPECT_FALSE(zweiter->oeffnen(8, werte));
    EXPECT_EQ(dienst.sperrdatei(), "") << "there is none";
    EXPECT_TRUE(port->offen());
}

TEST_F(Serienport, AbgezogenMeldetEsSichEinmalUndSteckt) {
    for (int mal = 1; mal <= 3; ++mal) {
        ASSERT_TRUE(port->oeffnen(com_am_ende, werte));
        while (mal < 3 && port->schreiben(std::string(4096, 'x'))) {  // nobody takes it: the line is full
        }
        const bremse maschinenlast;
        QElapsedTimer seit;
        seit.start();
        geraet.abziehen();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !port->offen(); }, 20000));
        EXPECT_FALSE(port->schreiben("x"));
        QTest::qWait(50);
        EXPECT_LT(seit.elapsed(), (mal < 3 ? 1500 : 2500) + 2 * maschinenlast.verspaetung())
            << "the race stood still, or nobody has noticed";
        EXPECT_EQ(verluste, mal);
        EXPECT_FALSE(port->oeffnen(com_am_ende, werte));
        ASSERT_EQ(geraet.oeffnen(), "");
    }
}

TEST_F(Serienport, ListeNenntWasDaIst) {
    const auto da = [this] {
        const std::vector<int> ports = dienst.vorhandene();
        EXPECT_TRUE(std::is_sorted(ports.begin(), ports.end()));
        return std::count(ports.begin(), ports.end(), com_am_ende);
    };
    EXPECT_EQ(da(), 1);
    geraet.abziehen();
    EXPECT_EQ(da(), 0);
}

#ifndef Q_OS_WIN
TEST(Portnamen, UsbPortsFolgenDenenDesRechners) {
    const QStringList usb{"ttyACM0", "ttyUSB0", "ttyUSB2", "ttyUSB10"};
    EXPECT_EQ(qt::com_nummer("ttyS0", usb), 1);
    EXPECT_EQ(qt::com_nummer("ttyS3", usb), 4);
    EXPECT_EQ(qt::com_nummer("ttyS4", usb), 0);
    EXPECT_EQ(qt::com_nummer("ttyACM0", usb), 5);
    EXPECT_EQ(qt::com_nummer("ttyUSB10", usb), 8);
    EXPECT_EQ(qt::com_nummer("rfcomm0", usb), 0);
}
#endif

}  // namespace
}  // namespace tarvel
