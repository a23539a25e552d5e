#include "programm/control_unit_verdrahtung.h"
#include "tests/programm_probe.h"
#include "tools/simulator/control_unit.h"

namespace tarvel::test {
namespace {

constexpr int com = 7;

/// The unit's window, with a simulated unit at COM7 and something silent at COM3.
struct CuEigenschaften : testing::Test {
    CuEigenschaften() {
        simulator::control_unit_einstellung einst;
        einst.rennen.wagen.resize(2);
        einst.rennen.sofort = true;
        geraet = std::make_unique<simulator::control_unit>(einst);
        geraet->senden = [this](std::string_view bytes) { t.maschine.anschluesse.senden(com, bytes); };
        t.maschine.anschluesse.da = {3, com};
        t.maschine.anschluesse.geraet = [this](int nummer, std::string_view bytes) {
            if (nummer == com) {
                geraet->empfangen(bytes);
            }
        };
        t.p.einst.hardware = {};
        t.p.einst.hardware.hw_cu = true;
        t.p.einst.cu.anschluss.cu_modus = 0;
        t.p.geraete.hardware_starten(false);
        t.p.form1.command_cu.klicken();
    }
    void laufen(zeit_ms dauer) {
        for (; dauer > 0; --dauer) {
            geraet->weiter(t.maschine.jetzt());
            t.maschine.laufen(1);
        }
    }
    void verbinden() {
        fenster.cbo_cu_comport.waehlen(com);
        fenster.Command2.klicken();
    }
    bool gelistet(const std::string& zeile) const {
        const auto& zeilen = fenster.List1.zeilen();
        return std::find(zeilen.begin(), zeilen.end(), zeile) != zeilen.end();
    }

    testprogramm t;
    std::unique_ptr<simulator::control_unit> geraet;
    cu_eigenschaften& fenster = t.p.geraete.von<control_unit_verdrahtung>().cu_eigenschaften;
};

TEST_F(CuEigenschaften, OhnePortSagtJederBefehlWasFehlt) {
    for (befehl* knopf : {&fenster.Command2, &fenster.Command3, &fenster.Command6, &fenster.Command7,
                          &fenster.Command10, &fenster.Command14}) {
        t.maschine.meldungen_gezeigt.clear();
        knopf->klicken();
        ASSERT_FALSE(t.maschine.meldungen_gezeigt.empty());
        EXPECT_EQ(t.maschine.meldungen_gezeigt[0].text, "Bitte vorher einen Port öffnen.");
    }
}

TEST_F(CuEigenschaften, DieSucheFindetDasGeraetUndSeinPortWirdBehalten) {
    fenster.Command8.klicken();
    EXPECT_FALSE(fenster.Command8.bedienbar());
    laufen(2100);
    EXPECT_TRUE(gelistet(" +++ COM3 wird geprüft"));
    EXPECT_EQ(fenster.cbo_cu_comport.text(), "COM7");
    fenster.opt_cu_prgstart.umschalten();
    fenster.cbo_cu_tankgroesse[2].waehlen(4);
    const bool vorher = t.p.einst.cu.cu_sondermodus;
    fenster.Command4.klicken();
    EXPECT_NE(t.p.einst.cu.cu_sondermodus, vorher);
    EXPECT_EQ(t.p.einst.cu.cu_reglerbefehl[2], "J220410$");
    EXPECT_NE(t.maschine.datei_lesen("Einstellungen/einstellungen.ini").find("\r\n 4 \r\n"), std::string::npos);
    laufen(700);
    EXPECT_TRUE(t.p.geraete.verbunden()) << "the race has the port again";
}

TEST_F(CuEigenschaften, VonDenEinstellungenAusNimmtEsWasDortSteht) {
    fenster.schliessen();
    t.p.form1.Command4.klicken();
    auto& port = std::get<auswahl>(t.p.einstellungsfenster.zeile("cu_comport").element);
    port.waehlen(com);
    auto& tank = std::get<haken>(t.p.einstellungsfenster.zeile("opt_cu_tankautomatik").element);
    auto& groesse = std::get<feld>(t.p.einstellungsfenster.zeile("cu_spur_wert_2").element);
    tank.umschalten();
    groesse.eingeben("9");
    const bool tankt = tank.gesetzt();
    std::get<befehl>(t.p.einstellungsfenster.zeile("cu_einrichten").element).klicken();
    EXPECT_TRUE(gelistet(" +++ COM7 geöffnet"));
    fenster.cbo_cu_comport.waehlen(3);
    fenster.Command4.klicken();
    EXPECT_EQ(port.platz(), 3) << "the page knows what was saved";
    EXPECT_EQ(tank.gesetzt(), tankt) << "what had only been ticked so far is saved with it";
    EXPECT_EQ(groesse.text(), "9");
    t.p.fenster.zeigen(fenstername::cu_eigenschaften);
    EXPECT_EQ(fenster.cbo_cu_comport.platz(), 3);
}

TEST_F(CuEigenschaften, ZeigtWasDasGeraetSagtUndSendetWasManTippt) {
    verbinden();
    laufen(18000);
    EXPECT_EQ(fenster.rundenanzeige[1].text(), "2");
    EXPECT_NE(fenster.zeitanzeige[2].text(), "00:00:000");
    EXPECT_EQ(fenster.tank[1].text(), std::to_string(geraet->tank(1)));
    EXPECT_LT(fenster.List1.zeilen().size(), 40U) << "a status that is repeated is listed once";
    fenster.Command14.klicken();
    EXPECT_EQ(geraet->anzeigewert(), 2);
    const auto lampe = [&](int wagen) { return fenster.lampe_wagen[wagen].hintergrund(); };
    bool gesehen = false;
    for (int n = 0; n < 9000 && !gesehen; ++n) {
        laufen(1);
        gesehen = lampe(1) != lampe(6);
    }
    EXPECT_TRUE(gesehen) << "a car has passed";
    laufen(600);
    EXPECT_EQ(lampe(1), lampe(6));
    const auto vorher = fenster.lampe_start.hintergrund();
    fenster.starttaste.klicken();
    laufen(500);
    EXPECT_NE(fenster.lampe_start.hintergrund(), vorher);
    fenster.Text2.eingeben("2");
    fenster.Text3.eingeben("6");
    fenster.Text4.eingeben("15");
    fenster.Command10.klicken();
    EXPECT_EQ(geraet->befehle().back(), "J2:1518$");
    EXPECT_EQ(fenster.Text5.text(), "8");
    fenster.Text3.eingeben("9");  // there is no such controller
    fenster.Command10.klicken();
    EXPECT_EQ(fenster.Text3.text(), "6");
    fenster.Command3.klicken();
    laufen(10);
    EXPECT_TRUE(gelistet("0S100$"));
    fenster.timer_aus.umschalten();
    const std::size_t zeilen = fenster.List1.zeilen().size();
    laufen(9000);
    EXPECT_EQ(fenster.List1.zeilen().size(), zeilen);
    fenster.Command9.klicken();
    EXPECT_NE(t.maschine.datei_lesen("cu_proto.txt").find("0S100$\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tarvel::test
