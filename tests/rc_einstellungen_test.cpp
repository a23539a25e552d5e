#include "hardware/rc_einstellungen.h"

#include "tests/race_control_probe.h"

namespace tarvel::test {
namespace {

TEST_F(RaceControl, WasFehltEndetInSeinerMeldung) {
    const auto gemeldet = [this] { return t.maschine.meldungen_gezeigt.back().text; };
    auto& fenster = t.p.geraete.von<race_control_verdrahtung>().rc_einstellungen;
    const auto starten = [&] {
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_race_control = true;
        t.p.geraete.hardware_starten(false);
    };
    const auto letzter_schritt = [&] {
        fenster.oeffnen("COM7");
        fenster.doInit.klicken();
        std::string text = fenster.status.text();
        t.p.fenster.entladen(fenstername::rc_einstellungen);
        return text;
    };
    t.maschine.bibliotheken.da["RaceControl"].erase("Get_TXDat");
    starten();
    EXPECT_EQ(gemeldet(), "RaceControl kann nicht aktiviert werden.");
    EXPECT_TRUE(t.p.einst.hardware.hw_simulation && !t.p.einst.hardware.hw_race_control);
    EXPECT_EQ(letzter_schritt(), "Fehler: In der Bibliothek des Herstellers fehlt der Aufruf Get_TXDat");
    t.maschine.bibliotheken.da.clear();
    starten();
    EXPECT_EQ(letzter_schritt(), "Fehler: Bibliothek des Herstellers nicht gefunden: RaceControl");
    rc_bibliothek_hinlegen(t.maschine.bibliotheken);
    t.maschine.anschluesse.da.clear();
    starten();
    EXPECT_EQ(gemeldet(), "COM-Port kann nicht geöffnet werden.");
    EXPECT_EQ(letzter_schritt(), "Fehler: COM-Port kann nicht geöffnet werden");
    t.maschine.anschluesse.da = {com};
    t.maschine.meldungen_gezeigt.clear();
    starten();  // a port without a box behind it
    EXPECT_FALSE(t.p.form1.inhalt.sichtbar());
    t.maschine.laufen(rc_antwortzeit.count() - 1);
    EXPECT_TRUE(t.maschine.meldungen_gezeigt.empty());
    t.maschine.laufen(1);
    EXPECT_EQ(gemeldet(), "RaceControl kann nicht aktiviert werden.");
    EXPECT_TRUE(t.p.form1.inhalt.sichtbar() && t.p.einst.hardware.hw_race_control);
    t.maschine.laufen(60000);
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U) << "what is looked for silently is not told again";
    laufen(5000);
    EXPECT_TRUE(t.p.geraete.verbunden()) << "switched on meanwhile";
    t.maschine.anschluesse.abziehen(com);
    t.maschine.anschluesse.da.clear();
    t.einrichten(t.p.txt.text_zeit, "5", {1});
    EXPECT_EQ(gemeldet(), "COM-Port kann nicht geöffnet werden.") << "as its race window opens";
}

TEST_F(RaceControl, DasFensterZeigtSchritteUndSensorenUndBehaeltDieSpuren) {
    box_hinstellen(vier_wagen());
    t.p.einst.hardware = {};
    t.p.einst.rc.anschluss.rc_com_port = "COM1";
    auto& fenster = t.p.geraete.von<race_control_verdrahtung>().rc_einstellungen;
    auto& optionen = t.p.einstellungsfenster;
    optionen.oeffnen(einstellungsfenster::seite_hardware);
    std::get<auswahl>(optionen.zeile("selComPort").element).eingeben("COM7");
    std::get<befehl>(optionen.zeile("rc_einrichten").element).klicken();
    fenster.doInit.klicken();
    laufen(1000);
    EXPECT_EQ(fenster.List1.zeilen(),
              (std::vector<std::string>{"Port wird geöffnet", "RaceControl aktiviert", "TX Datenabfrage",
                                        "Box Konfiguration übertragen", "TX Datenabfrage",
                                        "Box Konfiguration übertragen", "Box aktiviert"}));
    kontakt(2, 3723004);
    EXPECT_EQ(fenster.sensoren[2].SensorTime.text(), "01:02:03.004");
    EXPECT_EQ(fenster.sensoren[2].SensorTimeStamp.text(), "17870420");
    const auto belegt = fenster.sensoren[2].SensorLED.hintergrund();
    satz({simulator::rc_draht::art::verlassen, 2, ticks(3723044)});
    leitung.clear();
    t.maschine.laufen(500);
    EXPECT_NE(fenster.sensoren[2].SensorLED.hintergrund(), belegt);
    leitung.clear();
    t.maschine.laufen(2100);
    EXPECT_EQ(fenster.status.text(), "Sensoren offline");
    t.maschine.anschluesse.abziehen(com);
    EXPECT_EQ(fenster.status.text(), "Fehler: Verbindung unterbrochen");
    fenster.sensoren[0].selSpur.waehlen(3);
    fenster.selComPort.text("COM25");  // as a file may have it
    fenster.Command1.klicken();
    EXPECT_EQ(t.maschine.meldungen_gezeigt.back().text, "Werte außerhalb des zulässigen Bereichs");
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::rc_einstellungen));
    fenster.selComPort.eingeben("COM7");
    fenster.Command1.klicken();
    EXPECT_EQ(t.p.einst.rc.rc_sensor, (std::array<int, 4>{13, 15, 14, 13}));
    EXPECT_EQ(t.p.einst.rc.anschluss.rc_com_port, "COM7");
    EXPECT_FALSE(t.maschine.anschluesse.offen(com));
}

/// No call carries them to the box.
TEST_F(RaceControl, WasDieBoxNichtErreichtBleibtGrauUndGespeichert) {
    race_control_einstellungen& rc = t.p.einst.rc;
    rc.rc_level = 77;
    rc.rc_delay_ms = dauer_ms(33);
    rc.rc_post_ms = dauer_ms(5);
    rc.rc_rev_zz = true;
    auto& optionen = t.p.einstellungsfenster;
    optionen.oeffnen(einstellungsfenster::seite_hardware);
    for (const char* name : {"selLevel", "selDelayMS", "selPostMS", "rc_wert"}) {
        EXPECT_FALSE(std::get<feld>(optionen.zeile(name).element).aktiviert()) << name;
    }
    for (const char* name : {"cbxRevZZ", "cbxRevSZ", "rc_schalter"}) {
        EXPECT_FALSE(std::get<haken>(optionen.zeile(name).element).aktiviert()) << name;
    }
    EXPECT_FALSE(std::get<auswahl>(optionen.zeile("rc_mod1").element).aktiviert());
    optionen.Command1.klicken();
    EXPECT_TRUE(rc.rc_level == 77 && rc.rc_delay_ms == dauer_ms(33) && rc.rc_post_ms == dauer_ms(5) && rc.rc_rev_zz);
}

}  // namespace
}  // namespace tarvel::test
