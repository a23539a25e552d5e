#include <QCompleter>
#include <QListView>
#include <initializer_list>
#include <utility>

#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class Eingabefelder : public test::OberflaecheProbe {};

TEST_F(Eingabefelder, NachDerRennartGehtTabZumNaechstenFeld) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    auto* rennart = finde<QComboBox>(o.form1, "Form1.rennart");
    auto* dauer = finde<QLineEdit>(o.form1, "Form1.renndauer");
    for (const auto& [taste, danach] : {std::pair(Qt::Key_Down, "Form1.renndauer"), {Qt::Key_Up, "Form1.stddauer"}}) {
        rennart->setFocus();
        QTest::keyClick(rennart, taste);
        o.takt.ausfuehren();
        ASSERT_TRUE(dauer->hasFocus());
        QTest::keyClick(dauer, Qt::Key_Tab);
        EXPECT_TRUE(finde<QLineEdit>(o.form1, danach)->hasFocus()) << danach;
    }
    rennart->setFocus();
    QTest::keyClick(rennart, Qt::Key_Down);
    o.takt.ausfuehren();
    QTest::keyClick(dauer, Qt::Key_Up);
    EXPECT_EQ(t.p.form1.rennart.text(), "Zeit") << "the arrow keys step on";
}

TEST_F(Eingabefelder, UnfugInDenFeldernWirdBerichtigt) {
    for (const char* name : {"Form1.renndauer", "Form1.stddauer", "Form1.wertmin", "Form1.massstab", "Form1.lspur_0"}) {
        tippen(o.form1, name, "-9e99xy,.,");
    }
    klick(o.form1, "Form1.Command1");
    o.takt.ausfuehren();
    EXPECT_EQ(finde<QLineEdit>(o.form1, "Form1.lspur_0")->text(), "25");
    EXPECT_EQ(finde<QLineEdit>(o.form1, "Form1.wertmin")->text(), "5");
    EXPECT_FALSE(o.bahn1.isVisible());
    EXPECT_EQ(t.maschine.meldungen_gezeigt.size(), 1U);
}

TEST_F(Eingabefelder, NamenBleibenWieGetippt) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    auto* fahrer = finde<QComboBox>(o.form1, "Form1.fahrer_0");
    fahrer->setFocus();
    fahrer->lineEdit()->selectAll();
    QTest::keyClicks(fahrer->lineEdit(), "k");
    QTest::keyClick(fahrer->lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "k");
    EXPECT_EQ(fahrer->lineEdit()->cursorPosition(), 0) << "a long name is read from its beginning";
}

TEST_F(Eingabefelder, WerMittenImFeldTipptBleibtDort) {
    o.form1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    auto* fahrer = finde<QComboBox>(o.form1, "Form1.fahrer_0");
    const auto tippen_bei = [&](QWidget* feld, const char* zeichen) {
        feld->setFocus();
        QTest::keyClick(feld, Qt::Key_Home);
        for (const char* z = zeichen; *z != 0; ++z) {
            QTest::keyClick(feld, *z);
            o.takt.ausfuehren();
        }
        QTest::keyClick(feld, Qt::Key_Delete);
        o.takt.ausfuehren();
    };
    tippen_bei(fahrer, "ABC");
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "ABCahrer 1");
    auto* laenge = finde<QLineEdit>(o.form1, "Form1.lspur_0");
    tippen_bei(laenge, "13");
    EXPECT_EQ(t.p.form1.lspur[0].text(), "135");
    QTest::keyClick(laenge, 'o', Qt::AltModifier);
    QTest::keyClick(laenge, 'm');
    EXPECT_EQ(t.p.form1.lspur[0].text(), "135") << "a number has no letters";
    QTest::keyClick(fahrer, 'q', Qt::AltModifier);
    EXPECT_EQ(t.p.form1.fahrer[0].text(), "ABCahrer 1") << "Alt types nothing";

    t.p.form1.fahrer[0].fokus_setzen();
    o.takt.ausfuehren();
    EXPECT_EQ(fahrer->lineEdit()->selectedText(), "ABCahrer 1");
}

