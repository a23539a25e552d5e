#include "ui/hilfe.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <filesystem>
#include <set>

#include "optionen/erklaerungen.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

QStringList zeilen_von(const char* datei) {
    QFile f(QString(TARVEL_QUELLEN "/docs/") + datei);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << datei;
    return QString::fromUtf8(f.readAll()).split('\n');
}

/// As it reads without its marks.
QString klar(QString text) {
    static const QRegularExpression verweis("\\[([^\\]]*)\\]\\([^)]*\\)");
    return text.replace(verweis, "\\1").remove('`');
}

class HilfeTest : public test::OberflaecheProbe {
protected:
    void SetUp() override {
        fs::copy(TARVEL_QUELLEN "/docs", t.maschine.ordner() / "Hilfe", fs::copy_options::recursive);
        OberflaecheProbe::SetUp();
    }

    void f1(QWidget& fenster) {
        fenster.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
        QTest::keyClick(fenster.focusWidget() != nullptr ? fenster.focusWidget() : &fenster, Qt::Key_F1);
    }
    /// The line at the top of the page.
    QString oben() { return o.hilfe.handbuch()->cursorForPosition({30, 30}).block().text(); }
};

TEST_F(HilfeTest, JedeEinstellungIstErklaertUndImHandbuchStehtDasselbe) {
    std::set<std::size_t> gebraucht;
    t.p.form1.Command4.klicken();
    for (int nummer = 0; nummer < einstellungsfenster::seiten_anzahl; ++nummer) {
        const optionsseite* seite = t.p.einstellungsfenster.zeilenseite(nummer);
        for (std::size_t g = 0; seite != nullptr && g < seite->gruppen.size(); ++g) {
            for (const auto& zeile : seite->gruppen[g]->zeilen) {
                const auto platz = erklaerung_fuer(zeile->name);
                ASSERT_TRUE(platz) << zeile->name;
                EXPECT_EQ(erklaerungen()[*platz].seite, seite->deutsch) << zeile->name;
                EXPECT_EQ(zeile->beschriftung.tipp(), erklaerungen()[*platz].deutsch) << zeile->name;
                gebraucht.insert(*platz);
            }
        }
    }
    EXPECT_EQ(gebraucht.size(), erklaerungen().size()) << "one explains nothing";
    std::size_t zeile = 0;
    for (const QString& eine : zeilen_von("Einstellungen.md")) {
        if (eine.startsWith("| ") && !eine.startsWith("| Einstellung |")) {
            ASSERT_LT(zeile, erklaerungen().size());
            const erklaerung& e = erklaerungen()[zeile++];
            EXPECT_EQ(klar(eine).toStdString(), "| " + std::string(e.titel) + " | " + std::string(e.deutsch) + " |");
        }
    }
    EXPECT_EQ(zeile, erklaerungen().size());
}

TEST_F(HilfeTest, JedesFensterHatSeinKapitel) {
    QSet<QString> anker;
    for (const QString& zeile : zeilen_von("Handbuch.md")) {
        if (zeile.startsWith("## ") || zeile.startsWith("### ")) {
            anker.insert(ui::anker_von(zeile.section(' ', 1)));
        }
    }
    o.fenster.alle_machen();
    for (const QWidget* fenster : QApplication::topLevelWidgets()) {
        if (const auto* eines = dynamic_cast<const ui::Fenster*>(fenster)) {
            const ui::hilfeort ort = ui::hilfe_zu(eines->kennung());
            const bool vor_dem_programm =
                eines->kennung() == fenstername::Update_form || eines->kennung() == fenstername::Form3;
            EXPECT_TRUE(vor_dem_programm || ort.datei == "Einstellungen.md" || anker.contains(ort.anker))
                << eines->objectName().toStdString() << " " << ort.anker.toStdString();
        }
    }
}

TEST_F(HilfeTest, F1SchlaegtDasKapitelAufUndDerVerweisFuehrtWeiter) {
    f1(o.form1);
    ASSERT_NE(o.hilfe.handbuch(), nullptr);
    EXPECT_EQ(oben(), "Das Hauptfenster");
    QTest::keyClick(o.hilfe.handbuch(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(o.hilfe.handbuch(), nullptr);

    t.p.einst.hardware.hw_uart = true;
    f1(o.form1);
    EXPECT_EQ(o.hilfe.handbuch(), nullptr) << "there the key chooses the device's file of commands";
    t.p.einst.hardware.hw_uart = false;

    t.p.form1.Command4.klicken();
    o.takt.ausfuehren();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.einstellungen));
    o.takt.ausfuehren();  // the window's own wish for the focus comes first
    auto* kasten = finde<QWidget>(*o.einstellungen, "einstellungen.blinken_an");
    kasten->setFocus();
    QTest::keyClick(kasten, Qt::Key_F1);
    ASSERT_NE(o.hilfe.handbuch(), nullptr);
    EXPECT_EQ(o.hilfe.handbuch()->textCursor().selectedText().trimmed(), "Blinken vor Rennbeginn");
    emit o.hilfe.handbuch()->anchorClicked(QUrl("Handbuch.md#einfahren"));
    EXPECT_EQ(oben(), "Einfahren");
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
}

}  // namespace
}  // namespace tarvel
