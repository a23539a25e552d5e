#include "race/spurgeometrie.h"

namespace tarvel {
namespace {

using lage = plaetze<spur_teil>;
using t = spur_teil;

constexpr int schrift_min_px = 8;

/// The middle of a place that is higher than its content has use for.
rechteck mittig(const rechteck& ort, double hoehe_max) {
    const int zuviel = std::max(ort.hoehe - static_cast<int>(hoehe_max), 0);
    return {ort.x, ort.y + zuviel / 2, ort.breite, ort.hoehe - zuviel};
}

/// A caption over its display.
void mit_titel(const rechteck& ort, double titel_hoehe, platz& titel, platz& anzeige) {
    zuschnitt stueck(ort);
    titel.ort = stueck.oben(titel_hoehe);
    anzeige.ort = stueck.rest();
}

/// The small lights side by side, no larger than fits.
void ampel_legen(const rechteck& ort, double luecke, lage& g) {
    const double kante = std::min<double>(ort.hoehe, (ort.breite - 2 * luecke) / 3);
    zuschnitt stueck(ort, luecke);
    for (const t lampe : {t::ampel_rt, t::ampel_ge, t::ampel_gr}) {
        g[lampe].ort = stueck.links(kante);
    }
}

/// The box that puts the blame for a pause on the lane, at the right end of a place.
void schuld_legen(const rechteck& ort, lage& g) {
    const double kante = std::min(ort.hoehe, ort.breite);
    zuschnitt kasten(zuschnitt(ort).rechts(kante));
    kasten.oben((ort.hoehe - kante) / 2);
    g[t::ch_strafzeit_hacken].ort = kasten.oben(kante);
}

/// The place, and beside it the box of the blame.
void platz_legen(const rechteck& ort, double s, double luecke, lage& g) {
    zuschnitt stueck(ort, luecke);
    schuld_legen(stueck.rechts(std::min({0.9 * ort.hoehe, 0.4 * ort.breite, 800 * s})), g);
    mit_titel(stueck.rest(), 320 * s, g[t::Label_platz], g[t::l_PosAnz]);
}

void tank_legen(const ansicht_inhalt& inhalt, const rechteck& ort, bool nebeneinander, lage& g) {
    if (inhalt.tank == tankanzeige_art::keine) {
        return;
    }
    g[t::frame_tank].ort = ort;
    zuschnitt stueck(ort, 0.02 * ort.breite);
    g[t::tanktitel].ort = nebeneinander ? stueck.links(0.4 * ort.breite) : stueck.oben(0.22 * ort.hoehe);
    g[inhalt.tank == tankanzeige_art::balken ? t::tankbalken : t::t_bahn].ort = stueck.rest();
}

/// The record row is there in a race that has best times.
double bestzeit_hoehe(const ansicht_inhalt& inhalt, double hoehe) {
    return inhalt.bestzeit ? hoehe : 0;
}

/// Last lap above the best one, which is the smaller of the two.
void zeiten_stapeln(const ansicht_inhalt& inhalt, const rechteck& ort, lage& g) {
    const rechteck feld = mittig(ort, 0.9 * ort.breite);
    const double teil = feld.hoehe / (inhalt.bestzeit ? 29.0 : 24.0);
    zuschnitt stapel(feld);
    mit_titel(stapel.oben(13.5 * teil), 5 * teil, g[t::Label_lrunde], g[t::lrunde]);
    mit_titel(stapel.oben(10.5 * teil), 5 * teil, g[t::Label_brunde], g[t::brunde]);
    g[t::bestzeit_label].ort = stapel.oben(bestzeit_hoehe(inhalt, 5 * teil));
}

/// The same side by side.
void zeiten_reihen(const ansicht_inhalt& inhalt, const rechteck& ort, double luecke, lage& g) {
    zuschnitt reihe(ort, luecke);
    const double teil = ort.hoehe / 14.0;
    mit_titel(reihe.links((ort.breite - luecke) * 0.54), 4 * teil, g[t::Label_lrunde], g[t::lrunde]);
    zuschnitt rechts(reihe.rest());
    g[t::bestzeit_label].ort = rechts.unten(bestzeit_hoehe(inhalt, 4 * teil));
    mit_titel(rechts.rest(), 4 * teil, g[t::Label_brunde], g[t::brunde]);
}

/// The counter of a row stands indented; with four digits it moves into half of that.
void zaehler_einruecken(const rechteck& feld, double rueckung, ansicht_geometrie& ganzes) {
    zuschnitt eingerueckt(feld);
    eingerueckt.links(rueckung);
    ganzes.spur[t::zaehler].ort = eingerueckt.rest();
    zuschnitt halb(feld);
    halb.links(rueckung / 2);
    ganzes.zaehler_weit = halb.rest();
}

/// What belongs to the driver of a row; a high one has the tank here.
void zeile_fahrer(const ansicht_inhalt& inhalt, const rechteck& ort, bool hoch, double s, lage& g) {
    const double luecke = 80 * s;
    zuschnitt stapel(ort, luecke / 2);
    g[t::namenslabel].ort = stapel.oben(std::min(0.42 * ort.hoehe, 1100 * s));
    g[t::straflabel].ort = stapel.unten(std::min(0.22 * ort.hoehe, 600 * s));
    if (hoch) {
        tank_legen(inhalt, stapel.unten(700 * s), true, g);
    }
    zuschnitt mitte(mittig(stapel.rest(), 900 * s), 2 * luecke);
    g[t::Label_spur].ort = mitte.links(0.2 * ort.breite);
    schuld_legen(mitte.rechts(0.2 * ort.breite), g);
    ampel_legen(mitte.rest(), luecke, g);
}

}  // namespace

/// Digits stand higher in their place than words, which need room for accents and descenders.
void spur_schriften(plaetze<spur_teil>& g, double skala) {
    constexpr double wort = 0.82;
    constexpr double ziffern = 1.15;
    schrift(g[t::Label_spur], ziffern, 1.5);
    schrift(g[t::namenslabel], wort, 5);
    schrift(g[t::zaehler], ziffern, 1.45);  // two digits; three and four are smaller by themselves
    schrift(g[t::l_PosAnz], 1.08, 0.8);     // with an edge for the leader's plate
    g[t::l_PosAnz].schrift_px = std::min(g[t::l_PosAnz].schrift_px, g[t::zaehler].schrift_px * 6 / 10);
    schrift(g[t::lrunde], ziffern, 4.1);  // "00,000"
    schrift(g[t::brunde], 0.95, 5.2);
    schrift(g[t::t_bahn], ziffern, 3.3);
    schrift(g[t::straflabel], wort, 8);
    for (const t text : {t::Label_platz, t::Label_lrunde, t::Label_brunde, t::tanktitel, t::bestzeit_label}) {
        constexpr double titel_max = 340;
        schrift(g[text], wort);
        g[text].schrift_px = std::min(g[text].schrift_px, static_cast<int>(titel_max * skala));
    }
    constexpr double listenzeile = 500;
    constexpr double liste_em = 7.6;  // "9999. 00,000"
    g[t::t_liste].schrift_px =
        std::max(schrift_min_px, static_cast<int>(std::min(listenzeile * skala, g[t::t_liste].ort.breite / liste_em)));
}

/// A column from top to bottom. One that is nearly twice as wide as the design has it shows two things side by side,
/// and the counter takes what that leaves.
void spalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    lage& g = ganzes.spur;
    const double luecke = 60 * s;
    const bool breit = block.breite >= 1.8 * entwurf::spalte * s;
    zuschnitt stapel(block.innen(110 * s), luecke);
    ganzes.streifen = stapel.oben(100 * s);
    g[t::yellowframe].ort = stapel.oben(220 * s);
    g[t::namenslabel].ort = stapel.oben(860 * s);
    zuschnitt bilder(stapel.oben((breit ? 2000 : 1700) * s), luecke);
    g[t::Image1].ort = bilder.links((breit ? 1800 : 1100) * s);
    if (breit && inhalt.fahrzeugbild) {
        g[t::Image2].ort = bilder.rechts(std::min(2700 * s, 0.4 * block.breite));
    }
    zuschnitt neben_bild(bilder.rest(), luecke);
    zuschnitt nummer(neben_bild.oben(450 * s), luecke);
    g[t::Label_spur].ort = nummer.links(450 * s);
    ampel_legen(nummer.rest(), luecke, g);
    platz_legen(neben_bild.rest(), s, luecke, g);

