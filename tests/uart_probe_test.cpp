#include "hardware/uart_probe.h"

#include "hardware/at2560.h"
#include "programm/at2560_verdrahtung.h"
#include "tests/programm_probe.h"

namespace tarvel {
namespace {

class UartProbe : public test::ProgrammProbe {
protected:
    UartProbe() {
        t.maschine.anschluesse.da = {3};
        profil.at_ereignis.at(at_zeile::chaos_allgemein) = "S13";  // one word for two things
        at_profil_speichern(t.p.ablage, "klub.uart", profil);
        t.p.form1.Command4.klicken();
        t.p.einstellungsfenster.hardware[7].umschalten();
        t.p.einstellungsfenster.zeile("uart_port");
    }
    /// As somebody does who has chosen the port just now, and taken nothing over yet.
    void oeffnen(int port = 3) {
        std::get<auswahl>(t.p.einstellungsfenster.zeile("uart_port").element).waehlen(port);
        std::get<feld>(t.p.einstellungsfenster.zeile("uart_datei").element).eingeben("klub.uart");
        std::get<befehl>(t.p.einstellungsfenster.zeile("uart_pruefen").element).klicken();
    }
    std::string gesendet() { return std::exchange(t.maschine.anschluesse.geschrieben[3], {}); }
    bool leuchtet(int zeile) const {
        const auto& alle = w.kanaele;
        return alle.at(static_cast<std::size_t>(zeile) - 1).lampe.hintergrund() != alle.back().lampe.hintergrund();
    }

    at_profil profil;
    uart_probe& w = t.p.geraete.von<at2560_verdrahtung>().uart_probe;
};

TEST_F(UartProbe, JedesEreignisHatSeineLampeUndJederAusgangSeinenHaken) {
    oeffnen();
    EXPECT_FALSE(w.ampel[0].bedienbar()) << "it boots";
    t.maschine.laufen(at_bootzeit.count());
    EXPECT_EQ(gesendet(), ":IS,13.11.9.7;\r");
    t.maschine.anschluesse.senden(3, ":S13,100:S13,200;:S99,300;:Snv,400;");
    EXPECT_TRUE(leuchtet(at_zeile::rundenzaehlung(1)));
    EXPECT_TRUE(leuchtet(at_zeile::chaos_allgemein));
    EXPECT_FALSE(leuchtet(at_zeile::rundenzaehlung(5))) << "no word is none";
    EXPECT_NE(w.protokoll.zeilen().at(w.protokoll.zeilen().size() - 2).find("nicht zugeordnet"), std::string::npos);
    t.maschine.laufen(500);
    EXPECT_TRUE(leuchtet(at_zeile::rundenzaehlung(1)));
    t.maschine.laufen(300);
    EXPECT_FALSE(leuchtet(at_zeile::rundenzaehlung(1)));
    w.senden.klicken();
    EXPECT_EQ(gesendet(), "") << "nothing is no command";
    w.ampel[4].umschalten();
    w.ampel[5].umschalten();
    w.strom[6].umschalten();
    w.chaosanzeige.umschalten();
    w.rennende.umschalten();
    w.rennende.umschalten();
    EXPECT_EQ(gesendet(), ":A51;\r:A61;\r:P61;\r:C1;\r:E1;\r:E0;\r");
    w.ampel_alle_aus.klicken();
    EXPECT_EQ(gesendet(), ":A00;\r:A60;\r");
    w.strom_alle_an.klicken();
    gesendet();
    w.Command1.klicken();
    EXPECT_EQ(gesendet(), ":C0;\r:P10;\r:P20;\r:P30;\r:P40;\r:P50;\r:P60;\r") << "what was tried goes out";
    EXPECT_FALSE(t.maschine.anschluesse.offen(3));
}

TEST_F(UartProbe, EinGeraetDasFehltStartetOderGehtIstZuSehen) {
    oeffnen(0);
    EXPECT_EQ(w.zustand.text(), "Auf der Seite „Messhardware“ ist kein COM-Port gewählt");
    EXPECT_FALSE(w.strom[1].bedienbar());
    w.Command1.klicken();
    oeffnen();
    t.maschine.laufen(at_bootzeit.count());
    w.ampel[0].umschalten();
    gesendet();
    w.zuruecksetzen.klicken();
    EXPECT_EQ(gesendet(), ":R;\r");
    EXPECT_FALSE(w.ampel[0].gesetzt()) << "its outputs are at rest";
    EXPECT_FALSE(w.ampel[0].bedienbar());
    t.maschine.anschluesse.abziehen(3);
    EXPECT_EQ(w.zustand.text(), "COM3: Die Verbindung ist weg");
    t.maschine.laufen(at_bootzeit.count());
    EXPECT_FALSE(w.ampel[0].bedienbar());
    t.maschine.anschluesse.da = {3};
    w.verbinden.klicken();
    t.maschine.laufen(at_bootzeit.count());
    EXPECT_TRUE(w.ampel[0].bedienbar());
    t.p.einst.hardware = {};
    t.p.einst.hardware.hw_uart = true;
    t.p.einst.uart.uart_port = 3;
    w.Command1.klicken();
    EXPECT_TRUE(t.p.geraete.verbunden()) << "the race has its device back";
}

}  // namespace
}  // namespace tarvel
