#include <QDropEvent>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>
#include <chrono>
#include <map>

#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class Oberflaeche : public test::OberflaecheProbe {};

TEST_F(Oberflaeche, ZweispurigesZeitrennenMitMausUndTasten) {
    klick(o.form1, "Form1.spur_2");
    klick(o.form1, "Form1.spur_3");
    tippen(o.form1, "Form1.renndauer", "0,30");
    tippen(o.form1, "Form1.lspur_0", "10");
    finde<QComboBox>(o.form1, "Form1.fahrer_0")->setEditText("Käthe");
    klick(o.form1, "Form1.Command1");
    ASSERT_TRUE(o.bahn1.isVisible());
    EXPECT_EQ(anzeige(o.bahn1, "bahn1.namenslabel_1"), "Käthe");
    EXPECT_FALSE(finde<QWidget>(o.bahn1, "bahn1.bahnshape_3")->isVisible());
    klick(o.bahn1, "bahn1.Command1");
    EXPECT_TRUE(o.form2.isVisible());
    t.maschine.laufen(11000 + 2000);
    EXPECT_FALSE(o.form2.isVisible());
    t.maschine.laufen(1000);
    taste(o.bahn1, '1');
    taste(o.bahn1, '2');
    t.maschine.laufen(8000);
    taste(o.bahn1, '2');
    t.maschine.laufen(1000);
    EXPECT_EQ(anzeige(o.bahn1, "bahn1.zaehler_2"), "1");
    EXPECT_EQ(anzeige(o.bahn1, "bahn1.lrunde_2"), "08,000");
    EXPECT_EQ(anzeige(o.bahn1, "bahn1.l_PosAnz_1"), "1");
    EXPECT_EQ(finde<QListView>(o.bahn1, "bahn1.t_liste_1")->model()->rowCount(), 2);
    t.maschine.laufen(21000);
    ASSERT_TRUE(o.auswertung.isVisible());
    EXPECT_EQ(anzeige(o.auswertung, "auswertung.fahrer_0"), "Käthe");
    EXPECT_EQ(anzeige(o.auswertung, "auswertung.platz_1"), "1.");
    EXPECT_LT(finde<QWidget>(o.auswertung, "auswertung.Frame_1")->y(),
              finde<QWidget>(o.auswertung, "auswertung.Frame_0")->y());
    klick(o.auswertung, "auswertung.Command5");
    ASSERT_TRUE(o.bestzeiten->isVisible()) << "the first laps on this track are its best";
    klick(*o.bestzeiten, "beste_zeiten_fenster.Command1");
    EXPECT_FALSE(o.auswertung.isVisible());
    EXPECT_FALSE(o.bahn1.isVisible());
    EXPECT_TRUE(o.form1.isVisible());
}

TEST_F(Oberflaeche, TasteZaehltEinmalUndGehaltenGarNichtNoch) {
    t.p.belegung.vorbelegen(belegung_stufe::standard);
    t.starten("Zeit", "5", {1});
    t.runden_auffuellen(1, 5);
    o.takt.ausfuehren();
    taste(o.bahn1, '!');
    EXPECT_EQ(t.runden(1), 4);
    QKeyEvent gehalten(QEvent::KeyPress, Qt::Key_Exclam, Qt::ShiftModifier, "!", true);
    QCoreApplication::sendEvent(o.bahn1.focusWidget() != nullptr ? o.bahn1.focusWidget() : &o.bahn1, &gehalten);
    EXPECT_EQ(t.runden(1), 4);
}

TEST_F(Oberflaeche, DieFeststelltasteHaeltKeinePauseAuf) {
    t.starten("Zeit", "5", {1, 2});
    t.maschine.laufen(3000);
    o.bahn1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.bahn1));
    QTest::keyClick(&o.bahn1, 'C', Qt::ShiftModifier);
    t.maschine.laufen(10);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv) << "typed so on purpose it is another key";
    taste(o.bahn1, 'C');
    t.maschine.laufen(10);
    EXPECT_TRUE(t.p.rennen.zustand.chaos_aktiv);
    t.p.belegung.taste(16, 'Q');
    taste(o.bahn1, 'Q');
    EXPECT_TRUE(t.p.ereignisse[16].aktiv) << "one that has a meaning itself keeps it";
}

