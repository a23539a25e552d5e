#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <random>

#include "hardware/iow_profil.h"
#include "hardware/lpt_register.h"
#include "programm/druckeranschluss_verdrahtung.h"
#include "programm/iow_verdrahtung.h"
#include "tests/programm_probe.h"
#include "tools/simulator/kontaktbrett.h"

namespace tarvel::test {
namespace {

/// The board behind the scripted library: one at a time.
struct scheinplatine {
    bool steckt = true;
    std::uint32_t produkt = 5376;
    std::uint32_t gelesen = 5;   ///< what a read says if there is a report
    std::uint32_t kontakte = 0;  ///< closed ones
    std::uint32_t gemeldet = 0;  ///< as last read
    std::array<std::uint8_t, 8> ausgang{};
    std::uint32_t laenge = 0;
    int schliessungen = 0;
};
scheinplatine* platine = nullptr;

void* oeffnen() {
    return platine->steckt ? platine : nullptr;
}
std::uint32_t lesen(void* /*handle*/, std::uint32_t /*pipe*/, void* ziel, std::uint32_t laenge) {
    if (!platine->steckt || platine->kontakte == platine->gemeldet) {
        return 0;
    }
    platine->gemeldet = platine->kontakte;
    const std::uint32_t pins = ~platine->kontakte;
    std::array<std::uint8_t, 8> bericht{0, static_cast<std::uint8_t>(pins), static_cast<std::uint8_t>(pins >> 8),
                                        static_cast<std::uint8_t>(pins >> 16), static_cast<std::uint8_t>(pins >> 24)};
    std::memcpy(ziel, bericht.data(), laenge);
    return platine->gelesen;
}
std::uint32_t schreiben(void* /*handle*/, std::uint32_t /*pipe*/, void* quelle, std::uint32_t laenge) {
    platine->laenge = laenge;
    std::memcpy(platine->ausgang.data(), quelle, laenge);
    return platine->steckt ? laenge : 0;
}

/// The bit of an event in the factory assignment.
constexpr std::uint32_t bit(ereignis_art nummer) {
    return 1U << static_cast<unsigned>(nummer - 1);
}

struct Kontaktgeraet : testing::Test {
    Kontaktgeraet() {
        platine = &brett;
        test_bibliotheken& b = t.maschine.bibliotheken;
        b.ruf("iowkit", "IowKitOpenDevice", oeffnen);
        b.ruf<void(void*)>("iowkit", "IowKitCloseDevice", [](void*) { ++platine->schliessungen; });
        b.ruf<std::uint32_t()>("iowkit", "IowKitGetNumDevs", []() -> std::uint32_t { return platine->steckt; });
        b.ruf<void*(std::uint32_t)>("iowkit", "IowKitGetDeviceHandle", [](std::uint32_t) { return oeffnen(); });
        b.ruf<std::uint32_t(void*)>("iowkit", "IowKitGetProductId", [](void*) { return platine->produkt; });
        b.ruf<std::uint32_t(void*, void*)>("iowkit", "IowKitGetSerialNumber", [](void*, void*) { return 0U; });
        b.ruf("iowkit", "IowKitReadNonBlocking", lesen);
        b.ruf("iowkit", "IowKitWrite", schreiben);
        iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, iow_werkseinstellung());
        t.p.form1.wertmin.eingeben("1");
    }
    void iow_waehlen() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_iow = true;
        t.p.geraete.hardware_starten(false);
    }
    void lpt_waehlen() {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_lpt = true;
        for (const int i : {0, 1, 2}) {
            t.maschine.druckerport.register_werte[0x378 + i] = i == lpt::status ? lpt::in_ruhe : 0;
        }
        t.p.geraete.hardware_starten(false);
    }
    void kontakt(std::uint32_t bits, bool zu, zeit_ms dauer = 5) {
        brett.kontakte = zu ? brett.kontakte | bits : brett.kontakte & ~bits;
        t.maschine.laufen(dauer);
    }
    void puls(ereignis_art nummer, zeit_ms nach) {
        t.maschine.laufen(nach - 5);
        kontakt(bit(nummer), true);
        kontakt(bit(nummer), false, 0);
    }
    zeit_ms rundenzeit(int spur, int runde) const { return t.p.rennen.zustand.konto.rundenzeit(spur, runde); }
    bool pause() const { return t.p.rennen.zustand.chaos_aktiv; }
    bool lpt_pin(int stecker) const {
        return (t.maschine.druckerport.register_werte.at(0x378) >> (stecker - 2) & 1) != 0;
    }

