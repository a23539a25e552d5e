// Writes the files that an installed program starts with from the built-in defaults. Usage: grunddateien <folder>
// Run it after a change of the defaults, with the checkout's data/ as folder. The lists name the pictures that are
// there.

#include <cstdio>
#include <filesystem>

#include "core/dateien.h"
#include "core/nebendateien.h"
#include "hardware/iow_profil.h"
#include "results/papierkopf.h"
#include "results/urkundenvorlage.h"
#include "tests/plattform/testprogramm.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "grunddateien <Ordner>\n");
        return 2;
    }
    tarvel::test::testprogramm t;
    const tarvel::dateien ziel{std::filesystem::path(argv[1])};
    t.p.fahrerliste.bilder_uebernehmen(ziel, "nopic");
    t.p.fahrzeugliste.bilder_uebernehmen(ziel, "nocar");
    bool geschrieben = ziel.zeilen_schreiben("Einstellungen\\einstellungen.ini", t.p.datei.schreiben()) &&
                       t.p.fahrerliste.speichern(ziel, "Listen\\fahrer.lst") &&
                       t.p.fahrzeugliste.speichern(ziel, "Listen\\fahrzeuge.kfz") &&
                       tarvel::bestzeiten{}.speichern(ziel, t.p.einst.beste_datei);
    geschrieben =
        tarvel::iow_profil_speichern(ziel, t.p.einst.iow.iow_datei, tarvel::iow_werkseinstellung()) && geschrieben;
    geschrieben = tarvel::trennzeichen_speichern(ziel, t.p.einst.trennzeichen) && geschrieben;
    geschrieben =
        ziel.zeilen_schreiben(std::string(tarvel::urkunden_ordner) + "\\urkunde.txt", tarvel::eingebaute_vorlage()) &&
        geschrieben;
    for (const tarvel::sprachliste& sprache : t.p.sprachdateien()) {
        geschrieben = ziel.zeilen_schreiben(sprache.datei(), sprache.deutsche_datei()) && geschrieben;
    }
    return geschrieben ? 0 : 1;
}
