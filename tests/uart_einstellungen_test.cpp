#include "hardware/uart_einstellungen.h"

#include "programm/at2560_verdrahtung.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

using u = uart_einstellungen;

class UartEinstellungen : public test::ProgrammProbe, private geraetezugang {
protected:
    UartEinstellungen() : merken_(*w.zugang) {
        w.zugang = this;
        t.maschine.anschluesse.da = {1, 3};
    }
    void oeffnen() {
        std::get<befehl>(t.p.einstellungsfenster.zeile("uart_einrichten").element).klicken();
        t.maschine.meldungen_gezeigt.clear();
    }
    bool offen() { return t.p.fenster.ist_offen(fenstername::UART_einstellungen); }
    int seite() const {
        const auto* sichtbar = std::find_if(w.seiten.begin(), w.seiten.end(), [](auto& s) { return s.sichtbar(); });
        return static_cast<int>(sichtbar - w.seiten.begin());
    }
    void sagt(std::string_view bytes) { t.maschine.anschluesse.senden(3, bytes); }
    bool im_protokoll(const std::string& text) const {
        const auto& zeilen = w.protokoll.zeilen();
        return std::any_of(zeilen.begin(), zeilen.end(), [&](auto& z) { return z.find(text) != std::string::npos; });
    }
    /// Up to the page of the sensors, with the unit at COM3.
    void bis_zu_den_sensoren(const char* anzahl) {
        oeffnen();
        w.port.waehlen(2);
        w.weiter.klicken();
        t.maschine.laufen(at_bootzeit);
        w.sensoranzahl.eingeben(anzahl);
        w.weiter.klicken();
    }

    static constexpr zeit_ms at_bootzeit = 3000;
    u& w = t.p.geraete.von<at2560_verdrahtung>().uart_einstellungen;
    std::string journal;

private:
    void geraet_trennen() override { journal += "getrennt "; }
    void geraet_verbinden() override { journal += "verbunden "; }
    bool einstellungen_speichern() override { return merken_.einstellungen_speichern(); }

    geraetezugang& merken_;  ///< of the device that the window has in the program
};

TEST_F(UartEinstellungen, NeuerPortIstDerDesGeraets) {
    oeffnen();
    EXPECT_EQ(journal, "getrennt ");
    t.maschine.waehrend_meldung = [this, nummer = 0]() mutable {
        t.maschine.anschluesse.da = nummer++ == 0 ? std::set<int>{1} : std::set<int>{1, 7, 20};
    };
    w.port_ermitteln.klicken();
    ASSERT_EQ(t.maschine.meldungen_gezeigt.size(), 2U);
    EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, "Bitte USB-Gerät abziehen, ANSCHLIESSEND mit OK bestätigen");
    EXPECT_EQ(t.maschine.meldungen_gezeigt[1].text,
              "JETZT das USB-Gerät einstecken, und warten bis dieses von Windows erkannt wurde, dann mit OK "
              "bestätigen");
    EXPECT_EQ(w.ergebnis.text(), "COM-PORT 7 gefunden.");
    EXPECT_EQ(w.port.text(), "COM7");
    EXPECT_TRUE(im_protokoll(" +++ Vorhandene COM-Ports abfragen"));
    EXPECT_TRUE(im_protokoll("Ports wurden gescannt - 2"));

    t.maschine.waehrend_meldung = [this] { t.maschine.anschluesse.da = {1, 17}; };
    w.port_ermitteln.klicken();
    EXPECT_EQ(letzte_meldung(), "Es konnte kein Port ermittelt werden.");
    EXPECT_EQ(w.ergebnis.text(), "kein COM-Port gefunden");
}

