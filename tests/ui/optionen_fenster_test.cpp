#include <QColorDialog>
#include <QListView>
#include <QScrollArea>
#include <QWheelEvent>

#include "core/text.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

using f = einstellungsfenster;

class OptionenFenster : public test::OberflaecheProbe {
protected:
    void oeffnen() {
        QTest::qWait(QApplication::doubleClickInterval() + 1);  // the click that closed the window was another one
        klick(o.form1, "Form1.Command4");
        o.takt.ausfuehren();
        ASSERT_TRUE(o.einstellungen->isVisible());
    }
    void seite(int nummer) {
        seitenliste()->setCurrentIndex(seitenliste()->model()->index(nummer, 0));
        o.takt.ausfuehren();
        QCoreApplication::processEvents();
    }
    bool gesetzt(const char* name) { return finde<QAbstractButton>(*o.einstellungen, name)->isChecked(); }
    QListView* seitenliste() { return finde<QListView>(*o.einstellungen, "einstellungen.seitenliste"); }
    QComboBox* ampel() { return finde<QComboBox>(*o.einstellungen, "einstellungen.start_ampel_combo"); }
};

TEST_F(OptionenFenster, TastaturFuehrtDurchAlleSeitenUndNichtsIstAbgeschnitten) {
    oeffnen();
    o.einstellungen->resize(1010, 700);
    QListView* seiten = seitenliste();
    ASSERT_EQ(seiten->model()->rowCount(), static_cast<int>(f::seiten_anzahl));
    for (int nummer = 0; nummer < f::seiten_anzahl; ++nummer) {
        o.takt.ausfuehren();
        QCoreApplication::processEvents();
        const QString titel = seiten->currentIndex().data().toString();
        int gezeigt = 0;
        for (QScrollArea* flaeche : o.einstellungen->findChildren<QScrollArea*>()) {
            if (flaeche->isVisible()) {
                ++gezeigt;
                EXPECT_LE(flaeche->widget()->width(), flaeche->viewport()->width()) << titel.toStdString();
            }
        }
        EXPECT_EQ(gezeigt, nummer == f::seite_fahrer || nummer == f::seite_fahrzeuge ? 0 : 1) << titel.toStdString();
        QTest::keyClick(seiten, Qt::Key_Down);
    }
    constexpr int lesbar_px = 1400;
    o.einstellungen->resize(3800, 2000);
    t.p.einstellungsfenster.seitenliste.auswaehlen(0);
    o.takt.ausfuehren();
    QCoreApplication::processEvents();
    for (QScrollArea* flaeche : o.einstellungen->findChildren<QScrollArea*>()) {
        EXPECT_TRUE(!flaeche->isVisible() || flaeche->widget()->width() <= lesbar_px) << "from caption to field";
    }
}

TEST_F(OptionenFenster, WasMitMausUndTastenGeaendertWirdBleibt) {
    oeffnen();
    klick(*o.einstellungen, "einstellungen.formelcheck");
    QTest::keyClick(ampel(), Qt::Key_Down);
    seite(f::seite_tanken);
    tippen(*o.einstellungen, "einstellungen.t_inhalt_w", "88");
    seite(f::seite_hardware);
    klick(*o.einstellungen, "einstellungen.hardware6");
    klick(*o.einstellungen, "einstellungen.hardware6");
    o.takt.ausfuehren();
    EXPECT_TRUE(finde<QWidget>(*o.einstellungen, "einstellungen.cu_comport")->isVisible());
    EXPECT_FALSE(finde<QWidget>(*o.einstellungen, "einstellungen.uart_baud")->isVisible());
    seite(f::seite_farben);
    klick(*o.einstellungen, "einstellungen.farben_spur_2");
    auto* dialog = o.einstellungen->findChild<QColorDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->setCurrentColor(QColor(1, 2, 3));
    dialog->accept();
    seite(f::seite_fahrer);
    tippen(*o.einstellungen, "einstellungen.fahrer_name", "Kaethe");
    QTest::keyClick(finde<QLineEdit>(*o.einstellungen, "einstellungen.fahrer_name"), Qt::Key_Return);
    klick(*o.einstellungen, "einstellungen.Command1");
    EXPECT_FALSE(o.einstellungen->isVisible());

    EXPECT_TRUE(t.p.einst.runde_beenden);
    EXPECT_EQ(t.p.einst.start_ampel_modus, ampelwahl::fuenf_rot);
    EXPECT_EQ(t.p.einst.tank_inhalt, 88);
    EXPECT_TRUE(t.p.einst.hardware.hw_cu);
    EXPECT_EQ(t.p.einst.farben_spur[2], 0x030201U);
    o.takt.ausfuehren();
    auto* fahrer = finde<QComboBox>(o.form1, "Form1.fahrer_0");
    EXPECT_EQ(fahrer->itemText(fahrer->count() - 1), "Kaethe");
    oeffnen();
    EXPECT_TRUE(gesetzt("einstellungen.hardware6"));
    EXPECT_EQ(ampel()->currentText(), "Startampel 5 rot");
}

