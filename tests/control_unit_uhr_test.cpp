// Whatever the unit tells late, its stamps say when it was.

#include <cmath>

#include "tests/control_unit_probe.h"

namespace tarvel::test {
namespace {

TEST_F(ControlUnitRennen, DieErsteUeberfahrtBringtAlleZeitenAufDieUhrDesGeraets) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    t.maschine.laufen(2000);
    ueberfahrt(1, 900000);  // 4.5 s after green
    t.maschine.laufen(10000 - 3);
    ueberfahrt(1, 910000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 10000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 0)), 4500, 5);
    EXPECT_EQ(t.bahn().uhr1.minuten.text() + t.bahn().uhr1.sekunden.text(), "0014");
    t.taste("2");  // by hand, on the same clock
    t.maschine.laufen(6999);
    t.taste("2");
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, 1), 7000);
    // the unit was switched off and on: its clock begins anew
    t.maschine.laufen(3000 - 3);
    ueberfahrt(1, 100);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 2)), 10000, 5);
    t.maschine.laufen(6000 - 3);
    ueberfahrt(1, 6100);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 3), 6000);
}

TEST_F(ControlUnitRennen, NachEinemNeubeginnStimmenDieRundenAllerWagen) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    const auto beide = [this](zeit_ms nach, std::uint32_t erster, std::uint32_t zweiter) {
        t.maschine.laufen(nach - 506);
        ueberfahrt(1, erster);
        t.maschine.laufen(500);
        ueberfahrt(2, zweiter);
    };
    beide(2000, 900000, 900500);
    beide(8000, 100, 603);
    beide(8000, 8101, 8608);
    beide(8000, 16107, 16611);
    for (const int runde : {2, 3}) {
        EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, runde), runde == 2 ? 8001 : 8006);
        EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, runde), runde == 2 ? 8005 : 8003);
    }
}

/// A machine that is too busy falls behind what the unit has to tell, for long, and then has time again.
TEST_F(ControlUnitRennen, EinRueckstandDerAufgeholtWirdVerkuerztKeineRunde) {
    starten(t.p.txt.text_runden, "10", {1});
    ueberfahrt(1, 900000);
    t.maschine.laufen(3000);
    for (const std::uint32_t spaet : {906000U, 913000U, 920000U, 927000U}) {
        t.maschine.laufen(spaet == 906000U ? 5997 : 6997);
        ueberfahrt(1, spaet);
    }
    t.maschine.laufen(6997);
    ueberfahrt(1, 937000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 4), 7000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 5), 10000);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zeit.messzeit_lesen()), 937000, 20);
}

TEST_F(ControlUnitRennen, EineUeberfahrtZuBeginnDerPauseHatIhrenStempelUndDiePauseDieUhrDesGeraets) {
    t.p.einst.sensor_timeout = 2s;
    starten(t.p.txt.text_runden, "10", {1, 2});
    const zeit_ms beginn = t.maschine.jetzt();
    constexpr double gang = 0.995;
    const auto stempel = [&] {
        return static_cast<std::uint32_t>(500000 +
                                          std::llround(static_cast<double>(t.maschine.jetzt() - beginn) * gang));
    };
    const std::uint32_t erste = stempel();
    ueberfahrt(1, erste);
    t.maschine.laufen(8000);
    const std::uint32_t vor_der_pause = stempel();
    t.maschine.laufen(4);
    const zeit_ms angehalten = t.maschine.jetzt();
    t.taste("c");
    ueberfahrt(1, vor_der_pause);
    status(true);
    t.maschine.laufen(300000);
    status(false);
    const auto pause = static_cast<double>(t.maschine.jetzt() - angehalten) * gang;
    ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(1000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), vor_der_pause - erste);
    t.maschine.laufen(3000);
    ueberfahrt(2, stempel());  // shows how fast the clock is
    t.maschine.laufen(4000);
    const std::uint32_t dritte = stempel();
    ueberfahrt(1, dritte);
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 2)), dritte - vor_der_pause - pause, 20);
}

TEST_F(ControlUnitRennen, WasNachDenPausenErstErzaehltWirdZaehltWieEsWar) {
    starten(t.p.txt.text_runden, "10", {1, 2, 3});
    const zeit_ms beginn = t.maschine.jetzt();
    const auto stempel = [&] { return static_cast<std::uint32_t>(500000 + t.maschine.jetzt() - beginn); };
    const std::uint32_t erste = stempel();
    for (const int spur : {1, 2, 3}) {
        ueberfahrt(spur, erste);
    }
    t.maschine.laufen(8000);
    const std::uint32_t vor_den_pausen = stempel();
    std::uint32_t in_der_pause = 0;
    const auto pause = [&](zeit_ms dauer) {
        t.maschine.laufen(100);
        t.taste("c");
        status(true);
        t.maschine.laufen(dauer);
        in_der_pause = stempel();
        t.maschine.laufen(dauer);
        status(false);
        return t.p.rennen.zustand.pause.dauer;
    };
    const zeit_ms erste_pause = pause(10000);
    const std::uint32_t in_der_ersten = in_der_pause;
    t.maschine.laufen(4000);
    const std::uint32_t dazwischen = stempel();
    const zeit_ms zweite_pause = pause(5000);
    ASSERT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    t.maschine.laufen(50);
    ueberfahrt(1, vor_den_pausen);
    ueberfahrt(2, in_der_ersten);
    ueberfahrt(2, in_der_pause);
    ueberfahrt(3, dazwischen);
    const rundenkonto& konto = t.p.rennen.zustand.konto;
    EXPECT_EQ(konto.rundenzeit(1, 1), vor_den_pausen - erste);
    EXPECT_EQ(t.runden(2), 0);
    EXPECT_EQ(konto.rundenzeit(3, 1), dazwischen - erste - erste_pause);
    t.maschine.laufen(8000);
    const std::uint32_t letzte = stempel();
    ueberfahrt(1, letzte);
    EXPECT_NEAR(static_cast<double>(konto.rundenzeit(1, 2)),
                static_cast<double>(letzte - vor_den_pausen - erste_pause - zweite_pause), 20);
}

