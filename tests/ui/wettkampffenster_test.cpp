#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QWindow>
#include <map>

#include "competition/rangliste.h"
#include "competition/w_auswertung.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tests/ui/oberflaeche_probe.h"
#include "ui/rangliste_fenster.h"
#include "ui/w_auswertung_fenster.h"
#include "ui/wettkampfblatt.h"

namespace tarvel {
namespace {

using m = wettkampf_modus;

class Wettkampffenster : public test::OberflaecheProbe {
protected:
    void zeigen(m modus, int fahrer, std::initializer_list<int> lanes, int rennen) {
        wettkampf w = test::vereinswettkampf::neu(modus, fahrer, lanes);
        test::vereinswettkampf::fahren(w, rennen);
        abend.beginnen(std::move(w));
        t.p.fenster.zeigen(fenstername::w_auswertung);
        fenster.resize(1024, 768);
        setzen_lassen();
    }
    void setzen_lassen() {
        o.takt.ausfuehren();
        QTest::qWait(60);
    }

    wettkampfabend& abend = t.p.wettkampfabend;
    w_auswertung& stand = t.p.w_auswertung;
    ui::WAuswertungFenster& fenster = *o.w_auswertung;
};

TEST_F(Wettkampffenster, AlleSpaltenBleibenAufEinerHoehe) {
    zeigen(m::gruppen, 99, {1, 3, 5}, 40);
    auto* namen = finde<QListView>(fenster, "w_auswertung.List_name");
    const auto spalten = fenster.findChildren<QListView*>();
    const auto auf_einer_hoehe = [&] {
        for (const QListView* eine : spalten) {
            if (eine->isVisible()) {
                EXPECT_EQ(eine->verticalScrollBar()->value(), namen->verticalScrollBar()->value())
                    << eine->objectName().toStdString();
                EXPECT_EQ(eine->mapTo(&fenster, QPoint()).y(), namen->mapTo(&fenster, QPoint()).y());
                EXPECT_EQ(eine->viewport()->height(), namen->viewport()->height());
            }
        }
    };
    klick(fenster, "w_auswertung.Command2");
    const int seite = namen->verticalScrollBar()->value();
    EXPECT_GT(seite, 5) << "a page, not a row";
    auf_einer_hoehe();
    finde<QListView>(fenster, "w_auswertung.List_balken")->verticalScrollBar()->setValue(50);
    auf_einer_hoehe();
    abend.aendern([](wettkampf& w) {
        test::vereinswettkampf::fahren(w, 1);
        return true;
    });
    setzen_lassen();
    EXPECT_EQ(namen->verticalScrollBar()->value(), 50) << "a race does not take the reader away";
    stand.List_zeit.auswaehlen(98);
    setzen_lassen();
    auf_einer_hoehe();
    EXPECT_EQ(namen->currentIndex().row(), 98);
    EXPECT_FALSE(stand.Command2.bedienbar()) << "nothing is behind the last row";
}

TEST_F(Wettkampffenster, LangeNamenSindGanzWoPlatzIst) {
    wettkampf w = test::vereinswettkampf::neu(m::rotation, 4, {1, 2});
    const QString name = "Bartholomäus Fitzgerald-Grünewald";
    w.teilnehmer[0] = name.toStdString();
    abend.beginnen(std::move(w));
    t.p.fenster.zeigen(fenstername::rangliste);
    const auto* liste = finde<QListView>(*o.rangliste, "rangliste.List_name");
    const auto* kopf = finde<QLabel>(*o.rangliste, "rangliste.Label_kopf");
    for (const bool weit : {true, false}) {
        o.rangliste->resize(weit ? 1920 : 560, 700);
        setzen_lassen();
        const QModelIndexList treffer =
            liste->model()->match(liste->model()->index(0, 0), Qt::DisplayRole, "Barth", 1, Qt::MatchContains);
        ASSERT_EQ(treffer.size(), 1);
        const QString zeile = treffer[0].data().toString();
        EXPECT_EQ(zeile.contains(name), weit) << zeile.toStdString();
        EXPECT_EQ(treffer[0].data(Qt::ToolTipRole).toString(), weit ? "" : name);
        EXPECT_EQ(zeile[kopf->text().indexOf("Rd.")], '0') << "the heads go with their columns";
        EXPECT_LE(liste->sizeHintForColumn(0), liste->viewport()->width());
    }
}

TEST_F(Wettkampffenster, GesichertWirdVorDemFensterDasManSieht) {
    abend.beginnen(test::vereinswettkampf::neu(m::gruppen, 6, {1, 3}));
    t.p.fenster.zeigen(fenstername::wettkampf2);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.wettkampf2));
    klick(*o.wettkampf2, "wettkampf2.Command1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*o.rundenspeichern));
    EXPECT_EQ(o.rundenspeichern->windowHandle()->transientParent(), o.wettkampf2->windowHandle());
    klick(*o.rundenspeichern, "rundenspeichern.Command2");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&*o.wettkampf2)) << "its keys work again";
}

