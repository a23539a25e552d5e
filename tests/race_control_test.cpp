#include "hardware/race_control.h"

#include "tests/race_control_probe.h"

namespace tarvel::test {
namespace {

constexpr std::int64_t tickende = std::int64_t{1} << 32;

TEST_F(RaceControl, DreissigMinutenUeberDasEndeDerTicksHinwegStimmtJedeRunde) {
    simulator::rc_box_einstellung einst = vier_wagen();
    einst.ticks_start = tickende - std::int64_t{600} * 4800;
    einst.rennen.gang_ppm = 300;
    box_hinstellen(einst);
    verbinden();
    ASSERT_TRUE(t.p.geraete.verbunden());
    rennen_starten("30");
    laufen(zeit_ms{32} * 60 * 1000);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    alle_runden_stimmen(200);
}

TEST_F(RaceControl, DieUhrDesRennensIstDieDerBox) {
    box_hinstellen(vier_wagen());
    verbinden();
    t.einrichten(t.p.txt.text_zeit, "5", {1});
    t.bahn().Command1.klicken();
    for (int i = 0; i < 500; ++i) {
        laufen(7);
        ASSERT_NEAR(static_cast<double>(messzeit()), static_cast<double>(box->uhr()), 16) << "what the line takes";
    }
}

TEST_F(RaceControl, AbgezogenUndWiederDaKostetKeineZeit) {
    enum class was { kabel_heraus, kabel_heraus_und_aus, kurz_aus };
    for (const was fall : {was::kabel_heraus, was::kabel_heraus_und_aus, was::kurz_aus}) {
        const bool neue_uhr = fall != was::kabel_heraus;
        box_hinstellen(vier_wagen());
        verbinden();
        rennen_starten("4");
        laufen(60000);
        if (fall != was::kurz_aus) {
            kabel_ziehen(20000);
        } else {
            for (const std::size_t bisher = ueberfahrten(1).size(); ueberfahrten(1).size() == bisher;) {
                laufen(1);
            }
            laufen(6000);  // the next ones come soon
        }
        const zeit_ms gefahren = box->uhr();
        if (neue_uhr) {
            box->neustart();
        } else {
            box->verbunden();
        }
        t.maschine.anschluesse.da = {com};
        laufen(zeit_ms{5} * 60 * 1000);
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        for (const int spur : {1, 2, 3, 4}) {
            std::vector<zeit_ms> wahr = ueberfahrten(spur);  // on a clock that does not begin anew
            for (std::size_t i = 1; i < wahr.size(); ++i) {
                wahr[i] += wahr[i] < wahr[i - 1] ? gefahren - 5000 : 0;
            }
            zeit_ms bisher = wahr[0];
            for (int runde = 1; runde <= t.runden(spur); ++runde) {
                bisher += t.p.rennen.zustand.konto.rundenzeit(spur, runde);
                const zeit_ms fehlt = *std::min_element(wahr.begin(), wahr.end(), [&](zeit_ms x, zeit_ms y) {
                    return std::abs(x - bisher) < std::abs(y - bisher);
                }) - bisher;
                EXPECT_LE(std::abs(fehlt), neue_uhr ? 20 : 0) << spur << " " << runde;
                EXPECT_TRUE(fall != was::kurz_aus || t.p.rennen.zustand.konto.rundenzeit(spur, runde) < 10000);
            }
            EXPECT_GE(t.runden(spur), 24);
        }
        t.p.fenster.entladen(fenstername::auswertung);
        t.p.fenster.entladen(fenstername::bahn1);
    }
}

TEST(RcUhr, EineBoxDieAusWarBeginntNeuAuchWennSieSchonWeiterZaehltAlsZuvor) {
    constexpr std::uint32_t ticks_je_sekunde = 4800;
    rc_uhr uhr;
    EXPECT_TRUE(uhr.lesen(2 * ticks_je_sekunde, 100000, 100000).versetzen);
    EXPECT_FALSE(uhr.lesen(3 * ticks_je_sekunde, 101000, 3000).versetzen);
    uhr.wieder_da();
    const rc_uhr::befund befund = uhr.lesen(4 * ticks_je_sekunde, 161000, 63000);
    EXPECT_EQ(befund.stempel, 4000);
    EXPECT_EQ(befund.versetzen, 4000 - 63000) << "else its next laps would be of a minute ago";
    EXPECT_FALSE(uhr.lesen(5 * ticks_je_sekunde, 168000, 11000).versetzen) << "that one was held up";
    uhr.wieder_da();
    EXPECT_FALSE(uhr.lesen(64 * ticks_je_sekunde, 221000, 64000).versetzen) << "only the cable was out";
}

TEST_F(RaceControl, WasWartenMussteHatDieZeitDerBox) {
    box_hinstellen(vier_wagen());
    verbinden();
    rennen_starten("3");
    for (const zeit_ms dauer : {300, 2300, 9000}) {
        laufen(11000);
        t.maschine.uhr_stellen(dauer);  // neither timers nor bytes; the cars drive on
        box->weiter(t.maschine.jetzt());
        t.maschine.anschluesse.senden(com, std::exchange(leitung, {}));
    }
    laufen(zeit_ms{3} * 60 * 1000);
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    alle_runden_stimmen(18);
}

TEST_F(RaceControl, EinePauseKommtVonDerRundeAb) {
    box_hinstellen(vier_wagen());
    verbinden();
    rennen_starten("3");
    laufen(21000);
    t.bahn().Command3.klicken();
    const zeit_ms von = box->uhr();
    laufen(40000);
    t.bahn().Command3.klicken();
    while (t.p.rennen.zustand.chaos_aktiv) {
        laufen(1);
    }
    const zeit_ms bis = box->uhr();
    laufen(20000);
    for (const int spur : {1, 2, 3, 4}) {
        const std::vector<zeit_ms> stempel = ueberfahrten(spur);
        ASSERT_GE(t.runden(spur), 3);
        const zeit_ms summe = t.p.rennen.zustand.konto.stempel(spur, t.runden(spur)) - stempel[0] - (bis - von);
        zeit_ms gezaehlt = 0;
        for (int runde = 1; runde <= t.runden(spur); ++runde) {
            gezaehlt += t.p.rennen.zustand.konto.rundenzeit(spur, runde);
        }
        EXPECT_NEAR(static_cast<double>(gezaehlt), static_cast<double>(summe), 20) << spur;
    }
}

TEST_F(RaceControl, SensorenZaehlenFuerIhreSpurUndFuerWasSieSonstNochSind) {
    verbinden();
    for (const bool tank : {false, true}) {
        for (const bool ziel : {false, true}) {
            t.p.einst.rc.rc_tank_sensor34 = tank;
            t.p.einst.rc.rc_ziel_sensor34 = ziel;
            constexpr std::array<std::array<ereignis_art, 3>, 4> rollen{
                {{16, 32, 0}, {15, 30, 0}, {14, 31, 16}, {13, 29, 15}}};
            for (int sensor = 0; sensor < 4; ++sensor) {
                const auto& [runde, kontakt_art, zweite] = rollen.at(static_cast<std::size_t>(sensor));
                for (ereignis_art art = 1; art < 60; ++art) {
                    zeile(art).aktiv = false;
                }
                satz({simulator::rc_draht::art::verlassen, static_cast<std::uint8_t>(sensor), ticks(box->uhr())});
                EXPECT_FALSE(zeile(runde).aktiv);
                t.p.einst.rc.rc_sensor.at(static_cast<std::size_t>(sensor)) = 0;
                kontakt(sensor, box->uhr());
                EXPECT_FALSE(zeile(runde).aktiv) << "no lane's";
                t.p.einst.rc.rc_sensor.at(static_cast<std::size_t>(sensor)) = runde;
                kontakt(sensor, box->uhr());
                for (ereignis_art art = 13; art <= 32; ++art) {
                    const bool soll = art == runde || (ziel && art == zweite);
                    EXPECT_EQ(zeile(art).aktiv, soll) << sensor << " " << art << " the fuel takes its own at once";
                }
                EXPECT_EQ(zeile(runde).ereignis_zeit, box->uhr());
                EXPECT_EQ(zeile(kontakt_art).ereignis_zeit == box->uhr(), tank);
                zeile(kontakt_art).ereignis_zeit = 0;
            }
        }
    }
}

TEST_F(RaceControl, EineUeberfahrtDerZweitenZiellinieZaehltEinmal) {
    simulator::rc_box_einstellung einst = vier_wagen();
    einst.rennen.wagen.resize(2);
    box_hinstellen(einst);
    verbinden();
    t.p.einst.rc.rc_ziel_sensor34 = true;
    t.einrichten(t.p.txt.text_zeit, "5", {1, 2});
    t.bahn().Command1.klicken();
    for (int runde = 0; runde <= 5; ++runde) {
        laufen(6000);
        kontakt(2, box->uhr());
        laufen(5);
        EXPECT_EQ(t.runden(1), runde);
        EXPECT_EQ(t.runden(2), -1);
    }
}

TEST_F(RaceControl, ZweiUeberfahrtenEinerSpurInEinemStueckZaehlenMitIhrenStempeln) {
    for (const int zweiter : {0, 2}) {  // the second finish line counts for the same lane
        t.p.einst.rc.rc_ziel_sensor34 = zweiter == 2;
        verbinden();
        t.einrichten(t.p.txt.text_zeit, "5", {1, 2});
        t.bahn().Command1.klicken();
        laufen(7000);
        const zeit_ms erste = box->uhr();
        kontakt(0, erste);
        laufen(10);
        t.maschine.uhr_stellen(14000);  // the loop is held
        t.maschine.anschluesse.senden(
            com, satzbytes(0, erste + 6100) + satzbytes(1, erste + 6200) + satzbytes(zweiter, erste + 13300));
        box->weiter(t.maschine.jetzt());
        leitung.clear();
        laufen(10);
        ASSERT_EQ(t.runden(1), 2);
        EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 6100);
        EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 7200);
        EXPECT_EQ(t.runden(2), 0);
        t.p.fenster.entladen(fenstername::bahn1);
    }
}