TEST_F(Oberflaeche, MeldungHaeltKeineUeberfahrtZurueck) {
    using namespace std::chrono;
    t.starten("Zeit", "5", {1, 2});
    t.maschine.laufen(1000);
    QMessageBox meldung(QMessageBox::Question, "?", "?", QMessageBox::Ok, &o.bahn1);
    meldung.addButton("&2", QMessageBox::NoRole);
    meldung.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&meldung));
    QTest::keyClick(meldung.focusWidget(), '1');
    t.maschine.laufen(8000);
    EXPECT_EQ(t.runden(1), 0);
    QKeyEvent alt(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, "1");
    const auto jetzt = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    alt.setTimestamp(static_cast<quint64>(jetzt) - 300);
    QCoreApplication::sendEvent(meldung.focusWidget(), &alt);
    const zeit_ms alter = t.maschine.jetzt() - t.p.ereignisse[16].ereignis_zeit;
    EXPECT_GE(alter, 300) << "it has waited while the program was busy";
    EXPECT_LT(alter, 400);
    QTest::keyClick(meldung.focusWidget(), '2');
    t.maschine.laufen(1);
    EXPECT_EQ(t.runden(1), 1);
    EXPECT_EQ(t.runden(2), -1) << "the answer to the question";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !meldung.isVisible(); }));
}

TEST_F(Oberflaeche, WerGleichNachDemSiegerKommtZaehltAuchInDasErgebnisDasGeradeAufgeht) {
    t.starten("Runden", "1", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(7000, "1");
    t.maschine.laufen(200);
    ASSERT_TRUE(o.auswertung.isVisible());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.auswertung));
    ASSERT_EQ(t.runden(2), 0);
    QTest::keyClick(o.auswertung.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(o.auswertung.isVisible()) << "it was meant for the race";
    QTest::keyClick(o.auswertung.focusWidget(), '2');
    t.maschine.laufen(1000);
    EXPECT_EQ(t.runden(2), 1);
}

TEST_F(Oberflaeche, ZweiterDruckAufDieStarttasteBrichtNichtsAb) {
    t.einrichten("Zeit", "5", {1});
    o.takt.ausfuehren();
    for (int mal = 0; mal < 3; ++mal) {
        QWidget* ziel = o.bahn1.focusWidget();
        QTest::keyClick(ziel != nullptr ? ziel : &o.bahn1, Qt::Key_Return);
        o.takt.ausfuehren();
        t.maschine.laufen(50);
    }
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft());
    EXPECT_TRUE(o.bahn1.isVisible());
}

TEST_F(Oberflaeche, StartampelNimmtTastenUndGibtSieZurueck) {
    t.p.einst.fruehstart_option = fruehstart_aktion::startabbruch;
    t.einrichten("Zeit", "5", {1, 2});
    t.p.einst.start_ampel_modus = ampelwahl::fuenf_rot_gruen;
    o.takt.ausfuehren();
    klick(o.bahn1, "bahn1.Command1");
    t.maschine.laufen(4000);
    taste(o.form2, '2');
    t.maschine.laufen(2);
    o.takt.ausfuehren();
    EXPECT_TRUE(finde<QWidget>(o.form2, "Form2.Label1")->isVisible());
    auto* ok = finde<QAbstractButton>(o.form2, "Form2.abbrampel");
    QKeyEvent gehalten(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(ok, &gehalten);
    EXPECT_TRUE(o.form2.isVisible()) << "a key held down says nothing to a button that has just come";
    QTest::keyClick(ok, Qt::Key_Escape);
    EXPECT_FALSE(o.form2.isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&o.bahn1)) << "keys reach the race window again";
    o.takt.ausfuehren();
    EXPECT_NE(o.bahn1.focusWidget(), finde<QWidget>(o.bahn1, "bahn1.Command1")) << "not for a second press of that key";
    EXPECT_TRUE(QTest::qWaitFor([&] { return o.bahn1.focusWidget() == finde<QWidget>(o.bahn1, "bahn1.Command1"); }));

    t.p.einst.start_ampel_modus = ampelwahl::nur_lampen_fuenf;
    t.bahn().Command1.klicken();
    t.maschine.laufen(1000);
    EXPECT_FALSE(o.form2.isVisible());
    QTest::keyClick(&o.bahn1, Qt::Key_Escape);
    EXPECT_FALSE(t.p.startampel.laeuft());
    EXPECT_TRUE(o.bahn1.isVisible());
}

