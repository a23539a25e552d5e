#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>

#include "results/w_auswertung2.h"
#include "tests/ergebnistabelle_probe.h"
#include "tests/ui/oberflaeche_probe.h"
#include "ui/tabellenblatt.h"
#include "ui/vergleichsbild.h"
#include "ui/w_auswertung2_fenster.h"

namespace tarvel {
namespace {

const std::string datei = "Ergebnisse\\Tagesrennen\\mai.csv";

/// In place of the desktop's programs.
class Oeffner final : public QTextBrowser {
public:
    QList<QUrl> geoeffnet;

protected:
    void doSetSource(const QUrl& was, QTextDocument::ResourceType /*art*/) override { geoeffnet << was; }
};

class Ergebnisfenster : public test::OberflaecheProbe {
protected:
    void zeigen(std::size_t zeilen) {
        ASSERT_TRUE(t.p.ablage.zeilen_schreiben(
            datei, test::tageszeilen(std::vector<std::string>(zeilen, "A;Anna; 7;70.25;00:08,000;00:56,000"))));
        t.p.w_auswertung2.datei_zeigen(datei);
        setzen_lassen();
    }
    void setzen_lassen() {
        o.takt.ausfuehren();
        QTest::qWait(60);
    }
    /// What is said when the file stands.
    QMessageBox* als_pdf(QWidget& von, const char* knopf, const QString& pfad) {
        klick(von, knopf);
        auto* wahl = von.findChild<QFileDialog*>();
        if (wahl == nullptr) {
            return nullptr;
        }
        emit wahl->fileSelected(pfad);
        wahl->close();
        return von.findChild<QMessageBox*>("gespeichert");
    }
    qsizetype pdf_seiten(const ui::blattseiten& seiten) {
        const QString pfad = QString::fromStdString((t.maschine.ordner() / "Blatt.pdf").string());
        EXPECT_TRUE(ui::blatt_als_pdf(pfad, seiten));
        QFile blatt(pfad);
        EXPECT_TRUE(blatt.open(QIODevice::ReadOnly));
        return blatt.readAll().count("/Type /Page\n");
    }

    ui::WAuswertung2Fenster& fenster = *o.w_auswertung2;
};

TEST_F(Ergebnisfenster, KorrigiertUndSpeichertMitMausUndTasten) {
    zeigen(9999);
    auto* liste = finde<QListView>(fenster, "w_auswertung2.auswertung_schoen");
    ASSERT_EQ(liste->model()->rowCount(), 9999);
    liste->verticalScrollBar()->setValue(5000);
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                      liste->visualRect(liste->model()->index(5001, 0)).center());
    klick(fenster, "w_auswertung2.Command18");
    setzen_lassen();
    tippen(fenster, "w_auswertung2.aus_runden_0", "9");
    klick(fenster, "w_auswertung2.Command14");
    setzen_lassen();
    EXPECT_EQ(liste->verticalScrollBar()->value(), 5000) << "who corrects stays where he is";
    finde<QPushButton>(fenster, "w_auswertung2.Command_zurueck")->setFocus();
    for (const char* partner : {"w_auswertung2.Command_wieder", "w_auswertung2.Command_zurueck"}) {
        setzen_lassen();
        QTest::keyClick(fenster.focusWidget(), Qt::Key_Space);
        setzen_lassen();
        EXPECT_EQ(fenster.focusWidget()->objectName(), partner);
    }
    klick(fenster, "w_auswertung2.Command16");
    setzen_lassen();
    tippen(fenster, "w_auswertung2.Text3", "juni");
    klick(fenster, "w_auswertung2.Command17");
    const auto gespeichert = t.p.ablage.zeilen_lesen("Ergebnisse\\Tagesrennen\\juni.csv", 20000).value();
    EXPECT_EQ(gespeichert.at(5002), "A;Anna; 9;70.25;00:08,000;00:56,000");
    EXPECT_EQ(gespeichert.size(), 10000U);
}

TEST_F(Ergebnisfenster, DebugfensterBleibtVorDemFensterDasEsAufgeschlagenHat) {
    zeigen(3);
    ASSERT_TRUE(fenster.isModal() && QTest::qWaitForWindowActive(&fenster));
    finde<QAction>(fenster, "w_auswertung2.Command13_menue")->trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.w_ausw_debug));
    setzen_lassen();
    EXPECT_EQ(QApplication::activeWindow(), &*o.w_ausw_debug);
}

