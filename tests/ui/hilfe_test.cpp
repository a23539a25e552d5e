#include "ui/hilfe.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextBlock>
#include <filesystem>
#include <map>

#include "optionen/erklaerungen.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

/// Where the pages of a language lie.
const std::map<std::string, std::string> ordner_der_sprache{{"language", ""}, {"language-en", "en/"}};

QStringList zeilen_von(const std::string& datei) {
    QFile f(QString::fromStdString(TARVEL_QUELLEN "/docs/" + datei));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << datei;
    return QString::fromUtf8(f.readAll()).split('\n');
}

/// As it reads without its marks.
QString klar(QString text) {
    static const QRegularExpression verweis("\\[([^\\]]*)\\]\\([^)]*\\)");
    return text.replace(verweis, "\\1").remove('`');
}

/// The cells of the tables, a row a line, without the heads.
std::vector<QStringList> tabellenzeilen(const std::string& datei) {
    std::vector<QStringList> gefunden;
    const QStringList zeilen = zeilen_von(datei);
    for (qsizetype i = 0; i < zeilen.size(); ++i) {
        if (zeilen[i].startsWith("|--")) {
            gefunden.pop_back();
        } else if (zeilen[i].startsWith("| ")) {
            gefunden.push_back(klar(zeilen[i]).split(" | "));
        }
    }
    return gefunden;
}

/// What a page has, in its order, whatever its language: chapters, pictures, rows, items of lists, commands to type.
QString geruest(const std::string& datei) {
    static const QRegularExpression zeile("^(#+ |\\||- |\\d\\.|    |!\\[)(?:[^\\]\n]*\\]\\((?:\\.\\./)?([^)]+)\\)$)?",
                                          QRegularExpression::MultilineOption);
    QString alles;
    for (auto treffer = zeile.globalMatch(zeilen_von(datei).join('\n')); treffer.hasNext();) {
        const auto eines = treffer.next();
        alles += eines.captured(1) + (eines.captured(1) == "![" ? eines.captured(2) : QString()) + '\n';
    }
    return alles;
}

QStringList anker_von_seite(const std::string& datei) {
    QStringList anker;
    for (const QString& zeile : zeilen_von(datei)) {
        if (zeile.startsWith('#')) {
            anker << ui::anker_von(zeile.section(' ', 1));
        }
    }
    return anker;
}

class HilfeTest : public test::OberflaecheProbe {
protected:
    void SetUp() override {
        fs::copy(TARVEL_QUELLEN "/docs", t.maschine.ordner() / "Hilfe", fs::copy_options::recursive);
        fs::copy(TARVEL_QUELLEN "/data/language-en", t.maschine.ordner() / "language-en", fs::copy_options::recursive);
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
    for (const auto& [sprache, ordner] : ordner_der_sprache) {
        t.erscheinen({sprache, aussehen::hell});
        std::map<std::size_t, std::string> tipps;
        t.p.form1.Command4.klicken();
        for (int nummer = 0; nummer < einstellungsfenster::seiten_anzahl; ++nummer) {
            const optionsseite* seite = t.p.einstellungsfenster.zeilenseite(nummer);
            for (std::size_t g = 0; seite != nullptr && g < seite->gruppen.size(); ++g) {
                for (const auto& zeile : seite->gruppen[g]->zeilen) {
                    const auto platz = erklaerung_fuer(zeile->name);
                    ASSERT_TRUE(platz) << zeile->name;
                    EXPECT_EQ(erklaerungen()[*platz].seite, seite->deutsch) << zeile->name;
                    tipps[*platz] = zeile->beschriftung.tipp();
                }
            }
        }
        t.p.einstellungsfenster.Command2.klicken();
        EXPECT_EQ(tipps.size(), erklaerungen().size()) << "one explains nothing";
        const auto zeilen = tabellenzeilen(ordner + "Einstellungen.md");
        ASSERT_EQ(zeilen.size(), erklaerungen().size()) << sprache;
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            ASSERT_EQ(zeilen[i].size(), 2) << zeilen[i].join('/').toStdString();
            EXPECT_EQ(zeilen[i][1].toStdString(), tipps[i] + " |");
            EXPECT_TRUE(!ordner.empty() || zeilen[i][0].toStdString() == "| " + std::string(erklaerungen()[i].titel));
        }
    }
}

TEST_F(HilfeTest, AlleSprachenHabenDieselbenKapitelUndJederVerweisEinZiel) {
    static const QRegularExpression verweis("\\]\\((\\w+\\.md)?#([^)]+)\\)");
    static const QRegularExpression bild("!\\[[^\\]]*\\]\\(([^)]+)\\)");
    for (const std::string datei : {"Handbuch.md", "Einstellungen.md"}) {
        EXPECT_EQ(geruest("en/" + datei).toStdString(), geruest(datei).toStdString());
        for (const auto& [sprache, ordner] : ordner_der_sprache) {
            for (auto treffer = bild.globalMatch(zeilen_von(ordner + datei).join('\n')); treffer.hasNext();) {
                const std::string name = treffer.next().captured(1).toStdString();
                EXPECT_TRUE(fs::exists(t.maschine.ordner() / "Hilfe" / ordner / name)) << ordner << name;
            }
            for (auto treffer = verweis.globalMatch(zeilen_von(ordner + datei).join('\n')); treffer.hasNext();) {
                const auto einer = treffer.next();
                const std::string seite = einer.captured(1).isEmpty() ? datei : einer.captured(1).toStdString();
                EXPECT_TRUE(anker_von_seite(ordner + seite).contains(einer.captured(2)))
                    << ordner << datei << ": " << einer.captured(0).toStdString();
            }
        }
    }
}

TEST_F(HilfeTest, JedesFensterHatSeinKapitel) {
    const QStringList anker = anker_von_seite("Handbuch.md");
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

TEST_F(HilfeTest, F1SprichtDieSpracheDerFenster) {
    t.erscheinen({"language-en", aussehen::hell});
    f1(o.form1);
    ASSERT_NE(o.hilfe.handbuch(), nullptr);
    EXPECT_EQ(oben(), "The main window");
    EXPECT_EQ(o.hilfe.handbuch()->windowTitle(), "Handbook");
    EXPECT_EQ(t.maschine.knoepfe_der_fragen, "Yes/No/Cancel") << "which the handbook names";
    emit o.hilfe.handbuch()->anchorClicked(QUrl("Einstellungen.md"));
    EXPECT_EQ(oben(), "All settings");
    o.hilfe.handbuch()->aufschlagen({"Einstellungen.md", {}, static_cast<int>(*erklaerung_fuer("blinken_an"))});
    EXPECT_EQ(o.hilfe.handbuch()->textCursor().selectedText(), "Flash before race start");
    emit o.hilfe.handbuch()->anchorClicked(QUrl("Handbuch.md#warm-up"));
    EXPECT_EQ(oben(), "Warm-up");

    fs::rename(t.maschine.ordner() / "language-en", t.maschine.ordner() / "language-fr");
    t.erscheinen({"language-fr", aussehen::hell});
    f1(o.form1);
    EXPECT_EQ(oben(), "Das Hauptfenster") << "a language without a handbook";
}

}  // namespace
}  // namespace tarvel