    scheinplatine brett;
    testprogramm t;
};

TEST_F(Kontaktgeraet, EinKontaktZaehltEinmalJeVerlassenDerRuhe) {
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
TEST_F(Kontaktgeraet, EineSchleifeDieStehtKostetKeineRundeUndKeineZeit) {
    iow_waehlen();
    t.starten("Runden", "50", {1, 2, 3, 4});
    t.maschine.laufen(1000);
    kontaktleser leser({t.p.einst, t.p.ereignisse, t.p.geraete.rennverbindung()}, {});
    leser.zuordnen(linien_von(iow_werkseinstellung()));
    leser.ruhe_merken();
    const zeit_ms null = t.maschine.jetzt();
    const auto von_bis = [&](ereignis_art nummer, zeit_ms bei) {
        leser.gesehen(null + bei, bit(nummer));
        leser.gesehen(null + bei + 2, 0);
        leser.gesehen(null + bei + 4, bit(nummer));  // it bounces
        leser.gesehen(null + bei + 6, 0);
    };
    von_bis(16, 100);
    von_bis(15, 101);
    von_bis(16, 3100);
    von_bis(15, 3333);
    von_bis(16, 6201);
    t.maschine.uhr_stellen(6300);
    for (int takt = 0; takt < 20; ++takt) {
        leser.auswerten();
        t.maschine.laufen(1);
    }
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_EQ(rundenzeit(1, 1), 3000);
    EXPECT_EQ(rundenzeit(1, 2), 3101);
    EXPECT_EQ(rundenzeit(2, 1), 3232);
}

TEST_F(Kontaktgeraet, ChaosTasterUndSchalter) {
    iow_profil profil = iow_werkseinstellung();
    profil[8] = 55;
    iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, profil);
    iow_waehlen();
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

TEST_F(Kontaktgeraet, TankenEndetMitDemKontaktOderMitSeinemZweiten) {
    iow_profil profil = iow_werkseinstellung();
    profil[30] = 0;  // lane 1 has no contact for the end
    iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, profil);
    iow_waehlen();
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

TEST_F(Kontaktgeraet, AusgaengeHaltenKeinenEingangUndNurDieZugewiesenenSchalten) {
    iow_profil profil{};
    profil[0] = 24;
    profil[1] = 16;
    iow_profil_speichern(t.p.ablage, t.p.einst.iow.iow_datei, profil);
    brett.produkt = 5377;
    iow_waehlen();
    EXPECT_EQ(brett.laenge, 3U);
    EXPECT_EQ(brett.ausgang[1], 0xFE) << "the lane has power";
    t.starten("Runden", "5", {1});
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    EXPECT_EQ(brett.ausgang[1], 0xFF);
    t.p.programm_beenden();
    EXPECT_EQ(brett.schliessungen, 1);
}

TEST_F(Kontaktgeraet, EineAbgezogenePlatineWirdWiederGefunden) {
    iow_waehlen();
    t.starten("Runden", "50", {1});
    puls(16, 1000);
    t.maschine.laufen(3000);
    kontakt(bit(16), true, 3000);
    brett.steckt = false;
    t.maschine.laufen(1100);
    EXPECT_FALSE(t.p.geraete.verbunden());
    t.maschine.laufen(2000);
    brett.steckt = true;
    brett.ausgang = {};
    t.maschine.laufen(3000);
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_EQ(brett.ausgang[3] & 0xF0, 0x00) << "its outputs are as they were";
    EXPECT_EQ(t.runden(1), 1) << "the car has stood there all the time";
    kontakt(bit(16), false, 4000);
    puls(16, 1000);
    EXPECT_EQ(t.runden(1), 2);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
}

TEST_F(Kontaktgeraet, OhnePlatineOderBibliothekBleibtDieTastatur) {
    const auto& text = t.p.txt.meldung;
    const auto gemeldet = [&] {
        std::string eine = t.maschine.meldungen_gezeigt.empty() ? "" : t.maschine.meldungen_gezeigt.back().text;
        t.maschine.meldungen_gezeigt.clear();
        return eine;
    };
    brett.steckt = false;
    iow_waehlen();
    EXPECT_EQ(gemeldet(), text[1]);
    EXPECT_TRUE(t.p.einst.hardware.hw_simulation);
    brett.steckt = true;
    brett.produkt = 4711;
    iow_waehlen();
    EXPECT_TRUE(t.p.einst.hardware.hw_iow) << "a board that nobody knows is as the first one";
    EXPECT_EQ(brett.laenge, 5U);
    t.p.ablage.loeschen(t.p.einst.iow.iow_datei);
    iow_waehlen();
    EXPECT_EQ(gemeldet(), text[11]);
    EXPECT_TRUE(t.p.einst.hardware.hw_iow);
    t.maschine.bibliotheken.da["iowkit"].erase("IowKitWrite");
    iow_waehlen();
    EXPECT_TRUE(t.p.einst.hardware.hw_iow) << "the library is still loaded";
    t.p.fenster.zeigen(fenstername::usbtest);
    EXPECT_NE(t.p.geraete.von<iow_verdrahtung>().usbtest.zustand.text().find("IowKitWrite"), std::string::npos);
}

TEST_F(Kontaktgeraet, WasDieBibliothekAuchSagtIstKeinAbsturz) {
    iow_waehlen();
    t.starten("Runden", "50", {1, 2, 3, 4});
    brett.gelesen = 4;
    puls(16, 1000);
    EXPECT_EQ(t.runden(1), -1) << "half a report is none";
    std::mt19937 zufall(7);
    for (int n = 0; n < 20000; ++n) {
        brett.kontakte = static_cast<std::uint32_t>(zufall());
        brett.gelesen = zufall() % 4 == 0 ? static_cast<std::uint32_t>(zufall()) : 5;
        t.maschine.laufen(1);
    }
}

TEST_F(Kontaktgeraet, ProfildateiMitFehlern) {
    const auto laden = [&](const std::string& inhalt) {
        t.maschine.datei_schreiben("x.iow", inhalt);
        return iow_profil_laden(t.p.ablage, "x.iow");
    };
    std::string bytes;
    for (const ereignis_art nummer : iow_werkseinstellung()) {
        bytes += std::to_string(nummer) + "\r\n";
    }
    EXPECT_EQ(laden(bytes), iow_werkseinstellung());
    for (std::size_t ende = 0; ende < bytes.size() - 3; ++ende) {
        laden(bytes.substr(0, ende));
    }
    EXPECT_FALSE(laden(bytes.substr(0, bytes.size() - 4)));
    const auto mit_kopf = laden("Wettkampfdatei: Abend\r\n" + bytes);
    ASSERT_TRUE(mit_kopf);
    EXPECT_EQ((*mit_kopf)[0], 0);
    EXPECT_EQ((*mit_kopf)[31], 31);
    const auto wild = laden("60\r\n-1\r\n99999999999999\r\n" + bytes);
    ASSERT_TRUE(wild);
    EXPECT_EQ(belegung_von(*wild)[1].iow_maske, 8);
    EXPECT_EQ(linien_von(*wild)[0], 0);
}

TEST_F(Kontaktgeraet, UsbtestPrueftSchaltetUndSpeichert) {
    iow_waehlen();
    usbtest& w = t.p.geraete.von<iow_verdrahtung>().usbtest;
    t.p.fenster.zeigen(fenstername::usbtest);
    kontakt(bit(16), true, 50);
    EXPECT_TRUE(w.lampe[15].gesetzt());
    EXPECT_NE(w.protokoll.zeilen().back().find("Rundenzählung 1"), std::string::npos);
    EXPECT_FALSE(w.c[15].sichtbar());
    w.c[7].umschalten();
    EXPECT_EQ(brett.ausgang[1], 0x7F);
    w.tp[0].eingeben("0");
    w.setzen.klicken();
    EXPECT_EQ(brett.ausgang[1], 0x01) << "the button on pin 0 is not held by an output";
    w.combo_c[8].waehlen(16);
    w.Command3.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Ein Ereignis wurde mehrfach einem Port zugewiesen.");
    w.Command4.klicken();
    EXPECT_FALSE(w.Frame[2].sichtbar());
    w.iow_profildatei.eingeben("klub");
    w.Command3.klicken();
    EXPECT_EQ(t.p.einst.iow.iow_datei, "klub.iow");
    EXPECT_EQ(iow_profil_laden(t.p.ablage, "klub.iow")->at(2), 32);
    brett.steckt = false;
    t.maschine.laufen(1100);
    EXPECT_NE(w.protokoll.zeilen().back().find("abgezogen"), std::string::npos);
    brett.steckt = true;
    t.maschine.laufen(1100);
    w.Command6.klicken();
    EXPECT_TRUE(t.p.geraete.verbunden());
    EXPECT_EQ(t.p.ausgaben.bericht.belegung[16].iow_maske, 1);
}

TEST_F(Kontaktgeraet, DruckeranschlussSchaltetSeineLinien) {
    t.p.einst.lpt.lpt_ausgang[7] = 32;
    t.p.einst.lpt.lpt_ausgang[8] = 24;
    lpt_waehlen();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(7)) << "green";
    EXPECT_TRUE(lpt_pin(8)) << "the tank's supply";
    EXPECT_FALSE(lpt_pin(9)) << "low while the lane has power";
    t.starten("Runden", "5", {1});
    t.maschine.laufen(3000);
    t.bahn().Command3.klicken();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9) && lpt_pin(2) && lpt_pin(6));
    EXPECT_FALSE(lpt_pin(7));
    t.maschine.druckerport.register_werte[0x378] = 0;  // somebody prints
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9));
    t.p.einst.bahnstrom_invers = true;
    lpt_waehlen();
    t.maschine.laufen(2);
    EXPECT_TRUE(lpt_pin(9)) << "with inverted wiring high is power";
    t.maschine.druckerport.register_werte.clear();
    t.maschine.laufen(2);
    EXPECT_FALSE(t.p.geraete.verbunden()) << "a machine without the port";
}

