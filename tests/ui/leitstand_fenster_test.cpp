#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QScreen>
#include <string>

#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

using LeitstandFenster = test::OberflaecheProbe;

TEST_F(LeitstandFenster, AufDemZweitenSchirmOhneKnoepfeDieAufDemErstenLiegen) {
    t.p.einst.rennbild.auf_schirm_2 = true;
    t.p.einst.chaosampel_an = false;
    t.p.form1.wertmin.eingeben("5,2");
    for (int rennen = 0; rennen < 2; ++rennen) {
        t.einrichten("Zeit", "5", {1, 2});
        o.takt.ausfuehren();
        const QList<QScreen*> schirme = QGuiApplication::screens();
        ASSERT_EQ(schirme.size(), 2);
        EXPECT_EQ(o.bahn1.screen(), schirme[1]);
        QWidget& leitung = *o.leitstand;
        ASSERT_TRUE(leitung.isVisible());
        EXPECT_EQ(leitung.screen(), schirme[0]);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&leitung));
        EXPECT_EQ(leitung.focusWidget(), finde<QWidget>(leitung, "leitstand.Command1")) << "Enter starts";
        for (const char* name : {"bahn1.Command1", "bahn1.Command2", "bahn1.Command3", "bahn1.Command4"}) {
            EXPECT_FALSE(finde<QWidget>(o.bahn1, name)->isVisible()) << name;
        }
        const rechteck block = ansicht_aufteilen(t.bahn().ansicht.inhalt(), o.bahn1.width(), o.bahn1.height()).block[1];
        EXPECT_GT(finde<QWidget>(o.bahn1, "bahn1.bahnshape_1")->height(), block.hoehe) << "has their room";
        klick(leitung, "leitstand.Command1");
        t.runde_nach(1000, "1");
        if (rennen == 0) {
            taste(leitung, '2');
            t.maschine.laufen(1);
        } else {
            t.taste("2");
        }
        EXPECT_EQ(t.runden(2), 0);
        t.runde_nach(3214, "1");
        t.runde_nach(5000, "2");
        EXPECT_EQ(anzeige(leitung, "leitstand.zaehler_2"), "1");
        EXPECT_EQ(anzeige(o.bahn1, "bahn1.zaehler_2"), "1");
        t.maschine.laufen(200);
        ASSERT_FALSE(t.p.ergebnis_fluegel().leitstand.List_verlauf.zeilen().empty());
        EXPECT_NE(t.p.ergebnis_fluegel().leitstand.List_verlauf.zeilen().front().find("Spur 1 Fahrer 1:  zu kurz: 3,2"),
                  std::string::npos)
            << t.p.ergebnis_fluegel().leitstand.List_verlauf.zeilen().front();
        klick(leitung, "leitstand.Command3");
        t.maschine.laufen(3000);
        o.takt.ausfuehren();
        klick(leitung, "leitstand.ch_strafzeit_hacken_2");
        o.takt.ausfuehren();
        EXPECT_TRUE(finde<QCheckBox>(o.bahn1, "bahn1.ch_strafzeit_hacken_2")->isChecked());
        EXPECT_FALSE(finde<QWidget>(o.bahn1, "bahn1.ch_strafframe")->isVisible());
        tippen(leitung, "leitstand.ch_Text1", "7");
        klick(leitung, "leitstand.Command3");
        EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
        t.maschine.laufen(300);
        EXPECT_NE(t.p.ergebnis_fluegel().leitstand.List_verlauf.zeilen().front().find("Spur 2"), std::string::npos);
        leitung.close();
        EXPECT_TRUE(leitung.isVisible() && t.p.rennen.abbruchfrage.fragt()) << "means the race, and asks";
        t.rennabbruch();
        EXPECT_FALSE(leitung.isVisible() || o.bahn1.isVisible());
    }
    t.p.einst.rennbild.auf_schirm_2 = false;
    t.einrichten("Zeit", "5", {1, 2});
    o.takt.ausfuehren();
    EXPECT_FALSE(o.leitstand->isVisible());
    EXPECT_TRUE(finde<QWidget>(o.bahn1, "bahn1.Command2")->isVisible());
}

TEST_F(LeitstandFenster, WasDerLeiterBrauchtKommtAufSeinenSchirm) {
    t.p.einst.rennbild.auf_schirm_2 = true;
    t.p.einst.fruehstart_option = fruehstart_aktion::startabbruch;
    t.einrichten("Zeit", "5", {1, 2});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    QScreen* seiner = QGuiApplication::screens().front();
    auto* startabbruch = finde<QPushButton>(*o.leitstand, "leitstand.abbrampel");
    for (const bool zu_frueh : {false, true}) {
        t.bahn().Command1.klicken();
        t.maschine.laufen(4000);
        o.takt.ausfuehren();
        EXPECT_NE(o.form2.screen(), seiner) << "all see the light";
        EXPECT_TRUE(startabbruch->isVisible());
        for (const bool dunkel : {true, false}) {
            taste(*o.leitstand, 'n');
            EXPECT_EQ(t.p.startampel.fenster.Nachtabschaltung.sichtbar(), dunkel);
        }
        if (zu_frueh) {
            t.taste("2");
            t.maschine.laufen(2);
            EXPECT_TRUE(anzeige(*o.leitstand, "leitstand.Label_fruehstart").contains("Fahrer\u00A02 "));
        }
        QTest::mouseClick(startabbruch, Qt::LeftButton);
        o.takt.ausfuehren();
        EXPECT_FALSE(t.p.startampel.laeuft() || o.form2.isVisible() || startabbruch->isVisible());
        EXPECT_FALSE(finde<QWidget>(*o.leitstand, "leitstand.Label_fruehstart")->isVisible());
    }
    t.p.einst.start_ampel_modus = ampelwahl::keine;
    for (const bool mit_tasten : {true, false}) {
        t.bahn().Command1.klicken();
        t.maschine.laufen(3000);
        o.takt.ausfuehren();
        o.leitstand->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.leitstand));
        if (!mit_tasten) {  // another program has them
            QApplication::setActiveWindow(nullptr);
        }
        t.rennende();
        EXPECT_EQ(o.auswertung.screen(), seiner) << mit_tasten;
        EXPECT_LE(o.auswertung.width(), seiner->size().width());
        t.p.auswertung.Command5.klicken();
        t.einrichten("Zeit", "5", {1, 2});
        o.takt.ausfuehren();
    }
}

}  // namespace
}  // namespace tarvel
