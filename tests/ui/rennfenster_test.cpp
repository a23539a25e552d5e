#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "tests/plattform/vereinsabend.h"
#include "tests/ui/lesbarkeit.h"
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

TEST_F(Rennfenster, SpurenGleitenAnIhrenPlatzUndZurueck) {
    t.p.einst.rennbild.nach_platz = true;
    for (const bool zeilen : {false, true}) {
        t.p.einst.darstellung_zeile = zeilen;
        t.einrichten("Zeit", "5", {1, 2, 3, 4, 5, 6});
        groesse(1280, 800);
        const ansicht_geometrie ziele = soll();
        const auto ort = [&](int spur) {
            return finde<QWidget>(o.bahn1, ("bahn1.bahnshape_" + std::to_string(spur)).c_str())->pos();
        };
        const auto platz = [&](int nummer) { return QPoint(ziele.block[nummer].x, ziele.block[nummer].y); };
        const auto stehen = [&](const std::array<int, spuren_max>& folge) {
            int nummer = 0;
            return std::all_of(folge.begin(), folge.end(), [&](int spur) { return ort(spur) == platz(++nummer); });
        };
        EXPECT_TRUE(stehen({1, 2, 3, 4, 5, 6})) << "as they begin";
        t.bahn().Command1.klicken();
        t.runde_nach(1000, "123456");
        t.runde_nach(8000, "6");
        const QPoint vorher = ort(6);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ort(6) != vorher && ort(6) != platz(1); })) << "on its way";
        EXPECT_TRUE(QTest::qWaitFor([&] { return stehen({6, 2, 3, 4, 5, 1}); }));
        t.runde_nach(100, "3");
        t.runde_nach(8000, "3");
        EXPECT_TRUE(QTest::qWaitFor([&] { return stehen({3, 6, 2, 4, 5, 1}); }));
        groesse(1024, 768);
        EXPECT_EQ(ort(3), QPoint(soll().block[1].x, soll().block[1].y)) << "in a window of another size at once";
        t.p.einst.rennbild.nach_platz = false;
        groesse(1280, 800);
        EXPECT_TRUE(QTest::qWaitFor([&] { return stehen({1, 2, 3, 4, 5, 6}); }));
        t.p.einst.rennbild.nach_platz = true;
        t.rennabbruch();
    }
}

TEST_F(Rennfenster, NichtsWasImRennenZaehltIstZuKleinZumLesen) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.fahrzeugbild_an = true;
    t.mit_bestzeiten = true;
    for (const int spur : alle_spuren) {
        t.p.bestzeiten.einfuegen(spur, {6900, "Anna", "Viper", "12.09.2026"});
    }
    t.p.form1.t_aktiv.umschalten();
    t.p.form1.fahrer[3].eingeben("Maximilian-Alexander Oberstaufenbacher");
    const auto pruefen = [&](const char* wann) {
        groesse(1280, 800);
        for (const QString& text : test::zu_niedrige_schriften(o.bahn1, o.bahn1.height())) {
            ADD_FAILURE() << wann << ": " << text.toStdString();
        }
    };
    for (int muster = 0; muster < 2 * 2 * spuren_max; ++muster) {
        const int anzahl = muster % spuren_max + 1;
        t.p.einst.darstellung_zeile = muster / spuren_max % 2 == 1;
        t.p.einst.tankanzeige_grafisch = muster / spuren_max > 1;
        std::vector<int> lanes;
        while (static_cast<int>(lanes.size()) < anzahl) {
            lanes.push_back(static_cast<int>(lanes.size()) + 1);
        }
        SCOPED_TRACE(testing::Message() << anzahl << " lanes, rows " << t.p.einst.darstellung_zeile);
        t.starten("Runden", "50", lanes);
        t.runde_nach(1000, "1");
        t.runde_nach(200, "23456");
        t.runde_nach(8000, "1");
        t.runde_nach(8000, "1");
        t.runde_nach(8000, "3456");
        for (const int spur : lanes) {
            t.p.rennen.strafen.zeitstrafe(spur, 10s);
        }
        pruefen("race");
        t.bahn().Command3.klicken();
        t.maschine.laufen(3000);
        pruefen("pause");
        t.rennabbruch();
        if (HasFailure()) {
            return;  // the first is enough to go by
        }
    }
}

TEST_F(Rennfenster, ProtokollknopfDerPauseVerdecktNichts) {
    t.p.einst.chaosampel_an = false;
    t.p.txt.werbetext = "Slotcarclub Beispielstadt – Training jeden Dienstag ab 19 Uhr";
    t.starten("Zeit", "5", {1, 2});
    for (const auto& [breite, hoehe] : {std::pair(1024, 768), {1920, 1080}}) {
        groesse(breite, hoehe);
        auto* knopf = finde<QWidget>(o.bahn1, "bahn1.Command_protokoll");
        auto* zeile = finde<QWidget>(o.bahn1, "bahn1.werbe_label");
        const QRect vorher = zeile->geometry();
        t.maschine.laufen(3000);
        t.bahn().Command3.klicken();
        o.takt.ausfuehren();
        EXPECT_TRUE(knopf->isVisible());
        for (const char* name : {"bahn1.werbe_label", "bahn1.Command2", "bahn1.Command3", "bahn1.Command4"}) {
            EXPECT_FALSE(knopf->geometry().intersects(finde<QWidget>(o.bahn1, name)->geometry())) << name;
        }
        EXPECT_GE(zeile->width(), vorher.width() / 2);
        t.maschine.laufen(3000);
        t.bahn().Command3.klicken();
        o.takt.ausfuehren();
        EXPECT_EQ(zeile->geometry(), vorher);
    }
}