TEST_F(Ergebnisfenster, NachgetrageneRundenHabenPlatzUndDieSchriftBleibt) {
    t.starten("Runden", "9", {1, 2});
    for (const zeit_ms dauer : {1000, 6000, 12000}) {
        t.runde_nach(dauer, "12");
    }
    t.rennende();
    setzen_lassen();
    const auto* platz = finde<ui::TextAnzeige>(o.auswertung, "auswertung.platz_0");
    const int schrift = platz->schriftPx();
    t.p.auswertung.liste[0].auswaehlen(1);
    t.p.auswertung.Command_nachtragen.klicken();
    setzen_lassen();
    t.p.auswertung.nachtrag.Command_eintragen.klicken();
    setzen_lassen();
    EXPECT_EQ(platz->schriftPx(), schrift);
    auto* liste = finde<QListView>(o.auswertung, "auswertung.liste_0");
    ASSERT_TRUE(liste->model()->index(1, 0).data().toString().endsWith("+"));
    EXPECT_EQ(liste->horizontalScrollBar()->maximum(), 0);
    QTest::mouseClick(finde<QPushButton>(o.auswertung, "auswertung.Command_nachtragen"), Qt::LeftButton);
    setzen_lassen();
    ASSERT_TRUE(t.p.auswertung.nachtrag.Frame_nachtrag.sichtbar());
    for ([[maybe_unused]] const int nochmal : {1, 2}) {  // leaves the frame, never the result
        QTest::keyClick(finde<QListView>(o.auswertung, "auswertung.angebote"), Qt::Key_Escape);
        setzen_lassen();
        EXPECT_FALSE(t.p.auswertung.nachtrag.Frame_nachtrag.sichtbar());
        EXPECT_TRUE(o.auswertung.isVisible());
    }
}

/// The gap of one who comes home behind the end: none stood there when the sizes were taken.
TEST_F(Ergebnisfenster, AbstandDerErstSpaeterDaIstHatDieUeblicheSchrift) {
    t.starten("Runden", "3", {1, 2});
    t.runde_nach(1000, "12");
    t.runde_nach(8000, "1");
    t.runde_nach(500, "2");
    t.rennende();
    setzen_lassen();
    ASSERT_TRUE(o.auswertung.isVisible());
    const auto* abstand = finde<ui::TextAnzeige>(o.auswertung, "auswertung.abstandlabel_1");
    ASSERT_TRUE(abstand->isVisible());
    const int sonst = abstand->schriftPx();
    const auto alle_zeigen = [&](bool an) {
        for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
            t.p.auswertung.abstandlabel.at(i).sichtbar(an);
            t.p.auswertung.rueckstandlabel.at(i).sichtbar(an);
        }
        o.takt.ausfuehren();
        o.auswertung.resize(o.auswertung.width() + 1, o.auswertung.height());
        QTest::qWait(60);
    };
    alle_zeigen(false);
    t.p.auswertung.abstandlabel.at(1).sichtbar(true);
    setzen_lassen();
    EXPECT_NEAR(abstand->schriftPx(), sonst, 1);
}

TEST_F(Ergebnisfenster, NachDemSpeichernStehtDaWoDieSeiteLiegt) {
    zeigen(3);
    const QString pfad = QString::fromStdString((t.maschine.ordner() / "Seite.pdf").string());
    QMessageBox* box = als_pdf(fenster, "w_auswertung2.Command_pdf", pfad);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->informativeText(), QDir::toNativeSeparators(pfad));
    EXPECT_TRUE(QFile::exists(pfad));
    EXPECT_TRUE(o.fenster.fragt());
    Oeffner desktop;
    QDesktopServices::setUrlHandler("file", &desktop, "setSource");
    for (const char* text : {"Ö&ffnen", "&Ordner zeigen", "&Schließen"}) {
        const auto knoepfe = box->buttons();
        const auto knopf =
            std::find_if(knoepfe.begin(), knoepfe.end(), [&](const auto* k) { return k->text() == text; });
        ASSERT_TRUE(knopf != knoepfe.end() && box->isVisible()) << text;
        (*knopf)->click();
    }
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_EQ(desktop.geoeffnet, (QList{QUrl::fromLocalFile(pfad), QUrl::fromLocalFile(QFileInfo(pfad).path())}));
    EXPECT_FALSE(box->isVisible() || o.fenster.fragt());
}

TEST_F(Ergebnisfenster, GespeicherteUrkundenSindGezaehlt) {
    t.p.ergebnis_fluegel().urkunden.oeffnen(test::rennen_mit({"Anna", "Ben", "Carla"}, 3, "14:03:22"), "Einzelrennen");
    t.p.ergebnis_fluegel().urkunden.Command_alle.klicken();
    t.p.ergebnis_fluegel().urkunden.dabei.umschalten();
    setzen_lassen();
    const QString pfad = QString::fromStdString((t.maschine.ordner() / "Urkunden.pdf").string());
    const QMessageBox* box = als_pdf(*o.urkunden, "urkunden.Command_pdf", pfad);
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->informativeText().endsWith("Urkunden: 2")) << box->informativeText().toStdString();
}

TEST_F(Ergebnisfenster, SeitenFuerDieWandVerlierenNiemand) {
    ui::vergleichsbild_inhalt vergleich;
    vergleich.fahrer.assign(40, {"Anna", 5, 8000, 8100, 8200, 8300, 8400});
    EXPECT_EQ(pdf_seiten(ui::vergleichsseiten(vergleich)), 3);
    vergleich.fahrer.clear();
    EXPECT_EQ(pdf_seiten(ui::vergleichsseiten(vergleich)), 1);
    ui::tabellenblatt tabelle;
    tabelle.zeilen.assign(200, {QString(90, 'x'), false});
    const auto seiten = ui::tabellenseiten(tabelle);
    EXPECT_EQ(pdf_seiten(seiten), seiten.anzahl({2770, 1900}));
    EXPECT_GT(seiten.anzahl({2770, 1900}), 3);
}

}  // namespace
}  // namespace tarvel