TEST_F(Oberflaeche, PauseVerschiebtKeinenKnopfUndDasFeldNimmtZiffern) {
    t.p.einst.chaosampel_an = false;
    t.p.einst.start_ampel_modus = ampelwahl::keine;
    t.starten("Zeit", "5", {1, 2});
    t.maschine.laufen(3000);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&o.bahn1));
    QTest::qWait(200);  // until the maximised window has its final size
    std::map<QString, QRect> vorher;
    for (const QPushButton* knopf : o.bahn1.findChildren<QPushButton*>()) {
        vorher[knopf->objectName()] = knopf->geometry();
    }
    klick(o.bahn1, "bahn1.Command3");
    QTest::qWait(100);
    EXPECT_TRUE(finde<QWidget>(o.bahn1, "bahn1.yellowframe_1")->isVisible());
    for (const QPushButton* knopf : o.bahn1.findChildren<QPushButton*>()) {
        const QPoint weg = knopf->geometry().center() - vorher[knopf->objectName()].center();
        EXPECT_LE(weg.manhattanLength(), 2) << knopf->objectName().toStdString();
    }
    auto* feld = finde<QLineEdit>(o.bahn1, "bahn1.ch_Text1");
    o.bahn1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.bahn1));
    feld->setFocus();
    feld->selectAll();
    QTest::keyClicks(feld, "2c1");
    EXPECT_EQ(t.bahn().ch_Text1.text(), "21") << "what is typed there is no key of the race";
    klick(o.bahn1, "bahn1.ch_strafzeit_hacken_2");
    EXPECT_TRUE(t.bahn().ch_strafzeit_hacken[2].gesetzt());
    QTest::keyClick(&o.bahn1, Qt::Key_2, Qt::AltModifier);
    QTest::keyClick(&o.bahn1, Qt::Key_1, Qt::AltModifier);
    EXPECT_TRUE(t.bahn().ch_strafzeit_hacken[1].gesetzt() && !t.bahn().ch_strafzeit_hacken[2].gesetzt());
}

TEST_F(Oberflaeche, StartampelHatNachJedemWechselIhreGroesse) {
    t.einrichten("Zeit", "5", {1, 2});
    std::map<int, QSize> groessen;
    for (const int modus : {2, 6, 2, 5, 6, 1, 4, 2}) {
        t.p.einst.start_ampel_modus = ampelwahl(modus);
        t.bahn().Command1.klicken();
        const auto [platz, neu] = groessen.try_emplace(modus, o.form2.size());
        EXPECT_EQ(o.form2.size(), platz->second) << modus;
        for (const QPushButton* knopf : o.form2.findChildren<QPushButton*>()) {
            EXPECT_TRUE(o.form2.rect().contains(knopf->geometry())) << modus;
        }
        t.p.startampel.schliessen();
        o.takt.ausfuehren();
    }
    EXPECT_LT(groessen[4].width(), groessen[2].width());
    EXPECT_GT(groessen[6].height(), groessen[2].height());
}

TEST_F(Oberflaeche, SchliessenJedesFenstersInJedemZustand) {
    t.einrichten("Zeit", "1", {1});
    o.bahn1.close();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::bahn1));
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(500);
    o.bahn1.close();
    EXPECT_TRUE(t.p.rennen.zeitgeber.renntimer->laeuft()) << "it asks first";
    t.maschine.laufen(500);
    o.bahn1.close();
    EXPECT_FALSE(t.p.rennen.zeitgeber.renntimer->laeuft());
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(60001);
    o.auswertung.close();
    EXPECT_FALSE(o.bahn1.isVisible());
    t.p.form1.command_tasten.klicken();
    o.tastatur->close();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Tastaturbelegung));
    t.p.fenster.zeigen(fenstername::Form3);
    o.form3.close();
    EXPECT_FALSE(t.p.fenster.ist_offen(fenstername::Form3));
    o.form1.close();
    EXPECT_EQ(t.maschine.beendet, 1);
    EXPECT_FALSE(o.form1.isVisible());
}