TEST_F(Kontaktgeraet, DruckerfensterPrueftAdresseUndListen) {
    t.p.einst.hardware.hw_lpt = true;
    lpt_waehlen();
    drucker_fenster& w = t.p.geraete.von<druckeranschluss_verdrahtung>().drucker_fenster;
    const auto gemeldet = [&] { return t.maschine.meldungen_gezeigt.back().text; };
    t.p.fenster.zeigen(fenstername::drucker_fenster);
    EXPECT_EQ(w.lpt_text.text(), "378");
    t.maschine.druckerport.register_werte[0x379] = 64;
    t.maschine.laufen(20);
    EXPECT_TRUE(w.eanzeiger[0].gesetzt() && w.eanzeiger[1].gesetzt()) << "pin 11 is active low";
    const int vorher = t.maschine.druckerport.register_werte[0x378];
    w.aanzeiger[2].umschalten();
    EXPECT_EQ(t.maschine.druckerport.register_werte[0x378], vorher ^ 4);
    w.ecomb[4].waehlen(16);
    w.Command3.klicken();
    EXPECT_EQ(gemeldet(), "Auswahlelemente -Eingang- doppelt. Einstellungen wurden nicht übernommen.");
    w.ecomb[4].waehlen(1);
    w.comb[7].waehlen(8);
    w.Command3.klicken();
    EXPECT_EQ(gemeldet(), "Auswahlelemente -Ausgang- doppelt. Einstellungen wurden nicht übernommen.");
    w.comb[7].waehlen(33);
    for (const char* falsch : {"", "xyz", "37G", "FFFF", "-3"}) {
        w.lpt_text.eingeben(falsch);
        w.Command3.klicken();
        EXPECT_NE(gemeldet().find("hexadezimal"), std::string::npos) << falsch;
    }
    w.lpt_text.eingeben("d010");
    w.Command3.klicken();
    EXPECT_EQ(t.p.einst.lpt.anschluss.lpt_adresse, 0xD010);
    EXPECT_EQ(t.p.einst.lpt.lpt_eingang[5], 1);
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::drucker_fenster));
}