TEST_F(UartEinstellungen, OeffnenBrauchtSeineZeitUndEinZweiterPortGehtNicht) {
    oeffnen();
    w.port.waehlen(8);
    w.weiter.klicken();
    EXPECT_EQ(letzte_meldung(), "COM-Port kann nicht geöffnet werden.");
    EXPECT_EQ(seite(), u::seite_port);
    w.port.waehlen(2);
    w.weiter.klicken();
    w.weiter.klicken();  // nothing happens while the unit boots
    EXPECT_EQ(seite(), u::seite_port);
    t.maschine.laufen(at_bootzeit);
    EXPECT_EQ(seite(), u::seite_anzahl);
    EXPECT_EQ(w.ergebnis.text(), "Port geöffnet, Gerät ansprechbar!");
    EXPECT_TRUE(im_protokoll(" +++ COM-Port wurde geöffnet"));
    w.zurueck.klicken();
    for (befehl* knopf : {&w.port_ermitteln, &w.weiter}) {
        t.maschine.meldungen_gezeigt.clear();
        w.port.waehlen(0);
        knopf->klicken();
        EXPECT_EQ(letzte_meldung(), "Es ist bereits ein Port geöffnet. Bitte vorher schließen!");
    }
    w.port_schliessen.klicken();
    EXPECT_FALSE(t.maschine.anschluesse.offen(3));
    w.weiter.klicken();
    EXPECT_TRUE(t.maschine.anschluesse.offen(1));
    t.maschine.anschluesse.abziehen(1);
    EXPECT_TRUE(w.weiter.bedienbar());
    w.abbrechen.klicken();
    EXPECT_EQ(journal, "getrennt verbunden ");
    EXPECT_FALSE(t.maschine.datei_da("tvk_at2560.uart"));
}

TEST_F(UartEinstellungen, VonDenSensorenBisZurBefehlsdatei) {
    at_profil von_hand;
    von_hand.at_ereignis.at(45) = "S40";  // a sound sensor that no wizard asks for
    at_profil_speichern(t.p.ablage, "tvk_at2560.uart", von_hand);
    bis_zu_den_sensoren("3");
    EXPECT_EQ(t.maschine.anschluesse.geschrieben[3], ":IS,2.3.10.13;\r");
    ASSERT_EQ(seite(), u::seite_sensoren);
    EXPECT_TRUE(w.sensoren[2].zeile.sichtbar());
    EXPECT_FALSE(w.sensoren[3].zeile.sichtbar());
    sagt(":S13,1;:T,5;:S2,");
    sagt("2;:S13,3;:S10,4;:S99,5;:\x01,6;");
    EXPECT_EQ(w.sensoren[0].ereignis.text(), "S13");
    EXPECT_EQ(w.sensoren[1].ereignis.text(), "S2");
    EXPECT_EQ(w.sensoren[2].ereignis.text(), "S10");
    EXPECT_TRUE(w.sensoren[2].ereignis.hintergrund().has_value());
    EXPECT_FALSE(w.sensoren[0].ereignis.hintergrund().has_value());
    w.sensoren[0].funktion.waehlen(1);  // laps of lane 1, and its tank sensor
    w.sensoren[0].tanken.waehlen(1);
    w.sensoren[1].spur.waehlen(0);
    w.sensoren[1].funktion.waehlen(1);
    w.weiter.klicken();
    w.chaos_anzahl.waehlen(2);
    w.stecker.waehlen(1);
    sagt(":S10,1;:S3,2;:S5,3;");
    w.taster[0].cbo_chaos.waehlen(4);
    w.weiter.klicken();
    EXPECT_EQ(letzte_meldung(), "Zwei Sensoren oder Taster haben dieselbe Funktion. Bitte die Auswahl ändern.");
    w.zurueck.klicken();
    w.sensoren[1].spur.waehlen(1);
    w.weiter.klicken();
    w.weiter.klicken();
    ASSERT_EQ(t.maschine.fragen_gestellt.size(), 1U);
    EXPECT_EQ(t.maschine.fragen_gestellt[0].text,
              "Es wurde nicht zu jedem Sensor eine Funktion zugewiesen. Trotzdem fortfahren?");
    EXPECT_EQ(seite(), u::seite_chaos);
    t.maschine.antwort = true;
    w.weiter.klicken();
    ASSERT_EQ(seite(), u::seite_fertig);
    t.p.einst.uart.uart_port = 9;
    w.weiter.klicken();
    EXPECT_FALSE(offen());
    EXPECT_FALSE(t.maschine.anschluesse.offen(3));
    EXPECT_EQ(journal, "getrennt verbunden ");
    EXPECT_EQ(t.p.einst.uart.uart_port, 3);

    at_profil erwartet = von_hand;
    std::fill_n(erwartet.at_ereignis.begin() + 1, 35, at_nicht_belegt);
    erwartet.at_ereignis.at(1) = "S13";
    erwartet.at_ereignis.at(2) = "S2";
    erwartet.at_ereignis.at(7) = "S13";
    erwartet.at_ereignis.at(35) = "S3";
    erwartet.at_is_befehl = "IS,13.2.10.3.5.40";
    at_profil gelesen;
    ASSERT_TRUE(at_profil_laden(t.p.ablage, "tvk_at2560.uart", gelesen));
    EXPECT_EQ(gelesen, erwartet);
}