TEST_F(ControlUnitRennen, JedeRundeZaehltDieErstInDerPauseOderNachDemEndeErzaehltWird) {
    t.p.einst.zielmodus_erster = true;
    t.p.einst.sensor_timeout = 2s;
    starten(t.p.txt.text_zeit, "1", {1, 2});
    const zeit_ms beginn = t.maschine.jetzt();
    const auto bei = [](zeit_ms ms) { return static_cast<std::uint32_t>(500000 + ms); };
    ueberfahrt(1, bei(0));
    ueberfahrt(2, bei(3));
    t.maschine.laufen(20000);
    t.taste("c");
    status(true);
    wartend = {passage(1, bei(6000)), passage(1, bei(12000)), passage(1, bei(18000))};
    t.maschine.laufen(5000);
    EXPECT_EQ(t.runden(1), 0) << "the race stands still";
    const zeit_ms vorher = t.maschine.jetzt();
    status(false);
    const zeit_ms pause = t.p.rennen.zustand.pause.dauer;
    EXPECT_NEAR(static_cast<double>(pause), static_cast<double>(vorher - beginn - 20000), 20);
    t.maschine.laufen(50);
    EXPECT_EQ(t.runden(1), 3);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 2), 6000);
    t.maschine.laufen(4000);
    const zeit_ms vierte = t.maschine.jetzt() - beginn;
    ueberfahrt(1, bei(vierte));
    EXPECT_NEAR(static_cast<double>(t.p.rennen.zustand.konto.rundenzeit(1, 4)),
                static_cast<double>(vierte - 18000 - pause), 10)
        << "the pause comes off once";
    while (!t.p.fenster.ist_offen(fenstername::auswertung)) {
        t.maschine.laufen(1);
    }
    const zeit_ms ende = t.maschine.jetzt() - beginn;
    t.maschine.laufen(1600);
    wartend = {passage(1, bei(ende - 12000)), passage(1, bei(ende - 6000)), passage(1, bei(ende + 200))};
    t.maschine.laufen(100);
    EXPECT_EQ(t.runden(1), 7) << "two from before the end, and the one that it has cut short";
}

TEST_F(ControlUnitRennen, EineVerspaetetGemeldeteUeberfahrtVerschiebtNichts) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 900000);
    ueberfahrt(2, 899999);
    t.maschine.laufen(9994);
    ueberfahrt(1, 910000);
    ueberfahrt(2, 909997);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 10000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, 1), 9998);
    EXPECT_EQ(t.p.rennen.zustand.konto.stempel(2, 0), 899999);
}

TEST_F(ControlUnitRennen, WasEinStehenderRechnerSpaetFindetHatSeineZeit) {
    starten(t.p.txt.text_runden, "10", {1, 2});
    ueberfahrt(1, 1000);
    ueberfahrt(2, 1100);
    t.maschine.laufen(3000);
    t.maschine.uhr_stellen(7000);  // neither timers nor records
    wartend = {letzter_status, passage(1, 9000), passage(2, 6300)};
    t.maschine.laufen(20);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(1, 1), 8000);
    EXPECT_EQ(t.p.rennen.zustand.konto.rundenzeit(2, 1), 5200);
}

TEST_F(ControlUnitRennen, StrafenEndenFuerDieRundeNachIhremStempel) {
    t.p.einst.chaos_strafe_strom = false;
    t.p.einst.chaos_strafzeit = 5s;
    starten(t.p.txt.text_runden, "10", {1, 2, 3});
    const zeit_ms beginn = t.maschine.jetzt();
    const auto stempel = [&](zeit_ms frueher) {
        return static_cast<std::uint32_t>(500000 + t.maschine.jetzt() - beginn - frueher);
    };
    for (const int spur : {1, 2, 3}) {
        ueberfahrt(spur, stempel(0));
    }
    t.maschine.laufen(1000);
    t.taste("c");
    status(true);
    t.maschine.laufen(3000);
    for (const int spur : {1, 2, 3}) {
        t.bahn().ch_strafzeit_hacken[spur].umschalten();
    }
    status(false);
    t.maschine.laufen(4000);
    t.maschine.uhr_stellen(3000);  // neither timers nor records: 1.9 s behind the end of the penalty
    wartend = {passage(1, stempel(2500)), passage(2, stempel(1000))};
    t.maschine.laufen(4);
    EXPECT_EQ(t.runden(1), 0) << "in the penalty";
    EXPECT_EQ(t.runden(2), 1) << "behind it, before any timer has told so";
    t.maschine.laufen(1000);
    EXPECT_FALSE(t.spur(3).fruehstart_sperre);
    ueberfahrt(3, stempel(3500));
    EXPECT_EQ(t.runden(3), 0) << "told when it was over long ago";
}

}  // namespace
}  // namespace tarvel::test