/// The letter that presses the button together with Alt; null for none.
QChar buchstabe_von(const QPushButton& knopf) {
    const QString text = QString(knopf.text()).remove("&&");
    const qsizetype platz = text.indexOf('&');
    return platz < 0 ? QChar() : text.at(platz + 1).toLower();
}

/// No button that can be pressed shows a letter that does not press it, whichever of these windows has the keys.
TEST_F(Rennfenster, JederGezeigteBuchstabeGilt) {
    const auto alle_gelten = [&](const char* wann) {
        o.takt.ausfuehren();
        QTest::qWait(100);
        QWidget* vorn = QApplication::activeWindow();
        ASSERT_NE(vorn, nullptr) << wann;
        std::vector<QPushButton*> knoepfe;
        for (const ui::Fenster* fenster : std::initializer_list<ui::Fenster*>{
                 &o.bahn1, &o.form2, &o.k_ampel, vorn == &*o.leitstand ? &*o.leitstand : nullptr}) {
            for (QPushButton* knopf :
                 fenster == nullptr ? QList<QPushButton*>() : fenster->findChildren<QPushButton*>()) {
                if (knopf->isVisible() && knopf->isEnabled() && !buchstabe_von(*knopf).isNull()) {
                    knoepfe.push_back(knopf);
                }
            }
        }
        std::vector<std::unique_ptr<QSignalBlocker>> ohne_folgen;
        for (QPushButton* knopf : knoepfe) {
            ohne_folgen.push_back(std::make_unique<QSignalBlocker>(knopf));
            QWidget* empfaenger = vorn->focusWidget() != nullptr ? vorn->focusWidget() : vorn;
            QTest::keyClick(empfaenger, buchstabe_von(*knopf).toLatin1(), Qt::AltModifier);
            EXPECT_TRUE(knopf->isDown()) << wann << ": " << knopf->text().toStdString() << " of "
                                         << knopf->objectName().toStdString() << " in "
                                         << vorn->objectName().toStdString();
        }
        QTest::qWait(150);  // until they are up again
    };
    for (const bool zwei_schirme : {false, true}) {
        t.p.einst.rennbild.auf_schirm_2 = zwei_schirme;
        t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
        t.einrichten("Zeit", "5", {1, 2});
        alle_gelten("before the start");
        t.bahn().Command1.klicken();
        t.maschine.laufen(4000);
        alle_gelten("lights");
        t.maschine.laufen(12000);
        t.runde_nach(1000, "12");
        alle_gelten("race");
        t.bahn().Command4.klicken();
        alle_gelten("asked back");
        t.maschine.laufen(4000);
        for (const bool mit_ampel : {true, false}) {
            t.p.einst.chaosampel_an = mit_ampel;
            t.bahn().Command3.klicken();
            t.maschine.laufen(3000);
            EXPECT_EQ(o.k_ampel.isVisible(), mit_ampel);
            alle_gelten(mit_ampel ? "pause with a light" : "pause");
            t.bahn().Command3.klicken();
            t.maschine.laufen(2000);
            alle_gelten("on again");
            t.maschine.laufen(10000);
        }
        t.rennende();
        t.p.auswertung.cmd3_fortsetzung();
        EXPECT_TRUE(o.k_ampel.isVisible());
        alle_gelten("race goes on");
        t.rennabbruch();
    }
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

TEST_F(Rennfenster, DieRueckfrageWaechstAusIhremKnopfUndVerdecktKeinenAnderen) {
    for (const bool zweiter_schirm : {false, true}) {
        t.p.einst.rennbild.auf_schirm_2 = zweiter_schirm;
        t.p.einst.chaosampel_an = false;
        t.starten("Zeit", "5", {1, 2});
        t.bahn().Command3.klicken();  // with the seconds of the penalty above the commands
        t.maschine.laufen(3000);
        o.takt.ausfuehren();
        QWidget& fenster = zweiter_schirm ? static_cast<QWidget&>(*o.leitstand) : o.bahn1;
        const auto ort = [&](const QWidget* w) { return QRect(w->mapTo(&fenster, QPoint()), w->size()); };
        for (const char* name : {"Command4", "Command2"}) {
            const QString voll = fenster.objectName() + "." + name;
            auto* knopf = finde<QPushButton>(fenster, qUtf8Printable(voll));
            std::vector<std::pair<QWidget*, QRect>> andere;
            for (QWidget* w : fenster.findChildren<QWidget*>()) {
                const bool bedienbar = w->inherits("QAbstractButton") || w->inherits("QLineEdit");
                if (bedienbar && w->isVisible() && w != knopf) {
                    andere.emplace_back(w, ort(w));
                }
            }
            const QRect vorher = ort(knopf);
            QTest::mouseClick(knopf, Qt::LeftButton);
            o.takt.ausfuehren();
            auto* frage = finde<QPushButton>(fenster, qUtf8Printable(voll + "_frage"));
            ASSERT_TRUE(frage->isVisible());
            EXPECT_TRUE(ort(frage).contains(vorher) &&
                        frage->width() * frage->height() * 2 > 3 * knopf->width() * knopf->height());
            EXPECT_EQ(ort(knopf), vorher);
            for (const auto& [w, platz] : andere) {
                EXPECT_EQ(ort(w), platz) << w->objectName().toStdString();
                EXPECT_FALSE(ort(frage).intersects(platz)) << w->objectName().toStdString();
            }
            t.maschine.laufen(name == std::string("Command4") ? 3000 : 500);
            o.takt.ausfuehren();
            EXPECT_EQ(frage->isVisible(), name == std::string("Command2")) << "nobody has meant the other";
        }
        QTest::mouseClick(finde<QPushButton>(fenster, qUtf8Printable(fenster.objectName() + ".Command2_frage")),
                          Qt::LeftButton);
        EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    }
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
