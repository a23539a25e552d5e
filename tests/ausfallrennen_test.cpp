// Races on devices that go on by themselves while the program is away, and with them their cars and their clock.

#include "core/nebendateien.h"
#include "tests/plattform/neustart.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/race_control_probe.h"
#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"
#include "tools/simulator/m4x4.h"
#include "tools/simulator/timekeeper.h"

namespace tarvel::test {
namespace {

constexpr int com_der_leitung = 7;

simulator::rennen_einstellung wagen(std::size_t anzahl, zeit_ms uhr_start) {
    simulator::rennen_einstellung rennen;
    rennen.wagen.resize(anzahl);
    rennen.uhr_start = uhr_start;
    return rennen;
}

struct ausfallgeraet {
    const char* name;
    int spuren;
    zeit_ms genauigkeit;  ///< ms that a lap may be off; only a device that stamps nothing needs any
    std::size_t zeichen_je_ms;
    bool startet_neu;  ///< whenever its port is opened
    std::unique_ptr<simulator::geraet> (*bauen)();
    void (*waehlen)(einstellungen&);
};

const std::vector<ausfallgeraet>& alle_geraete() {
    static const std::vector<ausfallgeraet> alle{
        {"ControlUnit", 6, 0, 2, false,
         []() -> std::unique_ptr<simulator::geraet> {
             simulator::control_unit_einstellung einst;
             einst.rennen = wagen(6, 0xFFFFFFFF - 100000);  // its clock overflows in the race
             for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
                 w.rundenzeit = 1600;  // it keeps the laps of the outage
             }
             return std::make_unique<simulator::control_unit>(einst);
         },
         [](einstellungen& e) {
             e.hardware.hw_cu = true;
             e.cu.anschluss.cu_modus = com_der_leitung;
             e.cu.cu_sondermodus = true;
         }},
        {"At2560", 6, 0, 6, true,
         []() -> std::unique_ptr<simulator::geraet> {
             simulator::at2560_einstellung einst;
             einst.rennen = wagen(6, 123456789);
             einst.bootzeit = 1500;
             return std::make_unique<simulator::at2560>(einst);
         },
         [](einstellungen& e) {
             e.hardware.hw_uart = true;
             e.uart.uart_port = com_der_leitung;
         }},
        {"Timekeeper", 6, 0, 1, false,
         []() -> std::unique_ptr<simulator::geraet> {
             return std::make_unique<simulator::timekeeper>(wagen(6, 77000));
         },
         [](einstellungen& e) { e.hardware.hw_timekeeper = true; }},
        {"RaceControl", 4, 0, 1, false,
         []() -> std::unique_ptr<simulator::geraet> {
             return std::make_unique<simulator::rc_box>(simulator::rc_box_einstellung{.rennen = wagen(4, 5000)});
         },
         [](einstellungen& e) {
             e.hardware.hw_race_control = true;
             e.rc.anschluss.rc_com_port = "COM7";
         }},
        {"Modul4x4", 6, 9, 1, true,
         []() -> std::unique_ptr<simulator::geraet> {
             simulator::m4x4_einstellung einst;
             einst.rennen = wagen(6, 0);
             zeit_ms anfahrt = 400;
             for (simulator::wagen_einstellung& w : einst.rennen.wagen) {
                 w.anfahrt = anfahrt += 50;
             }
             return std::make_unique<simulator::m4x4>(einst);
         },
         [](einstellungen& e) { e.hardware.hw_4x4_modus = modul_4x4::modus_1; }}};
    return alle;
}

class Ausfallrennen : public testing::TestWithParam<ausfallgeraet> {
protected:
    void SetUp() override {
        geraet_ = art().bauen();
        anschliessen(erstes_.maschine);
        p_->einst.hardware = {};
        art().waehlen(p_->einst);
        p_->geraete.hardware_starten(false);
        geraet_->verbunden();
        laufen(4000);
    }