TEST_F(OptionenFenster, EscapeSchliesstErstDieOffeneAuswahlUndVerwirftDann) {
    oeffnen();
    klick(*o.einstellungen, "einstellungen.formelcheck");
    ampel()->showPopup();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(o.einstellungen->isVisible());
    QTest::keyClick(seitenliste(), Qt::Key_Escape);
    EXPECT_FALSE(o.einstellungen->isVisible());
    EXPECT_FALSE(t.p.einst.runde_beenden);
    oeffnen();
    EXPECT_FALSE(gesetzt("einstellungen.formelcheck"));
}

TEST_F(OptionenFenster, MausWaehltNichtNebenDerListeUndNichtMitDemRad) {
    oeffnen();
    const QPointF ort(5, 5);
    QWheelEvent rad(ort, ampel()->mapToGlobal(ort), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    ampel()->setFocus();
    QCoreApplication::sendEvent(ampel(), &rad);
    EXPECT_EQ(ampel()->currentIndex(), 1);
    seite(f::seite_fahrer);
    QWidget* flaeche = seitenliste()->viewport();
    QTest::mouseClick(flaeche, Qt::LeftButton, {}, QPoint(20, flaeche->height() - 5));
    EXPECT_TRUE(seitenliste()->selectionModel()->isSelected(seitenliste()->model()->index(f::seite_fahrer, 0)));
}

TEST_F(OptionenFenster, DoppelklickBetrittEinenOrdner) {
    std::filesystem::create_directories(t.maschine.ordner() / "pictures/a/b/c");
    oeffnen();
    seite(f::seite_fahrer);
    klick(*o.einstellungen, "einstellungen.Command40");
    o.takt.ausfuehren();
    auto* ordner = finde<QListView>(*o.bildwahl, "fahrerbild_laden.ordner");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&*o.bildwahl));
    const auto pfad_nach = [&](int zeile) {
        const QPoint ort = ordner->visualRect(ordner->model()->index(zeile, 0)).center();
        QTest::mouseClick(ordner->viewport(), Qt::LeftButton, {}, ort);
        QTest::mouseDClick(ordner->viewport(), Qt::LeftButton, {}, ort);
        o.takt.ausfuehren();
        return std::filesystem::path(t.p.fahrerbild_laden.pfad.text()).filename();
    };
    EXPECT_EQ(pfad_nach(1), "a");
    EXPECT_EQ(pfad_nach(0), "pictures");
}

TEST_F(OptionenFenster, KaputtesBildZeigtDasStandardbild) {
    QPixmap(8, 8).save(QString::fromStdString((t.maschine.ordner() / "gut.jpg").string()), "JPG");
    t.maschine.datei_schreiben("pictures/nopic.jpg", t.maschine.datei_lesen("gut.jpg"));
    t.maschine.datei_schreiben("pictures/Fahrer 1.jpg", "\xFF\xD8\xFF kaputt");
    klick(o.form1, "Form1.Command13");
    o.takt.ausfuehren();
    EXPECT_EQ(t.p.form1.fahrerbild[0].datei(), "pictures/Fahrer 1.jpg");
    const QPixmap gezeigt = finde<QLabel>(o.form1, "Form1.fahrerbild_0")->pixmap();
    EXPECT_FALSE(gezeigt.isNull());
}

TEST_F(OptionenFenster, FotoWirdNebenherGelesenUndBleibtBereit) {
    const std::filesystem::path foto = t.maschine.ordner() / "pictures" / "Fahrer 1.jpg";
    std::filesystem::create_directories(foto.parent_path());
    QImage gross(3000, 2000, QImage::Format_RGB32);
    gross.fill(Qt::red);
    ASSERT_TRUE(gross.save(QString::fromStdString(foto.string()), "JPG"));
    klick(o.form1, "Form1.Command13");
    o.takt.ausfuehren();
    const auto* anzeige = finde<QLabel>(o.form1, "Form1.fahrerbild_0");
    EXPECT_TRUE(anzeige->pixmap().isNull()) << "nobody waits for it";
    ASSERT_TRUE(QTest::qWaitFor([anzeige] { return !anzeige->pixmap().isNull(); }));
    EXPECT_GT(anzeige->pixmap().toImage().pixelColor(5, 5).red(), 200);
    t.p.form1.bilder_anzeigen();
    o.takt.ausfuehren();
    EXPECT_FALSE(anzeige->pixmap().isNull()) << "from the copy";
}

}  // namespace
}  // namespace tarvel
