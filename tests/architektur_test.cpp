#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

using ordnermenge = std::set<std::string>;

/// What each folder stands on directly; what those stand on, it may include too.
const std::map<std::string, ordnermenge> ordner{
    {"platform", {}},          {"core", {"platform"}},       {"optionen", {"core"}},
    {"hardware", {"core"}},    {"race", {"hardware"}},       {"start", {"race"}},
    {"results", {"race"}},     {"competition", {"results"}}, {"programm", {"competition", "optionen", "start"}},
    {"platform_qt", {"core"}}, {"ui", {"programm"}},
};
const ordnermenge mit_qt{"platform_qt", "ui"};

ordnermenge erlaubte(const std::string& name) {
    ordnermenge alle{name};
    for (const std::string& unten : ordner.at(name)) {
        alle.merge(erlaubte(unten));
    }
    return alle;
}

std::string inhalt(const fs::path& pfad) {
    std::ifstream datei(pfad);
    return {std::istreambuf_iterator<char>(datei), {}};
}

void datei_pruefen(const fs::path& pfad, const std::string& name) {
    const std::string eigene = "#include \"";
    ordnermenge darf = erlaubte(name);
    if (pfad.parent_path().filename() == "ui" && pfad.filename() == "main.cpp") {
        darf.insert("platform_qt");  // here the program meets its machine
    }
    std::ifstream datei(pfad);
    for (std::string zeile; std::getline(datei, zeile);) {
        if (zeile.starts_with(eigene)) {
            const std::string von = zeile.substr(eigene.size(), zeile.find('/') - eigene.size());
            EXPECT_TRUE(darf.contains(von)) << pfad << ": " << zeile;
        }
        for (const char* system : {"#include <Q", "#include <sys/", "#include <unistd.h", "#include <windows.h"}) {
            EXPECT_FALSE(zeile.starts_with(system) && !mit_qt.contains(name)) << pfad << ": " << zeile;
        }
    }
}

TEST(Architektur, JederOrdnerNimmtNurVonDenenAufDenenErSteht) {
    for (const auto& [name, unten] : ordner) {
        int dateien = 0;
        for (const auto& eintrag : fs::recursive_directory_iterator(fs::path(TARVEL_QUELLEN) / name)) {
            if (eintrag.path().extension() == ".h" || eintrag.path().extension() == ".cpp") {
                ++dateien;
                datei_pruefen(eintrag.path(), name);
            }
        }
        EXPECT_GT(dateien, 2) << name << ": the sources were not found";
    }
}

TEST(Architektur, DieBibliothekenHaengenZusammenWieDieOrdner) {
    std::map<std::string, ordnermenge> bibliotheken;
    for (const auto& eintrag : fs::directory_iterator(TARVEL_QUELLEN)) {
        std::string bauplan = inhalt(eintrag.path() / "CMakeLists.txt");
        if (!bauplan.starts_with("tarvel_bibliothek(")) {
            continue;
        }
        bauplan.resize(bauplan.find(')'));
        ordnermenge& unten = bibliotheken[eintrag.path().filename().string()];
        const std::size_t nutzt = bauplan.find("NUTZT ");
        std::istringstream woerter(nutzt == std::string::npos ? "" : bauplan.substr(nutzt));
        for (std::string wort; woerter >> wort;) {
            if (ordner.contains(wort)) {
                unten.insert(wort);
            }
        }
    }
    EXPECT_EQ(bibliotheken, ordner);
}

}  // namespace
