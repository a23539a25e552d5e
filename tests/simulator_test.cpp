#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"

namespace tarvel::simulator {
namespace {

const std::string anfrage = "\"?\r";
const std::string starttaste = "\"T2P$";

/// A device and what it has sent.
template <class Geraet, class Einstellung>
struct gegenstelle {
    explicit gegenstelle(const Einstellung& einst) : g(einst) {
        g.senden = [this](std::string_view bytes) { antwort += bytes; };
        g.weiter(jetzt);
    }
    void laufen(zeit_ms dauer, zeit_ms schritt = 1) {
        for (const zeit_ms ende = jetzt + dauer; jetzt < ende;) {
            jetzt = std::min(jetzt + schritt, ende);
            g.weiter(jetzt);
        }
    }
    /// What is sent meanwhile.
    std::string fragen(std::string_view bytes) {
        antwort.clear();
        g.empfangen(bytes);
        return std::exchange(antwort, {});
    }
    std::vector<ueberfahrt> von(int wagen, int sensor = 1) const {
        std::vector<ueberfahrt> seine;
        std::copy_if(g.fahrten().begin(), g.fahrten().end(), std::back_inserter(seine),
                     [=](const ueberfahrt& u) { return u.wagen == wagen && u.sensor == sensor; });
        return seine;
    }

