#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "platform_qt/druckerport.h"
#include "platform_qt/qt_bibliothek.h"
#include "tests/plattform/test_plattform.h"

namespace tarvel {
namespace {

#ifndef Q_OS_WIN
TEST(Druckerport, PortdateiLiestUndSchreibtDasByteAnDerAdresse) {
    test::test_plattform maschine;
    maschine.datei_schreiben("port", std::string(0x400, '\x11'));
    qt::Portdatei port(maschine.ordner() / "port");
    EXPECT_TRUE(port.schreiben(0x378, 0xA5));
    EXPECT_EQ(port.lesen(0x378), 0xA5);
    EXPECT_EQ(port.lesen(0x379), 0x11);
    std::string erwartet(0x400, '\x11');
    erwartet[0x378] = '\xA5';
    EXPECT_EQ(maschine.datei_lesen("port"), erwartet);
    EXPECT_FALSE(port.lesen(0x400) || port.lesen(-1) || port.lesen(0x10378));
    EXPECT_FALSE(port.schreiben(-1, 1) || port.schreiben(0x10378, 1));
    qt::Portdatei ohne(maschine.ordner() / "fehlt");
    EXPECT_FALSE(ohne.lesen(0x378) || ohne.schreiben(0x378, 1));
    EXPECT_FALSE(maschine.datei_da("fehlt"));
}
#endif

TEST(Bibliothek, WirdNachNamenGeladenUndKenntIhreRufe) {
    qt::QtBibliothekDienst dienst;
    EXPECT_EQ(dienst.laden("tarvel_gibt_es_nicht"), nullptr);
    const auto bibliothek = dienst.laden("Qt6Core");
    ASSERT_NE(bibliothek, nullptr);
    auto* const version = bibliothek->finden_als<const char*()>("qVersion");
    ASSERT_NE(version, nullptr);
    EXPECT_STREQ(version(), qVersion());
    EXPECT_EQ(bibliothek->finden("tarvel_gibt_es_nicht"), nullptr);
}

std::vector<std::pair<int, int>> geschrieben;

short lesen(short adresse) {
    return static_cast<short>(adresse == 0x379 ? 0x78 : -1);
}
void schreiben(short adresse, short wert) {
    geschrieben.emplace_back(adresse, wert);
}

TEST(Druckerport, PortbibliothekOhneIhreBeidenRufeIstKeinPort) {
    test::test_bibliotheken bibliotheken;
    bibliotheken.ruf("inpoutx64", "Inp32", lesen);
    {
        qt::Portbibliothek halb(bibliotheken);
        EXPECT_FALSE(halb.lesen(0x379) || halb.schreiben(0x378, 1));
    }
    EXPECT_EQ(bibliotheken.geladen, 0);
    bibliotheken.ruf("inpoutx64", "Out32", schreiben);
    qt::Portbibliothek port(bibliotheken);
    EXPECT_EQ(port.lesen(0x379), 0x78);
    EXPECT_EQ(port.lesen(0x37A), 0xFF);
    EXPECT_TRUE(port.schreiben(0x378, 0xFE));
    EXPECT_FALSE(port.lesen(-1) || port.schreiben(0x10000, 1));
    EXPECT_EQ(geschrieben, (std::vector<std::pair<int, int>>{{0x378, 0xFE}}));
}

}  // namespace
}  // namespace tarvel
