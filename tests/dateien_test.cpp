#include "core/dateien.h"

#include <gtest/gtest.h>

#include "tests/plattform/test_plattform.h"

namespace tarvel {
namespace {

class Dateien : public testing::Test {
protected:
    test::test_plattform maschine;
    dateien ablage{maschine.ordner()};
};

TEST_F(Dateien, NamenFuehrenNieAusDemProgrammordner) {
    for (const char* name : {"../fremd.txt", "a\\..\\..\\fremd.txt", "/etc/passwd", "..", "a/../../b"}) {
        EXPECT_TRUE(ablage.pfad(name).empty()) << name;
        EXPECT_FALSE(ablage.zeilen_schreiben(name, {"x"})) << name;
        EXPECT_FALSE(ablage.zeilen_lesen(name, 10)) << name;
    }
    EXPECT_TRUE(ablage.pfad(std::string_view("a.ini\0b", 7)).empty()) << "the system would take it for a.ini";
    EXPECT_EQ(ablage.pfad("a\\..\\b.txt"), maschine.ordner() / "b.txt");
}

TEST_F(Dateien, SchreibtWindowsTextUndLegtOrdnerAn) {
    ASSERT_TRUE(ablage.zeilen_schreiben("Listen\\fahrer.lst", {"Jörg", "", "漢"}));
    EXPECT_EQ(maschine.datei_lesen("Listen/fahrer.lst"), "J\xF6rg\r\n\r\n?\r\n");
    EXPECT_EQ(ablage.zeilen_lesen("Listen/fahrer.lst", 10), (std::vector<std::string>{"Jörg", "", "?"}));
}

TEST_F(Dateien, LeserGlaubtKeinerDatei) {
    maschine.datei_schreiben("lang.txt", std::string(100000, 'x') + "\n2\n3\n4");
    const auto zeilen = ablage.zeilen_lesen("lang.txt", 3);
    ASSERT_TRUE(zeilen);
    EXPECT_EQ(zeilen->size(), 3U);
    EXPECT_EQ(zeilen->front().size(), 4000U);
    std::filesystem::create_directory(maschine.ordner() / "ordner.txt");
    EXPECT_FALSE(ablage.zeilen_lesen("ordner.txt", 3));
}

TEST_F(Dateien, UmbenennenUeberschreibtNichts) {
    maschine.datei_schreiben("a", "1");
    maschine.datei_schreiben("b", "2");
    EXPECT_FALSE(ablage.umbenennen("a", "b"));
    EXPECT_EQ(maschine.datei_lesen("b"), "2");
    EXPECT_TRUE(ablage.umbenennen("a", "c"));
    EXPECT_FALSE(ablage.umbenennen("a", "d"));
}

}  // namespace
}  // namespace tarvel
