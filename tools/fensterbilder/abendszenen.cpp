#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <memory>
#include <utility>

#include "competition/rangliste.h"
#include "competition/w_auswertung.h"
#include "tests/plattform/vereinswettkampf.h"
#include "tools/fensterbilder/szenen.h"
#include "ui/rangliste_fenster.h"
#include "ui/w_auswertung_fenster.h"
#include "ui/wettkampfblatt.h"

namespace tarvel {
namespace {

wettkampf gefahren(wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes, int rennen) {
    wettkampf w = test::vereinswettkampf::neu(modus, fahrer, lanes);
    test::vereinswettkampf::fahren(w, rennen);
    return w;
}

/// A club of long names, whose races take their time.
wettkampf lange_namen(wettkampf w) {
    for (std::size_t i = 0; i < w.teilnehmer.size(); i += 2) {
        w.teilnehmer[i] = "Karl-Friedrich Schulze " + std::to_string(i + 1);
    }
    w.renndauern = {640000};
    return w;
}

QWidget& auswertung_zeigen(buehne& b, wettkampf w) {
    b.p.wettkampfabend.beginnen(std::move(w));
    b.p.fenster.zeigen(fenstername::w_auswertung);
    return *b.o.w_auswertung;
}

QWidget& wettkampf2_zeigen(buehne& b, wettkampf w) {
    b.p.wettkampfabend.beginnen(std::move(w));
    b.p.fenster.zeigen(fenstername::wettkampf2);
    return *b.o.wettkampf2;
}

QWidget& rangliste_zeigen(buehne& b, wettkampf w) {
    b.p.wettkampfabend.beginnen(std::move(w));
    b.p.fenster.zeigen(fenstername::rangliste);
    return *b.o.rangliste;
}

/// A page as it is printed.
class Blattbild final : public QWidget {
public:
    Blattbild(QWidget* eltern, ui::blattseiten seiten, int nummer)
        : QWidget(eltern, Qt::Window), seiten_(std::move(seiten)), nummer_(nummer) {}

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override {
        QPainter maler(this);
        maler.fillRect(rect(), Qt::white);
        constexpr double quer = 277.0 / 190;
        const double rand = height() * 0.045;
        const double hoch = std::min(height() - 2 * rand, (width() - 2 * rand) / quer);
        ui::seite_malen(maler, {rand, rand, hoch * quer, hoch}, seiten_, nummer_);
    }

private:
    ui::blattseiten seiten_;
    int nummer_;
};

QWidget& blatt_zeigen(buehne& b, wettkampf w, int nummer) {
    auswertung_zeigen(b, std::move(w));
    return *new Blattbild(&b.o.form1, ui::wettkampfseiten(b.p.w_auswertung.blatt()), nummer);
}

/// Four lanes set up, with drivers of the day on them.
QWidget& tagesrennen_zeigen(buehne& b) {
    std::size_t i = 0;
    for (const char* name : {"Anna", "Ben", "Carla", "Dieter"}) {
        b.p.form1.spur.at(i).gesetzt(true);
        b.p.form1.fahrer.at(i++).eingeben(name);
    }
    b.p.form1.command17.klicken();
    return *b.o.tagesrennen;
}

using m = wettkampf_modus;

const std::vector<szeneneintrag> alle_abendszenen{
    {"w_auswertung",
     [](buehne& b) -> QWidget& {
         return auswertung_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 5));
     }},
    {"w_auswertung_sechs_spuren",
     [](buehne& b) -> QWidget& {
         return auswertung_zeigen(b, gefahren(m::rotation, 12, {1, 2, 3, 4, 5, 6}, 12));
     }},
    {"w_auswertung_jeder",
     [](buehne& b) -> QWidget& {
         return auswertung_zeigen(b, gefahren(m::jeder_gegen_jeden, 10, {2, 5}, 70));
     }},
    {"w_auswertung_viele",
     [](buehne& b) -> QWidget& {
         return auswertung_zeigen(b, gefahren(m::gruppen, 40, {1, 2, 3, 4}, 31));
     }},
    {"w_auswertung_vor_beginn",
     [](buehne& b) -> QWidget& {
         return auswertung_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 0));
     }},
    {"w_auswertung_ohne",
     [](buehne& b) -> QWidget& {
         b.p.fenster.zeigen(fenstername::w_auswertung);
         return *b.o.w_auswertung;
     }},
    {"wettkampfblatt_eins",
     [](buehne& b) -> QWidget& {
         return blatt_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 5), 0);
     }},
    {"wettkampfblatt_zwei",
     [](buehne& b) -> QWidget& {
         return blatt_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 5), 1);
     }},
    {"wettkampfblatt_viele",
     [](buehne& b) -> QWidget& {
         return blatt_zeigen(b, gefahren(m::gruppen, 96, {1, 2, 3, 4, 5, 6}, 80), 0);
     }},
    {"wettkampfblatt_viele_einzeln",
     [](buehne& b) -> QWidget& {
         return blatt_zeigen(b, gefahren(m::gruppen, 96, {1, 2, 3, 4, 5, 6}, 80), 5);
     }},
    {"wettkampfblatt_jeder",
     [](buehne& b) -> QWidget& {
         return blatt_zeigen(b, gefahren(m::jeder_gegen_jeden, 10, {2, 5}, 70), 1);
     }},
    {"wettkampf2",
     [](buehne& b) -> QWidget& {
         return wettkampf2_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 3));
     }},
    {"wettkampf2_sechs_spuren",
     [](buehne& b) -> QWidget& {
         return wettkampf2_zeigen(b, gefahren(m::gruppen, 40, {1, 2, 3, 4, 5, 6}, 17));
     }},
    {"wettkampf2_aushang",
     [](buehne& b) -> QWidget& {
         QWidget& fenster = wettkampf2_zeigen(b, lange_namen(gefahren(m::rotation, 20, {1, 2, 3, 4, 5, 6}, 4)));
         b.p.wettkampf2.Command_aushang.klicken();
         return fenster;
     }},
    {"wettkampf2_aushang_vier",
     [](buehne& b) -> QWidget& {
         QWidget& fenster = wettkampf2_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 3));
         b.p.wettkampf2.Command_aushang.klicken();
         return fenster;
     }},
    {"wettkampf2_runden",
     [](buehne& b) -> QWidget& {
         QWidget& fenster = wettkampf2_zeigen(b, gefahren(m::rotation, 9, {1, 2, 3, 4, 5, 6}, 3));
         b.p.wettkampf2.List1.auswaehlen(1);
         b.p.wettkampf2.Command13.klicken();
         b.p.wettkampf2.rundenliste.auswaehlen(2);
         return fenster;
     }},
    {"wettkampf2_namen",
     [](buehne& b) -> QWidget& {
         QWidget& fenster = wettkampf2_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 3));
         b.p.wettkampf2.Command14.klicken();
         return fenster;
     }},
    {"wettkampf2_ende",
     [](buehne& b) -> QWidget& {
         return wettkampf2_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 7));
     }},
    {"rangliste",
     [](buehne& b) -> QWidget& {
         return rangliste_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 5));
     }},
    {"rangliste_viele",
     [](buehne& b) -> QWidget& {
         return rangliste_zeigen(b, gefahren(m::gruppen, 40, {1, 2, 3, 4}, 40));
     }},
    {"tagesrennen_neu", tagesrennen_zeigen},
    {"tagesrennen",
     [](buehne& b) -> QWidget& {
         b.t.maschine.datei_schreiben(
             "Ergebnisse/Tagesrennen/Samstag.csv",
             "Tarvel Tagesrennen\r\nA;Anna; 12;125.40;00:08,123;01:42,004\r\nB;Ben; 11;118.10;00:08,401;01:41,870\r\n"
             "A;Carla; 12;121.00;00:08,250;01:42,900\r\n0;Emil; 10;104.77;00:09,020;01:43,112\r\n"
             "A;Anna; 13;131.20;00:07,998;01:42,350\r\n");
         QWidget& fenster = tagesrennen_zeigen(b);
         b.p.tagesrennen_fenster.text_lf_datei.eingeben("Samstag");
         b.p.tagesrennen_fenster.Check1.umschalten();
         b.t.maschine.laufen(1000);
         return fenster;
     }},
};

}  // namespace

const std::vector<szeneneintrag>& abendszenen() {
    return alle_abendszenen;
}

}  // namespace tarvel