    void starten(const char* minuten) {
        std::vector<int> spuren;
        for (int spur = 1; spur <= art().spuren; ++spur) {
            spuren.push_back(spur);
        }
        p_->form1.wertmin.eingeben("0,1");  // cars that drove on meanwhile come back at any time
        erstes_.einrichten(p_->txt.text_zeit, minuten, spuren);
        p_->einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        p_->einst.zielmodus_erster = true;
        p_->fenster.neu_laden(fenstername::bahn1);  // a race keeps the settings that it began with
        fenster_um_ = zeit_;
        los_ = false;
        einstellungen_ = p_->datei.festhalten();
        laufen(500);
        erstes_.bahn().Command1.klicken();
    }

    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            geraet_weiter();
            if (!leitung_.empty()) {
                maschine_->anschluesse.senden(com_der_leitung, leitung_.substr(0, art().zeichen_je_ms));
                leitung_.erase(0, art().zeichen_je_ms);
            }
            maschine_->laufen(1);
            auto* box = dynamic_cast<simulator::rc_box*>(geraet_.get());
            if (box != nullptr && !los_ && !p_->rennen.zustand.rennen_beendet && !p_->rennen.umgebung.ampel_laeuft()) {
                los_ = true;
                box->los();  // it sees no light
            }
        }
    }

    /// The program goes away, and `dauer` ms later the next one is there, with another clock, and asks. With settings
    /// that were saved it hears the device already while the question stands, for `bedenkzeit`.
    void ausgefallen_stehen(zeit_ms dauer, zeit_ms bedenkzeit) {
        while (zeit_ - fahrten_.back().second < 150) {  // a moment ago is not on the disk yet
            laufen(1);
        }
        std::string name = erstes_.p.rennprotokoll.dateiname();
        std::replace(name.begin(), name.end(), '\\', '/');
        const std::string protokoll = maschine_->datei_lesen(name);
        const zeit_ms von = zeit_;
        geraet_->senden = [](std::string_view) {};
        for (const zeit_ms bis = zeit_ + dauer; zeit_ < bis;) {
            geraet_weiter();
        }
        leitung_.clear();
        ftdi_.offen = false;
        ftdi_.wartet.clear();
        spaetere_.push_back(std::make_unique<neustart>(erstes_, protokoll, 5000 + 777777 * zeit_ms(spaetere_.size())));
        neustart& jetzt = *spaetere_.back();
        p_ = &jetzt.p;
        anschliessen(jetzt.maschine);
        kalender_stellen();
        std::size_t davor = 0;  // messages
        if (bedenkzeit > 0) {
            p_->ablage.zeilen_schreiben(standard_einstellungen, einstellungen_);
            jetzt.maschine.waehrend_frage = [this, bedenkzeit, &davor] {
                davor = maschine_->meldungen_gezeigt.size();
                laufen(bedenkzeit);
                stehen(400);  // until the windows of the race are there
                kalender_stellen();
            };
        }
        if (art().startet_neu) {
            geraet_->verbunden();
        }
        p_->starten();
        laufen(6000);
        ASSERT_TRUE(p_->fenster.ist_offen(fenstername::bahn1))
            << testing::PrintToString(jetzt.maschine.meldungen_gezeigt);
        ASSERT_TRUE(p_->geraete.verbunden());
        if (bedenkzeit > 0) {
            EXPECT_EQ(jetzt.maschine.meldungen_gezeigt.size(), davor) << jetzt.maschine.meldungen_gezeigt.back().text;
        }
        ASSERT_TRUE(p_->rennen.zustand.chaos_aktiv);
        pausen_.emplace_back(von, zeit_);
    }

    void ausfallen(zeit_ms dauer, zeit_ms bedenkzeit) {
        ASSERT_NO_FATAL_FAILURE(ausgefallen_stehen(dauer, bedenkzeit));
        p_->k_ampel.Command1.klicken();
        for (int ms = 0; ms < 20000 && p_->rennen.zustand.chaos_aktiv; ++ms) {
            laufen(1);
        }
        ASSERT_FALSE(p_->rennen.zustand.chaos_aktiv);
        pausen_.back().second = zeit_;
    }

    /// Every lap is counted once, and takes as long as it was driven. What an outage takes off is the same for all.
    void vergleichen(zeit_ms minuten) {
        constexpr zeit_ms lebenszeichen = 200;  // as far back an outage may be thought to have begun
        constexpr zeit_ms spielraum = 20;
        std::vector<std::vector<zeit_ms>> laenger(pausen_.size());
        const rundenkonto& konto = p_->rennen.zustand.konto;
        for (int spur = 1; spur <= art().spuren; ++spur) {
            const std::vector<zeit_ms> um = ueberfahrten(spur);
            ASSERT_GT(konto.runden(spur), 5 * minuten);
            ASSERT_LT(static_cast<std::size_t>(konto.runden(spur)), um.size());
            for (int runde = 1; runde <= konto.runden(spur); ++runde) {
                SCOPED_TRACE(std::to_string(spur) + " " + std::to_string(runde));
                const zeit_ms von = um[static_cast<std::size_t>(runde) - 1];
                const zeit_ms bis = um[static_cast<std::size_t>(runde)];
                const auto p = std::find_if(pausen_.begin(), pausen_.end(),
                                            [&](const auto& eine) { return eine.first >= von && eine.second <= bis; });
                if (p == pausen_.end()) {
                    ASSERT_NEAR(static_cast<double>(konto.rundenzeit(spur, runde)), static_cast<double>(bis - von),
                                static_cast<double>(art().genauigkeit));
                    continue;
                }
                const zeit_ms zu_kurz = bis - von - (p->second - p->first) - konto.rundenzeit(spur, runde);
                EXPECT_GE(zu_kurz, -spielraum);
                EXPECT_LE(zu_kurz, lebenszeichen + spielraum);
                laenger[static_cast<std::size_t>(p - pausen_.begin())].push_back(zu_kurz);
            }
            zeit_ms gefahren = um[static_cast<std::size_t>(konto.runden(spur))] - um.front();
            for (const auto& [von, bis] : pausen_) {
                gefahren -= bis - von;
            }
            EXPECT_GT(gefahren + 10000, minuten * 60 * 1000) << "a lap is missing at the end";
        }
        for (const std::vector<zeit_ms>& einer : laenger) {
            ASSERT_FALSE(einer.empty());
            const auto [kleinster, groesster] = std::minmax_element(einer.begin(), einer.end());
            EXPECT_LE(*groesster - *kleinster, 2 * art().genauigkeit);
        }
        EXPECT_EQ(nachrechnen(*p_, *maschine_), "");
    }

    static const ausfallgeraet& art() { return GetParam(); }

    std::unique_ptr<simulator::geraet> geraet_;  // outlives the programs, as the cable does
    test_ftdi ftdi_;
    testprogramm erstes_;
    std::vector<std::unique_ptr<neustart>> spaetere_;
    test_plattform* maschine_ = &erstes_.maschine;
    programm* p_ = &erstes_.p;
    zeit_ms zeit_ = 0;  ///< goes on, whatever the programs' clocks do

