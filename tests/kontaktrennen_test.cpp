#include <algorithm>
#include <functional>

#include "tests/kontaktgeraete_probe.h"
#include "tools/simulator/kontaktbrett.h"

namespace tarvel::test {
namespace {

using simulator::klemme;

/// A contact on a line of the interface, and what the program takes it for.
struct draht {
    std::size_t linie;
    klemme was;
    int nummer;  ///< lane; 0 for what they share
    ereignis_art art;
};

/// Minutes of a race against cars on plain contacts, each device sampled once a millisecond.
struct Kontaktrennen : Kontaktgeraet {
    Kontaktrennen() {
        rennen.wagen.resize(4);
        rennen.saat = 11;
        rennen.wagen[2].runden_je_stopp = 9;
    }
    /// The board as delivered, with these wires beside or instead of what is there.
    void iow_anschliessen(const std::vector<draht>& draehte = {}) {
        simulator::kontaktbrett_einstellung einst = simulator::iow_werksverdrahtung(rennen);
        iow_profil profil = iow_werkseinstellung();
        for (const draht& d : draehte) {
            std::replace(profil.begin(), profil.end(), d.art, 0);
            profil.at(d.linie) = d.art;
            einst.eingaenge.at(d.linie) = {d.was, d.nummer};
        }
        autos = std::make_unique<simulator::kontaktbrett>(einst);
        iow_waehlen(profil);
        uebertragen = [this] {
            brett.kontakte = autos->kontakte();
            const auto& a = brett.ausgang;
            autos->schalten(~(std::uint32_t{a[1]} | std::uint32_t{a[2]} << 8U | std::uint32_t{a[3]} << 16U |
                              std::uint32_t{a[4]} << 24U));
        };
    }
    /// Two relays take the place of two lamps: in a pause the cars of lanes 1 and 2 stand.
    void lpt_anschliessen(const std::vector<draht>& draehte = {}) {
        simulator::kontaktbrett_einstellung einst = simulator::lpt_verdrahtung(rennen);
        einst.strom_invers = true;
        t.p.einst.lpt.lpt_eingang = {0, 16, 15, 14, 13, 1};
        for (const int spur : {1, 2}) {
            const auto platz = static_cast<std::size_t>(spur) + 2;
            einst.ausgaenge.at(platz) = {klemme::strom, spur};
            t.p.einst.lpt.lpt_ausgang.at(platz + 1) = art::bahnstrom[spur];
        }
        for (const draht& d : draehte) {
            t.p.einst.lpt.lpt_eingang.at(d.linie + 1) = d.art;
            einst.eingaenge.at(d.linie) = {d.was, d.nummer};
        }
        autos = std::make_unique<simulator::kontaktbrett>(einst);
        lpt_waehlen();
        uebertragen = [this] {
            constexpr std::array<unsigned, 5> bits{64, 128, 32, 16, 8};
            unsigned wert = 128;
            for (std::size_t linie = 0; linie < bits.size(); ++linie) {
                wert ^= (autos->kontakte() >> linie & 1U) != 0 ? bits.at(linie) : 0U;
            }
            lpt()[lpt_basis + lpt::status] = static_cast<std::uint8_t>(wert);
            autos->schalten(lpt()[lpt_basis]);
        };
    }
    void fahren(zeit_ms minuten, const std::vector<int>& spuren = {1, 2, 3, 4}) {
        t.einrichten(t.p.txt.text_zeit, std::to_string(minuten), spuren);
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.p.einst.zielmodus_erster = true;
        t.p.einst.chaosampel_an = false;
        t.bahn().Command1.klicken();
        for (zeit_ms zeit = 0; zeit < (minuten + 3) * 60000 && !t.p.fenster.ist_offen(fenstername::auswertung);
             ++zeit) {
            autos->weiter(t.maschine.jetzt());
            uebertragen();
            t.maschine.laufen(1);
            if (pause() && !std::exchange(in_pause, pause())) {
                ++pausen;
                bei_pause();
            }
            in_pause = pause();
        }
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    }
    /// Whether a lap or a sector took as long as the car knows; else it has stood still for a pause.
    static bool stimmt(zeit_ms wahr, zeit_ms gemessen) {
        const zeit_ms zu_kurz = wahr - gemessen;
        EXPECT_TRUE(std::abs(zu_kurz) <= 1 || (zu_kurz > 7000 && zu_kurz < 20000)) << wahr << " " << gemessen;
        return std::abs(zu_kurz) <= 1;
    }
    void vergleichen(zeit_ms minuten, const std::vector<int>& spuren = {1, 2, 3, 4}) const {
        int mit_pause = 0;
        for (const int spur : spuren) {
            const std::vector<zeit_ms> wahr = autos->runden(spur);
            ASSERT_GT(t.runden(spur), 5 * minuten);
            ASSERT_LE(static_cast<std::size_t>(t.runden(spur)), wahr.size());
            for (int runde = 1; runde <= t.runden(spur); ++runde) {
                mit_pause += stimmt(wahr[static_cast<std::size_t>(runde) - 1], rundenzeit(spur, runde)) ? 0 : 1;
            }
            const renn_zustand& z = t.p.rennen.zustand;
            constexpr zeit_ms laengste_runde = 16000;  // with a stop
            EXPECT_GT(z.konto.stempel(spur, t.runden(spur)) + laengste_runde, z.renn_ende_zeit + z.pause_abzug)
                << "a lap is missing at the end of lane " << spur;
        }
        EXPECT_LE(mit_pause, 4 * pausen);
    }
    /// Both sectors of each lap, by the stamps of the car itself.
    void sektoren_vergleichen(int spur) const {
        std::vector<simulator::ueberfahrt> fahrten = autos->fahrten();
        std::erase_if(fahrten, [spur](const simulator::ueberfahrt& u) { return u.wagen != spur; });
        int mit_pause = 0;
        for (int runde = 1; runde <= t.runden(spur); ++runde) {
            for (const int sektor : {1, 2}) {
                const std::size_t i = 3 * static_cast<std::size_t>(runde - 1) + static_cast<std::size_t>(sektor);
                ASSERT_EQ(fahrten.at(i).sensor, sektor + 1);
                mit_pause += stimmt(fahrten[i].stempel - fahrten[i - 1].stempel,
                                    t.p.rennen.sektoren.sektorzeit(spur, sektor, runde))
                                 ? 0
                                 : 1;
            }
        }
        EXPECT_LE(mit_pause, pausen);
    }

