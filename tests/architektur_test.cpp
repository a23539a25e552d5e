#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// From the ground up: a folder includes only from itself and from those in front of it.
const std::vector<std::string> ordner{"platform", "core",        "optionen", "hardware",    "race", "start",
                                      "results",  "competition", "programm", "platform_qt", "ui"};

std::size_t stufe(const std::string& name) {
    return static_cast<std::size_t>(std::find(ordner.begin(), ordner.end(), name) - ordner.begin());
}

TEST(Architektur, KeinOrdnerGreiftNachObenUndQtBleibtOben) {
    const std::string eigene = "#include \"";
    int dateien = 0;
    for (const std::string& name : ordner) {
        for (const auto& eintrag : fs::recursive_directory_iterator(fs::path(TARVEL_QUELLEN) / name)) {
            if (eintrag.path().extension() != ".h" && eintrag.path().extension() != ".cpp") {
                continue;
            }
            ++dateien;
            std::ifstream datei(eintrag.path());
            for (std::string zeile; std::getline(datei, zeile);) {
                if (zeile.starts_with(eigene)) {
                    const std::string von = zeile.substr(eigene.size(), zeile.find('/') - eigene.size());
                    EXPECT_LT(stufe(von), ordner.size()) << eintrag.path() << ": " << zeile;
                    EXPECT_LE(stufe(von), stufe(name)) << eintrag.path() << ": " << zeile;
                }
                for (const char* system :
                     {"#include <Q", "#include <sys/", "#include <unistd.h", "#include <windows.h"}) {
                    EXPECT_FALSE(stufe(name) < stufe("platform_qt") && zeile.starts_with(system))
                        << eintrag.path() << ": " << zeile;
                }
            }
        }
    }
    EXPECT_GT(dateien, 30) << "the sources were not found";
}

}  // namespace
