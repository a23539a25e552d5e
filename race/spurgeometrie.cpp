#include "race/spurgeometrie.h"

#include <utility>

#include "race/blockteile.h"

namespace tarvel {

using namespace blockteile;

namespace {

using t = spur_teil;

constexpr int schrift_min_px = 8;

/// The place, and beside it the box of the blame.
void platz_legen(const rechteck& ort, double s, double luecke, int lesbar_px, spur_orte& g) {
    zuschnitt stueck(ort, luecke);
    const double titel = titelplatz(titelhoehe * s, lesbar_px);
    const double wort = std::max(std::min(1.1 * ort.hoehe, 1300 * s), schuld_em * lesbar_px);
    schuld_legen(stueck.rechts(std::min(wort, 0.5 * ort.breite)), titel, g);
    mit_titel(stueck.rest(), titel, g[t::Label_platz], g[t::l_PosAnz]);
}

/// Number and lights of the lane over its place.
void spaltenkopf(const rechteck& ort, double s, double luecke, int lesbar_px, spur_orte& g) {
    zuschnitt stapel(ort, luecke);
    zuschnitt nummer(stapel.oben(450 * s), luecke);
    g[t::Label_spur].ort = nummer.links(std::max(450 * s, 1.6 * lesbar_px));
    ampel_legen(nummer.rest(), luecke, g);
    platz_legen(stapel.rest(), s, luecke, lesbar_px, g);
}

}  // namespace

/// Digits stand higher in their place than words, which need room for accents and descenders.
void spur_schriften(plaetze<spur_teil>& g, double skala, int lesbar_px) {
    constexpr double wort = wortanteil;
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
    schrift(g[t::rueckstand], wort, 4.6);  // "+2,314 s"
    for (const t text :
         {t::Label_platz, t::Label_schuld, t::Label_lrunde, t::Label_brunde, t::tanktitel, t::bestzeit_label}) {
        constexpr double titel_max = 375;
        schrift(g[text], wort);
        g[text].schrift_px = std::min(g[text].schrift_px, std::max(static_cast<int>(titel_max * skala), lesbar_px));
    }
    constexpr double listenzeile = 500;
    const double zeile = std::max<double>(listenzeile * skala, lesbar_px);
    g[t::t_liste].schrift_px =
        std::max(schrift_min_px, static_cast<int>(std::min(zeile, g[t::t_liste].ort.breite / liste_em)));
}

/// The word of a lane's state as high as its counter, where the pictures and the list leave that room.
double tafelhoehe(const rechteck& frei, double gebraucht, const ansicht_geometrie& ganzes) {
    return std::clamp<double>(frei.hoehe - gebraucht, 0, ganzes.spur[t::zaehler].ort.hoehe);
}

bool ist_breite_spalte(int breite, double skala) {
    return breite >= 1.8 * entwurf::spalte * skala;
}

namespace {

/// In the place of a board: the vehicle as in the race, and the last lap, which the word of a pause would hide.
void letzte_runde_legen(double bild, double luecke, ansicht_geometrie& ganzes) {
    zuschnitt feld(ganzes.tafel, luecke);
    const double titel = titelplatz(0, ganzes.lesbar_px);
    if (ganzes.tafel.hoehe < bild + luecke + 2.2 * titel) {
        ganzes.spur[t::Image2].ort = bild > 0 ? ganzes.tafel : rechteck{};
        return;
    }
    ganzes.spur[t::Image2].ort = feld.oben(bild);
    feld.unten(0.05 * ganzes.tafel.hoehe);  // the comma hangs below its place
    mit_titel(feld.rest(), titel, ganzes.spur[t::Label_lrunde], ganzes.spur[t::lrunde]);
}

/// Who drives in a column, his place, and below all the penalty; what is between is left.
zuschnitt spalte_rahmen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const double luecke = 60 * s;
    const bool breit = ist_breite_spalte(block.breite, s);
    zuschnitt stapel(block.innen(110 * s), luecke);
    ganzes.streifen = stapel.oben(100 * s);
    g[t::yellowframe].ort = stapel.oben(220 * s);
    g[t::namenslabel].ort = stapel.oben(860 * s);
    const double bildhoehe = !breit ? 1700 : inhalt.pause ? 1600 : 2000;
    zuschnitt bilder(stapel.oben(bildhoehe * s), luecke);
    g[t::Image1].ort = bilder.links((breit ? 1500 : 1100) * s);
    if (breit && inhalt.fahrzeugbild) {
        g[t::Image2].ort = bilder.rechts(std::min(2700 * s, 0.24 * block.breite));
    }
    spaltenkopf(bilder.rest(), s, luecke, ganzes.lesbar_px, g);
    g[t::straflabel].ort = stapel.unten(500 * s);
    return stapel;
}

}  // namespace

