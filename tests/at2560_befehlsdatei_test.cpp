#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hardware/at2560.h"
#include "tests/plattform/at2560_aufbau.h"

namespace tarvel {
namespace {

class At2560Befehlsdatei : public testing::Test {
protected:
    test::at2560_aufbau a;
};

TEST_F(At2560Befehlsdatei, AusgaengeSprechenDieWorteDerBefehlsdatei) {
    at_profil p;
    p.at_startzeichen = "<";
    p.at_endzeichen = ">";
    p.at_bahnstrom.at(13) = "Öl";
    a.oeffnen(p);
    tarvel::ausgaben& aus = a.t.p.ausgaben;
    struct fall {
        std::function<void()> tat;
        std::string erwartet;
    };
    for (const fall& f : std::vector<fall>{{[&] { aus.ampelnRon(1); }, "<A11>\r"},
                                           {[&] { aus.ampelnRoff(5); }, "<A50>\r"},
                                           {[&] { aus.ampelnRon(0); }, "<A01>\r"},
                                           {[&] { aus.ampelnRoff(0); }, "<A00>\r"},
                                           {[&] { aus.ampelnGRon(); }, "<A61>\r"},
                                           {[&] { aus.ampelnGRoff(); }, "<A60>\r"},
                                           {[&] { aus.relais_off(6); }, "<P61>\r"},
                                           {[&] { aus.relais_on(1); }, "<P10>\r"},
                                           {[&] { aus.relais_on(0); }, "<P00>\r"},
                                           {[&] { aus.relais_off(0); }, "<\xD6l>\r"},
                                           {[&] { aus.chaos_an(); }, "<P00>\r<A01>\r<A60>\r<C1>\r"},
                                           {[&] { aus.chaos_aus(); }, "<C0>\r<A61>\r<A00>\r"},
                                           {[&] { aus.rennende_signal(true); }, "<E1>\r"},
                                           {[&] { aus.rennende_signal(false); }, "<E0>\r"}}) {
        f.tat();
        EXPECT_EQ(a.gesendet(), f.erwartet);
    }
    a.geraet.schliessen();
    aus.ampelnRon(1);
    EXPECT_EQ(a.gesendet(), "");
}

TEST_F(At2560Befehlsdatei, OeffnenWartetDreiSekundenUndSchicktDannDieSensorliste) {
    a.t.p.einst.uart.uart_stopbits = "1,5";
    EXPECT_TRUE(a.geraet.oeffnen());
    EXPECT_EQ(a.t.maschine.anschluesse.werte[3], "57600,N,8,1.5");
    EXPECT_TRUE(a.t.maschine.datei_da("tvk_at2560.uart"));
    a.t.maschine.laufen(2999);
    EXPECT_EQ(a.gesendet(), "");
    EXPECT_EQ(a.gesagt.hinweise, std::vector<bool>{true});
    a.t.maschine.laufen(10000);
    EXPECT_EQ(a.gesendet(), ":IS,13.11.9.7;\r:P01;\r:A00;\r:A61;\r") << "and the outputs at rest";
    EXPECT_EQ(a.gesagt.hinweise, (std::vector<bool>{true, false}));

    a.geraet.oeffnen();
    a.geraet.schliessen();  // while the unit boots: nobody may stay locked out
    EXPECT_EQ(a.gesagt.hinweise, (std::vector<bool>{true, false, true, false}));
    a.t.p.einst.uart.uart_port = 9;
    EXPECT_FALSE(a.geraet.oeffnen());
    EXPECT_EQ(a.gesagt.zu_geblieben, 1);
    ASSERT_EQ(a.t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(a.t.maschine.meldungen_gezeigt[0].text, a.t.p.txt.meldung[27]);
    EXPECT_TRUE(a.t.p.einst.hardware.hw_simulation);
}

TEST_F(At2560Befehlsdatei, UnlesbareBefehlsdateiMeldetSich) {
    a.t.p.einst.uart.uart_datei = "andere.uart";
    a.oeffnen();
    ASSERT_EQ(a.t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(a.t.maschine.meldungen_gezeigt.front().text,
              "Fehler beim Lesen/Schreiben der AT-2560 Befehlsdatei. Zeitmessung ggf. nicht einsatzbereit!");
    EXPECT_FALSE(a.t.maschine.datei_da("andere.uart"));
    EXPECT_TRUE(a.geraet.offen()) << "the words of the factory do";
}

TEST_F(At2560Befehlsdatei, VerlustImRennenStoertDieTastaturNicht) {
    a.oeffnen();
    a.t.starten("Runden", "20", {1});
    EXPECT_TRUE(a.t.maschine.meldungen_gezeigt.empty());
    a.t.runde_nach(3000, "1");
    a.t.maschine.anschluesse.abziehen(3);
    a.t.runde_nach(7000, "1");
    EXPECT_EQ(a.t.p.rennen.zustand.konto.rundenzeit(1, 1), 7000);
    EXPECT_EQ(a.gesagt.abgezogen, 1);
    EXPECT_TRUE(a.t.maschine.meldungen_gezeigt.empty());
    a.t.p.fenster.entladen(fenstername::bahn1);
    a.t.einrichten("Runden", "20", {1});
    ASSERT_EQ(a.t.maschine.meldungen_gezeigt.size(), 1U);
    EXPECT_EQ(a.t.maschine.meldungen_gezeigt.front().text,
              "AT-2560 Zeitmessung kann nicht geöffnet werden - bitte Hardwareeinstellungen und COM-Port "
              "prüfen/einstellen.");
}

TEST_F(At2560Befehlsdatei, ProfilGehtDurchSeineDatei) {
    at_profil p = test::alles_belegt();
    p.at_startzeichen = "§";
    p.at_is_befehl = "";
    p.at_chaos.at(2) = "ß 1";
    p.at_ampel.at(7) = "#Rennstart";  // a value, although it reads like a key
    ASSERT_TRUE(at_profil_speichern(a.t.p.ablage, "klub.uart", p));
    at_profil q;
    ASSERT_TRUE(at_profil_laden(a.t.p.ablage, "klub.uart", q));
    EXPECT_EQ(q, p);

    a.t.maschine.datei_schreiben("fremd.uart",
                                 "#Soundsensor 8\r\nZ\r\nwas ist das\r\n\r\n##Ausgabe bei Chaos\r\nan\r\naus\r\n"
                                 "#Zeichen zum Beenden einer Befehlssequenz\r\n\r\n"
                                 "#Zeichen zum Starten einer Befehlssequenz\r\n>>\r\n#Ampel gruen\r\nnur einer");
    at_profil erwartet;
    erwartet.at_ereignis.at(45) = "Z";
    erwartet.at_chaos = {"", "an", "aus"};
    erwartet.at_startzeichen = ">";
    erwartet.at_ampel.at(6) = "nur einer";
    ASSERT_TRUE(at_profil_laden(a.t.p.ablage, "fremd.uart", q));
    EXPECT_EQ(q, erwartet);
    EXPECT_FALSE(at_profil_laden(a.t.p.ablage, "fehlt.uart", q));
    EXPECT_EQ(q, erwartet);
}

TEST_F(At2560Befehlsdatei, WerksdateiHatIhreZeilenAnIhremPlatz) {
    ASSERT_TRUE(at_profil_speichern(a.t.p.ablage, at_standarddatei, {}));
    const auto zeilen = a.t.p.ablage.zeilen_lesen(at_standarddatei, 1000);
    ASSERT_EQ(zeilen->size(), 161U);
    EXPECT_EQ(std::vector<std::string>(zeilen->begin(), zeilen->begin() + 5),
              (std::vector<std::string>{"Tarvel UART Einstellungsdatei", "", "##Befehlszeichen",
                                        "#Zeichen zum Starten einer Befehlssequenz", ":"}));
    EXPECT_EQ(zeilen->back(), "Snv");
    EXPECT_EQ(zeilen->at(159), "#Soundsensor 8");
}

TEST(AtEmpfang, PufferBehaeltDasNeueste) {
    const at_profil profil;
    at_empfang empfang;
    EXPECT_TRUE(empfang.anhaengen(":S13,1;"));
    EXPECT_FALSE(empfang.anhaengen(std::string(at_empfang::bytes_max - 8, ' ') + ":S11,2;"));
    ASSERT_TRUE(empfang.µC_neuer_befehl(profil));
    EXPECT_EQ(empfang.at_befehl(), ":S11,2;");
    EXPECT_FALSE(empfang.anhaengen(std::string(3 * at_empfang::bytes_max, 'x') + ":S7,3;"));
    ASSERT_TRUE(empfang.µC_neuer_befehl(profil));
    EXPECT_EQ(empfang.meldung(profil)->ereignis, "S7");
    EXPECT_FALSE(empfang.µC_neuer_befehl(profil));
}

}  // namespace
}  // namespace tarvel