    simulator::rennen_einstellung rennen;
    std::unique_ptr<simulator::kontaktbrett> autos;
    std::function<void()> uebertragen;
    std::function<void()> bei_pause = [] {};
    int pausen = 0;
    bool in_pause = false;
};

TEST_F(Kontaktrennen, Iow40DreissigMinutenMitPausen) {
    for (simulator::wagen_einstellung& w : rennen.wagen) {
        w.chaos_promille = 4;
    }
    iow_anschliessen();
    fahren(30);
    vergleichen(30);
    EXPECT_GT(pausen, 1);
}

TEST_F(Kontaktrennen, DruckeranschlussDreissigMinuten) {
    lpt_anschliessen();
    fahren(30);
    vergleichen(30);
}

TEST_F(Kontaktrennen, TankkontakteStehenFuerDieRunden) {
    t.p.form1.t_aktiv.gesetzt(true);
    t.p.einst.tank_inhalt = 900;  // more than they burn
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_1;
    iow_anschliessen(
        {{15, klemme::ziel, 1, 32}, {14, klemme::ziel, 2, 30}, {13, klemme::ziel, 3, 28}, {12, klemme::ziel, 4, 26}});
    fahren(2);
    vergleichen(2);
    t.p.fenster.entladen(fenstername::auswertung);
    t.p.fenster.entladen(fenstername::bahn1);
    t.p.einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_2;
    lpt_anschliessen(
        {{0, klemme::ziel, 1, 31}, {1, klemme::ziel, 2, 29}, {2, klemme::ziel, 3, 27}, {3, klemme::ziel, 4, 25}});
    fahren(2);
    vergleichen(2);
}

TEST_F(Kontaktrennen, SektorenUndEigeneChaostaster) {
    t.p.einst.sektor_an = {true, true, true, true};
    for (simulator::wagen_einstellung& w : rennen.wagen) {
        w.chaos_promille = 20;
    }
    std::vector<draht> draehte;
    for (const int spur : {1, 2, 3, 4}) {
        const auto platz = static_cast<std::size_t>(spur - 1);
        draehte.push_back({8 + platz, klemme::sektor_1, spur, 40 + 2 * spur});
        draehte.push_back({16 + platz, klemme::sektor_2, spur, 41 + 2 * spur});
        draehte.push_back({24 + platz, klemme::chaos, spur, 53 + spur});
    }
    iow_anschliessen(draehte);
    bei_pause = [this] {
        for (const int spur : {1, 2, 3, 4}) {
            const bool drueckt = (brett.kontakte >> (23 + spur) & 1U) != 0;
            EXPECT_EQ(drueckt, t.bahn().cu_startlabel.text().ends_with(std::to_string(spur)))
                << t.bahn().cu_startlabel.text();
        }
    };
    fahren(4);
    vergleichen(4);
    EXPECT_GT(pausen, 1);
    for (const int spur : {1, 2, 3, 4}) {
        sektoren_vergleichen(spur);
    }
}

TEST_F(Kontaktrennen, SektorenUndEigenerChaostasterAmDruckeranschluss) {
    t.p.einst.sektor_an = {true, true, true, true};
    rennen.wagen[1].chaos_promille = 60;
    lpt_anschliessen({{2, klemme::sektor_1, 1, 42}, {3, klemme::sektor_2, 1, 43}, {4, klemme::chaos, 2, 55}});
    fahren(4, {1, 2});
    vergleichen(4, {1, 2});
    EXPECT_GT(pausen, 1);
    EXPECT_TRUE(t.bahn().cu_startlabel.text().ends_with("2")) << t.bahn().cu_startlabel.text();
    sektoren_vergleichen(1);
}

TEST_F(Kontaktrennen, EinFruehstarterWirdAnBeidenErkannt) {
    t.p.einst.fruehstart_option = fruehstart_aktion::disqualifikation;
    rennen.wagen[1].fruehstart = true;
    for (const bool iow : {true, false}) {
        iow ? iow_anschliessen() : lpt_anschliessen();
        fahren(1);
        EXPECT_TRUE(t.spur(2).disqualifiziert);
        EXPECT_EQ(t.spur(2).strom_aus, true);
        vergleichen(1, {1, 3, 4});
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.fenster.entladen(fenstername::bahn1);
    }
}

}  // namespace
}  // namespace tarvel::test
