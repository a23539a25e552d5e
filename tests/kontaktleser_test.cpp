#include "hardware/kontaktleser.h"

#include "tests/kontaktgeraete_probe.h"
#include "tests/plattform/neustart.h"

namespace tarvel::test {
namespace {

using Kontaktleser = Kontaktgeraet;

TEST_F(Kontaktleser, EinKontaktZaehltEinmalJeVerlassenDerRuhe) {
    iow_waehlen();
    kontakt(bit(15), true);  // a car stands in lane 2's sensor
    t.starten("Runden", "50", {1, 2});
    t.maschine.laufen(4000);
    EXPECT_EQ(t.runden(2), -1);
    puls(16, 1000);
    t.maschine.laufen(3000);
    kontakt(bit(16), true, 9000);
    EXPECT_EQ(t.runden(1), 1) << "a car that stands in the sensor gains nothing";
    kontakt(bit(16), false, 5000);
    EXPECT_EQ(t.runden(1), 1);
    kontakt(bit(15), false, 3000);
    EXPECT_EQ(t.runden(2), 0) << "it drives off";
    kontakt(bit(15), true, 30);
    kontakt(bit(15), false, 3000);
    EXPECT_EQ(t.runden(2), 1);
    EXPECT_EQ(rundenzeit(2, 1), 3030);
}

/// Beside the program its windows, a dialog or another program may hold the loop.
TEST_F(Kontaktleser, EineSchleifeDieStehtKostetKeineRundeUndKeineZeit) {
    iow_waehlen();
    t.starten("Runden", "50", {1, 2, 3, 4});
    t.maschine.laufen(1000);
    kontaktleser leser({t.p.einst, t.p.ereignisse, t.p.geraete.rennverbindung()}, {});
    leser.zuordnen(linien_von(iow_werkseinstellung()));
    leser.ruhe_merken();
    std::shared_ptr<kontaktproben> proben = leser.neuer_abtaster();
    const zeit_ms null = t.maschine.jetzt();
    const auto von_bis = [&](ereignis_art nummer, zeit_ms bei) {
        proben->gesehen(null + bei, bit(nummer));
        proben->gesehen(null + bei + 2, 0);
        proben->gesehen(null + bei + 4, bit(nummer));  // it bounces
        proben->gesehen(null + bei + 6, 0);
    };
    von_bis(16, 100);
    von_bis(15, 101);
    von_bis(16, 3100);
    von_bis(15, 3333);
    von_bis(16, 6201);
    t.maschine.uhr_stellen(6300);
    leser.neuer_abtaster();  // pulled and plugged in again meanwhile
    for (int takt = 0; takt < 20; ++takt) {
        leser.auswerten();
        t.maschine.laufen(1);
    }
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_EQ(rundenzeit(1, 1), 3000);
    EXPECT_EQ(rundenzeit(1, 2), 3101);
    EXPECT_EQ(rundenzeit(2, 1), 3232);
    proben = leser.neuer_abtaster();
    proben->gesehen(null + 6310, bit(1));
    proben->gesehen(null + 6400, 0);
    leser.auswerten();
    t.maschine.laufen(1);
    EXPECT_TRUE(pause()) << "a button that was pressed and released meanwhile";
}

TEST_F(Kontaktleser, ChaosTasterUndSchalter) {
    iow_profil profil = iow_werkseinstellung();
    profil[8] = 55;
    iow_waehlen(profil);
    t.p.einst.chaosampel_an = false;
    t.starten("Runden", "50", {1, 2});
    t.maschine.laufen(5000);
    kontakt(1U << 8, true, 8000);
    EXPECT_TRUE(pause()) << "held, it does not end its own pause";
    EXPECT_NE(t.bahn().cu_startlabel.text().find('2'), std::string::npos);
    t.taste("c");
    EXPECT_TRUE(pause()) << "the key has no say meanwhile";
    kontakt(1U << 8, false, 1000);
    EXPECT_TRUE(pause());
    kontakt(bit(1), true, 500);
    kontakt(bit(1), false, 5000);
    EXPECT_FALSE(pause());
    t.p.einst.chaos_schalter = true;
    kontakt(bit(1), true, 8000);
    EXPECT_TRUE(pause());
    kontakt(bit(1), false, 1000);
    EXPECT_FALSE(pause()) << "the switch is off";
    t.maschine.laufen(8000);
    t.taste("c");
    t.maschine.laufen(8000);
    EXPECT_TRUE(pause()) << "a pause by key is not the switch's to end";
    t.taste("c");
    EXPECT_FALSE(pause());
}

TEST_F(Kontaktleser, TankenEndetMitDemKontaktOderMitSeinemZweiten) {
    iow_profil profil = iow_werkseinstellung();
    profil[30] = 0;  // lane 1 has no contact for the end
    iow_waehlen(profil);
    t.p.form1.t_aktiv.gesetzt(true);
    t.starten("Runden", "50", {1, 2});
    for (const int spur : {1, 2}) {
        t.spur(spur).tank_inhalt = 10;
    }
    kontakt(bit(32) | bit(30), true, 3000);
    const double nach_drei = t.spur(1).tank_inhalt;
    EXPECT_GT(nach_drei, 20);
    kontakt(bit(32) | bit(30), false, 2000);
    EXPECT_LT(t.spur(1).tank_inhalt, nach_drei + 0.3);
    EXPECT_GT(t.spur(2).tank_inhalt, nach_drei + 10) << "it drives to its second contact";
    puls(29, 10);
    const double am_ende = t.spur(2).tank_inhalt;
    t.maschine.laufen(1000);
    EXPECT_EQ(t.spur(2).tank_inhalt, am_ende);
}

/// What stood away from rest as the program went away still does, and is no new rest.
TEST_F(Kontaktleser, NachEinemAusfallGiltDieRuheVomRennstart) {
    constexpr unsigned ziel = 64 | 128;
    constexpr unsigned tank_1 = 32;
    constexpr unsigned tank_2 = 16;
    constexpr unsigned schalter = 8;
    const auto linien = [](test_plattform& maschine, unsigned bits) {
        maschine.druckerport.register_werte[lpt_basis + lpt::status] = static_cast<std::uint8_t>(lpt::in_ruhe ^ bits);
    };
    t.p.einst.lpt.lpt_eingang = {0, 16, 15, 32, 30, 1};
    t.p.einst.tank_inhalt = 100;
    t.p.einst.chaosampel_an = false;
    t.p.einst.chaos_schalter = true;
    t.p.form1.t_aktiv.gesetzt(true);
    lpt_waehlen();
    t.starten("Runden", "50", {1, 2});
    for (int runde = 0; runde < 5; ++runde) {
        linien(t.maschine, ziel);
        t.maschine.laufen(5);
        linien(t.maschine, 0);
        t.maschine.laufen(2000);
    }
    linien(t.maschine, tank_1 | tank_2);
    t.maschine.laufen(3000);

    neustart danach(t, protokoll_von(t));
    danach.maschine.druckerport.register_werte[lpt_basis] = 0;
    linien(danach.maschine, tank_1 | schalter);  // lane 2 has been carried away, and somebody has turned the switch on
    danach.p.starten();
    ASSERT_TRUE(danach.lauf().zustand.chaos_aktiv);
    danach.weiter();
    ASSERT_FALSE(danach.lauf().zustand.chaos_aktiv);
    const spuren<double> davor{{danach.spur(1).tank_inhalt, danach.spur(2).tank_inhalt}};
    danach.maschine.laufen(2000);
    EXPECT_GT(danach.spur(1).tank_inhalt, davor[1] + 15) << "still in the pit";
    EXPECT_DOUBLE_EQ(danach.spur(2).tank_inhalt, davor[2]);
    danach.maschine.laufen(1000);
    EXPECT_TRUE(danach.lauf().zustand.chaos_aktiv) << "the switch is on";
    linien(danach.maschine, 0);
    danach.maschine.laufen(5000);
    ASSERT_FALSE(danach.lauf().zustand.chaos_aktiv);
    const double stand = danach.spur(1).tank_inhalt;
    danach.maschine.laufen(1000);
    EXPECT_DOUBLE_EQ(danach.spur(1).tank_inhalt, stand) << "it drives";
    danach.p.rennen.endfrage.bestaetigen();
    EXPECT_EQ(nachrechnen(danach.p, danach.maschine), "");
}

/// However a race came to go on with the switch turned on meanwhile: it does not drive against the switch.
TEST_F(Kontaktleser, EinSchalterDerInDerPauseAnGehtHaeltDasRennenWiederAn) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.chaos_schalter = true;
    const auto schalten = [&](bool an) { kontakt(bit(1), an, 100); };
    for (const int timeout : {0, 2000, 10000}) {
        SCOPED_TRACE(timeout);
        t.p.einst.sensor_timeout = dauer_ms(timeout);
        iow_waehlen();
        t.starten("Runden", "50", {1, 2});
        t.maschine.laufen(5000);
        for (const bool mit_taste : {false, true}) {
            SCOPED_TRACE(mit_taste);
            const auto pausieren = [&] { mit_taste ? t.taste("c") : t.bahn().Command3.klicken(); };
            pausieren();
            ASSERT_TRUE(pause());
            t.maschine.laufen(4000);
            schalten(true);
            t.maschine.laufen(1000);
            ASSERT_TRUE(pause());
            schalten(false);  // on and off within the pause says nothing
            schalten(true);
            t.bahn().Command3.klicken();
            ASSERT_FALSE(pause());
            t.maschine.laufen(3000);
            EXPECT_TRUE(pause());
            t.maschine.laufen(3000);
            t.bahn().Command3.klicken();
            t.maschine.laufen(8000);
            EXPECT_FALSE(pause()) << "the director has the last word on it";
            schalten(false);
            t.maschine.laufen(1000);
            EXPECT_FALSE(pause());
            pausieren();
            t.maschine.laufen(4000);
            schalten(true);
            t.bahn().Command3.klicken();
            schalten(false);
            t.maschine.laufen(8000);
            EXPECT_FALSE(pause()) << "turned off before it could stop anybody";
        }
        t.rennabbruch();
    }
}

TEST_F(Kontaktleser, EinSchalterDerAmKleinenLichtAnGehtHaeltDasRennenAn) {
    t.p.einst.chaosampel_an = true;
    t.p.einst.chaos_schalter = true;
    iow_waehlen();
    t.starten("Runden", "50", {1, 2});
    t.maschine.laufen(5000);
    kontakt(bit(1), true, 4000);
    ASSERT_TRUE(pause());
    kontakt(bit(1), false, 2000);  // its light has begun
    kontakt(bit(1), true, 6000);
    ASSERT_FALSE(pause());
    t.maschine.laufen(2000);
    EXPECT_TRUE(pause());
    kontakt(bit(1), false, 12000);
    ASSERT_FALSE(pause());
    for (const bool schon_im_rennen : {false, true}) {
        SCOPED_TRACE(schon_im_rennen);
        kontakt(bit(1), schon_im_rennen, 1000);
        EXPECT_EQ(pause(), schon_im_rennen);
        t.rennende();
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        t.p.auswertung.neues_ziel.eingeben("60");
        t.p.auswertung.Command3.klicken();
        t.p.k_ampel.Command1.klicken();
        kontakt(bit(1), true, 3 * 1500 + 2500);
        t.maschine.laufen(300);
        EXPECT_TRUE(pause());
        t.maschine.laufen(3000);
        kontakt(bit(1), false, 12000);
        EXPECT_FALSE(pause());
    }
    t.rennende();
    EXPECT_EQ(nachrechnen(t.p, t.maschine), "");
}

TEST_F(Kontaktleser, EinSchalterDerVorDemStartAnIstHaeltIhnAn) {
    t.p.einst.chaosampel_an = false;
    iow_waehlen();
    kontakt(bit(1), true);
    t.p.einst.chaos_schalter = true;
    t.starten("Runden", "50", {1, 2});
    t.maschine.laufen(500);
    EXPECT_TRUE(pause());
    t.maschine.laufen(3000);
    kontakt(bit(1), false, 3000);
    EXPECT_FALSE(pause());
    t.maschine.laufen(3000);
    kontakt(bit(1), true, 100);
    EXPECT_TRUE(pause());
    t.rennabbruch();
    t.p.einst.chaos_schalter = false;
    t.starten("Runden", "50", {1, 2});
    t.maschine.laufen(500);
    EXPECT_FALSE(pause()) << "a button that opens as it is pressed";
    kontakt(bit(1), false, 100);
    EXPECT_TRUE(pause());
}

}  // namespace
}  // namespace tarvel::test