    g[t::straflabel].ort = stapel.unten(500 * s);
    const double bild2 = inhalt.fahrzeugbild && !breit ? 800 * s : 0;
    const double tank = inhalt.tank != tankanzeige_art::keine ? 620 * s : 0;
    const double zeiten = (breit ? 1400 : 2300) * s + bestzeit_hoehe(inhalt, (breit ? 0 : 380) * s);
    constexpr double liste_min = 1300;
    const double frei = stapel.rest().hoehe - bild2 - tank - zeiten - (liste_min + 240) * s;
    g[t::zaehler].ort = stapel.oben(std::clamp(frei, 1900 * s, std::max(1900 * s, 0.5 * block.breite)));
    if (bild2 > 0) {
        g[t::Image2].ort = stapel.oben(bild2);
    }
    tank_legen(inhalt, stapel.oben(tank), true, g);
    const rechteck zeitfeld = stapel.oben(zeiten);
    breit ? zeiten_reihen(inhalt, zeitfeld, 4 * luecke, g) : zeiten_stapeln(inhalt, zeitfeld, g);
    g[t::t_liste].ort = stapel.rest();
}

/// A row from left to right; what it shows shares its width. In a high row the picture of the vehicle stands below that
/// of the driver, and the tank below the name.
void zeile_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    lage& g = ganzes.spur;
    const double hoehe = block.hoehe / s;
    const bool hoch = hoehe > 1.4 * entwurf::zeile;
    constexpr double rand = 300;  // with the stripe and the yellow bar
    const double bild = hoch ? 2300 : 0.8 * hoehe;
    const double name = hoch ? 5400 : 3900;
    constexpr double platzziffer = 1150;
    const double zaehler = std::clamp(1.9 * hoehe, 4700.0, 8200.0);
    const double bild2 = inhalt.fahrzeugbild && !hoch ? 2300 : 0;
    const double tank = hoch || inhalt.tank == tankanzeige_art::keine ? 0
                        : inhalt.tank == tankanzeige_art::balken      ? 1200
                                                                      : 1900;
    const double zeiten = hoch ? 4300 : 3500;
    const double liste = hoch ? 2700 : 2100;
    const double luecke = 80 * s;
    const double e =
        (block.breite - 20 * luecke) / (rand + bild + name + platzziffer + zaehler + bild2 + tank + zeiten + liste);

    zuschnitt reihe(block.innen(80 * s), 2 * luecke);
    ganzes.streifen = reihe.links(100 * e);
    g[t::yellowframe].ort = reihe.links(200 * e);
    zuschnitt bilder(reihe.links(bild * e), luecke);
    g[t::Image2].ort = bilder.unten(inhalt.fahrzeugbild && hoch ? 0.4 * block.hoehe : 0);
    g[t::Image1].ort = bilder.rest();
    zeile_fahrer(inhalt, reihe.links(name * e), hoch, s, g);
    const rechteck platzfeld = mittig(reihe.links(platzziffer * e), 2.2 * platzziffer * e);
    mit_titel(platzfeld, std::min(0.2 * platzfeld.hoehe, 420 * s), g[t::Label_platz], g[t::l_PosAnz]);
    zaehler_einruecken(reihe.links(zaehler * e), entwurf::zaehler_links * e, ganzes);
    if (!hoch) {
        g[t::Image2].ort = reihe.links(bild2 * e);
        tank_legen(inhalt, reihe.links(tank * e), false, g);
    }
    const rechteck zeitfeld = reihe.links(zeiten * e);
    constexpr double nebeneinander_ab = 2.4;  // of its height: there both times are larger side by side
    if (zeitfeld.breite > nebeneinander_ab * zeitfeld.hoehe) {
        zeiten_reihen(inhalt, zeitfeld, 2 * luecke, g);
    } else {
        zeiten_stapeln(inhalt, zeitfeld, g);
    }
    g[t::t_liste].ort = reihe.rest();
}

