#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>
#include <iterator>
#include <set>
#include <thread>

#include "platform_qt/qt_dienste.h"
#include "tests/plattform/testprogramm.h"
#include "tools/ersatz/race_control/box.h"
#include "tools/simulator/anschluss.h"

namespace tarvel {
namespace {

constexpr int com_der_box = 7;

/// A box on a thread of its own, at the other end of a pseudo-terminal.
class box_am_kabel {
public:
    box_am_kabel(simulator::rc_box& box, const std::filesystem::path& ordner)
        : box_(box), kabel_({ordner.string(), com_der_box, {}, 4800}) {
        EXPECT_EQ(kabel_.oeffnen(), "");
        box_.senden = [this](std::string_view bytes) { kabel_.schreiben(bytes); };
        lauf_ = std::jthread([this](const std::stop_token& ende) {
            const qt::QtUhr uhr;
            while (!ende.stop_requested()) {
                const std::string bytes = kabel_.lesen(1);
                box_.weiter(uhr.jetzt());
                box_.empfangen(bytes);
            }
        });
    }
    void anhalten() {
        lauf_.request_stop();
        lauf_.join();
    }

private:
    simulator::rc_box& box_;
    simulator::anschluss kabel_;
    std::jthread lauf_;
};

/// The program in real time, with a real port and the library that it has found in its folder.
TEST(RaceControlRennen, JedeRundeAufDieMillisekunde) {
    test::test_plattform maschine;
    const std::filesystem::path bibliothek = TARVEL_RC_BIBLIOTHEK;
    copy_file(bibliothek, maschine.ordner() / bibliothek.filename());
    qt::QtDienste echt{maschine.ordner()};
    const plattform::dienste e = echt.dienste();
    const plattform::dienste d = maschine.dienste();
    programm p({e.uhr, e.zeitgeber, d.meldungen, d.klang, d.kalender, d.bildschirm, d.prozess, d.zufall, e.serienports,
                e.bibliotheken, d.druckerport, d.abtaster, d.dateisystem, e.anhaenge, maschine.ordner()});
    simulator::rc_box_einstellung einst;
    einst.rennen.wagen.resize(4);
    for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
        w.rundenzeit = 1700;
    }
    einst.rennen.sofort = true;
    simulator::rc_box box(einst);
    box_am_kabel kabel(box, maschine.ordner());
    p.starten();
    p.einst.fruehstart_option = fruehstart_aktion::ohne;
    p.einst.start_ampel_modus = ampelwahl::keine;
    p.einst.zielmodus_erster = true;
    p.einst.beste_modus = bestzeit_speicherung::aus;
    p.einst.hardware = {};
    p.einst.hardware.hw_race_control = true;
    p.einst.rc.anschluss.rc_com_port = "COM7";
    p.geraete.hardware_starten(false);
    ASSERT_TRUE(QTest::qWaitFor([&] { return p.geraete.verbunden(); }));
    const int lang_s = std::max(qEnvironmentVariableIntValue("TARVEL_LANGLAUF"), 12);
    p.form1.rennart.eingeben(p.txt.text_zeit);
    p.form1.renndauer.eingeben(std::to_string(lang_s / 60) + "," + std::to_string(100 + lang_s % 60).substr(1));
    p.form1.wertmin.eingeben("0.5");
    for (const int spur : {1, 2, 3, 4}) {
        p.form1.spur.at(feld_index(spur)).gesetzt(true);
    }
    p.form1.Command1.klicken();
    p.rennen.bahn1.Command1.klicken();
    ASSERT_TRUE(QTest::qWaitFor([&] { return p.fenster.ist_offen(fenstername::auswertung); }, (lang_s + 20) * 1000));
    kabel.anhalten();
    for (const int spur : {1, 2, 3, 4}) {
        std::set<zeit_ms> stempel;
        for (const simulator::ueberfahrt& u : box.fahrten()) {
            if (u.wagen == spur && u.sensor == 1) {
                stempel.insert(u.stempel);
            }
        }
        ASSERT_GT(p.rennen.zustand.konto.runden(spur), lang_s / 3);
        for (int runde = 1; runde <= p.rennen.zustand.konto.runden(spur); ++runde) {
            const zeit_ms ende = p.rennen.zustand.konto.stempel(spur, runde);
            const auto vorher = stempel.find(ende - p.rennen.zustand.konto.rundenzeit(spur, runde));
            ASSERT_NE(vorher, stempel.end()) << spur << " " << runde;
            EXPECT_EQ(*std::next(vorher), ende) << "none is missing in between";
        }
    }
}

}  // namespace
}  // namespace tarvel
