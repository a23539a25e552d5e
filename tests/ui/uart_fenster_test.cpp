#include <QListView>

#include "hardware/at2560.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class UartFenster : public test::OberflaecheProbe {
protected:
    void tritt(const char* knopf) {
        klick(*o.uart_einstellungen, knopf);
        o.takt.ausfuehren();
        QTest::qWait(QApplication::doubleClickInterval() + 1);
    }
    void waehlen(const char* name, const char* text) {
        auto* wahl = finde<QComboBox>(*o.uart_einstellungen, name);
        ASSERT_TRUE(wahl->isVisible()) << name;
        wahl->setCurrentText(text);
        emit wahl->activated(wahl->findText(text));
        o.takt.ausfuehren();
    }
    QString text(const char* name) { return finde<QLabel>(*o.uart_einstellungen, name)->text(); }
};

TEST_F(UartFenster, VomKnopfInDenEinstellungenBisZurDatei) {
    t.maschine.anschluesse.da = {2};
    t.maschine.antwort = true;
    t.p.einst.hardware.hw_uart = true;
    t.p.einstellungsfenster.oeffnen(einstellungsfenster::seite_hardware);
    o.takt.ausfuehren();
    klick(*o.einstellungen, "einstellungen.uart_einrichten");
    o.takt.ausfuehren();
    ASSERT_TRUE(o.uart_einstellungen->isVisible());
    EXPECT_FALSE(finde<QWidget>(*o.uart_einstellungen, "UART_einstellungen.port_schliessen")->isVisible());
    waehlen("UART_einstellungen.port", "COM2");
    tritt("UART_einstellungen.weiter");
    t.maschine.laufen(at_bootzeit.count());
    o.takt.ausfuehren();
    tippen(*o.uart_einstellungen, "UART_einstellungen.sensoranzahl", "2");
    tritt("UART_einstellungen.weiter");
    t.maschine.anschluesse.senden(2, ":S4,1;:S9,2;");
    o.takt.ausfuehren();
    EXPECT_EQ(text("UART_einstellungen.ereignis_1"), "S9");
    EXPECT_FALSE(finde<QWidget>(*o.uart_einstellungen, "UART_einstellungen.sensor_2")->isVisible());
    waehlen("UART_einstellungen.funktion_0", "Rundenzählung");
    waehlen("UART_einstellungen.funktion_1", "Rundenzählung");
    for (int i = 0; i < 3; ++i) {
        tritt("UART_einstellungen.weiter");
    }
    EXPECT_FALSE(o.uart_einstellungen->isVisible());
    EXPECT_EQ(finde<QComboBox>(*o.einstellungen, "einstellungen.uart_port")->currentText(), "COM2");
    at_profil gelesen;
    ASSERT_TRUE(at_profil_laden(t.p.ablage, at_standarddatei, gelesen));
    EXPECT_EQ(gelesen.at_is_befehl, "IS,4.9");
}

TEST_F(UartFenster, HinweisNimmtDemHauptfensterDieBedienung) {
    t.p.einst.hardware.hw_uart = true;
    t.p.form1.wartehinweis(true);
    o.takt.ausfuehren();
    QTest::keyClick(&o.form1, Qt::Key_F1);
    EXPECT_FALSE(o.uart_profildatei->isVisible());
    EXPECT_TRUE(finde<QWidget>(o.form1, "Form1.µwarte_text")->isVisible());
    EXPECT_FALSE(finde<QWidget>(o.form1, "Form1.Command1")->isVisible());
    t.p.form1.wartehinweis(false);
    o.takt.ausfuehren();
    EXPECT_TRUE(finde<QWidget>(o.form1, "Form1.Command1")->isVisible());
    o.form1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    QTest::keyClick(&o.form1, Qt::Key_F1);
    o.takt.ausfuehren();
    EXPECT_TRUE(o.uart_profildatei->isVisible());
}

}  // namespace
}  // namespace tarvel