private:
    void kalender_stellen() {
        const auto seither = static_cast<int>((zeit_ - fenster_um_) / 1000) + 14 * 3600 + 3 * 60 + 22;
        maschine_->datum_stellen({2026, 11, 21, seither / 3600, seither / 60 % 60, seither % 60});
    }
    /// The program does nothing for so long.
    void stehen(zeit_ms dauer) {
        for (const zeit_ms bis = zeit_ + dauer; zeit_ < bis;) {
            geraet_weiter();
        }
        maschine_->uhr_stellen(dauer);
    }
    void anschliessen(test_plattform& maschine) {
        maschine_ = &maschine;
        ftdi_.eintragen(maschine.bibliotheken);
        ftdi_.geraet = [this](std::string_view bytes) { geraet_->empfangen(bytes); };
        rc_bibliothek_hinlegen(maschine.bibliotheken);
        maschine.anschluesse.da = {com_der_leitung};
        maschine.anschluesse.geraet = [this](int /*com*/, std::string_view bytes) { geraet_->empfangen(bytes); };
        maschine.datei_schreiben("tvk_at2560.uart", simulator::at2560_profil());
        maschine.datei_schreiben("tvk_tk.tk", simulator::timekeeper_datei());
        geraet_->senden = [this](std::string_view bytes) {
            (dynamic_cast<simulator::timekeeper*>(geraet_.get()) != nullptr ? ftdi_.wartet : leitung_) += bytes;
        };
    }
    void geraet_weiter() {
        geraet_->weiter(++zeit_);
        for (; gesehen_ < geraet_->fahrten().size(); ++gesehen_) {
            if (const simulator::ueberfahrt& u = geraet_->fahrten()[gesehen_]; u.sensor == 1) {
                fahrten_.emplace_back(u.wagen, zeit_);
            }
        }
    }
    /// Those that nobody had to stand still for.
    std::vector<zeit_ms> ueberfahrten(int wagen) const {
        std::vector<zeit_ms> alle;
        for (const auto& [wer, um] : fahrten_) {
            const bool in_pause = std::any_of(pausen_.begin(), pausen_.end(), [um = um](const auto& eine) {
                return um > eine.first && um <= eine.second;
            });
            if (wer == wagen && !in_pause) {
                alle.push_back(um);
            }
        }
        return alle;
    }

    std::vector<std::string> einstellungen_;
    std::string leitung_;
    zeit_ms fenster_um_ = 0;
    bool los_ = false;
    std::size_t gesehen_ = 0;
    std::vector<std::pair<int, zeit_ms>> fahrten_;  ///< car, and when it crossed the line
    std::vector<std::pair<zeit_ms, zeit_ms>> pausen_;
};

