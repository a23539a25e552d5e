#include "competition/wettkampftabelle.h"

#include <gtest/gtest.h>

#include "results/ergebnisdatei.h"
#include "tests/wettkampf_probe.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;
using zeilen = std::vector<std::string>;

TEST(Wettkampftabelle, ZeileFuerZeile) {
    auto w = test::wettkampf_mit(m::gruppen, 3, {1, 3});
    w.name_aendern(2, "Bernd; der Lange Schmidt", test::worte);
    spuren<fahrt> fahrten;
    fahrten[1] = {12, 98765, 12345, 8001};
    fahrten[3] = {13, 98001, 13050, 7500};
    w.ergebnis_eintragen(fahrten);
    const zeilen tabelle = tabelle_schreiben(w, {}, trennzeichen_standard);
    const std::string leer = "00:00,000;";
    const std::string erster = "1;Bernd  der Lang;13;0;0;13;0;0;0;130.5;0;0;130.5;0;0;0;";
    const std::string zweiter = "2;Fahrer 1;12;12;0;0;0;0;0;123.45;123.45;0;0;0;0;0;";
    const std::string dritter = "3;Fahrer 3;0;0;0;0;0;0;0;0;0;0;0;0;0;0;";
    EXPECT_EQ(tabelle, (zeilen{"Pokal", "Nr;Name;Runden;1;2;3;4;5;6;Meter;1;2;3;4;5;6;beste Runde;2;3;4;5;6;Gesamtzeit",
                               erster + leer + leer + "00:07,500;" + leer + leer + leer + "01:38,001",
                               zweiter + "00:08,001;" + leer + leer + leer + leer + leer + "01:38,765",
                               dritter + leer + leer + leer + leer + leer + leer + "00:00,000", "TV-WKD"}));
    EXPECT_EQ(datei_typ_erkennen(tabelle), ergebnis_typ::wettkampf);
}

TEST(Wettkampftabelle, JederGegenJeden) {
    auto w = test::wettkampf_mit(m::jeder_gegen_jeden, 2, {1, 2});
    w.ergebnis_eintragen({{fahrt{1234, 60500, 5, 900}, fahrt{9, 61000, 5, 5000}}});
    w.naechstes_offenes_rennen();
    w.ergebnis_eintragen({{fahrt{12, 60000, 5, 4900}, fahrt{0, 0, 0, 0}}});
    const zeilen tabelle = tabelle_schreiben(w, {}, {".", ":", "|"});
    EXPECT_EQ(tabelle, (zeilen{"Pokal", "Nr|Name|Runden|Einzelrunden|beste Runde|Gesamtzeit",
                               "1.|Fahrer 1|234|234| 0|00.00:900|00.00:000|01.00:500",
                               "2.|Fahrer 2| 21| 9| 12|00.05:000|00.04:900|02.01:000", "TV-JJ2-WKD"}));
    EXPECT_EQ(datei_typ_erkennen(tabelle), ergebnis_typ::jeder_gegen_jeden);
}

}  // namespace
}  // namespace tarvel
