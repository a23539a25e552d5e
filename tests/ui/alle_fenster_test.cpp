#include <QAccessible>
#include <QPushButton>
#include <QWidget>
#include <filesystem>
#include <map>
#include <utility>

#include "tests/plattform/vereinswettkampf.h"
#include "tests/ui/oberflaeche_probe.h"
#include "tests/ui/textmasse.h"
#include "tests/ui/ueberdeckung.h"

namespace tarvel {
namespace {

class AlleFenster : public test::OberflaecheProbe {
protected:
    std::vector<ui::Fenster*> alle_fenster() {
        o.fenster.alle_machen();
        std::vector<ui::Fenster*> alle;
        for (QWidget* fenster : QApplication::topLevelWidgets()) {
            if (auto* eines = dynamic_cast<ui::Fenster*>(fenster)) {
                alle.push_back(eines);
            }
        }
        return alle;
    }
    /// Each window as its operator opens it, behind a race of six lanes.
    void alle_zeigen() {
        t.mit_bestzeiten = true;
        t.starten("Runden", "1", {1, 2, 3, 4, 5, 6});
        t.runde_nach(1000, "123456");
        t.runde_nach(6000, "123456");
        t.p.auswertung.Command4.klicken();
        t.p.auswertung.Command5.klicken();
        EXPECT_EQ(t.p.beste_zeiten_fenster.btext_name[5].text(), "Fahrer 6");
        t.p.form1.Command5.klicken();
        t.p.form1.Command4.klicken();
        t.p.einstellungsfenster.fahrerseite.Liste_speichern.klicken();
        t.p.einstellungsfenster.fahrerseite.namen.auswaehlen(0);
        t.p.einstellungsfenster.fahrerseite.anderes_bild.klicken();
        std::get<befehl>(t.p.einstellungsfenster.zeile("uart_einrichten").element).klicken();
        t.p.geraete.fenster<uart_profildatei>().oeffnen("klub.uart");
        t.p.fenster.zeigen(fenstername::timekeeper);
        t.p.fenster.zeigen(fenstername::UART_probe);
        for (const char* zeile : {"iow_einrichten", "lpt_einrichten"}) {
            std::get<befehl>(t.p.einstellungsfenster.zeile(zeile).element).klicken();
        }
        const std::vector<ui::Fenster*> alle = alle_fenster();
        ASSERT_EQ(alle.size(), 38U);
        t.p.wettkampfabend.beginnen(test::vereinswettkampf::neu(wettkampf_modus::rotation, 5, {1, 2, 3}));
        for (const ui::Fenster* fenster : alle) {
            t.p.fenster.zeigen(fenster->kennung());
            EXPECT_TRUE(fenster->isVisible()) << fenster->objectName().toStdString();
        }
        o.takt.ausfuehren();
    }
    static bool nimmt_eingaben(const QWidget& feld) {
        for (const QWidget* um = feld.parentWidget(); um != nullptr; um = um->parentWidget()) {
            if (um->inherits("QComboBox")) {
                return false;  // its line and its list
            }
        }
        constexpr std::array arten{"QLineEdit",    "QTextEdit",        "QComboBox", "QCheckBox",
                                   "QRadioButton", "QAbstractSpinBox", "QListView"};
        return std::any_of(arten.begin(), arten.end(), [&](const char* art) { return feld.inherits(art); });
    }
    /// What a screen reader reads.
    static QString angesagt(QWidget& feld) {
        return QAccessible::queryAccessibleInterface(&feld)->text(QAccessible::Name);
    }
    /// What Tab reaches in a window, in its order.
    static std::vector<QRect> tabfolge(const QWidget& fenster) {
        std::vector<QRect> folge;
        for (QWidget* ziel = fenster.nextInFocusChain(); ziel != &fenster; ziel = ziel->nextInFocusChain()) {
            const bool erreichbar = (ziel->focusPolicy() & Qt::TabFocus) != 0 && ziel->focusProxy() == nullptr;
            if (erreichbar && ziel->isVisible() && ziel->isEnabled() && ziel->window() == &fenster) {
                folge.emplace_back(ziel->mapTo(&fenster, QPoint()), ziel->size());
            }
        }
        return folge;
    }
    static void folgt_dem_auge(const QWidget& fenster) {
        const std::vector<QRect> folge = tabfolge(fenster);
        for (std::size_t i = 1; i < folge.size(); ++i) {
            const QRect& von = folge[i - 1];
            const QRect& nach = folge[i];
            const bool hinauf = nach.bottom() < von.top() && nach.left() <= von.right();  // not to the next column
            const bool zurueck = nach.bottom() >= von.top() && nach.top() <= von.bottom() && nach.right() < von.left();
            EXPECT_FALSE(hinauf || zurueck) << fenster.objectName().toStdString() << ": from " << von.x() << ","
                                            << von.y() << " to " << nach.x() << "," << nach.y();
        }
    }
};

TEST_F(AlleFenster, JedesFeldHatNamenUndAnsage) {
    alle_zeigen();
    for (const ui::Fenster* fenster : alle_fenster()) {
        for (QWidget* feld : fenster->findChildren<QWidget*>()) {
            if (nimmt_eingaben(*feld) && feld->window() == fenster) {
                const std::string name = feld->objectName().toStdString();
                EXPECT_TRUE(feld->objectName().startsWith(fenster->objectName() + "."))
                    << fenster->objectName().toStdString() << ": " << name << " " << feld->metaObject()->className();
                EXPECT_FALSE(angesagt(*feld).trimmed().isEmpty()) << name;
            }
        }
    }
}

TEST_F(AlleFenster, TabFolgtInJedemFensterDemAuge) {
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(6000, "2");
    for (ui::Fenster* fenster : alle_fenster()) {
        if (fenster == &*o.einstellungen) {
            continue;  // one page after the other, below
        }
        fenster->show();
        fenster->resize(1280, 1024);
        o.takt.ausfuehren();
        QTest::qWait(20);
        folgt_dem_auge(*fenster);
    }
    constexpr QSize ohne_rollen(1280, 2600);
    for (int seite = 0; seite < einstellungsfenster::seiten_anzahl; ++seite) {
        t.p.einstellungsfenster.oeffnen(static_cast<einstellungsfenster::seitennummer>(seite));
        o.einstellungen->resize(ohne_rollen);
        o.takt.ausfuehren();
        QTest::qWait(20);
        folgt_dem_auge(*o.einstellungen);
    }
}

TEST_F(AlleFenster, FensterPassenAufDenKleinenBildschirm) {
    constexpr QSize platz(1000, 740);  // of 1024x768, without the window's frame
    alle_zeigen();
    const auto passt = [&](const ui::Fenster& fenster) {
        const QSize mindestens = fenster.minimumSizeHint().expandedTo(fenster.minimumSize());
        EXPECT_LE(mindestens.width(), platz.width()) << fenster.objectName().toStdString();
        EXPECT_LE(mindestens.height(), platz.height()) << fenster.objectName().toStdString();
    };
    for (const ui::Fenster* fenster : alle_fenster()) {
        passt(*fenster);
    }
    for (int seite = 0; seite < einstellungsfenster::seiten_anzahl; ++seite) {
        t.p.einstellungsfenster.seitenliste.auswaehlen(seite);
        o.takt.ausfuehren();
        passt(*o.einstellungen);
    }
}

TEST_F(AlleFenster, KnoepfeHabenJeFensterVerschiedeneKuerzel) {
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(6000, "2");
    t.p.form1.Command7.klicken();
    for (ui::Fenster* fenster : alle_fenster()) {
        QStringList kuerzel;
        for (const QPushButton* knopf : fenster->findChildren<QPushButton*>()) {
            const qsizetype platz = knopf->text().indexOf('&');
            if (platz >= 0 && knopf->window() == fenster) {
                kuerzel << knopf->text().mid(platz + 1, 1).toLower();
            }
        }
        EXPECT_GE(kuerzel.size(), fenster == &o.form1 ? 10 : 0);
        EXPECT_EQ(kuerzel.removeDuplicates(), 0) << fenster->objectName().toStdString();
    }
    for (const char* name : {"Form1.Command11", "Form1.command_liste", "Form1.command_zuletzt"}) {
        EXPECT_TRUE(finde<QPushButton>(o.form1, name)->text().contains('&')) << "another has made room: " << name;
    }
    t.p.fenster.entladen(fenstername::speichernfenster);
    t.p.form1.Command1.text("J && B");
    o.takt.ausfuehren();
    auto* knopf = finde<QPushButton>(o.form1, "Form1.Command1");
    EXPECT_EQ(QString(knopf->text()).remove("&&"), "&J  B") << "an ampersand of the text is no mark";
    t.p.form1.Command1.text("7");
    o.takt.ausfuehren();
    EXPECT_EQ(knopf->text(), "7 (&J)") << "it keeps its letter";
    t.p.form1.Command1.text("Einzelrennen");
    o.takt.ausfuehren();
    o.form1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    QTest::keyClick(&o.form1, knopf->text().at(knopf->text().indexOf('&') + 1).toLower().toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return t.p.fenster.ist_offen(fenstername::bahn1); }, 2000))
        << "the press is shown first";
}