TEST_F(Eingabefelder, ErsterPfeilWaehltDieErsteZeile) {
    klick(o.form1, "Form1.Command7");
    o.takt.ausfuehren();
    t.p.speichernfenster.dateiliste.leeren();
    for (const char* datei : {"eins", "zwei"}) {
        t.p.speichernfenster.dateiliste.hinzufuegen(datei);
    }
    o.takt.ausfuehren();
    auto* dateien = finde<QListView>(*o.speichern, "speichernfenster.dateiliste");
    dateien->setFocus(Qt::TabFocusReason);
    QTest::keyClick(dateien, Qt::Key_Down);
    EXPECT_EQ(t.p.speichernfenster.name.text(), "eins");
    QTest::keyClick(dateien, Qt::Key_Down);
    EXPECT_EQ(t.p.speichernfenster.name.text(), "zwei");
}

TEST_F(Eingabefelder, DieListeDerFahrerMachtDasFensterNichtBreiter) {
    o.form1.resize(985, 700);
    QTest::qWait(50);
    for (const bool offen : {true, false}) {
        klick(o.form1, "Form1.command_liste");
        o.takt.ausfuehren();
        QTest::qWait(50);
        EXPECT_EQ(finde<QWidget>(o.form1, "Form1.fahrerreihe")->isVisible(), offen);
        EXPECT_EQ(finde<QWidget>(o.form1, "Form1.Command10")->isVisible(), !offen);
        EXPECT_EQ(finde<QWidget>(o.form1, "Form1.Frame_liste")->width() > 100, offen);
        EXPECT_EQ(o.form1.width(), 985) << "as wide as a small screen";
        EXPECT_NE(o.form1.focusWidget(), nullptr);
        EXPECT_EQ(finde<QWidget>(o.form1, "Form1.command_liste")->hasFocus(), !offen);
    }
}

TEST_F(Eingabefelder, NamenWerdenAngebotenUndNieUngefragtEingesetzt) {
    auto* fahrer = finde<QComboBox>(o.form1, "Form1.fahrer_0");
    const auto tippen_und = [&](const char* text, std::initializer_list<Qt::Key> tasten) {
        fahrer->setFocus();
        fahrer->lineEdit()->selectAll();
        QTest::keyClicks(fahrer, text);
        for (const Qt::Key taste : tasten) {
            QWidget* offen = fahrer->completer()->popup();
            QTest::keyClick(offen->isVisible() ? offen : fahrer, taste);
        }
        return t.p.form1.fahrer[0].text();
    };
    EXPECT_EQ(tippen_und("Fahr", {Qt::Key_Tab}), "Fahr") << "several begin so";
    EXPECT_EQ(tippen_und("fahr", {Qt::Key_Return}), "fahr");
    t.p.zuletzt_gefahren.gefahren(t.p.ablage, {"Maximilian Muster"});  // in no list
    EXPECT_EQ(tippen_und("mus", {Qt::Key_Return}), "Maximilian Muster") << "the one that is left";
    EXPECT_EQ(tippen_und("mus", {Qt::Key_Down, Qt::Key_Return}), "Maximilian Muster");
    EXPECT_EQ(tippen_und("max", {Qt::Key_Tab}), "Maximilian Muster");
    EXPECT_FALSE(fahrer->hasFocus() || fahrer->lineEdit()->hasFocus()) << "on to the next field";
    EXPECT_EQ(tippen_und("max", {Qt::Key_Escape, Qt::Key_Return}), "max");
    EXPECT_EQ(tippen_und("max", {Qt::Key_Backspace}), "ma") << "nothing is put in before it is chosen";
    EXPECT_EQ(tippen_und("fahr", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}), "Fahrer 2");
}

}  // namespace
}  // namespace tarvel
