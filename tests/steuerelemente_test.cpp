#include "core/steuerelemente.h"

#include <gtest/gtest.h>

#include "core/fensterregister.h"

namespace tarvel {
namespace {

TEST(Steuerelemente, NurEineAenderungMeldetSich) {
    struct : steuer_beobachter {
        int mal = 0;
        void geaendert() override { ++mal; }
    } beobachter;
    bezeichnung label;
    label.beobachten(&beobachter);
    label.text("00");
    label.text("00");
    label.schriftfarbe(farben::rot);
    label.schriftfarbe(farben::rot);
    label.sichtbar(true);
    label.schriftgroesse(0);
    EXPECT_EQ(beobachter.mal, 2);
}

TEST(Steuerelemente, GesperrtesOderVerborgenesNimmtNichtsAn) {
    int mal = 0;
    befehl knopf;
    feld text;
    haken box;
    knopf.bei_klick = text.bei_aenderung = box.bei_aenderung = [&mal] { ++mal; };
    knopf.aktiviert(false);
    text.sichtbar(false);
    box.aktiviert(false);
    knopf.klicken();
    text.eingeben("x");
    box.umschalten();
    EXPECT_EQ(mal, 0);
    EXPECT_EQ(text.text(), "");
    EXPECT_FALSE(box.gesetzt());
}

TEST(Steuerelemente, EingabenBleibenInIhrenGrenzen) {
    feld text;
    text.laenge_max(3);
    text.eingeben("äöüß");
    EXPECT_EQ(text.text(), "äöü");
    auswahl wahl;
    wahl.eintraege({"Zeit", "Runden"});
    wahl.eingeben("Runden");
    wahl.eingeben("Meter");
    EXPECT_EQ(wahl.text(), "Runden");
    wahl.frei(true);
    wahl.eingeben("Meter");
    EXPECT_EQ(wahl.text(), "Meter");
}

TEST(Steuerelemente, ListeMarkiertNieInsLeere) {
    liste zeilen;
    zeilen.markieren(3);
    EXPECT_EQ(zeilen.markiert(), -1);
    zeilen.hinzufuegen("0");
    zeilen.hinzufuegen("1");
    zeilen.markieren(7);
    EXPECT_EQ(zeilen.markiert(), 1);
    zeilen.leeren();
    EXPECT_EQ(zeilen.markiert(), -1);
}

TEST(Fensterregister, LaedtEinmalUndVertraegtSchliessenImLadevorgang) {
    fensterregister fenster;
    int geladen = 0;
    fenster.anmelden("a", {[&] { ++geladen; }, {}});
    fenster.zeigen("a");
    fenster.zeigen("a");
    EXPECT_EQ(geladen, 1);
    fenster.entladen("a");
    EXPECT_FALSE(fenster.ist_offen("a"));
    fenster.zeigen("a");
    EXPECT_EQ(geladen, 2);

    fenster.anmelden("b", {[&] { fenster.entladen("b"); }, {}});
    fenster.zeigen("b");
    EXPECT_FALSE(fenster.ist_offen("b"));
    fenster.zeigen("unbekannt");
    EXPECT_FALSE(fenster.ist_offen("unbekannt"));
}

}  // namespace
}  // namespace tarvel
