#include "race/spurgeometrie.h"

#include <utility>

namespace tarvel {
namespace {

using spur_orte = plaetze<spur_teil>;
using t = spur_teil;

constexpr int schrift_min_px = 8;
constexpr double titelhoehe = 420;  ///< room of a caption

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
void ampel_legen(const rechteck& ort, double luecke, spur_orte& g) {
    const double kante = std::min<double>(ort.hoehe, (ort.breite - 2 * luecke) / 3);
    zuschnitt stueck(ort, luecke);
    for (const t lampe : {t::ampel_rt, t::ampel_ge, t::ampel_gr}) {
        g[lampe].ort = stueck.links(kante);
    }
}

/// The box that puts the blame for a pause on the lane, below what it is for.
void schuld_legen(const rechteck& ort, double titel_hoehe, spur_orte& g) {
    zuschnitt stueck(ort);
    g[t::Label_schuld].ort = stueck.oben(titel_hoehe);
    const rechteck& frei = stueck.rest();
    const int kante = std::min(frei.hoehe, frei.breite);
    g[t::ch_strafzeit_hacken].ort = {frei.x + (frei.breite - kante) / 2, frei.y + (frei.hoehe - kante) / 2, kante,
                                     kante};
}

/// The place, and beside it the box of the blame.
void platz_legen(const rechteck& ort, double s, double luecke, spur_orte& g) {
    zuschnitt stueck(ort, luecke);
    const double titel = titelhoehe * s;
    schuld_legen(stueck.rechts(std::min({1.1 * ort.hoehe, 0.5 * ort.breite, 1300 * s})), titel, g);
    mit_titel(stueck.rest(), titel, g[t::Label_platz], g[t::l_PosAnz]);
}

/// Number and lights of the lane over its place.
void spaltenkopf(const rechteck& ort, double s, double luecke, spur_orte& g) {
    zuschnitt stapel(ort, luecke);
    zuschnitt nummer(stapel.oben(450 * s), luecke);
    g[t::Label_spur].ort = nummer.links(450 * s);
    ampel_legen(nummer.rest(), luecke, g);
    platz_legen(stapel.rest(), s, luecke, g);
}

void tank_legen(const ansicht_inhalt& inhalt, const rechteck& ort, bool nebeneinander, spur_orte& g) {
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
void zeiten_stapeln(const ansicht_inhalt& inhalt, const rechteck& ort, spur_orte& g) {
    const rechteck feld = mittig(ort, 0.9 * ort.breite);
    const double teil = feld.hoehe / (inhalt.bestzeit ? 29.0 : 24.0);
    zuschnitt stapel(feld);
    mit_titel(stapel.oben(13.5 * teil), 5 * teil, g[t::Label_lrunde], g[t::lrunde]);
    mit_titel(stapel.oben(10.5 * teil), 5 * teil, g[t::Label_brunde], g[t::brunde]);
    g[t::bestzeit_label].ort = stapel.oben(bestzeit_hoehe(inhalt, 5 * teil));
}

/// The same side by side.
void zeiten_reihen(const ansicht_inhalt& inhalt, const rechteck& ort, double luecke, spur_orte& g) {
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
void zeile_fahrer(const ansicht_inhalt& inhalt, const rechteck& ort, bool hoch, double s, spur_orte& g) {
    const double luecke = 80 * s;
    zuschnitt stapel(ort, luecke / 2);
    g[t::namenslabel].ort = stapel.oben(std::min(0.42 * ort.hoehe, 1100 * s));
    g[t::straflabel].ort = stapel.unten(std::min(0.22 * ort.hoehe, 600 * s));
    if (hoch) {
        tank_legen(inhalt, stapel.unten(700 * s), true, g);
    }
    zuschnitt mitte(mittig(stapel.rest(), 900 * s), 2 * luecke);
    g[t::Label_spur].ort = mitte.links(0.2 * ort.breite);
    zuschnitt schuld(mitte.rechts((hoch ? 0.24 : 0.3) * ort.breite), luecke);
    if (hoch) {
        schuld_legen(schuld.rest(), 0.36 * schuld.rest().hoehe, g);
    } else {
        g[t::ch_strafzeit_hacken].ort = schuld.rechts(std::min<double>(schuld.rest().hoehe, 0.16 * ort.breite));
        g[t::Label_schuld].ort = schuld.rest();
    }
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
    for (const t text :
         {t::Label_platz, t::Label_schuld, t::Label_lrunde, t::Label_brunde, t::tanktitel, t::bestzeit_label}) {
        constexpr double titel_max = 375;
        schrift(g[text], wort);
        g[text].schrift_px = std::min(g[text].schrift_px, static_cast<int>(titel_max * skala));
    }
    constexpr double listenzeile = 500;
    constexpr double liste_em = 7.6;  // "9999. 00,000"
    g[t::t_liste].schrift_px =
        std::max(schrift_min_px, static_cast<int>(std::min(listenzeile * skala, g[t::t_liste].ort.breite / liste_em)));
}

/// The word of a lane's state as high as its counter, where the pictures and the list leave that room.
double tafelhoehe(const rechteck& frei, double gebraucht, const ansicht_geometrie& ganzes) {
    return std::clamp<double>(frei.hoehe - gebraucht, 0, ganzes.spur[t::zaehler].ort.hoehe);
}

bool ist_breite_spalte(int breite, double skala) {
    return breite >= 1.8 * entwurf::spalte * skala;
}

/// A column from top to bottom. One that is nearly twice as wide as the design has it shows two things side by side,
/// and the counter takes what that leaves.
void spalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const double luecke = 60 * s;
    const bool breit = ist_breite_spalte(block.breite, s);
    zuschnitt stapel(block.innen(110 * s), luecke);
    ganzes.streifen = stapel.oben(100 * s);
    g[t::yellowframe].ort = stapel.oben(220 * s);
    g[t::namenslabel].ort = stapel.oben(860 * s);
    zuschnitt bilder(stapel.oben((breit ? 2000 : 1700) * s), luecke);
    g[t::Image1].ort = bilder.links((breit ? 1500 : 1100) * s);
    if (breit && inhalt.fahrzeugbild) {
        g[t::Image2].ort = bilder.rechts(std::min(2700 * s, 0.34 * block.breite));
    }
    spaltenkopf(bilder.rest(), s, luecke, g);

    g[t::straflabel].ort = stapel.unten(500 * s);
    const double bild2 = inhalt.fahrzeugbild && !breit ? 800 * s : 0;
    const double tank = inhalt.tank != tankanzeige_art::keine ? 620 * s : 0;
    const double zeiten = (breit ? 1400 : 2300) * s + bestzeit_hoehe(inhalt, (breit ? 0 : 380) * s);
    const double liste_min = breit ? 1900 : 1300;
    const double frei = stapel.rest().hoehe - bild2 - tank - zeiten - (liste_min + 240) * s;
    g[t::zaehler].ort = stapel.oben(std::clamp(frei, 1900 * s, std::max(1900 * s, 0.5 * block.breite)));
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = stapel;
    const auto darunter = [&](zuschnitt& rest, spur_orte& orte) {
        tank_legen(inhalt, rest.oben(tank), true, orte);
        const rechteck zeitfeld = rest.oben(zeiten);
        breit ? zeiten_reihen(inhalt, zeitfeld, 4 * luecke, orte) : zeiten_stapeln(inhalt, zeitfeld, orte);
        orte[t::t_liste].ort = rest.rest();
    };
    if (bild2 > 0) {
        g[t::Image2].ort = stapel.oben(bild2);
    }
    darunter(stapel, g);
    const double gebraucht = tank + zeiten + (tank > 0 ? 3 : 2) * luecke;
    ganzes.tafel = mit_tafel.oben(tafelhoehe(mit_tafel.rest(), gebraucht, ganzes));
    darunter(mit_tafel, ganzes.spur_tafel);
    if (ganzes.spur_tafel[t::t_liste].ort.hoehe < 350 * s) {
        ganzes.spur_tafel[t::t_liste].ort = {};  // no row is cut through
    }
    if (inhalt.pause && !breit) {  // the word of the pause lies over the times, and cuts none of them
        g = ganzes.spur_tafel;
        g[t::Image2].ort = bild2 > 0 ? ganzes.tafel : rechteck{};
    }
    const int oben = ganzes.spur_tafel[t::Label_lrunde].ort.y;
    ganzes.unterer_teil = breit ? rechteck{} : rechteck{0, oben, block.breite, g[t::straflabel].ort.y - oben};
}

/// A block that is nearly as wide as it is high has two halves: on the left who drives and his laps, on the right his
/// times. Everything in it is larger than in a column.
void doppelspalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const double h = block.hoehe;
    const double luecke = 80 * s;
    zuschnitt stapel(block.innen(110 * s), luecke);
    ganzes.streifen = stapel.oben(100 * s);
    g[t::yellowframe].ort = stapel.oben(220 * s);
    g[t::namenslabel].ort = stapel.oben(0.14 * h);
    g[t::straflabel].ort = stapel.unten(0.07 * h);
    tank_legen(inhalt, stapel.unten(inhalt.tank != tankanzeige_art::keine ? 0.09 * h : 0), true, g);
    zuschnitt haelften(stapel.rest(), 3 * luecke);
    zuschnitt rechts(haelften.rechts(0.42 * block.breite), luecke);
    zuschnitt links(haelften.rest(), luecke);
    const double kopf = 0.27 * h;
    zuschnitt bilder(links.oben(kopf), luecke);
    g[t::Image1].ort = bilder.links(std::min(0.8 * kopf, 0.4 * links.rest().breite));
    spaltenkopf(bilder.rest(), 1.4 * s, luecke, g);
    g[t::zaehler].ort = links.rest();
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = rechts;
    const double zeiten = 0.35 * h;
    if (inhalt.fahrzeugbild) {
        g[t::Image2].ort = rechts.oben(0.65 * kopf);
    }
    zeiten_stapeln(inhalt, rechts.oben(zeiten), g);
    g[t::t_liste].ort = rechts.rest();
    ganzes.tafel = mit_tafel.unten(tafelhoehe(mit_tafel.rest(), zeiten + luecke, ganzes));
    zeiten_stapeln(inhalt, mit_tafel.rest(), ganzes.spur_tafel);
}

/// A row from left to right; what it shows shares its width. In a high row the picture of the vehicle stands below that
/// of the driver, and the tank below the name.
void zeile_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
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
    const auto dahinter = [&](zuschnitt& rest, double fuer_zeiten, spur_orte& orte) {
        if (!hoch) {
            tank_legen(inhalt, rest.links(tank * e), false, orte);
        }
        const rechteck zeitfeld = rest.links(fuer_zeiten * e);
        constexpr double nebeneinander_ab = 2.4;  // of its height: there both times are larger side by side
        if (zeitfeld.breite > nebeneinander_ab * zeitfeld.hoehe) {
            zeiten_reihen(inhalt, zeitfeld, 2 * luecke, orte);
        } else {
            zeiten_stapeln(inhalt, zeitfeld, orte);
        }
    };
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = reihe;
    if (!hoch) {
        g[t::Image2].ort = reihe.links(bild2 * e);
    }
    dahinter(reihe, zeiten, g);
    g[t::t_liste].ort = reihe.rest();
    const double zeiten_daneben = hoch ? 0.7 * zeiten : zeiten;
    const double gebraucht = (tank > 0 ? tank * e + 2 * luecke : 0) + zeiten_daneben * e + 2 * luecke;
    ganzes.tafel = mit_tafel.links(mit_tafel.rest().breite - gebraucht);
    dahinter(mit_tafel, zeiten_daneben, ganzes.spur_tafel);
}

/// A single lane, and a row that has the height for it: the counter in the middle, what belongs to the driver on its
/// left, the times on its right.
void einfahrer_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
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
    ganzes.spur_tafel = g;
    ganzes.tafel = std::exchange(ganzes.spur_tafel[t::t_liste].ort, {});
}

}  // namespace tarvel
