// Writes two contents in turn into one file until somebody ends it: dauerschreiber <folder>

#include "tests/ui/dauerschreiber.h"

#include <filesystem>

#include "core/dateien.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    const tarvel::dateien ablage{std::filesystem::path(argv[1])};
    const std::vector<std::string> eine = tarvel::test::dauer_zeilen(false);
    const std::vector<std::string> andere = tarvel::test::dauer_zeilen(true);
    while (ablage.zeilen_schreiben(tarvel::test::dauer_datei, eine) &&
           ablage.zeilen_schreiben(tarvel::test::dauer_datei, andere)) {
    }
    return 1;
}
