#include "ui/protokoll_fenster.h"

#include <QFile>
#include <QWheelEvent>
#include <ctime>
#include <fstream>

#include "core/protokollordner.h"
#include "core/protokollzeile.h"
#include "programm/rennprotokoll.h"
#include "programm/wiedergabe.h"
#include "tests/ui/oberflaeche_probe.h"

namespace tarvel {
namespace {

class ProtokollImFenster : public test::OberflaecheProbe {
protected:
    void fahren() {
        t.p.einst.chaosampel_an = false;
        t.starten("Runden", "9", {1, 2});
        t.runde_nach(1000, "12");
        t.runde_nach(6000, "1");
        t.runde_nach(1000, "1");
        t.maschine.laufen(20000);
    }
    void setzen_lassen() {
        o.takt.ausfuehren();
        QTest::qWait(60);
    }
    protokollfenster& logik() { return t.p.protokollfenster; }
    ui::ProtokollFenster& fenster() { return *o.protokoll; }
};

TEST_F(ProtokollImFenster, LeisteUndTabelleZeigenDieselbeWahl) {
    fahren();
    t.rennende();
    t.p.auswertung.Command_protokoll.klicken();
    setzen_lassen();
    auto* tabelle = finde<QTableView>(fenster(), "protokoll.tabelle");
    auto* leiste = static_cast<ui::Protokollstreifen*>(finde<QWidget>(fenster(), "protokoll.streifen"));
    const geschehen kreuz = logik().hergang().abgelehnte(1).at(0);
    QTest::mouseClick(leiste, Qt::LeftButton, {}, leiste->ortVon(1, kreuz.seit_gruen).toPoint());
    ASSERT_TRUE(tabelle->currentIndex().isValid());
    EXPECT_EQ(tabelle->currentIndex().siblingAtColumn(ui::Protokollmodell::was).data().toString(),
              "zu kurz: 1,000 s, gezählt wird ab 5,100 s");
    const QPointF mitte = leiste->ortVon(1, kreuz.seit_gruen);
    const auto vorher = logik().ausschnitt().dauer();
    QWheelEvent rad(mitte, leiste->mapToGlobal(mitte), {}, {0, 600}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
    QCoreApplication::sendEvent(leiste, &rad);
    EXPECT_LT(logik().ausschnitt().dauer() * 2, vorher);
    EXPECT_NEAR(leiste->ortVon(1, kreuz.seit_gruen).x(), mitte.x(), 1) << "under the pointer";
    tabelle->selectRow(tabelle->model()->rowCount() - 1);
    EXPECT_EQ(logik().gewaehlt(), tabelle->model()->rowCount() - 1);
    EXPECT_GE(logik().ausschnitt().bis, logik().hergang().dauer());
    tabelle->setFocus();
    QTest::keyClick(tabelle, Qt::Key_Up);
    EXPECT_EQ(logik().gewaehlt(), tabelle->model()->rowCount() - 2);
}

TEST_F(ProtokollImFenster, DieTastenDesRennensGeltenInDerPauseWeiter) {
    fahren();
    t.taste("c");
    setzen_lassen();
    klick(o.bahn1, "bahn1.Command_protokoll");
    setzen_lassen();
    ASSERT_TRUE(fenster().isVisible());
    t.maschine.laufen(3000);
    taste(fenster(), 'c');
    t.maschine.laufen(100);
    EXPECT_FALSE(t.p.rennen.zustand.chaos_aktiv);
    setzen_lassen();
    EXPECT_FALSE(fenster().isVisible());
}

TEST_F(ProtokollImFenster, DieWiedergabeFolgtDemZeigerUndIhrRennenNimmtKeinenBefehl) {
    fahren();
    t.rennende();
    t.maschine.laufen(20000);  // no crossing counts any more
    setzen_lassen();
    klick(o.auswertung, "auswertung.Command_wiedergabe");
    setzen_lassen();
    QWidget& w = *o.wiedergabe;
    ASSERT_TRUE(w.isVisible());
    auto* leiste = finde<QWidget>(w, "wiedergabe.leiste");
    const auto zeigen = [&](double teil) {
        QTest::mouseClick(leiste, Qt::LeftButton, {}, QPoint(static_cast<int>(leiste->width() * teil), 20));
        t.maschine.laufen(200);
        setzen_lassen();
    };
    for (const bool vor : {true, false, true}) {
        zeigen(vor ? 0.9 : 0.1);
        EXPECT_EQ(anzeige(w, "bahn1.zaehler_1"), vor ? "1" : "0");
        for (const char* knopf : {"bahn1.Command3", "bahn1.Command4", "bahn1.Command2"}) {
            EXPECT_FALSE(finde<QAbstractButton>(w, knopf)->isEnabled()) << knopf << vor;
        }
    }
    taste(w, 'c');
    QTest::keyClick(&w, Qt::Key_C, Qt::AltModifier);
    t.maschine.laufen(200);
    EXPECT_FALSE(t.p.wiedergabe.spieler()->rennen().zustand.chaos_aktiv);
    QTest::keyClick(leiste, Qt::Key_Home);
    t.maschine.laufen(200);
    EXPECT_EQ(t.p.wiedergabe.spieler()->stelle(), t.p.wiedergabe.spieler()->anfang());
}

TEST_F(ProtokollImFenster, EineStundeIstSofortDa) {
    fahren();
    t.rennende();
    const std::string name = t.p.rennprotokoll.dateiname().substr(protokoll_ordner.size() + 1);
    const std::string kopf = *protokoll_lesen(t.p.ablage, name);
    protokollschreiber s;
    protokollleser leser(kopf);
    std::string lang;
    for (auto zeile = leser.zeile(); zeile && zeile->starts_with('#'); zeile = leser.zeile()) {
        lang += s.beginnen(0).wort(*zeile).fertig();
    }
    lang += s.beginnen(0).wort("start 1").fertig();
    lang += s.beginnen(1).wort(">").wort("Gruen 1000").fertig();
    for (int i = 1; i <= 20000; ++i) {
        const std::string stempel = std::to_string(1000 + i * 180);
        lang += s.beginnen(0).wort("t0").zahl(std::int64_t{180} * i).fertig();
        const bool abgelehnt = i % 9 == 0;
        std::string vermerk = abgelehnt ? "Abgelehnt" : "Runde";
        vermerk += i % 2 == 0 ? " 2 " : " 1 ";
        vermerk += abgelehnt ? "5 " : std::to_string(i / 2) + " 5432 ";
        vermerk += stempel;
        vermerk += abgelehnt ? " 900 3100" : "";
        lang += s.beginnen(1).wort(">").wort(vermerk).fertig();
    }
    std::ofstream(t.p.ablage.pfad(std::string(protokoll_ordner) + "\\2026-11-22 10-00-00.txt"), std::ios::binary)
        << lang;
    fenster();
    const std::clock_t beginn = std::clock();
    logik().zeigen("2026-11-22 10-00-00.txt");
    setzen_lassen();
    fenster().grab();
    const double sekunden = static_cast<double>(std::clock() - beginn) / CLOCKS_PER_SEC;
    RecordProperty("sekunden", std::to_string(sekunden));
    EXPECT_EQ(finde<QTableView>(fenster(), "protokoll.tabelle")->model()->rowCount(), 20001);
    EXPECT_LT(sekunden, 3) << "a machine under load, unoptimised";
    const QString pfad = QString::fromStdString((t.maschine.ordner() / "Blatt.pdf").string());
    logik().Check_gruppe[protokollfenster::runden].umschalten();
    ASSERT_TRUE(ui::blatt_als_pdf(pfad, fenster().seiten()));
    QFile blatt(pfad);
    ASSERT_TRUE(blatt.open(QIODevice::ReadOnly));
    EXPECT_GT(blatt.readAll().count("/Type /Page\n"), 30);
}

}  // namespace
}  // namespace tarvel