/// A single lane, and a row that has the height for it: the counter in the middle, what belongs to the driver on its
/// left, the times on its right.
void einfahrer_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    lage& g = ganzes.spur;
    const double luecke = 160 * s;
    zuschnitt rest(block.innen(110 * s), luecke);
    ganzes.streifen = rest.oben(110 * s);
    g[t::yellowframe].ort = rest.oben(260 * s);
    zuschnitt kopf(rest.oben(1500 * s), luecke);
    ampel_legen(kopf.rechts(4500 * s), luecke, g);
    g[t::Label_spur].ort = kopf.links(1100 * s);
    g[t::namenslabel].ort = kopf.rest();

    const double seite = 0.25 * block.breite;
    zuschnitt links(rest.links(seite), luecke);
    g[t::Image1].ort = links.oben((inhalt.fahrzeugbild ? 0.4 : 0.6) * links.rest().hoehe);
    if (inhalt.fahrzeugbild) {
        g[t::Image2].ort = links.oben(0.5 * links.rest().hoehe);
    }
    platz_legen(links.rest(), s, luecke, g);

    zuschnitt rechts(rest.rechts(seite), luecke);
    zeiten_stapeln(inhalt, rechts.oben(3600 * s), g);
    g[t::t_liste].ort = rechts.rest();

    zuschnitt mitte(rest.rest(), luecke);
    g[t::straflabel].ort = mitte.unten(700 * s);
    tank_legen(inhalt, mitte.unten(inhalt.tank != tankanzeige_art::keine ? 1100 * s : 0), true, g);
    zaehler_einruecken(mitte.rest(), inhalt.art == ansicht_art::zeilen ? entwurf::zaehler_links * s : 0, ganzes);
}

}  // namespace tarvel
