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

/// Both clocks, what is driven for, and the pictures beside them.
void uhr_anordnen(const ansicht_inhalt& inhalt, const rechteck& kopf, double uhr, ansicht_geometrie& ganzes) {
    using f = fenster_teil;
    plaetze<fenster_teil>& g = ganzes.fenster;
    const double luecke = 150 * uhr;
    const double seite = (inhalt.grosse_zeit ? 0.19 : 0.24) * kopf.breite;
    zuschnitt reihe(kopf, luecke);
    zuschnitt links(reihe.links(seite), luecke);
    zuschnitt rechts(reihe.rechts(seite), luecke);
    const double bild = std::min<double>(kopf.hoehe, 0.45 * seite);
    g[f::logobild].ort = links.links(inhalt.logobild ? bild : 0);
    g[f::wrpic1].ort = rechts.rechts(inhalt.wrpic1 ? bild : 0);
    ganzes.licht_der_pause = reihe.rest();
    zuschnitt uhren(rechts.rest());
    g[f::uhrframe1].ort = inhalt.licht_der_pause ? uhren.oben(0.5 * kopf.hoehe) : reihe.rest();
    g[f::nachlauflabel].ort = g[f::uhrframe1].ort;
    g[f::uhrframe2].ort = uhren.rest();
    zuschnitt ziel(links.rest());
    if (inhalt.naechstes_rennen) {
        g[f::Label5].ort = ziel.unten(0.36 * kopf.hoehe);
        g[f::Label_naechstesrennen].ort = ziel.unten(0.22 * kopf.hoehe);
    }
    g[f::ziel_label].ort = ziel.rest();
    schrift(g[f::uhrframe1], 0.78);
    schrift(g[f::nachlauflabel], 0.62);
    schrift(g[f::uhrframe2], inhalt.licht_der_pause ? 0.78 : 0.36);
    g[f::ziel_label].schrift_px = static_cast<int>(0.32 * kopf.hoehe);
    schrift(g[f::Label_naechstesrennen], 0.8);
    schrift(g[f::Label5], 0.46);  // two lines
}

/// The commands, each always in its place. The line above them has the record of the track, and asks whose fault a
/// pause was.
void befehle_legen(const ansicht_inhalt& inhalt, const rechteck& fuss, double s, plaetze<fenster_teil>& g) {
    using f = fenster_teil;
    const double luecke = 150 * s;
    zuschnitt alles(fuss, luecke);
    g[f::wrpic2].ort = alles.rechts(inhalt.wrpic2 ? 1.6 * fuss.hoehe : 0);
    zuschnitt zeilen(alles.rest(), 40 * s);
    zuschnitt zeile(zeilen.oben(0.38 * fuss.hoehe), 2 * luecke);
    g[f::bestzeit_gesamt].ort = zeile.links(0.4 * zeile.rest().breite);
    g[f::ch_strafframe].ort = zeile.rest();
    g[f::Frame1].ort = zeilen.rest();
    zuschnitt reihe({0, 0, zeilen.rest().breite, zeilen.rest().hoehe}, luecke);
    constexpr double knopf = 3150;
    for (const f befehl : {f::Command1, f::Command6, f::Command3, f::Command4}) {
        g[befehl].ort = reihe.links(befehl != f::Command6 || inhalt.einfahrzeit ? knopf * s : 0);
    }
    g[f::Command2].ort = reihe.rechts(knopf * s);
    g[f::werbe_label].ort = reihe.rest();
    for (const f befehl : {f::Command1, f::Command2, f::Command3, f::Command4, f::Command6}) {
        schrift(g[befehl], 0.48);
    }
    schrift(g[f::werbe_label], 0.5);
    schrift(g[f::ch_strafframe], 0.68);
    schrift(g[f::bestzeit_gesamt], 0.68);
}

