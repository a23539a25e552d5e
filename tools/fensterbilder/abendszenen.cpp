#include <QPainter>
#include <QWidget>
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

/// The windows of an evening beside those of the program.
struct abendbuehne {
    explicit abendbuehne(buehne& b) : v(b.p), b_(b) {}

private:
    fenster_umgebung umgebung() { return {b_.p.ablage, b_.p.txt, b_.p.fenster, b_.p.dienste.meldungen}; }

public:
    test::vereinswettkampf v;

private:
    buehne& b_;

public:
    rangliste rang{umgebung(), b_.p.einst, v.abend};
    w_auswertung stand{umgebung(), b_.p.einst, v.abend};
    ui::RanglisteFenster rangfenster{rang, b_.o.fenster, &b_.o.form1};
    ui::WAuswertungFenster standfenster{stand, b_.p.ablage, b_.o.fenster, &b_.o.form1};
};

abendbuehne& abend_an(buehne& b) {
    const auto neu = std::make_shared<abendbuehne>(b);
    b.dazu = neu;
    return *neu;
}

wettkampf gefahren(wettkampf_modus modus, int fahrer, std::initializer_list<int> lanes, int rennen) {
    wettkampf w = test::vereinswettkampf::neu(modus, fahrer, lanes);
    test::vereinswettkampf::fahren(w, rennen);
    return w;
}

QWidget& auswertung_zeigen(buehne& b, wettkampf w) {
    abendbuehne& a = abend_an(b);
    a.v.abend.beginnen(std::move(w));
    b.p.fenster.zeigen(fenstername::w_auswertung);
    return a.standfenster;
}

QWidget& rangliste_zeigen(buehne& b, wettkampf w) {
    abendbuehne& a = abend_an(b);
    a.v.abend.beginnen(std::move(w));
    b.p.fenster.zeigen(fenstername::rangliste);
    return a.rangfenster;
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
        const double rand = height() * 0.045;
        const double hoch = height() - 2 * rand;
        ui::seite_malen(maler, {rand, rand, hoch * 277 / 190, hoch}, seiten_, nummer_);
    }

private:
    ui::blattseiten seiten_;
    int nummer_;
};

QWidget& blatt_zeigen(buehne& b, wettkampf w, int nummer) {
    auswertung_zeigen(b, std::move(w));
    const auto& a = *std::static_pointer_cast<abendbuehne>(b.dazu);
    return *new Blattbild(&b.o.form1, ui::wettkampfseiten(a.stand.blatt()), nummer);
}

using m = wettkampf_modus;

const std::vector<szeneneintrag> alle{
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
         abendbuehne& a = abend_an(b);
         b.p.fenster.zeigen(fenstername::w_auswertung);
         return a.standfenster;
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
    {"rangliste",
     [](buehne& b) -> QWidget& {
         return rangliste_zeigen(b, gefahren(m::rotation, 7, {1, 2, 3, 4}, 5));
     }},
    {"rangliste_viele",
     [](buehne& b) -> QWidget& {
         return rangliste_zeigen(b, gefahren(m::gruppen, 40, {1, 2, 3, 4}, 40));
     }},
};

}  // namespace

const std::vector<szeneneintrag>& abendszenen() {
    return alle;
}

}  // namespace tarvel
