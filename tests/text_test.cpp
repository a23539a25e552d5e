#include "core/text.h"

#include <gtest/gtest.h>

#include "core/namensspalten.h"
#include "core/zeit.h"

namespace tarvel {
namespace {

TEST(Text, ZahlLesenStopptAmErstenFremdenZeichenUndBleibtInIhrenGrenzen) {
    EXPECT_EQ(zahl_lesen("  7.25 m"), 7.25);
    EXPECT_EQ(zahl_lesen("7,5"), 7);
    EXPECT_EQ(zahl_lesen("-3"), -3);
    EXPECT_EQ(zahl_lesen("+.5"), 0.5);
    EXPECT_EQ(zahl_lesen("1.2.3"), 1.2);
    EXPECT_EQ(zahl_lesen("0." + std::string(400, '0') + "99"), 0);
    for (const char* ohne_ziffern : {"", " ", "-", ".", "abc", "--5", "ü"}) {
        EXPECT_EQ(zahl_lesen(ohne_ziffern), 0) << ohne_ziffern;
    }
    EXPECT_EQ(ganzzahl_lesen(std::string(500, '9'), 0, 255), 255);
    EXPECT_EQ(ganzzahl_lesen("-" + std::string(500, '9'), -7, 255), -7);
    EXPECT_EQ(ganzzahl_lesen("12.9", 0, 255), 12);
}

TEST(Text, ZeichenstattBytes) {
    EXPECT_EQ(laenge("Müller"), 6U);
    EXPECT_EQ(links("Müller", 2), "Mü");
    EXPECT_EQ(links("Mü", 5), "Mü");
    EXPECT_EQ(gekuerzt("\t Käfer \t"), "Käfer");
    EXPECT_EQ(gekuerzt("   "), "");
}

TEST(Text, NamensspaltenWerdenGleichVielSchmaler) {
    EXPECT_EQ(namensbreite({"Jörg", std::string(50, 'x')}, 15), 40U) << "a file may hold anything";
    EXPECT_EQ(namensbreite({"Jörg"}, 15), 15U);
    EXPECT_EQ(eingepasst("Jörg", 6) + "|" + eingepasst("Jörg", 3), "Jörg  |Jö…");
    const namensspalten zwei{{4, 12}, 6, 3, 1};
    const std::string zeile = "1.  Märten  Ida     12";
    EXPECT_EQ(passende_breite(zwei, laenge(zeile), 22), 6U);
    EXPECT_EQ(passende_breite(zwei, laenge(zeile), 19), 4U) << "half a letter is none";
    EXPECT_EQ(passende_breite(zwei, laenge(zeile), 2), 3U);
    EXPECT_EQ(mit_schmalen_namen(zeile, zwei, 4), "1.  Mär…  Ida   12");
    EXPECT_EQ(gekuerzte_namen(zeile, zwei, 4), "Märten");
    EXPECT_EQ(mit_schmalen_namen("–", zwei, 3) + gekuerzte_namen("–", zwei, 3), "–");
}

TEST(Text, Windows1252HinUndZurueckAuchAusKaputtemUtf8) {
    std::string alle;
    for (int code = 1; code < 256; ++code) {
        alle.push_back(static_cast<char>(code));
    }
    EXPECT_EQ(nach_1252(von_1252(alle)), alle);
    EXPECT_EQ(nach_1252("ä€–ł漢"), "\xE4\x80\x96??");
    for (const char* kaputt : {"\xC3", "a\xE2\x82", "\xF0\x9F\x98", "\xFF\xFE", "\x80", "\xE0\x81\x81"}) {
        const std::string bytes = nach_1252(kaputt);
        EXPECT_NE(bytes.find('?'), std::string::npos);
        EXPECT_LE(bytes.size(), 3U);
    }
    EXPECT_EQ(ansi_code("ü"), 252);
    EXPECT_EQ(ansi_code("€"), 128);
    EXPECT_FALSE(ansi_code("ł"));
    EXPECT_FALSE(ansi_code(""));
    EXPECT_FALSE(ansi_code("12"));
}

TEST(Zeit, Formate) {
    const trennzeichen_tabelle trennzeichen{":", ",", ";"};
    EXPECT_EQ(zeit_formatieren(83456, true, trennzeichen), "01:23,456");
    EXPECT_EQ(zeit_formatieren(83456, false, trennzeichen), "23,456");
    EXPECT_EQ(zeit_formatieren(65000, false, trennzeichen), "05,000") << "the short form drops the minutes";
    EXPECT_EQ(zeit_formatieren(3600000 + 60007, true, trennzeichen), "01:00,007") << "the long form drops the hours";
    EXPECT_EQ(zeit_formatieren(-1, true, trennzeichen), "00:00,000");
    EXPECT_EQ(zeit_formatieren(1002, true, {"·", ".", ";"}), "00·01.002");
}

}  // namespace
}  // namespace tarvel
