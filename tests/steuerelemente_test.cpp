#include "core/steuerelemente.h"

#include <gtest/gtest.h>

#include "core/dateien.h"
#include "core/fensterlogik.h"
#include "core/fensterregister.h"

namespace tarvel {
namespace {

TEST(Steuerelemente, NurEineAenderungMeldetSich) {
    struct : steuer_beobachter {
        int mal = 0;
        void geaendert() override { ++mal; }
    } beobachter, zweiter, dritter;
    bezeichnung label;
    for (auto* einer : {&beobachter, &zweiter, &dritter}) {
        label.beobachten(*einer);
    }
    label.nicht_mehr_beobachten(zweiter);
    label.text("00");
    label.text("00");
    label.schriftfarbe(farben::rot);
    label.schriftfarbe(farben::rot);
    label.sichtbar(true);
    label.schriftgroesse(0);
    EXPECT_EQ(beobachter.mal, 2);
    EXPECT_EQ(dritter.mal, 2) << "in a second window";
    EXPECT_EQ(zweiter.mal, 0);
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
    struct zaehlfenster : fensterlogik {
        using fensterlogik::fensterlogik;
        void laden() override { ++geladen; }
        int geladen = 0;
    };
    struct scheues_fenster : fensterlogik {
        using fensterlogik::fensterlogik;
        void laden() override { schliessen(); }
    };
    using enum fenstername;
    const dateien ablage("");
    fensterregister fenster;
    {
        const zaehlfenster a(fenster, ablage, Form1);
        fenster.zeigen(Form1);
        fenster.zeigen(Form1);
        EXPECT_EQ(a.geladen, 1);
        fenster.entladen(Form1);
        EXPECT_FALSE(fenster.ist_offen(Form1));
        fenster.zeigen(Form1);
        EXPECT_EQ(a.geladen, 2);

        const scheues_fenster b(fenster, ablage, Form3);
        fenster.zeigen(Form3);
        EXPECT_FALSE(fenster.ist_offen(Form3));
    }
    fenster.zeigen(Form1);
    EXPECT_FALSE(fenster.ist_offen(Form1)) << "its logic is gone";
}

}  // namespace
}  // namespace tarvel