TEST_F(Wettkampffenster, KorrekturenVonSechsSpurenPassenAufEinenKleinenSchirm) {
    wettkampf w = test::vereinswettkampf::neu(m::rotation, 9, {1, 2, 3, 4, 5, 6});
    test::vereinswettkampf::fahren(w, 2);
    abend.beginnen(std::move(w));
    t.p.fenster.zeigen(fenstername::wettkampf2);
    t.p.wettkampf2.List1.auswaehlen(0);
    t.p.wettkampf2.Command13.klicken();
    ASSERT_TRUE(t.p.wettkampf2.Frame_runden.sichtbar());
    setzen_lassen();
    constexpr int ohne_rahmen = 768 - 30;
    o.wettkampf2->resize(1000, ohne_rahmen);
    setzen_lassen();
    EXPECT_LE(o.wettkampf2->height(), ohne_rahmen);
}

TEST_F(Wettkampffenster, BlattVerliertKeineZeile) {
    const QString pfad = QString::fromStdString((t.maschine.ordner() / "Ergebnisse" / "Blatt.pdf").string());
    for (const auto& [modus, fahrer] : {std::pair{m::gruppen, 99}, {m::jeder_gegen_jeden, 10}, {m::rotation, 2}}) {
        zeigen(modus, fahrer, {2, 5}, 30);
        ASSERT_EQ(stand.List_name.zeilen().size(), static_cast<std::size_t>(fahrer));
        const wettkampfblatt blatt = stand.blatt();
        for (const double hoehe : {1900.0, 1700.0, 3600.0}) {
            std::map<std::size_t, std::size_t> naechste;
            for (const auto& seite : ui::seiten_aufteilen(blatt, hoehe)) {
                for (const ui::tabellenstueck& stueck : seite) {
                    EXPECT_EQ(stueck.von, naechste[stueck.tabelle]);
                    EXPECT_GT(stueck.bis, stueck.von);
                    naechste[stueck.tabelle] = stueck.bis;
                    EXPECT_LT(ui::unterkante(blatt, stueck), hoehe - 40) << "over the foot of the page";
                }
            }
            for (std::size_t n = 0; n < blatt.tabellen.size(); ++n) {
                EXPECT_EQ(naechste[n], blatt.tabellen[n].zeilen.size()) << blatt.tabellen[n].titel;
            }
        }
        ASSERT_TRUE(ui::blatt_als_pdf(pfad, ui::wettkampfseiten(blatt)));
        QFile datei(pfad);
        ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
        const auto seiten = static_cast<std::ptrdiff_t>(ui::seiten_aufteilen(blatt, 1900).size());
        EXPECT_EQ(datei.readAll().count("/Type /Page\n"), seiten);
    }
}

}  // namespace
}  // namespace tarvel
