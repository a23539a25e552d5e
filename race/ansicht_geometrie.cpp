#include "race/ansicht_geometrie.h"

#include <iterator>
#include <vector>

#include "race/spurgeometrie.h"

namespace tarvel {
namespace {

using t = spur_teil;

/// A window that is no higher has no room for `wrpic2` in the rows.
constexpr int wrpic2_hoehe_px = 600;

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
    g[f::restrunden] = g[f::uhrframe2];
    zuschnitt ziel(links.rest());
    if (inhalt.naechstes_rennen) {
        g[f::Label5].ort = ziel.unten(0.4 * kopf.hoehe);
        g[f::Label_naechstesrennen].ort = ziel.unten(0.22 * kopf.hoehe);
    }
    g[f::ziel_label].ort = ziel.rest();
    schrift(g[f::uhrframe1], 0.78);
    schrift(g[f::nachlauflabel], 0.62);
    schrift(g[f::uhrframe2], inhalt.licht_der_pause ? 0.78 : 0.36);
    schrift(g[f::restrunden], 0.5);
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
    if (inhalt.befehle_woanders) {
        g[f::bestzeit_gesamt].ort = alles.links(0.6 * fuss.breite);
        g[f::ch_strafframe].ort = alles.rechts(0);
        g[f::werbe_label].ort = alles.rest();
        schrift(g[f::werbe_label], 0.7);
        schrift(g[f::bestzeit_gesamt], 0.72);
        return;
    }
    g[f::wrpic2].ort = alles.rechts(inhalt.wrpic2 ? 1.6 * fuss.hoehe : 0);
    zuschnitt zeilen(alles.rest(), 40 * s);
    zuschnitt zeile(zeilen.oben(0.38 * fuss.hoehe), 2 * luecke);
    g[f::bestzeit_gesamt].ort = zeile.links(0.44 * zeile.rest().breite);
    g[f::ch_strafframe].ort = zeile.rest();
    g[f::Frame1].ort = zeilen.rest();
    zuschnitt reihe({0, 0, zeilen.rest().breite, zeilen.rest().hoehe}, luecke);
    constexpr double knopf = 3450;
    constexpr double langer_knopf = 4700;
    for (const f befehl : {f::Command1, f::Command6, f::Command3, f::Command4}) {
        const double breite = befehl != f::Command6 ? knopf : inhalt.einfahrzeit ? langer_knopf : 0;
        g[befehl].ort = reihe.links(breite * s);
    }
    g[f::Command2].ort = reihe.rechts(knopf * s);
    g[f::werbe_label].ort = reihe.rest();
    for (const f befehl : {f::Command1, f::Command2, f::Command3, f::Command4, f::Command6}) {
        schrift(g[befehl], 0.48);
    }
    schrift(g[f::werbe_label], 0.5);
    schrift(g[f::ch_strafframe], 0.72);
    schrift(g[f::bestzeit_gesamt], 0.72);
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

/// The word of the pause lies over what does not change meanwhile, or has the place that the blocks have left it. What
/// is to be done stands in its lower part.
void pause_legen(const ansicht_inhalt& inhalt, const rechteck& flaeche, const rechteck& frei, ansicht_geometrie& g) {
    using f = fenster_teil;
    if (!inhalt.pause) {
        return;
    }
    const auto block = std::find_if(g.block.begin(), g.block.end(), [](const rechteck& r) { return !r.leer(); });
    if (frei.leer() && block != g.block.end()) {
        const rechteck& teil = g.unterer_teil;
        g.pause = {flaeche.x, block->y + teil.y, flaeche.breite, teil.hoehe};
    } else {
        g.pause = frei;
    }
    zuschnitt stueck(g.pause);
    g.fenster[f::cu_startframe].ort = stueck.unten(0.36 * g.pause.hoehe);
    schrift(g.fenster[f::cu_startframe], 0.6);
}

/// Equal blocks for the chosen lanes, without a hole for the others.
rechteck bloecke_legen(const ansicht_inhalt& inhalt, int anzahl, const rechteck& flaeche, int abstand,
                       ansicht_geometrie& g) {
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

/// The lanes that have a block, lowest value first.
std::vector<int> nach_wert(const ansicht_geometrie& g, const spuren<int>& werte) {
    std::vector<int> folge;
    std::copy_if(alle_spuren.begin(), alle_spuren.end(), std::back_inserter(folge),
                 [&](int spur) { return !g.block[spur].leer(); });
    std::stable_sort(folge.begin(), folge.end(), [&](int a, int b) { return werte[a] < werte[b]; });
    return folge;
}

/// Few lanes have blocks that are nearly as wide as they are high.
bool ist_doppelspalte(const ansicht_inhalt& inhalt, const rechteck& flaeche, int anzahl) {
    constexpr double ab = 0.75;
    return inhalt.art == ansicht_art::spalten && anzahl > 1 && flaeche.breite > ab * anzahl * flaeche.hoehe;
}

}  // namespace

void bloecke_ordnen(ansicht_geometrie& g, const spuren<int>& ordnung) {
    spuren<rechteck> geordnet;
    int von = 0;  // the next block to be given away
    for (const int stelle : nach_wert(g, ordnung)) {
        do {
            ++von;
        } while (g.block[von].leer());
        geordnet[stelle] = g.block[von];
    }
    g.block = geordnet;
}

ansicht_geometrie ansicht_aufteilen(const ansicht_inhalt& inhalt, int breite, int hoehe) {
    ansicht_geometrie g;
    g.lesbar_px = lesbar_px(hoehe);
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
    const double fuss = inhalt.befehle_woanders ? 560 * skal_faktor
                        : zeilen                ? 0.1 * hoehe - 200 * skal_faktor
                                                : 1450 * skal_faktor;
    befehle_legen(gezeigt, fenster.unten(fuss), skal_faktor, g.fenster);

    const rechteck flaeche = fenster.rest();
    const int luecke = static_cast<int>(std::lround(90 * skal_faktor));
    const double spaltenskala = std::min(static_cast<double>(breite) / anzahl / entwurf::spalte, skal_hoehe);
    const bool doppelt = ist_doppelspalte(inhalt, flaeche, anzahl);
    const bool ueber_den_bloecken = inhalt.art == ansicht_art::spalten && !doppelt &&
                                    !ist_breite_spalte((flaeche.breite - (anzahl - 1) * luecke) / anzahl, spaltenskala);
    constexpr int viele_zeilen = 5;  // need what a word can spare
    const double wort = (zeilen && anzahl >= viele_zeilen ? 0.11 : 0.16) * hoehe;
    const rechteck frei = fenster.unten(inhalt.pause && !ueber_den_bloecken ? wort : 0);
    const rechteck block = bloecke_legen(inhalt, anzahl, fenster.rest(), luecke, g);
    double skala = skal_faktor;
    if (doppelt) {
        doppelspalte_legen(inhalt, block, skal_faktor, g);
        skala = 1.4 * skal_faktor;
    } else if (inhalt.art == ansicht_art::spalten) {
        skala = spaltenskala;
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
    spur_schriften(g.spur, skala, g.lesbar_px);
    spur_schriften(g.spur_tafel, skala, g.lesbar_px);
    hinweis_legen(inhalt, breite, skal_faktor, g);
    pause_legen(inhalt, flaeche, frei, g);
    return g;
}

}  // namespace tarvel
