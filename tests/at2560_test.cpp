#include "hardware/at2560.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/plattform/at2560_aufbau.h"

namespace tarvel {
namespace {

class At2560 : public testing::Test {
protected:
    zeit_ms rundenzeit(int spur, int runde) const { return a.t.p.rennen.zustand.konto.rundenzeit(spur, runde); }
    zeit_ms jetzt() const { return a.t.maschine.jetzt(); }

    test::at2560_aufbau a;
};

TEST_F(At2560, JedesEreignisKommtAnWoImmerDieBytesGeschnittenSind) {
    const std::vector<ereignis_art> arten{16, 15, 14, 13, 34, 35, 32, 31, 30, 29, 28, 27, 26, 25, 36,
                                          37, 38, 39, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53,
                                          1,  54, 55, 56, 57, 58, 59, 20, 19, 18, 17, 12, 11, 10, 9};
    a.gesagt.ereignisse_weitersagen = false;  // else the fuel simulation has taken the tank events already
    a.oeffnen(test::alles_belegt());
    a.sagt(":T,0;");
    const zeit_ms versatz = jetzt();
    for (int nummer = 1; nummer <= at_ereignisse_max; ++nummer) {
        const std::string bytes = "x;,:e" + std::to_string(nummer) + ",1234;\r\n";
        for (std::size_t schnitt = 0; schnitt <= bytes.size(); ++schnitt) {
            ereignis_zeile& zeile = a.zeile(arten.at(static_cast<std::size_t>(nummer) - 1));
            zeile = {};
            a.sagt(bytes.substr(0, schnitt));
            a.sagt(bytes.substr(schnitt));
            EXPECT_TRUE(zeile.aktiv) << bytes << schnitt;
            EXPECT_EQ(zeile.ereignis_zeit, versatz + 1234) << bytes << schnitt;
        }
    }
}

TEST_F(At2560, EinNameInMehrerenZeilenMeldetSieAlle) {
    at_profil p;
    p.at_ereignis.at(at_zeile::tanken_ein(2)) = "S13";
    p.at_ereignis.at(at_zeile::zwischenzeit(6, 1)) = "S13";
    a.gesagt.ereignisse_weitersagen = false;
    a.oeffnen(p);
    a.sagt(":S13,5;:Snv,6;:,7;:S99,8;:S11;");
    for (ereignis_art art = 1; art < 60; ++art) {
        EXPECT_EQ(a.zeile(art).aktiv, art == 16 || art == 30 || art == 52) << art;
    }
}

TEST_F(At2560, AbgebrocheneFolgenFallenWeg) {
    struct fall {
        std::string bytes;
        std::array<bool, 4> spuren;
    };
    a.oeffnen();
    for (const fall& f : std::vector<fall>{{":S13,100:S11,200;", {false, true, false, false}},
                                           {":S13,1:S11,2:S9,3;:S7,4;", {false, false, true, true}},
                                           {"::::S13,1;", {true, false, false, false}},
                                           {";;,;S13,1;:S7,2;", {false, false, false, true}}}) {
        a.sagt(f.bytes);
        for (const int spur : {1, 2, 3, 4}) {
            EXPECT_EQ(std::exchange(a.zeile(art::rundenzaehlung[spur]).aktiv, false), f.spuren.at(feld_index(spur)))
                << f.bytes << spur;
        }
    }
}

TEST_F(At2560, RundenHabenDieZeitDesGeraetsAuchWennSieSpaetKommen) {
    a.oeffnen();
    a.t.starten("Runden", "20", {1, 2});
    EXPECT_TRUE(a.gesendet().ends_with(":E0;\r:S;\r:T;\r"));
    a.sagt(":T,100;");
    a.t.maschine.laufen(5000);
    a.sagt(":S13,5000;:S11,5001;");
    a.t.maschine.laufen(9000);
    a.sagt(":S13,12345;:S11,1");  // two seconds late
    a.t.maschine.laufen(10);
    a.sagt("3001;");
    a.t.maschine.laufen(10);
    EXPECT_EQ(rundenzeit(1, 1), 7345);
    EXPECT_EQ(rundenzeit(2, 1), 8000);
}

/// On a busy machine ticks are rare: what has come must be counted, and in the log, before the power may fail.
TEST_F(At2560, WasNebeneinanderKommtWartetNichtAufEinander) {
    at_profil sechs;
    sechs.at_ereignis.at(at_zeile::rundenzaehlung(5)) = "S21";
    sechs.at_ereignis.at(at_zeile::rundenzaehlung(6)) = "S22";
    a.oeffnen(sechs);
    a.t.starten("Runden", "20", {1, 2, 3, 4, 5, 6});
    a.sagt(":T,0;");
    a.t.maschine.laufen(6000);
    a.sagt(":S13,5800;:S11,5900;:S9,5950;:S7,5960;:S21,5961;:S22,5970;");
    a.t.maschine.laufen(2);
    for (const int spur : alle_spuren) {
        EXPECT_EQ(a.t.runden(spur), 0) << spur;
    }
    a.t.maschine.laufen(20000);
    a.sagt(":S13,15800;:S11,15901;:S13,25900;:S9,25953;");
    a.t.maschine.laufen(4);
    EXPECT_EQ(rundenzeit(1, 1), 10000);
    EXPECT_EQ(rundenzeit(1, 2), 10100);
    EXPECT_EQ(rundenzeit(2, 1), 10001);
    EXPECT_EQ(rundenzeit(3, 1), 20003);
}

TEST_F(At2560, EineUhrDieUmlaeuftOderNeuBeginntZaehltWeiter) {
    constexpr zeit_ms umlauf = zeit_ms{1} << 32;
    a.oeffnen();
    a.t.starten("Runden", "20", {1});
    a.sagt(":T," + std::to_string(umlauf - 12000) + ";");
    const auto runde_bei = [&](zeit_ms nach, zeit_ms geraetezeit) {
        a.t.maschine.laufen(nach);
        a.sagt(":S13," + std::to_string(geraetezeit) + ";");
        a.t.maschine.laufen(10);
    };
    runde_bei(5000, umlauf - 7000);
    runde_bei(7990, 993);
    EXPECT_EQ(rundenzeit(1, 1), 7993) << "it has run over";
    runde_bei(7990, 9000);
    EXPECT_EQ(rundenzeit(1, 2), 8007);
    runde_bei(9990, 700);
    EXPECT_NEAR(static_cast<double>(rundenzeit(1, 3)), 10000, 20) << "it was switched off and on";
    runde_bei(5990, 6702);
    EXPECT_EQ(rundenzeit(1, 4), 6002);
    runde_bei(5990, 127);
    runde_bei(5990, 18700);
    EXPECT_EQ(rundenzeit(1, 5) + rundenzeit(1, 6), 11998) << "but for one damaged event it runs on";
}

/// Events found late, after the program has stood still, are judged as of their moments.
TEST_F(At2560, SperrenEndenNachDemStempelWasImmerStillstand) {
    at_profil profil;
    profil.at_ereignis.at(at_zeile::tanken_ein(1)) = "e7";
    profil.at_ereignis.at(at_zeile::tanken_ein(2)) = "e9";
    profil.at_ereignis.at(at_zeile::tanken_ein(3)) = "e11";
    a.oeffnen(profil);
    a.t.p.form1.t_aktiv.gesetzt(true);
    einstellungen& einst = a.t.p.einst;
    einst.tank_straf_option = leer_aktion::stromunterbrechung;
    einst.tank_strafzeit = 8s;
    einst.tank_wartezeit = 0s;
    einst.fruehstart_option = fruehstart_aktion::stromunterbrechung;
    einst.fruehstart_strafzeit = 5s;
    zeit_ms beginn = 0;
    const auto alle_bei = [&](zeit_ms zeit, const std::array<std::string, 3>& namen) {
        a.t.maschine.laufen(beginn + zeit - jetzt());
        for (const std::string& name : namen) {
            a.sagt(":" + name + "," + std::to_string(zeit) + ";");
        }
        a.t.maschine.laufen(5);
    };
    const auto rennen = [&](double liter) {
        a.t.starten("Runden", "20", {1, 2, 3});
        beginn = jetzt();
        a.sagt(":T,0;");
        alle_bei(100, {"S13", "S11", "S9"});
        for (const int spur : {1, 2, 3}) {
            a.t.spur(spur).tank_inhalt = liter;
        }
    };
    const auto leerer_tank = [&] {
        rennen(1);
        alle_bei(8000, {"S13", "S11", "S9"});
        a.t.spur(2).tank_inhalt = 60;
        return zeit_ms{16000};
    };
    const auto voller_tank = [&] {
        einst.tank_runden_modus = rundenzaehlung_auf::tanksensor_1;
        rennen(10);
        alle_bei(8000, {"e7", "e9", "e11"});
        while (a.t.spur(3).tank_inhalt < einst.tank_inhalt) {
            a.t.maschine.laufen(1);
        }
        return jetzt() - beginn + 500;
    };
    const auto fruehstart = [&] {
        a.t.einrichten("Runden", "20", {1, 2, 3});
        einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        a.t.bahn().Command1.klicken();
        a.t.maschine.laufen(3000);
        a.sagt(":S13,0;:S11,0;:S9,0;");
        while (!a.t.p.rennen.zeitgeber.renntimer->laeuft()) {
            a.t.maschine.laufen(1);
        }
        beginn = jetzt();
        a.sagt(":T,0;");
        return zeit_ms{5000 + a.t.p.param.min_rundenzeit_ms};
    };
    struct fall {
        std::string sperre;
        std::function<zeit_ms()> beginnen;  ///< gives the moment at which it ends
    };
    for (const fall& f :
         {fall{"empty tank", leerer_tank}, fall{"full tank", voller_tank}, fall{"false start", fruehstart}}) {
        SCOPED_TRACE(f.sperre);
        const zeit_ms ende = f.beginnen();
        a.t.maschine.laufen(std::max<zeit_ms>(beginn + ende - 2000 - jetzt(), 0));
        a.t.maschine.uhr_stellen(20000);
        const auto bei = [&](const std::string& name, zeit_ms spaeter) {
            return ":" + name + "," + std::to_string(ende + spaeter) + ";";
        };
        a.sagt(bei("S13", -200) + bei("S11", 200));
        a.t.maschine.laufen(2);
        EXPECT_EQ(a.t.spur(2).gezaehlt_bei, beginn + ende + 200) << "behind it each lap counts";
        a.t.maschine.laufen(1000);
        const int runden = a.t.runden(2);
        a.sagt(bei("S9", -200));
        a.t.maschine.laufen(5);
        a.t.maschine.uhr_stellen(1000);
        a.sagt(bei("S11", 6200) + bei("S11", 12200));
        a.t.maschine.laufen(5);
        EXPECT_EQ(a.t.runden(2), runden + 2) << "also two that come at once";
        for (const int spur : {1, 3}) {
            EXPECT_LT(a.t.spur(spur).gezaehlt_bei, beginn + ende - 200) << "in it nothing does, whenever it is told";
        }
        a.t.rennabbruch();
    }
}

TEST_F(At2560, WerVorDemFortsetzenUeberDieLinieGeschobenWirdHatNichtsGefahren) {
    a.oeffnen();
    a.t.starten("Zeit", "1", {1});
    const zeit_ms beginn = jetzt();
    const auto ueberfahrt_nach = [&](zeit_ms dauer) {
        a.t.maschine.laufen(dauer);
        a.sagt(":S13," + std::to_string(jetzt() - beginn) + ";");
        a.t.maschine.laufen(10);
    };
    a.sagt(":T,0;");
    ueberfahrt_nach(1000);
    ueberfahrt_nach(9990);
    a.t.maschine.laufen(20000);
    a.t.rennende();
    a.t.p.auswertung.neues_ziel.eingeben("5");
    a.t.p.auswertung.Command3.klicken();
    a.t.p.k_ampel.Command1.klicken();
    ueberfahrt_nach(3000);
    a.t.maschine.laufen(7000);
    ASSERT_TRUE(a.t.p.rennen.zeitgeber.renntimer->laeuft());
    EXPECT_EQ(a.t.runden(1), 1);
    a.sagt(":S13," + std::to_string(jetzt() - beginn - 5000) + ";");
    a.t.maschine.laufen(10);
    EXPECT_EQ(a.t.runden(1), 1) << "also where that is told behind green";
    ueberfahrt_nach(1000);
    EXPECT_EQ(a.t.runden(1), 2);
}

TEST_F(At2560, VersatzWirdJeRennenEinmalGeholt) {
    ereignis_zeile& runde = a.zeile(16);
    a.oeffnen();
    const auto meldet = [&](const std::string& code) {
        a.sagt(":S13," + code + ";");
        return std::exchange(runde.ereignis_zeit, -1);
    };
    a.t.p.ereignisse.messzeit = 77;
    EXPECT_EQ(meldet("500"), 77) << "the unit's clock is not known yet";
    a.sagt(":T,0;");
    const zeit_ms versatz = jetzt();
    a.t.maschine.laufen(50);
    a.sagt(":T,40;");  // too late: zero was an answer
    EXPECT_EQ(meldet("500"), versatz + 500);
    EXPECT_EQ(meldet("-20"), versatz - 20);
    EXPECT_EQ(meldet("12.9"), versatz + 12);
    EXPECT_EQ(meldet("quatsch"), versatz);
    EXPECT_EQ(meldet(""), versatz);
    EXPECT_EQ(meldet(std::string(5000, '9')), versatz + 1'000'000'000'000);
    EXPECT_EQ(meldet("-" + std::string(400, '9')), versatz - 1'000'000'000'000);
    a.geraet.rennen_bereit();
    EXPECT_EQ(meldet("500"), 77);
    a.sagt(":T,1");
    a.sagt("000;");
    EXPECT_EQ(meldet("1500"), jetzt() + 500);
}

/// A small board's clock is wrong by seconds in half an hour. What lies beside a pause or the end by the machine's
/// clock must lie there by the unit's.
TEST_F(At2560, DieUhrDesRennensGehtMitDerDesGeraets) {
    a.t.p.einst.zielmodus_erster = false;
    a.t.p.einst.chaosampel_an = false;
    a.t.p.form1.wertmin.eingeben("1");
    a.oeffnen();
    for (const double gang : {0.985, 1.0, 1.005}) {
        SCOPED_TRACE(gang);
        a.geraet.oeffnen();  // nobody knows this clock yet
        a.t.p.rennen.zeit.freigeben();
        a.t.maschine.laufen(at_bootzeit.count());
        a.t.starten("Zeit", "30", {1, 2, 3, 4});
        const zeit_ms beginn = jetzt();
        const auto auf_der_uhr = [&](zeit_ms wann) {
            return 50000 + std::llround(static_cast<double>(wann - beginn) * gang);
        };
        const auto faehrt = [&](int spur, zeit_ms wann) {
            const std::array<const char*, 4> sensor{":S13,", ":S11,", ":S9,", ":S7,"};
            a.sagt(sensor.at(feld_index(spur)) + std::to_string(auf_der_uhr(wann)) + ";");
            a.t.maschine.laufen(2);
        };
        a.sagt(":T,50000;");
        int nummer = 0;
        const auto fahren = [&](zeit_ms dauer) {
            for (const zeit_ms bis = jetzt() + dauer; jetzt() < bis; ++nummer) {
                a.t.maschine.laufen(1498);
                faehrt(nummer % 4 + 1, jetzt() - nummer * 7 % 13);
            }
        };
        fahren(zeit_ms{10} * 60 * 1000);
        const std::array<int, 2> vorher{a.t.runden(1), a.t.runden(2)};
        a.t.bahn().Command3.klicken();
        const zeit_ms pause_ab = jetzt();
        a.t.maschine.laufen(120000);
        a.t.bahn().Command3.klicken();
        const zeit_ms weiter = jetzt();
        a.t.maschine.laufen(8);
        faehrt(1, weiter - 150);
        a.t.maschine.laufen(145);
        faehrt(2, weiter + 150);
        EXPECT_EQ(a.t.runden(1), vorher[0]) << "in the pause";
        EXPECT_EQ(a.t.runden(2), vorher[1] + 1) << "behind it";
        const zeit_ms pause = auf_der_uhr(weiter) - auf_der_uhr(pause_ab);
        a.t.maschine.laufen(6000);
        fahren(zeit_ms{18} * 60 * 1000);
        while (!a.t.p.rennen.zeitgeber.nachlauftimer1->laeuft()) {
            a.t.maschine.laufen(1);
        }
        const zeit_ms ende = jetzt();
        EXPECT_NEAR(static_cast<double>(auf_der_uhr(ende) - auf_der_uhr(beginn) - pause), 30.0 * 60 * 1000, 25);
        faehrt(3, ende - 150);
        EXPECT_FALSE(a.t.spur(3).ziel_erreicht) << "it still has to drive its lap";
        a.t.maschine.laufen(150);
        faehrt(4, ende + 150);
        EXPECT_TRUE(a.t.spur(4).ziel_erreicht);
        const rundenkonto& konto = a.t.p.rennen.zustand.konto;
        for (int runde = 1; runde <= a.t.runden(1); ++runde) {
            const zeit_ms uhr = konto.stempel(1, runde) - konto.stempel(1, runde - 1) - konto.pause(1, runde);
            EXPECT_EQ(rundenzeit(1, runde), uhr);
            EXPECT_NEAR(static_cast<double>(uhr), runde == vorher[0] + 1 ? 12000 * gang : 6000 * gang,
                        runde == vorher[0] + 1 ? 9000 : 30);
        }
        EXPECT_EQ(a.t.p.rennen.zeit.gang() == 1, gang == 1) << "a clock that is right is left alone";
        EXPECT_EQ(test::nachrechnen(a.t.p, a.t.maschine), "");
        a.t.p.fenster.entladen(fenstername::bahn1);
    }
}

TEST_F(At2560, FruehstartWirdErkannt) {
    at_profil p;
    p.at_ereignis.at(at_zeile::tanken_ein(1)) = "e7";
    a.oeffnen(p);
    a.t.einrichten("Runden", "20", {1, 2});
    a.t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    a.t.bahn().Command1.klicken();
    a.t.maschine.laufen(3000);
    const auto gesagt = [this] { return a.t.p.startampel.fenster.Label_fruehstart.text(); };
    EXPECT_TRUE(gesagt().empty());
    a.sagt(":S11,3000;");
    a.t.maschine.laufen(2);
    EXPECT_TRUE(gesagt().starts_with("Frühstart: Spur\u00a02"));
    a.sagt(":e7,3001;");  // tank sensor of lane 1
    a.t.maschine.laufen(2);
    EXPECT_TRUE(gesagt().starts_with("Frühstart: Spur\u00a01"));
}

TEST_F(At2560, GehaltenerChaosschalterHaeltDiePauseLosgelassenEndetSie) {
    at_profil p;
    p.at_ereignis.at(at_zeile::chaos_allgemein) = "C";
    a.oeffnen(p);
    a.t.p.einst.chaos_schalter = true;
    a.t.p.einst.chaosampel_an = false;
    a.t.starten("Runden", "20", {1, 2});
    a.sagt(":T,0;");
    a.t.maschine.laufen(5000);
    const auto pause = [this] { return a.t.p.rennen.zustand.chaos_aktiv; };
    for (int i = 0; i < 40; ++i) {
        a.sagt(":C,1;");
        a.t.maschine.laufen(500);
        ASSERT_TRUE(pause()) << i;
    }
    a.t.maschine.laufen(1000);
    EXPECT_FALSE(pause());
    a.t.maschine.laufen(5000);

    a.t.taste("c");  // by key, while the unit says other things
    a.t.maschine.laufen(3000);
    a.sagt(":S13,1;");
    a.t.maschine.laufen(3000);
    EXPECT_TRUE(pause());
    a.t.bahn().Command3.klicken();
    EXPECT_FALSE(pause());
    a.t.maschine.laufen(5000);
    a.t.bahn().Command3.klicken();
    a.t.maschine.laufen(5000);
    EXPECT_TRUE(pause()) << "hands are on the track";
    a.t.bahn().Command3.klicken();
    a.t.maschine.laufen(5000);

    a.sagt(":C,1;");
    a.t.maschine.laufen(3000 - 2000);
    ASSERT_TRUE(pause());
    a.t.maschine.anschluesse.abziehen(3);
    a.t.maschine.laufen(5000);
    EXPECT_TRUE(pause()) << "silence of a unit that is gone";
    a.t.bahn().Command3.klicken();
    EXPECT_FALSE(pause());
    a.t.maschine.laufen(5000);
    EXPECT_FALSE(pause());
}

TEST_F(At2560, ChaostasterNenntDenFahrer) {
    at_profil p = test::alles_belegt();
    a.oeffnen(p);
    a.t.starten("Runden", "20", {1, 2});
    a.sagt(":e34,1;");
    EXPECT_TRUE(a.t.p.ereignisse.chaos_fahrer[3]);
    a.t.maschine.laufen(5);
    EXPECT_TRUE(a.t.p.rennen.zustand.chaos_aktiv);

    p.at_ereignis.at(30) = p.at_ereignis.at(33);  // sector 2 of lane 6
    a.oeffnen(p);
    a.t.p.ereignisse[1].aktiv = false;
    a.sagt(":e33,1;");
    EXPECT_TRUE(a.zeile(55).aktiv);
    EXPECT_FALSE(a.t.p.ereignisse.chaos_fahrer[2]);
    EXPECT_FALSE(a.zeile(1).aktiv);
}

TEST_F(At2560, BeliebigeBytesBringenNichtsDurcheinander) {
    a.oeffnen(test::alles_belegt());
    a.t.starten("Runden", "9999", {1, 2, 3, 4, 5, 6});
    constexpr std::string_view zeichen = "::;;,,.eT0123456789-\r\n\xFF";
    std::mt19937 zufall(2560);
    const auto unter = [&](std::size_t n) { return static_cast<std::size_t>(zufall()) % n; };
    for (int i = 0; i < 1000000;) {
        std::string bytes;
        for (std::size_t n = unter(40); n > 0; --n, ++i) {
            bytes += unter(8) == 0 ? static_cast<char>(zufall()) : zeichen[unter(zeichen.size())];
        }
        a.sagt(bytes);
        if (unter(3) == 0) {
            a.t.maschine.laufen(static_cast<zeit_ms>(unter(3)));
        }
    }
    a.t.rennabbruch();                                // in a pause or not
    a.t.p.fenster.entladen(fenstername::auswertung);  // perhaps all of them are home
    a.t.p.fenster.entladen(fenstername::bahn1);
    a.t.starten("Runden", "20", {1});
    a.sagt(";:T,0;");
    a.t.maschine.laufen(1000);
    a.sagt(":e1,1000;");
    a.t.maschine.laufen(8000);
    a.sagt(":e1,9000;");
    a.t.maschine.laufen(10);
    EXPECT_EQ(rundenzeit(1, 1), 8000) << "the next race has a clean line";
}

}  // namespace
}  // namespace tarvel
