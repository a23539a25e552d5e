#include <QPushButton>
#include <map>

#include "tests/plattform/vereinsabend.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class Rennfenster : public test::OberflaecheProbe {
protected:
    void groesse(int breite, int hoehe) {
        o.bahn1.showNormal();
        o.bahn1.resize(breite, hoehe);
        o.takt.ausfuehren();
    }
    ansicht_geometrie soll() { return ansicht_aufteilen(t.bahn().ansicht.inhalt(), o.bahn1.width(), o.bahn1.height()); }
    void steht(const char* name, const rechteck& ort) {
        EXPECT_EQ(finde<QWidget>(o.bahn1, name)->geometry(), QRect(ort.x, ort.y, ort.breite, ort.hoehe)) << name;
    }
    void alles_steht() {
        const ansicht_geometrie g = soll();
        steht("bahn1.bahnshape_2", g.block[2]);
        steht("bahn1.bahnshape_5", g.block[5]);
        steht("bahn1.zaehler_5", g.spur[spur_teil::zaehler].ort);
        steht("bahn1.lrunde_2", g.spur[spur_teil::lrunde].ort);
        steht("bahn1.Image1_2", g.spur[spur_teil::Image1].ort);
        steht("bahn1.ampel_gr_4", g.spur[spur_teil::ampel_gr].ort);
        steht("bahn1.uhrframe1", g.fenster[fenster_teil::uhrframe1].ort);
        steht("bahn1.Frame1", g.fenster[fenster_teil::Frame1].ort);
        steht("bahn1.Command2", g.fenster[fenster_teil::Command2].ort);
    }
};

TEST_F(Rennfenster, AllesStehtWoDieAufteilungEsHat) {
    t.einrichten("Zeit", "5", {2, 5});
    for (const auto& [breite, hoehe] : {std::pair(1024, 768), {1600, 900}}) {
        groesse(breite, hoehe);
        alles_steht();
    }
    o.bahn1.close();
    t.p.einst.darstellung_zeile = true;
    t.einrichten("Zeit", "5", {2, 5});
    groesse(1280, 1024);
    alles_steht();
    t.bahn().Command1.klicken();
    t.runde_nach(1000, "2");
    t.runden_auffuellen(2, 999);
    t.runde_nach(8000, "2");
    o.takt.ausfuehren();
    steht("bahn1.zaehler_2", soll().zaehler_weit);
}

TEST_F(Rennfenster, UhrMitStundenBleibtInIhremPlatz) {
    t.einrichten("Zeit", "5", {2});
    groesse(1024, 768);
    const auto platz_der_teile = [&] {
        const QRect uhr = finde<QWidget>(o.bahn1, "bahn1.uhrframe1")->rect();
        for (const char* name : {"bahn1.labelstd1", "bahn1.labelmin1", "bahn1.labelhun1"}) {
            EXPECT_TRUE(uhr.contains(finde<QWidget>(o.bahn1, name)->geometry())) << name;
        }
    };
    const int ohne = finde<QWidget>(o.bahn1, "bahn1.labelmin1")->width();
    t.bahn().uhr1.stunden.sichtbar(true);
    t.bahn().uhr1.nach_stunden.sichtbar(true);
    o.takt.ausfuehren();
    EXPECT_LT(finde<QWidget>(o.bahn1, "bahn1.labelmin1")->width(), ohne);
    platz_der_teile();
    const QRect trenner = finde<QWidget>(o.bahn1, "bahn1.Label10")->geometry();
    EXPECT_GT(trenner.width(), 5);
    EXPECT_LE(trenner.left(), finde<QWidget>(o.bahn1, "bahn1.labelmin1")->geometry().left());
}

TEST_F(Rennfenster, BeimEinfahrenZaehltDieTasteUndEscBeendetEs) {
    test::vereinsabend abend(t.p);
    t.einrichten("Runden", "5", {1, 2});
    t.p.rennen.teil_von.wechseln(abend);
    t.p.einst.w_edauer = 3;
    t.p.fenster.neu_laden(fenstername::bahn1);
    o.takt.ausfuehren();
    klick(o.bahn1, "bahn1.Command6");
    ASSERT_TRUE(o.einfahren.isVisible() && o.einfahren.isModal());
    taste(o.einfahren, '2');
    t.maschine.laufen(2);
    EXPECT_EQ(anzeige(o.einfahren, "einfahren.runden_1"), "2");
    EXPECT_EQ(anzeige(o.einfahren, "einfahren.runden_0"), "3");
    QTest::keyClick(&o.einfahren, Qt::Key_Escape);
    EXPECT_FALSE(o.einfahren.isVisible());
    EXPECT_EQ(t.runden(2), -1);
    o.takt.ausfuehren();
    EXPECT_EQ(o.bahn1.focusWidget(), finde<QWidget>(o.bahn1, "bahn1.Command1")) << "the race is next";
}

TEST_F(Rennfenster, FenstermodusStattVollbild) {
    t.einrichten("Zeit", "5", {2});
    EXPECT_TRUE(o.bahn1.isFullScreen());
    o.bahn1.close();
    t.p.einst.fenstermodus = true;
    t.einrichten("Zeit", "5", {2});
    EXPECT_TRUE(o.bahn1.isVisible() && !o.bahn1.isFullScreen());
}

TEST_F(Rennfenster, AmpelDerPauseVerdecktNichtsUndLaesstDemRennfensterDieTasten) {
    t.p.einst.start_ampel_modus = ampelwahl::keine;
    t.starten("Zeit", "5", {1, 2});
    t.maschine.laufen(3000);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.bahn1));
    groesse(1024, 768);
    klick(o.bahn1, "bahn1.Command3");
    t.maschine.laufen(3000);
    QTest::qWait(50);
    ASSERT_TRUE(o.k_ampel.isVisible());
    const auto verdeckt = [&](const char* name) {
        const auto* widget = finde<QWidget>(o.bahn1, name);
        return o.k_ampel.geometry().intersects({widget->mapToGlobal(QPoint(0, 0)), widget->size()});
    };
    for (const char* name : {"bahn1.bahnshape_1", "bahn1.bahnshape_2", "bahn1.Frame1", "bahn1.ch_strafframe",
                             "bahn1.labelmin1", "bahn1.labelhun1"}) {
        EXPECT_FALSE(verdeckt(name)) << name;
    }
    const QPoint vorher = o.k_ampel.pos();
    QTest::mousePress(&o.k_ampel, Qt::LeftButton, {}, {3, 3});
    QTest::mouseMove(&o.k_ampel, {13, 43});
    QTest::mouseRelease(&o.k_ampel, Qt::LeftButton);
    EXPECT_EQ(o.k_ampel.pos() - vorher, QPoint(10, 40)) << "drawn away with the mouse";

    o.k_ampel.activateWindow();  // as after a click on it
    EXPECT_TRUE(QTest::qWaitForWindowActive(&o.bahn1)) << "the keys go back to the race window";
    auto* kasten = finde<QCheckBox>(o.bahn1, "bahn1.ch_strafzeit_hacken_2");
    for (int tab = 0; tab < 20 && !kasten->hasFocus(); ++tab) {
        QTest::keyClick(o.bahn1.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_TRUE(kasten->hasFocus());
    QTest::keyClick(kasten, Qt::Key_Space);
    EXPECT_TRUE(t.bahn().ch_strafzeit_hacken[2].gesetzt());
    QTest::keyClick(kasten, Qt::Key_W, Qt::AltModifier);
    QTest::qWait(150);
    EXPECT_FALSE(t.p.k_ampel.Command1.aktiviert()) << "the light runs";
}

}  // namespace
}  // namespace tarvel
