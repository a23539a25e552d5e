#include <QCompleter>
#include <QListView>

#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

using namen = std::vector<std::string>;

class Wettkampf1Fenster : public test::OberflaecheProbe {
protected:
    void SetUp() override {
        t.p.fahrerliste.hinzufuegen("Uwe Petersen");
        OberflaecheProbe::SetUp();
        klick(o.form1, "Form1.Command3");
        o.takt.ausfuehren();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.wettkampf1));
    }
    namen startliste() {
        QCoreApplication::processEvents();
        o.takt.ausfuehren();
        return t.p.wettkampf1.auswahlliste.zeilen();
    }
};

TEST_F(Wettkampf1Fenster, StartlisteMitDerTastatur) {
    auto* feld = finde<QComboBox>(*o.wettkampf1, "wettkampf1.auswahl");
    ASSERT_TRUE(feld->hasFocus() || feld->lineEdit()->hasFocus()) << "names can be typed at once";
    QTest::keyClicks(feld->lineEdit(), "Kim");
    QTest::keyClick(feld->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(startliste(), namen{"1   Kim"});
    QTest::keyClicks(feld->lineEdit(), "peters");
    QAbstractItemView* vorschlaege = feld->completer()->popup();
    ASSERT_TRUE(vorschlaege->isVisible());
    QTest::keyClick(vorschlaege, Qt::Key_Down);
    QTest::keyClick(vorschlaege, Qt::Key_Return);
    EXPECT_EQ(startliste(), (namen{"1   Kim", "2   Uwe Petersen"}));
    EXPECT_EQ(feld->currentText(), "");
    QTest::keyClicks(feld->lineEdit(), "Fahrer");  // as many begin, and stays as it is typed
    QTest::keyClick(feld->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(startliste().back(), "3   Fahrer");
    QTest::keyClick(&*o.wettkampf1, Qt::Key_Escape);
    EXPECT_FALSE(o.wettkampf1->isVisible());
}

}  // namespace
}  // namespace tarvel