TEST_F(AlleFenster, AuchEinFensterDasEbenGemachtWurdeHatSeinenFokus) {
    t.maschine.datei_schreiben("Ergebnisse/Einzelrennen/Sonntag.csv", "");
    t.p.fenster.zeigen(fenstername::w_auswertung2);
    QTest::qWait(60);
    o.takt.ausfuehren();
    ASSERT_NE(o.w_auswertung2->focusWidget(), nullptr);
    EXPECT_EQ(o.w_auswertung2->focusWidget()->objectName(), "w_auswertung2.File1");
}

TEST_F(AlleFenster, EineSpracheHatIhreKuerzelWieAuchImmerManZuIhrKommt) {
    std::filesystem::copy(TARVEL_QUELLEN "/data/language-en", t.maschine.ordner() / "language-en");
    const auto beschriftungen = [this] {
        std::string alle;
        for (const QPushButton* knopf : o.form1.findChildren<QPushButton*>()) {
            alle += knopf->window() == &o.form1 ? knopf->text().toStdString() + ", " : "";
        }
        return alle;
    };
    const std::string deutsch = beschriftungen();
    t.erscheinen({"language-en", aussehen::hell});
    const std::string englisch = beschriftungen();
    EXPECT_NE(englisch, deutsch);
    t.p.fenster.verbergen(fenstername::Form1);
    t.p.fenster.zeigen(fenstername::Form1);
    EXPECT_EQ(beschriftungen(), englisch) << "as the next start has them";
    t.erscheinen({"language", aussehen::hell});
    EXPECT_EQ(beschriftungen(), deutsch);
    o.form1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.form1));
    QTest::keyClick(&o.form1, Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(o.form1.focusWidget(), finde<QWidget>(o.form1, "Form1.fahrer_1"));
    EXPECT_TRUE(t.p.form1.spur[1].gesetzt()) << "the key does not press the box";
    const QString auswertung = finde<QPushButton>(o.form1, "Form1.Command18")->text();
    QTest::keyClick(&o.form1, auswertung.at(auswertung.indexOf('&') + 1).toLower().toLatin1(), Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return t.p.fenster.ist_offen(fenstername::w_auswertung2); }, 2000));
}