TEST_F(Oberflaeche, TastenfeldErsetztSeinZeichenUndDasFensterKommtGrossWieder) {
    klick(o.form1, "Form1.command_tasten");
    auto* zeile = finde<QLineEdit>(*o.tastatur, "Tastaturbelegung.taste_16");
    QTest::mouseClick(zeile, Qt::LeftButton);
    QTest::keyClicks(zeile, "k");
    EXPECT_EQ(t.p.tastaturbelegung.taste[16].text(), "k");
    o.tastatur->showMinimized();
    o.tastatur->close();
    t.p.form1.command_tasten.klicken();
    EXPECT_FALSE(o.tastatur->isMinimized());
}

TEST_F(Oberflaeche, JedeFarbeIstUnsereAuchImDunklenThema) {
    for (const QPalette::ColorGroup gruppe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int rolle = 0; rolle < QPalette::NColorRoles; ++rolle) {
            if (rolle != QPalette::NoRole) {
                EXPECT_TRUE(QApplication::palette().isBrushSet(gruppe, static_cast<QPalette::ColorRole>(rolle)))
                    << rolle;
            }
        }
    }
}

TEST_F(Oberflaeche, DoppelklickTrifftNichtsImFensterDahinter) {
    t.starten("Zeit", "1", {1});
    t.maschine.laufen(60001);
    klick(o.auswertung, "auswertung.Command5");
    klick(o.form1, "Form1.Command2");
    EXPECT_EQ(t.maschine.beendet, 0);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    klick(o.form1, "Form1.Command2");
    EXPECT_EQ(t.maschine.beendet, 1);
}

TEST_F(Oberflaeche, FarbenKommenAusDenEinstellungen) {
    t.p.einst.farben_spur[1] = 0x00FF00;
    t.einrichten("Zeit", "5", {1});
    o.takt.ausfuehren();
    const QImage spur = finde<QWidget>(o.bahn1, "bahn1.bahnshape_1")->grab().toImage();
    const ansicht_geometrie g = ansicht_aufteilen(t.bahn().ansicht.inhalt(), o.bahn1.width(), o.bahn1.height());
    EXPECT_EQ(spur.pixelColor(spur.width() / 2, g.streifen.y + g.streifen.hoehe / 2), QColor(0, 255, 0));
}

TEST_F(Oberflaeche, TausendRundenVerschiebenKeineSpalte) {
    t.starten("Runden", "9999", {1, 2});
    t.runde_nach(1000, "12");
    t.runden_auffuellen(1, 1200);
    t.rennende();
    QTest::qWait(50);
    const auto links = [this](const char* name) {
        return finde<QWidget>(o.auswertung, name)->mapTo(&o.auswertung, QPoint(0, 0)).x();
    };
    EXPECT_FALSE(finde<QWidget>(o.auswertung, "auswertung.Image1_0")->isVisible());
    for (const auto& [oben, unten] : {std::pair("auswertung.fahrer_0", "auswertung.fahrer_1"),
                                      {"auswertung.zeit_aus_0", "auswertung.zeit_aus_1"}}) {
        EXPECT_EQ(links(oben), links(unten)) << oben;
    }
}

