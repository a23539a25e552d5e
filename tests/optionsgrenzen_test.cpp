#include "tests/optionen_probe.h"

namespace tarvel {
namespace {

using test::bleibt;
using test::meldungen;
using e = einstellungen;

class Optionsgrenzen : public test::OptionenProbe {};

struct grenze {
    const char* name;
    const char* meldung;  ///< what it is about
    const char* darunter;
    const char* unten;
    const char* oben;
    const char* darueber;
    std::size_t zeile;        ///< Z in the settings file
    const char* gespeichert;  ///< there, at the upper limit
};

TEST_F(Optionsgrenzen, GrenzenMitMeldungLassenDenAltenWertUndNehmenDieAnderen) {
    const auto zeile = [this](const grenze& g) { return t.p.datei.schreiben().at(g.zeile + 1); };
    for (const grenze& g : {
             grenze{"f_strafzeit", "Stromunterbrechung", "-1", "0", "300", "301", 44, " 30000 "},
             {"t_wartezeit", "Wartezeit bis Tankbeginn", "-0,1", "0", "60", "60,1", 39, " 6000 "},
             {"t_inhalt_w", "Tankinhalt", "0", "1", "100", "101", 36, " 100 "},
             {"t_verbrauch_w", "Benzinverbrauch", "", "1", "30", "31", 37, " 30 "},
             {"t_rundenzeit_w", "Durchschn. Rundenzeit", "viel", "1", "300", "301", 38, " 300 "},
             {"t_warnung", "in Box bei Literzahl", "0,9", "1", "50", "50,1", 249, " 50 "},
             {"w_zeit1", "Wartezeit bis Rennbeginn", "0", "1", "300", "301", 109, " 300000 "},
             {"w_zeit2", "Wartezeit nach Einfahrfunktion", "0", "1", "300", "301", 110, " 300000 "},
             {"t_strafzeit", "Strafzeit bei leerem Tank", "-1", "0", "60", "61", 40, " 6000 "},
             {"chaos_durch", "Timeout bei Sensordurchfahrt", "-1", "0", "10", "10,5", 62, " 10000 "},
         }) {
        SCOPED_TRACE(g.name);
        for (const char* text : {g.darunter, g.darueber}) {
            const std::string vorher = zeile(g);
            kreuzen("formelcheck");
            const bool soll = element<haken>("formelcheck").gesetzt();
            const meldungen gezeigt = nach_eingabe(g.name, text);
            ASSERT_EQ(gezeigt.size(), 1U) << text;
            EXPECT_NE(gezeigt[0].text.find(g.meldung), std::string::npos) << gezeigt[0];
            EXPECT_TRUE(gezeigt[0].text.ends_with(bleibt)) << gezeigt[0];
            EXPECT_EQ(gezeigt[0].titel, "Parameter außerhalb gültiger Werte");
            EXPECT_EQ(zeile(g), vorher) << text;
            EXPECT_EQ(einst.runde_beenden, soll) << "the other values are taken over";
        }
        nach_eingabe(g.name, g.unten);
        EXPECT_EQ(element<feld>(g.name).text(), g.unten);
        EXPECT_TRUE(nach_eingabe(g.name, g.oben).empty());
        EXPECT_EQ(zeile(g), g.gespeichert);
    }
    EXPECT_EQ(einst.fruehstart_schritte, 300);
    einst.fruehstart_strafzeit = 10;  // what a start leaves behind
    nach_eingabe("f_strafzeit", "0.1");
    EXPECT_EQ(einst.fruehstart_schritte, 300);
}

TEST_F(Optionsgrenzen, KommaUndPunktSindDasselbe) {
    nach_eingabe("t_wartezeit", "1,25");
    EXPECT_EQ(einst.tank_wartezeit, 125);
    EXPECT_EQ(element<feld>("t_wartezeit").text(), "1,25");
    nach_eingabe("t_wartezeit", "2.5");
    EXPECT_EQ(einst.tank_wartezeit, 250);
    nach_eingabe("sektor_laenge_2_6", "3,5");
    EXPECT_EQ(einst.sektor_laenge[2][6], "3.5");
}

TEST_F(Optionsgrenzen, StilleKorrekturen) {
    struct fall {
        const char* name;
        const char* text;
        int e::*wert;
        int soll;
    };
    const auto laufen = [&](const std::vector<fall>& faelle) {
        for (const auto& [name, text, wert, soll] : faelle) {
            EXPECT_TRUE(nach_eingabe(name, text).empty());
            EXPECT_EQ(einst.*wert, soll) << name << " " << text;
        }
    };
    laufen({{"snd_beste", "0", &e::snd_beste_runde, 5},
            {"snd_beste", "10", &e::snd_beste_runde, 10},
            {"snd_beste", "11", &e::snd_beste_runde, 5},
            {"txt_justierung_aufeinemsensortanken", "11", &e::tanksensor_justierung, 12},
            {"txt_justierung_aufeinemsensortanken", "101", &e::tanksensor_justierung, 100},
            {"e_ch_strafzeit", "123456", &e::chaos_strafzeit, 1234},
            {"txt_trainingwechseldauer", "1001", &e::training_wechseldauer, 1000},
            {"w_edauertext", "0", &e::w_edauer, 2},
            {"w_edauertext", "100", &e::w_edauer, 10},
            {"lpt_text", "2f8", &e::lpt_adresse, 0x2F8},
            {"lpt_text", "XYZ", &e::lpt_adresse, 0x2F8}});
    waehlen("w_edauer1", 1);
    laufen({{"w_edauertext", "0", &e::w_edauer, 60}, {"w_edauertext", "1000", &e::w_edauer, 999}});
}

}  // namespace
}  // namespace tarvel
