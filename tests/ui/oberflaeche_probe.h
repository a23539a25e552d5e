#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "tests/programm_probe.h"
#include "ui/oberflaeche.h"

namespace tarvel::test {

/// The program with its real windows, on the test machine.
class OberflaecheProbe : public testing::Test {
protected:
    template <class Widget>
    Widget* finde(QWidget& fenster, const char* name) {
        auto* widget = fenster.findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void klick(QWidget& fenster, const char* name) {
        QTest::mouseClick(finde<QAbstractButton>(fenster, name), Qt::LeftButton);
    }
    void tippen(QWidget& fenster, const char* name, const char* text) {
        auto* zeile = finde<QLineEdit>(fenster, name);
        zeile->selectAll();
        QTest::keyClicks(zeile, text);
    }
    /// Keys as the window system sends them: to the widget that has the focus.
    void taste(QWidget& fenster, char zeichen) {
        fenster.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
        QTest::keyClick(fenster.focusWidget() != nullptr ? fenster.focusWidget() : &fenster, zeichen);
    }
    QString anzeige(QWidget& fenster, const char* name) {
        o.takt.ausfuehren();
        return finde<ui::TextAnzeige>(fenster, name)->text();
    }

    testprogramm t;
    ui::Oberflaeche o{t.p};

    void SetUp() override {
        t.p.fenster.zeigen(fenstername::Form1);
        o.takt.ausfuehren();
    }
};

}  // namespace tarvel::test