TEST_F(UartEinstellungen, EinSteckerIstEinTasterFuerAlle) {
    bis_zu_den_sensoren("1");
    sagt(":S7,1;");
    w.sensoren[0].funktion.waehlen(3);
    w.weiter.klicken();
    w.chaos_anzahl.waehlen(4);
    EXPECT_TRUE(w.taster[0].zeile.sichtbar());
    EXPECT_FALSE(w.taster[1].zeile.sichtbar());
    sagt(":C,1;");
    w.weiter.klicken();
    w.weiter.klicken();
    at_profil gelesen;
    at_profil_laden(t.p.ablage, "tvk_at2560.uart", gelesen);
    EXPECT_EQ(gelesen.at_ereignis.at(31), "C");
    EXPECT_EQ(gelesen.at_ereignis.at(20), "S7");
    EXPECT_EQ(gelesen.at_is_befehl, "IS,7");
}

TEST_F(UartEinstellungen, AnzahlUndPinsWerdenGeprueft) {
    bis_zu_den_sensoren("9");
    EXPECT_EQ(letzte_meldung(),
              "Ungültige Sensoranzahl, bitte Angaben wiederholen, mindestens 1, maximal 8 Sensoren auswählen. Ab "
              "Sensor 9 müssen diese von Hand eingestellt werden.");
    for (const char* anzahl : {"0", "-1", "", "x"}) {
        w.sensoranzahl.eingeben(anzahl);
        w.weiter.klicken();
        EXPECT_EQ(seite(), u::seite_anzahl) << anzahl;
    }
    w.sensoranzahl.eingeben("8");
    w.is_liste.eingeben(".14, 15;;16.");
    w.weiter.klicken();
    EXPECT_EQ(t.maschine.anschluesse.geschrieben[3], ":IS,14.15.16;\r");
}

TEST_F(UartEinstellungen, DatenverlustUndAbziehenStehenImProtokoll) {
    bis_zu_den_sensoren("4");
    for (int i = 0; i < 70; ++i) {
        sagt(":" + std::string(1000, 'x'));
    }
    EXPECT_TRUE(im_protokoll("Datenverlust!"));
    for (int i = 0; i < 2000; ++i) {
        sagt(":S1,1;");
    }
    EXPECT_LE(w.protokoll.zeilen().size(), 400U);
    t.maschine.anschluesse.abziehen(3);
    EXPECT_EQ(seite(), u::seite_port);
    w.port.waehlen(0);
    w.weiter.klicken();
    EXPECT_TRUE(t.maschine.anschluesse.offen(1));
}

TEST_F(UartEinstellungen, BefehlsdateiWirdGewaehltOderNeuAngelegt) {
    uart_profildatei& f = t.p.geraete.von<at2560_verdrahtung>().uart_profildatei;
    at_profil profil;
    profil.at_rennstart = "GO";
    at_profil_speichern(t.p.ablage, "tvk_at2560.uart", profil);
    t.p.form1.taste_F1();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::UART_Profildatei)) << "another timing hardware is in force";
    t.p.einst.hardware.hw_uart = true;
    t.p.form1.taste_F1();
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::UART_Profildatei));
    EXPECT_EQ(f.dateiliste.zeilen(), std::vector<std::string>{"tvk_at2560.uart"});
    for (const char* name : {"", "../klub", "a:b"}) {
        f.name.eingeben(name);
        f.Command1.klicken();
        EXPECT_EQ(letzte_meldung(), "Dieser Dateiname ist nicht zulässig.");
    }
    f.name.eingeben("klub");
    f.Command1.klicken();
    EXPECT_EQ(t.p.einst.uart.uart_datei, "klub.uart");
    at_profil gelesen;
    ASSERT_TRUE(at_profil_laden(t.p.ablage, "klub.uart", gelesen));
    EXPECT_EQ(gelesen, profil);
    EXPECT_NE(t.maschine.datei_lesen("Einstellungen/einstellungen.ini").find("klub.uart"), std::string::npos);
}

}  // namespace
}  // namespace tarvel