TEST_P(Ausfallrennen, AusfaelleVerlierenKeineRundeUndVerschiebenKeine) {
    starten("4");
    laufen(75300);
    ASSERT_NO_FATAL_FAILURE(ausfallen(21000, 0));
    laufen(61700);
    ASSERT_NO_FATAL_FAILURE(ausfallen(3500, 7000));
    laufen(32344);
    ASSERT_NO_FATAL_FAILURE(ausfallen(3392, 1296));
    laufen(21100);
    ASSERT_NO_FATAL_FAILURE(ausfallen(2500, 90));
    laufen(zeit_ms{4} * 60 * 1000);
    ASSERT_TRUE(p_->fenster.ist_offen(fenstername::auswertung));
    vergleichen(4);
}

class UhrDesGeraets : public Ausfallrennen {};

TEST_P(UhrDesGeraets, HinterEinemNichtFortsetzbarenRennenZaehltDasNaechste) {
    starten("4");
    laufen(30000);
    std::string name = p_->rennprotokoll.dateiname();
    std::replace(name.begin(), name.end(), '\\', '/');
    p_->rennen.abbruchfrage.bestaetigen();
    laufen(500);
    maschine_->datei_schreiben(name, mit_anderer_runde(maschine_->datei_lesen(name)));
    maschine_->antwort = true;
    p_->form1.command_fortsetzen.klicken();
    ASSERT_FALSE(maschine_->meldungen_gezeigt.empty());
    ASSERT_EQ(maschine_->meldungen_gezeigt.back().text, p_->txt.wettkampf.nicht_fortsetzbar);
    starten("1");
    laufen(80000);
    ASSERT_TRUE(p_->fenster.ist_offen(fenstername::auswertung));
    for (int spur = 1; spur <= art().spuren; ++spur) {
        EXPECT_GT(p_->rennen.zustand.konto.runden(spur), 5);
    }
    EXPECT_EQ(nachrechnen(*p_, *maschine_), "");
}

INSTANTIATE_TEST_SUITE_P(, UhrDesGeraets, testing::Values(alle_geraete()[2], alle_geraete()[3]),
                         [](const auto& fall) { return std::string(fall.param.name); });

template <class Einstellung>
simulator::rennen_einstellung schnell_gehend(Einstellung einst) {
    einst.rennen = wagen(6, 123456789);
    einst.rennen.gang_ppm = 3000;
    return einst.rennen;
}

std::vector<ausfallgeraet> schnell_gehende_uhren() {
    std::vector<ausfallgeraet> alle{alle_geraete()[0], alle_geraete()[1]};
    alle[0].bauen = []() -> std::unique_ptr<simulator::geraet> {
        simulator::control_unit_einstellung einst;
        einst.rennen = schnell_gehend(einst);
        return std::make_unique<simulator::control_unit>(einst);
    };
    alle[1].bauen = []() -> std::unique_ptr<simulator::geraet> {
        simulator::at2560_einstellung einst;
        einst.rennen = schnell_gehend(einst);
        einst.bootzeit = 1500;
        return std::make_unique<simulator::at2560>(einst);
    };
    return alle;
}

class UhrNachAusfall : public Ausfallrennen {};