TEST_F(Oberflaeche, EinBildAufDemFahrerUndEineSpurAufDerAnderen) {
    auto* gruppe = finde<QWidget>(o.form1, "Form1.Frame_spuren");
    const auto fallen = [&](const char* worauf, const QMimeData& daten) {
        auto* ziel = finde<QWidget>(o.form1, worauf);
        const QPoint hier = ziel->mapTo(gruppe, ziel->rect().center());
        QDragEnterEvent kommt(hier, Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(gruppe, &kommt);
        QDropEvent faellt(QPointF(hier), Qt::CopyAction | Qt::MoveAction, &daten, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(gruppe, &faellt);
        QTest::qWait(20);
        return faellt.isAccepted();
    };
    t.maschine.datei_schreiben("foto.jpg", "\xFF\xD8\xFF\xE0 Bild");
    QMimeData datei;
    datei.setUrls({QUrl::fromLocalFile(QString::fromStdString((t.maschine.ordner() / "foto.jpg").string()))});
    EXPECT_TRUE(fallen("Form1.fahrer_1", datei));
    EXPECT_TRUE(t.maschine.datei_da("pictures/Fahrer 2.jpg"));
    EXPECT_FALSE(fallen("Form1.Label_fahrer", datei)) << "nobody's";
    ui::Zuglast last;
    last.spur = 1;
    EXPECT_TRUE(fallen("Form1.lspur_1", *last.als_daten()));
    EXPECT_EQ(t.p.form1.fahrer[0].text() + t.p.form1.fahrer[1].text(), "Fahrer 2Fahrer 1");
    EXPECT_FALSE(fallen("Form1.lspur_0", *last.als_daten())) << "on itself";
}

TEST_F(Oberflaeche, DieTasteVonRennendeGiltAuchFuerDieRueckfrage) {
    t.starten("Zeit", "5", {1});
    t.runde_nach(1000, "1");
    o.takt.ausfuehren();
    o.bahn1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.bahn1));
    const QString davor = finde<QPushButton>(o.bahn1, "bahn1.Command4")->text();
    const char buchstabe = davor.at(davor.indexOf('&') + 1).toLower().toLatin1();
    for (int druck = 1; druck <= 2; ++druck) {
        QTest::keyClick(&o.bahn1, buchstabe, Qt::AltModifier);
        QTest::qWait(250);  // the press is shown first
        t.maschine.laufen(1000);
        o.takt.ausfuehren();
    }
    EXPECT_TRUE(t.p.rennen.zustand.rennen_beendet);
}

TEST_F(Oberflaeche, GehalteneTasteBestaetigtKeineRueckfrage) {
    t.p.einst.start_ampel_modus = ampelwahl::keine;
    t.starten("Zeit", "5", {1});
    o.takt.ausfuehren();
    o.bahn1.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&o.bahn1));
    auto* abbruch = finde<QPushButton>(o.bahn1, "bahn1.Command2");
    const auto enter = [&](QEvent::Type art, quint64 wann) {
        QKeyEvent taste(art, Qt::Key_Return, Qt::NoModifier, "\r");  // a busy program is not told that it is a repeat
        taste.setTimestamp(wann);
        QCoreApplication::sendEvent(abbruch, &taste);
        t.maschine.laufen(500);
    };
    enter(QEvent::KeyPress, 1000);
    for (const quint64 wann : {1700U, 1740U, 1780U}) {
        enter(QEvent::KeyRelease, wann);
        enter(QEvent::KeyPress, wann);
    }
    EXPECT_TRUE(o.bahn1.isVisible());
    enter(QEvent::KeyRelease, 2500);
    t.maschine.laufen(3000);  // the question has gone
    const QString text = finde<QPushButton>(o.bahn1, "bahn1.Command4")->text();
    const QChar ende = text.at(text.indexOf('&') + 1).toUpper();
    QTest::simulateEvent(&o.bahn1, true, ende.unicode(), Qt::AltModifier, ende.toLower(), false);
    for (int mal = 0; mal < 4; ++mal) {
        QTest::qWait(150);
        t.maschine.laufen(500);
        QTest::simulateEvent(&o.bahn1, true, ende.unicode(), Qt::AltModifier, ende.toLower(), true);
    }
    EXPECT_FALSE(t.p.rennen.zustand.rennen_beendet);
    enter(QEvent::KeyPress, 9000);
    enter(QEvent::KeyRelease, 9050);
    enter(QEvent::KeyPress, 9200);
    EXPECT_FALSE(o.bahn1.isVisible()) << "pressed twice it goes";
}

}  // namespace
}  // namespace tarvel
