#include <QLabel>
#include <QListView>

#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class BestzeitenFenster : public test::OberflaecheProbe {
protected:
    void oeffnen(int lanes) {
        spuren<spur_angebot> angebote;
        for (int spur = 1; spur <= lanes; ++spur) {
            angebote[spur] = {true, "Jörg", "Viper", 8000 + spur, {9000, 8000 + spur}};
        }
        t.p.beste_zeiten_fenster.oeffnen(angebote, [this] { ++danach; });
        o.takt.ausfuehren();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&*o.bestzeiten));
    }
    bool gruen(const char* name) {
        o.takt.ausfuehren();
        return !finde<QLabel>(*o.bestzeiten, name)->text().isEmpty();
    }

    int danach = 0;
};

TEST_F(BestzeitenFenster, ZeigtBeimTippenWasGespeichertWird) {
    oeffnen(2);
    EXPECT_FALSE(finde<QWidget>(*o.bestzeiten, "beste_zeiten_fenster.Frame_2")->isVisible());
    auto* zeit = finde<QComboBox>(*o.bestzeiten, "beste_zeiten_fenster.beste_combo_0");
    EXPECT_TRUE(gruen("beste_zeiten_fenster.Shape1_0"));
    o.bestzeiten->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.bestzeiten));
    QTest::keyClick(finde<QWidget>(*o.bestzeiten, "beste_zeiten_fenster.Command1"), Qt::Key_Return);
    EXPECT_TRUE(o.bestzeiten->isVisible()) << "it was meant for what lay in front before";
    constexpr int pause_ms = 600;
    QTest::qWait(pause_ms);
    zeit->setFocus();
    zeit->lineEdit()->selectAll();
    QTest::keyClicks(zeit->lineEdit(), "00:07,12");
    EXPECT_FALSE(gruen("beste_zeiten_fenster.Shape1_0"));
    QTest::keyClicks(zeit->lineEdit(), "3");
    EXPECT_TRUE(gruen("beste_zeiten_fenster.Shape1_0"));
    klick(*o.bestzeiten, "beste_zeiten_fenster.spur_chk_1");
    EXPECT_FALSE(gruen("beste_zeiten_fenster.Shape1_1"));
    klick(*o.bestzeiten, "beste_zeiten_fenster.Command1");
    EXPECT_FALSE(o.bestzeiten->isVisible());
    EXPECT_EQ(t.p.bestzeiten.beste(1), 7123);
    EXPECT_EQ(t.p.bestzeiten.beste(2), keine_bestzeit);
    EXPECT_EQ(danach, 1);
}

TEST_F(BestzeitenFenster, SchliesstAufJedemWeg) {
    oeffnen(6);
    o.bestzeiten->close();
    EXPECT_EQ(danach, 1);
    oeffnen(1);
    QTest::keyClick(finde<QWidget>(*o.bestzeiten, "beste_zeiten_fenster.btext_name_0"), Qt::Key_Escape);
    EXPECT_FALSE(o.bestzeiten->isVisible());
    EXPECT_EQ(danach, 2);
}

TEST_F(BestzeitenFenster, VerwaltungWaehltEineZeileAllerListen) {
    for (const int spur : alle_spuren) {
        t.p.bestzeiten.einfuegen(spur, {8000, "<b>Jörg</b>", "Viper", "01.02.2026"});
    }
    t.p.einstellungsfenster.oeffnen(einstellungsfenster::seite_bestzeiten);
    o.takt.ausfuehren();
    klick(*o.einstellungen, "einstellungen.bestzeiten_verwalten");
    o.takt.ausfuehren();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&*o.bestzeitverwaltung));
    const auto liste = [this](int index) {
        return finde<QListView>(*o.bestzeitverwaltung,
                                ("beste_zeiten_verwaltung.bestefile_list_" + std::to_string(index)).c_str());
    };
    const auto druecken = [&](int index) {
        QListView* ansicht = liste(index);
        const QRect zeile = ansicht->visualRect(ansicht->model()->index(0, 0));
        QTest::mouseClick(ansicht->viewport(), Qt::LeftButton, {}, zeile.center());
        o.takt.ausfuehren();
        for (int andere = 0; andere < spuren_max; ++andere) {
            EXPECT_EQ(liste(andere)->selectionModel()->hasSelection(), andere == index) << index << " " << andere;
        }
    };
    for (const int index : {0, 4, 0}) {
        druecken(index);
    }
    tippen(*o.bestzeitverwaltung, "beste_zeiten_verwaltung.Text1", "00:07,000");
    QTest::keyClick(finde<QLineEdit>(*o.bestzeitverwaltung, "beste_zeiten_verwaltung.Text1"), Qt::Key_Return);
    QTest::keyClick(&*o.bestzeitverwaltung, Qt::Key_Escape);
    EXPECT_FALSE(o.bestzeitverwaltung->isVisible());
    EXPECT_TRUE(o.einstellungen->isVisible());
    EXPECT_EQ(t.p.bestzeiten.beste(1), 7000);
    o.takt.ausfuehren();
    EXPECT_TRUE(finde<QLabel>(o.form1, "Form1.Label_fahrzeug_0")->toolTip().contains("&lt;b&gt;")) << "no markup";
}

TEST_F(BestzeitenFenster, SchliessenDerAuswertungFragtWieIhrKnopf) {
    t.mit_bestzeiten = true;
    t.p.einst.beste_modus = bestzeit_speicherung::manuell;
    t.p.einst.zielmodus_erster = true;
    t.starten("Runden", "1", {1});
    t.runde_nach(1000, "1");
    t.runde_nach(8000, "1");
    ASSERT_TRUE(t.p.fenster.ist_offen(fenstername::auswertung));
    o.takt.ausfuehren();
    o.auswertung.close();
    EXPECT_TRUE(t.p.fenster.ist_offen(fenstername::beste_zeiten_fenster));
}

}  // namespace
}  // namespace tarvel