TEST_F(RaceControl, WasWartetBehaeltSeineZeitWennDieUhrDerBoxNeuBeginnt) {
    verbinden();
    t.starten("Zeit", "5", {1});
    laufen(7000);
    const zeit_ms erste = box->uhr();
    kontakt(0, erste);
    laufen(10);
    t.maschine.uhr_stellen(14000);
    const std::string neue_uhr = simulator::rc_draht::schreiben({simulator::rc_draht::art::takt, 0, ticks(500)});
    t.maschine.anschluesse.senden(com, satzbytes(0, erste + 6100) + satzbytes(0, erste + 12400) + neue_uhr);
    t.maschine.laufen(10);
    ASSERT_EQ(t.runden(1), 2);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 6100);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 6300);
}

TEST_F(RaceControl, JederSatzKommtAnWoImmerErGeschnittenIst) {
    verbinden();
    for (int sensor = 0; sensor < 4; ++sensor) {
        const std::string bytes = satzbytes(sensor, box->uhr());
        for (std::size_t schnitt = 0; schnitt <= bytes.size(); ++schnitt) {
            zeile(16 - sensor) = {};
            t.maschine.anschluesse.senden(com, bytes.substr(0, schnitt));
            EXPECT_EQ(zeile(16 - sensor).aktiv, schnitt == bytes.size());
            t.maschine.anschluesse.senden(com, bytes.substr(schnitt));
            EXPECT_TRUE(zeile(16 - sensor).aktiv);
            EXPECT_EQ(zeile(16 - sensor).ereignis_zeit, box->uhr());
        }
    }
}

TEST_F(RaceControl, EinRennenBeginntMitDemStempelDerBoxUndOhneSieMitDemZaehler) {
    verbinden();
    zeitbasis& zeit = t.p.rennen.zeit;
    EXPECT_EQ(zeit.ereignis_zeit_lesen(), messzeit());
    EXPECT_EQ(zeit.ereignis_zeit_lesen(), messzeit());
    t.p.einst.hardware = {};
    t.p.geraete.hardware_starten(false);
    EXPECT_NE(zeit.ereignis_zeit_lesen(), zeit.ereignis_zeit_lesen());
}

TEST_F(RaceControl, EinUnbekanntesEreignisWirdEinmalGesagt) {
    static int angefangen;
    angefangen = 0;
    t.maschine.bibliotheken.ruf(
        "RaceControl", "InitBoxes", +[] { ++angefangen; });
    verbinden();
    for (int i = 0; i < 100; ++i) {
        satz({static_cast<simulator::rc_draht::art>(7), 0, ticks(box->uhr())});
        laufen(5);
    }
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt.front().text, "Unbekannter Fehler.");
    t.p.geraete.hardware_starten(false);
    EXPECT_EQ(angefangen, 1) << "once a program";
}

}  // namespace
}  // namespace tarvel::test
