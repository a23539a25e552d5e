#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <fstream>
#include <vector>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

#include "hardware/iow_leitung.h"
#include "platform_qt/druckerport.h"
#include "platform_qt/qt_abtaster.h"
#include "platform_qt/qt_bibliothek.h"
#include "platform_qt/qt_dienste.h"
#include "platform_qt/qt_meldungen.h"
#include "platform_qt/qt_prozess.h"
#include "tests/plattform/test_iowkit.h"
#include "tests/plattform/testprogramm.h"
#include "ui/oberflaeche.h"

namespace tarvel {
namespace {

#ifndef Q_OS_WIN
TEST(Druckerport, PortdateiLiestUndSchreibtDasByteAnDerAdresse) {
    test::test_plattform maschine;
    maschine.datei_schreiben("port", std::string(0x400, '\x11'));
    qt::Portdatei port(maschine.ordner() / "port");
    EXPECT_TRUE(port.schreiben(0x378, 0xA5));
    EXPECT_EQ(port.lesen(0x378), 0xA5);
    EXPECT_EQ(port.lesen(0x379), 0x11);
    std::string erwartet(0x400, '\x11');
    erwartet[0x378] = '\xA5';
    EXPECT_EQ(maschine.datei_lesen("port"), erwartet);
    EXPECT_FALSE(port.lesen(0x400) || port.lesen(-1) || port.lesen(0x10378));
    EXPECT_FALSE(port.schreiben(-1, 1) || port.schreiben(0x10378, 1));
    qt::Portdatei ohne(maschine.ordner() / "fehlt");
    EXPECT_FALSE(ohne.lesen(0x378) || ohne.schreiben(0x378, 1));
    EXPECT_FALSE(maschine.datei_da("fehlt"));
}
#endif

TEST(Meldungen, EnterSagtNeinAberEinAngebotNimmtEsAn) {
    qt::QtMeldungen meldungen;
    const auto mit_taste = [&](Qt::Key taste, auto stellen) {
        QTimer::singleShot(0, qApp, [taste] { QTest::keyClick(QApplication::activeModalWidget(), taste); });
        return (meldungen.*stellen)("Weiter?", "Hinweis", {"Weiterfahren", "Später"});
    };
    EXPECT_FALSE(mit_taste(Qt::Key_Return, &qt::QtMeldungen::fragen));
    EXPECT_TRUE(mit_taste(Qt::Key_Return, &qt::QtMeldungen::anbieten));
    EXPECT_FALSE(mit_taste(Qt::Key_Escape, &qt::QtMeldungen::anbieten));
    EXPECT_TRUE(mit_taste(Qt::Key_W, &qt::QtMeldungen::fragen)) << "its words are those of this question";
}

TEST(Bibliothek, WirdNachNamenGeladenUndKenntIhreRufe) {
    qt::QtBibliothekDienst dienst;
    EXPECT_EQ(dienst.laden("tarvel_gibt_es_nicht"), nullptr);
    const auto bibliothek = dienst.laden("Qt6Core");
    ASSERT_NE(bibliothek, nullptr);
    auto* const version = bibliothek->finden_als<const char*()>("qVersion");
    ASSERT_NE(version, nullptr);
    EXPECT_STREQ(version(), qVersion());
    EXPECT_EQ(bibliothek->finden("tarvel_gibt_es_nicht"), nullptr);
}

struct HaengendePlatine : testing::Test {
    HaengendePlatine() { brett.eintragen(bibliotheken); }
    ~HaengendePlatine() override { brett.haengt = false; }
    bool fertig(int schliessungen) {
        return QTest::qWaitFor([&] { return brett.schliessungen == schliessungen; });
    }

