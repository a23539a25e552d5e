#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/simulator/at2560.h"
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
    void laufen(zeit_ms dauer) { g.weiter(jetzt += dauer); }
    /// What is sent meanwhile.
    std::string fragen(std::string_view bytes) {
        antwort.clear();
        g.empfangen(bytes);
        return std::exchange(antwort, {});
    }
    std::vector<ueberfahrt> von(int wagen) const {
        std::vector<ueberfahrt> seine;
        std::copy_if(g.fahrten().begin(), g.fahrten().end(), std::back_inserter(seine),
                     [=](const ueberfahrt& u) { return u.wagen == wagen && u.sensor == 1; });
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

}  // namespace
}  // namespace tarvel::simulator
