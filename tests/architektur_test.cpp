#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// From the ground up: a folder includes only from itself and from those in front of it.
const std::vector<std::string> ordner{"platform", "core",     "optionen",    "hardware", "race", "start",
                                      "results",  "programm", "platform_qt", "ui"};

std::size_t stufe(const std::string& name) {
    return static_cast<std::size_t>(std::find(ordner.begin(), ordner.end(), name) - ordner.begin());
}

struct einbindung {
    std::string ziel;  ///< empty for a line that includes nothing
    bool eigene = false;
};

einbindung lesen(const std::string& zeile) {
    const std::size_t anfang = zeile.find_first_of("\"<");
    if (!zeile.starts_with("#include") || anfang == std::string::npos) {
        return {};
    }
    return {zeile.substr(anfang + 1, zeile.find_first_of("\">", anfang + 1) - anfang - 1), zeile[anfang] == '"'};
}

TEST(Architektur, KeinOrdnerGreiftNachObenUndQtBleibtOben) {
    int dateien = 0;
    for (const std::string& name : ordner) {
        for (const auto& eintrag : fs::recursive_directory_iterator(fs::path(TARVEL_QUELLEN) / name)) {
            if (eintrag.path().extension() != ".h" && eintrag.path().extension() != ".cpp") {
                continue;
            }
            ++dateien;
            std::ifstream datei(eintrag.path());
            for (std::string zeile; std::getline(datei, zeile);) {
                const auto [ziel, eigene] = lesen(zeile);
                if (ziel.empty()) {
                    continue;
                }
                if (eigene) {
                    const std::string von = ziel.substr(0, ziel.find('/'));
                    EXPECT_LT(stufe(von), ordner.size()) << eintrag.path() << ": " << ziel;
                    EXPECT_LE(stufe(von), stufe(name)) << eintrag.path() << ": " << ziel;
                } else if (stufe(name) < stufe("platform_qt")) {
                    EXPECT_FALSE(ziel.starts_with("Q")) << eintrag.path() << ": " << ziel;
                    EXPECT_FALSE(ziel.starts_with("sys/") || ziel == "unistd.h" || ziel == "windows.h")
                        << eintrag.path() << ": " << ziel;
                }
            }
        }
    }
    EXPECT_GT(dateien, 30) << "the sources were not found";
}

}  // namespace