/// Minutes of a race against cars on plain contacts, each device sampled once a millisecond.
struct Kontaktrennen : Kontaktgeraet {
    void fahren(simulator::kontaktbrett& autos, const std::function<void()>& uebertragen, zeit_ms minuten) {
        t.einrichten(t.p.txt.text_zeit, std::to_string(minuten), {1, 2, 3, 4});
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.p.einst.zielmodus_erster = true;
        t.p.einst.chaosampel_an = false;
        t.bahn().Command1.klicken();
        for (zeit_ms zeit = 0; zeit < (minuten + 3) * 60000 && !t.p.fenster.ist_offen(fenstername::auswertung);
             ++zeit) {
            autos.weiter(t.maschine.jetzt());
            uebertragen();
            t.maschine.laufen(1);
            pausen += pause() && !std::exchange(in_pause, pause()) ? 1 : 0;
            in_pause = pause();
        }
        ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
        int mit_pause = 0;
        for (const int spur : {1, 2, 3, 4}) {
            const std::vector<zeit_ms> wahr = autos.runden(spur);
            ASSERT_GT(t.runden(spur), 5 * minuten);
            ASSERT_LE(static_cast<std::size_t>(t.runden(spur)), wahr.size());
            for (int runde = 1; runde <= t.runden(spur); ++runde) {
                const zeit_ms zu_kurz = wahr[static_cast<std::size_t>(runde) - 1] - rundenzeit(spur, runde);
                const bool ohne_pause = std::abs(zu_kurz) <= 1;  // else it has stood still for that long
                EXPECT_TRUE(ohne_pause || (zu_kurz > 7000 && zu_kurz < 20000)) << spur << " " << runde;
                mit_pause += ohne_pause ? 0 : 1;
            }
        }
        EXPECT_LE(mit_pause, 4 * pausen);
    }
    int pausen = 0;
    bool in_pause = false;
};

