// Writes two contents in turn into one file until somebody ends it: dauerschreiber <folder> [abend]

#include "tests/ui/dauerschreiber.h"

#include <filesystem>
#include <string_view>

#include "competition/wettkampfspeicher.h"
#include "platform_qt/qt_dateisystem.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {
namespace {

void zeilen_schreiben(const dateien& ablage) {
    const std::array inhalte{dauer_zeilen(false), dauer_zeilen(true)};
    for (std::size_t nr = 0; ablage.zeilen_schreiben(dauer_datei, inhalte.at(nr));) {
        nr = 1 - nr;
    }
}

void abend_schreiben(const dateien& ablage, const std::filesystem::path& ordner) {
    testprogramm t(ordner);  // in a folder below, which goes with this one
    const plattform::dienste dienste = t.maschine.dienste();
    wettkampfspeicher speicher({t.p.datei, t.p.einst, ablage, t.p.txt, dienste.kalender, t.p.rundenspeichern});
    const std::array staende{dauer_abend(false), dauer_abend(true)};
    for (std::size_t nr = 0; speicher.laufenden_sichern(staende.at(nr));) {
        nr = 1 - nr;
    }
}

}  // namespace
}  // namespace tarvel::test

int main(int argc, char** argv) {
    if (argc < 2) {
        return 2;
    }
    const tarvel::qt::QtDateisystem system;
    const std::filesystem::path ordner(argv[1]);
    const tarvel::dateien ablage{ordner, system};
    if (argc > 2 && std::string_view(argv[2]) == "abend") {
        tarvel::test::abend_schreiben(ablage, ordner);
    } else {
        tarvel::test::zeilen_schreiben(ablage);
    }
    return 1;
}