/// A column from top to bottom. One that is nearly twice as wide as the design has it shows two things side by side,
/// and the counter takes what that leaves.
void spalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    spur_orte& g = ganzes.spur;
    const double luecke = 60 * s;
    const bool breit = ist_breite_spalte(block.breite, s);
    zuschnitt stapel = spalte_rahmen(inhalt, block, s, ganzes);
    const double bild2 = inhalt.fahrzeugbild && !breit ? 800 * s : 0;
    const double tank = inhalt.tank != tankanzeige_art::keine ? 620 * s : 0;
    const double bestzeile = (breit ? 0 : 380) * s;
    const double zeiten = (breit ? 1500 : 2300) * s + bestzeit_hoehe(inhalt, bestzeile);
    const double rueckstand = rueckstand_hoehe(inhalt, (breit ? 700 : 540) * s);
    const bool knapp = breit && inhalt.pause;  // the word of the pause has taken room, and a board needs some
    const double liste_min = knapp ? 750 : breit ? 1900 : 1300;
    const double zaehler_min = (knapp ? 1050 : 1900) * s;
    const double frei = stapel.rest().hoehe - bild2 - tank - zeiten - rueckstand - (liste_min + 300) * s;
    g[t::zaehler].ort = stapel.oben(std::clamp(frei, zaehler_min, std::max(zaehler_min, 0.5 * block.breite)));
    g[t::rueckstand].ort = stapel.oben(rueckstand);
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = stapel;
    const auto darunter = [&](const ansicht_inhalt& was, double hoehe, zuschnitt& rest, spur_orte& orte) {
        tank_legen(was, rest.oben(tank), true, ganzes.lesbar_px, orte);
        const rechteck zeitfeld = rest.oben(hoehe);
        breit ? zeiten_reihen(was, zeitfeld, 4 * luecke, ganzes.lesbar_px, orte)
              : zeiten_stapeln(was, zeitfeld, ganzes.lesbar_px, orte);
        orte[t::t_liste].ort = rest.rest();
    };
    if (bild2 > 0) {
        g[t::Image2].ort = stapel.oben(bild2);
    }
    darunter(inhalt, zeiten, stapel, g);
    ansicht_inhalt neben_tafel = inhalt;
    neben_tafel.bestzeit = inhalt.bestzeit && breit;  // of before the race: it gives way too
    const double zeiten_daneben = zeiten - bestzeit_hoehe(inhalt, bestzeile);
    const double gebraucht = tank + zeiten_daneben + (tank > 0 ? 3 : 2) * luecke;
    ganzes.tafel = mit_tafel.oben(tafelhoehe(mit_tafel.rest(), gebraucht, ganzes));
    darunter(neben_tafel, zeiten_daneben, mit_tafel, ganzes.spur_tafel);
    const auto ohne_stummel = [&](spur_orte& orte) {  // no row is cut through, nor smaller than can be read
        if (orte[t::t_liste].ort.hoehe < std::max(350 * s, 1.3 * ganzes.lesbar_px)) {
            orte[t::t_liste].ort = {};
        }
    };
    ohne_stummel(ganzes.spur_tafel);
    if (knapp) {
        ohne_stummel(g);
    }
    if (inhalt.pause && !breit) {  // the word of the pause lies over the times, and cuts none of them
        g = ganzes.spur_tafel;
        letzte_runde_legen(bild2, luecke, ganzes);
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
    tank_legen(inhalt, stapel.unten(inhalt.tank != tankanzeige_art::keine ? 0.09 * h : 0), true, ganzes.lesbar_px, g);
    zuschnitt haelften(stapel.rest(), 3 * luecke);
    zuschnitt rechts(haelften.rechts(0.42 * block.breite), luecke);
    zuschnitt links(haelften.rest(), luecke);
    const double kopf = 0.27 * h;
    zuschnitt bilder(links.oben(kopf), luecke);
    g[t::Image1].ort = bilder.links(std::min(0.8 * kopf, 0.4 * links.rest().breite));
    spaltenkopf(bilder.rest(), 1.4 * s, luecke, ganzes.lesbar_px, g);
    g[t::rueckstand].ort = links.unten(rueckstand_hoehe(inhalt, 0.09 * h));
    g[t::zaehler].ort = links.rest();
    ganzes.spur_tafel = g;
    zuschnitt mit_tafel = rechts;
    const double zeiten = 0.35 * h;
    if (inhalt.fahrzeugbild) {
        const double zeile = 1.3 * ganzes.lesbar_px;  // of the list below, which is not to be cut to nothing
        g[t::Image2].ort = rechts.oben(std::min(0.65 * kopf, rechts.rest().hoehe - zeiten - zeile - 2 * luecke));
    }
    zeiten_stapeln(inhalt, rechts.oben(zeiten), ganzes.lesbar_px, g);
    g[t::t_liste].ort = rechts.rest();
    ganzes.tafel = mit_tafel.unten(tafelhoehe(mit_tafel.rest(), zeiten + luecke, ganzes));
    zeiten_stapeln(inhalt, mit_tafel.rest(), ganzes.lesbar_px, ganzes.spur_tafel);
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
    platz_legen(links.rest(), s, luecke, ganzes.lesbar_px, g);

    zuschnitt rechts(rest.rechts(seite), luecke);
    zeiten_stapeln(inhalt, rechts.oben(3600 * s), ganzes.lesbar_px, g);
    g[t::t_liste].ort = rechts.rest();

    zuschnitt mitte(rest.rest(), luecke);
    g[t::straflabel].ort = mitte.unten(700 * s);
    tank_legen(inhalt, mitte.unten(inhalt.tank != tankanzeige_art::keine ? 1100 * s : 0), true, ganzes.lesbar_px, g);
    g[t::rueckstand].ort = mitte.unten(rueckstand_hoehe(inhalt, 1100 * s));
    zaehler_einruecken(mitte.rest(), inhalt.art == ansicht_art::zeilen ? entwurf::zaehler_links * s : 0, ganzes);
    ganzes.spur_tafel = g;
    ganzes.tafel = std::exchange(ganzes.spur_tafel[t::t_liste].ort, {});
}

}  // namespace tarvel
