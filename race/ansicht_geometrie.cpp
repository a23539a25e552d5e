#include "race/ansicht_geometrie.h"

namespace tarvel {
namespace {

using lage = plaetze<spur_teil>;
using t = spur_teil;

constexpr int schrift_min_px = 8;
/// A window that is no higher has no room for `wrpic2` in the rows.
constexpr int wrpic2_hoehe_px = 600;

/// Font size that fills a place: by its height, and where `breite_em` is given by the width of the longest usual text.
void schrift(platz& ort, double anteil, double breite_em = 0) {
    double px = ort.ort.hoehe * anteil;
    if (breite_em > 0) {
        px = std::min(px, ort.ort.breite / breite_em);
    }
    ort.schrift_px = std::max(schrift_min_px, static_cast<int>(px));
}

/// Digits stand higher in their place than words, which need room for accents and descenders.
void spur_schriften(lage& g, double skala) {
    constexpr double wort = 0.82;
    constexpr double ziffern = 1.15;
    schrift(g[t::Label_spur], ziffern, 1.5);
    schrift(g[t::namenslabel], wort);
    schrift(g[t::zaehler], ziffern, 1.75);  // two digits, and with the steps at 100 and 1000 laps three and four
    schrift(g[t::l_PosAnz], ziffern, 0.8);
    schrift(g[t::lrunde], ziffern, 4.1);  // "00,000"
    schrift(g[t::brunde], 0.95, 5.2);
    schrift(g[t::t_bahn], ziffern, 3.3);
    for (const t text : {t::Label_platz, t::Label_lrunde, t::Label_brunde, t::tanktitel, t::bestzeit_label,
                         t::straflabel, t::ch_strafzeit_hacken}) {
        schrift(g[text], wort);
    }
    constexpr double listenzeile = 560;
    constexpr double liste_em = 7.6;  // "9999. 00,000"
    g[t::t_liste].schrift_px =
        std::max(schrift_min_px, static_cast<int>(std::min(listenzeile * skala, g[t::t_liste].ort.breite / liste_em)));
}

/// A caption over its display.
void mit_titel(const rechteck& ort, double titel_hoehe, platz& titel, platz& anzeige) {
    zuschnitt stueck(ort);
    titel.ort = stueck.oben(titel_hoehe);
    anzeige.ort = stueck.rest();
}

/// Name behind the number of the lane.
void name_legen(const rechteck& ort, double luecke, lage& g) {
    zuschnitt stueck(ort, luecke);
    g[t::Label_spur].ort = stueck.links(0.75 * ort.hoehe);
    g[t::namenslabel].ort = stueck.rest();
}

/// The small lights side by side, no larger than fits.
void ampel_legen(const rechteck& ort, double luecke, lage& g) {
    const double kante = std::min<double>(ort.hoehe, (ort.breite - 2 * luecke) / 3);
    zuschnitt stueck(ort, luecke);
    for (const t lampe : {t::ampel_rt, t::ampel_ge, t::ampel_gr}) {
        g[lampe].ort = stueck.links(kante);
    }
}

/// The place, and the box that puts the blame for a pause on the lane.
void platz_legen(const rechteck& ort, double titel_hoehe, double luecke, lage& g) {
    zuschnitt stueck(ort, luecke);
    const double kante = std::min(0.9 * ort.hoehe, 0.4 * ort.breite);
    zuschnitt kasten(stueck.rechts(kante));
    kasten.oben((ort.hoehe - kante) / 2);
    g[t::ch_strafzeit_hacken].ort = kasten.oben(kante);
    mit_titel(stueck.rest(), titel_hoehe, g[t::Label_platz], g[t::l_PosAnz]);
}

void tank_legen(const ansicht_inhalt& inhalt, const rechteck& ort, bool nebeneinander, lage& g) {
    if (inhalt.tank == tankanzeige_art::keine) {
        return;
    }
    g[t::frame_tank].ort = ort;
    zuschnitt stueck(ort);
    g[t::tanktitel].ort = nebeneinander ? stueck.links(0.4 * ort.breite) : stueck.oben(0.22 * ort.hoehe);
    g[inhalt.tank == tankanzeige_art::balken ? t::tankbalken : t::t_bahn].ort = stueck.rest();
}

/// The record row is there in a race that has best times.
double bestzeit_hoehe(const ansicht_inhalt& inhalt, double hoehe) {
    return inhalt.bestzeit ? hoehe : 0;
}

/// Last lap above the best one, which is the smaller of the two.
void zeiten_stapeln(const ansicht_inhalt& inhalt, const rechteck& ort, lage& g) {
    const double teil = ort.hoehe / (inhalt.bestzeit ? 27.0 : 23.0);
    zuschnitt stapel(ort);
    mit_titel(stapel.oben(13 * teil), 3 * teil, g[t::Label_lrunde], g[t::lrunde]);
    mit_titel(stapel.oben(10 * teil), 3 * teil, g[t::Label_brunde], g[t::brunde]);
    g[t::bestzeit_label].ort = stapel.oben(bestzeit_hoehe(inhalt, 4 * teil));
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

/// A column from top to bottom. One that is twice as wide as the design has it shows two things side by side, and the
/// counter takes what that leaves.
void spalte_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, lage& g) {
    const double luecke = 60 * s;
    const bool breit = block.breite >= 2 * entwurf::spalte * s;
    zuschnitt stapel(block.innen(110 * s), luecke);
    g[t::yellowframe].ort = stapel.oben(220 * s);
    name_legen(stapel.oben(860 * s), luecke, g);
    zuschnitt bilder(stapel.oben((breit ? 1800 : 1450) * s), luecke);
    g[t::Image1].ort = bilder.links((breit ? 1800 : 1100) * s);
    if (breit && inhalt.fahrzeugbild) {
        g[t::Image2].ort = bilder.rechts(std::min(2700 * s, 0.4 * block.breite));
    }
    zuschnitt neben_bild(bilder.rest(), luecke);
    ampel_legen(neben_bild.oben(450 * s), luecke, g);
    platz_legen(neben_bild.rest(), 300 * s, luecke, g);

    g[t::straflabel].ort = stapel.unten(500 * s);
    const double bild2 = inhalt.fahrzeugbild && !breit ? 1000 * s : 0;
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

/// A row from left to right; what it shows shares its width.
void zeile_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, ansicht_geometrie& ganzes) {
    lage& g = ganzes.spur;
    const double hoehe = block.hoehe / s;
    const double bild = std::min(0.8 * hoehe, 1900.0);
    const double bild2 = inhalt.fahrzeugbild ? 2300 : 0;
    const double tank = inhalt.tank != tankanzeige_art::keine ? 1500 : 0;
    const double zaehler = std::clamp(1.9 * hoehe, 4700.0, 9000.0);
    constexpr double name = 4300;
    constexpr double zeiten = 3500;
    constexpr double liste = 2100;
    const double luecke = 80 * s;
    const double e = (block.breite - 14 * luecke) / (bild + bild2 + tank + zaehler + name + zeiten + liste + 200);

    zuschnitt reihe(block.innen(80 * s), 2 * luecke);
    g[t::yellowframe].ort = reihe.links(200 * e);
    g[t::Image1].ort = reihe.links(bild * e);
    zuschnitt namen(reihe.links(name * e), luecke / 2);
    name_legen(namen.oben(std::min(0.42 * block.hoehe, 1100 * s)), luecke, g);
    g[t::straflabel].ort = namen.unten(std::min(0.22 * block.hoehe, 600 * s));
    zuschnitt ampel(namen.rest(), 2 * luecke);
    ampel_legen(ampel.links(0.55 * name * e), luecke, g);
    platz_legen(ampel.rest(), 0.3 * ampel.rest().hoehe, luecke, g);

    const rechteck feld = reihe.links(zaehler * e);
    const double rueckung = entwurf::zaehler_links * e;
    zuschnitt eingerueckt(feld);
    eingerueckt.links(rueckung);
    g[t::zaehler].ort = eingerueckt.rest();
    zuschnitt halb(feld);
    halb.links(rueckung / 2);
    ganzes.zaehler_weit = halb.rest();

    g[t::Image2].ort = reihe.links(bild2 * e);
    tank_legen(inhalt, reihe.links(tank * e), false, g);
    zeiten_stapeln(inhalt, reihe.links(zeiten * e), g);
    g[t::t_liste].ort = reihe.rest();
}

/// A single lane: the counter in the middle of the window, what belongs to the driver on its left, the times on its
/// right.
void einfahrer_legen(const ansicht_inhalt& inhalt, const rechteck& block, double s, lage& g) {
    const double luecke = 160 * s;
    zuschnitt ganzes(block.innen(200 * s), luecke);
    g[t::yellowframe].ort = ganzes.oben(260 * s);
    zuschnitt kopf(ganzes.oben(1500 * s), luecke);
    ampel_legen(kopf.rechts(4500 * s), luecke, g);
    name_legen(kopf.rest(), luecke, g);

    const double seite = 0.25 * block.breite;
    zuschnitt links(ganzes.links(seite), luecke);
    g[t::Image1].ort = links.oben((inhalt.fahrzeugbild ? 0.4 : 0.6) * links.rest().hoehe);
    if (inhalt.fahrzeugbild) {
        g[t::Image2].ort = links.oben(0.5 * links.rest().hoehe);
    }
    platz_legen(links.rest(), 420 * s, luecke, g);

    zuschnitt rechts(ganzes.rechts(seite), luecke);
    zeiten_stapeln(inhalt, rechts.oben(3600 * s), g);
    g[t::t_liste].ort = rechts.rest();

    zuschnitt mitte(ganzes.rest(), luecke);
    g[t::straflabel].ort = mitte.unten(700 * s);
    tank_legen(inhalt, mitte.unten(inhalt.tank != tankanzeige_art::keine ? 1100 * s : 0), true, g);
    g[t::zaehler].ort = mitte.rest();
}

/// Both clocks, what is driven for, and the pictures beside them.
void uhr_anordnen(const ansicht_inhalt& inhalt, const rechteck& kopf, double uhr, plaetze<fenster_teil>& g) {
    using f = fenster_teil;
    const double luecke = 150 * uhr;
    const double seite = (inhalt.uhr_gross ? 0.19 : 0.24) * kopf.breite;
    zuschnitt reihe(kopf, luecke);
    zuschnitt links(reihe.links(seite), luecke);
    zuschnitt rechts(reihe.rechts(seite), luecke);
    const double bild = std::min<double>(kopf.hoehe, 0.45 * seite);
    g[f::logobild].ort = links.links(inhalt.logobild ? bild : 0);
    g[f::wrpic1].ort = rechts.rechts(inhalt.wrpic1 ? bild : 0);
    g[f::uhrframe1].ort = reihe.rest();
    g[f::nachlauflabel].ort = reihe.rest();
    g[f::uhrframe2].ort = rechts.rest();
    zuschnitt text(links.rest());
    g[f::ziel_label].ort = text.oben(0.62 * kopf.hoehe);
    g[f::bestzeit_gesamt].ort = text.rest();
    schrift(g[f::uhrframe1], 0.78);
    schrift(g[f::nachlauflabel], 0.62);
    schrift(g[f::uhrframe2], 0.36);
    schrift(g[f::ziel_label], 0.5);
    schrift(g[f::bestzeit_gesamt], 0.45);
}

/// The commands, each always in its place, and above them the line that asks whose fault a pause was.
void befehle_legen(const ansicht_inhalt& inhalt, const rechteck& fuss, double s, plaetze<fenster_teil>& g) {
    using f = fenster_teil;
    const double luecke = 150 * s;
    zuschnitt alles(fuss, luecke);
    g[f::wrpic2].ort = alles.rechts(inhalt.wrpic2 ? 1.6 * fuss.hoehe : 0);
    zuschnitt zeilen(alles.rest(), 40 * s);
    g[f::ch_strafframe].ort = zeilen.oben(0.38 * fuss.hoehe);
    g[f::Frame1].ort = zeilen.rest();
    zuschnitt reihe({0, 0, zeilen.rest().breite, zeilen.rest().hoehe}, luecke);
    constexpr double knopf = 3150;
    for (const f befehl : {f::Command1, f::Command3, f::Command4}) {
        g[befehl].ort = reihe.links(knopf * s);
    }
    g[f::Command2].ort = reihe.rechts(knopf * s);
    g[f::werbe_label].ort = reihe.rest();
    for (const f befehl : {f::Command1, f::Command2, f::Command3, f::Command4}) {
        schrift(g[befehl], 0.48);
    }
    schrift(g[f::werbe_label], 0.5);
    schrift(g[f::ch_strafframe], 0.68);
}

void bloecke_legen(const ansicht_inhalt& inhalt, const rechteck& flaeche, double luecke, ansicht_geometrie& g) {
    const int anzahl = std::clamp(inhalt.spuren_anzahl, 1, spuren_max);
    const int abstand = static_cast<int>(std::lround(luecke));
    const bool zeilen = inhalt.art == ansicht_art::zeilen;
    rechteck block = flaeche;
    int& laenge = zeilen ? block.hoehe : block.breite;
    laenge = ((zeilen ? flaeche.hoehe : flaeche.breite) - (anzahl - 1) * abstand) / anzahl;
    for (int nummer = 0; nummer < anzahl; ++nummer) {
        const int weg = nummer * (laenge + abstand);
        g.block.at(static_cast<std::size_t>(nummer)) = zeilen ? block.verschoben(0, weg) : block.verschoben(weg, 0);
    }
}

}  // namespace

ansicht_geometrie ansicht_aufteilen(const ansicht_inhalt& inhalt, int breite, int hoehe) {
    ansicht_geometrie g;
    ansicht_inhalt gezeigt = inhalt;
    const bool zeilen = inhalt.art == ansicht_art::zeilen;
    gezeigt.wrpic2 = inhalt.wrpic2 && !(zeilen && hoehe <= wrpic2_hoehe_px);
    const double skal_breite = breite / entwurf::breite;
    const double skal_hoehe = hoehe / entwurf::hoehe;
    const double skal_faktor = std::min(skal_breite, skal_hoehe);
    constexpr double breitbild = 1.5;
    gezeigt.uhr_gross = inhalt.uhr_gross && breite > breitbild * hoehe;
    const double uhr = skal_faktor * (gezeigt.uhr_gross ? 1.5 : 1);

    zuschnitt fenster(rechteck{0, 0, breite, hoehe}.innen(90 * skal_faktor), 90 * skal_faktor);
    uhr_anordnen(gezeigt, fenster.oben(2250 * uhr), uhr, g.fenster);
    const double fuss = zeilen ? 0.1 * hoehe - 180 * skal_faktor : 1450 * skal_faktor;
    befehle_legen(gezeigt, fenster.unten(fuss), skal_faktor, g.fenster);

    bloecke_legen(inhalt, fenster.rest(), 90 * skal_faktor, g);
    const rechteck block{0, 0, g.block[0].breite, g.block[0].hoehe};
    double skala = skal_faktor;
    if (inhalt.art == ansicht_art::spalten) {
        skala = std::min(static_cast<double>(breite) / inhalt.spuren_anzahl / entwurf::spalte, skal_hoehe);
        spalte_legen(inhalt, block, skala, g.spur);
    } else if (zeilen) {
        skala = std::min(block.hoehe / entwurf::zeile, skal_breite);
        zeile_legen(inhalt, block, skala, g);
    } else {
        einfahrer_legen(inhalt, block, skala, g.spur);
    }
    spur_schriften(g.spur, skala);
    return g;
}

}  // namespace tarvel
