// Writes two contents in turn into one file until somebody ends it: dauerschreiber <folder>

#include "tests/ui/dauerschreiber.h"

#include <array>
#include <filesystem>

#include "core/dateien.h"
#include "platform_qt/qt_dateisystem.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    const tarvel::qt::QtDateisystem system;
    const tarvel::dateien ablage{std::filesystem::path(argv[1]), system};
    const std::array inhalte{tarvel::test::dauer_zeilen(false), tarvel::test::dauer_zeilen(true)};
    for (std::size_t nr = 0; ablage.zeilen_schreiben(tarvel::test::dauer_datei, inhalte.at(nr));) {
        nr = 1 - nr;
    }
    return 1;
}
