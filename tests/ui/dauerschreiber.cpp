// Writes two contents in turn into one file until somebody ends it: dauerschreiber <folder>

#include "tests/ui/dauerschreiber.h"

#include <filesystem>

#include "core/dateien.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 2;
    }
    const tarvel::dateien ablage{std::filesystem::path(argv[1])};
    for (bool zweiter = false;
         ablage.zeilen_schreiben(tarvel::test::dauer_datei, tarvel::test::dauer_zeilen(zweiter));) {
        zweiter = !zweiter;
    }
    return 1;
}
