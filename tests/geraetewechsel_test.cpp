#include <cstring>

#include "hardware/iow_profil.h"
#include "hardware/lpt_register.h"
#include "tests/plattform/test_ftdi.h"
#include "tests/programm_probe.h"
#include "tests/race_control_probe.h"
#include "tools/simulator/at2560.h"
#include "tools/simulator/at2560_pins.h"
#include "tools/simulator/control_unit.h"
#include "tools/simulator/kontaktbrett.h"
#include "tools/simulator/m4x4.h"
#include "tools/simulator/timekeeper.h"

namespace tarvel::test {
namespace {

constexpr std::array<int, 8> com_je_art{0, 0, 2, 0, 4, 0, 6, 8};  ///< port of each kind of hardware; 0 none
constexpr int boot_ms = 4000;

/// The car of each kind has a lap time of its own, so that a lap tells where it was driven.
constexpr zeit_ms rundenzeit_von(std::size_t art) {
    return 2500 + 200 * static_cast<zeit_ms>(art);
}

simulator::rennen_einstellung ein_wagen(std::size_t art) {
    simulator::rennen_einstellung rennen;
    rennen.wagen.resize(1);
    rennen.wagen[0].rundenzeit = rundenzeit_von(art);
    rennen.wagen[0].streuung = 0;
    rennen.sofort = true;
    return rennen;
}

/// The library of the IO board, with a board of contacts behind it.
struct io_platine {
    simulator::kontaktbrett brett{iow_werksverdrahtung(ein_wagen(1))};
    int offen = 0;
    std::uint32_t gemeldet = 0;
};
io_platine* platine = nullptr;

void* platine_oeffnen() {
    ++platine->offen;
    return platine;
}
std::uint32_t platine_lesen(void* /*handle*/, std::uint32_t /*pipe*/, void* ziel, std::uint32_t /*laenge*/) {
    const std::uint32_t kontakte = platine->brett.kontakte();
    if (std::exchange(platine->gemeldet, kontakte) == kontakte) {
        return 0;
    }
    const std::uint32_t pins = ~kontakte;
    const std::array<std::uint8_t, 5> bericht{0, static_cast<std::uint8_t>(pins), static_cast<std::uint8_t>(pins >> 8),
                                              static_cast<std::uint8_t>(pins >> 16),
                                              static_cast<std::uint8_t>(pins >> 24)};
    std::memcpy(ziel, bericht.data(), bericht.size());
    return bericht.size();
}

struct bibliotheken_dahinter {  // outlive the program
    io_platine io;
    test_ftdi ftdi;
};

/// Every kind of hardware is there at once, with a car that drives all the time.
struct Geraetewechsel : bibliotheken_dahinter, testing::Test {
    Geraetewechsel() {
        platine = &io;
        iowkit_hinlegen();
        ftdi.eintragen(t.maschine.bibliotheken);
        rc_bibliothek_hinlegen(t.maschine.bibliotheken);
        iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, iow_werkseinstellung());
        t.maschine.datei_schreiben("tvk_tk.tk", simulator::timekeeper_datei());
        t.maschine.datei_schreiben("tvk_at2560.uart", simulator::at2560_profil());
        t.maschine.anschluesse.da = {com_je_art[2], com_je_art[4], com_je_art[6], com_je_art[7]};
        t.p.einst.rc.anschluss.rc_com_port = "COM" + std::to_string(com_je_art[2]);
        t.p.einst.cu.anschluss.cu_modus = com_je_art[6];
        t.p.einst.cu.cu_sondermodus = true;
        t.p.einst.uart.uart_port = com_je_art[7];
        t.p.form1.wertmin.eingeben("1");
        geraete_hinstellen();
    }
    void iowkit_hinlegen() {
        test_bibliotheken& b = t.maschine.bibliotheken;
        b.ruf("iowkit", "IowKitOpenDevice", platine_oeffnen);
        b.ruf<void(void*)>("iowkit", "IowKitCloseDevice", [](void*) { --platine->offen; });
        b.ruf<std::uint32_t()>("iowkit", "IowKitGetNumDevs", [] { return 1U; });
        b.ruf<void*(std::uint32_t)>("iowkit", "IowKitGetDeviceHandle", [](std::uint32_t) -> void* { return platine; });
        b.ruf<std::uint32_t(void*)>("iowkit", "IowKitGetProductId", [](void*) { return 5376U; });
        b.ruf<std::uint32_t(void*, void*)>("iowkit", "IowKitGetSerialNumber", [](void*, void*) { return 0U; });
        b.ruf("iowkit", "IowKitReadNonBlocking", platine_lesen);
        b.ruf<std::uint32_t(void*, std::uint32_t, void*, std::uint32_t)>(
            "iowkit", "IowKitWrite", [](void*, std::uint32_t, void* quelle, std::uint32_t laenge) {
                std::array<std::uint8_t, 5> bericht{};
                std::memcpy(bericht.data(), quelle, bericht.size());
                std::uint32_t pins = 0;
                for (std::size_t port = 4; port > 0; --port) {
                    pins = pins << 8 | bericht.at(port);
                }
                platine->brett.schalten(~pins);
                return laenge;
            });
    }
    void geraete_hinstellen() {
        drucker = std::make_unique<simulator::kontaktbrett>(simulator::lpt_verdrahtung(ein_wagen(3)));
        simulator::rc_box_einstellung rc;
        rc.rennen = ein_wagen(2);
        simulator::m4x4_einstellung m4x4;
        m4x4.rennen = ein_wagen(4);
        simulator::control_unit_einstellung cu;
        cu.rennen = ein_wagen(6);
        simulator::at2560_einstellung at;
        at.rennen = ein_wagen(7);
        geraete[2] = std::make_unique<simulator::rc_box>(rc);
        geraete[4] = std::make_unique<simulator::m4x4>(m4x4);
        geraete[5] = std::make_unique<simulator::timekeeper>(ein_wagen(5));
        geraete[6] = std::make_unique<simulator::control_unit>(cu);
        geraete[7] = std::make_unique<simulator::at2560>(at);
        for (std::size_t art = 0; art < geraete.size(); ++art) {
            if (geraete.at(art)) {
                geraete.at(art)->senden = [this, art](std::string_view bytes) { leitung.at(art) += bytes; };
            }
        }
        ftdi.geraet = [this](std::string_view bytes) { geraete[5]->empfangen(bytes); };
        t.maschine.anschluesse.geraet = [this](int port, std::string_view bytes) {
            geraete
                .at(static_cast<std::size_t>(std::find(com_je_art.begin(), com_je_art.end(), port) -
                                             com_je_art.begin()))
                ->empfangen(bytes);
        };
    }
    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            io.brett.weiter(t.maschine.jetzt());
            drucker->weiter(t.maschine.jetzt());
            const bool zu = (drucker->kontakte() & 1U) != 0;
            auto& register_werte = t.maschine.druckerport.register_werte;
            register_werte[0x378 + lpt::status] = zu ? lpt::in_ruhe ^ 0x40U : lpt::in_ruhe;
            for (std::size_t art = 0; art < geraete.size(); ++art) {
                if (geraete.at(art)) {
                    geraete.at(art)->weiter(t.maschine.jetzt());
                    const std::string bytes = std::exchange(leitung.at(art), {});
                    if (art == 5) {
                        ftdi.wartet += ftdi.offen ? bytes : std::string();
                    } else if (!bytes.empty()) {
                        t.maschine.anschluesse.senden(com_je_art.at(art), bytes);
                    }
                }
            }
            t.maschine.laufen(1);
        }
    }
    void waehlen(std::size_t art) {
        t.p.form1.Command4.klicken();
        t.p.einstellungsfenster.hardware.at(art).umschalten();
        t.p.einstellungsfenster.Command1.klicken();
        if (geraete.at(art)) {
            geraete.at(art)->verbunden();
        }
        laufen(boot_ms);
    }
    /// Numbers of those that the program has open, but for the IO board: it switches beside each of them.
    std::vector<std::size_t> offene() const {
        std::vector<std::size_t> alle;
        for (std::size_t art = 2; art < com_je_art.size(); ++art) {
            if ((art == 5 && ftdi.offen) ||
                (com_je_art.at(art) != 0 && t.maschine.anschluesse.offen(com_je_art.at(art)))) {
                alle.push_back(art);
            }
        }
        return alle;
    }
    void rennen_fahren(std::size_t art, zeit_ms genau) {
        t.einrichten("Runden", "2", {1});
        if (art == 6) {  // the unit lets nobody drive before its light
            t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        }
        laufen(500);
        t.bahn().Command1.klicken();
        const zeit_ms beginn = t.maschine.jetzt();
        for (zeit_ms ms = 0; ms < 40000 && !t.p.fenster.ist_offen(fenstername::auswertung);
             ms = t.maschine.jetzt() - beginn) {
            if (art == 0 && ms % rundenzeit_von(0) == 500) {
                t.taste("1");  // takes a millisecond
            } else {
                laufen(1);
            }
        }
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        ASSERT_EQ(t.runden(1), 2);
        for (const int runde : {1, 2}) {
            EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, runde)),
                        static_cast<double>(rundenzeit_von(art)), static_cast<double>(genau));
        }
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.fenster.entladen(fenstername::bahn1);
    }

    testprogramm t;
    std::unique_ptr<simulator::kontaktbrett> drucker;
    std::array<std::unique_ptr<simulator::geraet>, 8> geraete;  ///< that speak over a line
    std::array<std::string, 8> leitung;
};

