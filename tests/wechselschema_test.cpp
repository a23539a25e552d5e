#include "core/wechselschema.h"

#include "core/nebendateien.h"
#include "tests/optionen_probe.h"

namespace tarvel {
namespace {

using lanes = std::vector<int>;

lanes nachfolger(const wechsel_folge& folge, const spuren<bool>& aktiv) {
    const auto von = wechsel_nachfolger(folge, aktiv);
    return {von.begin(), von.end()};
}

TEST(Wechselschema, FahrerWandernUmUnbenutzteSpurenHerum) {
    const spuren<bool> alle{{true, true, true, true, true, true}};
    EXPECT_EQ(nachfolger(wechsel_standard, alle), (lanes{2, 3, 4, 5, 6, 1})) << "from 1 to 6, from 6 to 5";
    EXPECT_EQ(nachfolger(*wechsel_folge_lesen("123456P"), alle), (lanes{6, 1, 2, 3, 4, 5})) << "one lane up";
    EXPECT_EQ(nachfolger(wechsel_standard, {{true, false, true, false, false, false}}), (lanes{3, 0, 1, 0, 0, 0}));
    EXPECT_EQ(nachfolger(wechsel_standard, {{false, true, true, false, false, true}}), (lanes{0, 3, 6, 0, 0, 2}));
    EXPECT_EQ(nachfolger(wechsel_standard, {{false, false, false, true, false, false}}), (lanes{0, 0, 0, 4, 0, 0}));
    EXPECT_EQ(nachfolger(wechsel_standard, {}), (lanes{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(nachfolger(*wechsel_folge_lesen("1P23456"), {{true, true, false, false, false, false}}),
              (lanes{2, 1, 0, 0, 0, 0}));
}

class WechselschemaWahl : public test::OptionenProbe {
protected:
    auswahl& schemas = element<auswahl>("Wechselschemaauswahl");
    feld& folge = element<feld>("wechsel_schema");
};

TEST_F(WechselschemaWahl, LiestGueltigesUndZeigtUngueltiges) {
    t.maschine.datei_schreiben("Wechselschema.ws",
                               "\r\n#Rennen\r\n123456P\r\n\r\nKommentar\r\n#kurz\r\n12345P\r\n#doppelt\r\n1123456\r\n"
                               "#sieben\r\n1234567\r\n#ohne");
    fenster.Command2.klicken();
    oeffnen();
    EXPECT_EQ(schemas.eintraege(),
              (std::vector<std::string>{"Tarvel Standard :  1 - 6 - 5 - 4 - 3 - 2", "Rennen :  1-2-3-4-5-6-P",
                                        "kurz :  Schema ungültig", "doppelt :  1-Schema ungültig",
                                        "sieben :  1-2-3-4-5-6-Schema ungültig", "ohne :  Schema ungültig"}));
    schemas.waehlen(1);
    EXPECT_EQ(folge.text(), "1-2-3-4-5-6-P");
    uebernehmen();
    EXPECT_EQ(einst.wechselschema_name, "Rennen :  1-2-3-4-5-6-P");
    EXPECT_EQ(einst.wechsel_schema[2], 2);
    schemas.waehlen(2);
    uebernehmen();
    EXPECT_EQ(einst.wechselschema_name, "kurz :  Schema ungültig") << "may be chosen";
    EXPECT_EQ(einst.wechsel_schema[2], 2) << "and leaves the order";
}

TEST_F(WechselschemaWahl, NeuesSchemaWirdAngehaengt) {
    befehl& hinzufuegen = element<befehl>("schema_hinzufuegen");
    feld& name = element<feld>("schema_name");
    const auto versuch = [&](const char* wie, const char* reihenfolge) {
        t.maschine.meldungen_gezeigt.clear();
        name.eingeben(wie);
        folge.eingeben(reihenfolge);
        hinzufuegen.klicken();
        return t.maschine.meldungen_gezeigt.size();
    };
    EXPECT_EQ(versuch("", "6-5-4-3-2-1-P"), 1U);
    EXPECT_EQ(versuch("Meins", "6-5-4-3-2-2-P"), 1U);
    EXPECT_EQ(versuch("Tarvel Standard", "6-5-4-3-2-1-P"), 1U);
    EXPECT_EQ(versuch("Meins", "6-5-4-3-2-1-P"), 0U);
    EXPECT_EQ(schemas.text(), "Meins :  6-5-4-3-2-1-P");
    EXPECT_EQ(versuch("Meins", "6-5-4-3-1-2-P"), 1U);
    EXPECT_EQ(t.maschine.datei_lesen("Wechselschema.ws"), "\r\n#Meins\r\n654321P\r\n");
    std::filesystem::remove(t.maschine.ordner() / "Wechselschema.ws");
    std::filesystem::create_directory(t.maschine.ordner() / "Wechselschema.ws");
    t.maschine.meldungen_gezeigt.clear();
    fenster.Command2.klicken();
    oeffnen();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Datei Wechselschema.ws fehlerfaft");
}

TEST_F(WechselschemaWahl, GruppenkaestenFolgenEinanderUndDemSchema) {
    t.maschine.datei_schreiben("Wechselschema.ws", "\r\n#Rennen\r\n123456P\r\n");
    fenster.Command2.klicken();
    oeffnen();
    const std::array<haken*, 3> kasten{&element<haken>("wechselcheck1"), &element<haken>("wechselcheck2"),
                                       &element<haken>("wechselcheck3")};
    const auto stand = [&] {  // "x" ticked, "-" empty, blank not to be ticked
        std::string zeichen;
        for (const haken* k : kasten) {
            EXPECT_FALSE(k->gesetzt() && !k->aktiviert());
            zeichen += k->gesetzt() ? 'x' : k->aktiviert() ? '-' : ' ';
        }
        return zeichen;
    };
    EXPECT_EQ(stand(), "-  ");
    for (haken* k : kasten) {
        k->umschalten();
    }
    EXPECT_EQ(stand(), "xxx");
    kasten[0]->umschalten();
    EXPECT_EQ(stand(), "-  ");
    schemas.waehlen(1);
    EXPECT_EQ(stand(), "-- ");
    kasten[1]->umschalten();
    folge.eingeben("1-6-5-4-3-2");
    EXPECT_EQ(stand(), "-  ") << "the standard's order under any name";
    folge.eingeben("1-2-3-4-5-6-P");
    kasten[1]->umschalten();
    EXPECT_EQ(stand(), "-x ");
    schemas.waehlen(0);
    EXPECT_EQ(stand(), "-  ");
    fenster.Command2.klicken();
    EXPECT_EQ(einst.gruppen, gruppenwahl{}) << "cancelled";

    oeffnen();
    kasten[0]->umschalten();
    kasten[2]->umschalten();
    uebernehmen();
    EXPECT_EQ(stand(), "x-x");
    einst.gruppen = {};
    gruppenwahl_laden(t.p.ablage, einst.gruppen);
    EXPECT_EQ(einst.gruppen, (gruppenwahl{true, false, true})) << "as the next start reads it";
    for (const char* inhalt : {"", "Wahr\r\nWahr", "Wahr\r\nja\r\nWahr\r\n"}) {
        t.maschine.datei_schreiben("tvk_gruppen.ini", inhalt);
        gruppenwahl neu;
        gruppenwahl_laden(t.p.ablage, neu);
        EXPECT_EQ(neu, gruppenwahl{}) << inhalt;
    }
}

}  // namespace
}  // namespace tarvel