class AlleTexte : public AlleFenster, public testing::WithParamInterface<const char*> {};

TEST_P(AlleTexte, HabenIhrenPlatzUndNichtsLiegtAufIhnen) {
    constexpr QSize platz(1000, 740);  // of 1024x768, without the window's frame
    std::filesystem::copy(TARVEL_QUELLEN "/data/language-en", t.maschine.ordner() / "language-en");
    std::map<const ui::Fenster*, QSize> groesse;  // before the small screen of the tests limits them
    for (const ui::Fenster* fenster : alle_fenster()) {
        groesse[fenster] = fenster->size();
    }
    t.erscheinen({GetParam(), aussehen::hell});
    alle_zeigen();
    const auto pruefen = [&](ui::Fenster& fenster) {
        fenster.resize(fenster.size().expandedTo(groesse.at(&fenster)).boundedTo(platz));
        constexpr int gesetzt_ms = 1000;  // layouts settle in several turns of the loop, on a busy machine late
        QStringList funde;
        (void)QTest::qWaitFor(
            [&] {
                o.takt.ausfuehren();
                QTest::qWait(20);
                funde = test::beschnittene_texte(fenster) + test::ueberdeckte_widgets(fenster);
                return funde.isEmpty();
            },
            gesetzt_ms);
        for (const QString& text : std::as_const(funde)) {
            ADD_FAILURE() << text.toStdString() << " in " << fenster.width() << "x" << fenster.height();
        }
    };
    for (ui::Fenster* fenster : alle_fenster()) {
        pruefen(*fenster);
    }
    EXPECT_EQ(test::ueberdeckte_widgets(*o.timekeeper).join("; ").toStdString(), "") << "24 choices close together";
    for (int seite = 0; seite < einstellungsfenster::seiten_anzahl; ++seite) {
        t.p.einstellungsfenster.seitenliste.auswaehlen(seite);
        pruefen(*o.einstellungen);
    }
}

TEST_F(AlleFenster, WechselnDieSpracheUndDasFensterBleibtWieEsIst) {
    std::filesystem::copy(TARVEL_QUELLEN "/data/language-en", t.maschine.ordner() / "language-en");
    const auto sichtbare_seiten = [this] {
        t.p.form1.Command4.klicken();
        o.takt.ausfuehren();
        QTest::qWait(20);
        int anzahl = 0;
        for (int nummer = 0; nummer < einstellungsfenster::seiten_anzahl; ++nummer) {
            const QString name = "einstellungen.seite_" + QString::number(nummer);
            anzahl += o.einstellungen->findChild<QWidget*>(name)->isVisible() ? 1 : 0;
        }
        t.p.einstellungsfenster.Command2.klicken();
        return anzahl;
    };
    ASSERT_EQ(sichtbare_seiten(), 1);
    for (const char* sprache : {"language-en", "language"}) {
        t.erscheinen({sprache, aussehen::dunkel});
        EXPECT_EQ(sichtbare_seiten(), 1) << sprache;
        EXPECT_LE(o.einstellungen->minimumSizeHint().height(), 740);
    }
}

INSTANTIATE_TEST_SUITE_P(Sprachen, AlleTexte, testing::Values("language", "language-en"));

}  // namespace
}  // namespace tarvel