/// How fast the unit's clock runs is known only a while behind it; the calendar has measured the outage.
TEST_P(UhrNachAusfall, DerAusfallWirdNichtMitDerUhrDesGeraetsNachgemessen) {
    starten("4");
    laufen(40000);
    ASSERT_NO_FATAL_FAILURE(ausfallen(300000, 0));
    const renn_zustand& zustand = p_->rennen.zustand;
    const zeit_ms pause = zustand.pause_abzug;
    laufen(70000);
    EXPECT_NEAR(p_->rennen.zeit.gang(), 1.003, 0.0005);
    EXPECT_NEAR(static_cast<double>(zustand.pause_abzug), static_cast<double>(pause), 60);
    const zeit_ms vorher = zustand.pause_abzug;
    p_->rennen.bahn1.Command3.klicken();
    laufen(20000);
    p_->k_ampel.Command1.klicken();
    laufen(15000);
    ASSERT_FALSE(zustand.chaos_aktiv);
    EXPECT_GT(zustand.pause_abzug - vorher, 20000);
    EXPECT_LT(zustand.pause_abzug - vorher, 36000);
    EXPECT_EQ(nachrechnen(*p_, *maschine_), "");
}

INSTANTIATE_TEST_SUITE_P(, UhrNachAusfall, testing::ValuesIn(schnell_gehende_uhren()),
                         [](const auto& fall) { return std::string(fall.param.name); });

class AmStartknopf : public Ausfallrennen {};

/// Who ends or breaks off a race that stands in the pause of an outage has pressed no start key.
TEST_P(AmStartknopf, HinterEinemEndeImAusfallBeginntDasNaechsteRennenNichtVonSelbst) {
    using stand = simulator::control_unit::zustand;
    const auto& einheit = dynamic_cast<const simulator::control_unit&>(*geraet_);
    starten("4");
    laufen(40000);
    ASSERT_NO_FATAL_FAILURE(ausgefallen_stehen(5000, 50));
    ASSERT_EQ(einheit.stand(), stand::laeuft);
    p_->rennen.abbruchfrage.bestaetigen();
    laufen(3000);
    EXPECT_EQ(einheit.stand(), stand::angehalten);
    p_->form1.Command1.klicken();
    laufen(3000);
    ASSERT_TRUE(p_->fenster.ist_offen(fenstername::bahn1));
    EXPECT_TRUE(p_->rennen.zustand.rennen_beendet && p_->rennen.bahn1.Command1.bedienbar());
    EXPECT_EQ(einheit.stand(), stand::angehalten);
    p_->rennen.bahn1.Command1.klicken();
    laufen(20000);
    EXPECT_FALSE(p_->rennen.zustand.rennen_beendet);
    EXPECT_EQ(einheit.stand(), stand::laeuft);
}

INSTANTIATE_TEST_SUITE_P(, AmStartknopf, testing::Values(alle_geraete().front()),
                         [](const auto& fall) { return std::string(fall.param.name); });

class AbgezogenImLicht : public Ausfallrennen {};

/// The unit goes on with its light and its cars, the race begins by a light of the program's own. Of the unit's clock
/// nothing is known before it tells what it has kept, one car after the other.
TEST_P(AbgezogenImLicht, JedeRundeHatIhreZeitUndDasRennenSeineDauer) {
    const auto& einheit = dynamic_cast<const simulator::control_unit&>(*geraet_);
    starten("2");
    for (int ms = 0; ms < 20000 && einheit.lampen() == 0; ++ms) {
        laufen(1);
    }
    ASSERT_GT(einheit.lampen(), 0);
    maschine_->anschluesse.abziehen(com_der_leitung);
    zeit_ms gruen = 0;
    for (int ms = 0; ms < 20000; ++ms) {
        laufen(1);
        gruen = gruen == 0 && !p_->rennen.umgebung.ampel_laeuft() ? zeit_ : gruen;
    }
    ASSERT_GT(gruen, 0);
    maschine_->anschluesse.da = {com_der_leitung};
    zeit_ms ende = 0;
    for (int ms = 0; ms < 200000 && !p_->fenster.ist_offen(fenstername::auswertung); ++ms) {
        laufen(1);
        ende = ende == 0 && p_->rennen.zustand.rennen_beendet ? zeit_ : ende;
    }
    EXPECT_NEAR(static_cast<double>(ende - gruen), 120000, 50);
    vergleichen(2);
}

INSTANTIATE_TEST_SUITE_P(, AbgezogenImLicht, testing::Values(alle_geraete().front()),
                         [](const auto& fall) { return std::string(fall.param.name); });

INSTANTIATE_TEST_SUITE_P(, Ausfallrennen, testing::ValuesIn(alle_geraete()),
                         [](const auto& fall) { return std::string(fall.param.name); });

}  // namespace
}  // namespace tarvel::test