simulator::rennen_einstellung vier_wagen() {
    simulator::rennen_einstellung rennen;
    rennen.wagen.resize(4);
    rennen.saat = 11;
    rennen.wagen[2].runden_je_stopp = 9;
    return rennen;
}

TEST_F(Kontaktrennen, Iow40MitPausen) {
    iow_waehlen();
    simulator::rennen_einstellung rennen = vier_wagen();
    for (simulator::wagen_einstellung& w : rennen.wagen) {
        w.chaos_promille = 4;
    }
    simulator::kontaktbrett autos(simulator::iow_werksverdrahtung(rennen));
    fahren(
        autos,
        [&] {
            brett.kontakte = autos.kontakte();
            const auto& a = brett.ausgang;
            autos.schalten(~(std::uint32_t{a[1]} | std::uint32_t{a[2]} << 8U | std::uint32_t{a[3]} << 16U |
                             std::uint32_t{a[4]} << 24U));
        },
        12);
    EXPECT_GT(pausen, 1);
}

TEST_F(Kontaktrennen, Druckeranschluss) {
    lpt_waehlen();
    simulator::kontaktbrett autos(simulator::lpt_verdrahtung(vier_wagen()));
    auto& port = t.maschine.druckerport.register_werte;
    fahren(
        autos,
        [&] {
            constexpr std::array<unsigned, 5> bits{64, 128, 32, 16, 8};
            unsigned wert = 128;
            for (std::size_t linie = 0; linie < bits.size(); ++linie) {
                wert ^= (autos.kontakte() >> linie & 1U) != 0 ? bits.at(linie) : 0U;
            }
            port[0x379] = static_cast<std::uint8_t>(wert);
            autos.schalten(port[0x378]);
        },
        12);
}

}  // namespace
}  // namespace tarvel::test
