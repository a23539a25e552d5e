#include <functional>

#include "tests/optionen_probe.h"

namespace tarvel {
namespace {

using test::bleibt;
using test::grenzen_titel;
using test::meldungen;

class Optionsgrenzen : public test::OptionenProbe {};

struct grenze {
    const char* name;
    const char* meldung;
    std::vector<const char*> ausserhalb;
    const char* unten;
    const char* oben;
    std::function<double(const einstellungen&)> wert;
    double wert_unten;
    double wert_oben;
};

TEST_F(Optionsgrenzen, GrenzenMitMeldungLassenDenAltenWertUndNehmenDieAnderen) {
    using e = einstellungen;
    const std::vector<grenze> grenzen{
        {"f_strafzeit",
         "Stromunterbrechung bei Frühstart außerhalb des gültigen Bereichs (0-300).",
         {"-1", "301"},
         "0",
         "300",
         [](const e& x) { return x.fruehstart_strafzeit + x.fruehstart_schritte; },
         0,
         30300},
        {"t_wartezeit",
         "Wartezeit bis Tankbeginn außerhalb des gültigen Bereichs (0-60).",
         {"60,1", "-0,1"},
         "0",
         "60",
         [](const e& x) { return x.tank_wartezeit; },
         0,
         6000},
        {"t_inhalt_w",
         "Tankinhalt außerhalb des gültigen Bereichs (1-100).",
         {"0", "101", "", "viel"},
         "1",
         "100",
         [](const e& x) { return x.tank_inhalt; },
         1,
         100},
        {"t_verbrauch_w",
         "Benzinverbrauch außerhalb des gültigen Bereichs (1-30).",
         {"0", "31"},
         "1",
         "30",
         [](const e& x) { return x.tank_verbrauch; },
         1,
         30},
        {"t_rundenzeit_w",
         "Durchschn. Rundenzeit außerhalb des gültigen Bereichs (1-300).",
         {"0", "301"},
         "1",
         "300",
         [](const e& x) { return x.tank_rundenzeit; },
         1,
         300},
        {"t_warnung",
         "in Box bei Literzahl außerhalb des gültigen Bereichs.",
         {"0,9", "50,1"},
         "1",
         "50",
         [](const e& x) { return x.tank_warnung; },
         1,
         50},
        {"w_zeit1",
         "Autom. Wettkampfablauf: Wartezeit bis Rennbeginn außerhalb des gültigen Bereichs (1-300).",
         {"0", "301"},
         "1",
         "300",
         [](const e& x) { return x.w_zeit1; },
         1000,
         300000},
        {"w_zeit2",
         "Autom. Wettkampfablauf: Wartezeit nach Einfahrfunktion außerhalb des gültigen Bereichs (1-300).",
         {"0", "301"},
         "1",
         "300",
         [](const e& x) { return x.w_zeit2; },
         1000,
         300000},
        {"t_strafzeit",
         "Strafzeit bei leerem Tank außerhalb des gültigen Bereichs (0-60).",
         {"-1", "61"},
         "0",
         "60",
         [](const e& x) { return x.tank_strafzeit; },
         0,
         6000},
        {"chaos_durch",
         "Timeout bei Sensordurchfahrt außerhalb des gültigen Bereichs (0-10).",
         {"10,5", "-1"},
         "0",
         "10",
         [](const e& x) { return x.sensor_timeout; },
         0,
         10000},
    };
    for (const grenze& g : grenzen) {
        for (const char* text : g.ausserhalb) {
            const double vorher = g.wert(einst);
            kreuzen("formelcheck");
            const bool soll = element<haken>("formelcheck").gesetzt();
            EXPECT_EQ(nach_eingabe(g.name, text), (meldungen{{std::string(g.meldung) + bleibt, grenzen_titel}}))
                << g.name << " " << text;
            EXPECT_EQ(g.wert(einst), vorher) << g.name << " " << text;
            EXPECT_EQ(einst.runde_beenden, soll) << "the other values are taken over";
        }
        for (const auto& gezeigt : nach_eingabe(g.name, g.unten)) {
            EXPECT_NE(gezeigt.text, std::string(g.meldung) + bleibt);  // a tiny tank leaves no room for its warning
        }
        EXPECT_EQ(g.wert(einst), g.wert_unten) << g.name;
        EXPECT_TRUE(nach_eingabe(g.name, g.oben).empty()) << g.name;
        EXPECT_EQ(g.wert(einst), g.wert_oben) << g.name;
    }
}

TEST_F(Optionsgrenzen, KommaUndPunktSindDasselbe) {
    EXPECT_TRUE(nach_eingabe("t_wartezeit", "1,25").empty());
    EXPECT_EQ(einst.tank_wartezeit, 125);
    EXPECT_EQ(element<feld>("t_wartezeit").text(), "1,25");
    EXPECT_TRUE(nach_eingabe("t_wartezeit", "2.5").empty());
    EXPECT_EQ(einst.tank_wartezeit, 250);
    EXPECT_TRUE(nach_eingabe("sektor_laenge_2_6", "3,5").empty());
    EXPECT_EQ(einst.sektor_laenge[2][6], "3.5");
}

TEST_F(Optionsgrenzen, StilleKorrekturen) {
    struct fall {
        const char* name;
        const char* text;
        std::function<int(const einstellungen&)> wert;
        int soll;
    };
    using e = einstellungen;
    const auto beste = [](const e& x) { return x.snd_beste_runde; };
    const auto justierung = [](const e& x) { return x.tanksensor_justierung; };
    const auto chaos = [](const e& x) { return x.chaos_strafzeit; };
    const auto training = [](const e& x) { return x.training_wechseldauer; };
    const auto einfahren = [](const e& x) { return x.w_edauer; };
    const auto lpt = [](const e& x) { return x.lpt_adresse; };
    const auto laufen = [&](const std::vector<fall>& faelle) {
        for (const fall& eine : faelle) {
            EXPECT_TRUE(nach_eingabe(eine.name, eine.text).empty());
            EXPECT_EQ(eine.wert(einst), eine.soll) << eine.name << " " << eine.text;
        }
    };
    laufen({{"snd_beste", "0", beste, 5},
            {"snd_beste", "10", beste, 10},
            {"snd_beste", "11", beste, 5},
            {"txt_justierung_aufeinemsensortanken", "11", justierung, 12},
            {"txt_justierung_aufeinemsensortanken", "101", justierung, 100},
            {"e_ch_strafzeit", "123456", chaos, 1234},
            {"txt_trainingwechseldauer", "1001", training, 1000},
            {"w_edauertext", "0", einfahren, 2},
            {"w_edauertext", "100", einfahren, 10},
            {"lpt_text", "2f8", lpt, 0x2F8},
            {"lpt_text", "XYZ", lpt, 0x2F8}});
    waehlen("w_edauer1", 1);
    laufen({{"w_edauertext", "0", einfahren, 60}, {"w_edauertext", "1000", einfahren, 999}});
}

}  // namespace
}  // namespace tarvel