    Geraet g;
    zeit_ms jetzt = 1000000;
    std::string antwort;
};
using cu_probe = gegenstelle<control_unit, control_unit_einstellung>;
using at_probe = gegenstelle<at2560, at2560_einstellung>;

/// Cars that take the same time for every lap.
rennen_einstellung gleichmaessig(std::size_t wagen) {
    rennen_einstellung rennen;
    rennen.wagen.resize(wagen);
    for (wagen_einstellung& w : rennen.wagen) {
        w.streuung = 0;
    }
    return rennen;
}

/// The script with this step of time and these cuts: what drove, and what was sent.
template <class Probe, class Einstellung>
std::pair<std::vector<ueberfahrt>, std::string> abspielen(Einstellung einst, const std::vector<std::string>& folge,
                                                          zeit_ms schritt, std::size_t schnitt) {
    einst.rennen.wagen = std::vector<wagen_einstellung>(4);
    einst.rennen.wagen[1].chaos_promille = 100;
    einst.rennen.wagen[2].runden_je_stopp = 2;
    Probe p(einst);
    for (const std::string& bytes : folge) {
        for (std::size_t i = 0; i < bytes.size(); i += schnitt) {
            p.g.empfangen(std::string_view(bytes).substr(i, schnitt));
        }
        p.laufen(20123, schritt);
    }
    return {p.g.fahrten(), p.antwort};
}

TEST(Simulator, SchrittweiteUndSchnittAendernNichts) {
    control_unit_einstellung cu;
    cu.vorspann_promille = 300;
    const std::vector<std::string> cu_folge{"?\r\"T2P$",   "\"T2\"T2P$" + anfrage, anfrage + "\"J1?01",
                                            "$" + anfrage, "\"?0\"0" + starttaste, starttaste + anfrage + anfrage};
    at2560_einstellung at;
    const std::vector<std::string> at_folge{":A11;\r:A21;:A31;", ":P01;:A00;\r:A61;:S;\r", ":P20:P10;:T;", ":T;:P11;"};
    const auto cu_soll = abspielen<cu_probe>(cu, cu_folge, 1, 100);
    const auto at_soll = abspielen<at_probe>(at, at_folge, 1, 100);
    EXPECT_GT(cu_soll.first.size(), 50U);
    EXPECT_GT(at_soll.first.size(), 50U);
    for (const auto& [schritt, schnitt] : {std::pair<zeit_ms, std::size_t>{7, 1}, {5000, 2}, {20123, 3}}) {
        EXPECT_EQ(abspielen<cu_probe>(cu, cu_folge, schritt, schnitt), cu_soll) << schritt;
        EXPECT_EQ(abspielen<at_probe>(at, at_folge, schritt, schnitt), at_soll) << schritt;
    }
}

TEST(Simulator, EineSaatIstEinRennen) {
    control_unit_einstellung cu;
    cu.rennen.sofort = true;
    cu.rennen.wagen.resize(1);
    cu_probe p(cu);
    p.laufen(30000);
    std::vector<zeit_ms> stempel;
    for (const ueberfahrt& u : p.von(1)) {
        stempel.push_back(u.stempel);
    }
    EXPECT_EQ(stempel, (std::vector<zeit_ms>{650, 8729, 16721, 24790})) << "on every machine";
}

TEST(Simulator, BeliebigeBytesSchadenNicht) {
    std::mt19937_64 zufall(7);
    const std::string zeichen = "\"?T2PJ$=01\r:;,.ASIPEC1346R#x";
    cu_probe cu(control_unit_einstellung{gleichmaessig(8)});
    at_probe at(at2560_einstellung{gleichmaessig(6)});
    for (int i = 0; i < 1000000; ++i) {
        const auto wurf = zufall();
        const char c = wurf % 4 == 0 ? static_cast<char>(wurf >> 8U) : zeichen[(wurf >> 8U) % zeichen.size()];
        cu.g.empfangen({&c, 1});
        at.g.empfangen({&c, 1});
        if (i % 100 == 0) {
            cu.laufen(1);
            at.laufen(1);
        }
    }
    cu.laufen(100);
    EXPECT_EQ(cu.fragen(anfrage).back(), '$');
    EXPECT_EQ(at.fragen(":T;"), ":T," + std::to_string(at.g.uhr()) + ";");
}

TEST(ControlUnit, StempelUndSaetze) {
    EXPECT_EQ(control_unit::stempeltext(0x10325476), "01234567");
    EXPECT_EQ(control_unit::stempeltext(0xFEDCBA98), ">?<=:;89");
    EXPECT_EQ(control_unit::stempeltext(10), "000000:0");

    control_unit_einstellung cu{gleichmaessig(1)};
    cu.rennen.sofort = true;
    cu.rennen.uhr_start = 0xFFFFFFFF - 400;  // 400 ms to the line
    cu_probe p(cu);
    EXPECT_EQ(p.fragen(anfrage), "?:>>>>>>>>01000000$");
    p.laufen(3500);
    ASSERT_EQ(p.von(1).front().stempel, 0x1000000F9);
    EXPECT_EQ(p.fragen(anfrage), "?10000009?19$") << "the counter has begun anew";
    EXPECT_EQ(p.fragen("\"?\"?x\r?\r") + p.fragen("\"J?\r\"T2P"), "");
    EXPECT_EQ(p.fragen(anfrage), "?10000;01624$") << "the sector was waiting";
    EXPECT_EQ(p.fragen("\"?0") + p.fragen("\"0"), "0S100$0S100$");

    cu.mit_sensor = false;
    cu.status_kurz = cu.zaehlerbox = true;
    cu_probe kurz(cu);
    kurz.laufen(5000);
    EXPECT_EQ(kurz.fragen(anfrage), "?10000009?8$");
    EXPECT_EQ(kurz.fragen(anfrage), "?10$");
    EXPECT_EQ(kurz.fragen(anfrage), "?:>>>>>>>>010000$");
    kurz.g.empfangen(starttaste);
    EXPECT_EQ(kurz.fragen(anfrage), "?00$");
}

TEST(ControlUnit, StarttasteFuehrtDurchStartUndPause) {
    control_unit_einstellung cu{gleichmaessig(2)};
    cu.rennen.wagen[1].fruehstart = true;
    cu.tastendruecke = {40000};
    cu_probe p(cu);
    const auto startzustand = [&p] {
        std::string satz;
        while (satz.size() != 19) {
            satz = p.fragen(anfrage);
        }
        return satz[10];
    };
    using zustand = control_unit::zustand;

    p.laufen(1000);
    EXPECT_EQ(startzustand(), '0');
    p.g.empfangen(starttaste);
    EXPECT_EQ(startzustand(), '1');
    p.g.empfangen(starttaste);
    p.laufen(1500);
    EXPECT_EQ(p.g.lampen(), 2);
    p.g.empfangen(starttaste);
    EXPECT_EQ(p.g.stand(), zustand::angehalten) << "pressed while the lamps burn";
    p.laufen(10000);
    EXPECT_TRUE(p.g.fahrten().empty());

    p.g.empfangen(starttaste);
    const zeit_ms gruen = p.g.uhr() + 5000;
    p.laufen(4999);
    EXPECT_EQ(p.g.stand(), zustand::lampen);
    EXPECT_EQ(startzustand(), '1');
    ASSERT_EQ(p.von(2).size(), 1U) << "over the line at red";
    EXPECT_TRUE(p.von(1).empty());
    p.laufen(10001);
    EXPECT_EQ(startzustand(), '0');
    ASSERT_GE(p.von(1).size(), 2U);
    EXPECT_EQ(p.von(1)[0].stempel, gruen + 250 + 400);
    EXPECT_EQ(p.von(1)[1].stempel, p.von(1)[0].stempel + 8000);

    p.laufen(40000 - p.g.uhr());
    EXPECT_EQ(p.g.stand(), zustand::angehalten) << "pressed at the unit";
    const auto vorher = p.von(1).size();
    p.laufen(20000);
    EXPECT_EQ(p.von(1).size(), vorher);
    p.g.empfangen(starttaste);
    p.laufen(13000);
    ASSERT_GT(p.von(1).size(), vorher);
    EXPECT_EQ(p.von(1)[vorher].stempel, p.von(1)[vorher - 1].stempel + 8000 + 25000);
    p.g.empfangen("\"J60980$\"=101$\"J1?1L1x$");
    EXPECT_EQ(p.g.anzeigewert(), 28);
    p.laufen(20000);
    EXPECT_EQ(p.von(1).back().stempel, p.von(1)[vorher].stempel) << "back on the grid";
}

TEST(ControlUnit, KraftstoffUndBox) {
    control_unit_einstellung cu{gleichmaessig(6)};
    cu.rennen.sofort = true;
    cu.rennen.wagen[5].runden_je_stopp = 3;
    cu.rennen.wagen[5].verbrauch = 3;
    cu.mit_sensor = false;
    cu_probe p(cu);
    p.laufen(650 + 2 * 8000 + 7200 + 300);
    EXPECT_TRUE(p.g.in_der_box(6));
    EXPECT_EQ(p.g.tank(6), 14 - 6 + 1);
    std::string satz;
    while ((satz = p.fragen(anfrage)).size() < 19) {
    }
    EXPECT_EQ(satz, "?:<<<<<9>>01010000$");
    p.laufen(8000);
    EXPECT_FALSE(p.g.in_der_box(6));
    EXPECT_EQ(p.g.tank(6), 14 - 3) << "full, and a lap later";
    p.laufen(200000);
    EXPECT_EQ(p.g.tank(1), 0);
}

const std::string rote_lampen = ":A11;\r:A21;\r:A31;\r";
const std::string gruen_an = ":A00;\r:A61;\r";

TEST(AT2560, SpurenFahrenMitGruenUndStrom) {
    at2560_einstellung at{gleichmaessig(6)};
    at.rennen.uhr_start = 5000;
    at.rennen.wagen[2].fruehstart = true;
    at_probe p(at);
    EXPECT_EQ(p.fragen(":T;\r:V;\r"), ":T,5000;:V,2560001;");
    p.g.empfangen(":P01;" + gruen_an);
    p.laufen(20000);
    EXPECT_TRUE(p.g.fahrten().empty()) << "green burns between the races too";
    p.g.empfangen(":A60;" + rote_lampen);
    p.laufen(6000);
    EXPECT_EQ(p.antwort.substr(0, 10), ":S9,27900;") << "false start of lane 3";
    p.g.empfangen(gruen_an + ":S;:P20;");
    const zeit_ms gruen = p.g.uhr();
    p.laufen(10000);
    EXPECT_EQ(p.von(1).front().stempel, gruen + 650);
    EXPECT_TRUE(p.von(2).empty());
    p.g.empfangen(":P21;");
    p.laufen(1000);
    EXPECT_EQ(p.von(2).size(), 1U);

    p.g.empfangen(":P00;:A01;:A60;:C1;");
    const auto vorher = p.g.fahrten().size();
    p.g.empfangen(rote_lampen);
    p.laufen(8000);
    p.g.empfangen(":C0;:P01;" + gruen_an);
    EXPECT_EQ(p.g.fahrten().size(), vorher);
    p.laufen(8000);
    EXPECT_EQ(p.von(1)[2].stempel, p.von(1)[1].stempel + 8000 + 8000) << "goes on where it stood";
    p.g.empfangen(":E1;");
    p.antwort.clear();
    p.laufen(20000);
    EXPECT_EQ(p.antwort, "");
    p.g.empfangen(":E0;:S;");
    p.laufen(8000);
    EXPECT_NE(p.antwort, "") << "a start without lamps";
}

TEST(AT2560, BefehleSensorenUndNeustart) {
    at2560_einstellung at{gleichmaessig(1)};
    at.rennen.sofort = true;
    at.rennen.wagen[0].chaos_promille = 1000;
    at.rennen.wagen[0].runden_je_stopp = 1;
    at.bootzeit = 500;
    at_probe p(at);
    p.g.empfangen("P01;:A1:A41;:A71;:A1;:P71;:C2;:IS,1.x;:IS,13.31.32.62;:;::E1x;:C1");
    EXPECT_EQ(p.g.befehle(), (std::vector<std::string>{"A41", "IS,13.31.32.62"}));
    EXPECT_TRUE(p.g.stand().rot[3]);
    p.g.empfangen(":P11;");
    p.laufen(9000);
    EXPECT_EQ(p.antwort.substr(0, 10), ":S13,650;:");
    for (const char* name : {":S31,", ":S62,"}) {
        EXPECT_NE(p.antwort.find(name), std::string::npos) << name;
    }
    EXPECT_EQ(p.antwort.find(":S43,"), std::string::npos) << "no sensor for the unit";
    p.g.verbunden();
    EXPECT_EQ(p.g.stand(), at2560::ausgaenge{});
    p.laufen(499);
    EXPECT_EQ(p.fragen(":T;"), "");
    p.laufen(1);
    EXPECT_EQ(p.fragen(":T;"), ":T,500;");
}

TEST(AT2560, ProfilNenntDieSensorenDesGeraets) {
    const std::string profil = at2560_profil();
    EXPECT_EQ(profil.find("Tarvel UART Einstellungsdatei\r\n\r\n##Befehlszeichen\r\n"), 0U);
    for (const char* zeilen :
         {"#Ampel rot alle\r\nA01\r\nA00\r\n", "#StartZiel Spur 6\r\nS22\r\n", "#Tanksensor Spur 1 aus\r\nS32\r\n",
          "#Zwischenzeit Spur 6 Sensor 2\r\nS54\r\n", "#Chaos Spur 6\r\nS67\r\n", "#Soundsensor 8\r\nSnv\r\n"}) {
        EXPECT_NE(profil.find(zeilen), std::string::npos) << zeilen;
    }
}

}  // namespace
}  // namespace tarvel::simulator
