#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform_qt/klangdatei.h"
#include "platform_qt/qt_klang.h"

namespace tarvel {
namespace {

using bytes = std::vector<std::uint8_t>;

void anhaengen(bytes& ziel, std::uint64_t zahl, int laenge) {
    for (int i = 0; i < laenge; ++i) {
        ziel.push_back(static_cast<std::uint8_t>(zahl >> (8 * i)));
    }
}

void anhaengen(bytes& ziel, const char* kennung) {
    ziel.insert(ziel.end(), kennung, kennung + std::strlen(kennung));
}

/// A wave file with a chunk of its own in front of the sound.
bytes welle(unsigned art, unsigned kanaele, unsigned rate, unsigned bits, const bytes& daten) {
    bytes datei;
    anhaengen(datei, "RIFF");
    anhaengen(datei, 36 + daten.size(), 4);
    anhaengen(datei, "WAVEfmt ");
    for (const auto& [zahl, laenge] : std::vector<std::pair<std::uint64_t, int>>{{16, 4},
                                                                                 {art, 2},
                                                                                 {kanaele, 2},
                                                                                 {rate, 4},
                                                                                 {rate * kanaele * bits / 8, 4},
                                                                                 {kanaele * bits / 8, 2},
                                                                                 {bits, 2}}) {
        anhaengen(datei, zahl, laenge);
    }
    anhaengen(datei, "LIST");
    anhaengen(datei, 3, 4);
    datei.insert(datei.end(), {1, 2, 3, 0});
    anhaengen(datei, "data");
    anhaengen(datei, daten.size(), 4);
    datei.insert(datei.end(), daten.begin(), daten.end());
    return datei;
}

TEST(Klangdatei, AlleFormenGebenDenselbenKlang) {
    const std::vector<float> erwartet{0.5F, -0.5F, 0.0F};
    for (const auto& [name, datei] : std::vector<std::pair<const char*, bytes>>{
             {"8", welle(1, 1, 16000, 8, {192, 64, 128})},
             {"16", welle(1, 1, 16000, 16, {0, 0x40, 0, 0xC0, 0, 0})},
             {"16 stereo", welle(1, 2, 16000, 16, {0, 0x40, 0, 0x40, 0, 0x80, 0, 0, 0, 0x20, 0, 0xE0})},
             {"24", welle(1, 1, 16000, 24, {0, 0, 0x40, 0, 0, 0xC0, 0, 0, 0})},
             {"float", welle(3, 1, 16000, 32, {0, 0, 0, 0x3F, 0, 0, 0, 0xBF, 0, 0, 0, 0})},
         }) {
        EXPECT_EQ(qt::klangdatei_lesen(datei, 16000), erwartet) << name;
    }
    const auto doppelt = qt::klangdatei_lesen(welle(1, 1, 8000, 8, {192, 64, 128}), 16000);
    EXPECT_EQ(doppelt, (std::vector<float>{0.5F, 0.0F, -0.5F, -0.25F, 0.0F, 0.0F}));
}

TEST(Klangdatei, BeschaedigtesGibtNieUnsinn) {
    const bytes heil = welle(1, 2, 16000, 16, {0, 0x40, 0, 0x40, 0, 0x80, 0, 0});
    for (std::size_t laenge = 0; laenge < heil.size(); ++laenge) {
        EXPECT_LE(qt::klangdatei_lesen(std::span(heil).first(laenge), 48000).size(), 6U) << laenge;
    }
    for (std::size_t stelle = 0; stelle < heil.size(); ++stelle) {
        for (const int wert : {0, 1, 127, 255}) {
            bytes kaputt = heil;
            kaputt[stelle] = static_cast<std::uint8_t>(wert);
            for (const float probe : qt::klangdatei_lesen(kaputt, 48000)) {
                EXPECT_LE(std::abs(probe), 1.0F) << stelle;
            }
        }
    }
}

TEST(Klangquelle, SpaetererKlangSchneidetDenFrueherenUndDanachIstStille) {
    QAudioFormat format;
    format.setSampleRate(16000);
    format.setChannelCount(2);
    format.setSampleFormat(QAudioFormat::Int16);
    qt::Klangquelle quelle(format);
    const auto lesen = [&](qint64 rahmen) {
        const QByteArray gelesen = quelle.read(rahmen * format.bytesPerFrame());
        std::vector<qint16> werte(static_cast<std::size_t>(gelesen.size()) / sizeof(qint16));
        std::memcpy(werte.data(), gelesen.constData(), static_cast<std::size_t>(gelesen.size()));
        return werte;
    };
    EXPECT_EQ(lesen(2), (std::vector<qint16>{0, 0, 0, 0}));
    quelle.spielen(std::make_shared<qt::klangwerte>(qt::klangwerte{1.0F, 0.5F, 0.25F}));
    EXPECT_EQ(lesen(1), (std::vector<qint16>{32767, 32767}));
    quelle.spielen(std::make_shared<qt::klangwerte>(qt::klangwerte{-1.0F}));
    EXPECT_EQ(lesen(2), (std::vector<qint16>{-32767, -32767, 0, 0}));
}

TEST(Klangdatei, MitgelieferteKlaengeSindLesbar) {
    int anzahl = 0;
    for (const auto& eintrag :
         std::filesystem::directory_iterator(std::filesystem::path(TARVEL_QUELLEN) / "data/sound")) {
        std::ifstream datei(eintrag.path(), std::ios::binary);
        const std::string inhalt{std::istreambuf_iterator<char>(datei), {}};
        const auto* anfang = reinterpret_cast<const std::uint8_t*>(inhalt.data());
        EXPECT_GT(qt::klangdatei_lesen({anfang, inhalt.size()}, 48000).size(), 1000U) << eintrag.path();
        ++anzahl;
    }
    EXPECT_EQ(anzahl, 55);
}

}  // namespace
}  // namespace tarvel