TEST_F(Geraetewechsel, AmEndeIstKeinesOffenAuchNichtHinterEinemFenster) {
    waehlen(6);
    t.p.fenster.zeigen(fenstername::cu_eigenschaften);
    t.p.programm_beenden();
    EXPECT_EQ(offene(), std::vector<std::size_t>{});
    EXPECT_EQ(io.offen, 0);
}

TEST_F(Geraetewechsel, NachJedemAnderenMisstDasNeueAllein) {
    std::array<std::size_t, 8> zeitgeber{};
    waehlen(0);
    t.maschine.meldungen_gezeigt.clear();  // of files that the folder lacks
    for (std::size_t altes = 0; altes < com_je_art.size(); ++altes) {
        for (std::size_t neues = 0; neues < com_je_art.size(); ++neues) {
            if (altes == neues) {
                continue;
            }
            SCOPED_TRACE(std::to_string(altes) + " -> " + std::to_string(neues));
            waehlen(altes);
            waehlen(neues);
            const bool zaehlbar = neues > 1 && neues != 3;
            ASSERT_EQ(offene(), zaehlbar ? std::vector<std::size_t>{neues} : std::vector<std::size_t>{});
            ASSERT_EQ(io.offen, 1);
            ASSERT_TRUE(neues == 0 || t.p.geraete.verbunden());
            const std::size_t laufende = t.maschine.laufende_zeitgeber();
            std::size_t& bisher = zeitgeber.at(neues);
            ASSERT_EQ(laufende, bisher == 0 ? laufende : bisher) << "threads and timers";
            bisher = laufende;
            rennen_fahren(neues, neues == 4 ? 10 : 2);
        }
    }
    EXPECT_EQ(t.maschine.meldungen_gezeigt, std::vector<test_plattform::meldung>{});
}

}  // namespace
}  // namespace tarvel::test
