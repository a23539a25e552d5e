#include "hardware/cu_protokoll.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

TEST(CuProtokoll, StempelPruefzeichenUndAnzeige) {
    EXPECT_EQ(cu::stempel_lesen("01234567"), 0x10325476U);
    EXPECT_EQ(cu::stempel_lesen(":;<=>?00"), 0xBADCFE00U);
    EXPECT_EQ(cu::stempel_lesen("0123456@"), std::nullopt);
    EXPECT_EQ(cu::pruefzeichen("201"), '8');
    EXPECT_EQ(cu::pruefzeichen("2:1"), '8');
    using befehle = std::array<std::string, 2>;
    EXPECT_EQ(cu::anzeigebefehle(5), (befehle{"J1?0511$", "J2?0511$"}));
    EXPECT_EQ(cu::anzeigebefehle(250), (befehle{"J1?OJ13$", "J2?OJ13$"}));
    EXPECT_EQ(cu::anzeigebefehle(251), (befehle{"J1?3312$", "J2?3312$"}));  // 51
}

TEST(CuProtokoll, JederSatzAuchHinterRauschen) {
    const std::string stempel = "01234567";
    cu::status voll;
    voll.tank = {{15, 14, 0, 1, 2, 15}};
    voll.startzustand = true;
    voll.tankmodus = 2;
    voll.boxenbits = 0x1F;
    const std::vector<std::pair<std::string, cu::meldung>> saetze{
        {"?3" + stempel + "2x$", cu::ueberfahrt{3, 2, 0x10325476}},
        {"?8" + stempel + "x$", cu::ueberfahrt{8, 1, 0x10325476}},
        {"?:?>012?00"
         "12"
         "?1"
         "0000$",
         voll},
        {"?:?>012?00"
         "12"
         "?1"
         "00$",
         voll},
    };
    for (const auto& [satz, inhalt] : saetze) {
        EXPECT_EQ(cu::satz_lesen(satz), inhalt) << satz;
        for (const std::string rauschen : {"x", "\xFF\x01", "?30123", "?", "abcdef0123456789", "?:0"}) {
            EXPECT_EQ(cu::satz_lesen(rauschen + satz), inhalt) << rauschen << satz;
        }
    }
    EXPECT_EQ(cu::satz_lesen("?0x$"), cu::meldung(cu::rundenzaehler{true}));
    EXPECT_EQ(cu::satz_lesen("?1x$"), cu::meldung(cu::rundenzaehler{false}));
    const std::vector<std::string> kein_satz{"?9" + stempel + "1x$", "?1" + stempel + "4x$", "?10123x56711$", "$"};
    for (const std::string& falsch : kein_satz) {
        EXPECT_EQ(cu::satz_lesen(falsch), cu::meldung()) << falsch;
    }
}

TEST(CuProtokoll, NachZehnEinigenUeberfahrtenFaelltEineVerfaelschteAuf) {
    const auto lesen = [](std::string_view satz) { return std::get<cu::ueberfahrt>(cu::satz_lesen(satz)); };
    for (const char* echt : {"?2003037?>1=$", "?20030:9211<$", "?200301<?618$"}) {
        cu::summenpruefung pruefung;
        const cu::ueberfahrt verfaelscht = lesen("?2003037?=1=$");
        for (int i = 0; i < 10; ++i) {
            EXPECT_TRUE(pruefung.annehmen(verfaelscht)) << "nothing is known of this unit";
            EXPECT_TRUE(pruefung.annehmen(lesen(echt)));
        }
        for (int i = 0; i < 10; ++i) {
            pruefung.annehmen(lesen(echt));
        }
        EXPECT_FALSE(pruefung.annehmen(verfaelscht)) << echt;
        EXPECT_TRUE(pruefung.annehmen(lesen(echt)));
    }
}

TEST(CuProtokoll, AbtrennenAnJedemByte) {
    const std::string strom = "?#?10123456711$##?20123456711$?#?#?30123456711$rest";
    for (std::size_t schnitt = 0; schnitt <= strom.size(); ++schnitt) {
        std::string empfang = strom.substr(0, schnitt);
        std::string gelesen;
        for (int i = 0; i < 2; ++i) {
            for (std::string satz = cu::satz_abtrennen(empfang); !satz.empty(); satz = cu::satz_abtrennen(empfang)) {
                gelesen += satz[1];
            }
            empfang += i == 0 ? strom.substr(schnitt) : "";
        }
        EXPECT_EQ(gelesen, "123") << schnitt;
        EXPECT_EQ(empfang, "rest");
    }
}

}  // namespace
}  // namespace tarvel