    test::test_iowkit brett;
    test::test_bibliotheken bibliotheken;
    qt::QtUhr uhr;
};

TEST_F(HaengendePlatine, HaeltNurIhrenFadenAuf) {
    qt::QtAbtasterDienst dienst(uhr);
    const auto bibliothek = std::make_shared<iow_bibliothek>(bibliotheken);
    iow_leitung leitung(bibliothek, dienst);
    ASSERT_TRUE(leitung.oeffnen(nullptr));
    brett.haengt = true;
    for (std::uint8_t wert = 1; wert <= 3; ++wert) {
        EXPECT_TRUE(leitung.schreiben(std::array<std::uint8_t, 2>{0, wert}));
    }
    QThread::msleep(50);
    EXPECT_EQ(brett.ausgang[1], 0);
    brett.haengt = false;
    leitung.schliessen();
    EXPECT_EQ(brett.schliessungen, 1) << "it is waited for";
    EXPECT_EQ(brett.ausgang[1], 3) << "in their order";
}

/// The operator closes its window, or takes another device: that must not wait for it.
TEST_F(HaengendePlatine, WirdBeimSchliessenZurueckgelassen) {
    qt::QtAbtasterDienst dienst(uhr);
    const auto bibliothek = std::make_shared<iow_bibliothek>(bibliotheken);
    auto leitung = std::make_unique<iow_leitung>(bibliothek, dienst);
    ASSERT_TRUE(leitung->oeffnen(std::make_shared<kontaktproben>(0)));
    brett.haengt = true;
    EXPECT_TRUE(leitung->schreiben(std::array<std::uint8_t, 2>{0, 1}));
    EXPECT_TRUE(leitung->schreiben(std::array<std::uint8_t, 2>{0, 2}));
    QThread::msleep(20);
    const zeit_ms vorher = uhr.jetzt();
    leitung.reset();
    EXPECT_LT(uhr.jetzt() - vorher, 500);
    EXPECT_EQ(brett.schliessungen, 0);
    iow_leitung andere(bibliothek, dienst);
    EXPECT_FALSE(andere.oeffnen(nullptr)) << "nobody else hangs in it too";
    brett.haengt = false;
    EXPECT_TRUE(fertig(1));
    EXPECT_EQ(brett.ausgang[1], 2) << "the last word";
    EXPECT_TRUE(andere.oeffnen(nullptr));
}

TEST_F(HaengendePlatine, HaeltAuchDasEndeNichtAuf) {
    const zeit_ms vorher = uhr.jetzt();
    {
        qt::QtAbtasterDienst dienst(uhr);
        iow_leitung leitung(std::make_shared<iow_bibliothek>(bibliotheken), dienst);
        ASSERT_TRUE(leitung.oeffnen(nullptr));
        brett.haengt = true;
        EXPECT_TRUE(leitung.schreiben(std::array<std::uint8_t, 2>{0, 1}));
        QThread::msleep(20);
    }
    EXPECT_LT(uhr.jetzt() - vorher, 3000);
    brett.haengt = false;
    EXPECT_TRUE(fertig(1)) << "were the process still there";
}

std::vector<std::pair<int, int>> geschrieben;

short lesen(short adresse) {
    return static_cast<short>(adresse == 0x379 ? 0x78 : -1);
}
void schreiben(short adresse, short wert) {
    geschrieben.emplace_back(adresse, wert);
}

TEST(Druckerport, PortbibliothekOhneIhreBeidenRufeIstKeinPort) {
    test::test_bibliotheken bibliotheken;
    bibliotheken.ruf("inpoutx64", "Inp32", lesen);
    {
        qt::Portbibliothek halb(bibliotheken);
        EXPECT_FALSE(halb.lesen(0x379) || halb.schreiben(0x378, 1));
        EXPECT_EQ(halb.weg(), "inpout32, Out32") << "what is missing";
    }
    EXPECT_EQ(bibliotheken.geladen, 0);
    bibliotheken.ruf("inpoutx64", "Out32", schreiben);
    qt::Portbibliothek port(bibliotheken);
    EXPECT_EQ(port.lesen(0x379), 0x78);
    EXPECT_EQ(port.lesen(0x37A), 0xFF);
    EXPECT_TRUE(port.schreiben(0x378, 0xFE));
    EXPECT_FALSE(port.lesen(-1) || port.schreiben(0x10000, 1));
    EXPECT_EQ(geschrieben, (std::vector<std::pair<int, int>>{{0x378, 0xFE}}));
    bibliotheken.da.clear();
    test::test_druckerport anderer;
    anderer.register_werte[0x378] = 7;
    qt::Portbibliothek ohne(bibliotheken, &anderer);
    EXPECT_EQ(ohne.lesen(0x378), 7);
    EXPECT_TRUE(ohne.schreiben(0x378, 9));
    EXPECT_EQ(anderer.register_werte[0x378], 9);
}

TEST(Prozess, EineSperreOhneLebendenBesitzerHaeltNiemandenAuf) {
    test::test_plattform maschine;
    const QString sperre = QString::fromStdU16String((maschine.ordner() / "tarvel.lock").u16string());
    const QByteArray fremd = "1\nanderes\nalter-rechnername\n\n\n";
    for (const QByteArray& inhalt : {QByteArray(), QByteArray("unfug"), QByteArray(100000, '9'), fremd}) {
        maschine.datei_schreiben("tarvel.lock", inhalt.toStdString());
        qt::QtProzess erste(sperre);
        EXPECT_TRUE(erste.ist_einzige_instanz()) << inhalt.left(20).toStdString();
        qt::QtProzess zweite(sperre);
        EXPECT_FALSE(zweite.ist_einzige_instanz()) << "its owner lives";
        EXPECT_TRUE(erste.ist_einzige_instanz());
    }
#ifndef Q_OS_WIN
    ASSERT_EQ(mkfifo((maschine.ordner() / "tarvel.lock").c_str(), 0600), 0);
    EXPECT_TRUE(qt::QtProzess(sperre).ist_einzige_instanz()) << "and nobody waits for the other end of a pipe";
#endif
}

#ifndef Q_OS_WIN
TEST(Prozess, SperreEinesLebendenBleibtAuchUnlesbar) {
    test::test_plattform maschine;
    const QString sperre = QString::fromStdU16String((maschine.ordner() / "tarvel.lock").u16string());
    qt::QtProzess erste(sperre);
    ASSERT_TRUE(erste.ist_einzige_instanz());
    maschine.datei_schreiben("tarvel.lock", "");  // the same file, emptied
    EXPECT_FALSE(qt::QtProzess(sperre).ist_einzige_instanz());
}

TEST(Dateien, EinePipeIstKeineDateiWelcherArtAuchImmer) {
    test::testprogramm t;
    for (const char* name : {"pictures/nopic.jpg", "slotcars/nocar.gif", "tvkpic1.jpg", "tvkpic3.gif",
                             "ampel/rt_an.gif", "ampel/rt_aus.gif", "ampel/gr_aus.gif", "sound/rs.wav",
                             "Listen/fahrer.lst", "Einstellungen/einstellungen.ini", "trennzeichen.ini", "tvk.ini",
                             "tvk_taste.ini", "Ergebnisse/Bestzeiten/bestefile.bst", "language/language_m1.txt"}) {
        const auto pfad = t.maschine.ordner() / name;
        std::filesystem::create_directories(pfad.parent_path());
        std::filesystem::remove(pfad);
        ASSERT_EQ(mkfifo(pfad.c_str(), 0600), 0) << name;
    }
    programm p(t.maschine.dienste());
    ui::Oberflaeche o(p);
    p.starten();
    p.form1.Command1.klicken();
    p.rennen.bahn1.Command1.klicken();
    for (int mal = 0; mal < 20; ++mal) {
        t.maschine.laufen(500);
        o.takt.ausfuehren();
        QTest::qWait(5);
    }
    EXPECT_TRUE(p.fenster.ist_offen(fenstername::bahn1)) << "it came so far without waiting for a pipe";
}
#endif

}  // namespace
}  // namespace tarvel
