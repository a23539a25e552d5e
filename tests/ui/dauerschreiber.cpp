// Writes two contents in turn into one file until somebody ends it: dauerschreiber <folder>

#include "tests/ui/dauerschreiber.h"

#include <filesystem>

#include "core/dateien.h"
#include "platform_qt/qt_dateisystem.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    const tarvel::qt::QtDateisystem system;
    const tarvel::dateien ablage{std::filesystem::path(argv[1]), system};
    for (bool zweiter = false;
         ablage.zeilen_schreiben(tarvel::test::dauer_datei, tarvel::test::dauer_zeilen(zweiter));) {
        zweiter = !zweiter;
    }
    return 1;
}
