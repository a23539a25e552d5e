#include "results/papiername.h"

#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using Papiername = test::ProgrammProbe;

TEST_F(Papiername, NenntTagUndInhaltOhneZeichenDieKeineDateiNimmt) {
    EXPECT_EQ(papiername("Ergebnisse", {"21.11.2026", "14:03:22"}, "Ergebnis"),
              "Ergebnisse\\2026-11-21 14.03 Ergebnis");
    EXPECT_EQ(papiername("Ergebnisse", {"21.11.2026", ""}, "Urkunde A/B:\\*?"),
              "Ergebnisse\\2026-11-21 Urkunde A_B____");
    EXPECT_EQ(papiername("Ergebnisse", {"gestern", "14:03"}, "Ergebnis"), "Ergebnisse\\Ergebnis");
}

TEST_F(Papiername, BleibtImZuletztBenutztenOrdnerUndUeberschreibtNichts) {
    const auto vorschlag = [&] { return papierdatei_vorschlagen(t.p.ablage, "Ergebnisse\\Blatt Nr. 1", ".pdf"); };
    EXPECT_EQ(vorschlag(), t.p.ablage.pfad("Ergebnisse\\Blatt Nr. 1.pdf"));
    t.maschine.datei_schreiben("Übergabe/Blatt Nr. 1.pdf", "x");
    const std::filesystem::path ordner = t.p.ablage.pfad("Übergabe");
    papierordner_merken(t.p.ablage, ordner / "anderes.pdf");
    EXPECT_EQ(vorschlag(), ordner / "Blatt Nr. 1 (2).pdf");
    std::filesystem::remove_all(ordner);
    EXPECT_EQ(vorschlag(), t.p.ablage.pfad("Ergebnisse\\Blatt Nr. 1.pdf")) << "the stick has been pulled out";
}

}  // namespace
}  // namespace tarvel