/// Across the lower end of the blocks, beside the boxes of the blame and above the line that goes with them.
void hinweis_legen(const ansicht_inhalt& inhalt, int breite, double s, ansicht_geometrie& g) {
    using f = fenster_teil;
    constexpr double hoehe = 1250;
    const double luecke = 200 * s;
    double links = 0.125 * breite;
    if (inhalt.art != ansicht_art::spalten) {
        const auto block = std::find_if(g.block.begin(), g.block.end(), [](const rechteck& r) { return !r.leer(); });
        links = (block == g.block.end() ? 0 : block->x) + g.spur[t::ch_strafzeit_hacken].ort.rechts() + luecke;
    }
    const int unten = g.fenster[f::ch_strafframe].ort.y - static_cast<int>(luecke);
    const int b = static_cast<int>(std::min(0.75 * breite, breite - links - luecke));
    const int h = static_cast<int>(hoehe * s);
    g.fenster[f::cu_startframe].ort = {static_cast<int>(links), unten - h, b, h};
    schrift(g.fenster[f::cu_startframe], 0.6);
}

/// Equal blocks for the chosen lanes, without a hole for the others.
rechteck bloecke_legen(const ansicht_inhalt& inhalt, int anzahl, const rechteck& flaeche, double luecke,
                       ansicht_geometrie& g) {
    const int abstand = static_cast<int>(std::lround(luecke));
    const bool zeilen = inhalt.art == ansicht_art::zeilen;
    rechteck block = flaeche;
    int& laenge = zeilen ? block.hoehe : block.breite;
    laenge = ((zeilen ? flaeche.hoehe : flaeche.breite) - (anzahl - 1) * abstand) / anzahl;
    int weg = 0;
    for (const int spur : alle_spuren) {
        if (inhalt.spur_aktiv[spur]) {
            g.block[spur] = zeilen ? block.verschoben(0, weg) : block.verschoben(weg, 0);
            weg += laenge + abstand;
        }
    }
    return {0, 0, block.breite, block.hoehe};
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
    const auto gewaehlt = std::count(inhalt.spur_aktiv.begin(), inhalt.spur_aktiv.end(), true);
    const int anzahl = std::max(static_cast<int>(gewaehlt), 1);
    constexpr double breitbild = 1.5;
    constexpr int spuren_grosse_zeit = 3;
    gezeigt.grosse_zeit = inhalt.grosse_zeit && breite > breitbild * hoehe && anzahl <= spuren_grosse_zeit &&
                          inhalt.tank != tankanzeige_art::balken;
    const double uhr = skal_faktor * (gezeigt.grosse_zeit ? 1.5 : 1);

    zuschnitt fenster(rechteck{0, 0, breite, hoehe}.innen(110 * skal_faktor), 90 * skal_faktor);
    uhr_anordnen(gezeigt, fenster.oben(2250 * uhr), uhr, g);
    const double fuss = zeilen ? 0.1 * hoehe - 200 * skal_faktor : 1450 * skal_faktor;
    befehle_legen(gezeigt, fenster.unten(fuss), skal_faktor, g.fenster);

    const rechteck block = bloecke_legen(inhalt, anzahl, fenster.rest(), 90 * skal_faktor, g);
    double skala = skal_faktor;
    if (inhalt.art == ansicht_art::spalten) {
        skala = std::min(static_cast<double>(breite) / anzahl / entwurf::spalte, skal_hoehe);
        spalte_legen(inhalt, block, skala, g);
    } else if (zeilen) {
        constexpr int hoch = 3;
        if (block.breite > hoch * block.hoehe) {
            skala = std::min(block.hoehe / entwurf::zeile, skal_breite);
            zeile_legen(inhalt, block, skala, g);
        } else {
            einfahrer_legen(inhalt, block, skala, g);
        }
    } else {
        einfahrer_legen(inhalt, block, skala, g);
    }
    spur_schriften(g.spur, skala);
    hinweis_legen(inhalt, breite, skal_faktor, g);
    return g;
}

}  // namespace tarvel
